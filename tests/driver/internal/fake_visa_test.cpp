// Which calls of VISA a session makes and which it does not, and what becomes of each that fails.

#include <IviCShared.h>
#include <KVTD481X2C.h>
#include <ScopedIoTimeout.h>
#include <gmock/gmock.h>

#include "FakeVisa.h"

namespace kvtd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr ViStatus kSocketFailed = -4711;  // any failure of VISA; it comes back as it is
constexpr ViStatus kTimedOut = static_cast<ViStatus>(0xBFFF0015U);
constexpr ViStatus kNoSession = static_cast<ViStatus>(0xBFFF000EU);
constexpr ViStatus kInvalidHandle = static_cast<ViStatus>(0xBFFA1190U);
constexpr ViStatus kIdQueryFailed = static_cast<ViStatus>(0xBFFA005EU);

class OverFakeVisa : public testing::Test {
 protected:
  void SetUp() override { Visa() = FakeVisa{}; }
  void TearDown() override {
    if (vi != VI_NULL) {
      EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
    }
  }

  ViStatus Open(const char* options = "", ViBoolean id_query = VI_FALSE, ViBoolean reset = VI_FALSE) {
    return KVTD481X2C_InitWithOptions(const_cast<ViChar*>("X"), id_query, reset, options, &vi);
  }
  // With a session open, its bring-up forgotten.
  void OpenQuietly(const char* options = "") {
    ASSERT_EQ(VI_SUCCESS, Open(options));
    Visa().calls.clear();
  }
  // A bring-up that fails because this call does, and leaves nothing open.
  void ExpectNoSessionWhen(const std::string& call) {
    Visa() = FakeVisa{};
    Visa().statuses[call] = kSocketFailed;
    vi = 77;
    EXPECT_EQ(kSocketFailed, Open()) << call;
    EXPECT_EQ(VI_NULL, static_cast<ViInt32>(vi)) << call;
    EXPECT_THAT(Visa().CallsOf("viClose"), ElementsAre("viClose 100")) << call;
    vi = VI_NULL;
  }

  ViSession vi = VI_NULL;
};

using OverFakeVisaDeathTest = OverFakeVisa;

TEST_F(OverFakeVisa, ASimulatedSessionMakesNoCallAtAll) {
  ASSERT_EQ(VI_SUCCESS, Open("Simulate=1", VI_TRUE, VI_TRUE));
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  ViReal64 multiplier = 0;
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &multiplier));
  EXPECT_EQ(2.5, multiplier);
  ViInt16 result = 77;
  ViChar message[256] = "";
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_self_test(vi, &result, message));
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
  vi = VI_NULL;
  EXPECT_THAT(Visa().calls, IsEmpty());
}

TEST_F(OverFakeVisa, APlainAttributeOfASimulatedSessionAsksSessionZero) {
  OpenQuietly("Simulate=1");
  ViReal64 frequency = 0;
  EXPECT_EQ(kNoSession, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &frequency));
  EXPECT_THAT(Visa().calls, ElementsAre("viQueryf 0 :FREQ?\n%lf%*t"));
}

TEST_F(OverFakeVisa, BringUpOpensAsksAndSetsTheUnits) {
  ASSERT_EQ(VI_SUCCESS, Open());
  EXPECT_THAT(Visa().calls, ElementsAre("viOpenDefaultRM 100", "viOpen 100 X mode 0 timeout 2000",
                                        "viGetAttribute 200 INTF_TYPE", "viGetAttribute 200 RSRC_CLASS",
                                        "viSetAttribute 200 TERMCHAR 10", "viSetAttribute 200 TERMCHAR_EN 1",
                                        "viQueryf 200 *IDN?\n%256[^,],%256[^,],%256[^,],%256[^,]%*T",
                                        "viPrintf 200 :UNIT:POW DBM\n", "viPrintf 200 :UNIT:TIME S\n"));
}

