/* Pulse modulation: one pulse, gating, the double pulse of the class, and the train of four the instrument has. */
#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>

enum { kPulses = 4 };

/* Whether a call worked. If not, the driver's words about it are printed; with a status of VISA's it may have none. */
static int Worked(const char* call, ViSession vi, ViStatus status) {
  ViStatus code = VI_SUCCESS;
  ViChar text[1024] = "";

  if (status >= VI_SUCCESS) return 1;
  KVTD481X2C_GetError(vi, &code, (ViInt32)sizeof text, text);
  if (code != status) text[0] = '\0';
  printf("%s failed with 0x%08X: %s\n", call, (unsigned)status, text[0] != '\0' ? text : "(no text recorded)");
  return 0;
}

/* How the generator stands: the number of pulses and the width and delay of each. */
static int PrintTrain(ViSession vi, const char* title) {
  ViReal64 width[kPulses];
  ViReal64 delay[kPulses];
  ViReal64 period = 0.0;
  ViInt32 count = 0;
  ViInt32 error = 0;
  int pulse;

  if (!Worked("GetPulseCount", vi, KVTD481X2C_GetPulseCount(vi, &count)) ||
      !Worked("GetPulseInternalPeriod", vi, KVTD481X2C_GetPulseInternalPeriod(vi, &period)) ||
      !Worked("GetPulseWidth1", vi, KVTD481X2C_GetPulseWidth1(vi, &width[0])) ||
      !Worked("GetPulseWidth2", vi, KVTD481X2C_GetPulseWidth2(vi, &width[1])) ||
      !Worked("GetPulseWidth3", vi, KVTD481X2C_GetPulseWidth3(vi, &width[2])) ||
      !Worked("GetPulseWidth4", vi, KVTD481X2C_GetPulseWidth4(vi, &width[3])) ||
      !Worked("GetPulseDelay1", vi, KVTD481X2C_GetPulseDelay1(vi, &delay[0])) ||
      !Worked("GetPulseDelay2", vi, KVTD481X2C_GetPulseDelay2(vi, &delay[1])) ||
      !Worked("GetPulseDelay3", vi, KVTD481X2C_GetPulseDelay3(vi, &delay[2])) ||
      !Worked("GetPulseDelay4", vi, KVTD481X2C_GetPulseDelay4(vi, &delay[3])) ||
      !Worked("GetPulseError", vi, KVTD481X2C_GetPulseError(vi, &error)))
    return 0;

  printf("%s: %d in %.1f us, error %d\n", title, (int)count, period * 1e6, (int)error);
  for (pulse = 0; pulse < count && pulse < kPulses; ++pulse)
    printf("  delay %.1f us, width %.1f us\n", delay[pulse] * 1e6, width[pulse] * 1e6);
  return 1;
}

static int OnePulse(ViSession vi) {
  return Worked("ConfigurePulseModulationSource", vi,
                KVTD481X2C_ConfigurePulseModulationSource(vi, KVTD481X2C_VAL_PULSE_MODULATION_SOURCE_INTERNAL)) &&
         Worked("ConfigurePulseInternalTrigger", vi, KVTD481X2C_ConfigurePulseInternalTrigger(vi, 100e-6)) &&
         Worked("SetPulseWidth1", vi, KVTD481X2C_SetPulseWidth1(vi, 10e-6)) &&
         Worked("ConfigurePulseModulationEnabled", vi, KVTD481X2C_ConfigurePulseModulationEnabled(vi, VI_TRUE)) &&
         PrintTrain(vi, "One pulse");
}

static int PrintGating(ViSession vi, const char* title) {
  ViBoolean gating = VI_FALSE;
  ViInt32 mode = 0;

  if (!Worked("reading the gating", vi,
              KVTD481X2C_GetAttributeViBoolean(vi, "", KVTD481X2C_ATTR_PULSE_GATING_ENABLED, &gating)) ||
      !Worked("GetPulseModulationTriggerMode", vi, KVTD481X2C_GetPulseModulationTriggerMode(vi, &mode)))
    return 0;
  printf("%s: gating %s, trigger mode %d\n", title, gating ? "on" : "off", (int)mode);
  return 1;
}

/* Gating is one of the modes of the generator's trigger. When it ends, the mode follows from the delay: without one it
   is "triggered", with one "triggered with delay". */
