// A driver's session on a fake instrument, and the calls that are tried there.

#ifndef KVTD_TESTS_PROOF_FAULT_BENCH_H
#define KVTD_TESTS_PROOF_FAULT_BENCH_H

#include <KVTD481X2C.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <optional>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "Calls.h"
#include "DriverDialogue.h"
#include "FakeInstrument.h"
#include "LinkNames.h"

namespace kvtd::test {

using fuzz::FakeNetwork;
using fuzz::Speech;
using Kind = Speech::Kind;

inline constexpr ViStatus kVisaOutOfMemory = Status(0xBFFF003CU);
inline constexpr ViStatus kVisaIo = Status(0xBFFF003EU);
inline constexpr ViStatus kVisaNotFound = Status(0xBFFF0011U);

inline constexpr ViInt32 kTimeout = 30;
// What VXI-11 gives a device to say itself that time is up comes on top: once for a message, once for its answer.
inline constexpr Milliseconds kGrace{150};

struct Outcome {
  // Empty when an exception has left the call.
  std::optional<ViStatus> status;
  std::string outputs;
  Milliseconds taken{0};
  int exchanges = 0;
  bool disturbed = false;

  bool Same(const Outcome& other) const { return status == other.status && outputs == other.outputs; }
  bool IsOneOf(std::initializer_list<ViStatus> allowed) const;
};
void PrintTo(const Outcome& outcome, std::ostream* stream);

// Whether the driver asks for the instrument's status behind each exchange.
enum class Check { kOff, kOn };

// A session whose bring-up is over. When it ends, nothing may be left of it.
class Bench {
 public:
  explicit Bench(LinkKind kind, ViInt32 timeout = kTimeout, Check check = Check::kOff);
  ~Bench();
  Bench(const Bench&) = delete;
  Bench& operator=(const Bench&) = delete;

  Outcome Make(const Call& call);
  // Asks for something whose answer is known, and fails the test when another value comes.
  ViStatus AskOn();
  // The same after all that is wrong has ended, and after a device clear; again when it takes too long.
  ViStatus AskAnew();

 private:
  const std::unique_ptr<FakeInstrument> made_;
  const FakeNetwork network_;

 public:
  FakeInstrument& instrument = *made_;
  ViSession vi = VI_NULL;
};

// A call, an answer that suits it, and what comes of the two when nothing is wrong.
struct Subject {
  Call call;
  std::string answer;
  Outcome ordinary;
};
// The calls that ask the instrument something, and those that only tell it something.
const std::vector<Subject>& Readers(LinkKind kind);
const std::vector<Subject>& Writers(LinkKind kind);

// All that the call did was done in its time.
void ExpectInTime(const Call& call, const Outcome& outcome);
// Kept on purpose: what becomes of the first half of a list does not stop the second.
bool DropsAStatus(const Call& call);
// What it asks for is what the check asks for too.
bool AsksForTheStatusItself(const Call& call);
// Its status is that of putting a timeout back behind the check, as is told where it is described.
bool HidesItsCheck(const Call& call);

// How many cases a test has tried: a proof of nothing would pass as well. They are told in a line "proof: ...".
class Cases {
 public:
  Cases(LinkKind link, const char* of_what, int least) : link_(link), of_what_(of_what), least_(least) {}
  ~Cases();
  Cases(const Cases&) = delete;
  Cases& operator=(const Cases&) = delete;
  void Count() { ++tried_; }

 private:
  const LinkKind link_;
  const char* const of_what_;
  const int least_;
  int tried_ = 0;
};

// In brief, one of so many, drawn: of each call others, so that together they go through all. Always the same ones.
class Share {
 public:
  explicit Share(std::size_t one_of);
  bool Next() { return draw_() % one_of_ == 0; }

 private:
  const std::size_t one_of_;
  std::minstd_rand draw_;
};

// The tests of each link. None leaves a descriptor behind.
class Faults : public testing::TestWithParam<LinkKind> {
 protected:
  void SetUp() override;
  void TearDown() override;

  LinkKind link() const { return GetParam(); }
  bool is_framed() const { return link() != LinkKind::Socket; }
  bool has_receipts() const { return link() == LinkKind::Vxi11; }
  const std::vector<Subject>& readers() const { return Readers(link()); }
  const std::vector<Subject>& writers() const { return Writers(link()); }

 private:
  std::size_t descriptors_ = 0;
};

}  // namespace kvtd::test

#endif
