// Single stepping of the frequency sweep, the power sweep and the lists: three names of one state of the instrument,
// its trigger type. Setting one changes what the others read.
#pragma once

#include <visatype.h>

ViStatus GetSingleStep(ViSession vi, const char* attribute, ViBoolean* value);
ViStatus SetSingleStep(ViSession vi, ViBoolean value);
