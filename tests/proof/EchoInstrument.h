// An instrument on a raw socket that answers a query with the last thing the query names, so that each answer tells
// which question it belongs to. Any number of clients at a time.

#ifndef KVTD_TESTS_PROOF_ECHO_INSTRUMENT_H
#define KVTD_TESTS_PROOF_ECHO_INSTRUMENT_H

#include <string>

#include "Listener.h"

namespace kvtd::test {

class EchoInstrument {
 public:
  EchoInstrument() : listener_(Serve) {}

  std::string ResourceName() const { return "TCPIP0::127.0.0.1::" + std::to_string(listener_.port()) + "::SOCKET"; }

 private:
  static void Serve(int connection);

  bench::Listener listener_;
};

}  // namespace kvtd::test

#endif
