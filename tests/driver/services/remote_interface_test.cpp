// The instrument's own GPIB and network settings, and the quotes around what is sent for them.

#include <vector>

#include "AttributeCases.h"
#include "ServiceDialogue.h"
#include "TextAttributeCases.h"

namespace kvtd::test {
namespace {

constexpr auto kStored = Simulated::Stored;

#define BOTH(stem) &KVTD481X2C_Get##stem, &KVTD481X2C_Set##stem

const std::vector<AttributeCase> kRemoteAttributes = {
    {KVTD_ATTRIBUTE(GPIB_ADDRESS), 1150152, Int32Exports{BOTH(GpibAddress)}, ":SYST:COMM:GPIB:ADDR:PRIM?\n", "19\n", 19,
     28, ":SYST:COMM:GPIB:ADDR:PRIM 28\n", kStored, 0},
    {KVTD_ATTRIBUTE(COMMUNICATION_TERMINATION), 1150153, Int32Exports{BOTH(CommunicationTermination)},
     ":SYST:COMM:GPIB:TERM:OUTP?\n", "LFE\n", 2, 1, ":SYST:COMM:GPIB:TERM:OUTP CRLFeed\n", kStored, 0},
    {KVTD_ATTRIBUTE(DHCP_ENABLED), 1150154, BooleanExports{BOTH(DhcpEnabled)}, ":SYST:COMM:LAN:DHCP?\n", "OFF\n", 0, 0,
     ":SYST:COMM:LAN:DHCP 0\n", kStored, 1},
};

const std::vector<TextAttributeCase> kRemoteTexts = {
    {KVTD_TEXT_ATTRIBUTE(LAN_HOSTNAME), 1150155, &KVTD481X2C_GetLanHostname, &KVTD481X2C_SetLanHostname,
     ":SYST:COMM:LAN:HOST?\n", " gen-1 ", ":SYST:COMM:LAN:HOST \" gen-1 \"\n", ""},
    {KVTD_TEXT_ATTRIBUTE(DNS_SERVER_LIST), 1150156, &KVTD481X2C_GetDnsServerList, &KVTD481X2C_SetDnsServerList,
     ":SYST:COMM:LAN:DNSS:LIST?\n", "10.0.0.1, 10.0.0.2", ":SYST:COMM:LAN:DNSS:LIST \"10.0.0.1\",\"10.0.0.2\"\n", ""},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(RemoteInterface, kRemoteAttributes);
KVTD_INSTANTIATE_TEXT_ATTRIBUTES(RemoteInterface, kRemoteTexts);

namespace {

using RemoteDialogue = ServiceDialogue;
using SimulatedRemote = SimulatedService;

TEST_F(RemoteDialogue, EveryFieldOfAListIsTrimmedAndQuotedOnce) {
  struct List {
    const char* text;
    const char* quoted;
  };
  const List lists[] = {
      {"10.0.0.1", "\"10.0.0.1\""},
      {"\"10.0.0.1\",\"10.0.0.2\"", "\"10.0.0.1\",\"10.0.0.2\""},
      {" \"10.0.0.1\" , 10.0.0.2\t", "\"10.0.0.1\",\"10.0.0.2\""},
      {"a\"b", "\"a\"b\""},
      {"\" \t x \t \"", "\"\t x \t\""},
      {",a", "\"\",\"a\""},
      {"a,,b", "\"a\",\"\",\"b\""},
      {"a,", "\"a\""},
      {" ", "\"\""},
      {"%s,%n", "\"%s\",\"%n\""},
  };
  for (const auto& [text, quoted] : lists) {
    Sent(":SYST:COMM:LAN:DNSS:LIST " + std::string(quoted) + "\n");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetDnsServerList(vi, text));
    Sent(":SYST:COMM:LAN:DNSS:APP " + std::string(quoted) + "\n");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_AddDnsServers(vi, text));
    Sent(":SYST:COMM:LAN:DNSS:DEL " + std::string(quoted) + "\n");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_RemoveDnsServers(vi, text));
  }
}

TEST_F(RemoteDialogue, AnEmptyListGoesOutWithNothingBehindTheBlank) {
  Sent(":SYST:COMM:LAN:DNSS:LIST \n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetDnsServerList(vi, ""));
  Sent(":SYST:COMM:LAN:DNSS:APP \n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_AddDnsServers(vi, ""));
  Sent(":SYST:COMM:LAN:DNSS:DEL \n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_RemoveDnsServers(vi, ""));
}

TEST_F(RemoteDialogue, ServersAreAddedAndRemovedWithAStatusCheck) {
  ExpectCheckedAction(":SYST:COMM:LAN:DNSS:APP \"10.0.0.1\"\n",
                      [this] { return KVTD481X2C_AddDnsServers(vi, "10.0.0.1"); });
  ExpectCheckedAction(":SYST:COMM:LAN:DNSS:DEL \"10.0.0.1\"\n",
                      [this] { return KVTD481X2C_RemoveDnsServers(vi, "10.0.0.1"); });
}

TEST_F(RemoteDialogue, ConfiguringDnsAlwaysSendsThreeFields) {
  ExpectCheckedAction(":SYST:COMM:LAN:DNS \"1.1.1.1\",\"2.2.2.2\",\"lab.example\"\n",
                      [this] { return KVTD481X2C_ConfigureDns(vi, "1.1.1.1", "\"2.2.2.2\"", " lab.example "); });
  ExpectCheckedAction(":SYST:COMM:LAN:DNS \"\",\"\",\"\"\n",
                      [this] { return KVTD481X2C_ConfigureDns(vi, "", "", ""); });
  ExpectCheckedAction(":SYST:COMM:LAN:DNS \"a,b\",\"\",\"%s\"\n",
                      [this] { return KVTD481X2C_ConfigureDns(vi, "a,b", " \" ", "%s"); });
}

TEST_F(RemoteDialogue, AStaticConfigurationSendsAsManyFieldsAsAreGiven) {
  struct Fields {
    const char* first;
    const char* second;
    const char* third;
    const char* sent;
  };
  const Fields cases[] = {
      {"10.0.0.5", "255.0.0.0", "10.0.0.1", "\"10.0.0.5\",\"255.0.0.0\",\"10.0.0.1\""},
      {"10.0.0.5", "255.0.0.0", "", "\"10.0.0.5\",\"255.0.0.0\""},
      {"10.0.0.5", "", "", "\"10.0.0.5\""},
      {"10.0.0.5", "", "10.0.0.1", "\"10.0.0.5\""},
      {"10.0.0.5", " ", "10.0.0.1", "\"10.0.0.5\",\"\",\"10.0.0.1\""},
      {"10.0.0.5", "\"\"", " ", "\"10.0.0.5\",\"\",\"\""},
      {"", "", "", "\"\""},
      {"\"10.0.0.5\"", " \"255.0.0.0\"", "10.0.0.1\" ", "\"10.0.0.5\",\"255.0.0.0\",\"10.0.0.1\""},
      {"a\"b", "\t", "%s%n", "\"a\"b\",\"\t\",\"%s%n\""},
      {"a,b", "", "", "\"a,b\""},
  };
  for (const Fields& fields : cases) {
    Sent(":SYST:COMM:LAN:CONF " + std::string(fields.sent) + "\n");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetStaticLanConfiguration(vi, fields.first, fields.second, fields.third));
  }
}

TEST_F(RemoteDialogue, NoStatusCheckFollowsAStaticConfigurationButALaterOneFindsTheRefusal) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :SYST:COMM:LAN:CONF "nowhere"
    > :SYST:COMM:LAN:DHCP 1
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetStaticLanConfiguration(vi, "nowhere", "", ""));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetDhcpEnabled(vi, VI_TRUE));
}

