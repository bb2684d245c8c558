// VXI-11 (TCP/IP Instrument Protocol 1.0): calls of ONC RPC on one connection, which the client finds without a port
// mapper, through TVR_VISA_VXI11_PORT. There is no abort channel, as a call is answered within the time that it gives.
//
// A command is what one or more device_write end with the end flag; a further one drops what is left of the answers to
// the last. An answer that ends with a line feed ends with END, any other does not: so a script can leave an answer
// unfinished as it can over the raw socket. Pauses and ends of the connection come when the client reads that far.

#include <algorithm>
#include <deque>
#include <optional>

#include "Link.h"
#include "LinkNames.h"
#include "LinkThread.h"

namespace kvtd::test {

namespace {

constexpr std::uint32_t kDeviceCore = 0x0607AF, kNull = 0, kCreateLink = 10, kDeviceWrite = 11, kDeviceRead = 12,
                        kDestroyLink = 23;
constexpr std::uint32_t kNoError = 0, kNotAccessible = 3, kInvalidLink = 4, kParameterError = 5, kTimeout = 15;
constexpr std::uint32_t kEndFlag = 0x08;
constexpr std::uint32_t kReasonCount = 1, kReasonEnd = 4;
constexpr std::uint32_t kProcedureUnavailable = 3;

constexpr std::uint32_t kLastFragment = 0x80000000;
constexpr std::uint32_t kLinkId = 7, kNoAbortPort = 0;
constexpr std::uint32_t kLargestWrite = 65536;
constexpr std::uint32_t kLargestRecord = kLargestWrite + 1024;

// Words of four bytes, and bytes with their number in front, filled up to a word.
class XdrOut {
 public:
  XdrOut& Word(std::uint32_t word) {
    for (const int shift : {24, 16, 8, 0}) bytes_ += static_cast<char>(word >> shift & 0xFF);
    return *this;
  }
  XdrOut& Opaque(std::string_view opaque) {
    Word(static_cast<std::uint32_t>(opaque.size()));
    bytes_ += opaque;
    bytes_.append((4 - opaque.size() % 4) % 4, '\0');
    return *this;
  }
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

class XdrIn {
 public:
  explicit XdrIn(std::string bytes) : bytes_(std::move(bytes)) {}

  std::uint32_t Word() {
    std::uint32_t word = 0;
    for (const char byte : Take(4)) word = word << 8 | static_cast<unsigned char>(byte);
    return word;
  }
  std::string Opaque() {
    const std::uint32_t size = Word();
    std::string opaque(Take(size));
    Take((4 - size % 4) % 4);
    return opaque;
  }
  // No more was taken than was there.
  bool good() const { return good_; }

 private:
  std::string_view Take(std::size_t count) {
    good_ = good_ && count <= bytes_.size() - taken_;
    if (!good_) return {};
    taken_ += count;
    return std::string_view(bytes_).substr(taken_ - count, count);
  }

  std::string bytes_;
  std::size_t taken_ = 0;
  bool good_ = true;
};

class Vxi11Connection {
 public:
  Vxi11Connection(Dialogue& dialogue, LinkThread& thread, Descriptor& socket)
      : dialogue_(dialogue), thread_(thread), socket_(socket) {}

  void Serve() {
    while (WaitReadable(socket_.get(), &thread_.cut_off(), std::chrono::hours(1))) {
      if (!Answer(Receive()) || !CarryOutEnds()) return;
    }
  }

 private:
  // What is still to come of the reactions to a command, and not before its time.
  struct Pending {
    Reaction reaction;
    Clock::time_point due;
  };

  bool Answer(std::optional<XdrIn> call) {
    if (!call) return false;
    xid_ = call->Word();
    const bool is_call = call->Word() == 0 && call->Word() == 2;
    const bool is_core = call->Word() == kDeviceCore && call->Word() == 1;
    const std::uint32_t procedure = call->Word();
    for ([[maybe_unused]] const char* part : {"credential", "verifier"}) {
      call->Word();
      call->Opaque();
    }
    if (!is_call || !is_core || !call->good()) return false;
    switch (procedure) {
      case kNull:
        return Reply(XdrOut());
      case kCreateLink:
        return CreateLink(*call);
      case kDeviceWrite:
        return Write(*call);
      case kDeviceRead:
        return Read(*call);
      case kDestroyLink:
        return Reply(XdrOut().Word(call->Word() == kLinkId ? kNoError : kInvalidLink));
      default:
        return Reply(XdrOut(), kProcedureUnavailable);
    }
  }

  bool CreateLink(XdrIn& call) {
    call.Word();  // the client's id
    const bool lock = call.Word() != 0;
    call.Word();  // how long it would wait for the lock
    const std::string device = call.Opaque();
    if (!call.good()) return false;
    const std::uint32_t error = lock || device != "inst0" ? kNotAccessible : kNoError;
    if (error == kNoError) dialogue_.Connected();
    return Reply(XdrOut().Word(error).Word(kLinkId).Word(kNoAbortPort).Word(kLargestWrite));
  }

