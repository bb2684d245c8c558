// Lists. The class calls a list by a name of the caller's; the instrument has ten that are numbered. The session holds
// the table between the two. Functions with a list number go by the number alone and never look at the table.

#include <new>
#include <vector>

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "handlers.h"
#include "operations.h"
#include "rf/single_step.h"

using namespace tvr::operation;

namespace {

constexpr ViInt32 kLists = 10;
constexpr ViInt32 kMostPoints = 4000;

// The lowest number that no name holds. A name that is created again moves on and frees its old number.
ViStatus AssignListNumber(ViSession vi, ViConstString name, ViInt32& number) {
  auto& names = ConcreteSession(vi).ListNames;
  const auto held = [&names](ViInt32 candidate) {
    for (const auto& entry : names) {
      if (entry.second == candidate) return true;
    }
    return false;
  };
  for (ViInt32 candidate = 1; candidate <= kLists; ++candidate) {
    if (held(candidate)) continue;
    names[name] = candidate;
    number = candidate;
    return VI_SUCCESS;
  }
  return tvr::SessionOf(vi).ReportErrorText(tvr::error::kCannotRecover,
                                            "A maximum of 10 lists can be managed at one time.");
}

// Kept on purpose: "Length" stands where the message has the function, and the function where it has the parameter.
ViStatus CheckLength(ViSession vi, ViInt32 length, const char* function) {
  if (length <= kMostPoints) return VI_SUCCESS;
  return tvr::RaiseErrorText(vi, tvr::error::kInvalidValue, "List can have at most 4,000 points.",
                             std::to_string(length).c_str(), "Length", function);
}

// A list with as many points as the caller's, all of the value that the attribute has now. A length below zero is no
// size for it, and ends the call as an allocation that failed.
ViStatus RepeatAttribute(ViSession vi, ViAttr attribute, ViInt32 length, std::vector<ViReal64>& values) {
  ViReal64 value = 0.0;
  const ViStatus status = tvr::GetAttribute<ViReal64>(vi, nullptr, attribute, &value);
  if (status < 0) return status;
  if (length < 0) throw std::bad_alloc();
  values.assign(static_cast<std::size_t>(length), value);
  return status;
}

}  // namespace

ViStatus KVTD481X2C_get_LIST_SELECTED_NAME(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_LIST_SELECTED_NAME", value);
  if (status < 0) return status;
  tvr::CopyText(ConcreteSession(vi).SelectedListName, size, value);
  return VI_SUCCESS;
}

// Moves the frequency mode alone, and does not remember the name.
ViStatus KVTD481X2C_set_LIST_SELECTED_NAME(ViSession vi, ViConstString, ViConstString value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const auto& names = ConcreteSession(vi).ListNames;
  const auto found = names.find(value);
  if (found == names.end()) {
    return tvr::RaiseErrorText(vi, tvr::error::kListUnknown, "The specified name is not mapped to an instrument list.");
  }
  const ViInt32 number = found->second;
  if (number < 1 || number > kLists) {
    return tvr::RaiseErrorText(vi, tvr::error::kCannotRecover, "Unexpected list index.");
  }
  return tvr::SetAttribute<ViInt32>(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY_MODE,
                                    KVTD481X2C_VAL_FREQUENCY_MODE_LIST1 + number - 1);
}

ViStatus KVTD481X2C_get_LIST_SINGLE_STEP_ENABLED(ViSession vi, ViConstString, ViBoolean* value) {
  return GetSingleStep(vi, "KVTD481X2C_ATTR_LIST_SINGLE_STEP_ENABLED", value);
}

ViStatus KVTD481X2C_set_LIST_SINGLE_STEP_ENABLED(ViSession vi, ViConstString, ViBoolean value) {
  return SetSingleStep(vi, value);
}

ViStatus KVTD481X2C_CreateFrequencyList(ViSession Vi, ViConstString Name, ViInt32 Length, const ViReal64* Frequencies) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  ViInt32 number = 0;
  ViStatus status = CheckLength(Vi, Length, "CreateFrequencyList");
  if (status >= 0) status = AssignListNumber(Vi, Name, number);
  if (status < 0) return status;

  // Kept on purpose: what becomes of the first half does not stop the second.
  KVTD481X2C_UpdateListFrequencies(Vi, number, 0, Length, Frequencies);
  std::vector<ViReal64> powers;
  if (status = RepeatAttribute(Vi, KVTD481X2C_ATTR_POWER_LEVEL, Length, powers); status < 0) return status;
  return KVTD481X2C_UpdateListPowerLevels(Vi, number, 0, Length, powers.data());
}

ViStatus KVTD481X2C_CreatePowerList(ViSession Vi, ViConstString Name, ViInt32 Length, const ViReal64* Powers) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  ViInt32 number = 0;
  ViStatus status = CheckLength(Vi, Length, "CreatePowerList");
  if (status >= 0) status = AssignListNumber(Vi, Name, number);
  if (status < 0) return status;

  KVTD481X2C_UpdateListPowerLevels(Vi, number, 0, Length, Powers);
  std::vector<ViReal64> frequencies;
  if (status = RepeatAttribute(Vi, KVTD481X2C_ATTR_FREQUENCY, Length, frequencies); status < 0) return status;
  return KVTD481X2C_UpdateListFrequencies(Vi, number, 0, Length, frequencies.data());
}

