/* What the examples do alike: open a session, tell a failure, close. cw_signal.c spells it out once. */
#ifndef KVTD_EXAMPLES_EXAMPLE_H
#define KVTD_EXAMPLES_EXAMPLE_H

#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>

/* Whether a call worked. If not, the driver's words about it are printed; with a status of VISA's it may have none. */
static inline int Worked(const char* call, ViSession vi, ViStatus status) {
  ViStatus code = VI_SUCCESS;
  ViChar text[1024] = "";

  if (status >= VI_SUCCESS) return 1;
  KVTD481X2C_GetError(vi, &code, (ViInt32)sizeof text, text);
  if (code != status) text[0] = '\0';
  printf("%s failed with 0x%08X: %s\n", call, (unsigned)status, text[0] != '\0' ? text : "(no text recorded)");
  return 0;
}

/* Opens an instrument, resets it, shows what is to be shown and closes it. Gives the program's exit code. */
static inline int RunExample(char* resource, int (*show)(ViSession vi)) {
  ViSession vi = VI_NULL;
  int good = Worked("InitWithOptions", VI_NULL,
                    KVTD481X2C_InitWithOptions(resource, VI_TRUE, VI_TRUE, "QueryInstrStatus=1", &vi));

  good = good && show(vi);
  if (vi != VI_NULL && KVTD481X2C_close(vi) < VI_SUCCESS) good = 0;
  printf(good ? "Done\n" : "Failed\n");
  return good ? EXIT_SUCCESS : EXIT_FAILURE;
}

static inline int Usage(const char* program, const char* more) {
  fprintf(stderr, "usage: %s RESOURCE%s, with a RESOURCE such as TCPIP0::192.168.0.20::5025::SOCKET\n", program, more);
  return EXIT_FAILURE;
}

#endif
