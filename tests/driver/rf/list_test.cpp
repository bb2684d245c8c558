// Lists: the attributes, and the operations that go by an instrument's list number.

#include <charconv>
#include <string>
#include <vector>

#include "AttributeCases.h"

namespace kvtd::test {
namespace {

#define READ(stem) &KVTD481X2C_Get##stem, nullptr

const std::vector<AttributeCase> kListAttributes = {
    {KVTD_ATTRIBUTE(LIST_DWELL), 1250283, RealExports{}, ":LIST:DWEL?\n", "0.004\n", 0.004, 0.1, ":LIST:DWEL 0.1 \n",
     Simulated::VisaCall},
    {KVTD_ATTRIBUTE(NUMBER_OF_LIST_FREQUENCY_POINTS), 1150051, Int32Exports{READ(NumberOfListFrequencyPoints)},
     ":LIST:FREQ:POIN?\n", "12\n", 12, 0, "", Simulated::Fixed, 4000},
    {KVTD_ATTRIBUTE(NUMBER_OF_LIST_POWER_POINTS), 1150052, Int32Exports{READ(NumberOfListPowerPoints)},
     ":LIST:POW:POIN?\n", "13\n", 13, 0, "", Simulated::Fixed, 4000},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(List, kListAttributes);

namespace {

constexpr ViReal64 kUnset = 77;

// What a list looks like on the wire, told by the standard library.
std::string Joined(const std::vector<ViReal64>& values) {
  std::string text;
  char number[512];
  for (const ViReal64 value : values) {
    if (!text.empty()) text += ',';
    text.append(number, std::to_chars(std::begin(number), std::end(number), value, std::chars_format::fixed, 15).ptr);
  }
  return text;
}

// Values of every size that a list may hold, among them such as are no short decimals.
std::vector<ViReal64> FourThousandPoints() {
  std::vector<ViReal64> values;
  for (int i = 0; i < 4000; ++i) {
    switch (i % 4) {
      case 0:
        values.push_back(1e9 + 250e3 * i);
        break;
      case 1:
        values.push_back(-30.0 + i / 1000.0);
        break;
      case 2:
        values.push_back(1e10 / (i + 0.1));
        break;
      default:
        values.push_back(-1.0 / (3.0 * i));
    }
  }
  return values;
}

using SetArray = ViStatus(_VI_FUNC*)(ViSession, ViInt32, ViInt32, const ViReal64*);
using UpdateArray = ViStatus(_VI_FUNC*)(ViSession, ViInt32, ViInt32, ViInt32, const ViReal64*);
using SetNumber = ViStatus(_VI_FUNC*)(ViSession, ViInt32, ViInt32);
using GetReal = ViStatus(_VI_FUNC*)(ViSession, ViInt32, ViReal64*);
using GetInt32 = ViStatus(_VI_FUNC*)(ViSession, ViInt32, ViInt32*);

class ListDialogue : public DriverDialogue {};
class SimulatedList : public SimulatedDriver {};

TEST_F(ListDialogue, AListGoesOutWithFifteenDecimalsAndCommas) {
  Script(R"(
    > :LIST3:FREQ 1000000000.000000000000000,0.100000000000000,-0.000000000000001
    > :LIST10:POW -10.500000000000000
  )");
  const ViReal64 frequencies[] = {1e9, 0.1, -1e-15};
  const ViReal64 power = -10.5;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListFrequencies(vi, 3, 3, frequencies));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListPowerLevels(vi, 10, 1, &power));
}

TEST_F(ListDialogue, AnUpdateNamesThePointWhereItBegins) {
  Script(R"(
    > :LIST1:FREQ:UPD 0,1.000000000000000,2.000000000000000
    > :LIST2:POW:UPD 3999,3.000000000000000
  )");
  const ViReal64 frequencies[] = {1, 2};
  const ViReal64 power = 3;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UpdateListFrequencies(vi, 1, 0, 2, frequencies));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UpdateListPowerLevels(vi, 2, 3999, 1, &power));
}

TEST_F(ListDialogue, FourThousandPointsAreOneLine) {
  const std::vector<ViReal64> values = FourThousandPoints();
  const std::string points = Joined(values);
  Sent(":LIST1:FREQ " + points + '\n');
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListFrequencies(vi, 1, 4000, values.data()));
  Sent(":LIST2:POW " + points + '\n');
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListPowerLevels(vi, 2, 4000, values.data()));
  Sent(":LIST3:FREQ:UPD 0," + points + '\n');
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UpdateListFrequencies(vi, 3, 0, 4000, values.data()));
  Sent(":LIST4:POW:UPD 0," + points + '\n');
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UpdateListPowerLevels(vi, 4, 0, 4000, values.data()));
}

