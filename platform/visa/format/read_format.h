// The read half of formatted I/O: from a session's read buffer into the caller's variables.
#pragma once

#include <visa.h>

#include "format/args.h"
#include "format/read_stream.h"

namespace tvr::visa {

// VI_SUCCESS when all directives are satisfied or the message has ended before; the variables of those that were not
// reached stay as they were. VI_ERROR_INV_FMT for a bad directive, and for input that does not match: the byte that
// does not fit stays in the stream. Otherwise the status of reading.
ViStatus ReadFormat(const char* format, Args& args, ReadStream& in);

}  // namespace tvr::visa
