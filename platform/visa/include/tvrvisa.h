/* What the embedded VISA has beside the published interface. */
#ifndef TVRVISA_H
#define TVRVISA_H

#include "visa.h"

/**
 * ViBoolean, read and write, SOCKET sessions only; VI_FALSE at first. With VI_TRUE, the first message after a read that
 * failed goes over a new connection, and an answer that comes late is lost with the old one. A byte stream cannot tell
 * such an answer from the one that is asked for next.
 */
#define TVR_ATTR_SOCKET_RECONNECT (0x3FFAF001UL)

#endif
