// The port mapper of the virtual instrument, over TCP and UDP, against clients that send anything. Whatever they did,
// the next one is told the port, which one input in eight has to prove.
//
// The input is what the clients do, each a byte and what belongs to it: see Bench::Step.

#include "link/port_mapper.h"

#include <memory>
#include <vector>

#include "Input.h"
#include "LoopbackClient.h"
#include "Require.h"
#include "ServedLoop.h"
#include "Xdr.h"

namespace kvtd::fuzz {
namespace {

constexpr std::size_t kMostClients = 6;
constexpr std::uint32_t kPortMapper = 100000, kVersion = 2, kGetPort = 3;
constexpr siggen::link::Mapping kKnown{0x0607AF, 1, 1025};
constexpr std::uint32_t kTcp = 6;
// A reply that tells one number.
constexpr std::size_t kAnswer = 28;

class Bench {
 public:
  void Run(Input& input, bool prove_service) {
    while (!input.empty()) {
      Step(input);
      Serve();
    }
    Leave();
    if (prove_service) RequireService();
    Leave();
  }

 private:
  void Step(Input& input) {
    const std::uint8_t what = input.Byte();
    switch (what % 8) {
      case 0:
        if (clients_.size() < kMostClients) clients_.push_back(std::make_unique<Client>(mapper_.port()));
        return;
      case 1:
        return Datagram(input.Text());
      case 2:
        return Datagram(Call(input));
      default:
        break;
    }
    if (clients_.empty()) return;
    const std::size_t which = what / 8 % clients_.size();
    Client& client = *clients_[which];
    switch (what % 8) {
      case 3:
        return client.Send(input.Text());
      case 4:
        return client.Send(Record(input.Text()));
      case 5:
        return client.Send(Record(Call(input)));
      case 6:
        return input.Bool() ? client.EndSending() : static_cast<void>(client.Receive());
      default:
        clients_.erase(clients_.begin() + static_cast<std::ptrdiff_t>(which));
    }
  }

  // Of the port mapper more often than not, with arguments that may be too short or too long.
  static std::string Call(Input& input) {
    const std::uint32_t program = input.Bool() ? kPortMapper : input.Number<std::uint32_t>();
    const std::uint32_t version = input.Byte();
    const std::uint32_t procedure = input.Byte();
    return RpcCall(input.Byte(), program, version, procedure, input.Text());
  }

  // What comes back is a reply, and no larger than the list of ports.
  void Datagram(const std::string& message) {
    constexpr std::size_t kLongestReply = 128;
    Client client(mapper_.port(), SOCK_DGRAM);
    client.Send(message);
    Serve();
    const std::string answer = client.Receive();
    if (answer.empty()) return;
    Require(answer.size() <= kLongestReply, "a datagram is not answered with many");
    Require(NumberAt(answer, 0) == NumberAt(message, 0) && NumberAt(answer, 4) == 1,
            "a call is answered with its reply");
  }

  void RequireService() {
    const std::string question =
        RpcCall(7, kPortMapper, kVersion, kGetPort, Word(kKnown.program) + Word(kKnown.version) + Word(kTcp) + Word(0));
    Client stream(mapper_.port());
    stream.Send(Record(question));
    RequirePort(Await(stream, 4 + kAnswer).substr(4));
    Client datagrams(mapper_.port(), SOCK_DGRAM);
    datagrams.Send(question);
    RequirePort(Await(datagrams, kAnswer));
  }
  static void RequirePort(const std::string& answer) {
    Require(answer.size() == kAnswer && NumberAt(answer, 0) == 7 && NumberAt(answer, 24) == kKnown.port,
            "the next client is told the port");
  }
  std::string Await(Client& client, std::size_t size) {
    const std::string answer = loop_.Await(client, size);
    Require(answer.size() == size, "the next client is answered");
    return answer;
  }

  void Serve() { loop_.Serve(); }
  void Leave() {
    clients_.clear();
    Serve();
  }

  ServedLoop loop_;
  siggen::link::PortMapper mapper_{loop_.io(), "127.0.0.1", 0, kKnown};
  std::vector<std::unique_ptr<Client>> clients_;
};

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static kvtd::fuzz::Bench bench;
  kvtd::fuzz::Input input(data, size);
  bench.Run(input, size % 8 == 0);
  return 0;
}
