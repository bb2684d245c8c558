// How much a test does: little, unless the environment says KVTD_PROOF=full.

#ifndef KVTD_TESTS_PROOF_PROOF_H
#define KVTD_TESTS_PROOF_PROOF_H

#include <cstdlib>
#include <string_view>

namespace kvtd::test {

inline bool IsFullProof() {
  const char* const proof = std::getenv("KVTD_PROOF");
  return proof != nullptr && std::string_view(proof) == "full";
}

template <class Amount>
Amount InFullOrBrief(Amount full, Amount brief) {
  return IsFullProof() ? full : brief;
}

}  // namespace kvtd::test

#endif
