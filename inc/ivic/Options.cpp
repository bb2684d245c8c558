// The option string: the six inherent options, and DriverSetup behind them.

#include <algorithm>
#include <locale>
#include <regex>

#include "Assertions.h"
#include "DriverSession.h"

namespace tvr {
namespace {

// Matching without recursion where the library offers it: an option string may be as long as the caller likes.
#ifdef __GLIBCXX__
constexpr auto kOptionGrammar = std::regex::ECMAScript | std::regex::optimize | std::regex_constants::__polynomial;
#else
constexpr auto kOptionGrammar = std::regex::ECMAScript | std::regex::optimize;
#endif

// Blanks in front of the word are left to the inherent options, which skip them. Taken into the pattern, a run of them
// would be searched anew from each of its blanks.
const std::regex& DriverSetupPattern() {
  static const std::regex pattern(R"(DriverSetup\s*=(.*))", kOptionGrammar | std::regex::icase);
  return pattern;
}

const std::regex& DriverSetupOptionPattern() {
  static const std::regex pattern(R"(([\w+_]+)\s*(?:=|:)\s*([^,]+))", kOptionGrammar);
  return pattern;
}

const std::regex& InherentOptionPattern() {
  static const std::regex pattern(R"(\s*(\w+)\s*=\s*(\w+)\s*,?)", kOptionGrammar);
  return pattern;
}

// Walks the pairs of a text from left to right; what lies between them is skipped. A pair is tried only where a name
// begins: a search at every character would take the square of a long name's length to find that it is none.
class PairWalk {
 public:
  // `more` are the characters that a name may have besides letters, digits and the underscore.
  PairWalk(const std::string& text, const std::regex& pattern, std::string_view more)
      : rest_(text.begin()), end_(text.end()), pattern_(pattern), more_(more), locale_(pattern.getloc()) {}

  bool Next(std::smatch& match) {
    const auto in_name = [this](char c) {
      return std::isalnum(c, locale_) || c == '_' || more_.find(c) != std::string_view::npos;
    };
    for (;;) {
      rest_ = std::find_if(rest_, end_, in_name);
      if (rest_ == end_) return false;
      if (std::regex_search(rest_, end_, match, pattern_, std::regex_constants::match_continuous)) {
        rest_ = match[0].second;
        return true;
      }
      rest_ = std::find_if_not(rest_, end_, in_name);
    }
  }

 private:
  std::string::const_iterator rest_;
  std::string::const_iterator end_;
  const std::regex& pattern_;
  std::string_view more_;
  std::locale locale_;
};

}  // namespace

ViStatus DriverSession::ParseOptionString(const std::string& text) {
  if (text.empty()) return VI_SUCCESS;
  std::smatch match;
  if (!std::regex_search(text, match, DriverSetupPattern())) return ParseInherentOptions(text);
  if (const ViStatus status = ParseDriverSetup(match[1].str()); status < 0) return status;
  return ParseInherentOptions(match.prefix().str());
}

ViStatus DriverSession::ParseDriverSetup(const std::string& text) {
  driver_setup_options_.clear();
  driver_setup_ = text;

  ViStatus status = VI_SUCCESS;
  std::smatch match;
  for (PairWalk walk(text, DriverSetupOptionPattern(), "+"); walk.Next(match);) {
    if (match.size() != 3) {
      status = ReportErrorText(error::kCannotRecover, "Failed to parse the DriverSetup string.");
      if (status < 0) break;
    }
    const std::string name = match[1].str();
    const std::string value = match[2].str();
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
  std::smatch match;
  for (PairWalk walk(lower, InherentOptionPattern(), ""); status >= 0 && walk.Next(match);) {
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
