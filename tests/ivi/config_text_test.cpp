// What makes a file a configuration store: which ones are read all the same, which are refused, and with what text.
#include <gmock/gmock.h>

#include "StoreFixture.h"

namespace {

constexpr ViStatus kDeserializeFailed = static_cast<ViStatus>(0xBFFA1200u);

class ConfigText : public StoreFixture {
 protected:
  // The error text of a store that must be refused.
  std::string Refusal(std::string_view text) {
    Write("store.xml", text);
    IviConfigStoreHandle refused = nullptr;
    EXPECT_EQ(kDeserializeFailed, Load(&refused, "store.xml"));
    EXPECT_EQ(VI_SUCCESS, IviConfig_Close(refused));
    const std::string error = Error();
    const std::string_view prefix = "IviConfig_Deserialize: store.xml, ";
    EXPECT_THAT(error, ::testing::StartsWith(std::string(prefix)));
    return error.substr(std::min(error.size(), prefix.size()));
  }

  // Of the sample store with one piece replaced.
  std::string Refusal(const std::string& piece, const std::string& replacement) {
    return Refusal(SampleStoreWith(piece, replacement));
  }

  // Opens a store with one driver session "S" that has this content.
  void OpenSession(const std::string& content) {
    Open("<IviConfigStore><DriverSessions><IviDriverSession id=\"s\"><Name>S</Name>" + content +
         "</IviDriverSession></DriverSessions></IviConfigStore>");
    ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "S", &session)) << Error();
  }
  std::string DriverSetup() { return Text(IviConfig_GetDriverSessionPropertyViString, session, 10); }
  ViBoolean Simulate() {
    ViBoolean value = 77;
    EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSessionPropertyViBoolean(session, 9, &value));
    return value;
  }

  IviDriverSessionHandle session = nullptr;
};

// Read all the same.

TEST_F(ConfigText, EmptyRootIsAStore) { Open("<IviConfigStore/>"); }

TEST_F(ConfigText, ByteOrderMarkIsSkipped) { Open("\xEF\xBB\xBF" + SampleStore()); }

TEST_F(ConfigText, MissingElementsAreEmptyOrFalse) {
  OpenSession("");
  EXPECT_EQ("", DriverSetup());
  EXPECT_EQ(VI_FALSE, Simulate());
}

TEST_F(ConfigText, UnknownElementsAndAttributesAreTolerated) {
  OpenSession("<Colour shade=\"dark\"><Simulate>1</Simulate></Colour><DriverSetup a=\"b\">x</DriverSetup>");
  EXPECT_EQ("x", DriverSetup());
  EXPECT_EQ(VI_FALSE, Simulate()) << "an element counts in its own place only";
}

TEST_F(ConfigText, BooleansAreDigitsOrWords) {
  for (const char* yes : {"1", "true", " 1\n"}) {
    OpenSession(std::string("<Simulate>") + yes + "</Simulate>");
    EXPECT_EQ(VI_TRUE, Simulate()) << yes;
    ASSERT_EQ(VI_SUCCESS, IviConfig_Close(store));
  }
  for (const char* no : {"0", "false", "", " \n "}) {
    OpenSession(std::string("<Simulate>") + no + "</Simulate>");
    EXPECT_EQ(VI_FALSE, Simulate()) << no;
    ASSERT_EQ(VI_SUCCESS, IviConfig_Close(store));
  }
  store = nullptr;
}

TEST_F(ConfigText, TextIsPutTogetherFromItsPieces) {
  OpenSession("<DriverSetup>a&amp;b&lt;c&gt;&quot;&apos;&#65;&#x42;<!-- no --><![CDATA[<&x>]]>d</DriverSetup>");
  EXPECT_EQ("a&b<c>\"'AB<&x>d", DriverSetup());
}

TEST_F(ConfigText, WhiteSpaceAloneIsEmptyAndAroundTextIsKept) {
  OpenSession("<DriverSetup>\n      </DriverSetup><Description> x </Description>");
  EXPECT_EQ("", DriverSetup());
  EXPECT_EQ(" x ", Text(IviConfig_GetDriverSessionPropertyViString, session, 2));
}

TEST_F(ConfigText, TextBeyondAsciiComesBackByteForByte) {
  OpenSession("<DriverSetup>M\xC3\xBCnchen \xE2\x82\xAC \xF0\x9F\x93\xA1</DriverSetup>");
  EXPECT_EQ("M\xC3\xBCnchen \xE2\x82\xAC \xF0\x9F\x93\xA1", DriverSetup());
}

