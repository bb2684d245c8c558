// The handler shapes from which nearly all attributes and operations are made.
#pragma once

#include <type_traits>

#include "CacheManager.h"
#include "CallFrame.h"
#include "Operation.h"
#include "Registry.h"
#include "Rows.h"

namespace tvr {

ViStatus GetValue(const RealRow& row, ViSession vi, ViReal64* value);
ViStatus SetValue(const RealRow& row, ViSession vi, ViReal64 value);
ViStatus GetValue(const IntegerRow& row, ViSession vi, ViInt32* value);
ViStatus SetValue(const IntegerRow& row, ViSession vi, ViInt32 value);
ViStatus GetValue(const EnumRow& row, ViSession vi, ViInt32* value);
ViStatus SetValue(const EnumRow& row, ViSession vi, ViInt32 value);
ViStatus GetValue(const BooleanRow& row, ViSession vi, ViBoolean* value);
ViStatus SetValue(const BooleanRow& row, ViSession vi, ViBoolean value);
ViStatus GetValue(const TextRow& row, ViSession vi, ViInt32 size, ViChar* value);
ViStatus SetValue(const TextRow& row, ViSession vi, ViConstString value);
ViStatus GetValue(const ForwardRow& row, ViSession vi, ViReal64* value);
ViStatus SetValue(const ForwardRow& row, ViSession vi, ViReal64 value);

// The null check of an attribute's getter, under the getter's name and "AttributeValue".
ViStatus RefuseNullAttributeValue(ViSession vi, const char* attribute_name);
inline ViStatus CheckAttributeValue(ViSession vi, const char* attribute_name, const void* value) {
  return value != nullptr ? VI_SUCCESS : RefuseNullAttributeValue(vi, attribute_name);
}

// Refuses a value that a class attribute has no way to honour, under its public name or its digits.
ViStatus RefuseValue(ViSession vi, const EnumMap& names, ViInt32 value, const char* attribute);

// Writes a text and asks for the status. The instrument is not asked when the write failed.
template <class... Arguments>
ViStatus WriteAndCheck(ViSession vi, const char* format, Arguments... arguments) {
  const ViStatus status = viPrintf(InstrumentOf(vi), format, arguments...);
  return status < 0 ? status : CheckInstrumentStatus(vi);
}

template <class... Outputs>
ViStatus QueryAndCheck(ViSession vi, const char* query, const char* scan, Outputs... outputs) {
  const ViStatus status = viQueryf(InstrumentOf(vi), query, scan, outputs...);
  return status < 0 ? status : CheckInstrumentStatus(vi);
}

// A simple action: a simulated session sends nothing; a real one is sent the text and asked for its status.
template <class... Arguments>
ViStatus RunAction(const Operation& operation, ViSession vi, Arguments... arguments) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (SessionOf(vi).GetSimulate()) return VI_SUCCESS;
  return WriteAndCheck(vi, operation.write, arguments...);
}

// The same without the status check: the instrument may be gone behind the command.
ViStatus RunUncheckedAction(const Operation& operation, ViSession vi);

// Reads one number into the caller's variable, which a simulated session leaves unwritten.
template <class T, class... Arguments>
ViStatus RunNumberQuery(const Operation& operation, ViSession vi, T* value, Arguments... arguments) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = CheckNullParameters(vi, operation.function, operation.outputs, {value});
  if (status < 0) return status;
  if (SessionOf(vi).GetSimulate()) return VI_SUCCESS;
  return QueryAndCheck(vi, operation.query, operation.scan, arguments..., value);
}

// Reads a line into the caller's buffer, which a simulated session leaves unwritten.
template <class... Arguments>
ViStatus RunTextQuery(const Operation& operation, ViSession vi, ViInt32 size, ViChar* value, Arguments... arguments) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = CheckNullParameters(vi, operation.function, operation.outputs, {value});
  if (status < 0) return status;
  if (SessionOf(vi).GetSimulate()) return VI_SUCCESS;
  return QueryAndCheck(vi, operation.query, operation.scan, arguments..., &size, value);
}

// One attribute and the value to give it.
template <class T>
struct Setting {
  ViAttr id;
  typename AttributeType<T>::Argument value;
};

// Sets attributes in order under one lock and stops at the first that fails. Nothing set before is undone.
template <class... Types>
ViStatus Configure(ViSession vi, Setting<Types>... settings) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = VI_SUCCESS;
  static_cast<void>(((status = SetAttribute<Types>(vi, nullptr, settings.id, settings.value), status >= 0) && ...));
  return status;
}

}  // namespace tvr
