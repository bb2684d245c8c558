#include "scpi/commands.h"

#include <algorithm>
#include <cassert>
#include <charconv>

namespace siggen::scpi {

struct Commands::Action {
  Arity arity;
  Handler run;
};

struct Commands::Node {
  std::vector<std::string> forms;  // alternatives, "FREQuency"
  int least_suffix = 1;
  int most_suffix = 1;
  bool optional = false;
  Action set;
  Action query;
  std::vector<std::unique_ptr<Node>> children;

  bool numbered() const { return least_suffix != most_suffix; }
  bool Named(std::string_view word) const {
    for (const std::string& form : forms) {
      if (Matches(form, word)) return true;
    }
    return false;
  }
  bool Allows(int suffix) const { return suffix >= least_suffix && suffix <= most_suffix; }
};

namespace {

// Where a search for a header has got to, and what it has learned for the error message.
struct Search {
  std::span<const Mnemonic> path;
  bool query;
  std::vector<int> suffixes;
  bool wrong_suffix = false;
};

}  // namespace

Commands::Commands() : root_(std::make_unique<Node>()), common_(std::make_unique<Node>()) {}
Commands::~Commands() = default;

void Commands::Do(std::string_view pattern, Arity arity, Handler run) { Add(pattern, false, arity, std::move(run)); }
void Commands::Ask(std::string_view pattern, Arity arity, Handler run) { Add(pattern, true, arity, std::move(run)); }

void Commands::Add(std::string_view pattern, bool query, Arity arity, Handler run) {
  Node* node = root_.get();
  if (pattern.front() == '*') {
    node = common_.get();
    pattern.remove_prefix(1);
  }
  while (!pattern.empty()) {
    const bool optional = pattern.front() == '[';
    pattern.remove_prefix(pattern.find_first_not_of("[:"));
    const std::size_t end = std::min(pattern.find_first_of("[:]"), pattern.size());
    std::string_view name = pattern.substr(0, end);
    pattern.remove_prefix(end);
    if (!pattern.empty() && pattern.front() == ']') pattern.remove_prefix(1);

    Node wanted;
    wanted.optional = optional;
    if (const std::size_t angle = name.find('<'); angle != std::string_view::npos) {
      const std::string_view range = name.substr(angle + 1, name.size() - angle - 2);
      const char* const range_end = range.data() + range.size();
      const auto [behind, problem] = std::from_chars(range.data(), range_end, wanted.least_suffix);
      assert(problem == std::errc());
      wanted.most_suffix = wanted.least_suffix;
      if (behind != range_end) std::from_chars(behind + 1, range_end, wanted.most_suffix);
      name = name.substr(0, angle);
    }
    while (!name.empty()) {
      const std::size_t bar = name.find('|');
      wanted.forms.emplace_back(name.substr(0, bar));
      name.remove_prefix(bar == std::string_view::npos ? name.size() : bar + 1);
    }

    Node* found = nullptr;
    for (const auto& child : node->children) {
      if (child->forms == wanted.forms && child->optional == optional && child->least_suffix == wanted.least_suffix &&
          child->most_suffix == wanted.most_suffix) {
        found = child.get();
      }
    }
    if (found == nullptr) {
      node->children.push_back(std::make_unique<Node>(std::move(wanted)));
      found = node->children.back().get();
    }
    node = found;
  }
  Action& action = query ? node->query : node->set;
  assert(!action.run && "two commands with one header");
  action = {arity, std::move(run)};
}

void Commands::Run(const Unit& unit, std::span<const Mnemonic> path, const DefaultUnits& units, Answer& answer) const {
  Search search{path, unit.query, {}};

  const auto find = [&search](const auto& self, const Node& node, std::size_t depth) -> const Action* {
    if (depth == search.path.size()) {
      const Action& action = search.query ? node.query : node.set;
      if (action.run) return &action;
    }
    bool named = false;
    bool allowed = false;
    for (const auto& child : node.children) {
      const std::size_t mark = search.suffixes.size();
      if (depth < search.path.size() && child->Named(search.path[depth].word)) {
        named = true;
        const int suffix = search.path[depth].suffix.value_or(1);
        if (child->Allows(suffix)) {
          allowed = true;
          if (child->numbered()) search.suffixes.push_back(suffix);
          if (const Action* action = self(self, *child, depth + 1)) return action;
        }
      }
      search.suffixes.resize(mark);
      if (child->optional) {
        if (child->numbered()) search.suffixes.push_back(1);
        if (const Action* action = self(self, *child, depth)) return action;
        search.suffixes.resize(mark);
      }
    }
    if (named && !allowed) search.wrong_suffix = true;
    return nullptr;
  };

  const Action* const action = find(find, unit.common ? *common_ : *root_, 0);
  if (action == nullptr) throw Refusal(search.wrong_suffix ? Error::kHeaderSuffixOutOfRange : Error::kUndefinedHeader);
  if (unit.arguments.size() < action->arity.least) throw Refusal(Error::kMissingParameter);
  if (unit.arguments.size() > action->arity.most) throw Refusal(Error::kParameterNotAllowed);
  Call call(unit, search.suffixes, units, answer);
  action->run(call);
}

}  // namespace siggen::scpi
