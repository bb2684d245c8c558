// Blocks and raw bytes in answers: the %b and %y directives of a read format.
#pragma once

#include <visa.h>

#include "format/args.h"
#include "format/directive.h"
#include "format/read_stream.h"

namespace tvr::visa {

ViStatus ReadBlock(const ReadDirective& directive, Args& args, ReadStream& in);

}  // namespace tvr::visa
