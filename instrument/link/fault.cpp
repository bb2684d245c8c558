#include "link/fault.h"

#include <charconv>
#include <string>
#include <utility>

#include "scpi/answer.h"

namespace siggen::link {
namespace {

constexpr std::pair<std::string_view, Fault::Kind> kNames[] = {
    {"delay", Fault::Kind::kDelay}, {"drop", Fault::Kind::kDrop},       {"reset", Fault::Kind::kReset},
    {"cut", Fault::Kind::kCut},     {"garbage", Fault::Kind::kGarbage}, {"terminator", Fault::Kind::kTerminator},
    {"block", Fault::Kind::kBlock},
};

std::optional<unsigned> Number(std::string_view text) {
  unsigned number = 0;
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (problem != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::string Garbage() {
  std::string bytes;
  unsigned state = 0x481;
  while (bytes.size() < 64) {
    state = state * 1103515245U + 12345U;
    const char c = static_cast<char>(state >> 16);
    if (c != '\n') bytes += c;
  }
  return bytes + '\n';
}

std::string LyingBlock(const std::string& answer) {
  std::string data = answer;
  if (data.size() > 2 && data[0] == '#' && data[1] >= '1' && data[1] <= '9') {
    data.erase(0, 2 + static_cast<std::size_t>(data[1] - '0'));
  }
  const std::string announced = std::to_string(data.size() + 1000);
  return '#' + std::to_string(announced.size()) + announced + data;
}

}  // namespace

std::optional<Fault> ParseFault(std::string_view text) {
  Fault fault;
  if (const std::size_t at = text.find('@'); at != std::string_view::npos) {
    fault.answer = Number(text.substr(at + 1));
    if (!fault.answer || *fault.answer == 0) return std::nullopt;
    text = text.substr(0, at);
  }
  std::optional<unsigned> milliseconds;
  if (const std::size_t colon = text.find(':'); colon != std::string_view::npos) {
    milliseconds = Number(text.substr(colon + 1));
    if (!milliseconds) return std::nullopt;
    fault.delay = std::chrono::milliseconds(*milliseconds);
    text = text.substr(0, colon);
  }
  for (const auto& [name, kind] : kNames) {
    if (name != text) continue;
    fault.kind = kind;
    if (milliseconds.has_value() != (kind == Fault::Kind::kDelay)) return std::nullopt;
    return fault;
  }
  return std::nullopt;
}

std::optional<Fault> FaultPlan::Next() {
  std::optional<Fault> due;
  for (auto fault = faults_.begin(); fault != faults_.end();) {
    if (fault->answer && --*fault->answer != 0) {
      ++fault;
      continue;
    }
    if (!due) due = *fault;
    fault = fault->answer ? faults_.erase(fault) : fault + 1;
  }
  return due;
}

std::vector<scpi::Bytes> Distort(Fault::Kind kind, std::vector<scpi::Bytes> answer) {
  std::string whole = scpi::Join(answer);
  switch (kind) {
    case Fault::Kind::kDelay:
      return answer;
    case Fault::Kind::kDrop:
    case Fault::Kind::kReset:
      return {};
    case Fault::Kind::kCut:
      whole.resize(whole.size() / 2);
      break;
    case Fault::Kind::kGarbage:
      whole = Garbage();
      break;
    case Fault::Kind::kTerminator:
      whole.back() = '\r';
      break;
    case Fault::Kind::kBlock:
      whole = LyingBlock(whole);
      break;
  }
  return {scpi::Bytes::Copy(whole)};
}

}  // namespace siggen::link
