#ifndef TVRIVI_CONFIG_LOCATIONS_H
#define TVRIVI_CONFIG_LOCATIONS_H

#include <string>
#include <string_view>

namespace tvrivi {

/// Full path of the machine's store, fixed when the library is built.
std::string_view MasterLocation();

/// What the environment variable IVICONFIGSERVERDEFAULT says, empty when it is not set.
std::string ProcessDefaultLocation();
void SetProcessDefaultLocation(const std::string& location);

}  // namespace tvrivi

#endif
