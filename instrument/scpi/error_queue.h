// The queue that SYSTem:ERRor? empties, oldest first.
#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "scpi/errors.h"

namespace siggen::scpi {

class ErrorQueue {
 public:
  static constexpr std::size_t kRoom = 20;

  // When the queue is full its youngest entry gives way to -350: the oldest errors tell how the trouble began.
  void Push(Error error, std::string_view detail);
  // The oldest entry as `-113,"Undefined header;:FOO"`, taken out; `0,"No error"` when there is none.
  std::string Pop();
  std::string PopAll();
  void Clear() { entries_.clear(); }
  std::size_t size() const { return entries_.size(); }

 private:
  std::deque<std::string> entries_;
};

// The youngest errors since power on, which reading and *CLS leave alone.
class ErrorLog {
 public:
  static constexpr std::size_t kRoom = 50;

  void Add(Error error, std::string_view detail);
  std::string Text() const;  // oldest first, joined by commas; empty when there was none

 private:
  std::deque<std::string> entries_;
};

}  // namespace siggen::scpi
