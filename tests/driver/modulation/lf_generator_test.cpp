// The LF generators of the class: three names under which the internal sources of AM, FM and PM are reached, and the
// active ones among them, to which every value goes.

#include <thread>
#include <vector>

#include "ClassAccess.h"

namespace kvtd::test {
namespace {

constexpr ViAttr kActive = KVTD481X2C_ATTR_ACTIVE_LF_GENERATOR;
constexpr ViAttr kFrequency = KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY;
constexpr ViAttr kWaveform = KVTD481X2C_ATTR_LF_GENERATOR_WAVEFORM;

constexpr ViStatus kNoSelector = Status(0xBFFA0044U);
constexpr ViStatus kTooManyLevels = Status(0xBFFA0063U);
constexpr ViStatus kBadRange = Status(0xBFFA0064U);
constexpr ViStatus kBadlyFormed = Status(0xBFFA0066U);
constexpr ViStatus kUnknownName = Status(0xBFFA0067U);

const RecordedError kSingleDemanded{
    kBadlyFormed,
    "The repeated capability selector is badly-formed.  Only a single repeated capability identifier can be specified "
    "for the current operation."};

using LfDialogue = ClassAccess<DriverDialogue>;
using SimulatedLf = ClassAccess<SimulatedDriver>;

struct Generator {
  const char* name;
  const char* frequency_query;
  const char* frequency_command;  // 1000
  const char* waveform_query;
  const char* waveform_command;  // square
  ViAttr frequency;
  ViAttr waveform;
};
const Generator kGenerators[] = {
    {"AM", ":AM:FREQ?", ":AM:FREQ 1000 HZ", ":AM:WAVE?", ":AM:WAVE SQUare", KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY,
     KVTD481X2C_ATTR_AM_INTERNAL_WAVEFORM},
    {"FM", ":FM:FREQ?", ":FM:FREQ 1000", ":FM:WAVE?", ":FM:WAVE SQUare", KVTD481X2C_ATTR_FM_INTERNAL_FREQUENCY,
     KVTD481X2C_ATTR_FM_INTERNAL_WAVEFORM},
    {"PM", ":PM:FREQ?", ":PM:FREQ 1000", ":PM:WAVE?", ":PM:WAVE SQUare", KVTD481X2C_ATTR_PM_INTERNAL_FREQUENCY,
     KVTD481X2C_ATTR_PM_INTERNAL_WAVEFORM},
};

TEST_F(LfDialogue, TheAttributesHaveTheirPublishedIds) {
  EXPECT_EQ(1250101U, kActive);
  EXPECT_EQ(1250102U, kFrequency);
  EXPECT_EQ(1250103U, kWaveform);
  EXPECT_EQ(1250104U, KVTD481X2C_ATTR_LF_GENERATOR_COUNT);
}

TEST_F(LfDialogue, AFreshSessionHasTheAmGeneratorActive) { EXPECT_EQ("AM", TextAttribute(kActive)); }

TEST_F(LfDialogue, TheActiveGeneratorSaysWhereAFrequencyComesFrom) {
  for (const Generator& generator : kGenerators) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, generator.name));
    Asked(generator.frequency_query, "4.0E+02");
    EXPECT_EQ(400, Real(kFrequency)) << generator.name;
  }
}

TEST_F(LfDialogue, TheActiveGeneratorSaysWhereAFrequencyGoes) {
  for (const Generator& generator : kGenerators) {
    EXPECT_STATUS(VI_SUCCESS, SetText(kActive, generator.name));
    Sent(std::string(generator.frequency_command) + '\n');
    EXPECT_STATUS(VI_SUCCESS, SetReal(kFrequency, 1000)) << generator.name;
  }
}

TEST_F(LfDialogue, TheActiveGeneratorSaysWhereAWaveformComesFrom) {
  for (const Generator& generator : kGenerators) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, generator.name));
    Asked(generator.waveform_query, "TRI");
    EXPECT_EQ(5, Int32(kWaveform)) << generator.name;
  }
}

TEST_F(LfDialogue, TheActiveGeneratorSaysWhereAWaveformGoes) {
  for (const Generator& generator : kGenerators) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, generator.name));
    Sent(std::string(generator.waveform_command) + '\n');
    EXPECT_STATUS(VI_SUCCESS, SetInt32(kWaveform, KVTD481X2C_VAL_INTERNAL_WAVEFORM_SQUARE)) << generator.name;
  }
}

