// The row of an exported function that is no attribute wrapper: its name, the outputs its null check names, and the
// texts it exchanges. Null where a function has none.
#pragma once

namespace tvr {

struct Operation {
  const char* function;
  const char* outputs;
  const char* write;
  const char* query;
  const char* scan;
};

}  // namespace tvr
