// The option string: the six inherent options, and DriverSetup behind them.

#include <regex>

#include "Assertions.h"
#include "DriverSession.h"

namespace tvr {
namespace {

// Matching without recursion where the library offers it: an option string may be as long as the caller likes.
#ifdef __GLIBCXX__
constexpr auto kGrammar = std::regex::ECMAScript | std::regex::optimize | std::regex_constants::__polynomial;
#else
constexpr auto kGrammar = std::regex::ECMAScript | std::regex::optimize;
#endif

const std::regex& DriverSetupPattern() {
  static const std::regex pattern(R"(\s*DriverSetup\s*=(.*))", kGrammar | std::regex::icase);
  return pattern;
}

const std::regex& DriverSetupOptionPattern() {
  static const std::regex pattern(R"(([\w+_]+)\s*(?:=|:)\s*([^,]+))", kGrammar);
  return pattern;
}

const std::regex& InherentOptionPattern() {
  static const std::regex pattern(R"(\s*(\w+)\s*=\s*(\w+)\s*,?)", kGrammar);
  return pattern;
}

}  // namespace

ViStatus DriverSession::ParseOptionString(const std::string& text) {
  std::smatch match;
  if (!std::regex_search(text, match, DriverSetupPattern())) return ParseInherentOptions(text);
  if (const ViStatus status = ParseDriverSetup(match[1].str()); status < 0) return status;
  return ParseInherentOptions(match.prefix().str());
}

ViStatus DriverSession::ParseDriverSetup(const std::string& text) {
  driver_setup_options_.clear();
  driver_setup_ = text;

  ViStatus status = VI_SUCCESS;
  const std::sregex_iterator end;
  for (std::sregex_iterator match(text.begin(), text.end(), DriverSetupOptionPattern()); match != end; ++match) {
    if (match->size() != 3) {
      status = ReportErrorText(error::kCannotRecover, "Failed to parse the DriverSetup string.");
      if (status < 0) break;
    }
    const std::string name = (*match)[1].str();
    const std::string value = (*match)[2].str();
    status = ApplyDriverSetupOption(name, value);
    if (status < 0) break;
    if (driver_setup_options_.contains(name)) {
      status = ReportErrorText(error::kCannotRecover, "DriverSetup option '%s' appears more than once.", name.c_str());
      break;
    }
    driver_setup_options_[name] = value;
  }
  return status;
}

ViStatus DriverSession::ApplyDriverSetupOption(const std::string& name, const std::string& value) {
  if (EqualIgnoringCase(name, "Model")) instrument_model_ = value;
  return VI_SUCCESS;
}

ViStatus DriverSession::ParseInherentOptions(const std::string& text) {
  const struct {
    std::string_view word;
    bool& flag;
  } options[] = {{"cache", flags_.cache},
                 {"interchangecheck", flags_.interchange_check},
                 {"queryinstrstatus", flags_.query_instr_status},
                 {"rangecheck", flags_.range_check},
                 {"recordcoercions", flags_.record_coercions},
                 {"simulate", flags_.simulate}};

  const std::string lower = LowerCase(text);
  ViStatus status = VI_SUCCESS;
  const std::sregex_iterator end;
  for (std::sregex_iterator it(lower.begin(), lower.end(), InherentOptionPattern()); it != end && status >= 0; ++it) {
    const std::smatch& match = *it;
    assert(match.size() == 3 && "Failed to parse inherent option.");
    const std::string name = match[1].str();
    const std::string value = match[2].str();

    bool known = false;
    for (const auto& option : options) {
      if (option.word != name) continue;
      known = true;
      status = ParseBooleanOption(name, value, option.flag);
    }
    if (!known) status = ReportError(error::kBadOptionName, name.c_str());

    if (inherent_options_.contains(name)) {
      status = ReportErrorText(error::kCannotRecover, "Inherent option '%s' appears more than once.", name.c_str());
      if (status < 0) break;
    }
    inherent_options_[name] = value;
  }
  return status;
}

ViStatus DriverSession::ParseBooleanOption(const std::string& /*name*/, const std::string& value, bool& flag) {
  for (const char* spelling : {"true", "vi_true", "1"}) {
    if (value != spelling) continue;
    flag = true;
    return VI_SUCCESS;
  }
  for (const char* spelling : {"false", "vi_false", "0"}) {
    if (value != spelling) continue;
    flag = false;
    return VI_SUCCESS;
  }
  return ReportError(error::kBadOptionValue, value.c_str());
}

}  // namespace tvr
