// The VXI-11 link from end to end, against the virtual instrument.
#include <cstdlib>
#include <future>

#include "InstrumentProcess.h"
#include "vxi11_peer.h"
#include "vxi11_port.h"

namespace tvr::visa::vxi11 {
namespace {

class Vxi11Instrument : public ::testing::Test {
 protected:
  Vxi11Instrument() {
    ::setenv("TVR_VISA_VXI11_PORT", std::to_string(program_.port("vxi11")).c_str(), 1);
    EXPECT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager_));
  }
  ~Vxi11Instrument() override {
    viClose(manager_);
    ::unsetenv("TVR_VISA_VXI11_PORT");
  }

  ViSession Open(ViAccessMode mode = VI_NULL) {
    ViSession vi = VI_NULL;
    EXPECT_EQ(VI_SUCCESS, viOpen(manager_, "TCPIP::127.0.0.1::inst0::INSTR", mode, 2000, &vi));
    return vi;
  }

  kvtd::test::InstrumentProcess program_{
      KVTD_INSTRUMENT, {"--socket", "0", "--vxi11", "0", "--portmapper", "0"}, {"socket", "vxi11", "portmapper"}};
  ViSession manager_ = VI_NULL;
};

TEST_F(Vxi11Instrument, IsAskedThroughFormattedReadsAndWrites) {
  const ViSession vi = Open();
  char name[256];
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "*IDN?\n", "%t", name));
  EXPECT_STREQ("Kelvora,TD48142C,481000001,1.4.2\n", name);
  ViReal64 power = 0.0;
  for (int i = 0; i < 200; ++i) {
    ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":POW %0.15lg\n", -20.0 + i * 0.125));
    ASSERT_EQ(VI_SUCCESS, viQueryf(vi, ":POW?\n", "%lf", &power));
    ASSERT_EQ(-20.0 + i * 0.125, power);
  }
}

TEST_F(Vxi11Instrument, ItsPortMapperKnowsItsPort) {
  ::unsetenv("TVR_VISA_VXI11_PORT");
  Interruption interruption;
  Deadline deadline(2000);
  ViUInt16 port = 0;
  EXPECT_EQ(VI_SUCCESS, FindCorePort("127.0.0.1", program_.port("portmapper"), interruption, deadline, port));
  EXPECT_EQ(program_.port("vxi11"), port);
}

TEST_F(Vxi11Instrument, ADeviceOfAnotherNameIsNotThere) {
  ViSession vi = VI_NULL;
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, viOpen(manager_, "TCPIP::127.0.0.1::inst7::INSTR", VI_NULL, 2000, &vi));
  EXPECT_EQ(ViSession{VI_NULL}, vi);
}

TEST_F(Vxi11Instrument, AFileOfManyCallsGoesThereAndBack) {
  const ViSession vi = Open();
  std::string block(5 * 1024 * 1024 + 7, '\0');
  for (std::size_t i = 0; i < block.size(); ++i) block[i] = static_cast<char>(i * 31 + i / 509);
  const std::string command = ":MMEM:DATA 'Internal','big.bin',#7" + std::to_string(block.size()) + block + "\n";
  ViUInt32 count = 0;
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 20000));
  ASSERT_EQ(VI_SUCCESS,
            viWrite(vi, reinterpret_cast<ViConstBuf>(command.data()), static_cast<ViUInt32>(command.size()), &count));
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":MMEM:DATA? 'Internal','big.bin'\n"));
  std::string back(block.size() + 100, '\0');
  ASSERT_EQ(VI_SUCCESS, viRead(vi, reinterpret_cast<ViBuf>(back.data()), static_cast<ViUInt32>(back.size()), &count));
  back.resize(count);
  EXPECT_TRUE("#7" + std::to_string(block.size()) + block + "\n" == back) << back.substr(0, 40) << " " << count;
}

TEST_F(Vxi11Instrument, AnAnswerIsReadInPartsAndToTheTerminationCharacter) {
  const ViSession vi = Open();
  ViByte part[8] = {};
  ViUInt32 count = 0;
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi, "*IDN?\n"));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, viRead(vi, part, 7, &count));
  EXPECT_STREQ("Kelvora", reinterpret_cast<char*>(part));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TERMCHAR, ','));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, VI_TRUE));
  ViByte rest[64] = {};
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, viRead(vi, rest, sizeof rest, &count));
  EXPECT_EQ(1u, count);
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, viRead(vi, rest, sizeof rest, &count));
  EXPECT_EQ("TD48142C,", std::string(reinterpret_cast<char*>(rest), count));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, VI_FALSE));
  EXPECT_EQ(VI_SUCCESS, viRead(vi, rest, sizeof rest, &count));
  EXPECT_EQ("481000001,1.4.2\n", std::string(reinterpret_cast<char*>(rest), count));
}

