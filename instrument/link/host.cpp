#include "link/host.h"

#include <unistd.h>

#include <algorithm>
#include <asio/buffer.hpp>
#include <asio/executor_work_guard.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/posix/stream_descriptor.hpp>
#include <asio/post.hpp>
#include <asio/read_until.hpp>
#include <asio/signal_set.hpp>
#include <asio/steady_timer.hpp>
#include <csignal>
#include <future>
#include <iostream>

#include "link/acceptor.h"
#include "link/console.h"
#include "link/hislip_server.h"
#include "link/port_mapping.h"
#include "link/services.h"
#include "link/socket_link.h"
#include "link/vxi11_server.h"

namespace siggen::link {

using asio::ip::tcp;

class Host::Impl : public Services {
 public:
  explicit Impl(HostOptions options)
      : instrument_(options.identity),
        locks_(io_, [this] { LocksChanged(); }),
        timer_(io_),
        signals_(io_),
        stdin_(io_) {
    for (const Fault& fault : options.faults) faults_.Add(fault);
    if (options.socket_port) {
      acceptor_.emplace(io_, options.address, *options.socket_port,
                        [this](tcp::socket socket) { TakeLink(std::move(socket)); });
      acceptor_->Start();
      listeners_.push_back({"socket", options.address, acceptor_->port()});
    }
    if (options.hislip_port) {
      hislip_.emplace(*this, options.address, *options.hislip_port,
                      options.patience_for_clear.value_or(HislipServer::kPatienceForClear));
      listeners_.push_back({"hislip", options.address, hislip_->port()});
    }
    if (options.vxi11_port) {
      vxi11_.emplace(*this, options.address, *options.vxi11_port);
      listeners_.push_back({"vxi11", options.address, vxi11_->port()});
      if (options.map_port) MapPort(options);
    }
    if (options.end_on_signals) {
      signals_.add(SIGINT);
      signals_.add(SIGTERM);
      signals_.async_wait([this](const asio::error_code& problem, int) {
        if (!problem) Stop();
      });
    }
    if (options.end_with_stdin) {
      stdin_.assign(::dup(STDIN_FILENO));
      ReadStdin();
    }
  }

  asio::io_context& io() override { return io_; }
  model::Instrument& instrument() override { return instrument_; }
  FaultPlan& faults() override { return faults_; }
  Locks& locks() override { return locks_; }
  const std::vector<Listener>& listeners() const { return listeners_; }

  void Worked() override {
    instrument_.CatchUp();
    switch (instrument_.TakePowerEvent()) {
      case model::PowerEvent::kNone:
        break;
      case model::PowerEvent::kReboot:
        asio::post(io_, [this] { CloseLinks(); });
        break;
      case model::PowerEvent::kShutdown:
        Stop();
        break;
    }
    if (hislip_) hislip_->StatusChanged();
    if (vxi11_) vxi11_->StatusChanged();
    if (!instrument_.operations_pending()) {
      ForEachLink([this](const std::shared_ptr<Link>& link) {
        if (link->waiting()) asio::post(io_, [link] { link->Pump(); });
      });
    }
    timer_.cancel();
    const auto next = instrument_.next_event();
    if (!next) return;
    timer_.expires_at(*next);
    timer_.async_wait([this](const asio::error_code& problem) {
      if (!problem) Worked();
    });
  }

  void Stop() {
    asio::post(io_, [this] {
      asio::error_code ignored;
      if (acceptor_) acceptor_->Close();
      if (hislip_) hislip_->StopListening();
      if (vxi11_) vxi11_->StopListening();
      if (mapped_port_) mapped_port_->Close();
      signals_.cancel(ignored);
      stdin_.close(ignored);
      timer_.cancel();
      CloseLinks();
      io_.stop();
    });
  }

 private:
  void MapPort(const HostOptions& options) {
    mapped_port_.emplace(io_, options.address, options.port_mapper, vxi11_->mapping(), std::cerr);
    if (const auto port = mapped_port_->port()) listeners_.push_back({"portmapper", options.address, *port});
  }

  void TakeLink(tcp::socket socket) {
    auto link = std::make_shared<SocketLink>(std::move(socket), *this);
    std::erase_if(links_, [](const std::weak_ptr<Link>& old) { return old.expired(); });
    links_.push_back(link);
    link->Start();
  }

  void ForEachLink(const std::function<void(const std::shared_ptr<Link>&)>& work) {
    for (const auto& weak : std::vector(links_)) {
      if (const auto link = weak.lock()) work(link);
    }
    if (hislip_) hislip_->ForEachLink(work);
    if (vxi11_) vxi11_->ForEachLink(work);
  }

  void LocksChanged() {
    if (hislip_) hislip_->LocksChanged();
    if (vxi11_) vxi11_->LocksChanged();
  }

  void CloseLinks() {
    ForEachLink([](const std::shared_ptr<Link>& link) { link->Close(); });
    links_.clear();
    if (hislip_) hislip_->CloseClients();
    if (vxi11_) vxi11_->CloseClients();
  }

  void ReadStdin() {
    asio::async_read_until(stdin_, asio::dynamic_buffer(typed_, 4096), '\n',
                           [this](const asio::error_code& problem, std::size_t length) {
                             if (problem == asio::error::operation_aborted) return;
                             if (problem) return Stop();
                             const std::string line = typed_.substr(0, length - 1);
                             typed_.erase(0, length);
                             if (!CarryOut(line, instrument_, faults_)) {
                               std::cerr << "not understood: " << line << std::endl;
                             }
                             Worked();
                             ReadStdin();
                           });
  }

  asio::io_context io_;
  model::Instrument instrument_;
  FaultPlan faults_;
  Locks locks_;
  std::vector<Listener> listeners_;
  std::vector<std::weak_ptr<Link>> links_;
  std::optional<Acceptor> acceptor_;
  std::optional<HislipServer> hislip_;
  std::optional<Vxi11Server> vxi11_;
  std::optional<MappedPort> mapped_port_;
  asio::steady_timer timer_;
  asio::signal_set signals_;
  asio::posix::stream_descriptor stdin_;
  std::string typed_;
};

Host::Host(HostOptions options) : impl_(std::make_unique<Impl>(std::move(options))) {}
Host::~Host() = default;

const std::vector<Listener>& Host::listeners() const { return impl_->listeners(); }
void Host::Run() {
  const auto keep = asio::make_work_guard(impl_->io());
  impl_->io().run();
}
void Host::Stop() { impl_->Stop(); }

void Host::Inject(const Fault& fault) {
  With([this, fault](model::Instrument&) { impl_->faults().Add(fault); });
}

void Host::ClearFaults() {
  With([this](model::Instrument&) { impl_->faults().Clear(); });
}

void Host::With(const std::function<void(model::Instrument&)>& work) {
  std::promise<void> done;
  asio::post(impl_->io(), [this, &work, &done] {
    work(impl_->instrument());
    impl_->Worked();
    done.set_value();
  });
  done.get_future().wait();
}

}  // namespace siggen::link
