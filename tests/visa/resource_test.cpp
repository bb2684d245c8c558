// Resource managers, descriptors, attributes and handles.
#include <array>
#include <cstring>
#include <vector>

#include "session_fixture.h"

namespace visa_test {
namespace {

class Resource : public SessionTest {
 protected:
  void SetUp() override { ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager)); }
  ViStatus TryOpen(const char* descriptor, ViUInt32 timeout = 500) {
    ViSession opened = 77;
    const ViStatus status = viOpen(manager, descriptor, VI_NULL, timeout, &opened);
    EXPECT_EQ(status < 0, opened == VI_NULL) << descriptor;
    if (status >= 0) viClose(opened);
    return status;
  }
  std::string Text(ViSession session, ViAttr attribute) {
    char text[VI_FIND_BUFLEN] = "?";
    EXPECT_EQ(VI_SUCCESS, viGetAttribute(session, attribute, text));
    return text;
  }
  template <class T>
  T Number(ViSession session, ViAttr attribute) {
    T number{};
    EXPECT_EQ(VI_SUCCESS, viGetAttribute(session, attribute, &number)) << std::hex << attribute;
    return number;
  }
};

TEST_F(Resource, EveryManagerIsASessionOfItsOwn) {
  ViSession other = VI_NULL;
  EXPECT_EQ(VI_SUCCESS, (viGetDefaultRM)(&other));
  EXPECT_NE(VI_NULL, static_cast<int>(other));
  EXPECT_NE(manager, other);
  EXPECT_EQ(VI_SUCCESS, viClose(other));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viClose(other));
  EXPECT_EQ(VI_ERROR_USER_BUF, viOpenDefaultRM(nullptr));
}

TEST_F(Resource, MalformedDescriptorsAreRefused) {
  for (const char* descriptor : {"",
                                 "TCPIP",
                                 "TCPIP::",
                                 "TCPIP::::5025::SOCKET",
                                 "TCPIP::host::SOCKET",
                                 "TCPIP::host::::SOCKET",
                                 "TCPIP::host::abc::SOCKET",
                                 "TCPIP::host::70000::SOCKET",
                                 "TCPIP::host::-1::SOCKET",
                                 "TCPIP::host::0::SOCKET",
                                 "TCPIP::host::5025::SOCKET::x",
                                 "TCPIP::host::5025::SOCKETS",
                                 "TCPIP::host::5025::RAW",
                                 "TCPIPX::h::1::SOCKET",
                                 "TCPIP-1::h::1::SOCKET",
                                 "TCPIP99999::h::1::SOCKET",
                                 "NOWHERE::1::INSTR",
                                 "TCPIP::[::1::5025::SOCKET",
                                 "TCPIP::[zz]::5025::SOCKET",
                                 "TCPIP::a b::5025::SOCKET",
                                 "TCPIP::h::hislip0,x::INSTR",
                                 "host:5025",
                                 "USB::0x1::INSTR",
                                 "ASRL1::2::INSTR",
                                 "GPIB:::1::INSTR",
                                 "GPIB::[1::INSTR",
                                 "GPIB::1 ::INSTR",
                                 "USB::0x1::0x2::\x80::INSTR",
                                 "::"}) {
    EXPECT_EQ(VI_ERROR_INV_RSRC_NAME, TryOpen(descriptor)) << descriptor;
  }
  EXPECT_EQ(VI_ERROR_INV_RSRC_NAME, TryOpen(nullptr));
  EXPECT_EQ(VI_ERROR_INV_RSRC_NAME, TryOpen(std::string(100000, ':').c_str()));
}

TEST_F(Resource, InterfacesThatAreNotHereAreNamedAsSuch) {
  for (const char* descriptor : {"GPIB0::1::INSTR", "gpib::1::0::instr", "ASRL1::INSTR", "ASRL",
                                 "USB::0x1234::0x5678::A22-5::INSTR", "VXI0::1", "PXI0::3-18::INSTR"}) {
    EXPECT_EQ(VI_ERROR_INTF_NUM_NCONFIG, TryOpen(descriptor)) << descriptor;
  }
}

