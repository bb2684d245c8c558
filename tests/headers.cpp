// A program without tests: it owns the precompiled headers of those that have some.
#include "headers.h"
