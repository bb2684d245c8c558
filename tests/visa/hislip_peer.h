// The other end of a HiSLIP link, played by the test: it says and expects literal frames.
//
//   peer.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000004", "1.5\n"));
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "link_peer.h"

namespace tvr::visa::hislip {

// "HS" stands for itself, what follows are hexadecimal digits; blanks separate. The payload comes behind.
std::string Frame(std::string_view header, std::string_view payload = {});

enum Side { kSync, kAsync };

class HislipPeer : public LinkPeer {
 public:
  std::uint16_t port() const { return listener_.port(); }
  // Both connections of a link, from the first message to the agreement on sizes. `preferred` is the control code of
  // InitializeResponse, `largest` the payload of the size the peer accepts.
  void Welcome(std::string_view preferred = "00", std::string_view largest = "0000000000100000");
  // So that the next link may come to the same port.
  void MoveLinkTo(HislipPeer& other);
  // The next connection, as this side of the link.
  void Accept(Side side) { LinkPeer::Accept(side, listener_); }

 private:
  kvtd::test::Listener listener_;
};

// A transport that is linked to the peer.
class HislipLink : public LinkTest {
 protected:
  void SetUp() override { Open(); }
  void Open(std::string_view preferred = "00", std::string_view largest = "0000000000100000");
  // Opens while the peer plays `script`.
  ViStatus OpenWith(const std::function<void()>& script, ViUInt32 timeout = 2000);

  HislipPeer peer_;
};

}  // namespace tvr::visa::hislip
