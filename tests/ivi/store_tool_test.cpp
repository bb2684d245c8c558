// The tool ivi-store, run as its users run it; what it writes is read by the component.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <thread>
#include <vector>

#include "StoreFixture.h"

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

struct Outcome {
  int exit_code;
  std::string output;  // both streams
};

class StoreTool : public StoreFixture {
 protected:
  // Runs the tool with arguments as a shell reads them.
  static Outcome Tool(const std::string& arguments) {
    FILE* tool = ::popen((STORE_TOOL " " + arguments + " 2>&1").c_str(), "r");
    std::string output;
    std::array<char, 4096> part{};
    while (const size_t got = std::fread(part.data(), 1, part.size(), tool)) output.append(part.data(), got);
    const int status = ::pclose(tool);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
  }

  static void ExpectDone(const std::string& arguments) {
    const Outcome outcome = Tool(arguments);
    EXPECT_EQ(0, outcome.exit_code) << arguments << ": " << outcome.output;
  }

  static size_t FilesInFolder() {
    return static_cast<size_t>(std::distance(std::filesystem::directory_iterator("."), {}));
  }
};

TEST_F(StoreTool, InitMakesAStoreWithTheDriversModule) {
  const Outcome made = Tool("--store new.xml init");
  EXPECT_EQ(0, made.exit_code);
  EXPECT_EQ("new.xml: created\n", made.output);
  ASSERT_EQ(VI_SUCCESS, Load(&store, "new.xml")) << Error();
  Handle modules, module;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetConfigStoreSoftwareModuleCollection(store, &modules));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetSoftwareModuleItemByName(modules, "KVTD481X2C", &module));
  struct stat status {};
  ASSERT_EQ(0, ::stat("new.xml", &status));
  EXPECT_EQ(0644u, status.st_mode & 0777u) << "every user's driver reads it";
  EXPECT_EQ(1u, FilesInFolder());
}

TEST_F(StoreTool, InitMakesTheFolderToo) { ExpectDone("--store etc/ivi/store.xml init"); }

TEST_F(StoreTool, InitNeverTouchesAnExistingFile) {
  Write("store.xml", "anything");
  const Outcome outcome = Tool("--store store.xml init");
  EXPECT_EQ(1, outcome.exit_code);
  EXPECT_EQ("ivi-store: there is a store at store.xml already; it is left as it is\n", outcome.output);
  EXPECT_EQ("anything", Read("store.xml"));
  EXPECT_EQ(1u, FilesInFolder());
}

TEST_F(StoreTool, AddedSessionIsOpenedByItsLogicalName) {
  ExpectDone("--store s.xml init");
  ExpectDone("--store s.xml add-session Bench --resource TCPIP0::127.0.0.1::5025::SOCKET --setup Model:TD48142C");
  ASSERT_EQ(VI_SUCCESS, Load(&store, "s.xml")) << Error();
  Handle session, any, asset, module;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "Bench", &session));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSession(store, "Bench", &any));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionHardwareAssetReference(session, &asset));
  EXPECT_EQ("TCPIP0::127.0.0.1::5025::SOCKET", Text(IviConfig_GetHardwareAssetPropertyViString, asset, 3));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetSessionSoftwareModuleReference(session, &module));
  EXPECT_EQ("Model:TD48142C", Text(IviConfig_GetDriverSessionPropertyViString, session, 10));
  const ViBoolean expected[] = {1, 0, 0, 1, 0, 0};
  for (ViInt32 property = 4; property <= 9; ++property) {
    ViBoolean value = 77;
    EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSessionPropertyViBoolean(session, property, &value));
    EXPECT_EQ(expected[property - 4], value) << property;
  }
}

TEST_F(StoreTool, SimulatedSessionIsStoredAsSuch) {
  ExpectDone("--store s.xml init");
  ExpectDone("--store s.xml add-session Sim --resource TCPIP0::x::INSTR --simulate");
  ASSERT_EQ(VI_SUCCESS, Load(&store, "s.xml"));
  Handle session;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "Sim", &session));
  ViBoolean value = 77;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSessionPropertyViBoolean(session, 9, &value));
  EXPECT_EQ(VI_TRUE, value);
}

TEST_F(StoreTool, StoreIsTheVariablesWithoutTheOption) {
  ::setenv("IVICONFIGSERVERDEFAULT", "env.xml", 1);
  ExpectDone("init");
  EXPECT_TRUE(std::filesystem::exists("env.xml"));
  ExpectDone("--store other.xml init");
  EXPECT_TRUE(std::filesystem::exists("other.xml"));
}

TEST_F(StoreTool, ListNamesEveryWayToOpenADriver) {
  Write("s.xml", SampleStore());
  ExpectDone("--store s.xml add-session Sim --resource TCPIP0::x::INSTR --simulate");
  const Outcome outcome = Tool("--store s.xml list");
  EXPECT_EQ(0, outcome.exit_code);
  EXPECT_EQ(
      "BenchSession  TCPIP0::127.0.0.1::5025::SOCKET\n"
      "SigGen1       TCPIP0::127.0.0.1::5025::SOCKET\n"
      "Sim           TCPIP0::x::INSTR  simulated\n",
      outcome.output);
}

