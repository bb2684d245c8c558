#include <KVTD481X2C.h>

/* What the public header promises to include is all that may be needed above; printing comes after. */
static ViStatus Walk(ViChar model[256], ViReal64* width) {
  ViSession vi = VI_NULL;
  ViStatus status = KVTD481X2C_InitWithOptions("nowhere", VI_TRUE, VI_TRUE,
                                               "Simulate=1, QueryInstrStatus=1, DriverSetup=Model:TD48172C", &vi);
  if (status < VI_SUCCESS) return status;
  status = KVTD481X2C_GetAttributeViString(vi, "", KVTD481X2C_ATTR_INSTRUMENT_MODEL, 256, model);
  if (status >= VI_SUCCESS) status = KVTD481X2C_SetPulseWidth1(vi, 1.25e-6);
  if (status >= VI_SUCCESS) status = KVTD481X2C_GetPulseWidth1(vi, width);
  if (status >= VI_SUCCESS) status = KVTD481X2C_SetFrequencyMode(vi, KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP);
  if (KVTD481X2C_close(vi) < VI_SUCCESS) return -1;
  /* A closed handle is refused. */
  if (KVTD481X2C_SetPulseWidth1(vi, 1.0) != (ViStatus)0xBFFA1190) return -1;
  return status;
}

#include <stdio.h>
#include <string.h>

int main(void) {
  ViChar model[256] = "";
  ViReal64 width = 0.0;
  const ViStatus status = Walk(model, &width);

  printf("0x%08X %s %g\n", (unsigned)status, model, width);
  return status == VI_SUCCESS && strcmp(model, "TD48172C") == 0 && width == 1.25e-6 ? 0 : 1;
}
