// Lists by name: which number a name is given, what a Create loads, and what selecting a name does.

#include <array>
#include <future>
#include <new>
#include <string>
#include <vector>

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

constexpr ViStatus kListUnknown = Status(0xBFFA200AU);
constexpr ViAttr kSelectedName = 1250281;
constexpr ViReal64 kPoint = 1;

constexpr std::string_view kNoRoom = "Failure cannot recover.  A maximum of 10 lists can be managed at one time.";
constexpr std::string_view kNoSuchName =
    "The selected list is not defined.  The specified name is not mapped to an instrument list.";

class ListNames : public DriverDialogue {
 protected:
  // Creates a list of one point, which must go to the list of this number.
  void ExpectNumber(int number, const char* name) {
    const std::string list = ":LIST" + std::to_string(number);
    Sent(list + ":FREQ:UPD 0,1.000000000000000\n");
    Sent(list + ":POW:UPD 0,1.000000000000000\n");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi, name, 1, &kPoint, &kPoint)) << name;
  }
  void CreateTen() {
    constexpr std::array kNames = {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};
    for (std::size_t i = 0; i < kNames.size(); ++i) ExpectNumber(static_cast<int>(i) + 1, kNames[i]);
  }
  // Selects a name, which must stand for the list of this number.
  void ExpectSelects(int number, const char* name) {
    Sent(":FREQ:MODE LIST" + std::to_string(number) + "\n");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SelectList(vi, name)) << name;
  }
  void ExpectUnknown(const char* name) {
    EXPECT_STATUS(kListUnknown, KVTD481X2C_SelectList(vi, name));
    EXPECT_EQ((RecordedError{kListUnknown, std::string(kNoSuchName)}), LastError());
  }
};

class SimulatedListNames : public SimulatedDriver {};

// Numbers.

TEST_F(ListNames, TenNamesGetTheNumbersOneToTen) {
  CreateTen();
  ExpectSelects(1, "a");
  ExpectSelects(2, "b");
  ExpectSelects(9, "i");
  ExpectSelects(10, "j");
}

TEST_F(ListNames, AnEleventhNameIsRefusedWithAllThreeOperations) {
  CreateTen();
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_CreateFrequencyList(vi, "k", 1, &kPoint));
  EXPECT_EQ((RecordedError{kCannotRecover, std::string(kNoRoom)}), LastError());
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_CreatePowerList(vi, "k", 1, &kPoint));
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_CreateFrequencyPowerList(vi, "k", 1, &kPoint, &kPoint));
  EXPECT_EQ(kNoRoom, LastErrorText());
  ExpectUnknown("k");
}

TEST_F(ListNames, ANameThatIsInAFullTableCannotBeCreatedAgain) {
  CreateTen();
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_CreateFrequencyPowerList(vi, "d", 1, &kPoint, &kPoint));
  EXPECT_EQ(kNoRoom, LastErrorText());
  ExpectSelects(4, "d");
}

TEST_F(ListNames, UpperAndLowerCaseAreTwoLists) {
  ExpectNumber(1, "a");
  ExpectNumber(2, "A");
  ExpectSelects(1, "a");
  ExpectSelects(2, "A");
}

TEST_F(ListNames, ANameThatIsCreatedAgainMovesAndFreesItsNumber) {
  ExpectNumber(1, "a");
  ExpectNumber(2, "b");
  ExpectNumber(3, "a");
  ExpectSelects(3, "a");
  ExpectNumber(1, "c");
  ExpectNumber(4, "d");
}

TEST_F(ListNames, OneNameOverAndOverGoesBackAndForth) {
  for (int round = 0; round < 3; ++round) {
    ExpectNumber(1, "a");
    ExpectNumber(2, "a");
  }
}

TEST_F(ListNames, NineNamesLeaveOneNumberForTheRest) {
  for (int i = 1; i <= 9; ++i) ExpectNumber(i, std::string(1, static_cast<char>('a' + i)).c_str());
  ExpectNumber(10, "b");  // it was on 1
  ExpectNumber(1, "new");
}

TEST_F(ListNames, ANameMayBeEmptyOrHoldAnything) {
  ExpectNumber(1, "");
  ExpectNumber(2, " ");
  ExpectNumber(3, "a,b;\"\n%s");
  ExpectSelects(1, "");
  ExpectSelects(3, "a,b;\"\n%s");
}

TEST_F(ListNames, ClearingForgetsEveryNameAndSendsNothing) {
  CreateTen();
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ClearAllLists(vi));
  for (const char* name : {"a", "e", "j"}) ExpectUnknown(name);
  ExpectNumber(1, "j");
}