TEST_F(LfDialogue, AChannelNameSelectsNothing) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "FM"));
  Script(R"(
    > :FM:FREQ 50
    > :FM:FREQ?
    < 50
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, "PM", kFrequency, 50));
  ViReal64 frequency = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, "no such", kFrequency, &frequency));
  EXPECT_EQ(50, frequency);
}

TEST_F(LfDialogue, EveryRoutedExchangeAsksForTheStatus) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :AM:FREQ?
    < 50
    > *ESR?
    < 0
    > :AM:WAVE RUP
    > *ESR?
    < 16
  )");
  EXPECT_EQ(50, Real(kFrequency));
  EXPECT_STATUS(kInstrumentError, SetInt32(kWaveform, 3));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(LfDialogue, AWaveformThatNobodyKnowsIsNotSent) {
  EXPECT_STATUS(kCannotRecover, SetInt32(kWaveform, 7));
  EXPECT_EQ("Failure cannot recover.  Could not convert defined value '7' to an instrument command.", LastErrorText());
}

TEST_F(LfDialogue, SeveralActiveGeneratorsAreAllWrittenInTheOrderOfTheirNames) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "PM,AM"));
  Script(R"(
    > :PM:FREQ 60
    > :AM:FREQ 60 HZ
    > :PM:WAVE SINE
    > :AM:WAVE SINE
  )");
  EXPECT_STATUS(VI_SUCCESS, SetReal(kFrequency, 60));
  EXPECT_STATUS(VI_SUCCESS, SetInt32(kWaveform, 0));
}

TEST_F(LfDialogue, TheFirstRefusalEndsAWriteToSeveralGenerators) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "AM, FM, PM"));
  QueryInstrumentStatus(true);
  Script(R"(
    > :AM:FREQ 60 HZ
    > *ESR?
    < 0
    > :FM:FREQ 60
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(kInstrumentError, SetReal(kFrequency, 60));
}

TEST_F(LfDialogue, ReadingDemandsASingleActiveGenerator) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "AM,FM"));
  ViReal64 frequency = 77;
  EXPECT_STATUS(kBadlyFormed, GetReal(kFrequency, &frequency));
  EXPECT_EQ(77, frequency);
  EXPECT_EQ(kSingleDemanded, LastError());
  ViInt32 waveform = 77;
  EXPECT_STATUS(kBadlyFormed, GetInt32(kWaveform, &waveform));
  EXPECT_EQ(77, waveform);
  EXPECT_EQ(kSingleDemanded, LastError());
}

TEST_F(LfDialogue, ConfiguringASingleGeneratorSendsFrequencyAndWaveform) {
  Script(R"(
    > :AM:FREQ 400 HZ
    > :AM:WAVE TRIangle
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureLFGenerator(vi, 400, 5));
}

TEST_F(LfDialogue, ConfiguringSeveralGeneratorsWritesEachAsOftenAsThereAreNames) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "AM,FM"));
  Script(R"(
    > :AM:FREQ 400 HZ
    > :FM:FREQ 400
    > :AM:WAVE SINE
    > :FM:WAVE SINE
    > :AM:FREQ 400 HZ
    > :FM:FREQ 400
    > :AM:WAVE SINE
    > :FM:WAVE SINE
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureLFGenerator(vi, 400, 0));
}

TEST_F(LfDialogue, ARefusedFrequencyStopsTheConfigurationBeforeTheWaveform) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :AM:FREQ 400 HZ
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureLFGenerator(vi, 400, 0));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(SimulatedLf, TheActiveTextIsKeptAsTheCallerWroteIt) {
  for (const char* selector : {"FM", " PM", "[AM,FM]", "AM , PM", "PM,FM,AM"}) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, selector)) << selector;
    EXPECT_EQ(selector, TextAttribute(kActive));
  }
}

