#ifndef IVI_VISA_TYPE_H
#define IVI_VISA_TYPE_H

/* The IVI shared components speak the fundamental types of VISA; this is the name by which they include them. */
#include "visatype.h"

#endif
