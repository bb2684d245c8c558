// The reset sequence, which opening a session and disabling the output need as well. Called inside a frame.
#pragma once

#include <visatype.h>

// "*RST" and a wait for its end, under the reset timeout, with the status check behind it.
ViStatus SendReset(ViSession vi);

// Resets the instrument and forgets all stored values. A simulated session only forgets; a failed reset does not.
ViStatus ResetInstrument(ViSession vi);
