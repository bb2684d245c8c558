// Pulse modulation as the class sees it. Its single pulse, double pulse and gating have no commands of their own: they
// are mapped on the first two slots of the instrument's pulse train and on the type of its trigger.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "enums.h"
#include "handlers.h"
#include "modulation/class_view.h"

// Kept on purpose: with the double pulse on, a new first width goes to the second delay; callers rely on the slot.
ViStatus MirrorWidthToSecondDelay(ViSession vi, ViReal64 value, ViStatus status) {
  if (!ConcreteSession(vi).DoublePulseEnabled) return status;
  return tvr::SetAttribute<ViReal64>(vi, nullptr, KVTD481X2C_ATTR_PULSE_DELAY2, value);
}

ViStatus KVTD481X2C_get_PULSE_DOUBLE_ENABLED(ViSession vi, ViConstString, ViBoolean* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED", value);
  if (status < 0) return status;
  *value = ConcreteSession(vi).DoublePulseEnabled ? VI_TRUE : VI_FALSE;
  return VI_SUCCESS;
}

// The flag is the session's own and stays as set whatever becomes of the instrument's part.
ViStatus KVTD481X2C_set_PULSE_DOUBLE_ENABLED(ViSession vi, ViConstString, ViBoolean value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const bool enabled = value != VI_FALSE;
  ConcreteSession(vi).DoublePulseEnabled = enabled;
  ViStatus status = tvr::SetAttribute<ViInt32>(vi, nullptr, KVTD481X2C_ATTR_PULSE_COUNT, enabled ? 2 : 1);
  if (status < 0 || !enabled) return status;
  ViReal64 width = 0.0;
  if (status = KVTD481X2C_GetPulseWidth1(vi, &width); status < 0) return status;
  return tvr::SetAttribute<ViReal64>(vi, nullptr, KVTD481X2C_ATTR_PULSE_WIDTH2, width);
}

ViStatus KVTD481X2C_get_PULSE_GATING_ENABLED(ViSession vi, ViConstString, ViBoolean* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_PULSE_GATING_ENABLED", value);
  ViInt32 mode = 0;
  if (status >= 0) status = KVTD481X2C_GetPulseModulationTriggerMode(vi, &mode);
  if (status < 0) return status;
  *value = mode == KVTD481X2C_VAL_TRIGGER_MODE_GATED ? VI_TRUE : VI_FALSE;
  return status;
}

// Gating is not a switch of the instrument but one of its trigger types. Ending it must therefore choose the type to go
// back to, and the delay is the only trace of what was there before.
ViStatus KVTD481X2C_set_PULSE_GATING_ENABLED(ViSession vi, ViConstString, ViBoolean value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const auto set_mode = [vi](ViInt32 mode) {
    return tvr::SetAttribute<ViInt32>(vi, nullptr, KVTD481X2C_ATTR_PULSE_MODULATION_TRIGGER_MODE, mode);
  };
  if (value != VI_FALSE) return set_mode(KVTD481X2C_VAL_TRIGGER_MODE_GATED);

  ViInt32 mode = 0;
  ViStatus status = KVTD481X2C_GetPulseModulationTriggerMode(vi, &mode);
  if (status < 0) return status;
  if (mode != KVTD481X2C_VAL_TRIGGER_MODE_GATED) return VI_SUCCESS;
  ViReal64 delay = 0.0;
  status = tvr::GetAttribute<ViReal64>(vi, nullptr, KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_DELAY, &delay);
  if (status < 0) return status;
  return set_mode(delay > 0.0 ? KVTD481X2C_VAL_TRIGGER_MODE_TRIGGER_DELAYED : KVTD481X2C_VAL_TRIGGER_MODE_TRIGGERED);
}

ViStatus KVTD481X2C_get_PULSE_MODULATION_SOURCE(ViSession vi, ViConstString, ViInt32* value) {
  return GetTwoValued(vi, "KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE", KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE_EX, value);
}