TEST_F(ListDialogue, FourThousandPointsAreFollowedByOneStatusCheck) {
  QueryInstrumentStatus(true);
  const std::vector<ViReal64> values = FourThousandPoints();
  Sent(":LIST1:FREQ " + Joined(values) + '\n');
  Script(R"(
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListFrequencies(vi, 1, 4000, values.data()));
}

TEST_F(ListDialogue, AnEmptyListSendsTheCommandWithNothingBehindIt) {
  Sent(":LIST1:FREQ \n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListFrequencies(vi, 1, 0, nullptr));
  Sent(":LIST1:POW:UPD 0,\n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UpdateListPowerLevels(vi, 1, 0, 0, nullptr));
}

TEST_F(ListDialogue, ACountBelowZeroIsVisasToRefuseAndSendsNothing) {
  const ViReal64 value = 1;
  EXPECT_LT(KVTD481X2C_SetListFrequencies(vi, 1, -1, &value), 0);
  EXPECT_LT(KVTD481X2C_UpdateListPowerLevels(vi, 1, 0, -2147483647 - 1, &value), 0);
}

TEST_F(ListDialogue, TheListNumberIsSentAsItIs) {
  Script(R"(
    > :LIST0:IND 5
    > :LIST-1:STAR 0
    > :LIST11:STOP -7
    > :LIST2147483647:IND -2147483648
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListIndex(vi, 0, 5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListSweepStart(vi, -1, 0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListSweepStop(vi, 11, -7));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListIndex(vi, 2147483647, -2147483647 - 1));
}

TEST_F(ListDialogue, EveryNumberOfAListReadsWithItsOwnQuery) {
  Script(R"(
    > :LIST1:FREQ?
    < 2.5E9
    > :LIST2:POW?
    < -3.25
    > :LIST3:IND?
    < 17
    > :LIST4:STAR?
    < +1
    > :LIST5:STOP?
    < 4000
  )");
  ViReal64 real = kUnset;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListFrequency(vi, 1, &real));
  EXPECT_EQ(2.5e9, real);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListPowerLevel(vi, 2, &real));
  EXPECT_EQ(-3.25, real);
  ViInt32 number = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListIndex(vi, 3, &number));
  EXPECT_EQ(17, number);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListSweepStart(vi, 4, &number));
  EXPECT_EQ(1, number);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListSweepStop(vi, 5, &number));
  EXPECT_EQ(4000, number);
}

TEST_F(ListDialogue, AnAnswerOfManyValuesYieldsItsFirstAndLeavesNothingBehind) {
  Sent(":LIST1:FREQ?\n");
  Answer(Joined(FourThousandPoints()) + '\n');
  ViReal64 real = kUnset;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListFrequency(vi, 1, &real));
  EXPECT_EQ(1e9, real);
  Script(R"(
    > :LIST1:POW?
    < -1,-2,-3
    > :LIST1:IND?
    < 4
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListPowerLevel(vi, 1, &real));
  EXPECT_EQ(-1, real);
  ViInt32 number = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListIndex(vi, 1, &number));
  EXPECT_EQ(4, number);
}

