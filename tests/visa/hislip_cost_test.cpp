// What an exchange may cost once a link is warm.
#include <sys/socket.h>

#include <atomic>
#include <cstdlib>
#include <future>
#include <new>

#include "hislip_peer.h"

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
ssize_t __wrap_send(int socket, const void* bytes, size_t size, int flags) {
  Note(sends);
  return __real_send(socket, bytes, size, flags);
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

namespace tvr::visa::hislip {
namespace {

class HislipCost : public HislipLink {
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
};

TEST_F(HislipCost, AQueryIsOneSendAndOneReceiveAndNoAllocation) {
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"));
  Exchange();
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000002", "1\n"));
  counting = true;
  Exchange();
  counting = false;
  EXPECT_EQ(1, sends);
  EXPECT_EQ(1, receives);
  EXPECT_EQ(0, others);
  EXPECT_EQ(0, allocations);
}

}  // namespace
}  // namespace tvr::visa::hislip