TEST_F(OverFakeVisa, OnlyARawSocketGetsATerminationCharacter) {
  const struct {
    ViUInt16 interface_type;
    const char* resource_class;
  } others[] = {{VI_INTF_GPIB, "INSTR"}, {VI_INTF_TCPIP, "INSTR"}, {VI_INTF_GPIB, "SOCKET"}, {VI_INTF_TCPIP, ""}};
  for (const auto& [interface_type, resource_class] : others) {
    Visa() = FakeVisa{};
    Visa().interface_type = interface_type;
    Visa().resource_class = resource_class;
    ASSERT_EQ(VI_SUCCESS, Open());
    EXPECT_THAT(Visa().CallsOf("viSetAttribute"), IsEmpty()) << interface_type << ' ' << resource_class;
    EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
    vi = VI_NULL;
  }
}

TEST_F(OverFakeVisa, TheClassOfARawSocketIsReadInAnyCase) {
  for (const char* resource_class : {"socket", "Socket", "SOCKET"}) {
    Visa() = FakeVisa{};
    Visa().resource_class = resource_class;
    ASSERT_EQ(VI_SUCCESS, Open());
    EXPECT_THAT(Visa().CallsOf("viSetAttribute"),
                ElementsAre("viSetAttribute 200 TERMCHAR 10", "viSetAttribute 200 TERMCHAR_EN 1"))
        << resource_class;
    EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
    vi = VI_NULL;
  }
}

TEST_F(OverFakeVisa, APositiveStatusOfTheOpeningGoesOn) {
  Visa().statuses["viOpen 100"] = VI_SUCCESS_DEV_NPRESENT;
  EXPECT_EQ(VI_SUCCESS, Open());
  EXPECT_EQ(2U, Visa().CallsOf("viPrintf 200 :UNIT").size());
}

TEST_F(OverFakeVisa, AResourceManagerThatDoesNotOpenIsNotClosed) {
  Visa().statuses["viOpenDefaultRM"] = kSocketFailed;
  EXPECT_EQ(kSocketFailed, Open());
  EXPECT_EQ(VI_NULL, static_cast<ViInt32>(vi));
  EXPECT_THAT(Visa().calls, ElementsAre("viOpenDefaultRM 100"));
}

TEST_F(OverFakeVisa, EveryCallThatFailsOnTheWayUpComesBackAndClosesTheResourceManagerOnce) {
  for (const char* call :
       {"viOpen 100", "viGetAttribute 200 INTF_TYPE", "viGetAttribute 200 RSRC_CLASS", "viSetAttribute 200 TERMCHAR 10",
        "viSetAttribute 200 TERMCHAR_EN 1", "viQueryf 200 *IDN?"}) {
    ExpectNoSessionWhen(call);
  }
}

TEST_F(OverFakeVisa, AClosingThatFailsDoesNotShowAndTheHandleIsGone) {
  OpenQuietly();
  Visa().statuses["viClose"] = kSocketFailed;
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
  EXPECT_THAT(Visa().calls, ElementsAre("viClose 100"));
  EXPECT_EQ(kInvalidHandle, KVTD481X2C_close(vi));
  vi = VI_NULL;
}

// Kept on purpose: a simulated session makes no call of VISA, so that a real one that came to simulate leaves its own
// open.
TEST_F(OverFakeVisa, ASessionThatCameToSimulateLeavesItsVisaSessionOpen) {
  OpenQuietly();
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, VI_TRUE));
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
  EXPECT_THAT(Visa().calls, IsEmpty());
  EXPECT_EQ(kInvalidHandle, KVTD481X2C_close(vi));
  vi = VI_NULL;
}

TEST_F(OverFakeVisa, ASessionThatIsRealAgainClosesItsVisaSession) {
  OpenQuietly();
  for (const bool on : {true, false}) {
    const ViBoolean simulate = on ? VI_TRUE : VI_FALSE;
    EXPECT_EQ(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, simulate));
  }
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
  EXPECT_THAT(Visa().calls, ElementsAre("viClose 100"));
  vi = VI_NULL;
}

