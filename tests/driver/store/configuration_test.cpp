// Opening a session through the IVI configuration store: addresses, options, virtual names and initial settings come
// from a real store file.

#include <gmock/gmock.h>

#include <cstdlib>

#include "DriverDialogue.h"
#include "StoreFile.h"

namespace kvtd::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

// The component's own codes.
constexpr ViStatus kDeserializeFailed = Status(0xBFFA1200U);
constexpr ViStatus kNotInGlobal = Status(0xBFFA1204U);
constexpr ViStatus kNotExist = Status(0xBFFA1207U);

constexpr ViStatus kUnknownName = Status(0xBFFA0067U);
constexpr ViStatus kVisaBadResource = Status(0xBFFF0012U);

class Configuration : public InstrumentDialogue {
 protected:
  ViStatus OpenNamed(const char* name, const char* options = "", ViBoolean id_query = VI_FALSE) {
    return KVTD481X2C_InitWithOptions(const_cast<ViChar*>(name), id_query, VI_FALSE, options, &vi);
  }

  // Opens a store with this one session by its logical name.
  ViStatus OpenStored(const StoredSession& session, const char* options = "", ViBoolean id_query = VI_FALSE) {
    const StoreFile store(StoreText(StoredModule{}, {session}));
    return OpenNamed(session.logical_name.c_str(), options, id_query);
  }

  static StoredSession Simulated() {
    StoredSession session;
    session.simulate = true;
    return session;
  }
};

TEST_F(Configuration, DescriptorIsItsOwnAddressAndHasNoLogicalName) {
  const StoreFile store(StoreText(StoredModule{}, {}));
  ScriptBringUp();
  const std::string resource = instrument.ResourceName();
  ASSERT_STATUS(VI_SUCCESS, OpenNamed(resource.c_str(), "recordcoercions=1"));
  EXPECT_EQ("", TextAttribute(KVTD481X2C_ATTR_LOGICAL_NAME));
  EXPECT_EQ(resource, TextAttribute(KVTD481X2C_ATTR_IO_RESOURCE_DESCRIPTOR));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_RECORD_COERCIONS));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_RANGE_CHECK));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS));
}

TEST_F(Configuration, LogicalNameOpensTheAddressOfItsHardwareAsset) {
  ScriptBringUp();
  StoredSession session;
  session.resource = instrument.ResourceName();
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  EXPECT_EQ("SigGen1", TextAttribute(KVTD481X2C_ATTR_LOGICAL_NAME));
  EXPECT_EQ(instrument.ResourceName(), TextAttribute(KVTD481X2C_ATTR_IO_RESOURCE_DESCRIPTOR));
}

TEST_F(Configuration, DriverSessionIsFoundByItsOwnNameToo) {
  const StoreFile store(StoreText(StoredModule{}, {Simulated()}));
  ASSERT_STATUS(VI_SUCCESS, OpenNamed("BenchSession"));
  EXPECT_EQ("BenchSession", TextAttribute(KVTD481X2C_ATTR_LOGICAL_NAME));
}

TEST_F(Configuration, NamesCompareByteForByte) {
  const StoreFile store(StoreText(StoredModule{}, {Simulated()}));
  EXPECT_STATUS(kVisaBadResource, OpenNamed("siggen1"));
  EXPECT_EQ(VI_NULL, vi);
}

TEST_F(Configuration, StoredSimulationNeedsNoOptionString) {
  ASSERT_STATUS(VI_SUCCESS, OpenStored(Simulated()));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_SIMULATE));
}

TEST_F(Configuration, OptionStringWinsOverStoredSimulation) {
  ScriptBringUp();
  StoredSession session = Simulated();
  session.resource = instrument.ResourceName();
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session, "simulate=0"));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_SIMULATE));
}

TEST_F(Configuration, StoredFlagsTakeTheDefaultsPlace) {
  StoredSession session = Simulated();
  session.cache = false;
  session.query_instr_status = true;
  session.range_check = false;
  session.record_coercions = true;
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_CACHE));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_RANGE_CHECK));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_RECORD_COERCIONS));
}

