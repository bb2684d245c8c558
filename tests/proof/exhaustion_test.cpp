// What every call does when the heap is exhausted at any of its allocations.
//
// The exception leaves the call, or one of the components, which let none out, answers with its own status. The session
// is not locked, can be used as before and closed, and nothing stays behind.

#include <IviCShared.h>
#include <KVTD481X2C.h>
#include <gtest/gtest.h>
#include <visa.h>

#include <pthread.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <new>
#include <optional>
#include <string>

#include "Calls.h"
#include "Descriptors.h"
#include "DriverDialogue.h"
#include "Heap.h"
#include "Peer.h"
#include "Proof.h"
#include "Stopwatch.h"

namespace kvtd::test {
namespace {

constexpr ViStatus kOutOfMemory = Status(0xBFFA0056U);
constexpr ViStatus kVisaOutOfMemory = Status(0xBFFF003CU);

struct Kind {
  const char* name;
  LinkKind link;
  const char* options;
  Exhaustion exhaustion;
  // In brief, of the calls one in so many is tried; each kind begins at another.
  std::size_t one_of = 1;
  std::size_t first = 0;
};

class Exhausted : public testing::TestWithParam<Kind> {
 protected:
  // What a thread and each place for a session keep for their last error grows up to the longest text.
  static void SetUpTestSuite() {
    const std::string longest(1023, 'x');
    for (int i = 0; i < 3000; ++i) {
      ViSession session = VI_NULL;
      IviSession_New(&session);
      IviSession_SetError(session, kUnexpectedResponse, longest.c_str());
      IviSession_Dispose(session);
    }
  }

  void SetUp() override {
    resource_ = peer_.emplace(GetParam().link).ResourceName();
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(Open()));
  }
  // A peer is there until the last connection has ended.
  void TearDown() override {
    peer_.reset();
    EXPECT_EQ(descriptors_, OpenDescriptors());
  }

  ViSession Open() {
    ViSession vi = VI_NULL;
    EXPECT_STATUS(VI_SUCCESS,
                  KVTD481X2C_InitWithOptions(resource_.data(), VI_FALSE, VI_FALSE, GetParam().options, &vi));
    return vi;
  }

  // Its status; empty when the exception left it.
  std::optional<ViStatus> Outcome(const Call& call, Arguments& arguments, std::size_t passing, bool& happened) const {
    std::optional<FailingAllocation> failing;
    arguments.when_made = [&] { failing.emplace(passing, GetParam().exhaustion); };
    std::optional<ViStatus> status;
    try {
      status = call(arguments);
    } catch (const std::bad_alloc&) {
    }
    happened = failing && failing->happened();
    return status;
  }

