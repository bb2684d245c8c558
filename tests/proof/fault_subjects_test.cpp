// What the faults are tried on is what it is meant to be: a call whose ordinary outcome is a failure would be compared
// with that failure, and an attribute that asks nothing is not tried at all.

#include <map>
#include <set>
#include <string>

#include "FaultBench.h"

namespace kvtd::test {
namespace {

class Subjects : public Faults {};
INSTANTIATE_TEST_SUITE_P(Links, Subjects, EveryLink(), LinkName);

// These ask for a word first and for a number then, and no one answer is both.
const std::set<std::string> kAskForTwoThings = {"ConfigureAM", "GetAttributeViReal64(AM_DEPTH)",
                                                "GetAttributeViReal64(FM_DEVIATION)",
                                                "GetAttributeViReal64(PM_DEVIATION)", "SetAttributeViReal64(AM_DEPTH)"};

// The last thing that these set is refused by the driver, not by the instrument.
const std::map<std::string, ViStatus> kEndInARefusal = {{"ConfigureALC", kAttributeNotSupported},
                                                        {"ConfigurePulseOutput", kValueNotSupported}};

TEST_P(Subjects, SucceedOrdinarilyOrAreKnownNotTo) {
  std::set<std::string> ask_for_two_things;
  for (const Subject& reader : readers()) {
    if (reader.ordinary.status && *reader.ordinary.status >= 0) continue;
    ask_for_two_things.insert(reader.call.name());
    EXPECT_TRUE(reader.ordinary.IsOneOf({kUnexpectedResponse})) << testing::PrintToString(reader.ordinary);
  }
  EXPECT_EQ(kAskForTwoThings, ask_for_two_things);
  std::map<std::string, ViStatus> end_in_a_refusal;
  for (const Subject& writer : writers()) {
    const ViStatus status = writer.ordinary.status.value_or(VI_SUCCESS);
    if (status < 0) end_in_a_refusal[writer.call.name()] = status;
  }
  EXPECT_EQ(kEndInARefusal, end_in_a_refusal);
}

const std::set<std::string> kMeetNoInstrument = {
    // Of the driver and of the session.
    "CACHE", "DRIVER_SETUP", "GROUP_CAPABILITIES", "INTERCHANGE_CHECK", "IO_RESOURCE_DESCRIPTOR", "LOGICAL_NAME",
    "QUERY_INSTRUMENT_STATUS", "RANGE_CHECK", "RECORD_COERCIONS", "SIMULATE",
    "SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION", "SPECIFIC_DRIVER_CLASS_SPEC_MINOR_VERSION",
    "SPECIFIC_DRIVER_DESCRIPTION", "SPECIFIC_DRIVER_PREFIX", "SPECIFIC_DRIVER_REVISION", "SPECIFIC_DRIVER_VENDOR",
    "SUPPORTED_INSTRUMENT_MODELS", "SYSTEM_IO_SESSION", "SYSTEM_IO_TIMEOUT",
    // Asked for once, at the bring-up.
    "INSTRUMENT_FIRMWARE_REVISION", "INSTRUMENT_MANUFACTURER", "INSTRUMENT_MODEL",
    // What the instrument has no choice of: one value, or a refusal.
    "ALC_BANDWIDTH", "AM_EXTERNAL_COUPLING", "AM_NOMINAL_VOLTAGE", "ANALOG_MODULATION_SOURCE_COUNT",
    "FM_EXTERNAL_COUPLING", "FM_NOMINAL_VOLTAGE", "LF_GENERATOR_COUNT", "PM_EXTERNAL_COUPLING", "PM_NOMINAL_VOLTAGE",
    "PULSE_OUTPUT_ENABLED", "PULSE_TRIGGER_SOURCE",
    // Kept by the driver: it chooses which generator and which list other calls are about. No list has a name yet.
    "ACTIVE_LF_GENERATOR", "LIST_SELECTED_NAME"};

TEST_P(Subjects, AreAllAttributesThatMeetTheInstrument) {
  std::set<std::string> unmet;
  for (const Call& call : Calls()) {
    if (call.is_generic()) unmet.emplace(call.attribute);
  }
  EXPECT_EQ(234U, unmet.size());
  for (const auto* const subjects : {&readers(), &writers()}) {
    for (const Subject& subject : *subjects) unmet.erase(std::string(subject.call.attribute));
  }
  EXPECT_EQ(kMeetNoInstrument, unmet);
}

}  // namespace
}  // namespace kvtd::test