TEST_F(Resource, SecureDescriptorsNeverMakeAnOpenConnection) {
  EXPECT_EQ(VI_ERROR_INV_PROT, TryOpen("TCPIP::user@127.0.0.1::hislip0::INSTR"));
  EXPECT_EQ(VI_ERROR_INV_PROT, TryOpen("TCPIP::$@127.0.0.1::5025::SOCKET"));
}

TEST_F(Resource, AnUnknownHostAndARefusedPortAreNotFound) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, TryOpen("TCPIP::no-such-host.invalid::5025::SOCKET", 5000));
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, TryOpen(("TCPIP::127.0.0.1::" + std::to_string(RefusedPort()) + "::SOCKET").c_str()));
}

TEST_F(Resource, OnlyAManagerOpens) {
  OpenTo("");
  ViSession opened = 5;
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viOpen(vi, peer->Descriptor().c_str(), VI_NULL, 100, &opened));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viOpen(VI_NULL, peer->Descriptor().c_str(), VI_NULL, 100, &opened));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viOpen(12345, peer->Descriptor().c_str(), VI_NULL, 100, &opened));
  EXPECT_EQ(VI_ERROR_USER_BUF, viOpen(manager, peer->Descriptor().c_str(), VI_NULL, 100, nullptr));
}

TEST_F(Resource, AccessModesBeyondLockAndConfigurationAreRefused) {
  OpenTo("");
  ViSession other = VI_NULL;
  EXPECT_EQ(VI_ERROR_INV_ACC_MODE, viOpen(manager, peer->Descriptor().c_str(), VI_SHARED_LOCK, 100, &other));
  EXPECT_EQ(VI_WARN_CONFIG_NLOADED, viOpen(manager, peer->Descriptor().c_str(), VI_LOAD_CONFIG, 1000, &other));
  EXPECT_NE(VI_NULL, static_cast<int>(other));
}

TEST_F(Resource, IPv6AndHostNamesReachTheirPeer) {
  Open([](Connection& c) { EXPECT_EQ("6\n", c.Line()); }, Family::kIpv6);
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "6\n"));
  EXPECT_EQ("::1", Text(vi, VI_ATTR_TCPIP_ADDR));
  EXPECT_EQ(peer->Descriptor(), Text(vi, VI_ATTR_RSRC_NAME));
  CloseAll();

  Peer named([](Connection& c) { EXPECT_EQ("name\n", c.Line()); });
  ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager));
  const std::string descriptor = "tcpip::localhost::" + std::to_string(named.port()) + "::socket";
  ASSERT_EQ(VI_SUCCESS, viOpen(manager, descriptor.c_str(), VI_NULL, 0, &vi));
  EXPECT_EQ("localhost", Text(vi, VI_ATTR_TCPIP_HOSTNAME));
  EXPECT_EQ("127.0.0.1", Text(vi, VI_ATTR_TCPIP_ADDR));
  EXPECT_EQ("TCPIP0::localhost::" + std::to_string(named.port()) + "::SOCKET", Text(vi, VI_ATTR_RSRC_NAME));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "name\n"));
  viClose(vi);
}

