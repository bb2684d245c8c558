// Amplitude modulation: the instrument's own attributes both ways, and the class's source, scaling and depth, which
// keep nothing themselves and go by what the instrument says.

#include <initializer_list>
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

const std::vector<AttributeCase> kAmAttributes = {
    {KVTD_ATTRIBUTE(AM_ERROR), 1150054, Int32Exports{READ(AMError)}, ":AM:ERR?\n", "3\n", 3, 0, "", kFixed, 0},
    {KVTD_ATTRIBUTE(AM_EXTERNAL_SENSITIVITY_DB), 1150055, RealExports{BOTH(AMExternalSensitivitydB)}, ":AM:LOGS?\n",
     "1.25E+01\n", 12.5, 0.1, ":AM:LOGS 0.1\n", kStored, 0},
    {KVTD_ATTRIBUTE(AM_EXTERNAL_SENSITIVITY_PERCENT), 1150056, RealExports{BOTH(AMExternalSensitivityPercent)},
     ":AM:SENS?\n", "80\n", 80, 33.25, ":AM:SENS 33.25\n", kStored, 0},
    {KVTD_ATTRIBUTE(AM_INTERNAL_DEPTH_DB), 1150057, RealExports{BOTH(AMInternalDepthdB)}, ":AM:LOGD?\n", "-3.5\n", -3.5,
     3.0, ":AM:LOGD 3\n", kStored, 0},
    {KVTD_ATTRIBUTE(AM_INTERNAL_DEPTH_PERCENT), 1150058, RealExports{BOTH(AMInternalDepthPercent)}, ":AM:DEPT?\n",
     "30\n", 30, 99.5, ":AM:DEPT 99.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(AM_INTERNAL_FREQUENCY), 1150059, RealExports{BOTH(AMInternalFrequency)}, ":AM:FREQ?\n", "1E3\n",
     1000, 400.5, ":AM:FREQ 400.5 HZ\n", kStored, 0},
    {KVTD_ATTRIBUTE(AM_INTERNAL_WAVEFORM), 1150060, Int32Exports{BOTH(AMInternalWaveform)}, ":AM:WAVE?\n", "GAUS\n", 1,
     4, ":AM:WAVE SQUare\n", kStored, 0},
    {KVTD_ATTRIBUTE(AM_MODE), 1150061, Int32Exports{BOTH(AMMode)}, ":AM:TYPE?\n", "LOG\n", 1, 1,
     ":AM:TYPE LOGarithmic\n", kStored, 0},
    {KVTD_ATTRIBUTE(AM_SOURCE_EX), 1150062, Int32Exports{BOTH(AMSourceEx)}, ":AM:SOUR?\n", "EXT\n", 1, 1,
     ":AM:SOUR EXTernal\n", kStored, 0},
    {KVTD_ATTRIBUTE(AM_ENABLED), 1250011, BooleanExports{}, ":AM:STAT?\n", "ON\n", 1, 0, ":AM:STAT 0\n", kVisa},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(Am, kAmAttributes);

namespace {

using AmDialogue = ClassAccess<DriverDialogue>;
using SimulatedAm = ClassAccess<SimulatedDriver>;

// Where the depth goes, by what the instrument says about source and mode.
struct DepthRoute {
  const char* source;
  const char* mode;
  const char* query;
  const char* command;
};
const DepthRoute kDepthRoutes[] = {
    {"INT", "LIN", ":AM:DEPT?", ":AM:DEPT 12.5"},
    {"INT", "LOG", ":AM:LOGD?", ":AM:LOGD 12.5"},
    {"EXT", "LIN", ":AM:SENS?", ":AM:SENS 12.5"},
    {"EXT", "LOG", ":AM:LOGS?", ":AM:LOGS 12.5"},
};

TEST_F(AmDialogue, TheClassAttributesHaveTheirPublishedIds) {
  EXPECT_EQ(1250012U, KVTD481X2C_ATTR_AM_SOURCE);
  EXPECT_EQ(1250013U, KVTD481X2C_ATTR_AM_SCALING);
  EXPECT_EQ(1250014U, KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING);
  EXPECT_EQ(1250015U, KVTD481X2C_ATTR_AM_NOMINAL_VOLTAGE);
  EXPECT_EQ(1250016U, KVTD481X2C_ATTR_AM_DEPTH);
}

TEST_F(AmDialogue, TheDepthIsReadFromTheCommandOfItsSourceAndMode) {
  for (const DepthRoute& route : kDepthRoutes) {
    Asked(":AM:SOUR?", route.source);
    Asked(":AM:TYPE?", route.mode);
    Asked(route.query, "42.5");
    ViReal64 depth = 77;
    EXPECT_STATUS(VI_SUCCESS, GetReal(KVTD481X2C_ATTR_AM_DEPTH, &depth)) << route.query;
    EXPECT_EQ(42.5, depth) << route.query;
  }
}

TEST_F(AmDialogue, TheDepthIsWrittenToTheCommandOfItsSourceAndMode) {
  for (const DepthRoute& route : kDepthRoutes) {
    Asked(":AM:SOUR?", route.source);
    Asked(":AM:TYPE?", route.mode);
    Sent(std::string(route.command) + '\n');
    EXPECT_STATUS(VI_SUCCESS, SetReal(KVTD481X2C_ATTR_AM_DEPTH, 12.5)) << route.command;
  }
}

TEST_F(AmDialogue, EveryStepOfADepthReadAsksForTheStatus) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :AM:SOUR?
    < EXT
    > *ESR?
    < 0
    > :AM:TYPE?
    < LOG
    > *ESR?
    < 0
    > :AM:LOGS?
    < 6
    > *ESR?
    < 0
  )");
  ViReal64 depth = 77;
  EXPECT_STATUS(VI_SUCCESS, GetReal(KVTD481X2C_ATTR_AM_DEPTH, &depth));
  EXPECT_EQ(6, depth);
}

