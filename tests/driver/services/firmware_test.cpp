// Firmware and packages: where they come from, which there are, and the commands that install them.

#include <vector>

#include "AttributeCases.h"
#include "ServiceDialogue.h"
#include "TextAttributeCases.h"

namespace kvtd::test {
namespace {

const std::vector<AttributeCase> kFirmwareAttributes = {
    {KVTD_ATTRIBUTE(FIRMWARE_UPDATE_CHECK_ENABLED), 1150158,
     BooleanExports{&KVTD481X2C_GetFirmwareUpdateCheckEnabled, &KVTD481X2C_SetFirmwareUpdateCheckEnabled},
     ":SYST:FIRM:UPD:REM:AUTO?\n", "1\n", 1, 1, ":SYST:FIRM:UPD:REM:AUTO 1\n", Simulated::Stored, 0},
};

const std::vector<TextAttributeCase> kFirmwareTexts = {
    {KVTD_TEXT_ATTRIBUTE(REMOTE_PACKAGE_SOURCE), 1150157, &KVTD481X2C_GetRemotePackageSource,
     &KVTD481X2C_SetRemotePackageSource, ":SYST:FIRM:UPD:REM:SOUR?\n", "http://h/\"p\"",
     ":SYST:FIRM:UPD:REM:SOUR \"http://h/\"p\"\"\n", "http://updates.kelvora.example/en-us/td481x2c.txt"},
    {KVTD_TEXT_ATTRIBUTE(FIRMWARE_VERSION), 1150159, &KVTD481X2C_GetFirmwareVersion, nullptr, ":SYST:FIRM:VERS?\n", "",
     "", ""},
    {KVTD_TEXT_ATTRIBUTE(REMOTE_PACKAGE_LIST), 1150160, &KVTD481X2C_GetRemotePackageList, nullptr,
     ":SYST:FIRM:UPD:REM:LIST?\n", "", "", ""},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(Firmware, kFirmwareAttributes);
KVTD_INSTANTIATE_TEXT_ATTRIBUTES(Firmware, kFirmwareTexts);

namespace {

class FirmwareDialogue : public ServiceDialogue {
 protected:
  void LatestIs(const std::string& answer) { Asked(":SYST:FIRM:UPD:REM:LAT?", answer); }
};
using SimulatedFirmware = SimulatedService;

TEST_F(FirmwareDialogue, CommandsAreSentWithAStatusCheckAndTheirTextsUnchanged) {
  ExpectCheckedAction(":SYST:FIRM:UPD:REM:LIST:REFR\n", [this] { return KVTD481X2C_RefreshRemotePackageList(vi); });
  ExpectCheckedAction(":SYST:FIRM:UPD \"USB\",\"pack 2\"\n",
                      [this] { return KVTD481X2C_UpdateFirmware(vi, "USB", "pack 2"); });
  ExpectCheckedAction(":SYST:FIRM:UPD \"\"a\"\",\" %s\"\n",
                      [this] { return KVTD481X2C_UpdateFirmware(vi, "\"a\"", " %s"); });
  ExpectCheckedAction(":SYST:FIRM:UPD:REM \"\"2.0\"\"\n",
                      [this] { return KVTD481X2C_UpdateFirmwareFromRemote(vi, "\"2.0\""); });
}

TEST_F(FirmwareDialogue, ThePackagesOfTheStickAreReadAsOneLine) {
  ExpectTextQuery(":SYST:FIRM:UPD:LIST?", "KVTD481X2C_GetUsbPackageList", "Val", &KVTD481X2C_GetUsbPackageList);
}

TEST_F(FirmwareDialogue, TheLatestPackageIsNamedAndSaysWhetherItIsAnUpdate) {
  struct Latest {
    const char* answer;
    const char* package;
    ViBoolean update;
  };
  for (const auto& [answer, name, update] :
       {Latest{"td481x2c-2.1.0,1", "td481x2c-2.1.0", VI_TRUE}, Latest{"a b,OFF", "a b", VI_FALSE},
        Latest{"x, on \r", "x", VI_TRUE}, Latest{"\"q\",0", "\"q\"", VI_FALSE}, Latest{",1", "", VI_TRUE}}) {
    LatestIs(answer);
    GuardedText<64> package;
    ViBoolean available = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available))
        << answer;
    EXPECT_EQ(name, package.text());
    EXPECT_EQ(update, available);
  }
}

TEST_F(FirmwareDialogue, TheStatusIsAskedBehindTheLatestPackage) {
  QueryInstrumentStatus(true);
  GuardedText<64> package;
  ViBoolean available = 77;
  LatestIs("2.1,1");
  Asked("*ESR?", "0");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_EQ(VI_TRUE, available);
  LatestIs("2.1,0");
  Asked("*ESR?", "8");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_EQ(VI_FALSE, available);
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(FirmwareDialogue, ASecondFieldThatIsNoBooleanIsUnexpectedAndNoStatusIsAsked) {
  QueryInstrumentStatus(true);
  for (const char* field : {"maybe", "2", "1,0"}) {
    LatestIs("2.1," + std::string(field));
    GuardedText<64> package;
    ViBoolean available = 77;
    EXPECT_STATUS(kUnexpectedResponse,
                  KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
    EXPECT_EQ("2.1", package.text());
    EXPECT_EQ(0xFFFF, available);
    EXPECT_EQ((RecordedError{kUnexpectedResponse,
                             "Unexpected response from instrument.  Could not convert instrument response (" +
                                 std::string(field) + ") to a defined value."}),
              LastError());
  }
}

TEST_F(FirmwareDialogue, AnAnswerWithoutASecondFieldIsNoSuccess) {
  LatestIs("2.1");
  GuardedText<64> package;
  ViBoolean available = 77;
  EXPECT_GT(VI_SUCCESS, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_NE(VI_TRUE, available);
  EXPECT_NE(VI_FALSE, available);
  LatestIs("2.2,1");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_EQ("2.2", package.text());
  EXPECT_EQ(VI_TRUE, available);
}

TEST_F(FirmwareDialogue, ANameLongerThanItsBufferIsNeverWrittenBehindIt) {
  LatestIs("2.1.0,1");
  GuardedText<4> package;
  ViBoolean available = 77;
  EXPECT_GT(VI_SUCCESS, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_EQ("2.1", package.text());
  Asked(":SYST:FIRM:VERS?", "9");
  EXPECT_EQ("9", TextAttribute(KVTD481X2C_ATTR_FIRMWARE_VERSION));
}

TEST_F(FirmwareDialogue, ANameThatJustFillsItsBufferIsRead) {
  LatestIs("2.1,1");
  GuardedText<4> package;
  ViBoolean available = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_EQ("2.1", package.text());
  EXPECT_EQ(VI_TRUE, available);
}

TEST_F(FirmwareDialogue, ALongSecondFieldIsCutAndTheNextQueryIsInStep) {
  LatestIs("2.1," + std::string(3000, 'x'));
  GuardedText<16> package;
  ViBoolean available = 77;
  EXPECT_STATUS(kUnexpectedResponse,
                KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (" + std::string(255, 'x') +
                ") to a defined value.",
            LastErrorText());
  LatestIs("2.1,1");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_EQ(VI_TRUE, available);
}

TEST_F(FirmwareDialogue, ANullOutputIsRefusedAndNothingIsAsked) {
  GuardedText<16> package;
  ViBoolean available = 77;
  EXPECT_STATUS(kNullPointer, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_CheckForFirmwareUpdates", "Val"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), nullptr, &available));
  EXPECT_EQ(NullPointerError("KVTD481X2C_CheckForFirmwareUpdates", "Package"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), nullptr, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_CheckForFirmwareUpdates", "Package"), LastError());
  EXPECT_EQ(77, available);
  EXPECT_TRUE(package.Untouched());
}

TEST_F(FirmwareDialogue, WhatCannotBeSentComesBackAsVisaTellsIt) {
  LoseTheConnection();
  GuardedText<16> package;
  ViBoolean available = 77;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_RefreshRemotePackageList(vi));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_UpdateFirmware(vi, "a", "b"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_UpdateFirmwareFromRemote(vi, "a"));
  EXPECT_STATUS(kVisaConnectionLost,
                KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_EQ(77, available);
  EXPECT_TRUE(package.Untouched());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(FirmwareDialogue, OperationsRefuseAHandleThatIsNotOpen) {
  GuardedText<16> package;
  ViBoolean available = 77;
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_RefreshRemotePackageList(handle));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_UpdateFirmware(handle, "a", "b"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_UpdateFirmwareFromRemote(handle, "a"));
    EXPECT_STATUS(kInvalidHandle,
                  KVTD481X2C_CheckForFirmwareUpdates(handle, package.size(), package.data(), &available));
  }
  EXPECT_EQ(77, available);
  EXPECT_TRUE(package.Untouched());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedFirmware, CommandsSucceedWithoutSending) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_RefreshRemotePackageList(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UpdateFirmware(vi, "a", "b"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UpdateFirmwareFromRemote(vi, "a"));
}

TEST_F(SimulatedFirmware, QueriesSucceedAndWriteNothing) {
  ExpectUnwritten("KVTD481X2C_GetUsbPackageList", "Val", &KVTD481X2C_GetUsbPackageList);
  GuardedText<16> package;
  ViBoolean available = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), &available));
  EXPECT_TRUE(package.Untouched());
  EXPECT_EQ(77, available);
  EXPECT_STATUS(kNullPointer, KVTD481X2C_CheckForFirmwareUpdates(vi, package.size(), package.data(), nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_CheckForFirmwareUpdates", "Val"), LastError());
}

}  // namespace
}  // namespace kvtd::test
