// One connection of ONC RPC: messages as records of fragments, and what they hold in XDR (RFC 5531, RFC 4506).
#pragma once

#include <rpc/rpc.h>
#include <sys/uio.h>
#include <visa.h>

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "deadline.h"
#include "interruption.h"
#include "tcp_stream.h"

namespace tvr::visa::vxi11 {

// Never leaves this component: the peer does not keep to the protocol, and the connection cannot be used any more.
constexpr ViStatus kMalformed = VI_ERROR_INV_PROT;

// Nothing is kept of a record but what lies in the buffer, so no length that the peer names costs memory. Receiving can
// be given up at any byte and goes on from there: what is left of a record goes when the next one is asked for.
class RecordStream {
 public:
  RecordStream(Interruption& interruption, std::size_t buffer_size) : stream_(interruption), buffer_(buffer_size) {
    gather_.reserve(kFewPieces);
  }

  TcpStream& stream() { return stream_; }
  const TcpStream& stream() const { return stream_; }

  // `head` begins with kMarkSize bytes for the record's mark, which is filled in here; `data` follow, and what XDR
  // wants behind them. Both stay where they are until the next Send, which takes along all that was added. Where there
  // is no memory for many pieces of data, nothing was added; up to two records without data, or one behind one with
  // data, always find room.
  static constexpr std::size_t kMarkSize = 4;
  void Add(std::span<ViByte> head, std::span<const iovec> data = {});
  // One system call when the kernel takes them.
  ViStatus Send(Deadline& deadline);
  // A record was given up half-way: nothing that follows could be told from it.
  bool SentInPart() const { return sent_in_part_; }

  // Another connection to the same peer in place of this one.
  ViStatus Reconnect(const std::string& host, ViUInt16 port, Deadline& deadline);

  // Waits for the first byte of a record.
  ViStatus Next(Deadline& deadline);
  // Has anything been received beyond what was read?
  bool HasMore() const { return fragment_left_ > 0 || begin_ != end_; }
  // Exactly `count` bytes of the record; kMalformed when it has not so many. On failure `received` counts what did
  // come.
  ViStatus Read(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received);

  // Decodes from the record with one of the routines that libtirpc and rpcgen provide.
  template <class Value>
  ViStatus Decode(bool_t (*routine)(XDR*, Value*), Value& value, Deadline& deadline) {
    Decoding decoding{this, &deadline, VI_SUCCESS};
    XDR xdr = Source(decoding);
    if (routine(&xdr, &value) != FALSE) return VI_SUCCESS;
    return decoding.status < 0 ? decoding.status : kMalformed;
  }

 private:
  struct Decoding {
    RecordStream* record;
    Deadline* deadline;
    ViStatus status;
  };
  static XDR Source(Decoding& decoding);
  static bool_t GetLong(XDR* xdr, long* value);
  static bool_t GetBytes(XDR* xdr, char* into, u_int count);

  static constexpr std::size_t kFewPieces = 4;

  std::size_t Buffered() const { return end_ - begin_; }
  ViStatus Fill(std::size_t at_least, Deadline& deadline);
  ViStatus NextFragment(Deadline& deadline);

  TcpStream stream_;
  std::vector<iovec> gather_;
  bool sent_in_part_ = false;

  std::vector<ViByte> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::size_t fragment_left_ = 0;
  bool last_fragment_ = true;
};

}  // namespace tvr::visa::vxi11
