#include "format/scan_set.h"

#include "format/directive.h"

namespace tvr::visa {

ScanSet::ScanSet(const char* set) {
  const bool negated = *set == '^';
  if (negated) ++set;
  const auto member = [&set] {
    if (*set != '\\') return static_cast<ViByte>(*set++);
    ++set;
    return ParseEscape(set);
  };
  // A bracket in the first place stands for itself, and so does a dash in the last.
  for (bool first = true; first || *set != ']'; first = false) {
    const unsigned low = member();
    unsigned high = low;
    if (*set == '-' && set[1] != ']') {
      ++set;
      high = member();
    }
    for (unsigned byte = low; byte <= high; ++byte) members_.set(byte);
  }
  if (negated) members_.flip();
}

}  // namespace tvr::visa
