// A session's life: what is sent while it comes up, what is left when that fails, its lock, and its end.

#include <dirent.h>
#include <visa.h>

#include <algorithm>
#include <cctype>
#include <future>
#include <thread>
#include <vector>

#include "DriverDialogue.h"
#include "FaultyLink.h"

namespace kvtd::test {
namespace {

class Session : public InstrumentDialogue {
 protected:
  // Opens a session on another resource than the instrument's own.
  ViStatus OpenResource(std::string resource, const char* options = "") {
    return KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, options, &vi);
  }
  void ExpectNoSession() {
    EXPECT_EQ(ViSession{0}, vi);
    vi = 0;
  }
  // After a failure that leaves the session open: it works.
  void ExpectUsable() {
    ASSERT_NE(ViSession{0}, vi);
    instrument.AnswerAlways(":FREQ:MULT?", "3");
    instrument.AnswerAlways("*ESR?", "0");
    ViReal64 value = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(3.0, value);
  }
};

int OpenDescriptors() {
  int count = 0;
  DIR* folder = ::opendir("/proc/self/fd");
  while (::readdir(folder) != nullptr) ++count;
  ::closedir(folder);
  return count;
}

// ---- coming up ----

TEST_F(Session, AsksWhoTheInstrumentIsAndSetsTheTwoUnits) {
  Script(R"(
    > *IDN?
    < Kelvora,TD48142C,SN4711,1.2.3
    > :UNIT:POW DBM
    > :UNIT:TIME S
  )");
  EXPECT_STATUS(VI_SUCCESS, Open());
  EXPECT_NE(ViSession{0}, vi);
}

TEST_F(Session, InitIsInitWithOptionsWithoutAny) {
  ScriptBringUp();
  std::string resource = instrument.ResourceName();
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_init(resource.data(), VI_TRUE, VI_FALSE, &vi));
  EXPECT_EQ("", TextAttribute(KVTD481X2C_ATTR_DRIVER_SETUP));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_SIMULATE));
}

TEST_F(Session, WithStatusQueriesTheStatusIsClearedFirstAndAskedForBehindEachStep) {
  Script(R"(
    > *CLS
    > *ESR?
    < 0
    > *IDN?
    < Kelvora,TD48142C,SN4711,1.2.3
    > *ESR?
    < 0
    > :UNIT:POW DBM
    > *ESR?
    < 0
    > :UNIT:TIME S
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, Open("QueryInstrStatus=1"));
}

TEST_F(Session, AResetComesBehindTheIdentityAndBeforeTheUnits) {
  Script(R"(
    > *IDN?
    < Kelvora,TD48142C,SN4711,1.2.3
    > *RST
    > *OPC?
    < 1
    > :UNIT:POW DBM
    > :UNIT:TIME S
  )");
  EXPECT_STATUS(VI_SUCCESS, Open("", VI_FALSE, VI_TRUE));
}

TEST_F(Session, AnyValueButZeroResets) {
  for (const ViBoolean reset : {ViBoolean{2}, ViBoolean{0xFFFF}}) {
    Script(R"(
      > *IDN?
      < Kelvora,TD48142C,SN4711,1.2.3
      > *RST
      > *OPC?
      < 1
      > :UNIT:POW DBM
      > :UNIT:TIME S
    )");
    EXPECT_STATUS(VI_SUCCESS, Open("", VI_FALSE, reset));
    Close();
  }
}

TEST_F(Session, ASimulatedSessionOpensNoConnection) {
  EXPECT_STATUS(VI_SUCCESS, Open("Simulate=1", VI_TRUE, VI_TRUE));
  Close();
  EXPECT_EQ(0, instrument.Connections());
}

TEST_F(Session, ASimulatedSessionNeedsNoInstrumentAtAll) {
  for (const char* resource : {"", "GPIB0::20::INSTR", "nothing that VISA knows"}) {
    EXPECT_STATUS(VI_SUCCESS, OpenResource(resource, "Simulate=1"));
    EXPECT_EQ(resource, TextAttribute(KVTD481X2C_ATTR_IO_RESOURCE_DESCRIPTOR));
    Close();
  }
}

TEST_F(Session, TheClassOfTheResourceIsReadInAnyCase) {
  ScriptBringUp();
  std::string resource = instrument.ResourceName();
  std::transform(resource.begin(), resource.end(), resource.begin(),
                 [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
  ASSERT_STATUS(VI_SUCCESS, OpenResource(resource));
  ViSession io = 0;
  ViBoolean enabled = VI_FALSE;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOSession(vi, &io));
  EXPECT_STATUS(VI_SUCCESS, viGetAttribute(io, VI_ATTR_TERMCHAR_EN, &enabled));
  EXPECT_EQ(ChosenLink() == LinkKind::Socket ? VI_TRUE : VI_FALSE, enabled);
}

// ---- failures on the way up ----

TEST_F(Session, ANullHandleIsRefusedAndNothingIsRecorded) {
  EXPECT_EQ(kNothingRecorded, ErrorOf(0));
  std::string resource = instrument.ResourceName();
  EXPECT_STATUS(kNullPointer, KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, "", nullptr));
  EXPECT_STATUS(kNullPointer, KVTD481X2C_init(resource.data(), VI_FALSE, VI_FALSE, nullptr));
  EXPECT_EQ(kNothingRecorded, ErrorOf(0));
  EXPECT_EQ(0, instrument.Connections());
}