TEST_F(StoreTool, ShowTellsWhatADriverIsTold) {
  Write("s.xml", SampleStore());
  const Outcome outcome = Tool("--store s.xml show SigGen1");
  EXPECT_EQ(0, outcome.exit_code);
  EXPECT_THAT(outcome.output, HasSubstr("session              BenchSession\n"));
  EXPECT_THAT(outcome.output, HasSubstr("resource             TCPIP0::127.0.0.1::5025::SOCKET\n"));
  EXPECT_THAT(outcome.output, HasSubstr("driver setup         Model:TD48142C\n"));
  EXPECT_THAT(outcome.output, HasSubstr("virtual name         Src1 to Src3 = ExtSrc7 to ExtSrc9\n"));
  EXPECT_THAT(outcome.output, HasSubstr("initial setting      Retries = 3\n"));
  const Outcome unknown = Tool("--store s.xml show siggen1");
  EXPECT_EQ(1, unknown.exit_code);
  EXPECT_EQ("ivi-store: there is no logical name and no session 'siggen1'\n", unknown.output);
}

TEST_F(StoreTool, RemoveTakesAwayWhatOnlyThatNameUsed) {
  ExpectDone("--store s.xml init");
  const std::string before = Read("s.xml");
  ExpectDone("--store s.xml add-session Bench --resource TCPIP0::x::INSTR");
  EXPECT_NE(before, Read("s.xml"));
  ExpectDone("--store s.xml remove Bench");
  EXPECT_EQ(before, Read("s.xml"));
}

TEST_F(StoreTool, RemoveLeavesASessionThatAnotherNameNeeds) {
  Write("s.xml", SampleStoreWith("</LogicalNames>",
                                 "<IviLogicalName id=\"p20\"><Name>Second</Name><IviDriverSession idref=\"p10\"/>"
                                 "</IviLogicalName></LogicalNames>"));
  const Outcome needed = Tool("--store s.xml remove BenchSession");
  EXPECT_EQ(1, needed.exit_code);
  EXPECT_EQ("ivi-store: the logical name 'SigGen1' refers to the session 'BenchSession'\n", needed.output);
  ExpectDone("--store s.xml remove SigGen1");
  EXPECT_EQ("BenchSession  TCPIP0::127.0.0.1::5025::SOCKET\nSecond        TCPIP0::127.0.0.1::5025::SOCKET\n",
            Tool("--store s.xml list").output);
  ExpectDone("--store s.xml remove Second");
  EXPECT_EQ("", Tool("--store s.xml list").output);
  EXPECT_THAT(Read("s.xml"), Not(HasSubstr("Bench generator")));
  ExpectDone("--store s.xml check");
}

TEST_F(StoreTool, RemoveLeavesAnAssetThatAnotherSessionNeeds) {
  Write("s.xml", SampleStoreWith("</DriverSessions>",
                                 "<IviDriverSession id=\"p30\"><Name>Other</Name><IviHardwareAsset idref=\"p9\"/>"
                                 "</IviDriverSession></DriverSessions>"));
  ExpectDone("--store s.xml remove SigGen1");
  EXPECT_EQ("Other  TCPIP0::127.0.0.1::5025::SOCKET\n", Tool("--store s.xml list").output);
}

TEST_F(StoreTool, NamesThatAreTakenOrMissingAreRefusedAndTheFileStays) {
  Write("s.xml", SampleStore());
  for (const char* name : {"SigGen1", "BenchSession", "'Bench generator'"}) {
    const Outcome outcome = Tool(std::string("--store s.xml add-session ") + name + " --resource TCPIP0::x::INSTR");
    EXPECT_EQ(1, outcome.exit_code) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("already"));
  }
  EXPECT_EQ(1, Tool("--store s.xml remove Nobody").exit_code);
  EXPECT_EQ(SampleStore(), Read("s.xml"));
  EXPECT_EQ(1u, FilesInFolder());
}

TEST_F(StoreTool, WhatTheToolDoesNotKnowIsKept) {
  Write("s.xml", SampleStoreWith("<LogicalNames>",
                                 "<!-- bench 4 --><Vendor42 a=\"1\"><Deep>  </Deep><![CDATA[<x>]]></Vendor42>"
                                 "<LogicalNames>"));
  ExpectDone("--store s.xml add-session New --resource TCPIP0::x::INSTR");
  const std::string after = Read("s.xml");
  EXPECT_THAT(after, HasSubstr("<!-- bench 4 -->"));
  EXPECT_THAT(after, HasSubstr("<Vendor42 a=\"1\">"));
  EXPECT_THAT(after, HasSubstr("<Deep>  </Deep>"));
  EXPECT_THAT(after, HasSubstr("<![CDATA[<x>]]>"));
  EXPECT_THAT(after, HasSubstr("xmlns:dt=\"urn:schemas-microsoft-com:datatypes\""));
}