TEST_F(AmDialogue, ADepthInDecibelsThatTheInstrumentRefusesLeavesTheVariableAlone) {
  QueryInstrumentStatus(true);
  Asked(":AM:SOUR?", "INT");
  Script(R"(
    > *ESR?
    < 0
    > :AM:TYPE?
    < LOG
    > *ESR?
    < 0
    > :AM:LOGD?
    < 6
    > *ESR?
    < 16
  )");
  ViReal64 depth = 77;
  EXPECT_STATUS(kInstrumentError, GetReal(KVTD481X2C_ATTR_AM_DEPTH, &depth));
  EXPECT_EQ(77, depth);
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(AmDialogue, ADepthInPercentThatTheInstrumentRefusesStandsInTheVariable) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :AM:SOUR?
    < INT
    > *ESR?
    < 0
    > :AM:TYPE?
    < LIN
    > *ESR?
    < 0
    > :AM:DEPT?
    < 6
    > *ESR?
    < 16
  )");
  ViReal64 depth = 77;
  EXPECT_STATUS(kInstrumentError, GetReal(KVTD481X2C_ATTR_AM_DEPTH, &depth));
  EXPECT_EQ(6, depth);
}

TEST_F(AmDialogue, ADepthStopsAtASourceThatCannotBeRead) {
  Asked(":AM:SOUR?", "SUN");
  ViReal64 depth = 77;
  EXPECT_STATUS(kUnexpectedResponse, GetReal(KVTD481X2C_ATTR_AM_DEPTH, &depth));
  EXPECT_EQ(77, depth);
  EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (SUN) to a defined value.",
            LastErrorText());
  Asked(":AM:SOUR?", "SUN");
  EXPECT_STATUS(kUnexpectedResponse, SetReal(KVTD481X2C_ATTR_AM_DEPTH, 5));
}

TEST_F(AmDialogue, ADepthStopsAtAModeThatCannotBeRead) {
  Asked(":AM:SOUR?", "INT");
  Asked(":AM:TYPE?", "SQRT");
  ViReal64 depth = 77;
  EXPECT_STATUS(kUnexpectedResponse, GetReal(KVTD481X2C_ATTR_AM_DEPTH, &depth));
  EXPECT_EQ(77, depth);
  Asked(":AM:SOUR?", "INT");
  Asked(":AM:TYPE?", "SQRT");
  EXPECT_STATUS(kUnexpectedResponse, SetReal(KVTD481X2C_ATTR_AM_DEPTH, 5));
}

