// The life of a store object: its locations, loading and writing it, the store that stands in for an absent master.
#include <sys/stat.h>

#include <thread>

#include "StoreFixture.h"
#include "TextOut.h"

namespace {

constexpr ViStatus kDeserializeFailed = static_cast<ViStatus>(0xBFFA1200u);
constexpr ViStatus kAlreadyDeserialized = static_cast<ViStatus>(0xBFFA1201u);
constexpr ViStatus kSerializeFailed = static_cast<ViStatus>(0xBFFA1202u);
constexpr ViStatus kSessionNotFound = static_cast<ViStatus>(0xBFFA1203u);
constexpr ViStatus kNotExist = static_cast<ViStatus>(0xBFFA1207u);
constexpr ViStatus kInvalidHandle = static_cast<ViStatus>(0xBFFA1220u);
constexpr ViStatus kInvalidPropertyId = static_cast<ViStatus>(0xBFFA1221u);
constexpr ViStatus kNullPointer = static_cast<ViStatus>(0xBFFA0058u);

class ConfigStore : public StoreFixture {
 protected:
  std::string Property(ViInt32 number) { return Text(IviConfig_GetConfigStorePropertyViString, store, number); }
};

TEST_F(ConfigStore, MasterLocationIsTheOneBuiltIn) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&store));
  EXPECT_EQ(kMaster, Property(3));
}

TEST_F(ConfigStore, ProcessDefaultLocationIsEmptyWithoutTheVariable) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&store));
  EXPECT_EQ("", Property(5));
}

TEST_F(ConfigStore, ProcessDefaultLocationIsTheVariableAsItWasAtInitialize) {
  ::setenv("IVICONFIGSERVERDEFAULT", "/somewhere/store.xml", 1);
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&store));
  ::setenv("IVICONFIGSERVERDEFAULT", "/elsewhere/store.xml", 1);
  EXPECT_EQ("/somewhere/store.xml", Property(5));
}

TEST_F(ConfigStore, SettingTheProcessDefaultLocationIsSeenByStoresInitialisedLater) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&store));
  ASSERT_EQ(VI_SUCCESS, IviConfig_SetConfigStorePropertyViString(store, 5, "/new/store.xml"));
  EXPECT_EQ("/new/store.xml", Property(5));
  IviConfigStoreHandle later = nullptr;
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&later));
  EXPECT_EQ("/new/store.xml", Text(IviConfig_GetConfigStorePropertyViString, later, 5));
  EXPECT_EQ(VI_SUCCESS, IviConfig_Close(later));
}

TEST_F(ConfigStore, AbsentMasterStoreHoldsTheDriversModuleAndNothingElse) {
  ASSERT_EQ(VI_SUCCESS, Load(&store, kMaster));
  Handle modules, module, names, components, item, session;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetConfigStoreSoftwareModuleCollection(store, &modules));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSoftwareModuleItemByName(modules, "KVTD481X2C", &module));
  ViInt32 count = 77;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSoftwareModulePhysicalNameCollection(module, &names));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetPhysicalNameCount(names, &count));
  EXPECT_EQ(0, count);
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetConfigComponentDataComponentCollection(module, &components));
  EXPECT_EQ(kNotExist, IviConfig_GetDataComponentItemByName(components, "Configurable Initial Settings", &item));
  EXPECT_EQ(kSessionNotFound, IviConfig_GetDriverSession(store, "TCPIP0::127.0.0.1::5025::SOCKET", &session));
  EXPECT_EQ("", Property(4)) << "a store that is nowhere has no location";
}

TEST_F(ConfigStore, MasterStoreIsReadWhenItIsThere) {
  Write(kMaster, SampleStore());
  ASSERT_EQ(VI_SUCCESS, Load(&store, kMaster));
  Handle session;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  EXPECT_EQ(kMaster, Property(4));
}

TEST_F(ConfigStore, MalformedMasterStoreIsNotReplacedByTheBuiltInOne) {
  Write(kMaster, "<IviConfigStore>");
  EXPECT_EQ(kDeserializeFailed, Load(&store, kMaster));
}