TEST_F(Resource, ParsingTellsTheCanonicalNameWithoutAnyConnection) {
  ViUInt16 type = 0;
  ViUInt16 number = 9;
  std::array<char, VI_FIND_BUFLEN> name_class{};
  std::array<char, VI_FIND_BUFLEN> expanded{};
  std::array<char, VI_FIND_BUFLEN> alias{"x"};
  const auto parse = [&](const char* text) {
    return viParseRsrcEx(manager, text, &type, &number, name_class.data(), expanded.data(), alias.data());
  };
  EXPECT_EQ(VI_SUCCESS, parse("tcpip2::Host.Example::05025::socket"));
  EXPECT_EQ(VI_INTF_TCPIP, type);
  EXPECT_EQ(2, number);
  EXPECT_STREQ("SOCKET", name_class.data());
  EXPECT_STREQ("TCPIP2::Host.Example::5025::SOCKET", expanded.data());
  EXPECT_STREQ("", alias.data());
  EXPECT_EQ(VI_SUCCESS, parse("TCPIP::1.2.3.4"));
  EXPECT_STREQ("TCPIP0::1.2.3.4::inst0::INSTR", expanded.data());
  EXPECT_EQ(VI_SUCCESS, parse("TCPIP::[fe80::1]::hislip0::instr"));
  EXPECT_STREQ("TCPIP0::[fe80::1]::hislip0::INSTR", expanded.data());
  EXPECT_EQ(VI_SUCCESS, parse("TCPIP::h::hislip0,5000"));
  EXPECT_STREQ("TCPIP0::h::hislip0,5000::INSTR", expanded.data());
  EXPECT_EQ(VI_SUCCESS, parse("TCPIP::h::gpib0,5::INSTR"));
  EXPECT_STREQ("TCPIP0::h::gpib0,5::INSTR", expanded.data());
  EXPECT_EQ(VI_SUCCESS, viParseRsrc(manager, "gpib1::2::3", &type, &number));
  EXPECT_EQ(VI_INTF_GPIB, type);
  EXPECT_EQ(1, number);
  EXPECT_EQ(VI_ERROR_INV_RSRC_NAME, viParseRsrc(manager, "gpib1::2::3::4::5", &type, &number));
}

TEST_F(Resource, AFreshSessionHasThePublishedDefaults) {
  Open([](Connection& c) { c.WaitForClose(); });
  ASSERT_EQ(VI_SUCCESS, viOpen(manager, peer->Descriptor().c_str(), VI_NULL, 1234, &vi));
  EXPECT_EQ(2000u, Number<ViUInt32>(vi, VI_ATTR_TMO_VALUE)) << "the open timeout is another thing";
  EXPECT_EQ('\n', Number<ViUInt8>(vi, VI_ATTR_TERMCHAR));
  EXPECT_EQ(VI_FALSE, Number<ViBoolean>(vi, VI_ATTR_TERMCHAR_EN));
  EXPECT_EQ(VI_TRUE, Number<ViBoolean>(vi, VI_ATTR_SEND_END_EN));
  EXPECT_EQ(VI_PROT_NORMAL, Number<ViUInt16>(vi, VI_ATTR_IO_PROT));
  EXPECT_EQ(VI_FALSE, Number<ViBoolean>(vi, VI_ATTR_DMA_ALLOW_EN));
  EXPECT_EQ(VI_FLUSH_DISABLE, Number<ViUInt16>(vi, VI_ATTR_RD_BUF_OPER_MODE));
  EXPECT_EQ(VI_FLUSH_WHEN_FULL, Number<ViUInt16>(vi, VI_ATTR_WR_BUF_OPER_MODE));
  EXPECT_EQ(4096u, Number<ViUInt32>(vi, VI_ATTR_RD_BUF_SIZE));
  EXPECT_EQ(4096u, Number<ViUInt32>(vi, VI_ATTR_WR_BUF_SIZE));
  EXPECT_EQ(VI_FALSE, Number<ViBoolean>(vi, VI_ATTR_FILE_APPEND_EN));
  EXPECT_EQ(50u, Number<ViUInt32>(vi, VI_ATTR_MAX_QUEUE_LENGTH));
  EXPECT_EQ(VI_INTF_TCPIP, Number<ViUInt16>(vi, VI_ATTR_INTF_TYPE));
  EXPECT_EQ(0, Number<ViUInt16>(vi, VI_ATTR_INTF_NUM));
  EXPECT_EQ(peer->port(), Number<ViUInt16>(vi, VI_ATTR_TCPIP_PORT));
  EXPECT_EQ(VI_TRUE, Number<ViBoolean>(vi, VI_ATTR_TCPIP_NODELAY));
  EXPECT_EQ(VI_FALSE, Number<ViBoolean>(vi, VI_ATTR_TCPIP_KEEPALIVE));
  EXPECT_EQ(manager, Number<ViSession>(vi, VI_ATTR_RM_SESSION));
  EXPECT_EQ(0x00700200u, Number<ViVersion>(vi, VI_ATTR_RSRC_SPEC_VERSION));
  EXPECT_EQ("SOCKET", Text(vi, VI_ATTR_RSRC_CLASS));
  EXPECT_EQ("TCPIP0", Text(vi, VI_ATTR_INTF_INST_NAME));
  EXPECT_EQ("", Text(vi, VI_ATTR_TCPIP_HOSTNAME));
  EXPECT_EQ("127.0.0.1", Text(vi, VI_ATTR_TCPIP_ADDR));
}

