#include <gmock/gmock.h>

#include <cstdlib>
#include <future>

#include "vxi11_peer.h"
#include "vxi11_port.h"

namespace tvr::visa::vxi11 {
namespace {

class Vxi11Opening : public Vxi11Link {
 protected:
  void SetUp() override {}  // each test opens as it likes

  ViStatus OpenAnswered(const std::string& reply) {
    return OpenWith([&] {
      peer_.Accept(kCore);
      peer_.Says(kCore, reply);
    });
  }
};

TEST_F(Vxi11Opening, CreatesALinkAndConnectsForAborts) {
  const ViStatus status = OpenWith([&] {
    peer_.Accept(kCore);
    peer_.Hears(kCore, Bytes("80000040 00000001 00000000 00000002 000607AF 00000001 0000000A"
                             "00000000 00000000 00000000 00000000"
                             "00005456 00000000 00000000 00000005 'inst0' 000000"));
    peer_.Says(kCore, Bytes("80000028 00000001 00000001 00000000 00000000 00000000 00000000"
                            "00000000 00000007" +
                            Word(peer_.abort_port()) + "00001000"));
    peer_.Hears(kCore, Bytes("80000028 FFFFFFFF 00000000 00000002 000607AF 00000001 00000000"
                             "00000000 00000000 00000000 00000000"
                             "80000028 00000000 00000000 00000002 000607AF 00000001 00000000"
                             "00000000 00000000 00000000 00000000"));
    peer_.Says(kCore, Bytes("80000018 FFFFFFFF 00000001 00000000 00000000 00000000 00000000"
                            "80000018 00000000 00000001 00000000 00000000 00000000 00000000"));
    peer_.Accept(kAbort);
  });
  EXPECT_EQ(VI_SUCCESS, status);
  peer_.HearsNothingMore(kCore);
  peer_.HearsNothingMore(kAbort);
  Close(2);
  peer_.HearsTheEnd(kAbort);
}

TEST_F(Vxi11Opening, TheDeviceNameGoesAsItIsWritten) {
  OpenWith(
      [&] {
        peer_.Accept(kCore);
        peer_.Hears(kCore, Call(1, 10, "00005456 00000000 00000000 00000007 'gpib0,5' 00"));
        peer_.Closes(kCore);
      },
      2000, "gpib0,5");
}

TEST_F(Vxi11Opening, WhatTheDeviceAnswersToCreateLinkIsTheStatus) {
  const std::pair<const char*, ViStatus> kAnswers[] = {
      {"00000001", VI_ERROR_INV_RSRC_NAME}, {"00000003", VI_ERROR_RSRC_NFOUND}, {"00000009", VI_ERROR_RSRC_BUSY},
      {"0000000B", VI_ERROR_RSRC_LOCKED},   {"00000015", VI_ERROR_RSRC_NFOUND}, {"00000011", VI_ERROR_RSRC_NFOUND},
  };
  for (const auto& [error, status] : kAnswers) {
    EXPECT_EQ(status, OpenAnswered(Reply(1, std::string(error) + "00000000 00000000 00000000"))) << error;
    EXPECT_EQ(nullptr, link_);
  }
}

TEST_F(Vxi11Opening, AServerOfOtherProgramsIsNotFound) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND,
            OpenAnswered(Record("00000001 00000001 00000000 00000000 00000000 00000001")));  // program unavailable
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND,
            OpenAnswered(Record("00000001 00000001 00000000 00000000 00000000 00000002 00000003 00000004")));
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, OpenAnswered(Record("00000001 00000001 00000001 00000001 00000001")));  // denied
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, OpenAnswered("\x80SSH-2.0-x\r\n0123456789abcdef0123456789abcdef01234567890"
                                               "0123456789012345678901234567890123456789012345678901"));
}

TEST_F(Vxi11Opening, ASilentServerTakesNoMoreThanTheTimeout) {
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, OpenWith([&] { peer_.Accept(kCore); }, 150));
  EXPECT_GE(watch.Milliseconds(), 150);
  EXPECT_LT(watch.OwnMilliseconds(), 250);
}

TEST_F(Vxi11Opening, AServerThatClosesIsNotFound) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, OpenWith([&] {
              peer_.Accept(kCore);
              peer_.Next(kCore, 68);
              peer_.Closes(kCore);
            }));
}

TEST_F(Vxi11Opening, ADeviceThatCannotAbortIsADeviceStill) {
  for (const std::string& port : {std::string("00000000"), Word(kvtd::test::UnusedPort())}) {
    EXPECT_EQ(VI_SUCCESS, OpenAnswered(Reply(1, "00000000 00000007" + port + "00001000") + ProbeReply()));
    peer_.Next(kCore, 68 + Probe().size());
    const Stopwatch watch;
    EXPECT_EQ("", Read(50));
    EXPECT_EQ(VI_ERROR_TMO, status_);
    EXPECT_LT(watch.OwnMilliseconds(), 150);
    peer_.Closes(kCore);
    link_.reset();
  }
}

