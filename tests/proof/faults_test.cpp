// What every call that reads makes of a network that fails at each of its system calls, and of answers that are late,
// in pieces, cut, false or too long.
//
// The network is inside the process and so is its clock: the time that a call takes is exact.

#include <KVTD481X2C.h>
#include <gtest/gtest.h>
#include <visa.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Calls.h"
#include "DriverDialogue.h"
#include "FakeInstrument.h"

namespace kvtd::test {
namespace {

using fuzz::Disturbance;
using fuzz::FakeNetwork;
using fuzz::Speech;
using Kind = Speech::Kind;

constexpr ViStatus kVisaOutOfMemory = Status(0xBFFF003CU);
constexpr ViStatus kVisaIo = Status(0xBFFF003EU);
constexpr ViStatus kVisaNotFound = Status(0xBFFF0011U);

constexpr ViInt32 kTimeout = 30;
constexpr Milliseconds kGrace{100};

// ---- one call against an instrument ----

struct Outcome {
  // Empty when an exception has left the call.
  std::optional<ViStatus> status;
  std::string outputs;
  Milliseconds taken{0};
  int exchanges = 0;
  bool disturbed = false;

  bool Same(const Outcome& other) const { return status == other.status && outputs == other.outputs; }
};

void PrintTo(const Outcome& outcome, std::ostream* stream) {
  *stream << std::hex << (outcome.status ? *outcome.status : 0x7777) << std::dec << " after " << outcome.taken.count()
          << " ms, " << outcome.exchanges << " exchanges, " << Visible(outcome.outputs);
}

// A session on a fake instrument, its bring-up over.
class Bench {
 public:
  Bench() : network_({&instrument, &instrument}) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(resource_.data(), VI_FALSE, VI_FALSE, "", &vi));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, kTimeout));
    instrument.TakeLines();
  }
  ~Bench() {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
    EXPECT_EQ(0, FakeNetwork::OpenConnections());
  }
  Bench(const Bench&) = delete;
  Bench& operator=(const Bench&) = delete;

  Outcome Make(const Call& call) {
    Outcome outcome;
    Arguments arguments = call.Plausible(vi);
    const auto start = FakeNetwork::Now();
    try {
      outcome.status = call(arguments);
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    outcome.taken = std::chrono::duration_cast<Milliseconds>(FakeNetwork::Now() - start);
    outcome.exchanges = instrument.TakeLines();
    outcome.outputs = arguments.Outputs();
    outcome.disturbed = FakeNetwork::Disturbed();
    EXPECT_TRUE(arguments.Intact());
    return outcome;
  }

  // Throws away what is still on its way, and asks for something whose answer is known.
  ViStatus AskAnew() {
    FakeNetwork::Disturb({});
    instrument.FallSilent();
    FakeNetwork::Pass(kGrace);
    instrument.Answer("2.5\n");
    ViSession io = VI_NULL;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOSession(vi, &io));
    viClear(io);
    ViReal64 value = 0;
    const ViStatus status = KVTD481X2C_GetFrequencyMultiplier(vi, &value);
    if (status >= 0) {
      EXPECT_EQ(2.5, value);
    }
    return status;
  }

  FakeInstrument instrument;
  ViSession vi = VI_NULL;

 private:
  const FakeNetwork network_;
  std::string resource_ = "TCPIP0::127.0.0.1::5025::SOCKET";
};

// ---- the calls that read ----

struct Reader {
  Call call;
  std::string answer;
  Outcome ordinary;
};

// Of these one or the other suits each call that can be answered in one line.
constexpr const char* kAnswers[] = {
    "1\n",  "2.5\n", "#14abcd\n", "0,\"No error\"\n", "2026,11,21\n", "FIX\n", "INT\n", "SIN\n", "LIN\n",  "NORM\n",
    "UP\n", "POS\n", "IMM\n",     "AUTO\n",           "ANAL\n",       "OFF\n", "EXT\n", "DC\n",  "GPIB\n", "LF\n"};

