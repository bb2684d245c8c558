// Frequency and phase modulation, two near twins: the instrument's own attributes both ways, the class's source and
// deviation, which go by what the instrument says, and the names of the sources.

#include <vector>

#include "AttributeCases.h"
#include "ClassAccess.h"

namespace kvtd::test {
namespace {

constexpr auto kStored = Simulated::Stored;
constexpr auto kFixed = Simulated::Fixed;
constexpr auto kVisa = Simulated::VisaCall;

#define BOTH(stem) &KVTD481X2C_Get##stem, &KVTD481X2C_Set##stem
#define READ(stem) &KVTD481X2C_Get##stem, nullptr

const std::vector<AttributeCase> kFmPmAttributes = {
    {KVTD_ATTRIBUTE(FM_ERROR), 1150064, Int32Exports{READ(FMError)}, ":FM:ERR?\n", "2\n", 2, 0, "", kFixed, 0},
    {KVTD_ATTRIBUTE(FM_EXTERNAL_SENSITIVITY), 1150067, RealExports{BOTH(FMExternalSensitivity)}, ":FM:SENS?\n",
     "1.0E+05\n", 1e5, 2.5e6, ":FM:SENS 2500000\n", kStored, 0},
    {KVTD_ATTRIBUTE(FM_INTERNAL_DEVIATION), 1150068, RealExports{BOTH(FMInternalDeviation)}, ":FM:DEV?\n", "75000\n",
     75000, 12.5, ":FM:DEV 12.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(FM_INTERNAL_FREQUENCY), 1150069, RealExports{BOTH(FMInternalFrequency)}, ":FM:FREQ?\n", "400\n",
     400, 1000.0, ":FM:FREQ 1000\n", kStored, 0},
    {KVTD_ATTRIBUTE(FM_INTERNAL_WAVEFORM), 1150070, Int32Exports{BOTH(FMInternalWaveform)}, ":FM:WAVE?\n", "TRI\n", 5,
     6, ":FM:WAVE UNIForm\n", kStored, 0},
    {KVTD_ATTRIBUTE(FM_MODE), 1150071, Int32Exports{BOTH(FMMode)}, ":FM:MODE?\n", "UNL\n", 1, 0, ":FM:MODE LOCKed\n",
     kStored, 0},
    {KVTD_ATTRIBUTE(FM_SOURCE_EX), 1150072, Int32Exports{BOTH(FMSourceEx)}, ":FM:SOUR?\n", "EXT\n", 1, 1,
     ":FM:SOUR EXTernal\n", kStored, 0},
    {KVTD_ATTRIBUTE(FM_HIGH_PASS_FILTER), 1150181, Int32Exports{BOTH(FmHighPassFilter)}, ":FM:HFIL?\n", "HP63\n", 1, 2,
     ":FM:HFIL HP1K\n", kStored, 0},
    {KVTD_ATTRIBUTE(FM_ENABLED), 1250021, BooleanExports{}, ":FM:STAT?\n", "OFF\n", 0, 1, ":FM:STAT 1\n", kVisa},
    {KVTD_ATTRIBUTE(PM_ERROR), 1150074, Int32Exports{READ(PMError)}, ":PM:ERR?\n", "-1\n", -1, 0, "", kFixed, 0},
    {KVTD_ATTRIBUTE(PM_EXTERNAL_SENSITIVITY), 1150077, RealExports{BOTH(PMExternalSensitivity)}, ":PM:SENS?\n", "0.5\n",
     0.5, 1.25, ":PM:SENS 1.25\n", kStored, 0},
    {KVTD_ATTRIBUTE(PM_INTERNAL_DEVIATION), 1150078, RealExports{BOTH(PMInternalDeviation)}, ":PM:DEV?\n", "3.125\n",
     3.125, 1e-9, ":PM:DEV 1e-09\n", kStored, 0},
    {KVTD_ATTRIBUTE(PM_INTERNAL_FREQUENCY), 1150079, RealExports{BOTH(PMInternalFrequency)}, ":PM:FREQ?\n", "50\n", 50,
     60.5, ":PM:FREQ 60.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(PM_MODE), 1150081, Int32Exports{BOTH(PMMode)}, ":PM:BWID?\n", "MAX\n", 1, 0, ":PM:BWID MINimum\n",
     kStored, 0},
    {KVTD_ATTRIBUTE(PM_SOURCE_EX), 1150082, Int32Exports{BOTH(PMSourceEx)}, ":PM:SOUR?\n", "INT\n", 0, 1,
     ":PM:SOUR EXTernal\n", kStored, 0},
    {KVTD_ATTRIBUTE(PM_INTERNAL_WAVEFORM), 1150083, Int32Exports{BOTH(PMInternalWaveform)}, ":PM:WAVE?\n", "RDOW\n", 2,
     3, ":PM:WAVE RUP\n", kStored, 0},
    {KVTD_ATTRIBUTE(PM_ENABLED), 1250031, BooleanExports{}, ":PM:STAT?\n", "1\n", 1, 0, ":PM:STAT 0\n", kVisa},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(FmPm, kFmPmAttributes);

namespace {

// What the two modulations do alike, each in its own words.
struct Twin {
  std::string name;
  ViAttr source;
  ViAttr coupling;
  ViAttr voltage;
  ViAttr deviation;
  ViAttr internal_deviation;
  ViAttr external_sensitivity;
  decltype(&KVTD481X2C_ConfigureFM) configure;
  decltype(&KVTD481X2C_ConfigureFMEnabled) configure_enabled;
  decltype(&KVTD481X2C_ConfigureFMExternalCoupling) configure_coupling;
  decltype(&KVTD481X2C_MeasureFMDepth) measure;
  decltype(&KVTD481X2C_SetFMSourceEx) set_source;

  const char* source_query;
  const char* source_internal;
  const char* source_external;
  const char* deviation_query;
  const char* deviation_command;  // 12.5
  const char* sensitivity_query;
  const char* sensitivity_command;  // 12.5
  const char* on;
  const char* off;
  const char* measurement;
  const char* measure_name;
  const char* source_name;
  const char* coupling_name;
  const char* ac_name;
  const char* voltage_name;
};

const Twin kTwins[] = {
    {"Fm",
     KVTD481X2C_ATTR_FM_SOURCE,
     KVTD481X2C_ATTR_FM_EXTERNAL_COUPLING,
     KVTD481X2C_ATTR_FM_NOMINAL_VOLTAGE,
     KVTD481X2C_ATTR_FM_DEVIATION,
     KVTD481X2C_ATTR_FM_INTERNAL_DEVIATION,
     KVTD481X2C_ATTR_FM_EXTERNAL_SENSITIVITY,
     &KVTD481X2C_ConfigureFM,
     &KVTD481X2C_ConfigureFMEnabled,
     &KVTD481X2C_ConfigureFMExternalCoupling,
     &KVTD481X2C_MeasureFMDepth,
     &KVTD481X2C_SetFMSourceEx,
     ":FM:SOUR?",
     ":FM:SOUR INTernal",
     ":FM:SOUR EXTernal",
     ":FM:DEV?",
     ":FM:DEV 12.5",
     ":FM:SENS?",
     ":FM:SENS 12.5",
     ":FM:STAT 1",
     ":FM:STAT 0",
     ":MEAS:FM:DEV?",
     "KVTD481X2C_MeasureFMDepth",
     "FM_SOURCE",
     "FM_EXTERNAL_COUPLING",
     "KVTD481X2C_VAL_FM_EXTERNAL_COUPLING_AC",
     "KVTD481X2C_ATTR_FM_NOMINAL_VOLTAGE"},
    {"Pm",
     KVTD481X2C_ATTR_PM_SOURCE,
     KVTD481X2C_ATTR_PM_EXTERNAL_COUPLING,
     KVTD481X2C_ATTR_PM_NOMINAL_VOLTAGE,
     KVTD481X2C_ATTR_PM_DEVIATION,
     KVTD481X2C_ATTR_PM_INTERNAL_DEVIATION,
     KVTD481X2C_ATTR_PM_EXTERNAL_SENSITIVITY,
     &KVTD481X2C_ConfigurePM,
     &KVTD481X2C_ConfigurePMEnabled,
     &KVTD481X2C_ConfigurePMExternalCoupling,
     &KVTD481X2C_MeasurePMDepth,
     &KVTD481X2C_SetPMSourceEx,
     ":PM:SOUR?",
     ":PM:SOUR INTernal",
     ":PM:SOUR EXTernal",
     ":PM:DEV?",
     ":PM:DEV 12.5",
     ":PM:SENS?",
     ":PM:SENS 12.5",
     ":PM:STAT 1",
     ":PM:STAT 0",
     ":MEAS:PM:DEV?",
     "KVTD481X2C_MeasurePMDepth",
     "PM_SOURCE",
     "PM_EXTERNAL_COUPLING",
     "KVTD481X2C_VAL_PM_EXTERNAL_COUPLING_AC",
     "KVTD481X2C_ATTR_PM_NOMINAL_VOLTAGE"},
};

class TwinDialogue : public ClassAccess<DriverDialogue>, public testing::WithParamInterface<Twin> {
 protected:
  const Twin& twin = GetParam();

  void Told(const char* command) { Sent(std::string(command) + '\n'); }
};

class SimulatedTwin : public ClassAccess<SimulatedDriver>, public testing::WithParamInterface<Twin> {
 protected:
  const Twin& twin = GetParam();
};

std::string NameOfTwin(const testing::TestParamInfo<Twin>& info) { return info.param.name; }
INSTANTIATE_TEST_SUITE_P(Twins, TwinDialogue, testing::ValuesIn(kTwins), NameOfTwin);
INSTANTIATE_TEST_SUITE_P(Twins, SimulatedTwin, testing::ValuesIn(kTwins), NameOfTwin);

using FmPmDialogue = ClassAccess<DriverDialogue>;
using SimulatedFmPm = ClassAccess<SimulatedDriver>;

TEST_F(FmPmDialogue, TheClassAttributesHaveTheirPublishedIds) {
  EXPECT_EQ(1250022U, KVTD481X2C_ATTR_FM_SOURCE);
  EXPECT_EQ(1250023U, KVTD481X2C_ATTR_FM_EXTERNAL_COUPLING);
  EXPECT_EQ(1250024U, KVTD481X2C_ATTR_FM_NOMINAL_VOLTAGE);
  EXPECT_EQ(1250025U, KVTD481X2C_ATTR_FM_DEVIATION);
  EXPECT_EQ(1250032U, KVTD481X2C_ATTR_PM_SOURCE);
  EXPECT_EQ(1250033U, KVTD481X2C_ATTR_PM_EXTERNAL_COUPLING);
  EXPECT_EQ(1250034U, KVTD481X2C_ATTR_PM_NOMINAL_VOLTAGE);
  EXPECT_EQ(1250035U, KVTD481X2C_ATTR_PM_DEVIATION);
  EXPECT_EQ(1250041U, KVTD481X2C_ATTR_ANALOG_MODULATION_SOURCE_COUNT);
}

TEST_P(TwinDialogue, TheDeviationIsReadFromTheCommandOfTheSource) {
  Asked(twin.source_query, "INT");
  Asked(twin.deviation_query, "1500");
  EXPECT_EQ(1500, Real(twin.deviation));
  Asked(twin.source_query, "EXT");
  Asked(twin.sensitivity_query, "0.25");
  EXPECT_EQ(0.25, Real(twin.deviation));
}

TEST_P(TwinDialogue, TheDeviationIsWrittenToTheCommandOfTheSource) {
  Asked(twin.source_query, "INT");
  Told(twin.deviation_command);
  EXPECT_STATUS(VI_SUCCESS, SetReal(twin.deviation, 12.5));
  Asked(twin.source_query, "EXT");
  Told(twin.sensitivity_command);
  EXPECT_STATUS(VI_SUCCESS, SetReal(twin.deviation, 12.5));
}

TEST_P(TwinDialogue, EveryStepOfTheDeviationAsksForTheStatus) {
  QueryInstrumentStatus(true);
  Asked(twin.source_query, "EXT");
  Asked("*ESR?", "0");
  Asked(twin.sensitivity_query, "2");
  Asked("*ESR?", "0");
  EXPECT_EQ(2, Real(twin.deviation));
  Asked(twin.source_query, "INT");
  Asked("*ESR?", "0");
  Told(twin.deviation_command);
  Asked("*ESR?", "16");
  EXPECT_STATUS(kInstrumentError, SetReal(twin.deviation, 12.5));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_P(TwinDialogue, TheDeviationStopsAtASourceThatCannotBeRead) {
  Asked(twin.source_query, "SUN");
  ViReal64 deviation = 77;
  EXPECT_STATUS(kUnexpectedResponse, GetReal(twin.deviation, &deviation));
  EXPECT_EQ(77, deviation);
  EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (SUN) to a defined value.",
            LastErrorText());
  Asked(twin.source_query, "SUN");
  EXPECT_STATUS(kUnexpectedResponse, SetReal(twin.deviation, 1));
}

TEST_P(TwinDialogue, TheSourceIsReadAsItsName) {
  Asked(twin.source_query, "INT");
  EXPECT_EQ("Internal", TextAttribute(twin.source));
  Asked(twin.source_query, "external");
  EXPECT_EQ("External", TextAttribute(twin.source));
}

TEST_P(TwinDialogue, ANameThatJustFillsTheBufferAsksForMoreRoom) {
  Asked(twin.source_query, "INT");
  GuardedText<9> name;
  EXPECT_STATUS(4096, KVTD481X2C_GetAttributeViString(vi, nullptr, twin.source, name.size(), name.data()));
  EXPECT_EQ("Internal", name.text());
}

TEST_P(TwinDialogue, TheSourceIsSetByItsNameInAnyCase) {
  Told(twin.source_internal);
  EXPECT_STATUS(VI_SUCCESS, SetText(twin.source, "INTERNAL"));
  Told(twin.source_external);
  EXPECT_STATUS(VI_SUCCESS, SetText(twin.source, "external"));
}

TEST_P(TwinDialogue, AnyOtherSourceIsRefusedAsTheCallerWroteIt) {
  for (const char* name : {"", "EXT", "External ", "Both"}) {
    EXPECT_STATUS(kValueNotSupported, SetText(twin.source, name));
    EXPECT_EQ((RecordedError{kValueNotSupported, ValueRefused(name, twin.source_name)}), LastError());
  }
}

TEST_P(TwinDialogue, TheCouplingIsAlwaysDcAndNeverSent) {
  EXPECT_EQ(1, Int32(twin.coupling));
  EXPECT_STATUS(VI_SUCCESS, SetInt32(twin.coupling, 1));
  EXPECT_STATUS(VI_SUCCESS, twin.configure_coupling(vi, 1));
  EXPECT_STATUS(kValueNotSupported, twin.configure_coupling(vi, 0));
  EXPECT_EQ(ValueRefused(twin.ac_name, twin.coupling_name), LastErrorText());
  EXPECT_STATUS(kValueNotSupported, SetInt32(twin.coupling, -2147483647 - 1));
  EXPECT_EQ(ValueRefused("-2147483648", twin.coupling_name), LastErrorText());
  EXPECT_EQ(1, Int32(twin.coupling));
}

TEST_P(TwinDialogue, TheNominalVoltageIsOneAndCannotBeSet) {
  EXPECT_EQ(1.0, Real(twin.voltage));
  EXPECT_STATUS(kReadOnly, SetReal(twin.voltage, 2.0));
  EXPECT_EQ("Attribute '" + std::string(twin.voltage_name) + "' is read-only.", LastErrorText());
}

TEST_P(TwinDialogue, ConfiguringSetsTheSourceAndThenTheDeviation) {
  Told(twin.source_external);
  Asked(twin.source_query, "EXT");
  Told(twin.sensitivity_command);
  EXPECT_STATUS(VI_SUCCESS, twin.configure(vi, "External", 12.5));
}

TEST_P(TwinDialogue, ConfiguringStopsAtTheFirstStepThatFails) {
  EXPECT_STATUS(kValueNotSupported, twin.configure(vi, "Both", 12.5));
  EXPECT_EQ(ValueRefused("Both", twin.source_name), LastErrorText());
  QueryInstrumentStatus(true);
  Told(twin.source_internal);
  Asked("*ESR?", "4");
  EXPECT_STATUS(kInstrumentError, twin.configure(vi, "Internal", 12.5));
}

TEST_P(TwinDialogue, TheModulationSwitchesOnAndOff) {
  Told(twin.on);
  EXPECT_STATUS(VI_SUCCESS, twin.configure_enabled(vi, VI_TRUE));
  Told(twin.off);
  EXPECT_STATUS(VI_SUCCESS, twin.configure_enabled(vi, VI_FALSE));
  EXPECT_STATUS(kCannotRecover, twin.configure_enabled(vi, 0xFFFF));
  EXPECT_EQ("Failure cannot recover.  Could not convert defined value '65535' to an instrument command.",
            LastErrorText());
}

TEST_P(TwinDialogue, TheDeviationIsMeasuredWithoutLookingAtTheSettings) {
  QueryInstrumentStatus(true);
  Asked(twin.measurement, "1.5E3");
  Asked("*ESR?", "0");
  ViReal64 value = 77;
  EXPECT_STATUS(VI_SUCCESS, twin.measure(vi, &value));
  EXPECT_EQ(1500, value);
  Asked(twin.measurement, "2");
  Asked("*ESR?", "32");
  EXPECT_STATUS(kInstrumentError, twin.measure(vi, &value));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_P(TwinDialogue, ALostConnectionComesBackFromAMeasurementAsVisaTellsIt) {
  Sent(std::string(twin.measurement) + '\n');
  instrument.Close();
  ViReal64 value = 77;
  EXPECT_STATUS(kVisaConnectionLost, twin.measure(vi, &value));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_P(TwinDialogue, AMeasurementIntoNothingIsRefusedUnderItsOwnName) {
  EXPECT_STATUS(kNullPointer, twin.measure(vi, nullptr));
  EXPECT_EQ(NullPointerError(twin.measure_name, "Val"), LastError());
}

TEST_P(TwinDialogue, OperationsRefuseAHandleThatIsNotOpen) {
  ViReal64 real = 77;
  ViInt32 number = 77;
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    EXPECT_STATUS(kInvalidHandle, twin.configure(handle, "Internal", 1));
    EXPECT_STATUS(kInvalidHandle, twin.configure_enabled(handle, VI_TRUE));
    EXPECT_STATUS(kInvalidHandle, twin.configure_coupling(handle, 1));
    EXPECT_STATUS(kInvalidHandle, twin.measure(handle, &real));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViReal64(handle, nullptr, twin.deviation, &real));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViReal64(handle, nullptr, twin.deviation, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViReal64(handle, nullptr, twin.voltage, &real));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViInt32(handle, nullptr, twin.coupling, &number));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViInt32(handle, nullptr, twin.coupling, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViString(handle, nullptr, twin.source, "Internal"));
  }
  EXPECT_EQ(77, real);
  EXPECT_EQ(77, number);
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_P(SimulatedTwin, TheDeviationGoesByTheStoredSource) {
  EXPECT_EQ(0.0, Real(twin.deviation));
  EXPECT_EQ("Internal", TextAttribute(twin.source));
  EXPECT_STATUS(VI_SUCCESS, SetText(twin.source, "External"));
  EXPECT_EQ("External", TextAttribute(twin.source));
  EXPECT_STATUS(VI_SUCCESS, SetReal(twin.deviation, 4));
  EXPECT_EQ(4, Real(twin.external_sensitivity));
  EXPECT_EQ(0.0, Real(twin.internal_deviation));
  EXPECT_STATUS(VI_SUCCESS, twin.configure(vi, "internal", 5));
  EXPECT_EQ(5, Real(twin.internal_deviation));
  EXPECT_EQ(5, Real(twin.deviation));
  EXPECT_EQ(4, Real(twin.external_sensitivity));
}

TEST_P(SimulatedTwin, ASourceWithoutANameCountsAsExternalButCannotBeNamed) {
  EXPECT_STATUS(VI_SUCCESS, twin.set_source(vi, 2));
  EXPECT_STATUS(VI_SUCCESS, SetReal(twin.deviation, 6));
  EXPECT_EQ(6, Real(twin.external_sensitivity));
  GuardedText<16> name;
  EXPECT_STATUS(kUnexpectedResponse,
                KVTD481X2C_GetAttributeViString(vi, nullptr, twin.source, name.size(), name.data()));
  EXPECT_TRUE(name.Untouched());
  EXPECT_EQ(kNoClassValue, LastError());
}

TEST_P(SimulatedTwin, TheConstantsReadAsInARealSession) {
  EXPECT_EQ(1.0, Real(twin.voltage));
  EXPECT_EQ(1, Int32(twin.coupling));
  EXPECT_STATUS(kValueNotSupported, twin.configure_coupling(vi, 0));
}

TEST_P(SimulatedTwin, TheSwitchFailsAtTheVisaSessionThatIsNotThere) {
  EXPECT_STATUS(kVisaNoSession, twin.configure_enabled(vi, VI_TRUE));
}

TEST_P(SimulatedTwin, AMeasurementSucceedsAndWritesNothing) {
  ViReal64 value = 77;
  EXPECT_STATUS(VI_SUCCESS, twin.measure(vi, &value));
  EXPECT_EQ(77, value);
  EXPECT_STATUS(kNullPointer, twin.measure(vi, nullptr));
  EXPECT_EQ(NullPointerError(twin.measure_name, "Val"), LastError());
}

TEST_F(FmPmDialogue, ThePhaseModeGoesOutAsABandwidth) {
  Script(R"(
    > :PM:BWID MINimum
    > :PM:BWID MAXimum
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPMMode(vi, KVTD481X2C_VAL_PM_MODE_NARROW));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPMMode(vi, KVTD481X2C_VAL_PM_MODE_WIDE));
}

TEST_F(FmPmDialogue, ThereAreTwoSourcesAndNothingIsAsked) {
  EXPECT_EQ(2, Int32(KVTD481X2C_ATTR_ANALOG_MODULATION_SOURCE_COUNT));
  EXPECT_STATUS(kReadOnly, SetInt32(KVTD481X2C_ATTR_ANALOG_MODULATION_SOURCE_COUNT, 3));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_ANALOG_MODULATION_SOURCE_COUNT' is read-only.", LastErrorText());
}

TEST_F(FmPmDialogue, TheSourcesAreNamedByTheirPlaceFromOne) {
  GuardedText<16> name;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAnalogModulationSourceName(vi, 1, name.size(), name.data()));
  EXPECT_EQ("Internal", name.text());
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAnalogModulationSourceName(vi, 2, name.size(), name.data()));
  EXPECT_EQ("External", name.text());
}

TEST_F(FmPmDialogue, ASourceBeyondTheListIsToldByItsPlaceFromZero) {
  struct Place {
    ViInt32 index;
    const char* text;
  };
  for (const auto& [index, text] : {Place{0, "-1"}, Place{3, "2"}, Place{-7, "-8"}, Place{2147483647, "2147483646"}}) {
    GuardedText<16> name;
    EXPECT_STATUS(kInvalidValue, KVTD481X2C_GetAnalogModulationSourceName(vi, index, name.size(), name.data()));
    EXPECT_TRUE(name.Untouched());
    EXPECT_EQ((RecordedError{kInvalidValue, "Invalid value '" + std::string(text) +
                                                "' for function 'GetAnalogModulationSourceName', parameter 'Index'."}),
              LastError());
  }
}

TEST_F(FmPmDialogue, TheNameOfASourceIsCutToTheBuffer) {
  GuardedText<1> empty;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAnalogModulationSourceName(vi, 2, empty.size(), empty.data()));
  EXPECT_EQ("", empty.text());
  GuardedText<4> cut;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAnalogModulationSourceName(vi, 2, cut.size(), cut.data()));
  EXPECT_EQ("Ext", cut.text());
  GuardedText<9> just_filled;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAnalogModulationSourceName(vi, 2, just_filled.size(), just_filled.data()));
  EXPECT_EQ("External", just_filled.text());
  GuardedText<8> nothing;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAnalogModulationSourceName(vi, 2, 0, nothing.data()));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAnalogModulationSourceName(vi, 2, -1, nothing.data()));
  EXPECT_TRUE(nothing.Untouched());
}

TEST_F(FmPmDialogue, ANameIntoNothingIsRefusedUnderItsOwnName) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAnalogModulationSourceName(vi, 1, 16, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_GetAnalogModulationSourceName", "Name"), LastError());
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    GuardedText<16> name;
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAnalogModulationSourceName(handle, 1, name.size(), name.data()));
    EXPECT_TRUE(name.Untouched());
  }
}

TEST_F(SimulatedFmPm, TheSourcesAreCountedAndNamedAsInARealSession) {
  EXPECT_EQ(2, Int32(KVTD481X2C_ATTR_ANALOG_MODULATION_SOURCE_COUNT));
  GuardedText<16> name;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAnalogModulationSourceName(vi, 2, name.size(), name.data()));
  EXPECT_EQ("External", name.text());
}

}  // namespace
}  // namespace kvtd::test
