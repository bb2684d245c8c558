// Links that break at every byte: a call ends in time, with a status that tells the truth or with the right value, and
// leaves nothing behind.

#include <visa.h>

#include <filesystem>
#include <iterator>
#include <ostream>

#include "DriverDialogue.h"
#include "FaultyLink.h"

namespace kvtd::test {

void PrintTo(const Fault& fault, std::ostream* stream) {
  static constexpr const char* kKinds[] = {"delay", "trickle", "swallow", "half-close", "close", "reset"};
  *stream << kKinds[static_cast<int>(fault.kind)] << " after " << fault.after << " bytes to the "
          << (fault.direction == Direction::ToClient ? "client" : "instrument");
}

namespace {

constexpr std::string_view kIdentity = "Kelvora,TD48142C,SN4711,1.2.3";
// What travels while a session comes up with status queries, towards the instrument and back.
constexpr std::size_t kBytesOut = sizeof("*CLS\n*ESR?\n*IDN?\n*ESR?\n:UNIT:POW DBM\n*ESR?\n:UNIT:TIME S\n*ESR?\n") - 1;
constexpr std::size_t kBytesBack = kIdentity.size() + 1 + 4 * 2;

int OpenDescriptors() {
  return static_cast<int>(std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}));
}

// An instrument that answers whatever the tests ask, behind a link that can be broken.
class BrokenLink : public testing::Test {
 protected:
  BrokenLink() {
    for (const char* line : {"*CLS", ":UNIT:POW DBM", ":UNIT:TIME S", ":FREQ:MULT 7 HZ"})
      instrument.AnswerNothing(line);
    instrument.AnswerAlways("*IDN?", kIdentity);
    instrument.AnswerAlways("*ESR?", "0");
    instrument.AnswerAlways(":FREQ:MULT?", "2.5");
    instrument.AnswerAlways(":SYST:COMM:LAN:HOST?", "generator");
  }

  void SetUp() override { ONLY_OVER_THE_SOCKET("the faulty link counts the bytes of a raw socket"); }

  ViStatus Open(const char* options = "") {
    std::string resource = link.ResourceName();
    return KVTD481X2C_InitWithOptions(resource.data(), VI_TRUE, VI_FALSE, options, &vi);
  }

  void Close() {
    if (vi != 0) {
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
    }
    vi = 0;
  }

  // A lost link shows as one of these.
  static bool TellsOfTheLink(ViStatus status) {
    return status == kVisaConnectionLost || status == VI_ERROR_IO || status == VI_ERROR_RSRC_NFOUND;
  }

  template <typename Check>
  void AtEveryByte(std::size_t out, std::size_t back, const Check& check) {
    for (const Fault::Kind kind : {Fault::Kind::Close, Fault::Kind::Reset, Fault::Kind::HalfClose}) {
      for (std::size_t after = 0; after < out; ++after) {
        check(Fault{.kind = kind, .direction = Direction::ToInstrument, .after = after});
      }
      for (std::size_t after = 0; after < back; ++after) {
        check(Fault{.kind = kind, .direction = Direction::ToClient, .after = after});
      }
    }
  }

  ScriptedInstrument instrument;
  FaultyLink link{instrument.port()};
  ViSession vi = 0;
};

TEST_F(BrokenLink, ABringUpThatBreaksAnywhereEndsInAStatusAndLeavesNothingOpen) {
  ASSERT_STATUS(VI_SUCCESS, Open("QueryInstrStatus=1"));
  Close();
  const int before = OpenDescriptors();
  AtEveryByte(kBytesOut, kBytesBack, [&](const Fault& fault) {
    SCOPED_TRACE(testing::PrintToString(fault));
    link.Break(fault);
    vi = 77;
    const Clock::time_point start = Clock::now();
    const ViStatus status = Open("QueryInstrStatus=1");
    EXPECT_LT(Clock::now() - start, Milliseconds(1500));
    EXPECT_TRUE(TellsOfTheLink(status)) << std::hex << status;
    // Behind the identity the session is open, and the caller's to close.
    Close();
  });
  link.Heal();
  EXPECT_STATUS(VI_SUCCESS, Open("QueryInstrStatus=1"));
  Close();
  // Of the hundreds of connections the doubles, in threads of their own, may not have closed the last one yet.
  constexpr int kOneConnection = 3;
  EXPECT_LE(OpenDescriptors(), before + kOneConnection);
}