TEST_F(RemoteDialogue, ConfigurationsAreReadAsOneLine) {
  ExpectTextQuery(":SYST:COMM:LAN:CONF:CURR?", "KVTD481X2C_GetCurrentLanConfiguration", "Val",
                  &KVTD481X2C_GetCurrentLanConfiguration);
  ExpectTextQuery(":SYST:COMM:LAN:CONF?", "KVTD481X2C_GetStaticLanConfiguration", "Val",
                  &KVTD481X2C_GetStaticLanConfiguration);
  ExpectTextQuery(":SYST:COMM:LAN:DNS?", "KVTD481X2C_GetDnsConfiguration", "Val", &KVTD481X2C_GetDnsConfiguration);
}

TEST_F(RemoteDialogue, WhatCannotBeSentComesBackAsVisaTellsIt) {
  LoseTheConnection();
  GuardedText<16> text;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_SetStaticLanConfiguration(vi, "a", "b", "c"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_ConfigureDns(vi, "a", "b", "c"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_AddDnsServers(vi, "a"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_RemoveDnsServers(vi, "a"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_GetDnsConfiguration(vi, text.size(), text.data()));
  EXPECT_TRUE(text.Untouched());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(RemoteDialogue, OperationsRefuseAHandleThatIsNotOpen) {
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetStaticLanConfiguration(handle, "a", "b", "c"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureDns(handle, "a", "b", "c"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_AddDnsServers(handle, "a"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_RemoveDnsServers(handle, "a"));
  }
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(RemoteDialogue, ANullTextIsRefusedAndNothingIsSent) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_SetStaticLanConfiguration(vi, nullptr, "b", "c"));
  EXPECT_EQ(NullPointerError("KVTD481X2C_SetStaticLanConfiguration", "First"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_SetStaticLanConfiguration(vi, "a", nullptr, "c"));
  EXPECT_EQ(NullPointerError("KVTD481X2C_SetStaticLanConfiguration", "Second"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_ConfigureDns(vi, "a", "b", nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_ConfigureDns", "Third"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_AddDnsServers(vi, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_AddDnsServers", "List"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_RemoveDnsServers(vi, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_RemoveDnsServers", "List"), LastError());
}

TEST_F(SimulatedRemote, WritesSucceedWithoutSending) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetStaticLanConfiguration(vi, "a", "b", "c"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureDns(vi, "a", "b", "c"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_AddDnsServers(vi, "a"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_RemoveDnsServers(vi, "a"));
}

TEST_F(SimulatedRemote, AServerListReadsAsTheCallerWroteIt) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetDnsServerList(vi, " \"10.0.0.1\", 10.0.0.2,"));
  EXPECT_EQ(" \"10.0.0.1\", 10.0.0.2,", TextAttribute(KVTD481X2C_ATTR_DNS_SERVER_LIST));
}

TEST_F(SimulatedRemote, QueriesSucceedAndWriteNothing) {
  ExpectUnwritten("KVTD481X2C_GetCurrentLanConfiguration", "Val", &KVTD481X2C_GetCurrentLanConfiguration);
  ExpectUnwritten("KVTD481X2C_GetStaticLanConfiguration", "Val", &KVTD481X2C_GetStaticLanConfiguration);
  ExpectUnwritten("KVTD481X2C_GetDnsConfiguration", "Val", &KVTD481X2C_GetDnsConfiguration);
}

}  // namespace
}  // namespace kvtd::test
