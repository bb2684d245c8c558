// Sessions that come and go, half of them failing somewhere on the way: each ends as it must, and nothing is left.

#include <KVTD481X2C.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "DriverDialogue.h"
#include "FickleInstrument.h"
#include "Load.h"

namespace kvtd::test {
namespace {

// Bound, so that nobody else gets the port (a connection that is on its way neither), and without anybody to answer.
class RefusingPort {
 public:
  explicit RefusingPort(LinkKind link) : link_(link), socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (::bind(socket_.get(), reinterpret_cast<sockaddr*>(&address), size) != 0 ||
        ::getsockname(socket_.get(), reinterpret_cast<sockaddr*>(&address), &size) != 0) {
      throw std::runtime_error("no port");
    }
    port_ = ntohs(address.sin_port);
  }

  // As ResourceOn.
  std::string ResourceName() const { return ResourceOn(link_, port_); }

 private:
  const LinkKind link_;
  const Descriptor socket_;
  std::uint16_t port_ = 0;
};

constexpr ViStatus kVisaNotFound = Status(0xBFFF0011U);
constexpr ViStatus kVisaInvalidName = Status(0xBFFF0012U);
constexpr ViStatus kVisaIoFailed = Status(0xBFFF003EU);

// What a lost link shows as hangs on how far the loss has come when the driver notices.
const std::vector<ViStatus> kLost = {kVisaConnectionLost, kVisaIoFailed};
// That a connection is reset may be known before it is known that there is one.
const std::vector<ViStatus> kReset = {kVisaConnectionLost, kVisaIoFailed, kVisaNotFound};

enum class Where { Instrument, RefusingPort, Nowhere };

struct Course {
  const char* what;
  Manner manner;
  const char* options;
  std::vector<ViStatus> opens;
  Where where = Where::Instrument;
  // The bring-up fails behind the point where the session is the caller's to close.
  bool leaves_a_session = false;
};

const Course kWell = {"well", Manner::Well, "", {VI_SUCCESS}};
const Course kSilent = {"silent", Manner::IsSilent, "", {kVisaTimeout}};
const std::vector<Course> kCourses = {
    {"another model", Manner::IsAnother, "", {kIdQueryFailed}},
    {"garbage", Manner::TalksGarbage, "", {kIdQueryFailed}},
    {"an error behind *CLS", Manner::HasAnError, "QueryInstrStatus=1", {kInstrumentError}},
    {"no such option", Manner::Well, "Nonsense=1", {kUnknownOption}},
    {"no such value", Manner::Well, "Cache=2", {kUnknownOptionValue}},
    {"a port that refuses", Manner::Well, "", {kVisaNotFound}, Where::RefusingPort},
    {"no resource name", Manner::Well, "", {kVisaInvalidName}, Where::Nowhere},
    // Over a raw socket alone:
    {"closed at once", Manner::ClosesAtOnce, "", kLost},
    {"reset at once", Manner::ResetsAtOnce, "", kReset},
    {"closed when asked", Manner::ClosesWhenAsked, "", kLost},
    {"closed within the identity", Manner::ClosesWithinIdentity, "", kLost},
    {"closed at the first unit", Manner::ClosesBehindIdentity, "QueryInstrStatus=1", kLost, Where::Instrument, true},
    {"silent once it is open", Manner::FallsSilent, "", {VI_SUCCESS}},
};
constexpr std::size_t kCoursesOfEveryLink = 7;

class Cycles : public testing::TestWithParam<LinkKind> {
 protected:
  void Run(const Course& course) {
    std::string resource = ResourceAt(course.where);
    instrument_->Behave(course.manner);
    ViSession vi = 77;
    const ViStatus status = KVTD481X2C_InitWithOptions(resource.data(), VI_TRUE, VI_FALSE, course.options, &vi);
    const bool as_expected = std::find(course.opens.begin(), course.opens.end(), status) != course.opens.end();
    EXPECT_TRUE(as_expected) << course.what << ": " << std::hex << static_cast<unsigned>(status);
    EXPECT_EQ(status >= 0 || course.leaves_a_session, vi != VI_NULL) << course.what;
    if (status >= 0) Ask(vi, course.manner);
    if (vi == VI_NULL) return;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
  }

