// The device's side of VXI-11: port mapper, core channel and abort channel. A read is answered when there is something
// to read, and with the device's own timeout when there is not.

#include <algorithm>
#include <cstdint>

#include "FakeInstrument.h"
#include "Wire.h"

namespace kvtd::test {
namespace {

using wire::RpcCall;
using wire::Word;

class Vxi11Instrument final : public FakeInstrument {
 public:
  const char* resource() const override { return "TCPIP0::127.0.0.1::inst0::INSTR"; }
  std::vector<fuzz::Peer*> peers() override { return {&port_mapper_, &core_, &abort_}; }

 private:
  static constexpr std::uint32_t kPortMapper = 100000, kCoreProgram = 0x0607AF;
  static constexpr std::uint32_t kCreateLink = 10, kWrite = 11, kRead = 12, kReadStatusByte = 13, kClear = 15;
  static constexpr std::uint32_t kEndFlag = 8, kReasonCount = 1, kReasonEnd = 4, kTimeout = 15;
  static constexpr std::uint32_t kCorePort = 1024, kAbortPort = 1025, kLinkId = 7, kMostAtOnce = 65536;

  void Take(FakeConnection& connection) {
    while (const auto call = RpcCall::TakeFrom(connection.heard)) Meet(*call, connection.mouth);
  }

  void Meet(const RpcCall& call, Mouth& mouth) {
    if (call.program == kPortMapper) return mouth.Say(call.Reply(Word(kCorePort)));
    // What the abort channel knows is answered like all the rest.
    if (call.program != kCoreProgram) return mouth.Say(call.Reply(Word(0)));
    switch (call.procedure) {
      case kCreateLink:
        return mouth.Say(call.Reply(Word(0) + Word(kLinkId) + Word(kAbortPort) + Word(kMostAtOnce)));
      case kWrite:
        return Write(call, mouth);
      case kRead:
        return Read(call, mouth);
      case kReadStatusByte:
        return mouth.Say(call.Reply(Word(0) + Word(0)));
      case kClear:
        DropPending();
        command_.clear();
        return mouth.Say(call.Reply(Word(0)));
      default:
        return mouth.Say(call.Reply(Word(0)));
    }
  }

  // link, time for it, time for a lock, flags, data
  void Write(const RpcCall& call, Mouth& mouth) {
    const std::string data = call.OpaqueAt(4);
    command_ += data;
    DropPending();
    if ((call.WordAt(3) & kEndFlag) != 0) {
      for (const std::string& line : TakeLinesOf(command_)) pending_ += Ask(line).value_or("");
      command_.clear();
    }
    mouth.Say(AsReceipt(call.Reply(Word(0) + Word(static_cast<std::uint32_t>(data.size())))));
  }

  // link, room, time for it, time for a lock, flags, termchar
  void Read(const RpcCall& call, Mouth& mouth) {
    const std::size_t room = call.WordAt(1);
    if (!endless().empty()) {
      return mouth.Say({{fuzz::Speech::Kind::kBytes, std::chrono::milliseconds(1),
                         call.Reply(Word(0) + Word(0) + wire::Opaque(endless().substr(0, room)))}});
    }
    if (read_ == pending_.size()) {
      return mouth.Say({{fuzz::Speech::Kind::kBytes, std::chrono::milliseconds(call.WordAt(2)),
                         call.Reply(Word(kTimeout) + Word(0) + wire::Opaque(""))}});
    }
    const std::string data = pending_.substr(read_, room);
    read_ += data.size();
    const bool is_end = read_ == pending_.size();
    const std::uint32_t reason = (data.size() == room ? kReasonCount : 0) | (is_end ? kReasonEnd : 0);
    mouth.Say(AsAnswer(call.Reply(Word(0) + Word(reason) + wire::Opaque(data))));
  }

  void DropAnswers() override {
    core_.mouth.FallSilent();
    DropPending();
  }
  void DropPending() {
    pending_.clear();
    read_ = 0;
  }
  Mouth& beside() override { return abort_.mouth; }

  FakeConnection port_mapper_{[this](FakeConnection& connection) { Take(connection); }};
  FakeConnection core_{[this](FakeConnection& connection) { Take(connection); }};
  FakeConnection abort_{[this](FakeConnection& connection) { Take(connection); }};
  std::string command_;
  // An answer, and how much of it was read.
  std::string pending_;
  std::size_t read_ = 0;
};

}  // namespace

std::unique_ptr<FakeInstrument> MakeVxi11Instrument() { return std::make_unique<Vxi11Instrument>(); }

}  // namespace kvtd::test