TEST_F(Vxi11Instrument, AReadWithoutAQuestionIsATimeoutAndTheSessionGoesOn) {
  const ViSession vi = Open();
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 100));
  ViByte into[16];
  ViUInt32 count = 1;
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, viRead(vi, into, sizeof into, &count));
  EXPECT_EQ(0u, count);
  EXPECT_GE(watch.Milliseconds(), 100);
  EXPECT_LT(watch.OwnMilliseconds(), 200);
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 2000));
  ViReal64 power = 0.0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, ":POW -7;:POW?\n", "%lf", &power));
  EXPECT_EQ(-7.0, power);
}

TEST_F(Vxi11Instrument, AnAnswerThatComesTooLateIsNeverTheNextOne) {
  const ViSession vi = Open();
  ViReal64 value = 0.0;
  for (int i = 0; i < 100; ++i) {
    ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":POW %d\n", -100 + i % 100));
    ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":FREQ?\n"));
    ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 0));
    viScanf(vi, "%lf", &value);  // had or not
    ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 2000));
    ASSERT_EQ(VI_SUCCESS, viQueryf(vi, ":POW?\n", "%lf", &value));
    ASSERT_EQ(-100.0 + i % 100, value);
  }
}

TEST_F(Vxi11Instrument, DeviceClearForgetsHalfAMessage) {
  const ViSession vi = Open();
  ASSERT_EQ(VI_SUCCESS, viQueryf(vi, ":POW -7;:POW?\n", "%*t"));
  ViUInt32 count = 0;
  const std::string begun = ":MMEM:DATA 'Internal','x',#9100000000" + std::string(3 << 20, 'x');
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_SEND_END_EN, VI_FALSE));
  ASSERT_EQ(VI_SUCCESS,
            viWrite(vi, reinterpret_cast<ViConstBuf>(begun.data()), static_cast<ViUInt32>(begun.size()), &count));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_SEND_END_EN, VI_TRUE));
  EXPECT_EQ(VI_SUCCESS, viClear(vi));
  ViReal64 power = 0.0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, ":POW?\n", "%lf", &power));
  EXPECT_EQ(-7.0, power);
}

TEST_F(Vxi11Instrument, MessageAvailableIsSeenInTheStatusByte) {
  const ViSession vi = Open();
  ViUInt16 status = 0;
  EXPECT_EQ(VI_SUCCESS, viReadSTB(vi, &status));
  EXPECT_EQ(0, status & 0x10);
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi, "*OPC?\n"));
  const Stopwatch watch;
  while ((status & 0x10) == 0 && watch.Milliseconds() < 5000) ASSERT_EQ(VI_SUCCESS, viReadSTB(vi, &status));
  EXPECT_EQ(0x10, status & 0x10);
  ASSERT_EQ(VI_SUCCESS, viScanf(vi, "%*t"));
  EXPECT_EQ(VI_SUCCESS, viReadSTB(vi, &status));
  EXPECT_EQ(0, status & 0x10);
}

TEST_F(Vxi11Instrument, TriggerRemoteAndLocalAreTaken) {
  const ViSession vi = Open();
  EXPECT_EQ(VI_SUCCESS, viAssertTrigger(vi, VI_TRIG_PROT_DEFAULT));
  EXPECT_EQ(VI_SUCCESS, viGpibControlREN(vi, 3));
  EXPECT_EQ(VI_SUCCESS, viGpibControlREN(vi, 6));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viGpibControlREN(vi, 1));
}

TEST_F(Vxi11Instrument, TheLockOfOneProgramKeepsTheOtherOut) {
  // Two transports are to the instrument what two programs are.
  const auto open = [](Interruption& interruption) {
    ResourceName resource;
    EXPECT_EQ(VI_SUCCESS, ParseResourceName("TCPIP::127.0.0.1::INSTR", resource));
    std::unique_ptr<Transport> link;
    Deadline deadline(2000);
    EXPECT_EQ(VI_SUCCESS, OpenVxi11(resource, interruption, deadline, link));
    return link;
  };
  const auto write = [](Transport& link) {
    std::string text = "*CLS\n";
    iovec piece{text.data(), text.size()};
    std::size_t sent = 0;
    Deadline deadline(2000);
    return link.Write({&piece, 1}, true, deadline, sent);
  };
  Interruption first;
  Interruption second;
  auto one = open(first);
  const auto two = open(second);
  EXPECT_EQ(VI_SUCCESS, one->LockDevice("", 1000));
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, two->LockDevice("", 0));
  EXPECT_EQ(VI_ERROR_TMO, two->LockDevice("", 30));
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, write(*two));
  EXPECT_EQ(VI_SUCCESS, write(*one));
  EXPECT_EQ(VI_SUCCESS, one->UnlockDevice(true, 2000));
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, one->UnlockDevice(true, 2000));
  EXPECT_EQ(VI_SUCCESS, two->LockDevice("", 1000));
  EXPECT_EQ(VI_SUCCESS, two->UnlockDevice(true, 2000));
  EXPECT_EQ(VI_SUCCESS, one->LockDevice("", 1000));
  auto waiting = std::async(std::launch::async, [&] { return two->LockDevice("", 5000); });
  one.reset();
  EXPECT_EQ(VI_SUCCESS, waiting.get()) << "the end of a link frees its lock";
}

