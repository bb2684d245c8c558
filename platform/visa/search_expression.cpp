#include "search_expression.h"

#include <optional>

#include "ascii.h"
#include "attribute_condition.h"

namespace tvr::visa {
namespace {

// No more than this is read of an expression; it also bounds how deep groups can be in each other.
constexpr std::size_t kLongest = 1024;

std::size_t IndexOf(char c) { return static_cast<unsigned char>(Upper(c)); }

}  // namespace

// Reads the text into a tree, and compiles the tree from its end, so that every step knows where to go on.
class SearchExpression::Pattern {
 public:
  struct Node {
    enum Kind { kCharacter, kSequence, kEither, kAnyNumber, kOnceOrMore } kind;
    std::bitset<256> takes{};
    std::vector<Node> parts{};
  };

  explicit Pattern(std::string_view text) : rest_(text) {}

  // either: sequence { "|" sequence }
  std::optional<Node> Either() {
    Node either{Node::kEither};
    do {
      auto sequence = Sequence();
      if (!sequence) return std::nullopt;
      either.parts.push_back(std::move(*sequence));
    } while (Take('|'));
    return either;
  }
  bool AtEnd() const { return rest_.empty(); }

  static std::size_t Compile(const Node& node, std::size_t next, std::vector<Step>& steps);

 private:
  // sequence: one { one }, one: part [ "*" | "+" ]
  std::optional<Node> Sequence() {
    Node sequence{Node::kSequence};
    while (!rest_.empty() && rest_.front() != '|' && rest_.front() != ')') {
      auto part = Part();
      if (!part) return std::nullopt;
      while (!rest_.empty() && (rest_.front() == '*' || rest_.front() == '+')) {
        Node repeated{Next() == '*' ? Node::kAnyNumber : Node::kOnceOrMore};
        repeated.parts.push_back(std::move(*part));
        part = std::move(repeated);
      }
      sequence.parts.push_back(std::move(*part));
    }
    if (sequence.parts.empty()) return std::nullopt;
    return sequence;
  }

  std::optional<Node> Part() {
    if (Take('(')) {
      auto group = Either();
      return Take(')') ? std::move(group) : std::nullopt;
    }
    Node one{Node::kCharacter};
    const char c = Next();
    switch (c) {
      case '?':
        one.takes.set();
        return one;
      case '[':
        return List(one) ? std::optional(one) : std::nullopt;
      case '*':
      case '+':
      case ']':
      case '{':
      case '}':
        return std::nullopt;
      case '\\':
        if (rest_.empty()) return std::nullopt;
        one.takes.set(IndexOf(Next()));
        return one;
      default:
        one.takes.set(IndexOf(c));
        return one;
    }
  }

  bool List(Node& one) {
    const bool others = Take('^');
    while (!rest_.empty() && rest_.front() != ']') {
      const std::size_t first = IndexOf(Next());
      std::size_t last = first;
      if (rest_.size() >= 2 && rest_[0] == '-' && rest_[1] != ']') {
        rest_.remove_prefix(1);
        last = IndexOf(Next());
      }
      for (std::size_t c = first; c <= last; ++c) one.takes.set(c);
    }
    const bool some = one.takes.any();
    if (others) one.takes.flip();
    return Take(']') && some;
  }

  char Next() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }
  bool Take(char c) {
    if (!rest_.starts_with(c)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  std::string_view rest_;
};

std::size_t SearchExpression::Pattern::Compile(const Node& node, std::size_t next, std::vector<Step>& steps) {
  const auto add = [&steps](Step step) {
    steps.push_back(std::move(step));
    return steps.size() - 1;
  };
  switch (node.kind) {
    case Node::kCharacter:
      return add({.takes = node.takes, .next = next, .choices = {}});
    case Node::kSequence:
      for (auto part = node.parts.rbegin(); part != node.parts.rend(); ++part) next = Compile(*part, next, steps);
      return next;
    case Node::kEither: {
      const std::size_t fork = add({});
      for (const Node& part : node.parts) {
        const std::size_t first = Compile(part, next, steps);
        steps[fork].choices.push_back(first);
      }
      return fork;
    }
    case Node::kAnyNumber:
    case Node::kOnceOrMore: {
      const std::size_t fork = add({});
      const std::size_t again = Compile(node.parts.front(), fork, steps);
      steps[fork].choices = {again, next};
      return node.kind == Node::kAnyNumber ? fork : again;
    }
  }
  return next;
}

bool SearchExpression::Parse(std::string_view text) {
  if (text.size() > kLongest) return false;
  if (text.ends_with('}')) {
    const std::size_t brace = text.find('{');
    if (brace == std::string_view::npos) return false;
    if (!EvaluateCondition(text.substr(brace + 1, text.size() - brace - 2), condition_)) return false;
    text = text.substr(0, brace);
  }
  if (text.find_first_not_of(' ') == std::string_view::npos) return false;
  Pattern pattern(text);
  const auto whole = pattern.Either();
  if (!whole || !pattern.AtEnd()) return false;
  steps_.assign(1, {});
  start_ = Pattern::Compile(*whole, 0, steps_);
  return true;
}

void SearchExpression::Enter(std::size_t step, std::vector<bool>& at) const {
  if (at[step]) return;
  at[step] = true;
  for (const std::size_t choice : steps_[step].choices) Enter(choice, at);
}

// All ways at once, so that no expression takes long.
bool SearchExpression::Matches(std::string_view descriptor) const {
  std::vector<bool> at(steps_.size());
  Enter(start_, at);
  for (const char c : descriptor) {
    std::vector<bool> after(steps_.size());
    for (std::size_t step = 1; step < steps_.size(); ++step) {
      if (at[step] && steps_[step].takes[IndexOf(c)]) Enter(steps_[step].next, after);
    }
    at = std::move(after);
  }
  return condition_ && at[0];
}

}  // namespace tvr::visa
