// The raw socket: the bytes of the dialogue and nothing around them.

#include <sys/socket.h>

#include <cerrno>

#include "Link.h"
#include "LinkNames.h"
#include "LinkThread.h"

namespace kvtd::test {

namespace {

class SocketLink final : public Link {
 public:
  SocketLink(Dialogue& dialogue, Family family) : dialogue_(dialogue), family_(family), thread_(family, Server()) {}

  std::string ResourceName() const override { return ResourceOn(LinkKind::Socket, port(), family_); }
  std::uint16_t port() const override { return thread_.port(); }
  bool Finish(Milliseconds patience) override { return thread_.Finish(patience); }

 private:
  LinkThread::Serve Server() {
    return [this](Descriptor& connection) { Serve(connection); };
  }

  void Serve(Descriptor& connection) {
    dialogue_.Connected();
    std::string buffer(65536, '\0');
    while (connection.open() && WaitReadable(connection.get(), &thread_.cut_off(), std::chrono::hours(1))) {
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
        return SendAll(connection, reaction.bytes, &thread_.cut_off());
      case Reaction::Kind::Pause:
        return !WaitReadable(thread_.cut_off().descriptor(), nullptr, reaction.duration);
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
  LinkThread thread_;
};

}  // namespace

std::unique_ptr<Link> MakeSocketLink(Dialogue& dialogue, Family family) {
  return std::make_unique<SocketLink>(dialogue, family);
}

}  // namespace kvtd::test
