// Plausible arguments for one call of any export: what a caller gives who means well.
//
// A session comes first; a further one is the attribute. A count is the room of the buffer or the length of the array
// that follows it; a number anywhere else is 1. Every pointer is to guarded memory of exactly the size that the call is
// told, or of 256 characters where it is told none.

#ifndef KVTD_TESTS_PROOF_ARGUMENTS_H
#define KVTD_TESTS_PROOF_ARGUMENTS_H

#include <visatype.h>

#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "GuardedMemory.h"

namespace kvtd::test {

class Arguments {
 public:
  static constexpr std::size_t kRoom = 256;
  static constexpr std::size_t kArrayLength = 4;

  explicit Arguments(ViSession vi, ViAttr attribute = 0) : vi_(vi), attribute_(attribute) {}

  // What the texts of the call are, but for the resource of a call that opens a session.
  std::string text = "1";
  std::string resource = "TCPIP0::127.0.0.1::1::SOCKET";
  // What a number is that counts nothing.
  ViInt32 number = 1;
  // What stands in a flag that the call both reads and writes.
  std::optional<ViBoolean> flag;
  // A text to fill is an empty one before the call, not bytes without an end.
  bool texts_begin_empty = false;
  // Called when all arguments are made, at the last moment before the call.
  std::function<void()> when_made = [] {};
  // Of all pointers of the call, counted from 0, this one is null.
  std::optional<std::size_t> null;

  // The next argument; `Next` is the type of the one behind it, void for none.
  template <class T, class Next>
  T Make() {
    const bool first = std::exchange(first_, false);
    if constexpr (std::is_pointer_v<T>) {
      const bool is_null = null == pointers_++;
      return is_null ? nullptr : reinterpret_cast<T>(Pointed<T>(first));
    } else if constexpr (std::is_same_v<T, ViSession>) {
      return first ? vi_ : attribute_;
    } else if constexpr (std::is_same_v<T, ViReal64>) {
      return 1.0;
    } else if constexpr (std::is_same_v<T, ViBoolean>) {
      return VI_FALSE;
    } else {
      static_assert(std::is_same_v<T, ViInt32> || std::is_same_v<T, ViInt64>);
      if constexpr (std::is_same_v<Next, ViChar*> || std::is_same_v<Next, ViByte*>) return T{kRoom};
      if constexpr (std::is_same_v<Next, const ViByte*> || std::is_same_v<Next, const ViReal64*>)
        return T{kArrayLength};
      return number;
    }
  }

  ViSession session() const { return vi_; }
  // All outputs as they are now.
  std::string Outputs() const;
  // No output was written.
  bool Untouched() const;
  // Nothing was written but outputs.
  bool Intact() const;

 private:
  struct Buffer {
    GuardedMemory memory;
    std::string held;
    bool is_output;
  };

  template <class T>
  std::byte* Pointed(bool first) {
    using Value = std::remove_cv_t<std::remove_pointer_t<T>>;
    if constexpr (std::is_same_v<T, ViConstString>) {
      return Hold(text.c_str(), text.size() + 1, false);
    } else if constexpr (std::is_same_v<T, ViChar*>) {
      return first ? Hold(resource.c_str(), resource.size() + 1, false) : Room(kRoom, texts_begin_empty);
    } else if constexpr (std::is_same_v<T, ViByte*>) {
      return Room(kRoom);
    } else if constexpr (std::is_const_v<std::remove_pointer_t<T>>) {
      const std::vector<Value> values(kArrayLength, Value{1});
      return Hold(values.data(), values.size() * sizeof(Value), false);
    } else {
      if constexpr (std::is_same_v<T, ViBoolean*>) {
        if (flag) return Hold(&*flag, sizeof *flag, true);
      }
      return Room(sizeof(Value));
    }
  }
  // Memory for an output.
  std::byte* Room(std::size_t size, bool begins_empty = false);
  // Memory with these bytes.
  std::byte* Hold(const void* bytes, std::size_t size, bool is_output);

  const ViSession vi_;
  const ViAttr attribute_;
  bool first_ = true;
  std::size_t pointers_ = 0;
  std::vector<Buffer> buffers_;
};

}  // namespace kvtd::test

#endif
