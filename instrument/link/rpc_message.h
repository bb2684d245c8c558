// Messages of ONC RPC version 2 in XDR, without the marks that records have on a stream.
#pragma once

#include <rpc/rpc.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace siggen::link::rpc {

// The routine that rpcgen prints for a type.
template <class T>
using Coder = bool_t (*)(XDR*, T*);

struct Call {
  std::uint32_t xid = 0;
  std::uint32_t rpc_version = 0;  // what follows is known for version 2 only
  std::uint32_t program = 0;
  std::uint32_t version = 0;
  std::uint32_t procedure = 0;
  std::string_view arguments;
};

// Nothing when that is no call.
std::optional<Call> ParseCall(std::string_view message);

// What a program answers whatever it is about: that it is another one, and the null procedure. Nothing when the call
// is for one of its own procedures.
std::optional<std::string> AnswerInGeneral(const Call& call, std::uint32_t program, std::uint32_t version);
std::string ProcedureUnavailable(const Call& call);
std::string GarbageArguments(const Call& call);

// The arguments of a call, with what they allocated.
template <class T>
class Arguments {
 public:
  Arguments(const Call& call, Coder<T> coder) : coder_(coder) {
    XDR xdr;
    xdrmem_create(&xdr, const_cast<char*>(call.arguments.data()), static_cast<u_int>(call.arguments.size()),
                  XDR_DECODE);
    good_ = coder_(&xdr, &value_) != 0;
  }
  ~Arguments() {
    XDR xdr{};
    xdr.x_op = XDR_FREE;
    coder_(&xdr, &value_);
  }
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;

  bool good() const { return good_; }
  const T& operator*() const { return value_; }
  const T* operator->() const { return &value_; }

 private:
  Coder<T> coder_;
  T value_{};
  bool good_;
};

// Room for the head of a message and for a few numbers behind it.
inline constexpr std::size_t kOrdinaryRoom = 96;

// What `put` writes; empty when that is more than the room.
template <class Put>
std::string Encode(std::size_t room, Put put) {
  std::string message(room, '\0');
  XDR xdr;
  xdrmem_create(&xdr, message.data(), static_cast<u_int>(message.size()), XDR_ENCODE);
  message.resize(put(xdr) ? xdr_getpos(&xdr) : 0);
  return message;
}

bool PutSuccessHead(XDR& xdr, std::uint32_t xid);
bool PutCallHead(XDR& xdr, const Call& call);  // without credentials

// A successful reply. `more` is what the result needs beyond the ordinary room.
template <class T>
std::string Reply(std::uint32_t xid, Coder<T> coder, T result, std::size_t more = 0) {
  return Encode(kOrdinaryRoom + more, [&](XDR& xdr) { return PutSuccessHead(xdr, xid) && coder(&xdr, &result) != 0; });
}

template <class T>
std::string Request(const Call& call, Coder<T> coder, T arguments, std::size_t more = 0) {
  return Encode(kOrdinaryRoom + more, [&](XDR& xdr) { return PutCallHead(xdr, call) && coder(&xdr, &arguments) != 0; });
}

}  // namespace siggen::link::rpc
