// The HiSLIP client against a server that says anything, whole frames more often than not.
//
// The input: a byte whose lowest bit lets the opening go well and whose second lets the server stop reading after a
// while, which the next byte tells. Then calls, each a byte and what belongs to it, and between them what the server
// says when it is waited for: a byte for the kind, see Server::Speak.

#include <visa.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "Input.h"
#include "Require.h"
#include "VisaLink.h"
#include "fake_network.h"

namespace kvtd::fuzz {
namespace {

constexpr std::size_t kHeaderSize = 16;
// Longer than the library waits where the caller's timeout does not count: for attributes, and to release a lock.
constexpr ViUInt32 kOwnPatience = 2000;

std::string BigEndian(std::uint64_t number, int bytes) {
  std::string text;
  for (int i = bytes - 1; i >= 0; --i) text += static_cast<char>(number >> (8 * i));
  return text;
}

std::string Header(std::uint8_t type, std::uint8_t control, std::uint32_t parameter, std::uint64_t length) {
  return std::string("HS") + static_cast<char>(type) + static_cast<char>(control) + BigEndian(parameter, 4) +
         BigEndian(length, 8);
}

std::string Frame(std::uint8_t type, std::uint8_t control, std::uint32_t parameter, const std::string& payload) {
  return Header(type, control, parameter, payload.size()) + payload;
}

// One connection of the server.
class Server : public Peer {
 public:
  Server(Input& input, bool obliging, std::size_t room) : input_(input), obliging_(obliging), room_(room) {}

  void StopObliging() { obliging_ = false; }

  void Hear(std::string_view bytes) override {
    room_ -= std::min(room_, bytes.size());
    heard_ += bytes;
    while (heard_.size() >= kHeaderSize) {
      std::uint64_t length = 0;
      for (std::size_t i = 8; i < kHeaderSize; ++i) length = length << 8 | static_cast<std::uint8_t>(heard_[i]);
      Require(heard_.starts_with("HS"), "the client sends whole messages, one behind the other");
      if (heard_.size() - kHeaderSize < length) return;
      type_ = static_cast<std::uint8_t>(heard_[2]);
      control_ = static_cast<std::uint8_t>(heard_[3]);
      parameter_ = 0;
      for (std::size_t i = 4; i < 8; ++i) parameter_ = parameter_ << 8 | static_cast<std::uint8_t>(heard_[i]);
      heard_.erase(0, kHeaderSize + static_cast<std::size_t>(length));
    }
  }

  std::size_t Room() override { return room_; }

  Speech Speak() override {
    if (obliging_) return Say(Answer());
    if (input_.empty()) return {Speech::Kind::kClose, {}, {}};
    switch (input_.Byte() % 9) {
      case 0:
        return Say(Answer());
      case 1: {
        const std::uint8_t type = input_.Byte();
        const std::uint8_t control = input_.Byte();
        const std::uint32_t parameter = input_.Bool() ? parameter_ : input_.Number<std::uint32_t>();
        return Say(Frame(type, control, parameter, input_.Text()));
      }
      case 2:
        return Say(Frame(6, 0, parameter_, input_.Line()));
      case 3:
        return Say(Frame(7, 0, parameter_, input_.Line() + '\n'));
      case 4:
        return Say(Frame(6, 0, 0xFFFFFFFF, input_.Line()));
      case 5:
        return Say(input_.Text());
      case 6:
        return {Speech::Kind::kSilence, std::chrono::milliseconds(20 * input_.Byte()), {}};
      case 7: {
        const std::uint8_t type = input_.Byte();
        return Say(Header(type, 0, parameter_, input_.Number<std::uint64_t>()) + input_.Text());
      }
      default:
        return {input_.Bool() ? Speech::Kind::kReset : Speech::Kind::kClose, {}, {}};
    }
  }

 private:
  static Speech Say(std::string bytes) {
    if (bytes.empty()) return {Speech::Kind::kSilence, {}, {}};
    return {Speech::Kind::kBytes, {}, std::move(bytes)};
  }

  // What a server owes to the last message.
  std::string Answer() const {
    switch (type_) {
      case 0:  // Initialize
        return Frame(1, 0, 0x01000001, "");
      case 4:  // AsyncLock
        return Frame(5, 1, 0, "");
      case 8:  // DeviceClearComplete
        return Frame(9, control_, 0, "");
      case 10:  // AsyncRemoteLocalControl
        return Frame(11, 0, 0, "");
      case 15:  // AsyncMaximumMessageSize
        return Frame(16, 0, 0, BigEndian(0x10000, 8));
      case 17:  // AsyncInitialize
        return Frame(18, 0, 0x4B56, "");
      case 19:  // AsyncDeviceClear
        return Frame(23, 0, 0, "");
      case 21:  // AsyncStatusQuery
        return Frame(22, 0x10, 0, "");
      default:  // data
        return Frame(7, 0, parameter_, "1\n");
    }
  }

  Input& input_;
  bool obliging_;
  std::size_t room_;
  std::string heard_;
  std::uint8_t type_ = 0;
  std::uint8_t control_ = 0;
  std::uint32_t parameter_ = 0;
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

void Set(VisaLink& link, ViAttr attribute, ViAttrState value) {
  InTime(kOwnPatience, [&] { return viSetAttribute(link.session(), attribute, value); });
}

void Call(VisaLink& link, Input& input) {
  const ViSession vi = link.session();
  switch (input.Choice(15)) {
    case 0: {
      const std::string text = input.Text();
      link.Make([&](ViSession) {
        return viWrite(vi, reinterpret_cast<ViConstBuf>(text.data()), static_cast<ViUInt32>(text.size()), nullptr);
      });
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
    case 8: {
      const bool shared = input.Bool();
      std::array<ViChar, VI_FIND_BUFLEN> key{};
      link.Make([&](ViSession) {
        return viLock(vi, shared ? VI_SHARED_LOCK : VI_EXCLUSIVE_LOCK, kTimeout, shared ? "k" : nullptr, key.data());
      });
      return;
    }
    case 9:
      InTime(kOwnPatience, [&] { return viUnlock(vi); });
      return;
    case 10:
      return Set(link, VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, input.Bool() ? VI_TRUE : VI_FALSE);
    case 11:
      return Set(link, VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB, input.Byte());
    case 12:
      return Set(link, VI_ATTR_SUPPRESS_END_EN, input.Bool() ? VI_TRUE : VI_FALSE);
    case 13:
      return Set(link, VI_ATTR_TERMCHAR_EN, input.Bool() ? VI_TRUE : VI_FALSE);
    default: {
      const ViUInt16 mask = input.Byte();
      link.Make([&](ViSession) { return viFlush(vi, mask); });
    }
  }
}

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kvtd::fuzz;
  Input input(data, size);
  const std::uint8_t how = input.Byte();
  const bool obliging = (how & 1) != 0;
  const std::size_t room = (how & 2) != 0 ? 16U * input.Byte() : std::numeric_limits<std::size_t>::max();
  Server synchronous(input, obliging, room);
  Server asynchronous(input, obliging, std::numeric_limits<std::size_t>::max());
  const FakeNetwork network({&synchronous, &asynchronous});
  VisaLink link("TCPIP::127.0.0.1::hislip0");
  synchronous.StopObliging();
  asynchronous.StopObliging();
  while (link.open() && !input.empty()) Call(link, input);
  return 0;
}
