/* The fundamental VISA types: their widths are the binary interface, whatever the compiler's int and long are. */
#ifndef VISATYPE_H_
#define VISATYPE_H_

#include <limits.h>
#include <stdint.h>

#if defined(_WIN64)
#define _VI_FAR
#define _VI_FUNC __fastcall
#define _VI_FUNCC __fastcall
#define _VI_FUNCH __fastcall
#elif defined(_WIN32)
#define _VI_FAR
#define _VI_FUNC __stdcall
#define _VI_FUNCC __cdecl
#define _VI_FUNCH __stdcall
#else
#define _VI_FAR
#define _VI_FUNC
#define _VI_FUNCC
#define _VI_FUNCH
#endif
#define _VI_PTR *
#define _VI_SIGNED signed

#if defined(_WIN64) || UINTPTR_MAX > 0xFFFFFFFFu
#define _VISA_ENV_IS_64_BIT
#endif

#define _VI_ERROR (-2147483647L - 1)
#define VI_SUCCESS (0L)
#define VI_NULL (0)
#define VI_TRUE (1)
#define VI_FALSE (0)

typedef uint64_t ViUInt64;
typedef ViUInt64 _VI_PTR ViPUInt64;
typedef ViUInt64 _VI_PTR ViAUInt64;
typedef int64_t ViInt64;
typedef ViInt64 _VI_PTR ViPInt64;
typedef ViInt64 _VI_PTR ViAInt64;

/* A VISA long has 32 bits: C's own has 64 on most Unix systems and 32 on Windows. */
#if LONG_MAX > 0x7FFFFFFF
typedef unsigned int ViUInt32;
typedef _VI_SIGNED int ViInt32;
#else
typedef unsigned long ViUInt32;
typedef _VI_SIGNED long ViInt32;
#endif
typedef ViUInt32 _VI_PTR ViPUInt32;
typedef ViUInt32 _VI_PTR ViAUInt32;
typedef ViInt32 _VI_PTR ViPInt32;
typedef ViInt32 _VI_PTR ViAInt32;

typedef unsigned short ViUInt16;
typedef ViUInt16 _VI_PTR ViPUInt16;
typedef ViUInt16 _VI_PTR ViAUInt16;
typedef _VI_SIGNED short ViInt16;
typedef ViInt16 _VI_PTR ViPInt16;
typedef ViInt16 _VI_PTR ViAInt16;

typedef unsigned char ViUInt8;
typedef ViUInt8 _VI_PTR ViPUInt8;
typedef ViUInt8 _VI_PTR ViAUInt8;
typedef _VI_SIGNED char ViInt8;
typedef ViInt8 _VI_PTR ViPInt8;
typedef ViInt8 _VI_PTR ViAInt8;

typedef char ViChar;
typedef ViChar _VI_PTR ViPChar;
typedef ViChar _VI_PTR ViAChar;
typedef unsigned char ViByte;
typedef ViByte _VI_PTR ViPByte;
typedef ViByte _VI_PTR ViAByte;

typedef void _VI_PTR ViAddr;
typedef ViAddr _VI_PTR ViPAddr;
typedef ViAddr _VI_PTR ViAAddr;

typedef float ViReal32;
typedef ViReal32 _VI_PTR ViPReal32;
typedef ViReal32 _VI_PTR ViAReal32;
typedef double ViReal64;
typedef ViReal64 _VI_PTR ViPReal64;
typedef ViReal64 _VI_PTR ViAReal64;

typedef ViPByte ViBuf;
typedef ViPByte ViPBuf;
typedef ViPByte _VI_PTR ViABuf;
typedef const ViByte _VI_PTR ViConstBuf;

typedef ViPChar ViString;
typedef ViPChar ViPString;
typedef ViPChar _VI_PTR ViAString;
typedef const ViChar _VI_PTR ViConstString;

typedef ViString ViRsrc;
typedef ViString ViPRsrc;
typedef ViString _VI_PTR ViARsrc;
typedef ViConstString ViConstRsrc;

typedef ViUInt16 ViBoolean;
typedef ViBoolean _VI_PTR ViPBoolean;
typedef ViBoolean _VI_PTR ViABoolean;

typedef ViInt32 ViStatus;
typedef ViStatus _VI_PTR ViPStatus;
typedef ViStatus _VI_PTR ViAStatus;

typedef ViUInt32 ViVersion;
typedef ViVersion _VI_PTR ViPVersion;
typedef ViVersion _VI_PTR ViAVersion;

typedef ViUInt32 ViObject;
typedef ViObject _VI_PTR ViPObject;
typedef ViObject _VI_PTR ViAObject;
typedef ViObject ViSession;
typedef ViSession _VI_PTR ViPSession;
typedef ViSession _VI_PTR ViASession;

typedef ViUInt32 ViAttr;

#endif