TEST_F(StoreTool, StoreWithoutTheDriversModuleGetsItWithTheFirstSession) {
  Write("s.xml", "<IviConfigStore><Vendor42 id=\"p7\"/></IviConfigStore>");
  ExpectDone("--store s.xml add-session New --resource TCPIP0::x::INSTR");
  ASSERT_EQ(VI_SUCCESS, Load(&store, "s.xml")) << Error();
  Handle session, module;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "New", &session));
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetSessionSoftwareModuleReference(session, &module));
}

TEST_F(StoreTool, TextThatXmlMarksUpComesBackAsItWas) {
  ExpectDone("--store s.xml init");
  ExpectDone("--store s.xml add-session 'A & <B> \"C\"' --resource 'x<y>&z' --setup 'k:\"v\"'");
  ASSERT_EQ(VI_SUCCESS, Load(&store, "s.xml")) << Error();
  Handle session;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "A & <B> \"C\"", &session));
  EXPECT_EQ("k:\"v\"", Text(IviConfig_GetDriverSessionPropertyViString, session, 10));
}

TEST_F(StoreTool, ArgumentThatNoStoreCanHoldIsRefusedAndTheFileStays) {
  ExpectDone("--store s.xml init");
  const std::string before = Read("s.xml");
  for (const char* name : {"''", "' '", "\"$(printf '\\001')\"", "\"$(printf '\\374')\""}) {
    EXPECT_EQ(2, Tool(std::string("--store s.xml add-session ") + name + " --resource x").exit_code) << name;
  }
  EXPECT_EQ(before, Read("s.xml"));
}

TEST_F(StoreTool, CheckSaysWhatIsWrongAndWhere) {
  Write("s.xml", SampleStore());
  Outcome outcome = Tool("--store s.xml check");
  EXPECT_EQ(0, outcome.exit_code);
  EXPECT_EQ("s.xml: good, 1 driver sessions, 1 logical names\n", outcome.output);

  Write("s.xml", SampleStoreWith("<Cache>1</Cache>", "<Cache>maybe</Cache>"));
  outcome = Tool("--store s.xml check");
  EXPECT_EQ(2, outcome.exit_code);
  EXPECT_EQ("ivi-store: s.xml, line 180, <Cache>: 'maybe' is none of 0, 1, false, true\n", outcome.output);

  Write("s.xml", SampleStoreWith("<IviSoftwareModuleRef idref=\"p3\"/>", ""));
  outcome = Tool("--store s.xml check");
  EXPECT_EQ(0, outcome.exit_code);
  EXPECT_THAT(outcome.output,
              HasSubstr("warning: session 'BenchSession' has no software module and cannot be opened\n"));
}

TEST_F(StoreTool, MissingStoreIsNamedWithTheWayToMakeOne) {
  for (const char* command : {"list", "check", "show x", "remove x", "add-session x --resource y"}) {
    const Outcome outcome = Tool(std::string("--store none.xml ") + command);
    EXPECT_EQ(2, outcome.exit_code) << command;
    EXPECT_EQ("ivi-store: none.xml: no such file; 'ivi-store init' makes one\n", outcome.output);
  }
  EXPECT_EQ(0u, FilesInFolder());
}

TEST_F(StoreTool, MalformedStoreIsNotEdited) {
  Write("s.xml", "<IviConfigStore>");
  EXPECT_EQ(2, Tool("--store s.xml add-session x --resource y").exit_code);
  EXPECT_EQ("<IviConfigStore>", Read("s.xml"));
}

TEST_F(StoreTool, WrongUsageIsToldFromFailure) {
  for (const char* arguments : {"", "nonsense", "show", "add-session x", "--store"}) {
    EXPECT_EQ(64, Tool(arguments).exit_code) << arguments;
  }
  EXPECT_EQ(0, Tool("--help").exit_code);
}

TEST_F(StoreTool, SessionsAddedAtTheSameTimeAreAllThere) {
  ExpectDone("--store s.xml init");
  std::vector<std::thread> runs;
  for (int i = 0; i < 8; ++i) {
    runs.emplace_back([i] { ExpectDone("--store s.xml add-session N" + std::to_string(i) + " --resource x"); });
  }
  for (std::thread& run : runs) run.join();
  EXPECT_THAT(Tool("--store s.xml check").output, HasSubstr("8 driver sessions, 8 logical names"));
  EXPECT_EQ(1u, FilesInFolder());
}

TEST_F(StoreTool, StoreIsWholeAtEveryMomentOfItsReplacement) {
  ExpectDone("--store s.xml init");
  std::jthread editor([] {
    for (int i = 0; i < 10; ++i) ExpectDone("--store s.xml add-session N" + std::to_string(i) + " --resource x");
  });
  for (int i = 0; i < 300; ++i) {
    IviConfigStoreHandle read = nullptr;
    ASSERT_EQ(VI_SUCCESS, Load(&read, "s.xml")) << Error();
    ASSERT_EQ(VI_SUCCESS, IviConfig_Close(read));
  }
}

}  // namespace