TEST_F(ConfigText, ReferencesMayBearTheNameOfTheClassOrRefBehindIt) {
  for (const char* module : {"IviSoftwareModule", "IviSoftwareModuleRef"}) {
    for (const char* asset : {"IviHardwareAsset", "IviHardwareAssetRef"}) {
      std::string text = SampleStoreWith("<IviSoftwareModuleRef idref", "<" + std::string(module) + " idref");
      text.replace(text.find("<IviHardwareAsset idref"), 23, "<" + std::string(asset) + " idref");
      Open(text);
      Handle found, of_module, of_asset;
      ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &found));
      EXPECT_EQ(VI_SUCCESS, IviConfig_GetSessionSoftwareModuleReference(found, &of_module));
      EXPECT_EQ(VI_SUCCESS, IviConfig_GetSessionHardwareAssetReference(found, &of_asset));
      EXPECT_NE(nullptr, static_cast<IviConfigHandle>(of_asset));
    }
    const IviConfigStoreHandle last = store;
    store = nullptr;
    EXPECT_EQ(VI_SUCCESS, IviConfig_Close(last));
  }
}

TEST_F(ConfigText, LogicalNameMayReferByDriverSessionRefOrBySession) {
  for (const char* name : {"IviDriverSession", "IviDriverSessionRef", "IviSession", "IviSessionRef"}) {
    Open(SampleStoreWith("<Description/>\n      <IviDriverSession idref=\"p10\"/>",
                         "<" + std::string(name) + " idref=\"p10\"/>"));
    EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session)) << name;
    const IviConfigStoreHandle last = store;
    store = nullptr;
    EXPECT_EQ(VI_SUCCESS, IviConfig_Close(last));
  }
}

TEST_F(ConfigText, SectionsMayStandInAnyOrder) {
  std::string text = SampleStore();
  const size_t begin = text.find("  <LogicalNames>");
  const std::string names = text.substr(begin, text.find("</IviConfigStore>") - begin);
  text.erase(begin, names.size());
  text.insert(text.find("  <PublishedAPIs>"), names);
  Open(text);
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
}

TEST_F(ConfigText, LogicalNameOfNothingIsFoundByNobody) {
  Open(SampleStoreWith("<Description/>\n      <IviDriverSession idref=\"p10\"/>", ""));
  EXPECT_GT(0, IviConfig_GetDriverSession(store, "SigGen1", &session));
}

TEST_F(ConfigText, NumbersAreReadWhateverTheirForm) {
  OpenSession(
      "<DataComponents>"
      "<IviInteger><Name>i</Name><Value> -2147483648 </Value></IviInteger>"
      "<IviInteger><Name>j</Name><Value>+7</Value></IviInteger>"
      "<IviReal><Name>r</Name><Value>1.25E-3</Value></IviReal>"
      "<IviUnheardOf><Name>u</Name></IviUnheardOf>"
      "</DataComponents>");
  Handle components, i, j, r;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetConfigComponentDataComponentCollection(session, &components));
  ViInt32 count = 0;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentCount(components, &count));
  EXPECT_EQ(3, count);
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByName(components, "i", &i));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByName(components, "j", &j));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDataComponentItemByName(components, "r", &r));
  ViInt32 integer = 0;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentPropertyViInt32(i, 9, &integer));
  EXPECT_EQ(-2147483647 - 1, integer);
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentPropertyViInt32(j, 9, &integer));
  EXPECT_EQ(7, integer);
  ViReal64 real = 0;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDataComponentPropertyViReal64(r, 9, &real));
  EXPECT_EQ(1.25e-3, real);
}

// Refused, with the line and the reason.

TEST_F(ConfigText, WhatIsNoXmlIsRefused) {
  EXPECT_THAT(Refusal(""), ::testing::StartsWith("line 1: "));
  EXPECT_EQ("line 1: text outside the root element", Refusal("hello"));
  EXPECT_THAT(Refusal("<IviConfigStore>\n<Name>\n</IviConfigStore>"), ::testing::StartsWith("line 3: "));
  EXPECT_THAT(Refusal("<IviConfigStore>\n"), ::testing::StartsWith("line "));
  EXPECT_EQ("line 2: a tag without end", Refusal("<IviConfigStore>\n<Name"));
  EXPECT_EQ("line 2: a tag without end", Refusal("<IviConfigStore>\n<Name <x>"));
  EXPECT_EQ("line 2: a comment without end", Refusal("<IviConfigStore>\n<!-- "));
  EXPECT_EQ("line 2: a CDATA section without end", Refusal("<IviConfigStore>\n<![CDATA[ "));
  EXPECT_EQ("line 1: a processing instruction without end", Refusal("<?xml version=\"1.0\""));
  EXPECT_EQ("line 2: an attribute value without end", Refusal("<IviConfigStore>\n<Name a=\"></Name></IviConfigStore>"));
  EXPECT_EQ("line 2: an end tag without its start tag", Refusal("<IviConfigStore/>\n</Name>"));
}

