#include "Bytes.h"

namespace kvtd::test {

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
