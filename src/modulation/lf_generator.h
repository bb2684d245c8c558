// The choice of the active LF generators, which opening a session makes as well.
#pragma once

#include <visatype.h>

// Takes a selector over the capability "LFGenerator". A selector that is refused leaves the former choice in force.
ViStatus SelectLfGenerator(ViSession vi, ViConstString selector);
