#include "attribute_condition.h"

#include <visa.h>

#include <charconv>
#include <cstdint>
#include <optional>

namespace tvr::visa {
namespace {

struct Known {
  std::string_view name;
  std::uint64_t value;
};
constexpr Known kKnown[] = {
    {"VI_ATTR_INTF_TYPE", VI_INTF_TCPIP},
    {"VI_ATTR_INTF_NUM", 0},
    {"VI_ATTR_TCPIP_IS_HISLIP", VI_FALSE},
};

// any:        all { "||" all }
// all:        term { "&&" term }
// term:       "!" term | "(" any ")" | comparison
// comparison: attribute operator number
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  bool Any() {
    bool holds = All();
    while (Take("||")) holds = All() || holds;
    return holds;
  }
  bool Complete() {
    SkipBlanks();
    return good_ && rest_.empty();
  }

 private:
  bool All() {
    bool holds = Term();
    while (Take("&&")) holds = Term() && holds;
    return holds;
  }

  bool Term() {
    if (!good_) return false;
    if (Take("!")) return !Term();
    if (!Take("(")) return Comparison();
    const bool holds = Any();
    good_ = Take(")") && good_;
    return holds;
  }

  bool Comparison() {
    const std::optional<std::uint64_t> value = Attribute();
    for (const std::string_view sign : {"==", "!=", "<=", ">=", "<", ">"}) {
      if (!Take(sign)) continue;
      const std::uint64_t number = Number();
      return good_ && value && Compare(*value, sign, number);
    }
    good_ = false;
    return false;
  }

  static bool Compare(std::uint64_t value, std::string_view sign, std::uint64_t number) {
    if (sign == "==") return value == number;
    if (sign == "!=") return value != number;
    if (sign == "<=") return value <= number;
    if (sign == ">=") return value >= number;
    return sign == "<" ? value < number : value > number;
  }

  std::optional<std::uint64_t> Attribute() {
    SkipBlanks();
    const std::size_t length = rest_.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789");
    const std::string_view name = rest_.substr(0, length);
    good_ = good_ && name.starts_with("VI_ATTR_");
    rest_.remove_prefix(name.size());
    for (const Known& known : kKnown) {
      if (known.name == name) return known.value;
    }
    return std::nullopt;
  }

  std::uint64_t Number() {
    SkipBlanks();
    const bool hexadecimal = rest_.starts_with("0x") || rest_.starts_with("0X");
    if (hexadecimal) rest_.remove_prefix(2);
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number, hexadecimal ? 16 : 10);
    good_ = good_ && error == std::errc();
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return number;
  }

  bool Take(std::string_view sign) {
    SkipBlanks();
    if (!rest_.starts_with(sign)) return false;
    rest_.remove_prefix(sign.size());
    return true;
  }

  void SkipBlanks() {
    while (rest_.starts_with(' ')) rest_.remove_prefix(1);
  }

  std::string_view rest_;
  bool good_ = true;
};

}  // namespace

bool EvaluateCondition(std::string_view text, bool& holds) {
  Reader reader(text);
  holds = reader.Any();
  return reader.Complete();
}

}  // namespace tvr::visa
