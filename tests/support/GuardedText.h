// A text buffer that notices when more is written than it has room for.

#ifndef KVTD_TESTS_SUPPORT_GUARDED_TEXT_H
#define KVTD_TESTS_SUPPORT_GUARDED_TEXT_H

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

namespace kvtd::test {

// Offers N bytes between two fields of guards. Every byte starts as kUntouched, so that a test can also say that
// nothing was written at all. The guards are looked at when the buffer goes out of scope.
template <std::size_t N>
class GuardedText {
 public:
  static constexpr char kUntouched = '\x7E';
  static constexpr char kGuard = '\x5A';

  GuardedText() {
    bytes_.fill(kGuard);
    std::fill_n(data(), N, kUntouched);
  }
  GuardedText(const GuardedText&) = delete;
  GuardedText& operator=(const GuardedText&) = delete;
  ~GuardedText() { EXPECT_TRUE(Intact()) << "written outside a buffer of " << N << " bytes"; }

  char* data() { return bytes_.data() + kField; }
  const char* data() const { return bytes_.data() + kField; }
  static constexpr int size() { return static_cast<int>(N); }

  // The text before the terminator; a missing terminator is a failure of the test.
  std::string text() const {
    const char* end = std::find(data(), data() + N, '\0');
    EXPECT_NE(end, data() + N) << "no terminator within " << N << " bytes";
    return std::string(data(), end);
  }

  bool Untouched() const {
    return Intact() && std::all_of(data(), data() + N, [](char c) { return c == kUntouched; });
  }

  bool Intact() const {
    const auto guard = [](char c) { return c == kGuard; };
    return std::all_of(bytes_.begin(), bytes_.begin() + kField, guard) &&
           std::all_of(bytes_.begin() + kField + N, bytes_.end(), guard);
  }

 private:
  static constexpr std::size_t kField = 64;

  std::array<char, N + 2 * kField> bytes_;
};

}  // namespace kvtd::test

#endif
