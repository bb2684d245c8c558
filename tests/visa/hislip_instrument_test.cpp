// The HiSLIP link from end to end, against the virtual instrument.
#include <array>
#include <atomic>
#include <future>
#include <thread>

#include "InstrumentProcess.h"
#include "hislip_peer.h"

namespace tvr::visa::hislip {
namespace {

class HislipInstrument : public ::testing::Test {
 protected:
  HislipInstrument() : program_(KVTD_INSTRUMENT, {"--socket", "0", "--hislip", "0"}, {"socket", "hislip"}) {
    EXPECT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager_));
  }
  ~HislipInstrument() override { viClose(manager_); }

  std::string Name() const {
    return "TCPIP::127.0.0.1::hislip0," + std::to_string(program_.port("hislip")) + "::INSTR";
  }
  ViSession Open() {
    ViSession vi = VI_NULL;
    EXPECT_EQ(VI_SUCCESS, viOpen(manager_, Name().c_str(), VI_NULL, 2000, &vi));
    return vi;
  }
  std::unique_ptr<Transport> OpenTransport(Interruption& interruption) {
    ResourceName resource;
    EXPECT_EQ(VI_SUCCESS, ParseResourceName(Name(), resource));
    std::unique_ptr<Transport> link;
    Deadline deadline(2000);
    EXPECT_EQ(VI_SUCCESS, OpenHislip(resource, interruption, deadline, link));
    return link;
  }
  static ViStatus Send(Transport& link, std::string_view text) {
    Deadline deadline(2000);
    iovec piece{const_cast<char*>(text.data()), text.size()};
    std::size_t sent = 0;
    return link.Write({&piece, 1}, true, deadline, sent);
  }
  static std::string Receive(Transport& link) {
    Deadline deadline(2000);
    std::string into(256, '\0');
    std::size_t received = 0;
    EXPECT_EQ(VI_SUCCESS,
              link.Read({reinterpret_cast<ViByte*>(into.data()), into.size(), into.size(), {}}, deadline, received));
    into.resize(received);
    return into;
  }

  kvtd::test::InstrumentProcess program_;
  ViSession manager_ = VI_NULL;
};

TEST_F(HislipInstrument, IsAskedThroughFormattedReadsAndWrites) {
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

TEST_F(HislipInstrument, KeepsToTheRulesOfTheExchange) {
  const ViSession vi = Open();
  char answer[256];
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "*OPC?\n", "%t", answer));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, ":POW -3\n"));
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, ":SYST:ERR?\n", "%t", answer));
  EXPECT_STREQ("0,\"No error\"\n", answer) << "an interrupted query would stand here";
}

TEST_F(HislipInstrument, AFileOfManyMessagesGoesThereAndBack) {
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

TEST_F(HislipInstrument, DeviceClearInMidTransferLeavesTheLinkUsable) {
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

TEST_F(HislipInstrument, DeviceClearAmidALongAnswerForgetsTheRestOfIt) {
  const ViSession vi = Open();
  const std::string command = ":POW -7;:MMEM:DATA 'Internal','big.bin',#78388608" + std::string(8 << 20, 'x') + "\n";
  ViUInt32 count = 0;
  ASSERT_EQ(VI_SUCCESS,
            viWrite(vi, reinterpret_cast<ViConstBuf>(command.data()), static_cast<ViUInt32>(command.size()), &count));
  for (int i = 0; i < 5; ++i) {
    ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":MMEM:DATA? 'Internal','big.bin'\n"));
    std::array<ViByte, 1000> begun;
    ASSERT_EQ(VI_SUCCESS_MAX_CNT, viRead(vi, begun.data(), begun.size(), &count));
    ASSERT_EQ(VI_SUCCESS, viClear(vi));
    ViReal64 power = 0.0;
    ASSERT_EQ(VI_SUCCESS, viQueryf(vi, ":POW?\n", "%lf", &power));
    ASSERT_EQ(-7.0, power);
  }
}

TEST_F(HislipInstrument, AnAnswerThatComesTooLateIsNeverTheNextOne) {
  const ViSession vi = Open();
  for (const ViAttrState overlap : {ViAttrState{VI_FALSE}, ViAttrState{VI_TRUE}}) {
    ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, overlap));
    ViReal64 value = 0.0;
    int late = 0;
    for (int i = 0; i < 200; ++i) {
      ASSERT_EQ(VI_SUCCESS, viQueryf(vi, ":POW %d;*OPC?\n", "%*t", -100 + i % 100));
      ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":FREQ?\n"));
      ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 0));
      if (viScanf(vi, "%lf", &value) < 0) ++late;
      ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 2000));
      ASSERT_EQ(VI_SUCCESS, viQueryf(vi, ":POW?\n", "%lf", &value));
      ASSERT_EQ(-100.0 + i % 100, value);
    }
    EXPECT_GT(late, 0);
  }
}

