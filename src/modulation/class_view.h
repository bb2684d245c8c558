// What AM, FM and PM have in common in the class's view: a source that is a text, a coupling that is always DC.
#pragma once

#include "KVTD481X2C.h"
#include "Tvr.h"

// The instrument's source by an attribute of MODULATION_SOURCE values, under the class's names "Internal", "External".
ViStatus GetSourceName(ViSession vi, const char* attribute, ViAttr source, ViInt32 size, ViChar* value);
ViStatus SetSourceName(ViSession vi, const char* attribute, ViAttr source, ViConstString value);

// The instrument couples DC only: the read says so, the write takes nothing else, and nothing is sent.
ViStatus GetDcCoupling(ViSession vi, const char* attribute, ViInt32* value);
ViStatus SetDcCoupling(ViSession vi, const char* attribute, const tvr::EnumMap& names, ViInt32 value);

// The voltage for full modulation, fixed at 1 V.
ViStatus GetNominalVoltage(ViSession vi, const char* attribute, ViReal64* value);

// Passes on 0 and 1 of an instrument value that the class has the same numbers for; anything else is no answer.
ViStatus GetTwoValued(ViSession vi, const char* attribute, ViAttr source, ViInt32* value);
