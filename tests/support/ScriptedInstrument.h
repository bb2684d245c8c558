// The double that proves bytes: an instrument on the loopback address that knows one dialogue by heart.

#ifndef KVTD_TESTS_SUPPORT_SCRIPTED_INSTRUMENT_H
#define KVTD_TESTS_SUPPORT_SCRIPTED_INSTRUMENT_H

#include <memory>
#include <string>

#include "Dialogue.h"
#include "Link.h"

namespace kvtd::test {

class ScriptedInstrument : public Dialogue {
 public:
  explicit ScriptedInstrument(Family family = Family::V4, LinkKind kind = ChosenLink())
      : link_(MakeLink(kind, *this, family)) {}

  std::string ResourceName() const { return link_->ResourceName(); }
  std::uint16_t port() const { return link_->port(); }

  // To be called when the client has closed its connection. What went otherwise than scripted, a connection left open
  // included; empty when all is well. The instrument is gone afterwards.
  std::string Finish(Milliseconds patience = kPatience) {
    const bool closed = link_->Finish(patience);
    std::string difference = Difference();
    if (!closed) difference += "The client left its connection open.\n";
    return difference;
  }

 private:
  std::unique_ptr<Link> link_;
};

}  // namespace kvtd::test

#endif
