#ifndef TVRIVI_COMMON_EXPORTS_H
#define TVRIVI_COMMON_EXPORTS_H

// Included by the files that define exported functions: everything else in the library is hidden.
#pragma GCC visibility push(default)
#include "IviCShared.h"
#include "IviConfigServer.h"
#pragma GCC visibility pop

#endif
