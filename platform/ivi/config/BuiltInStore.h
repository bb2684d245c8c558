#ifndef TVRIVI_CONFIG_BUILT_IN_STORE_H
#define TVRIVI_CONFIG_BUILT_IN_STORE_H

#include <string_view>

namespace tvrivi {

/// The store of a machine on which nothing was configured yet: the driver's software module and nothing else. The
/// component serves it in place of an absent master store, and a new master store begins with it.
std::string_view BuiltInStore();

}  // namespace tvrivi

#endif
