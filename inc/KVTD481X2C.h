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
 * @defgroup am Amplitude modulation
 *
 * Amplitude modulation twice over: as the instrument has it, with a depth in percent and one in decibels, each for the
 * internal and the external drive, and as the class has it, with a source, a scaling and a depth.
 *
 * The class attributes keep nothing of their own. They read KVTD481X2C_ATTR_AM_SOURCE_EX and KVTD481X2C_ATTR_AM_MODE at
 * the moment of the call and pass the value on to the attribute that these two select, also in a simulated session.
 * They have no typed functions: use the Configure functions or the generic access.
 * @{
 */

/** The instrument's error number for the amplitude modulation. ViInt32, read. */
#define KVTD481X2C_ATTR_AM_ERROR 1150054

/** Depth that the nominal voltage at the external input gives in the logarithmic mode. ViReal64, dB, read and write. */
#define KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_DB 1150055

/** Depth that the nominal voltage at the external input gives in the linear mode. ViReal64, %, read and write. */
#define KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_PERCENT 1150056

/** Depth with the internal source in the logarithmic mode. ViReal64, dB, read and write. */
#define KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_DB 1150057

/** Depth with the internal source in the linear mode. ViReal64, %, read and write. */
#define KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT 1150058

/** Frequency of the internal source of the amplitude modulation. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY 1150059

/**
 * Waveform of the internal source of the amplitude modulation. ViInt32, enumeration INTERNAL_WAVEFORM, read and write.
 */
#define KVTD481X2C_ATTR_AM_INTERNAL_WAVEFORM 1150060

/**
 * Whether the depth is linear, in percent, or logarithmic, in decibels. ViInt32, enumeration AM_MODE, read and write.
 */
#define KVTD481X2C_ATTR_AM_MODE 1150061

/**
 * What drives the amplitude modulation: the internal source or the external input. ViInt32, enumeration
 * MODULATION_SOURCE, read and write.
 */
#define KVTD481X2C_ATTR_AM_SOURCE_EX 1150062

/** Whether the amplitude modulation is on. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_AM_ENABLED 1250011

/**
 * What drives the amplitude modulation, by its name in the class: "Internal" or "External". ViString, read and write.
 */
#define KVTD481X2C_ATTR_AM_SOURCE 1250012

/** Whether KVTD481X2C_ATTR_AM_DEPTH is linear or logarithmic. ViInt32, enumeration AM_SCALING, read and write. */
#define KVTD481X2C_ATTR_AM_SCALING 1250013

/**
 * Coupling of the external input of the amplitude modulation, which on this instrument is always DC. ViInt32,
 * enumeration AM_EXTERNAL_COUPLING, read and write.
 */
#define KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING 1250014

/** Voltage at the external input at which the amplitude modulation reaches the depth that is set. ViReal64, V, read. */
#define KVTD481X2C_ATTR_AM_NOMINAL_VOLTAGE 1250015

/** Depth of the amplitude modulation, for the source and the scaling in force. ViReal64, % or dB, read and write. */
#define KVTD481X2C_ATTR_AM_DEPTH 1250016

/**
 * Sets the source, the scaling and the depth of the amplitude modulation.
 *
 * The depth goes to the attribute that the source and the scaling just set select. A failure leaves the steps before it
 * in force.
 *
 * @param Vi       Handle from KVTD481X2C_InitWithOptions.
 * @param Source   "Internal" or "External", in any case. Not null.
 * @param Scaling  A value of KVTD481X2C_ATTR_AM_SCALING.
 * @param Depth    The depth: in percent if Scaling is linear, in dB if logarithmic.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0013  Source or Scaling is no value of its attribute
 *         0xBFFA0059  the instrument's source or mode is no defined value
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_AM_SOURCE, KVTD481X2C_ATTR_AM_SCALING, KVTD481X2C_ATTR_AM_DEPTH, in this order, up to the first
 * failure.
 * Simulated: stores the values in the attributes that they are passed on to; nothing is sent.
 * @see KVTD481X2C_ATTR_AM_SOURCE, KVTD481X2C_ATTR_AM_SCALING, KVTD481X2C_ATTR_AM_DEPTH
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureAM(ViSession Vi, ViConstString Source, ViInt32 Scaling,
                                                        ViReal64 Depth);

/**
 * Switches the amplitude modulation on or off.
 *
 * @param Vi       Handle from KVTD481X2C_InitWithOptions.
 * @param Enabled  VI_TRUE switches it on, VI_FALSE off.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0000  Enabled is neither VI_TRUE nor VI_FALSE; nothing is sent
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_AM_ENABLED.
 * Simulated: fails with VISA's status: the attribute makes its VISA call.
 * @see KVTD481X2C_ATTR_AM_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureAMEnabled(ViSession Vi, ViBoolean Enabled);

/**
 * Accepts DC as the coupling of the external input; the instrument has no other.
 *
 * Nothing is sent.
 *
 * @param Vi        Handle from KVTD481X2C_InitWithOptions.
 * @param Coupling  KVTD481X2C_VAL_AM_EXTERNAL_COUPLING_DC.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0013  Coupling is any other value, KVTD481X2C_VAL_AM_EXTERNAL_COUPLING_AC included
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING.
 * Simulated: the same.
 * @see KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureAMExternalCoupling(ViSession Vi, ViInt32 Coupling);

/**
 * Reads KVTD481X2C_ATTR_AM_ERROR: the instrument's error number for the amplitude modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:AM:ERR?`.
 * Simulated: nothing is sent; 0.
 * @see KVTD481X2C_ATTR_AM_ERROR
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAMError(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_PERCENT: depth that the nominal voltage at the external input gives in
 * the linear mode.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In %. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:AM:SENS?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetAMExternalSensitivityPercent, KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_PERCENT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAMExternalSensitivityPercent(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_DB: depth that the nominal voltage at the external input gives in the
 * logarithmic mode.
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
 * Queries `:AM:LOGS?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetAMExternalSensitivitydB, KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_DB
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAMExternalSensitivitydB(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT: depth with the internal source in the linear mode.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In %. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:AM:DEPT?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetAMInternalDepthPercent, KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAMInternalDepthPercent(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_DB: depth with the internal source in the logarithmic mode.
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
 * Queries `:AM:LOGD?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetAMInternalDepthdB, KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_DB
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAMInternalDepthdB(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY: frequency of the internal source of the amplitude modulation.
 *
 * It is sent with its unit; the internal frequencies of the frequency and phase modulation are sent bare.
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
 * Queries `:AM:FREQ?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetAMInternalFrequency, KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAMInternalFrequency(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_AM_INTERNAL_WAVEFORM: waveform of the internal source of the amplitude modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_GUASSIAN,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_NEGATIVE_RAMP, KVTD481X2C_VAL_INTERNAL_WAVEFORM_POSITIVE_RAMP,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_SQUARE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_TRIANGLE or
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_UNIFORM_NOISE. After a failure: -1 with 0xBFFA0059, else unchanged,
 *               but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:AM:WAVE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE.
 * @see KVTD481X2C_SetAMInternalWaveform, KVTD481X2C_ATTR_AM_INTERNAL_WAVEFORM
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAMInternalWaveform(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_AM_MODE: whether the depth is linear, in percent, or logarithmic, in decibels.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_AM_MODE_LINEAR or KVTD481X2C_VAL_AM_MODE_LOGARITHMIC. After a
 *               failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:AM:TYPE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_AM_MODE_LINEAR.
 * @see KVTD481X2C_SetAMMode, KVTD481X2C_ATTR_AM_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAMMode(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_AM_SOURCE_EX: what drives the amplitude modulation: the internal source or the external input.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL or
 *               KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL. After a failure: -1 with 0xBFFA0059, else unchanged, but for
 *               0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:AM:SOUR?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL.
 * @see KVTD481X2C_SetAMSourceEx, KVTD481X2C_ATTR_AM_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAMSourceEx(ViSession Vi, ViInt32* Value);

/**
 * Measures the depth of the amplitude modulation.
 *
 * The source, the mode and KVTD481X2C_ATTR_AM_ENABLED are not looked at, and the result is not remembered.
 *
 * @param Vi   Handle from KVTD481X2C_InitWithOptions.
 * @param Val  The depth, in the instrument's terms. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Val is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:MEAS:AM:DEPT?`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_MeasureAMDepth(ViSession Vi, ViReal64* Val);

/**
 * Writes KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_PERCENT: depth that the nominal voltage at the external input gives in
 * the linear mode.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In %. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:AM:SENS <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetAMExternalSensitivityPercent, KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_PERCENT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAMExternalSensitivityPercent(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_DB: depth that the nominal voltage at the external input gives in the
 * logarithmic mode.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dB. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:AM:LOGS <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetAMExternalSensitivitydB, KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_DB
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAMExternalSensitivitydB(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT: depth with the internal source in the linear mode.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In %. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:AM:DEPT <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetAMInternalDepthPercent, KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAMInternalDepthPercent(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_DB: depth with the internal source in the logarithmic mode.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dB. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:AM:LOGD <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetAMInternalDepthdB, KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_DB
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAMInternalDepthdB(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY: frequency of the internal source of the amplitude modulation.
 *
 * It is sent with its unit; the internal frequencies of the frequency and phase modulation are sent bare.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:AM:FREQ <Value> HZ`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetAMInternalFrequency, KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAMInternalFrequency(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_AM_INTERNAL_WAVEFORM: waveform of the internal source of the amplitude modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_GUASSIAN,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_NEGATIVE_RAMP, KVTD481X2C_VAL_INTERNAL_WAVEFORM_POSITIVE_RAMP,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_SQUARE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_TRIANGLE or
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_UNIFORM_NOISE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:AM:WAVE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetAMInternalWaveform, KVTD481X2C_ATTR_AM_INTERNAL_WAVEFORM
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAMInternalWaveform(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_AM_MODE: whether the depth is linear, in percent, or logarithmic, in decibels.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_AM_MODE_LINEAR or KVTD481X2C_VAL_AM_MODE_LOGARITHMIC.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:AM:TYPE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetAMMode, KVTD481X2C_ATTR_AM_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAMMode(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_AM_SOURCE_EX: what drives the amplitude modulation: the internal source or the external input.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL or KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:AM:SOUR <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetAMSourceEx, KVTD481X2C_ATTR_AM_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetAMSourceEx(ViSession Vi, ViInt32 Value);

/** @} */

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
 * @param AttributeValue    The value. After a failure: unchanged.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  AttributeValue is null
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 *         what the attribute's own read or write answers
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
 * @param AttributeValue    The value. After a failure: unchanged.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  AttributeValue is null
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 *         what the attribute's own read or write answers
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
 * @param AttributeValue    The value. After a failure: unchanged.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  AttributeValue is null
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 *         what the attribute's own read or write answers
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
 * @param AttributeValue    The value. After a failure: unchanged.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  AttributeValue is null
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 *         what the attribute's own read or write answers
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
 * @param AttributeValue            The text. May be null if AttributeValueBufferSize is 0. After a failure: unchanged.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA000C  the attribute id is not known
 *         0xBFFA0015  the attribute is of another type
 *         0xBFFA000E  the attribute is write-only
 *         0xBFFA0058  AttributeValue is null and AttributeValueBufferSize is not 0
 *         what the attribute's own read or write answers
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
 *         what the attribute's own read or write answers
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
 *         what the attribute's own read or write answers
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
 *         what the attribute's own read or write answers
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
 *         what the attribute's own read or write answers
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
 *         what the attribute's own read or write answers
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
 * @param Buffer       The bytes read, without a terminator. Not null. After a failure: unchanged.
 * @param ReturnCount  Number of bytes in Buffer, also after a failure. May be null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA4214  the session is simulated
 *         a VISA status when the exchange fails
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
 *         a VISA status when the exchange fails
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
 * @param Code         The recorded status. After a failure: unchanged.
 * @param BufferSize   Size of Description in characters, terminator included.
 * @param Description  The recorded text, at most 1023 characters. After a failure: unchanged.
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
 * @param ErrorMessage  The text. A buffer of 256 characters. After a failure: unchanged.
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
 * @param ErrorCode     The instrument's error number; 0 when the queue is empty.
 * @param ErrorMessage  The instrument's text. A buffer of 256 characters.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0058  ErrorCode or ErrorMessage is null; found before the session is locked
 *         0xBFFA0059  the answer has no comma
 *         0xBFFA0001  never from this call: the query is the check
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:ERR?`.
 * Simulated: gives the code 0 and "No error." and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_error_query(ViSession Vi, ViInt32* ErrorCode, ViChar ErrorMessage[256]);

/** @} */

/**
 * @defgroup firmware Firmware
 *
 * The instrument updates its own firmware, from a package on a USB stick or from a server that has a list of packages.
 * The driver asks and tells: no package passes through it, and it does not wait for an update.
 *
 * What the instrument lists and what it takes as a package is its own; the driver passes the texts on, and escapes no
 * quote in them.
 * @{
 */

/** Where the instrument finds the list of packages: the web address of a text. ViString, read and write. */
#define KVTD481X2C_ATTR_REMOTE_PACKAGE_SOURCE 1150157

/** Whether the instrument looks for updates by itself. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_FIRMWARE_UPDATE_CHECK_ENABLED 1150158

/** The version of the firmware. ViString, read. */
#define KVTD481X2C_ATTR_FIRMWARE_VERSION 1150159

/** The packages on the server, as the instrument last fetched their list. ViString, read. */
#define KVTD481X2C_ATTR_REMOTE_PACKAGE_LIST 1150160

/**
 * Asks the instrument for the latest package on the server and whether it is an update.
 *
 * @param Vi                 Handle from KVTD481X2C_InitWithOptions.
 * @param PackageBufferSize  Size of Package, terminator included; at least 1.
 * @param Package            The name of the package, cut to the size. After a failure: unchanged, or what had arrived.
 * @param Val                VI_TRUE if it is an update, else VI_FALSE. After a failure: 0xFFFF with 0xBFFA0059, else
 *                           unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  one of Package, Val is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0059  the second field of the answer is no boolean word; no status check follows
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:FIRM:UPD:REM:LAT?`.
 * Simulated: returns 0 and leaves both outputs as they were; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_CheckForFirmwareUpdates(ViSession Vi, ViInt32 PackageBufferSize,
                                                                    ViChar Package[], ViBoolean* Val);

/**
 * Reads KVTD481X2C_ATTR_FIRMWARE_UPDATE_CHECK_ENABLED: whether the instrument looks for updates by itself.
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
 * Queries `:SYST:FIRM:UPD:REM:AUTO?`.
 * Simulated: nothing is sent; the value last stored, before that VI_FALSE.
 * @see KVTD481X2C_SetFirmwareUpdateCheckEnabled, KVTD481X2C_ATTR_FIRMWARE_UPDATE_CHECK_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFirmwareUpdateCheckEnabled(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_FIRMWARE_VERSION: the version of the firmware.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:FIRM:VERS?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_FIRMWARE_VERSION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFirmwareVersion(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_REMOTE_PACKAGE_LIST: the packages on the server, as the instrument last fetched their list.
 *
 * KVTD481X2C_RefreshRemotePackageList has the list fetched again.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:FIRM:UPD:REM:LIST?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_REMOTE_PACKAGE_LIST
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetRemotePackageList(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_REMOTE_PACKAGE_SOURCE: where the instrument finds the list of packages: the web address of a
 * text.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:FIRM:UPD:REM:SOUR?`.
 * Simulated: nothing is sent; the value last stored, before that the text
 * "http://updates.kelvora.example/en-us/td481x2c.txt".
 * @see KVTD481X2C_SetRemotePackageSource, KVTD481X2C_ATTR_REMOTE_PACKAGE_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetRemotePackageSource(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Lists the packages on the USB stick.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param ValBufferSize  Size of Val, terminator included; at least 1, not tested.
 * @param Val            The list, as the instrument gives it, cut to the size. After a failure: unchanged, or what had
 *                       arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Val is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:FIRM:UPD:LIST?`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetUsbPackageList(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]);

/**
 * Has the instrument fetch the list of packages from the server.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:FIRM:UPD:REM:LIST:REFR`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_RefreshRemotePackageList(ViSession Vi);

/**
 * Writes KVTD481X2C_ATTR_FIRMWARE_UPDATE_CHECK_ENABLED: whether the instrument looks for updates by itself.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. VI_TRUE or VI_FALSE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:FIRM:UPD:REM:AUTO <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFirmwareUpdateCheckEnabled, KVTD481X2C_ATTR_FIRMWARE_UPDATE_CHECK_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFirmwareUpdateCheckEnabled(ViSession Vi, ViBoolean Value);

/**
 * Writes KVTD481X2C_ATTR_REMOTE_PACKAGE_SOURCE: where the instrument finds the list of packages: the web address of a
 * text.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new text, terminated. It is sent as it stands; the driver checks and escapes nothing in it.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:FIRM:UPD:REM:SOUR "<Value>"`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetRemotePackageSource, KVTD481X2C_ATTR_REMOTE_PACKAGE_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetRemotePackageSource(ViSession Vi, ViConstString Value);

/**
 * Starts an update of the firmware from a package at the instrument.
 *
 * The update goes on in the instrument when the call is over. What the two texts mean is the instrument's to say.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param First   The first text, without quotes. Not null.
 * @param Second  The second text, without quotes. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:FIRM:UPD "<First>","<Second>"`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_UpdateFirmware(ViSession Vi, ViConstString First, ViConstString Second);

/**
 * Starts an update of the firmware from a package on the server.
 *
 * The update goes on in the instrument when the call is over.
 *
 * @param Vi       Handle from KVTD481X2C_InitWithOptions.
 * @param Package  The package, without quotes. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:FIRM:UPD:REM "<Package>"`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_UpdateFirmwareFromRemote(ViSession Vi, ViConstString Package);

/** @} */

/**
 * @defgroup fm_pm Frequency and phase modulation
 *
 * Two twins of the amplitude modulation. They have no scaling, so that the deviation of the class goes by the source
 * alone: with the internal source it is the instrument's deviation, with the external one its sensitivity, and nothing
 * is converted. The frequency modulation has a locked and an unlocked mode and a high-pass filter besides; the mode of
 * the phase modulation is its bandwidth.
 *
 * The class attributes keep nothing of their own and answer in a simulated session as the attributes behind them do.
 * They have no typed functions: use the Configure functions or the generic access. Nothing stops a caller from
 * switching on both modulations; what the instrument cannot combine, it refuses itself.
 * @{
 */

/** The instrument's error number for the frequency modulation. ViInt32, read. */
#define KVTD481X2C_ATTR_FM_ERROR 1150064

/** Frequency deviation that the nominal voltage at the external input gives. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FM_EXTERNAL_SENSITIVITY 1150067

/** Frequency deviation with the internal source. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FM_INTERNAL_DEVIATION 1150068

/** Frequency of the internal source of the frequency modulation. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FM_INTERNAL_FREQUENCY 1150069

/**
 * Waveform of the internal source of the frequency modulation. ViInt32, enumeration INTERNAL_WAVEFORM, read and write.
 */
#define KVTD481X2C_ATTR_FM_INTERNAL_WAVEFORM 1150070

/** Whether the carrier stays locked while its frequency is modulated. ViInt32, enumeration FM_MODE, read and write. */
#define KVTD481X2C_ATTR_FM_MODE 1150071

/**
 * What drives the frequency modulation: the internal source or the external input. ViInt32, enumeration
 * MODULATION_SOURCE, read and write.
 */
#define KVTD481X2C_ATTR_FM_SOURCE_EX 1150072

/** The instrument's error number for the phase modulation. ViInt32, read. */
#define KVTD481X2C_ATTR_PM_ERROR 1150074

/** Phase deviation that the nominal voltage at the external input gives. ViReal64, rad, read and write. */
#define KVTD481X2C_ATTR_PM_EXTERNAL_SENSITIVITY 1150077

/** Phase deviation with the internal source. ViReal64, rad, read and write. */
#define KVTD481X2C_ATTR_PM_INTERNAL_DEVIATION 1150078

/** Frequency of the internal source of the phase modulation. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_PM_INTERNAL_FREQUENCY 1150079

/** Bandwidth of the phase modulation: narrow or wide. ViInt32, enumeration PM_MODE, read and write. */
#define KVTD481X2C_ATTR_PM_MODE 1150081

/**
 * What drives the phase modulation: the internal source or the external input. ViInt32, enumeration MODULATION_SOURCE,
 * read and write.
 */
#define KVTD481X2C_ATTR_PM_SOURCE_EX 1150082

/** Waveform of the internal source of the phase modulation. ViInt32, enumeration INTERNAL_WAVEFORM, read and write. */
#define KVTD481X2C_ATTR_PM_INTERNAL_WAVEFORM 1150083

/**
 * High-pass filter of the frequency modulation, or none (DC). ViInt32, enumeration FM_HIGH_PASS_FILTER, read and write.
 */
#define KVTD481X2C_ATTR_FM_HIGH_PASS_FILTER 1150181

/** Whether the frequency modulation is on. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_FM_ENABLED 1250021

/**
 * What drives the frequency modulation, by its name in the class: "Internal" or "External". ViString, read and write.
 */
#define KVTD481X2C_ATTR_FM_SOURCE 1250022

/**
 * Coupling of the external input of the frequency modulation, which on this instrument is always DC. ViInt32,
 * enumeration FM_EXTERNAL_COUPLING, read and write.
 */
#define KVTD481X2C_ATTR_FM_EXTERNAL_COUPLING 1250023

/**
 * Voltage at the external input at which the frequency modulation reaches the deviation that is set. ViReal64, V, read.
 */
#define KVTD481X2C_ATTR_FM_NOMINAL_VOLTAGE 1250024

/** Frequency deviation, for the source in force. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FM_DEVIATION 1250025

/** Whether the phase modulation is on. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_PM_ENABLED 1250031

/** What drives the phase modulation, by its name in the class: "Internal" or "External". ViString, read and write. */
#define KVTD481X2C_ATTR_PM_SOURCE 1250032

/**
 * Coupling of the external input of the phase modulation, which on this instrument is always DC. ViInt32, enumeration
 * PM_EXTERNAL_COUPLING, read and write.
 */
#define KVTD481X2C_ATTR_PM_EXTERNAL_COUPLING 1250033

/** Voltage at the external input at which the phase modulation reaches the deviation that is set. ViReal64, V, read. */
#define KVTD481X2C_ATTR_PM_NOMINAL_VOLTAGE 1250034

/** Phase deviation, for the source in force. ViReal64, rad, read and write. */
#define KVTD481X2C_ATTR_PM_DEVIATION 1250035

/** Number of sources that the analog modulations have. ViInt32, read. */
#define KVTD481X2C_ATTR_ANALOG_MODULATION_SOURCE_COUNT 1250041

/**
 * Sets the source and the deviation of the frequency modulation.
 *
 * The deviation goes to the attribute that the source just set selects. A failure leaves the step before it in force.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param Source     "Internal" or "External", in any case. Not null.
 * @param Deviation  The deviation in hertz.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0013  Source is neither Internal nor External; nothing is sent
 *         0xBFFA0059  the instrument's source is no defined value
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_FM_SOURCE, KVTD481X2C_ATTR_FM_DEVIATION, in this order, up to the first failure.
 * Simulated: stores the values in the attributes that they are passed on to; nothing is sent.
 * @see KVTD481X2C_ATTR_FM_SOURCE, KVTD481X2C_ATTR_FM_DEVIATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureFM(ViSession Vi, ViConstString Source, ViReal64 Deviation);

/**
 * Switches the frequency modulation on or off.
 *
 * @param Vi       Handle from KVTD481X2C_InitWithOptions.
 * @param Enabled  VI_TRUE switches it on, VI_FALSE off.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0000  Enabled is neither VI_TRUE nor VI_FALSE; nothing is sent
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_FM_ENABLED.
 * Simulated: fails with VISA's status: the attribute makes its VISA call.
 * @see KVTD481X2C_ATTR_FM_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureFMEnabled(ViSession Vi, ViBoolean Enabled);

/**
 * Accepts DC as the coupling of the external input; the instrument has no other.
 *
 * Nothing is sent.
 *
 * @param Vi        Handle from KVTD481X2C_InitWithOptions.
 * @param Coupling  KVTD481X2C_VAL_FM_EXTERNAL_COUPLING_DC.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0013  Coupling is any other value, KVTD481X2C_VAL_FM_EXTERNAL_COUPLING_AC included
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_FM_EXTERNAL_COUPLING.
 * Simulated: the same.
 * @see KVTD481X2C_ATTR_FM_EXTERNAL_COUPLING
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureFMExternalCoupling(ViSession Vi, ViInt32 Coupling);

/**
 * Sets the source and the deviation of the phase modulation.
 *
 * The deviation goes to the attribute that the source just set selects. A failure leaves the step before it in force.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param Source     "Internal" or "External", in any case. Not null.
 * @param Deviation  The deviation in radians.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0013  Source is neither Internal nor External; nothing is sent
 *         0xBFFA0059  the instrument's source is no defined value
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PM_SOURCE, KVTD481X2C_ATTR_PM_DEVIATION, in this order, up to the first failure.
 * Simulated: stores the values in the attributes that they are passed on to; nothing is sent.
 * @see KVTD481X2C_ATTR_PM_SOURCE, KVTD481X2C_ATTR_PM_DEVIATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePM(ViSession Vi, ViConstString Source, ViReal64 Deviation);

/**
 * Switches the phase modulation on or off.
 *
 * @param Vi       Handle from KVTD481X2C_InitWithOptions.
 * @param Enabled  VI_TRUE switches it on, VI_FALSE off.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0000  Enabled is neither VI_TRUE nor VI_FALSE; nothing is sent
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PM_ENABLED.
 * Simulated: fails with VISA's status: the attribute makes its VISA call.
 * @see KVTD481X2C_ATTR_PM_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePMEnabled(ViSession Vi, ViBoolean Enabled);

/**
 * Accepts DC as the coupling of the external input; the instrument has no other.
 *
 * Nothing is sent.
 *
 * @param Vi        Handle from KVTD481X2C_InitWithOptions.
 * @param Coupling  KVTD481X2C_VAL_PM_EXTERNAL_COUPLING_DC.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0013  Coupling is any other value, KVTD481X2C_VAL_PM_EXTERNAL_COUPLING_AC included
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PM_EXTERNAL_COUPLING.
 * Simulated: the same.
 * @see KVTD481X2C_ATTR_PM_EXTERNAL_COUPLING
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePMExternalCoupling(ViSession Vi, ViInt32 Coupling);

/**
 * Gives the name of a source of the analog modulations.
 *
 * Nothing is sent.
 *
 * @param Vi              Handle from KVTD481X2C_InitWithOptions.
 * @param Index           1 for "Internal", 2 for "External".
 * @param NameBufferSize  Size of Name, terminator included; at least 1, not tested.
 * @param Name            The name, cut to the size; untouched after a failure.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Name is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0010  Index is neither 1 nor 2; the text gives it less 1, as it counts the names from 0
 *
 * Simulated: the same.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAnalogModulationSourceName(ViSession Vi, ViInt32 Index,
                                                                          ViInt32 NameBufferSize, ViChar Name[]);

/**
 * Reads KVTD481X2C_ATTR_FM_ERROR: the instrument's error number for the frequency modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FM:ERR?`.
 * Simulated: nothing is sent; 0.
 * @see KVTD481X2C_ATTR_FM_ERROR
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFMError(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_FM_EXTERNAL_SENSITIVITY: frequency deviation that the nominal voltage at the external input
 * gives.
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
 * Queries `:FM:SENS?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFMExternalSensitivity, KVTD481X2C_ATTR_FM_EXTERNAL_SENSITIVITY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFMExternalSensitivity(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FM_INTERNAL_DEVIATION: frequency deviation with the internal source.
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
 * Queries `:FM:DEV?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFMInternalDeviation, KVTD481X2C_ATTR_FM_INTERNAL_DEVIATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFMInternalDeviation(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FM_INTERNAL_FREQUENCY: frequency of the internal source of the frequency modulation.
 *
 * It is sent bare, without the unit that KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY is sent with.
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
 * Queries `:FM:FREQ?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFMInternalFrequency, KVTD481X2C_ATTR_FM_INTERNAL_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFMInternalFrequency(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FM_INTERNAL_WAVEFORM: waveform of the internal source of the frequency modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_GUASSIAN,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_NEGATIVE_RAMP, KVTD481X2C_VAL_INTERNAL_WAVEFORM_POSITIVE_RAMP,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_SQUARE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_TRIANGLE or
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_UNIFORM_NOISE. After a failure: -1 with 0xBFFA0059, else unchanged,
 *               but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FM:WAVE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE.
 * @see KVTD481X2C_SetFMInternalWaveform, KVTD481X2C_ATTR_FM_INTERNAL_WAVEFORM
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFMInternalWaveform(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_FM_MODE: whether the carrier stays locked while its frequency is modulated.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_FM_MODE_LOCKED or KVTD481X2C_VAL_FM_MODE_UNLOCKED. After a failure:
 *               -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FM:MODE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_FM_MODE_LOCKED.
 * @see KVTD481X2C_SetFMMode, KVTD481X2C_ATTR_FM_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFMMode(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_FM_SOURCE_EX: what drives the frequency modulation: the internal source or the external input.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL or
 *               KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL. After a failure: -1 with 0xBFFA0059, else unchanged, but for
 *               0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FM:SOUR?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL.
 * @see KVTD481X2C_SetFMSourceEx, KVTD481X2C_ATTR_FM_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFMSourceEx(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_FM_HIGH_PASS_FILTER: high-pass filter of the frequency modulation, or none (DC).
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_DC, KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_HP63 or
 *               KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_HP1K. After a failure: -1 with 0xBFFA0059, else unchanged, but for
 *               0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FM:HFIL?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_DC.
 * @see KVTD481X2C_SetFmHighPassFilter, KVTD481X2C_ATTR_FM_HIGH_PASS_FILTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFmHighPassFilter(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_PM_ERROR: the instrument's error number for the phase modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PM:ERR?`.
 * Simulated: nothing is sent; 0.
 * @see KVTD481X2C_ATTR_PM_ERROR
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPMError(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_PM_EXTERNAL_SENSITIVITY: phase deviation that the nominal voltage at the external input gives.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In rad. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PM:SENS?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPMExternalSensitivity, KVTD481X2C_ATTR_PM_EXTERNAL_SENSITIVITY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPMExternalSensitivity(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PM_INTERNAL_DEVIATION: phase deviation with the internal source.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In rad. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PM:DEV?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPMInternalDeviation, KVTD481X2C_ATTR_PM_INTERNAL_DEVIATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPMInternalDeviation(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PM_INTERNAL_FREQUENCY: frequency of the internal source of the phase modulation.
 *
 * It is sent bare, without the unit that KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY is sent with.
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
 * Queries `:PM:FREQ?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPMInternalFrequency, KVTD481X2C_ATTR_PM_INTERNAL_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPMInternalFrequency(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PM_INTERNAL_WAVEFORM: waveform of the internal source of the phase modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_GUASSIAN,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_NEGATIVE_RAMP, KVTD481X2C_VAL_INTERNAL_WAVEFORM_POSITIVE_RAMP,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_SQUARE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_TRIANGLE or
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_UNIFORM_NOISE. After a failure: -1 with 0xBFFA0059, else unchanged,
 *               but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PM:WAVE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE.
 * @see KVTD481X2C_SetPMInternalWaveform, KVTD481X2C_ATTR_PM_INTERNAL_WAVEFORM
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPMInternalWaveform(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_PM_MODE: bandwidth of the phase modulation: narrow or wide.
 *
 * Narrow and wide are the instrument's minimum and maximum bandwidth, and go out as these words.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_PM_MODE_NARROW or KVTD481X2C_VAL_PM_MODE_WIDE. After a failure: -1
 *               with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PM:BWID?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_PM_MODE_NARROW.
 * @see KVTD481X2C_SetPMMode, KVTD481X2C_ATTR_PM_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPMMode(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_PM_SOURCE_EX: what drives the phase modulation: the internal source or the external input.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL or
 *               KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL. After a failure: -1 with 0xBFFA0059, else unchanged, but for
 *               0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PM:SOUR?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL.
 * @see KVTD481X2C_SetPMSourceEx, KVTD481X2C_ATTR_PM_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPMSourceEx(ViSession Vi, ViInt32* Value);

/**
 * Measures the deviation of the frequency modulation, which is what the name calls its depth.
 *
 * The source and KVTD481X2C_ATTR_FM_ENABLED are not looked at, and the result is not remembered.
 *
 * @param Vi   Handle from KVTD481X2C_InitWithOptions.
 * @param Val  The deviation, in the instrument's terms. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Val is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:MEAS:FM:DEV?`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_MeasureFMDepth(ViSession Vi, ViReal64* Val);

/**
 * Measures the deviation of the phase modulation, which is what the name calls its depth.
 *
 * The source and KVTD481X2C_ATTR_PM_ENABLED are not looked at, and the result is not remembered.
 *
 * @param Vi   Handle from KVTD481X2C_InitWithOptions.
 * @param Val  The deviation, in the instrument's terms. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Val is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:MEAS:PM:DEV?`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_MeasurePMDepth(ViSession Vi, ViReal64* Val);

/**
 * Writes KVTD481X2C_ATTR_FM_EXTERNAL_SENSITIVITY: frequency deviation that the nominal voltage at the external input
 * gives.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FM:SENS <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetFMExternalSensitivity, KVTD481X2C_ATTR_FM_EXTERNAL_SENSITIVITY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFMExternalSensitivity(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FM_INTERNAL_DEVIATION: frequency deviation with the internal source.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FM:DEV <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetFMInternalDeviation, KVTD481X2C_ATTR_FM_INTERNAL_DEVIATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFMInternalDeviation(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FM_INTERNAL_FREQUENCY: frequency of the internal source of the frequency modulation.
 *
 * It is sent bare, without the unit that KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY is sent with.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FM:FREQ <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetFMInternalFrequency, KVTD481X2C_ATTR_FM_INTERNAL_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFMInternalFrequency(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FM_INTERNAL_WAVEFORM: waveform of the internal source of the frequency modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_GUASSIAN,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_NEGATIVE_RAMP, KVTD481X2C_VAL_INTERNAL_WAVEFORM_POSITIVE_RAMP,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_SQUARE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_TRIANGLE or
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_UNIFORM_NOISE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FM:WAVE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFMInternalWaveform, KVTD481X2C_ATTR_FM_INTERNAL_WAVEFORM
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFMInternalWaveform(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_FM_MODE: whether the carrier stays locked while its frequency is modulated.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_FM_MODE_LOCKED or KVTD481X2C_VAL_FM_MODE_UNLOCKED.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FM:MODE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFMMode, KVTD481X2C_ATTR_FM_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFMMode(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_FM_SOURCE_EX: what drives the frequency modulation: the internal source or the external input.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL or KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FM:SOUR <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFMSourceEx, KVTD481X2C_ATTR_FM_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFMSourceEx(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_FM_HIGH_PASS_FILTER: high-pass filter of the frequency modulation, or none (DC).
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_DC, KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_HP63 or
 *               KVTD481X2C_VAL_FM_HIGH_PASS_FILTER_HP1K.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FM:HFIL <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFmHighPassFilter, KVTD481X2C_ATTR_FM_HIGH_PASS_FILTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFmHighPassFilter(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_PM_EXTERNAL_SENSITIVITY: phase deviation that the nominal voltage at the external input gives.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In rad. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PM:SENS <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPMExternalSensitivity, KVTD481X2C_ATTR_PM_EXTERNAL_SENSITIVITY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPMExternalSensitivity(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PM_INTERNAL_DEVIATION: phase deviation with the internal source.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In rad. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PM:DEV <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPMInternalDeviation, KVTD481X2C_ATTR_PM_INTERNAL_DEVIATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPMInternalDeviation(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PM_INTERNAL_FREQUENCY: frequency of the internal source of the phase modulation.
 *
 * It is sent bare, without the unit that KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY is sent with.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PM:FREQ <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPMInternalFrequency, KVTD481X2C_ATTR_PM_INTERNAL_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPMInternalFrequency(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PM_INTERNAL_WAVEFORM: waveform of the internal source of the phase modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_INTERNAL_WAVEFORM_SINE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_GUASSIAN,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_NEGATIVE_RAMP, KVTD481X2C_VAL_INTERNAL_WAVEFORM_POSITIVE_RAMP,
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_SQUARE, KVTD481X2C_VAL_INTERNAL_WAVEFORM_TRIANGLE or
 *               KVTD481X2C_VAL_INTERNAL_WAVEFORM_UNIFORM_NOISE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PM:WAVE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPMInternalWaveform, KVTD481X2C_ATTR_PM_INTERNAL_WAVEFORM
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPMInternalWaveform(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_PM_MODE: bandwidth of the phase modulation: narrow or wide.
 *
 * Narrow and wide are the instrument's minimum and maximum bandwidth, and go out as these words.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_PM_MODE_NARROW or KVTD481X2C_VAL_PM_MODE_WIDE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PM:BWID <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPMMode, KVTD481X2C_ATTR_PM_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPMMode(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_PM_SOURCE_EX: what drives the phase modulation: the internal source or the external input.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL or KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PM:SOUR <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPMSourceEx, KVTD481X2C_ATTR_PM_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPMSourceEx(ViSession Vi, ViInt32 Value);

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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * @defgroup lf_generator LF generator
 *
 * The class has low-frequency generators, selected by name. The instrument has none as such, but the internal sources
 * of its amplitude, frequency and phase modulation: these are the three generators "AM", "FM" and "PM". One of them, or
 * several, is active, and an access to the frequency or the waveform becomes one to the internal frequency or waveform
 * of the modulation that it stands for. There is no command of its own.
 *
 * Opening a session makes "AM" active. Only the active generator counts: the selector of the generic access selects
 * nothing here. It is not among the values that KVTD481X2C_InvalidateAllAttributes forgets.
 * @{
 */

/** The active LF generators: one of "AM", "FM" and "PM", or several, separated by commas. ViString, read and write. */
#define KVTD481X2C_ATTR_ACTIVE_LF_GENERATOR 1250101

/** Frequency of the active LF generator. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY 1250102

/** Waveform of the active LF generator. ViInt32, enumeration INTERNAL_WAVEFORM, read and write. */
#define KVTD481X2C_ATTR_LF_GENERATOR_WAVEFORM 1250103

/** Number of LF generators. ViInt32, read. */
#define KVTD481X2C_ATTR_LF_GENERATOR_COUNT 1250104

/**
 * Sets the frequency and the waveform of the active LF generators.
 *
 * Both are set once for each active generator, and each time reach all of them: with several active the same values are
 * sent repeatedly. Stops at the first failure; what was set before it stays.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param Frequency  The frequency in hertz.
 * @param Waveform   A value of KVTD481X2C_ATTR_LF_GENERATOR_WAVEFORM.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0000  Waveform is no defined value; the frequency is set
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY, KVTD481X2C_ATTR_LF_GENERATOR_WAVEFORM, in this order, up to the first
 * failure.
 * Simulated: stores the values in the attributes that they are passed on to; nothing is sent.
 * @see KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY, KVTD481X2C_ATTR_LF_GENERATOR_WAVEFORM
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureLFGenerator(ViSession Vi, ViReal64 Frequency, ViInt32 Waveform);

/**
 * Gives the name of an LF generator.
 *
 * Nothing is sent.
 *
 * @param Vi              Handle from KVTD481X2C_InitWithOptions.
 * @param Index           1 for "AM", 2 for "FM", 3 for "PM".
 * @param NameBufferSize  Size of Name, terminator included; at least 1, not tested.
 * @param Name            The name, cut to the size; untouched after a failure.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Name is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0010  Index is none of 1 to 3; the text gives it less 1, as it counts the names from 0
 *
 * Simulated: the same.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetLFGeneratorName(ViSession Vi, ViInt32 Index, ViInt32 NameBufferSize,
                                                               ViChar Name[]);

/**
 * Chooses the LF generators that are active.
 *
 * The same as writing KVTD481X2C_ATTR_ACTIVE_LF_GENERATOR. A failure leaves the active generators as they were.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Active  "AM", "FM", "PM", or several, separated by commas.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0067  a name is none of AM, FM and PM; their case counts
 *         0xBFFA0044  Active is empty or null
 *         0xBFFA0066  Active is badly formed, or a name stands twice
 *         0xBFFA0064  a range in Active is no range, or overlaps
 *         0xBFFA0063  Active has more than one level
 *
 * Simulated: the same; nothing is sent in either case.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetActiveLFGenerator(ViSession Vi, ViConstString Active);

/** @} */

/**
 * @defgroup list List
 *
 * Lists of frequency and power points. The instrument has ten, numbered from 1, of up to 4000 points each.
 *
 * The class speaks of lists by name. The session keeps a table from the names given to KVTD481X2C_CreateFrequencyList
 * and its fellows to the numbers of the instrument. A new entry takes the lowest number that no entry holds; a name
 * that is created again takes the lowest free number as well and gives its old one back. Names are compared byte by
 * byte. The table ends with the session and is not touched by a reset; the lists stay in the instrument.
 *
 * The functions with a list number go past the table: the number is sent as it is.
 * @{
 */

/** Number of frequency points in the list. ViInt32, read. */
#define KVTD481X2C_ATTR_NUMBER_OF_LIST_FREQUENCY_POINTS 1150051

/** Number of power points in the list. ViInt32, read. */
#define KVTD481X2C_ATTR_NUMBER_OF_LIST_POWER_POINTS 1150052

/** Selects the list to play, by the name it was created under. ViString, read and write. */
#define KVTD481X2C_ATTR_LIST_SELECTED_NAME 1250281

/** Whether each trigger advances the list by one point. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_LIST_SINGLE_STEP_ENABLED 1250282

/** How long a list stays at each point. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_LIST_DWELL 1250283

/**
 * Forgets all names, so that the next list created is the first.
 *
 * The lists stay in the instrument, and so does the mode. Nothing is sent.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: the same.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ClearAllLists(ViSession Vi);

/**
 * Sets how long a list stays at each point.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Dwell  The time at each point in seconds.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_LIST_DWELL.
 * Simulated: fails with VISA's status: the attribute makes its VISA call.
 * @see KVTD481X2C_ATTR_LIST_DWELL
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureListDwell(ViSession Vi, ViReal64 Dwell);

/**
 * Copies the points of the sweep into a list.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST:COPY`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_CopyListSweep(ViSession Vi);

/**
 * Gives a list a name and loads it with frequencies, all at the present power level.
 *
 * The frequencies are sent, then the power level is read and sent once for each point. A failure of the first of these
 * is not reported, and the name stays in the table whatever fails later. The list is not selected. The text of the
 * length error names "Length" as the function and "CreateFrequencyList" as the parameter; callers know it so.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param Name       The name, which may be empty. Not null.
 * @param Length     Number of points, at most 4000.
 * @param Frequency  The frequencies in hertz. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0010  Length is above 4000; the table is as it was
 *         0xBFFA0000  ten lists have a name, also if Name is one of them; the table is as it was
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST%ld:FREQ:UPD %ld,%0.15,*lf`, `:POW?`, `:LIST%ld:POW:UPD %ld,%0.15,*lf`.
 * Simulated: the name enters the table; then the reading of the power level fails with VISA's status.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_CreateFrequencyList(ViSession Vi, ViConstString Name, ViInt32 Length,
                                                                const ViReal64* Frequency);

/**
 * Gives a list a name and loads it with frequencies and power levels.
 *
 * A failure of the frequencies is not reported, and the name stays in the table whatever fails later. The list is not
 * selected. The text of the length error names "Length" as the function and "CreateFrequencyPowerList" as the
 * parameter; callers know it so.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param Name       The name, which may be empty. Not null.
 * @param Length     Number of points, at most 4000.
 * @param Frequency  The frequencies in hertz. Not null.
 * @param Power      The power levels in dBm. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0010  Length is above 4000; the table is as it was
 *         0xBFFA0000  ten lists have a name, also if Name is one of them; the table is as it was
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST%ld:FREQ:UPD %ld,%0.15,*lf`, `:LIST%ld:POW:UPD %ld,%0.15,*lf`.
 * Simulated: the name enters the table; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_CreateFrequencyPowerList(ViSession Vi, ViConstString Name, ViInt32 Length,
                                                                     const ViReal64* Frequency, const ViReal64* Power);

/**
 * Gives a list a name and loads it with power levels, all at the present frequency.
 *
 * The power levels are sent, then the frequency is read and sent once for each point. A failure of the first of these
 * is not reported, and the name stays in the table whatever fails later. The list is not selected. The text of the
 * length error names "Length" as the function and "CreatePowerList" as the parameter; callers know it so.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Name    The name, which may be empty. Not null.
 * @param Length  Number of points, at most 4000.
 * @param Power   The power levels in dBm. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0010  Length is above 4000; the table is as it was
 *         0xBFFA0000  ten lists have a name, also if Name is one of them; the table is as it was
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST%ld:POW:UPD %ld,%0.15,*lf`, `:FREQ?`, `:LIST%ld:FREQ:UPD %ld,%0.15,*lf`.
 * Simulated: the name enters the table; then the reading of the frequency fails with VISA's status.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_CreatePowerList(ViSession Vi, ViConstString Name, ViInt32 Length,
                                                            const ViReal64* Power);

/**
 * Reads the frequency of a list.
 *
 * Where the instrument answers with several values, the first is taken and the others are dropped.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param List  The number of the list in the instrument, 1 to 10; not tested.
 * @param Val   The frequency in hertz. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  Val is null, also in a simulated session
 *         a VISA status when the exchange fails
 *
 * Queries `:LIST<List>:FREQ?`.
 * Simulated: returns 0, sends nothing and leaves Val as it was.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetListFrequency(ViSession Vi, ViInt32 List, ViReal64* Val);

/**
 * Reads the point at which a list stands.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param List  The number of the list in the instrument, 1 to 10; not tested.
 * @param Val   Index of the point. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  Val is null, also in a simulated session
 *         a VISA status when the exchange fails
 *
 * Queries `:LIST<List>:IND?`.
 * Simulated: returns 0, sends nothing and leaves Val as it was.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetListIndex(ViSession Vi, ViInt32 List, ViInt32* Val);

/**
 * Reads the power level of a list.
 *
 * Where the instrument answers with several values, the first is taken and the others are dropped.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param List  The number of the list in the instrument, 1 to 10; not tested.
 * @param Val   The power level in dBm. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  Val is null, also in a simulated session
 *         a VISA status when the exchange fails
 *
 * Queries `:LIST<List>:POW?`.
 * Simulated: returns 0, sends nothing and leaves Val as it was.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetListPowerLevel(ViSession Vi, ViInt32 List, ViReal64* Val);

/**
 * Reads the point at which the play of a list begins.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param List  The number of the list in the instrument, 1 to 10; not tested.
 * @param Val   Index of the first point played. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  Val is null, also in a simulated session
 *         a VISA status when the exchange fails
 *
 * Queries `:LIST<List>:STAR?`.
 * Simulated: returns 0, sends nothing and leaves Val as it was.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetListSweepStart(ViSession Vi, ViInt32 List, ViInt32* Val);

/**
 * Reads the point at which the play of a list ends.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param List  The number of the list in the instrument, 1 to 10; not tested.
 * @param Val   Index of the last point played. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  Val is null, also in a simulated session
 *         a VISA status when the exchange fails
 *
 * Queries `:LIST<List>:STOP?`.
 * Simulated: returns 0, sends nothing and leaves Val as it was.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetListSweepStop(ViSession Vi, ViInt32 List, ViInt32* Val);

/**
 * Reads KVTD481X2C_ATTR_NUMBER_OF_LIST_FREQUENCY_POINTS: number of frequency points in the list.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:LIST:FREQ:POIN?`.
 * Simulated: nothing is sent; 4000.
 * @see KVTD481X2C_ATTR_NUMBER_OF_LIST_FREQUENCY_POINTS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetNumberOfListFrequencyPoints(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_NUMBER_OF_LIST_POWER_POINTS: number of power points in the list.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:LIST:POW:POIN?`.
 * Simulated: nothing is sent; 4000.
 * @see KVTD481X2C_ATTR_NUMBER_OF_LIST_POWER_POINTS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetNumberOfListPowerPoints(ViSession Vi, ViInt32* Value);

/**
 * Takes the selected list back to its first point.
 *
 * As the name of a selected list is not kept, there is none to go by: nothing is sent and 0 is returned.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *
 * Simulated: the same.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ResetList(ViSession Vi);

/**
 * Selects the list to play, by name.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param Name  The name it was created under. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA200A  no list of this name; the mode is as it was
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_LIST_SELECTED_NAME.
 * Simulated: sets the stored frequency mode; nothing is sent.
 * @see KVTD481X2C_ATTR_LIST_SELECTED_NAME
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SelectList(ViSession Vi, ViConstString Name);

/**
 * Loads a list with frequencies.
 *
 * All points go out in one line, with fifteen digits behind the decimal point.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param List    The number of the list in the instrument, 1 to 10; not tested.
 * @param Count   Number of values.
 * @param Values  The frequencies in hertz. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST%ld:FREQ %0.15,*lf`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetListFrequencies(ViSession Vi, ViInt32 List, ViInt32 Count,
                                                               const ViReal64* Values);

/**
 * Moves a list to one of its points.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param List   The number of the list in the instrument, 1 to 10; not tested.
 * @param Index  Index of the point.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST<List>:IND <Index>`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetListIndex(ViSession Vi, ViInt32 List, ViInt32 Index);

/**
 * Loads a list with power levels.
 *
 * All points go out in one line, with fifteen digits behind the decimal point.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param List    The number of the list in the instrument, 1 to 10; not tested.
 * @param Count   Number of values.
 * @param Values  The power levels in dBm. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST%ld:POW %0.15,*lf`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetListPowerLevels(ViSession Vi, ViInt32 List, ViInt32 Count,
                                                               const ViReal64* Values);

/**
 * Sets the point at which the play of a list begins.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param List   The number of the list in the instrument, 1 to 10; not tested.
 * @param Start  Index of the first point played.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST<List>:STAR <Start>`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetListSweepStart(ViSession Vi, ViInt32 List, ViInt32 Start);

/**
 * Sets the point at which the play of a list ends.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param List  The number of the list in the instrument, 1 to 10; not tested.
 * @param Stop  Index of the last point played.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST<List>:STOP <Stop>`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetListSweepStop(ViSession Vi, ViInt32 List, ViInt32 Stop);

/**
 * Changes frequencies of a list from a point on.
 *
 * All points go out in one line, with fifteen digits behind the decimal point.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param List    The number of the list in the instrument, 1 to 10; not tested.
 * @param Start   Index of the first point to change, from 0.
 * @param Count   Number of values.
 * @param Values  The frequencies in hertz. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST%ld:FREQ:UPD %ld,%0.15,*lf`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_UpdateListFrequencies(ViSession Vi, ViInt32 List, ViInt32 Start,
                                                                  ViInt32 Count, const ViReal64* Values);

/**
 * Changes power levels of a list from a point on.
 *
 * All points go out in one line, with fifteen digits behind the decimal point.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param List    The number of the list in the instrument, 1 to 10; not tested.
 * @param Start   Index of the first point to change, from 0.
 * @param Count   Number of values.
 * @param Values  The power levels in dBm. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:LIST%ld:POW:UPD %ld,%0.15,*lf`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_UpdateListPowerLevels(ViSession Vi, ViInt32 List, ViInt32 Start,
                                                                  ViInt32 Count, const ViReal64* Values);

/** @} */

/**
 * @defgroup mass_memory Mass memory
 *
 * The instrument's file system: its devices and directories, files and their transfer, saved states and screenshots.
 * The driver keeps nothing of it; each call is one command.
 *
 * Names go into the command as they stand, between quotes: nothing in them is checked, and a quote in them is not
 * escaped. No name may be null.
 * @{
 */

/** The memory device that is meant where none is given. ViString, read and write. */
#define KVTD481X2C_ATTR_DEFAULT_MEMORY_DEVICE 1150166

/** The directory that is meant where none is given. ViString, read and write. */
#define KVTD481X2C_ATTR_DEFAULT_DIRECTORY 1150167

/** The memory devices that the instrument has. ViString, read. */
#define KVTD481X2C_ATTR_MEMORY_DEVICES 1150168

/**
 * Copies a file.
 *
 * @param Vi                 Handle from KVTD481X2C_InitWithOptions.
 * @param SourceDevice       The device of the file.
 * @param SourceFile         The file.
 * @param DestinationDevice  The device of the copy.
 * @param DestinationFile    The copy.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:COPY "<SourceDevice>","<SourceFile>","<DestinationDevice>","<DestinationFile>"`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_CopyFile(ViSession Vi, ViConstString SourceDevice, ViConstString SourceFile,
                                                     ViConstString DestinationDevice, ViConstString DestinationFile);

/**
 * Creates a directory.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param Device     The device.
 * @param Directory  The directory.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:CRE:DIR "<Device>","<Directory>"`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_CreateDirectory(ViSession Vi, ViConstString Device,
                                                            ViConstString Directory);

/**
 * Deletes a directory.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param Device     The device.
 * @param Directory  The directory.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:DEL:DIR "<Device>","<Directory>"`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_DeleteDirectory(ViSession Vi, ViConstString Device,
                                                            ViConstString Directory);

/**
 * Deletes a file.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Device  The device.
 * @param File    The file.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `MMEM:DEL:FIL "<Device>","<File>"`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_DeleteFile(ViSession Vi, ViConstString Device, ViConstString File);

/**
 * Makes a removable memory device ready to be taken out.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Device  The device.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:EJEC "<Device>"`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_EjectDevice(ViSession Vi, ViConstString Device);

/**
 * Reads KVTD481X2C_ATTR_DEFAULT_DIRECTORY: the directory that is meant where none is given.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:MMEM:CDIR?`.
 * Simulated: nothing is sent; the value last stored, before that the empty text.
 * @see KVTD481X2C_SetDefaultDirectory, KVTD481X2C_ATTR_DEFAULT_DIRECTORY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetDefaultDirectory(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_DEFAULT_MEMORY_DEVICE: the memory device that is meant where none is given.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:MMEM:MSIS?`.
 * Simulated: nothing is sent; the value last stored, before that the empty text.
 * @see KVTD481X2C_SetDefaultMemoryDevice, KVTD481X2C_ATTR_DEFAULT_MEMORY_DEVICE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetDefaultMemoryDevice(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Lists what a directory holds.
 *
 * The listing is one line; what does not fit into Val is dropped.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param Device         The device.
 * @param Directory      The directory.
 * @param ValBufferSize  Size of Val, terminator included; at least 1, not tested.
 * @param Val            The listing, as the instrument gives it, cut to the size. After a failure: unchanged, or what
 *                       had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  Val is null, also in a simulated session
 *         a VISA status when the exchange fails
 *
 * Queries `:MMEM:CAT:DIR? "<Device>","<Directory>"`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetDirectory(ViSession Vi, ViConstString Device, ViConstString Directory,
                                                         ViInt32 ValBufferSize, ViChar Val[]);

/**
 * Gives the size of a directory.
 *
 * @param Vi         Handle from KVTD481X2C_InitWithOptions.
 * @param Device     The device.
 * @param Directory  The directory.
 * @param Val        The size, as the instrument gives it. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  Val is null, also in a simulated session
 *         a VISA status when the exchange fails
 *
 * Queries `:MMEM:CAT:DIR:SIZE? "<Device>","<Directory>"`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetDirectorySize(ViSession Vi, ViConstString Device,
                                                             ViConstString Directory, ViInt32* Val);

/**
 * Reads KVTD481X2C_ATTR_MEMORY_DEVICES: the memory devices that the instrument has.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:MMEM:CAT:MSUS?`.
 * Simulated: nothing is sent; the text "Internal".
 * @see KVTD481X2C_ATTR_MEMORY_DEVICES
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetMemoryDevices(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Puts the instrument into a state saved in a file.
 *
 * The values that the session remembers stay: call KVTD481X2C_InvalidateAllAttributes where they are to be forgotten.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Device  The device.
 * @param File    The file.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:LOAD:STAT 0,"<Device>","<File>"`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_LoadState(ViSession Vi, ViConstString Device, ViConstString File);

/**
 * Reads a file of the instrument.
 *
 * The bytes are read straight into Data, up to its size. The rest of a larger file, and the line end behind the block
 * in any case, stay in the input and are met by the next query of the session: give a buffer that holds the file, and
 * take the line end away with KVTD481X2C_viRead. A block of unannounced length counts as an empty one. A header that
 * announces a length of more than ten digits ends the process.
 *
 * @param Vi              Handle from KVTD481X2C_InitWithOptions.
 * @param Device          The device.
 * @param File            The file.
 * @param DataBufferSize  Size of Data in bytes. Not negative.
 * @param Data            The bytes, without a terminator. After a failure: unchanged, or what had arrived.
 * @param DataActualSize  Number of bytes in Data; unchanged after a failure.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  one of Data, DataActualSize is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  never from this call: no status check follows it
 *         0xBFFA0059  the answer is no block; the rest of it stays unread
 *         a VISA status when the exchange fails
 *
 * Queries `:MMEM:DATA? "<Device>","<File>"`.
 * Simulated: returns 0 and leaves both outputs as they were; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ReadFile(ViSession Vi, ViConstString Device, ViConstString File,
                                                     ViInt32 DataBufferSize, ViByte Data[], ViInt32* DataActualSize);

/**
 * Saves the instrument's state in a file.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Device  The device.
 * @param File    The file.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:STOR:STAT 0,"<Device>","<File>"`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SaveState(ViSession Vi, ViConstString Device, ViConstString File);

/**
 * Writes a file on the instrument.
 *
 * The bytes go out as one block, whose size only Count and the timeout bound. Unlike a screenshot it does not raise
 * KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT: for a large file that is the caller's to do.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Device  The device.
 * @param File    The file.
 * @param Count   Number of bytes.
 * @param Data    The bytes, of any value. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:DATA "%s","%s",%*b`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SendFile(ViSession Vi, ViConstString Device, ViConstString File,
                                                     ViInt32 Count, const ViByte* Data);

/**
 * Writes KVTD481X2C_ATTR_DEFAULT_DIRECTORY: the directory that is meant where none is given.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new text, terminated. It is sent as it stands; the driver checks and escapes nothing in it.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:CDIR "<Value>"`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetDefaultDirectory, KVTD481X2C_ATTR_DEFAULT_DIRECTORY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetDefaultDirectory(ViSession Vi, ViConstString Value);

/**
 * Writes KVTD481X2C_ATTR_DEFAULT_MEMORY_DEVICE: the memory device that is meant where none is given.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new text, terminated. It is sent as it stands; the driver checks and escapes nothing in it.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:MSIS "<Value>"`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetDefaultMemoryDevice, KVTD481X2C_ATTR_DEFAULT_MEMORY_DEVICE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetDefaultMemoryDevice(ViSession Vi, ViConstString Value);

/**
 * Reads a picture of the instrument's screen.
 *
 * With KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT below 20000 ms, or without end (-1), the transfer runs with 20000 ms, which is
 * put back behind it. When the query fails, the timeout stays at 20000 ms.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param ValBufferSize  Size of Val in bytes. Not negative.
 * @param Val            The picture, cut to the size, without a terminator. After a failure: unchanged, or what had
 *                       arrived.
 * @param ValActualSize  Number of bytes in Val. After a failure: unchanged, but for 0xBFFA0001, which is found after
 *                       the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  one of Val, ValActualSize is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:MMEM:STOR:SCR?`.
 * Simulated: returns 0 and leaves both outputs as they were; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_TakeScreenshotAndReturnData(ViSession Vi, ViInt32 ValBufferSize,
                                                                        ViByte Val[], ViInt32* ValActualSize);

/**
 * Has the instrument store a picture of its screen in its own memory.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:MMEM:STOR:SCR`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_TakeScreenshotAndStore(ViSession Vi);

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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * Simulated: nothing is sent; the value is stored.
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
 * @defgroup pulse Pulse modulation
 *
 * The pulse modulator and the pulse generator behind it: a train of up to four pulses, each with a width and a delay,
 * its period, its count, and the trigger that starts it. Times are in seconds.
 *
 * The class knows one pulse, a double pulse, gating and a trigger delay. The instrument has no commands for these: the
 * first two places of the train and the type of the trigger stand in for them. The correspondence is uneven, and
 * callers rely on it as it is: the delay of the double pulse is the second width, and a new first width goes to the
 * second delay while the double pulse is on.
 *
 * Whether the double pulse is on is remembered by the session. It begins off and changes with
 * KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED alone: no reset, no count written elsewhere and no forgetting of values touches
 * it.
 * @{
 */

/** Number of pulses in the train. ViInt32, read and write. */
#define KVTD481X2C_ATTR_PULSE_COUNT 1150084

/** The instrument's error number for the pulse modulation. ViInt32, read. */
#define KVTD481X2C_ATTR_PULSE_ERROR 1150086

/** Frequency of the internal source of the pulse modulation. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_PULSE_INTERNAL_FREQUENCY 1150087

/** Period of the pulse train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_INTERNAL_PERIOD 1150088

/** How the pulse generator is triggered. ViInt32, enumeration TRIGGER_MODE, read and write. */
#define KVTD481X2C_ATTR_PULSE_MODULATION_TRIGGER_MODE 1150090

/**
 * What drives the pulse modulation: the internal source or the external input. ViInt32, enumeration MODULATION_SOURCE,
 * read and write.
 */
#define KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE_EX 1150092

/** Delay of the first pulse of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_DELAY1 1150093

/** Delay of the second pulse of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_DELAY2 1150094

/** Delay of the third pulse of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_DELAY3 1150095

/** Delay of the fourth pulse of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_DELAY4 1150096

/** Width of the first pulse of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_WIDTH1 1150097

/** Width of the second pulse of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_WIDTH2 1150098

/** Width of the third pulse of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_WIDTH3 1150099

/** Width of the fourth pulse of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_WIDTH4 1150100

/** Whether the pulse modulation is on. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_PULSE_MODULATION_ENABLED 1250051

/**
 * What drives the pulse modulation, in the terms of the class. ViInt32, enumeration PULSE_MODULATION_SOURCE, read and
 * write.
 */
#define KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE 1250052

/**
 * Polarity of the external input of the pulse modulation. ViInt32, enumeration PULSE_MODULATION_EXTERNAL_POLARITY, read
 * and write.
 */
#define KVTD481X2C_ATTR_PULSE_MODULATION_EXTERNAL_POLARITY 1250053

/** Period of the internal trigger of the pulse generator: the period of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_INTERNAL_TRIGGER_PERIOD 1250121

/** Width of the pulse: the first width of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_WIDTH 1250122

/** Whether the pulse generator is gated by the external input. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_PULSE_GATING_ENABLED 1250123

/**
 * Where the pulse generator's trigger comes from, in the terms of the class: always from outside. ViInt32, enumeration
 * PULSE_TRIGGER_SOURCE, read and write.
 */
#define KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE 1250124

/**
 * Slope of the external signal that triggers the pulse generator. ViInt32, enumeration PULSE_EXTERNAL_TRIGGER_SLOPE,
 * read and write.
 */
#define KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_SLOPE 1250125

/** Delay from the external trigger to the pulse: the first delay of the train. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_DELAY 1250126

/** Whether the double pulse is on. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED 1250131

/** Delay of the double pulse, which the second width of the train holds. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_PULSE_DOUBLE_DELAY 1250132

/** Polarity of the pulse output. ViInt32, enumeration PULSE_OUTPUT_POLARITY, read and write. */
#define KVTD481X2C_ATTR_PULSE_OUTPUT_POLARITY 1250141

/** Whether the pulse output is on, which on this instrument it always is. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED 1250142

/**
 * Sets the trigger source, the width and the gating of the pulse generator.
 *
 * A failure leaves the steps before it in force.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param TriggerSource  KVTD481X2C_VAL_PULSE_TRIGGER_SOURCE_EXTERNAL.
 * @param Width          The width in seconds.
 * @param Gating         Whether the generator is gated.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0013  TriggerSource is any other value, the internal one included; nothing is sent
 *         0xBFFA0059  the instrument's trigger type is no defined value
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE, KVTD481X2C_ATTR_PULSE_WIDTH, KVTD481X2C_ATTR_PULSE_GATING_ENABLED, in this
 * order, up to the first failure.
 * Simulated: stores the values in the attributes that they are passed on to; nothing is sent.
 * @see KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE, KVTD481X2C_ATTR_PULSE_WIDTH, KVTD481X2C_ATTR_PULSE_GATING_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePulse(ViSession Vi, ViInt32 TriggerSource, ViReal64 Width,
                                                           ViBoolean Gating);

/**
 * Switches the double pulse on or off, and sets its delay.
 *
 * The delay is set either way. Switching on copies the first width to the second, which the delay then replaces, since
 * the second width is where it is held. A failure leaves the steps before it in force.
 *
 * @param Vi       Handle from KVTD481X2C_InitWithOptions.
 * @param Enabled  Anything but VI_FALSE switches the double pulse on.
 * @param Delay    The delay in seconds.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, KVTD481X2C_ATTR_PULSE_DOUBLE_DELAY, in this order, up to the first
 * failure.
 * Simulated: stores the values in the attributes that they are passed on to; nothing is sent.
 * @see KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, KVTD481X2C_ATTR_PULSE_DOUBLE_DELAY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePulseDouble(ViSession Vi, ViBoolean Enabled, ViReal64 Delay);

/**
 * Sets the slope of the external trigger of the pulse generator and the delay behind it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Slope  A value of KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_SLOPE.
 * @param Delay  The delay in seconds.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0000  Slope is no defined value; nothing is sent
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_SLOPE, KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_DELAY, in this order, up to
 * the first failure.
 * Simulated: fails with VISA's status: the slope makes its VISA call. The delay is not reached.
 * @see KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_SLOPE, KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_DELAY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePulseExternalTrigger(ViSession Vi, ViInt32 Slope, ViReal64 Delay);

/**
 * Sets the period of the internal trigger of the pulse generator.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Period  The period in seconds.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PULSE_INTERNAL_TRIGGER_PERIOD.
 * Simulated: stores the period; nothing is sent.
 * @see KVTD481X2C_ATTR_PULSE_INTERNAL_TRIGGER_PERIOD
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePulseInternalTrigger(ViSession Vi, ViReal64 Period);

/**
 * Switches the pulse modulation on or off.
 *
 * @param Vi       Handle from KVTD481X2C_InitWithOptions.
 * @param Enabled  VI_TRUE switches it on, VI_FALSE off.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0000  Enabled is neither VI_TRUE nor VI_FALSE; nothing is sent
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PULSE_MODULATION_ENABLED.
 * Simulated: fails with VISA's status: the attribute makes its VISA call.
 * @see KVTD481X2C_ATTR_PULSE_MODULATION_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePulseModulationEnabled(ViSession Vi, ViBoolean Enabled);

/**
 * Sets the polarity of the external input of the pulse modulation.
 *
 * @param Vi        Handle from KVTD481X2C_InitWithOptions.
 * @param Polarity  A value of KVTD481X2C_ATTR_PULSE_MODULATION_EXTERNAL_POLARITY.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0000  Polarity is no defined value; nothing is sent
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PULSE_MODULATION_EXTERNAL_POLARITY.
 * Simulated: fails with VISA's status: the attribute makes its VISA call.
 * @see KVTD481X2C_ATTR_PULSE_MODULATION_EXTERNAL_POLARITY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePulseModulationExternalPolarity(ViSession Vi, ViInt32 Polarity);

/**
 * Sets the source of the pulse modulation.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Source  A value of KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0013  Source is no defined value; nothing is sent
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE.
 * Simulated: stores the source; nothing is sent.
 * @see KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePulseModulationSource(ViSession Vi, ViInt32 Source);

/**
 * Sets the polarity of the pulse output, which itself is always on.
 *
 * The polarity is sent before the switch is judged, and stays if that fails.
 *
 * @param Vi        Handle from KVTD481X2C_InitWithOptions.
 * @param Polarity  A value of KVTD481X2C_ATTR_PULSE_OUTPUT_POLARITY.
 * @param Enabled   VI_TRUE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0000  Polarity is no defined value; nothing is sent
 *         0xBFFA0013  Enabled is any value but VI_TRUE; the polarity is set
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_PULSE_OUTPUT_POLARITY, KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED, in this order, up to the first
 * failure.
 * Simulated: fails with VISA's status: the polarity makes its VISA call.
 * @see KVTD481X2C_ATTR_PULSE_OUTPUT_POLARITY, KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePulseOutput(ViSession Vi, ViInt32 Polarity, ViBoolean Enabled);

/**
 * Reads KVTD481X2C_ATTR_PULSE_COUNT: number of pulses in the train.
 *
 * KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED writes it and does not read it, so that a count written here leaves what that
 * attribute says.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:COUN?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetPulseCount, KVTD481X2C_ATTR_PULSE_COUNT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseCount(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_DELAY1: delay of the first pulse of the train.
 *
 * KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_DELAY passes its value on to it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:DEL1?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseDelay1, KVTD481X2C_ATTR_PULSE_DELAY1
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseDelay1(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_DELAY2: delay of the second pulse of the train.
 *
 * With the double pulse on, a new KVTD481X2C_ATTR_PULSE_WIDTH1 goes here as well.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:DEL2?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseDelay2, KVTD481X2C_ATTR_PULSE_DELAY2
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseDelay2(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_DELAY3: delay of the third pulse of the train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:DEL3?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseDelay3, KVTD481X2C_ATTR_PULSE_DELAY3
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseDelay3(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_DELAY4: delay of the fourth pulse of the train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:DEL4?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseDelay4, KVTD481X2C_ATTR_PULSE_DELAY4
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseDelay4(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_ERROR: the instrument's error number for the pulse modulation.
 *
 * A simulated session reads 1, where the other modulations read 0.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULM:ERR?`.
 * Simulated: nothing is sent; 1.
 * @see KVTD481X2C_ATTR_PULSE_ERROR
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseError(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_INTERNAL_FREQUENCY: frequency of the internal source of the pulse modulation.
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
 * Queries `:PULM:FREQ?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseInternalFrequency, KVTD481X2C_ATTR_PULSE_INTERNAL_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseInternalFrequency(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_INTERNAL_PERIOD: period of the pulse train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:PER?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseInternalPeriod, KVTD481X2C_ATTR_PULSE_INTERNAL_PERIOD
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseInternalPeriod(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE_EX: what drives the pulse modulation: the internal source or the
 * external input.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL or
 *               KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL. After a failure: -1 with 0xBFFA0059, else unchanged, but for
 *               0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULM:SOUR?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL.
 * @see KVTD481X2C_SetPulseModulationSourceEx, KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseModulationSourceEx(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_MODULATION_TRIGGER_MODE: how the pulse generator is triggered.
 *
 * KVTD481X2C_ATTR_PULSE_GATING_ENABLED is a view of it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_TRIGGER_MODE_FREERUN, KVTD481X2C_VAL_TRIGGER_MODE_GATED,
 *               KVTD481X2C_VAL_TRIGGER_MODE_DELAYED, KVTD481X2C_VAL_TRIGGER_MODE_TRIGGERED,
 *               KVTD481X2C_VAL_TRIGGER_MODE_TRIGGER_DELAYED or KVTD481X2C_VAL_TRIGGER_MODE_COMPOSITE. After a failure:
 *               -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:TRIG:SEQ3:TYPE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_TRIGGER_MODE_FREERUN.
 * @see KVTD481X2C_SetPulseModulationTriggerMode, KVTD481X2C_ATTR_PULSE_MODULATION_TRIGGER_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseModulationTriggerMode(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_WIDTH1: width of the first pulse of the train.
 *
 * With the double pulse on, a good write in a real session is followed by a write of the same value to
 * KVTD481X2C_ATTR_PULSE_DELAY2, whose status is then the result. The second width stays.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:WIDT1?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseWidth1, KVTD481X2C_ATTR_PULSE_WIDTH1
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseWidth1(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_WIDTH2: width of the second pulse of the train.
 *
 * KVTD481X2C_ATTR_PULSE_DOUBLE_DELAY passes its value on to it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:WIDT2?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseWidth2, KVTD481X2C_ATTR_PULSE_WIDTH2
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseWidth2(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_WIDTH3: width of the third pulse of the train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:WIDT3?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseWidth3, KVTD481X2C_ATTR_PULSE_WIDTH3
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseWidth3(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_PULSE_WIDTH4: width of the fourth pulse of the train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:PULS:WIDT4?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPulseWidth4, KVTD481X2C_ATTR_PULSE_WIDTH4
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPulseWidth4(ViSession Vi, ViReal64* Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_COUNT: number of pulses in the train.
 *
 * KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED writes it and does not read it, so that a count written here leaves what that
 * attribute says.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:COUN <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseCount, KVTD481X2C_ATTR_PULSE_COUNT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseCount(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_DELAY1: delay of the first pulse of the train.
 *
 * KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_DELAY passes its value on to it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:DEL1 <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseDelay1, KVTD481X2C_ATTR_PULSE_DELAY1
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseDelay1(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_DELAY2: delay of the second pulse of the train.
 *
 * With the double pulse on, a new KVTD481X2C_ATTR_PULSE_WIDTH1 goes here as well.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:DEL2 <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseDelay2, KVTD481X2C_ATTR_PULSE_DELAY2
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseDelay2(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_DELAY3: delay of the third pulse of the train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:DEL3 <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseDelay3, KVTD481X2C_ATTR_PULSE_DELAY3
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseDelay3(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_DELAY4: delay of the fourth pulse of the train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:DEL4 <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseDelay4, KVTD481X2C_ATTR_PULSE_DELAY4
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseDelay4(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_INTERNAL_FREQUENCY: frequency of the internal source of the pulse modulation.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULM:FREQ <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseInternalFrequency, KVTD481X2C_ATTR_PULSE_INTERNAL_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseInternalFrequency(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_INTERNAL_PERIOD: period of the pulse train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:PER <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseInternalPeriod, KVTD481X2C_ATTR_PULSE_INTERNAL_PERIOD
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseInternalPeriod(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE_EX: what drives the pulse modulation: the internal source or the
 * external input.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL or KVTD481X2C_VAL_MODULATION_SOURCE_EXTERNAL.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULM:SOUR <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPulseModulationSourceEx, KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE_EX
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseModulationSourceEx(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_MODULATION_TRIGGER_MODE: how the pulse generator is triggered.
 *
 * KVTD481X2C_ATTR_PULSE_GATING_ENABLED is a view of it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_TRIGGER_MODE_FREERUN, KVTD481X2C_VAL_TRIGGER_MODE_GATED,
 *               KVTD481X2C_VAL_TRIGGER_MODE_DELAYED, KVTD481X2C_VAL_TRIGGER_MODE_TRIGGERED,
 *               KVTD481X2C_VAL_TRIGGER_MODE_TRIGGER_DELAYED or KVTD481X2C_VAL_TRIGGER_MODE_COMPOSITE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:TRIG:SEQ3:TYPE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPulseModulationTriggerMode, KVTD481X2C_ATTR_PULSE_MODULATION_TRIGGER_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseModulationTriggerMode(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_WIDTH1: width of the first pulse of the train.
 *
 * With the double pulse on, a good write in a real session is followed by a write of the same value to
 * KVTD481X2C_ATTR_PULSE_DELAY2, whose status is then the result. The second width stays.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:WIDT1 <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseWidth1, KVTD481X2C_ATTR_PULSE_WIDTH1
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseWidth1(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_WIDTH2: width of the second pulse of the train.
 *
 * KVTD481X2C_ATTR_PULSE_DOUBLE_DELAY passes its value on to it.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:WIDT2 <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseWidth2, KVTD481X2C_ATTR_PULSE_WIDTH2
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseWidth2(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_WIDTH3: width of the third pulse of the train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:WIDT3 <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseWidth3, KVTD481X2C_ATTR_PULSE_WIDTH3
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseWidth3(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_PULSE_WIDTH4: width of the fourth pulse of the train.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:PULS:WIDT4 <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPulseWidth4, KVTD481X2C_ATTR_PULSE_WIDTH4
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPulseWidth4(ViSession Vi, ViReal64 Value);

/** @} */

/**
 * @defgroup reference Reference oscillator
 *
 * Which source each stage of the instrument's frequency reference is using, and the calibration of the main and of the
 * low-frequency reference: started and aborted here, and followed through its status.
 *
 * The sources can be read and not chosen. The texts of status and date are the instrument's, without their line end.
 * @{
 */

/** How the calibration of the main reference stands. ViString, read. */
#define KVTD481X2C_ATTR_REFERENCE_CALIBRATION_STATUS 1150017

/** How the calibration of the low-frequency reference stands. ViString, read. */
#define KVTD481X2C_ATTR_LOW_FREQUENCY_REFERENCE_CALIBRATION_STATUS 1150018

/** The source that the frequency reference follows. ViInt32, enumeration REFERENCE_OSCILLATOR_SOURCE, read. */
#define KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_ACTIVE_SOURCE 1150137

/** The source of the low-frequency stage of the reference. ViInt32, enumeration LOW_FREQUENCY_SOURCE, read. */
#define KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_LOW_FREQUENCY_SOURCE 1150138

/** The source of the multiplied stage of the reference. ViInt32, enumeration MULTIPLIED_SOURCE, read. */
#define KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_MULTIPLIED_SOURCE 1150139

/** The source of the high-frequency stage of the reference. ViInt32, enumeration HIGH_FREQUENCY_SOURCE, read. */
#define KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_HIGH_FREQUENCY_SOURCE 1150140

/** When the low-frequency reference was last calibrated. ViString, read. */
#define KVTD481X2C_ATTR_LOW_FREQUENCY_REFERENCE_LAST_CALIBRATION_DATE 1150179

/** When the main reference was last calibrated. ViString, read. */
#define KVTD481X2C_ATTR_REFERENCE_LAST_CALIBRATION_DATE 1150180

/**
 * Ends the calibration of the low-frequency reference before it is done.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:DIAG:CAL:REF:LFR:ABOR`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_AbortLowFrequencyReferenceCalibration(ViSession Vi);

/**
 * Ends the calibration of the main reference before it is done.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:DIAG:CAL:REF:ABOR`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_AbortReferenceCalibration(ViSession Vi);

/**
 * Reads KVTD481X2C_ATTR_LOW_FREQUENCY_REFERENCE_CALIBRATION_STATUS: how the calibration of the low-frequency reference
 * stands.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:DIAG:CAL:REF:LFR:STAT?`.
 * Simulated: nothing is sent; the text "0".
 * @see KVTD481X2C_ATTR_LOW_FREQUENCY_REFERENCE_CALIBRATION_STATUS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetLowFrequencyReferenceCalibrationStatus(ViSession Vi, ViInt32 BufferSize,
                                                                                      ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_LOW_FREQUENCY_REFERENCE_LAST_CALIBRATION_DATE: when the low-frequency reference was last
 * calibrated.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:DIAG:CAL:REF:LFR:DATE?`.
 * Simulated: nothing is sent; the text "0".
 * @see KVTD481X2C_ATTR_LOW_FREQUENCY_REFERENCE_LAST_CALIBRATION_DATE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetLowFrequencyReferenceLastCalibrationDate(ViSession Vi,
                                                                                        ViInt32 BufferSize,
                                                                                        ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_REFERENCE_CALIBRATION_STATUS: how the calibration of the main reference stands.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:DIAG:CAL:REF:STAT?`.
 * Simulated: nothing is sent; the text "0".
 * @see KVTD481X2C_ATTR_REFERENCE_CALIBRATION_STATUS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetReferenceCalibrationStatus(ViSession Vi, ViInt32 BufferSize,
                                                                          ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_REFERENCE_LAST_CALIBRATION_DATE: when the main reference was last calibrated.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:DIAG:CAL:REF:DATE?`.
 * Simulated: nothing is sent; the text "0".
 * @see KVTD481X2C_ATTR_REFERENCE_LAST_CALIBRATION_DATE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetReferenceLastCalibrationDate(ViSession Vi, ViInt32 BufferSize,
                                                                            ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_ACTIVE_SOURCE: the source that the frequency reference follows.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_1600,
 *               KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_100,
 *               KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_1PPS,
 *               KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_10,
 *               KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_GPS,
 *               KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_RUBIDIUM_10,
 *               KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_FREERUN_10 or
 *               KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_INTERNAL_FREERUN_100. After a failure: -1 with 0xBFFA0059,
 *               else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:ROSC:SOUR:CURR?`.
 * Simulated: nothing is sent; KVTD481X2C_VAL_REFERENCE_OSCILLATOR_SOURCE_EXTERNAL_1600.
 * @see KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_ACTIVE_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetReferenceOscillatorActiveSource(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_HIGH_FREQUENCY_SOURCE: the source of the high-frequency stage of the
 * reference.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_HIGH_FREQUENCY_SOURCE_INTERNAL or
 *               KVTD481X2C_VAL_HIGH_FREQUENCY_SOURCE_EXTERNAL. After a failure: -1 with 0xBFFA0059, else unchanged, but
 *               for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:ROSC:HFR:SOUR?`.
 * Simulated: nothing is sent; KVTD481X2C_VAL_HIGH_FREQUENCY_SOURCE_EXTERNAL.
 * @see KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_HIGH_FREQUENCY_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetReferenceOscillatorHighFrequencySource(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_LOW_FREQUENCY_SOURCE: the source of the low-frequency stage of the
 * reference.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_INTERNAL,
 *               KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_RUBIDIUM, KVTD481X2C_VAL_LOW_FREQUENCY_SOURCEGPS,
 *               KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_EXTERNAL_10 or KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_EXTERNAL_1PPS.
 *               After a failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:ROSC:LFR:SOUR?`.
 * Simulated: nothing is sent; KVTD481X2C_VAL_LOW_FREQUENCY_SOURCE_EXTERNAL_1PPS.
 * @see KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_LOW_FREQUENCY_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetReferenceOscillatorLowFrequencySource(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_MULTIPLIED_SOURCE: the source of the multiplied stage of the reference.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_MULTIPLIED_SOURCE_INTERNAL or
 *               KVTD481X2C_VAL_MULTIPLIED_SOURCE_EXTERNAL. After a failure: -1 with 0xBFFA0059, else unchanged, but for
 *               0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:ROSC:MULT:SOUR?`.
 * Simulated: nothing is sent; KVTD481X2C_VAL_MULTIPLIED_SOURCE_EXTERNAL.
 * @see KVTD481X2C_ATTR_REFERENCE_OSCILLATOR_MULTIPLIED_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetReferenceOscillatorMultipliedSource(ViSession Vi, ViInt32* Value);

/**
 * Starts the calibration of the low-frequency reference.
 *
 * Returns when the instrument has the command: the calibration goes on there, and
 * KVTD481X2C_ATTR_LOW_FREQUENCY_REFERENCE_CALIBRATION_STATUS tells how it stands. A second start is sent as the first
 * was.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:DIAG:CAL:REF:LFR:INIT`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_StartLowFrequencyReferenceCalibration(ViSession Vi);

/**
 * Starts the calibration of the main reference.
 *
 * Returns when the instrument has the command: the calibration goes on there, and
 * KVTD481X2C_ATTR_REFERENCE_CALIBRATION_STATUS tells how it stands. A second start is sent as the first was.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:DIAG:CAL:REF:INIT`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_StartReferenceCalibration(ViSession Vi);

/** @} */

/**
 * @defgroup remote_interface Remote interface
 *
 * The instrument's own GPIB and network settings, over whatever link the session has. They say nothing of the computer
 * that the driver runs on, and a changed one may end the session's link.
 *
 * Addresses and names go to the instrument as quoted texts. An argument may come with its quotes and with blanks around
 * it: both are taken away before the quotes are put on. The driver checks nothing in it.
 * @{
 */

/** The primary GPIB address of the instrument. ViInt32, read and write. */
#define KVTD481X2C_ATTR_GPIB_ADDRESS 1150152

/** What the instrument ends its answers with on GPIB. ViInt32, enumeration LINE_TERMINATION, read and write. */
#define KVTD481X2C_ATTR_COMMUNICATION_TERMINATION 1150153

/** Whether the instrument takes its network configuration from a DHCP server. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_DHCP_ENABLED 1150154

/** The host name of the instrument. ViString, read and write. */
#define KVTD481X2C_ATTR_LAN_HOSTNAME 1150155

/** The DNS servers of the instrument, separated by commas. ViString, read and write. */
#define KVTD481X2C_ATTR_DNS_SERVER_LIST 1150156

/**
 * Adds DNS servers to the instrument's list.
 *
 * Each server goes out in quotes of its own, joined by commas without blanks.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param List  The servers, separated by commas. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  List is null; not looked at in a simulated session
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:COMM:LAN:DNSS:APP <List>`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_AddDnsServers(ViSession Vi, ViConstString List);

/**
 * Sets the DNS configuration.
 *
 * All three are sent, each in quotes, an empty one as two quotes. What they mean is the instrument's to say.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param First   The first text. Not null.
 * @param Second  The second text. Not null.
 * @param Third   The third text. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  one of First, Second, Third is null; not looked at in a simulated session
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:COMM:LAN:DNS <First>,<Second>,<Third>`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureDns(ViSession Vi, ViConstString First, ViConstString Second,
                                                         ViConstString Third);

/**
 * Reads KVTD481X2C_ATTR_COMMUNICATION_TERMINATION: what the instrument ends its answers with on GPIB.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_LINE_TERMINATION_CARRIAGE_RETURN,
 *               KVTD481X2C_VAL_LINE_TERMINATION_CARRIAGE_RETURN_LINE_FEED or KVTD481X2C_VAL_LINE_TERMINATION_LINE_FEED.
 *               After a failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:COMM:GPIB:TERM:OUTP?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_LINE_TERMINATION_CARRIAGE_RETURN.
 * @see KVTD481X2C_SetCommunicationTermination, KVTD481X2C_ATTR_COMMUNICATION_TERMINATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetCommunicationTermination(ViSession Vi, ViInt32* Value);

/**
 * Gives the network configuration that is in force.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param ValBufferSize  Size of Val, terminator included; at least 1, not tested.
 * @param Val            The configuration, as the instrument gives it, cut to the size. After a failure: unchanged, or
 *                       what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Val is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:COMM:LAN:CONF:CURR?`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetCurrentLanConfiguration(ViSession Vi, ViInt32 ValBufferSize,
                                                                       ViChar Val[]);

/**
 * Reads KVTD481X2C_ATTR_DHCP_ENABLED: whether the instrument takes its network configuration from a DHCP server.
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
 * Queries `:SYST:COMM:LAN:DHCP?`.
 * Simulated: nothing is sent; the value last stored, before that VI_TRUE.
 * @see KVTD481X2C_SetDhcpEnabled, KVTD481X2C_ATTR_DHCP_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetDhcpEnabled(ViSession Vi, ViBoolean* Value);

/**
 * Gives the DNS configuration.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param ValBufferSize  Size of Val, terminator included; at least 1, not tested.
 * @param Val            The configuration, as the instrument gives it, cut to the size. After a failure: unchanged, or
 *                       what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Val is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:COMM:LAN:DNS?`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetDnsConfiguration(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]);

/**
 * Reads KVTD481X2C_ATTR_DNS_SERVER_LIST: the DNS servers of the instrument, separated by commas.
 *
 * Each server goes out in quotes of its own, joined by commas without blanks; an empty text sends the command with
 * nothing behind it. A simulated session reads the text as it was written, not as it would have gone out.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:COMM:LAN:DNSS:LIST?`.
 * Simulated: nothing is sent; the value last stored, before that the empty text.
 * @see KVTD481X2C_SetDnsServerList, KVTD481X2C_ATTR_DNS_SERVER_LIST
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetDnsServerList(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_GPIB_ADDRESS: the primary GPIB address of the instrument.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:COMM:GPIB:ADDR:PRIM?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetGpibAddress, KVTD481X2C_ATTR_GPIB_ADDRESS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetGpibAddress(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_LAN_HOSTNAME: the host name of the instrument.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:COMM:LAN:HOST?`.
 * Simulated: nothing is sent; the value last stored, before that the empty text.
 * @see KVTD481X2C_SetLanHostname, KVTD481X2C_ATTR_LAN_HOSTNAME
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetLanHostname(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Gives the network configuration that holds without DHCP.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param ValBufferSize  Size of Val, terminator included; at least 1, not tested.
 * @param Val            The configuration, as the instrument gives it, cut to the size. After a failure: unchanged, or
 *                       what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Val is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:COMM:LAN:CONF?`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetStaticLanConfiguration(ViSession Vi, ViInt32 ValBufferSize,
                                                                      ViChar Val[]);

/**
 * Removes DNS servers from the instrument's list.
 *
 * Each server goes out in quotes of its own, joined by commas without blanks.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param List  The servers, separated by commas. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  List is null; not looked at in a simulated session
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:COMM:LAN:DNSS:DEL <List>`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_RemoveDnsServers(ViSession Vi, ViConstString List);

/**
 * Writes KVTD481X2C_ATTR_COMMUNICATION_TERMINATION: what the instrument ends its answers with on GPIB.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_LINE_TERMINATION_CARRIAGE_RETURN,
 *               KVTD481X2C_VAL_LINE_TERMINATION_CARRIAGE_RETURN_LINE_FEED or KVTD481X2C_VAL_LINE_TERMINATION_LINE_FEED.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:COMM:GPIB:TERM:OUTP <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetCommunicationTermination, KVTD481X2C_ATTR_COMMUNICATION_TERMINATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetCommunicationTermination(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_DHCP_ENABLED: whether the instrument takes its network configuration from a DHCP server.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. VI_TRUE or VI_FALSE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:COMM:LAN:DHCP <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetDhcpEnabled, KVTD481X2C_ATTR_DHCP_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetDhcpEnabled(ViSession Vi, ViBoolean Value);

/**
 * Writes KVTD481X2C_ATTR_DNS_SERVER_LIST: the DNS servers of the instrument, separated by commas.
 *
 * Each server goes out in quotes of its own, joined by commas without blanks; an empty text sends the command with
 * nothing behind it. A simulated session reads the text as it was written, not as it would have gone out.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new text, terminated. It passes through QuoteList on its way out.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:COMM:LAN:DNSS:LIST <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetDnsServerList, KVTD481X2C_ATTR_DNS_SERVER_LIST
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetDnsServerList(ViSession Vi, ViConstString Value);

/**
 * Writes KVTD481X2C_ATTR_GPIB_ADDRESS: the primary GPIB address of the instrument.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:COMM:GPIB:ADDR:PRIM <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetGpibAddress, KVTD481X2C_ATTR_GPIB_ADDRESS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetGpibAddress(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_LAN_HOSTNAME: the host name of the instrument.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new text, terminated. It is sent as it stands; the driver checks and escapes nothing in it.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:COMM:LAN:HOST "<Value>"`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetLanHostname, KVTD481X2C_ATTR_LAN_HOSTNAME
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetLanHostname(ViSession Vi, ViConstString Value);

/**
 * Sets the network configuration that holds without DHCP.
 *
 * The command is put together first and goes out as one text: `:SYST:COMM:LAN:CONF "<First>"`, then `,"<Second>"` if
 * Second is not empty, then `,"<Third>"` if Third is not empty either. A Third behind an empty Second is dropped
 * without a word; a Second of blanks is not empty and goes out as two quotes. What the three mean is the instrument's
 * to say. A refusal stays in its error queue until a later status check meets it.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param First   The first text. Not null.
 * @param Second  The second text, or an empty one. Not null.
 * @param Third   The third text, or an empty one. Not null.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  never from this call: no status check follows it
 *         0xBFFA0058  one of First, Second, Third is null; not looked at in a simulated session
 *         a VISA status when the exchange fails
 *
 * Sends `%s`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetStaticLanConfiguration(ViSession Vi, ViConstString First,
                                                                      ViConstString Second, ViConstString Third);

/** @} */

/**
 * @defgroup reset_status Reset and status
 *
 * What brings the instrument to a known state, what asks after its health, and its status registers.
 *
 * Only KVTD481X2C_reset, KVTD481X2C_ResetWithDefaults and KVTD481X2C_InvalidateAllAttributes forget the values that the
 * session remembers. After any other reset or preset a simulated session, or one switched to simulation later, still
 * reads the values from before; a caller who minds calls KVTD481X2C_InvalidateAllAttributes.
 *
 * A query of a status register has no leading colon where it reads a condition or an event, nor has either direction of
 * the questionable enable register. The instrument takes both forms, and they go out as they stand here.
 * @{
 */

/** Condition register of the operation status: what holds at the moment. ViInt32, read. */
#define KVTD481X2C_ATTR_OPERATION_CONDITION_REGISTER 1150003

/** Enable register of the operation status: which events show in the status byte. ViInt32, read and write. */
#define KVTD481X2C_ATTR_OPERATION_ENABLE_REGISTER 1150004

/** Event register of the operation status: what has happened since it was last read. ViInt32, read. */
#define KVTD481X2C_ATTR_OPERATION_EVENT_REGISTER 1150005

/** Which conditions of the operation status become an event when they end. ViInt32, read and write. */
#define KVTD481X2C_ATTR_OPERATION_NEGATIVE_TRANSITION_REGISTER 1150006

/** Which conditions of the operation status become an event when they begin. ViInt32, read and write. */
#define KVTD481X2C_ATTR_OPERATION_POSITIVE_TRANSITION_REGISTER 1150007

/** Condition register of the questionable status: what holds at the moment. ViInt32, read. */
#define KVTD481X2C_ATTR_QUESTIONABLE_CONDITION_REGISTER 1150008

/** Enable register of the questionable status: which events show in the status byte. ViInt32, read and write. */
#define KVTD481X2C_ATTR_QUESTIONABLE_ENABLE_REGISTER 1150009

/** Event register of the questionable status: what has happened since it was last read. ViInt32, read. */
#define KVTD481X2C_ATTR_QUESTIONABLE_EVENT_REGISTER 1150010

/** Which conditions of the questionable status become an event when they end. ViInt32, read and write. */
#define KVTD481X2C_ATTR_QUESTIONABLE_NEGATIVE_TRANSITION_REGISTER 1150011

/** Which conditions of the questionable status become an event when they begin. ViInt32, read and write. */
#define KVTD481X2C_ATTR_QUESTIONABLE_POSITIVE_TRANSITION_REGISTER 1150012

/** Which standard events show in the status byte. ViInt32, read and write. */
#define KVTD481X2C_ATTR_STANDARD_EVENT_ENABLE_REGISTER 1150013

/** Standard event register: what has happened since it was last read. ViInt32, read. */
#define KVTD481X2C_ATTR_STANDARD_EVENT_EVENT_REGISTER 1150014

/** Which bits of the status byte request service. ViInt32, read and write. */
#define KVTD481X2C_ATTR_STATUS_BYTE_ENABLE_REGISTER 1150015

/** The status byte. ViInt32, read. */
#define KVTD481X2C_ATTR_STATUS_BYTE_EVENT_REGISTER 1150016

/**
 * Clears the event registers and the error queue of the instrument.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `*CLS`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ClearStatus(ViSession Vi);

/**
 * Returns the instrument to its factory state.
 *
 * The values that the session remembers stay.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  never from this call: no status check follows it
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:DEF:RES:FACT`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_FactoryReset(ViSession Vi);

/**
 * Reads KVTD481X2C_ATTR_OPERATION_CONDITION_REGISTER: condition register of the operation status: what holds at the
 * moment.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `STAT:OPER:COND?`.
 * Simulated: nothing is sent; 0.
 * @see KVTD481X2C_ATTR_OPERATION_CONDITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetOperationConditionRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_OPERATION_ENABLE_REGISTER: enable register of the operation status: which events show in the
 * status byte.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:STAT:OPER:ENAB?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetOperationEnableRegister, KVTD481X2C_ATTR_OPERATION_ENABLE_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetOperationEnableRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_OPERATION_EVENT_REGISTER: event register of the operation status: what has happened since it
 * was last read.
 *
 * Reading an event register clears it on the instrument.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `STAT:OPER:EVEN?`.
 * Simulated: nothing is sent; 0.
 * @see KVTD481X2C_ATTR_OPERATION_EVENT_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetOperationEventRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_OPERATION_NEGATIVE_TRANSITION_REGISTER: which conditions of the operation status become an
 * event when they end.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:STAT:OPER:NTR?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetOperationNegativeTransitionRegister, KVTD481X2C_ATTR_OPERATION_NEGATIVE_TRANSITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetOperationNegativeTransitionRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_OPERATION_POSITIVE_TRANSITION_REGISTER: which conditions of the operation status become an
 * event when they begin.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:STAT:OPER:PTR?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetOperationPositiveTransitionRegister, KVTD481X2C_ATTR_OPERATION_POSITIVE_TRANSITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetOperationPositiveTransitionRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_QUESTIONABLE_CONDITION_REGISTER: condition register of the questionable status: what holds at
 * the moment.
 *
 * A simulated session reports one condition standing: the register reads 8.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `STAT:QUES:COND?`.
 * Simulated: nothing is sent; 8.
 * @see KVTD481X2C_ATTR_QUESTIONABLE_CONDITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetQuestionableConditionRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_QUESTIONABLE_ENABLE_REGISTER: enable register of the questionable status: which events show in
 * the status byte.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `STAT:QUES:ENAB?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetQuestionableEnableRegister, KVTD481X2C_ATTR_QUESTIONABLE_ENABLE_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetQuestionableEnableRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_QUESTIONABLE_EVENT_REGISTER: event register of the questionable status: what has happened since
 * it was last read.
 *
 * Reading an event register clears it on the instrument.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `STAT:QUES:EVEN?`.
 * Simulated: nothing is sent; 0.
 * @see KVTD481X2C_ATTR_QUESTIONABLE_EVENT_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetQuestionableEventRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_QUESTIONABLE_NEGATIVE_TRANSITION_REGISTER: which conditions of the questionable status become
 * an event when they end.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:STAT:QUES:NTR?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetQuestionableNegativeTransitionRegister, KVTD481X2C_ATTR_QUESTIONABLE_NEGATIVE_TRANSITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetQuestionableNegativeTransitionRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_QUESTIONABLE_POSITIVE_TRANSITION_REGISTER: which conditions of the questionable status become
 * an event when they begin.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:STAT:QUES:PTR?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetQuestionablePositiveTransitionRegister, KVTD481X2C_ATTR_QUESTIONABLE_POSITIVE_TRANSITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetQuestionablePositiveTransitionRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_STANDARD_EVENT_ENABLE_REGISTER: which standard events show in the status byte.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `*ESE?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetStandardEventEnableRegister, KVTD481X2C_ATTR_STANDARD_EVENT_ENABLE_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetStandardEventEnableRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_STANDARD_EVENT_EVENT_REGISTER: standard event register: what has happened since it was last
 * read.
 *
 * Reading it clears it on the instrument. The status check reads the same register: with
 * KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS on, what came before is found by the check of the call that caused it, and is
 * gone here.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `*ESR?`.
 * Simulated: nothing is sent; 0.
 * @see KVTD481X2C_ATTR_STANDARD_EVENT_EVENT_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetStandardEventEventRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_STATUS_BYTE_ENABLE_REGISTER: which bits of the status byte request service.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `*SRE?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetStatusByteEnableRegister, KVTD481X2C_ATTR_STATUS_BYTE_ENABLE_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetStatusByteEnableRegister(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_STATUS_BYTE_EVENT_REGISTER: the status byte.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `*STB?`.
 * Simulated: nothing is sent; 0.
 * @see KVTD481X2C_ATTR_STATUS_BYTE_EVENT_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetStatusByteEventRegister(ViSession Vi, ViInt32* Value);

/**
 * Restarts the instrument.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:REB`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_Reboot(ViSession Vi);

/**
 * Returns the whole instrument to its master reset state.
 *
 * The values that the session remembers stay.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  never from this call: no status check follows it
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:DEF:RES:MAST`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ResetAll(ViSession Vi);

/**
 * Resets the data files of the user or of the system.
 *
 * The values that the session remembers stay.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Scope  KVTD481X2C_VAL_DATA_FILE_SCOPE_USER or ..._SYSTEM.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0000  Scope is no defined value; nothing is sent
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:DEF:RES:DATA <Scope>`.
 * Simulated: returns 0 and sends nothing, whatever the scope.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ResetSystemFiles(ViSession Vi, ViInt32 Scope);

/**
 * Resets the instrument as KVTD481X2C_reset does, and puts the session's six options back.
 *
 * The options become what they were when the session had been opened: cache, interchange check, query of the
 * instrument's status, range check, recording of coercions and simulation. After a failed reset they stay.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `*RST`, `*OPC?`.
 * Simulated: forgets the values and puts the options back; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ResetWithDefaults(ViSession Vi);

/**
 * Runs the instrument's extended self test.
 *
 * With KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT below 10000 ms, or without end (-1), the test runs with 10000 ms, which is put
 * back behind the status check. The status is then that of putting it back, so that a refusal does not show. When the
 * exchange fails, the timeout stays at 10000 ms.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param ValBufferSize  Size of Val, terminator included; at least 1, not tested.
 * @param Val            The instrument's report, cut to the size. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0058  Val is null, also in a simulated session
 *         a VISA status when the exchange fails
 *
 * Queries `:TEST:SELF?`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SelfTest(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]);

/**
 * Has the instrument set the operation-complete bit when all pending work is done.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `*OPC`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetOperationComplete(ViSession Vi);

/**
 * Writes KVTD481X2C_ATTR_OPERATION_ENABLE_REGISTER: enable register of the operation status: which events show in the
 * status byte.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:STAT:OPER:ENAB <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetOperationEnableRegister, KVTD481X2C_ATTR_OPERATION_ENABLE_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetOperationEnableRegister(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_OPERATION_NEGATIVE_TRANSITION_REGISTER: which conditions of the operation status become an
 * event when they end.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:STAT:OPER:NTR <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetOperationNegativeTransitionRegister, KVTD481X2C_ATTR_OPERATION_NEGATIVE_TRANSITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetOperationNegativeTransitionRegister(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_OPERATION_POSITIVE_TRANSITION_REGISTER: which conditions of the operation status become an
 * event when they begin.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:STAT:OPER:PTR <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetOperationPositiveTransitionRegister, KVTD481X2C_ATTR_OPERATION_POSITIVE_TRANSITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetOperationPositiveTransitionRegister(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_QUESTIONABLE_ENABLE_REGISTER: enable register of the questionable status: which events show in
 * the status byte.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `STAT:QUES:ENAB <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetQuestionableEnableRegister, KVTD481X2C_ATTR_QUESTIONABLE_ENABLE_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetQuestionableEnableRegister(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_QUESTIONABLE_NEGATIVE_TRANSITION_REGISTER: which conditions of the questionable status become
 * an event when they end.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:STAT:QUES:NTR <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetQuestionableNegativeTransitionRegister, KVTD481X2C_ATTR_QUESTIONABLE_NEGATIVE_TRANSITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetQuestionableNegativeTransitionRegister(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_QUESTIONABLE_POSITIVE_TRANSITION_REGISTER: which conditions of the questionable status become
 * an event when they begin.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:STAT:QUES:PTR <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetQuestionablePositiveTransitionRegister, KVTD481X2C_ATTR_QUESTIONABLE_POSITIVE_TRANSITION_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetQuestionablePositiveTransitionRegister(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_STANDARD_EVENT_ENABLE_REGISTER: which standard events show in the status byte.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `*ESE <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetStandardEventEnableRegister, KVTD481X2C_ATTR_STANDARD_EVENT_ENABLE_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetStandardEventEnableRegister(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_STATUS_BYTE_ENABLE_REGISTER: which bits of the status byte request service.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `*SRE <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetStatusByteEnableRegister, KVTD481X2C_ATTR_STATUS_BYTE_ENABLE_REGISTER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetStatusByteEnableRegister(ViSession Vi, ViInt32 Value);

/**
 * Shuts the instrument down.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  never from this call: no status check follows it
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:SHUT`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_Shutdown(ViSession Vi);

/**
 * Presets the enable and transition registers of the status.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:STAT:PRES`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_StatusPreset(ViSession Vi);

/**
 * Presets the instrument.
 *
 * A preset takes longer than a common command: with KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT below 10000 ms, or without end
 * (-1), it runs with 10000 ms, which is put back behind the status check. The status is then that of putting it back,
 * so that a refusal of the preset does not show. When the command cannot be sent, the timeout stays at 10000 ms. The
 * values that the session remembers stay.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:PRES`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SystemPreset(ViSession Vi);

/**
 * Waits until the instrument has finished all pending work.
 *
 * One query, which waits no longer than KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0059  the answer is not 1; no status check follows
 *         a VISA status when the exchange fails
 *
 * Queries `*OPC?`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_WaitForOperationComplete(ViSession Vi);

/**
 * Has the instrument finish all pending work before the next command.
 *
 * The call itself does not wait.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `*WAI`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_WaitToContinue(ViSession Vi);

/**
 * Resets the instrument and forgets the values that the session remembers.
 *
 * The reset runs under a timeout of 2000 ms, which is put back on every path. It is over when the instrument answers
 * the query behind it; the answer itself is not looked at. After a failure the values are kept.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `*RST`. Queries `*OPC?`.
 * Simulated: forgets the values; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_reset(ViSession Vi);

/**
 * Runs the instrument's self test.
 *
 * A test that fails is no failure of the call: the result and the message tell it. The test runs under a timeout of
 * 2000 ms, which is put back on every path.
 *
 * @param Vi           Handle from KVTD481X2C_InitWithOptions.
 * @param TestResult   0 for a passed test, else the instrument's number. After a failure: unchanged, or what had
 *                     arrived.
 * @param TestMessage  "Selftest passed" or "Selftest failed". A buffer of 256 characters; not written after a failure.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  one of TestResult, TestMessage is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `*TST?`.
 * Simulated: gives 0 and "Selftest passed"; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_self_test(ViSession Vi, ViInt16* TestResult, ViChar TestMessage[256]);

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
 * @param CoercionRecord  The record: an empty text. May be null if BufferSize is 0. After a failure: unchanged.
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
 * @param InterchangeWarning  Not looked at and not written. After a failure: unchanged.
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
 * @param Vi            The handle of the new session; after a failure 0, or open where the failure came late.
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
 * Sends `*CLS`, `*IDN?`, `*RST`, `*OPC?`, `:UNIT:POW DBM`, `:UNIT:TIME S`.
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
 * @param CallerHasLock  Whether the caller holds the lock. May be null. After a failure: unchanged.
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
 * With a pointer, VI_FALSE on entry does nothing, and VI_TRUE gives the lock back and becomes VI_FALSE. A caller that
 * does not hold the lock must not give it back: the process ends with an assertion.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param CallerHasLock  Whether the caller holds the lock. May be null. After a failure: unchanged.
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
 * @param Vi            The handle of the new session; after a failure 0, or open where the failure came late.
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
 * @param DriverRev  "1.0.0.0". A buffer of 256 characters, not null. After a failure: unchanged.
 * @param InstrRev   The firmware's. A buffer of 256 characters, not null. After a failure: unchanged.
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
 * @param Done  VI_TRUE if settled. After a failure: unchanged.
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

/**
 * @defgroup sweep Sweep
 *
 * Sweeps of frequency and of power, in steps or continuous, and the class's view of them.
 *
 * The class knows one sweep mode and one sweep trigger source. The instrument has neither: it has a frequency mode, a
 * power mode, a sweep generation and a trigger type. KVTD481X2C_ATTR_SWEEP_MODE and
 * KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE translate, and not every state of the instrument has a name in the class.
 *
 * Frequency sweep and frequency step are the same sweep of the instrument, so their limits are one setting under two
 * ids. The three single-step switches, for frequency, power and list, are one state too: the trigger type. Times and
 * levels are sent as plain numbers, in seconds and dBm.
 * @{
 */

/** Center of the swept range. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_CENTER_FREQUENCY 1150034

/** Width of the ranges that are given as a preset frequency and a difference. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_DELTA 1150035

/** Whether the frequency sweep runs up or down. ViInt32, enumeration SWEEP_DIRECTION, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_DIRECTION 1150036

/** Whether the instrument chooses how long the frequency sweep stays at each point. ViBoolean, read. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_DWELL_AUTO 1150038

/**
 * Whether the frequency sweep is continuous or goes in steps. ViInt32, enumeration SWEEP_GENERATION, read and write.
 */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_GENERATION 1150039

/** Number of points of the stepped frequency sweep. ViInt32, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_POINTS 1150040

/**
 * Takes the swept range from two preset frequencies, or from one and the difference. ViInt32, enumeration
 * FREQUENCY_RANGE, write.
 */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_RANGE 1150041

/**
 * Whether the points of the frequency sweep lie at equal differences or at equal ratios. ViInt32, enumeration
 * SWEEP_SPACING, read and write.
 */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPACING 1150042

/** Width of the swept range. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPAN 1150043

/** Whether the instrument chooses the duration of the frequency sweep. ViBoolean, read. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_AUTO 1150048

/** Shortest duration that a frequency sweep may have. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_LOWER_LIMIT 1150049

/** Center of the swept levels. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_SWEEP_CENTER_POWER 1150124

/** Whether the power sweep runs up or down. ViInt32, enumeration SWEEP_DIRECTION, read and write. */
#define KVTD481X2C_ATTR_POWER_SWEEP_DIRECTION 1150125

/** Whether the instrument chooses how long the power sweep stays at each point. ViBoolean, read. */
#define KVTD481X2C_ATTR_POWER_SWEEP_DWELL_AUTO 1150127

/** Number of points of the power sweep. ViInt32, read and write. */
#define KVTD481X2C_ATTR_POWER_SWEEP_POINTS 1150129

/** Takes the swept levels from two preset power levels. ViInt32, enumeration POWER_SWEEP_RANGE, write. */
#define KVTD481X2C_ATTR_POWER_SWEEP_RANGE 1150130

/** Distance between the lowest and the highest of the swept levels. ViReal64, dB, read and write. */
#define KVTD481X2C_ATTR_POWER_SWEEP_SPAN 1150131

/** Whether the instrument chooses the duration of the power sweep. ViBoolean, read. */
#define KVTD481X2C_ATTR_POWER_SWEEP_TIME_AUTO 1150135

/** Shortest duration that a power sweep may have. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_POWER_SWEEP_TIME_LOWER_LIMIT 1150136

/** What is swept, in the terms of the class. ViInt32, enumeration SWEEP_MODE, read and write. */
#define KVTD481X2C_ATTR_SWEEP_MODE 1250201

/** What starts a sweep, in the terms of the class. ViInt32, enumeration SWEEP_TRIGGER_SOURCE, read and write. */
#define KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE 1250202

/** Frequency at which the sweep begins. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_START 1250211

/** Frequency at which the sweep ends. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_STOP 1250212

/** Duration of one frequency sweep. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME 1250213

/** Frequency at which the stepped sweep begins. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_STEP_START 1250241

/** Frequency at which the stepped sweep ends. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_STEP_STOP 1250242

/**
 * Spacing of the frequency steps, linear (0) or logarithmic (1). ViInt32, enumeration SWEEP_SPACING, read and write.
 */
#define KVTD481X2C_ATTR_FREQUENCY_STEP_SCALING 1250243

/** Distance between two points of the stepped frequency sweep. ViReal64, Hz, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_STEP_SIZE 1250244

/** Whether each trigger advances the frequency by one step. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_STEP_SINGLE_STEP_ENABLED 1250245

/** How long the stepped frequency sweep stays at each point. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_FREQUENCY_STEP_DWELL 1250246

/** Level at which the power sweep begins. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_STEP_START 1250261

/** Level at which the power sweep ends. ViReal64, dBm, read and write. */
#define KVTD481X2C_ATTR_POWER_STEP_STOP 1250262

/** Distance between two points of the power sweep. ViReal64, dB, read and write. */
#define KVTD481X2C_ATTR_POWER_STEP_SIZE 1250263

/** Whether each trigger advances the level by one step. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_POWER_STEP_SINGLE_STEP_ENABLED 1250264

/** How long the power sweep stays at each point. ViReal64, s, read and write. */
#define KVTD481X2C_ATTR_POWER_STEP_DWELL 1250265

/**
 * Sets whether frequency steps wait for a trigger, and how long each lasts.
 *
 * @param Vi                 Handle from KVTD481X2C_InitWithOptions.
 * @param SingleStepEnabled  VI_TRUE to advance by one step at each trigger.
 * @param Dwell              The time at each point in seconds.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_FREQUENCY_STEP_SINGLE_STEP_ENABLED, KVTD481X2C_ATTR_FREQUENCY_STEP_DWELL, in this order, up to
 * the first failure.
 * Simulated: sets the stored trigger type, and then fails with VISA's status: the dwell time makes its VISA call.
 * @see KVTD481X2C_ATTR_FREQUENCY_STEP_SINGLE_STEP_ENABLED, KVTD481X2C_ATTR_FREQUENCY_STEP_DWELL
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureFrequencyStepDwell(ViSession Vi, ViBoolean SingleStepEnabled,
                                                                        ViReal64 Dwell);

/**
 * Sets limits, spacing and distance of the frequency steps.
 *
 * @param Vi        Handle from KVTD481X2C_InitWithOptions.
 * @param Start     The first frequency in hertz.
 * @param Stop      The last frequency in hertz.
 * @param Scaling   0 linear, 1 logarithmic; anything else leaves the spacing alone.
 * @param StepSize  The distance between two points in hertz.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_FREQUENCY_STEP_START, KVTD481X2C_ATTR_FREQUENCY_STEP_STOP,
 * KVTD481X2C_ATTR_FREQUENCY_STEP_SCALING, KVTD481X2C_ATTR_FREQUENCY_STEP_SIZE, in this order, up to the first failure.
 * Simulated: fails with VISA's status: the start makes its VISA call.
 * @see KVTD481X2C_ATTR_FREQUENCY_STEP_START, KVTD481X2C_ATTR_FREQUENCY_STEP_STOP,
 *      KVTD481X2C_ATTR_FREQUENCY_STEP_SCALING, KVTD481X2C_ATTR_FREQUENCY_STEP_SIZE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureFrequencyStepStartStop(ViSession Vi, ViReal64 Start, ViReal64 Stop,
                                                                            ViInt32 Scaling, ViReal64 StepSize);

/**
 * Sets the limits of the frequency sweep from center and span.
 *
 * Start and stop are computed here, half the span to either side, and sent as
 * KVTD481X2C_ConfigureFrequencySweepStartStop does. The instrument's own center and span attributes are not used, and a
 * limit out of its range is the instrument's to refuse.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Center  The middle of the range in hertz.
 * @param Span    The width of the range in hertz.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_FREQUENCY_SWEEP_START, KVTD481X2C_ATTR_FREQUENCY_SWEEP_STOP, in this order, up to the first
 * failure.
 * Simulated: fails with VISA's status: the attributes make their VISA call.
 * @see KVTD481X2C_ATTR_FREQUENCY_SWEEP_START, KVTD481X2C_ATTR_FREQUENCY_SWEEP_STOP
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureFrequencySweepCenterSpan(ViSession Vi, ViReal64 Center,
                                                                              ViReal64 Span);

/**
 * Sets the limits of the frequency sweep.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Start  The first frequency in hertz.
 * @param Stop   The last frequency in hertz.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_FREQUENCY_SWEEP_START, KVTD481X2C_ATTR_FREQUENCY_SWEEP_STOP, in this order, up to the first
 * failure.
 * Simulated: fails with VISA's status: the attributes make their VISA call.
 * @see KVTD481X2C_ATTR_FREQUENCY_SWEEP_START, KVTD481X2C_ATTR_FREQUENCY_SWEEP_STOP
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureFrequencySweepStartStop(ViSession Vi, ViReal64 Start,
                                                                             ViReal64 Stop);

/**
 * Sets the duration of one frequency sweep.
 *
 * @param Vi    Handle from KVTD481X2C_InitWithOptions.
 * @param Time  The duration in seconds.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME.
 * Simulated: fails with VISA's status: the attribute makes its VISA call.
 * @see KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureFrequencySweepTime(ViSession Vi, ViReal64 Time);

/**
 * Sets whether power steps wait for a trigger, and how long each lasts.
 *
 * @param Vi                 Handle from KVTD481X2C_InitWithOptions.
 * @param SingleStepEnabled  VI_TRUE to advance by one step at each trigger.
 * @param Dwell              The time at each point in seconds.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_POWER_STEP_SINGLE_STEP_ENABLED, KVTD481X2C_ATTR_POWER_STEP_DWELL, in this order, up to the first
 * failure.
 * Simulated: sets the stored trigger type, and then fails with VISA's status: the dwell time makes its VISA call.
 * @see KVTD481X2C_ATTR_POWER_STEP_SINGLE_STEP_ENABLED, KVTD481X2C_ATTR_POWER_STEP_DWELL
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePowerStepDwell(ViSession Vi, ViBoolean SingleStepEnabled,
                                                                    ViReal64 Dwell);

/**
 * Sets limits and distance of the power steps.
 *
 * @param Vi        Handle from KVTD481X2C_InitWithOptions.
 * @param Start     The first level in dBm.
 * @param Stop      The last level in dBm.
 * @param StepSize  The distance between two points in dB.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_POWER_STEP_START, KVTD481X2C_ATTR_POWER_STEP_STOP, KVTD481X2C_ATTR_POWER_STEP_SIZE, in this
 * order, up to the first failure.
 * Simulated: fails with VISA's status: the attributes make their VISA call.
 * @see KVTD481X2C_ATTR_POWER_STEP_START, KVTD481X2C_ATTR_POWER_STEP_STOP, KVTD481X2C_ATTR_POWER_STEP_SIZE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigurePowerStepStartStop(ViSession Vi, ViReal64 Start, ViReal64 Stop,
                                                                        ViReal64 StepSize);

/**
 * Sets what is swept and what starts the sweep.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param Mode           A value of KVTD481X2C_ATTR_SWEEP_MODE.
 * @param TriggerSource  A value of KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0013  the mode is power sweep, or the mode or the source is not known
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_SWEEP_MODE, KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE, in this order, up to the first failure.
 * Simulated: sets the stored modes and the stored trigger type; nothing is sent.
 * @see KVTD481X2C_ATTR_SWEEP_MODE, KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ConfigureSweep(ViSession Vi, ViInt32 Mode, ViInt32 TriggerSource);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_CENTER_FREQUENCY: center of the swept range.
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
 * Queries `:FREQ:CENT?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencySweepCenterFrequency, KVTD481X2C_ATTR_FREQUENCY_SWEEP_CENTER_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepCenterFrequency(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_DELTA: width of the ranges that are given as a preset frequency and a
 * difference.
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
 * Queries `:FREQ:DELT?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencySweepDelta, KVTD481X2C_ATTR_FREQUENCY_SWEEP_DELTA
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepDelta(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_DIRECTION: whether the frequency sweep runs up or down.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_SWEEP_DIRECTION_UP or KVTD481X2C_VAL_SWEEP_DIRECTION_DOWN. After a
 *               failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SWE1:DIR?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_SWEEP_DIRECTION_UP.
 * @see KVTD481X2C_SetFrequencySweepDirection, KVTD481X2C_ATTR_FREQUENCY_SWEEP_DIRECTION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepDirection(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_DWELL_AUTO: whether the instrument chooses how long the frequency sweep stays
 * at each point.
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
 * Queries `:SWE1:DWEL:AUTO?`.
 * Simulated: nothing is sent; VI_FALSE.
 * @see KVTD481X2C_ATTR_FREQUENCY_SWEEP_DWELL_AUTO
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepDwellAuto(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_GENERATION: whether the frequency sweep is continuous or goes in steps.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_SWEEP_GENERATION_ANALOG or KVTD481X2C_VAL_SWEEP_GENERATION_STEPPED.
 *               After a failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SWE1:GEN?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_SWEEP_GENERATION_ANALOG.
 * @see KVTD481X2C_SetFrequencySweepGeneration, KVTD481X2C_ATTR_FREQUENCY_SWEEP_GENERATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepGeneration(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_POINTS: number of points of the stepped frequency sweep.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SWE1:POIN?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetFrequencySweepPoints, KVTD481X2C_ATTR_FREQUENCY_SWEEP_POINTS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepPoints(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPACING: whether the points of the frequency sweep lie at equal differences or
 * at equal ratios.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_SWEEP_SPACING_LINEAR or KVTD481X2C_VAL_SWEEP_SPACING_LOGARITHMIC.
 *               After a failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SWE:SPAC?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_SWEEP_SPACING_LINEAR.
 * @see KVTD481X2C_SetFrequencySweepSpacing, KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPACING
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepSpacing(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPAN: width of the swept range.
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
 * Queries `:FREQ:SPAN?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencySweepSpan, KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPAN
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepSpan(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_AUTO: whether the instrument chooses the duration of the frequency sweep.
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
 * Queries `:SWE1:TIME:AUTO?`.
 * Simulated: nothing is sent; VI_FALSE.
 * @see KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_AUTO
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepTimeAuto(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_LOWER_LIMIT: shortest duration that a frequency sweep may have.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SWE1:TIME:LLIM?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetFrequencySweepTimeLowerLimit, KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_LOWER_LIMIT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFrequencySweepTimeLowerLimit(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_SWEEP_CENTER_POWER: center of the swept levels.
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
 * Queries `:POW:CENT?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerSweepCenterPower, KVTD481X2C_ATTR_POWER_SWEEP_CENTER_POWER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerSweepCenterPower(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_SWEEP_DIRECTION: whether the power sweep runs up or down.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_SWEEP_DIRECTION_UP or KVTD481X2C_VAL_SWEEP_DIRECTION_DOWN. After a
 *               failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SWE2:DIR?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_SWEEP_DIRECTION_UP.
 * @see KVTD481X2C_SetPowerSweepDirection, KVTD481X2C_ATTR_POWER_SWEEP_DIRECTION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerSweepDirection(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_SWEEP_DWELL_AUTO: whether the instrument chooses how long the power sweep stays at each
 * point.
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
 * Queries `:SWE2:DWEL:AUTO?`.
 * Simulated: nothing is sent; VI_TRUE.
 * @see KVTD481X2C_ATTR_POWER_SWEEP_DWELL_AUTO
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerSweepDwellAuto(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_SWEEP_POINTS: number of points of the power sweep.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SWE2:POIN?`.
 * Simulated: nothing is sent; the value last stored, before that 0.
 * @see KVTD481X2C_SetPowerSweepPoints, KVTD481X2C_ATTR_POWER_SWEEP_POINTS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerSweepPoints(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_SWEEP_SPAN: distance between the lowest and the highest of the swept levels.
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
 * Queries `:POW:SPAN?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerSweepSpan, KVTD481X2C_ATTR_POWER_SWEEP_SPAN
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerSweepSpan(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_SWEEP_TIME_AUTO: whether the instrument chooses the duration of the power sweep.
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
 * Queries `:SWE2:TIME:AUTO?`.
 * Simulated: nothing is sent; VI_TRUE.
 * @see KVTD481X2C_ATTR_POWER_SWEEP_TIME_AUTO
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerSweepTimeAuto(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_POWER_SWEEP_TIME_LOWER_LIMIT: shortest duration that a power sweep may have.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In s. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SWE2:TIME:LLIM?`.
 * Simulated: nothing is sent; the value last stored, before that 0.0.
 * @see KVTD481X2C_SetPowerSweepTimeLowerLimit, KVTD481X2C_ATTR_POWER_SWEEP_TIME_LOWER_LIMIT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetPowerSweepTimeLowerLimit(ViSession Vi, ViReal64* Value);

/**
 * Takes the stepped frequency sweep back to its first point.
 *
 * Asks for KVTD481X2C_ATTR_INITIATE_CONTINUOUS_ENABLED first: while it is on, the instrument arms itself again and the
 * abort alone is sent; while it is off, the second text goes out, which arms it. The same as KVTD481X2C_ResetPowerStep.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:INIT:CONT?`, `ABOR`, `ABOR;INIT`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ResetFrequencyStep(ViSession Vi);

/**
 * Takes the power sweep back to its first point.
 *
 * Asks for KVTD481X2C_ATTR_INITIATE_CONTINUOUS_ENABLED first: while it is on, the instrument arms itself again and the
 * abort alone is sent; while it is off, the second text goes out, which arms it. The same as
 * KVTD481X2C_ResetFrequencyStep.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:INIT:CONT?`, `ABOR`, `ABOR;INIT`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ResetPowerStep(ViSession Vi);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_SWEEP_CENTER_FREQUENCY: center of the swept range.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:CENT <Value> HZ`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetFrequencySweepCenterFrequency, KVTD481X2C_ATTR_FREQUENCY_SWEEP_CENTER_FREQUENCY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepCenterFrequency(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_SWEEP_DELTA: width of the ranges that are given as a preset frequency and a
 * difference.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:DELT <Value> HZ`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetFrequencySweepDelta, KVTD481X2C_ATTR_FREQUENCY_SWEEP_DELTA
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepDelta(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_SWEEP_DIRECTION: whether the frequency sweep runs up or down.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_SWEEP_DIRECTION_UP or KVTD481X2C_VAL_SWEEP_DIRECTION_DOWN.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE1:DIR <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencySweepDirection, KVTD481X2C_ATTR_FREQUENCY_SWEEP_DIRECTION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepDirection(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_SWEEP_GENERATION: whether the frequency sweep is continuous or goes in steps.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_SWEEP_GENERATION_ANALOG or KVTD481X2C_VAL_SWEEP_GENERATION_STEPPED.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE1:GEN <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencySweepGeneration, KVTD481X2C_ATTR_FREQUENCY_SWEEP_GENERATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepGeneration(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_SWEEP_POINTS: number of points of the stepped frequency sweep.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE1:POIN <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetFrequencySweepPoints, KVTD481X2C_ATTR_FREQUENCY_SWEEP_POINTS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepPoints(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_SWEEP_RANGE: takes the swept range from two preset frequencies, or from one and the
 * difference.
 *
 * Cannot be read back; the range shows in start and stop.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_FREQUENCY_RANGE_F1_F2, KVTD481X2C_VAL_FREQUENCY_RANGE_F3_F4,
 *               KVTD481X2C_VAL_FREQUENCY_RANGE_F5_DELTAF or KVTD481X2C_VAL_FREQUENCY_RANGE_F6_DELTAF.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE1:RANG <Value>`.
 * Simulated: nothing is sent and nothing is stored.
 * @see KVTD481X2C_ATTR_FREQUENCY_SWEEP_RANGE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepRange(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPACING: whether the points of the frequency sweep lie at equal differences or
 * at equal ratios.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_SWEEP_SPACING_LINEAR or KVTD481X2C_VAL_SWEEP_SPACING_LOGARITHMIC.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE:SPAC <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetFrequencySweepSpacing, KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPACING
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepSpacing(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPAN: width of the swept range.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:SPAN <Value> HZ`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetFrequencySweepSpan, KVTD481X2C_ATTR_FREQUENCY_SWEEP_SPAN
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepSpan(ViSession Vi, ViReal64 Value);

/**
 * Sweeps over the whole frequency range of the instrument.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:FREQ:SPAN:FULL`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepSpanToMaximum(ViSession Vi);

/**
 * Writes KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_LOWER_LIMIT: shortest duration that a frequency sweep may have.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE1:TIME:LLIM <Value> `.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetFrequencySweepTimeLowerLimit, KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_LOWER_LIMIT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetFrequencySweepTimeLowerLimit(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_SWEEP_CENTER_POWER: center of the swept levels.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dBm. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:CENT <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPowerSweepCenterPower, KVTD481X2C_ATTR_POWER_SWEEP_CENTER_POWER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerSweepCenterPower(ViSession Vi, ViReal64 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_SWEEP_DIRECTION: whether the power sweep runs up or down.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_SWEEP_DIRECTION_UP or KVTD481X2C_VAL_SWEEP_DIRECTION_DOWN.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE2:DIR <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetPowerSweepDirection, KVTD481X2C_ATTR_POWER_SWEEP_DIRECTION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerSweepDirection(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_SWEEP_POINTS: number of points of the power sweep.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE2:POIN <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPowerSweepPoints, KVTD481X2C_ATTR_POWER_SWEEP_POINTS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerSweepPoints(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_SWEEP_RANGE: takes the swept levels from two preset power levels.
 *
 * Cannot be read back; the range shows in start and stop.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_POWER_SWEEP_RANGE_L1_L2, KVTD481X2C_VAL_POWER_SWEEP_RANGE_L3_L4,
 *               KVTD481X2C_VAL_POWER_SWEEP_RANGE_L5_L6, KVTD481X2C_VAL_POWER_SWEEP_RANGE_L7_L8 or
 *               KVTD481X2C_VAL_POWER_SWEEP_RANGE_L9_L0.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE2:RANG <Value>`.
 * Simulated: nothing is sent and nothing is stored.
 * @see KVTD481X2C_ATTR_POWER_SWEEP_RANGE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerSweepRange(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_POWER_SWEEP_SPAN: distance between the lowest and the highest of the swept levels.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In dB. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:SPAN <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPowerSweepSpan, KVTD481X2C_ATTR_POWER_SWEEP_SPAN
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerSweepSpan(ViSession Vi, ViReal64 Value);

/**
 * Sweeps over the whole level range of the instrument.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:POW:SPAN:FULL`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerSweepSpanToMaximum(ViSession Vi);

/**
 * Writes KVTD481X2C_ATTR_POWER_SWEEP_TIME_LOWER_LIMIT: shortest duration that a power sweep may have.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In s. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SWE2:TIME:LLIM <Value>`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetPowerSweepTimeLowerLimit, KVTD481X2C_ATTR_POWER_SWEEP_TIME_LOWER_LIMIT
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetPowerSweepTimeLowerLimit(ViSession Vi, ViReal64 Value);

/** @} */

/**
 * @defgroup system System
 *
 * The instrument as a computer: what it is and has, its temperature, its applications and options, its GPS receiver,
 * and its clock with the time zone and the synchronisation.
 *
 * Texts are passed on as the instrument gives them. Setting the clock does not look at KVTD481X2C_ATTR_TIME_SYNC_MODE:
 * whether a date is accepted while the clock is synchronised is for the instrument to say.
 * @{
 */

/** The instrument's log of errors. ViString, read. */
#define KVTD481X2C_ATTR_SYSTEM_ERROR_LOG 1150144

/** The MAC address of the instrument. ViString, read. */
#define KVTD481X2C_ATTR_MAC_ADDRESS 1150145

/** The modules that the instrument is built of. ViString, read. */
#define KVTD481X2C_ATTR_MODULE_INFORMATION 1150146

/** The version of SCPI that the instrument follows. ViString, read. */
#define KVTD481X2C_ATTR_SCPI_VERSION 1150147

/** The serial number of the instrument. ViString, read. */
#define KVTD481X2C_ATTR_SERIAL_NUMBER 1150148

/** The temperature inside the instrument. ViReal64, degC, read. */
#define KVTD481X2C_ATTR_TEMPERATURE 1150149

/** The memory of the instrument, in the instrument's own measure. ViInt32, read. */
#define KVTD481X2C_ATTR_TOTAL_MEMORY 1150150

/** The name that the user has given to this unit. ViString, read and write. */
#define KVTD481X2C_ATTR_UNIT_NAME 1150151

/** The applications that are active. ViString, read. */
#define KVTD481X2C_ATTR_ACTIVE_APPLICATIONS 1150161

/** The applications that the instrument has. ViString, read. */
#define KVTD481X2C_ATTR_AVAILABLE_APPLICATIONS 1150162

/** What the GPS receiver reports, in short. ViString, read. */
#define KVTD481X2C_ATTR_BASIC_GPS_INFO 1150163

/** What the GPS receiver reports, in full. ViString, read. */
#define KVTD481X2C_ATTR_FULL_GPS_INFO 1150164

/** Whether the GPS receiver is on. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_GPS_ENABLED 1150165

/** How the options of the instrument are configured. ViString, read. */
#define KVTD481X2C_ATTR_OPTIONS_CONFIGURATION 1150169

/**
 * Whether the clock is synchronised automatically or set by hand. ViInt32, enumeration TIME_SYNC_MODE, read and write.
 */
#define KVTD481X2C_ATTR_TIME_SYNC_MODE 1150171

/** What the clock is synchronised with. ViInt32, enumeration TIME_SYNC_STATUS, read. */
#define KVTD481X2C_ATTR_TIME_SYNC_STATUS 1150172

/** The time zone of the clock. ViString, read and write. */
#define KVTD481X2C_ATTR_TIME_ZONE 1150173

/**
 * Reads KVTD481X2C_ATTR_ACTIVE_APPLICATIONS: the applications that are active.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:INST:CAT:ACT?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_ACTIVE_APPLICATIONS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetActiveApplications(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_AVAILABLE_APPLICATIONS: the applications that the instrument has.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:INST:CAT:FULL?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_AVAILABLE_APPLICATIONS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetAvailableApplications(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_BASIC_GPS_INFO: what the GPS receiver reports, in short.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FETC:GPS?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_BASIC_GPS_INFO
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetBasicGpsInfo(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_FULL_GPS_INFO: what the GPS receiver reports, in full.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:FETC:GPS:FULL?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_FULL_GPS_INFO
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetFullGpsInfo(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_GPS_ENABLED: whether the GPS receiver is on.
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
 * Queries `:SYST:GPS:STAT?`.
 * Simulated: nothing is sent; the value last stored, before that VI_TRUE.
 * @see KVTD481X2C_SetGpsEnabled, KVTD481X2C_ATTR_GPS_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetGpsEnabled(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_MAC_ADDRESS: the MAC address of the instrument.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:MAC?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_MAC_ADDRESS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetMacAddress(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_MODULE_INFORMATION: the modules that the instrument is built of.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:DIAG:MOD:INFO?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_MODULE_INFORMATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetModuleInformation(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_OPTIONS_CONFIGURATION: how the options of the instrument are configured.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:OPT:CONF?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_OPTIONS_CONFIGURATION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetOptionsConfiguration(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_SCPI_VERSION: the version of SCPI that the instrument follows.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:VERS?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_SCPI_VERSION
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetScpiVersion(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads KVTD481X2C_ATTR_SERIAL_NUMBER: the serial number of the instrument.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:DIAG:SNUM?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_SERIAL_NUMBER
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetSerialNumber(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Reads the date of the instrument's clock.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Year   The year. After a failure: unchanged, or what had arrived.
 * @param Month  The month. After a failure: unchanged, or what had arrived.
 * @param Day    The day. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  one of Year, Month, Day is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:DATE?`.
 * Simulated: returns 0 and leaves the three as they were; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetSystemDate(ViSession Vi, ViInt32* Year, ViInt32* Month, ViInt32* Day);

/**
 * Reads KVTD481X2C_ATTR_SYSTEM_ERROR_LOG: the instrument's log of errors.
 *
 * The error queue is another thing: KVTD481X2C_error_query reads it.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:LOG:ERR?`.
 * Simulated: nothing is sent; the empty text.
 * @see KVTD481X2C_ATTR_SYSTEM_ERROR_LOG
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetSystemErrorLog(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Lists the options that the instrument has.
 *
 * @param Vi             Handle from KVTD481X2C_InitWithOptions.
 * @param ValBufferSize  Size of Val, terminator included; at least 1, not tested.
 * @param Val            The list, as the instrument gives it, cut to the size. After a failure: unchanged, or what had
 *                       arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Val is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:OPT?`.
 * Simulated: returns 0 and leaves Val as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetSystemOptions(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]);

/**
 * Reads the time of the instrument's clock.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Hour    The hour. After a failure: unchanged, or what had arrived.
 * @param Minute  The minute. After a failure: unchanged, or what had arrived.
 * @param Second  The second. After a failure: unchanged, or what had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  one of Hour, Minute, Second is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:TIME?`.
 * Simulated: returns 0 and leaves the three as they were; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetSystemTime(ViSession Vi, ViInt32* Hour, ViInt32* Minute,
                                                          ViInt32* Second);

/**
 * Reads KVTD481X2C_ATTR_TEMPERATURE: the temperature inside the instrument.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. In degC. After a failure: unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViReal64 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:TEMP?`.
 * Simulated: nothing is sent; 75.0.
 * @see KVTD481X2C_ATTR_TEMPERATURE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetTemperature(ViSession Vi, ViReal64* Value);

/**
 * Reads KVTD481X2C_ATTR_TIME_SYNC_MODE: whether the clock is synchronised automatically or set by hand.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_TIME_SYNC_MODE_AUTO or KVTD481X2C_VAL_TIME_SYNC_MODE_MANUAL. After a
 *               failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:TIME:SYNC?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_TIME_SYNC_MODE_AUTO.
 * @see KVTD481X2C_SetTimeSyncMode, KVTD481X2C_ATTR_TIME_SYNC_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetTimeSyncMode(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_TIME_SYNC_STATUS: what the clock is synchronised with.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_TIME_SYNC_STATUS_INTERNET, KVTD481X2C_VAL_TIME_SYNC_STATUS_GPS,
 *               KVTD481X2C_VAL_TIME_SYNC_STATUS_NONE or KVTD481X2C_VAL_TIME_SYNC_STATUS_NOT_AVAILABLE. After a failure:
 *               -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:TIME:SYNC:STAT?`.
 * Simulated: nothing is sent; KVTD481X2C_VAL_TIME_SYNC_STATUS_NOT_AVAILABLE.
 * @see KVTD481X2C_ATTR_TIME_SYNC_STATUS
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetTimeSyncStatus(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_TIME_ZONE: the time zone of the clock.
 *
 * KVTD481X2C_GetTimeZoneCatalog lists the zones that the instrument knows.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:TIME:ZONE?`.
 * Simulated: nothing is sent; the value last stored, before that the empty text.
 * @see KVTD481X2C_SetTimeZone, KVTD481X2C_ATTR_TIME_ZONE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetTimeZone(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Lists the time zones that the instrument knows.
 *
 * @param Vi                 Handle from KVTD481X2C_InitWithOptions.
 * @param CatalogBufferSize  Size of Catalog, terminator included; at least 1.
 * @param Catalog            The list, as the instrument gives it, cut to the size. After a failure: unchanged, or what
 *                           had arrived.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Catalog is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:TIME:ZONE:CAT?`.
 * Simulated: returns 0 and leaves Catalog as it was; nothing is sent.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetTimeZoneCatalog(ViSession Vi, ViInt32 CatalogBufferSize,
                                                               ViChar Catalog[]);

/**
 * Reads KVTD481X2C_ATTR_TOTAL_MEMORY: the memory of the instrument, in the instrument's own measure.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. After a failure: unchanged, but for 0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:DIAG:MEM?`.
 * Simulated: nothing is sent; 5000000.
 * @see KVTD481X2C_ATTR_TOTAL_MEMORY
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetTotalMemory(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_UNIT_NAME: the name that the user has given to this unit.
 *
 * @param Vi          Handle from KVTD481X2C_InitWithOptions.
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:SYST:UNIT:NAM?`.
 * Simulated: nothing is sent; the value last stored, before that the text "0".
 * @see KVTD481X2C_SetUnitName, KVTD481X2C_ATTR_UNIT_NAME
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetUnitName(ViSession Vi, ViInt32 BufferSize, ViChar Value[]);

/**
 * Writes KVTD481X2C_ATTR_GPS_ENABLED: whether the GPS receiver is on.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. VI_TRUE or VI_FALSE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:GPS:STAT <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetGpsEnabled, KVTD481X2C_ATTR_GPS_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetGpsEnabled(ViSession Vi, ViBoolean Value);

/**
 * Sets the date of the instrument's clock.
 *
 * The year takes four columns, with blanks in front of a shorter one. The driver checks no range.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Year   The year.
 * @param Month  The month.
 * @param Day    The day.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:DATE %4ld,%ld,%ld`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetSystemDate(ViSession Vi, ViInt32 Year, ViInt32 Month, ViInt32 Day);

/**
 * Sets the time of the instrument's clock.
 *
 * The hour takes four columns, as the year of a date does: three blanks stand before an hour of 7. The driver checks no
 * range.
 *
 * @param Vi      Handle from KVTD481X2C_InitWithOptions.
 * @param Hour    The hour.
 * @param Minute  The minute.
 * @param Second  The second.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:TIME %4ld,%ld,%ld`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetSystemTime(ViSession Vi, ViInt32 Hour, ViInt32 Minute, ViInt32 Second);

/**
 * Writes KVTD481X2C_ATTR_TIME_SYNC_MODE: whether the clock is synchronised automatically or set by hand.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_TIME_SYNC_MODE_AUTO or KVTD481X2C_VAL_TIME_SYNC_MODE_MANUAL.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:TIME:SYNC <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetTimeSyncMode, KVTD481X2C_ATTR_TIME_SYNC_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetTimeSyncMode(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_TIME_ZONE: the time zone of the clock.
 *
 * KVTD481X2C_GetTimeZoneCatalog lists the zones that the instrument knows.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new text, terminated. It is sent as it stands; the driver checks and escapes nothing in it.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:TIME:ZONE "<Value>"`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetTimeZone, KVTD481X2C_ATTR_TIME_ZONE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetTimeZone(ViSession Vi, ViConstString Value);

/**
 * Writes KVTD481X2C_ATTR_UNIT_NAME: the name that the user has given to this unit.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new text, terminated. It is sent as it stands; the driver checks and escapes nothing in it.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:SYST:UNIT:NAM "<Value>"`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetUnitName, KVTD481X2C_ATTR_UNIT_NAME
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetUnitName(ViSession Vi, ViConstString Value);

/** @} */

/**
 * @defgroup trigger Trigger
 *
 * Starting, stopping and triggering what the sweep and list pages have configured. The instrument is the state machine;
 * the driver sends the words and keeps no state.
 * @{
 */

/** Whether the instrument arms itself again after each sweep. ViBoolean, read and write. */
#define KVTD481X2C_ATTR_INITIATE_CONTINUOUS_ENABLED 1150175

/** How a sweep is started and advanced. ViInt32, enumeration TRIGGER_TYPE, read and write. */
#define KVTD481X2C_ATTR_TRIGGER_TYPE 1150177

/**
 * Whether a trigger plays the whole list or one point of it. ViInt32, enumeration LIST_TRIGGER_MODE, read and write.
 */
#define KVTD481X2C_ATTR_TRIGGER_MODE 1150182

/** Where triggers come from. ViInt32, enumeration TRIGGER_SOURCE, read and write. */
#define KVTD481X2C_ATTR_TRIGGER_SOURCE 1150183

/**
 * Stops the running sweep.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:ABOR`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_Abort(ViSession Vi);

/**
 * Makes the instrument ready for a trigger.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:INIT`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_ArmTrigger(ViSession Vi);

/**
 * Takes the instrument to its quiescent state.
 *
 * The instrument is reset, under a timeout of 2000 ms that is put back on every path. Unlike KVTD481X2C_reset it leaves
 * the values that the session remembers, and it does not change what KVTD481X2C_IsSettled answers.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `*RST`. Queries `*OPC?`.
 * Simulated: returns 0, sends nothing, and leaves the stored values.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_Disable(ViSession Vi);

/**
 * Switches every modulation off.
 *
 * Stops at the first failure and leaves the modulations behind it as they are.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sets KVTD481X2C_ATTR_AM_ENABLED, KVTD481X2C_ATTR_FM_ENABLED, KVTD481X2C_ATTR_PM_ENABLED,
 * KVTD481X2C_ATTR_PULSE_MODULATION_ENABLED, in this order, up to the first failure.
 * Simulated: fails with VISA's status: the attributes make their VISA call.
 * @see KVTD481X2C_ATTR_AM_ENABLED, KVTD481X2C_ATTR_FM_ENABLED, KVTD481X2C_ATTR_PM_ENABLED,
 *      KVTD481X2C_ATTR_PULSE_MODULATION_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_DisableAllModulation(ViSession Vi);

/**
 * Reads KVTD481X2C_ATTR_INITIATE_CONTINUOUS_ENABLED: whether the instrument arms itself again after each sweep.
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
 * Queries `:INIT:CONT?`.
 * Simulated: nothing is sent; the value last stored, before that VI_TRUE.
 * @see KVTD481X2C_SetInitiateContinuousEnabled, KVTD481X2C_ATTR_INITIATE_CONTINUOUS_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetInitiateContinuousEnabled(ViSession Vi, ViBoolean* Value);

/**
 * Reads KVTD481X2C_ATTR_TRIGGER_MODE: whether a trigger plays the whole list or one point of it.
 *
 * Takes the values KVTD481X2C_VAL_LIST_TRIGGER_MODE_...; those named KVTD481X2C_VAL_TRIGGER_MODE_... belong to the
 * pulse generator.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_LIST_TRIGGER_MODE_SWEEP or KVTD481X2C_VAL_LIST_TRIGGER_MODE_POINT.
 *               After a failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:TRIG:MODE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_LIST_TRIGGER_MODE_SWEEP.
 * @see KVTD481X2C_SetTriggerMode, KVTD481X2C_ATTR_TRIGGER_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetTriggerMode(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_TRIGGER_SOURCE: where triggers come from.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_TRIGGER_SOURCE_SOFTWARE, KVTD481X2C_VAL_TRIGGER_SOURCE_IMMEDIATE or
 *               KVTD481X2C_VAL_TRIGGER_SOURCE_EXTERNAL. After a failure: -1 with 0xBFFA0059, else unchanged, but for
 *               0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:TRIG:SOUR?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_TRIGGER_SOURCE_SOFTWARE.
 * @see KVTD481X2C_SetTriggerSource, KVTD481X2C_ATTR_TRIGGER_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetTriggerSource(ViSession Vi, ViInt32* Value);

/**
 * Reads KVTD481X2C_ATTR_TRIGGER_TYPE: how a sweep is started and advanced.
 *
 * KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE and the single-step switches of frequency, power and list are views of this
 * attribute.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_TRIGGER_TYPE_AUTO, KVTD481X2C_VAL_TRIGGER_TYPE_SINGLE,
 *               KVTD481X2C_VAL_TRIGGER_TYPE_EXTERNAL, KVTD481X2C_VAL_TRIGGER_TYPE_MANUAL or
 *               KVTD481X2C_VAL_TRIGGER_TYPE_INACTIVE. After a failure: -1 with 0xBFFA0059, else unchanged, but for
 *               0xBFFA0001, which is found after the reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:TRIG:TYPE?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_TRIGGER_TYPE_AUTO.
 * @see KVTD481X2C_SetTriggerType, KVTD481X2C_ATTR_TRIGGER_TYPE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetTriggerType(ViSession Vi, ViInt32* Value);

/**
 * Sends a trigger.
 *
 * Neither KVTD481X2C_ATTR_TRIGGER_SOURCE nor KVTD481X2C_ATTR_TRIGGER_TYPE is looked at: the trigger goes out whatever
 * they say, and the instrument decides what becomes of it.
 *
 * @param Vi  Handle from KVTD481X2C_InitWithOptions.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:TRIG`.
 * Simulated: returns 0 and sends nothing.
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SendSoftwareTrigger(ViSession Vi);

/**
 * Writes KVTD481X2C_ATTR_INITIATE_CONTINUOUS_ENABLED: whether the instrument arms itself again after each sweep.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. VI_TRUE or VI_FALSE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:INIT:CONT <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetInitiateContinuousEnabled, KVTD481X2C_ATTR_INITIATE_CONTINUOUS_ENABLED
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetInitiateContinuousEnabled(ViSession Vi, ViBoolean Value);

/**
 * Writes KVTD481X2C_ATTR_TRIGGER_MODE: whether a trigger plays the whole list or one point of it.
 *
 * Takes the values KVTD481X2C_VAL_LIST_TRIGGER_MODE_...; those named KVTD481X2C_VAL_TRIGGER_MODE_... belong to the
 * pulse generator.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_LIST_TRIGGER_MODE_SWEEP or KVTD481X2C_VAL_LIST_TRIGGER_MODE_POINT.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:TRIG:MODE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetTriggerMode, KVTD481X2C_ATTR_TRIGGER_MODE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetTriggerMode(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_TRIGGER_SOURCE: where triggers come from.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_TRIGGER_SOURCE_SOFTWARE, KVTD481X2C_VAL_TRIGGER_SOURCE_IMMEDIATE or
 *               KVTD481X2C_VAL_TRIGGER_SOURCE_EXTERNAL.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:TRIG:SOUR <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetTriggerSource, KVTD481X2C_ATTR_TRIGGER_SOURCE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetTriggerSource(ViSession Vi, ViInt32 Value);

/**
 * Writes KVTD481X2C_ATTR_TRIGGER_TYPE: how a sweep is started and advanced.
 *
 * KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE and the single-step switches of frequency, power and list are views of this
 * attribute.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. KVTD481X2C_VAL_TRIGGER_TYPE_AUTO, KVTD481X2C_VAL_TRIGGER_TYPE_SINGLE,
 *               KVTD481X2C_VAL_TRIGGER_TYPE_EXTERNAL, KVTD481X2C_VAL_TRIGGER_TYPE_MANUAL or
 *               KVTD481X2C_VAL_TRIGGER_TYPE_INACTIVE.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0000  Value is no defined value, or one without a word; nothing is sent
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:TRIG:TYPE <Value>`.
 * Simulated: nothing is converted or sent; the value is stored.
 * @see KVTD481X2C_GetTriggerType, KVTD481X2C_ATTR_TRIGGER_TYPE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetTriggerType(ViSession Vi, ViInt32 Value);

/** @} */

#ifdef __cplusplus
}
#endif

#endif /* KVTD481X2C_H */