TEST_F(Resource, GettingWritesNoByteBeyondTheAttributesOwnType) {
  OpenTo("");
  std::array<unsigned char, 8> guarded;
  const auto bytes_written = [&](ViAttr attribute) {
    guarded.fill(0xA5);
    EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi, attribute, guarded.data()));
    std::size_t last = guarded.size();
    while (last > 0 && guarded[last - 1] == 0xA5) --last;
    return last;
  };
  EXPECT_EQ(1u, bytes_written(VI_ATTR_TERMCHAR));
  EXPECT_EQ(2u, bytes_written(VI_ATTR_TERMCHAR_EN));
  EXPECT_EQ(2u, bytes_written(VI_ATTR_TCPIP_NODELAY));
  EXPECT_EQ(4u, bytes_written(VI_ATTR_TMO_VALUE));
  EXPECT_EQ(8u, bytes_written(VI_ATTR_USER_DATA_64));
  EXPECT_EQ(4u, bytes_written(VI_ATTR_USER_DATA_32));
}

TEST_F(Resource, AttributesAreStoredCheckedAndProtected) {
  OpenTo("");
  EXPECT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, VI_TMO_INFINITE));
  EXPECT_EQ(0xFFFFFFFFu, Number<ViUInt32>(vi, VI_ATTR_TMO_VALUE));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 0x100000000));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi, VI_ATTR_TERMCHAR, 256));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, 2));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi, VI_ATTR_IO_PROT, 2));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi, VI_ATTR_RD_BUF_OPER_MODE, VI_FLUSH_WHEN_FULL));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi, VI_ATTR_WR_BUF_OPER_MODE, VI_FLUSH_DISABLE));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi, VI_ATTR_TCPIP_NODELAY, 2));
  EXPECT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TCPIP_KEEPALIVE, VI_TRUE));
  EXPECT_EQ(VI_TRUE, Number<ViBoolean>(vi, VI_ATTR_TCPIP_KEEPALIVE));
  EXPECT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_USER_DATA_64, 0x123456789ABCDEF0));
  EXPECT_EQ(0x9ABCDEF0u, Number<ViUInt32>(vi, VI_ATTR_USER_DATA_32));
  EXPECT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_USER_DATA_32, 7));
  EXPECT_EQ(7u, Number<ViUInt64>(vi, VI_ATTR_USER_DATA_64));
  for (const ViAttr attribute : std::initializer_list<ViAttr>{
           VI_ATTR_RSRC_CLASS, VI_ATTR_RSRC_NAME, VI_ATTR_RM_SESSION, VI_ATTR_INTF_TYPE, VI_ATTR_INTF_NUM,
           VI_ATTR_RD_BUF_SIZE, VI_ATTR_WR_BUF_SIZE, VI_ATTR_TCPIP_ADDR, VI_ATTR_TCPIP_HOSTNAME, VI_ATTR_TCPIP_PORT,
           VI_ATTR_RSRC_LOCK_STATE, VI_ATTR_RSRC_MANF_NAME, VI_ATTR_INTF_INST_NAME, VI_ATTR_RSRC_SPEC_VERSION}) {
    EXPECT_EQ(VI_ERROR_ATTR_READONLY, viSetAttribute(vi, attribute, 1)) << std::hex << attribute;
  }
  ViUInt64 value = 0;
  for (const ViAttr attribute :
       std::initializer_list<ViAttr>{VI_ATTR_SUPPRESS_END_EN, VI_ATTR_TRIG_ID, VI_ATTR_TCPIP_HISLIP_VERSION}) {
    EXPECT_EQ(VI_ERROR_NSUP_ATTR, viGetAttribute(vi, attribute, &value));
    EXPECT_EQ(VI_ERROR_NSUP_ATTR, viSetAttribute(vi, attribute, 1));
  }
  EXPECT_EQ(VI_ERROR_USER_BUF, viGetAttribute(vi, VI_ATTR_TMO_VALUE, nullptr));
}

