// HiSLIP 1.0 in synchronised mode: two connections, and a header of sixteen bytes in front of every message.
//
// A command is a message that ends with DataEND. An answer that ends with a line feed is a message too and goes out as
// DataEND, any other as Data: so a script can leave an answer unfinished as it can over the raw socket.

#include <array>
#include <optional>

#include "Link.h"
#include "LinkNames.h"
#include "LinkThread.h"

namespace kvtd::test {

namespace {

constexpr unsigned char kInitialize = 0, kInitializeResponse = 1, kFatalError = 2, kError = 3, kData = 6, kDataEnd = 7;
constexpr unsigned char kAsyncMaximumMessageSize = 15, kAsyncMaximumMessageSizeResponse = 16;
constexpr unsigned char kAsyncInitialize = 17, kAsyncInitializeResponse = 18;

constexpr std::size_t kHeaderSize = 16;
constexpr std::uint32_t kVersion = 0x0100;
constexpr std::uint32_t kSessionId = 7;
constexpr std::uint32_t kVendorId = 'X' << 8 | 'X';
constexpr std::uint32_t kFirstMessageId = 0xFFFFFF00;
constexpr std::size_t kLargestMessage = 1 << 20;  // both ways
constexpr unsigned char kPoorlyFormedHeader = 1, kWrongInitialization = 3, kUnrecognizedType = 1;

struct Message {
  unsigned char type = 0;
  unsigned char control = 0;
  std::uint32_t parameter = 0;
  std::string payload = {};
};

std::string BigEndian(std::uint64_t value, int size) {
  std::string bytes;
  for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

std::uint64_t NumberIn(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

// One client, from its first connection to the end of both.
class HislipConnection {
 public:
  HislipConnection(Dialogue& dialogue, LinkThread& thread, Descriptor& sync)
      : dialogue_(dialogue), thread_(thread), sync_(sync) {}

  void Serve() {
    if (!Initialize()) return;
    dialogue_.Connected();
    while (sync_.open()) {
      const std::array<int, 2> sources{sync_.get(), async_.get()};
      const std::optional<std::size_t> ready = WaitAnyReadable(sources, &thread_.cut_off());
      if (!ready || !(*ready == 0 ? ServeSync() : ServeAsync())) return;
    }
  }

 private:
  bool Initialize() {
    const std::optional<Message> hello = Receive(sync_);
    if (!hello) return false;
    if (hello->type != kInitialize || hello->payload != "hislip0") return Fail(kWrongInitialization);
    if (!Send(sync_, {.type = kInitializeResponse, .parameter = kVersion << 16 | kSessionId})) return false;

    async_ = thread_.AcceptAnother();
    if (!async_.open()) return false;
    const std::optional<Message> second = Receive(async_);
    if (!second) return false;
    if (second->type != kAsyncInitialize || second->parameter != kSessionId) return Fail(kWrongInitialization);
    return Send(async_, {.type = kAsyncInitializeResponse, .parameter = kVendorId});
  }

  bool ServeSync() {
    const std::optional<Message> message = Receive(sync_);
    if (!message) return false;
    if (message->type != kData && message->type != kDataEnd) return Refuse(sync_);
    if (message->parameter != next_id_) return Fail(kPoorlyFormedHeader);
    id_ = next_id_;
    next_id_ += 2;
    command_ += message->payload;
    if (message->type == kData) return true;
    const std::string command = std::move(command_);
    command_.clear();
    for (const Reaction& reaction : dialogue_.Receive(command)) {
      if (!CarryOut(reaction)) return false;
    }
    return true;
  }

  bool ServeAsync() {
    const std::optional<Message> message = Receive(async_);
    if (!message) return false;
    if (message->type != kAsyncMaximumMessageSize) return Refuse(async_);
    return Send(async_, {.type = kAsyncMaximumMessageSizeResponse, .payload = BigEndian(kLargestMessage, 8)});
  }

  bool CarryOut(const Reaction& reaction) {
    switch (reaction.kind) {
      case Reaction::Kind::Answer:
        return SendAnswer(reaction.bytes);
      case Reaction::Kind::Pause:
        return !WaitReadable(thread_.cut_off().descriptor(), nullptr, reaction.duration);
      case Reaction::Kind::HalfClose:
        HalfClose(sync_);
        return true;
      case Reaction::Kind::Close:
        return false;
      case Reaction::Kind::Reset:
        CloseByReset(sync_);
        CloseByReset(async_);
        return false;
    }
    return false;
  }

  bool SendAnswer(std::string_view bytes) {
    constexpr std::size_t kMost = kLargestMessage - kHeaderSize;
    while (bytes.size() > kMost) {
      if (!Send(sync_, {.type = kData, .parameter = id_, .payload = std::string(bytes.substr(0, kMost))})) return false;
      bytes.remove_prefix(kMost);
    }
    const unsigned char type = bytes.ends_with('\n') ? kDataEnd : kData;
    return Send(sync_, {.type = type, .parameter = id_, .payload = std::string(bytes)});
  }

  // Empty when the client has gone or does not speak the protocol.
  std::optional<Message> Receive(const Descriptor& from) {
    const std::string header = ReceiveExactly(from, kHeaderSize, &thread_.cut_off());
    if (header.size() < kHeaderSize) return std::nullopt;
    const std::uint64_t length = NumberIn({header.data() + 8, 8});
    if (!header.starts_with("HS") || length > kLargestMessage) {
      Fail(kPoorlyFormedHeader);
      return std::nullopt;
    }
    Message message{.type = static_cast<unsigned char>(header[2]),
                    .control = static_cast<unsigned char>(header[3]),
                    .parameter = static_cast<std::uint32_t>(NumberIn({header.data() + 4, 4})),
                    .payload = ReceiveExactly(from, length, &thread_.cut_off())};
    if (message.payload.size() < length) return std::nullopt;
    return message;
  }

  bool Send(const Descriptor& to, const Message& message) {
    return SendAll(to,
                   "HS" + BigEndian(message.type, 1) + BigEndian(message.control, 1) + BigEndian(message.parameter, 4) +
                       BigEndian(message.payload.size(), 8) + message.payload,
                   &thread_.cut_off());
  }

  bool Refuse(const Descriptor& on) { return Send(on, {.type = kError, .control = kUnrecognizedType}); }

  // The client does what the protocol forbids; the test sees a lost connection.
  bool Fail(unsigned char code) {
    Send(sync_, {.type = kFatalError, .control = code});
    if (async_.open()) Send(async_, {.type = kFatalError, .control = code});
    return false;
  }

  Dialogue& dialogue_;
  LinkThread& thread_;
  Descriptor& sync_;
  Descriptor async_;
  std::uint32_t next_id_ = kFirstMessageId;
  std::uint32_t id_ = kFirstMessageId;
  std::string command_;
};

class HislipLink final : public Link {
 public:
  HislipLink(Dialogue& dialogue, Family family) : dialogue_(dialogue), family_(family), thread_(family, Server()) {}

  std::string ResourceName() const override { return ResourceOn(LinkKind::Hislip, port(), family_); }
  std::uint16_t port() const override { return thread_.port(); }
  bool Finish(Milliseconds patience) override { return thread_.Finish(patience); }

 private:
  LinkThread::Serve Server() {
    return [this](Descriptor& connection) { HislipConnection(dialogue_, thread_, connection).Serve(); };
  }

  Dialogue& dialogue_;
  const Family family_;
  LinkThread thread_;
};

}  // namespace

std::unique_ptr<Link> MakeHislipLink(Dialogue& dialogue, Family family) {
  return std::make_unique<HislipLink>(dialogue, family);
}

}  // namespace kvtd::test