TEST_F(AmDialogue, ARefusedReadOfTheSourceStopsADepthWriteBeforeTheMode) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :AM:SOUR?
    < INT
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(kInstrumentError, SetReal(KVTD481X2C_ATTR_AM_DEPTH, 5));
}

TEST_F(AmDialogue, ADepthOutsideEveryRangeIsTheInstrumentsToRefuse) {
  Asked(":AM:SOUR?", "INT");
  Asked(":AM:TYPE?", "LIN");
  Sent(":AM:DEPT -1e+99\n");
  EXPECT_STATUS(VI_SUCCESS, SetReal(KVTD481X2C_ATTR_AM_DEPTH, -1e99));
}

TEST_F(AmDialogue, TheScalingIsTheMode) {
  Asked(":AM:TYPE?", "LIN");
  EXPECT_EQ(0, Int32(KVTD481X2C_ATTR_AM_SCALING));
  Asked(":AM:TYPE?", "LOGARITHMIC");
  EXPECT_EQ(1, Int32(KVTD481X2C_ATTR_AM_SCALING));
}

TEST_F(AmDialogue, SettingTheScalingReadsTheModeFirst) {
  Asked(":AM:TYPE?", "LOG");
  Sent(":AM:TYPE LINear\n");
  EXPECT_STATUS(VI_SUCCESS, SetInt32(KVTD481X2C_ATTR_AM_SCALING, KVTD481X2C_VAL_AM_SCALING_LINEAR));
  Asked(":AM:TYPE?", "LOG");
  Sent(":AM:TYPE LOGarithmic\n");
  EXPECT_STATUS(VI_SUCCESS, SetInt32(KVTD481X2C_ATTR_AM_SCALING, KVTD481X2C_VAL_AM_SCALING_LOGARITHMIC));
}

TEST_F(AmDialogue, AnotherScalingIsRefusedBehindTheReadOfTheMode) {
  Asked(":AM:TYPE?", "LIN");
  EXPECT_STATUS(kValueNotSupported, SetInt32(KVTD481X2C_ATTR_AM_SCALING, 2));
  EXPECT_EQ((RecordedError{kValueNotSupported, ValueRefused("2", "AM_SCALING")}), LastError());
  Asked(":AM:TYPE?", "LIN");
  EXPECT_STATUS(kValueNotSupported, SetInt32(KVTD481X2C_ATTR_AM_SCALING, -1));
  EXPECT_EQ(ValueRefused("-1", "AM_SCALING"), LastErrorText());
}

TEST_F(AmDialogue, AFailingReadOfTheModeHidesABadScaling) {
  Asked(":AM:TYPE?", "SQRT");
  EXPECT_STATUS(kUnexpectedResponse, SetInt32(KVTD481X2C_ATTR_AM_SCALING, 2));
  EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (SQRT) to a defined value.",
            LastErrorText());
}

TEST_F(AmDialogue, TheSourceIsReadAsItsName) {
  Asked(":AM:SOUR?", "INT");
  EXPECT_EQ("Internal", TextAttribute(KVTD481X2C_ATTR_AM_SOURCE));
  Asked(":AM:SOUR?", "EXTernal");
  EXPECT_EQ("External", TextAttribute(KVTD481X2C_ATTR_AM_SOURCE));
}

TEST_F(AmDialogue, TheNameOfTheSourceIsCutToTheBuffer) {
  const auto read = [this](auto& text) {
    Asked(":AM:SOUR?", "EXT");
    return KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_AM_SOURCE, text.size(), text.data());
  };
  GuardedText<1> empty;
  EXPECT_STATUS(4096, read(empty));
  EXPECT_EQ("", empty.text());
  GuardedText<5> cut;
  EXPECT_STATUS(4096, read(cut));
  EXPECT_EQ("Exte", cut.text());
  GuardedText<9> just_filled;
  EXPECT_STATUS(4096, read(just_filled));
  EXPECT_EQ("External", just_filled.text());
  GuardedText<10> roomy;
  EXPECT_STATUS(VI_SUCCESS, read(roomy));
  EXPECT_EQ("External", roomy.text());
}