TEST_F(BrokenLink, AQueryThatBreaksAnywhereGivesAStatusOrTheRightValue) {
  AtEveryByte(sizeof(":FREQ:MULT?\n*ESR?\n") - 1, sizeof("2.5\n0\n") - 1, [&](const Fault& fault) {
    SCOPED_TRACE(testing::PrintToString(fault));
    link.Heal();
    ASSERT_STATUS(VI_SUCCESS, Open());
    EXPECT_STATUS(VI_SUCCESS,
                  KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS, VI_TRUE));
    // One exchange through the link: nothing of the bring-up is under way any more when it breaks.
    ViReal64 value = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    link.Break(fault);
    value = 77;
    const ViStatus status = KVTD481X2C_GetFrequencyMultiplier(vi, &value);
    EXPECT_TRUE(TellsOfTheLink(status)) << std::hex << status;
    EXPECT_TRUE(value == 77 || value == 2.5) << value;
    Close();
  });
}

TEST_F(BrokenLink, AWriteThatBreaksAnywhereIsFoundByItsStatusQuery) {
  AtEveryByte(sizeof(":FREQ:MULT 7 HZ\n*ESR?\n") - 1, sizeof("0\n") - 1, [&](const Fault& fault) {
    SCOPED_TRACE(testing::PrintToString(fault));
    link.Heal();
    ASSERT_STATUS(VI_SUCCESS, Open("QueryInstrStatus=1"));
    link.Break(fault);
    const ViStatus status = KVTD481X2C_SetFrequencyMultiplier(vi, 7.0);
    EXPECT_TRUE(TellsOfTheLink(status)) << std::hex << status;
    Close();
  });
}

TEST_F(BrokenLink, ATextThatBreaksAnywhereStaysWithinItsBuffer) {
  for (std::size_t after = 0; after < sizeof("generator\n") - 1; ++after) {
    const Fault fault{.kind = Fault::Kind::Close, .direction = Direction::ToClient, .after = after};
    SCOPED_TRACE(testing::PrintToString(fault));
    link.Heal();
    ASSERT_STATUS(VI_SUCCESS, Open());
    ViReal64 value = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    link.Break(fault);
    GuardedText<4> text;
    EXPECT_TRUE(TellsOfTheLink(KVTD481X2C_GetLanHostname(vi, text.size(), text.data())));
    Close();
  }
}

TEST_F(BrokenLink, SilenceAtAnyByteOfAnAnswerIsATimeout) {
  ASSERT_STATUS(VI_SUCCESS, Open());
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 40));
  for (std::size_t after = 0; after < sizeof("2.5\n") - 1; ++after) {
    const Fault fault{.kind = Fault::Kind::Swallow, .direction = Direction::ToClient, .after = after};
    SCOPED_TRACE(testing::PrintToString(fault));
    link.Break(fault);
    ViReal64 value = 77;
    const Clock::time_point start = Clock::now();
    EXPECT_STATUS(kVisaTimeout, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_LT(Clock::now() - start, Milliseconds(40 + 500));
    link.Heal();
    // What a cut answer left behind is not taken for the next one.
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(2.5, value);
  }
  Close();
}

TEST_F(BrokenLink, ASlowLinkChangesNothing) {
  link.Break({.kind = Fault::Kind::Trickle, .pace = Milliseconds(1)});
  ASSERT_STATUS(VI_SUCCESS, Open("QueryInstrStatus=1"));
  ViReal64 value = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(2.5, value);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 7.0));
  GuardedText<16> text;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetLanHostname(vi, text.size(), text.data()));
  EXPECT_EQ("generator", text.text());
  Close();
}

}  // namespace
}  // namespace kvtd::test
