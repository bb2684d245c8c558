// What answers as fast as it can on one link, any number of clients at a time. It ends when the last has gone.

#ifndef KVTD_TESTS_PROOF_PEER_H
#define KVTD_TESTS_PROOF_PEER_H

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
  explicit Peer(LinkKind link, bench::Answers answers = bench::Answers()) {
    switch (link) {
      case LinkKind::Hislip:
        resource_ = ResourceOn(link, hislip_.emplace(std::move(answers)).port());
        break;
      case LinkKind::Vxi11:
        resource_ = ResourceOn(link, vxi11_.emplace(std::move(answers)).port());
        break;
      default:
        resource_ = ResourceOn(link, socket_.emplace(std::move(answers)).port());
    }
  }

  const std::string& ResourceName() const { return resource_; }

 private:
  std::optional<bench::Responder> socket_;
  std::optional<bench::HislipPeer> hislip_;
  std::optional<bench::Vxi11Peer> vxi11_;
  std::string resource_;
};

}  // namespace kvtd::test

#endif
