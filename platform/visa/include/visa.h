/* The published C interface of VISA, as far as message based instruments on a network need it. Whatever library
   exports these functions can stand behind it. */
#ifndef VISA_H_
#define VISA_H_

#include <stdarg.h>

#include <visatype.h>

#ifdef __cplusplus
extern "C" {
#endif
#if defined(__GNUC__) && !defined(_WIN32)
#pragma GCC visibility push(default)
#endif

#define VI_SPEC_VERSION (0x00700200UL)

/* ---- types ------------------------------------------------------------------------------------------------- */

typedef ViObject ViEvent;
typedef ViEvent _VI_PTR ViPEvent;
typedef ViObject ViFindList;
typedef ViFindList _VI_PTR ViPFindList;

#ifdef _VISA_ENV_IS_64_BIT
typedef ViUInt64 ViBusAddress;
typedef ViUInt64 ViBusSize;
typedef ViUInt64 ViAttrState;
#else
typedef ViUInt32 ViBusAddress;
typedef ViUInt32 ViBusSize;
typedef ViUInt32 ViAttrState;
#endif
typedef void _VI_PTR ViPAttrState;

typedef ViUInt32 ViEventType;
typedef ViEventType _VI_PTR ViPEventType;
typedef ViEventType _VI_PTR ViAEventType;
typedef ViUInt32 ViEventFilter;
typedef ViString ViKeyId;
typedef ViPString ViPKeyId;
typedef ViConstString ViConstKeyId;
typedef ViUInt32 ViJobId;
typedef ViJobId _VI_PTR ViPJobId;
typedef ViUInt32 ViAccessMode;
typedef ViAccessMode _VI_PTR ViPAccessMode;
typedef va_list ViVAList;
typedef ViStatus(_VI_FUNCH _VI_PTR ViHndlr)(ViSession vi, ViEventType eventType, ViEvent event, ViAddr userHandle);

/* ---- resource manager, template ---------------------------------------------------------------------------- */

ViStatus _VI_FUNC viOpenDefaultRM(ViPSession sesn);
ViStatus _VI_FUNC viGetDefaultRM(ViPSession sesn);
ViStatus _VI_FUNC viFindRsrc(ViSession sesn, ViConstString expr, ViPFindList list, ViPUInt32 count, ViChar desc[]);
ViStatus _VI_FUNC viFindNext(ViFindList list, ViChar desc[]);
ViStatus _VI_FUNC viParseRsrc(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum);
ViStatus _VI_FUNC viParseRsrcEx(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum,
                                ViChar rsrcClass[], ViChar expandedUnaliasedName[], ViChar aliasIfExists[]);
ViStatus _VI_FUNC viOpen(ViSession sesn, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi);
ViStatus _VI_FUNC viClose(ViObject vi);
ViStatus _VI_FUNC viGetAttribute(ViObject vi, ViAttr attr, void _VI_PTR value);
ViStatus _VI_FUNC viSetAttribute(ViObject vi, ViAttr attr, ViAttrState value);
ViStatus _VI_FUNC viStatusDesc(ViObject vi, ViStatus status, ViChar desc[]);
ViStatus _VI_FUNC viTerminate(ViObject vi, ViUInt16 degree, ViJobId job);
ViStatus _VI_FUNC viLock(ViSession vi, ViAccessMode type, ViUInt32 timeout, ViConstKeyId requestedKey,
                         ViChar accessKey[]);
ViStatus _VI_FUNC viUnlock(ViSession vi);
ViStatus _VI_FUNC viEnableEvent(ViSession vi, ViEventType type, ViUInt16 mechanism, ViEventFilter context);
ViStatus _VI_FUNC viDisableEvent(ViSession vi, ViEventType type, ViUInt16 mechanism);
ViStatus _VI_FUNC viDiscardEvents(ViSession vi, ViEventType type, ViUInt16 mechanism);
ViStatus _VI_FUNC viWaitOnEvent(ViSession vi, ViEventType inType, ViUInt32 timeout, ViPEventType outType,
                                ViPEvent outContext);
ViStatus _VI_FUNC viInstallHandler(ViSession vi, ViEventType type, ViHndlr handler, ViAddr userHandle);
ViStatus _VI_FUNC viUninstallHandler(ViSession vi, ViEventType type, ViHndlr handler, ViAddr userHandle);

/* ---- basic I/O --------------------------------------------------------------------------------------------- */

ViStatus _VI_FUNC viRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus _VI_FUNC viReadAsync(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPJobId job);
ViStatus _VI_FUNC viReadToFile(ViSession vi, ViConstString filename, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus _VI_FUNC viWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus _VI_FUNC viWriteAsync(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPJobId job);
ViStatus _VI_FUNC viWriteFromFile(ViSession vi, ViConstString filename, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus _VI_FUNC viAssertTrigger(ViSession vi, ViUInt16 protocol);
ViStatus _VI_FUNC viReadSTB(ViSession vi, ViPUInt16 status);
ViStatus _VI_FUNC viClear(ViSession vi);
ViStatus _VI_FUNC viGpibControlREN(ViSession vi, ViUInt16 mode);

/* ---- formatted and buffered I/O ---------------------------------------------------------------------------- */

ViStatus _VI_FUNC viSetBuf(ViSession vi, ViUInt16 mask, ViUInt32 size);
ViStatus _VI_FUNC viFlush(ViSession vi, ViUInt16 mask);
ViStatus _VI_FUNC viBufWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus _VI_FUNC viBufRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus _VI_FUNCC viPrintf(ViSession vi, ViConstString writeFmt, ...);
ViStatus _VI_FUNC viVPrintf(ViSession vi, ViConstString writeFmt, ViVAList params);
ViStatus _VI_FUNCC viSPrintf(ViSession vi, ViPBuf buf, ViConstString writeFmt, ...);
ViStatus _VI_FUNC viVSPrintf(ViSession vi, ViPBuf buf, ViConstString writeFmt, ViVAList params);
ViStatus _VI_FUNCC viScanf(ViSession vi, ViConstString readFmt, ...);
ViStatus _VI_FUNC viVScanf(ViSession vi, ViConstString readFmt, ViVAList params);
ViStatus _VI_FUNCC viSScanf(ViSession vi, ViConstBuf buf, ViConstString readFmt, ...);
ViStatus _VI_FUNC viVSScanf(ViSession vi, ViConstBuf buf, ViConstString readFmt, ViVAList params);
ViStatus _VI_FUNCC viQueryf(ViSession vi, ViConstString writeFmt, ViConstString readFmt, ...);
ViStatus _VI_FUNC viVQueryf(ViSession vi, ViConstString writeFmt, ViConstString readFmt, ViVAList params);

/* Old name of viOpenDefaultRM; the function of that name is there for callers that were linked before the macro. */
#define viGetDefaultRM(vi) viOpenDefaultRM(vi)

/* ---- completion and warning codes -------------------------------------------------------------------------- */

#define VI_SUCCESS_EVENT_EN (0x3FFF0002L)
#define VI_SUCCESS_EVENT_DIS (0x3FFF0003L)
#define VI_SUCCESS_QUEUE_EMPTY (0x3FFF0004L)
#define VI_SUCCESS_TERM_CHAR (0x3FFF0005L)
#define VI_SUCCESS_MAX_CNT (0x3FFF0006L)
#define VI_WARN_QUEUE_OVERFLOW (0x3FFF000CL)
#define VI_WARN_CONFIG_NLOADED (0x3FFF0077L)
#define VI_SUCCESS_DEV_NPRESENT (0x3FFF007DL)
#define VI_SUCCESS_QUEUE_NEMPTY (0x3FFF0080L)
#define VI_WARN_NULL_OBJECT (0x3FFF0082L)
#define VI_WARN_NSUP_ATTR_STATE (0x3FFF0084L)
#define VI_WARN_UNKNOWN_STATUS (0x3FFF0085L)
#define VI_WARN_NSUP_BUF (0x3FFF0088L)
#define VI_SUCCESS_NCHAIN (0x3FFF0098L)
#define VI_SUCCESS_NESTED_SHARED (0x3FFF0099L)
#define VI_SUCCESS_NESTED_EXCLUSIVE (0x3FFF009AL)
#define VI_SUCCESS_SYNC (0x3FFF009BL)
#define VI_WARN_EXT_FUNC_NIMPL (0x3FFF00A9L)

/* ---- error codes ------------------------------------------------------------------------------------------- */

#define VI_ERROR_SYSTEM_ERROR (_VI_ERROR + 0x3FFF0000L)
#define VI_ERROR_INV_OBJECT (_VI_ERROR + 0x3FFF000EL)
#define VI_ERROR_RSRC_LOCKED (_VI_ERROR + 0x3FFF000FL)
#define VI_ERROR_INV_EXPR (_VI_ERROR + 0x3FFF0010L)
#define VI_ERROR_RSRC_NFOUND (_VI_ERROR + 0x3FFF0011L)
#define VI_ERROR_INV_RSRC_NAME (_VI_ERROR + 0x3FFF0012L)
#define VI_ERROR_INV_ACC_MODE (_VI_ERROR + 0x3FFF0013L)
#define VI_ERROR_TMO (_VI_ERROR + 0x3FFF0015L)
#define VI_ERROR_CLOSING_FAILED (_VI_ERROR + 0x3FFF0016L)
#define VI_ERROR_INV_DEGREE (_VI_ERROR + 0x3FFF001BL)
#define VI_ERROR_INV_JOB_ID (_VI_ERROR + 0x3FFF001CL)
#define VI_ERROR_NSUP_ATTR (_VI_ERROR + 0x3FFF001DL)
#define VI_ERROR_NSUP_ATTR_STATE (_VI_ERROR + 0x3FFF001EL)
#define VI_ERROR_ATTR_READONLY (_VI_ERROR + 0x3FFF001FL)
#define VI_ERROR_INV_LOCK_TYPE (_VI_ERROR + 0x3FFF0020L)
#define VI_ERROR_INV_ACCESS_KEY (_VI_ERROR + 0x3FFF0021L)
#define VI_ERROR_INV_EVENT (_VI_ERROR + 0x3FFF0026L)
#define VI_ERROR_INV_MECH (_VI_ERROR + 0x3FFF0027L)
#define VI_ERROR_HNDLR_NINSTALLED (_VI_ERROR + 0x3FFF0028L)
#define VI_ERROR_INV_HNDLR_REF (_VI_ERROR + 0x3FFF0029L)
#define VI_ERROR_INV_CONTEXT (_VI_ERROR + 0x3FFF002AL)
#define VI_ERROR_NENABLED (_VI_ERROR + 0x3FFF002FL)
#define VI_ERROR_ABORT (_VI_ERROR + 0x3FFF0030L)
#define VI_ERROR_RAW_WR_PROT_VIOL (_VI_ERROR + 0x3FFF0034L)
#define VI_ERROR_RAW_RD_PROT_VIOL (_VI_ERROR + 0x3FFF0035L)
#define VI_ERROR_OUTP_PROT_VIOL (_VI_ERROR + 0x3FFF0036L)
#define VI_ERROR_INP_PROT_VIOL (_VI_ERROR + 0x3FFF0037L)
#define VI_ERROR_BERR (_VI_ERROR + 0x3FFF0038L)
#define VI_ERROR_IN_PROGRESS (_VI_ERROR + 0x3FFF0039L)
#define VI_ERROR_INV_SETUP (_VI_ERROR + 0x3FFF003AL)
#define VI_ERROR_QUEUE_ERROR (_VI_ERROR + 0x3FFF003BL)
#define VI_ERROR_ALLOC (_VI_ERROR + 0x3FFF003CL)
#define VI_ERROR_INV_MASK (_VI_ERROR + 0x3FFF003DL)
#define VI_ERROR_IO (_VI_ERROR + 0x3FFF003EL)
#define VI_ERROR_INV_FMT (_VI_ERROR + 0x3FFF003FL)
#define VI_ERROR_NSUP_FMT (_VI_ERROR + 0x3FFF0041L)
#define VI_ERROR_LINE_IN_USE (_VI_ERROR + 0x3FFF0042L)
#define VI_ERROR_NSUP_MODE (_VI_ERROR + 0x3FFF0046L)
#define VI_ERROR_SRQ_NOCCURRED (_VI_ERROR + 0x3FFF004AL)
#define VI_ERROR_RESP_PENDING (_VI_ERROR + 0x3FFF0059L)
#define VI_ERROR_NLISTENERS (_VI_ERROR + 0x3FFF005FL)
#define VI_ERROR_NCIC (_VI_ERROR + 0x3FFF0060L)
#define VI_ERROR_NSYS_CNTLR (_VI_ERROR + 0x3FFF0061L)
#define VI_ERROR_NSUP_OPER (_VI_ERROR + 0x3FFF0067L)
#define VI_ERROR_ASRL_PARITY (_VI_ERROR + 0x3FFF006AL)
#define VI_ERROR_ASRL_FRAMING (_VI_ERROR + 0x3FFF006BL)
#define VI_ERROR_ASRL_OVERRUN (_VI_ERROR + 0x3FFF006CL)
#define VI_ERROR_USER_BUF (_VI_ERROR + 0x3FFF0071L)
#define VI_ERROR_RSRC_BUSY (_VI_ERROR + 0x3FFF0072L)
#define VI_ERROR_INV_PARAMETER (_VI_ERROR + 0x3FFF0078L)
#define VI_ERROR_INV_PROT (_VI_ERROR + 0x3FFF0079L)
#define VI_ERROR_INV_SIZE (_VI_ERROR + 0x3FFF007BL)
#define VI_ERROR_NIMPL_OPER (_VI_ERROR + 0x3FFF0081L)
#define VI_ERROR_INV_LENGTH (_VI_ERROR + 0x3FFF0083L)
#define VI_ERROR_INV_MODE (_VI_ERROR + 0x3FFF0091L)
#define VI_ERROR_SESN_NLOCKED (_VI_ERROR + 0x3FFF009CL)
#define VI_ERROR_LIBRARY_NFOUND (_VI_ERROR + 0x3FFF009EL)
#define VI_ERROR_FILE_ACCESS (_VI_ERROR + 0x3FFF00A1L)
#define VI_ERROR_FILE_IO (_VI_ERROR + 0x3FFF00A2L)
#define VI_ERROR_NSUP_MECH (_VI_ERROR + 0x3FFF00A4L)
#define VI_ERROR_INTF_NUM_NCONFIG (_VI_ERROR + 0x3FFF00A5L)
#define VI_ERROR_CONN_LOST (_VI_ERROR + 0x3FFF00A6L)
#define VI_ERROR_NPERMISSION (_VI_ERROR + 0x3FFF00A8L)
#define VI_ERROR_INV_SESSION VI_ERROR_INV_OBJECT

/* ---- attributes -------------------------------------------------------------------------------------------- */

#define VI_ATTR_RSRC_CLASS (0xBFFF0001UL)
#define VI_ATTR_RSRC_NAME (0xBFFF0002UL)
#define VI_ATTR_RSRC_IMPL_VERSION (0x3FFF0003UL)
#define VI_ATTR_RSRC_LOCK_STATE (0x3FFF0004UL)
#define VI_ATTR_MAX_QUEUE_LENGTH (0x3FFF0005UL)
#define VI_ATTR_USER_DATA_32 (0x3FFF0007UL)
#define VI_ATTR_USER_DATA_64 (0x3FFF000AUL)
#define VI_ATTR_SEND_END_EN (0x3FFF0016UL)
#define VI_ATTR_TERMCHAR (0x3FFF0018UL)
#define VI_ATTR_TERMCHAR_EN (0x3FFF0038UL)
#define VI_ATTR_TMO_VALUE (0x3FFF001AUL)
#define VI_ATTR_IO_PROT (0x3FFF001CUL)
#define VI_ATTR_DMA_ALLOW_EN (0x3FFF001EUL)
#define VI_ATTR_RD_BUF_OPER_MODE (0x3FFF002AUL)
#define VI_ATTR_RD_BUF_SIZE (0x3FFF002BUL)
#define VI_ATTR_WR_BUF_OPER_MODE (0x3FFF002DUL)
#define VI_ATTR_WR_BUF_SIZE (0x3FFF002EUL)
#define VI_ATTR_SUPPRESS_END_EN (0x3FFF0036UL)
#define VI_ATTR_RM_SESSION (0x3FFF00C4UL)
#define VI_ATTR_INTF_INST_NAME (0xBFFF00E9UL)
#define VI_ATTR_RSRC_SPEC_VERSION (0x3FFF0170UL)
#define VI_ATTR_INTF_TYPE (0x3FFF0171UL)
#define VI_ATTR_RSRC_MANF_NAME (0xBFFF0174UL)
#define VI_ATTR_RSRC_MANF_ID (0x3FFF0175UL)
#define VI_ATTR_INTF_NUM (0x3FFF0176UL)
#define VI_ATTR_TRIG_ID (0x3FFF0177UL)
#define VI_ATTR_FILE_APPEND_EN (0x3FFF0192UL)
#define VI_ATTR_TCPIP_ADDR (0xBFFF0195UL)
#define VI_ATTR_TCPIP_HOSTNAME (0xBFFF0196UL)
#define VI_ATTR_TCPIP_PORT (0x3FFF0197UL)
#define VI_ATTR_TCPIP_DEVICE_NAME (0xBFFF0199UL)
#define VI_ATTR_TCPIP_NODELAY (0x3FFF019AUL)
#define VI_ATTR_TCPIP_KEEPALIVE (0x3FFF019BUL)
#define VI_ATTR_TCPIP_HISLIP_OVERLAP_EN (0x3FFF0300UL)
#define VI_ATTR_TCPIP_HISLIP_VERSION (0x3FFF0301UL)
#define VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB (0x3FFF0302UL)
#define VI_ATTR_TCPIP_IS_HISLIP (0x3FFF0303UL)
#define VI_ATTR_EVENT_TYPE (0x3FFF4010UL)
#ifdef _VISA_ENV_IS_64_BIT
#define VI_ATTR_USER_DATA VI_ATTR_USER_DATA_64
#else
#define VI_ATTR_USER_DATA VI_ATTR_USER_DATA_32
#endif

/* ---- event types ------------------------------------------------------------------------------------------- */

#define VI_EVENT_IO_COMPLETION (0x3FFF2009UL)
#define VI_EVENT_SERVICE_REQ (0x3FFF200BUL)
#define VI_EVENT_CLEAR (0x3FFF200DUL)
#define VI_EVENT_EXCEPTION (0xBFFF200EUL)
#define VI_ALL_ENABLED_EVENTS (0x3FFF7FFFUL)

/* ---- other constants --------------------------------------------------------------------------------------- */

#define VI_FIND_BUFLEN (256)

#define VI_INTF_GPIB (1)
#define VI_INTF_VXI (2)
#define VI_INTF_GPIB_VXI (3)
#define VI_INTF_ASRL (4)
#define VI_INTF_PXI (5)
#define VI_INTF_TCPIP (6)
#define VI_INTF_USB (7)

#define VI_PROT_NORMAL (1)
#define VI_PROT_FDC (2)
#define VI_PROT_HS488 (3)
#define VI_PROT_4882_STRS (4)
#define VI_PROT_USBTMC_VENDOR (5)

#define VI_NO_LOCK (0)
#define VI_EXCLUSIVE_LOCK (1)
#define VI_SHARED_LOCK (2)
#define VI_LOAD_CONFIG (4)

#define VI_TMO_IMMEDIATE (0L)
#define VI_TMO_INFINITE (0xFFFFFFFFUL)

#define VI_TRIG_SW (-1)
#define VI_TRIG_PROT_DEFAULT (0)

#define VI_READ_BUF (1)
#define VI_WRITE_BUF (2)
#define VI_READ_BUF_DISCARD (4)
#define VI_WRITE_BUF_DISCARD (8)
#define VI_IO_IN_BUF (16)
#define VI_IO_OUT_BUF (32)
#define VI_IO_IN_BUF_DISCARD (64)
#define VI_IO_OUT_BUF_DISCARD (128)

#define VI_FLUSH_ON_ACCESS (1)
#define VI_FLUSH_WHEN_FULL (2)
#define VI_FLUSH_DISABLE (3)

#define VI_QUEUE (1)
#define VI_HNDLR (2)
#define VI_SUSPEND_HNDLR (4)
#define VI_ALL_MECH (0xFFFF)
#define VI_ANY_HNDLR (0)

/* Older spellings of the calling conventions. */
#define VISAFN _VI_FUNC
#define ViPtr _VI_PTR

#if defined(__GNUC__) && !defined(_WIN32)
#pragma GCC visibility pop
#endif
#ifdef __cplusplus
}
#endif

#endif