TEST_F(AmDialogue, TheSourceIsSetByItsNameInAnyCase) {
  Script(R"(
    > :AM:SOUR INTernal
    > :AM:SOUR INTernal
    > :AM:SOUR EXTernal
    > :AM:SOUR EXTernal
  )");
  for (const char* name : {"Internal", "iNTERNAL", "External", "external"}) {
    EXPECT_STATUS(VI_SUCCESS, SetText(KVTD481X2C_ATTR_AM_SOURCE, name)) << name;
  }
}

TEST_F(AmDialogue, AnyOtherSourceIsRefusedAsTheCallerWroteIt) {
  for (const char* name : {"", "INT", " Internal", "External ", "Both", "%s%n"}) {
    EXPECT_STATUS(kValueNotSupported, SetText(KVTD481X2C_ATTR_AM_SOURCE, name));
    EXPECT_EQ((RecordedError{kValueNotSupported, ValueRefused(name, "AM_SOURCE")}), LastError());
  }
}

TEST_F(AmDialogue, AfterTheSourceIsExternalTheDepthIsTheSensitivity) {
  Sent(":AM:SOUR EXTernal\n");
  EXPECT_STATUS(VI_SUCCESS, SetText(KVTD481X2C_ATTR_AM_SOURCE, "external"));
  Asked(":AM:SOUR?", "EXT");
  EXPECT_EQ("External", TextAttribute(KVTD481X2C_ATTR_AM_SOURCE));
  Asked(":AM:SOUR?", "EXT");
  Asked(":AM:TYPE?", "LIN");
  Sent(":AM:SENS 50\n");
  EXPECT_STATUS(VI_SUCCESS, SetReal(KVTD481X2C_ATTR_AM_DEPTH, 50));
}

TEST_F(AmDialogue, TheCouplingIsAlwaysDcAndNeverSent) {
  EXPECT_EQ(1, Int32(KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING));
  EXPECT_STATUS(VI_SUCCESS, SetInt32(KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING, KVTD481X2C_VAL_AM_EXTERNAL_COUPLING_DC));
  EXPECT_STATUS(kValueNotSupported, SetInt32(KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING, 0));
  EXPECT_EQ(ValueRefused("KVTD481X2C_VAL_AM_EXTERNAL_COUPLING_AC", "AM_EXTERNAL_COUPLING"), LastErrorText());
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigureAMExternalCoupling(vi, 7));
  EXPECT_EQ(ValueRefused("7", "AM_EXTERNAL_COUPLING"), LastErrorText());
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureAMExternalCoupling(vi, 1));
  EXPECT_EQ(1, Int32(KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING));
}

TEST_F(AmDialogue, TheNominalVoltageIsOneAndCannotBeSet) {
  EXPECT_EQ(1.0, Real(KVTD481X2C_ATTR_AM_NOMINAL_VOLTAGE));
  EXPECT_STATUS(kReadOnly, SetReal(KVTD481X2C_ATTR_AM_NOMINAL_VOLTAGE, 1.0));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_AM_NOMINAL_VOLTAGE' is read-only.", LastErrorText());
}

TEST_F(AmDialogue, ConfiguringSetsSourceScalingAndDepthInThisOrder) {
  Script(R"(
    > :AM:SOUR INTernal
    > :AM:TYPE?
    < LOG
    > :AM:TYPE LINear
    > :AM:SOUR?
    < INT
    > :AM:TYPE?
    < LIN
    > :AM:DEPT 30
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureAM(vi, "Internal", 0, 30));
}

TEST_F(AmDialogue, ConfiguringAsksForTheStatusBehindEveryStep) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :AM:SOUR EXTernal
    > *ESR?
    < 0
    > :AM:TYPE?
    < LIN
    > *ESR?
    < 0
    > :AM:TYPE LOGarithmic
    > *ESR?
    < 0
    > :AM:SOUR?
    < EXT
    > *ESR?
    < 0
    > :AM:TYPE?
    < LOG
    > *ESR?
    < 0
    > :AM:LOGS 1.5
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureAM(vi, "External", 1, 1.5));
}

TEST_F(AmDialogue, ConfiguringStopsAtTheFirstStepThatFails) {
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigureAM(vi, "Both", 0, 30));
  EXPECT_EQ(ValueRefused("Both", "AM_SOURCE"), LastErrorText());
  Sent(":AM:SOUR INTernal\n");
  Asked(":AM:TYPE?", "LIN");
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigureAM(vi, "Internal", 2, 30));
  EXPECT_EQ(ValueRefused("2", "AM_SCALING"), LastErrorText());
}

