#include "Calls.h"

#include <KVTD481X2C.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <tuple>
#include <utility>
#include <vector>

namespace kvtd::test {
namespace {

template <class Parameter>
constexpr Output OutputOf() {
  if constexpr (std::is_same_v<Parameter, ViReal64*>) return Output::kReal;
  if constexpr (std::is_same_v<Parameter, ViInt32*>) return Output::kInteger;
  if constexpr (std::is_same_v<Parameter, ViBoolean*>) return Output::kBoolean;
  if constexpr (std::is_same_v<Parameter, ViChar*>) return Output::kText;
  const bool is_output = std::is_pointer_v<Parameter> && !std::is_const_v<std::remove_pointer_t<Parameter>>;
  return is_output ? Output::kSeveral : Output::kNothing;
}

template <class Function>
struct Shape;

template <class... Parameters>
struct Shape<ViStatus (*)(Parameters...)> {
  using Function = ViStatus (*)(Parameters...);
  using First = std::tuple_element_t<0, std::tuple<Parameters...>>;
  template <std::size_t index>
  using At = std::tuple_element_t<index, std::tuple<Parameters..., void*>>;
  static constexpr std::size_t kPointers = (static_cast<std::size_t>(std::is_pointer_v<Parameters>) + ...);
  static constexpr bool kHasSession = std::is_same_v<First, ViSession>;
  // A resource is only read, whatever its type says.
  static constexpr unsigned kInputs = [] {
    unsigned inputs = std::is_same_v<First, ViRsrc> ? 1 : 0;
    unsigned bit = 1;
    const auto add = [&](bool is_pointer, bool is_input) {
      if (is_input) inputs |= bit;
      if (is_pointer) bit <<= 1;
    };
    (add(std::is_pointer_v<Parameters>, std::is_const_v<std::remove_pointer_t<Parameters>>), ...);
    return inputs;
  }();

  static constexpr Output kOutput = [] {
    Output output = Output::kNothing;
    bool is_first = true;
    const auto add = [&](Output kind) {
      // The text that comes first in a call without a session is a resource.
      if (kind != Output::kNothing && !is_first) output = output == Output::kNothing ? kind : Output::kSeveral;
      is_first = false;
    };
    (add(OutputOf<Parameters>()), ...);
    return output;
  }();

  static ViStatus Make(Function function, Arguments& arguments) {
    return Make(function, arguments, std::index_sequence_for<Parameters...>());
  }
  template <std::size_t... indices>
  static ViStatus Make(Function function, Arguments& arguments, std::index_sequence<indices...>) {
    const std::tuple<Parameters...> all{arguments.Make<At<indices>, At<indices + 1>>()...};
    arguments.when_made();
    return std::apply(function, all);
  }
};

constexpr Call kFunctions[] = {
#define EXPORT(function)                                         \
  {std::string_view(#function).substr(sizeof "KVTD481X2C_" - 1), \
   {},                                                           \
   0,                                                            \
   Shape<decltype(&function)>::kPointers,                        \
   Shape<decltype(&function)>::kInputs,                          \
   Shape<decltype(&function)>::kOutput,                          \
   Shape<decltype(&function)>::kHasSession,                      \
   [](Arguments& arguments) { return Shape<decltype(&function)>::Make(function, arguments); }},
#include "exports.inc"
#undef EXPORT
};

constexpr std::pair<std::string_view, ViAttr> kAttributes[] = {
#define ATTRIBUTE(name) {std::string_view(#name).substr(sizeof "KVTD481X2C_ATTR_" - 1), name},
#include "attributes.inc"
#undef ATTRIBUTE
};

bool IsGeneric(std::string_view function) {
  return function.starts_with("GetAttributeVi") || function.starts_with("SetAttributeVi");
}

std::vector<Call> MakeCalls() {
  std::vector<Call> calls;
  for (const Call& function : kFunctions) {
    if (!IsGeneric(function.function)) {
      calls.push_back(function);
      continue;
    }
    for (const auto& attribute : kAttributes) {
      Call& call = calls.emplace_back(function);
      std::tie(call.attribute, call.id) = attribute;
    }
  }
  return calls;
}

std::array<char, 256> g_current;

void SayCurrent(int signal) {
  for (const char* text : {"\nended within ", static_cast<const char*>(g_current.data()), "\n"}) {
    static_cast<void>(!::write(STDERR_FILENO, text, std::char_traits<char>::length(text)));
  }
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void SayWhatEndsTheProcess() {
  static const bool once = [] {
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT}) std::signal(signal, SayCurrent);
    return true;
  }();
  static_cast<void>(once);
}

}  // namespace

std::string Call::name() const {
  return is_generic() ? std::string(function) + "(" + std::string(attribute) + ")" : std::string(function);
}

Arguments Call::Plausible(ViSession vi) const {
  Arguments arguments(vi, id);
  if (is("SetIOTimeout") || attribute == "SYSTEM_IO_TIMEOUT") arguments.number = 200;
  if (is("SetActiveLFGenerator") || attribute == "ACTIVE_LF_GENERATOR") arguments.text = "AM";
  if (is("ConfigureAM") || is("ConfigureFM") || is("ConfigurePM")) arguments.text = "Internal";
  if (is("InitWithOptions")) arguments.text = "";
  if (is("LockSession")) arguments.flag = VI_FALSE;
  if (is("UnlockSession")) arguments.flag = VI_TRUE;
  if (is("error_message")) arguments.number = static_cast<ViInt32>(0xBFFA000CU);
  return arguments;
}

ViStatus Call::operator()(Arguments& arguments) const {
  SayWhatEndsTheProcess();
  char* end = g_current.data();
  for (const std::string_view part : {function, std::string_view(" "), attribute}) {
    end = std::copy(part.begin(), part.end(), end);
  }
  *end = 0;
  // An unlock without a lock would end the process.
  if (is("UnlockSession")) KVTD481X2C_LockSession(arguments.session(), nullptr);
  const ViStatus status = make(arguments);
  if (is("LockSession") && status >= 0) KVTD481X2C_UnlockSession(arguments.session(), nullptr);
  return status;
}

std::span<const Call> Calls() {
  static const std::vector<Call> calls = MakeCalls();
  return calls;
}

}  // namespace kvtd::test
