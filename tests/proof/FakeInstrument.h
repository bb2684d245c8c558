// An instrument on the fake network, behind each kind of link: it answers every query alike, until it is told to answer
// otherwise. What it says is made whole and as the protocol wants it; a `Twist` spoils it on its way out.

#ifndef KVTD_TESTS_PROOF_FAKE_INSTRUMENT_H
#define KVTD_TESTS_PROOF_FAKE_INSTRUMENT_H

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Link.h"
#include "fake_network.h"

namespace kvtd::test {

using Speeches = std::vector<fuzz::Speech>;
// Makes of the bytes that would go out what goes out.
using Twist = std::function<Speeches(std::string bytes)>;

// What the instrument says on one of its connections.
class Mouth {
 public:
  void Say(Speeches speeches) { waiting_.insert(waiting_.end(), speeches.begin(), speeches.end()); }
  void Say(std::string bytes) { waiting_.push_back({fuzz::Speech::Kind::kBytes, {}, std::move(bytes)}); }
  // Over and over, a piece every millisecond.
  void SayForEver(std::string piece) { endless_ = std::move(piece); }
  void FallSilent() {
    waiting_.clear();
    endless_.clear();
  }

  fuzz::Speech Next() {
    if (!endless_.empty()) return {fuzz::Speech::Kind::kBytes, std::chrono::milliseconds(1), endless_};
    if (waiting_.empty()) return {fuzz::Speech::Kind::kSilence, std::chrono::milliseconds(1), {}};
    fuzz::Speech next = std::move(waiting_.front());
    waiting_.pop_front();
    return next;
  }

 private:
  std::deque<fuzz::Speech> waiting_;
  std::string endless_;
};

// One connection; what is heard on it is somebody else's matter.
class FakeConnection : public fuzz::Peer {
 public:
  explicit FakeConnection(std::function<void(FakeConnection&)> take) : take_(std::move(take)) {}

  void Hear(std::string_view bytes) override {
    heard += bytes;
    take_(*this);
  }
  fuzz::Speech Speak() override { return mouth.Next(); }

  // What came and is not yet understood.
  std::string heard;
  Mouth mouth;

 private:
  const std::function<void(FakeConnection&)> take_;
};

class FakeInstrument {
 public:
  static std::unique_ptr<FakeInstrument> Make(LinkKind kind);
  virtual ~FakeInstrument() = default;
  FakeInstrument(const FakeInstrument&) = delete;
  FakeInstrument& operator=(const FakeInstrument&) = delete;

  virtual const char* resource() const = 0;
  virtual std::vector<fuzz::Peer*> peers() = 0;

  // What is said to each query from now on; before, what a bring-up asks is answered.
  void Answer(std::string answer) { answer_ = std::move(answer); }
  // The same for *ESR? by itself; before, it is a query like others.
  void AnswerStatus(std::string status) { status_ = std::move(status); }
  // The last query was that one.
  bool WasAskedForStatus() const { return asked_for_status_; }
  // And what becomes of it on its way.
  void TwistAnswers(Twist twist) { twist_answer_ = std::move(twist); }
  // The same for what says that a message was taken, where the protocol has such a thing.
  void TwistReceipts(Twist twist) { twist_receipt_ = std::move(twist); }
  // Each query is answered with this over and over, a piece every millisecond.
  void AnswerForEver(std::string piece) { endless_ = std::move(piece); }
  // The protocol's other connection: HiSLIP's asynchronous one, the abort channel of VXI-11.
  virtual Mouth& beside() = 0;
  // What is not yet said is never said, and what is said from now on is not spoilt.
  void FallSilent() {
    twist_answer_ = twist_receipt_ = nullptr;
    endless_.clear();
    if (status_) status_ = "0\n";
    DropAnswers();
  }

  // Lines and queries that came since the last time.
  int TakeLines() { return std::exchange(lines_, 0); }
  int TakeQueries() { return std::exchange(queries_, 0); }
  int TakeStatusQueries() { return std::exchange(status_queries_, 0); }

 protected:
  FakeInstrument() = default;

  // The answer to a line, when it is a query.
  std::optional<std::string> Ask(std::string_view line);
  // The lines among these bytes, taken out of them.
  std::vector<std::string> TakeLinesOf(std::string& bytes);
  Speeches AsAnswer(std::string bytes) const { return Twisted(twist_answer_, std::move(bytes)); }
  Speeches AsReceipt(std::string bytes) const { return Twisted(twist_receipt_, std::move(bytes)); }
  const std::string& endless() const { return endless_; }

 private:
  virtual void DropAnswers() = 0;
  static Speeches Twisted(const Twist& twist, std::string bytes);

  std::optional<std::string> answer_;
  std::optional<std::string> status_;
  bool asked_for_status_ = false;
  Twist twist_answer_;
  Twist twist_receipt_;
  std::string endless_;
  int lines_ = 0;
  int queries_ = 0;
  int status_queries_ = 0;
};

std::unique_ptr<FakeInstrument> MakeHislipInstrument();
std::unique_ptr<FakeInstrument> MakeVxi11Instrument();

}  // namespace kvtd::test

#endif
