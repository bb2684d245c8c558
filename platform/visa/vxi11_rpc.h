// Calls to one RPC program over one connection.
#pragma once

#include <visa.h>

#include <array>
#include <span>
#include <string>

#include "vxi11_record.h"

namespace tvr::visa::vxi11 {

// For a reply without results, or whose results are decoded by who knows their type.
inline bool_t NoResults(XDR*, ...) { return TRUE; }

// A call takes the deadline of whoever makes it, can be interrupted, allocates nothing, and its reply may come too
// late: a reply bears the number of its call, and one to a call that was given up is passed over by the next.
class RpcCaller {
 public:
  RpcCaller(Interruption& interruption, ViUInt32 program, ViUInt32 version, std::size_t buffer_size)
      : record_(interruption, buffer_size), program_(program), version_(version) {}

  TcpStream& stream() { return record_.stream(); }
  const TcpStream& stream() const { return record_.stream(); }
  bool SentInPart() const { return record_.SentInPart(); }
  ViStatus Reconnect(const std::string& host, ViUInt16 port, Deadline& deadline) {
    return record_.Reconnect(host, port, deadline);
  }

  // The arguments in XDR, and behind them `data`, of which they tell the length.
  template <class Arguments>
  ViStatus Send(ViUInt32 procedure, bool_t (*encode)(XDR*, Arguments*), Arguments& arguments, Deadline& deadline,
                std::span<const iovec> data = {}) {
    const ViStatus status = Add(procedure, encode, arguments, data);
    return status < 0 ? status : SendAdded(deadline);
  }
  // Several calls in one send, for a peer that takes one while it answers another. The data must stay until then.
  template <class Arguments>
  ViStatus Add(ViUInt32 procedure, bool_t (*encode)(XDR*, Arguments*), Arguments& arguments,
               std::span<const iovec> data = {}) {
    XDR xdr;
    if (!BeginCall(++last_call_, procedure, xdr) || encode(&xdr, &arguments) == FALSE) return VI_ERROR_INV_PARAMETER;
    FinishCall(xdr, data);
    return VI_SUCCESS;
  }
  ViStatus SendAdded(Deadline& deadline);
  ViUInt32 last_call() const { return last_call_; }

  // The reply to the last call, or to one before that was sent with it.
  template <class Results>
  ViStatus Receive(bool_t (*decode)(XDR*, Results*), Results& results, Deadline& deadline) {
    return Receive(last_call_, decode, results, deadline);
  }
  template <class Results>
  ViStatus Receive(ViUInt32 call, bool_t (*decode)(XDR*, Results*), Results& results, Deadline& deadline) {
    const ViStatus status = AwaitReply(call, deadline);
    return status < 0 ? status : record_.Decode(decode, results, deadline);
  }
  // What follows the results in the same reply.
  ViStatus ReadData(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received) {
    return record_.Read(into, count, deadline, received);
  }

  // Does the peer take a call while another waits for its answer? Two that do nothing go in one send. VI_SUCCESS when
  // both were answered, in their order and by the deadline.
  ViStatus ProbeForTwo(Deadline& deadline);
  // Waits for the reply, and leaves its results unread.
  ViStatus AwaitReply(ViUInt32 call, Deadline& deadline);

 private:
  bool BeginCall(ViUInt32 number, ViUInt32 procedure, XDR& xdr);
  void FinishCall(XDR& xdr, std::span<const iovec> data);

  RecordStream record_;
  const ViUInt32 program_;
  const ViUInt32 version_;
  ViUInt32 last_call_ = 0;
  // The heads of what the next send takes. The longest call is the one that names a device.
  std::array<ViByte, 512> heads_{};
  std::size_t used_ = 0;
};

}  // namespace tvr::visa::vxi11
