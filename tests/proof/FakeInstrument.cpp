#include "FakeInstrument.h"

namespace kvtd::test {
namespace {

// Lines on a bare byte stream.
class SocketInstrument final : public FakeInstrument {
 public:
  const char* resource() const override { return "TCPIP0::127.0.0.1::5025::SOCKET"; }
  std::vector<fuzz::Peer*> peers() override { return {&connection_}; }

 private:
  void Take(FakeConnection& connection) {
    for (const std::string& line : TakeLinesOf(connection.heard)) {
      const std::optional<std::string> answer = Ask(line);
      if (!answer) continue;
      if (!endless().empty()) return connection.mouth.SayForEver(endless());
      connection.mouth.Say(AsAnswer(*answer));
    }
  }
  Mouth& beside() override { return connection_.mouth; }
  void DropAnswers() override { connection_.mouth.FallSilent(); }

  FakeConnection connection_{[this](FakeConnection& connection) { Take(connection); }};
};

}  // namespace

std::unique_ptr<FakeInstrument> FakeInstrument::Make(LinkKind kind) {
  switch (kind) {
    case LinkKind::Hislip:
      return MakeHislipInstrument();
    case LinkKind::Vxi11:
      return MakeVxi11Instrument();
    default:
      return std::make_unique<SocketInstrument>();
  }
}

std::optional<std::string> FakeInstrument::Ask(std::string_view line) {
  ++lines_;
  if (line.find('?') == std::string::npos) return std::nullopt;
  ++queries_;
  asked_for_status_ = line == "*ESR?\n";
  if (asked_for_status_) ++status_queries_;
  if (asked_for_status_ && status_) return status_;
  if (answer_) return answer_;
  return line == "*IDN?\n" ? "Kelvora,TD48142C,SN4711,1.2.3\n" : "0\n";
}

std::vector<std::string> FakeInstrument::TakeLinesOf(std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  for (std::size_t end = bytes.find('\n'); end != std::string::npos; end = bytes.find('\n', begin)) {
    lines.push_back(bytes.substr(begin, end + 1 - begin));
    begin = end + 1;
  }
  bytes.erase(0, begin);
  return lines;
}

Speeches FakeInstrument::Twisted(const Twist& twist, std::string bytes) {
  if (twist) return twist(std::move(bytes));
  if (bytes.empty()) return {};
  return {{fuzz::Speech::Kind::kBytes, {}, std::move(bytes)}};
}

}  // namespace kvtd::test
