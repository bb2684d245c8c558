// The other end of a HiSLIP link, played by the test: it says and expects literal frames.
//
//   peer.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000004", "1.5\n"));
//
// What the peer will answer may lie in the socket before the client asks: so one thread plays both sides.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "Sockets.h"
#include "transport.h"

namespace tvr::visa::hislip {

// "HS" stands for itself, what follows are hexadecimal digits; blanks separate. The payload comes behind.
std::string Frame(std::string_view header, std::string_view payload = {});

enum Side { kSync, kAsync };

class HislipPeer {
 public:
  std::uint16_t port() const { return listener_.port(); }
  // Both connections of a link, from the first message to the agreement on sizes. `preferred` is the control code of
  // InitializeResponse, `largest` the payload of the size the peer accepts.
  void Welcome(std::string_view preferred = "00", std::string_view largest = "0000000000100000");
  // So that the next link may come to the same port.
  void MoveLinkTo(HislipPeer& other);
  // The next connection, as this side of the link.
  void Accept(Side side);

  void Says(Side side, std::string_view bytes);
  // False when the client has gone.
  bool Offers(Side side, std::string_view bytes) { return kvtd::test::SendAll(sockets_[side], bytes); }
  // Exactly as many bytes as there are expected.
  void Hears(Side side, std::string_view bytes);
  // The next bytes, whatever they are.
  std::string Next(Side side, std::size_t count);
  void HearsNothingMore(Side side);
  void HearsTheEnd(Side side);
  void Closes(Side side) { sockets_[side].Close(); }
  void StopsSending(Side side) { kvtd::test::HalfClose(sockets_[side]); }

 private:
  kvtd::test::Listener listener_;
  kvtd::test::Descriptor sockets_[2];
};

// A transport that is linked to the peer.
class HislipLink : public ::testing::Test {
 protected:
  void SetUp() override { Open(); }
  void Open(std::string_view preferred = "00", std::string_view largest = "0000000000100000");
  // Opens while the peer plays `script`.
  ViStatus OpenWith(const std::function<void()>& script, ViUInt32 timeout = 2000);

  ViStatus Write(std::string_view text, ViUInt32 timeout = 2000, bool end = true);
  // The bytes that one read handed over; `status_` is what it answered.
  std::string Read(ViUInt32 timeout = 2000, std::size_t room = 4096, std::optional<ViByte> termchar = {});
  ViUInt16 StatusByte();

  Interruption interruption_;
  HislipPeer peer_;
  std::unique_ptr<Transport> link_;
  ViStatus status_ = VI_SUCCESS;
};

class Stopwatch {
 public:
  long Milliseconds() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin_).count();
  }

 private:
  std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

}  // namespace tvr::visa::hislip
