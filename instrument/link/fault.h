// Faults on demand: what a bad network or a sick instrument does to an answer.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>
#include <vector>

#include "scpi/bytes.h"

namespace siggen::link {

struct Fault {
  enum class Kind {
    kDelay,       // the answer comes late
    kDrop,        // the link is closed in its place
    kReset,       // the link is reset in its place
    kCut,         // half of it, then the link is closed
    kGarbage,     // bytes that mean nothing, then a line feed
    kTerminator,  // a carriage return where the line feed should be
    kBlock,       // a block header that announces a thousand bytes more than there are
  };
  Kind kind = Kind::kDelay;
  std::chrono::milliseconds delay{0};
  std::optional<unsigned> answer;  // only the n-th answer from now on, counted from 1; otherwise each
};

// "delay:250", "drop", "cut@3". Nothing when the text is none of these.
std::optional<Fault> ParseFault(std::string_view text);

// Shared by all links of an instrument, so that an answer is counted on whichever link it is given.
class FaultPlan {
 public:
  void Add(const Fault& fault) { faults_.push_back(fault); }
  void Clear() { faults_.clear(); }
  // To be asked once for each answer.
  std::optional<Fault> Next();

 private:
  std::vector<Fault> faults_;
};

// The bytes that go out in place of `answer`.
std::vector<scpi::Bytes> Distort(Fault::Kind kind, std::vector<scpi::Bytes> answer);

}  // namespace siggen::link