TEST_F(AmDialogue, ARefusedSourceStopsTheConfigurationBeforeTheScaling) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :AM:SOUR INTernal
    > *ESR?
    < 32
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureAM(vi, "Internal", 0, 30));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(AmDialogue, TheModulationSwitchesOnAndOff) {
  Script(R"(
    > :AM:STAT 1
    > :AM:STAT 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureAMEnabled(vi, VI_TRUE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureAMEnabled(vi, VI_FALSE));
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_ConfigureAMEnabled(vi, 2));
  EXPECT_EQ("Failure cannot recover.  Could not convert defined value '2' to an instrument command.", LastErrorText());
}

TEST_F(AmDialogue, TheDepthIsMeasuredWithoutLookingAtTheSettings) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :MEAS:AM:DEPT?
    < 29.75
    > *ESR?
    < 0
    > :MEAS:AM:DEPT?
    < 1
    > *ESR?
    < 8
  )");
  ViReal64 depth = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_MeasureAMDepth(vi, &depth));
  EXPECT_EQ(29.75, depth);
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_MeasureAMDepth(vi, &depth));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(AmDialogue, ALostConnectionComesBackFromAMeasurementAsVisaTellsIt) {
  QueryInstrumentStatus(true);
  Sent(":MEAS:AM:DEPT?\n");
  instrument.Close();
  ViReal64 depth = 77;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_MeasureAMDepth(vi, &depth));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(AmDialogue, AMeasurementIntoNothingIsRefusedUnderItsOwnName) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_MeasureAMDepth(vi, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_MeasureAMDepth", "Val"), LastError());
}

TEST_F(AmDialogue, ReadsIntoNothingAreRefusedBeforeAnythingIsAsked) {
  const RecordedError refused = NullPointerError("KVTD481X2C_GetAttributeViReal64", "AttributeValue");
  for (const ViAttr id : std::initializer_list<ViAttr>{KVTD481X2C_ATTR_AM_DEPTH, KVTD481X2C_ATTR_AM_NOMINAL_VOLTAGE}) {
    EXPECT_STATUS(kNullPointer, GetReal(id, nullptr));
    EXPECT_EQ(refused, LastError());
  }
  for (const ViAttr id :
       std::initializer_list<ViAttr>{KVTD481X2C_ATTR_AM_SCALING, KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING}) {
    EXPECT_STATUS(kNullPointer, GetInt32(id, nullptr));
    EXPECT_EQ(NullPointerError("KVTD481X2C_GetAttributeViInt32", "AttributeValue"), LastError());
  }
}

TEST_F(AmDialogue, OperationsRefuseAHandleThatIsNotOpen) {
  ViReal64 real = 77;
  ViInt32 number = 77;
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureAM(handle, "Internal", 0, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureAMEnabled(handle, VI_TRUE));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureAMExternalCoupling(handle, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_MeasureAMDepth(handle, &real));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViReal64(handle, nullptr, KVTD481X2C_ATTR_AM_DEPTH, &real));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViReal64(handle, nullptr, KVTD481X2C_ATTR_AM_DEPTH, 1));
    EXPECT_STATUS(kInvalidHandle,
                  KVTD481X2C_GetAttributeViReal64(handle, nullptr, KVTD481X2C_ATTR_AM_NOMINAL_VOLTAGE, &real));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViInt32(handle, nullptr, KVTD481X2C_ATTR_AM_SCALING, &number));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViInt32(handle, nullptr, KVTD481X2C_ATTR_AM_SCALING, 0));
    EXPECT_STATUS(kInvalidHandle,
                  KVTD481X2C_GetAttributeViInt32(handle, nullptr, KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING, &number));
    EXPECT_STATUS(kInvalidHandle,
                  KVTD481X2C_SetAttributeViString(handle, nullptr, KVTD481X2C_ATTR_AM_SOURCE, "Internal"));
  }
  EXPECT_EQ(77, real);
  EXPECT_EQ(77, number);
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedAm, AFreshSessionRoutesTheDepthToThePercentOfTheInternalSource) {
  EXPECT_EQ(0.0, Real(KVTD481X2C_ATTR_AM_DEPTH));
  EXPECT_EQ("Internal", TextAttribute(KVTD481X2C_ATTR_AM_SOURCE));
  EXPECT_EQ(0, Int32(KVTD481X2C_ATTR_AM_SCALING));
  EXPECT_STATUS(VI_SUCCESS, SetReal(KVTD481X2C_ATTR_AM_DEPTH, 25));
  EXPECT_EQ(25, Real(KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT));
}

