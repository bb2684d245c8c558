// Bytes of the wire in a form a person can read.

#ifndef KVTD_TESTS_SUPPORT_BYTES_H
#define KVTD_TESTS_SUPPORT_BYTES_H

#include <string>
#include <string_view>

namespace kvtd::test {

// Prints control and non-ASCII bytes as C escapes, so that a missing line feed or a trailing blank can be seen.
std::string Visible(std::string_view bytes);

// The bytes that are written as hexadecimal digits, or as text between apostrophes; blanks separate.
std::string FromHex(std::string_view digits);

// Keeps every byte of a literal, embedded NULs included.
template <std::size_t N>
std::string Literal(const char (&bytes)[N]) {
  return std::string(bytes, N - 1);
}

}  // namespace kvtd::test

#endif
