#include "Vxi11Peer.h"

#include <algorithm>

#include "Input.h"

namespace bench {
namespace {

enum Procedure : std::uint32_t { kNull = 0, kCreateLink = 10, kDeviceWrite = 11, kDeviceRead = 12 };
constexpr std::uint32_t kCoreProgram = 395183;
constexpr std::uint32_t kMostReceived = 1 << 20;
constexpr std::uint32_t kLastFragment = 0x80000000;
constexpr std::uint32_t kEndFlag = 8;
constexpr std::size_t kCallHeader = 40;

void Put(std::string& bytes, std::uint32_t word) {
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(word >> shift);
}

template <class... Words>
std::string Pack(Words... words) {
  std::string bytes;
  (Put(bytes, static_cast<std::uint32_t>(words)), ...);
  return bytes;
}

std::string Opaque(std::string_view data) {
  return Pack(data.size()).append(data).append((4 - data.size() % 4) % 4, 0);
}

std::string Call(Procedure procedure, std::string_view arguments) {
  std::string bytes = Pack(kLastFragment | (kCallHeader + arguments.size()));
  return bytes.append(Pack(7, 0, 2, kCoreProgram, 1, procedure, 0, 0, 0, 0)).append(arguments);
}

// Replies on their way: those to calls that came together go together.
class Replies {
 public:
  explicit Replies(int connection) : connection_(connection) {}

  bool Add(std::uint32_t xid, std::string_view results, std::string_view data = {}) {
    constexpr std::size_t kReplyHeader = 24;
    constexpr std::size_t kWorthNoCopy = 4096;
    const std::string padding((4 - data.size() % 4) % 4, 0);
    bytes_.append(Pack(kLastFragment | (kReplyHeader + results.size() + data.size() + padding.size())));
    bytes_.append(Pack(xid, 1, 0, 0, 0, 0)).append(results);
    if (data.size() <= kWorthNoCopy) {
      bytes_.append(data).append(padding);
      return bytes_.size() <= kWorthNoCopy || Send();
    }
    return Send() && SendAll(connection_, data) && (padding.empty() || SendAll(connection_, padding));
  }
  bool Send() {
    const bool good = SendAll(connection_, bytes_);
    bytes_.clear();
    return good;
  }

 private:
  const int connection_;
  std::string bytes_;
};

}  // namespace

std::string Vxi11Peer::Write(std::string_view text) {
  return Call(kDeviceWrite, Pack(1, 2000, 2000, kEndFlag).append(Opaque(text)));
}

std::string Vxi11Peer::Read(std::uint32_t size) { return Call(kDeviceRead, Pack(1, size, 2000, 2000, 0, 0)); }

void Vxi11Peer::Serve(int connection) const {
  constexpr std::size_t kLongestLine = 256;
  Input input(connection);
  Replies replies(connection);
  std::string line;
  bool begins = true;
  std::string made;
  std::string_view answer;
  for (;;) {
    const std::string_view mark = input.Take(4);
    if (mark.empty()) return;
    const std::size_t length = Number(mark) & ~kLastFragment;
    const std::size_t seen = std::min(length, kCallHeader + 20 + kLongestLine);
    const std::string call(input.Take(seen));
    if (call.size() != seen || !input.Skip(length - seen)) return;
    const std::string_view text(call);
    const auto word = [text](std::size_t index) {
      return static_cast<std::uint32_t>(Number(text.substr(4 * index, 4)));
    };
    const std::uint32_t xid = word(0);
    bool good = true;
    switch (word(5)) {
      case kNull:
        good = replies.Add(xid, {});
        break;
      case kCreateLink:
        good = replies.Add(xid, Pack(0, 1, port(), kMostReceived));
        break;
      case kDeviceWrite: {  // link, timeout, lock timeout, flags, data
        const std::uint32_t size = word(14);
        if (begins) line = text.substr(60, std::min<std::size_t>(size, kLongestLine));
        begins = (word(13) & kEndFlag) != 0;
        if (begins && Answers::Asks(line)) answer = answers_.To(line, made);
        good = replies.Add(xid, Pack(0, size));
        break;
      }
      case kDeviceRead: {  // link, size, ...
        const std::string_view part = answer.substr(0, word(11));
        answer.remove_prefix(part.size());
        const int reason = answer.empty() ? 4 : 1;
        good = replies.Add(xid, Pack(0, reason, part.size()), part);
        break;
      }
      default:
        good = replies.Add(xid, Pack(0));
    }
    if (!good || (!input.HasMore() && !replies.Send())) return;
  }
}

}  // namespace bench
