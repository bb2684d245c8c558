#include "fake_network.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/uio.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <utility>

#include "Require.h"

namespace kvtd::fuzz {
namespace {

using std::chrono::milliseconds;

// Above all that the system gives out.
constexpr int kFirstDescriptor = 1 << 20;
// The slice that the library waits within a send or a receive.
constexpr milliseconds kSlice{4};
constexpr milliseconds kForever = milliseconds::max();

struct Connection {
  Peer* peer = nullptr;
  bool finished = false;  // half-closed, closed or reset by the peer
  bool closed = false;
  bool reset = false;
  milliseconds wait{0};  // until `heard` may be received
  std::string heard;
  std::size_t taken = 0;  // of it
  bool hung_up = false;
};

struct State {
  std::vector<Peer*> peers;
  // By descriptor; null behind one that is closed. Two descriptors may be of one connection.
  std::vector<std::shared_ptr<Connection>> connections;
  std::chrono::steady_clock::time_point now{std::chrono::hours(1)};
  Disturbance disturbance;
  bool disturbed = false;
};
State& The() {
  static State state;
  return state;
}

Connection* Find(int descriptor) {
  const auto place = static_cast<std::size_t>(descriptor - kFirstDescriptor);
  return descriptor >= kFirstDescriptor && place < The().connections.size() ? The().connections[place].get() : nullptr;
}

bool Ended(const Connection& connection) {
  return connection.hung_up || (connection.finished && connection.heard.empty());
}

// Until there is something to receive, the end included. Asks the peer when nothing is on its way.
milliseconds UntilReadable(Connection& connection) {
  if (connection.hung_up) return milliseconds(0);
  if (connection.heard.empty() && !connection.finished && connection.wait.count() == 0) {
    Speech speech = connection.peer->Speak();
    connection.wait = speech.after;
    connection.closed = speech.kind == Speech::Kind::kClose;
    connection.finished =
        connection.closed || speech.kind == Speech::Kind::kHalfClose || speech.kind == Speech::Kind::kReset;
    connection.reset = speech.kind == Speech::Kind::kReset;
    if (speech.kind == Speech::Kind::kBytes) connection.heard = std::move(speech.bytes);
    if (speech.kind == Speech::Kind::kSilence) connection.wait = std::max(connection.wait, milliseconds(1));
  }
  return connection.wait;
}

bool Readable(const Connection& connection) {
  return connection.hung_up || (connection.wait.count() == 0 && (!connection.heard.empty() || connection.finished));
}

void PassFor(Connection& connection, milliseconds time) {
  The().now += time;
  connection.wait = std::max(milliseconds(0), connection.wait - time);
}

ssize_t Fail(int error) {
  errno = error;
  return -1;
}

// The disturbance, if it befalls this call.
const Disturbance* Befalling(Disturbance::Call call) {
  State& state = The();
  if (state.disturbance.call != call || (state.disturbed && !state.disturbance.from_then_on)) return nullptr;
  if (state.disturbance.after > 0) {
    --state.disturbance.after;
    return nullptr;
  }
  state.disturbed = true;
  // What fails for ever takes its time all the same.
  state.now += milliseconds(1);
  return &state.disturbance;
}

void Forget(Connection& connection) {
  connection.heard.clear();
  connection.taken = 0;
}

bool EndsAConnection(int error) { return error == ECONNRESET || error == EPIPE || error == ETIMEDOUT; }

ssize_t FailOn(Connection& connection, int error) {
  if (EndsAConnection(error)) {
    Forget(connection);
    connection.finished = connection.reset = true;
  }
  return Fail(error);
}

ssize_t Receive(Connection& connection, void* into, std::size_t room, int flags) {
  if (const auto* const disturbance = Befalling(Disturbance::Call::kReceive)) {
    if (disturbance->error != 0) return FailOn(connection, disturbance->error);
    room = 1;
  }
  if ((flags & MSG_DONTWAIT) == 0) {
    const milliseconds wait = UntilReadable(connection);
    PassFor(connection, std::min(wait, kSlice));
  }
  if (!Readable(connection)) return Fail(EAGAIN);
  if (Ended(connection)) return connection.reset ? Fail(ECONNRESET) : 0;
  const std::size_t count = std::min(room, connection.heard.size() - connection.taken);
  std::memcpy(into, connection.heard.data() + connection.taken, count);
  connection.taken += count;
  if (connection.taken == connection.heard.size()) Forget(connection);
  return static_cast<ssize_t>(count);
}

std::size_t SizeOf(std::span<const iovec> pieces) {
  std::size_t size = 0;
  for (const iovec& piece : pieces) size += piece.iov_len;
  return size;
}

ssize_t Send(Connection& connection, std::span<const iovec> pieces, int flags) {
  if (connection.hung_up || connection.reset) return Fail(EPIPE);
  std::size_t room = connection.peer->Room();
  if (const auto* const disturbance = Befalling(Disturbance::Call::kSend)) {
    if (disturbance->error != 0) return FailOn(connection, disturbance->error);
    room = std::min<std::size_t>(room, 1);
  }
  if (room == 0) {
    if ((flags & MSG_DONTWAIT) == 0) The().now += kSlice;
    return Fail(EAGAIN);
  }
  if (connection.closed) {
    // The kernel takes it, and learns that nobody is there.
    Forget(connection);
    connection.reset = true;
    return static_cast<ssize_t>(std::min(room, SizeOf(pieces)));
  }
  ssize_t sent = 0;
  for (const iovec& piece : pieces) {
    const std::size_t count = std::min(room, piece.iov_len);
    connection.peer->Hear({static_cast<const char*>(piece.iov_base), count});
    sent += static_cast<ssize_t>(count);
    room -= count;
  }
  return sent;
}

// Only the first descriptor is a connection; the library's others are for interruptions, and nobody interrupts.
int Poll(Connection& connection, pollfd& wanted, int timeout) {
  wanted.revents = 0;
  if (const auto* const disturbance = Befalling(Disturbance::Call::kPoll)) {
    return static_cast<int>(Fail(disturbance->error));
  }
  const milliseconds patience = timeout < 0 ? kForever : milliseconds(timeout);
  if ((wanted.events & POLLOUT) != 0) {
    if (connection.hung_up || connection.reset || connection.peer->Room() > 0) {
      wanted.revents = POLLOUT;
      return 1;
    }
    // Nobody would ever come back from this wait.
    if (timeout < 0) connection.reset = connection.finished = true;
    if (timeout < 0) return wanted.revents = POLLOUT, 1;
    The().now += patience;
    return 0;
  }
  milliseconds waited{0};
  for (;;) {
    const milliseconds wait = UntilReadable(connection);
    if (Readable(connection)) return wanted.revents = POLLIN, 1;
    const milliseconds step = std::min(wait, patience - waited);
    PassFor(connection, step);
    waited += step;
    if (Readable(connection)) return wanted.revents = POLLIN, 1;
    if (waited >= patience) return 0;
  }
}

}  // namespace

FakeNetwork::FakeNetwork(std::vector<Peer*> peers) {
  The() = State{};
  The().peers = std::move(peers);
}
FakeNetwork::~FakeNetwork() { The() = State{}; }

int FakeNetwork::OpenConnections() {
  const auto& all = The().connections;
  return static_cast<int>(std::count_if(all.begin(), all.end(), [](const auto& each) { return each != nullptr; }));
}
void FakeNetwork::Disturb(const Disturbance& disturbance) {
  The().disturbance = disturbance;
  The().disturbed = false;
}
bool FakeNetwork::Disturbed() { return The().disturbed; }
std::chrono::steady_clock::time_point FakeNetwork::Now() { return The().now; }
void FakeNetwork::Pass(milliseconds time) {
  The().now += time;
  for (const auto& each : The().connections) {
    if (each != nullptr) each->wait = std::max(milliseconds(0), each->wait - time);
  }
}

}  // namespace kvtd::fuzz

