// Sweeps. The class knows one sweep mode and one trigger source; the instrument knows a frequency mode, a power mode, a
// way of generating the sweep and a trigger type. The two custom attributes translate, and not every state of the
// instrument has a name in the class.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "enums.h"
#include "handlers.h"
#include "operations.h"
#include "rf/single_step.h"

using namespace tvr::operation;

namespace {

tvr::Setting<ViInt32> FrequencyMode(ViInt32 mode) { return {KVTD481X2C_ATTR_FREQUENCY_MODE, mode}; }
tvr::Setting<ViInt32> PowerMode(ViInt32 mode) { return {KVTD481X2C_ATTR_POWER_MODE, mode}; }
tvr::Setting<ViInt32> Generation(ViInt32 generation) {
  return {KVTD481X2C_ATTR_FREQUENCY_SWEEP_GENERATION, generation};
}

ViStatus SetTriggerType(ViSession vi, ViInt32 type) {
  return tvr::SetAttribute<ViInt32>(vi, nullptr, KVTD481X2C_ATTR_TRIGGER_TYPE, type);
}

ViStatus ResetStep(ViSession vi) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (tvr::SessionOf(vi).GetSimulate()) return VI_SUCCESS;
  ViBoolean continuous = VI_FALSE;
  const ViStatus status = KVTD481X2C_GetInitiateContinuousEnabled(vi, &continuous);
  if (status < 0) return status;
  // Aborting stops a sweep that restarts by itself for a moment only; any other must be armed again.
  return tvr::WriteAndCheck(vi, continuous != VI_FALSE ? "ABOR\n" : "ABOR;INIT\n");
}

}  // namespace

ViStatus GetSingleStep(ViSession vi, const char* attribute, ViBoolean* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, attribute, value);
  ViInt32 type = 0;
  if (status >= 0) status = KVTD481X2C_GetTriggerType(vi, &type);
  if (status < 0) return status;
  *value = type == KVTD481X2C_VAL_TRIGGER_TYPE_MANUAL ? VI_TRUE : VI_FALSE;
  return status;
}

ViStatus SetSingleStep(ViSession vi, ViBoolean value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  return SetTriggerType(vi,
                        value != VI_FALSE ? KVTD481X2C_VAL_TRIGGER_TYPE_MANUAL : KVTD481X2C_VAL_TRIGGER_TYPE_SINGLE);
}

ViStatus KVTD481X2C_set_SWEEP_MODE(ViSession vi, ViConstString, ViInt32 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  switch (value) {
    case KVTD481X2C_VAL_SWEEP_MODE_NONE:
      return tvr::Configure(vi, FrequencyMode(KVTD481X2C_VAL_FREQUENCY_MODE_FIXED),
                            PowerMode(KVTD481X2C_VAL_POWER_MODE_FIXED));
    case KVTD481X2C_VAL_SWEEP_MODE_FREQUENCY_SWEEP:
      return tvr::Configure(vi, FrequencyMode(KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP),
                            Generation(KVTD481X2C_VAL_SWEEP_GENERATION_ANALOG),
                            PowerMode(KVTD481X2C_VAL_POWER_MODE_FIXED));
    case KVTD481X2C_VAL_SWEEP_MODE_FREQUENCY_STEP:
      return tvr::Configure(vi, FrequencyMode(KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP),
                            Generation(KVTD481X2C_VAL_SWEEP_GENERATION_STEPPED),
                            PowerMode(KVTD481X2C_VAL_POWER_MODE_FIXED));
    case KVTD481X2C_VAL_SWEEP_MODE_POWER_STEP:
      return tvr::Configure(vi, FrequencyMode(KVTD481X2C_VAL_FREQUENCY_MODE_FIXED),
                            PowerMode(KVTD481X2C_VAL_POWER_MODE_SWEEP));
    case KVTD481X2C_VAL_SWEEP_MODE_LIST:
      return tvr::Configure(vi, FrequencyMode(KVTD481X2C_VAL_FREQUENCY_MODE_LIST1),
                            PowerMode(KVTD481X2C_VAL_POWER_MODE_LIST1));
    default:
      // The power sweep of the class is refused as well: the instrument's is reached as the power step.
      return tvr::RefuseValue(vi, maps::SweepMode(), value, "SWEEP_MODE");
  }
}

