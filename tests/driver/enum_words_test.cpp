// The words of every enumeration, as they stand on the wire: each defined value goes out in the first of its words, and
// each of its words is understood when it comes back.

#include <cctype>
#include <string>
#include <vector>

#include "AttributeCases.h"

namespace kvtd::test {
namespace {

struct Word {
  ViInt32 published;  // from the public header
  ViInt32 value;      // the number that callers rely on
  std::vector<std::string> words;
};
using Words = std::vector<Word>;

struct EnumCase {
  std::string name;
  ViAttr id;
  std::string query;     // empty: write-only
  std::string commands;  // what stands before the word; empty: read-only
  const Words& words;
};

const Words kAlcRangeWords = {
    {KVTD481X2C_VAL_ALC_RANGE_HIGH, 0, {"HIGH"}},
    {KVTD481X2C_VAL_ALC_RANGE_LOW, 1, {"LOW"}},
};
const Words kAlcSourceExWords = {
    {KVTD481X2C_VAL_ALC_SOURCE_INTERNAL, 0, {"INTernal", "INT"}},
    {KVTD481X2C_VAL_ALC_SOURCE_FIXED, 1, {"FIXed", "FIX"}},
    {KVTD481X2C_VAL_ALC_SOURCE_DETECTOR, 2, {"DIODe", "DIOD", "DIODe1", "DIOD1"}},
    {KVTD481X2C_VAL_ALC_SOURCE_POWER_METER, 3, {"PMETer", "PMET", "PMETer1", "PMET1"}},
};
const Words kAmModeWords = {
    {KVTD481X2C_VAL_AM_MODE_LINEAR, 0, {"LINear", "LIN"}},
    {KVTD481X2C_VAL_AM_MODE_LOGARITHMIC, 1, {"LOGarithmic", "LOG"}},
};
const Words kFmHighPassFilterWords = {
    {KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_DC, 0, {"DC"}},
    {KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_HP63, 1, {"HP63"}},
    {KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_HP1K, 2, {"HP1K"}},
};
const Words kFmModeWords = {
    {KVTD481X2C_VAL_FM_MODE_LOCKED, 0, {"LOCKed", "LOCK"}},
    {KVTD481X2C_VAL_FM_MODE_UNLOCKED, 1, {"UNLocked", "UNL"}},
};
const Words kFrequencyModeWords = {
    {KVTD481X2C_VAL_FREQUENCY_MODE_FIXED, 0, {"FIXed", "FIX", "CW"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP, 1, {"SWEep", "SWE", "SWEep1", "SWE1"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST1, 2, {"LIST1"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST2, 3, {"LIST2"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST3, 4, {"LIST3"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST4, 5, {"LIST4"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST5, 6, {"LIST5"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST6, 7, {"LIST6"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST7, 8, {"LIST7"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST8, 9, {"LIST8"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST9, 10, {"LIST9"}},
    {KVTD481X2C_VAL_FREQUENCY_MODE_LIST10, 11, {"LIST10"}},
};
const Words kFrequencyPresetWords = {
    {KVTD481X2C_VAL_FREQUENCY_PRESET_F0, 0, {"F0"}}, {KVTD481X2C_VAL_FREQUENCY_PRESET_F1, 1, {"F1"}},
    {KVTD481X2C_VAL_FREQUENCY_PRESET_F2, 2, {"F2"}}, {KVTD481X2C_VAL_FREQUENCY_PRESET_F3, 3, {"F3"}},
    {KVTD481X2C_VAL_FREQUENCY_PRESET_F4, 4, {"F4"}}, {KVTD481X2C_VAL_FREQUENCY_PRESET_F5, 5, {"F5"}},
    {KVTD481X2C_VAL_FREQUENCY_PRESET_F6, 6, {"F6"}}, {KVTD481X2C_VAL_FREQUENCY_PRESET_F7, 7, {"F7"}},
    {KVTD481X2C_VAL_FREQUENCY_PRESET_F8, 8, {"F8"}}, {KVTD481X2C_VAL_FREQUENCY_PRESET_F9, 9, {"F9"}},
};
const Words kFrequencyRangeWords = {
    {KVTD481X2C_VAL_FREQUENCY_RANGE_F1_F2, 0, {"F1F2"}},
    {KVTD481X2C_VAL_FREQUENCY_RANGE_F3_F4, 1, {"F3F4"}},
    {KVTD481X2C_VAL_FREQUENCY_RANGE_F5_DELTAF, 2, {"F5DF"}},
    {KVTD481X2C_VAL_FREQUENCY_RANGE_F6_DELTAF, 3, {"F6DF"}},
};
const Words kHighFrequencySourceWords = {
    {KVTD481X2C_VAL_HIGH_FREQUENCY_SOURCE_INTERNAL, 0, {"INTernal", "INT"}},
    {KVTD481X2C_VAL_HIGH_FREQUENCY_SOURCE_EXTERNAL, 1, {"EXTernal", "EXT"}},
};
const Words kInternalWaveformWords = {
    {KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE, 0, {"SINE"}},
    {KVTD481X2C_VAL_INTERNAL_WAVEFORM_GUASSIAN, 1, {"GAUSsian", "GAUS"}},
    {KVTD481X2C_VAL_INTERNAL_WAVEFORM_NEGATIVE_RAMP, 2, {"RDOWn", "RDOW"}},
    {KVTD481X2C_VAL_INTERNAL_WAVEFORM_POSITIVE_RAMP, 3, {"RUP"}},
    {KVTD481X2C_VAL_INTERNAL_WAVEFORM_SQUARE, 4, {"SQUare", "SQU"}},
    {KVTD481X2C_VAL_INTERNAL_WAVEFORM_TRIANGLE, 5, {"TRIangle", "TRI"}},
    {KVTD481X2C_VAL_INTERNAL_WAVEFORM_UNIFORM_NOISE, 6, {"UNIForm", "UNIF"}},
};
const Words kLineTerminationWords = {
    {KVTD481X2C_VAL_LINE_TERMINATION_CARRIAGE_RETURN, 0, {"CRETurn", "CRET"}},
    {KVTD481X2C_VAL_LINE_TERMINATION_CARRIAGE_RETURN_LINE_FEED, 1, {"CRLFeed", "CRLF"}},
    {KVTD481X2C_VAL_LINE_TERMINATION_LINE_FEED, 2, {"LFEed", "LFE"}},
};
const Words kListTriggerModeWords = {
    {KVTD481X2C_VAL_LIST_TRIGGER_MODE_SWEEP, 0, {"SWEep", "SWE"}},
    {KVTD481X2C_VAL_LIST_TRIGGER_MODE_POINT, 1, {"POINt", "POIN"}},
};
const Words kLowFrequencySourceWords = {
    {KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_INTERNAL, 0, {"INTernal", "INT"}},
    {KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_RUBIDIUM, 1, {"IRUBidium", "IRUB"}},
    {KVTD481X2C_VAL_LOW_FREQUENCY_SOURCEGPS, 2, {"GPPS"}},
    {KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_EXTERNAL_10, 3, {"EXTernal", "EXT"}},
    {KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_EXTERNAL_1PPS, 4, {"EPPS"}},
};
const Words kModulationSourceWords = {
    {KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL, 0, {"INTernal", "INT"}},
    {KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL, 1, {"EXTernal", "EXT"}},
};
const Words kMultipliedSourceWords = {
    {KVTD481X2C_VAL_MULTIPLIED_SOURCE_INTERNAL, 0, {"INTernal", "INT"}},
    {KVTD481X2C_VAL_MULTIPLIED_SOURCE_EXTERNAL, 1, {"EXTernal", "EXT"}},
};
const Words kPmModeWords = {
    {KVTD481X2C_VAL_PM_MODE_NARROW, 0, {"MINimum", "MIN"}},
    {KVTD481X2C_VAL_PM_MODE_WIDE, 1, {"MAXimum", "MAX"}},
};
const Words kPowerLevelPresetWords = {
    {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L0, 0, {"L0"}}, {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L1, 1, {"L1"}},
    {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L2, 2, {"L2"}}, {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L3, 3, {"L3"}},
    {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L4, 4, {"L4"}}, {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L5, 5, {"L5"}},
    {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L6, 6, {"L6"}}, {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L7, 7, {"L7"}},
    {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L8, 8, {"L8"}}, {KVTD481X2C_VAL_POWER_LEVEL_PRESET_L9, 9, {"L9"}},
};
const Words kPowerModeWords = {
    {KVTD481X2C_VAL_POWER_MODE_FIXED, 0, {"FIXed", "FIX", "CW"}},
    {KVTD481X2C_VAL_POWER_MODE_SWEEP, 1, {"SWEep2", "SWE2"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST1, 2, {"LIST1"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST2, 3, {"LIST2"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST3, 4, {"LIST3"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST4, 5, {"LIST4"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST5, 6, {"LIST5"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST6, 7, {"LIST6"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST7, 8, {"LIST7"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST8, 9, {"LIST8"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST9, 10, {"LIST9"}},
    {KVTD481X2C_VAL_POWER_MODE_LIST10, 11, {"LIST10"}},
};
const Words kPowerSweepRangeWords = {
    {KVTD481X2C_VAL_POWER_SWEEP_RANGE_L1_L2, 0, {"L1L2"}}, {KVTD481X2C_VAL_POWER_SWEEP_RANGE_L3_L4, 1, {"L3L4"}},
    {KVTD481X2C_VAL_POWER_SWEEP_RANGE_L5_L6, 2, {"L5L6"}}, {KVTD481X2C_VAL_POWER_SWEEP_RANGE_L7_L8, 3, {"L7L8"}},
    {KVTD481X2C_VAL_POWER_SWEEP_RANGE_L9_L0, 4, {"L9L0"}},
};
const Words kPulseExternalTriggerSlopeWords = {
    {KVTD481X2C_VAL_PULSE_EXTERNAL_TRIGGER_SLOPE_POSITIVE, 0, {"POSitive", "POS"}},
    {KVTD481X2C_VAL_PULSE_EXTERNAL_TRIGGER_SLOPE_NEGATIVE, 1, {"NEGative", "NEG"}},
};
const Words kPulseModulationExternalPolarityWords = {
    {KVTD481X2C_VAL_PULSE_MODULATION_EXTERNAL_POLARITY_NORMAL, 0, {"NORMal", "NORM"}},
    {KVTD481X2C_VAL_PULSE_MODULATION_EXTERNAL_POLARITY_INVERSE, 1, {"INVerted", "INV"}},
};
const Words kPulseOutputPolarityWords = {
    {KVTD481X2C_VAL_PULSE_OUTPUT_POLARITY_NORMAL, 0, {"NORMal", "NORM"}},
    {KVTD481X2C_VAL_PULSE_OUTPUT_POLARITY_INVERSE, 1, {"INVerted", "INV"}},
};
const Words kReferenceOscillatorSourceWords = {
    {KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_1600, 0, {"REF EXT 1600"}},
    {KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_100, 1, {"REF EXT 100"}},
    {KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_1PPS, 2, {"REF EXT 1PPS"}},
    {KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_10, 3, {"REF EXT 10"}},
    {KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_GPS, 4, {"REF INT GPS"}},
    {KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_RUBIDIUM_10, 5, {"REF INT RB"}},
    {KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_FREERUN_10, 6, {"REF INT 10"}},
    {KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_FREERUN_100, 7, {"REF INT 100"}},
};
const Words kSweepDirectionWords = {
    {KVTD481X2C_VAL_SWEEP_DIRECTION_UP, 0, {"UP"}},
    {KVTD481X2C_VAL_SWEEP_DIRECTION_DOWN, 1, {"DOWN"}},
};
const Words kSweepGenerationWords = {
    {KVTD481X2C_VAL_SWEEP_GENERATION_ANALOG, 0, {"ANALog", "ANAL"}},
    {KVTD481X2C_VAL_SWEEP_GENERATION_STEPPED, 1, {"STEPped", "STEP"}},
};
const Words kSweepSpacingWords = {
    {KVTD481X2C_VAL_SWEEP_SPACING_LINEAR, 0, {"LINear", "LIN"}},
    {KVTD481X2C_VAL_SWEEP_SPACING_LOGARITHMIC, 1, {"LOGarithmic", "LOG"}},
};
const Words kTimeSyncModeWords = {
    {KVTD481X2C_VAL_TIME_SYNC_MODE_AUTO, 0, {"AUTO"}},
    {KVTD481X2C_VAL_TIME_SYNC_MODE_MANUAL, 1, {"MANual", "MAN"}},
};
const Words kTimeSyncStatusWords = {
    {KVTD481X2C_VAL_TIME_SYNC_STATUS_INTERNET, 0, {"INT"}},
    {KVTD481X2C_VAL_TIME_SYNC_STATUS_GPS, 1, {"GPS"}},
    {KVTD481X2C_VAL_TIME_SYNC_STATUS_NONE, 2, {"NONE"}},
    {KVTD481X2C_VAL_TIME_SYNC_STATUS_NOT_AVAILABLE, 3, {"NA"}},
};
const Words kTriggerModeWords = {
    {KVTD481X2C_VAL_TRIGGER_MODE_FREERUN, 0, {"FREerun", "FRE"}},
    {KVTD481X2C_VAL_TRIGGER_MODE_GATED, 1, {"GATed", "GAT"}},
    {KVTD481X2C_VAL_TRIGGER_MODE_DELAYED, 2, {"DELayed", "DEL"}},
    {KVTD481X2C_VAL_TRIGGER_MODE_TRIGGERED, 3, {"TRIGgered", "TRIG"}},
    {KVTD481X2C_VAL_TRIGGER_MODE_TRIGGER_DELAYED, 4, {"TRGDelay", "TRGD"}},
    {KVTD481X2C_VAL_TRIGGER_MODE_COMPOSITE, 5, {"COMPosite", "COMP"}},
};
const Words kTriggerSourceWords = {
    {KVTD481X2C_VAL_TRIGGER_SOURCE_SOFTWARE, 0, {"BUS"}},
    {KVTD481X2C_VAL_TRIGGER_SOURCE_IMMEDIATE, 1, {"IMMediate", "IMM"}},
    {KVTD481X2C_VAL_TRIGGER_SOURCE_EXTERNAL, 2, {"EXTernal", "EXT"}},
};
const Words kTriggerTypeWords = {
    {KVTD481X2C_VAL_TRIGGER_TYPE_AUTO, 0, {"AUTO"}},
    {KVTD481X2C_VAL_TRIGGER_TYPE_SINGLE, 1, {"SINGle", "SING"}},
    {KVTD481X2C_VAL_TRIGGER_TYPE_EXTERNAL, 2, {"EXTernal", "EXT"}},
    {KVTD481X2C_VAL_TRIGGER_TYPE_MANUAL, 3, {"MANual", "MAN"}},
    {KVTD481X2C_VAL_TRIGGER_TYPE_INACTIVE, 4, {"INACtive", "INAC"}},
};

const std::vector<EnumCase> kEnums = {
    {KVTD_ATTRIBUTE(POWER_MANUAL_RANGE), ":POW:RANG?\n", ":POW:RANG ", kAlcRangeWords},
    {KVTD_ATTRIBUTE(ALC_SOURCE_EX), ":POW:ALC:SOUR?\n", ":POW:ALC:SOUR ", kAlcSourceExWords},
    {KVTD_ATTRIBUTE(AM_MODE), ":AM:TYPE?\n", ":AM:TYPE ", kAmModeWords},
    {KVTD_ATTRIBUTE(FM_HIGH_PASS_FILTER), ":FM:HFIL?\n", ":FM:HFIL ", kFmHighPassFilterWords},
    {KVTD_ATTRIBUTE(FM_MODE), ":FM:MODE?\n", ":FM:MODE ", kFmModeWords},
    {KVTD_ATTRIBUTE(FREQUENCY_MODE), ":FREQ:MODE?\n", ":FREQ:MODE ", kFrequencyModeWords},
    {KVTD_ATTRIBUTE(SELECTED_PRESET_FREQUENCY), ":FREQ:SEL?\n", ":FREQ:SEL ", kFrequencyPresetWords},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_RANGE), "", ":SWE1:RANG ", kFrequencyRangeWords},
    {KVTD_ATTRIBUTE(REFERENCE_OSCILLATOR_HIGH_FREQUENCY_SOURCE), ":ROSC:HFR:SOUR?\n", "", kHighFrequencySourceWords},
    {KVTD_ATTRIBUTE(AM_INTERNAL_WAVEFORM), ":AM:WAVE?\n", ":AM:WAVE ", kInternalWaveformWords},
    {KVTD_ATTRIBUTE(FM_INTERNAL_WAVEFORM), ":FM:WAVE?\n", ":FM:WAVE ", kInternalWaveformWords},
    {KVTD_ATTRIBUTE(PM_INTERNAL_WAVEFORM), ":PM:WAVE?\n", ":PM:WAVE ", kInternalWaveformWords},
    {KVTD_ATTRIBUTE(COMMUNICATION_TERMINATION), ":SYST:COMM:GPIB:TERM:OUTP?\n", ":SYST:COMM:GPIB:TERM:OUTP ",
     kLineTerminationWords},
    {KVTD_ATTRIBUTE(TRIGGER_MODE), ":TRIG:MODE?\n", ":TRIG:MODE ", kListTriggerModeWords},
    {KVTD_ATTRIBUTE(REFERENCE_OSCILLATOR_LOW_FREQUENCY_SOURCE), ":ROSC:LFR:SOUR?\n", "", kLowFrequencySourceWords},
    {KVTD_ATTRIBUTE(AM_SOURCE_EX), ":AM:SOUR?\n", ":AM:SOUR ", kModulationSourceWords},
    {KVTD_ATTRIBUTE(FM_SOURCE_EX), ":FM:SOUR?\n", ":FM:SOUR ", kModulationSourceWords},
    {KVTD_ATTRIBUTE(PM_SOURCE_EX), ":PM:SOUR?\n", ":PM:SOUR ", kModulationSourceWords},
    {KVTD_ATTRIBUTE(PULSE_MODULATION_SOURCE_EX), ":PULM:SOUR?\n", ":PULM:SOUR ", kModulationSourceWords},
    {KVTD_ATTRIBUTE(REFERENCE_OSCILLATOR_MULTIPLIED_SOURCE), ":ROSC:MULT:SOUR?\n", "", kMultipliedSourceWords},
    {KVTD_ATTRIBUTE(PM_MODE), ":PM:BWID?\n", ":PM:BWID ", kPmModeWords},
    {KVTD_ATTRIBUTE(SELECTED_POWER_PRESET_LEVEL), ":POW:SEL?\n", ":POW:SEL ", kPowerLevelPresetWords},
    {KVTD_ATTRIBUTE(POWER_MODE), ":POW:MODE?\n", ":POW:MODE ", kPowerModeWords},
    {KVTD_ATTRIBUTE(POWER_SWEEP_RANGE), "", ":SWE2:RANG ", kPowerSweepRangeWords},
    {KVTD_ATTRIBUTE(PULSE_EXTERNAL_TRIGGER_SLOPE), ":TRIG:SEQ3:SLOP?\n", ":TRIG:SEQ3:SLOP ",
     kPulseExternalTriggerSlopeWords},
    {KVTD_ATTRIBUTE(PULSE_MODULATION_EXTERNAL_POLARITY), ":PULM:POL?\n", ":PULM:POL ",
     kPulseModulationExternalPolarityWords},
    {KVTD_ATTRIBUTE(PULSE_OUTPUT_POLARITY), ":PULM:POL?\n", ":PULM:POL ", kPulseOutputPolarityWords},
    {KVTD_ATTRIBUTE(REFERENCE_OSCILLATOR_ACTIVE_SOURCE), ":ROSC:SOUR:CURR?\n", "", kReferenceOscillatorSourceWords},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_DIRECTION), ":SWE1:DIR?\n", ":SWE1:DIR ", kSweepDirectionWords},
    {KVTD_ATTRIBUTE(POWER_SWEEP_DIRECTION), ":SWE2:DIR?\n", ":SWE2:DIR ", kSweepDirectionWords},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_GENERATION), ":SWE1:GEN?\n", ":SWE1:GEN ", kSweepGenerationWords},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_SPACING), ":SWE:SPAC?\n", ":SWE:SPAC ", kSweepSpacingWords},
    {KVTD_ATTRIBUTE(TIME_SYNC_MODE), ":SYST:TIME:SYNC?\n", ":SYST:TIME:SYNC ", kTimeSyncModeWords},
    {KVTD_ATTRIBUTE(TIME_SYNC_STATUS), ":SYST:TIME:SYNC:STAT?\n", "", kTimeSyncStatusWords},
    {KVTD_ATTRIBUTE(PULSE_MODULATION_TRIGGER_MODE), ":TRIG:SEQ3:TYPE?\n", ":TRIG:SEQ3:TYPE ", kTriggerModeWords},
    {KVTD_ATTRIBUTE(TRIGGER_SOURCE), ":TRIG:SOUR?\n", ":TRIG:SOUR ", kTriggerSourceWords},
    {KVTD_ATTRIBUTE(TRIGGER_TYPE), ":TRIG:TYPE?\n", ":TRIG:TYPE ", kTriggerTypeWords},
};

std::string NameOfEnum(const testing::TestParamInfo<EnumCase>& info) { return info.param.name; }
void PrintTo(const EnumCase& attribute, std::ostream* stream) { *stream << attribute.name; }

std::string InCase(std::string word, int (*fold)(int)) {
  for (char& c : word) c = static_cast<char>(fold(static_cast<unsigned char>(c)));
  return word;
}

class EnumWords : public DriverDialogue, public testing::WithParamInterface<EnumCase> {
 protected:
  // Lets the instrument answer with these bytes.
  ViStatus Read(const std::string& answer, ViInt32* value) {
    Sent(GetParam().query);
    Answer(answer);
    return KVTD481X2C_GetAttributeViInt32(vi, nullptr, GetParam().id, value);
  }
  ViStatus Write(ViInt32 value) { return KVTD481X2C_SetAttributeViInt32(vi, nullptr, GetParam().id, value); }
};

TEST_P(EnumWords, HaveTheirPublishedNumbers) {
  for (const Word& word : GetParam().words) EXPECT_EQ(word.value, word.published) << word.words.front();
}

TEST_P(EnumWords, EveryValueGoesOutInItsFirstWord) {
  if (GetParam().commands.empty()) GTEST_SKIP() << "read-only";
  for (const Word& word : GetParam().words) {
    Sent(GetParam().commands + word.words.front() + '\n');
    EXPECT_STATUS(VI_SUCCESS, Write(word.value));
  }
}

TEST_P(EnumWords, AValueBeyondTheLastOrBelowTheFirstSendsNothing) {
  if (GetParam().commands.empty()) GTEST_SKIP() << "read-only";
  const ViInt32 beyond = GetParam().words.back().value + 1;
  for (const ViInt32 value : {beyond, -1}) {
    EXPECT_STATUS(kCannotRecover, Write(value));
    EXPECT_EQ("Failure cannot recover.  Could not convert defined value '" + std::to_string(value) +
                  "' to an instrument command.",
              LastErrorText());
  }
}

TEST_P(EnumWords, EveryWordIsUnderstoodTrimmedAndInAnyCase) {
  if (GetParam().query.empty()) GTEST_SKIP() << "write-only";
  for (const Word& word : GetParam().words) {
    for (const std::string& text : word.words) {
      for (const std::string& answer :
           {text + '\n', InCase(text, std::toupper) + "\r\n", " \t" + InCase(text, std::tolower) + " \n"}) {
        ViInt32 value = 77;
        EXPECT_STATUS(VI_SUCCESS, Read(answer, &value));
        EXPECT_EQ(word.value, value) << Visible(answer);
      }
    }
  }
}

TEST_P(EnumWords, AnyOtherWordIsAnUnexpectedResponse) {
  if (GetParam().query.empty()) GTEST_SKIP() << "write-only";
  for (const std::string answer : {"!!!", "", "NOSUCHWORD", "0.5"}) {
    ViInt32 value = 77;
    EXPECT_STATUS(kUnexpectedResponse, Read(answer + '\n', &value));
    EXPECT_EQ(-1, value);
    EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (" + answer +
                  ") to a defined value.",
              LastErrorText());
  }
}

INSTANTIATE_TEST_SUITE_P(All, EnumWords, testing::ValuesIn(kEnums), NameOfEnum);

class EnumWordsDialogue : public DriverDialogue {
 protected:
  ViStatus Mode(const std::string& answer, ViInt32* value) {
    Sent(":FREQ:MODE?\n");
    Answer(answer);
    return KVTD481X2C_GetFrequencyMode(vi, value);
  }
};

TEST_F(EnumWordsDialogue, OnlyTheWordsOfTheListMatchAndNoFormBetweenThem) {
  ViInt32 mode = 77;
  for (const char* answer :
       {"FIXE\n", "FI\n", "FIX,\n", "FIX FIX\n", "SWEEP2\n", "SWE2\n", "LIST\n", "LIST11\n", "LIST01\n", "\"FIX\"\n"}) {
    EXPECT_STATUS(kUnexpectedResponse, Mode(answer, &mode)) << answer;
    EXPECT_EQ(-1, mode);
  }
  EXPECT_STATUS(VI_SUCCESS, Mode(" fix\r\n", &mode));
  EXPECT_EQ(KVTD481X2C_VAL_FREQUENCY_MODE_FIXED, mode);
}

TEST_F(EnumWordsDialogue, TheFrequencySweepsWordIsNoWordOfThePowerMode) {
  ViInt32 mode = 77;
  for (const char* word : {"SWE1", "SWE", "SWEep"}) {
    Sent(":POW:MODE?\n");
    Answer(std::string(word) + '\n');
    EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetPowerMode(vi, &mode));
  }
}

TEST_F(EnumWordsDialogue, TheTextOfAnUnexpectedResponseIsTheOneThatArrived) {
  ViInt32 mode = 77;
  EXPECT_STATUS(kUnexpectedResponse, Mode(" \t9 %s %d \r\n", &mode));
  EXPECT_EQ(
      "Unexpected response from instrument.  Could not convert instrument response ( \t9 %s %d \r) to a defined value.",
      LastErrorText());
}

TEST_F(EnumWordsDialogue, AWordBehindTheWidthOfTheBufferIsCutAndNothingIsLeftForTheNextRead) {
  ViInt32 mode = 77;
  EXPECT_STATUS(kUnexpectedResponse, Mode(std::string(5000, 'F') + "\n", &mode));
  EXPECT_EQ(-1, mode);
  EXPECT_STATUS(VI_SUCCESS, Mode("LIST2\n", &mode));
  EXPECT_EQ(3, mode);
  // 253 blanks and two letters fill the 255 characters that there is room for.
  EXPECT_STATUS(VI_SUCCESS, Mode(std::string(253, ' ') + "CW and more\n", &mode));
  EXPECT_EQ(0, mode);
}

TEST_F(EnumWordsDialogue, BooleansAreReadFromBothOfTheirWords) {
  struct Reading {
    const char* answer;
    ViBoolean value;
  };
  for (const auto& [answer, value] :
       {Reading{"1\n", VI_TRUE}, Reading{"ON\n", VI_TRUE}, Reading{"on\n", VI_TRUE}, Reading{" On \r\n", VI_TRUE},
        Reading{"0\n", VI_FALSE}, Reading{"OFF\n", VI_FALSE}, Reading{"off\n", VI_FALSE}}) {
    Sent(":POW:LIM:STAT?\n");
    Answer(answer);
    ViBoolean read = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetPowerLimitEnabled(vi, &read));
    EXPECT_EQ(value, read) << Visible(answer);
  }
}

TEST_F(EnumWordsDialogue, NoOtherNumberIsABoolean) {
  for (const char* answer : {"+1\n", "2\n", "1.0\n", "01\n", "TRUE\n", "\n", "-1\n"}) {
    Sent(":POW:LIM:STAT?\n");
    Answer(answer);
    ViBoolean read = 77;
    EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetPowerLimitEnabled(vi, &read)) << Visible(answer);
    EXPECT_EQ(0xFFFF, read);
  }
}

TEST_F(EnumWordsDialogue, BooleansGoOutAsDigits) {
  Script(R"(
    > :POW:LIM:STAT 1
    > :POW:LIM:STAT 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPowerLimitEnabled(vi, VI_TRUE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPowerLimitEnabled(vi, VI_FALSE));
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_SetPowerLimitEnabled(vi, 2));
}

TEST_F(EnumWordsDialogue, TheScopeOfAFileResetGoesOutInItsFirstWord) {
  Script(R"(
    > :SYST:DEF:RES:DATA USER
    > :SYST:DEF:RES:DATA SYSTem
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetSystemFiles(vi, 0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetSystemFiles(vi, 1));
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_ResetSystemFiles(vi, 2));
}

// 5 is no leveling source at all, so it has no name.
TEST_F(EnumWordsDialogue, ANumberThatNamesNothingStandsForItselfInTheRefusalOfTheClass) {
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_ALC_SOURCE, 5));
  EXPECT_EQ(
      "Does not support this class-compliant feature:  Enumeration value '5' passed as the value for parameter "
      "'AttributeValue' in function 'ALC_SOURCE'.",
      LastErrorText());
}

// Every row of the maps holds for every model, so that a model the driver does not know converts all the same.
TEST_F(InstrumentDialogue, AnUnknownModelUsesTheSameWords) {
  ScriptBringUp("Other,XYZ-1,1,1");
  ASSERT_STATUS(VI_SUCCESS, Open());
  Script(R"(
    > :FREQ:MODE LIST3
    > :FREQ:MODE?
    < SWE
  )");
  ViInt32 mode = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMode(vi, 4));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMode(vi, &mode));
  EXPECT_EQ(1, mode);
}

}  // namespace
}  // namespace kvtd::test