TEST_F(Configuration, ResetWithDefaultsGoesBackToTheStoredFlags) {
  StoredSession session = Simulated();
  session.cache = false;
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_CACHE, VI_TRUE));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_ResetWithDefaults(vi));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_CACHE));
}

TEST_F(Configuration, StoredInterchangeCheckFailsTheInitialisation) {
  StoredSession session = Simulated();
  session.interchange_check = true;
  EXPECT_STATUS(kUnknownOptionValue, OpenStored(session));
  EXPECT_EQ(VI_NULL, vi);
  EXPECT_EQ(
      (RecordedError{kUnknownOptionValue,
                     "The 'True' value in the option string is unknown.  Interchange checking is not supported by "
                     "the driver."}),
      ErrorOf(VI_NULL));
}

TEST_F(Configuration, OptionStringWinsOverTheStoredInterchangeCheck) {
  StoredSession session = Simulated();
  session.interchange_check = true;
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session, "interchangecheck=0"));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_INTERCHANGE_CHECK));
}

TEST_F(Configuration, StoredDriverSetupSetsTheModel) {
  StoredSession session = Simulated();
  session.driver_setup = "Model:TD48142C";
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  EXPECT_EQ("TD48142C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
  EXPECT_EQ("Model:TD48142C", TextAttribute(KVTD481X2C_ATTR_DRIVER_SETUP));
}

TEST_F(Configuration, DriverSetupOfTheOptionStringReplacesTheStoredOne) {
  StoredSession session = Simulated();
  session.driver_setup = "Foo=1,Model:TD48142C";
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session, "DriverSetup=Bar=2"));
  EXPECT_EQ("Bar=2", TextAttribute(KVTD481X2C_ATTR_DRIVER_SETUP));
  // What the stored one did to the model stays.
  EXPECT_EQ("TD48142C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
}

TEST_F(Configuration, DuplicateKeyInTheStoredDriverSetupFailsTheInitialisation) {
  StoredSession session = Simulated();
  session.driver_setup = "Foo=1,foo=2";
  EXPECT_STATUS(kCannotRecover, OpenStored(session));
  EXPECT_EQ(VI_NULL, vi);
  EXPECT_EQ(
      (RecordedError{kCannotRecover, "Failure cannot recover.  DriverSetup option 'foo' appears more than once."}),
      ErrorOf(VI_NULL));
}

TEST_F(Configuration, StringSettingNamedModelInAnyCaseSetsTheModelOverDriverSetup) {
  StoredSession session = Simulated();
  session.driver_setup = "Model:TD48122C";
  session.settings = Setting("String", "MODEL", "TD48172C");
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  EXPECT_EQ("TD48172C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
}

TEST_F(Configuration, OptionStringModelWinsOverTheSetting) {
  StoredSession session = Simulated();
  session.settings = Setting("String", "Model", "TD48172C");
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session, "DriverSetup=Model:TD48142C"));
  EXPECT_EQ("TD48142C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
}

