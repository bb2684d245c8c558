/* A stepped frequency sweep: first step by step with software triggers, then again from its beginning. */
#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { kMostQueries = 100 };

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

/* 2 GHz to 2.4 GHz in steps of 100 MHz, one step for each trigger, and no new run behind the last one. */
static int Configure(ViSession vi) {
  return Worked(
             "ConfigureFrequencyStepStartStop", vi,
             KVTD481X2C_ConfigureFrequencyStepStartStop(vi, 2e9, 2.4e9, KVTD481X2C_VAL_SWEEP_SPACING_LINEAR, 100e6)) &&
         Worked("ConfigureSweep", vi,
                KVTD481X2C_ConfigureSweep(vi, KVTD481X2C_VAL_SWEEP_MODE_FREQUENCY_STEP,
                                          KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_SOFTWARE)) &&
         Worked("ConfigureFrequencyStepDwell", vi, KVTD481X2C_ConfigureFrequencyStepDwell(vi, VI_TRUE, 0.01)) &&
         Worked("SetInitiateContinuousEnabled", vi, KVTD481X2C_SetInitiateContinuousEnabled(vi, VI_FALSE)) &&
         Worked("ArmTrigger", vi, KVTD481X2C_ArmTrigger(vi));
}

static int PrintConfiguration(ViSession vi) {
  ViReal64 start = 0.0;
  ViReal64 stop = 0.0;
  ViReal64 step = 0.0;
  ViInt32 points = 0;
  ViInt32 mode = 0;
  ViInt32 type = 0;
  ViBoolean single_step = VI_FALSE;

  if (!Worked("reading the start", vi,
              KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_FREQUENCY_STEP_START, &start)) ||
      !Worked("reading the stop", vi,
              KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_FREQUENCY_STEP_STOP, &stop)) ||
      !Worked("reading the step", vi,
              KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_FREQUENCY_STEP_SIZE, &step)) ||
      !Worked("GetFrequencySweepPoints", vi, KVTD481X2C_GetFrequencySweepPoints(vi, &points)) ||
      !Worked("reading the sweep mode", vi,
              KVTD481X2C_GetAttributeViInt32(vi, "", KVTD481X2C_ATTR_SWEEP_MODE, &mode)) ||
      !Worked("GetTriggerType", vi, KVTD481X2C_GetTriggerType(vi, &type)) ||
      !Worked(
          "reading the single step", vi,
          KVTD481X2C_GetAttributeViBoolean(vi, "", KVTD481X2C_ATTR_FREQUENCY_STEP_SINGLE_STEP_ENABLED, &single_step)))
    return 0;
  printf("%.0f to %.0f MHz in steps of %.0f MHz: %d points\n", start / 1e6, stop / 1e6, step / 1e6, (int)points);
  printf("Sweep mode %d, trigger type %d, single step %s\n", (int)mode, (int)type, single_step ? "on" : "off");
  return 1;
}

/* The frequency at the connector. The driver's own frequency is the fixed one, which a sweep leaves alone, so that the
   question goes out by direct I/O. */
static int Measure(ViSession vi, ViReal64* frequency) {
  static const char query[] = ":MEAS:FREQ?\n";
  char answer[64] = "";
  ViInt64 count = 0;

  if (!Worked("viWrite", vi, KVTD481X2C_viWrite(vi, (ViInt64)strlen(query), (const ViByte*)query, &count)) ||
      !Worked("viRead", vi, KVTD481X2C_viRead(vi, (ViInt64)sizeof answer - 1, (ViByte*)answer, &count)))
    return 0;
  answer[count] = '\0';
  *frequency = strtod(answer, NULL);
  return 1;
}

/* Measures until the carrier is where it should be; a query takes its time on the wire, which is all the waiting. */
static int WaitForMegahertz(ViSession vi, int wanted) {
  ViReal64 frequency = 0.0;
  int query;

  for (query = 0; query < kMostQueries && (int)(frequency / 1e6 + 0.5) != wanted; ++query)
    if (!Measure(vi, &frequency)) return 0;
  printf("%.3f MHz\n", frequency / 1e6);
  return (int)(frequency / 1e6 + 0.5) == wanted;
}

static int Trigger(ViSession vi) { return Worked("SendSoftwareTrigger", vi, KVTD481X2C_SendSoftwareTrigger(vi)); }

static int Show(ViSession vi) {
  int megahertz;

  if (!Configure(vi) || !PrintConfiguration(vi) || !WaitForMegahertz(vi, 2000)) return 0;
  for (megahertz = 2100; megahertz <= 2300; megahertz += 100)
    if (!Trigger(vi) || !WaitForMegahertz(vi, megahertz)) return 0;

  printf("Reset\n");
  return Worked("ResetFrequencyStep", vi, KVTD481X2C_ResetFrequencyStep(vi)) && WaitForMegahertz(vi, 2000) &&
         Trigger(vi) && WaitForMegahertz(vi, 2100) && Worked("Abort", vi, KVTD481X2C_Abort(vi)) &&
         Worked("ending the sweep", vi,
                KVTD481X2C_ConfigureSweep(vi, KVTD481X2C_VAL_SWEEP_MODE_NONE,
                                          KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_IMMEDIATE));
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
