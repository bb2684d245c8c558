// Where the core program of an instrument listens.
#pragma once

#include <visa.h>

#include <string>

#include "deadline.h"
#include "interruption.h"

namespace tvr::visa::vxi11 {

constexpr ViUInt16 kPortMapperPort = 111;

// From the environment variable TVR_VISA_VXI11_PORT when that is a port's number, otherwise from the port mapper of the
// host. VI_ERROR_RSRC_NFOUND: there is none, or it knows no such program.
ViStatus FindCorePort(const std::string& host, ViUInt16 mapper_port, Interruption& interruption, Deadline& deadline,
                      ViUInt16& port);

}  // namespace tvr::visa::vxi11
