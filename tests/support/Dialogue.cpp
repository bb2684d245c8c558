#include "Dialogue.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <utility>

#include "Bytes.h"

namespace kvtd::test {

namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view WithoutIndent(std::string_view line) {
  const std::size_t first = line.find_first_not_of(kBlanks);
  return first == std::string_view::npos ? std::string_view() : line.substr(first);
}

// A long block is told by its beginning and its size.
std::string Shown(std::string_view bytes) {
  constexpr std::size_t kMost = 200;
  if (bytes.size() <= kMost) return Visible(bytes);
  return Visible(bytes.substr(0, kMost)) + "... (" + std::to_string(bytes.size()) + " bytes)";
}

[[noreturn]] void Refuse(std::string_view line, const char* why) {
  throw std::invalid_argument("script line \"" + std::string(line) + "\": " + why);
}

Reaction Directive(std::string_view line, std::string_view words) {
  if (words == "close") return {.kind = Reaction::Kind::Close};
  if (words == "half-close") return {.kind = Reaction::Kind::HalfClose};
  if (words == "reset") return {.kind = Reaction::Kind::Reset};
  constexpr std::string_view kPause = "pause ";
  if (!words.starts_with(kPause)) Refuse(line, "unknown directive");
  words.remove_prefix(kPause.size());
  int milliseconds = 0;
  const auto [end, error] = std::from_chars(words.data(), words.data() + words.size(), milliseconds);
  if (error != std::errc() || end != words.data() + words.size()) Refuse(line, "a pause needs milliseconds");
  return {.kind = Reaction::Kind::Pause, .duration = Milliseconds(milliseconds)};
}

}  // namespace

void Dialogue::Script(std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = WithoutIndent(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.empty()) continue;
    if (line.size() > 1 && kBlanks.find(line.back()) != std::string_view::npos) {
      Refuse(line, "a trailing blank cannot be seen here, use Sent or Answer");
    }
    if (line.size() > 1 && line[1] != ' ') Refuse(line, "one blank follows the sign");
    const std::string_view content = line.size() > 2 ? line.substr(2) : std::string_view();
    switch (line.front()) {
      case '>':
        Sent(std::string(content) + '\n');
        break;
      case '<':
        Answer(std::string(content) + '\n');
        break;
      case '!':
        React(Directive(line, content));
        break;
      default:
        Refuse(line, "starts with none of > < !");
    }
  }
}

void Dialogue::Sent(std::string bytes) {
  const std::lock_guard lock(mutex_);
  script_.push_back({std::move(bytes), {}});
}

void Dialogue::Answer(std::string bytes) { React({.kind = Reaction::Kind::Answer, .bytes = std::move(bytes)}); }
void Dialogue::Pause(Milliseconds duration) { React({.kind = Reaction::Kind::Pause, .duration = duration}); }
void Dialogue::Close() { React({.kind = Reaction::Kind::Close}); }
void Dialogue::HalfClose() { React({.kind = Reaction::Kind::HalfClose}); }
void Dialogue::Reset() { React({.kind = Reaction::Kind::Reset}); }

void Dialogue::React(Reaction reaction) {
  const std::lock_guard lock(mutex_);
  if (script_.empty()) throw std::invalid_argument("nothing is expected to which this could be the answer");
  script_.back().reactions.push_back(std::move(reaction));
}

void Dialogue::AnswerAlways(std::string_view line, std::string_view answer) {
  const std::lock_guard lock(mutex_);
  always_.insert_or_assign(std::string(line) + '\n', std::string(answer) + '\n');
}

void Dialogue::AnswerNothing(std::string_view line) {
  const std::lock_guard lock(mutex_);
  always_.insert_or_assign(std::string(line) + '\n', std::string());
}

std::vector<Reaction> Dialogue::Receive(std::string_view bytes) {
  const std::lock_guard lock(mutex_);
  pending_ += bytes;
  std::vector<Reaction> reactions;
  while (!pending_.empty()) {
    if (!surprised_ && !script_.empty()) {
      const std::string& expected = script_.front().expected;
      if (pending_.starts_with(expected)) {
        pending_.erase(0, expected.size());
        log_.push_back({Entry::Kind::Arrived, expected});
        Note(script_.front().reactions);
        for (Reaction& reaction : script_.front().reactions) reactions.push_back(std::move(reaction));
        script_.pop_front();
        continue;
      }
      if (expected.starts_with(pending_)) break;
    }
    const std::size_t end = pending_.find('\n');
    if (end == std::string::npos) break;
    std::string line = pending_.substr(0, end + 1);
    pending_.erase(0, end + 1);
    if (const auto always = always_.find(line); !surprised_ && always != always_.end()) {
      log_.push_back({Entry::Kind::Arrived, std::move(line)});
      if (always->second.empty()) continue;
      reactions.push_back({.kind = Reaction::Kind::Answer, .bytes = always->second});
      log_.push_back({Entry::Kind::Answered, always->second});
    } else {
      log_.push_back({Entry::Kind::Surprise, std::move(line)});
      surprised_ = true;
      reactions.push_back({.kind = Reaction::Kind::Close});
    }
  }
  return reactions;
}

void Dialogue::Note(const std::vector<Reaction>& reactions) {
  for (const Reaction& reaction : reactions) {
    if (reaction.kind == Reaction::Kind::Answer) log_.push_back({Entry::Kind::Answered, reaction.bytes});
  }
}

void Dialogue::Connected() {
  const std::lock_guard lock(mutex_);
  ++connections_;
  // A line that an earlier connection began ends with that connection.
  if (!pending_.empty()) log_.push_back({Entry::Kind::Surprise, std::exchange(pending_, {})});
}

std::vector<std::string> Dialogue::Received() const {
  const std::lock_guard lock(mutex_);
  std::vector<std::string> received;
  for (const Entry& entry : log_) {
    if (entry.kind != Entry::Kind::Answered) received.push_back(entry.bytes);
  }
  if (!pending_.empty()) received.push_back(pending_);
  return received;
}

int Dialogue::Connections() const {
  const std::lock_guard lock(mutex_);
  return connections_;
}

std::string Dialogue::Difference() const {
  const std::lock_guard lock(mutex_);
  const bool surprise =
      std::any_of(log_.begin(), log_.end(), [](const Entry& entry) { return entry.kind == Entry::Kind::Surprise; });
  if (!surprise && pending_.empty() && script_.empty()) return {};
  std::string text = "The dialogue did not go by the script ('-' never arrived, '+' came unasked):\n";
  const auto line = [&text](const char* mark, std::string_view bytes) { (text += mark) += Shown(bytes) + '\n'; };
  bool missing_told = false;
  const auto tell_missing = [&] {
    if (std::exchange(missing_told, true)) return;
    for (const Exchange& exchange : script_) line("  - > ", exchange.expected);
  };
  for (const Entry& entry : log_) {
    switch (entry.kind) {
      case Entry::Kind::Arrived:
        line("    > ", entry.bytes);
        break;
      case Entry::Kind::Answered:
        line("    < ", entry.bytes);
        break;
      case Entry::Kind::Surprise:
        tell_missing();
        line("  + > ", entry.bytes);
        break;
    }
  }
  tell_missing();
  if (!pending_.empty()) line("  + > ", pending_);
  return text;
}

}  // namespace kvtd::test