TEST_F(OverFakeVisa, ARefusedModelClosesTheResourceManagerOnce) {
  Visa().identity[1] = "XYZ-1";
  EXPECT_EQ(kIdQueryFailed, Open("", VI_TRUE));
  EXPECT_THAT(Visa().CallsOf("viClose"), ElementsAre("viClose 100"));
}

TEST_F(OverFakeVisaDeathTest, AClosingThatFailsBehindARefusedModelEndsTheProcess) {
  Visa().identity[1] = "XYZ-1";
  Visa().statuses["viClose"] = kSocketFailed;
  EXPECT_DEATH(Open("", VI_TRUE), "statusClose >= 0");
}

TEST_F(OverFakeVisa, APositiveStatusOfAnExchangeGivesWayToThatOfTheStatusCheck) {
  OpenQuietly();
  Visa().statuses["viPrintf"] = VI_SUCCESS_TERM_CHAR;
  Visa().statuses["viQueryf"] = VI_SUCCESS_MAX_CNT;
  ViReal64 multiplier = 0;
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &multiplier));
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &multiplier));
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_ClearStatus(vi));
}

TEST_F(OverFakeVisa, TheStatusCheckIsTheLastStepAndItsStatusTheResult) {
  OpenQuietly("QueryInstrStatus=1");
  Visa().answer = "0";
  Visa().statuses["viPrintf"] = VI_SUCCESS_TERM_CHAR;
  Visa().statuses["viQueryf 200 *ESR?"] = VI_SUCCESS_MAX_CNT;
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  Visa().statuses["viQueryf 200 *ESR?"] = kTimedOut;
  EXPECT_EQ(kTimedOut, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  EXPECT_THAT(Visa().calls, ElementsAre("viPrintf 200 :FREQ:MULT %0.15lg HZ\n", "viQueryf 200 *ESR?\n%ld%*T",
                                        "viPrintf 200 :FREQ:MULT %0.15lg HZ\n", "viQueryf 200 *ESR?\n%ld%*T"));
}

TEST_F(OverFakeVisa, AFailedWriteIsNotFollowedByAStatusCheck) {
  OpenQuietly("QueryInstrStatus=1");
  Visa().statuses["viPrintf"] = kSocketFailed;
  EXPECT_EQ(kSocketFailed, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  EXPECT_THAT(Visa().calls, ElementsAre("viPrintf 200 :FREQ:MULT %0.15lg HZ\n"));
}

TEST_F(OverFakeVisa, AResetRunsUnderATimeoutOfItsOwnAndGivesTheOldOneBack) {
  OpenQuietly();
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_THAT(Visa().calls,
              ElementsAre("viGetAttribute 200 TMO_VALUE", "viSetAttribute 200 TMO_VALUE 2000", "viPrintf 200 *RST\n",
                          "viQueryf 200 *OPC?\n%ld%*T", "viSetAttribute 200 TMO_VALUE 4711"));
}

TEST_F(OverFakeVisa, TheOldTimeoutIsGivenBackAlsoWhenAnExceptionPasses) {
  OpenQuietly();
  EXPECT_THROW(
      {
        const tvr::ScopedIoTimeout timeout(vi, 3000);
        throw 1;
      },
      int);
  EXPECT_THAT(Visa().calls, ElementsAre("viGetAttribute 200 TMO_VALUE", "viSetAttribute 200 TMO_VALUE 3000",
                                        "viSetAttribute 200 TMO_VALUE 4711"));
}

TEST_F(OverFakeVisaDeathTest, ATimeoutThatCannotBeReadSetOrGivenBackEndsTheProcess) {
  OpenQuietly();
  for (const char* call :
       {"viGetAttribute 200 TMO_VALUE", "viSetAttribute 200 TMO_VALUE 2000", "viSetAttribute 200 TMO_VALUE 4711"}) {
    Visa().statuses = {{call, kSocketFailed}};
    EXPECT_DEATH(KVTD481X2C_reset(vi), "status >= 0") << call;
  }
  Visa().statuses.clear();
}

}  // namespace
}  // namespace kvtd::test
