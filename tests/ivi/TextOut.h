#ifndef TESTS_IVI_TEXT_OUT_H
#define TESTS_IVI_TEXT_OUT_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "IviCShared.h"

/// A text output under guard: a buffer of exactly the size told, with marked bytes on both sides that must survive.
class TextOut {
 public:
  explicit TextOut(size_t room) : bytes_(room + 2 * kGuard, kMark), room_(room) {}
  ~TextOut() {
    for (size_t i = 0; i < kGuard; ++i) {
      EXPECT_EQ(kMark, bytes_[i]) << "written before the buffer";
      EXPECT_EQ(kMark, bytes_[kGuard + room_ + i]) << "written past the buffer";
    }
  }
  TextOut(const TextOut&) = delete;
  TextOut& operator=(const TextOut&) = delete;

  ViChar* buffer() { return bytes_.data() + kGuard; }
  bool untouched() const { return bytes_ == std::vector<ViChar>(bytes_.size(), kMark); }
  std::string text() const {
    for (size_t i = 0; i < room_; ++i) {
      if (bytes_[kGuard + i] == '\0') return {bytes_.data() + kGuard, i};
    }
    return "(no terminator)";
  }

 private:
  static constexpr size_t kGuard = 16;
  static constexpr ViChar kMark = 0x5A;
  std::vector<ViChar> bytes_;
  size_t room_;
};

/// The buffer rule over read(size, buffer), a text output that keeps giving the expected text.
template <typename Read>
void ExpectBufferRule(const std::string& expected, Read read) {
  const ViInt32 required = static_cast<ViInt32>(expected.size()) + 1;
  SCOPED_TRACE("text: " + expected);
  EXPECT_EQ(required, read(0, nullptr));
  {
    TextOut out(0);
    EXPECT_EQ(required, read(0, out.buffer()));
    EXPECT_TRUE(out.untouched());
  }
  for (ViInt32 size = 1; size < required; ++size) {
    TextOut out(static_cast<size_t>(size));
    EXPECT_EQ(required, read(size, out.buffer()));
    EXPECT_EQ(expected.substr(0, static_cast<size_t>(size) - 1), out.text());
  }
  for (const ViInt32 size : {required, required + 1, 1024 + required}) {
    TextOut out(static_cast<size_t>(size));
    EXPECT_EQ(VI_SUCCESS, read(size, out.buffer()));
    EXPECT_EQ(expected, out.text());
  }
  for (const ViInt32 size : {-1, -2147483647 - 1}) {
    TextOut out(static_cast<size_t>(required));
    EXPECT_EQ(VI_SUCCESS, read(size, out.buffer()));
    EXPECT_EQ(expected, out.text());
  }
  EXPECT_EQ(IVI_ERROR_NULL_POINTER, read(10, nullptr));
  EXPECT_EQ(IVI_ERROR_NULL_POINTER, read(-1, nullptr));
}

#endif
