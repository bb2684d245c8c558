#include "counted_calls.h"

#include <dlfcn.h>
#include <malloc.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/select.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

thread_local Counts g_counts;
thread_local std::ptrdiff_t g_held = 0;
thread_local std::ptrdiff_t g_most_held = 0;

template <class Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

Counts CountedCalls() { return g_counts; }

std::size_t MostHeldDuring(const std::function<void()>& work) {
  const std::ptrdiff_t before = g_most_held = g_held;
  work();
  return static_cast<std::size_t>(g_most_held - before);
}

#define COUNTED(result, name, field, parameters, arguments)   \
  extern "C" result name parameters {                         \
    static auto* const real = Real<result parameters>(#name); \
    ++g_counts.field;                                         \
    return real arguments;                                    \
  }

COUNTED(ssize_t, send, sends, (int s, const void* b, size_t n, int f), (s, b, n, f))
COUNTED(ssize_t, sendto, sends, (int s, const void* b, size_t n, int f, const sockaddr* a, socklen_t l),
        (s, b, n, f, a, l))
COUNTED(ssize_t, sendmsg, sends, (int s, const msghdr* m, int f), (s, m, f))
COUNTED(ssize_t, write, sends, (int s, const void* b, size_t n), (s, b, n))
COUNTED(ssize_t, writev, sends, (int s, const iovec* v, int n), (s, v, n))
COUNTED(ssize_t, recv, receives, (int s, void* b, size_t n, int f), (s, b, n, f))
COUNTED(ssize_t, recvfrom, receives, (int s, void* b, size_t n, int f, sockaddr* a, socklen_t* l), (s, b, n, f, a, l))
COUNTED(ssize_t, recvmsg, receives, (int s, msghdr* m, int f), (s, m, f))
COUNTED(ssize_t, read, receives, (int s, void* b, size_t n), (s, b, n))
COUNTED(ssize_t, readv, receives, (int s, const iovec* v, int n), (s, v, n))
COUNTED(int, poll, others, (pollfd * p, nfds_t n, int t), (p, n, t))
COUNTED(int, ppoll, others, (pollfd * p, nfds_t n, const timespec* t, const sigset_t* m), (p, n, t, m))
COUNTED(int, select, others, (int n, fd_set* r, fd_set* w, fd_set* e, timeval* t), (n, r, w, e, t))
COUNTED(int, epoll_wait, others, (int s, epoll_event* e, int n, int t), (s, e, n, t))
COUNTED(int, setsockopt, others, (int s, int l, int o, const void* v, socklen_t n), (s, l, o, v, n))
COUNTED(int, getsockopt, others, (int s, int l, int o, void* v, socklen_t* n), (s, l, o, v, n))

void* operator new(std::size_t size) {
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  ++g_counts.allocations;
  g_held += static_cast<std::ptrdiff_t>(::malloc_usable_size(memory));
  g_most_held = std::max(g_most_held, g_held);
  return memory;
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* memory) noexcept {
  if (memory != nullptr) g_held -= static_cast<std::ptrdiff_t>(::malloc_usable_size(memory));
  std::free(memory);
}
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t) noexcept { operator delete(memory); }
