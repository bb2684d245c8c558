#include "link/hislip_server.h"

#include <asio/steady_timer.hpp>
#include <chrono>
#include <map>
#include <set>

#include "link/acceptor.h"
#include "link/device_name.h"
#include "link/hislip_channel.h"
#include "link/hislip_session.h"

namespace siggen::link {

using asio::ip::tcp;
using std::chrono::milliseconds;
using namespace hislip;

namespace {

constexpr std::size_t kMostClients = 16;
constexpr std::size_t kMostGuests = 32;
constexpr std::chrono::seconds kPatienceForGreeting{10};

bool IsOurName(std::string_view name) { return name.empty() || IsDeviceName(name, "hislip0"); }

}  // namespace

class HislipServer::Impl : public Hall {
 public:
  Impl(Services& services, const std::string& address, std::uint16_t port, milliseconds patience_for_clear)
      : services_(services),
        patience_for_clear_(patience_for_clear),
        acceptor_(services.io(), address, port, [this](tcp::socket socket) { Take(std::move(socket)); }) {
    acceptor_.Start();
  }

  Services& services() override { return services_; }
  milliseconds patience_for_clear() const override { return patience_for_clear_; }
  void Leave(Session& session) override { sessions_.erase(session.id()); }

  std::uint16_t port() const { return acceptor_.port(); }
  template <class Work>
  void ForEach(Work work) {
    for (const auto& [id, session] : std::map(sessions_)) work(session);
  }
  void StatusChanged() {
    if (!sessions_.empty()) ForEach([](const auto& session) { session->StatusChanged(); });
  }
  void LocksChanged() {
    ForEach([](const auto& session) { session->LocksChanged(); });
  }
  void CloseClients() {
    ForEach([](const auto& session) { session->Close(); });
    for (const auto& guest : std::set(guests_)) Dismiss(guest);
  }
  void StopListening() { acceptor_.Close(); }

 private:
  // A connection of which nobody knows yet which it will be.
  class Guest : public Receiver, public std::enable_shared_from_this<Guest> {
   public:
    Guest(Impl& server, std::shared_ptr<Channel> its_channel)
        : channel(std::move(its_channel)), server_(server), timer_(server.services_.io(), kPatienceForGreeting) {}

    void Start() {
      channel->SetReceiver(shared_from_this());
      timer_.async_wait([self = shared_from_this()](const asio::error_code& problem) {
        if (!problem) self->server_.Dismiss(self);
      });
      channel->Resume();
    }
    void Cancel() { timer_.cancel(); }

    bool Ready(Channel&) override { return true; }
    Payload Begins(Channel&, const Header& header) override {
      const bool greets = (header.message == Message::kInitialize && header.length <= kLongestText) ||
                          (header.message == Message::kAsyncInitialize && header.length == 0);
      if (!greets) server_.Refuse(shared_from_this(), Fatal::kInvalidInitialization);
      return greets ? Payload::kCollect : Payload::kDrop;
    }
    void Ends(Channel&, const Header& header, const std::string& text) override {
      if (header.message == Message::kInitialize) {
        server_.Initialize(shared_from_this(), header, text);
      } else {
        server_.AsyncInitialize(shared_from_this(), header);
      }
    }
    std::span<char> Room() override { return {}; }
    void Filled(std::size_t) override {}
    void Malformed(Channel&) override { server_.Refuse(shared_from_this(), Fatal::kPoorHeader); }
    void Lost(Channel&) override { server_.Dismiss(shared_from_this()); }

    const std::shared_ptr<Channel> channel;

   private:
    Impl& server_;
    asio::steady_timer timer_;
  };
  using GuestPointer = std::shared_ptr<Guest>;

  void Take(tcp::socket socket) {
    const auto guest = std::make_shared<Guest>(*this, std::make_shared<Channel>(std::move(socket)));
    if (guests_.size() >= kMostGuests) return guest->channel->SendFatal(Fatal::kTooManyClients);
    guests_.insert(guest);
    guest->Start();
  }

  void Farewell(const GuestPointer& guest) {
    guest->Cancel();
    guests_.erase(guest);
  }
  void Dismiss(const GuestPointer& guest) {
    Farewell(guest);
    guest->channel->Close();
  }
  void Refuse(const GuestPointer& guest, Fatal fatal) {
    Farewell(guest);
    guest->channel->SendFatal(fatal);
  }

  void Initialize(const GuestPointer& guest, const Header& header, const std::string& name) {
    const auto version = static_cast<std::uint16_t>(header.parameter >> 16);
    if (!IsOurName(name) || version < kVersion) return Refuse(guest, Fatal::kInvalidInitialization);
    if (sessions_.size() >= kMostClients) return Refuse(guest, Fatal::kTooManyClients);
    Farewell(guest);
    do {
      ++last_id_;
    } while (sessions_.contains(last_id_));
    const auto session = std::make_shared<Session>(*this, last_id_, guest->channel);
    sessions_.emplace(last_id_, session);
    session->Start();
    guest->channel->Send({Message::kInitializeResponse, 0, std::uint32_t{kVersion} << 16 | last_id_});
  }

  void AsyncInitialize(const GuestPointer& guest, const Header& header) {
    const auto found = sessions_.find(static_cast<std::uint16_t>(header.parameter));
    if (header.parameter > 0xFFFF || found == sessions_.end() || found->second->complete()) {
      return Refuse(guest, Fatal::kInvalidInitialization);
    }
    Farewell(guest);
    constexpr std::uint32_t kVendor = ('K' << 8) | 'V';
    guest->channel->Send({Message::kAsyncInitializeResponse, 0, kVendor});
    found->second->Attach(guest->channel);
  }

  Services& services_;
  const milliseconds patience_for_clear_;
  std::set<GuestPointer> guests_;
  std::map<std::uint16_t, std::shared_ptr<Session>> sessions_;
  std::uint16_t last_id_ = 0;
  Acceptor acceptor_;
};

HislipServer::HislipServer(Services& services, const std::string& address, std::uint16_t port,
                           milliseconds patience_for_clear)
    : impl_(std::make_unique<Impl>(services, address, port, patience_for_clear)) {}
HislipServer::~HislipServer() = default;

std::uint16_t HislipServer::port() const { return impl_->port(); }
void HislipServer::ForEachLink(const std::function<void(const std::shared_ptr<Link>&)>& work) { impl_->ForEach(work); }
void HislipServer::StatusChanged() { impl_->StatusChanged(); }
void HislipServer::LocksChanged() { impl_->LocksChanged(); }
void HislipServer::CloseClients() { impl_->CloseClients(); }
void HislipServer::StopListening() { impl_->StopListening(); }

}  // namespace siggen::link
