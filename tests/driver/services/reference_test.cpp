// The frequency reference: which source each stage uses, and the two calibrations.

#include <vector>

#include "AttributeCases.h"
#include "ServiceDialogue.h"
#include "TextAttributeCases.h"

namespace kvtd::test {
namespace {

constexpr auto kFixed = Simulated::Fixed;

#define READ(stem) &KVTD481X2C_Get##stem, nullptr

const std::vector<AttributeCase> kSources = {
    {KVTD_ATTRIBUTE(REFERENCE_OSCILLATOR_ACTIVE_SOURCE), 1150137, Int32Exports{READ(ReferenceOscillatorActiveSource)},
     ":ROSC:SOUR:CURR?\n", "REF INT RB\n", 5, 0, "", kFixed, 0},
    {KVTD_ATTRIBUTE(REFERENCE_OSCILLATOR_LOW_FREQUENCY_SOURCE), 1150138,
     Int32Exports{READ(ReferenceOscillatorLowFrequencySource)}, ":ROSC:LFR:SOUR?\n", "IRUB\n", 1, 0, "", kFixed, 4},
    {KVTD_ATTRIBUTE(REFERENCE_OSCILLATOR_MULTIPLIED_SOURCE), 1150139,
     Int32Exports{READ(ReferenceOscillatorMultipliedSource)}, ":ROSC:MULT:SOUR?\n", "INT\n", 0, 0, "", kFixed, 1},
    {KVTD_ATTRIBUTE(REFERENCE_OSCILLATOR_HIGH_FREQUENCY_SOURCE), 1150140,
     Int32Exports{READ(ReferenceOscillatorHighFrequencySource)}, ":ROSC:HFR:SOUR?\n", "INTernal\n", 0, 0, "", kFixed,
     1},
};

const std::vector<TextAttributeCase> kCalibrations = {
    {KVTD_TEXT_ATTRIBUTE(REFERENCE_CALIBRATION_STATUS), 1150017, &KVTD481X2C_GetReferenceCalibrationStatus, nullptr,
     ":DIAG:CAL:REF:STAT?\n", "", "", "0"},
    {KVTD_TEXT_ATTRIBUTE(LOW_FREQUENCY_REFERENCE_CALIBRATION_STATUS), 1150018,
     &KVTD481X2C_GetLowFrequencyReferenceCalibrationStatus, nullptr, ":DIAG:CAL:REF:LFR:STAT?\n", "", "", "0"},
    {KVTD_TEXT_ATTRIBUTE(LOW_FREQUENCY_REFERENCE_LAST_CALIBRATION_DATE), 1150179,
     &KVTD481X2C_GetLowFrequencyReferenceLastCalibrationDate, nullptr, ":DIAG:CAL:REF:LFR:DATE?\n", "", "", "0"},
    {KVTD_TEXT_ATTRIBUTE(REFERENCE_LAST_CALIBRATION_DATE), 1150180, &KVTD481X2C_GetReferenceLastCalibrationDate,
     nullptr, ":DIAG:CAL:REF:DATE?\n", "", "", "0"},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(Reference, kSources);
KVTD_INSTANTIATE_TEXT_ATTRIBUTES(Reference, kCalibrations);

namespace {

using ReferenceDialogue = ServiceDialogue;
using SimulatedReference = SimulatedService;

TEST_F(ReferenceDialogue, TheActiveSourceIsUnderstoodInAnyCase) {
  ViInt32 source = 77;
  for (const char* words : {"REF INT RB", "ref int rb", "  Ref Int Rb\r"}) {
    Asked(":ROSC:SOUR:CURR?", words);
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetReferenceOscillatorActiveSource(vi, &source));
    EXPECT_EQ(KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_RUBIDIUM_10, source);
  }
}

TEST_F(ReferenceDialogue, TheBlanksWithinASourceCount) {
  for (const char* words : {"REF INTRB", "REF  INT RB", "REF INT"}) {
    Asked(":ROSC:SOUR:CURR?", words);
    ViInt32 source = 77;
    EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetReferenceOscillatorActiveSource(vi, &source));
    EXPECT_EQ(-1, source);
    EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (" + std::string(words) +
                  ") to a defined value.",
              LastErrorText());
  }
}

TEST_F(ReferenceDialogue, CalibrationsAreStartedAndAborted) {
  ExpectCheckedAction(":DIAG:CAL:REF:INIT\n", [this] { return KVTD481X2C_StartReferenceCalibration(vi); });
  ExpectCheckedAction(":DIAG:CAL:REF:ABOR\n", [this] { return KVTD481X2C_AbortReferenceCalibration(vi); });
  ExpectCheckedAction(":DIAG:CAL:REF:LFR:INIT\n",
                      [this] { return KVTD481X2C_StartLowFrequencyReferenceCalibration(vi); });
  ExpectCheckedAction(":DIAG:CAL:REF:LFR:ABOR\n",
                      [this] { return KVTD481X2C_AbortLowFrequencyReferenceCalibration(vi); });
}

TEST_F(ReferenceDialogue, ASecondStartIsSentUnchangedWhileTheFirstRuns) {
  Script(R"(
    > :DIAG:CAL:REF:INIT
    > :DIAG:CAL:REF:INIT
    > :DIAG:CAL:REF:STAT?
    < RUNNING
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_StartReferenceCalibration(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_StartReferenceCalibration(vi));
  EXPECT_EQ("RUNNING", TextAttribute(KVTD481X2C_ATTR_REFERENCE_CALIBRATION_STATUS));
}

TEST_F(ReferenceDialogue, WhatCannotBeSentComesBackAsVisaTellsIt) {
  LoseTheConnection();
  for (const auto operation :
       {&KVTD481X2C_StartReferenceCalibration, &KVTD481X2C_AbortReferenceCalibration,
        &KVTD481X2C_StartLowFrequencyReferenceCalibration, &KVTD481X2C_AbortLowFrequencyReferenceCalibration}) {
    EXPECT_STATUS(kVisaConnectionLost, operation(vi));
    for (const ViSession handle : HandlesThatAreNotOpen()) EXPECT_STATUS(kInvalidHandle, operation(handle));
  }
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedReference, CalibrationsSucceedWithoutSending) {
  for (const auto operation :
       {&KVTD481X2C_StartReferenceCalibration, &KVTD481X2C_AbortReferenceCalibration,
        &KVTD481X2C_StartLowFrequencyReferenceCalibration, &KVTD481X2C_AbortLowFrequencyReferenceCalibration}) {
    EXPECT_STATUS(VI_SUCCESS, operation(vi));
  }
}

}  // namespace
}  // namespace kvtd::test