TEST_F(Session, AResourceThatVisaCannotReadGivesNoSession) {
  vi = 77;
  EXPECT_STATUS(VI_ERROR_INV_RSRC_NAME, OpenResource("nothing that VISA knows"));
  ExpectNoSession();
}

TEST_F(Session, APortOnWhichNobodyListensGivesNoSession) {
  vi = 77;
  EXPECT_STATUS(VI_ERROR_RSRC_NFOUND, OpenResource("TCPIP0::127.0.0.1::" + std::to_string(UnusedPort()) + "::SOCKET"));
  ExpectNoSession();
}

TEST_F(Session, AStatusThatCannotBeClearedGivesNoSession) {
  Script(R"(
    > *CLS
    > *ESR?
    < 32
  )");
  EXPECT_STATUS(kInstrumentError, Open("QueryInstrStatus=1"));
  ExpectNoSession();
  EXPECT_EQ((RecordedError{kInstrumentError, std::string(kInstrumentErrorText)}), ErrorOf(0));
}

TEST_F(Session, AnIdentityThatTheStatusRefusesGivesNoSession) {
  Script(R"(
    > *CLS
    > *ESR?
    < 0
    > *IDN?
    < Kelvora,TD48142C,SN4711,1.2.3
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(kInstrumentError, Open("QueryInstrStatus=1"));
  ExpectNoSession();
}

TEST_F(Session, AnUnknownModelGivesNoSessionWhenTheIdIsQueried) {
  Script(R"(
    > *IDN?
    < Other,XYZ,1,1
  )");
  EXPECT_STATUS(kIdQueryFailed, Open("", VI_TRUE));
  ExpectNoSession();
  EXPECT_EQ((RecordedError{kIdQueryFailed, "Instrument ID query failed."}), ErrorOf(0));
}

TEST_F(Session, AConnectionThatIsLostOnTheWayUpGivesNoSession) {
  Script(R"(
    > *IDN?
    ! reset
  )");
  EXPECT_STATUS(kVisaConnectionLost, Open());
  ExpectNoSession();
}

TEST_F(Session, AnInstrumentThatIsSilentGivesNoSessionWithinTheTimeout) {
  Script("> *IDN?");
  const Clock::time_point start = Clock::now();
  EXPECT_STATUS(kVisaTimeout, Open());
  EXPECT_LT(Clock::now() - start, Milliseconds(2000 + 1000));
  ExpectNoSession();
}

TEST_F(Session, ARefusedResetLeavesTheSessionOpen) {
  Script(R"(
    > *CLS
    > *ESR?
    < 0
    > *IDN?
    < Kelvora,TD48142C,SN4711,1.2.3
    > *ESR?
    < 0
    > *RST
    > *OPC?
    < 1
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, Open("QueryInstrStatus=1", VI_FALSE, VI_TRUE));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
  ExpectUsable();
}

TEST_F(Session, ARefusedPowerUnitLeavesTheSessionOpenAndTheTimeUnitUnsent) {
  Script(R"(
    > *CLS
    > *ESR?
    < 0
    > *IDN?
    < Kelvora,TD48142C,SN4711,1.2.3
    > *ESR?
    < 0
    > :UNIT:POW DBM
    > *ESR?
    < 32
  )");
  EXPECT_STATUS(kInstrumentError, Open("QueryInstrStatus=1"));
  ExpectUsable();
}

TEST_F(Session, ARefusedTimeUnitLeavesTheSessionOpen) {
  Script(R"(
    > *CLS
    > *ESR?
    < 0
    > *IDN?
    < Kelvora,TD48142C,SN4711,1.2.3
    > *ESR?
    < 0
    > :UNIT:POW DBM
    > *ESR?
    < 0
    > :UNIT:TIME S
    > *ESR?
    < 32
  )");
  EXPECT_STATUS(kInstrumentError, Open("QueryInstrStatus=1"));
  ExpectUsable();
}

TEST_F(Session, AFailedOpeningLeavesNoDescriptorBehind) {
  const auto fail_in_every_way = [this] {
    EXPECT_GT(VI_SUCCESS, OpenResource("nothing that VISA knows"));
    EXPECT_GT(VI_SUCCESS, OpenResource("TCPIP0::127.0.0.1::" + std::to_string(UnusedPort()) + "::SOCKET"));
    EXPECT_GT(VI_SUCCESS, Open("nonsense=1"));
    Script("> *IDN?\n< Other,XYZ,1,1");
    EXPECT_GT(VI_SUCCESS, Open("", VI_TRUE));
  };
  fail_in_every_way();
  const int before = OpenDescriptors();
  for (int round = 0; round < 10; ++round) fail_in_every_way();
  // The instrument's ends of the last link, two connections at most, may still be open on this side of the process.
  EXPECT_LE(OpenDescriptors(), before + 2);
  vi = 0;
}

// ---- the end ----

TEST_F(Session, AClosedHandleIsRefusedEverywhereAndNothingIsRecorded) {
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open());
  const ViSession closed = vi;
  Close();
  EXPECT_EQ(kNothingRecorded, ErrorOf(0));
  ViReal64 value = 77;
  ViBoolean flag = 77;
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_close(closed));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetFrequencyMultiplier(closed, &value));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetFrequencyMultiplier(closed, 1.0));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureRF(closed, 1.0, 1.0));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_reset(closed));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_InvalidateAllAttributes(closed));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_LockSession(closed, &flag));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_UnlockSession(closed, &flag));
  EXPECT_EQ(77, value);
  EXPECT_EQ(77, flag);
  EXPECT_EQ(kNothingRecorded, ErrorOf(0));
}

