// A peer that says what stands in a fuzzer's input, when it is waited for. Each thing that it says begins with a byte
// that tells its kind, modulo 8:
//
//   0  a line: everything to a line feed, which goes along      4  closes the connection
//   1  bytes behind a byte that tells their number              5  resets it
//   2  a line that is late by so many times 20 ms as a byte     6  "1\n"
//   3  nothing for so many times 20 ms as a byte tells          7  "0\n"
//
// At the end of the input it closes.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "Input.h"
#include "fake_network.h"

namespace kvtd::fuzz {

class InputPeer : public Peer {
 public:
  explicit InputPeer(Input& input) : input_(input) {}

  void Hear(std::string_view) override {}
  Speech Speak() override {
    using Kind = Speech::Kind;
    if (input_.empty()) return {Kind::kClose, {}, {}};
    switch (input_.Byte() % 8) {
      case 0:
        return Say(input_.Line() + '\n');
      case 1:
        return Say(input_.Text());
      case 2: {
        const auto late = Some();
        return Say(input_.Line() + '\n', late);
      }
      case 3:
        return {Kind::kSilence, Some(), {}};
      case 4:
        return {Kind::kClose, {}, {}};
      case 5:
        return {Kind::kReset, {}, {}};
      case 6:
        return Say("1\n");
      default:
        return Say("0\n");
    }
  }

 protected:
  // The last word on what is said.
  virtual void Censor(std::string&) {}

 private:
  std::chrono::milliseconds Some() { return std::chrono::milliseconds(20 * input_.Byte()); }
  Speech Say(std::string bytes, std::chrono::milliseconds late = {}) {
    if (bytes.empty()) return {Speech::Kind::kSilence, late, {}};
    Censor(bytes);
    return {Speech::Kind::kBytes, late, std::move(bytes)};
  }

  Input& input_;
};

}  // namespace kvtd::fuzz
