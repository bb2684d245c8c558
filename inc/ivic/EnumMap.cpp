#include "EnumMap.h"

#include <algorithm>

#include "Assertions.h"
#include "CallFrame.h"
#include "Errors.h"
#include "Strings.h"

namespace tvr {
namespace {

bool NamesModel(const EnumCommandInfo& info, std::string_view model) {
  return std::find(info.Models.begin(), info.Models.end(), model) != info.Models.end();
}

bool NamesFamilyOf(const EnumCommandInfo& info, const DriverSession& session, std::string_view model) {
  return std::any_of(info.Models.begin(), info.Models.end(),
                     [&](const std::string& family) { return session.IsModelInFamily(model, family); });
}

bool Accepts(const EnumCommandInfo& info, std::string_view response) {
  const std::string_view answer = TrimString(response, kBlanks);
  return std::any_of(info.Commands.begin(), info.Commands.end(), [answer](const std::string& word) {
    return EqualIgnoringCase(answer, TrimString(word, kBlanks));
  });
}

}  // namespace

EnumCommandInfo::EnumCommandInfo(const char* name, ViInt32 value, const char* commands, const char* models)
    : Name(name), Value(value), Commands(SplitString(commands, ',', true)), Models(SplitString(models, ',', true)) {}

ViStatus ResponseToValue(ViSession vi, const EnumMap& map, std::string_view response, ViInt32& value) {
  value = -1;
  const DriverSession& session = SessionOf(vi);
  const std::string& model = session.GetInstrumentModel();
  std::vector<ViInt32> applied;  // values that have a row of their own for this model or its family
  const EnumCommandInfo* pBestMatch = nullptr;

  for (const EnumCommandInfo& info : map) {
    const bool exact = NamesModel(info, model);
    const bool family = !exact && NamesFamilyOf(info, session, model);
    if (exact || family) applied.push_back(info.Value);
    if (!Accepts(info, response)) continue;

    if (exact) {
      value = info.Value;
      return VI_SUCCESS;
    }
    if (family) {
      assert((pBestMatch == nullptr || pBestMatch->Models.empty()) && "Invalid enum command map.");
      pBestMatch = &info;
    } else if (pBestMatch == nullptr) {
      if (info.Models.empty()) pBestMatch = &info;
    } else {
      assert((pBestMatch == nullptr || !pBestMatch->Models.empty() || !info.Models.empty()) &&
             "Invalid enum command map.");
    }
  }

  // A generic word does not stand for a value that a row of this model has taken over.
  if (pBestMatch != nullptr &&
      (!pBestMatch->Models.empty() || std::find(applied.begin(), applied.end(), pBestMatch->Value) == applied.end())) {
    value = pBestMatch->Value;
    return VI_SUCCESS;
  }
  return RaiseErrorText(vi, error::kUnexpectedResponse,
                        "Could not convert instrument response (%s) to a defined value.",
                        std::string(response).c_str());
}

ViStatus ValueToCommand(ViSession vi, const EnumMap& map, ViInt32 value, std::string_view& command) {
  command = {};
  const DriverSession& session = SessionOf(vi);
  const std::string& model = session.GetInstrumentModel();

  const auto first = [&map, value](auto applies) {
    const auto found = std::find_if(map.begin(), map.end(), [value, &applies](const EnumCommandInfo& info) {
      return info.Value == value && applies(info);
    });
    return found == map.end() ? nullptr : &*found;
  };
  const EnumCommandInfo* row = first([&](const EnumCommandInfo& info) { return NamesModel(info, model); });
  if (row == nullptr) row = first([&](const EnumCommandInfo& info) { return NamesFamilyOf(info, session, model); });
  if (row == nullptr) row = first([](const EnumCommandInfo& info) { return info.Models.empty(); });
  if (row == nullptr) {
    return RaiseErrorText(vi, error::kCannotRecover, "Could not convert defined value '%d' to an instrument command.",
                          value);
  }
  command = row->Commands.front();
  return VI_SUCCESS;
}

std::string ValueToName(const EnumMap& map, ViInt32 value) {
  const auto found =
      std::find_if(map.begin(), map.end(), [value](const EnumCommandInfo& info) { return info.Value == value; });
  return found == map.end() ? std::to_string(value) : found->Name;
}

}  // namespace tvr
