// What the sample store says, asked for through every function.
#include "StoreFixture.h"
#include "TextOut.h"

namespace {

constexpr ViStatus kSessionNotFound = static_cast<ViStatus>(0xBFFA1203u);
constexpr ViStatus kNotInGlobal = static_cast<ViStatus>(0xBFFA1204u);
constexpr ViStatus kNotExist = static_cast<ViStatus>(0xBFFA1207u);
constexpr ViStatus kInvalidDataComponent = static_cast<ViStatus>(0xBFFA1208u);
constexpr ViStatus kInvalidPropertyId = static_cast<ViStatus>(0xBFFA1221u);
constexpr ViStatus kNullPointer = static_cast<ViStatus>(0xBFFA0058u);

class ConfigObject : public StoreFixture {
 protected:
  void SetUp() override {
    StoreFixture::SetUp();
    Open(SampleStore());
    ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session_));
  }

  // The structure of initial settings of the session.
  void OpenSettings(IviConfigHandle* settings) {
    Handle components, structure;
    ASSERT_EQ(VI_SUCCESS, IviConfig_GetConfigComponentDataComponentCollection(session_, &components));
    ASSERT_EQ(VI_SUCCESS,
              IviConfig_GetDataComponentItemByName(components, "Configurable Initial Settings", &structure));
    ASSERT_EQ(VI_SUCCESS, IviConfig_GetStructureDataComponentCollection(structure, settings));
  }

  IviDriverSessionHandle session_ = nullptr;
};

TEST_F(ConfigObject, SessionIsFoundByLogicalNameAndByItsOwn) {
  Handle own;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "BenchSession", &own));
  EXPECT_EQ("BenchSession", Text(IviConfig_GetDriverSessionPropertyViString, session_, 1));
  EXPECT_EQ("BenchSession", Text(IviConfig_GetDriverSessionPropertyViString, own, 1));
}

TEST_F(ConfigObject, NamesCompareByteForByte) {
  for (const char* name : {"siggen1", "SigGen1 ", " SigGen1", "SigGen", "benchsession", ""}) {
    int something = 0;
    IviDriverSessionHandle session = &something;
    EXPECT_EQ(kSessionNotFound, IviConfig_GetDriverSession(store, name, &session)) << name;
    EXPECT_EQ(nullptr, session);
  }
  EXPECT_EQ("IviConfig_GetDriverSession: '' is neither a logical name nor a session of the store", Error());
}

TEST_F(ConfigObject, SessionOfAnyKindFindsTheDriverSession) {
  Handle by_logical_name, by_name, module;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetSession(store, "SigGen1", &by_logical_name));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetSession(store, "BenchSession", &by_name));
  EXPECT_EQ("BenchSession", Text(IviConfig_GetDriverSessionPropertyViString, by_name, 1));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetSessionSoftwareModuleReference(by_logical_name, &module));
}

TEST_F(ConfigObject, DriverSessionGivesItsTexts) {
  EXPECT_EQ("", Text(IviConfig_GetDriverSessionPropertyViString, session_, 2));
  EXPECT_EQ("KVTD481X2C", Text(IviConfig_GetDriverSessionPropertyViString, session_, 3));
  EXPECT_EQ("Model:TD48142C", Text(IviConfig_GetDriverSessionPropertyViString, session_, 10));
  ExpectBufferRule("Model:TD48142C", [this](ViInt32 size, ViChar* buffer) {
    return IviConfig_GetDriverSessionPropertyViString(session_, 10, size, buffer);
  });
}

TEST_F(ConfigObject, DriverSessionGivesItsBooleans) {
  const ViBoolean expected[] = {1, 0, 1, 1, 0, 0};
  for (ViInt32 property = 4; property <= 9; ++property) {
    ViBoolean value = 77;
    EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSessionPropertyViBoolean(session_, property, &value));
    EXPECT_EQ(expected[property - 4], value) << "property " << property;
  }
}

TEST_F(ConfigObject, DriverSessionRefusesPropertiesOfAnotherType) {
  ViBoolean value = 77;
  ViChar text[4];
  for (const ViInt32 property : {0, 1, 3, 10, 11}) {
    EXPECT_EQ(kInvalidPropertyId, IviConfig_GetDriverSessionPropertyViBoolean(session_, property, &value));
  }
  for (const ViInt32 property : {0, 4, 9, 11}) {
    EXPECT_EQ(kInvalidPropertyId, IviConfig_GetDriverSessionPropertyViString(session_, property, 4, text));
  }
  EXPECT_EQ(77, value);
  EXPECT_EQ(kNullPointer, IviConfig_GetDriverSessionPropertyViBoolean(session_, 4, nullptr));
}

