// The tree of headers and what they do.
//
// Headers are written as a manual has them:
//   "FREQuency[:CW|FIXed]"        an optional node, with alternatives
//   "LIST<1-10>:DWELl"            a numbered node; a missing number means 1
//   "SWEep<2>:POINts"             a node for that number only
//   "*IDN"                        a common command
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "scpi/call.h"
#include "scpi/parser.h"

namespace siggen::scpi {

struct Arity {
  std::size_t least = 0;
  std::size_t most = 0;
};

inline constexpr Arity kNothing{0, 0};
inline constexpr Arity kOne{1, 1};
inline constexpr Arity kAnyNumber{1, static_cast<std::size_t>(-1)};

using Handler = std::function<void(Call&)>;

class Commands {
 public:
  Commands();
  ~Commands();
  Commands(const Commands&) = delete;
  Commands& operator=(const Commands&) = delete;

  void Do(std::string_view pattern, Arity arity, Handler run);
  void Ask(std::string_view pattern, Arity arity, Handler run);

  // Runs the unit whose full path is `path`. Throws a Refusal (-113, -114, -108, -109 or the handler's own) or Wait.
  void Run(const Unit& unit, std::span<const Mnemonic> path, const DefaultUnits& units, Answer& answer) const;

 private:
  struct Node;
  struct Action;

  void Add(std::string_view pattern, bool query, Arity arity, Handler run);

  std::unique_ptr<Node> root_;
  std::unique_ptr<Node> common_;
};

}  // namespace siggen::scpi
