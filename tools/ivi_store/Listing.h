#ifndef TOOLS_IVI_STORE_LISTING_H
#define TOOLS_IVI_STORE_LISTING_H

#include <ostream>
#include <string>

#include "config/Model.h"

/// One line for each name under which a driver can be opened: name, resource, remarks.
void PrintList(std::ostream& out, const tvrivi::Model& model);

/// Everything that a driver is told when it opens the name. Throws Refusal when there is none.
void PrintSession(std::ostream& out, const tvrivi::Model& model, const std::string& name);

/// What is allowed but will disappoint, one line each, and a closing line.
void PrintCheck(std::ostream& out, const tvrivi::Model& model, const std::string& location);

#endif
