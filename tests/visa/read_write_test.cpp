// viRead, viWrite and their relatives on a byte stream.
#include <unistd.h>
#include <future>
#include <thread>

#include "session_fixture.h"

namespace visa_test {
namespace {

constexpr ViUInt32 kShort = 60;

class ReadWrite : public SessionTest {
 protected:
  std::string Read(ViUInt32 count) {
    std::string buffer(count, '\xEE');
    ViUInt32 received = 12345;
    status = viRead(vi, reinterpret_cast<ViPBuf>(buffer.data()), count, &received);
    EXPECT_LE(received, count);
    buffer.resize(received);
    return buffer;
  }
  ViStatus status = VI_SUCCESS;
};

TEST_F(ReadWrite, AReadEndsAtTheTerminationCharacterAndKeepsTheRest) {
  OpenTo("one\ntwo\nthree\n");
  EXPECT_EQ("one\n", Read(100));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status);
  EXPECT_EQ("tw", Read(2));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status);
  EXPECT_EQ("o\n", Read(100));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status);
  EXPECT_EQ("three\n", Read(6));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status) << "the termination character wins over the count";
}

TEST_F(ReadWrite, WithoutATerminationCharacterOnlyTheCountEndsARead) {
  OpenTo("a\nb\nc");
  viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, VI_FALSE);
  EXPECT_EQ("a\nb\n", Read(4));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status);
  Timeout(kShort);
  EXPECT_EQ("c", Read(4));
  EXPECT_EQ(VI_ERROR_TMO, status) << "what did arrive is delivered with the failure";
}

TEST_F(ReadWrite, AnotherTerminationCharacterIsObeyed) {
  OpenTo("1;2\n;");
  viSetAttribute(vi, VI_ATTR_TERMCHAR, ';');
  EXPECT_EQ("1;", Read(10));
  EXPECT_EQ("2\n;", Read(10));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status);
}

TEST_F(ReadWrite, ACountOfZeroReadsAndWritesNothing) {
  Open([](Connection& c) { EXPECT_EQ("x\n", c.Line()); });
  ViUInt32 moved = 7;
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, viRead(vi, nullptr, 0, &moved));
  EXPECT_EQ(0u, moved);
  moved = 7;
  EXPECT_EQ(VI_SUCCESS, viWrite(vi, nullptr, 0, &moved));
  EXPECT_EQ(0u, moved);
  EXPECT_EQ(VI_SUCCESS, viWrite(vi, reinterpret_cast<ViConstBuf>("x\n"), 2, nullptr));
}

TEST_F(ReadWrite, ANullBufferIsRefused) {
  OpenTo("x\n");
  EXPECT_EQ(VI_ERROR_USER_BUF, viRead(vi, nullptr, 1, nullptr));
  EXPECT_EQ(VI_ERROR_USER_BUF, viWrite(vi, nullptr, 1, nullptr));
}

TEST_F(ReadWrite, NoByteBeyondTheCountIsTouched) {
  OpenTo("abcdefgh");
  std::string buffer(6, '#');
  ViUInt32 received = 0;
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, viRead(vi, reinterpret_cast<ViPBuf>(buffer.data()) + 1, 4, &received));
  EXPECT_EQ("#abcd#", buffer);
}

TEST_F(ReadWrite, MegabytesGoBothWaysUnchanged) {
  constexpr std::size_t kSize = 6 << 20;
  std::string bytes(kSize, '\0');
  for (std::size_t i = 0; i < kSize; ++i) bytes[i] = static_cast<char>(i * 2654435761u >> 13);
  Open([bytes](Connection& c) {
    const std::string received = c.Bytes(bytes.size());
    EXPECT_TRUE(received == bytes);
    c.Send(received);
    c.WaitForClose();
  });
  ViUInt32 moved = 0;
  EXPECT_EQ(VI_SUCCESS, viWrite(vi, reinterpret_cast<ViConstBuf>(bytes.data()), kSize, &moved));
  EXPECT_EQ(kSize, moved);
  viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, VI_FALSE);
  EXPECT_TRUE(bytes == Read(kSize));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status);
}

TEST_F(ReadWrite, BinaryDataIsCutAtTheTerminationCharacterAndGoesOnBehindIt) {
  std::string bytes(300000, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 2654435761u >> 13);
  OpenTo(bytes);
  std::string all;
  while (all.size() < bytes.size() && status >= 0) {
    const auto left = static_cast<ViUInt32>(bytes.size() - all.size());
    const std::string piece = Read(left);
    EXPECT_EQ(status == VI_SUCCESS_TERM_CHAR, piece.back() == '\n');
    all += piece;
  }
  EXPECT_TRUE(bytes == all);
}

