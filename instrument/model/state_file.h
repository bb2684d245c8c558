// Settings as text, one "name value" per line: what :MMEMory:STORe:STATe writes and :LOAD:STATe reads back exactly.
#pragma once

#include <string>
#include <string_view>

#include "model/settings.h"
#include "model/variant.h"

namespace siggen::model {

std::string WriteState(const Settings& settings, const Variant& variant);

// Throws -250 for a file that is no state or that another model has written.
Settings ReadState(std::string_view text, const Variant& variant);

}  // namespace siggen::model
