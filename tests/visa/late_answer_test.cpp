// Answers that come after their question was given up, on a link that cannot tell whose they are.
#include <gtest/gtest.h>
#include <tvrvisa.h>

#include <string>

#include "Sockets.h"
#include "session_fixture.h"

namespace visa_test {
namespace {

using kvtd::test::ConnectTo;
using kvtd::test::Descriptor;
using kvtd::test::Listener;
using kvtd::test::ReceiveUntil;

// The test plays the instrument as well: what it says lies in the socket before the client asks.
class LateAnswer : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager_));
    const std::string name = "TCPIP0::127.0.0.1::" + std::to_string(listener_.port()) + "::SOCKET";
    ASSERT_EQ(VI_SUCCESS, viOpen(manager_, name.c_str(), VI_NULL, 2000, &vi_));
    ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TERMCHAR_EN, VI_TRUE));
    AcceptNext();
  }
  ~LateAnswer() override { viClose(manager_); }

  void AcceptNext() {
    ASSERT_TRUE(kvtd::test::WaitReadable(listener_.descriptor(), nullptr, kvtd::test::kPatience));
    instrument_ = listener_.Accept();
    ASSERT_TRUE(instrument_.open());
  }
  void Reconnect(ViAttrState on) { ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, TVR_ATTR_SOCKET_RECONNECT, on)); }
  void Timeout(ViUInt32 milliseconds) { ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TMO_VALUE, milliseconds)); }

  // Asks, and gives up before the instrument has answered.
  void AskInVain(const std::string& question) {
    ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "%s\n", question.c_str()));
    ASSERT_EQ(question + "\n", ReceiveUntil(instrument_, '\n'));
    Timeout(VI_TMO_IMMEDIATE);
    ViInt32 value = 0;
    ASSERT_EQ(VI_ERROR_TMO, viScanf(vi_, "%ld%*t", &value));
    Timeout(2000);
  }
  void Says(const std::string& words) { ASSERT_TRUE(kvtd::test::SendAll(instrument_, words)); }
  ViInt32 Value() {
    ViInt32 value = 0;
    EXPECT_EQ(VI_SUCCESS, viScanf(vi_, "%ld%*t", &value));
    return value;
  }

  Listener listener_;
  Descriptor instrument_;
  ViSession manager_ = VI_NULL;
  ViSession vi_ = VI_NULL;
};

TEST_F(LateAnswer, IsTakenForTheNextOneWhereNobodySaidOtherwise) {
  ViBoolean on = VI_TRUE;
  EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi_, TVR_ATTR_SOCKET_RECONNECT, &on));
  EXPECT_EQ(VI_FALSE, on);
  AskInVain("SLOW?");
  Says("1\n");
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "QUICK?\n"));
  EXPECT_EQ("QUICK?\n", ReceiveUntil(instrument_, '\n'));
  Says("2\n");
  EXPECT_EQ(1, Value());
}

TEST_F(LateAnswer, IsLostWithItsConnection) {
  Reconnect(VI_TRUE);
  AskInVain("SLOW?");
  Says("1\n");
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "QUICK?\n"));
  EXPECT_EQ("", ReceiveUntil(instrument_, '\n')) << "the end of the old connection";
  AcceptNext();
  EXPECT_EQ("QUICK?\n", ReceiveUntil(instrument_, '\n'));
  Says("2\n");
  EXPECT_EQ(2, Value());
}

TEST_F(LateAnswer, ThatIsWaitedForOnceMoreIsTheAnswer) {
  Reconnect(VI_TRUE);
  AskInVain("SLOW?");
  Says("1\n");
  EXPECT_EQ(1, Value());
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "QUICK?\n"));
  EXPECT_EQ("QUICK?\n", ReceiveUntil(instrument_, '\n')) << "the same connection";
}

TEST_F(LateAnswer, OptionsOfTheConnectionAreKept) {
  Reconnect(VI_TRUE);
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TCPIP_NODELAY, VI_FALSE));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TCPIP_KEEPALIVE, VI_TRUE));
  AskInVain("SLOW?");
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "QUICK?\n"));
  AcceptNext();
  EXPECT_EQ("QUICK?\n", ReceiveUntil(instrument_, '\n'));
  ViBoolean on = VI_TRUE;
  EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi_, VI_ATTR_TCPIP_NODELAY, &on));
  EXPECT_EQ(VI_FALSE, on);
  EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi_, VI_ATTR_TCPIP_KEEPALIVE, &on));
  EXPECT_EQ(VI_TRUE, on);
}

TEST_F(LateAnswer, AnInstrumentThatTakesNoNewConnectionIsLostAndAskedAgain) {
  Reconnect(VI_TRUE);
  AskInVain("SLOW?");
  listener_.Close();
  EXPECT_EQ(VI_ERROR_CONN_LOST, viPrintf(vi_, "QUICK?\n"));
  EXPECT_EQ(VI_ERROR_CONN_LOST, viPrintf(vi_, "QUICK?\n"));
}

TEST_F(LateAnswer, TheAttributeIsTrueOrFalseAndOfSocketsAlone) {
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi_, TVR_ATTR_SOCKET_RECONNECT, 2));
  ViBoolean on = VI_TRUE;
  EXPECT_EQ(VI_ERROR_NSUP_ATTR, viGetAttribute(manager_, TVR_ATTR_SOCKET_RECONNECT, &on));
}

TEST_F(LateAnswer, NeverIsAWrongValueReadThroughTenThousandTimeouts) {
  Reconnect(VI_TRUE);
  for (int i = 0; i < 10000; ++i) {
    AskInVain("SLOW?");
    // By turns whole, in part, and not at all.
    if (i % 3 != 0) Says(std::to_string(100000 + i) + (i % 3 == 1 ? "\n" : ""));
    ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "QUICK?\n"));
    AcceptNext();
    ASSERT_EQ("QUICK?\n", ReceiveUntil(instrument_, '\n'));
    Says(std::to_string(i) + "\n");
    ASSERT_EQ(i, Value());
  }
}

}  // namespace
}  // namespace visa_test