ViStatus KVTD481X2C_get_SWEEP_MODE(ViSession vi, ViConstString, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_SWEEP_MODE", value);
  ViInt32 frequency = 0;
  ViInt32 power = 0;
  if (status >= 0) status = KVTD481X2C_GetFrequencyMode(vi, &frequency);
  if (status >= 0) status = KVTD481X2C_GetPowerMode(vi, &power);
  if (status < 0) return status;

  if (frequency == KVTD481X2C_VAL_FREQUENCY_MODE_FIXED && power == KVTD481X2C_VAL_POWER_MODE_SWEEP) {
    *value = KVTD481X2C_VAL_SWEEP_MODE_POWER_STEP;
  } else if (frequency == KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP && power == KVTD481X2C_VAL_POWER_MODE_FIXED) {
    ViInt32 generation = 0;
    if (status = KVTD481X2C_GetFrequencySweepGeneration(vi, &generation); status < 0) return status;
    *value = generation == KVTD481X2C_VAL_SWEEP_GENERATION_ANALOG ? KVTD481X2C_VAL_SWEEP_MODE_FREQUENCY_SWEEP
                                                                  : KVTD481X2C_VAL_SWEEP_MODE_FREQUENCY_STEP;
  } else if (frequency == KVTD481X2C_VAL_FREQUENCY_MODE_LIST1 && power == KVTD481X2C_VAL_POWER_MODE_LIST1) {
    *value = KVTD481X2C_VAL_SWEEP_MODE_LIST;
  } else {
    *value = KVTD481X2C_VAL_SWEEP_MODE_NONE;
  }
  return status;
}

ViStatus KVTD481X2C_set_SWEEP_TRIGGER_SOURCE(ViSession vi, ViConstString, ViInt32 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  switch (value) {
    case KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_IMMEDIATE:
      return SetTriggerType(vi, KVTD481X2C_VAL_TRIGGER_TYPE_AUTO);
    case KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_EXTERNAL:
      return SetTriggerType(vi, KVTD481X2C_VAL_TRIGGER_TYPE_EXTERNAL);
    case KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_SOFTWARE:
      return SetTriggerType(vi, KVTD481X2C_VAL_TRIGGER_TYPE_SINGLE);
    default:
      return tvr::RefuseValue(vi, maps::SweepTriggerSource(), value, "SWEEP_TRIGGER_SOURCE");
  }
}

ViStatus KVTD481X2C_get_SWEEP_TRIGGER_SOURCE(ViSession vi, ViConstString, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE", value);
  ViBoolean single_step = VI_FALSE;
  if (status >= 0) {
    status =
        tvr::GetAttribute<ViBoolean>(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY_STEP_SINGLE_STEP_ENABLED, &single_step);
  }
  if (status < 0) return status;
  if (single_step != VI_FALSE) {
    *value = KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_SOFTWARE;
    return status;
  }
  ViInt32 type = 0;
  if (status = KVTD481X2C_GetTriggerType(vi, &type); status < 0) return status;
  switch (type) {
    case KVTD481X2C_VAL_TRIGGER_TYPE_AUTO:
      *value = KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_IMMEDIATE;
      return status;
    case KVTD481X2C_VAL_TRIGGER_TYPE_SINGLE:
      *value = KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_SOFTWARE;
      return status;
    case KVTD481X2C_VAL_TRIGGER_TYPE_EXTERNAL:
      *value = KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_EXTERNAL;
      return status;
    default:
      return tvr::RaiseError(vi, tvr::error::kUnexpectedResponse);
  }
}

ViStatus KVTD481X2C_get_FREQUENCY_STEP_SINGLE_STEP_ENABLED(ViSession vi, ViConstString, ViBoolean* value) {
  return GetSingleStep(vi, "KVTD481X2C_ATTR_FREQUENCY_STEP_SINGLE_STEP_ENABLED", value);
}

ViStatus KVTD481X2C_set_FREQUENCY_STEP_SINGLE_STEP_ENABLED(ViSession vi, ViConstString, ViBoolean value) {
  return SetSingleStep(vi, value);
}

ViStatus KVTD481X2C_get_POWER_STEP_SINGLE_STEP_ENABLED(ViSession vi, ViConstString, ViBoolean* value) {
  return GetSingleStep(vi, "KVTD481X2C_ATTR_POWER_STEP_SINGLE_STEP_ENABLED", value);
}

ViStatus KVTD481X2C_set_POWER_STEP_SINGLE_STEP_ENABLED(ViSession vi, ViConstString, ViBoolean value) {
  return SetSingleStep(vi, value);
}