TEST_F(Configuration, IntegerSettingNamedModelDoesNotSetTheModel) {
  StoredSession session = Simulated();
  session.settings =
      Setting("Integer", "Model", "48142") + Setting("Real", "Offset", "-1.5") + Setting("Boolean", "Trace", "1");
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  EXPECT_EQ("TD48122C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
}

TEST_F(Configuration, SettingOfAnotherKindIsSkipped) {
  StoredSession session = Simulated();
  session.settings = Setting("APIReference", "Model", "TD48142C") + Setting("String", "Trace", "on");
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  EXPECT_EQ("TD48122C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
}

TEST_F(Configuration, LaterOfTwoSettingsOfOneNameHolds) {
  StoredSession session = Simulated();
  session.settings = Setting("String", "Model", "TD48142C") + Setting("String", "MODEL", "TD48172C");
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  EXPECT_EQ("TD48172C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
}

TEST_F(Configuration, SettingsOfTheModuleHoldForADescriptorOnly) {
  StoredModule module;
  module.settings = Setting("String", "Model", "TD48172C");
  const StoreFile store(StoreText(module, {Simulated()}));
  ASSERT_STATUS(VI_SUCCESS, OpenNamed("SIM", "simulate=1"));
  EXPECT_EQ("TD48172C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
  Close();

  ASSERT_STATUS(VI_SUCCESS, OpenNamed("SigGen1"));
  EXPECT_EQ("TD48122C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
}

TEST_F(Configuration, StoredModelThatNobodyKnowsFailsTheIdQuery) {
  StoredSession session = Simulated();
  session.settings = Setting("String", "Model", "TD9");
  EXPECT_STATUS(kIdQueryFailed, OpenStored(session, "", VI_TRUE));
  EXPECT_EQ((RecordedError{kIdQueryFailed, "Instrument ID query failed."}), ErrorOf(VI_NULL));
}

TEST_F(Configuration, VirtualNameStandsForItsPhysicalName) {
  StoredSession session = Simulated();
  session.virtual_names = VirtualName("Generator", "FM");
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "gENERATOR"));
  ASSERT_STATUS(VI_SUCCESS,
                KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY, 440.0));
  ViReal64 frequency = 0.0;
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_GetFMInternalFrequency(vi, &frequency));
  EXPECT_EQ(440.0, frequency);
}

// The session selects "AM" by itself while it comes up, and the store has its say in that.
TEST_F(Configuration, VirtualNameThatTakesAmAwayLeavesASessionWithoutTheLastSteps) {
  Script(R"(
    > *IDN?
    < Kelvora,TD48142C,SN4711,1.2.3
  )");
  StoredSession session;
  session.virtual_names = VirtualName("AM", "Foo");
  for (const bool simulate : {true, false}) {
    session.simulate = simulate;
    session.resource = instrument.ResourceName();
    EXPECT_STATUS(kUnknownName, OpenStored(session));
    ASSERT_NE(VI_NULL, static_cast<int>(vi));
    EXPECT_EQ((RecordedError{kUnknownName,
                             "Unknown physical repeated capability selector.  The identifier 'Foo' is not defined for "
                             "repeated capability 'LFGenerator'."}),
              LastError());
    EXPECT_EQ("", TextAttribute(KVTD481X2C_ATTR_ACTIVE_LF_GENERATOR));
    ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "PM"));
    EXPECT_EQ("PM", TextAttribute(KVTD481X2C_ATTR_ACTIVE_LF_GENERATOR));
    Close();
  }
}

TEST_F(Configuration, QualifiedPhysicalNameLosesItsPath) {
  StoredSession session = Simulated();
  session.virtual_names = VirtualName("Generator", "Path!!PM");
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "Generator"));
}

TEST_F(Configuration, VirtualNameForSeveralPhysicalNamesIsOneLevel) {
  StoredSession session = Simulated();
  session.virtual_names = VirtualName("Both", "AM,PM");
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetActiveLFGenerator(vi, "Both"));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY, 50.0));
  ViReal64 am = 0.0;
  ViReal64 pm = 0.0;
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_GetAMInternalFrequency(vi, &am));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_GetPMInternalFrequency(vi, &pm));
  EXPECT_EQ(50.0, am);
  EXPECT_EQ(50.0, pm);
}

TEST_F(Configuration, VirtualRangeCountsOnFromItsFirstPhysicalIndex) {
  StoredSession session = Simulated();
  session.virtual_names = VirtualRange("Src", "ExtSrc", 1, 3, 7);
  ASSERT_STATUS(VI_SUCCESS, OpenStored(session));
  const struct {
    const char* name;
    const char* physical;
  } cases[] = {{"Src1", "ExtSrc7"}, {"Src2", "ExtSrc8"}, {"src3", "ExtSrc9"}, {"Src4", "Src4"}, {"Src", "Src"}};
  for (const auto& [name, physical] : cases) {
    EXPECT_STATUS(Status(0xBFFA0067U), KVTD481X2C_SetActiveLFGenerator(vi, name));
    EXPECT_THAT(LastErrorText(), HasSubstr("The identifier '" + std::string(physical) + "' is not defined")) << name;
  }
}

