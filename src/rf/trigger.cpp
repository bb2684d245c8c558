// What starts, stops and triggers. The instrument is the state machine: the driver only sends the words.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "operations.h"
#include "services/reset_status.h"

using namespace tvr::operation;

ViStatus KVTD481X2C_Abort(ViSession Vi) { return tvr::RunAction(kAbort, Vi); }

ViStatus KVTD481X2C_ArmTrigger(ViSession Vi) { return tvr::RunAction(kArmTrigger, Vi); }

// Sent whatever the trigger source is: the instrument decides what to make of it.
ViStatus KVTD481X2C_SendSoftwareTrigger(ViSession Vi) { return tvr::RunAction(kSendSoftwareTrigger, Vi); }

// A reset that keeps what the session has stored, so that a simulated session reads on what was set before.
ViStatus KVTD481X2C_Disable(ViSession Vi) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  return tvr::SessionOf(Vi).GetSimulate() ? VI_SUCCESS : SendReset(Vi);
}

ViStatus KVTD481X2C_DisableAllModulation(ViSession Vi) {
  return tvr::Configure(Vi, tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_AM_ENABLED, VI_FALSE},
                        tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_FM_ENABLED, VI_FALSE},
                        tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_PM_ENABLED, VI_FALSE},
                        tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_PULSE_MODULATION_ENABLED, VI_FALSE});
}