TEST_F(ListDialogue, EveryExchangeByNumberIsFollowedByAStatusCheck) {
  QueryInstrumentStatus(true);
  const ViReal64 value = 1;
  ViReal64 real = 0;
  ViInt32 number = 0;
  const auto refused = [this](const char* line, const char* answer = nullptr) {
    Sent(line);
    if (answer != nullptr) Answer(answer);
    Script(R"(
      > *ESR?
      < 16
    )");
  };
  refused(":LIST1:FREQ 1.000000000000000\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetListFrequencies(vi, 1, 1, &value));
  refused(":LIST1:POW 1.000000000000000\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetListPowerLevels(vi, 1, 1, &value));
  refused(":LIST1:FREQ:UPD 2,1.000000000000000\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_UpdateListFrequencies(vi, 1, 2, 1, &value));
  refused(":LIST1:POW:UPD 2,1.000000000000000\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_UpdateListPowerLevels(vi, 1, 2, 1, &value));
  refused(":LIST1:IND 2\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetListIndex(vi, 1, 2));
  refused(":LIST1:STAR 2\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetListSweepStart(vi, 1, 2));
  refused(":LIST1:STOP 2\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetListSweepStop(vi, 1, 2));
  refused(":LIST:COPY\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_CopyListSweep(vi));
  refused(":LIST1:FREQ?\n", "5\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_GetListFrequency(vi, 1, &real));
  refused(":LIST1:POW?\n", "5\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_GetListPowerLevel(vi, 1, &real));
  refused(":LIST1:IND?\n", "5\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_GetListIndex(vi, 1, &number));
  refused(":LIST1:STAR?\n", "5\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_GetListSweepStart(vi, 1, &number));
  refused(":LIST1:STOP?\n", "5\n");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_GetListSweepStop(vi, 1, &number));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(ListDialogue, ALostConnectionComesBackAsVisaTellsIt) {
  Sent(":LIST7:STOP?\n");
  instrument.Close();
  ViInt32 number = 0;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_GetListSweepStop(vi, 7, &number));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(ListDialogue, CopyListSweepIsOneCommand) {
  Script("> :LIST:COPY");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CopyListSweep(vi));
}

TEST_F(ListDialogue, ConfigureListDwellSendsTheDwellWithItsBlank) {
  Sent(":LIST:DWEL 0.1 \n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureListDwell(vi, 0.1));
}

// What every getter by number says of a null pointer, real or simulated.
void ExpectNullPointersNamed(ViSession vi) {
  const auto last_text = [vi] {
    ViStatus code = 0;
    ViChar text[256] = "";
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetError(vi, &code, sizeof text, text));
    EXPECT_STATUS(kNullPointer, code);
    return std::string(text);
  };
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetListFrequency(vi, 1, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetListFrequency', parameter 'Val'.", last_text());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetListPowerLevel(vi, 1, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetListPowerLevel', parameter 'Val'.", last_text());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetListIndex(vi, 1, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetListIndex', parameter 'Val'.", last_text());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetListSweepStart(vi, 1, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetListSweepStart', parameter 'Val'.", last_text());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetListSweepStop(vi, 1, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetListSweepStop', parameter 'Val'.", last_text());
}

TEST_F(ListDialogue, ANullOutputIsRefusedUnderTheFunctionsOwnName) { ExpectNullPointersNamed(vi); }
TEST_F(SimulatedList, ANullOutputIsRefusedUnderTheFunctionsOwnName) { ExpectNullPointersNamed(vi); }

TEST_F(ListDialogue, AHandleThatIsNotOpenIsRefusedBare) {
  const ViReal64 value = 1;
  ViReal64 real = kUnset;
  ViInt32 number = 77;
  for (const ViSession bad : {ViSession{0}, vi + 1, ViSession{0xDEADBEEF}}) {
    for (const SetArray set : {&KVTD481X2C_SetListFrequencies, &KVTD481X2C_SetListPowerLevels}) {
      EXPECT_STATUS(kInvalidHandle, set(bad, 1, 1, &value));
    }
    for (const UpdateArray update : {&KVTD481X2C_UpdateListFrequencies, &KVTD481X2C_UpdateListPowerLevels}) {
      EXPECT_STATUS(kInvalidHandle, update(bad, 1, 0, 1, &value));
    }
    for (const SetNumber set :
         {&KVTD481X2C_SetListIndex, &KVTD481X2C_SetListSweepStart, &KVTD481X2C_SetListSweepStop}) {
      EXPECT_STATUS(kInvalidHandle, set(bad, 1, 1));
    }
    for (const GetReal get : {&KVTD481X2C_GetListFrequency, &KVTD481X2C_GetListPowerLevel}) {
      EXPECT_STATUS(kInvalidHandle, get(bad, 1, &real));
      EXPECT_STATUS(kInvalidHandle, get(bad, 1, nullptr));
    }
    for (const GetInt32 get : {&KVTD481X2C_GetListIndex, &KVTD481X2C_GetListSweepStart, &KVTD481X2C_GetListSweepStop}) {
      EXPECT_STATUS(kInvalidHandle, get(bad, 1, &number));
    }
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_CopyListSweep(bad));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureListDwell(bad, 1));
  }
  EXPECT_EQ(kUnset, real);
  EXPECT_EQ(77, number);
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedList, OperationsByNumberSendNothingAndLeaveTheirOutputsAlone) {
  const ViReal64 value = 1;
  ViReal64 real = kUnset;
  ViInt32 number = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListFrequencies(vi, 1, 1, &value));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListPowerLevels(vi, 1, -1, nullptr));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UpdateListFrequencies(vi, 1, 0, 1, &value));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UpdateListPowerLevels(vi, 1, 0, 1, &value));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListIndex(vi, 1, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListSweepStart(vi, 1, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetListSweepStop(vi, 1, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListFrequency(vi, 1, &real));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListPowerLevel(vi, 1, &real));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListIndex(vi, 1, &number));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListSweepStart(vi, 1, &number));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListSweepStop(vi, 1, &number));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CopyListSweep(vi));
  EXPECT_EQ(kUnset, real);
  EXPECT_EQ(77, number);
}

TEST_F(SimulatedList, ConfigureListDwellFailsAtTheVisaSessionThatIsNotThere) {
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureListDwell(vi, 0.1));
}

}  // namespace
}  // namespace kvtd::test
