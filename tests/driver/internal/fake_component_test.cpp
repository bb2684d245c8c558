// What becomes of each call of the IVI components that fails, and in which order their handles are given back.

#include <KVTD481X2C.h>
#include <TD481X2CDriverSession.h>
#include <gmock/gmock.h>

#include "FakeIvi.h"
#include "FakeVisa.h"

namespace kvtd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr ViStatus kFailed = -4711;  // any failure of a component; it comes back as it is
constexpr ViStatus kNoSuchSession = static_cast<ViStatus>(0xBFFA1203U);

class OverFakeIvi : public testing::Test {
 protected:
  void SetUp() override {
    Ivi() = FakeIvi{};
    Visa() = FakeVisa{};
  }
  void TearDown() override {
    if (vi != VI_NULL) {
      EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
    }
  }

  ViStatus Open(const char* options = "Simulate=1") {
    return KVTD481X2C_InitWithOptions(const_cast<ViChar*>("X"), VI_FALSE, VI_FALSE, options, &vi);
  }
  // A bring-up that ends with this failure before any VISA, and has no session to give.
  void ExpectNoSession() {
    vi = 77;
    EXPECT_EQ(kFailed, Open(""));
    EXPECT_EQ(VI_NULL, static_cast<ViInt32>(vi));
    EXPECT_THAT(Visa().calls, IsEmpty());
    vi = VI_NULL;
  }
  // The resource is no name of the store, or one of its sessions.
  void NotInTheStore() { Ivi().statuses["IviConfig_GetDriverSession"] = kNoSuchSession; }
  void WithSettings() {
    Ivi().settings = {{"Integer", "a", ""}, {"Real", "b", ""}, {"Boolean", "c", ""}, {"String", "d", "text"}};
  }
  static std::vector<std::string> Disposed(const std::vector<std::string>& kinds) {
    std::vector<std::string> calls;
    for (const std::string& call : Ivi().CallsOf("IviConfig_DisposeHandle")) {
      for (const std::string& kind : kinds) {
        if (call == "IviConfig_DisposeHandle " + kind) calls.push_back(kind);
      }
    }
    return calls;
  }

  ViSession vi = VI_NULL;
};

using OverFakeIviDeathTest = OverFakeIvi;

// The session component.

TEST_F(OverFakeIvi, WithoutAHandleThereIsNoSession) {
  Ivi().statuses["IviSession_New"] = kFailed;
  ExpectNoSession();
  EXPECT_THAT(Ivi().calls, ElementsAre("IviSession_New "));
}

TEST_F(OverFakeIvi, AHandleThatTakesNoObjectIsGivenBackBeforeAnyConfigurationIsRead) {
  Ivi().statuses["IviSession_SetDataPtr"] = kFailed;
  ExpectNoSession();
  EXPECT_THAT(Ivi().calls, ElementsAre("IviSession_New ", "IviSession_Dispose 1"));
}

TEST_F(OverFakeIviDeathTest, ALockThatCannotBeTakenEndsTheProcess) {
  ASSERT_EQ(VI_SUCCESS, Open());
  Ivi().statuses["IviSession_Lock"] = kFailed;
  EXPECT_DEATH(KVTD481X2C_InvalidateAllAttributes(vi), "status >= 0");
}

TEST_F(OverFakeIviDeathTest, ALockThatCannotBeGivenBackEndsTheProcess) {
  ASSERT_EQ(VI_SUCCESS, Open());
  Ivi().statuses["IviSession_Unlock"] = kFailed;
  EXPECT_DEATH(KVTD481X2C_InvalidateAllAttributes(vi), "status >= 0");
}

TEST_F(OverFakeIvi, TheLockIsTakenAndGivenBackOnce) {
  ASSERT_EQ(VI_SUCCESS, Open());
  Ivi().calls.clear();
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_THAT(Ivi().calls, ElementsAre("IviSession_Lock 1", "IviSession_Unlock 1"));
}

TEST_F(OverFakeIviDeathTest, AHandleWithoutAnObjectCannotBeClosed) {
  EXPECT_DEATH(KVTD481X2C_close(FakeIvi::kHandle), "Failed to retrieve driver session");
}

TEST_F(OverFakeIvi, TheStatusOfTheDisposalIsTheResultOfTheClosing) {
  ASSERT_EQ(VI_SUCCESS, Open());
  Ivi().statuses["IviSession_Dispose"] = kFailed;
  EXPECT_EQ(kFailed, KVTD481X2C_close(vi));
  vi = VI_NULL;
}

TEST_F(OverFakeIvi, AnErrorThatCannotBeRecordedIsReplacedByThatFailure) {
  Ivi().statuses["IviSession_SetError"] = kFailed;
  EXPECT_EQ(kFailed, tvr::RaiseError(FakeIvi::kHandle, tvr::error::kAttrNotWritable, "X"));
  EXPECT_EQ("", Ivi().error_text);
}

// The configuration component.

TEST_F(OverFakeIvi, AStoreThatCannotBeInitialisedIsToldInItsOwnWordsAndClosedOnce) {
  Ivi().statuses["IviConfig_Initialize"] = kFailed;
  ExpectNoSession();
  EXPECT_EQ(kFailed, Ivi().error_code);
  EXPECT_EQ("what the component says", Ivi().error_text);
  EXPECT_THAT(Ivi().CallsOf("IviConfig"),
              ElementsAre("IviConfig_Initialize nothing", "IviConfig_GetError nothing", "IviConfig_Close nothing"));
}