TEST_F(HislipInstrument, OverlapModeIsHadAndLeftByAnAttribute) {
  const ViSession vi = Open();
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, VI_TRUE));
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi, "*OPC?\n"));
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":POW -9;:POW?\n"));
  char answer[64];
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%t", answer));
  EXPECT_STREQ("1\n", answer);
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%t", answer));
  EXPECT_STREQ("-9\n", answer);
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, VI_FALSE));
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "*OPC?\n", "%t", answer));
  EXPECT_STREQ("1\n", answer);
}

TEST_F(HislipInstrument, MessageAvailableIsSeenInTheStatusByte) {
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

TEST_F(HislipInstrument, TwoClientsAtWorkDoNotMixTheirAnswers) {
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

TEST_F(HislipInstrument, TheLockOfOneKeepsTheOtherWaiting) {
  Interruption first;
  Interruption second;
  const auto one = OpenTransport(first);
  const auto two = OpenTransport(second);
  EXPECT_EQ(VI_SUCCESS, one->LockDevice("", 1000));
  EXPECT_EQ(VI_ERROR_TMO, two->LockDevice("", 30));
  EXPECT_EQ(VI_SUCCESS, Send(*two, ":POW -2;:POW?\n"));
  EXPECT_EQ(VI_SUCCESS, Send(*one, ":POW -20;:POW?\n"));
  EXPECT_EQ("-20\n", Receive(*one));
  EXPECT_EQ(VI_SUCCESS, one->UnlockDevice(true, 2000));
  EXPECT_EQ("-2\n", Receive(*two));
  EXPECT_EQ(VI_SUCCESS, two->LockDevice("bench", 1000));
  EXPECT_EQ(VI_SUCCESS, one->LockDevice("bench", 1000));
  EXPECT_EQ(VI_SUCCESS, one->UnlockDevice(false, 2000));
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, one->UnlockDevice(false, 2000));
}

TEST_F(HislipInstrument, AnEventTellsOfAnErrorAndTheStatusByteSaysWhich) {
  const ViSession vi = Open();
  ASSERT_EQ(VI_SUCCESS, viEnableEvent(vi, VI_EVENT_SERVICE_REQ, VI_QUEUE, VI_NULL));
  ASSERT_EQ(VI_SUCCESS, viQueryf(vi, "*SRE 4;*OPC?\n", "%*t"));
  EXPECT_EQ(VI_ERROR_TMO, viWaitOnEvent(vi, VI_EVENT_SERVICE_REQ, VI_TMO_IMMEDIATE, nullptr, nullptr));
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":NO:SUCH\n"));
  EXPECT_EQ(VI_SUCCESS, viWaitOnEvent(vi, VI_EVENT_SERVICE_REQ, 5000, nullptr, nullptr));
  ViUInt16 status = 0;
  EXPECT_EQ(VI_SUCCESS, viReadSTB(vi, &status));
  EXPECT_EQ(0x44, status);
}

TEST_F(HislipInstrument, AnEventTellsOfEachAnswer) {
  const ViSession vi = Open();
  for (const ViAttrState overlap : {ViAttrState{VI_FALSE}, ViAttrState{VI_TRUE}}) {
    ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, overlap));
    ASSERT_EQ(VI_SUCCESS, viPrintf(vi, "*SRE 16\n"));
    ASSERT_EQ(VI_SUCCESS, viEnableEvent(vi, VI_EVENT_SERVICE_REQ, VI_QUEUE, VI_NULL));
    for (int i = 0; i < 3; ++i) {
      ASSERT_EQ(VI_SUCCESS, viPrintf(vi, "*OPC?\n"));
      ASSERT_EQ(VI_SUCCESS, viWaitOnEvent(vi, VI_EVENT_SERVICE_REQ, 5000, nullptr, nullptr));
      ViUInt16 status = 0;
      ASSERT_EQ(VI_SUCCESS, viReadSTB(vi, &status));
      EXPECT_EQ(0x50, status);
      ASSERT_EQ(VI_SUCCESS, viScanf(vi, "%*t"));
    }
    ASSERT_EQ(VI_SUCCESS, viDisableEvent(vi, VI_EVENT_SERVICE_REQ, VI_QUEUE));
  }
}

