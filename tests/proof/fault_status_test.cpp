// The driver's check of the instrument's status: what every call makes of an event status register that tells an error,
// and of an answer about it that is late, cut or false.

#include <set>
#include <string>
#include <utility>

#include "FaultBench.h"
#include "Reading.h"

namespace kvtd::test {
namespace {

const std::set<std::string> kAskForNoStatus = {
    // The next one to ask is the caller.
    "error_query",
    // Read byte by byte, and what its buffer had no room for stays unread.
    "ReadFile",
    // The instrument may be gone, or be somewhere else.
    "FactoryReset", "ResetAll", "SetStaticLanConfiguration", "Shutdown",
    // They fail before.
    "GetAttributeViReal64(AM_DEPTH)", "GetAttributeViReal64(FM_DEVIATION)", "GetAttributeViReal64(PM_DEVIATION)",
    "SetAttributeViReal64(AM_DEPTH)"};

class StatusCheck : public Faults {
 protected:
  // Those that ask for the status, and whether they tell it.
  template <class Try>
  void ForEachChecked(const Try& attempt) {
    for (const auto* const subjects : {&readers(), &writers()}) {
      for (const Subject& subject : *subjects) {
        const std::string name = subject.call.name();
        if (kAskForNoStatus.count(name) > 0 || AsksForTheStatusItself(subject.call)) continue;
        SCOPED_TRACE(name);
        attempt(subject, HidesItsCheck(subject.call));
      }
    }
  }

