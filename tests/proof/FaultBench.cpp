#include "FaultBench.h"

#include <visa.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "Descriptors.h"
#include "Proof.h"

namespace kvtd::test {
namespace {

constexpr ViStatus kVisaInvalidObject = Status(0xBFFF000EU);

// Of these one or the other suits each call that can be answered in one line.
constexpr const char* kAnswers[] = {"1\n",          "2.5\n",         "#14abcd\n",   "0,\"No error\"\n",
                                    "2026,11,21\n", "a package,1\n", "FIX\n",       "INT\n",
                                    "SINE\n",       "LIN\n",         "NORM\n",      "UP\n",
                                    "POS\n",        "IMM\n",         "AUTO\n",      "ANAL\n",
                                    "EXT\n",        "DC\n",          "LOCK\n",      "MIN\n",
                                    "F0\n",         "L0\n",          "HIGH\n",      "TRIG\n",
                                    "LFE\n",        "POIN\n",        "REF INT 10\n"};

struct Subjects {
  std::vector<Subject> readers;
  std::vector<Subject> writers;
};

void Sort(LinkKind kind, const Call& call, Subjects& subjects) {
  std::optional<Subject> reader;
  for (const char* const answer : kAnswers) {
    Bench bench(kind);
    bench.instrument.Answer(answer);
    bench.instrument.TakeQueries();
    const Outcome outcome = bench.Make(call);
    if (bench.instrument.TakeQueries() == 0) {
      if (outcome.exchanges > 0) subjects.writers.push_back({call, {}, outcome});
      return;
    }
    if (!reader) reader = Subject{call, answer, outcome};
    if (outcome.status && *outcome.status >= 0) {
      reader = Subject{call, answer, outcome};
      break;
    }
  }
  subjects.readers.push_back(*std::move(reader));
}

const Subjects& SubjectsOf(LinkKind kind) {
  static std::map<LinkKind, Subjects> all;
  const auto [place, is_new] = all.try_emplace(kind);
  if (is_new) {
    for (const Call& call : Calls()) {
      if (call.has_session && !call.is("close")) Sort(kind, call, place->second);
    }
  }
  return place->second;
}

// These wait longer than the session's timeout, and tell so.
Milliseconds LongestWait(const Call& call) {
  static const std::map<std::string_view, int> kRaised = {{"TakeScreenshotAndReturnData", 20000},
                                                          {"SelfTest", 10000},
                                                          {"SystemPreset", 10000},
                                                          {"self_test", 2000},
                                                          {"reset", 2000},
                                                          {"ResetWithDefaults", 2000},
                                                          {"Disable", 2000}};
  const auto found = kRaised.find(call.function);
  return Milliseconds(found == kRaised.end() ? kTimeout : std::max(kTimeout, found->second));
}

}  // namespace

bool Outcome::IsOneOf(std::initializer_list<ViStatus> allowed) const {
  return status && std::find(allowed.begin(), allowed.end(), *status) != allowed.end();
}

void PrintTo(const Outcome& outcome, std::ostream* stream) {
  *stream << std::hex << (outcome.status ? *outcome.status : 0x7777) << std::dec << " after " << outcome.taken.count()
          << " ms, " << outcome.exchanges << " exchanges, " << Visible(outcome.outputs);
}

Bench::Bench(LinkKind kind, ViInt32 timeout, Check check)
    : made_(FakeInstrument::Make(kind)), network_(made_->peers()) {
  std::string resource = instrument.resource();
  const char* const options = check == Check::kOn ? "QueryInstrStatus=1" : "";
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, options, &vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, timeout));
  instrument.TakeLines();
  instrument.TakeStatusQueries();
  if (check == Check::kOn) instrument.AnswerStatus("0\n");
}

Bench::~Bench() {
  ViSession io = VI_NULL;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOSession(vi, &io));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
  EXPECT_EQ(0, FakeNetwork::OpenConnections());
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetIOSession(vi, &io));
  ViUInt32 timeout = 0;
  EXPECT_STATUS(kVisaInvalidObject, viGetAttribute(io, VI_ATTR_TMO_VALUE, &timeout));
}

Outcome Bench::Make(const Call& call) {
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

ViStatus Bench::AskOn() {
  instrument.FallSilent();
  instrument.Answer("2.5\n");
  ViReal64 value = 0;
  const ViStatus status = KVTD481X2C_GetFrequencyMultiplier(vi, &value);
  if (status >= 0) {
    EXPECT_EQ(2.5, value);
  }
  return status;
}

ViStatus Bench::AskAnew() {
  FakeNetwork::Disturb({});
  instrument.FallSilent();
  FakeNetwork::Pass(kGrace);
  ViSession io = VI_NULL;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOSession(vi, &io));
  viClear(io);
  // The rest of half a message may swallow an answer or two before the next one is found, or the link given up.
  constexpr int kTries = 3;
  ViStatus status = AskOn();
  for (int i = 1; i < kTries && status == kVisaTimeout; ++i) status = AskOn();
  return status;
}

const std::vector<Subject>& Readers(LinkKind kind) { return SubjectsOf(kind).readers; }
const std::vector<Subject>& Writers(LinkKind kind) { return SubjectsOf(kind).writers; }

void ExpectInTime(const Call& call, const Outcome& outcome) {
  EXPECT_LE(outcome.taken, std::max(1, outcome.exchanges) * (LongestWait(call) + kGrace));
}

bool DropsAStatus(const Call& call) {
  return call.is("CreateFrequencyList") || call.is("CreatePowerList") || call.is("CreateFrequencyPowerList");
}

bool AsksForTheStatusItself(const Call& call) {
  return call.is("GetStandardEventEventRegister") || call.attribute == "STANDARD_EVENT_EVENT_REGISTER";
}

bool HidesItsCheck(const Call& call) { return call.is("SelfTest") || call.is("SystemPreset"); }

namespace {
// All of this runs on one thread: the sanitizer of threads makes it slow and has little to find in it.
#ifdef __SANITIZE_THREAD__
constexpr std::size_t kFewer = 8;
#else
constexpr std::size_t kFewer = 1;
#endif
}  // namespace

Cases::~Cases() {
  EXPECT_LE(least_ / kFewer, tried_);
  std::printf("proof: faults over %s: %d cases: %s\n", NameOf(link_), tried_, of_what_);
}

Share::Share(std::size_t one_of) : one_of_(InFullOrBrief<std::size_t>(1, kFewer * one_of)) {}

void Faults::SetUp() {
  readers();
  descriptors_ = OpenDescriptors();
}
void Faults::TearDown() { EXPECT_EQ(descriptors_, OpenDescriptors()); }

}  // namespace kvtd::test
