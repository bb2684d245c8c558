// The expressions of viFindRsrc: "TCPIP?*INSTR", "(GPIB|TCPIP)[0-9]*::?*{VI_ATTR_INTF_NUM == 0}".
//
//   ?       any character            x*  x any number of times
//   [a-f9]  one of these             x+  x once or more
//   [^a-f]  none of these            a|b one or the other, of everything on either side
//   \x      x itself                 ( ) a group
//
// Letter case does not matter. Behind it there may be a condition in braces: comparisons of attributes with numbers,
// joined by && and ||, negated by !, grouped by parentheses.
#pragma once

#include <bitset>
#include <cstddef>
#include <string_view>
#include <vector>

namespace tvr::visa {

class SearchExpression {
 public:
  // False when the text is none.
  bool Parse(std::string_view text);
  // The whole of the descriptor; it is one of those that discovery.h finds.
  bool Matches(std::string_view descriptor) const;

 private:
  class Pattern;

  // A step takes a character and goes on to `next`, or takes none and goes on to all of `choices`.
  struct Step {
    std::bitset<256> takes;
    std::size_t next = 0;
    std::vector<std::size_t> choices;
  };
  void Enter(std::size_t step, std::vector<bool>& at) const;

  std::vector<Step> steps_;  // the first one is the end of the pattern
  std::size_t start_ = 0;
  bool condition_ = true;
};

}  // namespace tvr::visa