TEST_F(ConfigText, StoreCutOffAnywhereIsRefused) {
  const std::string sample = SampleStore();
  const size_t whole = sample.find_last_of('>');
  for (size_t length = 1; length < whole; length += 17) {
    Write("store.xml", sample.substr(0, length));
    IviConfigStoreHandle refused = nullptr;
    ASSERT_EQ(kDeserializeFailed, Load(&refused, "store.xml")) << length;
    ASSERT_EQ(VI_SUCCESS, IviConfig_Close(refused));
  }
}

TEST_F(ConfigText, AnythingBesideTheOneRootIsRefused) {
  EXPECT_EQ("line 1, <IviStore>: the root must be <IviConfigStore>", Refusal("<IviStore/>"));
  EXPECT_EQ("line 2, <Second>: stands behind the end of the store", Refusal("<IviConfigStore/>\n<Second/>"));
  EXPECT_EQ("line 2: text outside the root element", Refusal("<IviConfigStore/>\nand more"));
  EXPECT_EQ("line 2: text outside the root element", Refusal("<IviConfigStore/>\n<![CDATA[x]]>"));
}

TEST_F(ConfigText, DocumentTypesAndEntitiesAreRefused) {
  EXPECT_EQ("line 2: document types and entity declarations are not accepted",
            Refusal("<?xml version=\"1.0\"?>\n<!DOCTYPE IviConfigStore SYSTEM \"/etc/passwd\"><IviConfigStore/>"));
  EXPECT_EQ("line 1: document types and entity declarations are not accepted",
            Refusal("<!DOCTYPE a [<!ENTITY b \"c\">]><IviConfigStore/>"));
  EXPECT_EQ("line 1: document types and entity declarations are not accepted",
            Refusal("<IviConfigStore><!ENTITY b \"c\"></IviConfigStore>"));
  EXPECT_EQ("line 3: the entity &x; is not known", Refusal("<IviConfigStore>\n<Name>\n&x;</Name></IviConfigStore>"));
  EXPECT_EQ("line 1: the entity &x; is not known", Refusal("<IviConfigStore a=\"&x;\"/>"));
  EXPECT_EQ("line 1: the entity &#0; is not known", Refusal("<IviConfigStore>&#0;</IviConfigStore>"));
  EXPECT_EQ("line 1: the entity &#xD800; is not known", Refusal("<IviConfigStore>&#xD800;</IviConfigStore>"));
  EXPECT_EQ("line 1: the entity &#; is not known", Refusal("<IviConfigStore>&#;</IviConfigStore>"));
  EXPECT_EQ("line 1: an '&' that begins no entity reference", Refusal("<IviConfigStore>a & b</IviConfigStore>"));
}

TEST_F(ConfigText, BytesThatAreNoUtf8TextAreRefused) {
  EXPECT_EQ("line 2: a byte that is not UTF-8", Refusal("<IviConfigStore>\n<Name>M\xFCnchen</Name></IviConfigStore>"));
  for (const char* sequence : {"\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\x80"}) {
    EXPECT_EQ("line 1: a byte that is not UTF-8", Refusal(std::string("<IviConfigStore>") + sequence + "</>"));
  }
  EXPECT_EQ("line 1: a control character that XML does not allow",
            Refusal(std::string("<IviConfigStore/>\0 more", 23)));
  EXPECT_EQ("line 1: the file is UTF-16; a configuration store is read as UTF-8",
            Refusal(std::string("\xFF\xFE<\0", 4)));
}

TEST_F(ConfigText, NestingIsBounded) {
  const auto nested = [](int levels) {
    std::string text = "<IviConfigStore>";
    for (int i = 1; i < levels; ++i) text += "<a>";
    for (int i = 1; i < levels; ++i) text += "</a>";
    return text + "</IviConfigStore>";
  };
  Open(nested(64));
  EXPECT_EQ("line 1: elements nested more than 64 deep", Refusal(nested(65)));
  EXPECT_EQ("line 1: elements nested more than 64 deep", Refusal(nested(1'000'000)));
}

TEST_F(ConfigText, NumberOfElementsIsBounded) {
  std::string text = "<IviConfigStore>";
  for (int i = 0; i < 2'000'000; ++i) text += "<a/>";
  EXPECT_EQ("line 1: more than two million elements and attributes", Refusal(text + "</IviConfigStore>"));
}

