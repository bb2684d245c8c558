#include "Bytes.h"

#include <gtest/gtest.h>

namespace kvtd::test {

std::string FromHex(std::string_view digits) {
  std::string bytes;
  std::string pair;
  bool is_text = false;
  for (const char c : digits) {
    if (c == '\'') {
      is_text = !is_text;
    } else if (is_text) {
      bytes += c;
    } else if (c != ' ') {
      pair += c;
      if (pair.size() < 2) continue;
      bytes += static_cast<char>(std::stoi(pair, nullptr, 16));
      pair.clear();
    }
  }
  EXPECT_TRUE(pair.empty() && !is_text) << digits;
  return bytes;
}

std::string Visible(std::string_view bytes) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\n') {
      text += "\\n";
    } else if (c == '\r') {
      text += "\\r";
    } else if (c == '\t') {
      text += "\\t";
    } else if (c == '\\') {
      text += "\\\\";
    } else if (byte < 0x20 || byte > 0x7E) {
      text += {'\\', 'x', kHex[byte >> 4], kHex[byte & 0x0F]};
    } else {
      text += c;
    }
  }
  return text;
}

}  // namespace kvtd::test
