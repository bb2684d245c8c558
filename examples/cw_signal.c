/* A carrier of 2.4 GHz at -10 dBm, read back, and what happens when the instrument refuses a value. */
#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>

/* The text of a failed call. The driver records its own failures; with a status of VISA's nothing may be recorded. */
static void PrintError(const char* call, ViSession vi, ViStatus status) {
  ViStatus code = VI_SUCCESS;
  ViChar text[1024] = "";

  KVTD481X2C_GetError(vi, &code, (ViInt32)sizeof text, text);
  if (code != status) text[0] = '\0';
  printf("%s failed with 0x%08X: %s\n", call, (unsigned)status, text[0] != '\0' ? text : "(no text recorded)");
}

static int Worked(const char* call, ViSession vi, ViStatus status) {
  if (status >= VI_SUCCESS) return 1;
  PrintError(call, vi, status);
  return 0;
}

static int PrintIdentity(ViSession vi) {
  ViChar model[256] = "";
  ViChar driver[256] = "";
  ViChar firmware[256] = "";

  if (!Worked("GetAttributeViString", vi,
              KVTD481X2C_GetAttributeViString(vi, "", KVTD481X2C_ATTR_INSTRUMENT_MODEL, (ViInt32)sizeof model, model)))
    return 0;
  if (!Worked("revision_query", vi, KVTD481X2C_revision_query(vi, driver, firmware))) return 0;
  printf("Instrument %s, firmware %s, driver %s\n", model, firmware, driver);
  return 1;
}

static int SwitchCarrierOn(ViSession vi) {
  ViReal64 frequency = 0.0;
  ViReal64 level = 0.0;
  ViBoolean enabled = VI_FALSE;

  if (!Worked("ConfigureRF", vi, KVTD481X2C_ConfigureRF(vi, 2.4e9, -10.0))) return 0;
  if (!Worked("ConfigureOutputEnabled", vi, KVTD481X2C_ConfigureOutputEnabled(vi, VI_TRUE))) return 0;

  if (!Worked("reading the frequency", vi,
              KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_FREQUENCY, &frequency)))
    return 0;
  if (!Worked("reading the level", vi, KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_POWER_LEVEL, &level)))
    return 0;
  if (!Worked("reading the output", vi,
              KVTD481X2C_GetAttributeViBoolean(vi, "", KVTD481X2C_ATTR_OUTPUT_ENABLED, &enabled)))
    return 0;
  printf("Carrier %.3f MHz, %.2f dBm, output %s\n", frequency / 1e6, level, enabled ? "on" : "off");
  return 1;
}

/* The driver compares no value with a limit. It asks the instrument, whose complaint waits in the error queue. */
static int AskForTooMuch(ViSession vi) {
  const ViStatus status = KVTD481X2C_ConfigureRF(vi, 900e9, -10.0);
  ViInt32 code = 0;
  ViChar text[256] = "";

  if (status >= VI_SUCCESS) {
    printf("900 GHz should have been refused\n");
    return 0;
  }
  PrintError("ConfigureRF at 900 GHz", vi, status);
  do {
    if (!Worked("error_query", vi, KVTD481X2C_error_query(vi, &code, text))) return 0;
    printf("Error queue: %d %s\n", (int)code, text);
  } while (code != 0);
  return 1;
}

int main(int argc, char** argv) {
  ViSession vi = VI_NULL;
  int good;

  if (argc != 2) {
    fprintf(stderr, "usage: %s RESOURCE, such as TCPIP0::192.168.0.20::5025::SOCKET\n", argv[0]);
    return EXIT_FAILURE;
  }
  /* Identify and reset; look at the instrument's status after every exchange. */
  good = Worked("InitWithOptions", VI_NULL,
                KVTD481X2C_InitWithOptions(argv[1], VI_TRUE, VI_TRUE, "QueryInstrStatus=1", &vi));
  good = good && PrintIdentity(vi) && SwitchCarrierOn(vi) && AskForTooMuch(vi);
  good = good && Worked("ConfigureOutputEnabled", vi, KVTD481X2C_ConfigureOutputEnabled(vi, VI_FALSE));
  if (vi != VI_NULL && KVTD481X2C_close(vi) < VI_SUCCESS) good = 0;
  printf(good ? "Done\n" : "Failed\n");
  return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