ViStatus KVTD481X2C_get_FREQUENCY_STEP_SCALING(ViSession vi, ViConstString, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_FREQUENCY_STEP_SCALING", value);
  ViInt32 spacing = 0;
  if (status >= 0) status = KVTD481X2C_GetFrequencySweepSpacing(vi, &spacing);
  if (status < 0) return status;
  if (spacing != KVTD481X2C_VAL_SWEEP_SPACING_LINEAR && spacing != KVTD481X2C_VAL_SWEEP_SPACING_LOGARITHMIC) {
    return tvr::RaiseError(vi, tvr::error::kUnexpectedResponse);
  }
  *value = spacing;
  return status;
}

// Kept on purpose: an unknown scaling is dropped without a word, unlike an unknown mode or source.
ViStatus KVTD481X2C_set_FREQUENCY_STEP_SCALING(ViSession vi, ViConstString, ViInt32 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (value != KVTD481X2C_VAL_SWEEP_SPACING_LINEAR && value != KVTD481X2C_VAL_SWEEP_SPACING_LOGARITHMIC) {
    return VI_SUCCESS;
  }
  return tvr::SetAttribute<ViInt32>(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPACING, value);
}

ViStatus KVTD481X2C_ConfigureSweep(ViSession Vi, ViInt32 Mode, ViInt32 TriggerSource) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_SWEEP_MODE, Mode},
                        tvr::Setting<ViInt32>{KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE, TriggerSource});
}

ViStatus KVTD481X2C_ConfigureFrequencySweepStartStop(ViSession Vi, ViReal64 Start, ViReal64 Stop) {
  return tvr::Configure(Vi, tvr::Setting<ViReal64>{KVTD481X2C_ATTR_FREQUENCY_SWEEP_START, Start},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_FREQUENCY_SWEEP_STOP, Stop});
}

// The instrument has center and span of its own; the class's operation has always gone by start and stop.
ViStatus KVTD481X2C_ConfigureFrequencySweepCenterSpan(ViSession Vi, ViReal64 Center, ViReal64 Span) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  const ViReal64 half = Span * 0.5;
  return KVTD481X2C_ConfigureFrequencySweepStartStop(Vi, Center - half, half + Center);
}

ViStatus KVTD481X2C_ConfigureFrequencySweepTime(ViSession Vi, ViReal64 Time) {
  return tvr::Configure(Vi, tvr::Setting<ViReal64>{KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME, Time});
}

ViStatus KVTD481X2C_ConfigureFrequencyStepStartStop(ViSession Vi, ViReal64 Start, ViReal64 Stop, ViInt32 Scaling,
                                                    ViReal64 StepSize) {
  return tvr::Configure(Vi, tvr::Setting<ViReal64>{KVTD481X2C_ATTR_FREQUENCY_STEP_START, Start},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_FREQUENCY_STEP_STOP, Stop},
                        tvr::Setting<ViInt32>{KVTD481X2C_ATTR_FREQUENCY_STEP_SCALING, Scaling},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_FREQUENCY_STEP_SIZE, StepSize});
}

ViStatus KVTD481X2C_ConfigureFrequencyStepDwell(ViSession Vi, ViBoolean SingleStepEnabled, ViReal64 Dwell) {
  return tvr::Configure(Vi,
                        tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_FREQUENCY_STEP_SINGLE_STEP_ENABLED, SingleStepEnabled},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_FREQUENCY_STEP_DWELL, Dwell});
}

ViStatus KVTD481X2C_ConfigurePowerStepStartStop(ViSession Vi, ViReal64 Start, ViReal64 Stop, ViReal64 StepSize) {
  return tvr::Configure(Vi, tvr::Setting<ViReal64>{KVTD481X2C_ATTR_POWER_STEP_START, Start},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_POWER_STEP_STOP, Stop},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_POWER_STEP_SIZE, StepSize});
}

ViStatus KVTD481X2C_ConfigurePowerStepDwell(ViSession Vi, ViBoolean SingleStepEnabled, ViReal64 Dwell) {
  return tvr::Configure(Vi, tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_POWER_STEP_SINGLE_STEP_ENABLED, SingleStepEnabled},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_POWER_STEP_DWELL, Dwell});
}

ViStatus KVTD481X2C_SetFrequencySweepSpanToMaximum(ViSession Vi) {
  return tvr::RunAction(kSetFrequencySweepSpanToMaximum, Vi);
}

ViStatus KVTD481X2C_SetPowerSweepSpanToMaximum(ViSession Vi) { return tvr::RunAction(kSetPowerSweepSpanToMaximum, Vi); }

ViStatus KVTD481X2C_ResetFrequencyStep(ViSession Vi) { return ResetStep(Vi); }

ViStatus KVTD481X2C_ResetPowerStep(ViSession Vi) { return ResetStep(Vi); }
