// Looking for instruments on the network: whoever has a port mapper that knows the VXI-11 core channel is one.
#pragma once

#include <visa.h>

#include <string>
#include <vector>

namespace tvr::visa {

// Asks by UDP on every interface that can broadcast, and on the loopback one; or the addresses in the environment
// variable TVR_VISA_FIND_ADDRESSES, "a.b.c.d[:port],...", entries that are none being passed over. Takes half a second.
// The descriptors come in the order of the addresses, each once.
ViStatus FindInstruments(std::vector<std::string>& descriptors);

}  // namespace tvr::visa