TEST_F(ConfigText, IdGivenTwiceIsRefusedWhereItStandsTheSecondTime) {
  EXPECT_EQ("line 19, <IviPublishedAPI>: the id 'p1' is given a second time", Refusal("id=\"p2\"", "id=\"p1\""));
}

TEST_F(ConfigText, ReferenceToNothingIsRefused) {
  EXPECT_EQ("line 158, <IviHardwareAsset>: no element has the id 'p99'",
            Refusal("<IviHardwareAsset idref=\"p9\"/>", "<IviHardwareAsset idref=\"p99\"/>"));
  EXPECT_EQ(
      "line 190, <IviDriverSession>: no element has the id ''",
      Refusal("<Sessions>\n    <IviDriverSession idref=\"p10\"/>", "<Sessions>\n    <IviDriverSession idref=\"\"/>"));
}

TEST_F(ConfigText, ReferenceToAnObjectOfAnotherClassIsRefused) {
  EXPECT_EQ("line 158, <IviHardwareAsset>: the element 'p3' is no hardware asset but <IviSoftwareModule>",
            Refusal("<IviHardwareAsset idref=\"p9\"/>", "<IviHardwareAsset idref=\"p3\"/>"));
  EXPECT_EQ("line 159, <IviSoftwareModuleRef>: the element 'p9' is no software module but <IviHardwareAsset>",
            Refusal("<IviSoftwareModuleRef idref=\"p3\"/>", "<IviSoftwareModuleRef idref=\"p9\"/>"));
  EXPECT_EQ("line 196, <IviDriverSession>: the element 'p9' is no session but <IviHardwareAsset>",
            Refusal("<Description/>\n      <IviDriverSession idref=\"p10\"/>",
                    "<Description/>\n      <IviDriverSession idref=\"p9\"/>"));
}

TEST_F(ConfigText, ObjectInThePlaceOfAReferenceIsRefused) {
  EXPECT_EQ("line 158, <IviHardwareAsset>: a reference with an idref is expected here",
            Refusal("<IviHardwareAsset idref=\"p9\"/>", "<IviHardwareAsset><Name>x</Name></IviHardwareAsset>"));
}

TEST_F(ConfigText, ValuesOfTheWrongFormAreRefusedWithTheElement) {
  EXPECT_EQ("line 180, <Cache>: 'maybe' is none of 0, 1, false, true",
            Refusal("<Cache>1</Cache>", "<Cache>maybe</Cache>"));
  EXPECT_EQ("line 167, <Max>: '3.5' is no 32-bit integer", Refusal("<Max>3</Max>", "<Max>3.5</Max>"));
  EXPECT_EQ("line 167, <Max>: '2147483648' is no 32-bit integer", Refusal("<Max>3</Max>", "<Max>2147483648</Max>"));
  EXPECT_EQ("line 141, <Value>: '-1,5' is no 64-bit real number",
            Refusal("<Value>-1.5</Value>", "<Value>-1,5</Value>"));
  EXPECT_EQ("line 141, <Value>: '1e999' is no 64-bit real number",
            Refusal("<Value>-1.5</Value>", "<Value>1e999</Value>"));
  EXPECT_EQ("line 141, <Value>: 'nan' is no 64-bit real number", Refusal("<Value>-1.5</Value>", "<Value>nan</Value>"));
}

TEST_F(ConfigText, ElementThatStandsTwiceIsRefused) {
  EXPECT_EQ("line 180, <Cache>: stands twice in one element",
            Refusal("<Cache>1</Cache>", "<Cache>1</Cache><Cache>0</Cache>"));
}

TEST_F(ConfigText, NameGivenTwiceInACollectionIsRefused) {
  EXPECT_EQ("line 188, <IviDriverSession>: the name 'BenchSession' is given a second time",
            Refusal("</DriverSessions>",
                    "<IviDriverSession id=\"x\"><Name>BenchSession</Name></IviDriverSession></DriverSessions>"));
  EXPECT_EQ("line 198, <IviLogicalName>: the name 'SigGen1' is given a second time",
            Refusal("</LogicalNames>", "<IviLogicalName><Name>SigGen1</Name></IviLogicalName></LogicalNames>"));
  EXPECT_EQ("line 198, <IviLogicalName>: has no name", Refusal("</LogicalNames>", "<IviLogicalName/></LogicalNames>"));
}

TEST_F(ConfigText, RangeTooLongToWriteOutIsRefused) {
  EXPECT_EQ("line 165, <IviVirtualRange>: spans more than 100000 names",
            Refusal("<Max>3</Max>", "<Max>2147483647</Max>"));
}

}  // namespace
