// Text as the option strings, maps and words of the driver need it.
#pragma once

#include <locale>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <visatype.h>

namespace tvr {

// The white space that is trimmed from names, words and fields.
inline constexpr std::string_view kBlanks = " \t\r\n";

// Removes leading and trailing characters that are in the set.
std::string_view TrimString(std::string_view text, std::string_view set);

// The fields of a text, read as a line reader with that line end would: an empty text has none, two separators in a row
// have an empty field between them, a trailing separator adds none.
std::vector<std::string> SplitString(std::string_view text, char separator, bool trim);

// Equality without regard to the case of ASCII letters.
bool EqualIgnoringCase(std::string_view left, std::string_view right);

std::string LowerCase(std::string_view text);

// Copies at most size - 1 characters and a terminator. A size below 1 copies nothing.
void CopyText(std::string_view text, ViInt32 size, ViChar* buffer);

// The text of a buffer that may hold no terminator.
std::string_view BoundedText(const ViChar* buffer, ViInt32 size);

// Orders keys character by character after upper-casing; a shorter key that begins a longer one comes first.
class CaseInsensitiveLess {
 public:
  bool operator()(const std::string& left, const std::string& right) const;

 private:
  std::locale locale_;
};

template <class Value>
using CaseInsensitiveMap = std::map<std::string, Value, CaseInsensitiveLess>;

}  // namespace tvr
