#ifndef IVI_C_SHARED_H
#define IVI_C_SHARED_H

/**
 * IVI session component: a handle for a driver's session object, the lock of that session, its last error.
 *
 * Every function may be called from any thread. A handle that was never given out or has been disposed of is refused
 * with IVI_ERROR_INVALID_SESSION_HANDLE, also when a later session uses the same place; nothing is touched then.
 * Text outputs follow one rule, IVI's:
 *   size >= length + 1   the whole text, returns VI_SUCCESS
 *   0 < size <= length   size - 1 characters and a NUL, returns the size required, a positive number
 *   size == 0            nothing is written and the buffer may be null, returns the size required
 *   size < 0             the whole text into a buffer that the caller vouches for, returns VI_SUCCESS
 */

#include "IviVisaType.h"

#if defined(__cplusplus)
extern "C" {
#endif
#if defined(__GNUC__) && !defined(_WIN32)
#pragma GCC visibility push(default)
#endif

#define IVI_ERROR_CANNOT_RECOVER ((ViStatus)0xBFFA0000u)
#define IVI_ERROR_OUT_OF_MEMORY ((ViStatus)0xBFFA0056u)
#define IVI_ERROR_NULL_POINTER ((ViStatus)0xBFFA0058u)
#define IVI_ERROR_INVALID_SESSION_HANDLE ((ViStatus)0xBFFA1190u)
#define IVI_ERROR_CANNOT_CREATE_LOCK ((ViStatus)0xBFFA1198u)
#define IVI_ERROR_CANNOT_CREATE_THREAD_LOCAL ((ViStatus)0xBFFA11A0u)

/** Creates a session without a data pointer, a lock holder or an error. *handle is 0 when it fails. */
ViStatus _VI_FUNC IviSession_New(ViSession* handle);

/** Stores one pointer, null allowed; the component never looks at what it points to. */
ViStatus _VI_FUNC IviSession_SetDataPtr(ViSession handle, ViAddr dataPtr);

/** Returns the pointer last stored, null before that. A refused handle leaves *dataPtr alone. Takes no lock. */
ViStatus _VI_FUNC IviSession_GetDataPtr(ViSession handle, ViAddr* dataPtr);

/**
 * Takes the session's lock, waiting without limit for other threads; nests on the owning thread.
 *
 * @param hasLock  Null: always takes one level. Otherwise *hasLock says whether the caller's function already has its
 *                 level: true does nothing, false takes one and becomes true.
 */
ViStatus _VI_FUNC IviSession_Lock(ViSession handle, ViBoolean* hasLock);

/**
 * Gives one level of the session's lock back.
 *
 * @param hasLock  Null: always gives one level back. Otherwise true gives one back and becomes false, false does
 *                 nothing.
 * @return IVI_ERROR_CANNOT_RECOVER when the calling thread does not own the lock, which stays as it is.
 */
ViStatus _VI_FUNC IviSession_Unlock(ViSession handle, ViBoolean* hasLock);

/**
 * Replaces the session's error and the calling thread's. The text is copied; null counts as empty. A handle that does
 * not resolve, 0 included, sets the thread's error alone and succeeds.
 */
ViStatus _VI_FUNC IviSession_SetError(ViSession handle, ViStatus code, ViConstString description);

/**
 * Gives the session's error out, with handle 0 the calling thread's, and clears it when the text went out whole.
 *
 * @param bufferSize   Read by the rule above; note that it stands before the code.
 * @param code         May be null. VI_SUCCESS when there is no error.
 * @param description  Empty when there is no error.
 */
ViStatus _VI_FUNC IviSession_GetError(ViSession handle, ViInt32 bufferSize, ViStatus* code, ViChar description[]);

/** Forgets the session's error, with handle 0 the calling thread's. */
ViStatus _VI_FUNC IviSession_ClearError(ViSession handle);

/**
 * Ends the session. What the data pointer points to stays the caller's. Threads that wait for the lock come back with
 * IVI_ERROR_INVALID_SESSION_HANDLE, and so does the Unlock of a thread that held it.
 */
ViStatus _VI_FUNC IviSession_Dispose(ViSession handle);

#if defined(__GNUC__) && !defined(_WIN32)
#pragma GCC visibility pop
#endif
#if defined(__cplusplus)
}
#endif

#endif