TEST_F(ConfigStore, NamedFileThatIsMissingIsAnErrorThatNamesIt) {
  EXPECT_EQ(kDeserializeFailed, Load(&store, "/nowhere/at/all.xml"));
  EXPECT_EQ("IviConfig_Deserialize: /nowhere/at/all.xml: no such file", Error());
}

TEST_F(ConfigStore, FileThatCannotBeOpenedIsAnErrorThatNamesItAndTheReason) {
  std::filesystem::create_symlink("loop.xml", "loop.xml");
  EXPECT_EQ(kDeserializeFailed, Load(&store, "loop.xml"));
  EXPECT_EQ("IviConfig_Deserialize: loop.xml: Too many levels of symbolic links", Error());
  EXPECT_EQ(kDeserializeFailed, IviConfig_Deserialize(store, std::string(300, 'x').c_str()));
  EXPECT_NE(std::string::npos, Error().find("File name too long"));
}

TEST_F(ConfigStore, WhatIsNoRegularFileIsRefusedWithoutWaiting) {
  ASSERT_EQ(0, ::mkfifo("pipe", 0600));
  EXPECT_EQ(kDeserializeFailed, Load(&store, "pipe"));
  EXPECT_EQ("IviConfig_Deserialize: pipe: not a regular file", Error());
  EXPECT_EQ(kDeserializeFailed, IviConfig_Deserialize(store, "."));
  EXPECT_EQ("IviConfig_Deserialize: .: not a regular file", Error());
  EXPECT_EQ(kDeserializeFailed, IviConfig_Deserialize(store, ""));
}

TEST_F(ConfigStore, FileOfHundredMegabytesIsRefusedBySizeAlone) {
  Write("store.xml", SampleStore());
  std::filesystem::resize_file("store.xml", 100'000'000);
  EXPECT_EQ(kDeserializeFailed, Load(&store, "store.xml"));
  EXPECT_EQ("IviConfig_Deserialize: store.xml: 100000000 bytes, more than the 64 MiB that a store may have", Error());
}

TEST_F(ConfigStore, IsLoadedOnce) {
  Open(SampleStore());
  EXPECT_EQ(kAlreadyDeserialized, IviConfig_Deserialize(store, "store.xml"));
  EXPECT_EQ("IviConfig_Deserialize: the store object was loaded before", Error());
}

TEST_F(ConfigStore, IsAsBeforeAfterAFailedLoadAndCanBeLoadedThen) {
  EXPECT_EQ(kDeserializeFailed, Load(&store, "missing.xml"));
  Handle session;
  EXPECT_EQ(kSessionNotFound, IviConfig_GetDriverSession(store, "SigGen1", &session));
  Write("store.xml", SampleStore());
  EXPECT_EQ(VI_SUCCESS, IviConfig_Deserialize(store, "store.xml"));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
}

TEST_F(ConfigStore, IsEmptyBeforeItIsLoaded) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&store));
  Handle modules, module;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetConfigStoreSoftwareModuleCollection(store, &modules));
  EXPECT_EQ(kNotExist, IviConfig_GetSoftwareModuleItemByName(modules, "KVTD481X2C", &module));
  EXPECT_EQ("IviConfig_GetSoftwareModuleItemByName: no software module is named 'KVTD481X2C'", Error());
}

TEST_F(ConfigStore, TellsWhatItSaysOfItself) {
  Open(SampleStore());
  EXPECT_EQ("IVI Configuration Server", Property(1));
  EXPECT_EQ("Sample store", Property(2));
  EXPECT_EQ("store.xml", Property(4));
  EXPECT_EQ("1.0.0.0", Property(6));
  EXPECT_EQ("Example", Property(7));
  ViInt32 number = 77;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetConfigStorePropertyViInt32(store, 8, &number));
  EXPECT_EQ(1, number);
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetConfigStorePropertyViInt32(store, 9, &number));
  EXPECT_EQ(6, number);
}

