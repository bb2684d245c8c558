// Mnemonics are written in the tables as "FREQuency": the capitals and digits are the short form, which is what the
// instrument answers; long and short form are accepted, in any case.
#pragma once

#include <string>
#include <string_view>

namespace siggen::scpi {

constexpr char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

constexpr bool SameWord(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (Upper(a[i]) != Upper(b[i])) return false;
  }
  return true;
}

constexpr bool IsShortPart(char c) { return c < 'a' || c > 'z'; }

// Whether `sent` is the long or the short form of `form`.
constexpr bool Matches(std::string_view form, std::string_view sent) {
  if (SameWord(form, sent)) return true;
  std::size_t at = 0;
  for (const char c : form) {
    if (!IsShortPart(c)) continue;
    if (at == sent.size() || Upper(sent[at]) != c) return false;
    ++at;
  }
  return at == sent.size();
}

inline std::string ShortForm(std::string_view form) {
  std::string shortened;
  for (const char c : form) {
    if (IsShortPart(c)) shortened += c;
  }
  return shortened;
}

// One spelling of a setting's value. The first spelling of a value is the one that is answered.
template <typename E>
struct Word {
  std::string_view form;
  E value;
};

}  // namespace siggen::scpi
