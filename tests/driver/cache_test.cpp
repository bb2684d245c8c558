// What a session remembers of its attributes, and where that shows: in simulation alone.

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

class CacheDialogue : public DriverDialogue {
 protected:
  void UseCache(bool on) {
    EXPECT_STATUS(VI_SUCCESS,
                  KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_CACHE, on ? VI_TRUE : VI_FALSE));
  }
  // The multiplier as the session remembers it; 0 when it does not.
  ViReal64 Remembered() {
    SwitchToSimulation(true);
    ViReal64 value = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    SwitchToSimulation(false);
    return value;
  }
};

class SimulatedCache : public SimulatedDriver {
 protected:
  ViReal64 Multiplier() {
    ViReal64 value = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    return value;
  }
  std::string HostName(ViInt32 size) {
    GuardedText<64> text;
    EXPECT_LE(VI_SUCCESS, KVTD481X2C_GetLanHostname(vi, size, text.data()));
    return text.text();
  }
};

TEST_F(CacheDialogue, EveryReadAndEveryWriteReachesTheInstrument) {
  for (const bool cache : {true, false}) {
    UseCache(cache);
    Script(R"(
      > :FREQ:MULT?
      < 2
      > :FREQ:MULT?
      < 3
      > :FREQ:MULT 3 HZ
      > :FREQ:MULT 3 HZ
    )");
    ViReal64 value = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(2.0, value);
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(3.0, value);
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 3.0));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 3.0));
  }
}

TEST_F(CacheDialogue, WhatWasReadOrWrittenShowsAfterTheSwitchToSimulation) {
  Script(R"(
    > :FREQ:MULT?
    < 4
    > :FREQ:MULT 5 HZ
  )");
  ViReal64 value = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(4.0, Remembered());
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 5.0));
  EXPECT_EQ(5.0, Remembered());
}

TEST_F(CacheDialogue, WithTheCacheOffNothingIsRemembered) {
  UseCache(false);
  Script("> :FREQ:MULT 5 HZ");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 5.0));
  EXPECT_EQ(0.0, Remembered());
}

// Kept on purpose: what is remembered is the attempt, whatever came of it.
TEST_F(CacheDialogue, ARefusedValueIsRememberedAllTheSame) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:MULT 99 HZ
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetFrequencyMultiplier(vi, 99.0));
  EXPECT_EQ(99.0, Remembered());
}

TEST_F(CacheDialogue, AValueThatHasNoWordIsRememberedAllTheSame) {
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_SetFrequencyMode(vi, 12));
  SwitchToSimulation(true);
  ViInt32 mode = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMode(vi, &mode));
  EXPECT_EQ(12, mode);
  SwitchToSimulation(false);
}

TEST_F(CacheDialogue, AFailedConversionLeavesMinusOneToBeRemembered) {
  Script(R"(
    > :FREQ:MODE?
    < NOISE
  )");
  ViInt32 mode = 0;
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetFrequencyMode(vi, &mode));
  SwitchToSimulation(true);
  mode = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMode(vi, &mode));
  EXPECT_EQ(-1, mode);
  SwitchToSimulation(false);
}

TEST_F(CacheDialogue, AFailedReadRemembersWhatStoodInTheCallersVariable) {
  Script(R"(
    > :FREQ:MULT?
    ! close
  )");
  ViReal64 value = 42;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(value, Remembered());
}

TEST_F(CacheDialogue, InvalidatingSendsNothingAndForgets) {
  Script("> :FREQ:MULT 5 HZ");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 5.0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_EQ(0.0, Remembered());
}

TEST_F(CacheDialogue, ASuccessfulResetForgets) {
  Script(R"(
    > :FREQ:MULT 5 HZ
    > *RST
    > *OPC?
    < 1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 5.0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_EQ(0.0, Remembered());
}

TEST_F(CacheDialogue, AFailedResetKeepsWhatIsRemembered) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:MULT 5 HZ
    > *ESR?
    < 0
    > *RST
    > *OPC?
    < 1
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 5.0));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_reset(vi));
  EXPECT_EQ(5.0, Remembered());
}

