// The carrier: its frequency, and the class's operation that sets frequency and level together.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"

// There is no way back when the level is refused: the new frequency stays.
ViStatus KVTD481X2C_ConfigureRF(ViSession Vi, ViReal64 Frequency, ViReal64 PowerLevel) {
  return tvr::Configure(Vi, tvr::Setting<ViReal64>{KVTD481X2C_ATTR_FREQUENCY, Frequency},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_POWER_LEVEL, PowerLevel});
}
