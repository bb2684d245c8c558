// The three models of the family and what they can do.
#pragma once

#include <optional>
#include <string_view>

namespace siggen::model {

struct Variant {
  std::string_view name;
  double highest_frequency;
};

inline constexpr Variant kVariants[] = {{"TD48122C", 12.75e9}, {"TD48142C", 20e9}, {"TD48172C", 40e9}};

inline constexpr double kLowestFrequency = 9e3;
inline constexpr double kLowestPower = -120.0;
inline constexpr double kHighestPower = 20.0;

constexpr std::optional<Variant> VariantNamed(std::string_view name) {
  for (const Variant& variant : kVariants) {
    if (variant.name == name) return variant;
  }
  return std::nullopt;
}

}  // namespace siggen::model
