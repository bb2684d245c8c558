#include "EchoInstrument.h"

namespace kvtd::test {
namespace {

// `:A? "b","c"` asks for c, `:A? d` for d.
std::string_view LastNamed(std::string_view query) {
  if (query.ends_with('"')) query.remove_suffix(1);
  return query.substr(query.find_last_of(" \"") + 1);
}

}  // namespace

std::string EchoInstrument::AnswerTo(std::string_view query) {
  if (query == "*IDN?") return "Kelvora,TD48142C,SN4711,1.2.3\n";
  if (query == "*ESR?") return "0\n";
  return std::string(LastNamed(query)) + "\n";
}

}  // namespace kvtd::test