TEST_F(ConfigStore, PropertyNumbersOfAnotherTypeAreRefused) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&store));
  ViChar text[8] = "as was";
  ViInt32 number = 77;
  for (const ViInt32 property : {0, 8, 9, 10, -1}) {
    EXPECT_EQ(kInvalidPropertyId, IviConfig_GetConfigStorePropertyViString(store, property, 8, text));
  }
  EXPECT_EQ("IviConfig_GetConfigStorePropertyViString: the property -1 is no text property of this class", Error());
  EXPECT_EQ(kInvalidPropertyId, IviConfig_GetConfigStorePropertyViInt32(store, 1, &number));
  for (const ViInt32 property : {3, 4, 6, 7, 8}) {
    EXPECT_EQ(kInvalidPropertyId, IviConfig_SetConfigStorePropertyViString(store, property, "x"));
  }
  EXPECT_STREQ("as was", text);
  EXPECT_EQ(77, number);
}

TEST_F(ConfigStore, NullArgumentsAreRefused) {
  EXPECT_EQ(kNullPointer, IviConfig_Initialize(nullptr));
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&store));
  Handle session;
  EXPECT_EQ(kNullPointer, IviConfig_Deserialize(store, nullptr));
  EXPECT_EQ(kNullPointer, IviConfig_Serialize(store, nullptr));
  EXPECT_EQ(kNullPointer, IviConfig_GetDriverSession(store, nullptr, &session));
  EXPECT_EQ(kNullPointer, IviConfig_GetDriverSession(store, "SigGen1", nullptr));
  EXPECT_EQ(kNullPointer, IviConfig_GetConfigStorePropertyViInt32(store, 8, nullptr));
  EXPECT_EQ(kNullPointer, IviConfig_GetConfigStorePropertyViString(store, 3, 8, nullptr));
  EXPECT_EQ(kNullPointer, IviConfig_SetConfigStorePropertyViString(store, 1, nullptr));
}

TEST_F(ConfigStore, TextPropertiesFollowTheBufferRule) {
  Open(SampleStore());
  ExpectBufferRule("IVI Configuration Server", [this](ViInt32 size, ViChar* buffer) {
    return IviConfig_GetConfigStorePropertyViString(store, 1, size, buffer);
  });
}

TEST_F(ConfigStore, WrittenStoreReadsBackTheSame) {
  Open(SampleStore());
  ASSERT_EQ(VI_SUCCESS, IviConfig_SetConfigStorePropertyViString(store, 2, "Changed & <written>"));
  ASSERT_EQ(VI_SUCCESS, IviConfig_Serialize(store, "copy.xml"));
  IviConfigStoreHandle copy = nullptr;
  ASSERT_EQ(VI_SUCCESS, Load(&copy, "copy.xml")) << Error();
  EXPECT_EQ("Changed & <written>", Text(IviConfig_GetConfigStorePropertyViString, copy, 2));
  Handle session;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(copy, "SigGen1", &session));
  EXPECT_EQ("Model:TD48142C", Text(IviConfig_GetDriverSessionPropertyViString, session, 10));
}

TEST_F(ConfigStore, WritingKeepsWhatTheComponentDoesNotRead) {
  Open(SampleStoreWith("<DriverSessions>",
                       "<!-- bench 4 --><Vendor42 a=\"1\"><Deep>  </Deep>&lt;x&gt;</Vendor42><DriverSessions>"));
  ASSERT_EQ(VI_SUCCESS, IviConfig_Serialize(store, "copy.xml"));
  const std::string copy = Read("copy.xml");
  EXPECT_NE(std::string::npos, copy.find("<!-- bench 4 -->"));
  EXPECT_NE(std::string::npos, copy.find("<Vendor42 a=\"1\">"));
  EXPECT_NE(std::string::npos, copy.find("<Deep>  </Deep>"));
  EXPECT_NE(std::string::npos, copy.find("&lt;x&gt;"));
}

TEST_F(ConfigStore, StoreThatWasNeverLoadedIsWrittenAsAnEmptyOne) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&store));
  ASSERT_EQ(VI_SUCCESS, IviConfig_SetConfigStorePropertyViString(store, 1, "New"));
  ASSERT_EQ(VI_SUCCESS, IviConfig_Serialize(store, "new.xml"));
  ASSERT_EQ(VI_SUCCESS, IviConfig_Deserialize(store, "new.xml"));
  EXPECT_EQ("New", Property(1));
}

