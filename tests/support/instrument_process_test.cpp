// The launcher, tried on shell scripts that behave as the virtual instrument does and as it must not.

#include "InstrumentProcess.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace kvtd::test {
namespace {

class InstrumentProcessTest : public testing::Test {
 protected:
  ~InstrumentProcessTest() override { std::filesystem::remove(path_); }

  std::string Program(const std::string& body) {
    std::ofstream(path_) << "#!/bin/sh\n" << body;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all);
    return path_;
  }

 private:
  const std::string path_ =
      testing::TempDir() + "/instrument_" + testing::UnitTest::GetInstance()->current_test_info()->name() + ".sh";
};

TEST_F(InstrumentProcessTest, TellsThePortsOfTheListenersNamed) {
  InstrumentProcess instrument(
      Program("echo hislip 127.0.0.1:4880\necho vxi11 127.0.0.1:1024\necho socket 127.0.0.1:5025\ncat\n"), {},
      {"socket", "hislip", "vxi11"});
  EXPECT_EQ(5025, instrument.port());
  EXPECT_EQ(4880, instrument.port("hislip"));
  EXPECT_EQ(1024, instrument.port("vxi11"));
  EXPECT_EQ("TCPIP0::127.0.0.1::5025::SOCKET", instrument.SocketResource());
}

TEST_F(InstrumentProcessTest, EndsTheProgramByClosingItsInput) {
  InstrumentProcess instrument(Program("echo socket 127.0.0.1:5025\ncat >/dev/null\nexit 3\n"), {});
  const std::optional<int> status = instrument.End();
  ASSERT_TRUE(status.has_value());
  EXPECT_EQ(3, WEXITSTATUS(*status));
}

TEST_F(InstrumentProcessTest, PassesItsArgumentsBehindTheOneThatTiesTheProgramToItsInput) {
  InstrumentProcess instrument(
      Program("[ \"$*\" = '--exit-with-stdin --socket 0' ] && echo socket 127.0.0.1:5025\ncat\n"), {"--socket", "0"});
  EXPECT_EQ(5025, instrument.port());
}

TEST_F(InstrumentProcessTest, AProgramThatEndsWithoutAListenerIsAnError) {
  EXPECT_THROW(InstrumentProcess(Program("exit 1\n"), {}), std::runtime_error);
}

TEST_F(InstrumentProcessTest, AListenerWithoutAPortIsAnError) {
  EXPECT_THROW(InstrumentProcess(Program("echo socket nowhere\ncat\n"), {}), std::runtime_error);
}

TEST_F(InstrumentProcessTest, AProgramThatIsNotThereIsAnError) {
  EXPECT_THROW(InstrumentProcess("/nonexistent/instrument", {}), std::runtime_error);
}

}  // namespace
}  // namespace kvtd::test