using kvtd::fuzz::Find;
using kvtd::fuzz::kFirstDescriptor;
using kvtd::fuzz::The;

std::chrono::steady_clock::time_point FakeNow() noexcept asm("__wrap__ZNSt6chrono3_V212steady_clock3nowEv");
std::chrono::steady_clock::time_point FakeNow() noexcept { return The().now; }

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names
// Not hidden: a shared library that is linked with the program may ask for one of them too.
#pragma GCC visibility push(default)
extern "C" {

int __real_close(int descriptor);
int __real_eventfd(unsigned count, int flags);
int __real_poll(pollfd* waits, nfds_t count, int timeout);

int __wrap_socket(int, int, int) {
  if (const auto* const disturbance = kvtd::fuzz::Befalling(kvtd::fuzz::Disturbance::Call::kSocket)) {
    return static_cast<int>(kvtd::fuzz::Fail(disturbance->error));
  }
  auto& connections = The().connections;
  connections.push_back(std::make_shared<kvtd::fuzz::Connection>());
  return kFirstDescriptor + static_cast<int>(connections.size()) - 1;
}

int __wrap_connect(int descriptor, const sockaddr*, socklen_t) {
  const auto place = static_cast<std::size_t>(descriptor - kFirstDescriptor);
  if (place >= The().peers.size()) {
    errno = ECONNREFUSED;
    return -1;
  }
  const auto* const disturbance = kvtd::fuzz::Befalling(kvtd::fuzz::Disturbance::Call::kConnect);
  const int error = disturbance == nullptr ? 0 : disturbance->error;
  // These say that the connection is still being made.
  if (error == 0 || error == EINTR || error == EINPROGRESS) Find(descriptor)->peer = The().peers[place];
  return error == 0 ? 0 : static_cast<int>(kvtd::fuzz::Fail(error));
}

ssize_t __wrap_recv(int descriptor, void* into, size_t room, int flags) {
  auto* const connection = Find(descriptor);
  return connection != nullptr ? kvtd::fuzz::Receive(*connection, into, room, flags) : kvtd::fuzz::Fail(EBADF);
}

ssize_t __wrap_send(int descriptor, const void* bytes, size_t size, int flags) {
  const iovec piece{const_cast<void*>(bytes), size};
  auto* const connection = Find(descriptor);
  return connection != nullptr ? kvtd::fuzz::Send(*connection, {&piece, 1}, flags) : kvtd::fuzz::Fail(EBADF);
}

ssize_t __wrap_sendmsg(int descriptor, const msghdr* message, int flags) {
  auto* const connection = Find(descriptor);
  if (connection == nullptr) return kvtd::fuzz::Fail(EBADF);
  return kvtd::fuzz::Send(*connection, {message->msg_iov, message->msg_iovlen}, flags);
}

int __wrap_poll(pollfd* waits, nfds_t count, int timeout) {
  auto* const connection = Find(waits[0].fd);
  if (connection == nullptr) return __real_poll(waits, count, timeout);
  for (nfds_t i = 1; i < count; ++i) waits[i].revents = 0;
  return kvtd::fuzz::Poll(*connection, waits[0], timeout);
}

int __wrap_eventfd(unsigned count, int flags) {
  if (const auto* const disturbance = kvtd::fuzz::Befalling(kvtd::fuzz::Disturbance::Call::kEventDescriptor)) {
    return static_cast<int>(kvtd::fuzz::Fail(disturbance->error));
  }
  return __real_eventfd(count, flags);
}

int __wrap_shutdown(int descriptor, int) {
  auto* const connection = Find(descriptor);
  if (connection == nullptr) return static_cast<int>(kvtd::fuzz::Fail(EBADF));
  connection->hung_up = true;
  return 0;
}

int __wrap_close(int descriptor) {
  const auto place = static_cast<std::size_t>(descriptor - kFirstDescriptor);
  if (descriptor < kFirstDescriptor || place >= The().connections.size()) return __real_close(descriptor);
  kvtd::fuzz::Require(The().connections[place] != nullptr, "a connection is closed once");
  The().connections[place] = nullptr;
  return 0;
}

// What `into` was before is closed by it.
int __wrap_dup3(int from, int into, int) {
  if (Find(from) == nullptr || Find(into) == nullptr) return static_cast<int>(kvtd::fuzz::Fail(EBADF));
  auto& connections = The().connections;
  connections[static_cast<std::size_t>(into - kFirstDescriptor)] =
      connections[static_cast<std::size_t>(from - kFirstDescriptor)];
  return into;
}

int __wrap_setsockopt(int, int, int, const void*, socklen_t) { return 0; }

int __wrap_getsockopt(int, int, int, void* value, socklen_t* size) {
  std::memset(value, 0, *size);
  return 0;
}

int __wrap_getpeername(int, sockaddr* peer, socklen_t* size) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  *size = std::min<socklen_t>(*size, sizeof address);
  std::memcpy(peer, &address, *size);
  return 0;
}

}  // extern "C"
#pragma GCC visibility pop
// NOLINTEND(bugprone-reserved-identifier)
