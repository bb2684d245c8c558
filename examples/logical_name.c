/* Opens an instrument by its logical name: what and where it is stands in the IVI configuration store. */
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

static int Show(ViSession vi) {
  static const struct {
    const char* title;
    ViAttr attribute;
  } rows[] = {{"Logical name", KVTD481X2C_ATTR_LOGICAL_NAME},
              {"Descriptor", KVTD481X2C_ATTR_IO_RESOURCE_DESCRIPTOR},
              {"Model", KVTD481X2C_ATTR_INSTRUMENT_MODEL}};
  ViBoolean simulate = VI_FALSE;
  size_t row;

  for (row = 0; row < sizeof rows / sizeof *rows; ++row) {
    ViChar text[256] = "";
    if (!Worked(rows[row].title, vi,
                KVTD481X2C_GetAttributeViString(vi, "", rows[row].attribute, (ViInt32)sizeof text, text)))
      return 0;
    printf("%s: %s\n", rows[row].title, text);
  }
  if (!Worked("reading the simulation", vi,
              KVTD481X2C_GetAttributeViBoolean(vi, "", KVTD481X2C_ATTR_SIMULATE, &simulate)))
    return 0;
  printf("Simulated: %s\n", simulate ? "yes" : "no");
  return 1;
}

int main(int argc, char** argv) {
  ViSession vi = VI_NULL;
  int good;

  if (argc != 2) {
    fprintf(stderr, "usage: %s LOGICAL_NAME, a name of the IVI configuration store\n", argv[0]);
    return EXIT_FAILURE;
  }
  good = Worked("InitWithOptions", VI_NULL,
                KVTD481X2C_InitWithOptions(argv[1], VI_TRUE, VI_TRUE, "QueryInstrStatus=1", &vi));
  good = good && Show(vi);
  if (vi != VI_NULL && KVTD481X2C_close(vi) < VI_SUCCESS) good = 0;
  printf(good ? "Done\n" : "Failed\n");
  return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
