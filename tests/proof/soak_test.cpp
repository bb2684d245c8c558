// Mixed work on virtual instruments for as long as is asked: memory and the time that the work takes stay what they
// were. KVTD_PROOF_SECONDS says how long.

#include <KVTD481X2C.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "DriverDialogue.h"
#include "Load.h"
#include "VirtualInstrument.h"

namespace kvtd::test {
namespace {

constexpr ViStatus kVisaTermChar = Status(0x3FFF0005U);

double SecondsAsked() {
  const char* const seconds = std::getenv("KVTD_PROOF_SECONDS");
  return seconds != nullptr ? std::strtod(seconds, nullptr) : InFullOrBrief(600.0, 4.0);
}

// How long each piece of work took, within a span of the soak. It allocates nothing after it was made.
class Times {
 public:
  Times() : seconds_(kMost) {}

  void Add(double seconds) {
    if (count_ < kMost) seconds_[count_++] = seconds;
  }
  double Fastest() { return AtRank(0); }
  double Median() { return AtRank(count_ / 2); }

 private:
  double AtRank(std::size_t rank) {
    if (count_ == 0) return 0;
    const auto at = seconds_.begin() + static_cast<std::ptrdiff_t>(rank);
    std::nth_element(seconds_.begin(), at, seconds_.begin() + static_cast<std::ptrdiff_t>(count_));
    return *at;
  }

  static constexpr std::size_t kMost = 100'000;

  std::vector<double> seconds_;
  std::size_t count_ = 0;
};

struct Job {
  const char* serial;
  LinkKind link;
  // Its session comes and goes; else it lives as long as the soak.
  bool reopens;
};

constexpr std::array kJobs = {Job{"SN1", LinkKind::Socket, false}, Job{"SN2", LinkKind::Socket, true},
                              Job{"SN3", LinkKind::Hislip, true}, Job{"SN4", LinkKind::Vxi11, true}};

class Worker {
 public:
  explicit Worker(const Job& job)
      : job_(job), instrument_(job.serial, job.link), resource_(instrument_.ResourceName()) {
    for (std::size_t i = 0; i < frequencies_.size(); ++i) frequencies_[i] = 1e9 + 1e3 * static_cast<double>(i);
    for (std::size_t i = 0; i < file_.size(); ++i) file_[i] = static_cast<ViByte>(i * 7);
    Reopen();
  }

  // A bit of everything; the n-th time with other numbers than before.
  void Work(int n) {
    const ViSession vi = session_->vi();
    Numbers(vi, n);
    Texts(vi, n);
    Refusal(vi);
    if (n % 16 == 0) ListAndFile(vi);
    if (n % 64 == 0) Simulation();
    if (job_.reopens && n % 256 == 0) Reopen();
  }

 private:
  void Reopen() {
    session_.reset();
    session_.emplace(resource_, "QueryInstrStatus=1");
  }

