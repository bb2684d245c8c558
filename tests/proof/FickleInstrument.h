// An instrument that behaves as it is told with the next client. One client at a time.

#ifndef KVTD_TESTS_PROOF_FICKLE_INSTRUMENT_H
#define KVTD_TESTS_PROOF_FICKLE_INSTRUMENT_H

#include <atomic>
#include <memory>
#include <string>

#include "LinkNames.h"

namespace kvtd::test {

enum class Manner {
  Well,
  IsAnother,  // model
  TalksGarbage,
  HasAnError,  // after each command
  // Over a raw socket alone:
  ClosesAtOnce,
  ResetsAtOnce,
  ClosesWhenAsked,       // who it is
  ClosesWithinIdentity,  // half of it is sent
  ClosesBehindIdentity,  // when the first unit arrives
  IsSilent,
  FallsSilent,  // once the session is open
};

class FickleInstrument {
 public:
  virtual ~FickleInstrument() = default;

  // As ResourceOn.
  virtual std::string ResourceName() const = 0;
  // From the next client on.
  void Behave(Manner manner) { manner_ = manner; }

 protected:
  std::atomic<Manner> manner_ = Manner::Well;
};

std::unique_ptr<FickleInstrument> MakeFickleInstrument(LinkKind link);

}  // namespace kvtd::test

#endif
