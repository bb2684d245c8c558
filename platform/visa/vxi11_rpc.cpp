#include "vxi11_rpc.h"

#include <cstring>

namespace tvr::visa::vxi11 {
namespace {

// The peer may send any number for it, and to read an enumeration that holds none of its values is undefined.
int AcceptStatusOf(const rpc_msg& reply) {
  int status = 0;
  static_assert(sizeof status == sizeof reply.acpted_rply.ar_stat);
  std::memcpy(&status, &reply.acpted_rply.ar_stat, sizeof status);
  return status;
}

}  // namespace

bool RpcCaller::BeginCall(ViUInt32 number, ViUInt32 procedure, XDR& xdr) {
  rpc_msg call{};
  call.rm_xid = number;
  call.rm_direction = CALL;
  call.rm_call.cb_rpcvers = RPC_MSG_VERSION;
  call.rm_call.cb_prog = program_;
  call.rm_call.cb_vers = version_;
  call.rm_call.cb_proc = procedure;
  const std::span head = std::span(heads_).subspan(used_ + RecordStream::kMarkSize);
  xdrmem_create(&xdr, reinterpret_cast<char*>(head.data()), static_cast<u_int>(head.size()), XDR_ENCODE);
  return xdr_callmsg(&xdr, &call) != FALSE;
}

void RpcCaller::FinishCall(XDR& xdr, std::span<const iovec> data) {
  const std::size_t length = RecordStream::kMarkSize + XDR_GETPOS(&xdr);
  record_.Add(std::span(heads_).subspan(used_, length), data);
  used_ += length;
}

ViStatus RpcCaller::SendAdded(Deadline& deadline) {
  used_ = 0;
  return record_.Send(deadline);
}

ViStatus RpcCaller::AwaitReply(ViUInt32 call, Deadline& deadline) {
  for (;;) {
    if (const ViStatus status = record_.Next(deadline); status < 0) return status;
    std::array<char, MAX_AUTH_BYTES> verifier;
    rpc_msg reply{};
    reply.acpted_rply.ar_verf.oa_base = verifier.data();  // otherwise it would be allocated
    reply.acpted_rply.ar_results.proc = NoResults;
    if (const ViStatus status = record_.Decode(xdr_replymsg, reply, deadline); status < 0) return status;
    if (reply.rm_xid == call) {
      if (reply.rm_reply.rp_stat != MSG_ACCEPTED) return VI_ERROR_IO;
      const int status = AcceptStatusOf(reply);
      if (status == SUCCESS) return VI_SUCCESS;
      return status == PROC_UNAVAIL ? VI_ERROR_NSUP_OPER : VI_ERROR_IO;
    }
    if (deadline.Expired()) return VI_ERROR_TMO;
  }
}

ViStatus RpcCaller::ProbeForTwo(Deadline& deadline) {
  // Numbers that none of the calls to come has: what is answered too late is passed over like any reply.
  constexpr ViUInt32 kFirst = 0xFFFFFFFF;
  constexpr ViUInt32 kSecond = 0;
  for (const ViUInt32 number : {kFirst, kSecond}) {
    XDR xdr;
    BeginCall(number, NULLPROC, xdr);
    FinishCall(xdr, {});
  }
  if (const ViStatus status = SendAdded(deadline); status < 0) return status;
  for (const ViUInt32 number : {kFirst, kSecond}) {
    const ViStatus status = AwaitReply(number, deadline);
    // That there is no such procedure is an answer too.
    if (status < 0 && status != VI_ERROR_NSUP_OPER) return status;
  }
  return VI_SUCCESS;
}

}  // namespace tvr::visa::vxi11