TEST_F(Session, AClosedHandleIsRefusedAlsoWhenALaterSessionIsOpen) {
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1"));
  const ViSession closed = vi;
  Close();
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1"));
  EXPECT_NE(closed, vi);
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetFrequencyMultiplier(closed, 1.0));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_close(closed));
}

TEST_F(Session, HandlesThatWereNeverGivenOutCannotBeClosed) {
  for (const ViSession handle : {ViSession{0}, ViSession{1}, ViSession{0xDEADBEEF}, ViSession{0xFFFFFFFF}}) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_close(handle));
  }
}

TEST_F(Session, ALostConnectionDoesNotShowWhenTheSessionIsClosed) {
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open());
  Script(R"(
    > :FREQ:MULT?
    ! reset
  )");
  ViReal64 value = 0;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
  vi = 0;
}

TEST_F(Session, ClosingSendsNothingAndEndsTheConnection) {
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open());
  Close();
  EXPECT_EQ("", instrument.Finish());
  EXPECT_EQ(3U, instrument.Received().size());
}

TEST_F(Session, TheInstrumentCanBeOpenedAgainAndAgain) {
  for (int round = 0; round < 3; ++round) {
    ScriptBringUp();
    ASSERT_STATUS(VI_SUCCESS, Open());
    Close();
  }
  EXPECT_EQ("", instrument.Finish());
  EXPECT_EQ(3, instrument.Connections());
}

// ---- several sessions ----

TEST_F(Session, TwoSessionsSpeakToTheirOwnInstruments) {
  ScriptedInstrument other;
  other.Script(R"(
    > *IDN?
    < Kelvora,TD48172C,2,2
    > :UNIT:POW DBM
    > :UNIT:TIME S
    > :FREQ:MULT 7 HZ
  )");
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open());
  const ViSession first = vi;
  ASSERT_STATUS(VI_SUCCESS, OpenResource(other.ResourceName()));
  EXPECT_EQ("TD48172C", TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 7.0));
  Close();
  EXPECT_EQ("", other.Finish());
  vi = first;
  Script("> :FREQ:MULT 3 HZ");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 3.0));
}

class VersionSixSession : public InstrumentDialogue {
 protected:
  VersionSixSession() : InstrumentDialogue(Family::V6) {}
};

TEST_F(VersionSixSession, AnInstrumentIsReachedUnderAnAddressOfVersionSix) {
  ScriptBringUp();
  EXPECT_STATUS(VI_SUCCESS, Open());
}

// ---- the lock ----

class Lock : public SimulatedDriver {};

TEST_F(Lock, ACallerWithoutTheLockTakesItAndOneWithItDoesNot) {
  ViBoolean mine = VI_FALSE;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_LockSession(vi, &mine));
  EXPECT_EQ(VI_TRUE, mine);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_LockSession(vi, &mine));
  EXPECT_EQ(VI_TRUE, mine);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UnlockSession(vi, &mine));
  EXPECT_EQ(VI_FALSE, mine);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UnlockSession(vi, &mine));
  EXPECT_EQ(VI_FALSE, mine);
}

TEST_F(Lock, NestsWithoutAVariable) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_LockSession(vi, nullptr));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_LockSession(vi, nullptr));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 1.0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UnlockSession(vi, nullptr));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UnlockSession(vi, nullptr));
}