TEST_F(ListNames, AResetOfTheInstrumentLeavesTheNames) {
  ExpectNumber(1, "a");
  Script(R"(
    > *RST
    > *OPC?
    < 1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  ExpectSelects(1, "a");
}

TEST_F(ListNames, EachSessionHasItsOwnNames) {
  ExpectNumber(1, "a");
  Close();
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open());
  ExpectUnknown("a");
  ExpectNumber(1, "b");
}

// Lengths.

TEST_F(ListNames, ALengthAboveFourThousandIsRefusedWithFunctionAndParameterTheWrongWayRound) {
  const std::vector<ViReal64> points(4001, 1.0);
  const auto text = [](const std::string& length, const std::string& function) {
    return "Invalid value '" + length + "' for function 'Length', parameter '" + function +
           "'.  List can have at most 4,000 points.";
  };
  EXPECT_STATUS(kInvalidValue, KVTD481X2C_CreateFrequencyList(vi, "a", 4001, points.data()));
  EXPECT_EQ((RecordedError{kInvalidValue, text("4001", "CreateFrequencyList")}), LastError());
  EXPECT_STATUS(kInvalidValue, KVTD481X2C_CreatePowerList(vi, "a", 2147483647, points.data()));
  EXPECT_EQ(text("2147483647", "CreatePowerList"), LastErrorText());
  EXPECT_STATUS(kInvalidValue, KVTD481X2C_CreateFrequencyPowerList(vi, "a", 4001, points.data(), points.data()));
  EXPECT_EQ(text("4001", "CreateFrequencyPowerList"), LastErrorText());
  ExpectUnknown("a");
  ExpectNumber(1, "b");
}

TEST_F(ListNames, ALengthThatIsTooGreatIsToldBeforeTheTableIsLookedAt) {
  CreateTen();
  EXPECT_STATUS(kInvalidValue, KVTD481X2C_CreateFrequencyList(vi, "k", 4001, &kPoint));
}

TEST_F(ListNames, ALengthOfFourThousandPasses) {
  std::string ones = "1.000000000000000";
  std::string levels = "-10.000000000000000";
  for (int i = 1; i < 4000; ++i) {
    ones += ",1.000000000000000";
    levels += ",-10.000000000000000";
  }
  Sent(":LIST1:FREQ:UPD 0," + ones + '\n');
  Sent(":POW?\n");
  Answer("-10\n");
  Sent(":LIST1:POW:UPD 0," + levels + '\n');
  const std::vector<ViReal64> frequencies(4000, 1.0);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyList(vi, "a", 4000, frequencies.data()));
}

TEST_F(ListNames, ALengthOfZeroPassesAndSendsNoPoint) {
  Sent(":LIST1:FREQ:UPD 0,\n");
  Sent(":POW?\n");
  Answer("-10\n");
  Sent(":LIST1:POW:UPD 0,\n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyList(vi, "a", 0, nullptr));
  Sent(":LIST2:FREQ:UPD 0,\n");
  Sent(":LIST2:POW:UPD 0,\n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi, "b", 0, nullptr, nullptr));
}

TEST_F(ListNames, ALengthBelowZeroLeavesTheCallAsAFailedAllocation) {
  Sent(":POW?\n");
  Answer("-10\n");
  EXPECT_THROW(KVTD481X2C_CreateFrequencyList(vi, "a", -1, &kPoint), std::bad_alloc);
  Sent(":FREQ?\n");
  Answer("1E9\n");
  EXPECT_THROW(KVTD481X2C_CreatePowerList(vi, "b", -2147483647 - 1, &kPoint), std::bad_alloc);
  EXPECT_LT(KVTD481X2C_CreateFrequencyPowerList(vi, "c", -1, &kPoint, &kPoint), 0);

  // The names were given their numbers before that, and the lock is free again for any thread.
  auto other_thread = std::async(std::launch::async, [this] { ExpectNumber(4, "d"); });
  other_thread.get();
}

// What a Create loads.

TEST_F(ListNames, AFrequencyListIsFilledUpWithTheLevelOfNow) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :LIST1:FREQ:UPD 0,1000000000.000000000000000,2000000000.500000000000000
    > *ESR?
    < 0
    > :POW?
    < -10.25
    > *ESR?
    < 0
    > :LIST1:POW:UPD 0,-10.250000000000000,-10.250000000000000
    > *ESR?
    < 0
  )");
  const ViReal64 frequencies[] = {1e9, 2000000000.5};
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyList(vi, "a", 2, frequencies));
}

TEST_F(ListNames, APowerListIsFilledUpWithTheFrequencyOfNow) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :LIST1:POW:UPD 0,-1.000000000000000,-2.000000000000000,-3.500000000000000
    > *ESR?
    < 0
    > :FREQ?
    < 1.5E9
    > *ESR?
    < 0
    > :LIST1:FREQ:UPD 0,1500000000.000000000000000,1500000000.000000000000000,1500000000.000000000000000
    > *ESR?
    < 0
  )");
  const ViReal64 powers[] = {-1, -2, -3.5};
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreatePowerList(vi, "a", 3, powers));
}