TEST_F(Resource, AManagerHasTheTemplatesAttributesOnly) {
  EXPECT_EQ("", Text(manager, VI_ATTR_RSRC_NAME));
  EXPECT_EQ(0u, Number<ViSession>(manager, VI_ATTR_RM_SESSION));
  EXPECT_EQ(50u, Number<ViUInt32>(manager, VI_ATTR_MAX_QUEUE_LENGTH));
  ViUInt32 value = 0;
  EXPECT_EQ(VI_ERROR_NSUP_ATTR, viGetAttribute(manager, VI_ATTR_TMO_VALUE, &value));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR, viSetAttribute(manager, VI_ATTR_TMO_VALUE, 1));
  EXPECT_EQ(VI_ERROR_ATTR_READONLY, viSetAttribute(manager, VI_ATTR_RSRC_NAME, 1));
  EXPECT_EQ(VI_SUCCESS, viSetAttribute(manager, VI_ATTR_USER_DATA, 42));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viPrintf(manager, "x\n"));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viRead(manager, nullptr, 0, nullptr));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viClear(manager));
}

TEST_F(Resource, ClosingTheManagerClosesItsSessions) {
  OpenTo("");
  ViSession second = VI_NULL;
  ASSERT_EQ(VI_SUCCESS, viOpen(manager, peer->Descriptor().c_str(), VI_NULL, 1000, &second));
  EXPECT_EQ(VI_SUCCESS, viClose(vi)) << "one by itself";
  EXPECT_EQ(VI_SUCCESS, viClose(manager));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viPrintf(second, "x\n"));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viClose(second));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viClose(manager));
}

TEST_F(Resource, AClosedHandleStaysInvalidWhenItsPlaceIsInUseAgain) {
  ViSession stale = VI_NULL;
  ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&stale));
  ASSERT_EQ(VI_SUCCESS, viClose(stale));
  std::vector<ViSession> open(300);
  for (int round = 0; round < 3; ++round) {
    for (ViSession& each : open) ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&each));
    EXPECT_EQ(VI_ERROR_INV_OBJECT, viClose(stale));
    for (const ViSession each : open) {
      EXPECT_NE(stale, each);
      EXPECT_EQ(VI_SUCCESS, viClose(each));
    }
  }
}

