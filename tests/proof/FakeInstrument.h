// An instrument on the fake network: it answers every query alike, until it is told to answer otherwise.

#ifndef KVTD_TESTS_PROOF_FAKE_INSTRUMENT_H
#define KVTD_TESTS_PROOF_FAKE_INSTRUMENT_H

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fake_network.h"

namespace kvtd::test {

using Speeches = std::vector<fuzz::Speech>;

class FakeInstrument : public fuzz::Peer {
 public:
  // What is said to each query from now on; before, what a bring-up asks is answered.
  void Answer(std::string answer) { speeches_ = Speeches{{fuzz::Speech::Kind::kBytes, {}, std::move(answer)}}; }
  void Answer(Speeches speeches) { speeches_ = std::move(speeches); }

  // Each query is answered with this over and over, a piece every millisecond.
  void AnswerForEver(std::string piece) { endless_ = std::move(piece); }
  // What is not yet said is never said.
  void FallSilent() {
    waiting_.clear();
    endless_.clear();
    speaks_endlessly_ = false;
  }

  // Lines and queries that came since the last time.
  int TakeLines() { return std::exchange(lines_, 0); }
  int TakeQueries() { return std::exchange(queries_, 0); }

  void Hear(std::string_view bytes) override {
    for (const char byte : bytes) {
      line_ += byte;
      if (byte != '\n') continue;
      ++lines_;
      if (line_.find('?') != std::string::npos) Reply(line_);
      line_.clear();
    }
  }

  fuzz::Speech Speak() override {
    if (speaks_endlessly_) return {fuzz::Speech::Kind::kBytes, std::chrono::milliseconds(1), endless_};
    if (waiting_.empty()) return {fuzz::Speech::Kind::kSilence, std::chrono::milliseconds(1), {}};
    fuzz::Speech next = std::move(waiting_.front());
    waiting_.pop_front();
    return next;
  }

 private:
  void Reply(std::string_view line) {
    ++queries_;
    if (!endless_.empty()) {
      speaks_endlessly_ = true;
    } else if (speeches_) {
      waiting_.insert(waiting_.end(), speeches_->begin(), speeches_->end());
    } else {
      waiting_.push_back(
          {fuzz::Speech::Kind::kBytes, {}, line == "*IDN?\n" ? "Kelvora,TD48142C,SN4711,1.2.3\n" : "0\n"});
    }
  }

  std::optional<Speeches> speeches_;
  std::deque<fuzz::Speech> waiting_;
  std::string endless_;
  bool speaks_endlessly_ = false;
  std::string line_;
  int lines_ = 0;
  int queries_ = 0;
};

}  // namespace kvtd::test

#endif
