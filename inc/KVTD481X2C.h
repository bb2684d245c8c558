/**
 * @file KVTD481X2C.h
 * C interface of the IVI-C driver for TD481X2C RF signal generators.
 *
 * This file is printed from the catalogue by tools/catalogue. To change it, change the row in src (a .toml file) and
 * build; tools/catalogue/README.md tells the form of the rows.
 *
 * Every function returns a ViStatus: negative is failure, zero or positive is success. KVTD481X2C_GetError gives the
 * text of a failure that the driver found itself. A session may be used from several threads; its calls follow one
 * another. The driver compares no value with a limit: the instrument judges, and its complaint comes back as
 * 0xBFFA0001 when KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS is on.
 */
#ifndef KVTD481X2C_H
#define KVTD481X2C_H

#include <visatype.h>

/** Marks what the library exports. */
#if defined(_WIN32)
#if defined(KVTD481X2C_BUILD)
#define KVTD481X2C_API __declspec(dllexport)
#else
#define KVTD481X2C_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define KVTD481X2C_API __attribute__((visibility("default")))
#else
#define KVTD481X2C_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup attribute_access Attribute access
 *
 * Ten functions reach every attribute by its id. The typed functions on the other pages, such as
 * KVTD481X2C_GetFrequencyMode, are short forms of these with no selector, and their errors bear the names of these.
 *
 * An id that is not known, a value of another type than the function's, and a direction that the attribute does not
 * have are refused in this order, before the instrument hears anything.
 * @{
 */

/**
 * Reads a boolean attribute.
 *
 * The null check comes first, before the handle is looked at.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier  Accepted and not looked at; may be null.
 * @param AttributeID       The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValue    The value. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  AttributeValue is null
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAttributeViBoolean(ViSession Vi, ViConstString RepCapIdentifier,
                                                                  ViAttr AttributeID, ViBoolean* AttributeValue);

/**
 * Reads an integer or enumerated attribute.
 *
 * The null check comes first, before the handle is looked at.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier  Accepted and not looked at; may be null.
 * @param AttributeID       The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValue    The value. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  AttributeValue is null
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAttributeViInt32(ViSession Vi, ViConstString RepCapIdentifier,
                                                                ViAttr AttributeID, ViInt32* AttributeValue);

/**
 * Reads a real attribute.
 *
 * The null check comes first, before the handle is looked at.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier  Accepted and not looked at; may be null.
 * @param AttributeID       The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValue    The value. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  AttributeValue is null
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAttributeViReal64(ViSession Vi, ViConstString RepCapIdentifier,
                                                                 ViAttr AttributeID, ViReal64* AttributeValue);

/**
 * Reads a session attribute.
 *
 * The null check comes first, before the handle is looked at.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier  Accepted and not looked at; may be null.
 * @param AttributeID       The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValue    The value. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  AttributeValue is null
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAttributeViSession(ViSession Vi, ViConstString RepCapIdentifier,
                                                                  ViAttr AttributeID, ViSession* AttributeValue);

/**
 * Reads a text attribute.
 *
 * A buffer size of 0 asks for the size that holds any text: 4096 is returned and the instrument is not asked. A
 * positive size gives at most that many characters, terminator included; when the buffer is filled, exactly or by
 * cutting, 4096 is returned in place of the status, as the size to offer. A negative size means that the buffer holds
 * 4096 characters.
 *
 * @param Vi                        Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier          Accepted and not looked at; may be null.
 * @param AttributeID               The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValueBufferSize  Size of AttributeValue, terminator included.
 * @param AttributeValue            The text. May be null if AttributeValueBufferSize is 0. After a failure: unchanged,
 *                                  or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 *         0xBFFA0058  AttributeValue is null and AttributeValueBufferSize is not 0
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAttributeViString(ViSession Vi, ViConstString RepCapIdentifier,
                                                                 ViAttr AttributeID, ViInt32 AttributeValueBufferSize,
                                                                 ViChar AttributeValue[]);

/**
 * Sets a boolean attribute.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier  Accepted and not looked at; may be null.
 * @param AttributeID       The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValue    The new value.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000D  the attribute is read-only
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAttributeViBoolean(ViSession Vi, ViConstString RepCapIdentifier,
                                                                  ViAttr AttributeID, ViBoolean AttributeValue);

/**
 * Sets an integer or enumerated attribute.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier  Accepted and not looked at; may be null.
 * @param AttributeID       The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValue    The new value.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000D  the attribute is read-only
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAttributeViInt32(ViSession Vi, ViConstString RepCapIdentifier,
                                                                ViAttr AttributeID, ViInt32 AttributeValue);

/**
 * Sets a real attribute.
 *
 * No range is checked; the instrument is the judge of the value.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier  Accepted and not looked at; may be null.
 * @param AttributeID       The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValue    The new value.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000D  the attribute is read-only
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAttributeViReal64(ViSession Vi, ViConstString RepCapIdentifier,
                                                                 ViAttr AttributeID, ViReal64 AttributeValue);

/**
 * Sets a session attribute.
 *
 * No session attribute can be written: the call always ends in a refusal.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier  Accepted and not looked at; may be null.
 * @param AttributeID       The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValue    The new value.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000D  the attribute is read-only
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAttributeViSession(ViSession Vi, ViConstString RepCapIdentifier,
                                                                  ViAttr AttributeID, ViSession AttributeValue);

/**
 * Sets a text attribute.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param RepCapIdentifier  Accepted and not looked at; may be null.
 * @param AttributeID       The attribute, KVTD481X2C_ATTR_...
 * @param AttributeValue    The new value.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000D  the attribute is read-only
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAttributeViString(ViSession Vi, ViConstString RepCapIdentifier,
                                                                 ViAttr AttributeID, ViConstString AttributeValue);

/** @} */

/**
 * @defgroup direct_io Direct I/O
 *
 * The way past the driver to the VISA session behind it, for commands that the driver does not have. Nothing here is
 * followed by a status check, and nothing here works in a simulated session.
 *
 * Work of your own on the VISA session belongs between KVTD481X2C_LockSession and KVTD481X2C_UnlockSession when other
 * threads use the same session.
 * @{
 */

/** The VISA session on the instrument. ViSession, read. */
#define KVTD481X2C_ATTR_SYSTEM_IO_SESSION 1150001

/** How long an exchange with the instrument may take. ViInt32, ms, read and write. */
#define KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT 1150002

/**
 * Reads KVTD481X2C_ATTR_SYSTEM_IO_SESSION: the VISA session on the instrument.
 *
 * It is the driver's and is closed with the session. A simulated session has none: 0xBFFA4214.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but where it came behind the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViSession and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Read: The VISA session, without traffic.
 * @see KVTD481X2C_ATTR_SYSTEM_IO_SESSION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetIOSession(ViSession Vi, ViSession* Value);

/**
 * Reads KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT: how long an exchange with the instrument may take.
 *
 * It is the timeout of the VISA session; until it is set VISA's own default holds. Reset and self test use 2000 ms and
 * put it back. A simulated session has none: 0xBFFA4214.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In ms. After a failure: unchanged, but where it came behind the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Read: VI_ATTR_TMO_VALUE of the VISA session.
 * @see KVTD481X2C_SetIOTimeout, KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetIOTimeout(ViSession Vi, ViInt32* Value);

/**
 * Writes KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT: how long an exchange with the instrument may take.
 *
 * It is the timeout of the VISA session; until it is set VISA's own default holds. Reset and self test use 2000 ms and
 * put it back. A simulated session has none: 0xBFFA4214.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In ms. The driver checks no range.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Write: Sets VI_ATTR_TMO_VALUE of the VISA session.
 * @see KVTD481X2C_GetIOTimeout, KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetIOTimeout(ViSession Vi, ViInt32 Value);

/**
 * Reads an answer of the instrument as it comes.
 *
 * What does not fit is read and thrown away, so that nothing is left for the next read, and the status is that of the
 * last of these reads. No status check follows.
 *
 * @param Vi           Handle from KVTD481X2C_InitWithOptions.
 * @param Count        Size of Buffer in bytes; its low 32 bits count.
 * @param Buffer       The bytes read, without a terminator. Not null. After a failure: unchanged, or what had arrived.
 * @param ReturnCount  Number of bytes in Buffer, also after a failure. May be null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA4214  the session is simulated
 *
 * Simulated: refused with 0xBFFA4214.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_viRead(ViSession Vi, ViInt64 Count, ViByte* Buffer, ViInt64* ReturnCount);

/**
 * Sends bytes to the instrument as they stand.
 *
 * The line feed that ends a command is the caller's to send. No status check follows.
 *
 * @param Vi           Handle from KVTD481X2C_InitWithOptions.
 * @param Count        Number of bytes; its low 32 bits count.
 * @param Buffer       The bytes. Not null.
 * @param ReturnCount  Number of bytes sent, also after a failure. May be null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA4214  the session is simulated
 *
 * Simulated: refused with 0xBFFA4214.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_viWrite(ViSession Vi, ViInt64 Count, const ViByte* Buffer,
                                                    ViInt64* ReturnCount);

/** @} */

/**
 * @defgroup enums Defined values
 *
 * The values that stand for the instrument's words. A value is written as its first word, in the mixed case shown, and
 * every word of the row is accepted when it is read: trimmed, without regard to case, and whole. An abbreviation counts
 * only where it is listed.
 *
 * A value without a word can be named in an error text and cannot be sent. The enumerations without a word at all
 * belong to class attributes, which the driver carries over to attributes of the instrument. The spellings GUASSIAN and
 * SOURCEGPS are published names and stay.
 * @{
 */

/** @name Values of ALC_RANGE */
/** @{ */
/** On the wire: `HIGH`. */
#define KVTD481X2C_VAL_ALC_RANGE_HIGH 0
/** On the wire: `LOW`. */
#define KVTD481X2C_VAL_ALC_RANGE_LOW 1
/** @} */

/** @name Values of ALC_SOURCE */
/** @{ */
/** On the wire: `INTernal`. */
#define KVTD481X2C_VAL_ALC_SOURCE_INTERNAL 0
/** Has no word on the wire. */
#define KVTD481X2C_VAL_ALC_SOURCE_EXTERNAL 1
/** @} */

/** @name Values of ALC_SOURCE_EX */
/** @{ */
/** On the wire: `FIXed`. */
#define KVTD481X2C_VAL_ALC_SOURCE_FIXED 1
/** On the wire: `DIODe`. */
#define KVTD481X2C_VAL_ALC_SOURCE_DETECTOR 2
/** On the wire: `PMETer`. */
#define KVTD481X2C_VAL_ALC_SOURCE_POWER_METER 3
/** @} */

/** @name Values of AM_EXTERNAL_COUPLING */
/** @{ */
/** On the wire: `AC`. */
#define KVTD481X2C_VAL_AM_EXTERNAL_COUPLING_AC 0
/** On the wire: `DC`. */
#define KVTD481X2C_VAL_AM_EXTERNAL_COUPLING_DC 1
/** @} */

/** @name Values of AM_MODE */
/** @{ */
/** On the wire: `LINear`. */
#define KVTD481X2C_VAL_AM_MODE_LINEAR 0
/** On the wire: `LOGarithmic`. */
#define KVTD481X2C_VAL_AM_MODE_LOGARITHMIC 1
/** @} */

/** @name Values of AM_SCALING */
/** @{ */
/** Has no word on the wire. */
#define KVTD481X2C_VAL_AM_SCALING_LINEAR 0
/** Has no word on the wire. */
#define KVTD481X2C_VAL_AM_SCALING_LOGARITHMIC 1
/** @} */

/** @name Values of DATA_FILE_SCOPE */
/** @{ */
/** On the wire: `USER`. */
#define KVTD481X2C_VAL_DATA_FILE_SCOPE_USER 0
/** On the wire: `SYSTem`. */
#define KVTD481X2C_VAL_DATA_FILE_SCOPE_SYSTEM 1
/** @} */

/** @name Values of FM_EXTERNAL_COUPLING */
/** @{ */
/** On the wire: `AC`. */
#define KVTD481X2C_VAL_FM_EXTERNAL_COUPLING_AC 0
/** On the wire: `DC`. */
#define KVTD481X2C_VAL_FM_EXTERNAL_COUPLING_DC 1
/** @} */

/** @name Values of FM_HIGH_PASS_FILTER */
/** @{ */
/** On the wire: `DC`. */
#define KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_DC 0
/** On the wire: `HP63`. */
#define KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_HP63 1
/** On the wire: `HP1K`. */
#define KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_HP1K 2
/** @} */

/** @name Values of FM_MODE */
/** @{ */
/** On the wire: `LOCKed`. */
#define KVTD481X2C_VAL_FM_MODE_LOCKED 0
/** On the wire: `UNLocked`. */
#define KVTD481X2C_VAL_FM_MODE_UNLOCKED 1
/** @} */

/** @name Values of FREQUENCY_MODE */
/** @{ */
/** On the wire: `FIXed`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_FIXED 0
/** On the wire: `SWEep`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP 1
/** On the wire: `LIST1`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST1 2
/** On the wire: `LIST2`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST2 3
/** On the wire: `LIST3`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST3 4
/** On the wire: `LIST4`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST4 5
/** On the wire: `LIST5`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST5 6
/** On the wire: `LIST6`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST6 7
/** On the wire: `LIST7`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST7 8
/** On the wire: `LIST8`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST8 9
/** On the wire: `LIST9`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST9 10
/** On the wire: `LIST10`. */
#define KVTD481X2C_VAL_FREQUENCY_MODE_LIST10 11
/** @} */

/** @name Values of FREQUENCY_PRESET */
/** @{ */
/** On the wire: `F0`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F0 0
/** On the wire: `F1`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F1 1
/** On the wire: `F2`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F2 2
/** On the wire: `F3`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F3 3
/** On the wire: `F4`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F4 4
/** On the wire: `F5`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F5 5
/** On the wire: `F6`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F6 6
/** On the wire: `F7`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F7 7
/** On the wire: `F8`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F8 8
/** On the wire: `F9`. */
#define KVTD481X2C_VAL_FREQUENCY_PRESET_F9 9
/** @} */

/** @name Values of FREQUENCY_RANGE */
/** @{ */
/** On the wire: `F1F2`. */
#define KVTD481X2C_VAL_FREQUENCY_RANGE_F1_F2 0
/** On the wire: `F3F4`. */
#define KVTD481X2C_VAL_FREQUENCY_RANGE_F3_F4 1
/** On the wire: `F5DF`. */
#define KVTD481X2C_VAL_FREQUENCY_RANGE_F5_DELTAF 2
/** On the wire: `F6DF`. */
#define KVTD481X2C_VAL_FREQUENCY_RANGE_F6_DELTAF 3
/** @} */

/** @name Values of HIGH_FREQUENCY_SOURCE */
/** @{ */
/** On the wire: `INTernal`. */
#define KVTD481X2C_VAL_HIGH_FREQUENCY_SOURCE_INTERNAL 0
/** On the wire: `EXTernal`. */
#define KVTD481X2C_VAL_HIGH_FREQUENCY_SOURCE_EXTERNAL 1
/** @} */

/** @name Values of INTERNAL_WAVEFORM */
/** @{ */
/** On the wire: `SINE`. */
#define KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE 0
/** On the wire: `GAUSsian`. */
#define KVTD481X2C_VAL_INTERNAL_WAVEFORM_GUASSIAN 1
/** On the wire: `RDOWn`. */
#define KVTD481X2C_VAL_INTERNAL_WAVEFORM_NEGATIVE_RAMP 2
/** On the wire: `RUP`. */
#define KVTD481X2C_VAL_INTERNAL_WAVEFORM_POSITIVE_RAMP 3
/** On the wire: `SQUare`. */
#define KVTD481X2C_VAL_INTERNAL_WAVEFORM_SQUARE 4
/** On the wire: `TRIangle`. */
#define KVTD481X2C_VAL_INTERNAL_WAVEFORM_TRIANGLE 5
/** On the wire: `UNIForm`. */
#define KVTD481X2C_VAL_INTERNAL_WAVEFORM_UNIFORM_NOISE 6
/** @} */

/** @name Values of LINE_TERMINATION */
/** @{ */
/** On the wire: `CRETurn`. */
#define KVTD481X2C_VAL_LINE_TERMINATION_CARRIAGE_RETURN 0
/** On the wire: `CRLFeed`. */
#define KVTD481X2C_VAL_LINE_TERMINATION_CARRIAGE_RETURN_LINE_FEED 1
/** On the wire: `LFEed`. */
#define KVTD481X2C_VAL_LINE_TERMINATION_LINE_FEED 2
/** @} */

/** @name Values of LIST_TRIGGER_MODE */
/** @{ */
/** On the wire: `SWEep`. */
#define KVTD481X2C_VAL_LIST_TRIGGER_MODE_SWEEP 0
/** On the wire: `POINt`. */
#define KVTD481X2C_VAL_LIST_TRIGGER_MODE_POINT 1
/** @} */

/** @name Values of LOW_FREQUENCY_SOURCE */
/** @{ */
/** On the wire: `INTernal`. */
#define KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_INTERNAL 0
/** On the wire: `IRUBidium`. */
#define KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_RUBIDIUM 1
/** On the wire: `GPPS`. */
#define KVTD481X2C_VAL_LOW_FREQUENCY_SOURCEGPS 2
/** On the wire: `EXTernal`. */
#define KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_EXTERNAL_10 3
/** On the wire: `EPPS`. */
#define KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_EXTERNAL_1PPS 4
/** @} */

/** @name Values of MODULATION_SOURCE */
/** @{ */
/** On the wire: `INTernal`. */
#define KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL 0
/** On the wire: `EXTernal`. */
#define KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL 1
/** @} */

/** @name Values of MULTIPLIED_SOURCE */
/** @{ */
/** On the wire: `INTernal`. */
#define KVTD481X2C_VAL_MULTIPLIED_SOURCE_INTERNAL 0
/** On the wire: `EXTernal`. */
#define KVTD481X2C_VAL_MULTIPLIED_SOURCE_EXTERNAL 1
/** @} */

/** @name Values of PM_EXTERNAL_COUPLING */
/** @{ */
/** On the wire: `AC`. */
#define KVTD481X2C_VAL_PM_EXTERNAL_COUPLING_AC 0
/** On the wire: `DC`. */
#define KVTD481X2C_VAL_PM_EXTERNAL_COUPLING_DC 1
/** @} */

/** @name Values of PM_MODE */
/** @{ */
/** On the wire: `MINimum`. */
#define KVTD481X2C_VAL_PM_MODE_NARROW 0
/** On the wire: `MAXimum`. */
#define KVTD481X2C_VAL_PM_MODE_WIDE 1
/** @} */

/** @name Values of POWER_LEVEL_PRESET */
/** @{ */
/** On the wire: `L0`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L0 0
/** On the wire: `L1`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L1 1
/** On the wire: `L2`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L2 2
/** On the wire: `L3`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L3 3
/** On the wire: `L4`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L4 4
/** On the wire: `L5`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L5 5
/** On the wire: `L6`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L6 6
/** On the wire: `L7`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L7 7
/** On the wire: `L8`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L8 8
/** On the wire: `L9`. */
#define KVTD481X2C_VAL_POWER_LEVEL_PRESET_L9 9
/** @} */

/** @name Values of POWER_MODE */
/** @{ */
/** On the wire: `FIXed`. */
#define KVTD481X2C_VAL_POWER_MODE_FIXED 0
/** On the wire: `SWEep2`. */
#define KVTD481X2C_VAL_POWER_MODE_SWEEP 1
/** On the wire: `LIST1`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST1 2
/** On the wire: `LIST2`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST2 3
/** On the wire: `LIST3`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST3 4
/** On the wire: `LIST4`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST4 5
/** On the wire: `LIST5`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST5 6
/** On the wire: `LIST6`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST6 7
/** On the wire: `LIST7`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST7 8
/** On the wire: `LIST8`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST8 9
/** On the wire: `LIST9`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST9 10
/** On the wire: `LIST10`. */
#define KVTD481X2C_VAL_POWER_MODE_LIST10 11
/** @} */

/** @name Values of POWER_SWEEP_RANGE */
/** @{ */
/** On the wire: `L1L2`. */
#define KVTD481X2C_VAL_POWER_SWEEP_RANGE_L1_L2 0
/** On the wire: `L3L4`. */
#define KVTD481X2C_VAL_POWER_SWEEP_RANGE_L3_L4 1
/** On the wire: `L5L6`. */
#define KVTD481X2C_VAL_POWER_SWEEP_RANGE_L5_L6 2
/** On the wire: `L7L8`. */
#define KVTD481X2C_VAL_POWER_SWEEP_RANGE_L7_L8 3
/** On the wire: `L9L0`. */
#define KVTD481X2C_VAL_POWER_SWEEP_RANGE_L9_L0 4
/** @} */

/** @name Values of PULSE_EXTERNAL_TRIGGER_SLOPE */
/** @{ */
/** On the wire: `POSitive`. */
#define KVTD481X2C_VAL_PULSE_EXTERNAL_TRIGGER_SLOPE_POSITIVE 0
/** On the wire: `NEGative`. */
#define KVTD481X2C_VAL_PULSE_EXTERNAL_TRIGGER_SLOPE_NEGATIVE 1
/** @} */

/** @name Values of PULSE_MODULATION_EXTERNAL_POLARITY */
/** @{ */
/** On the wire: `NORMal`. */
#define KVTD481X2C_VAL_PULSE_MODULATION_EXTERNAL_POLARITY_NORMAL 0
/** On the wire: `INVerted`. */
#define KVTD481X2C_VAL_PULSE_MODULATION_EXTERNAL_POLARITY_INVERSE 1
/** @} */

/** @name Values of PULSE_MODULATION_SOURCE */
/** @{ */
/** Has no word on the wire. */
#define KVTD481X2C_VAL_PULSE_MODULATION_SOURCE_INTERNAL 0
/** Has no word on the wire. */
#define KVTD481X2C_VAL_PULSE_MODULATION_SOURCE_EXTERNAL 1
/** @} */

/** @name Values of PULSE_OUTPUT_POLARITY */
/** @{ */
/** On the wire: `NORMal`. */
#define KVTD481X2C_VAL_PULSE_OUTPUT_POLARITY_NORMAL 0
/** On the wire: `INVerted`. */
#define KVTD481X2C_VAL_PULSE_OUTPUT_POLARITY_INVERSE 1
/** @} */

/** @name Values of PULSE_TRIGGER_SOURCE */
/** @{ */
/** Has no word on the wire. */
#define KVTD481X2C_VAL_PULSE_TRIGGER_SOURCE_INTERNAL 0
/** Has no word on the wire. */
#define KVTD481X2C_VAL_PULSE_TRIGGER_SOURCE_EXTERNAL 1
/** @} */

/** @name Values of REFERENCE_OSCILLATOR_SOURCE */
/** @{ */
/** On the wire: `REF EXT 1600`. */
#define KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_1600 0
/** On the wire: `REF EXT 100`. */
#define KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_100 1
/** On the wire: `REF EXT 1PPS`. */
#define KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_1PPS 2
/** On the wire: `REF EXT 10`. */
#define KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_10 3
/** On the wire: `REF INT GPS`. */
#define KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_GPS 4
/** On the wire: `REF INT RB`. */
#define KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_RUBIDIUM_10 5
/** On the wire: `REF INT 10`. */
#define KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_FREERUN_10 6
/** On the wire: `REF INT 100`. */
#define KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_FREERUN_100 7
/** @} */

/** @name Values of SWEEP_DIRECTION */
/** @{ */
/** On the wire: `UP`. */
#define KVTD481X2C_VAL_SWEEP_DIRECTION_UP 0
/** On the wire: `DOWN`. */
#define KVTD481X2C_VAL_SWEEP_DIRECTION_DOWN 1
/** @} */

/** @name Values of SWEEP_GENERATION */
/** @{ */
/** On the wire: `ANALog`. */
#define KVTD481X2C_VAL_SWEEP_GENERATION_ANALOG 0
/** On the wire: `STEPped`. */
#define KVTD481X2C_VAL_SWEEP_GENERATION_STEPPED 1
/** @} */

/** @name Values of SWEEP_MODE */
/** @{ */
/** Has no word on the wire. */
#define KVTD481X2C_VAL_SWEEP_MODE_NONE 0
/** Has no word on the wire. */
#define KVTD481X2C_VAL_SWEEP_MODE_FREQUENCY_SWEEP 1
/** Has no word on the wire. */
#define KVTD481X2C_VAL_SWEEP_MODE_POWER_SWEEP 2
/** Has no word on the wire. */
#define KVTD481X2C_VAL_SWEEP_MODE_FREQUENCY_STEP 3
/** Has no word on the wire. */
#define KVTD481X2C_VAL_SWEEP_MODE_POWER_STEP 4
/** Has no word on the wire. */
#define KVTD481X2C_VAL_SWEEP_MODE_LIST 5
/** @} */

/** @name Values of SWEEP_SPACING */
/** @{ */
/** On the wire: `LINear`. */
#define KVTD481X2C_VAL_SWEEP_SPACING_LINEAR 0
/** On the wire: `LOGarithmic`. */
#define KVTD481X2C_VAL_SWEEP_SPACING_LOGARITHMIC 1
/** @} */

/** @name Values of SWEEP_TRIGGER_SOURCE */
/** @{ */
/** On the wire: `IMMediate`. */
#define KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_IMMEDIATE 0
/** On the wire: `EXTernal`. */
#define KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_EXTERNAL 1
/** On the wire: `BUS`. */
#define KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_SOFTWARE 2
/** @} */

/** @name Values of TIME_SYNC_MODE */
/** @{ */
/** On the wire: `AUTO`. */
#define KVTD481X2C_VAL_TIME_SYNC_MODE_AUTO 0
/** On the wire: `MANual`. */
#define KVTD481X2C_VAL_TIME_SYNC_MODE_MANUAL 1
/** @} */

/** @name Values of TIME_SYNC_STATUS */
/** @{ */
/** On the wire: `INT`. */
#define KVTD481X2C_VAL_TIME_SYNC_STATUS_INTERNET 0
/** On the wire: `GPS`. */
#define KVTD481X2C_VAL_TIME_SYNC_STATUS_GPS 1
/** On the wire: `NONE`. */
#define KVTD481X2C_VAL_TIME_SYNC_STATUS_NONE 2
/** On the wire: `NA`. */
#define KVTD481X2C_VAL_TIME_SYNC_STATUS_NOT_AVAILABLE 3
/** @} */

/** @name Values of TRIGGER_MODE */
/** @{ */
/** On the wire: `FREerun`. */
#define KVTD481X2C_VAL_TRIGGER_MODE_FREERUN 0
/** On the wire: `GATed`. */
#define KVTD481X2C_VAL_TRIGGER_MODE_GATED 1
/** On the wire: `DELayed`. */
#define KVTD481X2C_VAL_TRIGGER_MODE_DELAYED 2
/** On the wire: `TRIGgered`. */
#define KVTD481X2C_VAL_TRIGGER_MODE_TRIGGERED 3
/** On the wire: `TRGDelay`. */
#define KVTD481X2C_VAL_TRIGGER_MODE_TRIGGER_DELAYED 4
/** On the wire: `COMPosite`. */
#define KVTD481X2C_VAL_TRIGGER_MODE_COMPOSITE 5
/** @} */

/** @name Values of TRIGGER_SOURCE */
/** @{ */
/** On the wire: `BUS`. */
#define KVTD481X2C_VAL_TRIGGER_SOURCE_SOFTWARE 0
/** On the wire: `IMMediate`. */
#define KVTD481X2C_VAL_TRIGGER_SOURCE_IMMEDIATE 1
/** On the wire: `EXTernal`. */
#define KVTD481X2C_VAL_TRIGGER_SOURCE_EXTERNAL 2
/** @} */

/** @name Values of TRIGGER_TYPE */
/** @{ */
/** On the wire: `AUTO`. */
#define KVTD481X2C_VAL_TRIGGER_TYPE_AUTO 0
/** On the wire: `SINGle`. */
#define KVTD481X2C_VAL_TRIGGER_TYPE_SINGLE 1
/** On the wire: `EXTernal`. */
#define KVTD481X2C_VAL_TRIGGER_TYPE_EXTERNAL 2
/** On the wire: `MANual`. */
#define KVTD481X2C_VAL_TRIGGER_TYPE_MANUAL 3
/** On the wire: `INACtive`. */
#define KVTD481X2C_VAL_TRIGGER_TYPE_INACTIVE 4
/** @} */

/** @} */

/**
 * @defgroup errors Errors
 *
 * Every exported function returns a ViStatus: 0 or a positive number for success, a negative number for failure. The
 * codes below are the driver's own. A status of the VISA library passes through unchanged, records no text and is not
 * in this table: VISA explains it with viStatusDesc.
 *
 * A text is a format: its placeholders are filled when the error is raised, and where more can be said, two blanks and
 * a further sentence follow. Some codes are never raised by this driver and stand here so that KVTD481X2C_error_message
 * can explain them. The filled text of a session's last error is handed out by KVTD481X2C_GetError.
 *
 * The driver checks no ranges. What the instrument refuses becomes visible in its event status register, which is asked
 * after each command only while KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS is on; KVTD481X2C_error_query then reads what
 * the instrument has to say.
 * @{
 */

/** `Failure cannot recover.` */
#define KVTD481X2C_ERROR_CANNOT_RECOVER ((ViStatus)0xBFFA0000)

/** `Instrument error detected.  Use ErrorQuery() to determine the error(s).` */
#define KVTD481X2C_ERROR_INSTRUMENT_STATUS ((ViStatus)0xBFFA0001)

/** `Cannot open file.` */
#define KVTD481X2C_ERROR_CANNOT_OPEN_FILE ((ViStatus)0xBFFA0002)

/** `Error reading file.` */
#define KVTD481X2C_ERROR_READING_FILE ((ViStatus)0xBFFA0003)

/** `Error writing file.` */
#define KVTD481X2C_ERROR_WRITING_FILE ((ViStatus)0xBFFA0004)

/** `The pathname is invalid.` */
#define KVTD481X2C_ERROR_INVALID_PATHNAME ((ViStatus)0xBFFA000B)

/** `Attribute ID '%s' not recognized.` */
#define KVTD481X2C_ERROR_INVALID_ATTRIBUTE ((ViStatus)0xBFFA000C)

/** `Attribute '%s' is read-only.` */
#define KVTD481X2C_ERROR_ATTR_NOT_WRITABLE ((ViStatus)0xBFFA000D)

/** `Attribute '%s' is write-only.` */
#define KVTD481X2C_ERROR_ATTR_NOT_READABLE ((ViStatus)0xBFFA000E)

/** `Invalid value '%s' for function '%s', parameter '%s'.` */
#define KVTD481X2C_ERROR_INVALID_VALUE ((ViStatus)0xBFFA0010)

/** `Does not support this class-compliant feature: function '%s'` */
#define KVTD481X2C_ERROR_FUNCTION_NOT_SUPPORTED ((ViStatus)0xBFFA0011)

/** `Does not support this class-compliant feature: attribute '%s'.` */
#define KVTD481X2C_ERROR_ATTRIBUTE_NOT_SUPPORTED ((ViStatus)0xBFFA0012)

/**
 * `Does not support this class-compliant feature:  Enumeration value '%s' passed as the value for parameter '%s' in
 * function '%s'.`
 */
#define KVTD481X2C_ERROR_VALUE_NOT_SUPPORTED ((ViStatus)0xBFFA0013)

/** `%sAttribute%s called for attribute '%s' of type '%s'.` */
#define KVTD481X2C_ERROR_TYPES_DO_NOT_MATCH ((ViStatus)0xBFFA0015)

/** `A connection to the instrument has not been established.` */
#define KVTD481X2C_ERROR_NOT_INITIALIZED ((ViStatus)0xBFFA001D)

/** `Unknown channel name.` */
#define KVTD481X2C_ERROR_UNKNOWN_CHANNEL_NAME ((ViStatus)0xBFFA0020)

/** `Too many files are open.` */
#define KVTD481X2C_ERROR_TOO_MANY_OPEN_FILES ((ViStatus)0xBFFA0023)

/** `A channel name is required.` */
#define KVTD481X2C_ERROR_CHANNEL_NAME_REQUIRED ((ViStatus)0xBFFA0044)

/** `The option string is missing an option name.` */
#define KVTD481X2C_ERROR_MISSING_OPTION_NAME ((ViStatus)0xBFFA0049)

/** `The option string is missing an option value.` */
#define KVTD481X2C_ERROR_MISSING_OPTION_VALUE ((ViStatus)0xBFFA004A)

/** `The '%s' name in the option string is unknown.` */
#define KVTD481X2C_ERROR_BAD_OPTION_NAME ((ViStatus)0xBFFA004B)

/** `The '%s' value in the option string is unknown.` */
#define KVTD481X2C_ERROR_BAD_OPTION_VALUE ((ViStatus)0xBFFA004C)

/** `Could not allocate necessary memory.` */
#define KVTD481X2C_ERROR_OUT_OF_MEMORY ((ViStatus)0xBFFA0056)

/** `Operation in progress.` */
#define KVTD481X2C_ERROR_OPERATION_PENDING ((ViStatus)0xBFFA0057)

/** `Null pointer passed for function '%s', parameter '%s'.` */
#define KVTD481X2C_ERROR_NULL_POINTER ((ViStatus)0xBFFA0058)

/** `Unexpected response from instrument.` */
#define KVTD481X2C_ERROR_UNEXPECTED_RESPONSE ((ViStatus)0xBFFA0059)

/** `File not found.` */
#define KVTD481X2C_ERROR_FILE_NOT_FOUND ((ViStatus)0xBFFA005B)

/** `Invalid file format.` */
#define KVTD481X2C_ERROR_INVALID_FILE_FORMAT ((ViStatus)0xBFFA005C)

/** `The instrument status is not available.` */
#define KVTD481X2C_ERROR_STATUS_NOT_AVAILABLE ((ViStatus)0xBFFA005D)

/** `Instrument ID query failed.` */
#define KVTD481X2C_ERROR_ID_QUERY_FAILED ((ViStatus)0xBFFA005E)

/** `Instrument reset failed.` */
#define KVTD481X2C_ERROR_RESET_FAILED ((ViStatus)0xBFFA005F)

/** `Unknown resource.` */
#define KVTD481X2C_ERROR_RESOURCE_UNKNOWN ((ViStatus)0xBFFA0060)

/** `The driver is already initialized.` */
#define KVTD481X2C_ERROR_ALREADY_INITIALIZED ((ViStatus)0xBFFA0061)

/** `The simulation state cannot be changed.` */
#define KVTD481X2C_ERROR_CANNOT_CHANGE_SIMULATION_STATE ((ViStatus)0xBFFA0062)

/** `The number of levels in the selector is not valid for the '%s' repeated capability.` */
#define KVTD481X2C_ERROR_INVALID_NUMBER_OF_LEVELS_IN_SELECTOR ((ViStatus)0xBFFA0063)

/** `The range '%s' is not valid for the repeated capability '%s'.` */
#define KVTD481X2C_ERROR_INVALID_RANGE_IN_SELECTOR ((ViStatus)0xBFFA0064)

/** `Unknown name in selector.` */
#define KVTD481X2C_ERROR_UNKNOWN_NAME_IN_SELECTOR ((ViStatus)0xBFFA0065)

/** `The repeated capability selector is badly-formed.` */
#define KVTD481X2C_ERROR_BADLY_FORMED_SELECTOR ((ViStatus)0xBFFA0066)

/** `Unknown physical repeated capability selector.` */
#define KVTD481X2C_ERROR_UNKNOWN_PHYSICAL_IDENTIFIER ((ViStatus)0xBFFA0067)

/** `The trigger source is not set to software trigger.` */
#define KVTD481X2C_ERROR_TRIGGER_NOT_SOFTWARE ((ViStatus)0xBFFA1001)

/** `Invalid session handle.` */
#define KVTD481X2C_ERROR_INVALID_SESSION_HANDLE ((ViStatus)0xBFFA1190)

/** `Maximum time exceeded before the operation completed.` */
#define KVTD481X2C_ERROR_MAX_TIME_EXCEEDED ((ViStatus)0xBFFA2003)

/** `The selected list is not defined.` */
#define KVTD481X2C_ERROR_LIST_UNKNOWN ((ViStatus)0xBFFA200A)

/** `I/O error.` */
#define KVTD481X2C_ERROR_IO_GENERAL ((ViStatus)0xBFFA4214)

/** `I/O timeout error.` */
#define KVTD481X2C_ERROR_IO_TIMEOUT ((ViStatus)0xBFFA4215)

/** `ID Query is not supported by this instrument.` */
#define KVTD481X2C_WARN_ID_QUERY_NOT_SUPPORTED ((ViStatus)0x3FFA0065)

/** `Reset is not supported by this instrument.` */
#define KVTD481X2C_WARN_RESET_NOT_SUPPORTED ((ViStatus)0x3FFA0066)

/** `Self test is not supported by this instrument.` */
#define KVTD481X2C_WARN_SELF_TEST_NOT_SUPPORTED ((ViStatus)0x3FFA0067)

/** `Error query is not supported by this instrument.` */
#define KVTD481X2C_WARN_ERROR_QUERY_NOT_SUPPORTED ((ViStatus)0x3FFA0068)

/** `Firmware revision query is not supported by this instrument.` */
#define KVTD481X2C_WARN_REVISION_QUERY_NOT_SUPPORTED ((ViStatus)0x3FFA0069)

/**
 * Forgets the last error recorded for a session.
 *
 * Takes no session lock. With Vi 0 the last error of the calling thread is forgotten.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: the same; the instrument is not involved.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ClearError(ViSession Vi);

/**
 * Hands out the last error recorded for a session and clears it.
 *
 * Takes no session lock. With Vi 0 the last error of the calling thread is handed out, which is where the text of a
 * failed initialisation is found. A buffer size of 0 asks for the size needed and clears nothing, a negative size
 * copies the whole text, and a size too small cuts the text and returns the size needed.
 *
 * @param Vi           Handle from KVTD481X2C_InitWithOptions.
 * @param Code         The recorded status. After a failure: unchanged, or what had arrived.
 * @param BufferSize   Size of Description in characters, terminator included.
 * @param Description  The recorded text, at most 1023 characters. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: the same; the instrument is not involved.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetError(ViSession Vi, ViStatus* Code, ViInt32 BufferSize,
                                                     ViChar Description[]);

/**
 * Gives the text of one of the driver's status codes, placeholders included.
 *
 * Works without a session: Vi may be 0. Status codes of the VISA library are refused, VISA explains those. A refused
 * code leaves the buffer as it was, and with Vi 0 nothing is recorded.
 *
 * @param Vi            Handle from KVTD481X2C_InitWithOptions.
 * @param ErrorCode     The status to explain.
 * @param ErrorMessage  The text. A buffer of 256 characters. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  ErrorMessage is null
 *         0xBFFA0010  the driver does not define the code
 *
 * Simulated: the same; the instrument is not involved.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_error_message(ViSession Vi, ViStatus ErrorCode, ViChar ErrorMessage[256]);

/**
 * Takes the oldest entry out of the instrument's error queue.
 *
 * The answer loses its white space and quotes, and is cut at its first comma into code and message. Call it until the
 * code is 0 to empty the queue. No status check follows, since the query itself is the check. After a failure both
 * outputs are as they were. A code that is not a number leaves the call as the C++ exception of the conversion.
 *
 * @param Vi            Handle from KVTD481X2C_InitWithOptions.
 * @param ErrorCode     The instrument's error number; 0 when the queue is empty. After a failure: unchanged, or what
 *                      had arrived.
 * @param ErrorMessage  The instrument's text. A buffer of 256 characters. After a failure: unchanged, or what had
 *                      arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  ErrorCode or ErrorMessage is null; found before the session is locked
 *         0xBFFA0059  the answer has no comma
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:ERR?`.
 * Simulated: gives the code 0 and "No error." and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_error_query(ViSession Vi, ViInt32* ErrorCode, ViChar ErrorMessage[256]);

/** @} */

/**
 * @defgroup frequency Frequency
 *
 * The carrier: its frequency, the mode that says what moves it, a multiplier, a step size, and ten preset frequencies
 * with a selection among them. Frequencies are in hertz; the driver keeps none, computes none and limits none.
 *
 * The frequency mode is what KVTD481X2C_ATTR_SWEEP_MODE and KVTD481X2C_ATTR_LIST_SELECTED_NAME write through, and it is
 * open to the caller as well. Nothing keeps the three in step but that each reads the instrument.
 * @{
 */

/**
 * What drives the carrier: a fixed value, the sweep, or one of the ten lists. ViInt32, enumeration FREQUENCY_MODE, read
 * and write.
 */
#define KVTD481X2C_ATTR_FREQUENCY_MODE 1150019

/** Factor between the synthesised and the displayed frequency. ViReal64, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_MULTIPLIER 1150020

/** Step by which the frequency is raised and lowered in the fixed mode. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_CW_FREQUENCY_STEP 1150022

/** Which of the ten preset frequencies is in use. ViInt32, enumeration FREQUENCY_PRESET, read and write. */
#define KVTD481X2C_ATTR_SELECTED_PRESET_FREQUENCY 1150023

/** Preset frequency F0. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F0 1150024

/** Preset frequency F1. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F1 1150025

/** Preset frequency F2. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F2 1150026

/** Preset frequency F3. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F3 1150027

/** Preset frequency F4. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F4 1150028

/** Preset frequency F5. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F5 1150029

/** Preset frequency F6. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F6 1150030

/** Preset frequency F7. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F7 1150031

/** Preset frequency F8. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F8 1150032

/** Preset frequency F9. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_PRESET_F9 1150033

/** Frequency of the carrier in the fixed mode. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY 1250001

/**
 * Sets the frequency and the power level of the carrier.
 *
 * The power level is not touched when the frequency fails, and the frequency stays as sent when the power level fails.
 * The session stays locked across both.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param Frequency   The frequency in hertz.
 * @param PowerLevel  The power level in dBm.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_FREQUENCY, KVTD481X2C_ATTR_POWER_LEVEL, in this order, up to the first failure.
 * Simulated: fails with VISA's status: both attributes make their VISA call.
 * @see KVTD481X2C_ATTR_FREQUENCY, KVTD481X2C_ATTR_POWER_LEVEL
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureRF(ViSession Vi, ViReal64 Frequency, ViReal64 PowerLevel);

/**
 * Reads KVTD481X2C_ATTR_CW_FREQUENCY_STEP: step by which the frequency is raised and lowered in the fixed mode.
 *
 * The step of a stepped sweep is KVTD481X2C_ATTR_FREQUENCY_STEP_SIZE.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:STEP?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetCWFrequencyStep, KVTD481X2C_ATTR_CW_FREQUENCY_STEP
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetCWFrequencyStep(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_MODE: what drives the carrier: a fixed value, the sweep, or one of the ten lists.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_FREQUENCY_MODE_FIXED, KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST1, KVTD481X2C_VAL_FREQUENCY_MODE_LIST2,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST3, KVTD481X2C_VAL_FREQUENCY_MODE_LIST4,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST5, KVTD481X2C_VAL_FREQUENCY_MODE_LIST6,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST7, KVTD481X2C_VAL_FREQUENCY_MODE_LIST8,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST9 or KVTD481X2C_VAL_FREQUENCY_MODE_LIST10. After a failure: -1 with
 *               0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:MODE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_FREQUENCY_MODE_FIXED.
 * @see KVTD481X2C_SetFrequencyMode, KVTD481X2C_ATTR_FREQUENCY_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyMode(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_MULTIPLIER: factor between the synthesised and the displayed frequency.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. A plain number. After a failure: unchanged, but for 0xBFFA0001, which is found
 *               after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:MULT?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyMultiplier, KVTD481X2C_ATTR_FREQUENCY_MULTIPLIER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyMultiplier(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F0: preset frequency F0.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F0?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF0, KVTD481X2C_ATTR_FREQUENCY_PRESET_F0
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF0(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F1: preset frequency F1.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F1?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF1, KVTD481X2C_ATTR_FREQUENCY_PRESET_F1
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF1(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F2: preset frequency F2.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F2?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF2, KVTD481X2C_ATTR_FREQUENCY_PRESET_F2
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF2(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F3: preset frequency F3.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F3?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF3, KVTD481X2C_ATTR_FREQUENCY_PRESET_F3
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF3(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F4: preset frequency F4.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F4?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF4, KVTD481X2C_ATTR_FREQUENCY_PRESET_F4
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF4(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F5: preset frequency F5.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F5?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF5, KVTD481X2C_ATTR_FREQUENCY_PRESET_F5
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF5(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F6: preset frequency F6.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F6?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF6, KVTD481X2C_ATTR_FREQUENCY_PRESET_F6
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF6(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F7: preset frequency F7.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F7?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF7, KVTD481X2C_ATTR_FREQUENCY_PRESET_F7
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF7(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F8: preset frequency F8.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F8?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF8, KVTD481X2C_ATTR_FREQUENCY_PRESET_F8
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF8(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_PRESET_F9: preset frequency F9.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In Hz. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:F9?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencyPresetF9, KVTD481X2C_ATTR_FREQUENCY_PRESET_F9
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencyPresetF9(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_SELECTED_PRESET_FREQUENCY: which of the ten preset frequencies is in use.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_FREQUENCY_PRESET_F0, KVTD481X2C_VAL_FREQUENCY_PRESET_F1,
 *               KVTD481X2C_VAL_FREQUENCY_PRESET_F2, KVTD481X2C_VAL_FREQUENCY_PRESET_F3,
 *               KVTD481X2C_VAL_FREQUENCY_PRESET_F4, KVTD481X2C_VAL_FREQUENCY_PRESET_F5,
 *               KVTD481X2C_VAL_FREQUENCY_PRESET_F6, KVTD481X2C_VAL_FREQUENCY_PRESET_F7,
 *               KVTD481X2C_VAL_FREQUENCY_PRESET_F8 or KVTD481X2C_VAL_FREQUENCY_PRESET_F9. After a failure: -1 with
 *               0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FREQ:SEL?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_FREQUENCY_PRESET_F0.
 * @see KVTD481X2C_SetSelectedPresetFrequency, KVTD481X2C_ATTR_SELECTED_PRESET_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetSelectedPresetFrequency(ViSession Vi, ViInt32* Value);

/**
 * Writes KVTD481X2C_ATTR_CW_FREQUENCY_STEP: step by which the frequency is raised and lowered in the fixed mode.
 *
 * The step of a stepped sweep is KVTD481X2C_ATTR_FREQUENCY_STEP_SIZE.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:STEP <Value> HZ`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetCWFrequencyStep, KVTD481X2C_ATTR_CW_FREQUENCY_STEP
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetCWFrequencyStep(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_MODE: what drives the carrier: a fixed value, the sweep, or one of the ten lists.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_FREQUENCY_MODE_FIXED, KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST1, KVTD481X2C_VAL_FREQUENCY_MODE_LIST2,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST3, KVTD481X2C_VAL_FREQUENCY_MODE_LIST4,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST5, KVTD481X2C_VAL_FREQUENCY_MODE_LIST6,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST7, KVTD481X2C_VAL_FREQUENCY_MODE_LIST8,
 *               KVTD481X2C_VAL_FREQUENCY_MODE_LIST9 or KVTD481X2C_VAL_FREQUENCY_MODE_LIST10.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:MODE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyMode, KVTD481X2C_ATTR_FREQUENCY_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyMode(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_MULTIPLIER: factor between the synthesised and the displayed frequency.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. A plain number. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:MULT <Value> HZ`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyMultiplier, KVTD481X2C_ATTR_FREQUENCY_MULTIPLIER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyMultiplier(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F0: preset frequency F0.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F0 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF0, KVTD481X2C_ATTR_FREQUENCY_PRESET_F0
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF0(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F1: preset frequency F1.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F1 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF1, KVTD481X2C_ATTR_FREQUENCY_PRESET_F1
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF1(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F2: preset frequency F2.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F2 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF2, KVTD481X2C_ATTR_FREQUENCY_PRESET_F2
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF2(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F3: preset frequency F3.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F3 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF3, KVTD481X2C_ATTR_FREQUENCY_PRESET_F3
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF3(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F4: preset frequency F4.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F4 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF4, KVTD481X2C_ATTR_FREQUENCY_PRESET_F4
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF4(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F5: preset frequency F5.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F5 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF5, KVTD481X2C_ATTR_FREQUENCY_PRESET_F5
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF5(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F6: preset frequency F6.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F6 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF6, KVTD481X2C_ATTR_FREQUENCY_PRESET_F6
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF6(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F7: preset frequency F7.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F7 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF7, KVTD481X2C_ATTR_FREQUENCY_PRESET_F7
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF7(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F8: preset frequency F8.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F8 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF8, KVTD481X2C_ATTR_FREQUENCY_PRESET_F8
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF8(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_PRESET_F9: preset frequency F9.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:F9 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencyPresetF9, KVTD481X2C_ATTR_FREQUENCY_PRESET_F9
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencyPresetF9(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_SELECTED_PRESET_FREQUENCY: which of the ten preset frequencies is in use.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_FREQUENCY_PRESET_F0, KVTD481X2C_VAL_FREQUENCY_PRESET_F1,
 *               KVTD481X2C_VAL_FREQUENCY_PRESET_F2, KVTD481X2C_VAL_FREQUENCY_PRESET_F3,
 *               KVTD481X2C_VAL_FREQUENCY_PRESET_F4, KVTD481X2C_VAL_FREQUENCY_PRESET_F5,
 *               KVTD481X2C_VAL_FREQUENCY_PRESET_F6, KVTD481X2C_VAL_FREQUENCY_PRESET_F7,
 *               KVTD481X2C_VAL_FREQUENCY_PRESET_F8 or KVTD481X2C_VAL_FREQUENCY_PRESET_F9.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:SEL <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetSelectedPresetFrequency, KVTD481X2C_ATTR_SELECTED_PRESET_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetSelectedPresetFrequency(ViSession Vi, ViInt32 Value);

/** @} */

/**
 * @defgroup power Power
 *
 * The output side: the level of the carrier, the output switch, the power mode that mirrors the frequency mode, ten
 * preset levels, and what stands around the level: automatic leveling, attenuator, limit, display offset and
 * protection.
 *
 * Levels are in dBm: opening a session sets that unit on the instrument, and levels are sent as plain numbers.
 *
 * The class speaks of leveling as a switch, a source and a bandwidth. The instrument has a single leveling source, one
 * of whose values is no leveling at all, so KVTD481X2C_ATTR_ALC_ENABLED and KVTD481X2C_ATTR_ALC_SOURCE are two views of
 * KVTD481X2C_ATTR_ALC_SOURCE_EX, and there is no bandwidth.
 * @{
 */

/** Setting of the converter that drives the level when there is no leveling. ViInt32, read and write. */
#define KVTD481X2C_ATTR_POWER_DAC_LEVEL 1150101

/** Difference between the displayed level and the level at the output. ViReal64, dB, read and write. */
#define KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET 1150102

/** Whether the display offset is in use. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET_ENABLED 1150103

/** Whether the power limit is in use. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_POWER_LIMIT_ENABLED 1150105

/**
 * What drives the power level: a fixed value, the sweep, or one of the ten lists. ViInt32, enumeration POWER_MODE, read
 * and write.
 */
#define KVTD481X2C_ATTR_POWER_MODE 1150106

/** Which of the ten preset power levels is in use. ViInt32, enumeration POWER_LEVEL_PRESET, read and write. */
#define KVTD481X2C_ATTR_SELECTED_POWER_PRESET_LEVEL 1150107

/** Step by which the power level is raised and lowered in the fixed mode. ViReal64, dB, read and write. */
#define KVTD481X2C_ATTR_POWER_STEP 1150108

/** Whether the protection of the output has tripped. ViBoolean, read. */
#define KVTD481X2C_ATTR_POWER_PROTECTION_TRIPPED 1150109

/** Attenuation of the step attenuator. ViReal64, dB, read and write. */
#define KVTD481X2C_ATTR_POWER_ATTENUATION 1150110

/** Power range of the output stage when it is chosen by hand. ViInt32, enumeration ALC_RANGE, read and write. */
#define KVTD481X2C_ATTR_POWER_MANUAL_RANGE 1150111

/**
 * Where automatic leveling takes its reading from; fixed is no leveling. ViInt32, enumeration ALC_SOURCE_EX, read and
 * write.
 */
#define KVTD481X2C_ATTR_ALC_SOURCE_EX 1150112

/** Whether the instrument chooses the attenuation of the step attenuator. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_POWER_STEP_ATTENUATOR_ENABLED 1150113

/** Preset power level L0. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L0 1150114

/** Preset power level L1. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L1 1150115

/** Preset power level L2. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L2 1150116

/** Preset power level L3. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L3 1150117

/** Preset power level L4. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L4 1150118

/** Preset power level L5. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L5 1150119

/** Preset power level L6. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L6 1150120

/** Preset power level L7. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L7 1150121

/** Preset power level L8. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L8 1150122

/** Preset power level L9. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_PRESET_L9 1150123

/** Whether the output is blanked while the instrument changes its settings. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_RF_OUTPUT_BLANKING_ENABLED 1150141

/** Impedance of the RF output. ViReal64, ohm, read. */
#define KVTD481X2C_ATTR_RF_OUTPUT_IMPEDANCE 1150143

/** Highest level that the instrument will put out while the limit is in use. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_LIMIT 1150178

/** Power level of the carrier in the fixed mode. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_LEVEL 1250002

/** Whether the level is held by automatic leveling. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_ALC_ENABLED 1250003

/** Whether the RF output is on. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_OUTPUT_ENABLED 1250004

/**
 * Where automatic leveling takes its reading from, in the terms of the class. ViInt32, enumeration ALC_SOURCE, read and
 * write.
 */
#define KVTD481X2C_ATTR_ALC_SOURCE 1250301

/** Bandwidth of automatic leveling, which the instrument does not have. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_ALC_BANDWIDTH 1250302

/**
 * Clears the tripped protection of the output.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:PROT:CLE`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ClearPowerProtection(ViSession Vi);

/**
 * Sets the leveling source, and then fails, since the instrument has no leveling bandwidth.
 *
 * A good source is set and stays set. A caller who wants just that uses KVTD481X2C_ATTR_ALC_SOURCE or
 * KVTD481X2C_SetALCSourceEx.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param Source     A value of KVTD481X2C_ATTR_ALC_SOURCE.
 * @param Bandwidth  Not used.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0012  always, once the source is set
 *         0xBFFA0013  the source is neither internal nor external; nothing is sent
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_ALC_SOURCE, KVTD481X2C_ATTR_ALC_BANDWIDTH, in this order, up to the first failure.
 * Simulated: sets the stored source, and fails in the same way.
 * @see KVTD481X2C_ATTR_ALC_SOURCE, KVTD481X2C_ATTR_ALC_BANDWIDTH
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureALC(ViSession Vi, ViInt32 Source, ViReal64 Bandwidth);

/**
 * Switches automatic leveling on or off.
 *
 * @param Vi       Handle from KVTD481X2C_InitWithOptions.
 * @param Enabled  VI_TRUE switches leveling on, VI_FALSE off.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_ALC_ENABLED.
 * Simulated: sets the stored source; nothing is sent.
 * @see KVTD481X2C_ATTR_ALC_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureALCEnabled(ViSession Vi, ViBoolean Enabled);

/**
 * Switches the RF output on or off.
 *
 * @param Vi       Handle from KVTD481X2C_InitWithOptions.
 * @param Enabled  VI_TRUE switches the output on.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_OUTPUT_ENABLED.
 * Simulated: fails with VISA's status: the attribute makes its VISA call.
 * @see KVTD481X2C_ATTR_OUTPUT_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureOutputEnabled(ViSession Vi, ViBoolean Enabled);

/**
 * Reads KVTD481X2C_ATTR_ALC_SOURCE_EX: where automatic leveling takes its reading from; fixed is no leveling.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_ALC_SOURCE_INTERNAL, KVTD481X2C_VAL_ALC_SOURCE_FIXED,
 *               KVTD481X2C_VAL_ALC_SOURCE_DETECTOR or KVTD481X2C_VAL_ALC_SOURCE_POWER_METER. After a failure: -1 with
 *               0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:ALC:SOUR?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_ALC_SOURCE_INTERNAL.
 * @see KVTD481X2C_SetALCSourceEx, KVTD481X2C_ATTR_ALC_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetALCSourceEx(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_ATTENUATION: attenuation of the step attenuator.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dB. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:ATT?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerAttenuation, KVTD481X2C_ATTR_POWER_ATTENUATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerAttenuation(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_DAC_LEVEL: setting of the converter that drives the level when there is no leveling.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:DAC?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetPowerDACLevel, KVTD481X2C_ATTR_POWER_DAC_LEVEL
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerDACLevel(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET: difference between the displayed level and the level at the output.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dB. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:DISP:OFFS?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerDisplayOffset, KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerDisplayOffset(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET_ENABLED: whether the display offset is in use.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. VI_TRUE or VI_FALSE. After a failure: 0xFFFF with 0xBFFA0059, else unchanged, but
 *               for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViBoolean and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:DISP:OFFS:STAT?`.
 * Simulated: nothing is sent; the value last stored, before that VI_TRUE.
 * @see KVTD481X2C_SetPowerDisplayOffsetEnabled, KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerDisplayOffsetEnabled(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_LIMIT: highest level that the instrument will put out while the limit is in use.
 *
 * The instrument holds the limit; the driver does not compare levels with it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:LIM?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerLimit, KVTD481X2C_ATTR_POWER_LIMIT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerLimit(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_LIMIT_ENABLED: whether the power limit is in use.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. VI_TRUE or VI_FALSE. After a failure: 0xFFFF with 0xBFFA0059, else unchanged, but
 *               for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViBoolean and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:LIM:STAT?`.
 * Simulated: nothing is sent; the value last stored, before that VI_TRUE.
 * @see KVTD481X2C_SetPowerLimitEnabled, KVTD481X2C_ATTR_POWER_LIMIT_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerLimitEnabled(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_MANUAL_RANGE: power range of the output stage when it is chosen by hand.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_ALC_RANGE_HIGH or KVTD481X2C_VAL_ALC_RANGE_LOW. After a failure: -1
 *               with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:RANG?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_ALC_RANGE_HIGH.
 * @see KVTD481X2C_SetPowerManualRange, KVTD481X2C_ATTR_POWER_MANUAL_RANGE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerManualRange(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_MODE: what drives the power level: a fixed value, the sweep, or one of the ten lists.
 *
 * The power sweep is the second sweep of the instrument, hence its own words.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_POWER_MODE_FIXED, KVTD481X2C_VAL_POWER_MODE_SWEEP,
 *               KVTD481X2C_VAL_POWER_MODE_LIST1, KVTD481X2C_VAL_POWER_MODE_LIST2, KVTD481X2C_VAL_POWER_MODE_LIST3,
 *               KVTD481X2C_VAL_POWER_MODE_LIST4, KVTD481X2C_VAL_POWER_MODE_LIST5, KVTD481X2C_VAL_POWER_MODE_LIST6,
 *               KVTD481X2C_VAL_POWER_MODE_LIST7, KVTD481X2C_VAL_POWER_MODE_LIST8, KVTD481X2C_VAL_POWER_MODE_LIST9 or
 *               KVTD481X2C_VAL_POWER_MODE_LIST10. After a failure: -1 with 0xBFFA0059, else unchanged, but for
 *               0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:MODE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_POWER_MODE_FIXED.
 * @see KVTD481X2C_SetPowerMode, KVTD481X2C_ATTR_POWER_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerMode(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L0: preset power level L0.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L0?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL0, KVTD481X2C_ATTR_POWER_PRESET_L0
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL0(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L1: preset power level L1.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L1?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL1, KVTD481X2C_ATTR_POWER_PRESET_L1
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL1(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L2: preset power level L2.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L2?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL2, KVTD481X2C_ATTR_POWER_PRESET_L2
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL2(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L3: preset power level L3.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L3?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL3, KVTD481X2C_ATTR_POWER_PRESET_L3
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL3(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L4: preset power level L4.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L4?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL4, KVTD481X2C_ATTR_POWER_PRESET_L4
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL4(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L5: preset power level L5.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L5?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL5, KVTD481X2C_ATTR_POWER_PRESET_L5
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL5(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L6: preset power level L6.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L6?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL6, KVTD481X2C_ATTR_POWER_PRESET_L6
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL6(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L7: preset power level L7.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L7?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL7, KVTD481X2C_ATTR_POWER_PRESET_L7
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL7(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L8: preset power level L8.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L8?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL8, KVTD481X2C_ATTR_POWER_PRESET_L8
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL8(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PRESET_L9: preset power level L9.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dBm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:L9?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerPresetL9, KVTD481X2C_ATTR_POWER_PRESET_L9
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerPresetL9(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_PROTECTION_TRIPPED: whether the protection of the output has tripped.
 *
 * KVTD481X2C_ClearPowerProtection clears it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. VI_TRUE or VI_FALSE. After a failure: 0xFFFF with 0xBFFA0059, else unchanged, but
 *               for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViBoolean and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:PROT:TRIP?`.
 * Simulated: nothing is sent; VI_FALSE.
 * @see KVTD481X2C_ATTR_POWER_PROTECTION_TRIPPED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerProtectionTripped(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_STEP: step by which the power level is raised and lowered in the fixed mode.
 *
 * The step of the power sweep is KVTD481X2C_ATTR_POWER_STEP_SIZE.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In dB. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:STEP?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerStep, KVTD481X2C_ATTR_POWER_STEP
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerStep(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_STEP_ATTENUATOR_ENABLED: whether the instrument chooses the attenuation of the step
 * attenuator.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. VI_TRUE or VI_FALSE. After a failure: 0xFFFF with 0xBFFA0059, else unchanged, but
 *               for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViBoolean and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:ATT:AUTO?`.
 * Simulated: nothing is sent; the value last stored, before that VI_TRUE.
 * @see KVTD481X2C_SetPowerStepAttenuatorEnabled, KVTD481X2C_ATTR_POWER_STEP_ATTENUATOR_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerStepAttenuatorEnabled(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_RF_OUTPUT_BLANKING_ENABLED: whether the output is blanked while the instrument changes its
 * settings.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. VI_TRUE or VI_FALSE. After a failure: 0xFFFF with 0xBFFA0059, else unchanged, but
 *               for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViBoolean and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:OUTP:PROT?`.
 * Simulated: nothing is sent; the value last stored, before that VI_TRUE.
 * @see KVTD481X2C_SetRfOutputBlankingEnabled, KVTD481X2C_ATTR_RF_OUTPUT_BLANKING_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetRfOutputBlankingEnabled(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_RF_OUTPUT_IMPEDANCE: impedance of the RF output.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In ohm. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:OUTP:IMP?`.
 * Simulated: nothing is sent; 50.0.
 * @see KVTD481X2C_ATTR_RF_OUTPUT_IMPEDANCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetRfOutputImpedance(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_SELECTED_POWER_PRESET_LEVEL: which of the ten preset power levels is in use.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_POWER_LEVEL_PRESET_L0, KVTD481X2C_VAL_POWER_LEVEL_PRESET_L1,
 *               KVTD481X2C_VAL_POWER_LEVEL_PRESET_L2, KVTD481X2C_VAL_POWER_LEVEL_PRESET_L3,
 *               KVTD481X2C_VAL_POWER_LEVEL_PRESET_L4, KVTD481X2C_VAL_POWER_LEVEL_PRESET_L5,
 *               KVTD481X2C_VAL_POWER_LEVEL_PRESET_L6, KVTD481X2C_VAL_POWER_LEVEL_PRESET_L7,
 *               KVTD481X2C_VAL_POWER_LEVEL_PRESET_L8 or KVTD481X2C_VAL_POWER_LEVEL_PRESET_L9. After a failure: -1 with
 *               0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:POW:SEL?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_POWER_LEVEL_PRESET_L0.
 * @see KVTD481X2C_SetSelectedPowerPresetLevel, KVTD481X2C_ATTR_SELECTED_POWER_PRESET_LEVEL
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetSelectedPowerPresetLevel(ViSession Vi, ViInt32* Value);

/**
 * Has leveling search the setting with the lowest noise floor.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:ALC:SEAR:LNO`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SearchLowNoiseFloor(ViSession Vi);

/**
 * Writes KVTD481X2C_ATTR_ALC_SOURCE_EX: where automatic leveling takes its reading from; fixed is no leveling.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_ALC_SOURCE_INTERNAL, KVTD481X2C_VAL_ALC_SOURCE_FIXED,
 *               KVTD481X2C_VAL_ALC_SOURCE_DETECTOR or KVTD481X2C_VAL_ALC_SOURCE_POWER_METER.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:ALC:SOUR <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetALCSourceEx, KVTD481X2C_ATTR_ALC_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetALCSourceEx(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_ATTENUATION: attenuation of the step attenuator.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dB. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:ATT <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerAttenuation, KVTD481X2C_ATTR_POWER_ATTENUATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerAttenuation(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_DAC_LEVEL: setting of the converter that drives the level when there is no leveling.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:DAC <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerDACLevel, KVTD481X2C_ATTR_POWER_DAC_LEVEL
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerDACLevel(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET: difference between the displayed level and the level at the output.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dB. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:DISP:OFFS <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerDisplayOffset, KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerDisplayOffset(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET_ENABLED: whether the display offset is in use.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. VI_TRUE or VI_FALSE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:DISP:OFFS:STAT <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerDisplayOffsetEnabled, KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerDisplayOffsetEnabled(ViSession Vi, ViBoolean Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_LIMIT: highest level that the instrument will put out while the limit is in use.
 *
 * The instrument holds the limit; the driver does not compare levels with it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:LIM <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerLimit, KVTD481X2C_ATTR_POWER_LIMIT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerLimit(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_LIMIT_ENABLED: whether the power limit is in use.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. VI_TRUE or VI_FALSE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:LIM:STAT <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerLimitEnabled, KVTD481X2C_ATTR_POWER_LIMIT_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerLimitEnabled(ViSession Vi, ViBoolean Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_MANUAL_RANGE: power range of the output stage when it is chosen by hand.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_ALC_RANGE_HIGH or KVTD481X2C_VAL_ALC_RANGE_LOW.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:RANG <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerManualRange, KVTD481X2C_ATTR_POWER_MANUAL_RANGE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerManualRange(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_MODE: what drives the power level: a fixed value, the sweep, or one of the ten lists.
 *
 * The power sweep is the second sweep of the instrument, hence its own words.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_POWER_MODE_FIXED, KVTD481X2C_VAL_POWER_MODE_SWEEP,
 *               KVTD481X2C_VAL_POWER_MODE_LIST1, KVTD481X2C_VAL_POWER_MODE_LIST2, KVTD481X2C_VAL_POWER_MODE_LIST3,
 *               KVTD481X2C_VAL_POWER_MODE_LIST4, KVTD481X2C_VAL_POWER_MODE_LIST5, KVTD481X2C_VAL_POWER_MODE_LIST6,
 *               KVTD481X2C_VAL_POWER_MODE_LIST7, KVTD481X2C_VAL_POWER_MODE_LIST8, KVTD481X2C_VAL_POWER_MODE_LIST9 or
 *               KVTD481X2C_VAL_POWER_MODE_LIST10.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:MODE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerMode, KVTD481X2C_ATTR_POWER_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerMode(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L0: preset power level L0.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L0 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL0, KVTD481X2C_ATTR_POWER_PRESET_L0
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL0(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L1: preset power level L1.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L1 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL1, KVTD481X2C_ATTR_POWER_PRESET_L1
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL1(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L2: preset power level L2.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L2 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL2, KVTD481X2C_ATTR_POWER_PRESET_L2
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL2(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L3: preset power level L3.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L3 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL3, KVTD481X2C_ATTR_POWER_PRESET_L3
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL3(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L4: preset power level L4.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L4 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL4, KVTD481X2C_ATTR_POWER_PRESET_L4
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL4(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L5: preset power level L5.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L5 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL5, KVTD481X2C_ATTR_POWER_PRESET_L5
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL5(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L6: preset power level L6.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L6 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL6, KVTD481X2C_ATTR_POWER_PRESET_L6
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL6(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L7: preset power level L7.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L7 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL7, KVTD481X2C_ATTR_POWER_PRESET_L7
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL7(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L8: preset power level L8.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L8 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL8, KVTD481X2C_ATTR_POWER_PRESET_L8
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL8(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_PRESET_L9: preset power level L9.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:L9 <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerPresetL9, KVTD481X2C_ATTR_POWER_PRESET_L9
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerPresetL9(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_STEP: step by which the power level is raised and lowered in the fixed mode.
 *
 * The step of the power sweep is KVTD481X2C_ATTR_POWER_STEP_SIZE.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dB. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:STEP <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerStep, KVTD481X2C_ATTR_POWER_STEP
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerStep(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_STEP_ATTENUATOR_ENABLED: whether the instrument chooses the attenuation of the step
 * attenuator.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. VI_TRUE or VI_FALSE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:ATT:AUTO <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerStepAttenuatorEnabled, KVTD481X2C_ATTR_POWER_STEP_ATTENUATOR_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerStepAttenuatorEnabled(ViSession Vi, ViBoolean Value);

/**
 * Writes KVTD481X2C_ATTR_RF_OUTPUT_BLANKING_ENABLED: whether the output is blanked while the instrument changes its
 * settings.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. VI_TRUE or VI_FALSE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:OUTP:PROT <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetRfOutputBlankingEnabled, KVTD481X2C_ATTR_RF_OUTPUT_BLANKING_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetRfOutputBlankingEnabled(ViSession Vi, ViBoolean Value);

/**
 * Writes KVTD481X2C_ATTR_SELECTED_POWER_PRESET_LEVEL: which of the ten preset power levels is in use.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_POWER_LEVEL_PRESET_L0, KVTD481X2C_VAL_POWER_LEVEL_PRESET_L1,
 *               KVTD481X2C_VAL_POWER_LEVEL_PRESET_L2, KVTD481X2C_VAL_POWER_LEVEL_PRESET_L3,
 *               KVTD481X2C_VAL_POWER_LEVEL_PRESET_L4, KVTD481X2C_VAL_POWER_LEVEL_PRESET_L5,
 *               KVTD481X2C_VAL_POWER_LEVEL_PRESET_L6, KVTD481X2C_VAL_POWER_LEVEL_PRESET_L7,
 *               KVTD481X2C_VAL_POWER_LEVEL_PRESET_L8 or KVTD481X2C_VAL_POWER_LEVEL_PRESET_L9.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:SEL <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetSelectedPowerPresetLevel, KVTD481X2C_ATTR_SELECTED_POWER_PRESET_LEVEL
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetSelectedPowerPresetLevel(ViSession Vi, ViInt32 Value);

/** @} */

/**
 * @defgroup session Session
 *
 * Opening and closing a session, its lock, the options every IVI driver has, and who driver and instrument are.
 *
 * A session is opened with KVTD481X2C_init or KVTD481X2C_InitWithOptions and ended with KVTD481X2C_close. Everything
 * else takes the handle that opening gives. A simulated session opens no connection; an attribute then reads what was
 * stored last, while the attributes of the instrument class, such as KVTD481X2C_ATTR_FREQUENCY, still make their VISA
 * call and fail.
 *
 * The attributes on this page cost no traffic with the instrument.
 * @{
 */

/** Option RangeCheck: kept for interchangeability, without effect. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_RANGE_CHECK 1050002

/**
 * Option QueryInstrStatus: whether the event status register is asked after each exchange. ViBoolean, read and write.
 */
#define KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS 1050003

/** Option Cache: whether a real session remembers the values that pass through it. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_CACHE 1050004

/** Option Simulate: whether the session answers without an instrument. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_SIMULATE 1050005

/** Option RecordCoercions: kept for interchangeability, without effect. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_RECORD_COERCIONS 1050006

/** The DriverSetup text of the session. ViString, read. */
#define KVTD481X2C_ATTR_DRIVER_SETUP 1050007

/** Option InterchangeCheck: always off, as the driver has no interchange checking. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_INTERCHANGE_CHECK 1050021

/** The prefix of the driver's functions. ViString, read. */
#define KVTD481X2C_ATTR_SPECIFIC_DRIVER_PREFIX 1050302

/** The VISA resource that the session was opened on. ViString, read. */
#define KVTD481X2C_ATTR_IO_RESOURCE_DESCRIPTOR 1050304

/** The name under which the configuration store knows the session. ViString, read. */
#define KVTD481X2C_ATTR_LOGICAL_NAME 1050305

/** The models that pass the identification check of KVTD481X2C_InitWithOptions. ViString, read. */
#define KVTD481X2C_ATTR_SUPPORTED_INSTRUMENT_MODELS 1050327

/** The extension groups of the IviRFSigGen class that the driver has, separated by commas. ViString, read. */
#define KVTD481X2C_ATTR_GROUP_CAPABILITIES 1050401

/** The firmware revision that the instrument named when the session was opened. ViString, read. */
#define KVTD481X2C_ATTR_INSTRUMENT_FIRMWARE_REVISION 1050510

/** The manufacturer that the instrument named when the session was opened. ViString, read. */
#define KVTD481X2C_ATTR_INSTRUMENT_MANUFACTURER 1050511

/** The model that the instrument named when the session was opened. ViString, read. */
#define KVTD481X2C_ATTR_INSTRUMENT_MODEL 1050512

/** The vendor of the driver. ViString, read. */
#define KVTD481X2C_ATTR_SPECIFIC_DRIVER_VENDOR 1050513

/** What the driver is. ViString, read. */
#define KVTD481X2C_ATTR_SPECIFIC_DRIVER_DESCRIPTION 1050514

/** Major version of the class that the driver follows. ViInt32, read. */
#define KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION 1050515

/** Minor version of the class that the driver follows. ViInt32, read. */
#define KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MINOR_VERSION 1050516

/** The revision of the driver. ViString, read. */
#define KVTD481X2C_ATTR_SPECIFIC_DRIVER_REVISION 1050551

/**
 * Always refused: the driver has no interchange checking.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0011  always
 *
 * Simulated: the same refusal.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ClearInterchangeWarnings(ViSession Vi);

/**
 * Hands out the oldest coercion record; the driver coerces nothing, so there never is one.
 *
 * A buffer size of 0 asks for the size needed, which is 1. A positive size gives an empty text. A negative size copies
 * without a limit, which is again an empty text.
 *
 * @param Vi              Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize      Size of CoercionRecord in characters, terminator included.
 * @param CoercionRecord  The record: an empty text. May be null if BufferSize is 0. After a failure: unchanged, or what
 *                        had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  CoercionRecord is null and BufferSize is not 0
 *
 * Simulated: the same; the instrument is not involved.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetNextCoercionRecord(ViSession Vi, ViInt32 BufferSize,
                                                                  ViChar CoercionRecord[]);

/**
 * Always refused: the driver has no interchange checking.
 *
 * @param Vi                  Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize          Not looked at.
 * @param InterchangeWarning  Not looked at and not written. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0011  always
 *
 * Simulated: the same refusal.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetNextInterchangeWarning(ViSession Vi, ViInt32 BufferSize,
                                                                      ViChar InterchangeWarning[]);

/**
 * Opens a session on an instrument, or a simulated one.
 *
 * The option string is a list such as "Simulate=1, QueryInstrStatus=1, DriverSetup=Model:TD48142C". Its options are
 * Cache, InterchangeCheck, QueryInstrStatus, RangeCheck, RecordCoercions and Simulate, with the values true, vi_true
 * and 1, or false, vi_false and 0, all without regard to case, each at most once. DriverSetup comes last and takes the
 * rest of the line as pairs name:value; of these, Model sets the model of a simulated session. What is not given comes
 * from the configuration store, else Cache and RangeCheck are on and the others off. A failure before the instrument is
 * identified closes everything, sets *Vi to 0, and leaves its text with KVTD481X2C_GetError for Vi 0. A failure later,
 * in the reset or in the setting of the units, leaves an open session in *Vi that has to be closed.
 *
 * @param ResourceName  A VISA resource or a logical name. Not null.
 * @param IdQuery       VI_TRUE refuses an unknown model; other values do not test it.
 * @param Reset         Anything but VI_FALSE resets the instrument.
 * @param OptionString  The options, or an empty text. Not null.
 * @param Vi            The handle of the new session, or 0 where nothing was opened. After a failure: unchanged, or
 *                      what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  Vi is null; nothing is recorded
 *         0xBFFA004B  an option has a name that is not known
 *         0xBFFA004C  an option has a value that is not known, or interchange checking is asked for
 *         0xBFFA0000  an option or a DriverSetup name stands twice
 *         0xBFFA005E  IdQuery is VI_TRUE and the driver does not know the model
 *         a status of the configuration store when it cannot be read
 *         a VISA status when the exchange fails
 *
 * Sends `*CLS`. Sends `*IDN?`. Sends `*RST`. Sends `*OPC?`. Sends `:UNIT:POW DBM`. Sends `:UNIT:TIME S`.
 * Simulated: reads the configuration store and the options, and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_InitWithOptions(ViRsrc ResourceName, ViBoolean IdQuery, ViBoolean Reset,
                                                            ViConstString OptionString, ViSession* Vi);

/**
 * Forgets every value that the session remembers.
 *
 * A read goes to the instrument at any time; what changes is a simulated session, or one switched to simulation later:
 * each attribute reads again what it reads before any set. Nothing is sent.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: the same.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_InvalidateAllAttributes(ViSession Vi);

/**
 * Takes the session's lock, so that a sequence of calls is not interrupted by other threads.
 *
 * The lock counts: each call needs a KVTD481X2C_UnlockSession, unless CallerHasLock keeps the count. With a pointer,
 * VI_TRUE on entry does nothing, and VI_FALSE takes the lock and becomes VI_TRUE.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param CallerHasLock  Whether the caller holds the lock. May be null. After a failure: unchanged, or what had
 *                       arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: the same; the instrument is not involved.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_LockSession(ViSession Vi, ViBoolean* CallerHasLock);

/**
 * Always refused: the driver has no interchange checking.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0011  always
 *
 * Simulated: the same refusal.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ResetInterchangeCheck(ViSession Vi);

/**
 * Gives the session's lock back.
 *
 * With a pointer, VI_FALSE on entry does nothing, and VI_TRUE gives the lock back and becomes VI_FALSE.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param CallerHasLock  Whether the caller holds the lock. May be null. After a failure: unchanged, or what had
 *                       arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: the same; the instrument is not involved.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_UnlockSession(ViSession Vi, ViBoolean* CallerHasLock);

/**
 * Ends a session and its connection.
 *
 * Takes no session lock: no other thread may be using the session. A connection that fails to close is not reported. A
 * session switched to simulation after it was opened on an instrument leaves its VISA session open.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: the same; nothing is sent in either case.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_close(ViSession Vi);

/**
 * Opens a session as KVTD481X2C_InitWithOptions does with an empty option string.
 *
 * @param ResourceName  A VISA resource or a logical name. Not null.
 * @param IdQuery       VI_TRUE refuses an unknown model; other values do not test it.
 * @param Reset         Anything but VI_FALSE resets the instrument.
 * @param Vi            The handle of the new session; see KVTD481X2C_InitWithOptions. After a failure: unchanged, or
 *                      what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         as KVTD481X2C_InitWithOptions
 *
 * Simulated: a configured driver session may be a simulated one; see KVTD481X2C_InitWithOptions.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_init(ViRsrc ResourceName, ViBoolean IdQuery, ViBoolean Reset,
                                                 ViSession* Vi);

/**
 * Gives the revisions of the driver and of the instrument's firmware.
 *
 * Both were known when the session was opened; nothing is sent. Neither pointer is tested.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param DriverRev  "1.0.0.0". A buffer of 256 characters, not null. After a failure: unchanged, or what had arrived.
 * @param InstrRev   The firmware's. A buffer of 256 characters, not null. After a failure: unchanged, or what had
 *                   arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: gives "1.0.0.0" and "Sim1.0.0.0".
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_revision_query(ViSession Vi, ViChar DriverRev[256], ViChar InstrRev[256]);

/** @} */

/**
 * @defgroup settling Settling
 *
 * The class's two questions about the output having settled. The driver measures nothing: it keeps one mark per
 * session, which the setters of the output, the frequency and the power level leave behind.
 *
 * The mark is -1 while the output is off. A good switching on puts the low 32 bits of the millisecond clock there
 * unless it is positive already, a good write of frequency or level renews a positive mark, and switching off takes it
 * back to -1. Lists, sweeps, presets and resets leave it alone.
 * @{
 */

/**
 * Tells whether the output is taken to be settled.
 *
 * True while the mark, as a signed number, is 20 or more: in general from the moment the output is switched on until it
 * is switched off. No time is compared and the instrument is not asked. The low 32 bits of the clock are negative as a
 * signed number for the second half of every 49.7 days; a mark left then answers VI_FALSE.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param Done  VI_TRUE if settled. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  Done is null
 *
 * Simulated: the same. The output cannot be switched on there, so a simulated session answers VI_FALSE.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_IsSettled(ViSession Vi, ViBoolean* Done);

/**
 * Waits 20 milliseconds.
 *
 * The session stays locked meanwhile. The instrument is not asked.
 *
 * @param Vi                   Handle from KVTD481X2C_InitWithOptions.
 * @param MaxTimeMilliseconds  Accepted and ignored.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: the same.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_WaitUntilSettled(ViSession Vi, ViInt32 MaxTimeMilliseconds);

/** @} */

#ifdef __cplusplus
}
#endif

#endif /* KVTD481X2C_H */
