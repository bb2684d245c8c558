// TVR_VISA_TRACE is read when the library is loaded, so each case runs in a process of its own.
#include <unistd.h>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "session_fixture.h"

namespace visa_test {
namespace {

int Exchange() {
  Peer instrument([](Connection& c) {
    c.Line();
    c.Send("a\"b\x01\n");
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
  EXPECT_EXIT(std::_Exit(Exchange()), testing::ExitedWithCode(0),
              "..:..:..\\.[0-9]+ [0-9A-F]+ > 6 bytes 0x00000000 \"\\*IDN\\?\\\\n\"\n"
              "..:..:..\\.[0-9]+ [0-9A-F]+ < 5 bytes 0x3FFF0005 \"a\\\\\"b\\\\x01\\\\n\"\n");
}

TEST_F(TraceDeathTest, IsSilentWhenItIsNotAskedFor) {
  ::unsetenv("TVR_VISA_TRACE");
  EXPECT_EXIT(std::_Exit(Exchange()), testing::ExitedWithCode(0), "^$");
}

TEST_F(TraceDeathTest, GoesToTheNamedFile) {
  // The process that is traced computes another name, and has been given this one.
  const std::string name = testing::TempDir() + "/visa_trace_" + std::to_string(::getpid());
  ::setenv("TVR_VISA_TRACE", name.c_str(), 1);
  EXPECT_EXIT(std::_Exit(Exchange()), testing::ExitedWithCode(0), "");
  std::stringstream text;
  text << std::ifstream(name).rdbuf();
  EXPECT_NE(std::string::npos, text.str().find(" > 6 bytes 0x00000000 \"*IDN?\\n\"\n")) << text.str();
  EXPECT_NE(std::string::npos, text.str().find("= "));
  ::unlink(name.c_str());
}

}  // namespace
}  // namespace visa_test