TEST_F(ConfigObject, HardwareAssetGivesTheResourceDescriptor) {
  Handle asset;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionHardwareAssetReference(session_, &asset));
  EXPECT_EQ("Bench generator", Text(IviConfig_GetHardwareAssetPropertyViString, asset, 1));
  EXPECT_EQ("", Text(IviConfig_GetHardwareAssetPropertyViString, asset, 2));
  EXPECT_EQ("TCPIP0::127.0.0.1::5025::SOCKET", Text(IviConfig_GetHardwareAssetPropertyViString, asset, 3));
  ViChar text[4];
  EXPECT_EQ(kInvalidPropertyId, IviConfig_GetHardwareAssetPropertyViString(asset, 4, 4, text));
  ExpectBufferRule("Bench generator", [&](ViInt32 size, ViChar* buffer) {
    return IviConfig_GetHardwareAssetPropertyViString(asset, 1, size, buffer);
  });
}

TEST_F(ConfigObject, VirtualNamesAndTheirRangesAreCountedFromOne) {
  Handle names, src, ranges, range, main, none;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionVirtualNameCollection(session_, &names));
  ViInt32 count = 0;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetVirtualNameCount(names, &count));
  ASSERT_EQ(2, count);
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetVirtualNameItemByIndex(names, 1, &src));
  EXPECT_EQ("Src", Text(IviConfig_GetVirtualNamePropertyViString, src, 1));
  EXPECT_EQ("ExtSrc", Text(IviConfig_GetVirtualNamePropertyViString, src, 2));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetVirtualNameVirtualRangeCollection(src, &ranges));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetVirtualRangeCount(ranges, &count));
  ASSERT_EQ(1, count);
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetVirtualRangeItemByIndex(ranges, 1, &range));
  const ViInt32 expected[] = {1, 3, 7};
  for (ViInt32 property = 2; property <= 4; ++property) {
    ViInt32 value = 77;
    EXPECT_EQ(VI_SUCCESS, IviConfig_GetVirtualRangePropertyViInt32(range, property, &value));
    EXPECT_EQ(expected[property - 2], value);
  }
  ViInt32 untouched = 77;
  EXPECT_EQ(kInvalidPropertyId, IviConfig_GetVirtualRangePropertyViInt32(range, 1, &untouched));
  EXPECT_EQ(kInvalidPropertyId, IviConfig_GetVirtualRangePropertyViInt32(range, 5, &untouched));
  EXPECT_EQ(77, untouched);

  ASSERT_EQ(VI_SUCCESS, IviConfig_GetVirtualNameItemByIndex(names, 2, &main));
  EXPECT_EQ("Main", Text(IviConfig_GetVirtualNamePropertyViString, main, 1));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetVirtualNameVirtualRangeCollection(main, &none));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetVirtualRangeCount(none, &count));
  EXPECT_EQ(0, count);
}

TEST_F(ConfigObject, IndexOutsideTheCollectionGivesANullHandleAndSaysSo) {
  Handle names;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionVirtualNameCollection(session_, &names));
  for (const ViInt32 index : {0, 3, -1, 2147483647, -2147483647 - 1}) {
    int something = 0;
    IviVirtualNameHandle item = &something;
    EXPECT_EQ(kNotExist, IviConfig_GetVirtualNameItemByIndex(names, index, &item));
    EXPECT_EQ(nullptr, item);
  }
  IviVirtualNameHandle item = nullptr;
  EXPECT_EQ(kNotExist, IviConfig_GetVirtualNameItemByIndex(names, 3, &item));
  EXPECT_EQ("IviConfig_GetVirtualNameItemByIndex: the index 3 is outside 1 to 2", Error());
}

TEST_F(ConfigObject, PhysicalNamesComeFromTheSoftwareModule) {
  Handle module, names, first, second;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionSoftwareModuleReference(session_, &module));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSoftwareModulePhysicalNameCollection(module, &names));
  ViInt32 count = 0;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetPhysicalNameCount(names, &count));
  ASSERT_EQ(2, count);
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetPhysicalNameItemByIndex(names, 1, &first));
  EXPECT_EQ("ExtSrc", Text(IviConfig_GetPhysicalNamePropertyViString, first, 1));
  EXPECT_EQ("AnalogModulationSource", Text(IviConfig_GetPhysicalNamePropertyViString, first, 2));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetPhysicalNameItemByIndex(names, 2, &second));
  EXPECT_EQ("AM", Text(IviConfig_GetPhysicalNamePropertyViString, second, 1));
  EXPECT_EQ("LFGenerator", Text(IviConfig_GetPhysicalNamePropertyViString, second, 2));
  ViChar text[4];
  EXPECT_EQ(kInvalidPropertyId, IviConfig_GetPhysicalNamePropertyViString(second, 3, 4, text));
}