TEST_F(ConfigStore, WritingKeepsPermissionsAndLeavesNothingElseBehind) {
  Open(SampleStore());
  ASSERT_EQ(0, ::chmod("store.xml", 0640));
  ASSERT_EQ(VI_SUCCESS, IviConfig_Serialize(store, "store.xml"));
  struct stat status {};
  ASSERT_EQ(0, ::stat("store.xml", &status));
  EXPECT_EQ(0640u, status.st_mode & 0777u);
  EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator("."), {}));
}

TEST_F(ConfigStore, WritingThroughALinkWritesTheFileItLeadsTo) {
  std::filesystem::create_directory("real");
  Write("real/store.xml", SampleStore());
  std::filesystem::create_symlink("real/store.xml", "link.xml");
  ASSERT_EQ(VI_SUCCESS, Load(&store, "link.xml"));
  ASSERT_EQ(VI_SUCCESS, IviConfig_SetConfigStorePropertyViString(store, 1, "Through the link"));
  ASSERT_EQ(VI_SUCCESS, IviConfig_Serialize(store, "link.xml"));
  EXPECT_TRUE(std::filesystem::is_symlink("link.xml"));
  EXPECT_NE(std::string::npos, Read("real/store.xml").find("Through the link"));
}

TEST_F(ConfigStore, PlaceThatCannotBeWrittenIsAnErrorAndStaysAsItWas) {
  Open(SampleStore());
  EXPECT_EQ(kSerializeFailed, IviConfig_Serialize(store, "no/such/folder/store.xml"));
  EXPECT_NE(std::string::npos, Error().find("no/such/folder/store.xml"));
  std::filesystem::create_directory("folder");
  EXPECT_EQ(kSerializeFailed, IviConfig_Serialize(store, "folder"));
  EXPECT_EQ("IviConfig_Serialize: folder: not a regular file", Error());
  EXPECT_TRUE(std::filesystem::is_directory("folder"));
}

TEST_F(ConfigStore, ErrorTextIsThatOfTheLastFailureAndIsGivenOutOnce) {
  EXPECT_EQ(kDeserializeFailed, Load(&store, "first.xml"));
  EXPECT_EQ(kDeserializeFailed, IviConfig_Deserialize(store, "second.xml"));
  EXPECT_EQ("IviConfig_Deserialize: second.xml: no such file", Error());
  EXPECT_EQ("", Error());
}

TEST_F(ConfigStore, ErrorTextFollowsTheBufferRuleAndStaysUntilItWentOutWhole) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&store));
  ExpectBufferRule("IviConfig_Deserialize: x: no such file", [this](ViInt32 size, ViChar* buffer) {
    EXPECT_EQ(kDeserializeFailed, IviConfig_Deserialize(store, "x"));
    return IviConfig_GetError(size, buffer);
  });
  EXPECT_EQ(kDeserializeFailed, IviConfig_Deserialize(store, "x"));
  ViChar part[10];
  EXPECT_LT(0, IviConfig_GetError(10, part));
  EXPECT_LT(0, IviConfig_GetError(0, nullptr));
  EXPECT_EQ("IviConfig_Deserialize: x: no such file", Error());
}

TEST_F(ConfigStore, ErrorTextCanBeForgottenAndIsTheThreadsOwn) {
  EXPECT_EQ(kDeserializeFailed, Load(&store, "x"));
  std::thread([] { EXPECT_EQ("", Error()); }).join();
  EXPECT_EQ(VI_SUCCESS, IviConfig_ClearError());
  EXPECT_EQ("", Error());
}

TEST_F(ConfigStore, StoresAreIndependentOfEachOther) {
  Open(SampleStore());
  IviConfigStoreHandle other = nullptr;
  ASSERT_EQ(VI_SUCCESS, Load(&other, kMaster));
  Handle session;
  EXPECT_EQ(kSessionNotFound, IviConfig_GetDriverSession(other, "SigGen1", &session));
  EXPECT_EQ(VI_SUCCESS, IviConfig_Close(other));
  EXPECT_EQ(kInvalidHandle, IviConfig_Close(other));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
}

}  // namespace
