// The virtual instrument's HiSLIP server against clients that send anything. Whatever they did, the next client is
// served, which one input in eight has to prove.
//
// The input is what the clients do, each a byte and what belongs to it: see Bench::Step.

#include "Input.h"
#include "Require.h"
#include "ServerBench.h"
#include "link/hislip_server.h"

namespace kvtd::fuzz {
namespace {

constexpr std::size_t kMostClients = 6;
constexpr std::size_t kHeaderSize = 16;

std::string Frame(std::uint8_t type, std::uint8_t control, std::uint32_t parameter, std::uint64_t length,
                  const std::string& payload) {
  std::string frame = "HS";
  frame += static_cast<char>(type);
  frame += static_cast<char>(control);
  for (int i = 24; i >= 0; i -= 8) frame += static_cast<char>(parameter >> i);
  for (int i = 56; i >= 0; i -= 8) frame += static_cast<char>(length >> i);
  return frame + payload;
}

class Bench final : public ServerBench<siggen::link::HislipServer> {
 private:
  void Begin() override { next_id_ = 0xFFFFFF00 - 2; }

  // Both connections of a link.
  void OpenLink() {
    Client& synchronous = Connect();
    synchronous.Send(Frame(0, 0, 0x01004B56, 7, "hislip0"));
    const std::string answer = Await(synchronous, kHeaderSize);
    Require(answer.size() == kHeaderSize && answer[2] == 1, "a client is let in");
    const auto id =
        static_cast<std::uint32_t>(static_cast<std::uint8_t>(answer[6]) << 8 | static_cast<std::uint8_t>(answer[7]));
    Client& asynchronous = Connect();
    asynchronous.Send(Frame(17, 0, id, 0, ""));
    Require(Await(asynchronous, kHeaderSize).size() == kHeaderSize, "so is its second connection");
  }

  void Step(Input& input) override {
    const std::uint8_t what = input.Byte();
    if (clients_.size() < kMostClients) {
      if (what % 10 == 0) return static_cast<void>(Connect());
      if (what % 10 == 1) return OpenLink();
    }
    if (clients_.empty()) return;
    const std::size_t which = what / 10 % clients_.size();
    Client& client = *clients_[which];
    switch (what % 10) {
      case 2:
        return client.Send(input.Text());
      case 3: {
        const std::uint8_t type = input.Byte();
        const std::uint8_t control = input.Byte();
        const auto parameter = input.Number<std::uint32_t>();
        const std::string payload = input.Text();
        return client.Send(Frame(type, control, parameter, payload.size(), payload));
      }
      case 4: {
        const std::uint8_t type = input.Byte();
        const auto length = input.Number<std::uint64_t>();
        return client.Send(Frame(type, 0, NextId(), length, input.Text()));
      }
      case 5: {
        const std::string line = input.Line();
        return client.Send(Frame(7, 0, NextId(), line.size(), line));
      }
      case 6:
        return static_cast<void>(client.Receive());
      case 7:
        return client.EndSending();
      case 8:
        clients_.erase(clients_.begin() + static_cast<std::ptrdiff_t>(which));
        return;
      case 9:
        return AddFault(input);
      default:
        return PassASecond();
    }
  }

  std::uint32_t NextId() { return next_id_ += 2; }

  void RequireService() override {
    OpenLink();
    Client& synchronous = *clients_.front();
    synchronous.Send(Frame(7, 0, 0xFFFFFF00, 6, "*IDN?\n"));
    const std::string answer = Await(synchronous, kHeaderSize + 1);
    Require(answer.size() > kHeaderSize && answer[2] == 7 && answer.ends_with('\n'), "the next client is answered");
  }

  std::uint32_t next_id_ = 0;
};

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static kvtd::fuzz::Bench bench;
  kvtd::fuzz::Input input(data, size);
  bench.Run(input, size % 8 == 0);
  return 0;
}