  const std::size_t descriptors_ = OpenDescriptors();
  std::optional<Peer> peer_;
  std::string resource_;
};

void* LockAndUnlock(void* session) {
  const ViSession vi = *static_cast<const ViSession*>(session);
  const bool done = KVTD481X2C_LockSession(vi, nullptr) >= 0 && KVTD481X2C_UnlockSession(vi, nullptr) >= 0;
  return done ? session : nullptr;
}

// Another thread gets the session's lock. A bare thread: a std::thread gives back what its maker has allocated.
void ExpectUnlocked(ViSession vi) {
  pthread_t thread{};
  ASSERT_EQ(0, ::pthread_create(&thread, nullptr, LockAndUnlock, &vi));
  timespec deadline{};
  ::clock_gettime(CLOCK_REALTIME, &deadline);
  deadline.tv_sec += 5;
  void* done = nullptr;
  if (::pthread_timedjoin_np(thread, &done, &deadline) != 0) {
    std::fputs("the session stays locked\n", stderr);
    std::abort();
  }
  EXPECT_NE(nullptr, done);
}

bool IsOutOfMemory(std::optional<ViStatus> outcome) {
  return !outcome || *outcome == kOutOfMemory || *outcome == kVisaOutOfMemory;
}

// Kept on purpose: the line feed behind a file stays for the next read of the session, which here is the next file's.
bool LeavesALineFeed(const Call& call) { return call.is("ReadFile"); }

// A cached attribute's place in the cache is allocated when it is written first, at the end of the call and where no
// exception can leave: an exhaustion there ends the process. A read has its place before it begins.
// A text that is read is copied there as well, and needs memory when it is long: one has a long text in simulation, and
// after a failed read it is what stood in the buffer before.
bool StoresAtItsEnd(const Call& call) {
  return !call.function.starts_with("Get") || call.is("GetRemotePackageSource") ||
         call.attribute == "REMOTE_PACKAGE_SOURCE";
}

// What lives longer than a session may grow once, and then not again.
bool Grows(const std::function<void()>& step) {
  for (int i = 0; i < 3; ++i) {
    const Memory before = HeldMemory();
    step();
    const Memory after = HeldMemory();
    if (after.blocks <= before.blocks && after.bytes <= before.bytes) return false;
  }
  return true;
}

TEST_P(Exhausted, EveryCallLeavesAUsableSessionAndNothingElse) {
  const Stopwatch watch;
  const std::size_t one_of = InFullOrBrief<std::size_t>(1, GetParam().one_of);
  std::size_t calls = 0;
  std::size_t failures = 0;
  for (std::size_t i = GetParam().first % one_of; i < Calls().size(); i += one_of) {
    const Call& call = Calls()[i];
    if (!call.has_session || call.is("close")) continue;
    SCOPED_TRACE(call.name());
    ++calls;
    const ViStatus ordinary = [&] {
      const ViSession vi = Open();
      Arguments arguments = call.Plausible(vi);
      const ViStatus status = call(arguments);
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
      return status;
    }();
    const auto is_ordinary = [&](ViStatus status) {
      return status == ordinary || (LeavesALineFeed(call) && status == kUnexpectedResponse);
    };
    bool happened = true;
    for (std::size_t passing = 0; happened; ++passing) {
      SCOPED_TRACE(passing);
      EXPECT_FALSE(Grows([&] {
        const ViSession vi = Open();
        if (StoresAtItsEnd(call)) {
          Arguments arguments = call.Plausible(vi);
          EXPECT_TRUE(is_ordinary(call(arguments)));
        }
        {
          Arguments arguments = call.Plausible(vi);
          arguments.texts_begin_empty = true;
          const std::optional<ViStatus> outcome = Outcome(call, arguments, passing, happened);
          EXPECT_TRUE(IsOutOfMemory(outcome) || is_ordinary(*outcome)) << std::hex << *outcome;
          EXPECT_TRUE(arguments.Intact());
        }
        if (happened) {
          ++failures;
          ExpectUnlocked(vi);
          Arguments arguments = call.Plausible(vi);
          EXPECT_TRUE(is_ordinary(call(arguments)));
        }
        EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
      }));
    }
  }
  std::printf("proof: exhaustion %s in %zu of %zu calls, %zu allocations failed, %.1f s\n", GetParam().name, calls,
              Calls().size(), failures, watch.seconds());
  EXPECT_LT(50U / one_of, failures);
}

TEST_P(Exhausted, AnOpeningLeavesASessionOrNothing) {
  bool happened = true;
  std::size_t passing = 0;
  for (; happened; ++passing) {
    SCOPED_TRACE(passing);
    EXPECT_FALSE(Grows([&] {
      ViSession vi = 77;
      std::optional<ViStatus> status;
      {
        const FailingAllocation failing(passing, GetParam().exhaustion);
        try {
          status = KVTD481X2C_InitWithOptions(resource_.data(), VI_FALSE, VI_FALSE, GetParam().options, &vi);
        } catch (const std::bad_alloc&) {
        }
        happened = failing.happened();
      }
      EXPECT_TRUE(IsOutOfMemory(status) || *status == VI_SUCCESS) << std::hex << *status;
      // A failure behind the bring-up leaves an open session, which can be closed.
      if (vi != VI_NULL) {
        EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
      }
    }));
  }
  EXPECT_LT(10U, passing) << "so many allocations failed";
}

TEST_P(Exhausted, AClosingEndsTheSessionAllTheSame) {
  bool happened = true;
  for (std::size_t passing = 0; happened; ++passing) {
    SCOPED_TRACE(passing);
    EXPECT_FALSE(Grows([&] {
      const ViSession vi = Open();
      const FailingAllocation failing(passing, GetParam().exhaustion);
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
      happened = failing.happened();
    }));
  }
}

class ExhaustedWithEvents : public Exhausted {};

// Threads, listeners and further connections. Memory is not compared: what a thread is made of it gives back itself.
TEST_P(ExhaustedWithEvents, SwitchingThemOnLeavesAUsableSession) {
  bool happened = true;
  std::size_t passing = 0;
  for (; happened; ++passing) {
    SCOPED_TRACE(passing);
    const ViSession vi = Open();
    ViSession io = VI_NULL;
    ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOSession(vi, &io));
    ViStatus status = VI_SUCCESS;
    {
      const FailingAllocation failing(passing, GetParam().exhaustion);
      status = viEnableEvent(io, VI_EVENT_SERVICE_REQ, VI_QUEUE, VI_NULL);
      happened = failing.happened();
    }
    EXPECT_TRUE(IsOutOfMemory(status) || status == VI_SUCCESS) << std::hex << status;
    EXPECT_LE(VI_SUCCESS, viEnableEvent(io, VI_EVENT_SERVICE_REQ, VI_QUEUE, VI_NULL));
    ExpectUnlocked(vi);
    ViReal64 value = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(1e9, value);
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
  }
  EXPECT_LT(1U, passing) << "so many allocations failed";
}