static int Gate(ViSession vi) {
  const ViInt32 source = KVTD481X2C_VAL_PULSE_TRIGGER_SOURCE_EXTERNAL;
  const ViInt32 slope = KVTD481X2C_VAL_PULSE_EXTERNAL_TRIGGER_SLOPE_POSITIVE;

  return Worked("ConfigurePulse", vi, KVTD481X2C_ConfigurePulse(vi, source, 10e-6, VI_TRUE)) &&
         PrintGating(vi, "Gated") &&
         Worked("ConfigurePulse", vi, KVTD481X2C_ConfigurePulse(vi, source, 10e-6, VI_FALSE)) &&
         PrintGating(vi, "No delay") &&
         Worked("ConfigurePulseExternalTrigger", vi, KVTD481X2C_ConfigurePulseExternalTrigger(vi, slope, 2e-6)) &&
         Worked("ConfigurePulse", vi, KVTD481X2C_ConfigurePulse(vi, source, 10e-6, VI_TRUE)) &&
         Worked("ConfigurePulse", vi, KVTD481X2C_ConfigurePulse(vi, source, 10e-6, VI_FALSE)) &&
         PrintGating(vi, "Delay of 2 us") &&
         Worked("SetPulseModulationTriggerMode", vi,
                KVTD481X2C_SetPulseModulationTriggerMode(vi, KVTD481X2C_VAL_TRIGGER_MODE_FREERUN)) &&
         PrintGating(vi, "Free run");
}

/* The class knows a double pulse by a switch and a delay. The driver keeps that delay in the second width of the train,
   and while the switch is on, a new first width goes to the second delay as well. */
static int DoublePulse(ViSession vi) {
  return Worked("ConfigurePulseDouble", vi, KVTD481X2C_ConfigurePulseDouble(vi, VI_TRUE, 25e-6)) &&
         Worked("SetPulseWidth1", vi, KVTD481X2C_SetPulseWidth1(vi, 5e-6)) && PrintTrain(vi, "Double pulse") &&
         Worked("switching the double pulse off", vi,
                KVTD481X2C_SetAttributeViBoolean(vi, "", KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, VI_FALSE)) &&
         PrintTrain(vi, "Double pulse off");
}

/* Who wants to place each pulse uses the train directly. */
static int Train(ViSession vi) {
  return Worked("SetPulseCount", vi, KVTD481X2C_SetPulseCount(vi, kPulses)) &&
         Worked("SetPulseDelay1", vi, KVTD481X2C_SetPulseDelay1(vi, 0.0)) &&
         Worked("SetPulseWidth1", vi, KVTD481X2C_SetPulseWidth1(vi, 1e-6)) &&
         Worked("SetPulseDelay2", vi, KVTD481X2C_SetPulseDelay2(vi, 4e-6)) &&
         Worked("SetPulseWidth2", vi, KVTD481X2C_SetPulseWidth2(vi, 2e-6)) &&
         Worked("SetPulseDelay3", vi, KVTD481X2C_SetPulseDelay3(vi, 8e-6)) &&
         Worked("SetPulseWidth3", vi, KVTD481X2C_SetPulseWidth3(vi, 4e-6)) &&
         Worked("SetPulseDelay4", vi, KVTD481X2C_SetPulseDelay4(vi, 16e-6)) &&
         Worked("SetPulseWidth4", vi, KVTD481X2C_SetPulseWidth4(vi, 8e-6)) && PrintTrain(vi, "Train") &&
         /* A train that is longer than its period is accepted, and told as an error of the modulation. */
         Worked("SetPulseInternalPeriod", vi, KVTD481X2C_SetPulseInternalPeriod(vi, 40e-6)) &&
         PrintTrain(vi, "Train in a short period");
}

static int Show(ViSession vi) {
  return OnePulse(vi) && Gate(vi) && DoublePulse(vi) && Train(vi) &&
         Worked("DisableAllModulation", vi, KVTD481X2C_DisableAllModulation(vi));
}

int main(int argc, char** argv) {
  ViSession vi = VI_NULL;
  int good;

  if (argc != 2) {
    fprintf(stderr, "usage: %s RESOURCE, such as TCPIP0::192.168.0.20::5025::SOCKET\n", argv[0]);
    return EXIT_FAILURE;
  }
  good = Worked("InitWithOptions", VI_NULL,
                KVTD481X2C_InitWithOptions(argv[1], VI_TRUE, VI_TRUE, "QueryInstrStatus=1", &vi));
  good = good && Show(vi);
  if (vi != VI_NULL && KVTD481X2C_close(vi) < VI_SUCCESS) good = 0;
  printf(good ? "Done\n" : "Failed\n");
  return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
