/* Settings saved in a file of the instrument, changed, and recalled. */
#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static ViConstString const kDevice = "Internal";
static ViConstString const kDirectory = "/Bench";
static ViConstString const kFile = "/Bench/receiver.sta";

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

static int PrintSettings(ViSession vi, const char* title) {
  ViReal64 frequency = 0.0;
  ViReal64 level = 0.0;
  ViReal64 deviation = 0.0;
  ViBoolean output = VI_FALSE;

  if (!Worked("reading the frequency", vi,
              KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_FREQUENCY, &frequency)) ||
      !Worked("reading the level", vi, KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_POWER_LEVEL, &level)) ||
      !Worked("GetFMInternalDeviation", vi, KVTD481X2C_GetFMInternalDeviation(vi, &deviation)) ||
      !Worked("reading the output", vi,
              KVTD481X2C_GetAttributeViBoolean(vi, "", KVTD481X2C_ATTR_OUTPUT_ENABLED, &output)))
    return 0;
  printf("%s: %.3f MHz, %.2f dBm, FM deviation %.1f kHz, output %s\n", title, frequency / 1e6, level, deviation / 1e3,
         output ? "on" : "off");
  return 1;
}

static int Set(ViSession vi, ViReal64 frequency, ViReal64 level, ViReal64 deviation, ViBoolean output) {
  return Worked("ConfigureRF", vi, KVTD481X2C_ConfigureRF(vi, frequency, level)) &&
         Worked("ConfigureFM", vi, KVTD481X2C_ConfigureFM(vi, "Internal", deviation)) &&
         Worked("ConfigureOutputEnabled", vi, KVTD481X2C_ConfigureOutputEnabled(vi, output));
}

/* A listing is: used bytes, free bytes, then "name,type,size" for each entry. Prints name and type. */
static int PrintDirectory(ViSession vi, ViConstString directory) {
  ViChar listing[4096] = "";
  char* entry;

  if (!Worked("GetDirectory", vi, KVTD481X2C_GetDirectory(vi, kDevice, directory, (ViInt32)sizeof listing, listing)))
    return 0;
  printf("%s on %s:\n", directory, kDevice);
  for (entry = strchr(listing, '"'); entry != NULL; entry = strchr(entry, '"')) {
    char* end = strchr(++entry, '"');
    char* size;
    if (end == NULL) break;
    *end = '\0';
    size = strrchr(entry, ',');
    if (size != NULL) *size = '\0';
    printf("  %s\n", entry);
    entry = end + 1;
  }
  return 1;
}

static int Show(ViSession vi) {
  return Set(vi, 868.3e6, -60.0, 50e3, VI_TRUE) && PrintSettings(vi, "Set") &&
         Worked("CreateDirectory", vi, KVTD481X2C_CreateDirectory(vi, kDevice, kDirectory)) &&
         Worked("SaveState", vi, KVTD481X2C_SaveState(vi, kDevice, kFile)) && PrintDirectory(vi, kDirectory) &&
         Set(vi, 2.4e9, 0.0, 10e3, VI_FALSE) && PrintSettings(vi, "Changed") &&
         Worked("LoadState", vi, KVTD481X2C_LoadState(vi, kDevice, kFile)) && PrintSettings(vi, "Recalled") &&
         Worked("DeleteFile", vi, KVTD481X2C_DeleteFile(vi, kDevice, kFile)) && PrintDirectory(vi, kDirectory) &&
         Worked("DeleteDirectory", vi, KVTD481X2C_DeleteDirectory(vi, kDevice, kDirectory));
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
