// The other end of a VXI-11 link, played by the test: it says and expects literal bytes.
//
//   peer.Hears(kCore, Call(2, 12, "00000007 00001000 000007D0 00000000 00000000 00000000"));
//   peer.Says(kCore, Reply(2, "00000000 00000004 00000003 '1.5' 00"));
//
// Bytes are written as hexadecimal digits, text between apostrophes; blanks separate. What the peer will answer may lie
// in the socket before the client asks: so one thread plays both sides.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "Sockets.h"
#include "transport.h"

namespace tvr::visa::vxi11 {

std::string Bytes(std::string_view literal);
// One record of one fragment.
std::string Record(std::string_view literal);
// A call to a program of version 1 without credentials, and the reply that it was accepted and done.
std::string Call(unsigned number, unsigned procedure, std::string_view arguments,
                 std::string_view program = "000607AF");
std::string Reply(unsigned number, std::string_view results);
std::string Word(unsigned long number);

enum Side { kCore, kAbort, kInterrupt };

class Vxi11Peer {
 public:
  std::uint16_t core_port() const { return core_.port(); }
  std::uint16_t abort_port() const { return abort_.port(); }

  void Accept(Side side);
  // The interrupt channel is made by the device.
  void ConnectTo(std::uint16_t port) { sockets_[kInterrupt] = kvtd::test::ConnectTo(port); }

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
  kvtd::test::Listener core_;
  kvtd::test::Listener abort_;
  kvtd::test::Descriptor sockets_[3];
};

// A transport that is linked to the peer as link 7. The call that made the link was number 1.
class Vxi11Link : public ::testing::Test {
 protected:
  ~Vxi11Link() override;
  void SetUp() override { Open(); }
  void Open(std::string_view max_recv_size = "00001000");
  // Opens while the peer plays `script`.
  ViStatus OpenWith(const std::function<void()>& script, ViUInt32 timeout = 2000, std::string_view device = "inst0");

  ViStatus Write(std::string_view text, ViUInt32 timeout = 2000, bool end = true);
  std::size_t sent_ = 0;
  // The bytes that one read handed over; `status_` is what it answered.
  std::string Read(ViUInt32 timeout = 2000, std::size_t room = 4096, std::optional<ViByte> termchar = {},
                   std::size_t at_least = 0);
  ViUInt16 StatusByte(ViUInt32 timeout = 2000);
  // Ends the link with an answer to destroy_link, which is call `number`.
  void Close(unsigned number);

  Interruption interruption_;
  Vxi11Peer peer_;
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

}  // namespace tvr::visa::vxi11