const std::vector<Reader>& Readers() {
  static const std::vector<Reader> readers = [] {
    std::vector<Reader> all;
    for (const Call& call : Calls()) {
      if (!call.has_session || call.is("close")) continue;
      std::optional<Reader> reader;
      for (const char* const answer : kAnswers) {
        Bench bench;
        bench.instrument.Answer(answer);
        bench.instrument.TakeQueries();
        const Outcome outcome = bench.Make(call);
        if (bench.instrument.TakeQueries() == 0) break;
        if (!reader) reader = Reader{call, answer, outcome};
        if (!outcome.status || *outcome.status < 0) continue;
        reader = Reader{call, answer, outcome};
        break;
      }
      if (reader) all.push_back(*std::move(reader));
    }
    return all;
  }();
  return readers;
}

// These wait longer than the session's timeout, and tell so.
Milliseconds LongestWait(const Call& call) {
  static const std::map<std::string_view, int> kRaised = {{"TakeScreenshotAndReturnData", 20000},
                                                          {"SelfTest", 10000},
                                                          {"self_test", 2000},
                                                          {"reset", 2000},
                                                          {"ResetWithDefaults", 2000},
                                                          {"Disable", 2000}};
  const auto found = kRaised.find(call.function);
  return Milliseconds(found == kRaised.end() ? kTimeout : std::max(kTimeout, found->second));
}

void ExpectInTime(const Call& call, const Outcome& outcome) {
  EXPECT_LE(outcome.taken, std::max(1, outcome.exchanges) * (LongestWait(call) + kGrace));
}

// Kept on purpose: what becomes of the first half of a list does not stop the second.
bool DropsAStatus(const Call& call) {
  return call.is("CreateFrequencyList") || call.is("CreatePowerList") || call.is("CreateFrequencyPowerList");
}

bool IsOneOf(std::optional<ViStatus> status, std::initializer_list<ViStatus> allowed) {
  return status && std::find(allowed.begin(), allowed.end(), *status) != allowed.end();
}

// How many cases a test has tried: a proof of nothing would pass as well.
class Cases {
 public:
  explicit Cases(int least) : least_(least) {}
  ~Cases() {
    EXPECT_LE(least_, tried_);
    testing::Test::RecordProperty("cases", tried_);
  }
  Cases(const Cases&) = delete;
  Cases& operator=(const Cases&) = delete;
  void Count() { ++tried_; }

 private:
  const int least_;
  int tried_ = 0;
};

// ---- system calls ----

struct Failure {
  Disturbance::Call call;
  int error;
  const char* name;
};

using Which = Disturbance::Call;

constexpr std::size_t kMostSystemCalls = 50;

// Disturbs each system call of the kind in turn, up to the one that is not made any more.
template <class Try>
void AtEachSystemCall(const Failure& failure, const Try& attempt) {
  for (std::size_t after = 0; after < kMostSystemCalls; ++after) {
    SCOPED_TRACE(std::string(failure.name) + " at " + std::to_string(after));
    if (!attempt(Disturbance{failure.call, after, failure.error, false})) return;
  }
}

TEST(Faults, ASystemCallThatIsDisturbedChangesNothing) {
  Cases cases(2000);
  for (const Reader& reader : Readers()) {
    SCOPED_TRACE(reader.call.name());
    for (const Failure& failure : {Failure{Which::kSend, EINTR, "send: EINTR"},
                                   {Which::kSend, EAGAIN, "send: EAGAIN"},
                                   {Which::kSend, 0, "send: one byte"},
                                   {Which::kReceive, EINTR, "recv: EINTR"},
                                   {Which::kReceive, EAGAIN, "recv: EAGAIN"},
                                   {Which::kReceive, 0, "recv: one byte"},
                                   {Which::kPoll, EINTR, "poll: EINTR"}}) {
      AtEachSystemCall(failure, [&](const Disturbance& disturbance) {
        cases.Count();
        Bench bench;
        // Late, so that it is waited for.
        bench.instrument.Answer({{Kind::kBytes, Milliseconds(10), reader.answer}});
        FakeNetwork::Disturb(disturbance);
        const Outcome outcome = bench.Make(reader.call);
        EXPECT_TRUE(outcome.Same(reader.ordinary)) << testing::PrintToString(outcome);
        ExpectInTime(reader.call, outcome);
        return outcome.disturbed;
      });
    }
  }
}