TEST_F(CacheDialogue, InvalidatingRefusesAHandleThatIsNotOpen) {
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_InvalidateAllAttributes(0));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_InvalidateAllAttributes(0xDEADBEEF));
}

TEST_F(SimulatedCache, AnAttributeReadsAsItWasSetUntilAllAreInvalidated) {
  EXPECT_EQ(0.0, Multiplier());
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  EXPECT_EQ(2.5, Multiplier());
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_EQ(0.0, Multiplier());
  EXPECT_EQ(0.0, Multiplier());
}

TEST_F(SimulatedCache, SimulationRemembersWithTheCacheOffAsWell) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_CACHE, VI_FALSE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  EXPECT_EQ(2.5, Multiplier());
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_EQ(0.0, Multiplier());
}

TEST_F(SimulatedCache, ADefaultThatIsNotZeroComesBackAfterInvalidation) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPowerLimitEnabled(vi, VI_FALSE));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_POWER_LIMIT_ENABLED));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_POWER_LIMIT_ENABLED));
}

TEST_F(SimulatedCache, OneAttributeDoesNotTouchAnother) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetCWFrequencyStep(vi, 7.0));
  EXPECT_EQ(2.5, Multiplier());
}

TEST_F(SimulatedCache, ARepeatedCapabilityMakesNoSecondEntry) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, "one", KVTD481X2C_ATTR_FREQUENCY_MULTIPLIER, 2.5));
  ViReal64 value = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, "two", KVTD481X2C_ATTR_FREQUENCY_MULTIPLIER, &value));
  EXPECT_EQ(2.5, value);
}

// Kept on purpose: the cut text is what the reading leaves behind.
TEST_F(SimulatedCache, ATextThatWasCutInAReadingStaysCut) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetLanHostname(vi, "generator"));
  EXPECT_EQ("gene", HostName(5));
  EXPECT_EQ("gene", HostName(64));
}

// The default is stored by the read that finds nothing, and a text shows it by having been cut.
TEST_F(SimulatedCache, AReadThatFindsNothingStoresItsDefault) {
  const auto unit_name = [this](ViInt32 size) {
    GuardedText<8> text;
    EXPECT_LE(VI_SUCCESS, KVTD481X2C_GetUnitName(vi, size, text.data()));
    return text.text();
  };
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetUnitName(vi, "rack 7"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_EQ("", unit_name(1));
  EXPECT_EQ("", unit_name(8));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_EQ("0", unit_name(8));
}

TEST_F(SimulatedCache, AnEmptyTextThatWasSetIsNotTheDefault) {
  EXPECT_EQ("0", TextAttribute(KVTD481X2C_ATTR_UNIT_NAME));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_UNIT_NAME, ""));
  EXPECT_EQ("", TextAttribute(KVTD481X2C_ATTR_UNIT_NAME));
}

TEST_F(SimulatedCache, TheTextIsTheSessionsOwn) {
  std::string name = "generator";
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetLanHostname(vi, name.data()));
  name.assign("overwritten");
  EXPECT_EQ("generator", HostName(64));
}

TEST_F(SimulatedCache, AResetForgets) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_EQ(0.0, Multiplier());
}

// Any simulation but 1 runs on without a link: the value goes nowhere and is remembered.
TEST_F(SimulatedCache, AValueThatFoundNoLinkIsRememberedAllTheSame) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, 2));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_SetFrequencyMultiplier(vi, 7.0));
  SwitchToSimulation(true);
  EXPECT_EQ(7.0, Multiplier());
}

TEST_F(SimulatedCache, SessionsRememberApart) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  const ViSession first = vi;
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1"));
  EXPECT_EQ(0.0, Multiplier());
  Close();
  vi = first;
  EXPECT_EQ(2.5, Multiplier());
}

}  // namespace
}  // namespace kvtd::test