TEST_F(SimulatedLf, ASelectorThatCannotBeTakenLeavesTheFormerOneActive) {
  struct Refusal {
    const char* selector;
    ViStatus status;
    const char* text;
  };
  const char* const empty =
      "A channel name is required.  No selector was specified for repeated capability 'LFGenerator'.  The repeated "
      "capability identifier can be null or empty only when there is exactly one physical name defined.  Repeated "
      "capability 'LFGenerator' has 3 physical names defined.";
  const char* const badly_formed = "The repeated capability selector is badly-formed.";
  const char* const levels =
      "The number of levels in the selector is not valid for the 'LFGenerator' repeated capability.";
  const Refusal refusals[] = {
      {nullptr, kNoSelector, empty},
      {"", kNoSelector, empty},
      {" \t\r\n", kNoSelector, empty},
      {"AM,AM", kBadlyFormed, badly_formed},
      {"AM,,FM", kBadlyFormed, badly_formed},
      {"A+M", kBadlyFormed, badly_formed},
      {"AM:FM", kTooManyLevels, levels},
      {"XM", kUnknownName,
       "Unknown physical repeated capability selector.  The identifier 'XM' is not defined for repeated capability "
       "'LFGenerator'."},
      {"am", kUnknownName,
       "Unknown physical repeated capability selector.  The identifier 'am' is not defined for repeated capability "
       "'LFGenerator'."},
      {"FM,AM1", kUnknownName,
       "Unknown physical repeated capability selector.  The identifier 'AM1' is not defined for repeated capability "
       "'LFGenerator'."},
      {"AM3-AM1", kBadRange,
       "The range 'AM3-AM1' is not valid for the repeated capability 'LFGenerator'.  The start index must be less than "
       "the end index."},
  };
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "PM"));
  for (const Refusal& refusal : refusals) {
    EXPECT_STATUS(refusal.status, KVTD481X2C_SetActiveLFGenerator(vi, refusal.selector));
    EXPECT_EQ((RecordedError{refusal.status, refusal.text}), LastError());
    EXPECT_EQ("PM", TextAttribute(kActive));
  }
  EXPECT_STATUS(VI_SUCCESS, SetReal(kFrequency, 50));
  EXPECT_EQ(50, Real(KVTD481X2C_ATTR_PM_INTERNAL_FREQUENCY));
}

TEST_F(SimulatedLf, TheActiveTextIsCutToTheBuffer) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "AM,PM"));
  GuardedText<1> empty;
  EXPECT_STATUS(4096, KVTD481X2C_GetAttributeViString(vi, nullptr, kActive, empty.size(), empty.data()));
  EXPECT_EQ("", empty.text());
  GuardedText<6> just_filled;
  EXPECT_STATUS(4096, KVTD481X2C_GetAttributeViString(vi, nullptr, kActive, just_filled.size(), just_filled.data()));
  EXPECT_EQ("AM,PM", just_filled.text());
  GuardedText<7> roomy;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViString(vi, nullptr, kActive, roomy.size(), roomy.data()));
  EXPECT_EQ("AM,PM", roomy.text());
  GuardedText<4096> vouched_for;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViString(vi, nullptr, kActive, -1, vouched_for.data()));
  EXPECT_EQ("AM,PM", vouched_for.text());
  EXPECT_STATUS(4096, KVTD481X2C_GetAttributeViString(vi, nullptr, kActive, 0, nullptr));
}

TEST_F(SimulatedLf, EveryCellOfTheRoutingIsStoredWithItsModulation) {
  for (const Generator& generator : kGenerators) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, generator.name));
    EXPECT_EQ(0.0, Real(kFrequency));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureLFGenerator(vi, 1000, 4));
    EXPECT_EQ(1000, Real(generator.frequency));
    EXPECT_EQ(4, Int32(generator.waveform));
    EXPECT_EQ(1000, Real(kFrequency));
    EXPECT_EQ(4, Int32(kWaveform));
  }
}

TEST_F(SimulatedLf, InvalidatingAllAttributesLeavesTheActiveGenerator) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "FM"));
  EXPECT_STATUS(VI_SUCCESS, SetReal(kFrequency, 50));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_EQ("FM", TextAttribute(kActive));
  EXPECT_EQ(0.0, Real(kFrequency));
}

TEST_F(SimulatedLf, ThereAreThreeGeneratorsWithTheirNames) {
  EXPECT_EQ(3, Int32(KVTD481X2C_ATTR_LF_GENERATOR_COUNT));
  EXPECT_STATUS(kReadOnly, SetInt32(KVTD481X2C_ATTR_LF_GENERATOR_COUNT, 3));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_LF_GENERATOR_COUNT' is read-only.", LastErrorText());
  ViInt32 index = 0;
  for (const char* expected : {"AM", "FM", "PM"}) {
    GuardedText<8> name;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetLFGeneratorName(vi, ++index, name.size(), name.data()));
    EXPECT_EQ(expected, name.text());
  }
}

