#include "RepeatedCapability.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <regex>

#include "Assertions.h"
#include "CallFrame.h"
#include "Errors.h"
#include "Strings.h"

namespace tvr {
namespace {

// White space of the language, as the C library knows it.
constexpr std::string_view kSpace = " \t\n\r\v\f";

// The range parser has a back reference, and the library matches those by recursion. No name is nearly as long.
constexpr std::size_t kLongestRange = 1024;

// More names than any instrument has; keeps the ranges of a selector from taking all memory, and minutes.
constexpr ViInt64 kMostNames = 65'536;

#ifdef __GLIBCXX__
constexpr auto kSelectorGrammar = std::regex::ECMAScript | std::regex::icase | std::regex_constants::__polynomial;
#else
constexpr auto kSelectorGrammar = std::regex::ECMAScript | std::regex::icase;
#endif

const std::regex& SelectorPattern() {
  static const std::regex pattern = [] {
    const std::string identifier = R"(\s*[\w_!]+)";
    const std::string range = R"((?:\s*[\w_!]*?[0-9]+\s*-\s*[\w_!]*?[0-9]+))";
    const std::string item = range + "|" + identifier;
    const std::string level = "(?:" + item + R"()(?:\s*,(?:)" + item + "))*";
    return std::regex(R"(^(?:\s*\[?)" + level + R"(\s*\]?)(?:\s*:\s*\[?)" + level + R"(\s*\]?)*$)", kSelectorGrammar);
  }();
  return pattern;
}

const std::regex& RangePattern() {
  static const std::regex pattern(R"(^\s*([\w_!]*?)([0-9]+)\s*-\s*\1([0-9]+)$)",
                                  std::regex::ECMAScript | std::regex::icase);
  return pattern;
}

const std::regex& TokenPattern() {
  static const std::regex pattern(R"([\w_!]+)", kSelectorGrammar);
  return pattern;
}

// A single name, as most selectors are: what the patterns above would find at once is known without them.
bool IsOneName(std::string_view text) {
  const auto in_name = [](char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '!';
  };
  return !text.empty() && std::all_of(text.begin(), text.end(), in_name);
}

// With its own commas, a physical name is a list of names.
std::string PhysicalText(ViSession vi, const std::string& name) {
  const std::string physical = SessionOf(vi).VirtualToPhysical(name);
  const bool several =
      physical != name && physical.find(',') != std::string::npos && physical.find(':') == std::string::npos;
  return several ? "[" + physical + "]" : physical;
}

bool ParseIndex(const std::string& digits, ViInt32& index) {
  const char* const end = digits.data() + digits.size();
  const auto [stop, fault] = std::from_chars(digits.data(), end, index);
  return fault == std::errc() && stop == end;
}

}  // namespace

ViStatus ValidateSelector(ViSession vi, const std::string& text) {
  if (IsOneName(text) || std::regex_match(text, SelectorPattern())) return VI_SUCCESS;
  return RaiseError(vi, error::kBadlyFormedSelector);
}

std::string ApplyVirtualNames(ViSession vi, const std::string& text) {
  if (IsOneName(text)) return PhysicalText(vi, text);
  std::string result;
  auto copied = text.begin();
  const std::sregex_iterator end;
  for (std::sregex_iterator token(text.begin(), text.end(), TokenPattern()); token != end; ++token) {
    const auto& match = (*token)[0];
    result.append(copied, match.first).append(PhysicalText(vi, match.str()));
    copied = match.second;
  }
  return result.append(copied, text.end());
}

RepeatedCapability::RepeatedCapability(std::string name, const char* physical_names) : name_(std::move(name)) {
  const ViStatus status = ExpandSelector(VI_NULL, physical_names, identifiers_, false);
  assert(status >= 0);
}

RepCapIdentifier RepeatedCapability::Identifier(const std::string& name) const {
  return {name, name.empty() ? std::string() : name_ + "!!" + name};
}

ViStatus RepeatedCapability::ExpandSelector(ViSession vi, ViConstString selector, std::vector<RepCapIdentifier>& output,
                                            bool check) const {
  std::string text = selector == nullptr ? "" : selector;
  if (TrimString(text, kSpace).empty()) return ExpandEmpty(vi, output);
  if (const ViStatus status = ValidateSelector(vi, text); status < 0) return status;

  if (FindSession(vi) != nullptr) {  // the physical names themselves belong to no session
    std::string replaced = ApplyVirtualNames(vi, text);
    if (replaced != text) {
      if (const ViStatus status = ValidateSelector(vi, replaced); status < 0) return status;
      text = std::move(replaced);
    }
  }

  const std::vector<std::string> levels = SplitString(text, ':', true);
  std::vector<std::string> names;
  ViInt64 room = kMostNames;
  bool empty_level = false;  // a bracket without its fellow can leave one; nothing can be joined with it
  for (const std::string& level : levels) {
    names.clear();
    if (const ViStatus status = ExpandLevel(vi, level, room, names); status < 0) return status;
    empty_level = empty_level || names.empty();
  }
  if (empty_level) return VI_SUCCESS;
  if (levels.size() > 1) return RaiseError(vi, error::kInvalidNumberOfLevelsInSelector, name_.c_str());

  for (const std::string& name : names) {
    RepCapIdentifier identifier = Identifier(name);
    const bool known =
        !check || std::any_of(identifiers_.begin(), identifiers_.end(), [&identifier](const RepCapIdentifier& other) {
          return other.QualifiedName == identifier.QualifiedName;
        });
    if (!known) {
      return RaiseErrorText(vi, error::kUnknownPhysicalIdentifier,
                            "The identifier '%s' is not defined for repeated capability '%s'.", name.c_str(),
                            name_.c_str());
    }
    output.push_back(std::move(identifier));
  }
  return VI_SUCCESS;
}

ViStatus RepeatedCapability::ExpandEmpty(ViSession vi, std::vector<RepCapIdentifier>& output) const {
  const std::vector<RepCapIdentifier>& names = identifiers_;
  assert(names.size() > 0);
  if (names.size() == 1) {
    output.push_back(names.front());
    return VI_SUCCESS;
  }
  return RaiseErrorText(vi, error::kChannelNameRequired,
                        "No selector was specified for repeated capability '%s'.  The repeated capability identifier "
                        "can be null or empty only when there is exactly one physical name defined.  Repeated "
                        "capability '%s' has %d physical names defined.",
                        name_.c_str(), name_.c_str(), static_cast<int>(names.size()));
}

ViStatus RepeatedCapability::ExpandLevel(ViSession vi, std::string_view level, ViInt64& room,
                                         std::vector<std::string>& names) const {
  if (!level.empty() && level.front() == '[') {
    level.remove_prefix(1);
    if (!level.empty()) level.remove_suffix(1);
  }
  std::map<std::string, bool, std::less<>> taken;  // name, and whether a range gave it
  for (const std::string& token : SplitString(level, ',', true)) {
    const bool is_range = token.find('-') != std::string::npos;
    std::vector<std::string> expanded;
    if (is_range) {
      if (const ViStatus status = ExpandRange(vi, token, room, expanded); status < 0) return status;
    } else {
      expanded.push_back(token);
    }
    for (const std::string& name : expanded) {
      const auto earlier = taken.find(name);
      if (earlier == taken.end()) continue;
      if (!is_range && !earlier->second) return RaiseError(vi, error::kBadlyFormedSelector);
      return RaiseErrorText(vi, error::kInvalidRangeInSelector,
                            "An identifier in the range overlaps with another range.", token.c_str(), name_.c_str());
    }
    for (std::string& name : expanded) {
      taken.emplace(name, is_range);
      names.push_back(std::move(name));
    }
  }
  return VI_SUCCESS;
}

ViStatus RepeatedCapability::ExpandRange(ViSession vi, const std::string& token, ViInt64& room,
                                         std::vector<std::string>& names) const {
  const auto refuse = [&](const char* why) {
    return RaiseErrorText(vi, error::kInvalidRangeInSelector, why, token.c_str(), name_.c_str());
  };
  std::smatch match;
  if (token.size() > kLongestRange) return refuse("The range is too long.");
  if (!std::regex_match(token, match, RangePattern())) return refuse("The base names do not match.");
  ViInt32 start = 0;
  ViInt32 end = 0;
  if (!ParseIndex(match[2].str(), start) || !ParseIndex(match[3].str(), end)) {
    return refuse("An index is too large.");
  }
  if (start >= end) return refuse("The start index must be less than the end index.");
  const ViInt64 count = ViInt64{end} - start + 1;
  if (count > room) return refuse("The range has too many names.");
  room -= count;
  for (ViInt64 i = start; i <= end; ++i) names.push_back(match[1].str() + std::to_string(i));
  return VI_SUCCESS;
}

ViStatus RepeatedCapability::GetName(ViSession vi, const char* function, ViInt32 index, ViInt32 size,
                                     ViChar* name) const {
  CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (const ViStatus status = CheckNullParameters(vi, function, "Name", {name}); status < 0) return status;
  const ViInt64 place = ViInt64{index} - 1;
  if (place < 0 || place >= static_cast<ViInt64>(identifiers_.size())) {
    // Kept on purpose: the text shows the place that counts from 0.
    const std::string getter = "Get" + name_ + "Name";
    return RaiseError(vi, error::kInvalidValue, std::to_string(place).c_str(), getter.c_str(), "Index");
  }
  CopyText(identifiers_[static_cast<std::size_t>(place)].Name, size, name);
  return VI_SUCCESS;
}

}  // namespace tvr
