// Any sequence of the driver's calls against an instrument that says anything, over a raw socket. Every buffer is
// exactly as large as the call is told.
//
// The input: a byte of options, then calls: two bytes choose the export, what follows are its arguments and what the
// instrument says while it waits (InputPeer.h).
//
// Three things end the process because they must, and are kept out here, no wider than they are: a block header with a
// count of eleven or more digits, where it is read by hand; an unlock without a lock; a text that fills more than the
// 4096 bytes that an attribute has.

#include <IviCShared.h>
#include <KVTD481X2C.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "Input.h"
#include "InputPeer.h"
#include "Require.h"
#include "fake_network.h"

namespace kvtd::fuzz {
namespace {

constexpr ViInt32 kLongestText = 4096;

class Instrument : public InputPeer {
 public:
  using InputPeer::InputPeer;

 private:
  void Censor(std::string& bytes) override {
    for (char& c : bytes) {
      // The count of digits is what this byte is above "0": from ";" on it is eleven and more.
      if (last_ == '#' && static_cast<unsigned char>(c) >= ';') c = '9';
      last_ = c;
    }
  }
  char last_ = 0;
};

constexpr ViAttr kAttributes[] = {
#define ATTRIBUTE(name) name,
#include "attributes.inc"
#undef ATTRIBUTE
};

// The arguments of one call, made one after the other. A count comes before what it counts.
class Arguments {
 public:
  // `fixed_text`: texts go to buffers of the published 256 bytes, whatever number stands in front of them.
  Arguments(Input& input, ViSession vi, bool fixed_text) : input_(input), vi_(vi), fixed_text_(fixed_text) {}

  template <class T>
  T Make() {
    if constexpr (std::is_same_v<T, ViSession>) {
      if (std::exchange(first_, false)) return vi_;
      return kAttributes[input_.Choice(std::size(kAttributes))];
    } else if constexpr (std::is_same_v<T, ViConstString>) {
      return Text();
    } else if constexpr (std::is_same_v<T, ViChar*>) {
      return Room<ViChar>(fixed_text_ ? 256 : count_ < 0 ? kLongestText : count_);
    } else if constexpr (std::is_same_v<T, ViByte*>) {
      return Room<ViByte>(std::max<ViInt64>(count_, 0));
    } else if constexpr (std::is_same_v<T, const ViByte*> || std::is_same_v<T, const ViReal64*>) {
      return Array<std::remove_const_t<std::remove_pointer_t<T>>>();
    } else if constexpr (std::is_pointer_v<T>) {
      return (input_.Byte() & 15) == 15 ? nullptr : Room<std::remove_pointer_t<T>>(1);
    } else if constexpr (std::is_same_v<T, ViReal64>) {
      return Real();
    } else if constexpr (std::is_same_v<T, ViBoolean>) {
      return input_.Byte();
    } else if constexpr (std::is_same_v<T, ViInt64>) {
      // Bytes to be read or written, handed on to VISA, which counts without a sign.
      return count_ = std::max<ViInt64>(Whole(), 0);
    } else {
      static_assert(std::is_same_v<T, ViInt32>);
      return static_cast<T>(count_ = Whole());
    }
  }

 private:
  ViInt32 Whole() {
    const auto small = static_cast<std::int8_t>(input_.Byte());
    return small == 127 ? kLongestText : small;
  }
  ViReal64 Real() {
    if (input_.Bool()) return input_.Byte();
    const auto bits = input_.Number<std::uint64_t>();
    ViReal64 number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
  }
  const ViChar* Text() {
    constexpr std::array<const char*, 7> kUseful = {"Internal", "/user/a.bin", "AM", "FM,PM", "", "list", "127.0.0.1"};
    const std::size_t which = input_.Choice(kUseful.size() + 1);
    const std::string text = which < kUseful.size() ? kUseful[which] : input_.Text();
    auto* const copy = Room<ViChar>(static_cast<ViInt64>(text.size()) + 1);
    std::memcpy(copy, text.c_str(), text.size() + 1);
    return copy;
  }
  template <class T>
  T* Array() {
    const ViInt64 size = std::max<ViInt64>(count_, 0);
    T* const array = Room<T>(size);
    for (ViInt64 i = 0; i < std::min<ViInt64>(size, 8); ++i) array[i] = static_cast<T>(input_.Byte());
    return array;
  }
  template <class T>
  T* Room(ViInt64 count) {
    rooms_.push_back(std::make_unique<std::byte[]>(static_cast<std::size_t>(count) * sizeof(T)));
    return reinterpret_cast<T*>(rooms_.back().get());
  }

