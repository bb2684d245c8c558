// The server that a VXI-11 client has for the device's service requests, against callers that send anything. It lets go
// of each that ends, takes no request without its handle for one, and whatever they did takes the next one.
//
// The input is what the callers do, each a byte and what belongs to it: see Bench::Step.

#include "vxi11_interrupts.h"

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "Input.h"
#include "LoopbackClient.h"
#include "Require.h"
#include "Xdr.h"

namespace kvtd::fuzz {
namespace {

using tvr::visa::vxi11::InterruptServer;

// One more than the server keeps, and no more than may wait for it.
constexpr std::size_t kMostCallers = 5;
constexpr std::uint32_t kInterrupt = 0x0607B1, kVersion = 1, kRequest = 30, kNull = 0;
constexpr std::size_t kReply = 28;  // with its mark

class Bench {
 public:
  Bench() {
    in_addr own{};
    own.s_addr = htonl(INADDR_LOOPBACK);
    Require(server_->Start(own) >= 0, "the server listens");
    server_->SetSink([this] { ++told_; });
  }
  ~Bench() { server_->Close(); }

  void Run(Input& input) {
    told_ = entitled_ = 0;
    while (!input.empty()) Step(input);
    // All before any: the server waits a moment for the rest of a record.
    for (const auto& caller : callers_) caller->EndSending();
    for (const auto& caller : callers_) Require(caller->AwaitEnd(), "a caller that ends is let go");
    callers_.clear();
    Require(told_ <= entitled_, "a request needs the handle");
    RequireService();
  }

 private:
  void Step(Input& input) {
    const std::uint8_t what = input.Byte();
    if (what % 8 == 0 || callers_.empty()) {
      if (callers_.size() < kMostCallers) callers_.push_back(std::make_unique<Client>(server_->port()));
      return;
    }
    Client& caller = *callers_[what / 8 % callers_.size()];
    switch (what % 8) {
      case 1:
        return caller.Send(input.Text());
      case 2:
        return caller.Send(Record(input.Text()));
      case 3: {  // a call of anything
        const std::uint32_t program = input.Bool() ? kInterrupt : input.Number<std::uint32_t>();
        const std::uint32_t procedure = input.Byte();
        return caller.Send(Record(RpcCall(input.Byte(), program, kVersion, procedure, input.Text())));
      }
      case 4:
        ++entitled_;
        return caller.Send(Record(Request(Handle())));
      case 5:
        return caller.Send(Record(Request(input.Text())));
      case 6: {  // a request in two fragments
        ++entitled_;
        const std::string whole = Request(Handle());
        const std::size_t first = input.Choice(whole.size());
        return caller.Send(Word(static_cast<std::uint32_t>(first)) + whole.substr(0, first) +
                           Record(whole.substr(first)));
      }
      default:
        return input.Bool() ? caller.EndSending() : static_cast<void>(caller.Receive());
    }
  }

  std::string Handle() const {
    const auto handle = server_->handle();
    return {reinterpret_cast<const char*>(handle.data()), handle.size()};
  }
  static std::string Request(const std::string& handle) {
    return RpcCall(1, kInterrupt, kVersion, kRequest, Opaque(handle));
  }

  // The sink is called behind the reply to the request, and thus before that to the call which follows.
  void RequireService() {
    const int before = told_;
    Client caller(server_->port());
    caller.Send(Record(Request(Handle())) + Record(RpcCall(2, kInterrupt, kVersion, kNull, "")));
    std::string answers;
    for (int patience = 0; answers.size() < 2 * kReply && patience < 1000; ++patience) {
      answers += caller.Receive();
      if (answers.size() < 2 * kReply) caller.AwaitReadable();
    }
    Require(answers.size() == 2 * kReply && NumberAt(answers, 4) == 1 && NumberAt(answers, kReply + 4) == 2,
            "the next caller is answered");
    Require(told_ == before + 1, "the next request is passed on");
  }

  const std::shared_ptr<InterruptServer> server_ = std::make_shared<InterruptServer>("127.0.0.1");
  std::atomic<int> told_{0};
  int entitled_ = 0;  // requests with the handle
  std::vector<std::unique_ptr<Client>> callers_;
};

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static kvtd::fuzz::Bench bench;
  kvtd::fuzz::Input input(data, size);
  bench.Run(input);
  return 0;
}
