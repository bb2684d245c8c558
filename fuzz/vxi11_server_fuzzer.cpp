// The virtual instrument's VXI-11 server, core and abort channel, against clients that send anything. Whatever they
// did, the next client is served, which one input in eight has to prove.
//
// The input is what the clients do, each a byte and what belongs to it: see Bench::Step.

#include "Input.h"
#include "Require.h"
#include "ServerBench.h"
#include "Xdr.h"
#include "link/vxi11_server.h"

namespace kvtd::fuzz {
namespace {

constexpr std::size_t kMostClients = 6;
constexpr std::uint32_t kCore = 0x0607AF;
constexpr std::uint32_t kAbort = 0x0607B0;
// Sizes of replies with their marks; of one to a read, without the data.
constexpr std::size_t kLinkReply = 44, kWriteReply = 36, kReadReply = 40;
// Procedures of the core channel.
constexpr std::uint32_t kCreateLink = 10, kWrite = 11, kRead = 12;

std::string Call(std::uint32_t program, std::uint32_t procedure, const std::string& arguments) {
  return Record(RpcCall(0x2A, program, 1, procedure, arguments));
}

class Bench final : public ServerBench<siggen::link::Vxi11Server> {
 private:
  void Begin() override { link_ = abort_port_ = 0; }

  void OpenLink() {
    Client& core = Connect();
    core.Send(Call(kCore, kCreateLink, Word(0) + Word(0) + Word(0) + Opaque("inst0")));
    const std::string answer = Await(core, kLinkReply);
    Require(answer.size() == kLinkReply && NumberAt(answer, 28) == 0, "a client is given a link");
    link_ = NumberAt(answer, 32);
    abort_port_ = static_cast<std::uint16_t>(NumberAt(answer, 36));
  }

  void Step(Input& input) override {
    const std::uint8_t what = input.Byte();
    if (clients_.size() < kMostClients) {
      if (what % 12 == 0) return static_cast<void>(Connect());
      if (what % 12 == 1) return OpenLink();
      if (what % 12 == 2 && abort_port_ != 0) {
        clients_.push_back(std::make_unique<Client>(abort_port_));
        return;
      }
    }
    if (clients_.empty()) return;
    const std::size_t which = what / 12 % clients_.size();
    Client& client = *clients_[which];
    switch (what % 12) {
      case 3:
        return client.Send(input.Text());
      case 4:
        return client.Send(Record(input.Text()));
      case 5: {
        const std::uint32_t procedure = input.Byte();
        std::string arguments = Word(input.Bool() ? link_ : input.Number<std::uint32_t>());
        for (std::size_t left = input.Choice(6); left > 0; --left) arguments += Word(input.Byte());
        return client.Send(Call(kCore, procedure, arguments + input.Text()));
      }
      case 6: {
        const std::uint32_t flags = input.Byte();
        const std::string line = input.Line() + '\n';
        return client.Send(Call(kCore, kWrite, Word(link_) + Word(0) + Word(0) + Word(flags) + Opaque(line)));
      }
      case 7: {
        const std::uint32_t size = input.Byte();
        const std::uint32_t flags = input.Byte();
        return client.Send(
            Call(kCore, kRead, Word(link_) + Word(size) + Word(0) + Word(0) + Word(flags) + Word(input.Byte())));
      }
      case 8:
        return client.Send(Call(kAbort, 1, Word(link_)));
      case 9:
        clients_.erase(clients_.begin() + static_cast<std::ptrdiff_t>(which));
        return;
      case 10:
        return AddFault(input);
      case 11:
        return input.Bool() ? client.EndSending() : static_cast<void>(client.Receive());
      default:
        return PassASecond();
    }
  }

  void RequireService() override {
    OpenLink();
    Client& core = *clients_.front();
    core.Send(Call(kCore, kWrite, Word(link_) + Word(0) + Word(0) + Word(8) + Opaque("*IDN?\n")));
    Require(Await(core, kWriteReply).size() == kWriteReply, "the next client may write");
    core.Send(Call(kCore, kRead, Word(link_) + Word(255) + Word(0) + Word(0) + Word(0) + Word(0)));
    const std::string answer = Await(core, kReadReply + 1);
    Require(answer.size() > kReadReply && NumberAt(answer, 28) == 0 && answer.find("TD48142C") != std::string::npos,
            "the next client is answered");
  }

  std::uint32_t link_ = 0;
  std::uint16_t abort_port_ = 0;
};

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static kvtd::fuzz::Bench bench;
  kvtd::fuzz::Input input(data, size);
  bench.Run(input, size % 8 == 0);
  return 0;
}
