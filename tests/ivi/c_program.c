/* The published headers, each by itself enough for what it declares, in plain C. */
#include "IviConfigServer.h"

int CallsOfAPlainCProgram(void);

int CallsOfAPlainCProgram(void) {
  ViSession vi = 0;
  IviConfigStoreHandle store = 0;
  ViStatus code = 1;
  ViChar text[8] = "";
  if (IviSession_New(&vi) != VI_SUCCESS) return 1;
  if (IviSession_SetError(vi, IVI_ERROR_NULL_POINTER, "text") != VI_SUCCESS) return 2;
  if (IviSession_GetError(vi, sizeof text, &code, text) != VI_SUCCESS) return 3;
  if (code != IVI_ERROR_NULL_POINTER || text[0] != 't') return 4;
  if (IviSession_Dispose(vi) != VI_SUCCESS) return 5;
  if (IviConfig_Initialize(&store) != VI_SUCCESS) return 6;
  if (IviConfig_Close(store) != VI_SUCCESS) return 7;
  if (IviConfig_Close(store) != IVICONFIG_ERROR_INVALID_HANDLE) return 8;
  return 0;
}
