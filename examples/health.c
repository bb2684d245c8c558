/* Is the instrument well? Self tests, temperature, reference and the error queue. */
#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>

/* More errors than an instrument keeps: a queue that never empties is not read for ever. */
enum { kMostErrors = 1000 };

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

static int SelfTests(ViSession vi) {
  ViInt16 result = -1;
  ViChar message[256] = "";
  ViChar report[4096] = "";

  if (!Worked("self_test", vi, KVTD481X2C_self_test(vi, &result, message)) ||
      !Worked("SelfTest", vi, KVTD481X2C_SelfTest(vi, (ViInt32)sizeof report, report)))
    return 0;
  /* A test that fails is no failure of the call. */
  printf("Self test: %d, %s\n", (int)result, message);
  printf("Extended self test: %s\n", report);
  return result == 0;
}

static const char* SourceName(ViInt32 source) {
  switch (source) {
    case KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_1600:
      return "external 1600 MHz";
    case KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_100:
      return "external 100 MHz";
    case KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_1PPS:
      return "external pulse per second";
    case KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_10:
      return "external 10 MHz";
    case KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_GPS:
      return "internal, disciplined by GPS";
    case KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_RUBIDIUM_10:
      return "internal rubidium 10 MHz";
    case KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_FREERUN_10:
      return "internal 10 MHz";
    case KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_FREERUN_100:
      return "internal 100 MHz";
    default:
      return "unknown";
  }
}

static int Environment(ViSession vi) {
  ViReal64 temperature = 0.0;
  ViInt32 source = -1;

  if (!Worked("GetTemperature", vi, KVTD481X2C_GetTemperature(vi, &temperature)) ||
      !Worked("GetReferenceOscillatorActiveSource", vi, KVTD481X2C_GetReferenceOscillatorActiveSource(vi, &source)))
    return 0;
  printf("Temperature: %.1f degrees Celsius\n", temperature);
  printf("Reference: %s\n", SourceName(source));
  return 1;
}

static int ErrorQueue(ViSession vi) {
  ViInt32 code = 0;
  ViChar text[256] = "";
  int errors;

  for (errors = 0; errors < kMostErrors; ++errors) {
    if (!Worked("error_query", vi, KVTD481X2C_error_query(vi, &code, text))) return 0;
    if (code == 0) break;
    printf("Error: %d %s\n", (int)code, text);
  }
  printf("Errors in the queue: %d\n", errors);
  return errors == 0;
}

static int Show(ViSession vi) { return SelfTests(vi) && Environment(vi) && ErrorQueue(vi); }

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