TEST(Faults, ASystemCallThatIsDisturbedForEverEndsInTime) {
  Cases cases(2000);
  for (const Reader& reader : Readers()) {
    SCOPED_TRACE(reader.call.name());
    for (const Failure& failure : {Failure{Which::kSend, EINTR, "send: EINTR"},
                                   {Which::kSend, EAGAIN, "send: EAGAIN"},
                                   {Which::kSend, 0, "send: one byte"},
                                   {Which::kReceive, EINTR, "recv: EINTR"},
                                   {Which::kReceive, EAGAIN, "recv: EAGAIN"},
                                   {Which::kReceive, 0, "recv: one byte"}}) {
      SCOPED_TRACE(failure.name);
      cases.Count();
      Bench bench;
      bench.instrument.Answer(reader.answer);
      FakeNetwork::Disturb({failure.call, 0, failure.error, true});
      const Outcome outcome = bench.Make(reader.call);
      EXPECT_TRUE(IsOneOf(outcome.status, {kVisaTimeout}) || outcome.Same(reader.ordinary))
          << testing::PrintToString(outcome);
      ExpectInTime(reader.call, outcome);
    }
  }
}

TEST(Faults, ASystemCallThatFailsIsToldByTheStatus) {
  Cases cases(2000);
  for (const Reader& reader : Readers()) {
    SCOPED_TRACE(reader.call.name());
    for (const auto& [failure, told] :
         {std::pair{Failure{Which::kSend, ECONNRESET, "send: ECONNRESET"}, kVisaConnectionLost},
          {Failure{Which::kSend, EPIPE, "send: EPIPE"}, kVisaConnectionLost},
          {Failure{Which::kSend, ENOBUFS, "send: ENOBUFS"}, kVisaOutOfMemory},
          {Failure{Which::kSend, EBADF, "send: EBADF"}, kVisaIo},
          {Failure{Which::kReceive, ECONNRESET, "recv: ECONNRESET"}, kVisaConnectionLost},
          {Failure{Which::kReceive, ETIMEDOUT, "recv: ETIMEDOUT"}, kVisaConnectionLost},
          {Failure{Which::kReceive, ENOMEM, "recv: ENOMEM"}, kVisaOutOfMemory},
          {Failure{Which::kPoll, ENOMEM, "poll: ENOMEM"}, kVisaOutOfMemory}}) {
      AtEachSystemCall(failure, [&, told = told, error = failure.error](const Disturbance& disturbance) {
        cases.Count();
        Bench bench;
        bench.instrument.Answer({{Kind::kBytes, Milliseconds(10), reader.answer}});
        FakeNetwork::Disturb(disturbance);
        const Outcome outcome = bench.Make(reader.call);
        ExpectInTime(reader.call, outcome);
        if (!outcome.disturbed) {
          EXPECT_TRUE(outcome.Same(reader.ordinary)) << testing::PrintToString(outcome);
          return false;
        }
        EXPECT_TRUE(IsOneOf(outcome.status, {told}) || DropsAStatus(reader.call)) << testing::PrintToString(outcome);
        const bool lost = error == ECONNRESET || error == EPIPE || error == ETIMEDOUT;
        EXPECT_STATUS(lost ? kVisaConnectionLost : VI_SUCCESS, bench.AskAnew());
        return true;
      });
    }
  }
}

TEST(Faults, ABringUpThatMeetsAFailureLeavesAnOpenSessionOrNothing) {
  Cases cases(50);
  for (const Failure& failure : {Failure{Which::kSocket, EMFILE, "socket: EMFILE"},
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
                                 {Which::kPoll, ENOMEM, "poll: ENOMEM"}}) {
    const bool harmless =
        failure.error == EINTR || failure.error == EAGAIN || failure.error == EINPROGRESS || failure.error == 0;
    AtEachSystemCall(failure, [&](const Disturbance& disturbance) {
      cases.Count();
      FakeInstrument instrument;
      const FakeNetwork network({&instrument});
      FakeNetwork::Disturb(disturbance);
      std::string resource = "TCPIP0::127.0.0.1::5025::SOCKET";
      ViSession vi = 77;
      const ViStatus status = KVTD481X2C_InitWithOptions(resource.data(), VI_TRUE, VI_FALSE, "QueryInstrStatus=1", &vi);
      const bool disturbed = FakeNetwork::Disturbed();
      EXPECT_EQ(harmless || !disturbed, status == VI_SUCCESS) << std::hex << status;
      EXPECT_TRUE(IsOneOf(status, {VI_SUCCESS, kVisaConnectionLost, kVisaOutOfMemory, kVisaNotFound, kVisaTimeout}))
          << std::hex << status;
      if (vi != VI_NULL) {
        EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
      }
      EXPECT_EQ(0, FakeNetwork::OpenConnections());
      return disturbed;
    });
  }
}

