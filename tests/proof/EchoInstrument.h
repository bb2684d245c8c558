// An instrument that answers a query with the last thing the query names, so that each answer tells which question it
// belongs to. Any number of clients at a time.

#ifndef KVTD_TESTS_PROOF_ECHO_INSTRUMENT_H
#define KVTD_TESTS_PROOF_ECHO_INSTRUMENT_H

#include <string>
#include <string_view>

#include "Peer.h"

namespace kvtd::test {

class EchoInstrument {
 public:
  explicit EchoInstrument(LinkKind link) : peer_(link, bench::Answers(AnswerTo)) {}

  const std::string& ResourceName() const { return peer_.ResourceName(); }

 private:
  static std::string AnswerTo(std::string_view query);

  Peer peer_;
};

}  // namespace kvtd::test

#endif
