// TVR_VISA_TRACE is read when the library is loaded, so each case runs in a process of its own.
#include <unistd.h>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "session_fixture.h"

namespace visa_test {
namespace {

int Exchange(const std::string& answer = "a\"b\x01\n") {
  Peer instrument([&answer](Connection& c) {
    c.Line();
    c.Send(answer);
    c.WaitForClose();
  });
  ViSession manager = VI_NULL;
  ViSession vi = VI_NULL;
  char text[16] = "";
  const bool done = viOpenDefaultRM(&manager) == VI_SUCCESS &&
                    viOpen(manager, instrument.Descriptor().c_str(), VI_NULL, 2000, &vi) == VI_SUCCESS &&
                    viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, VI_TRUE) == VI_SUCCESS &&
                    viQueryf(vi, "*IDN?\n", "%15[^\n]%*t", text) == VI_SUCCESS;
  viClose(manager);
  return done ? 0 : 1;
}

class Trace : public testing::Test {
 protected:
  void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
  void TearDown() override { ::unsetenv("TVR_VISA_TRACE"); }
};

using TraceDeathTest = Trace;

TEST_F(TraceDeathTest, ShowsEveryMessageWithTimeSessionDirectionBytesAndStatus) {
  ::setenv("TVR_VISA_TRACE", "stderr", 1);
  EXPECT_EXIT(std::exit(Exchange()), testing::ExitedWithCode(0),
              "..:..:..\\.[0-9]+ [0-9A-F]+ > 6 bytes 0x00000000 \"\\*IDN\\?\\\\n\"\n"
              "..:..:..\\.[0-9]+ [0-9A-F]+ < 5 bytes 0x3FFF0005 \"a\\\\\"b\\\\x01\\\\n\"\n");
}

TEST_F(TraceDeathTest, IsSilentWhenItIsNotAskedFor) {
  ::unsetenv("TVR_VISA_TRACE");
  EXPECT_EXIT(std::exit(Exchange()), testing::ExitedWithCode(0), "^$");
}

TEST_F(TraceDeathTest, ShowsTheBeginningOfALongMessageAndHowLongItIs) {
  ::setenv("TVR_VISA_TRACE", "stderr", 1);
  EXPECT_EXIT(std::exit(Exchange("\\\xFF" + std::string(254, 'x') + "y\n")), testing::ExitedWithCode(0),
              " < 258 bytes 0x3FFF0005 \"\\\\\\\\\\\\xFFx*\"\\.\\.\\.\n");
}

TEST_F(TraceDeathTest, AnEmptyNameAsksForNone) {
  ::setenv("TVR_VISA_TRACE", "", 1);
  EXPECT_EXIT(std::exit(Exchange()), testing::ExitedWithCode(0), "^$");
}

TEST_F(TraceDeathTest, SaysThatItsFileCannotBeOpenedAndTheCallsGoOn) {
  ::setenv("TVR_VISA_TRACE", "/nowhere/trace", 1);
  EXPECT_EXIT(std::exit(Exchange()), testing::ExitedWithCode(0), "^TVR_VISA_TRACE: cannot open /nowhere/trace\n$");
}

TEST_F(TraceDeathTest, GoesToTheNamedFile) {
  // The process that is traced computes another name, and has been given this one.
  const std::string name = testing::TempDir() + "/visa_trace_" + std::to_string(::getpid());
  ::setenv("TVR_VISA_TRACE", name.c_str(), 1);
  EXPECT_EXIT(std::exit(Exchange()), testing::ExitedWithCode(0), "");
  std::stringstream text;
  text << std::ifstream(name).rdbuf();
  EXPECT_NE(std::string::npos, text.str().find(" > 6 bytes 0x00000000 \"*IDN?\\n\"\n")) << text.str();
  EXPECT_NE(std::string::npos, text.str().find("= "));
  ::unlink(name.c_str());
}

}  // namespace
}  // namespace visa_test
