#include "DriverDialogue.h"

#include <array>
#include <iomanip>
#include <ostream>

namespace kvtd::test {

namespace {

struct Hex {
  ViStatus status;
};

std::ostream& operator<<(std::ostream& stream, Hex hex) {
  return stream << "0x" << std::hex << std::uppercase << std::setw(8) << std::setfill('0')
                << static_cast<unsigned int>(hex.status) << std::dec;
}

}  // namespace

testing::AssertionResult SameStatus(const char* expected_text, const char* actual_text, ViStatus expected,
                                    ViStatus actual) {
  if (expected == actual) return testing::AssertionSuccess();
  return testing::AssertionFailure() << actual_text << "\n  answered " << Hex{actual} << "\n  expected "
                                     << Hex{expected} << " (" << expected_text << ")";
}

void PrintTo(const RecordedError& error, std::ostream* stream) {
  *stream << Hex{error.code} << " \"" << error.text << '"';
}

// The error of the thread outlives the sessions of an earlier test.
void InstrumentDialogue::SetUp() { EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ClearError(0)); }

void InstrumentDialogue::TearDown() {
  if (vi != VI_NULL) Close();
  EXPECT_EQ("", instrument.Finish());
}

void InstrumentDialogue::ScriptBringUp(std::string_view identity) {
  Script("> *IDN?");
  Answer(std::string(identity) + '\n');
  Script(R"(
    > :UNIT:POW DBM
    > :UNIT:TIME S
  )");
}

ViStatus InstrumentDialogue::Open(std::string_view options, ViBoolean id_query, ViBoolean reset) {
  std::string resource = instrument.ResourceName();
  return KVTD481X2C_InitWithOptions(resource.data(), id_query, reset, std::string(options).c_str(), &vi);
}

void InstrumentDialogue::Close() {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
  vi = VI_NULL;
}

void InstrumentDialogue::QueryInstrumentStatus(bool on) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS,
                                                             on ? VI_TRUE : VI_FALSE));
}

void InstrumentDialogue::SwitchToSimulation(bool on) {
  EXPECT_STATUS(VI_SUCCESS,
                KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, on ? VI_TRUE : VI_FALSE));
}

RecordedError InstrumentDialogue::ErrorOf(ViSession handle) {
  RecordedError error;
  std::array<ViChar, 1024> text{};
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetError(handle, &error.code, static_cast<ViInt32>(text.size()), text.data()));
  error.text = text.data();
  return error;
}

std::string InstrumentDialogue::TextAttribute(ViAttr attribute) {
  GuardedText<4096> text;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViString(vi, nullptr, attribute, text.size(), text.data()));
  return text.text();
}

ViBoolean InstrumentDialogue::BooleanAttribute(ViAttr attribute) {
  ViBoolean value = 0xAAAA;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, attribute, &value));
  return value;
}

void DriverDialogue::SetUp() {
  InstrumentDialogue::SetUp();
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open());
}

void SimulatedDriver::SetUp() {
  InstrumentDialogue::SetUp();
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1"));
}

void SimulatedDriver::TearDown() {
  InstrumentDialogue::TearDown();
  EXPECT_EQ(0, instrument.Connections());
}

}  // namespace kvtd::test