ViStatus KVTD481X2C_CreateFrequencyPowerList(ViSession Vi, ViConstString Name, ViInt32 Length,
                                             const ViReal64* Frequencies, const ViReal64* Powers) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  ViInt32 number = 0;
  ViStatus status = CheckLength(Vi, Length, "CreateFrequencyPowerList");
  if (status >= 0) status = AssignListNumber(Vi, Name, number);
  if (status < 0) return status;

  KVTD481X2C_UpdateListFrequencies(Vi, number, 0, Length, Frequencies);
  return KVTD481X2C_UpdateListPowerLevels(Vi, number, 0, Length, Powers);
}

ViStatus KVTD481X2C_SelectList(ViSession Vi, ViConstString Name) {
  return tvr::Configure(Vi, tvr::Setting<ViString>{KVTD481X2C_ATTR_LIST_SELECTED_NAME, Name});
}

// The names only: the instrument's lists and its mode stay as they are.
ViStatus KVTD481X2C_ClearAllLists(ViSession Vi) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  ConcreteSession(Vi).ListNames.clear();
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_ResetList(ViSession Vi) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  const TD481X2CDriverSession& session = ConcreteSession(Vi);
  if (session.SelectedListName.empty()) return VI_SUCCESS;
  const auto found = session.ListNames.find(session.SelectedListName);
  if (found == session.ListNames.end()) {
    return tvr::RaiseErrorText(Vi, tvr::error::kListUnknown,
                               "The currently selected name is not mapped to an instrument list.");
  }
  return KVTD481X2C_SetListIndex(Vi, found->second, 0);
}

ViStatus KVTD481X2C_ConfigureListDwell(ViSession Vi, ViReal64 Dwell) {
  return tvr::Configure(Vi, tvr::Setting<ViReal64>{KVTD481X2C_ATTR_LIST_DWELL, Dwell});
}

ViStatus KVTD481X2C_CopyListSweep(ViSession Vi) { return tvr::RunAction(kCopyListSweep, Vi); }

ViStatus KVTD481X2C_SetListFrequencies(ViSession Vi, ViInt32 List, ViInt32 Count, const ViReal64* Values) {
  return tvr::RunAction(kSetListFrequencies, Vi, List, Count, Values);
}

ViStatus KVTD481X2C_SetListPowerLevels(ViSession Vi, ViInt32 List, ViInt32 Count, const ViReal64* Values) {
  return tvr::RunAction(kSetListPowerLevels, Vi, List, Count, Values);
}

ViStatus KVTD481X2C_UpdateListFrequencies(ViSession Vi, ViInt32 List, ViInt32 Start, ViInt32 Count,
                                          const ViReal64* Values) {
  return tvr::RunAction(kUpdateListFrequencies, Vi, List, Start, Count, Values);
}

ViStatus KVTD481X2C_UpdateListPowerLevels(ViSession Vi, ViInt32 List, ViInt32 Start, ViInt32 Count,
                                          const ViReal64* Values) {
  return tvr::RunAction(kUpdateListPowerLevels, Vi, List, Start, Count, Values);
}

ViStatus KVTD481X2C_SetListIndex(ViSession Vi, ViInt32 List, ViInt32 Index) {
  return tvr::RunAction(kSetListIndex, Vi, List, Index);
}

ViStatus KVTD481X2C_SetListSweepStart(ViSession Vi, ViInt32 List, ViInt32 Start) {
  return tvr::RunAction(kSetListSweepStart, Vi, List, Start);
}

ViStatus KVTD481X2C_SetListSweepStop(ViSession Vi, ViInt32 List, ViInt32 Stop) {
  return tvr::RunAction(kSetListSweepStop, Vi, List, Stop);
}

ViStatus KVTD481X2C_GetListFrequency(ViSession Vi, ViInt32 List, ViReal64* Val) {
  return tvr::RunNumberQuery(kGetListFrequency, Vi, Val, List);
}

ViStatus KVTD481X2C_GetListPowerLevel(ViSession Vi, ViInt32 List, ViReal64* Val) {
  return tvr::RunNumberQuery(kGetListPowerLevel, Vi, Val, List);
}

ViStatus KVTD481X2C_GetListIndex(ViSession Vi, ViInt32 List, ViInt32* Val) {
  return tvr::RunNumberQuery(kGetListIndex, Vi, Val, List);
}

ViStatus KVTD481X2C_GetListSweepStart(ViSession Vi, ViInt32 List, ViInt32* Val) {
  return tvr::RunNumberQuery(kGetListSweepStart, Vi, Val, List);
}

ViStatus KVTD481X2C_GetListSweepStop(ViSession Vi, ViInt32 List, ViInt32* Val) {
  return tvr::RunNumberQuery(kGetListSweepStop, Vi, Val, List);
}
