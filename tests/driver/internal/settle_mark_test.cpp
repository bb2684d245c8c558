// The settle mark against a clock that the test sets: this program brings its own tick and its own sleep.

#include <TD481X2CDriverSession.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <future>
#include <vector>

#include "DriverDialogue.h"

namespace {

std::atomic<std::uint64_t> g_ticks = 0;
std::vector<unsigned> g_sleeps;
std::function<void()> g_during_sleep;

}  // namespace

std::uint64_t tvr::GetTickCount64() { return g_ticks; }

void tvr::Sleep(unsigned milliseconds) {
  g_sleeps.push_back(milliseconds);
  if (g_during_sleep) g_during_sleep();
}

namespace kvtd::test {
namespace {

constexpr ViInt32 kNever = -1;

class SettleMark : public DriverDialogue {
 protected:
  void SetUp() override {
    g_ticks = 1000;
    g_sleeps.clear();
    g_during_sleep = nullptr;
    DriverDialogue::SetUp();
  }

  ViInt32 Mark() { return ConcreteSession(vi).SettleMark; }
  bool IsSettled() {
    ViBoolean done = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_IsSettled(vi, &done));
    EXPECT_TRUE(done == VI_TRUE || done == VI_FALSE) << done;
    return done == VI_TRUE;
  }
  void SwitchOutput(bool on) {
    Script(on ? "> :OUTP 1" : "> :OUTP 0");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureOutputEnabled(vi, on ? VI_TRUE : VI_FALSE));
  }
  void SetFrequency() {
    Script("> :FREQ 5 HZ");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, 5));
  }
  void SetPower() {
    Script("> :POW 5");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_POWER_LEVEL, 5));
  }
};

TEST_F(SettleMark, AFreshSessionHasNeverSettled) {
  EXPECT_EQ(kNever, Mark());
  EXPECT_FALSE(IsSettled());
}

TEST_F(SettleMark, SwitchingTheOutputOnStampsAndSettlesWithNoTimePassing) {
  SwitchOutput(true);
  EXPECT_EQ(1000, Mark());
  EXPECT_TRUE(IsSettled());
}

TEST_F(SettleMark, SwitchingOnAgainLeavesTheMark) {
  SwitchOutput(true);
  g_ticks = 2000;
  SwitchOutput(true);
  EXPECT_EQ(1000, Mark());
}

TEST_F(SettleMark, SwitchingOffForgetsTheMarkAtOnce) {
  SwitchOutput(true);
  SwitchOutput(false);
  EXPECT_EQ(kNever, Mark());
  EXPECT_FALSE(IsSettled());
  g_ticks = 3000;
  SwitchOutput(true);
  EXPECT_EQ(3000, Mark());
}

TEST_F(SettleMark, AFrequencyOrALevelRefreshesTheMarkWhileTheOutputIsOn) {
  SwitchOutput(true);
  g_ticks = 2000;
  SetFrequency();
  EXPECT_EQ(2000, Mark());
  EXPECT_TRUE(IsSettled());
  g_ticks = 3000;
  SetPower();
  EXPECT_EQ(3000, Mark());
  EXPECT_TRUE(IsSettled());
}

TEST_F(SettleMark, AFrequencyOrALevelDoesNothingWhileTheOutputIsOff) {
  SetFrequency();
  SetPower();
  EXPECT_EQ(kNever, Mark());
  EXPECT_FALSE(IsSettled());
}

TEST_F(SettleMark, ConfigureRfGoesThroughTheSameSetters) {
  SwitchOutput(true);
  g_ticks = 2000;
  Script(R"(
    > :FREQ 5 HZ
    > :POW 7
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureRF(vi, 5, 7));
  EXPECT_EQ(2000, Mark());
}

TEST_F(SettleMark, TheMarkIsComparedWithTwentyAndNotWithTheTime) {
  g_ticks = 19;
  SwitchOutput(true);
  EXPECT_EQ(19, Mark());
  g_ticks = 1'000'000;
  EXPECT_FALSE(IsSettled());
  g_ticks = 20;
  SetFrequency();
  EXPECT_EQ(20, Mark());
  EXPECT_TRUE(IsSettled());
}

TEST_F(SettleMark, ATickOfZeroStampsAndIsStampedAgain) {
  g_ticks = 0;
  SwitchOutput(true);
  EXPECT_EQ(0, Mark());
  EXPECT_FALSE(IsSettled());
  g_ticks = 500;
  SetFrequency();
  EXPECT_EQ(0, Mark());
  SwitchOutput(true);
  EXPECT_EQ(500, Mark());
}

TEST_F(SettleMark, TheTickIsCutToThirtyTwoBits) {
  g_ticks = (std::uint64_t{7} << 32) + 4711;
  SwitchOutput(true);
  EXPECT_EQ(4711, Mark());
  g_ticks = (std::uint64_t{1} << 31) - 1;
  SetPower();
  EXPECT_EQ(2147483647, Mark());
  EXPECT_TRUE(IsSettled());
}