  Input& input_;
  const ViSession vi_;
  const bool fixed_text_;
  bool first_ = true;
  ViInt64 count_ = 0;
  std::vector<std::unique_ptr<std::byte[]>> rooms_;
};

template <class... A>
ViStatus Make(ViStatus (*function)(A...), Arguments& arguments) {
  const std::tuple<A...> all{arguments.Make<A>()...};
  return std::apply(function, all);
}

struct Export {
  const char* name;
  ViStatus (*make)(Arguments&);
};
constexpr Export kExports[] = {
#define EXPORT(function) {#function, [](Arguments& arguments) { return Make(function, arguments); }},
#include "exports.inc"
#undef EXPORT
};

bool IsOneOf(const char* name, std::initializer_list<const char*> names) {
  return std::any_of(names.begin(), names.end(), [name](const char* each) { return std::strcmp(each, name) == 0; });
}

class Caller {
 public:
  Caller(Input& input, ViSession vi) : input_(input), vi_(vi) {}
  ~Caller() {
    for (; locks_ > 0; --locks_) KVTD481X2C_UnlockSession(vi_, nullptr);
  }
  Caller(const Caller&) = delete;
  Caller& operator=(const Caller&) = delete;

  void Call() {
    const Export& chosen = kExports[input_.Choice(std::size(kExports))];
    if (IsOneOf(chosen.name, {"KVTD481X2C_init", "KVTD481X2C_InitWithOptions", "KVTD481X2C_close"})) return;
    if (IsOneOf(chosen.name, {"KVTD481X2C_LockSession"})) {
      locks_ += KVTD481X2C_LockSession(vi_, nullptr) >= 0 ? 1 : 0;
      return;
    }
    if (IsOneOf(chosen.name, {"KVTD481X2C_UnlockSession"})) {
      if (locks_ > 0) locks_ -= KVTD481X2C_UnlockSession(vi_, nullptr) >= 0 ? 1 : 0;
      return;
    }
    const bool fixed_text = IsOneOf(chosen.name, {"KVTD481X2C_self_test", "KVTD481X2C_error_query",
                                                  "KVTD481X2C_error_message", "KVTD481X2C_revision_query"});
    Arguments arguments(input_, vi_, fixed_text);
    try {
      chosen.make(arguments);
    } catch (const std::bad_alloc&) {
      Require(IsOneOf(chosen.name, {"KVTD481X2C_CreateFrequencyList", "KVTD481X2C_CreatePowerList"}),
              "only a length below zero ends as an allocation that failed");
    } catch (const std::logic_error&) {
      Require(IsOneOf(chosen.name, {"KVTD481X2C_error_query"}),
              "only an error code that is no number leaves as the exception of its conversion");
    }
  }

 private:
  Input& input_;
  const ViSession vi_;
  int locks_ = 0;
};

std::string Options(std::uint8_t bits) {
  constexpr std::array<const char*, 5> kFlags = {"Cache", "QueryInstrStatus", "RangeCheck", "RecordCoercions",
                                                 "Simulate"};
  std::string options;
  for (std::size_t i = 0; i < kFlags.size(); ++i) {
    options += std::string(kFlags[i]) + ((bits >> i & 1) != 0 ? "=1," : "=0,");
  }
  return options;
}

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kvtd::fuzz;
  Input input(data, size);
  Instrument instrument(input);
  const FakeNetwork network({&instrument});
  const std::uint8_t how = input.Byte();
  std::string resource = "TCPIP::127.0.0.1::5025::SOCKET";
  ViSession vi = VI_NULL;
  const ViBoolean id_query = (how & 0x20) != 0 ? VI_TRUE : VI_FALSE;
  const ViBoolean reset = (how & 0x40) != 0 ? VI_TRUE : VI_FALSE;
  KVTD481X2C_InitWithOptions(resource.data(), id_query, reset, Options(how).c_str(), &vi);
  if (vi != VI_NULL) {
    {
      Caller caller(input, vi);
      while (!input.empty()) caller.Call();
    }
    // A session that has come to simulate with its link open keeps the link: it is the caller's to put that back.
    KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, (how & 0x10) != 0 ? VI_TRUE : VI_FALSE);
    Require(KVTD481X2C_close(vi) >= 0, "an open session can be closed");
  }
  Require(FakeNetwork::OpenConnections() == 0, "nothing stays open");
  // The thread's last error would look like a leak, and have it searched for.
  IviSession_ClearError(VI_NULL);
  return 0;
}
