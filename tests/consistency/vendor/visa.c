/* Somebody else's VISA: the operations that the driver calls, and not one instrument to open. */
#include <visa.h>

#define VENDOR __attribute__((visibility("default")))

VENDOR ViStatus _VI_FUNC viOpenDefaultRM(ViPSession vi) {
  *vi = 1;
  return VI_SUCCESS;
}
VENDOR ViStatus _VI_FUNC viOpen(ViSession manager, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout,
                                ViPSession vi) {
  (void)manager, (void)name, (void)mode, (void)timeout;
  *vi = VI_NULL;
  return VI_ERROR_RSRC_NFOUND;
}
VENDOR ViStatus _VI_FUNC viClose(ViObject vi) { return vi == 1 ? VI_SUCCESS : VI_ERROR_INV_OBJECT; }
VENDOR ViStatus _VI_FUNC viGetAttribute(ViObject vi, ViAttr name, void _VI_PTR value) {
  (void)vi, (void)name, (void)value;
  return VI_ERROR_INV_OBJECT;
}
VENDOR ViStatus _VI_FUNC viSetAttribute(ViObject vi, ViAttr name, ViAttrState value) {
  (void)vi, (void)name, (void)value;
  return VI_ERROR_INV_OBJECT;
}
VENDOR ViStatus _VI_FUNCC viPrintf(ViSession vi, ViConstString format, ...) {
  (void)vi, (void)format;
  return VI_ERROR_INV_OBJECT;
}
VENDOR ViStatus _VI_FUNCC viQueryf(ViSession vi, ViConstString write, ViConstString read, ...) {
  (void)vi, (void)write, (void)read;
  return VI_ERROR_INV_OBJECT;
}
VENDOR ViStatus _VI_FUNC viRead(ViSession vi, ViPBuf buffer, ViUInt32 count, ViPUInt32 read) {
  (void)vi, (void)buffer, (void)count, (void)read;
  return VI_ERROR_INV_OBJECT;
}
VENDOR ViStatus _VI_FUNC viWrite(ViSession vi, ViConstBuf buffer, ViUInt32 count, ViPUInt32 written) {
  (void)vi, (void)buffer, (void)count, (void)written;
  return VI_ERROR_INV_OBJECT;
}
