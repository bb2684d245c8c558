#include "link/vxi11_server.h"

#include <algorithm>
#include <set>

#include "link/acceptor.h"
#include "link/rpc_channel.h"
#include "link/vxi11_session.h"

namespace siggen::link {

using asio::ip::tcp;
using namespace vxi11;

namespace {

constexpr std::size_t kMostSessions = 32;
constexpr std::size_t kMostAborters = 32;
constexpr std::size_t kMostLinks = 64;
constexpr std::size_t kLongestAbort = 1024;

}  // namespace

class Vxi11Server::Impl : public Hall {
 public:
  Impl(Services& services, const std::string& address, std::uint16_t port)
      : services_(services),
        core_(services.io(), address, port, [this](tcp::socket socket) { TakeSession(std::move(socket)); }),
        abort_(services.io(), address, 0, [this](tcp::socket socket) { TakeAborter(std::move(socket)); }) {
    core_.Start();
    abort_.Start();
  }

  Services& services() override { return services_; }
  std::uint16_t abort_port() const override { return abort_.port(); }
  void Leave(Session& session) override { sessions_.erase(session.shared_from_this()); }

  std::optional<int> NewLinkId() override {
    const auto taken = [this](int id) {
      return std::any_of(sessions_.begin(), sessions_.end(),
                         [id](const auto& session) { return session->links().contains(id); });
    };
    std::size_t count = 0;
    for (const auto& session : sessions_) count += session->links().size();
    if (count >= kMostLinks) return {};
    do {
      last_id_ = (last_id_ + 1) & 0x7FFFFFFF;
    } while (taken(last_id_));
    return last_id_;
  }

  std::uint16_t port() const { return core_.port(); }
  template <class Work>
  void ForEach(Work work) {
    for (const auto& session : std::set(sessions_)) work(*session);
  }
  void ForEachLink(const std::function<void(const std::shared_ptr<Link>&)>& work) {
    ForEach([&work](const Session& session) {
      for (const auto& [id, link] : std::map(session.links())) work(link);
    });
  }
  void CloseClients() {
    ForEach([](Session& session) { session.Close(); });
    for (const auto& aborter : std::set(aborters_)) aborter->Close();
  }
  void StopListening() {
    core_.Close();
    abort_.Close();
  }

 private:
  // A connection to the abort channel, which any client may use for any link.
  class Aborter : public rpc::Receiver, public std::enable_shared_from_this<Aborter> {
   public:
    Aborter(Impl& server, std::shared_ptr<rpc::Channel> channel) : server_(server), channel_(std::move(channel)) {}

    void Start() {
      channel_->SetReceiver(shared_from_this());
      channel_->Resume();
    }
    void Close() {
      const auto self = shared_from_this();
      server_.aborters_.erase(self);
      channel_->Close();
    }

    bool Ready() override { return true; }
    void Received(rpc::Channel&, std::string_view record) override {
      const auto call = rpc::ParseCall(record);
      if (!call) return Close();
      auto answer = rpc::AnswerInGeneral(*call, DEVICE_ASYNC, DEVICE_ASYNC_VERSION);
      channel_->Send(answer ? std::move(*answer) : Answer(*call));
    }
    void Lost(rpc::Channel&) override { Close(); }

   private:
    std::string Answer(const rpc::Call& call) {
      if (call.procedure != device_abort) return rpc::ProcedureUnavailable(call);
      const rpc::Arguments<Device_Link> link(call, xdr_Device_Link);
      if (!link.good()) return rpc::GarbageArguments(call);
      const Error error = server_.Abort(*link) ? Error::kNone : Error::kInvalidLink;
      return rpc::Reply(call.xid, xdr_Device_Error, Device_Error{static_cast<int>(error)});
    }

    Impl& server_;
    std::shared_ptr<rpc::Channel> channel_;
  };

  void TakeSession(tcp::socket socket) {
    if (sessions_.size() >= kMostSessions) return;
    const auto session =
        std::make_shared<Session>(*this, std::make_shared<rpc::Channel>(std::move(socket), kLongestRecord));
    sessions_.insert(session);
    session->Start();
  }

  void TakeAborter(tcp::socket socket) {
    if (aborters_.size() >= kMostAborters) return;
    const auto aborter =
        std::make_shared<Aborter>(*this, std::make_shared<rpc::Channel>(std::move(socket), kLongestAbort));
    aborters_.insert(aborter);
    aborter->Start();
  }

  bool Abort(int link) {
    const std::set sessions(sessions_);
    return std::any_of(sessions.begin(), sessions.end(), [link](const auto& session) { return session->Abort(link); });
  }

  Services& services_;
  std::set<std::shared_ptr<Session>> sessions_;
  std::set<std::shared_ptr<Aborter>> aborters_;
  int last_id_ = 0;
  Acceptor core_;
  Acceptor abort_;
};

Vxi11Server::Vxi11Server(Services& services, const std::string& address, std::uint16_t port)
    : impl_(std::make_unique<Impl>(services, address, port)) {}
Vxi11Server::~Vxi11Server() = default;

std::uint16_t Vxi11Server::port() const { return impl_->port(); }
Mapping Vxi11Server::mapping() const { return {DEVICE_CORE, DEVICE_CORE_VERSION, port()}; }
void Vxi11Server::ForEachLink(const std::function<void(const std::shared_ptr<Link>&)>& work) {
  impl_->ForEachLink(work);
}
void Vxi11Server::StatusChanged() {
  impl_->ForEach([](Session& session) { session.StatusChanged(); });
}
void Vxi11Server::LocksChanged() {
  impl_->ForEach([](Session& session) { session.LocksChanged(); });
}
void Vxi11Server::CloseClients() { impl_->CloseClients(); }
void Vxi11Server::StopListening() { impl_->StopListening(); }

}  // namespace siggen::link