ViStatus KVTD481X2C_set_PULSE_MODULATION_SOURCE(ViSession vi, ViConstString, ViInt32 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (value == KVTD481X2C_VAL_PULSE_MODULATION_SOURCE_INTERNAL ||
      value == KVTD481X2C_VAL_PULSE_MODULATION_SOURCE_EXTERNAL) {
    return tvr::SetAttribute<ViInt32>(vi, nullptr, KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE_EX, value);
  }
  return tvr::RefuseValue(vi, maps::PulseModulationSource(), value, "PULSE_MODULATION_SOURCE");
}

// The instrument triggers its pulses from outside only, as far as the class can tell.
ViStatus KVTD481X2C_get_PULSE_TRIGGER_SOURCE(ViSession vi, ViConstString, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE", value);
  if (status < 0) return status;
  *value = KVTD481X2C_VAL_PULSE_TRIGGER_SOURCE_EXTERNAL;
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_set_PULSE_TRIGGER_SOURCE(ViSession vi, ViConstString, ViInt32 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (value == KVTD481X2C_VAL_PULSE_TRIGGER_SOURCE_EXTERNAL) return VI_SUCCESS;
  return tvr::RefuseValue(vi, maps::PulseTriggerSource(), value, "PULSE_TRIGGER_SOURCE");
}

ViStatus KVTD481X2C_get_PULSE_OUTPUT_ENABLED(ViSession vi, ViConstString, ViBoolean* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED", value);
  if (status < 0) return status;
  *value = VI_TRUE;
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_set_PULSE_OUTPUT_ENABLED(ViSession vi, ViConstString, ViBoolean value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (value == VI_TRUE) return VI_SUCCESS;
  return tvr::RaiseError(vi, tvr::error::kValueNotSupported, "VI_FALSE", "AttributeValue", "PULSE_OUTPUT_ENABLED");
}

ViStatus KVTD481X2C_ConfigurePulse(ViSession Vi, ViInt32 TriggerSource, ViReal64 Width, ViBoolean Gating) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE, TriggerSource},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_PULSE_WIDTH, Width},
                        tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_PULSE_GATING_ENABLED, Gating});
}

// The delay goes out whether the double pulse is on or off, over the width just copied to its slot.
ViStatus KVTD481X2C_ConfigurePulseDouble(ViSession Vi, ViBoolean Enabled, ViReal64 Delay) {
  return tvr::Configure(Vi, tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, Enabled},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_PULSE_DOUBLE_DELAY, Delay});
}

ViStatus KVTD481X2C_ConfigurePulseExternalTrigger(ViSession Vi, ViInt32 Slope, ViReal64 Delay) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_SLOPE, Slope},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_DELAY, Delay});
}

ViStatus KVTD481X2C_ConfigurePulseInternalTrigger(ViSession Vi, ViReal64 Period) {
  return tvr::Configure(Vi, tvr::Setting<ViReal64>{KVTD481X2C_ATTR_PULSE_INTERNAL_TRIGGER_PERIOD, Period});
}

ViStatus KVTD481X2C_ConfigurePulseModulationEnabled(ViSession Vi, ViBoolean Enabled) {
  return tvr::Configure(Vi, tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_PULSE_MODULATION_ENABLED, Enabled});
}

ViStatus KVTD481X2C_ConfigurePulseModulationExternalPolarity(ViSession Vi, ViInt32 Polarity) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_PULSE_MODULATION_EXTERNAL_POLARITY, Polarity});
}

ViStatus KVTD481X2C_ConfigurePulseModulationSource(ViSession Vi, ViInt32 Source) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE, Source});
}

ViStatus KVTD481X2C_ConfigurePulseOutput(ViSession Vi, ViInt32 Polarity, ViBoolean Enabled) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_PULSE_OUTPUT_POLARITY, Polarity},
                        tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED, Enabled});
}