TEST_F(Vxi11Instrument, TheLockOfASessionIsTakenAtTheDeviceAndOpensWithIt) {
  const ViSession holder = Open(VI_EXCLUSIVE_LOCK);
  ViSession other = VI_NULL;
  EXPECT_EQ(VI_ERROR_TMO, viOpen(manager_, "TCPIP::127.0.0.1::inst0::INSTR", VI_EXCLUSIVE_LOCK, 50, &other));
  EXPECT_EQ(VI_SUCCESS, viUnlock(holder));
  other = Open(VI_EXCLUSIVE_LOCK);
  EXPECT_EQ(VI_SUCCESS, viClose(other));
  EXPECT_EQ(VI_SUCCESS, viLock(holder, VI_EXCLUSIVE_LOCK, 1000, nullptr, nullptr));
}

TEST_F(Vxi11Instrument, AServiceRequestComesAsAnEventWhileQuestionsGoOn) {
  const ViSession vi = Open();
  ASSERT_EQ(VI_SUCCESS, viEnableEvent(vi, VI_EVENT_SERVICE_REQ, VI_QUEUE, VI_NULL));
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi, "*SRE 4\n"));
  for (int i = 0; i < 50; ++i) {
    char answer[16];
    ASSERT_EQ(VI_SUCCESS, viQueryf(vi, "*OPC?\n", "%t", answer));
    ASSERT_STREQ("1\n", answer);
  }
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":NO:SUCH\n"));
  ViEventType type = 0;
  ViEvent event = VI_NULL;
  ASSERT_EQ(VI_SUCCESS, viWaitOnEvent(vi, VI_EVENT_SERVICE_REQ, 5000, &type, &event));
  EXPECT_EQ(ViEventType{VI_EVENT_SERVICE_REQ}, type);
  EXPECT_EQ(VI_SUCCESS, viClose(event));
  ViUInt16 status = 0;
  EXPECT_EQ(VI_SUCCESS, viReadSTB(vi, &status));
  EXPECT_EQ(0x44, status);
  EXPECT_EQ(VI_SUCCESS, viDisableEvent(vi, VI_EVENT_SERVICE_REQ, VI_QUEUE));
}

TEST_F(Vxi11Instrument, TwoClientsAtWorkDoNotMixTheirAnswers) {
  const auto work = [this](const char* question, double expected) {
    const ViSession vi = Open();
    for (int i = 0; i < 300; ++i) {
      ViReal64 value = 0.0;
      if (viQueryf(vi, question, "%lf", &value) != VI_SUCCESS || value != expected) return false;
    }
    return viClose(vi) == VI_SUCCESS;
  };
  const ViSession vi = Open();
  ASSERT_EQ(VI_SUCCESS, viQueryf(vi, ":POW -11;:FREQ 2e9;*OPC?\n", "%*t"));
  auto one = std::async(std::launch::async, work, ":POW?\n", -11.0);
  auto two = std::async(std::launch::async, work, ":FREQ?\n", 2e9);
  EXPECT_TRUE(one.get());
  EXPECT_TRUE(two.get());
}

TEST_F(Vxi11Instrument, ClosingEndsAReadThatWaits) {
  const ViSession vi = Open();
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 60000));
  std::promise<void> begun;
  auto reading = std::async(std::launch::async, [&] {
    begun.set_value();
    ViByte into[16];
    return viRead(vi, into, sizeof into, nullptr);
  });
  begun.get_future().wait();
  const Stopwatch watch;
  EXPECT_EQ(VI_SUCCESS, viClose(vi));
  const ViStatus status = reading.get();
  EXPECT_TRUE(status == VI_ERROR_CONN_LOST || status == VI_ERROR_INV_OBJECT) << status;
  EXPECT_LT(watch.OwnMilliseconds(), 1000);
}

}  // namespace
}  // namespace tvr::visa::vxi11
