// The instrument as a computer: its identity, memory, applications, GPS receiver and clock.

#include <vector>

#include "AttributeCases.h"
#include "ServiceDialogue.h"
#include "TextAttributeCases.h"

namespace kvtd::test {
namespace {

constexpr auto kStored = Simulated::Stored;
constexpr auto kFixed = Simulated::Fixed;

#define BOTH(stem) &KVTD481X2C_Get##stem, &KVTD481X2C_Set##stem
#define READ(stem) &KVTD481X2C_Get##stem, nullptr

const std::vector<AttributeCase> kSystemAttributes = {
    {KVTD_ATTRIBUTE(TEMPERATURE), 1150149, RealExports{READ(Temperature)}, ":SYST:TEMP?\n", "41.5\n", 41.5, 0, "",
     kFixed, 75.0},
    {KVTD_ATTRIBUTE(TOTAL_MEMORY), 1150150, Int32Exports{READ(TotalMemory)}, ":DIAG:MEM?\n", "1048576\n", 1048576, 0,
     "", kFixed, 5000000},
    {KVTD_ATTRIBUTE(GPS_ENABLED), 1150165, BooleanExports{BOTH(GpsEnabled)}, ":SYST:GPS:STAT?\n", "0\n", 0, 0,
     ":SYST:GPS:STAT 0\n", kStored, 1},
    {KVTD_ATTRIBUTE(TIME_SYNC_MODE), 1150171, Int32Exports{BOTH(TimeSyncMode)}, ":SYST:TIME:SYNC?\n", "MAN\n", 1, 1,
     ":SYST:TIME:SYNC MANual\n", kStored, 0},
    {KVTD_ATTRIBUTE(TIME_SYNC_STATUS), 1150172, Int32Exports{READ(TimeSyncStatus)}, ":SYST:TIME:SYNC:STAT?\n", "GPS\n",
     1, 0, "", kFixed, 3},
};

const std::vector<TextAttributeCase> kSystemTexts = {
    {KVTD_TEXT_ATTRIBUTE(SYSTEM_ERROR_LOG), 1150144, &KVTD481X2C_GetSystemErrorLog, nullptr, ":SYST:LOG:ERR?\n"},
    {KVTD_TEXT_ATTRIBUTE(MAC_ADDRESS), 1150145, &KVTD481X2C_GetMacAddress, nullptr, ":SYST:MAC?\n"},
    {KVTD_TEXT_ATTRIBUTE(MODULE_INFORMATION), 1150146, &KVTD481X2C_GetModuleInformation, nullptr, ":DIAG:MOD:INFO?\n"},
    {KVTD_TEXT_ATTRIBUTE(SCPI_VERSION), 1150147, &KVTD481X2C_GetScpiVersion, nullptr, ":SYST:VERS?\n"},
    {KVTD_TEXT_ATTRIBUTE(SERIAL_NUMBER), 1150148, &KVTD481X2C_GetSerialNumber, nullptr, ":DIAG:SNUM?\n"},
    {KVTD_TEXT_ATTRIBUTE(UNIT_NAME), 1150151, &KVTD481X2C_GetUnitName, &KVTD481X2C_SetUnitName, ":SYST:UNIT:NAM?\n",
     "left \"A\"", ":SYST:UNIT:NAM \"left \"A\"\"\n", "0"},
    {KVTD_TEXT_ATTRIBUTE(ACTIVE_APPLICATIONS), 1150161, &KVTD481X2C_GetActiveApplications, nullptr, ":INST:CAT:ACT?\n"},
    {KVTD_TEXT_ATTRIBUTE(AVAILABLE_APPLICATIONS), 1150162, &KVTD481X2C_GetAvailableApplications, nullptr,
     ":INST:CAT:FULL?\n"},
    {KVTD_TEXT_ATTRIBUTE(BASIC_GPS_INFO), 1150163, &KVTD481X2C_GetBasicGpsInfo, nullptr, ":FETC:GPS?\n"},
    {KVTD_TEXT_ATTRIBUTE(FULL_GPS_INFO), 1150164, &KVTD481X2C_GetFullGpsInfo, nullptr, ":FETC:GPS:FULL?\n"},
    {KVTD_TEXT_ATTRIBUTE(OPTIONS_CONFIGURATION), 1150169, &KVTD481X2C_GetOptionsConfiguration, nullptr,
     ":SYST:OPT:CONF?\n"},
    {KVTD_TEXT_ATTRIBUTE(TIME_ZONE), 1150173, &KVTD481X2C_GetTimeZone, &KVTD481X2C_SetTimeZone, ":SYST:TIME:ZONE?\n",
     "Europe/Berlin", ":SYST:TIME:ZONE \"Europe/Berlin\"\n", ""},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(System, kSystemAttributes);
KVTD_INSTANTIATE_TEXT_ATTRIBUTES(System, kSystemTexts);

namespace {

constexpr ViStatus kVisaBadFormat = Status(0xBFFF003FU);

using SystemDialogue = ServiceDialogue;
using SimulatedSystem = SimulatedService;

// Date and time are the same exchange under two names.
struct Clock {
  std::string name;
  decltype(&KVTD481X2C_GetSystemDate) get;
  decltype(&KVTD481X2C_SetSystemDate) set;
  const char* query;
  const char* function;
  std::array<const char*, 3> parameters;
};
const Clock kClocks[] = {
    {"Date",
     &KVTD481X2C_GetSystemDate,
     &KVTD481X2C_SetSystemDate,
     ":SYST:DATE?",
     "KVTD481X2C_GetSystemDate",
     {"Year", "Month", "Day"}},
    {"Time",
     &KVTD481X2C_GetSystemTime,
     &KVTD481X2C_SetSystemTime,
     ":SYST:TIME?",
     "KVTD481X2C_GetSystemTime",
     {"Hour", "Minute", "Second"}},
};
void PrintTo(const Clock& clock, std::ostream* stream) { *stream << clock.name; }

class ClockDialogue : public SystemDialogue, public testing::WithParamInterface<Clock> {
 protected:
  const Clock& clock = GetParam();
  ViInt32 first = 77;
  ViInt32 second = 77;
  ViInt32 third = 77;
};
class SimulatedClock : public SimulatedSystem, public testing::WithParamInterface<Clock> {
 protected:
  const Clock& clock = GetParam();
};
std::string NameOfClock(const testing::TestParamInfo<Clock>& info) { return info.param.name; }
INSTANTIATE_TEST_SUITE_P(Clocks, ClockDialogue, testing::ValuesIn(kClocks), NameOfClock);
INSTANTIATE_TEST_SUITE_P(Clocks, SimulatedClock, testing::ValuesIn(kClocks), NameOfClock);

TEST_P(ClockDialogue, ReadsThreeNumbersEveryTime) {
  Asked(clock.query, "2026,11,21");
  EXPECT_STATUS(VI_SUCCESS, clock.get(vi, &first, &second, &third));
  EXPECT_EQ(2026, first);
  EXPECT_EQ(11, second);
  EXPECT_EQ(21, third);
  Asked(clock.query, "   7,5,0");
  EXPECT_STATUS(VI_SUCCESS, clock.get(vi, &first, &second, &third));
  EXPECT_EQ(7, first);
  EXPECT_EQ(5, second);
  EXPECT_EQ(0, third);
}

TEST_P(ClockDialogue, AsksForTheStatusBehindARead) {
  QueryInstrumentStatus(true);
  Asked(clock.query, "1,2,3");
  Asked("*ESR?", "0");
  EXPECT_STATUS(VI_SUCCESS, clock.get(vi, &first, &second, &third));
  Asked(clock.query, "1,2,3");
  Asked("*ESR?", "4");
  EXPECT_STATUS(kInstrumentError, clock.get(vi, &first, &second, &third));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_P(ClockDialogue, WhatAreNoNumbersComesBackAsVisaTellsItAndTheNextQueryIsInStep) {
  QueryInstrumentStatus(true);
  for (const char* answer : {"now", "2026 11 21", "2026,x,21", "2026;11;21"}) {
    Asked(clock.query, answer);
    EXPECT_STATUS(kVisaBadFormat, clock.get(vi, &first, &second, &third)) << answer;
    EXPECT_EQ(77, third);
    EXPECT_EQ(kNothingRecorded, LastError());
  }
  Asked(clock.query, "1,2,3");
  Asked("*ESR?", "0");
  EXPECT_STATUS(VI_SUCCESS, clock.get(vi, &first, &second, &third));
  EXPECT_EQ(3, third);
}

TEST_P(ClockDialogue, FewerThanThreeNumbersAreAFailureAndNotHalfASuccess) {
  SetIoTimeout(60);  // an empty line is passed over, and the number behind it never comes
  for (const char* answer : {"2026", "2026,11", "2026,11,", ""}) {
    Asked(clock.query, answer);
    const ViStatus status = clock.get(vi, &first, &second, &third);
    EXPECT_GT(VI_SUCCESS, status) << answer;
    EXPECT_EQ(77, third);
    EXPECT_EQ(kNothingRecorded, LastError());
  }
}

TEST_P(ClockDialogue, RefusesTheFirstNullParameterByItsName) {
  EXPECT_STATUS(kNullPointer, clock.get(vi, nullptr, &second, &third));
  EXPECT_EQ(NullPointerError(clock.function, clock.parameters[0]), LastError());
  EXPECT_STATUS(kNullPointer, clock.get(vi, &first, nullptr, &third));
  EXPECT_EQ(NullPointerError(clock.function, clock.parameters[1]), LastError());
  EXPECT_STATUS(kNullPointer, clock.get(vi, &first, &second, nullptr));
  EXPECT_EQ(NullPointerError(clock.function, clock.parameters[2]), LastError());
  EXPECT_STATUS(kNullPointer, clock.get(vi, &first, nullptr, nullptr));
  EXPECT_EQ(NullPointerError(clock.function, clock.parameters[1]), LastError());
  EXPECT_EQ(77, first);
  EXPECT_EQ(77, second);
  EXPECT_EQ(77, third);
}

TEST_P(ClockDialogue, RefusesAHandleThatIsNotOpen) {
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    EXPECT_STATUS(kInvalidHandle, clock.get(handle, &first, &second, &third));
    EXPECT_STATUS(kInvalidHandle, clock.set(handle, 1, 2, 3));
  }
  EXPECT_EQ(77, first);
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_P(ClockDialogue, WhatCannotBeSentComesBackAsVisaTellsIt) {
  LoseTheConnection();
  EXPECT_STATUS(kVisaConnectionLost, clock.get(vi, &first, &second, &third));
  EXPECT_STATUS(kVisaConnectionLost, clock.set(vi, 1, 2, 3));
  EXPECT_EQ(77, first);
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_P(SimulatedClock, SucceedsAndWritesNothing) {
  ViInt32 first = 77;
  ViInt32 second = 78;
  ViInt32 third = 79;
  EXPECT_STATUS(VI_SUCCESS, clock.get(vi, &first, &second, &third));
  EXPECT_EQ(77, first);
  EXPECT_EQ(78, second);
  EXPECT_EQ(79, third);
  EXPECT_STATUS(VI_SUCCESS, clock.set(vi, -1, 99, 99));
  EXPECT_STATUS(kNullPointer, clock.get(vi, &first, &second, nullptr));
  EXPECT_EQ(NullPointerError(clock.function, clock.parameters[2]), LastError());
}

TEST_F(SystemDialogue, TheFirstFieldOfDateAndTimeIsFourColumnsWide) {
  ExpectCheckedAction(":SYST:DATE 2026,1,9\n", [this] { return KVTD481X2C_SetSystemDate(vi, 2026, 1, 9); });
  ExpectCheckedAction(":SYST:DATE   99,12,31\n", [this] { return KVTD481X2C_SetSystemDate(vi, 99, 12, 31); });
  ExpectCheckedAction(":SYST:DATE 12026,1,9\n", [this] { return KVTD481X2C_SetSystemDate(vi, 12026, 1, 9); });
  ExpectCheckedAction(":SYST:TIME    7,5,0\n", [this] { return KVTD481X2C_SetSystemTime(vi, 7, 5, 0); });
  ExpectCheckedAction(":SYST:TIME   23,59,59\n", [this] { return KVTD481X2C_SetSystemTime(vi, 23, 59, 59); });
}

TEST_F(SystemDialogue, NumbersOutsideEveryCalendarAreTheInstrumentsToRefuse) {
  Script(R"(
    > :SYST:DATE   -1,13,-32
    > :SYST:TIME -2147483648,2147483647,61
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetSystemDate(vi, -1, 13, -32));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetSystemTime(vi, -2147483647 - 1, 2147483647, 61));
}

TEST_F(SystemDialogue, ZonesAndOptionsAreReadAsOneLine) {
  ExpectTextQuery(":SYST:TIME:ZONE:CAT?", "KVTD481X2C_GetTimeZoneCatalog", "Catalog", &KVTD481X2C_GetTimeZoneCatalog);
  ExpectTextQuery(":SYST:OPT?", "KVTD481X2C_GetSystemOptions", "Val", &KVTD481X2C_GetSystemOptions);
}

TEST_F(SystemDialogue, ACatalogueLongerThanEveryBufferIsReadWhole) {
  std::string zones;
  while (zones.size() < 100000) zones += "\"Europe/Berlin\",";
  Asked(":SYST:TIME:ZONE:CAT?", zones);
  std::string catalog(zones.size() + 1, '~');
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetTimeZoneCatalog(vi, static_cast<ViInt32>(catalog.size()), catalog.data()));
  EXPECT_EQ(zones, catalog.c_str());
}

TEST_F(SystemDialogue, TheClockIsSetWhateverTheSynchronisation) {
  Script(R"(
    > :SYST:TIME:SYNC AUTO
    > :SYST:DATE 2026,1,1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetTimeSyncMode(vi, KVTD481X2C_VAL_TIME_SYNC_MODE_AUTO));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetSystemDate(vi, 2026, 1, 1));
}

TEST_F(SimulatedSystem, QueriesSucceedAndWriteNothing) {
  ExpectUnwritten("KVTD481X2C_GetTimeZoneCatalog", "Catalog", &KVTD481X2C_GetTimeZoneCatalog);
  ExpectUnwritten("KVTD481X2C_GetSystemOptions", "Val", &KVTD481X2C_GetSystemOptions);
}

}  // namespace
}  // namespace kvtd::test
