// An instrument on a raw socket that behaves as it is told with the next client. One client at a time.

#ifndef KVTD_TESTS_PROOF_FICKLE_INSTRUMENT_H
#define KVTD_TESTS_PROOF_FICKLE_INSTRUMENT_H

#include <atomic>
#include <string>
#include <string_view>
#include <thread>

#include "Sockets.h"

namespace kvtd::test {

enum class Manner {
  Well,
  ClosesAtOnce,
  ResetsAtOnce,
  ClosesWhenAsked,       // who it is
  ClosesWithinIdentity,  // half of it is sent
  IsAnother,             // model
  TalksGarbage,
  HasAnError,            // after each command
  ClosesBehindIdentity,  // when the first unit arrives
  IsSilent,
  FallsSilent,  // once the session is open
};

class FickleInstrument {
 public:
  FickleInstrument() : thread_([this] { Run(); }) {}
  ~FickleInstrument();

  std::string ResourceName() const { return "TCPIP0::127.0.0.1::" + std::to_string(listener_.port()) + "::SOCKET"; }
  // From the next client on.
  void Behave(Manner manner) { manner_ = manner; }

 private:
  void Run();
  void Serve(Descriptor& connection, Manner manner);
  // False when it has closed the connection.
  static bool React(Descriptor& connection, Manner manner, std::string_view line);

  Listener listener_;
  Alarm stop_;
  std::atomic<Manner> manner_ = Manner::Well;
  std::thread thread_;
};

}  // namespace kvtd::test

#endif