// ---- answers ----

TEST(Faults, AnAnswerThatComesByteByByteIsTheSameAnswer) {
  Cases cases(300);
  for (const Reader& reader : Readers()) {
    SCOPED_TRACE(reader.call.name());
    cases.Count();
    Bench bench;
    Speeches speeches;
    for (const char byte : reader.answer) speeches.push_back({Kind::kBytes, Milliseconds(1), std::string(1, byte)});
    bench.instrument.Answer(speeches);
    const Outcome outcome = bench.Make(reader.call);
    EXPECT_TRUE(outcome.Same(reader.ordinary)) << testing::PrintToString(outcome);
    ExpectInTime(reader.call, outcome);
  }
}

TEST(Faults, AnAnswerThatComesTwiceIsTheSameAnswer) {
  Cases cases(300);
  for (const Reader& reader : Readers()) {
    SCOPED_TRACE(reader.call.name());
    cases.Count();
    Bench bench;
    bench.instrument.Answer(reader.answer + reader.answer);
    const Outcome outcome = bench.Make(reader.call);
    EXPECT_TRUE(outcome.Same(reader.ordinary)) << testing::PrintToString(outcome);
    EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
  }
}

// A block tells its length: it is whole without the line feed behind it.
bool IsWholeBlock(const Reader& reader, std::size_t length) {
  return reader.answer.starts_with("#") && length == reader.answer.size() - 1;
}

TEST(Faults, AnAnswerThatEndsAtAnyByteIsNotTakenForTheAnswer) {
  Cases cases(2000);
  for (const Reader& reader : Readers()) {
    for (const auto& [end, told] : {std::pair{Kind::kClose, kVisaConnectionLost},
                                    {Kind::kReset, kVisaConnectionLost},
                                    {Kind::kSilence, kVisaTimeout}}) {
      for (std::size_t length = 0; length < reader.answer.size(); ++length) {
        SCOPED_TRACE(reader.call.name() + " after " + std::to_string(length) + " of " + Visible(reader.answer));
        cases.Count();
        Bench bench;
        Speeches speeches;
        if (length > 0) speeches.push_back({Kind::kBytes, {}, reader.answer.substr(0, length)});
        if (end != Kind::kSilence) speeches.push_back({end, {}, {}});
        bench.instrument.Answer(speeches);
        const Outcome outcome = bench.Make(reader.call);
        ExpectInTime(reader.call, outcome);
        if (IsWholeBlock(reader, length) && outcome.Same(reader.ordinary)) continue;
        EXPECT_TRUE(IsOneOf(outcome.status, {told})) << testing::PrintToString(outcome);
        EXPECT_STATUS(end == Kind::kSilence ? VI_SUCCESS : kVisaConnectionLost, bench.AskAnew());
      }
    }
  }
}

const std::string kFalseAnswers[] = {"\n",
                                     " \n",
                                     "\r\n",
                                     "1\r\n",
                                     "noise 1\n",
                                     "-\n",
                                     "+\n",
                                     ".\n",
                                     "1e\n",
                                     "0x10\n",
                                     "NAN\n",
                                     "INF\n",
                                     "-INF\n",
                                     "9.91E37\n",
                                     "1E999\n",
                                     "-1E-999\n",
                                     "99999999999999999999\n",
                                     Literal("\0\n"),
                                     Literal("1\0\n"),
                                     Literal("\0\0\0\0\0\0\0\0"
                                             "1\n"),
                                     "\xFF\xFE\n",
                                     ",,,,\n",
                                     ";\n",
                                     "\"\n",
                                     "\"\"\"\n",
                                     "1,\n",
                                     ",1\n",
                                     "%s%n%d\n",
                                     "#\n",
                                     "#0\n",
                                     "#0abc\n",
                                     "#1\n",
                                     "#15ab\n",
                                     "#12abcdef\n",
                                     "#210abc\n",
                                     "#2-5abc\n",
                                     "#2 5abc\n",
                                     "#9999999999\n",
                                     "#:1\n",
                                     std::string(5000, '7') + "\n",
                                     std::string(5000, 'A') + "\n",
                                     std::string(5000, ' ') + "\n",
                                     std::string(5000, ',') + "\n",
                                     std::string(2500, '"') + std::string(2500, '0') + "\n"};