constexpr Kind kKinds[] = {{"OnceOverSocket", LinkKind::Socket, "", Exhaustion::Once, 6, 0},
                           {"FromThenOnOverSocket", LinkKind::Socket, "", Exhaustion::FromThenOn, 6, 1},
                           {"OnceSimulated", LinkKind::Socket, "Simulate=1", Exhaustion::Once},
                           {"FromThenOnSimulated", LinkKind::Socket, "Simulate=1", Exhaustion::FromThenOn}};
constexpr Kind kKindsWithEvents[] = {{"OnceOverHislip", LinkKind::Hislip, "", Exhaustion::Once, 6, 2},
                                     {"FromThenOnOverHislip", LinkKind::Hislip, "", Exhaustion::FromThenOn, 6, 3},
                                     {"OnceOverVxi11", LinkKind::Vxi11, "", Exhaustion::Once, 6, 4},
                                     {"FromThenOnOverVxi11", LinkKind::Vxi11, "", Exhaustion::FromThenOn, 6, 5}};

std::string KindName(const testing::TestParamInfo<Kind>& info) { return info.param.name; }
INSTANTIATE_TEST_SUITE_P(Proof, Exhausted, testing::ValuesIn(kKinds), KindName);
INSTANTIATE_TEST_SUITE_P(ProofOfLinks, Exhausted, testing::ValuesIn(kKindsWithEvents), KindName);
INSTANTIATE_TEST_SUITE_P(Proof, ExhaustedWithEvents, testing::ValuesIn(kKindsWithEvents), KindName);

TEST(ExhaustedDeathTest, AWriteThatFindsNoPlaceInTheCacheEndsTheProcess) {
  ViSession vi = VI_NULL;
  std::string resource = "TCPIP0::127.0.0.1::1::SOCKET";
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, "Simulate=1", &vi));
  const auto write = [vi] {
    const FailingAllocation failing(0, Exhaustion::Once);
    return KVTD481X2C_SetFrequencyMultiplier(vi, 2.0);
  };
  EXPECT_DEATH(write(), "terminate called");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.0));
  EXPECT_STATUS(VI_SUCCESS, write());
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
}

}  // namespace
}  // namespace kvtd::test
