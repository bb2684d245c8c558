#include "config/ElementReader.h"

#include <charconv>
#include <cmath>

namespace tvrivi {

namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

// An element's own text may be in pieces, cut by comments and CDATA sections.
std::string TextOf(pugi::xml_node element) {
  std::string text;
  for (const pugi::xml_node piece : element.children()) {
    if (piece.type() == pugi::node_pcdata || piece.type() == pugi::node_cdata) text += piece.value();
  }
  return Trimmed(text).empty() ? std::string() : text;
}

template <typename Number>
bool Parse(std::string_view text, Number& value) {
  text = Trimmed(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size();
}

std::string Quoted(std::string_view text) { return "'" + std::string(Trimmed(text).substr(0, 64)) + "'"; }

}  // namespace

void ElementReader::Reject(pugi::xml_node element, std::string_view reason) const {
  const std::ptrdiff_t offset = element.offset_debug();
  source_.Reject(offset < 0 ? 0 : static_cast<std::size_t>(offset), reason, element.name());
}

pugi::xml_node ElementReader::Child(pugi::xml_node parent, const char* name) const {
  const pugi::xml_node child = parent.child(name);
  if (const pugi::xml_node second = child.next_sibling(name)) Reject(second, "stands twice in one element");
  return child;
}

std::string ElementReader::Text(pugi::xml_node parent, const char* name) const { return TextOf(Child(parent, name)); }

bool ElementReader::Boolean(pugi::xml_node parent, const char* name) const {
  const pugi::xml_node child = Child(parent, name);
  const std::string text = TextOf(child);
  const std::string_view word = Trimmed(text);
  if (word == "1" || word == "true") return true;
  if (word.empty() || word == "0" || word == "false") return false;
  Reject(child, Quoted(text) + " is none of 0, 1, false, true");
}

ViInt32 ElementReader::Integer(pugi::xml_node parent, const char* name) const {
  const pugi::xml_node child = Child(parent, name);
  const std::string text = TextOf(child);
  ViInt32 value = 0;
  if (!text.empty() && !Parse(text, value)) Reject(child, Quoted(text) + " is no 32-bit integer");
  return value;
}

ViReal64 ElementReader::Real(pugi::xml_node parent, const char* name) const {
  const pugi::xml_node child = Child(parent, name);
  const std::string text = TextOf(child);
  ViReal64 value = 0.0;
  if (!text.empty() && (!Parse(text, value) || !std::isfinite(value))) {
    Reject(child, Quoted(text) + " is no 64-bit real number");
  }
  return value;
}

}  // namespace tvrivi
