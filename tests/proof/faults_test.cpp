// What every call that speaks to the instrument makes of a network that fails at each of its system calls, on each
// link.
//
// The network is inside the process and so is its clock: the time that a call takes is exact.

#include <cerrno>
#include <string>
#include <utility>

#include "FaultBench.h"
#include "Proof.h"

namespace kvtd::test {
namespace {

using fuzz::Disturbance;
using Which = Disturbance::Call;

struct Failure {
  Disturbance::Call call;
  int error;
  const char* name;
};

// Harmless: the call is made again.
constexpr Failure kPassing[] = {
    {Which::kSend, EINTR, "send: EINTR"},      {Which::kSend, EAGAIN, "send: EAGAIN"},
    {Which::kSend, 0, "send: one byte"},       {Which::kReceive, EINTR, "recv: EINTR"},
    {Which::kReceive, EAGAIN, "recv: EAGAIN"}, {Which::kReceive, 0, "recv: one byte"},
    {Which::kPoll, EINTR, "poll: EINTR"},      {Which::kEventDescriptor, EMFILE, "eventfd: EMFILE"},
};

struct Fatal {
  Failure failure;
  ViStatus told;
};
constexpr Fatal kFatal[] = {
    {{Which::kSend, ECONNRESET, "send: ECONNRESET"}, kVisaConnectionLost},
    {{Which::kSend, EPIPE, "send: EPIPE"}, kVisaConnectionLost},
    {{Which::kSend, ETIMEDOUT, "send: ETIMEDOUT"}, kVisaConnectionLost},
    {{Which::kSend, ENOBUFS, "send: ENOBUFS"}, kVisaOutOfMemory},
    {{Which::kSend, EBADF, "send: EBADF"}, kVisaIo},
    {{Which::kReceive, ECONNRESET, "recv: ECONNRESET"}, kVisaConnectionLost},
    {{Which::kReceive, ETIMEDOUT, "recv: ETIMEDOUT"}, kVisaConnectionLost},
    {{Which::kReceive, ENOMEM, "recv: ENOMEM"}, kVisaOutOfMemory},
    {{Which::kPoll, ENOMEM, "poll: ENOMEM"}, kVisaOutOfMemory},
};

// Disturbs each system call of the kind in turn, up to the one that is not made any more.
template <class Try>
void AtEachSystemCall(const Failure& failure, const Try& attempt) {
  constexpr std::size_t kMostSystemCalls = 50;
  for (std::size_t after = 0; after < kMostSystemCalls; ++after) {
    SCOPED_TRACE(std::string(failure.name) + " at " + std::to_string(after));
    if (!attempt(Disturbance{failure.call, after, failure.error, false})) return;
  }
}

// Late, so that it is waited for.
Speeches Late(std::string bytes) { return {{Kind::kBytes, Milliseconds(10), std::move(bytes)}}; }

class SystemCalls : public Faults {
 protected:
  template <class Try>
  void ForEachSubject(const Try& attempt) {
    for (const auto* const subjects : {&readers(), &writers()}) {
      for (const Subject& subject : *subjects) {
        SCOPED_TRACE(subject.call.name());
        for (const Check check : {Check::kOff, Check::kOn}) {
          if (check == Check::kOn && AsksForTheStatusItself(subject.call)) continue;
          SCOPED_TRACE(check == Check::kOn ? "with a check" : "");
          attempt(subject, check);
        }
      }
    }
  }
};
INSTANTIATE_TEST_SUITE_P(Links, SystemCalls, EveryLink(), LinkName);

TEST_P(SystemCalls, DisturbedOnceChangeNothing) {
  Cases cases(link(), "a system call that is disturbed", 1000);
  Share share(24);
  ForEachSubject([&](const Subject& subject, Check check) {
    for (const Failure& failure : kPassing) {
      if (!share.Next()) continue;
      AtEachSystemCall(failure, [&](const Disturbance& disturbance) {
        cases.Count();
        Bench bench(link(), kTimeout, check);
        bench.instrument.Answer(subject.answer);
        bench.instrument.TwistAnswers(Late);
        FakeNetwork::Disturb(disturbance);
        const Outcome outcome = bench.Make(subject.call);
        EXPECT_TRUE(outcome.Same(subject.ordinary)) << testing::PrintToString(outcome);
        ExpectInTime(subject.call, outcome);
        return outcome.disturbed;
      });
    }
  });
}

TEST_P(SystemCalls, DisturbedForEverEndInTime) {
  Cases cases(link(), "a system call that is disturbed for ever", 800);
  Share share(10);
  ForEachSubject([&](const Subject& subject, Check check) {
    for (const Failure& failure : kPassing) {
      // A poll that is interrupted for ever is no wait at all.
      if (failure.call == Which::kPoll || !share.Next()) continue;
      SCOPED_TRACE(failure.name);
      cases.Count();
      Bench bench(link(), kTimeout, check);
      bench.instrument.Answer(subject.answer);
      FakeNetwork::Disturb({failure.call, 0, failure.error, true});
      const Outcome outcome = bench.Make(subject.call);
      EXPECT_TRUE(outcome.IsOneOf({kVisaTimeout}) || outcome.Same(subject.ordinary) || DropsAStatus(subject.call))
          << testing::PrintToString(outcome);
      ExpectInTime(subject.call, outcome);
      // A record that was sent in part cannot be ended any more.
      const ViStatus after = bench.AskAnew();
      EXPECT_STATUS(link() == LinkKind::Vxi11 && after < 0 ? kVisaConnectionLost : VI_SUCCESS, after);
    }
  });
}

TEST_P(SystemCalls, FailingAreToldByTheStatus) {
  Cases cases(link(), "a system call that fails", 1000);
  Share share(24);
  ForEachSubject([&](const Subject& subject, Check check) {
    for (const auto& [failure, told] : kFatal) {
      if (!share.Next()) continue;
      AtEachSystemCall(failure, [&, told = told, error = failure.error](const Disturbance& disturbance) {
        cases.Count();
        Bench bench(link(), kTimeout, check);
        bench.instrument.Answer(subject.answer);
        bench.instrument.TwistAnswers(Late);
        FakeNetwork::Disturb(disturbance);
        const Outcome outcome = bench.Make(subject.call);
        ExpectInTime(subject.call, outcome);
        if (!outcome.disturbed) {
          EXPECT_TRUE(outcome.Same(subject.ordinary)) << testing::PrintToString(outcome);
          return false;
        }
        const bool hides = DropsAStatus(subject.call) || (check == Check::kOn && HidesItsCheck(subject.call));
        EXPECT_TRUE(outcome.IsOneOf({told}) || hides) << testing::PrintToString(outcome);
        const bool lost = error == ECONNRESET || error == EPIPE || error == ETIMEDOUT;
        EXPECT_STATUS(lost ? kVisaConnectionLost : VI_SUCCESS, bench.AskAnew());
        return true;
      });
    }
  });
}

TEST_P(SystemCalls, FailingAmidABringUpLeaveAnOpenSessionOrNothing) {
  constexpr Failure kFailures[] = {
      {Which::kSocket, EMFILE, "socket: EMFILE"},
      {Which::kSocket, ENFILE, "socket: ENFILE"},
      {Which::kSocket, ENOMEM, "socket: ENOMEM"},
      {Which::kConnect, ECONNREFUSED, "connect: ECONNREFUSED"},
      {Which::kConnect, ETIMEDOUT, "connect: ETIMEDOUT"},
      {Which::kConnect, ENETUNREACH, "connect: ENETUNREACH"},
      {Which::kConnect, EINTR, "connect: EINTR"},
      {Which::kConnect, EINPROGRESS, "connect: EINPROGRESS"},
      {Which::kSend, ECONNRESET, "send: ECONNRESET"},
      {Which::kSend, EPIPE, "send: EPIPE"},
      {Which::kSend, EINTR, "send: EINTR"},
      {Which::kSend, EAGAIN, "send: EAGAIN"},
      {Which::kSend, 0, "send: one byte"},
      {Which::kReceive, ECONNRESET, "recv: ECONNRESET"},
      {Which::kReceive, EINTR, "recv: EINTR"},
      {Which::kReceive, EAGAIN, "recv: EAGAIN"},
      {Which::kReceive, 0, "recv: one byte"},
      {Which::kPoll, EINTR, "poll: EINTR"},
      {Which::kPoll, ENOMEM, "poll: ENOMEM"},
      {Which::kEventDescriptor, EMFILE, "eventfd: EMFILE"},
  };
  Cases cases(link(), "a bring-up that meets a failing system call", 50);
  for (const Failure& failure : kFailures) {
    const bool harmless = failure.error == EINTR || failure.error == EAGAIN || failure.error == EINPROGRESS ||
                          failure.error == 0 || failure.call == Which::kEventDescriptor;
    AtEachSystemCall(failure, [&](const Disturbance& disturbance) {
      cases.Count();
      const auto instrument = FakeInstrument::Make(link());
      const FakeNetwork network(instrument->peers());
      FakeNetwork::Disturb(disturbance);
      std::string resource = instrument->resource();
      ViSession vi = 77;
      const ViStatus status = KVTD481X2C_InitWithOptions(resource.data(), VI_TRUE, VI_FALSE, "QueryInstrStatus=1", &vi);
      const bool disturbed = FakeNetwork::Disturbed();
      // A link without its abort channel is a link.
      const bool dispensable = has_receipts() && disturbance.after == 2 &&
                               (failure.call == Which::kSocket || failure.call == Which::kConnect);
      // A device may end the connection when it is asked for two calls at a time. Another is made.
      const bool is_lost = failure.error == ECONNRESET || failure.error == EPIPE;
      const bool is_at_the_question = (failure.call == Which::kSend && disturbance.after == 2) ||
                                      (failure.call == Which::kReceive && (disturbance.after | 1) == 3);
      const bool is_made_good = has_receipts() && is_lost && is_at_the_question;
      EXPECT_EQ(harmless || dispensable || is_made_good || !disturbed, status == VI_SUCCESS) << std::hex << status;
      const Outcome outcome{status, {}};
      EXPECT_TRUE(outcome.IsOneOf({VI_SUCCESS, kVisaConnectionLost, kVisaOutOfMemory, kVisaNotFound, kVisaTimeout}))
          << std::hex << status;
      if (vi != VI_NULL) {
        EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
      }
      EXPECT_EQ(0, FakeNetwork::OpenConnections());
      return disturbed;
    });
  }
}

}  // namespace
}  // namespace kvtd::test