TEST_F(Configuration, SessionWithoutHardwareAssetHasNoAddress) {
  ASSERT_STATUS(VI_SUCCESS, OpenStored(Simulated()));
  EXPECT_EQ("", TextAttribute(KVTD481X2C_ATTR_IO_RESOURCE_DESCRIPTOR));
  Close();
  EXPECT_STATUS(kVisaBadResource, OpenStored(StoredSession{}));
}

TEST_F(Configuration, SessionWithoutItsModuleFailsAlsoInSimulation) {
  StoredSession session = Simulated();
  std::string text = StoreText(StoredModule{}, {session});
  const std::string reference = "<IviSoftwareModuleRef idref=\"p1\"/>";
  text.erase(text.find(reference), reference.size());
  const StoreFile store(text);
  EXPECT_STATUS(kNotInGlobal, OpenNamed("SigGen1"));
  EXPECT_EQ(VI_NULL, vi);
  EXPECT_NE("", ErrorOf(VI_NULL).text);
}

TEST_F(Configuration, StoreWithoutTheDriversModuleFailsADescriptorAlsoInSimulation) {
  StoredModule module;
  module.name = "OtherDriver";
  const StoreFile store(StoreText(module, {}));
  EXPECT_STATUS(kNotExist, OpenNamed("SIM", "simulate=1"));
  EXPECT_EQ(VI_NULL, vi);
  EXPECT_THAT(ErrorOf(VI_NULL).text, HasSubstr("KVTD481X2C"));
}

TEST_F(Configuration, MissingStoreFailsWithItsName) {
  ::setenv("IVICONFIGSERVERDEFAULT", "/nowhere/IviConfigurationStore.xml", 1);
  const ViStatus status = OpenNamed("SIM", "simulate=1");
  ::unsetenv("IVICONFIGSERVERDEFAULT");
  EXPECT_STATUS(kDeserializeFailed, status);
  EXPECT_EQ(VI_NULL, vi);
  EXPECT_THAT(ErrorOf(VI_NULL).text, HasSubstr("/nowhere/IviConfigurationStore.xml"));
}

TEST_F(Configuration, DamagedStoresFailWithTheirNameAndLeaveNoSession) {
  const std::string good = StoreText(StoredModule{}, {Simulated()});
  const struct {
    const char* what;
    std::string text;
  } cases[] = {{"empty", ""},
               {"truncated", good.substr(0, good.size() / 2)},
               {"no XML", "hello"},
               {"another root", "<Store/>"},
               {"document type",
                "<!DOCTYPE IviConfigStore [<!ENTITY a \"b\">]><IviConfigStore><Name>&a;</Name></IviConfigStore>"},
               {"dangling reference", StoreText(StoredModule{}, {[] {
                                                  StoredSession session = Simulated();
                                                  session.module = "p999";
                                                  return session;
                                                }()})}};
  for (const auto& [what, text] : cases) {
    const StoreFile store(text);
    EXPECT_STATUS(kDeserializeFailed, OpenNamed("SigGen1", "simulate=1")) << what;
    EXPECT_EQ(VI_NULL, vi) << what;
    EXPECT_THAT(ErrorOf(VI_NULL).text, HasSubstr(store.path())) << what;
  }
}

TEST_F(Configuration, DescriptorWorksOnAMachineWithoutAnyStore) {
  ::unsetenv("IVICONFIGSERVERDEFAULT");
  ASSERT_STATUS(VI_SUCCESS, OpenNamed("SIM", "simulate=1"));
  EXPECT_EQ("", TextAttribute(KVTD481X2C_ATTR_LOGICAL_NAME));
}

}  // namespace
}  // namespace kvtd::test
