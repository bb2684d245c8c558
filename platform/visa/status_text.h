// What viStatusDesc says.
#pragma once

#include <visa.h>

#include <string_view>

namespace tvr::visa {

// Empty for a code that is not VISA's.
std::string_view StatusText(ViStatus status);

}  // namespace tvr::visa
