// The raw socket: the bytes of the dialogue and nothing around them.

#include <sys/socket.h>

#include <cerrno>
#include <thread>

#include "Link.h"

namespace kvtd::test {

namespace {

class SocketLink final : public Link {
 public:
  SocketLink(Dialogue& dialogue, Family family)
      : dialogue_(dialogue), family_(family), listener_(family), port_(listener_.port()), thread_([this] { Run(); }) {}
  ~SocketLink() override { Finish(Milliseconds(0)); }

  std::string ResourceName() const override {
    const char* host = family_ == Family::V4 ? "127.0.0.1" : "[::1]";
    return std::string("TCPIP0::") + host + "::" + std::to_string(port_) + "::SOCKET";
  }
  std::uint16_t port() const override { return port_; }

  bool Finish(Milliseconds patience) override {
    if (!thread_.joinable()) return true;
    last_call_.Ring();
    const bool in_time = WaitReadable(ended_.descriptor(), nullptr, patience);
    cut_off_.Ring();
    thread_.join();
    return in_time;
  }

 private:
  void Run() {
    // After the last call, connections that are already waiting are still served: a client that came and went at once
    // must be seen.
    bool last_round = false;
    while (!last_round) {
      last_round = !WaitReadable(listener_.descriptor(), &last_call_, std::chrono::hours(1));
      for (Descriptor connection = listener_.Accept(); connection.open(); connection = listener_.Accept()) {
        dialogue_.Connected();
        Serve(connection);
      }
    }
    listener_.Close();
    ended_.Ring();
  }

  void Serve(Descriptor& connection) {
    std::string buffer(65536, '\0');
    while (connection.open() && WaitReadable(connection.get(), &cut_off_, std::chrono::hours(1))) {
      const ssize_t count = ::recv(connection.get(), buffer.data(), buffer.size(), 0);
      if (count < 0 && (errno == EAGAIN || errno == EINTR)) continue;
      if (count <= 0) return;
      for (const Reaction& reaction : dialogue_.Receive({buffer.data(), static_cast<std::size_t>(count)})) {
        if (!CarryOut(reaction, connection)) return;
      }
    }
  }

  bool CarryOut(const Reaction& reaction, Descriptor& connection) {
    switch (reaction.kind) {
      case Reaction::Kind::Answer:
        return SendAll(connection, reaction.bytes, &cut_off_);
      case Reaction::Kind::Pause:
        return !WaitReadable(cut_off_.descriptor(), nullptr, reaction.duration);
      case Reaction::Kind::HalfClose:
        HalfClose(connection);
        return true;
      case Reaction::Kind::Close:
        connection.Close();
        return false;
      case Reaction::Kind::Reset:
        CloseByReset(connection);
        return false;
    }
    return false;
  }

  Dialogue& dialogue_;
  const Family family_;
  Listener listener_;
  const std::uint16_t port_;
  Alarm last_call_;
  Alarm cut_off_;
  Alarm ended_;
  std::thread thread_;
};

}  // namespace

std::unique_ptr<Link> MakeSocketLink(Dialogue& dialogue, Family family) {
  return std::make_unique<SocketLink>(dialogue, family);
}

}  // namespace kvtd::test
