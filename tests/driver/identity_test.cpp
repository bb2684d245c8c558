// Who the instrument says it is, who the driver says it is, and which models it accepts.

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

class Identity : public InstrumentDialogue {
 protected:
  std::string Manufacturer() { return TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MANUFACTURER); }
  std::string Model() { return TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL); }
  std::string Firmware() { return TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_FIRMWARE_REVISION); }
};

TEST_F(Identity, TheAttributesHaveTheirPublishedIds) {
  EXPECT_EQ(1050510U, KVTD481X2C_ATTR_INSTRUMENT_FIRMWARE_REVISION);
  EXPECT_EQ(1050511U, KVTD481X2C_ATTR_INSTRUMENT_MANUFACTURER);
  EXPECT_EQ(1050512U, KVTD481X2C_ATTR_INSTRUMENT_MODEL);
}

TEST_F(Identity, TheFieldsStayAsTheInstrumentGaveThem) {
  ScriptBringUp("Kelvora,TD48142C,123,1.0");
  ASSERT_STATUS(VI_SUCCESS, Open());
  EXPECT_EQ("Kelvora", Manufacturer());
  EXPECT_EQ("TD48142C", Model());
  EXPECT_EQ("1.0", Firmware());
}

TEST_F(Identity, NothingIsTrimmed) {
  ScriptBringUp(" Kelvora , TD48142C,123, 1.0 beta");
  ASSERT_STATUS(VI_SUCCESS, Open());
  EXPECT_EQ(" Kelvora ", Manufacturer());
  EXPECT_EQ(" TD48142C", Model());
  EXPECT_EQ(" 1.0 beta", Firmware());
}

TEST_F(Identity, WhatStandsBehindTheFourthFieldIsThrownAway) {
  ScriptBringUp("Kelvora,TD48142C,123,1.0,extra,more");
  ASSERT_STATUS(VI_SUCCESS, Open());
  EXPECT_EQ("1.0", Firmware());
}

TEST_F(Identity, AFieldIsCutAtTwoHundredAndFiftyFiveCharactersAndRunsOverNothing) {
  ScriptBringUp("Kelvora,TD48142C,123," + std::string(255, '7'));
  ASSERT_STATUS(VI_SUCCESS, Open());
  EXPECT_EQ(std::string(255, '7'), Firmware());
}

TEST_F(Identity, AnAnswerWithoutACommaInReachFailsTheBringUp) {
  Script("> *IDN?");
  Answer(std::string(20000, 'x') + "\n");
  EXPECT_GT(VI_SUCCESS, Open());
  EXPECT_EQ(VI_NULL, static_cast<int>(vi));
}

TEST_F(Identity, FieldsThatAreMissingStayEmpty) {
  ScriptBringUp("Kelvora,TD48142C");
  ASSERT_STATUS(VI_SUCCESS, Open("", VI_TRUE));
  EXPECT_EQ("Kelvora", Manufacturer());
  EXPECT_EQ("TD48142C", Model());
  EXPECT_EQ("", Firmware());
}

TEST_F(Identity, AnEmptyAnswerGivesAnEmptyIdentity) {
  ScriptBringUp("");
  ASSERT_STATUS(VI_SUCCESS, Open());
  EXPECT_EQ("", Manufacturer());
  EXPECT_EQ("", Model());
  EXPECT_EQ("", Firmware());
}

TEST_F(Identity, TheModelsThatTheDriverKnowsPassTheIdQuery) {
  for (const char* model : {"TD48122C", "TD48142C", "TD48172C"}) {
    ScriptBringUp(std::string("Kelvora,") + model + ",1,1");
    ASSERT_STATUS(VI_SUCCESS, Open("", VI_TRUE));
    EXPECT_EQ(model, Model());
    Close();
  }
}

