// What an exchange may cost once a link is warm.
#include <sys/socket.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "vxi11_peer.h"

namespace {

std::atomic<bool> counting{false};
std::atomic<int> allocations{0};
std::atomic<int> sends{0};
std::atomic<int> receives{0};
std::atomic<int> others{0};

void Note(std::atomic<int>& counter) {
  if (counting) ++counter;
}

}  // namespace

// Not inlined: beside the other, the compiler would take the free of one for a mistake about the new of the other.
[[gnu::noinline]] void* operator new(std::size_t size) {
  Note(allocations);
  if (void* const memory = std::malloc(size != 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

extern "C" {
ssize_t __real_send(int, const void*, size_t, int);
ssize_t __real_sendmsg(int, const msghdr*, int);
ssize_t __real_recv(int, void*, size_t, int);
int __real_poll(void*, unsigned long, int);
ssize_t __wrap_send(int socket, const void* from, size_t size, int flags) {
  Note(sends);
  return __real_send(socket, from, size, flags);
}
ssize_t __wrap_sendmsg(int socket, const msghdr* message, int flags) {
  Note(sends);
  return __real_sendmsg(socket, message, flags);
}
ssize_t __wrap_recv(int socket, void* into, size_t size, int flags) {
  Note(receives);
  return __real_recv(socket, into, size, flags);
}
int __wrap_poll(void* entries, unsigned long count, int timeout) {
  Note(others);
  return __real_poll(entries, count, timeout);
}
}

namespace tvr::visa::vxi11 {
namespace {

class Vxi11Cost : public Vxi11Link {
 protected:
  void Exchange() {
    const std::string_view question = "*OPC?\n";
    iovec piece{const_cast<char*>(question.data()), question.size()};
    std::size_t count = 0;
    Deadline deadline(2000);
    ASSERT_EQ(VI_SUCCESS, link_->Write({&piece, 1}, true, deadline, count));
    ViByte into[64];
    ASSERT_EQ(VI_SUCCESS, link_->Read({into, sizeof into, 1, {}}, deadline, count));
    ASSERT_EQ(2u, count);
  }
  void SetUp() override {
    sends = receives = others = allocations = 0;
    Vxi11Link::SetUp();
  }
};

TEST_F(Vxi11Cost, ACallIsOneSendAndOneReceiveAndNoAllocation) {
  // Both replies lie in the socket and would come together: so one at a time, from the thread that counts nothing.
  const std::string written = "00000000 00000006";
  const std::string read = "00000000 00000004 00000002 '1' 0A 0000";
  peer_.Says(kCore, Reply(2, written) + Reply(3, read));
  Exchange();
  peer_.Says(kCore, Reply(4, written));
  Deadline deadline(2000);
  std::size_t count = 0;
  std::string question = "*OPC?\n";
  iovec piece{question.data(), question.size()};
  counting = true;
  const ViStatus write_status = link_->Write({&piece, 1}, true, deadline, count);
  counting = false;
  EXPECT_EQ(VI_SUCCESS, write_status);
  EXPECT_EQ(1, sends);
  EXPECT_EQ(1, receives);

  peer_.Says(kCore, Reply(5, read));
  ViByte into[64];
  counting = true;
  const ViStatus read_status = link_->Read({into, sizeof into, 1, {}}, deadline, count);
  counting = false;
  EXPECT_EQ(VI_SUCCESS, read_status);
  EXPECT_EQ(2u, count);
  EXPECT_EQ(2, sends);
  EXPECT_EQ(2, receives);
  EXPECT_EQ(0, others);
  EXPECT_EQ(0, allocations);
}

TEST_F(Vxi11Cost, AQuestionAndItsReadAreOneSendAndOneReceiveWhenTheirRepliesComeTogether) {
  const auto ask = [&](unsigned number, bool apart) {
    const std::string written = Reply(number, "00000000 00000006");
    const std::string read = Reply(number + 1, "00000000 00000004 00000002 '1' 0A 0000");
    std::string question = "*OPC?\n";
    iovec piece{question.data(), question.size()};
    ViByte into[64];
    std::size_t count = 0;
    Deadline deadline(2000);
    sends = receives = others = allocations = 0;
    peer_.Says(kCore, apart ? written : written + read);
    counting = true;
    link_->ExpectRead(sizeof into, {});
    EXPECT_EQ(VI_SUCCESS, link_->Write({&piece, 1}, true, deadline, count));
    counting = false;
    if (apart) peer_.Says(kCore, read);
    counting = true;
    EXPECT_EQ(VI_SUCCESS, link_->Read({into, sizeof into, 1, {}}, deadline, count));
    counting = false;
    EXPECT_EQ(2u, count);
  };
  ask(2, false);
  ask(4, false);
  EXPECT_EQ(1, sends);
  EXPECT_EQ(1, receives);
  EXPECT_EQ(0, others);
  EXPECT_EQ(0, allocations);
  ask(6, true);
  EXPECT_EQ(1, sends);
  EXPECT_EQ(2, receives);
  EXPECT_EQ(0, others);
  EXPECT_EQ(0, allocations);
}

}  // namespace
}  // namespace tvr::visa::vxi11