TEST_F(ListNames, AFrequencyPowerListReadsNothing) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :LIST1:FREQ:UPD 0,1.000000000000000,2.000000000000000
    > *ESR?
    < 0
    > :LIST1:POW:UPD 0,3.000000000000000,4.000000000000000
    > *ESR?
    < 0
  )");
  const ViReal64 frequencies[] = {1, 2};
  const ViReal64 powers[] = {3, 4};
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi, "a", 2, frequencies, powers));
}

TEST_F(ListNames, ARefusedFirstHalfIsForgotten) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :LIST1:FREQ:UPD 0,1.000000000000000
    > *ESR?
    < 16
    > :POW?
    < 0
    > *ESR?
    < 0
    > :LIST1:POW:UPD 0,0.000000000000000
    > *ESR?
    < 0
    > :LIST2:POW:UPD 0,1.000000000000000
    > *ESR?
    < 16
    > :FREQ?
    < 5
    > *ESR?
    < 0
    > :LIST2:FREQ:UPD 0,5.000000000000000
    > *ESR?
    < 0
    > :LIST3:FREQ:UPD 0,1.000000000000000
    > *ESR?
    < 16
    > :LIST3:POW:UPD 0,1.000000000000000
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyList(vi, "a", 1, &kPoint));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreatePowerList(vi, "b", 1, &kPoint));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi, "c", 1, &kPoint, &kPoint));
}

TEST_F(ListNames, AFailedReadOfTheOtherQuantityEndsTheCreateAndKeepsTheName) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :LIST1:FREQ:UPD 0,1.000000000000000
    > *ESR?
    < 0
    > :POW?
    < 0
    > *ESR?
    < 4
    > :LIST2:POW:UPD 0,1.000000000000000
    > *ESR?
    < 0
    > :FREQ?
    < 0
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_CreateFrequencyList(vi, "a", 1, &kPoint));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_CreatePowerList(vi, "b", 1, &kPoint));
  QueryInstrumentStatus(false);
  ExpectSelects(1, "a");
  ExpectSelects(2, "b");
}

TEST_F(ListNames, ARefusedSecondHalfIsTheResultAndKeepsTheName) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :LIST1:FREQ:UPD 0,1.000000000000000
    > *ESR?
    < 0
    > :POW?
    < 2
    > *ESR?
    < 0
    > :LIST1:POW:UPD 0,2.000000000000000
    > *ESR?
    < 8
    > :LIST2:FREQ:UPD 0,1.000000000000000
    > *ESR?
    < 0
    > :LIST2:POW:UPD 0,1.000000000000000
    > *ESR?
    < 8
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_CreateFrequencyList(vi, "a", 1, &kPoint));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_CreateFrequencyPowerList(vi, "b", 1, &kPoint, &kPoint));
  QueryInstrumentStatus(false);
  ExpectSelects(1, "a");
  ExpectSelects(2, "b");
}

TEST_F(ListNames, ALostConnectionInACreateKeepsTheName) {
  Sent(":LIST1:FREQ:UPD 0,1.000000000000000\n");
  Sent(":POW?\n");
  instrument.Close();
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_CreateFrequencyList(vi, "a", 1, &kPoint));
  SwitchToSimulation(true);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SelectList(vi, "a"));
  SwitchToSimulation(false);
}

// Selecting.

TEST_F(ListNames, EveryNumberIsSelectedByItsFrequencyModeAlone) {
  CreateTen();
  constexpr std::array kNames = {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};
  for (std::size_t i = 0; i < kNames.size(); ++i) ExpectSelects(static_cast<int>(i) + 1, kNames[i]);
}

TEST_F(ListNames, TheAttributeSelectsAsTheOperationDoes) {
  EXPECT_EQ(kSelectedName, KVTD481X2C_ATTR_LIST_SELECTED_NAME);
  ExpectNumber(1, "a");
  Script("> :FREQ:MODE LIST1");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViString(vi, nullptr, kSelectedName, "a"));
  EXPECT_STATUS(kListUnknown, KVTD481X2C_SetAttributeViString(vi, nullptr, kSelectedName, "b"));
}

TEST_F(ListNames, AnUnknownNameIsRefusedAndTheModeStays) {
  ExpectUnknown("a");
  ExpectUnknown("");
  ExpectNumber(1, "a");
  ExpectUnknown("a ");
  ExpectUnknown("A");
}