TEST_F(SettleMark, ANegativeStampNeverSettlesAndOnlyTheOutputStampsAgain) {
  g_ticks = std::uint64_t{1} << 31;
  SwitchOutput(true);
  EXPECT_EQ(-2147483647 - 1, Mark());
  EXPECT_FALSE(IsSettled());
  g_ticks = 0xFFFFFFFFU;
  SetFrequency();
  SetPower();
  EXPECT_EQ(-2147483647 - 1, Mark());
  SwitchOutput(true);
  EXPECT_EQ(-1, Mark());
  EXPECT_FALSE(IsSettled());
  g_ticks = (std::uint64_t{1} << 32) + 20;
  SwitchOutput(true);
  EXPECT_EQ(20, Mark());
  EXPECT_TRUE(IsSettled());
}

TEST_F(SettleMark, ARefreshMayTurnTheMarkNegative) {
  SwitchOutput(true);
  g_ticks = 0x80000001U;
  SetFrequency();
  EXPECT_EQ(-2147483647, Mark());
  EXPECT_FALSE(IsSettled());
}

TEST_F(SettleMark, ARefusedCommandLeavesTheMark) {
  QueryInstrumentStatus(true);
  const auto refused = [this](const char* command) {
    Sent(command);
    Script(R"(
      > *ESR?
      < 16
    )");
  };
  refused(":OUTP 1\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureOutputEnabled(vi, VI_TRUE));
  EXPECT_EQ(kNever, Mark());

  QueryInstrumentStatus(false);
  SwitchOutput(true);
  QueryInstrumentStatus(true);
  g_ticks = 2000;
  refused(":FREQ 5 HZ\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, 5));
  refused(":POW 5\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_POWER_LEVEL, 5));
  refused(":OUTP 0\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureOutputEnabled(vi, VI_FALSE));
  EXPECT_EQ(1000, Mark());
  EXPECT_TRUE(IsSettled());
}

TEST_F(SettleMark, ALostConnectionLeavesTheMark) {
  QueryInstrumentStatus(true);
  Sent(":OUTP 1\n");
  Sent("*ESR?\n");
  instrument.Close();
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_ConfigureOutputEnabled(vi, VI_TRUE));
  EXPECT_EQ(kNever, Mark());
}

TEST_F(SettleMark, AValueThatIsNoBooleanLeavesTheMark) {
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_ConfigureOutputEnabled(vi, 2));
  EXPECT_EQ(kNever, Mark());
}

TEST_F(SettleMark, NothingElseTouchesTheMark) {
  SwitchOutput(true);
  g_ticks = 2000;
  Script(R"(
    > *RST
    > *OPC?
    < 1
    > *RST
    > *OPC?
    < 1
    > :FREQ:MODE SWEep
    > :FREQ:F0 5
    > :POW:L0 5
    > :AM:STAT 0
    > :FM:STAT 0
    > :PM:STAT 0
    > :PULM:STAT 0
    > :LIST1:FREQ:UPD 0,5.000000000000000
    > :LIST1:POW:UPD 0,5.000000000000000
    > :FREQ:MODE LIST1
    > :OUTP?
    < 0
  )");
  const ViReal64 point = 5;
  ViBoolean on = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_Disable(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMode(vi, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyPresetF0(vi, 5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPowerPresetL0(vi, 5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_DisableAllModulation(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi, "a", 1, &point, &point));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SelectList(vi, "a"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_OUTPUT_ENABLED, &on));
  EXPECT_EQ(1000, Mark());
  EXPECT_TRUE(IsSettled());
}

TEST_F(SettleMark, InSimulationTheSettersFailAndTheMarkStays) {
  SwitchOutput(true);
  Close();
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1"));
  EXPECT_EQ(kNever, Mark());
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureOutputEnabled(vi, VI_TRUE));
  EXPECT_EQ(kNever, Mark());
  EXPECT_FALSE(IsSettled());
}

TEST_F(SettleMark, TheWaitSleepsOnceForTwentyMillisecondsWhateverTheMark) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_WaitUntilSettled(vi, 60000));
  SwitchOutput(true);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_WaitUntilSettled(vi, -1));
  EXPECT_EQ((std::vector<unsigned>{20, 20}), g_sleeps);
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_WaitUntilSettled(0, 60000));
  EXPECT_EQ(2U, g_sleeps.size());
}

TEST_F(SettleMark, TheWaitKeepsOtherThreadsOfItsSessionOut) {
  std::future<ViStatus> other;
  g_during_sleep = [&] {
    other = std::async(std::launch::async, [this] {
      ViBoolean done = 77;
      return KVTD481X2C_IsSettled(vi, &done);
    });
    EXPECT_EQ(std::future_status::timeout, other.wait_for(std::chrono::milliseconds(100)));
  };
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_WaitUntilSettled(vi, 0));
  EXPECT_STATUS(VI_SUCCESS, other.get());
}

}  // namespace
}  // namespace kvtd::test