TEST_F(SimulatedAm, EveryDepthStaysWithItsSourceAndMode) {
  struct Cell {
    const char* source;
    ViInt32 scaling;
    ViAttr target;
  };
  const Cell cells[] = {
      {"Internal", 0, KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT},
      {"Internal", 1, KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_DB},
      {"EXTERNAL", 0, KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_PERCENT},
      {"external", 1, KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_DB},
  };
  ViReal64 depth = 1;
  for (const Cell& cell : cells) {
    EXPECT_EQ(0.0, Real(cell.target));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureAM(vi, cell.source, cell.scaling, depth));
    EXPECT_EQ(depth, Real(cell.target));
    EXPECT_EQ(depth, Real(KVTD481X2C_ATTR_AM_DEPTH));
    depth += 1;
  }
  EXPECT_EQ(1, Real(cells[0].target));
  EXPECT_EQ(2, Real(cells[1].target));
  EXPECT_EQ(3, Real(cells[2].target));
}

TEST_F(SimulatedAm, TheLogarithmicDepthLeavesThePercentAlone) {
  EXPECT_STATUS(VI_SUCCESS, SetInt32(KVTD481X2C_ATTR_AM_SCALING, 1));
  EXPECT_STATUS(VI_SUCCESS, SetReal(KVTD481X2C_ATTR_AM_DEPTH, 3.0));
  EXPECT_EQ(3.0, Real(KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_DB));
  EXPECT_EQ(0.0, Real(KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT));
}

TEST_F(SimulatedAm, AnInstrumentValueWithoutAClassValueLeavesTheCallersVariableAlone) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAMSourceEx(vi, 7));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAMMode(vi, -1));
  GuardedText<16> source;
  EXPECT_STATUS(kUnexpectedResponse,
                KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_AM_SOURCE, source.size(), source.data()));
  EXPECT_TRUE(source.Untouched());
  EXPECT_EQ(kNoClassValue, LastError());
  ViInt32 scaling = 77;
  EXPECT_STATUS(kUnexpectedResponse, GetInt32(KVTD481X2C_ATTR_AM_SCALING, &scaling));
  EXPECT_EQ(77, scaling);
  EXPECT_EQ(kNoClassValue, LastError());
}

TEST_F(SimulatedAm, AnythingButZeroRoutesTheDepthToTheOtherSide) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAMSourceEx(vi, 7));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAMMode(vi, -1));
  EXPECT_STATUS(VI_SUCCESS, SetReal(KVTD481X2C_ATTR_AM_DEPTH, 9));
  EXPECT_EQ(9, Real(KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_DB));
  EXPECT_EQ(9, Real(KVTD481X2C_ATTR_AM_DEPTH));
}

TEST_F(SimulatedAm, TheConstantsReadAsInARealSession) {
  EXPECT_EQ(1.0, Real(KVTD481X2C_ATTR_AM_NOMINAL_VOLTAGE));
  EXPECT_EQ(1, Int32(KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING));
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigureAMExternalCoupling(vi, 0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureAMExternalCoupling(vi, 1));
}

TEST_F(SimulatedAm, TheSwitchFailsAtTheVisaSessionThatIsNotThere) {
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureAMEnabled(vi, VI_TRUE));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedAm, AMeasurementSucceedsAndWritesNothing) {
  ViReal64 depth = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_MeasureAMDepth(vi, &depth));
  EXPECT_EQ(77, depth);
  EXPECT_STATUS(kNullPointer, KVTD481X2C_MeasureAMDepth(vi, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_MeasureAMDepth", "Val"), LastError());
}

}  // namespace
}  // namespace kvtd::test
