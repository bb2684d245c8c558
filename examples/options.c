/* A simulated session: what the option string does, and how a mistake in it is told. Needs no instrument. */
#include <KVTD481X2C.h>
#include <stdio.h>
#include <stdlib.h>

/* A handle opened with these options, or VI_NULL and the driver's words about it. */
static ViSession Open(const char* options) {
  ViSession vi = VI_NULL;
  const ViStatus status = KVTD481X2C_InitWithOptions("TCPIP0::192.0.2.1::INSTR", VI_TRUE, VI_FALSE, options, &vi);

  if (status < VI_SUCCESS) {
    ViStatus code = VI_SUCCESS;
    ViChar text[1024] = "";
    /* There is no session to ask, so the text waits with the calling thread: handle 0. */
    KVTD481X2C_GetError(VI_NULL, &code, (ViInt32)sizeof text, text);
    printf("\"%s\": 0x%08X %s\n", options, (unsigned)status, text);
  } else {
    printf("\"%s\": open\n", options);
  }
  return vi;
}

int main(void) {
  ViReal64 width = 0.0;
  ViChar model[256] = "";
  ViStatus status;
  ViSession vi;

  if (Open("Simulate=maybe") != VI_NULL) return EXIT_FAILURE;

  /* DriverSetup comes last: it takes the rest of the line. */
  vi = Open("Simulate=1, QueryInstrStatus=1, DriverSetup=Model:TD48142C");
  if (vi == VI_NULL) return EXIT_FAILURE;

  status = KVTD481X2C_GetAttributeViString(vi, "", KVTD481X2C_ATTR_INSTRUMENT_MODEL, (ViInt32)sizeof model, model);
  if (status >= VI_SUCCESS) status = KVTD481X2C_SetPulseWidth1(vi, 2.5e-6);
  if (status >= VI_SUCCESS) status = KVTD481X2C_GetPulseWidth1(vi, &width);
  if (status >= VI_SUCCESS) printf("Simulated %s, pulse width %.1f us\n", model, width * 1e6);
  if (KVTD481X2C_close(vi) < VI_SUCCESS) return EXIT_FAILURE;
  return status >= VI_SUCCESS ? EXIT_SUCCESS : EXIT_FAILURE;
}