// A count of digits above nine is told by an assertion, where a block is read by hand.
bool EndsTheProcess(const Call& call, const std::string& answer) {
  return call.is("ReadFile") && answer.starts_with("#") && answer.size() > 1 && answer[1] > '9';
}

TEST(Faults, AFalseAnswerHarmsNothing) {
  Cases cases(10000);
  for (const Reader& reader : Readers()) {
    for (const std::string& answer : kFalseAnswers) {
      if (EndsTheProcess(reader.call, answer)) continue;
      SCOPED_TRACE(reader.call.name() + " with " + Visible(answer.substr(0, 20)));
      cases.Count();
      Bench bench;
      bench.instrument.Answer(answer);
      const Outcome outcome = bench.Make(reader.call);
      ExpectInTime(reader.call, outcome);
      // A message of the error queue begins with a number; what does not leaves as the conversion's exception.
      EXPECT_TRUE(outcome.status || reader.call.is("error_query"));
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

TEST(Faults, ARealNumberIsWhatTheAnswerSays) {
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
  Cases cases(500);
  for (const Reader& reader : Readers()) {
    // A double is eight bytes, and no other output is.
    if (reader.call.pointers - (reader.call.is_generic() ? 1 : 0) != 1 || !NumberOf<double>(reader.ordinary)) continue;
    for (const Number& number : numbers) {
      SCOPED_TRACE(reader.call.name() + " with " + number.answer);
      cases.Count();
      Bench bench;
      bench.instrument.Answer(number.answer);
      const Outcome outcome = bench.Make(reader.call);
      const std::optional<double> value = NumberOf<double>(outcome);
      EXPECT_TRUE(value || !number.must_be_read) << testing::PrintToString(outcome);
      if (value) {
        EXPECT_EQ(number.value, *value);
      }
    }
    Bench bench;
    bench.instrument.Answer("NAN\n");
    const std::optional<double> value = NumberOf<double>(bench.Make(reader.call));
    EXPECT_TRUE(!value || std::isnan(*value)) << reader.call.name();
  }
}

TEST(Faults, AnAnswerWithoutAnEndIsLeftInTime) {
  Cases cases(700);
  for (const Reader& reader : Readers()) {
    for (const char of : {'7', 'A'}) {
      SCOPED_TRACE(reader.call.name() + " with " + of);
      cases.Count();
      Bench bench;
      bench.instrument.AnswerForEver(std::string(100, of));
      const Outcome outcome = bench.Make(reader.call);
      ExpectInTime(reader.call, outcome);
      EXPECT_TRUE(outcome.status);
      EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
    }
  }
}

// In the environment KVTD_PROOF_SOAK=1 has every call meet it, else one in forty.
TEST(Faults, AnAnswerOfTenMegabytesStaysWithinTheBuffer) {
  const char* const soak = std::getenv("KVTD_PROOF_SOAK");
  const std::size_t step = soak != nullptr && *soak == '1' ? 1 : 40;
  constexpr std::size_t kPiece = 50000;
  for (std::size_t i = 0; i < Readers().size(); i += step) {
    const Reader& reader = Readers()[i];
    SCOPED_TRACE(reader.call.name());
    Bench bench;
    Speeches speeches(200, {Kind::kBytes, {}, std::string(kPiece, '7')});
    speeches.push_back({Kind::kBytes, {}, "\n"});
    bench.instrument.Answer(speeches);
    const Outcome outcome = bench.Make(reader.call);
    ExpectInTime(reader.call, outcome);
    EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
  }
}

}  // namespace
}  // namespace kvtd::test
