// The condition at the end of a search expression: "VI_ATTR_INTF_NUM == 0 && !(VI_ATTR_INTF_TYPE == 1)".
#pragma once

#include <string_view>

namespace tvr::visa {

// False when the text is no condition. `holds`: for a resource that discovery.h finds, as long as it is not open. A
// comparison of an attribute that such a resource does not have never holds.
bool EvaluateCondition(std::string_view text, bool& holds);

}  // namespace tvr::visa