  static Outcome MakeInTime(Bench& bench, const Subject& subject, const std::string& status_answer) {
    bench.instrument.Answer(subject.answer);
    bench.instrument.AnswerStatus(status_answer);
    const Outcome outcome = bench.Make(subject.call);
    ExpectInTime(subject.call, outcome);
    return outcome;
  }
};
INSTANTIATE_TEST_SUITE_P(Links, StatusCheck, EveryLink(), LinkName);

TEST_P(StatusCheck, IsMadeBehindEachExchangeAndChangesNothing) {
  Cases cases(link(), "a status that tells no error", 400);
  std::set<std::string> ask_for_no_status;
  for (const auto* const subjects : {&readers(), &writers()}) {
    for (const Subject& subject : *subjects) {
      if (AsksForTheStatusItself(subject.call)) continue;
      SCOPED_TRACE(subject.call.name());
      cases.Count();
      Bench bench(link(), kTimeout, Check::kOn);
      bench.instrument.Answer(subject.answer);
      const Outcome outcome = bench.Make(subject.call);
      EXPECT_TRUE(outcome.Same(subject.ordinary)) << testing::PrintToString(outcome);
      const int asked = bench.instrument.TakeStatusQueries();
      EXPECT_EQ(subject.ordinary.exchanges + asked, outcome.exchanges);
      if (asked == 0) ask_for_no_status.insert(subject.call.name());
    }
  }
  EXPECT_EQ(kAskForNoStatus, ask_for_no_status);
}

TEST_P(StatusCheck, TellsTheErrorsAlone) {
  struct Register {
    const char* answer;
    bool is_error;
  };
  // Operation complete, request control, query, device, execution, command error, user request, power on.
  const Register registers[] = {{"1\n", false},   {"2\n", false}, {"4\n", true},   {"8\n", true},
                                {"16\n", true},   {"32\n", true}, {"64\n", false}, {"128\n", false},
                                {"195\n", false}, {"60\n", true}, {"255\n", true}, {"+32\n", true}};
  Cases cases(link(), "a status that tells of something", 500);
  Share share(12);
  ForEachChecked([&](const Subject& subject, bool is_hidden) {
    for (const auto& [answer, is_error] : registers) {
      if (!share.Next()) continue;
      SCOPED_TRACE(answer);
      cases.Count();
      Bench bench(link(), kTimeout, Check::kOn);
      const Outcome outcome = MakeInTime(bench, subject, answer);
      if (is_error && !is_hidden) {
        EXPECT_TRUE(outcome.IsOneOf({kInstrumentError})) << testing::PrintToString(outcome);
        ViStatus code = VI_SUCCESS;
        ViChar text[256] = "";
        EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetError(bench.vi, &code, sizeof text, text));
        EXPECT_STATUS(kInstrumentError, code);
        EXPECT_EQ(kInstrumentErrorText, text);
      } else {
        EXPECT_TRUE(outcome.Same(subject.ordinary)) << testing::PrintToString(outcome);
      }
      EXPECT_STATUS(VI_SUCCESS, bench.AskOn());
    }
  });
}

TEST_P(StatusCheck, TakesNoFalseAnswerForAStatus) {
  // Query, device, execution and command error.
  constexpr ViInt32 kErrors = 0x3C;
  Cases cases(link(), "a false answer about the status", 300);
  Share share(50);
  ForEachChecked([&](const Subject& subject, bool is_hidden) {
    for (const std::string& answer : FalseAnswers()) {
      if (!share.Next()) continue;
      SCOPED_TRACE(Visible(answer.substr(0, 20)));
      cases.Count();
      Bench bench(link(), kTimeout, Check::kOn);
      const Outcome outcome = MakeInTime(bench, subject, answer);
      const auto [status, value] = ReadInteger(answer, EndOn(link()));
      if (is_hidden) {
        EXPECT_TRUE(outcome.Same(subject.ordinary)) << testing::PrintToString(outcome);
      } else if (status < 0) {
        // Told by the second half alone, which over VXI-11 may wait in vain for the rest of a long answer to the first.
        const bool may_wait = link() == LinkKind::Vxi11 && DropsAStatus(subject.call);
        const bool waits = may_wait && outcome.IsOneOf({kVisaTimeout});
        EXPECT_TRUE(waits || outcome.IsOneOf({status})) << testing::PrintToString(outcome) << std::hex << status;
      } else if ((value & kErrors) != 0) {
        EXPECT_TRUE(outcome.IsOneOf({kInstrumentError})) << testing::PrintToString(outcome);
      } else {
        EXPECT_TRUE(outcome.Same(subject.ordinary)) << testing::PrintToString(outcome);
      }
      EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
    }
  });
}

// What the instrument says about its status, and nothing else.
Twist OnlyOfTheStatus(const FakeInstrument& instrument, Twist twist) {
  return [&instrument, twist = std::move(twist)](std::string bytes) {
    if (instrument.WasAskedForStatus()) return twist(std::move(bytes));
    return Speeches{{Kind::kBytes, {}, std::move(bytes)}};
  };
}

TEST_P(StatusCheck, IsNotPassedWithoutTheWholeAnswer) {
  constexpr std::pair<Kind, ViStatus> kEnds[] = {{Kind::kHalfClose, kVisaConnectionLost},
                                                 {Kind::kClose, kVisaConnectionLost},
                                                 {Kind::kReset, kVisaConnectionLost},
                                                 {Kind::kSilence, kVisaTimeout}};
  Cases cases(link(), "an answer about the status that is cut", 300);
  Share share(12);
  ForEachChecked([&](const Subject& subject, bool is_hidden) {
    for (const auto& [end, told] : kEnds) {
      for (const bool has_begun : {false, true}) {
        if (!share.Next()) continue;
        cases.Count();
        Bench bench(link(), kTimeout, Check::kOn);
        bench.instrument.Answer(subject.answer);
        bench.instrument.TwistAnswers(OnlyOfTheStatus(bench.instrument, [&, end = end](const std::string& bytes) {
          Speeches speeches;
          if (has_begun) speeches.push_back({Kind::kBytes, {}, bytes.substr(0, bytes.size() / 2)});
          if (end != Kind::kSilence) speeches.push_back({end, {}, {}});
          return speeches;
        }));
        const Outcome outcome = bench.Make(subject.call);
        ExpectInTime(subject.call, outcome);
        EXPECT_TRUE(outcome.IsOneOf({is_hidden ? ViStatus{VI_SUCCESS} : told}) || DropsAStatus(subject.call))
            << testing::PrintToString(outcome);
        const ViStatus after = bench.AskAnew();
        // Half a message may have been left, and nothing tells where the next begins.
        const bool is_lost = end != Kind::kSilence || (is_framed() && after < 0);
        EXPECT_STATUS(is_lost ? kVisaConnectionLost : VI_SUCCESS, after);
      }
    }
  });
}

TEST_P(StatusCheck, ThatIsLateIsNotTakenForTheNextAnswer) {
  Cases cases(link(), "an answer about the status that is late", 100);
  Share share(4);
  ForEachChecked([&](const Subject& subject, bool is_hidden) {
    if (!share.Next()) return;
    cases.Count();
    // Within what these wait, nothing is late.
    constexpr Milliseconds kTooLate(100000);
    Bench bench(link(), kTimeout, Check::kOn);
    bench.instrument.Answer(subject.answer);
    bench.instrument.TwistAnswers(OnlyOfTheStatus(bench.instrument, [&](std::string bytes) {
      return Speeches{{Kind::kBytes, kTooLate, std::move(bytes)}};
    }));
    const Outcome outcome = bench.Make(subject.call);
    ExpectInTime(subject.call, outcome);
    EXPECT_TRUE(outcome.IsOneOf({is_hidden ? ViStatus{VI_SUCCESS} : kVisaTimeout}) || DropsAStatus(subject.call))
        << testing::PrintToString(outcome);
    FakeNetwork::Pass(kTooLate);
    EXPECT_STATUS(VI_SUCCESS, is_framed() ? bench.AskOn() : bench.AskAnew());
  });
}

}  // namespace
}  // namespace kvtd::test