TEST_F(HislipInstrument, ALockOfOneProgramKeepsAnotherOut) {
  const ViSession vi = Open();
  Interruption interruption;
  const auto other = OpenTransport(interruption);  // knows nothing of the locks in this process
  ASSERT_EQ(VI_SUCCESS, other->LockDevice("", 1000));
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viLock(vi, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_TMO, viLock(vi, VI_SHARED_LOCK, 30, "bench", nullptr));
  ASSERT_EQ(VI_SUCCESS, other->UnlockDevice(true, 2000));
  EXPECT_EQ(VI_SUCCESS, viLock(vi, VI_SHARED_LOCK, 1000, "bench", nullptr));
  EXPECT_EQ(VI_SUCCESS, viLock(vi, VI_EXCLUSIVE_LOCK, 1000, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_TMO, other->LockDevice("bench", 30));
  EXPECT_EQ(VI_SUCCESS_NESTED_SHARED, viUnlock(vi));
  EXPECT_EQ(VI_SUCCESS, other->LockDevice("bench", 1000));
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi));
}

TEST_F(HislipInstrument, ASharedLockIsHadOnTopOfTheExclusiveOne) {
  const ViSession vi = Open();
  Interruption interruption;
  const auto other = OpenTransport(interruption);
  EXPECT_EQ(VI_SUCCESS, viLock(vi, VI_EXCLUSIVE_LOCK, 1000, nullptr, nullptr));
  EXPECT_EQ(VI_SUCCESS, viLock(vi, VI_SHARED_LOCK, 1000, "bench", nullptr));
  EXPECT_EQ(VI_ERROR_TMO, other->LockDevice("bench", 30));
  EXPECT_EQ(VI_SUCCESS_NESTED_SHARED, viUnlock(vi));
  EXPECT_EQ(VI_ERROR_TMO, other->LockDevice("", 30));
  EXPECT_EQ(VI_SUCCESS, other->LockDevice("bench", 1000));
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi));
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, viUnlock(vi));
  EXPECT_EQ(VI_SUCCESS, other->LockDevice("", 1000));
}

TEST_F(HislipInstrument, WithoutTheLockASessionWaitsAtTheDeviceAndStillHasItsStatusAndItsClear) {
  const ViSession holder = Open();
  const ViSession other = Open();
  ASSERT_EQ(VI_SUCCESS, viLock(holder, VI_EXCLUSIVE_LOCK, 1000, nullptr, nullptr));
  ViUInt16 status = 0xFFFF;
  EXPECT_EQ(VI_SUCCESS, viReadSTB(other, &status));
  EXPECT_EQ(0, status);
  EXPECT_EQ(VI_SUCCESS, viClear(other));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(other, VI_ATTR_TMO_VALUE, 100));
  EXPECT_EQ(VI_SUCCESS, viPrintf(other, ":POW -2;:POW?\n"));
  ViReal64 power = 0.0;
  EXPECT_EQ(VI_ERROR_TMO, viScanf(other, "%lf%*t", &power));
  EXPECT_EQ(VI_SUCCESS, viQueryf(holder, ":POW -20;:POW?\n", "%lf", &power));
  EXPECT_EQ(-20.0, power);
  EXPECT_EQ(VI_SUCCESS, viUnlock(holder));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(other, VI_ATTR_TMO_VALUE, 2000));
  EXPECT_EQ(VI_SUCCESS, viScanf(other, "%lf%*t", &power));
  EXPECT_EQ(-2.0, power);
}

TEST_F(HislipInstrument, AServiceRequestComesWhileQuestionsGoOn) {
  Interruption interruption;
  const auto link = OpenTransport(interruption);
  std::promise<void> asked;
  std::atomic<int> count{0};
  const auto tell = [&] {
    if (++count == 1) asked.set_value();
  };
  ASSERT_EQ(VI_SUCCESS, link->DeliverServiceRequests(tell, 2000));
  EXPECT_EQ(VI_SUCCESS, Send(*link, "*SRE 4\n"));
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(VI_SUCCESS, Send(*link, "*OPC?\n"));
    EXPECT_EQ("1\n", Receive(*link));
  }
  EXPECT_EQ(VI_SUCCESS, Send(*link, ":NO:SUCH\n"));
  EXPECT_EQ(std::future_status::ready, asked.get_future().wait_for(std::chrono::seconds(5)));
  Deadline deadline(2000);
  ViUInt16 status = 0;
  EXPECT_EQ(VI_SUCCESS, link->ReadStatusByte(VI_PROT_NORMAL, deadline, status));
  EXPECT_EQ(0x44, status);
}

}  // namespace
}  // namespace tvr::visa::hislip