  bool Write(XdrIn& call) {
    const std::uint32_t link = call.Word();
    call.Word();  // there is always room at once,
    call.Word();  // and nobody else who could have the lock
    const std::uint32_t flags = call.Word();
    const std::string data = call.Opaque();
    if (!call.good()) return false;
    if (link != kLinkId) return Reply(XdrOut().Word(kInvalidLink).Word(0));
    if (data.size() > kLargestWrite) return Reply(XdrOut().Word(kParameterError).Word(0));
    pending_.clear();
    command_ += data;
    if ((flags & kEndFlag) != 0) Take();
    return Reply(XdrOut().Word(kNoError).Word(static_cast<std::uint32_t>(data.size())));
  }

  void Take() {
    Clock::time_point due = Clock::now();
    for (Reaction& reaction : dialogue_.Receive(command_)) {
      due += reaction.duration;
      if (reaction.kind != Reaction::Kind::Pause) pending_.push_back({std::move(reaction), due});
    }
    command_.clear();
  }

  bool Read(XdrIn& call) {
    const std::uint32_t link = call.Word();
    const std::uint32_t size = call.Word();
    const Clock::time_point end = Clock::now() + Milliseconds(call.Word());
    if (!call.good()) return false;
    if (link != kLinkId) return Reply(XdrOut().Word(kInvalidLink).Word(0).Opaque(""));
    const Clock::time_point ready = pending_.empty() ? Clock::time_point::max() : pending_.front().due;
    // A client that says something, or goes, before it is answered has given up.
    const auto wait = std::chrono::ceil<Milliseconds>(std::min(ready, end) - Clock::now());
    if (wait.count() > 0 && WaitReadable(socket_.get(), &thread_.cut_off(), wait)) return false;
    if (ready > Clock::now()) return Reply(XdrOut().Word(kTimeout).Word(0).Opaque(""));
    if (!CarryOutEnds() || pending_.empty()) return false;

    std::string& bytes = pending_.front().reaction.bytes;
    const std::string data = bytes.substr(0, size);
    bytes.erase(0, data.size());
    std::uint32_t reason = data.size() == size ? kReasonCount : 0;
    if (bytes.empty()) {
      pending_.pop_front();
      if (data.ends_with('\n')) reason |= kReasonEnd;
    }
    return Reply(XdrOut().Word(kNoError).Word(reason).Opaque(data));
  }

  // The ends of the connection that come next; false when it is over.
  bool CarryOutEnds() {
    while (!pending_.empty() && pending_.front().due <= Clock::now()) {
      switch (pending_.front().reaction.kind) {
        case Reaction::Kind::HalfClose:
          HalfClose(socket_);
          pending_.pop_front();
          break;
        case Reaction::Kind::Close:
          return false;
        case Reaction::Kind::Reset:
          CloseByReset(socket_);
          return false;
        default:
          return true;
      }
    }
    return true;
  }

  // One record; empty when the client has gone or does not keep to the protocol.
  std::optional<XdrIn> Receive() {
    std::string record;
    for (bool last = false; !last;) {
      XdrIn header(ReceiveExactly(socket_, 4, &thread_.cut_off()));
      const std::uint32_t mark = header.Word();
      const std::uint32_t size = mark & ~kLastFragment;
      if (!header.good() || size > kLargestRecord - record.size()) return std::nullopt;
      const std::string fragment = ReceiveExactly(socket_, size, &thread_.cut_off());
      if (fragment.size() < size) return std::nullopt;
      record += fragment;
      last = (mark & kLastFragment) != 0;
    }
    return XdrIn(std::move(record));
  }

  bool Reply(const XdrOut& results, std::uint32_t accept_status = 0) {
    XdrOut reply;
    reply.Word(xid_).Word(1).Word(0).Word(0).Word(0).Word(accept_status);
    const std::size_t size = reply.bytes().size() + results.bytes().size();
    XdrOut mark;
    mark.Word(kLastFragment | static_cast<std::uint32_t>(size));
    return SendAll(socket_, mark.bytes() + reply.bytes() + results.bytes(), &thread_.cut_off());
  }

  Dialogue& dialogue_;
  LinkThread& thread_;
  Descriptor& socket_;
  std::uint32_t xid_ = 0;
  std::string command_;
  std::deque<Pending> pending_;
};

class Vxi11Link final : public Link {
 public:
  Vxi11Link(Dialogue& dialogue, Family family) : dialogue_(dialogue), family_(family), thread_(family, Server()) {}

  std::string ResourceName() const override { return ResourceOn(LinkKind::Vxi11, port(), family_); }
  std::uint16_t port() const override { return thread_.port(); }
  bool Finish(Milliseconds patience) override { return thread_.Finish(patience); }

 private:
  LinkThread::Serve Server() {
    return [this](Descriptor& connection) { Vxi11Connection(dialogue_, thread_, connection).Serve(); };
  }

  Dialogue& dialogue_;
  const Family family_;
  LinkThread thread_;
};

}  // namespace

std::unique_ptr<Link> MakeVxi11Link(Dialogue& dialogue, Family family) {
  return std::make_unique<Vxi11Link>(dialogue, family);
}

}  // namespace kvtd::test
