#include "vxi11_rpc.h"

namespace tvr::visa::vxi11 {
namespace {

// Results are decoded by who knows their type.
bool_t NoResults(XDR*, ...) { return TRUE; }

}  // namespace

bool RpcCaller::BeginCall(ViUInt32 procedure, XDR& xdr) {
  rpc_msg call{};
  call.rm_xid = ++call_number_;
  call.rm_direction = CALL;
  call.rm_call.cb_rpcvers = RPC_MSG_VERSION;
  call.rm_call.cb_prog = program_;
  call.rm_call.cb_vers = version_;
  call.rm_call.cb_proc = procedure;
  xdrmem_create(&xdr, reinterpret_cast<char*>(head_.data() + RecordStream::kMarkSize),
                static_cast<u_int>(head_.size() - RecordStream::kMarkSize), XDR_ENCODE);
  return xdr_callmsg(&xdr, &call) != FALSE;
}

ViStatus RpcCaller::FinishCall(XDR& xdr, std::span<const iovec> data, Deadline& deadline) {
  return record_.Send(std::span(head_).first(RecordStream::kMarkSize + XDR_GETPOS(&xdr)), data, deadline);
}

ViStatus RpcCaller::AwaitReply(Deadline& deadline) {
  for (;;) {
    if (const ViStatus status = record_.Next(deadline); status < 0) return status;
    std::array<char, MAX_AUTH_BYTES> verifier;
    rpc_msg reply{};
    reply.acpted_rply.ar_verf.oa_base = verifier.data();  // otherwise it would be allocated
    reply.acpted_rply.ar_results.proc = NoResults;
    if (const ViStatus status = record_.Decode(xdr_replymsg, reply, deadline); status < 0) return status;
    if (reply.rm_xid == call_number_) {
      if (reply.rm_reply.rp_stat != MSG_ACCEPTED) return VI_ERROR_IO;
      if (reply.acpted_rply.ar_stat == SUCCESS) return VI_SUCCESS;
      return reply.acpted_rply.ar_stat == PROC_UNAVAIL ? VI_ERROR_NSUP_OPER : VI_ERROR_IO;
    }
    if (deadline.Expired()) return VI_ERROR_TMO;
  }
}

}  // namespace tvr::visa::vxi11