TEST_F(ConfigObject, InitialSettingsAreReadByTheirTypes) {
  Handle settings, model, retries, offset, trace;
  OpenSettings(&settings);
  ViInt32 count = 0;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentCount(settings, &count));
  ASSERT_EQ(4, count);
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByIndex(settings, 1, &model));
  EXPECT_EQ("Model", Text(IviConfig_GetDataComponentPropertyViString, model, 1));
  EXPECT_EQ("String", Text(IviConfig_GetDataComponentPropertyViString, model, 7));
  EXPECT_EQ("Optional", Text(IviConfig_GetDataComponentPropertyViString, model, 8));
  EXPECT_EQ("TD48142C", Text(IviConfig_GetDataComponentPropertyViString, model, 9));
  ExpectBufferRule("TD48142C", [&](ViInt32 size, ViChar* buffer) {
    return IviConfig_GetDataComponentPropertyViString(model, 9, size, buffer);
  });

  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByIndex(settings, 2, &retries));
  EXPECT_EQ("Integer", Text(IviConfig_GetDataComponentPropertyViString, retries, 7));
  EXPECT_EQ("", Text(IviConfig_GetDataComponentPropertyViString, retries, 10));
  ViInt32 integer = 0;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentPropertyViInt32(retries, 9, &integer));
  EXPECT_EQ(3, integer);
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentPropertyViInt32(retries, 3, &integer));
  EXPECT_EQ(0, integer);

  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByIndex(settings, 3, &offset));
  EXPECT_EQ("Real", Text(IviConfig_GetDataComponentPropertyViString, offset, 7));
  EXPECT_EQ("dB", Text(IviConfig_GetDataComponentPropertyViString, offset, 10));
  ViReal64 real = 0.0;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentPropertyViReal64(offset, 9, &real));
  EXPECT_EQ(-1.5, real);

  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByIndex(settings, 4, &trace));
  EXPECT_EQ("Boolean", Text(IviConfig_GetDataComponentPropertyViString, trace, 7));
  ViBoolean boolean = 77;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentPropertyViBoolean(trace, 9, &boolean));
  EXPECT_EQ(VI_TRUE, boolean);
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentPropertyViBoolean(trace, 5, &boolean));
  EXPECT_EQ(VI_FALSE, boolean);
}

TEST_F(ConfigObject, ValueAskedForAsAnotherTypeIsRefusedWithItsType) {
  Handle settings, model, retries;
  OpenSettings(&settings);
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByName(settings, "Model", &model));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByName(settings, "Retries", &retries));
  ViInt32 integer = 77;
  ViReal64 real = 77;
  ViBoolean boolean = 77;
  ViChar text[4] = "as";
  EXPECT_EQ(kInvalidDataComponent, IviConfig_GetDataComponentPropertyViInt32(model, 9, &integer));
  EXPECT_EQ("IviConfig_GetDataComponentPropertyViInt32: the value of 'Model' is of the type String", Error());
  EXPECT_EQ(kInvalidDataComponent, IviConfig_GetDataComponentPropertyViReal64(retries, 9, &real));
  EXPECT_EQ(kInvalidDataComponent, IviConfig_GetDataComponentPropertyViBoolean(retries, 9, &boolean));
  EXPECT_EQ(kInvalidDataComponent, IviConfig_GetDataComponentPropertyViString(retries, 9, 4, text));
  EXPECT_EQ(77, integer);
  EXPECT_EQ(77, real);
  EXPECT_EQ(77, boolean);
  EXPECT_STREQ("as", text);
}

