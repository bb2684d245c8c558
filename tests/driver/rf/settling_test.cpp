// Settling, as far as the clock of the machine has no say in it. What the mark is on which day of the machine's uptime
// is tested where the test brings its own clock.

#include <chrono>

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

using Clock = std::chrono::steady_clock;

class SettlingDialogue : public DriverDialogue {
 protected:
  ViBoolean IsSettled() {
    ViBoolean done = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_IsSettled(vi, &done));
    return done;
  }
};

class SimulatedSettling : public SimulatedDriver {};

TEST_F(SettlingDialogue, AFreshSessionIsNotSettledAndTheInstrumentIsNotAsked) {
  QueryInstrumentStatus(true);
  EXPECT_EQ(VI_FALSE, IsSettled());
}

TEST_F(SettlingDialogue, SwitchingTheOutputOffUnsettlesAtOnce) {
  Script(R"(
    > :OUTP 1
    > :OUTP 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureOutputEnabled(vi, VI_TRUE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureOutputEnabled(vi, VI_FALSE));
  EXPECT_EQ(VI_FALSE, IsSettled());
}

TEST_F(SettlingDialogue, ANullOutputIsRefusedByName) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_IsSettled(vi, nullptr));
  EXPECT_EQ((RecordedError{kNullPointer, "Null pointer passed for function 'KVTD481X2C_IsSettled', parameter 'Done'."}),
            LastError());
}

TEST_F(SettlingDialogue, AHandleThatIsNotOpenIsRefusedAtOnce) {
  ViBoolean done = 77;
  for (const ViSession bad : {ViSession{0}, vi + 1, ViSession{0xDEADBEEF}}) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_IsSettled(bad, &done));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_IsSettled(bad, nullptr));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_WaitUntilSettled(bad, 1000));
  }
  EXPECT_EQ(77, done);
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SettlingDialogue, TheWaitTakesTwentyMillisecondsWhateverItIsAllowed) {
  for (const ViInt32 allowed : {0, 1, 60000, -1, -2147483647 - 1}) {
    const auto begin = Clock::now();
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_WaitUntilSettled(vi, allowed));
    const auto taken = Clock::now() - begin;
    EXPECT_GE(taken, std::chrono::milliseconds(20)) << allowed;
    EXPECT_LT(taken, std::chrono::seconds(5)) << allowed;
  }
}

TEST_F(SimulatedSettling, TheSettersFailAndTheSessionStaysUnsettled) {
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureOutputEnabled(vi, VI_TRUE));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureRF(vi, 1e9, 0));
  ViBoolean done = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_IsSettled(vi, &done));
  EXPECT_EQ(VI_FALSE, done);
}

TEST_F(SimulatedSettling, TheWaitIsTheSame) {
  const auto begin = Clock::now();
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_WaitUntilSettled(vi, 0));
  EXPECT_GE(Clock::now() - begin, std::chrono::milliseconds(20));
}

}  // namespace
}  // namespace kvtd::test
