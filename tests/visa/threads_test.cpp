// Several threads: on one session, on many, and while sessions come and go.
#include <array>
#include <atomic>
#include <thread>
#include <vector>

#include "session_fixture.h"

namespace visa_test {
namespace {

constexpr int kThreads = 16;

class Threads : public SessionTest {};

// Answers "n?\n" with "n\n" for as long as there are questions.
void Echo(Connection& c) {
  for (std::string line = c.Line(); !line.empty(); line = c.Line()) {
    const std::size_t mark = line.find('?');
    if (mark != std::string::npos) c.Send(line.substr(0, mark) + "\n");
  }
}

void InThreads(int count, const std::function<void(int)>& work) {
  std::vector<std::thread> threads;
  for (int i = 0; i < count; ++i) threads.emplace_back(work, i);
  for (std::thread& thread : threads) thread.join();
}

TEST_F(Threads, SixteenOnOneSessionEachGetTheAnswerToTheirOwnQuestion) {
  Open(Echo);
  Timeout(10000);
  InThreads(kThreads, [this](int thread) {
    for (int i = 0; i < 50; ++i) {
      const ViInt32 tag = thread * 1000 + i;
      ViInt32 answer = -1;
      ASSERT_EQ(VI_SUCCESS, viQueryf(vi, "%ld?\n", "%ld%*t", tag, &answer));
      ASSERT_EQ(tag, answer);
    }
  });
}

TEST_F(Threads, AttributesCanBeReadAndSetWhileACallIsWaiting) {
  OpenTo("");
  Timeout(300);
  std::thread waiting([this] {
    char byte = 0;
    EXPECT_EQ(VI_ERROR_TMO, viRead(vi, reinterpret_cast<ViPBuf>(&byte), 1, nullptr));
  });
  const Stopwatch watch;
  ViUInt32 value = 0;
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi, VI_ATTR_TMO_VALUE, &value));
    EXPECT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_USER_DATA_32, 5));
    EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi, VI_ATTR_RD_BUF_SIZE, &value));
  }
  EXPECT_LE(watch.OwnMilliseconds(), 250) << "no attribute waits for the read";
  waiting.join();
}

TEST_F(Threads, SessionsOpenAskAndCloseInAStorm) {
  Peer echo(Echo);
  ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager));
  InThreads(8, [&](int thread) {
    for (int i = 0; i < 15; ++i) {
      ViSession own = VI_NULL;
      ASSERT_EQ(VI_SUCCESS, viOpen(manager, echo.Descriptor().c_str(), VI_NULL, 5000, &own));
      ASSERT_EQ(VI_SUCCESS, viSetAttribute(own, VI_ATTR_TERMCHAR_EN, VI_TRUE));
      const ViInt32 tag = thread * 100 + i;
      ViInt32 answer = -1;
      ASSERT_EQ(VI_SUCCESS, viQueryf(own, "%ld?\n", "%ld%*t", tag, &answer));
      ASSERT_EQ(tag, answer);
      ASSERT_EQ(VI_SUCCESS, viClose(own));
      ASSERT_EQ(VI_ERROR_INV_OBJECT, viClose(own));
    }
  });
}

TEST_F(Threads, ASessionThatIsClosedUnderItsUsersFailsThemAll) {
  Open(Echo);
  std::atomic<int> asked{0};
  std::thread closer([&] {
    while (asked.load() < 20) std::this_thread::yield();
    EXPECT_EQ(VI_SUCCESS, viClose(manager));
  });
  InThreads(4, [&](int) {
    ViStatus status = VI_SUCCESS;
    while (status >= 0) {
      ViInt32 answer = 0;
      status = viQueryf(vi, "1?\n", "%ld%*t", &answer);
      ++asked;
    }
    EXPECT_TRUE(status == VI_ERROR_INV_OBJECT || status == VI_ERROR_CONN_LOST) << status;
  });
  closer.join();
  manager = VI_NULL;
}

TEST_F(Threads, OneHandleIsClosedByOneThreadOnly) {
  Peer echo(Echo);
  ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager));
  for (int round = 0; round < 20; ++round) {
    ViSession own = VI_NULL;
    ASSERT_EQ(VI_SUCCESS, viOpen(manager, echo.Descriptor().c_str(), VI_NULL, 5000, &own));
    std::atomic<int> closed{0};
    InThreads(4, [&](int) { closed += viClose(own) == VI_SUCCESS ? 1 : 0; });
    EXPECT_EQ(1, closed.load());
  }
}

}  // namespace
}  // namespace visa_test
