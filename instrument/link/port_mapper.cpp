#include "link/port_mapper.h"

#include <netinet/in.h>
#include <rpc/pmap_prot.h>

#include <asio/buffer.hpp>

namespace siggen::link {

using asio::ip::tcp;
using asio::ip::udp;

namespace {

constexpr std::size_t kMostClients = 32;
constexpr std::size_t kLongestCall = 1024;
constexpr std::size_t kRoomForList = 128;

pmap Entry(std::uint32_t program, std::uint32_t version, int protocol, std::uint16_t port) {
  return {program, version, static_cast<unsigned long>(protocol), port};
}

}  // namespace

class PortMapper::Client : public rpc::Receiver, public std::enable_shared_from_this<Client> {
 public:
  Client(PortMapper& mapper, std::shared_ptr<rpc::Channel> channel) : mapper_(mapper), channel_(std::move(channel)) {}

  void Start() {
    channel_->SetReceiver(shared_from_this());
    channel_->Resume();
  }
  void Close() {
    const auto self = shared_from_this();
    mapper_.clients_.erase(self);
    channel_->Close();
  }

  bool Ready() override { return true; }
  void Received(rpc::Channel&, std::string_view record) override {
    auto answer = mapper_.Answer(record);
    if (!answer) return Close();
    channel_->Send(std::move(*answer));
  }
  void Lost(rpc::Channel&) override { Close(); }

 private:
  PortMapper& mapper_;
  std::shared_ptr<rpc::Channel> channel_;
};

PortMapper::PortMapper(asio::io_context& io, const std::string& address, std::uint16_t port, const Mapping& mapping)
    : mapping_(mapping),
      acceptor_(io, address, port, [this](tcp::socket socket) { Take(std::move(socket)); }),
      datagrams_(io, udp::endpoint(asio::ip::make_address(address), acceptor_.port())) {
  ReceiveDatagram();
  acceptor_.Start();
}

void PortMapper::Close() {
  asio::error_code ignored;
  acceptor_.Close();
  datagrams_.close(ignored);
  for (const auto& client : std::set(clients_)) client->Close();
}

void PortMapper::Take(tcp::socket socket) {
  if (clients_.size() >= kMostClients) return;
  const auto client = std::make_shared<Client>(*this, std::make_shared<rpc::Channel>(std::move(socket), kLongestCall));
  clients_.insert(client);
  client->Start();
}

void PortMapper::ReceiveDatagram() {
  datagrams_.async_receive_from(asio::buffer(datagram_), sender_,
                                [this](const asio::error_code& problem, std::size_t count) {
                                  if (!datagrams_.is_open()) return;
                                  // A sender that has gone is reported here as well, and is no reason to stop.
                                  const auto answer = problem ? std::nullopt : Answer({datagram_.data(), count});
                                  asio::error_code ignored;
                                  if (answer) datagrams_.send_to(asio::buffer(*answer), sender_, 0, ignored);
                                  ReceiveDatagram();
                                });
}

std::optional<std::string> PortMapper::Answer(std::string_view message) const {
  const auto call = rpc::ParseCall(message);
  if (!call) return {};
  if (auto answer = rpc::AnswerInGeneral(*call, PMAPPROG, PMAPVERS)) return answer;
  switch (call->procedure) {
    case PMAPPROC_GETPORT: {
      const rpc::Arguments<pmap> wanted(*call, xdr_pmap);
      if (!wanted.good()) return rpc::GarbageArguments(*call);
      return rpc::Reply(call->xid, xdr_u_int, u_int{PortOf(*wanted)});
    }
    case PMAPPROC_DUMP:
      return Ports(*call);
    default:
      return rpc::ProcedureUnavailable(*call);
  }
}

// 0 for what is not known. Clients look for the port mapper itself as well.
std::uint16_t PortMapper::PortOf(const pmap& wanted) const {
  const bool tcp = wanted.pm_prot == IPPROTO_TCP;
  if (wanted.pm_prog == mapping_.program && wanted.pm_vers == mapping_.version && tcp) return mapping_.port;
  const bool own = wanted.pm_prog == PMAPPROG && wanted.pm_vers == PMAPVERS;
  return own && (tcp || wanted.pm_prot == IPPROTO_UDP) ? port() : std::uint16_t{0};
}

std::string PortMapper::Ports(const rpc::Call& call) const {
  pmaplist core{Entry(mapping_.program, mapping_.version, IPPROTO_TCP, mapping_.port), nullptr};
  pmaplist own_udp{Entry(PMAPPROG, PMAPVERS, IPPROTO_UDP, port()), &core};
  pmaplist own_tcp{Entry(PMAPPROG, PMAPVERS, IPPROTO_TCP, port()), &own_udp};
  return rpc::Reply(call.xid, xdr_pmaplist, &own_tcp, kRoomForList);
}

}  // namespace siggen::link
