#include "EchoInstrument.h"

#include <array>
#include <string_view>

namespace kvtd::test {
namespace {

// `:A? "b","c"` asks for c, `:A? d` for d.
std::string_view LastNamed(std::string_view query) {
  if (query.ends_with('"')) query.remove_suffix(1);
  return query.substr(query.find_last_of(" \"") + 1);
}

std::string_view AnswerTo(std::string_view query) {
  if (query == "*IDN?") return "Kelvora,TD48142C,SN4711,1.2.3";
  if (query == "*ESR?") return "0";
  return LastNamed(query);
}

}  // namespace

void EchoInstrument::Serve(int connection) {
  std::array<char, 4096> buffer;
  std::string unfinished;
  std::string answer;
  for (;;) {
    const std::size_t got = bench::ReceiveSome(connection, buffer.data(), buffer.size());
    if (got == 0) return;
    unfinished.append(buffer.data(), got);
    std::size_t end = 0;
    while ((end = unfinished.find('\n')) != std::string::npos) {
      const std::string_view line = std::string_view(unfinished).substr(0, end);
      if (line.find('?') != std::string_view::npos) {
        answer = AnswerTo(line);
        answer += '\n';
        if (!bench::SendAll(connection, answer)) return;
      }
      unfinished.erase(0, end + 1);
    }
  }
}

}  // namespace kvtd::test
