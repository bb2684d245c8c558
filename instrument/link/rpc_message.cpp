#include "link/rpc_message.h"

namespace siggen::link::rpc {
namespace {

bool_t NoResult(XDR*, ...) { return TRUE; }

rpc_msg Accepted(std::uint32_t xid, accept_stat status) {
  rpc_msg reply{};
  reply.rm_xid = xid;
  reply.rm_direction = REPLY;
  reply.rm_reply.rp_stat = MSG_ACCEPTED;
  reply.acpted_rply.ar_verf = _null_auth;
  reply.acpted_rply.ar_stat = status;
  if (status == SUCCESS) reply.acpted_rply.ar_results.proc = NoResult;
  return reply;
}

std::string Encoded(rpc_msg& reply) {
  return Encode(kOrdinaryRoom, [&](XDR& xdr) { return xdr_replymsg(&xdr, &reply) != 0; });
}

std::string Refusal(const Call& call, accept_stat status) {
  rpc_msg reply = Accepted(call.xid, status);
  return Encoded(reply);
}

std::string WrongRpcVersion(const Call& call) {
  rpc_msg reply{};
  reply.rm_xid = call.xid;
  reply.rm_direction = REPLY;
  reply.rm_reply.rp_stat = MSG_DENIED;
  reply.rjcted_rply.rj_stat = RPC_MISMATCH;
  reply.rjcted_rply.rj_vers.low = reply.rjcted_rply.rj_vers.high = RPC_MSG_VERSION;
  return Encoded(reply);
}

std::string WrongProgramVersion(const Call& call, std::uint32_t version) {
  rpc_msg reply = Accepted(call.xid, PROG_MISMATCH);
  reply.acpted_rply.ar_vers.low = reply.acpted_rply.ar_vers.high = version;
  return Encoded(reply);
}

}  // namespace

std::optional<Call> ParseCall(std::string_view message) {
  XDR xdr;
  xdrmem_create(&xdr, const_cast<char*>(message.data()), static_cast<u_int>(message.size()), XDR_DECODE);
  // A call of another RPC version is not decoded any further, and yet is to be answered.
  Call call;
  std::uint32_t direction = 0;
  if (!xdr_u_int(&xdr, &call.xid) || !xdr_u_int(&xdr, &direction) || !xdr_u_int(&xdr, &call.rpc_version)) return {};
  if (direction != CALL) return {};
  if (call.rpc_version != RPC_MSG_VERSION) return call;

  char credential[MAX_AUTH_BYTES];
  char verifier[MAX_AUTH_BYTES];
  rpc_msg whole{};
  whole.rm_call.cb_cred.oa_base = credential;
  whole.rm_call.cb_verf.oa_base = verifier;
  xdr_setpos(&xdr, 0);
  if (!xdr_callmsg(&xdr, &whole)) return {};
  call.program = static_cast<std::uint32_t>(whole.rm_call.cb_prog);
  call.version = static_cast<std::uint32_t>(whole.rm_call.cb_vers);
  call.procedure = static_cast<std::uint32_t>(whole.rm_call.cb_proc);
  call.arguments = message.substr(xdr_getpos(&xdr));
  return call;
}

std::optional<std::string> AnswerInGeneral(const Call& call, std::uint32_t program, std::uint32_t version) {
  if (call.rpc_version != RPC_MSG_VERSION) return WrongRpcVersion(call);
  if (call.program != program) return Refusal(call, PROG_UNAVAIL);
  if (call.version != version) return WrongProgramVersion(call, version);
  if (call.procedure == NULLPROC) return Refusal(call, SUCCESS);
  return {};
}

std::string ProcedureUnavailable(const Call& call) { return Refusal(call, PROC_UNAVAIL); }
std::string GarbageArguments(const Call& call) { return Refusal(call, GARBAGE_ARGS); }

bool PutSuccessHead(XDR& xdr, std::uint32_t xid) {
  rpc_msg reply = Accepted(xid, SUCCESS);
  return xdr_replymsg(&xdr, &reply) != 0;
}

bool PutCallHead(XDR& xdr, const Call& call) {
  rpc_msg whole{};
  whole.rm_xid = call.xid;
  whole.rm_direction = CALL;
  whole.rm_call.cb_rpcvers = RPC_MSG_VERSION;
  whole.rm_call.cb_prog = call.program;
  whole.rm_call.cb_vers = call.version;
  whole.rm_call.cb_proc = call.procedure;
  whole.rm_call.cb_cred = whole.rm_call.cb_verf = _null_auth;
  return xdr_callmsg(&xdr, &whole) != 0;
}

}  // namespace siggen::link::rpc
