// Every call that the public header offers: each of its functions, the generic accessors once for each attribute.

#ifndef KVTD_TESTS_PROOF_CALLS_H
#define KVTD_TESTS_PROOF_CALLS_H

#include <span>
#include <string>
#include <string_view>

#include "Arguments.h"

namespace kvtd::test {

// What a call gives out beside its status.
enum class Output { kNothing, kReal, kInteger, kBoolean, kText, kSeveral };

struct Call {
  // Without the prefix KVTD481X2C_.
  std::string_view function;
  // Of a generic accessor, without the prefix KVTD481X2C_ATTR_; else empty.
  std::string_view attribute;
  ViAttr id;
  // How many of its parameters are pointers, and which of these the call only reads, a bit for each.
  std::size_t pointers;
  unsigned inputs;
  Output output;
  // Its first parameter is a session.
  bool has_session;
  ViStatus (*make)(Arguments& arguments);

  std::string name() const;
  bool is_generic() const { return !attribute.empty(); }
  bool is(std::string_view name) const { return function == name; }
  bool reads(std::size_t pointer) const { return (inputs >> pointer & 1) != 0; }

  // Arguments that it takes.
  Arguments Plausible(ViSession vi) const;
  // Leaves the session's lock as it was. Should the process end within the call, its name is said first.
  ViStatus operator()(Arguments& arguments) const;
};

std::span<const Call> Calls();

}  // namespace kvtd::test

#endif