TEST_F(ConfigObject, DataComponentRefusesUnknownProperties) {
  Handle settings, model;
  OpenSettings(&settings);
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByName(settings, "Model", &model));
  ViInt32 integer = 0;
  ViReal64 real = 0;
  ViBoolean boolean = 0;
  ViChar text[4];
  for (const ViInt32 property : {0, 3, 5, 10, 11}) {  // a string has no units
    EXPECT_EQ(kInvalidPropertyId, IviConfig_GetDataComponentPropertyViString(model, property, 4, text)) << property;
  }
  EXPECT_EQ(kInvalidPropertyId, IviConfig_GetDataComponentPropertyViInt32(model, 1, &integer));
  EXPECT_EQ(kInvalidPropertyId, IviConfig_GetDataComponentPropertyViReal64(model, 3, &real));
  EXPECT_EQ(kInvalidPropertyId, IviConfig_GetDataComponentPropertyViBoolean(model, 7, &boolean));
}

TEST_F(ConfigObject, OnlyAStructureHasMembers) {
  Handle settings, model;
  OpenSettings(&settings);
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByName(settings, "Model", &model));
  IviDataComponentCollectionHandle members = nullptr;
  EXPECT_EQ(kInvalidDataComponent, IviConfig_GetStructureDataComponentCollection(model, &members));
  EXPECT_EQ(nullptr, members);
}

TEST_F(ConfigObject, ModuleAndAssetHaveDataComponentsToo) {
  Handle module, asset, of_module, of_asset, structure, none;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionSoftwareModuleReference(session_, &module));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionHardwareAssetReference(session_, &asset));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetConfigComponentDataComponentCollection(module, &of_module));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetConfigComponentDataComponentCollection(asset, &of_asset));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByName(of_module, "Configurable Initial Settings", &structure));
  EXPECT_EQ("Structure", Text(IviConfig_GetDataComponentPropertyViString, structure, 7));
  EXPECT_EQ(kNotExist, IviConfig_GetDataComponentItemByName(of_asset, "Configurable Initial Settings", &none));
}

TEST_F(ConfigObject, SessionWithoutAnAssetGivesANullHandleAndSuccess) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Close(store));
  Open(SampleStoreWith("<IviHardwareAsset idref=\"p9\"/>", ""));
  Handle session;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  int something = 0;
  IviHardwareAssetHandle asset = &something;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetSessionHardwareAssetReference(session, &asset));
  EXPECT_EQ(nullptr, asset);
}

TEST_F(ConfigObject, SessionWhoseModuleWasUninstalledSaysWhichOne) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Close(store));
  Open(SampleStoreWith("<IviSoftwareModuleRef idref=\"p3\"/>", ""));
  Handle session;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  int something = 0;
  IviSoftwareModuleHandle module = &something;
  EXPECT_EQ(kNotInGlobal, IviConfig_GetSessionSoftwareModuleReference(session, &module));
  EXPECT_EQ(nullptr, module);
  EXPECT_EQ(
      "IviConfig_GetSessionSoftwareModuleReference: the software module 'KVTD481X2C' of the session 'BenchSession' is "
      "not in the store",
      Error());
}

TEST_F(ConfigObject, LogicalNameWinsOverADriverSessionOfTheSameName) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Close(store));
  Open(SampleStoreWith("</DriverSessions>",
                       "<IviDriverSession id=\"x1\"><Name>SigGen1</Name></IviDriverSession></DriverSessions>"));
  Handle session;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  EXPECT_EQ("BenchSession", Text(IviConfig_GetDriverSessionPropertyViString, session, 1));
}

TEST_F(ConfigObject, LogicalNameOfAnotherKindOfSessionLeadsToTheDriverSessionOfThatName) {
  ASSERT_EQ(VI_SUCCESS, IviConfig_Close(store));
  std::string text = SampleStoreWith("<Sessions>", "<Sessions><IviSession id=\"x1\"><Name>Plain</Name></IviSession>");
  text.replace(text.find("<LogicalNames>"), 14,
               "<LogicalNames><IviLogicalName id=\"x2\"><Name>BenchSession</Name><IviSession idref=\"x1\"/>"
               "</IviLogicalName>");
  Open(text);
  Handle driver, any, plain;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "BenchSession", &driver));
  EXPECT_EQ("KVTD481X2C", Text(IviConfig_GetDriverSessionPropertyViString, driver, 3));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetSession(store, "BenchSession", &any));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetSession(store, "Plain", &plain));
  IviDriverSessionHandle none = nullptr;
  EXPECT_EQ(kSessionNotFound, IviConfig_GetDriverSession(store, "Plain", &none));
  ViBoolean value = 0;
  EXPECT_GT(0, IviConfig_GetDriverSessionPropertyViBoolean(plain, 4, &value)) << "it is no driver session";
}

}  // namespace
