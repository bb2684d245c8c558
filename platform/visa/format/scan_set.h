// The set of a %[...] directive.
#pragma once

#include <visa.h>

#include <bitset>

namespace tvr::visa {

class ScanSet {
 public:
  // `set` stands behind the opening bracket; the parser has seen that it is closed.
  explicit ScanSet(const char* set);
  bool Contains(ViByte byte) const { return members_[byte]; }

 private:
  std::bitset<256> members_;
};

}  // namespace tvr::visa
