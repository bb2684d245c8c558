// The VXI-11 client against a device that says anything, whole replies more often than not.
//
// The input: a byte whose lowest bit lets the opening go well, then calls, each a byte and what belongs to it, and
// between them what the device says when it is waited for: a byte for the kind, see Device::Speak.

#include <visa.h>

#include <deque>
#include <string>
#include <vector>

#include "Input.h"
#include "Require.h"
#include "VisaLink.h"
#include "Xdr.h"
#include "fake_network.h"

namespace kvtd::fuzz {
namespace {

// Longer than the library waits where the caller's timeout does not count: to release a lock.
constexpr ViUInt32 kOwnPatience = 2000;

// The other end of one connection: port mapper, core channel or abort channel.
class Device : public Peer {
 public:
  Device(Input& input, bool obliging) : input_(input), obliging_(obliging) {}

  void StopObliging() { obliging_ = false; }

  void Hear(std::string_view bytes) override {
    heard_ += bytes;
    while (heard_.size() >= 4) {
      const std::uint32_t mark = NumberAt(heard_, 0);
      const std::size_t length = mark & 0x7FFFFFFF;
      Require((mark & 0x80000000U) != 0, "the client sends a record in one fragment");
      if (heard_.size() - 4 < length) return;
      Require(length >= 40 && NumberAt(heard_, 8) == 0, "the client sends calls");
      const std::uint32_t procedure = NumberAt(heard_, 24);
      calls_.push_back(
          {NumberAt(heard_, 4), NumberAt(heard_, 16), procedure, NumberAt(heard_, procedure == kWrite ? 60 : 48)});
      heard_.erase(0, 4 + length);
    }
  }

  // Of several calls the oldest is answered first; of no call, the last once more.
  Speech Speak() override {
    if (!calls_.empty()) call_ = calls_.front();
    if (obliging_) return Reply(Answer());
    if (input_.empty()) return {Speech::Kind::kClose, {}, {}};
    switch (input_.Byte() % 9) {
      case 0:
        return Reply(Answer());
      case 1:  // a reply with any results
        return Reply(Record(Head() + input_.Text()));
      case 2: {  // what was read, with a reason
        const std::uint32_t reason = input_.Byte();
        return Reply(Record(Head() + Word(0) + Word(reason) + Opaque(input_.Line() + '\n')));
      }
      case 3:  // an error
        return Reply(Record(Head() + Word(input_.Byte()) + Word(0) + Word(0)));
      case 4: {  // a reply in two fragments
        const std::string whole = Head() + input_.Text();
        const std::size_t first = input_.Choice(whole.size());
        return Reply(Word(static_cast<std::uint32_t>(first)) + whole.substr(0, first) + Record(whole.substr(first)));
      }
      case 5:
        return Say(input_.Text());
      case 6:
        return {Speech::Kind::kSilence, std::chrono::milliseconds(20 * input_.Byte()), {}};
      case 7: {  // a reply to another call, or a length that does not hold
        const auto number = input_.Number<std::uint32_t>();
        const auto length = input_.Number<std::uint32_t>();
        return Say(Record(Word(number) + Word(1) + Word(0) + Word(0) + Word(0) + Word(0) + Word(0) + Word(4) +
                          Word(length) + input_.Text()));
      }
      default:
        return {input_.Bool() ? Speech::Kind::kReset : Speech::Kind::kClose, {}, {}};
    }
  }

 private:
  static constexpr std::uint32_t kPortMapper = 100000;
  static constexpr std::uint32_t kNull = 0, kCreateLink = 10, kWrite = 11, kRead = 12, kReadStatusByte = 13;

  Speech Reply(std::string bytes) {
    if (!calls_.empty()) calls_.pop_front();
    return Say(std::move(bytes));
  }
  static Speech Say(std::string bytes) {
    if (bytes.empty()) return {Speech::Kind::kSilence, {}, {}};
    return {Speech::Kind::kBytes, {}, std::move(bytes)};
  }

  std::string Head() const { return Word(call_.number) + Word(1) + Word(0) + Word(0) + Word(0) + Word(0); }

