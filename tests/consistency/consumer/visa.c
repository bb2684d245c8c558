#include <KVTD481X2C.h>
#include <stdio.h>
#include <visa.h>

/* The driver's own VISA library, called directly. */
int main(void) {
  ViSession manager = VI_NULL;
  ViStatus status = viOpenDefaultRM(&manager);

  printf("VISA 0x%08X\n", (unsigned)status);
  if (status < VI_SUCCESS) return 1;
  status = KVTD481X2C_close(VI_NULL);
  if (viClose(manager) < VI_SUCCESS) return 1;
  return status < VI_SUCCESS ? 0 : 1;
}