  static void Numbers(ViSession vi, int n) {
    const ViReal64 frequency = 1e9 + n % 1000;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureRF(vi, frequency, -10.0));
    ViReal64 value = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &value));
    EXPECT_EQ(frequency, value);
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &value));
    EXPECT_EQ(frequency, value);
  }

  static void Texts(ViSession vi, int n) {
    const std::string name = "unit" + std::to_string(n % 1000);
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetUnitName(vi, name.c_str()));
    std::array<ViChar, 64> text{};
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetUnitName(vi, static_cast<ViInt32>(text.size()), text.data()));
    EXPECT_EQ(name, text.data());
  }

  static void Refusal(ViSession vi) {
    EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureRF(vi, 9e99, -10.0));
    ViStatus code = VI_SUCCESS;
    std::array<ViChar, 256> text{};
    KVTD481X2C_GetError(vi, &code, static_cast<ViInt32>(text.size()), text.data());
    EXPECT_STATUS(kInstrumentError, code);
    EXPECT_EQ(kInstrumentErrorText, text.data());
    ViInt32 number = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_error_query(vi, &number, text.data()));
    EXPECT_EQ(-222, number);
  }

  void ListAndFile(ViSession vi) {
    EXPECT_STATUS(VI_SUCCESS,
                  KVTD481X2C_SetListFrequencies(vi, 1, static_cast<ViInt32>(frequencies_.size()), frequencies_.data()));
    EXPECT_STATUS(VI_SUCCESS,
                  KVTD481X2C_SendFile(vi, "Internal", "soak", static_cast<ViInt32>(file_.size()), file_.data()));
    std::array<ViByte, kFile> back{};
    ViInt32 size = 0;
    EXPECT_STATUS(VI_SUCCESS,
                  KVTD481X2C_ReadFile(vi, "Internal", "soak", static_cast<ViInt32>(back.size()), back.data(), &size));
    EXPECT_EQ(file_, back);
    // The line feed behind the block is the next read's.
    ViByte rest = 0;
    const ViStatus ended = job_.link == LinkKind::Socket ? kVisaTermChar : VI_SUCCESS;
    EXPECT_STATUS(ended, KVTD481X2C_viRead(vi, 1, &rest, nullptr));
    EXPECT_EQ('\n', rest);
  }

  static void Simulation() {
    const LoadSession simulated("none", "Simulate=1");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(simulated.vi(), 7.0));
    ViReal64 value = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(simulated.vi(), &value));
    EXPECT_EQ(7.0, value);
  }

  static constexpr std::size_t kFile = 10'000;

  const Job job_;
  VirtualInstrument instrument_;
  const std::string resource_;
  std::optional<LoadSession> session_;
  std::array<ViReal64, 500> frequencies_{};
  std::array<ViByte, kFile> file_{};
};

// What came of each job.
struct Soaked {
  int pieces = 0;
  Times first_tenth;
  Times last_tenth;
};

void Soak(Worker& worker, double seconds, Soaked& soaked) {
  const Stopwatch watch;
  for (double start = 0; start < seconds && !testing::Test::HasFailure(); ++soaked.pieces) {
    worker.Work(soaked.pieces);
    const double end = watch.seconds();
    if (start < seconds / 10) soaked.first_tenth.Add(end - start);
    if (start >= seconds * 9 / 10) soaked.last_tenth.Add(end - start);
    start = end;
  }
}

// What grows with each call is far above it by the end of a full proof.
constexpr double kPlay = 2.0;

TEST(LongWork, LeavesMemoryAndLatencyAsTheyWere) {
  const double seconds = SecondsAsked();
  std::array<Soaked, kJobs.size()> soaked;
  std::array<Soaked, kJobs.size()> warm_up;
  const Holdings without = HeldNow();
  Holdings before{};
  Holdings after{};
  {
    std::deque<Worker> workers;
    for (const Job& job : kJobs) workers.emplace_back(job);
    const auto soak = [&workers](double span, std::array<Soaked, kJobs.size()>& results) {
      std::array<std::jthread, kJobs.size()> threads;
      for (std::size_t i = 0; i < kJobs.size(); ++i) {
        threads[i] = std::jthread([&, i] { Soak(workers[i], span, results[i]); });
      }
    };
    soak(seconds / 10, warm_up);
    before = HeldNow();
    soak(seconds, soaked);
    after = HeldNow();
  }
  // An instrument may notice late that a session has gone, so that descriptors are compared without any.
  EXPECT_EQ(without.descriptors, HeldNow().descriptors);
  ExpectNoMoreMemory(before, after);
  for (std::size_t i = 0; i < kJobs.size(); ++i) {
    Soaked& each = soaked[i];
    const double first = each.first_tenth.Median();
    const double last = each.last_tenth.Median();
    std::printf("proof: soak over %s %.0f s, %d rounds of mixed calls, median %.0f us first and %.0f us last, %s\n",
                NameOf(kJobs[i].link), seconds, each.pieces, first * 1e6, last * 1e6, Growth(before, after).c_str());
    ASSERT_GT(first, 0);
    ASSERT_GT(last, 0);
    // In a few seconds they tell of the machine's other work.
    if (IsFullProof()) {
      EXPECT_LT(each.last_tenth.Fastest(), each.first_tenth.Fastest() * kPlay);
      EXPECT_LT(last, first * kPlay);
    }
  }
}

}  // namespace
}  // namespace kvtd::test
