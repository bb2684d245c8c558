/* Opens an instrument by its logical name: what and where it is stands in the IVI configuration store. */
#include "example.h"

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
  if (argc != 2) {
    fprintf(stderr, "usage: %s LOGICAL_NAME, a name of the IVI configuration store\n", argv[0]);
    return EXIT_FAILURE;
  }
  return RunExample(argv[1], Show);
}
