// The selector language: from the text by which a caller addresses several like things to their physical names.
//
//   selector  one level, or several joined with ":"; a level may stand in square brackets
//   level     names and ranges, separated by commas:  AM   AM,FM   src1-src4,src7
//
// Names are first replaced through the virtual names of the session.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <visatype.h>

namespace tvr {

struct RepCapIdentifier {
  std::string Name;
  std::string QualifiedName;  // capability, "!!", name; identifiers are compared by it
};

class RepeatedCapability {
 public:
  // The physical names are a selector of one level.
  RepeatedCapability(std::string name, const char* physical_names);

  const std::string& name() const { return name_; }

  // The physical identifiers; the same for every session.
  const std::vector<RepCapIdentifier>& identifiers() const { return identifiers_; }

  // Appends the identifiers of a selector to the output. With the check on, each must be one of the physical ones.
  // After a failure the output may hold what stood before the fault.
  ViStatus ExpandSelector(ViSession vi, ViConstString selector, std::vector<RepCapIdentifier>& output,
                          bool check) const;

  // The name at an index that counts from 1, cut to the size of the buffer.
  ViStatus GetName(ViSession vi, const char* function, ViInt32 index, ViInt32 size, ViChar* name) const;

 private:
  ViStatus ExpandEmpty(ViSession vi, std::vector<RepCapIdentifier>& output) const;
  // `room` is how many names the ranges that are still to come may have.
  ViStatus ExpandLevel(ViSession vi, std::string_view level, ViInt64& room, std::vector<std::string>& names) const;
  ViStatus ExpandRange(ViSession vi, const std::string& token, ViInt64& room, std::vector<std::string>& names) const;
  RepCapIdentifier Identifier(const std::string& name) const;

  std::string name_;
  std::vector<RepCapIdentifier> identifiers_;
};

// 0 when the whole text is a selector, else 0xBFFA0066.
ViStatus ValidateSelector(ViSession vi, const std::string& text);

// The text with every identifier that has a virtual name replaced by what it stands for.
std::string ApplyVirtualNames(ViSession vi, const std::string& text);

}  // namespace tvr
