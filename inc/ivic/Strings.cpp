#include "Strings.h"

#include <algorithm>
#include <cstring>

namespace tvr {
namespace {

char AsciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::string_view TrimString(std::string_view text, std::string_view set) {
  const std::size_t first = text.find_first_not_of(set);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(set) - first + 1);
}

std::vector<std::string> SplitString(std::string_view text, char separator, bool trim) {
  std::vector<std::string> fields;
  while (!text.empty()) {
    const std::size_t end = text.find(separator);
    const std::string_view field = text.substr(0, end);
    fields.emplace_back(trim ? TrimString(field, kBlanks) : field);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return fields;
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return AsciiLower(a) == AsciiLower(b); });
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), AsciiLower);
  return lower;
}

void CopyText(std::string_view text, ViInt32 size, ViChar* buffer) {
  if (size < 1) return;
  const std::size_t length = std::min(text.size(), static_cast<std::size_t>(size) - 1);
  *std::copy_n(text.begin(), length, buffer) = '\0';
}

std::string_view BoundedText(const ViChar* buffer, ViInt32 size) {
  if (size < 1) return {};
  const auto room = static_cast<std::size_t>(size);
  const void* end = std::memchr(buffer, '\0', room);
  return {buffer, end == nullptr ? room : static_cast<std::size_t>(static_cast<const ViChar*>(end) - buffer)};
}

bool CaseInsensitiveLess::operator()(const std::string& left, const std::string& right) const {
  const auto& type = std::use_facet<std::ctype<char>>(locale_);
  return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                      [&type](char a, char b) { return type.toupper(a) < type.toupper(b); });
}

}  // namespace tvr
