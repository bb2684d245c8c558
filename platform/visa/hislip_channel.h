// One of the two connections of a HiSLIP link: messages in, messages out. What it makes of them is its owner's matter.
#pragma once

#include <sys/uio.h>
#include <visa.h>

#include <cstddef>
#include <span>
#include <vector>

#include "deadline.h"
#include "hislip_message.h"
#include "interruption.h"
#include "tcp_stream.h"

namespace tvr::visa::hislip {

// Receiving can be given up at any byte, by a deadline or an interruption, and goes on from there with the next call:
// the channel never loses its place between two headers. Only a send that stops half-way leaves a debt.
class Channel {
 public:
  Channel(Interruption& interruption, std::size_t buffer_size) : stream_(interruption), buffer_(buffer_size) {}

  TcpStream& stream() { return stream_; }
  const TcpStream& stream() const { return stream_; }

  // Header and payload in one system call; the length is filled in here. `sent` counts bytes of the payload.
  ViStatus Send(Header header, std::span<const iovec> payload, Deadline& deadline, std::size_t& sent);
  ViStatus Send(const Header& header, Deadline& deadline);
  // Bytes that the peer still expects of a message that was given up half-way.
  ViUInt64 Debt() const { return debt_; }
  // Pays with zeros, as far as the deadline allows.
  ViStatus PayDebt(Deadline& deadline);

  // Drops what is left of the message under way, then waits for the next header. kMalformed: that was none.
  ViStatus Next(Deadline& deadline, Header& header);
  ViUInt64 PayloadLeft() const { return payload_left_; }
  // Exactly `count` bytes, not more than PayloadLeft(). On failure `received` counts what did come.
  ViStatus ReadPayload(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received);
  // At least one byte of the payload, where it lies; PayloadLeft() is not 0. TakePayload says how many were used.
  ViStatus PeekPayload(Deadline& deadline, std::span<const ViByte>& ahead);
  void TakePayload(std::size_t count);

  // Tells the peer that a message of that type means nothing here. The message itself goes with the next Next().
  ViStatus Refuse(const Header& header, Deadline& deadline);

 private:
  std::size_t Buffered() const { return end_ - begin_; }
  ViStatus Fill(std::size_t at_least, Deadline& deadline);

  TcpStream stream_;
  std::vector<iovec> gather_;
  ViUInt64 debt_ = 0;

  std::vector<ViByte> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  ViUInt64 payload_left_ = 0;
};

}  // namespace tvr::visa::hislip
