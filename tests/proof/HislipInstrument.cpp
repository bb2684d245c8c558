// The device's side of HiSLIP 1.0, in the mode that the client wants.

#include <cstdint>

#include "FakeInstrument.h"
#include "Wire.h"

namespace kvtd::test {
namespace {

using wire::HislipMessage;
using wire::HislipType;

class HislipInstrument final : public FakeInstrument {
 public:
  const char* resource() const override { return "TCPIP0::127.0.0.1::hislip0::INSTR"; }
  std::vector<fuzz::Peer*> peers() override { return {&synchronous_, &asynchronous_}; }

 private:
  void Take(FakeConnection& connection) {
    while (const auto message = HislipMessage::TakeFrom(connection.heard)) Meet(*message, connection.mouth);
    if (std::string_view("HS").starts_with(std::string_view(connection.heard).substr(0, 2))) return;
    // The rest of a message whose header was given up half-way.
    connection.heard.clear();
    connection.mouth.Say(HislipMessage{HislipType::kFatalError, 1, 0, ""}.Bytes());
    connection.mouth.Say(Speeches{{fuzz::Speech::Kind::kClose, {}, {}}});
  }

  void Meet(const HislipMessage& message, Mouth& mouth) {
    const auto say = [&](HislipType type, std::uint32_t parameter = 0, const std::string& payload = {}) {
      mouth.Say(HislipMessage{type, 0, parameter, payload}.Bytes());
    };
    switch (message.type) {
      case HislipType::kInitialize:
        return say(HislipType::kInitializeResponse, kVersionAndSession);
      case HislipType::kAsyncInitialize:
        return say(HislipType::kAsyncInitializeResponse, kVendor);
      case HislipType::kAsyncMaximumMessageSize:
        return say(HislipType::kAsyncMaximumMessageSizeResponse, 0, wire::BigEndian(1 << 20, 8));
      case HislipType::kAsyncStatusQuery:
        return say(HislipType::kAsyncStatusResponse);
      case HislipType::kAsyncDeviceClear:
        clearing_ = true;
        synchronous_.mouth.FallSilent();
        command_.clear();
        return say(HislipType::kAsyncDeviceClearAcknowledge);
      case HislipType::kDeviceClearComplete:
        clearing_ = false;
        return mouth.Say(HislipMessage{HislipType::kDeviceClearAcknowledge, message.control, 0, ""}.Bytes());
      case HislipType::kData:
      case HislipType::kDataEnd:
        if (!clearing_) TakeData(message, mouth);
        return;
      default:
        return;
    }
  }

  void TakeData(const HislipMessage& message, Mouth& mouth) {
    command_ += message.payload;
    if (message.type != HislipType::kDataEnd) return;
    for (const std::string& line : TakeLinesOf(command_)) {
      const auto answer = Ask(line);
      if (!answer) continue;
      if (!endless().empty()) {
        return mouth.SayForEver(HislipMessage{HislipType::kData, 0, message.parameter, endless()}.Bytes());
      }
      mouth.Say(AsAnswer(HislipMessage{HislipType::kDataEnd, 0, message.parameter, *answer}.Bytes()));
    }
    command_.clear();
  }

  Mouth& beside() override { return asynchronous_.mouth; }
  void DropAnswers() override { synchronous_.mouth.FallSilent(); }

  static constexpr std::uint32_t kVersionAndSession = 0x01000001, kVendor = 0x4B56;

  FakeConnection synchronous_{[this](FakeConnection& connection) { Take(connection); }};
  FakeConnection asynchronous_{[this](FakeConnection& connection) { Take(connection); }};
  std::string command_;
  // Between the two halves of a device clear whatever still comes is of no account.
  bool clearing_ = false;
};

}  // namespace

std::unique_ptr<FakeInstrument> MakeHislipInstrument() { return std::make_unique<HislipInstrument>(); }

}  // namespace kvtd::test
