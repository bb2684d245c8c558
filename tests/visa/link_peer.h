// What the tests of HiSLIP and of VXI-11 have in common: the other end of a link, and a transport that is linked to it.
//
// What the peer will answer may lie in the socket before the client asks: so one thread plays both sides.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "Sockets.h"
#include "Stopwatch.h"
#include "transport.h"

namespace tvr::visa {

class LinkPeer {
 public:
  // A protocol's name for one of its connections.
  using Number = std::size_t;

  void Says(Number side, std::string_view bytes);
  // False when the client has gone.
  bool Offers(Number side, std::string_view bytes) { return kvtd::test::SendAll(sockets_.at(side), bytes); }
  // Exactly as many bytes as there are expected.
  void Hears(Number side, std::string_view bytes);
  // The next bytes, whatever they are.
  std::string Next(Number side, std::size_t count) { return kvtd::test::ReceiveExactly(sockets_.at(side), count); }
  void HearsNothingMore(Number side);
  void HearsTheEnd(Number side);
  void Closes(Number side) { sockets_.at(side).Close(); }
  void StopsSending(Number side) { kvtd::test::HalfClose(sockets_.at(side)); }

 protected:
  // The next connection to the listener, as this side of the link.
  void Accept(Number side, kvtd::test::Listener& listener);

  std::array<kvtd::test::Descriptor, 3> sockets_;
};

class LinkTest : public ::testing::Test {
 protected:
  using Opener = ViStatus (*)(const ResourceName&, Interruption&, Deadline&, std::unique_ptr<Transport>&);
  // Opens while the peer plays `script`.
  ViStatus OpenWith(Opener open, const std::string& name, const std::function<void()>& script, ViUInt32 timeout);

  ViStatus Write(std::string_view text, ViUInt32 timeout = 2000, bool end = true);
  std::size_t sent_ = 0;
  // The bytes that one read handed over; `status_` is what it answered. It may return with `at_least` of them, or else
  // with all that there is room for.
  std::string Read(ViUInt32 timeout = 2000, std::size_t room = 4096, std::optional<ViByte> termchar = {},
                   std::size_t at_least = 0);
  ViUInt16 StatusByte(ViUInt32 timeout = 2000);

  Interruption interruption_;
  std::unique_ptr<Transport> link_;
  ViStatus status_ = VI_SUCCESS;
};

using kvtd::test::Stopwatch;

}  // namespace tvr::visa