TEST_F(OverFakeIvi, EveryCallThatFailsIsToldInTheComponentsWordsAndTheStoreClosedOnce) {
  for (const char* call : {"IviConfig_GetConfigStorePropertyViString",
                           "IviConfig_Deserialize",
                           "IviConfig_GetDriverSession",
                           "IviConfig_GetSessionVirtualNameCollection",
                           "IviConfig_GetVirtualNameCount",
                           "IviConfig_GetVirtualNameItemByIndex",
                           "IviConfig_GetVirtualNamePropertyViString",
                           "IviConfig_GetVirtualNameVirtualRangeCollection",
                           "IviConfig_GetVirtualRangeCount",
                           "IviConfig_GetVirtualRangeItemByIndex",
                           "IviConfig_GetVirtualRangePropertyViInt32",
                           "IviConfig_GetSessionHardwareAssetReference",
                           "IviConfig_GetHardwareAssetPropertyViString",
                           "IviConfig_GetDriverSessionPropertyViBoolean",
                           "IviConfig_GetDriverSessionPropertyViString",
                           "IviConfig_GetConfigComponentDataComponentCollection",
                           "IviConfig_GetDataComponentItemByName",
                           "IviConfig_GetStructureDataComponentCollection",
                           "IviConfig_GetDataComponentCount",
                           "IviConfig_GetDataComponentItemByIndex",
                           "IviConfig_GetDataComponentPropertyViString",
                           "IviConfig_GetDataComponentPropertyViInt32",
                           "IviConfig_GetDataComponentPropertyViReal64",
                           "IviConfig_GetDataComponentPropertyViBoolean",
                           "IviConfig_GetSessionSoftwareModuleReference",
                           "IviConfig_GetSoftwareModulePhysicalNameCollection",
                           "IviConfig_GetPhysicalNameCount",
                           "IviConfig_GetPhysicalNameItemByIndex",
                           "IviConfig_GetPhysicalNamePropertyViString"}) {
    SCOPED_TRACE(call);
    Ivi() = FakeIvi{};
    WithSettings();
    Ivi().statuses[call] = kFailed;
    ExpectNoSession();
    EXPECT_EQ(kFailed, Ivi().error_code);
    EXPECT_EQ("what the component says", Ivi().error_text);
    EXPECT_THAT(Ivi().CallsOf("IviConfig_Close"), ElementsAre("IviConfig_Close store"));
  }
}

TEST_F(OverFakeIvi, TheModuleOfADescriptorIsNeededToo) {
  for (const char* call :
       {"IviConfig_GetConfigStoreSoftwareModuleCollection", "IviConfig_GetSoftwareModuleItemByName"}) {
    SCOPED_TRACE(call);
    Ivi() = FakeIvi{};
    NotInTheStore();
    Ivi().statuses[call] = kFailed;
    ExpectNoSession();
    EXPECT_EQ("what the component says", Ivi().error_text);
    EXPECT_THAT(Ivi().CallsOf("IviConfig_Close"), ElementsAre("IviConfig_Close store"));
  }
}

TEST_F(OverFakeIvi, AFailureToTellAnErrorDoesNotTakeItsPlace) {
  Ivi().statuses["IviConfig_Deserialize"] = kFailed;
  Ivi().statuses["IviSession_SetError"] = kFailed - 1;
  ExpectNoSession();
}

TEST_F(OverFakeIvi, AStoreThatCannotBeClosedFailsABringUpThatWentWell) {
  Ivi().statuses["IviConfig_Close"] = kFailed;
  ExpectNoSession();
  EXPECT_EQ("", Ivi().error_text);
}

TEST_F(OverFakeIvi, ANameThatIsNotInTheStoreAndSettingsThatAreNotThereAreForgottenErrors) {
  NotInTheStore();
  EXPECT_EQ(VI_SUCCESS, Open());
  EXPECT_THAT(Ivi().CallsOf("IviConfig_ClearError"), ElementsAre("IviConfig_ClearError ", "IviConfig_ClearError "));
  EXPECT_EQ("", Ivi().error_text);
}

TEST_F(OverFakeIvi, ASettingOfAnUnknownTypeIsSkippedAndTypesAreReadInAnyCase) {
  Ivi().settings = {{"duration", "Model", "TD48142C"}, {"", "Model", "TD48142C"}, {"sTRING", "mODEL", "TD48172C"}};
  ASSERT_EQ(VI_SUCCESS, Open());
  EXPECT_EQ("TD48172C", tvr::SessionOf(vi).GetInstrumentModel());
  EXPECT_EQ(1U, tvr::SessionOf(vi).InitialStrings().size());
}

TEST_F(OverFakeIviDeathTest, AnErrorTextThatCannotBeReadEndsTheProcess) {
  Ivi().statuses["IviConfig_Deserialize"] = kFailed;
  Ivi().statuses["IviConfig_GetError"] = kFailed;
  EXPECT_DEATH(Open(), "statusGetError >= 0");
}

TEST_F(OverFakeIviDeathTest, AStoreHandleThatCannotBeGivenBackEndsTheProcess) {
  Ivi().statuses["IviConfig_DisposeHandle"] = kFailed;
  EXPECT_DEATH(Open(), "[^a-z]s >= 0");
}

TEST_F(OverFakeIvi, TheSessionIsGivenBackBeforeItsModule) {
  EXPECT_EQ(VI_SUCCESS, Open());
  EXPECT_THAT(Disposed({"session", "modules", "module"}), ElementsAre("session", "module"));
  EXPECT_EQ("IviConfig_Close store", Ivi().CallsOf("IviConfig").back());
}

TEST_F(OverFakeIvi, TheCollectionIsGivenBackBeforeItsModule) {
  NotInTheStore();
  EXPECT_EQ(VI_SUCCESS, Open());
  EXPECT_THAT(Disposed({"session", "modules", "module"}), ElementsAre("modules", "module"));
  EXPECT_EQ("IviConfig_Close store", Ivi().CallsOf("IviConfig").back());
}

}  // namespace
}  // namespace kvtd::test
