// The virtual instrument with one of its servers, and clients on the loopback interface, all in one thread.
//
// The instrument is reset between runs and not made anew, which would take ten times as long as all the rest; the
// fuzzer `scpi` is there for it.
#pragma once

#include <array>
#include <asio/post.hpp>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Input.h"
#include "LoopbackClient.h"
#include "Require.h"
#include "ServedLoop.h"
#include "link/services.h"
#include "model/instrument.h"

namespace kvtd::fuzz {

template <class Server>
class ServerBench : public siggen::link::Services {
 public:
  asio::io_context& io() override { return loop_.io(); }
  siggen::model::Instrument& instrument() override { return instrument_; }
  siggen::link::FaultPlan& faults() override { return faults_; }
  siggen::link::Locks& locks() override { return locks_; }
  // As the instrument's main loop has it, but for timers: here nothing ends by itself.
  void Worked() override {
    instrument_.CatchUp();
    if (instrument_.TakePowerEvent() != siggen::model::PowerEvent::kNone) {
      asio::post(io(), [this] { server_.CloseClients(); });
    }
    server_.StatusChanged();
    if (instrument_.operations_pending()) return;
    server_.ForEachLink([this](const std::shared_ptr<siggen::link::Link>& link) {
      if (link->waiting()) asio::post(io(), [link] { link->Pump(); });
    });
  }

  // What the clients do, and then, if wanted, the proof that the next one is served.
  void Run(Input& input, bool prove_service) {
    instrument_.FactoryReset();
    instrument_.Reboot();
    instrument_.TakePowerEvent();
    Begin();
    while (!input.empty()) {
      Step(input);
      Serve();
    }
    Leave();
    if (prove_service) RequireService();
    Leave();
  }

 protected:
  virtual void Begin() {}
  virtual void Step(Input& input) = 0;
  virtual void RequireService() = 0;

  Client& Connect() {
    clients_.push_back(std::make_unique<Client>(server_.port()));
    Serve();
    return *clients_.back();
  }
  void Serve() { loop_.Serve(); }
  std::string Await(Client& client, std::size_t size) { return loop_.Await(client, size); }
  void PassASecond() {
    now_ += std::chrono::seconds(1);
    Worked();
  }
  void AddFault(Input& input) {
    using Kind = siggen::link::Fault::Kind;
    // A delay would be one of real time.
    constexpr std::array<Kind, 6> kKinds = {Kind::kDrop,    Kind::kReset,      Kind::kCut,
                                            Kind::kGarbage, Kind::kTerminator, Kind::kBlock};
    faults_.Add({kKinds[input.Choice(kKinds.size())], {}, 1});
  }

  std::vector<std::unique_ptr<Client>> clients_;

 private:
  void Leave() {
    faults_.Clear();
    clients_.clear();
    Serve();
    server_.CloseClients();
    Serve();
  }

  ServedLoop loop_;
  siggen::model::Instant now_{};
  siggen::model::Instrument instrument_{siggen::model::Identity{}, [this] { return now_; }, siggen::model::WallTime{}};
  siggen::link::FaultPlan faults_;
  siggen::link::Locks locks_{loop_.io(), [this] { server_.LocksChanged(); }};
  Server server_{*this, "127.0.0.1", 0};
};

}  // namespace kvtd::fuzz
