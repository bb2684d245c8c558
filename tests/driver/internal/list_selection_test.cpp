// What follows from a selected list's name. No operation of the driver leaves one behind, so the session is given it.

#include <TD481X2CDriverSession.h>

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

constexpr ViStatus kListUnknown = Status(0xBFFA200AU);

class ListSelection : public DriverDialogue {
 protected:
  void Select(const std::string& name) { ConcreteSession(vi).SelectedListName = name; }
  void Number(const std::string& name, ViInt32 number) { ConcreteSession(vi).ListNames[name] = number; }
};

class SimulatedListSelection : public SimulatedDriver {};

TEST_F(ListSelection, ASelectedNameThatHasNoListCannotBeReset) {
  Number("sweep", 1);
  Select("Sweep");
  EXPECT_STATUS(kListUnknown, KVTD481X2C_ResetList(vi));
  EXPECT_EQ(
      (RecordedError{kListUnknown,
                     "The selected list is not defined.  The currently selected name is not mapped to an instrument "
                     "list."}),
      LastError());
}

TEST_F(ListSelection, TheResetGoesToTheFirstPointOfTheSelectedList) {
  Number("sweep", 3);
  Number("other", 4);
  Select("sweep");
  Script("> :LIST3:IND 0");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetList(vi));
}

TEST_F(ListSelection, ARefusedResetIsTold) {
  Number("sweep", 10);
  Select("sweep");
  QueryInstrumentStatus(true);
  Script(R"(
    > :LIST10:IND 0
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ResetList(vi));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(ListSelection, TheSelectedNameIsReadBack) {
  Select("sweep");
  EXPECT_EQ("sweep", TextAttribute(KVTD481X2C_ATTR_LIST_SELECTED_NAME));
}

TEST_F(ListSelection, ANumberThatIsNoListIsRefusedAndTheModeStays) {
  for (const ViInt32 number : {0, 11, -1}) {
    Number("sweep", number);
    EXPECT_STATUS(kCannotRecover, KVTD481X2C_SelectList(vi, "sweep"));
    EXPECT_EQ((RecordedError{kCannotRecover, "Failure cannot recover.  Unexpected list index."}), LastError());
  }
}

TEST_F(SimulatedListSelection, TheResetSendsNothing) {
  ConcreteSession(vi).ListNames["sweep"] = 3;
  ConcreteSession(vi).SelectedListName = "sweep";
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetList(vi));
}

}  // namespace
}  // namespace kvtd::test