TEST_F(ListNames, ARefusedModeComesBackFromTheSelection) {
  ExpectNumber(1, "a");
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:MODE LIST1
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SelectList(vi, "a"));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(ListNames, ASelectionLeavesNoNameBehindAndTheResetOfTheListIsSilent) {
  EXPECT_EQ("", TextAttribute(kSelectedName));
  ExpectNumber(1, "a");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetList(vi));
  ExpectSelects(1, "a");
  EXPECT_EQ("", TextAttribute(kSelectedName));
  QueryInstrumentStatus(true);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetList(vi));
}

TEST_F(ListNames, AListBeyondTheFirstIsNoSweepModeOfTheClass) {
  ExpectNumber(1, "a");
  ExpectNumber(2, "b");
  ExpectNumber(3, "c");
  Script(R"(
    > :FREQ:MODE LIST1
    > :POW:MODE LIST1
    > :FREQ:MODE LIST3
    > :FREQ:MODE?
    < LIST3
    > :POW:MODE?
    < LIST1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_SWEEP_MODE, 5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SelectList(vi, "c"));
  ViInt32 mode = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_SWEEP_MODE, &mode));
  EXPECT_EQ(KVTD481X2C_VAL_SWEEP_MODE_NONE, mode);
}

// Pointers, handles, simulation.

TEST_F(ListNames, TheSelectedNameFollowsTheRulesOfTextAttributes) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViString(vi, nullptr, kSelectedName, 5, nullptr));
  EXPECT_EQ("Null pointer passed for function 'GetAttributeViString', parameter 'AttributeValueBufferSize'.",
            LastErrorText());
  EXPECT_EQ(4096, KVTD481X2C_GetAttributeViString(vi, nullptr, kSelectedName, 0, nullptr));
  GuardedText<1> one;
  EXPECT_EQ(4096, KVTD481X2C_GetAttributeViString(vi, nullptr, kSelectedName, 1, one.data()));
  EXPECT_EQ("", one.text());
}

TEST_F(ListNames, AHandleThatIsNotOpenIsRefusedBare) {
  for (const ViSession bad : {ViSession{0}, vi + 1, ViSession{0xDEADBEEF}}) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_CreateFrequencyList(bad, "a", 4001, &kPoint));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_CreatePowerList(bad, "a", 1, &kPoint));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_CreateFrequencyPowerList(bad, "a", 1, &kPoint, &kPoint));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SelectList(bad, "a"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ClearAllLists(bad));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ResetList(bad));
    GuardedText<8> text;
    EXPECT_STATUS(kInvalidHandle,
                  KVTD481X2C_GetAttributeViString(bad, nullptr, kSelectedName, text.size(), text.data()));
    EXPECT_TRUE(text.Untouched());
  }
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedListNames, AFrequencyOrPowerListFailsAtItsReadOfTheOtherQuantityAndKeepsItsName) {
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_CreateFrequencyList(vi, "a", 1, &kPoint));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_CreatePowerList(vi, "b", 1, &kPoint));
  EXPECT_EQ(kNothingRecorded, LastError());
  ViInt32 mode = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SelectList(vi, "b"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMode(vi, &mode));
  EXPECT_EQ(KVTD481X2C_VAL_FREQUENCY_MODE_LIST2, mode);
}

TEST_F(SimulatedListNames, AFrequencyPowerListDoesNoInputOrOutputAtAll) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi, "a", 1, &kPoint, &kPoint));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi, "b", -5, nullptr, nullptr));
  EXPECT_STATUS(kInvalidValue, KVTD481X2C_CreateFrequencyPowerList(vi, "c", 4001, &kPoint, &kPoint));
}

TEST_F(SimulatedListNames, SelectingStoresTheModeOfTheNumber) {
  for (int number = 1; number <= 10; ++number) {
    const std::string name = "list " + std::to_string(number);
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi, name.c_str(), 1, &kPoint, &kPoint));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SelectList(vi, name.c_str()));
    ViInt32 mode = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMode(vi, &mode));
    EXPECT_EQ(number + 1, mode);
  }
  EXPECT_EQ("", TextAttribute(kSelectedName));
  EXPECT_STATUS(kListUnknown, KVTD481X2C_SelectList(vi, "list 11"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetList(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ClearAllLists(vi));
  EXPECT_STATUS(kListUnknown, KVTD481X2C_SelectList(vi, "list 1"));
}

TEST_F(SimulatedListNames, TheNumberOfPointsIsFourThousandWhateverWasCreated) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi, "a", 1, &kPoint, &kPoint));
  ViInt32 points = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetNumberOfListFrequencyPoints(vi, &points));
  EXPECT_EQ(4000, points);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetNumberOfListPowerPoints(vi, &points));
  EXPECT_EQ(4000, points);
}

}  // namespace
}  // namespace kvtd::test
