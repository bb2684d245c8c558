// Between an instrument and a file of this machine.
#pragma once

#include <visa.h>

#include <cstddef>

#include "session.h"

namespace tvr::visa {

// Status as of the last read; VI_ERROR_FILE_ACCESS and VI_ERROR_FILE_IO for the file. The counts are bytes that reached
// their end.
ViStatus ReadToFile(Session& session, const char* name, std::size_t count, Deadline& deadline, std::size_t& received);
ViStatus WriteFromFile(Session& session, const char* name, std::size_t count, Deadline& deadline, std::size_t& sent);

}  // namespace tvr::visa
