// The other end of a VXI-11 link, played by the test: it says and expects literal bytes.
//
//   peer.Hears(kCore, Call(2, 12, "00000007 00001000 000007D0 00000000 00000000 00000000"));
//   peer.Says(kCore, Reply(2, "00000000 00000004 00000003 '1.5' 00"));
//
// Bytes are written as FromHex reads them.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "Bytes.h"
#include "link_peer.h"

namespace tvr::visa::vxi11 {

inline std::string Bytes(std::string_view literal) { return kvtd::test::FromHex(literal); }
// One record of one fragment.
std::string Record(std::string_view literal);
// A call to a program of version 1 without credentials, and the reply that it was accepted and done.
std::string Call(unsigned number, unsigned procedure, std::string_view arguments,
                 std::string_view program = "000607AF");
std::string Reply(unsigned number, std::string_view results);
std::string Word(unsigned long number);

// What a client sends behind the answer to create_link, and what a device answers that takes two calls at a time.
std::string Probe();
std::string ProbeReply();

enum Side { kCore, kAbort, kInterrupt };

class Vxi11Peer : public LinkPeer {
 public:
  std::uint16_t core_port() const { return core_.port(); }
  std::uint16_t abort_port() const { return abort_.port(); }

  void Accept(Side side) { LinkPeer::Accept(side, side == kCore ? core_ : abort_); }
  // The interrupt channel is made by the device.
  void ConnectTo(std::uint16_t port) { sockets_[kInterrupt] = kvtd::test::ConnectTo(port); }

 private:
  kvtd::test::Listener core_;
  kvtd::test::Listener abort_;
};

// A transport that is linked to the peer as link 7. The call that made the link was number 1.
class Vxi11Link : public LinkTest {
 protected:
  ~Vxi11Link() override;
  void SetUp() override { Open(); }
  void Open(std::string_view max_recv_size = "00001000", std::string_view probe_reply = ProbeReply());
  // Opens while the peer plays `script`.
  ViStatus OpenWith(const std::function<void()>& script, ViUInt32 timeout = 2000, std::string_view device = "inst0");

  // Ends the link with an answer to destroy_link, which is call `number`.
  void Close(unsigned number);

  Vxi11Peer peer_;
};

}  // namespace tvr::visa::vxi11