TEST_F(Identity, AnyOtherSpellingOfAModelFailsTheIdQuery) {
  for (const char* model : {"td48142c", "TD48142C ", " TD48142C", "TD48142C-003", "TD4814", "", "XYZ"}) {
    Script("> *IDN?");
    Answer(std::string("Kelvora,") + model + ",1,1\n");
    EXPECT_STATUS(kIdQueryFailed, Open("", VI_TRUE)) << '"' << model << '"';
    EXPECT_EQ(VI_NULL, static_cast<int>(vi));
    EXPECT_EQ((RecordedError{kIdQueryFailed, "Instrument ID query failed."}), ErrorOf(0));
  }
}

TEST_F(Identity, WithoutTheIdQueryEveryModelIsAcceptedAndToldAsItIs) {
  ScriptBringUp("Other,XYZ,1,1");
  ASSERT_STATUS(VI_SUCCESS, Open("", VI_FALSE));
  EXPECT_EQ("XYZ", Model());
}

TEST_F(Identity, OnlyOneAsksForTheIdQuery) {
  ScriptBringUp("Other,XYZ,1,1");
  ASSERT_STATUS(VI_SUCCESS, Open("", 2));
  EXPECT_EQ("XYZ", Model());
}

TEST_F(Identity, OfARealSessionComesFromTheInstrumentWhateverTheOptionsSay) {
  ScriptBringUp("Kelvora,TD48172C,1,1");
  ASSERT_STATUS(VI_SUCCESS, Open("DriverSetup=Model:TD48122C", VI_TRUE));
  EXPECT_EQ("TD48172C", Model());
}

TEST_F(Identity, CostsNoTrafficWhateverTheCacheSays) {
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open("Cache=0"));
  EXPECT_EQ("TD48142C", Model());
  EXPECT_EQ("TD48142C", Model());
  EXPECT_EQ("Kelvora", Manufacturer());
  EXPECT_EQ("1.2.3", Firmware());
}

TEST_F(Identity, IsCutAtTheBuffer) {
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open());
  GuardedText<4> text;
  EXPECT_STATUS(
      4096, KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_INSTRUMENT_MODEL, text.size(), text.data()));
  EXPECT_EQ("TD4", text.text());
}

TEST_F(Identity, TheRevisionQueryGivesBothRevisionsWithoutTraffic) {
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open());
  GuardedText<256> driver;
  GuardedText<256> firmware;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_revision_query(vi, driver.data(), firmware.data()));
  EXPECT_EQ("1.0.0.0", driver.text());
  EXPECT_EQ("1.2.3", firmware.text());
}

TEST_F(Identity, TheRevisionQueryRefusesAHandleThatIsNotOpen) {
  GuardedText<256> driver;
  GuardedText<256> firmware;
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_revision_query(0, driver.data(), firmware.data()));
  EXPECT_TRUE(driver.Untouched());
  EXPECT_TRUE(firmware.Untouched());
}

TEST_F(Identity, OfASimulatedSessionIsTheDriversOwn) {
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1", VI_TRUE));
  EXPECT_EQ("TD48122C", Model());
  EXPECT_EQ("Kelvora Corporation", Manufacturer());
  EXPECT_EQ("Sim1.0.0.0", Firmware());
  GuardedText<256> driver;
  GuardedText<256> firmware;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_revision_query(vi, driver.data(), firmware.data()));
  EXPECT_EQ("1.0.0.0", driver.text());
  EXPECT_EQ("Sim1.0.0.0", firmware.text());
}

TEST_F(Identity, ASimulatedModelIsHeldToTheIdQuery) {
  EXPECT_STATUS(kIdQueryFailed, Open("Simulate=1,DriverSetup=Model:X", VI_TRUE));
  EXPECT_EQ(VI_NULL, static_cast<int>(vi));
  EXPECT_EQ("Instrument ID query failed.", ErrorOf(0).text);
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1,DriverSetup=Model:X", VI_FALSE));
  EXPECT_EQ("X", Model());
}

TEST_F(Identity, AnAnswerThatIsCutOffFailsTheBringUp) {
  Sent("*IDN?\n");
  Answer("Kelvora,TD48");
  instrument.Close();
  EXPECT_STATUS(kVisaConnectionLost, Open());
  EXPECT_EQ(VI_NULL, static_cast<int>(vi));
}

}  // namespace
}  // namespace kvtd::test
