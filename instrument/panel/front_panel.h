// The instrument's screen, drawn with its present settings: what a screenshot shows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/generator.h"
#include "scpi/bytes.h"

namespace siggen::panel {

inline constexpr int kWidth = 800;
inline constexpr int kHeight = 480;

struct Screen {
  const model::Generator& generator;
  std::string_view model;
  std::string_view unit_name;
  std::string time;
  std::size_t errors;
};

// A PNG file.
scpi::Bytes DrawFrontPanel(const Screen& screen);

}  // namespace siggen::panel
