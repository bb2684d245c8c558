// What answers as fast as it can on one link, any number of clients at a time. It ends when the last has gone.

#ifndef KVTD_TESTS_PROOF_PEER_H
#define KVTD_TESTS_PROOF_PEER_H

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "HislipPeer.h"
#include "LinkNames.h"
#include "Responder.h"
#include "Vxi11Peer.h"

namespace kvtd::test {

class Peer {
 public:
  explicit Peer(LinkKind link, bench::Answers answers = bench::Answers())
      : port_(Listen(link, std::move(answers))), resource_(ResourceOn(link, port_)) {}

  std::uint16_t port() const { return port_; }
  const std::string& ResourceName() const { return resource_; }

 private:
  std::uint16_t Listen(LinkKind link, bench::Answers answers) {
    switch (link) {
      case LinkKind::Hislip:
        return hislip_.emplace(std::move(answers)).port();
      case LinkKind::Vxi11:
        return vxi11_.emplace(std::move(answers)).port();
      default:
        return socket_.emplace(std::move(answers)).port();
    }
  }

  std::optional<bench::Responder> socket_;
  std::optional<bench::HislipPeer> hislip_;
  std::optional<bench::Vxi11Peer> vxi11_;
  const std::uint16_t port_;
  const std::string resource_;
};

}  // namespace kvtd::test

#endif