TEST_F(Resource, EveryOperationRefusesWhatIsNoHandle) {
  char buffer[VI_FIND_BUFLEN] = "";
  auto* const bytes = reinterpret_cast<ViPBuf>(buffer);
  ViUInt16 small = 0;
  ViUInt32 wide = 0;
  EXPECT_EQ(VI_WARN_NULL_OBJECT, viClose(VI_NULL));
  for (const ViSession bad : {0u, 1u, 0x7FFFFFFFu, 0xFFFFFFFFu, manager + 0x10000u, manager + 1u}) {
    const std::vector<ViStatus> answers = {viFindRsrc(bad, "?*", &wide, &wide, buffer),
                                           viFindNext(bad, buffer),
                                           viParseRsrc(bad, "x", &small, &small),
                                           viParseRsrcEx(bad, "x", &small, &small, buffer, buffer, buffer),
                                           viOpen(bad, "x", 0, 0, &wide),
                                           viGetAttribute(bad, VI_ATTR_TMO_VALUE, &wide),
                                           viSetAttribute(bad, VI_ATTR_TMO_VALUE, 1),
                                           viStatusDesc(bad, 0, buffer),
                                           viTerminate(bad, 0, 0),
                                           viLock(bad, VI_EXCLUSIVE_LOCK, 0, nullptr, nullptr),
                                           viUnlock(bad),
                                           viEnableEvent(bad, VI_EVENT_SERVICE_REQ, VI_QUEUE, VI_NULL),
                                           viDisableEvent(bad, VI_ALL_ENABLED_EVENTS, VI_ALL_MECH),
                                           viDiscardEvents(bad, VI_ALL_ENABLED_EVENTS, VI_ALL_MECH),
                                           viWaitOnEvent(bad, VI_ALL_ENABLED_EVENTS, 0, nullptr, nullptr),
                                           viInstallHandler(bad, VI_EVENT_SERVICE_REQ, nullptr, nullptr),
                                           viUninstallHandler(bad, VI_EVENT_SERVICE_REQ, nullptr, nullptr),
                                           viRead(bad, bytes, 1, &wide),
                                           viWrite(bad, bytes, 1, &wide),
                                           viReadAsync(bad, bytes, 1, &wide),
                                           viWriteAsync(bad, bytes, 1, &wide),
                                           viReadToFile(bad, "x", 1, &wide),
                                           viWriteFromFile(bad, "x", 1, &wide),
                                           viAssertTrigger(bad, 0),
                                           viReadSTB(bad, &small),
                                           viClear(bad),
                                           viGpibControlREN(bad, 0),
                                           viSetBuf(bad, VI_READ_BUF, 10),
                                           viFlush(bad, VI_READ_BUF),
                                           viBufRead(bad, bytes, 1, &wide),
                                           viBufWrite(bad, bytes, 1, &wide),
                                           viPrintf(bad, "x\n"),
                                           viScanf(bad, "%*t"),
                                           viQueryf(bad, "x\n", "%*t"),
                                           viSPrintf(bad, bytes, "x"),
                                           viSScanf(bad, bytes, "x")};
    for (std::size_t i = 0; i < answers.size(); ++i) EXPECT_EQ(VI_ERROR_INV_OBJECT, answers[i]) << bad << " " << i;
    if (bad != VI_NULL) {
      EXPECT_EQ(VI_ERROR_INV_OBJECT, viClose(bad));
    }
  }
}

TEST_F(Resource, EveryStatusHasATextAndOthersAreUnknown) {
  char text[VI_FIND_BUFLEN] = "";
  for (const ViStatus status :
       std::vector<ViStatus>{VI_SUCCESS, VI_SUCCESS_TERM_CHAR, VI_SUCCESS_MAX_CNT, VI_ERROR_TMO, VI_ERROR_CONN_LOST,
                             VI_ERROR_INV_OBJECT, VI_WARN_NULL_OBJECT, VI_ERROR_INV_ACCESS_KEY}) {
    text[0] = '\0';
    EXPECT_EQ(VI_SUCCESS, viStatusDesc(manager, status, text));
    EXPECT_GT(std::strlen(text), 5u) << status;
  }
  EXPECT_EQ(VI_WARN_UNKNOWN_STATUS, viStatusDesc(manager, 12345, text));
  EXPECT_STREQ("Unknown status code.", text);
}

}  // namespace
}  // namespace visa_test
