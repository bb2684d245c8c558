// What an exchange may cost: system calls and allocations. The library's objects are linked in, its calls of the system
// are wrapped by the linker, and operator new counts.
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <new>

#include "session_fixture.h"

namespace {

// The peer's thread runs in the same process: only the thread that is measured counts.
thread_local bool counting = false;
int sends = 0;
int receives = 0;
int others = 0;
int allocations = 0;

void* Allocate(std::size_t size) {
  if (counting) ++allocations;
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

// Not inlined: beside each other they look to the compiler like a free of what new gave.
[[gnu::noinline]] void* operator new(std::size_t size) { return Allocate(size); }
[[gnu::noinline]] void* operator new[](std::size_t size) { return Allocate(size); }
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete[](void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

extern "C" {
ssize_t __real_sendmsg(int socket, const msghdr* message, int flags);
ssize_t __real_send(int socket, const void* bytes, size_t size, int flags);
ssize_t __real_recv(int socket, void* into, size_t room, int flags);
int __real_poll(pollfd* waits, nfds_t count, int timeout);
int __real_setsockopt(int socket, int level, int option, const void* value, socklen_t size);

ssize_t __wrap_sendmsg(int socket, const msghdr* message, int flags) {
  if (counting) ++sends;
  return __real_sendmsg(socket, message, flags);
}
ssize_t __wrap_send(int socket, const void* bytes, size_t size, int flags) {
  if (counting) ++sends;
  return __real_send(socket, bytes, size, flags);
}
ssize_t __wrap_recv(int socket, void* into, size_t room, int flags) {
  if (counting) ++receives;
  return __real_recv(socket, into, room, flags);
}
int __wrap_poll(pollfd* waits, nfds_t count, int timeout) {
  if (counting) ++others;
  return __real_poll(waits, count, timeout);
}
int __wrap_setsockopt(int socket, int level, int option, const void* value, socklen_t size) {
  if (counting) ++others;
  return __real_setsockopt(socket, level, option, value, size);
}
}

namespace visa_test {
namespace {

struct Cost {
  int sends, receives, others, allocations;
  bool operator==(const Cost&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Cost& cost) {
  return out << cost.sends << " sends, " << cost.receives << " receives, " << cost.others << " others, "
             << cost.allocations << " allocations";
}

// The cheapest of several runs: on a busy machine an answer may be later than one slice of waiting, and then the wait
// goes on in a poll.
template <class Work>
Cost CostOf(Work work) {
  work();
  Cost cheapest{1 << 20, 1 << 20, 1 << 20, 1 << 20};
  for (int i = 0; i < 20; ++i) {
    sends = receives = others = allocations = 0;
    counting = true;
    work();
    counting = false;
    const Cost cost{sends, receives, others, allocations};
    if (cost.receives + cost.others < cheapest.receives + cheapest.others) cheapest = cost;
    EXPECT_EQ(0, cost.allocations);
  }
  return cheapest;
}

class CostOfAnExchange : public SessionTest {
 protected:
  void SetUp() override {
    Open([](Connection& c) {
      for (std::string line = c.Line(); !line.empty(); line = c.Line()) {
        if (line.find('?') != std::string::npos) c.Send("12.5,text\n");
      }
    });
  }
};

TEST_F(CostOfAnExchange, ASettingIsOneSend) {
  EXPECT_EQ((Cost{1, 0, 0, 0}), CostOf([this] {
              ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":LIST%ld:FREQ %0.15lg HZ;NAME \"%s\"\n", ViInt32{3}, 1.5e9, "name"));
            }));
}

TEST_F(CostOfAnExchange, AQueryIsOneSendAndOneReceive) {
  EXPECT_EQ((Cost{1, 1, 0, 0}), CostOf([this] {
              double value = 0;
              std::array<char, 16> text{};
              ViInt32 size = 16;
              ASSERT_EQ(VI_SUCCESS, viQueryf(vi, ":FREQ?\n", "%lf,%#[^\n]%*t", &value, &size, text.data()));
              ASSERT_STREQ("text", text.data());
            }));
}

TEST_F(CostOfAnExchange, AWriteAndAReadAreOneCallEach) {
  EXPECT_EQ((Cost{1, 1, 0, 0}), CostOf([this] {
              std::array<ViByte, 64> answer;
              ASSERT_EQ(VI_SUCCESS, viWrite(vi, reinterpret_cast<ViConstBuf>("?\n"), 2, nullptr));
              ASSERT_EQ(VI_SUCCESS_TERM_CHAR, viRead(vi, answer.data(), 64, nullptr));
            }));
}

TEST_F(CostOfAnExchange, ALargeBlockGoesWithItsTextInOneSend) {
  const std::string bytes(16000, 'b');
  EXPECT_EQ((Cost{1, 0, 0, 0}), CostOf([&] {
              ASSERT_EQ(VI_SUCCESS, viPrintf(vi, ":DATA %*b,%*b\n", ViInt32{16000}, bytes.data(), ViInt32{3}, "abc"));
            }));
}

TEST_F(CostOfAnExchange, AttributesCostNoCallOfTheSystem) {
  EXPECT_EQ((Cost{0, 0, 0, 0}), CostOf([this] {
              ViUInt32 timeout = 0;
              ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 3000));
              ASSERT_EQ(VI_SUCCESS, viGetAttribute(vi, VI_ATTR_TMO_VALUE, &timeout));
            }));
}

}  // namespace
}  // namespace visa_test