  // What a device owes to the call.
  std::string Answer() const {
    if (call_.program == kPortMapper) return Record(Head() + Word(1024));
    switch (call_.procedure) {
      case kNull:
        return Record(Head());
      case kCreateLink:
        return Record(Head() + Word(0) + Word(7) + Word(1025) + Word(4096));
      case kWrite:
        return Record(Head() + Word(0) + Word(call_.size));
      case kRead:
        return Record(Head() + Word(0) + Word(4) + Opaque("1\n"));
      case kReadStatusByte:
        return Record(Head() + Word(0) + Word(0x10));
      default:
        return Record(Head() + Word(0));
    }
  }

  Input& input_;
  bool obliging_;
  std::string heard_;
  struct Heard {
    std::uint32_t number = 0;
    std::uint32_t program = 0;
    std::uint32_t procedure = 0;
    std::uint32_t size = 0;  // of what was written
  };
  std::deque<Heard> calls_;  // not answered yet
  Heard call_;
};

void Read(VisaLink& link, std::size_t size) {
  std::vector<ViByte> bytes(size);
  ViUInt32 count = 0;
  link.Make([&](ViSession vi) { return viRead(vi, bytes.data(), static_cast<ViUInt32>(size), &count); });
  Require(count <= size, "a read is counted within its buffer");
}

void Query(VisaLink& link, std::size_t size) {
  std::vector<ViChar> text(size);
  auto count = static_cast<ViInt32>(size);
  link.Make([&](ViSession vi) { return viQueryf(vi, "X?\n", "%#[^\n]%*t", &count, text.data()); });
}

void QueryBlock(VisaLink& link, std::size_t size) {
  std::vector<ViByte> bytes(size);
  auto count = static_cast<ViInt32>(size);
  link.Make([&](ViSession vi) { return viQueryf(vi, "X?\n", "%#b", &count, bytes.data()); });
  Require(count >= 0 && static_cast<std::size_t>(count) <= size, "a block is counted within its buffer");
}

void Call(VisaLink& link, Input& input) {
  const ViSession vi = link.session();
  switch (input.Choice(12)) {
    case 0: {
      const std::string text = input.Text();
      ViUInt32 count = 0;
      link.Make([&](ViSession) {
        return viWrite(vi, reinterpret_cast<ViConstBuf>(text.data()), static_cast<ViUInt32>(text.size()), &count);
      });
      Require(count <= text.size(), "a write is counted within its buffer");
      return;
    }
    case 1:
      return Read(link, input.Byte());
    case 2:
      return Query(link, input.Byte());
    case 3:
      return QueryBlock(link, input.Byte());
    case 4:
      link.Make([](ViSession session) { return viClear(session); });
      return;
    case 5: {
      ViUInt16 status_byte = 0;
      link.Make([&](ViSession) { return viReadSTB(vi, &status_byte); });
      return;
    }
    case 6:
      link.Make([](ViSession session) { return viAssertTrigger(session, VI_TRIG_PROT_DEFAULT); });
      return;
    case 7: {
      const ViUInt16 mode = input.Byte();
      link.Make([&](ViSession) { return viGpibControlREN(vi, mode); });
      return;
    }
    case 8:
      link.Make([&](ViSession) { return viLock(vi, VI_EXCLUSIVE_LOCK, kTimeout, nullptr, nullptr); });
      return;
    case 9:
      InTime(kOwnPatience, [&] { return viUnlock(vi); });
      return;
    case 10:
      viSetAttribute(vi, VI_ATTR_SUPPRESS_END_EN, input.Bool() ? VI_TRUE : VI_FALSE);
      return;
    default:
      viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, input.Bool() ? VI_TRUE : VI_FALSE);
  }
}

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kvtd::fuzz;
  Input input(data, size);
  const bool obliging = input.Bool();
  Device mapper(input, obliging);
  Device core(input, obliging);
  Device abort(input, obliging);
  const FakeNetwork network({&mapper, &core, &abort});
  VisaLink link("TCPIP::127.0.0.1::inst0");
  core.StopObliging();
  abort.StopObliging();
  while (link.open() && !input.empty()) Call(link, input);
  return 0;
}
