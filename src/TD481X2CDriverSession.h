// The session of this driver: the generic one, and what the instrument cannot keep for the class.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "Tvr.h"

class TD481X2CDriverSession final : public tvr::DriverSession {
 public:
  explicit TD481X2CDriverSession(ViSession handle);
  ~TD481X2CDriverSession() override = default;

  // A raw socket has no end of message of its own: a line feed ends every read there.
  ViStatus OpenIo() override;

  // From a caller's list name to the number of an instrument list, 1 to 10. No number stands twice.
  std::map<std::string, ViInt32> ListNames;
  // Kept on purpose: no operation assigns it, so selecting a list leaves no name behind.
  std::string SelectedListName;
  // Whether a new first pulse width moves the second pulse as well. The instrument has no such switch.
  bool DoublePulseEnabled = false;
  // When the output was last known to change: -1 for off, else the low 32 bits of the millisecond tick.
  ViInt32 SettleMark = -1;
  // The selector by which the caller chose the LF generators, and the generators that it stands for.
  std::string ActiveLfGeneratorName;
  std::vector<tvr::RepCapIdentifier> ActiveLfGeneratorPath;
};

// Inside a frame, like tvr::SessionOf.
inline TD481X2CDriverSession& ConcreteSession(ViSession vi) {
  return static_cast<TD481X2CDriverSession&>(tvr::SessionOf(vi));
}