TEST_F(SimulatedLf, AGeneratorBeyondTheListIsToldByItsPlaceFromZero) {
  struct Place {
    ViInt32 index;
    const char* text;
  };
  for (const auto& [index, text] : {Place{4, "3"}, Place{0, "-1"}, Place{-1, "-2"}}) {
    GuardedText<8> name;
    EXPECT_STATUS(kInvalidValue, KVTD481X2C_GetLFGeneratorName(vi, index, name.size(), name.data()));
    EXPECT_TRUE(name.Untouched());
    EXPECT_EQ((RecordedError{kInvalidValue, "Invalid value '" + std::string(text) +
                                                "' for function 'GetLFGeneratorName', parameter 'Index'."}),
              LastError());
  }
}

TEST_F(SimulatedLf, TheNameOfAGeneratorIsCutToTheBuffer) {
  GuardedText<1> empty;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetLFGeneratorName(vi, 2, empty.size(), empty.data()));
  EXPECT_EQ("", empty.text());
  GuardedText<2> cut;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetLFGeneratorName(vi, 2, cut.size(), cut.data()));
  EXPECT_EQ("F", cut.text());
  GuardedText<3> just_filled;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetLFGeneratorName(vi, 2, just_filled.size(), just_filled.data()));
  EXPECT_EQ("FM", just_filled.text());
  GuardedText<3> nothing;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetLFGeneratorName(vi, 2, 0, nothing.data()));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetLFGeneratorName(vi, 2, -1, nothing.data()));
  EXPECT_TRUE(nothing.Untouched());
}

TEST_F(SimulatedLf, ANullPointerIsRefusedUnderTheNameOfItsFunction) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetLFGeneratorName(vi, 9, 8, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_GetLFGeneratorName", "Name"), LastError());
  EXPECT_STATUS(kNullPointer, GetReal(kFrequency, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_GetAttributeViReal64", "AttributeValue"), LastError());
  EXPECT_STATUS(kNullPointer, GetInt32(kWaveform, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_GetAttributeViInt32", "AttributeValue"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViString(vi, nullptr, kActive, 8, nullptr));
  EXPECT_EQ(NullPointerError("GetAttributeViString", "AttributeValueBufferSize"), LastError());
}

TEST_F(SimulatedLf, OperationsRefuseAHandleThatIsNotOpen) {
  ViReal64 frequency = 77;
  ViInt32 number = 77;
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    GuardedText<8> text;
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetActiveLFGenerator(handle, "AM"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureLFGenerator(handle, 1, 0));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetLFGeneratorName(handle, 1, text.size(), text.data()));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViString(handle, nullptr, kActive, text.size(), text.data()));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViReal64(handle, nullptr, kFrequency, &frequency));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViReal64(handle, nullptr, kFrequency, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViInt32(handle, nullptr, kWaveform, &number));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViInt32(handle, nullptr, kWaveform, 1));
    EXPECT_STATUS(kInvalidHandle,
                  KVTD481X2C_GetAttributeViInt32(handle, nullptr, KVTD481X2C_ATTR_LF_GENERATOR_COUNT, &number));
    EXPECT_TRUE(text.Untouched());
  }
  EXPECT_EQ(77, frequency);
  EXPECT_EQ(77, number);
  EXPECT_EQ(kNothingRecorded, LastError());
}

// A session of its own, opened and closed over and over, so that its handle is also one that others had before.
void UseGeneratorOverAndOver(const char* selector, ViReal64 frequency) {
  for (int round = 0; round < 50; ++round) {
    ViSession vi = VI_NULL;
    std::string resource = "TCPIP0::127.0.0.1::1::SOCKET";
    ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, "Simulate=1", &vi));
    GuardedText<8> active;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViString(vi, nullptr, kActive, active.size(), active.data()));
    EXPECT_EQ("AM", active.text());
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, selector));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureLFGenerator(vi, frequency, 4));
    ViReal64 value = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, nullptr, kFrequency, &value));
    EXPECT_EQ(frequency, value);
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViString(vi, nullptr, kActive, active.size(), active.data()));
    EXPECT_EQ(selector, active.text());
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
  }
}

TEST(LfGeneratorThreads, SessionsInTwoThreadsAnswerEachForItself) {
  std::thread other(UseGeneratorOverAndOver, "FM", 1000.0);
  UseGeneratorOverAndOver("PM", 2000.0);
  other.join();
}

}  // namespace
}  // namespace kvtd::test