TEST_F(Vxi11Opening, ClosingWaitsForAnAnswerOnlySoLong) {
  Open();
  const Stopwatch watch;
  link_.reset();
  EXPECT_LT(watch.OwnMilliseconds(), 200);
  peer_.Hears(kCore, Call(2, 23, "00000007"));
  peer_.HearsTheEnd(kCore);
}

TEST_F(Vxi11Opening, AttributesTellWhoTheDeviceIs) {
  Open();
  char text[256];
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_TCPIP_DEVICE_NAME, text));
  EXPECT_STREQ("inst0", text);
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_TCPIP_ADDR, text));
  EXPECT_STREQ("127.0.0.1", text);
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_TCPIP_HOSTNAME, text));
  EXPECT_STREQ("", text);
  ViBoolean on = VI_TRUE;
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_TCPIP_IS_HISLIP, &on));
  EXPECT_EQ(VI_FALSE, on);
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_SUPPRESS_END_EN, &on));
  EXPECT_EQ(VI_FALSE, on);
  ViInt16 trigger = 0;
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_TRIG_ID, &trigger));
  EXPECT_EQ(VI_TRIG_SW, trigger);
  EXPECT_EQ(VI_ERROR_NSUP_ATTR, link_->GetAttribute(VI_ATTR_TCPIP_PORT, text));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR, link_->SetAttribute(VI_ATTR_TCPIP_NODELAY, VI_TRUE, 2000));
  EXPECT_EQ(VI_ERROR_ATTR_READONLY, link_->SetAttribute(VI_ATTR_TCPIP_DEVICE_NAME, 0, 2000));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, link_->SetAttribute(VI_ATTR_SUPPRESS_END_EN, 2, 2000));
  EXPECT_EQ(VI_SUCCESS, link_->SetAttribute(VI_ATTR_SUPPRESS_END_EN, VI_TRUE, 2000));
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_SUPPRESS_END_EN, &on));
  EXPECT_EQ(VI_TRUE, on);
  EXPECT_EQ(VI_SUCCESS, link_->SetAttribute(VI_ATTR_TRIG_ID, VI_TRIG_SW, 2000));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, link_->SetAttribute(VI_ATTR_TRIG_ID, 0, 2000));
}

// The port mapper is a server like others, and here it listens where a test may.
class Vxi11Port : public ::testing::Test {
 protected:
  ViStatus Find(const std::function<void()>& script, ViUInt32 timeout = 2000) {
    auto asking = std::async(std::launch::async, [&] {
      Deadline deadline(timeout);
      return FindCorePort("127.0.0.1", peer_.core_port(), interruption_, deadline, port_);
    });
    script();
    return asking.get();
  }

  Interruption interruption_;
  Vxi11Peer peer_;
  ViUInt16 port_ = 0;
};

TEST_F(Vxi11Port, ThePortMapperIsAskedForTheCoreProgram) {
  EXPECT_EQ(VI_SUCCESS, Find([&] {
              peer_.Accept(kCore);
              peer_.Hears(kCore, Bytes("80000038 00000001 00000000 00000002 000186A0 00000002 00000003"
                                       "00000000 00000000 00000000 00000000"
                                       "000607AF 00000001 00000006 00000000"));
              peer_.Says(kCore, Reply(1, "00000401"));
            }));
  EXPECT_EQ(1025, port_);
  peer_.HearsTheEnd(kCore);
}

TEST_F(Vxi11Port, AProgramThatIsNotRegisteredIsNotFound) {
  for (const char* const answer : {"00000000", "00010000", "FFFFFFFF"}) {
    EXPECT_EQ(VI_ERROR_RSRC_NFOUND, Find([&] {
                peer_.Accept(kCore);
                peer_.Says(kCore, Reply(1, answer));
              }));
  }
}

TEST_F(Vxi11Port, ASilentPortMapperTakesNoMoreThanTheTimeout) {
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, Find([&] { peer_.Accept(kCore); }, 150));
  EXPECT_LT(watch.OwnMilliseconds(), 250);
}

TEST_F(Vxi11Port, WithoutAPortMapperNothingIsFound) {
  Deadline deadline(2000);
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, FindCorePort("127.0.0.1", kvtd::test::UnusedPort(), interruption_, deadline, port_));
}

TEST_F(Vxi11Port, TheEnvironmentNamesAPortInPlaceOfThePortMapper) {
  Deadline deadline(2000);
  ::setenv("TVR_VISA_VXI11_PORT", "40123", 1);
  EXPECT_EQ(VI_SUCCESS, FindCorePort("127.0.0.1", kvtd::test::UnusedPort(), interruption_, deadline, port_));
  EXPECT_EQ(40123, port_);
  for (const char* const no_port : {"", "0", "65536", "-1", "port", "111 "}) {
    ::setenv("TVR_VISA_VXI11_PORT", no_port, 1);
    EXPECT_EQ(VI_ERROR_RSRC_NFOUND, FindCorePort("127.0.0.1", kvtd::test::UnusedPort(), interruption_, deadline, port_))
        << "the port mapper is asked with '" << no_port << "'";
  }
  ::unsetenv("TVR_VISA_VXI11_PORT");
}

}  // namespace
}  // namespace tvr::visa::vxi11
