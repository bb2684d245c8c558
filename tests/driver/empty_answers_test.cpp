// Lines with nothing in them, where a number is due: none may pass for a value.
//
// A raw socket shows no end of an answer but the line feed, which is a blank to a number: so the number is waited for.

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

ViStatus NoNumber() { return ChosenLink() == LinkKind::Socket ? kVisaTimeout : kVisaInvalidFormat; }

class EmptyAnswers : public DriverDialogue {
 protected:
  void SetUp() override {
    DriverDialogue::SetUp();
    ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 60));
  }
};

TEST_F(EmptyAnswers, ARealAttributeIsNotRead) {
  Sent(":FREQ:MULT?\n");
  Answer("\n");
  ViReal64 value = 7.5;
  EXPECT_STATUS(NoNumber(), KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(7.5, value);
}

TEST_F(EmptyAnswers, AnIntegerAttributeIsNotRead) {
  Sent(":POW:DAC?\n");
  Answer(" \r\n");
  ViInt32 value = 77;
  EXPECT_STATUS(NoNumber(), KVTD481X2C_GetPowerDACLevel(vi, &value));
  EXPECT_EQ(77, value);
}

TEST_F(EmptyAnswers, AStatusRegisterThatDoesNotAnswerIsNoGoodStatus) {
  QueryInstrumentStatus(true);
  Script("> :FREQ:MULT 2.5 HZ");
  Sent("*ESR?\n");
  Answer("\n");
  EXPECT_STATUS(NoNumber(), KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
}

TEST_F(EmptyAnswers, ASelfTestWithoutResultIsNeitherPassedNorFailed) {
  Sent("*TST?\n");
  Answer("\n");
  ViInt16 result = 7;
  GuardedText<256> message;
  EXPECT_STATUS(NoNumber(), KVTD481X2C_self_test(vi, &result, message.data()));
  EXPECT_EQ(7, result);
}

TEST_F(EmptyAnswers, AMeasuredDepthIsNotInvented) {
  Sent(":MEAS:AM:DEPT?\n");
  Answer("\n");
  ViReal64 depth = 7.5;
  EXPECT_STATUS(NoNumber(), KVTD481X2C_MeasureAMDepth(vi, &depth));
  EXPECT_EQ(7.5, depth);
}

TEST_F(EmptyAnswers, TheLineEndBehindAFileIsNotTheNextNumbersAnswer) {
  Sent(":MMEM:DATA? \"Internal\",\"f\"\n");
  Answer("#13abc\n");
  Script(R"(
    > :FREQ:MULT?
    < 2.5
    > :POW:DAC?
    < 12
  )");
  ViByte data[8] = {};
  ViInt32 size = 0;
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_ReadFile(vi, "Internal", "f", 8, data, &size));
  EXPECT_EQ(3, size);
  ViReal64 multiplier = 0.0;
  ViInt32 level = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &multiplier));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetPowerDACLevel(vi, &level));
  EXPECT_EQ(2.5, multiplier);
  EXPECT_EQ(12, level);
}

TEST_F(SimulatedDriver, AnUnclosedBracketSelectsNoGeneratorAtAll) {
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "[A"));
  ViReal64 frequency = 7.5;
  EXPECT_STATUS(Status(0xBFFA0067U),
                KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY, &frequency));
  EXPECT_EQ((RecordedError{Status(0xBFFA0067U), "Unknown physical repeated capability selector."}), LastError());
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY, 50.0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureLFGenerator(vi, 50.0, 0));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_GetAMInternalFrequency(vi, &frequency));
  EXPECT_EQ(0.0, frequency);
}

}  // namespace
}  // namespace kvtd::test
