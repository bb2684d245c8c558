#include "link/port_mapping.h"

#include <netinet/in.h>
#include <rpc/pmap_clnt.h>
#include <rpc/pmap_prot.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

namespace siggen::link {
namespace {

sockaddr_in SystemsPortMapper() {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(PMAPPORT);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

}  // namespace

// One datagram and a short wait: libtirpc would be patient for a minute with a port where nobody answers.
bool Registration::Possible() {
  const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (socket < 0) return false;
  const timeval patience{0, 500'000};
  const sockaddr_in address = SystemsPortMapper();
  rpc::Call null;
  null.program = PMAPPROG;
  null.version = PMAPVERS;
  const std::string call = rpc::Encode(rpc::kOrdinaryRoom, [&](XDR& xdr) { return rpc::PutCallHead(xdr, null); });
  std::array<char, 64> answer;
  const bool answered = ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience) == 0 &&
                        ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                        ::send(socket, call.data(), call.size(), 0) == static_cast<ssize_t>(call.size()) &&
                        ::recv(socket, answer.data(), answer.size(), 0) > 0;
  ::close(socket);
  return answered;
}

// What an instrument that ended badly left behind gives way.
Registration::Registration(const Mapping& mapping) : mapping_(mapping) {
  pmap_unset(mapping_.program, mapping_.version);
  if (!pmap_set(mapping_.program, mapping_.version, IPPROTO_TCP, mapping_.port)) {
    throw std::runtime_error("the system's port mapper refuses it");
  }
}

// An instrument that was started later may have taken the entry over.
Registration::~Registration() {
  sockaddr_in address = SystemsPortMapper();
  if (pmap_getport(&address, mapping_.program, mapping_.version, IPPROTO_TCP) == mapping_.port) {
    pmap_unset(mapping_.program, mapping_.version);
  }
}

MappedPort::MappedPort(asio::io_context& io, const std::string& address, std::optional<std::uint16_t> own_port,
                       const Mapping& mapping, std::ostream& complaints) {
  try {
    if (!own_port && Registration::Possible()) {
      registration_.emplace(mapping);
    } else {
      mapper_.emplace(io, address, own_port.value_or(PMAPPORT), mapping);
    }
  } catch (const std::exception& problem) {
    complaints << "no port mapper tells VXI-11 clients of port " << mapping.port << ": " << problem.what() << std::endl;
  }
}

std::optional<std::uint16_t> MappedPort::port() const {
  return mapper_ ? std::optional(mapper_->port()) : std::nullopt;
}

void MappedPort::Close() {
  if (mapper_) mapper_->Close();
}

}  // namespace siggen::link
