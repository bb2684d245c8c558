// Fixtures of the driver's dialogue tests: a session that talks to a scripted instrument, and one that simulates.
//
// A test sets its script, calls the driver and looks at what came of it. When it ends, the session is closed, and a
// line that never arrived, a byte that came unasked or a connection left open fails the test.

#ifndef KVTD_TESTS_SUPPORT_DRIVER_DIALOGUE_H
#define KVTD_TESTS_SUPPORT_DRIVER_DIALOGUE_H

#include <KVTD481X2C.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "Bytes.h"
#include "GuardedText.h"
#include "ScriptedInstrument.h"

namespace kvtd::test {

constexpr ViStatus Status(unsigned int bits) { return static_cast<ViStatus>(bits); }

// The driver's statuses, as numbers of the tests' own: a wrong number in the public header must not hide itself.
inline constexpr ViStatus kCannotRecover = Status(0xBFFA0000U);
inline constexpr ViStatus kInstrumentError = Status(0xBFFA0001U);
inline constexpr ViStatus kUnknownAttribute = Status(0xBFFA000CU);
inline constexpr ViStatus kReadOnly = Status(0xBFFA000DU);
inline constexpr ViStatus kWriteOnly = Status(0xBFFA000EU);
inline constexpr ViStatus kInvalidValue = Status(0xBFFA0010U);
inline constexpr ViStatus kFunctionNotSupported = Status(0xBFFA0011U);
inline constexpr ViStatus kAttributeNotSupported = Status(0xBFFA0012U);
inline constexpr ViStatus kValueNotSupported = Status(0xBFFA0013U);
inline constexpr ViStatus kWrongType = Status(0xBFFA0015U);
inline constexpr ViStatus kUnknownOption = Status(0xBFFA004BU);
inline constexpr ViStatus kUnknownOptionValue = Status(0xBFFA004CU);
inline constexpr ViStatus kNullPointer = Status(0xBFFA0058U);
inline constexpr ViStatus kUnexpectedResponse = Status(0xBFFA0059U);
inline constexpr ViStatus kIdQueryFailed = Status(0xBFFA005EU);
inline constexpr ViStatus kSimulationCannotChange = Status(0xBFFA0062U);
inline constexpr ViStatus kInvalidHandle = Status(0xBFFA1190U);
inline constexpr ViStatus kIoError = Status(0xBFFA4214U);
// Those of VISA that pass through the driver.
inline constexpr ViStatus kVisaNoSession = Status(0xBFFF000EU);
inline constexpr ViStatus kVisaTimeout = Status(0xBFFF0015U);
inline constexpr ViStatus kVisaInvalidFormat = Status(0xBFFF003FU);
inline constexpr ViStatus kVisaConnectionLost = Status(0xBFFF00A6U);

inline constexpr std::string_view kInstrumentErrorText =
    "Instrument error detected.  Use ErrorQuery() to determine the error(s).";

// Compares two statuses and shows them in hexadecimal when they differ.
testing::AssertionResult SameStatus(const char* expected_text, const char* actual_text, ViStatus expected,
                                    ViStatus actual);
#define EXPECT_STATUS(expected, actual) EXPECT_PRED_FORMAT2(::kvtd::test::SameStatus, expected, actual)
#define ASSERT_STATUS(expected, actual) ASSERT_PRED_FORMAT2(::kvtd::test::SameStatus, expected, actual)

// What KVTD481X2C_GetError gives out, which forgets it by that.
struct RecordedError {
  ViStatus code = VI_SUCCESS;
  std::string text = {};

  bool operator==(const RecordedError&) const = default;
};
void PrintTo(const RecordedError& error, std::ostream* stream);

inline const RecordedError kNothingRecorded{};

// A scripted instrument, and a handle that the test opens itself.
class InstrumentDialogue : public testing::Test {
 protected:
  explicit InstrumentDialogue(Family family = Family::V4) : instrument(family) {}
  void SetUp() override;
  void TearDown() override;

  // The lines of an ordinary bring-up without status check: who are you, and the two units.
  void ScriptBringUp(std::string_view identity = "Kelvora,TD48142C,SN4711,1.2.3");
  ViStatus Open(std::string_view options = "", ViBoolean id_query = VI_FALSE, ViBoolean reset = VI_FALSE);
  void Close();

  void Script(std::string_view text) { instrument.Script(text); }
  // These exact bytes must arrive.
  void Sent(std::string bytes) { instrument.Sent(std::move(bytes)); }
  // These exact bytes go back, for what was expected last.
  void Answer(std::string bytes) { instrument.Answer(std::move(bytes)); }

  void QueryInstrumentStatus(bool on);
  void SwitchToSimulation(bool on);

  // Both forget what they give out.
  RecordedError LastError() { return ErrorOf(vi); }
  std::string LastErrorText() { return LastError().text; }
  // With handle 0: the error of the calling thread, where the text of a failed bring-up is found.
  static RecordedError ErrorOf(ViSession handle);
  std::string TextAttribute(ViAttr attribute);
  ViBoolean BooleanAttribute(ViAttr attribute);

  ScriptedInstrument instrument;
  ViSession vi = VI_NULL;
};

// A session on the scripted instrument, opened without status check, its bring-up over.
class DriverDialogue : public InstrumentDialogue {
 protected:
  using InstrumentDialogue::InstrumentDialogue;
  void SetUp() override;
};

// A session that simulates: the instrument is there and must not be spoken to.
class SimulatedDriver : public InstrumentDialogue {
 protected:
  void SetUp() override;
  void TearDown() override;
};

}  // namespace kvtd::test

#endif
