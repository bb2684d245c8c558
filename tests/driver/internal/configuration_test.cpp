// What a session object keeps of a configuration store, on an object that is never brought up.

#include "../store/StoreFile.h"
#include "BareSession.h"

namespace kvtd::test {
namespace {

class StoredConfiguration : public BareSession {
 protected:
  void Apply(const std::string& text) {
    const StoreFile store(text);
    ASSERT_EQ(VI_SUCCESS, session().ApplyConfiguration("SigGen1", ""));
  }
  void Apply(const StoredSession& stored) { Apply(StoreText(StoredModule{}, {stored})); }
};

TEST_F(StoredConfiguration, PhysicalNameIsFoundBackInAnyCase) {
  StoredSession stored;
  stored.virtual_names = VirtualRange("Src", "ExtSrc", 1, 3, 7);
  Apply(stored);
  EXPECT_EQ("Src1", session().PhysicalToVirtual("ExtSrc7"));
  EXPECT_EQ("Src2", session().PhysicalToVirtual("EXTSRC8"));
  EXPECT_EQ("Src3", session().PhysicalToVirtual("extsrc9"));
}

TEST_F(StoredConfiguration, NameWithoutAMappingStandsForItself) {
  StoredSession stored;
  stored.virtual_names = VirtualRange("Src", "ExtSrc", 1, 3, 7);
  Apply(stored);
  EXPECT_EQ("none", session().PhysicalToVirtual("none"));
  EXPECT_EQ("", session().PhysicalToVirtual(""));
  EXPECT_EQ("Src4", session().VirtualToPhysical("Src4"));
}

// The way back knows the whole physical name and nothing of its path.
TEST_F(StoredConfiguration, PathOfAPhysicalNameIsLeftOutOnTheWayThereOnly) {
  StoredSession stored;
  stored.virtual_names = VirtualName("Generator", "Path!!Name");
  Apply(stored);
  EXPECT_EQ("Name", session().VirtualToPhysical("generator"));
  EXPECT_EQ("Name", session().PhysicalToVirtual("Name"));
  EXPECT_EQ("Generator", session().PhysicalToVirtual("Path!!Name"));
}

TEST_F(StoredConfiguration, PathEndsWithTheFirstPairOfMarks) {
  Apply(StoredSession{});
  const struct {
    const char* name;
    const char* physical;
  } cases[] = {{"Path!!Name", "Name"}, {"A!!B!!C", "B!!C"}, {"!!Name", "Name"}, {"Path!!", ""}, {"!!", ""},
               {"!!!", "!"},           {"!", "!"},          {"A!B", "A!B"},     {"", ""}};
  for (const auto& [name, physical] : cases) EXPECT_EQ(physical, session().VirtualToPhysical(name)) << name;
}

TEST_F(StoredConfiguration, InitialSettingIsLookedUpInAnyCaseUnderItsTypeAlone) {
  StoredSession stored;
  stored.settings = Setting("Integer", "Channels", "-3") + Setting("Real", "Offset", "-1.5") +
                    Setting("Boolean", "Trace", "1") + Setting("String", "Owner", "Lab 7");
  Apply(stored);
  ViInt32 channels = 77;
  EXPECT_TRUE(session().LookupInitialInt32("CHANNELS", channels));
  EXPECT_EQ(-3, channels);
  ViReal64 offset = 77;
  EXPECT_TRUE(session().LookupInitialReal64("offset", offset));
  EXPECT_EQ(-1.5, offset);
  bool trace = false;
  EXPECT_TRUE(session().LookupInitialBoolean("tRACE", trace));
  EXPECT_TRUE(trace);
  std::string owner;
  EXPECT_TRUE(session().LookupInitialString("oWNER", owner));
  EXPECT_EQ("Lab 7", owner);
}

TEST_F(StoredConfiguration, InitialSettingOfAnotherNameOrTypeIsNotFoundAndWritesNothing) {
  StoredSession stored;
  stored.settings = Setting("Integer", "Channels", "-3") + Setting("Boolean", "Trace", "1");
  Apply(stored);
  ViInt32 integer = 77;
  EXPECT_FALSE(session().LookupInitialInt32("Channel", integer));
  EXPECT_FALSE(session().LookupInitialInt32("Trace", integer));
  EXPECT_EQ(77, integer);
  ViReal64 real = 77;
  EXPECT_FALSE(session().LookupInitialReal64("Channels", real));
  EXPECT_EQ(77.0, real);
  bool boolean = false;
  EXPECT_FALSE(session().LookupInitialBoolean("Channels", boolean));
  EXPECT_FALSE(boolean);
  std::string text = "as it was";
  EXPECT_FALSE(session().LookupInitialString("Trace", text));
  EXPECT_EQ("as it was", text);
}

TEST_F(StoredConfiguration, PhysicalNamesOfTheModuleCarryTheirCapability) {
  std::string text = StoreText(StoredModule{}, {StoredSession{}});
  const std::string none = "<PhysicalNames/>";
  text.replace(text.find(none), none.size(),
               "<PhysicalNames><IviPhysicalName id=\"p90\"><Name>AM</Name><RCName>LFGenerator</RCName>"
               "<PhysicalNames/><PhysicalRanges/></IviPhysicalName><IviPhysicalName id=\"p91\"><Name>Ext1</Name>"
               "<RCName>AnalogModulationSource</RCName><PhysicalNames/><PhysicalRanges/></IviPhysicalName>"
               "</PhysicalNames>");
  Apply(text);
  ASSERT_EQ(2U, session().PhysicalNames().size());
  EXPECT_EQ("LFGenerator", session().PhysicalNames().at("am"));
  EXPECT_EQ("AnalogModulationSource", session().PhysicalNames().at("EXT1"));
}

}  // namespace
}  // namespace kvtd::test
