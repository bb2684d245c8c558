// Calls to one RPC program over one connection, one after the other.
#pragma once

#include <visa.h>

#include <array>
#include <span>
#include <string>

#include "vxi11_record.h"

namespace tvr::visa::vxi11 {

// A call takes the deadline of whoever makes it, can be interrupted, allocates nothing, and its reply may come too
// late: a reply bears the number of its call, and one to a call that was given up is passed over by the next.
class RpcCaller {
 public:
  RpcCaller(Interruption& interruption, ViUInt32 program, ViUInt32 version, std::size_t buffer_size)
      : record_(interruption, buffer_size), program_(program), version_(version) {}

  TcpStream& stream() { return record_.stream(); }
  const TcpStream& stream() const { return record_.stream(); }
  bool SentInPart() const { return record_.SentInPart(); }

  // The arguments in XDR, and behind them `data`, of which they tell the length.
  template <class Arguments>
  ViStatus Send(ViUInt32 procedure, bool_t (*encode)(XDR*, Arguments*), Arguments& arguments, Deadline& deadline,
                std::span<const iovec> data = {}) {
    XDR xdr;
    if (!BeginCall(procedure, xdr) || encode(&xdr, &arguments) == FALSE) return VI_ERROR_INV_PARAMETER;
    return FinishCall(xdr, data, deadline);
  }
  // The reply to the last call that was sent.
  template <class Results>
  ViStatus Receive(bool_t (*decode)(XDR*, Results*), Results& results, Deadline& deadline) {
    const ViStatus status = AwaitReply(deadline);
    return status < 0 ? status : record_.Decode(decode, results, deadline);
  }
  // What follows the results in the same reply.
  ViStatus ReadData(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received) {
    return record_.Read(into, count, deadline, received);
  }

 private:
  bool BeginCall(ViUInt32 procedure, XDR& xdr);
  ViStatus FinishCall(XDR& xdr, std::span<const iovec> data, Deadline& deadline);
  ViStatus AwaitReply(Deadline& deadline);

  RecordStream record_;
  const ViUInt32 program_;
  const ViUInt32 version_;
  ViUInt32 call_number_ = 0;
  // The longest call is the one that names a device.
  std::array<ViByte, 512> head_{};
};

}  // namespace tvr::visa::vxi11