TEST_F(ReadWrite, ASilentPeerCostsTheTimeoutAndNotMuchMore) {
  OpenTo("");
  Timeout(kShort);
  const Stopwatch watch;
  EXPECT_EQ("", Read(10));
  EXPECT_EQ(VI_ERROR_TMO, status);
  EXPECT_GE(watch.Milliseconds(), static_cast<int>(kShort) - 1);
  EXPECT_LE(watch.OwnMilliseconds(), static_cast<int>(kShort) + 100);
}

TEST_F(ReadWrite, ADrippingPeerCannotStretchTheTimeout) {
  std::promise<void> done;
  Open([end = done.get_future().share()](Connection& c) {
    while (end.wait_for(std::chrono::milliseconds(2)) == std::future_status::timeout) c.Send("x");
  });
  Timeout(kShort);
  const Stopwatch watch;
  const std::string line = Read(1000000);
  EXPECT_EQ(VI_ERROR_TMO, status);
  EXPECT_GE(line.size(), 2u);
  EXPECT_LE(watch.OwnMilliseconds(), static_cast<int>(kShort) + 100);
  done.set_value();
}

TEST_F(ReadWrite, APeerThatReadsNothingCannotStretchTheTimeoutOfAWrite) {
  std::promise<void> done;
  Open([end = done.get_future().share()](Connection&) { end.wait(); });
  Timeout(kShort);
  const std::string bytes(64 << 20, 'x');
  ViUInt32 sent = 0;
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO,
            viWrite(vi, reinterpret_cast<ViConstBuf>(bytes.data()), static_cast<ViUInt32>(bytes.size()), &sent));
  EXPECT_LE(watch.OwnMilliseconds(), static_cast<int>(kShort) + 100);
  EXPECT_GT(sent, 0u);
  EXPECT_LT(sent, bytes.size());
  done.set_value();
}

TEST_F(ReadWrite, AnImmediateReadDeliversWhatIsThere) {
  std::promise<void> said;
  Open([&said](Connection& c) {
    c.Send("now\n");
    said.set_value();
    c.WaitForClose();
  });
  said.get_future().wait();
  Timeout(2000);
  EXPECT_EQ("n", Read(1)) << "by now the kernel holds the line";
  Timeout(VI_TMO_IMMEDIATE);
  EXPECT_EQ("ow\n", Read(10));
  const Stopwatch watch;
  EXPECT_EQ("", Read(10));
  EXPECT_EQ(VI_ERROR_TMO, status);
  EXPECT_LE(watch.OwnMilliseconds(), 50);
}

TEST_F(ReadWrite, AnInfiniteTimeoutWaitsForTheAnswer) {
  Open([](Connection& c) {
    c.Line();
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    c.Send("late\n");
    c.WaitForClose();
  });
  Timeout(VI_TMO_INFINITE);
  EXPECT_EQ(VI_SUCCESS, viWrite(vi, reinterpret_cast<ViConstBuf>("?\n"), 2, nullptr));
  EXPECT_EQ("late\n", Read(10));
}

TEST_F(ReadWrite, WhatAClosedPeerHadSentIsDeliveredBeforeTheLoss) {
  Open([](Connection& c) { c.Send("bye\nhal"); });
  EXPECT_EQ("bye\n", Read(10));
  EXPECT_EQ("hal", Read(10));
  EXPECT_EQ(VI_ERROR_CONN_LOST, status);
  EXPECT_EQ("", Read(10));
  EXPECT_EQ(VI_ERROR_CONN_LOST, status);
}

TEST_F(ReadWrite, AResetConnectionIsLostAndRaisesNoSignal) {
  Open([](Connection& c) {
    c.Line();
    c.Reset();
  });
  EXPECT_EQ(VI_SUCCESS, viWrite(vi, reinterpret_cast<ViConstBuf>("?\n"), 2, nullptr));
  EXPECT_EQ("", Read(10));
  EXPECT_EQ(VI_ERROR_CONN_LOST, status);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(VI_ERROR_CONN_LOST, viWrite(vi, reinterpret_cast<ViConstBuf>("?\n"), 2, nullptr));
  }
}

