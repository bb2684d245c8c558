#include "Frames.h"

#include <string>
#include <utility>

#include "Strings.h"

namespace tvr {
namespace {

// Words and booleans are read into this much; no word of an instrument is longer.
constexpr ViInt32 kWordSize = 256;

// "PREFIX_ATTR_NAME" belongs to the getter "PREFIX_get_NAME".
std::string GetterName(std::string name) {
  const std::size_t mark = name.find("_ATTR_");
  return mark == std::string::npos ? name : name.replace(mark, 6, "_get_");
}

std::string SetterName(std::string name) {
  const std::size_t mark = name.find("_ATTR_");
  return mark == std::string::npos ? name : name.replace(mark, 6, "_set_");
}

template <class Row, class Read>
ViStatus RunGetter(const Row& row, ViSession vi, typename Row::Value* value, Read read) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (const ViStatus status = CheckAttributeValue(vi, row.name, value); status < 0) return status;
  if (row.frame == Frame::Plain) return read();
  if (row.frame == Frame::Simulated) {
    if (!SessionOf(vi).GetSimulate()) return read();
    *value = row.simulated;
    return VI_SUCCESS;
  }
  const GetterCacheManager<typename Row::Value> cache(vi, row.id, value);
  if (!SessionOf(vi).GetSimulate()) return read();
  if (row.set == nullptr || !cache.Recall()) *value = row.simulated;
  return VI_SUCCESS;
}

template <class Row, class Value, class Write>
ViStatus RunSetter(const Row& row, ViSession vi, Value value, Write write) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (row.frame == Frame::Plain) return write();
  if (row.frame == Frame::Simulated) return SessionOf(vi).GetSimulate() ? VI_SUCCESS : write();
  const SetterCacheManager<Value> cache(vi, row.id, &value);
  return SessionOf(vi).GetSimulate() ? VI_SUCCESS : write();
}

template <class T>
ViStatus RunThen(Then<T> then, ViSession vi, T value, ViStatus status) {
  return status < 0 || then == nullptr ? status : then(vi, value, status);
}

// The status check is left out when the response has no value.
ViStatus QueryWord(ViSession vi, const char* query, const EnumMap& words, ViInt32& value, bool& answered) {
  ViChar response[kWordSize] = "";
  ViInt32 size = kWordSize;
  const ViStatus read = viQueryf(InstrumentOf(vi), query, "%#[^\n]%*t", &size, response);
  answered = read >= 0;
  if (!answered) return read;
  const ViStatus status = ResponseToValue(vi, words, response, value);
  return status < 0 ? status : CheckInstrumentStatus(vi);
}

template <class T>
ViStatus ReadWord(ViSession vi, const char* query, const EnumMap& words, T* value) {
  ViInt32 defined = 0;
  bool answered = false;
  const ViStatus status = QueryWord(vi, query, words, defined, answered);
  if (answered) *value = static_cast<T>(defined);
  return status;
}

ViStatus WriteWord(ViSession vi, const char* command, const EnumMap& words, ViInt32 value) {
  std::string_view word;
  if (const ViStatus status = ValueToCommand(vi, words, value, word); status < 0) return status;
  return WriteAndCheck(vi, command, word.data());
}

}  // namespace

ViStatus RefuseNullAttributeValue(ViSession vi, const char* attribute_name) {
  return CheckNullParameters(vi, GetterName(attribute_name).c_str(), "AttributeValue", {nullptr});
}

ViStatus RefuseValue(ViSession vi, const EnumMap& names, ViInt32 value, const char* attribute) {
  return RaiseError(vi, error::kValueNotSupported, ValueToName(names, value).c_str(), "AttributeValue", attribute);
}

ViStatus GetValue(const RealRow& row, ViSession vi, ViReal64* value) {
  return RunGetter(row, vi, value, [&] { return QueryAndCheck(vi, row.get, "%lf%*t", value); });
}

ViStatus SetValue(const RealRow& row, ViSession vi, ViReal64 value) {
  return RunSetter(row, vi, value, [&] { return RunThen(row.then, vi, value, WriteAndCheck(vi, row.set, value)); });
}

ViStatus GetValue(const IntegerRow& row, ViSession vi, ViInt32* value) {
  return RunGetter(row, vi, value, [&] { return QueryAndCheck(vi, row.get, "%ld%*t", value); });
}

ViStatus SetValue(const IntegerRow& row, ViSession vi, ViInt32 value) {
  return RunSetter(row, vi, value, [&] { return WriteAndCheck(vi, row.set, value); });
}

ViStatus GetValue(const EnumRow& row, ViSession vi, ViInt32* value) {
  return RunGetter(row, vi, value, [&] { return ReadWord(vi, row.get, row.words(), value); });
}

ViStatus SetValue(const EnumRow& row, ViSession vi, ViInt32 value) {
  return RunSetter(row, vi, value, [&] { return WriteWord(vi, row.set, row.words(), value); });
}

ViStatus GetValue(const BooleanRow& row, ViSession vi, ViBoolean* value) {
  return RunGetter(row, vi, value, [&] { return ReadWord(vi, row.get, BooleanMap(), value); });
}

ViStatus SetValue(const BooleanRow& row, ViSession vi, ViBoolean value) {
  return RunSetter(row, vi, value,
                   [&] { return RunThen(row.then, vi, value, WriteWord(vi, row.set, BooleanMap(), value)); });
}

ViStatus GetValue(const TextRow& row, ViSession vi, ViInt32 size, ViChar* value) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (const ViStatus status = CheckAttributeValue(vi, row.name, value); status < 0) return status;
  const GetterCacheManager<char[]> cache(vi, row.id, size, value);
  if (SessionOf(vi).GetSimulate()) {
    if (row.set == nullptr || !cache.Recall()) CopyText(row.simulated, size, value);
    return VI_SUCCESS;
  }
  ViInt32 width = size;
  return QueryAndCheck(vi, row.get, "%#[^\n]%*t", &width, value);
}

ViStatus SetValue(const TextRow& row, ViSession vi, ViConstString value) {
  if (value == nullptr) {
    if (FindSession(vi) == nullptr) return error::kInvalidSessionHandle;
    return CheckNullParameters(vi, SetterName(row.name).c_str(), "AttributeValue", {value});
  }
  return RunSetter(row, vi, value, [&] {
    return row.convert == nullptr ? WriteAndCheck(vi, row.set, value)
                                  : WriteAndCheck(vi, row.set, row.convert(value).c_str());
  });
}

ViStatus GetValue(const ForwardRow& row, ViSession vi, ViReal64* value) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (const ViStatus status = CheckAttributeValue(vi, row.name, value); status < 0) return status;
  return GetAttribute(vi, nullptr, row.target, value);
}

ViStatus SetValue(const ForwardRow& row, ViSession vi, ViReal64 value) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  return SetAttribute<ViReal64>(vi, nullptr, row.target, value);
}

ViStatus RunUncheckedAction(const Operation& operation, ViSession vi) {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (SessionOf(vi).GetSimulate()) return VI_SUCCESS;
  return viPrintf(InstrumentOf(vi), operation.write);
}

}  // namespace tvr