  std::string ResourceAt(Where where) const {
    switch (where) {
      case Where::RefusingPort:
        return refusing_.ResourceName();
      case Where::Nowhere:
        return "TCPIP0::127.0.0.1::none::SOCKET";
      default:
        return instrument_->ResourceName();
    }
  }

  static void Ask(ViSession vi, Manner manner) {
    const bool is_silent = manner == Manner::FallsSilent;
    if (is_silent) {
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 2));
    }
    ViReal64 value = 0;
    EXPECT_STATUS(is_silent ? kVisaTimeout : VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(is_silent ? 0.0 : 2.5, value);
  }

  // The instrument as well comes and goes, so that no connection of its last client is counted, and before it has kept
  // a thread for too many.
  void RunMany(int cycles) {
    constexpr int kWithOne = 250;
    const std::size_t courses = GetParam() == LinkKind::Socket ? kCourses.size() : kCoursesOfEveryLink;
    std::mt19937 random(1);
    for (int i = 0; i < cycles && !HasFailure(); ++i) {
      if (i % kWithOne == 0) instrument_ = MakeFickleInstrument(GetParam());
      if (i % 2 == 0) {
        Run(kWell);
      } else {
        Run(kCourses[random() % courses]);
        ++failed_;
      }
    }
    instrument_.reset();
  }

  const RefusingPort refusing_{GetParam()};
  std::unique_ptr<FickleInstrument> instrument_;
  int failed_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Links, Cycles, EveryLink(), LinkName);

TEST_P(Cycles, OfWhichHalfFailSomewhereLeaveNothing) {
  const int cycles = InFullOrBrief(100'000, 2'000);
  RunMany(500);
  failed_ = 0;
  const Holdings before = HeldNow();
  const Stopwatch watch;
  RunMany(cycles);
  const Holdings after = HeldNow();
  std::printf("proof: cycles over %s %d, %d failed on the way, %s, %.1f s\n", NameOf(GetParam()), cycles, failed_,
              Growth(before, after).c_str(), watch.seconds());
  ExpectNoMore(before, after);
}

TEST(FailedOpenings, KeepNoneOfALongText) {
  const std::string options = "Cache=" + std::string(500, 'a');
  const auto fail = [&options](int times) {
    std::string resource = "TCPIP0::127.0.0.1::1::SOCKET";
    for (int i = 0; i < times; ++i) {
      ViSession vi = 77;
      EXPECT_STATUS(kUnknownOptionValue,
                    KVTD481X2C_InitWithOptions(resource.data(), VI_TRUE, VI_FALSE, options.c_str(), &vi));
      EXPECT_EQ(ViSession{VI_NULL}, vi);
    }
  };
  fail(3);  // the thread itself keeps one
  const Holdings before = HeldNow();
  fail(300);
  ExpectNoMore(before, HeldNow());
}

class SilentCycles : public Cycles {};
INSTANTIATE_TEST_SUITE_P(Links, SilentCycles, testing::Values(LinkKind::Socket), LinkName);

// Few: the identity is waited for as long as VISA's timeout says, two seconds.
TEST_P(SilentCycles, LeaveNothing) {
  const int cycles = InFullOrBrief(20, 1);
  RunMany(100);
  const Holdings before = HeldNow();
  const Stopwatch watch;
  instrument_ = MakeFickleInstrument(GetParam());
  for (int i = 0; i < cycles; ++i) {
    const Stopwatch patience;
    Run(kSilent);
    EXPECT_LT(patience.OwnMilliseconds(), 2000 + 100);
    Run(kWell);
  }
  instrument_.reset();
  const Holdings after = HeldNow();
  std::printf("proof: silent cycles %d, %s, %.1f s\n", cycles, Growth(before, after).c_str(), watch.seconds());
  ExpectNoMore(before, after);
}

}  // namespace
}  // namespace kvtd::test