TEST_F(ReadWrite, ClosingASessionEndsItsBlockedRead) {
  OpenTo("");
  Timeout(10000);
  std::promise<void> began;
  auto reading = std::async(std::launch::async, [&] {
    char buffer[8];
    began.set_value();
    return viRead(vi, reinterpret_cast<ViPBuf>(buffer), sizeof buffer, nullptr);
  });
  began.get_future().wait();
  std::this_thread::sleep_for(std::chrono::milliseconds(5));
  const Stopwatch watch;
  EXPECT_EQ(VI_SUCCESS, viClose(vi));
  const ViStatus ended = reading.get();
  EXPECT_TRUE(ended == VI_ERROR_CONN_LOST || ended == VI_ERROR_INV_OBJECT) << ended;
  EXPECT_LE(watch.OwnMilliseconds(), 100);
}

TEST_F(ReadWrite, ClearDropsEverythingThatHasArrived) {
  std::promise<void> go;
  Open([go = go.get_future().share()](Connection& c) {
    c.Send("old 1\nold 2\nold 3\n");
    go.wait();
    c.Send("new\n");
    c.WaitForClose();
  });
  EXPECT_EQ("old 1\n", Read(100));
  EXPECT_EQ(VI_SUCCESS, viClear(vi));
  go.set_value();
  EXPECT_EQ("new\n", Read(100));
}

TEST_F(ReadWrite, StatusByteAndTriggerNeedTheProtocolOfStrings) {
  Open([](Connection& c) {
    EXPECT_EQ("*TRG\n", c.Line());
    EXPECT_EQ("*STB?\n", c.Line());
    c.Send("+80\n");
    EXPECT_EQ("*STB?\n", c.Line());
    c.Send("none\n");
    EXPECT_EQ("*STB?\n", c.Line());
    c.Send("300\n");
    c.WaitForClose();
  });
  ViUInt16 status_byte = 0;
  EXPECT_EQ(VI_ERROR_INV_SETUP, viReadSTB(vi, &status_byte));
  EXPECT_EQ(VI_ERROR_INV_SETUP, viAssertTrigger(vi, VI_TRIG_PROT_DEFAULT));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_IO_PROT, VI_PROT_4882_STRS));
  EXPECT_EQ(VI_ERROR_INV_PROT, viAssertTrigger(vi, 1));
  EXPECT_EQ(VI_SUCCESS, viAssertTrigger(vi, VI_TRIG_PROT_DEFAULT));
  EXPECT_EQ(VI_SUCCESS, viReadSTB(vi, &status_byte));
  EXPECT_EQ(80, status_byte);
  EXPECT_EQ(VI_ERROR_OUTP_PROT_VIOL, viReadSTB(vi, &status_byte));
  EXPECT_EQ(VI_ERROR_OUTP_PROT_VIOL, viReadSTB(vi, &status_byte));
  EXPECT_EQ(80, status_byte);
  EXPECT_EQ(VI_ERROR_USER_BUF, viReadSTB(vi, nullptr));
}

TEST_F(ReadWrite, WhatAByteStreamCannotDoIsRefused) {
  OpenTo("");
  ViJobId job = 0;
  ViByte byte = 0;
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viReadAsync(vi, &byte, 1, &job));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viWriteAsync(vi, &byte, 1, &job));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viGpibControlREN(vi, 1));
  EXPECT_EQ(VI_ERROR_INV_DEGREE, viTerminate(vi, 1, VI_NULL));
  EXPECT_EQ(VI_ERROR_INV_JOB_ID, viTerminate(vi, VI_NULL, 5));
}

TEST_F(ReadWrite, FilesGoAndComeWhole) {
  const std::string name = testing::TempDir() + "/visa_file_" + std::to_string(::getpid());
  const std::string bytes(150000, 'f');
  Open([bytes](Connection& c) {
    c.Send(bytes + "\n" + "more\n");
    EXPECT_TRUE(c.Bytes(bytes.size() + 6) == bytes + "\nmore\n");
    c.WaitForClose();
  });
  ViUInt32 moved = 0;
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, viReadToFile(vi, name.c_str(), 1000000, &moved));
  EXPECT_EQ(bytes.size() + 1, moved);
  viSetAttribute(vi, VI_ATTR_FILE_APPEND_EN, VI_TRUE);
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, viReadToFile(vi, name.c_str(), 1000000, &moved));
  EXPECT_EQ(5u, moved);
  EXPECT_EQ(VI_SUCCESS, viWriteFromFile(vi, name.c_str(), 1000000, &moved));
  EXPECT_EQ(bytes.size() + 6, moved);
  EXPECT_EQ(VI_ERROR_FILE_ACCESS, viWriteFromFile(vi, (name + "/none").c_str(), 1, &moved));
  EXPECT_EQ(0u, moved);
  EXPECT_EQ(VI_ERROR_FILE_ACCESS, viReadToFile(vi, nullptr, 1, nullptr));
  ::unlink(name.c_str());
}

}  // namespace
}  // namespace visa_test
