// The write half of formatted I/O: a format string and its arguments into a session's write buffer.
#pragma once

#include <visa.h>

#include "format/args.h"
#include "format/formatted_output.h"

namespace tvr::visa {

// VI_ERROR_INV_FMT for a bad directive or count: then nothing of the message has been sent. VI_ERROR_USER_BUF for a
// null pointer. Otherwise the status of sending.
ViStatus WriteFormat(const char* format, Args& args, FormattedOutput& out);

// False when the format may end a message before its own end.
bool IsOneMessage(const char* format);

}  // namespace tvr::visa
