/* Amplitude and frequency modulation: the class's calls, the LF generators behind them, and the measured result. */
#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>

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

/* The instrument has no LF generators apart: each is the internal source of one modulation. */
static int PrintGenerators(ViSession vi) {
  ViInt32 count = 0;
  ViInt32 index;

  if (!Worked("reading the number of LF generators", vi,
              KVTD481X2C_GetAttributeViInt32(vi, "", KVTD481X2C_ATTR_LF_GENERATOR_COUNT, &count)))
    return 0;
  printf("LF generators:");
  for (index = 1; index <= count; ++index) {
    ViChar name[32] = "";
    if (!Worked("GetLFGeneratorName", vi, KVTD481X2C_GetLFGeneratorName(vi, index, (ViInt32)sizeof name, name)))
      return 0;
    printf(" %s", name);
  }
  printf("\n");
  return 1;
}

/* What is set goes to every generator that is active; reading wants exactly one. */
static int SetGenerator(ViSession vi, const char* generator, ViReal64 frequency, ViInt32 waveform) {
  return Worked("SetActiveLFGenerator", vi, KVTD481X2C_SetActiveLFGenerator(vi, generator)) &&
         Worked("ConfigureLFGenerator", vi, KVTD481X2C_ConfigureLFGenerator(vi, frequency, waveform));
}

static int PrintGenerator(ViSession vi, const char* generator) {
  ViReal64 frequency = 0.0;
  ViInt32 waveform = 0;

  if (!Worked("SetActiveLFGenerator", vi, KVTD481X2C_SetActiveLFGenerator(vi, generator)) ||
      !Worked("reading the LF generator's frequency", vi,
              KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY, &frequency)) ||
      !Worked("reading the LF generator's waveform", vi,
              KVTD481X2C_GetAttributeViInt32(vi, "", KVTD481X2C_ATTR_LF_GENERATOR_WAVEFORM, &waveform)))
    return 0;
  printf("LF generator %s: %.1f Hz, waveform %d\n", generator, frequency, (int)waveform);
  return 1;
}

static int Am(ViSession vi, ViInt32 scaling, ViReal64 depth, const char* unit) {
  ViReal64 set = 0.0;
  ViReal64 measured = 0.0;

  if (!Worked("ConfigureAM", vi, KVTD481X2C_ConfigureAM(vi, "Internal", scaling, depth)) ||
      !Worked("ConfigureAMEnabled", vi, KVTD481X2C_ConfigureAMEnabled(vi, VI_TRUE)) ||
      !Worked("reading the depth", vi, KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_AM_DEPTH, &set)) ||
      !Worked("MeasureAMDepth", vi, KVTD481X2C_MeasureAMDepth(vi, &measured)))
    return 0;
  printf("AM depth: set %.1f %s, measured %.1f %%\n", set, unit, measured);
  return 1;
}

static int Fm(ViSession vi, ViReal64 deviation) {
  ViReal64 set = 0.0;
  ViReal64 measured = 0.0;

  if (!Worked("ConfigureFM", vi, KVTD481X2C_ConfigureFM(vi, "Internal", deviation)) ||
      !Worked("ConfigureFMEnabled", vi, KVTD481X2C_ConfigureFMEnabled(vi, VI_TRUE)) ||
      !Worked("reading the deviation", vi,
              KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_FM_DEVIATION, &set)) ||
      !Worked("MeasureFMDepth", vi, KVTD481X2C_MeasureFMDepth(vi, &measured)))
    return 0;
  printf("FM deviation: set %.1f kHz, measured %.1f kHz\n", set / 1e3, measured / 1e3);
  return 1;
}

static int Show(ViSession vi) {
  ViReal64 measured = 0.0;

  if (!Worked("ConfigureRF", vi, KVTD481X2C_ConfigureRF(vi, 1.5e9, -10.0)) || !PrintGenerators(vi) ||
      !SetGenerator(vi, "AM,FM", 400.0, KVTD481X2C_VAL_INTERNAL_WAVEFORM_TRIANGLE) ||
      !SetGenerator(vi, "FM", 1e3, KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE) || !PrintGenerator(vi, "AM") ||
      !PrintGenerator(vi, "FM") || !Am(vi, KVTD481X2C_VAL_AM_SCALING_LINEAR, 50.0, "%") ||
      !Am(vi, KVTD481X2C_VAL_AM_SCALING_LOGARITHMIC, 6.0, "dB") || !Fm(vi, 75e3))
    return 0;

  if (!Worked("DisableAllModulation", vi, KVTD481X2C_DisableAllModulation(vi)) ||
      !Worked("MeasureFMDepth", vi, KVTD481X2C_MeasureFMDepth(vi, &measured)))
    return 0;
  printf("All modulation off: measured %.1f kHz\n", measured / 1e3);
  return 1;
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
