// What every call that reads makes of answers that are late, in pieces, cut, false or too long, on each link.

#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "FaultBench.h"
#include "Proof.h"
#include "Reading.h"

namespace kvtd::test {
namespace {

class Answers : public Faults {};
INSTANTIATE_TEST_SUITE_P(Links, Answers, EveryLink(), LinkName);

// The bytes in pieces of a size, each a receive of its own.
Twist InPieces(std::size_t size, Milliseconds pause) {
  return [=](const std::string& bytes) {
    Speeches speeches;
    for (std::size_t place = 0; place < bytes.size(); place += size) {
      speeches.push_back({Kind::kBytes, pause, bytes.substr(place, size)});
    }
    return speeches;
  };
}

TEST_P(Answers, ThatComeByteByByteAreTheSame) {
  Cases cases(link(), "an answer byte by byte", 300);
  for (const Subject& reader : readers()) {
    SCOPED_TRACE(reader.call.name());
    cases.Count();
    Bench bench(link(), 1000);
    bench.instrument.Answer(reader.answer);
    bench.instrument.TwistAnswers(InPieces(1, Milliseconds(1)));
    bench.instrument.TwistReceipts(InPieces(1, Milliseconds(1)));
    const Outcome outcome = bench.Make(reader.call);
    EXPECT_TRUE(outcome.Same(reader.ordinary)) << testing::PrintToString(outcome);
  }
}

TEST_P(Answers, ThatComeTwiceAreTheSame) {
  const auto twice = [](const std::string& bytes) { return Speeches{{Kind::kBytes, {}, bytes + bytes}}; };
  Cases cases(link(), "an answer that comes twice", 300);
  for (const Subject& reader : readers()) {
    SCOPED_TRACE(reader.call.name());
    cases.Count();
    Bench bench(link());
    bench.instrument.Answer(reader.answer);
    bench.instrument.TwistAnswers(twice);
    bench.instrument.TwistReceipts(twice);
    const Outcome outcome = bench.Make(reader.call);
    EXPECT_TRUE(outcome.Same(reader.ordinary)) << testing::PrintToString(outcome);
    // Where an answer names its question, the second must not pass for that of the next.
    if (is_framed()) {
      EXPECT_STATUS(VI_SUCCESS, bench.AskOn());
    }
    EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
  }
}

TEST_P(Answers, ThatAreLateAreWaitedForOrGivenUp) {
  Cases cases(link(), "an answer that comes late", 1500);
  for (const Subject& reader : readers()) {
    for (const int delay : {5, kTimeout - 5, 3 * kTimeout, 100 * kTimeout}) {
      SCOPED_TRACE(reader.call.name() + " after " + std::to_string(delay) + " ms");
      cases.Count();
      Bench bench(link());
      bench.instrument.Answer(reader.answer);
      // Only the first, so that a call with several questions has its time for each.
      bool first = true;
      bench.instrument.TwistAnswers([&](std::string bytes) {
        const Milliseconds after(std::exchange(first, false) ? delay : 0);
        return Speeches{{Kind::kBytes, after, std::move(bytes)}};
      });
      const Outcome outcome = bench.Make(reader.call);
      ExpectInTime(reader.call, outcome);
      if (delay < kTimeout) {
        EXPECT_TRUE(outcome.Same(reader.ordinary)) << testing::PrintToString(outcome);
      } else {
        EXPECT_TRUE(outcome.IsOneOf({kVisaTimeout}) || outcome.Same(reader.ordinary))
            << testing::PrintToString(outcome);
      }
      FakeNetwork::Pass(Milliseconds(delay));
      EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
    }
  }
}

// A block tells its length: it is whole without the line feed behind it.
bool IsWholeBlock(const Subject& reader, std::size_t length) {
  return reader.answer.starts_with("#") && length == reader.answer.size() - 1;
}

struct Cut {
  Kind kind;
  ViStatus told;
};
constexpr Cut kCuts[] = {{Kind::kHalfClose, kVisaConnectionLost},
                         {Kind::kClose, kVisaConnectionLost},
                         {Kind::kReset, kVisaConnectionLost},
                         {Kind::kSilence, kVisaTimeout}};

// Of the answer, or of what says that the question was taken.
std::size_t SizeOnTheWire(LinkKind link, const Subject& reader, bool receipt) {
  std::size_t size = 0;
  Bench bench(link);
  bench.instrument.Answer(reader.answer);
  const Twist measure = [&](std::string bytes) {
    if (size == 0) size = bytes.size();
    return Speeches{{Kind::kBytes, {}, std::move(bytes)}};
  };
  receipt ? bench.instrument.TwistReceipts(measure) : bench.instrument.TwistAnswers(measure);
  bench.Make(reader.call);
  return size;
}

TEST_P(Answers, ThatEndAtAnyByteAreNotTakenForTheAnswer) {
  Cases cases(link(), "an answer that is cut", 700);
  Share share(has_receipts() ? 50 : is_framed() ? 20 : 4);
  for (const Subject& reader : readers()) {
    for (const bool receipt : {false, true}) {
      if (receipt && !has_receipts()) continue;
      const std::size_t whole = SizeOnTheWire(link(), reader, receipt);
      for (const auto& [end, told] : kCuts) {
        for (std::size_t length = 0; length < whole; ++length) {
          if (!share.Next()) continue;
          SCOPED_TRACE(reader.call.name() + (receipt ? ", its receipt" : "") + " after " + std::to_string(length) +
                       " of " + Visible(reader.answer));
          cases.Count();
          Bench bench(link());
          bench.instrument.Answer(reader.answer);
          const Twist cut = [&, end = end](const std::string& bytes) {
            Speeches speeches;
            if (length > 0) speeches.push_back({Kind::kBytes, {}, bytes.substr(0, length)});
            if (end != Kind::kSilence) speeches.push_back({end, {}, {}});
            return speeches;
          };
          receipt ? bench.instrument.TwistReceipts(cut) : bench.instrument.TwistAnswers(cut);
          const Outcome outcome = bench.Make(reader.call);
          ExpectInTime(reader.call, outcome);
          const ViStatus after = bench.AskAnew();
          if (is_framed()) {
            // What fills the last word of a record up may be missing; the next record shows it.
            const bool is_filled_up = has_receipts() && length + 3 >= whole;
            const bool is_block = reader.answer.starts_with("#") && length + 1 == whole;
            // The reply to the read that came with the question follows all the same, and is taken for what is missing.
            const bool goes_on = receipt && end == Kind::kSilence;
            EXPECT_TRUE(outcome.IsOneOf({told}) || DropsAStatus(reader.call) ||
                        (goes_on && outcome.IsOneOf({kVisaConnectionLost, kVisaIo})) ||
                        ((is_filled_up || is_block) && outcome.Same(reader.ordinary)) ||
                        (is_filled_up && outcome.IsOneOf({kVisaConnectionLost})))
                << testing::PrintToString(outcome);
            // Half a message was left, and nothing tells where the next begins.
            EXPECT_STATUS(after < 0 || end != Kind::kSilence ? kVisaConnectionLost : VI_SUCCESS, after);
            continue;
          }
          if (IsWholeBlock(reader, length) && outcome.Same(reader.ordinary)) continue;
          EXPECT_TRUE(outcome.IsOneOf({told})) << testing::PrintToString(outcome);
          EXPECT_STATUS(end == Kind::kSilence ? VI_SUCCESS : kVisaConnectionLost, after);
        }
      }
    }
  }
}

TEST_P(Answers, BehindGarbageAreNotTakenForTheAnswer) {
  const std::string garbage[] = {"\n",
                                 "noise\n",
                                 "#0",
                                 "H",
                                 "HS",
                                 std::string(1, '\0'),
                                 std::string(4, '\0'),
                                 std::string(100, '\0'),
                                 "\xFF",
                                 "\x80" + std::string(3, '\0'),
                                 std::string(16, '\xFF'),
                                 std::string(5000, 'x'),
                                 "7,"};
  Cases cases(link(), "an answer behind garbage", 1000);
  Share share(4);
  for (const Subject& reader : readers()) {
    for (const std::string& noise : garbage) {
      if (!share.Next()) continue;
      SCOPED_TRACE(reader.call.name() + " behind " + Visible(noise.substr(0, 20)));
      cases.Count();
      Bench bench(link());
      bench.instrument.Answer(reader.answer);
      bench.instrument.TwistAnswers([&](const std::string& bytes) {
        return Speeches{{Kind::kBytes, {}, noise + bytes}};
      });
      const Outcome outcome = bench.Make(reader.call);
      ExpectInTime(reader.call, outcome);
      const ViStatus after = bench.AskAnew();
      if (is_framed()) {
        EXPECT_TRUE(outcome.IsOneOf({kVisaTimeout, kVisaConnectionLost}) || outcome.Same(reader.ordinary) ||
                    DropsAStatus(reader.call))
            << testing::PrintToString(outcome);
        EXPECT_STATUS(after < 0 ? kVisaConnectionLost : VI_SUCCESS, after);
      } else {
        EXPECT_TRUE(IsRight(reader, noise + reader.answer, End::kOpen, outcome));
        EXPECT_STATUS(VI_SUCCESS, after);
      }
    }
  }
}

TEST_P(Answers, WithoutTheirTerminatorEndWithTheMessageOrInTime) {
  Cases cases(link(), "an answer without its terminator, or with another", 1000);
  Share share(2);
  for (const Subject& reader : readers()) {
    for (const std::string& terminator : {std::string(), std::string("\r"), std::string(";"), std::string(1, '\0'),
                                          std::string("\r\n"), std::string("\n\r")}) {
      if (!share.Next()) continue;
      SCOPED_TRACE(reader.call.name() + " with " + Visible(terminator));
      cases.Count();
      Bench bench(link());
      const std::string answer = reader.answer.substr(0, reader.answer.size() - 1) + terminator;
      bench.instrument.Answer(answer);
      const Outcome outcome = bench.Make(reader.call);
      ExpectInTime(reader.call, outcome);
      EXPECT_TRUE(IsRight(reader, answer, EndOn(link()), outcome));
      if (is_framed() && terminator.empty()) {
        EXPECT_TRUE(outcome.Same(reader.ordinary)) << testing::PrintToString(outcome);
      }
      EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
    }
  }
}

// A count of digits above nine is told by an assertion, where a block is read by hand.
bool EndsTheProcess(const Call& call, const std::string& answer) {
  return call.is("ReadFile") && answer.starts_with("#") && answer.size() > 1 && answer[1] > '9';
}

TEST_P(Answers, ThatAreFalseHarmNothing) {
  Cases cases(link(), "a false answer", 2000);
  Share share(is_framed() ? 8 : 4);
  for (const Subject& reader : readers()) {
    for (const std::string& answer : FalseAnswers()) {
      if (EndsTheProcess(reader.call, answer) || !share.Next()) continue;
      SCOPED_TRACE(reader.call.name() + " with " + Visible(answer.substr(0, 20)));
      cases.Count();
      Bench bench(link());
      bench.instrument.Answer(answer);
      const Outcome outcome = bench.Make(reader.call);
      ExpectInTime(reader.call, outcome);
      EXPECT_TRUE(IsRight(reader, answer, EndOn(link()), outcome));
      EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
    }
  }
}

template <class T>
std::optional<T> NumberOf(const Outcome& outcome) {
  if (!outcome.status || *outcome.status < 0 || outcome.outputs.size() != sizeof(T)) return {};
  T number{};
  std::memcpy(&number, outcome.outputs.data(), sizeof number);
  return number;
}

TEST_P(Answers, ARealNumberIsWhatTheAnswerSays) {
  struct Number {
    const char* answer;
    double value;
    // May also be refused.
    bool must_be_read;
  };
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const Number numbers[] = {{"9.91E37\n", 9.91e37, true}, {"-1.5E-3\n", -1.5e-3, true}, {"+7\n", 7, true},
                            {".5\n", 0.5, true},          {"1E+300\n", 1e300, true},    {"1E999\n", kInfinity, false},
                            {"INF\n", kInfinity, false},  {"-INF\n", -kInfinity, false}};
  Cases cases(link(), "a real number", 500);
  for (const Subject& reader : readers()) {
    // A double is eight bytes, and no other output is.
    if (reader.call.pointers - (reader.call.is_generic() ? 1 : 0) != 1 || !NumberOf<double>(reader.ordinary)) continue;
    for (const Number& number : numbers) {
      SCOPED_TRACE(reader.call.name() + " with " + number.answer);
      cases.Count();
      Bench bench(link());
      bench.instrument.Answer(number.answer);
      const Outcome outcome = bench.Make(reader.call);
      const std::optional<double> value = NumberOf<double>(outcome);
      EXPECT_TRUE(value || !number.must_be_read) << testing::PrintToString(outcome);
      if (value) {
        EXPECT_EQ(number.value, *value);
      }
    }
    Bench bench(link());
    bench.instrument.Answer("NAN\n");
    const std::optional<double> value = NumberOf<double>(bench.Make(reader.call));
    EXPECT_TRUE(!value || std::isnan(*value)) << reader.call.name();
  }
}

TEST_P(Answers, WithoutAnEndAreLeftInTime) {
  Cases cases(link(), "an answer without an end", 700);
  for (const Subject& reader : readers()) {
    for (const char of : {'7', 'A'}) {
      SCOPED_TRACE(reader.call.name() + " with " + of);
      cases.Count();
      Bench bench(link());
      bench.instrument.AnswerForEver(std::string(100, of));
      const Outcome outcome = bench.Make(reader.call);
      ExpectInTime(reader.call, outcome);
      EXPECT_TRUE(IsRight(reader, std::string(5000, of), End::kOpen, outcome));
      EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
    }
  }
}

TEST_P(Answers, OfTenMegabytesStayWithinTheBuffer) {
  constexpr std::size_t kPiece = 50000;
  constexpr std::size_t kSize = 10000000;
  const std::string answer = std::string(kSize, '7') + "\n";
  Cases cases(link(), "an answer of ten megabytes", 1);
  Share share(120);
  for (const Subject& reader : readers()) {
    if (!share.Next()) continue;
    SCOPED_TRACE(reader.call.name());
    cases.Count();
    Bench bench(link());
    bench.instrument.Answer(answer);
    // A message that was begun would have to be ended before a device clear; so it is one piece.
    if (!is_framed()) bench.instrument.TwistAnswers(InPieces(kPiece, {}));
    const Outcome outcome = bench.Make(reader.call);
    ExpectInTime(reader.call, outcome);
    EXPECT_TRUE(IsRight(reader, answer, EndOn(link()), outcome));
    EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
  }
}

}  // namespace
}  // namespace kvtd::test