// The call gives back its own level in place of the caller's, and then has none left for itself. Without an instrument,
// as its thread would not be there in the process that dies.
TEST(LockDeathTest, GivingBackALockThatNobodyHoldsEndsTheProcess) {
  std::string resource = "SIM";
  ViSession vi = VI_NULL;
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, "Simulate=1", &vi));
  EXPECT_DEATH(KVTD481X2C_UnlockSession(vi, nullptr), "status >= 0");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
}

TEST_F(Lock, AnotherThreadWaitsUntilItIsGivenBack) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_LockSession(vi, nullptr));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 1.0));
  std::thread other([this] { EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.0)); });
  ViReal64 value = 0;
  for (int look = 0; look < 100; ++look) {
    std::this_thread::yield();
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(1.0, value);
  }
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UnlockSession(vi, nullptr));
  other.join();
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(2.0, value);
}

TEST_F(Lock, DoesNotHoldUpWhoAsksForTheLastErrorOrClearsIt) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_LockSession(vi, nullptr));
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetFrequencyMultiplier(vi, nullptr));
  auto asked = std::async(std::launch::async, [this] { return LastError().code; });
  EXPECT_EQ(std::future_status::ready, asked.wait_for(kPatience));

  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetFrequencyMultiplier(vi, nullptr));
  auto cleared = std::async(std::launch::async, [this] { return KVTD481X2C_ClearError(vi); });
  EXPECT_EQ(std::future_status::ready, cleared.wait_for(kPatience));

  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UnlockSession(vi, nullptr));
  EXPECT_STATUS(kNullPointer, asked.get());
  EXPECT_STATUS(VI_SUCCESS, cleared.get());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(Lock, OfOneSessionDoesNotHoldUpAnother) {
  const ViSession locked = vi;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_LockSession(locked, nullptr));
  std::thread([this] {
    ViSession other = 0;
    std::string resource = instrument.ResourceName();
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, "Simulate=1", &other));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(other, 2.0));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(other));
  }).join();
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_UnlockSession(locked, nullptr));
}

class SharedSession : public DriverDialogue {};

TEST_F(SharedSession, TheExchangesOfTwoThreadsDoNotMix) {
  QueryInstrumentStatus(true);
  instrument.AnswerAlways(":FREQ:MULT?", "2.5");
  instrument.AnswerAlways(":FREQ:STEP?", "7");
  instrument.AnswerAlways("*ESR?", "0");
  constexpr int kRounds = 200;
  std::thread other([this] {
    for (int round = 0; round < kRounds; ++round) {
      ViReal64 value = 0;
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetCWFrequencyStep(vi, &value));
      EXPECT_EQ(7.0, value);
    }
  });
  for (int round = 0; round < kRounds; ++round) {
    ViReal64 value = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(2.5, value);
  }
  other.join();
  const std::vector<std::string> received = instrument.Received();
  constexpr std::size_t kBringUp = 3;
  ASSERT_EQ(kBringUp + 4 * kRounds, received.size());
  for (std::size_t line = kBringUp; line < received.size(); line += 2) {
    EXPECT_NE("*ESR?\n", received[line]);
    EXPECT_EQ("*ESR?\n", received[line + 1]);
  }
}

// ---- through a link that misbehaves ----

class FaultySession : public Session {
 protected:
  void SetUp() override {
    ONLY_OVER_THE_SOCKET("the faulty link counts the bytes of a raw socket");
    Session::SetUp();
    ScriptBringUp();
    ASSERT_STATUS(VI_SUCCESS, OpenResource(link.ResourceName()));
    ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 200));
    instrument.AnswerAlways(":FREQ:MULT?", "2.5");
  }
  ViStatus Get(ViReal64* value) { return KVTD481X2C_GetFrequencyMultiplier(vi, value); }

  FaultyLink link{instrument.port()};
};

TEST_F(FaultySession, AnAnswerThatTricklesInIsReadWhole) {
  link.Break({.kind = Fault::Kind::Trickle, .pace = Milliseconds(5)});
  ViReal64 value = 0;
  EXPECT_STATUS(VI_SUCCESS, Get(&value));
  EXPECT_EQ(2.5, value);
}

TEST_F(FaultySession, AnAnswerThatTricklesOnBeyondTheTimeoutIsGivenUp) {
  link.Break({.kind = Fault::Kind::Trickle, .pace = Milliseconds(150)});
  ViReal64 value = 0;
  const Clock::time_point start = Clock::now();
  EXPECT_STATUS(kVisaTimeout, Get(&value));
  EXPECT_LT(Clock::now() - start, Milliseconds(200 + 300));
}

TEST_F(FaultySession, AnAnswerThatIsCutInTheMiddleIsALostConnection) {
  link.Break({.kind = Fault::Kind::Close, .after = 2});
  ViReal64 value = 0;
  EXPECT_STATUS(kVisaConnectionLost, Get(&value));
}

}  // namespace
}  // namespace kvtd::test
