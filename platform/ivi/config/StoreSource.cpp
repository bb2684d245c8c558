#include "config/StoreSource.h"

#include <algorithm>
#include <array>

namespace tvrivi {

namespace {

constexpr std::size_t kDeepest = 64;
// A node costs the parser some sixty bytes of memory, its text in the file as little as four. Five thousand sessions
// have about two hundred thousand.
constexpr std::size_t kMostNodes = 2'000'000;

// The bytes that are a character by themselves.
constexpr std::array<bool, 256> kPlain = [] {
  std::array<bool, 256> plain{};
  for (std::size_t byte = 0x20; byte < 0x80; ++byte) plain[byte] = true;
  plain['\t'] = plain['\n'] = plain['\r'] = true;
  return plain;
}();

class TextCheck {
 public:
  explicit TextCheck(const StoreSource& source) : source_(source), text_(source.text) {}

  void Run() {
    CheckEncoding();
    if (At("\xEF\xBB\xBF")) position_ = 3;
    while (position_ < text_.size()) {
      if (text_[position_] == '<') {
        Markup();
      } else {
        Text();
      }
    }
  }

 private:
  [[noreturn]] void Reject(std::size_t offset, std::string_view reason) const { source_.Reject(offset, reason); }
  bool At(std::string_view expected) const { return text_.substr(position_, expected.size()) == expected; }

  void CheckEncoding() const {
    if (At("\xFF\xFE") || At("\xFE\xFF")) Reject(0, "the file is UTF-16; a configuration store is read as UTF-8");
    for (std::size_t i = 0; i < text_.size();) {
      const auto byte = static_cast<unsigned char>(text_[i]);
      if (kPlain[byte]) {
        ++i;
      } else if (byte >= 0x80) {
        i += SequenceLength(i);
      } else {
        Reject(i, "a control character that XML does not allow");
      }
    }
  }

  // Of the UTF-8 sequence that begins at i: shortest form only, no surrogates, nothing beyond U+10FFFF.
  std::size_t SequenceLength(std::size_t i) const {
    const auto lead = static_cast<unsigned char>(text_[i]);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    bool valid = lead >= 0xC2 && lead <= 0xF4 && i + length <= text_.size();
    for (std::size_t k = 1; valid && k < length; ++k) {
      const auto next = static_cast<unsigned char>(text_[i + k]);
      unsigned low = 0x80;
      unsigned high = 0xBF;
      if (k == 1 && lead == 0xE0) low = 0xA0;
      if (k == 1 && lead == 0xED) high = 0x9F;
      if (k == 1 && lead == 0xF0) low = 0x90;
      if (k == 1 && lead == 0xF4) high = 0x8F;
      valid = next >= low && next <= high;
    }
    if (!valid) Reject(i, "a byte that is not UTF-8");
    return length;
  }

  void Markup() {
    if (At("<!--")) return SkipPast("-->", 4, "a comment without end");
    if (At("<![CDATA[")) {
      if (depth_ == 0) Reject(position_, "text outside the root element");
      return SkipPast("]]>", 9, "a CDATA section without end");
    }
    if (At("<?")) return SkipPast("?>", 2, "a processing instruction without end");
    if (At("<!")) Reject(position_, "document types and entity declarations are not accepted");
    Tag();
  }

  void SkipPast(std::string_view end, std::size_t opening, std::string_view reason) {
    const std::size_t found = text_.find(end, position_ + opening);
    if (found == std::string_view::npos) Reject(position_, reason);
    position_ = found + end.size();
  }

  void Tag() {
    const std::size_t start = position_++;
    const bool closing = At("/");
    for (;;) {
      while (position_ < text_.size() && !EndsTagText(text_[position_])) ++position_;
      if (position_ == text_.size() || text_[position_] == '<') Reject(start, "a tag without end");
      const char found = text_[position_++];
      if (found == '>') break;
      AttributeValue(found);
    }
    const bool empty = text_[position_ - 2] == '/';
    if (closing) {
      if (depth_ == 0) Reject(start, "an end tag without its start tag");
      --depth_;
      return;
    }
    CountNode(start);
    if (depth_ == kDeepest) Reject(start, "elements nested more than 64 deep");
    if (!empty) ++depth_;
  }

  static bool EndsTagText(char c) { return c == '<' || c == '>' || c == '"' || c == '\''; }

  void AttributeValue(char quote) {
    const std::size_t end = text_.find(quote, position_);
    if (end == std::string_view::npos) Reject(position_, "an attribute value without end");
    CountNode(position_);
    CheckReferences(position_, end);
    position_ = end + 1;
  }

  void Text() {
    const std::size_t end = std::min(text_.find('<', position_), text_.size());
    if (depth_ == 0) {
      const std::size_t stray = text_.find_first_not_of(" \t\r\n", position_);
      if (stray < end) Reject(stray, "text outside the root element");
    }
    CheckReferences(position_, end);
    position_ = end;
  }

  // XML names five entities; any other would have to be declared, which is not accepted.
  void CheckReferences(std::size_t begin, std::size_t end) const {
    const std::string_view text = text_.substr(0, end);  // searches beyond it would cost the file's length each time
    for (std::size_t i = text.find('&', begin); i != std::string_view::npos; i = text.find('&', i + 1)) {
      const std::size_t semicolon = text.find(';', i);
      if (semicolon == std::string_view::npos) Reject(i, "an '&' that begins no entity reference");
      const std::string_view name = text.substr(i + 1, semicolon - i - 1);
      if (!IsKnownReference(name)) Reject(i, "the entity &" + std::string(name.substr(0, 32)) + "; is not known");
    }
  }

  static bool IsKnownReference(std::string_view name) {
    static constexpr std::array<std::string_view, 5> kNames{"amp", "lt", "gt", "quot", "apos"};
    if (std::find(kNames.begin(), kNames.end(), name) != kNames.end()) return true;
    const bool hexadecimal = name.starts_with("#x");
    const std::string_view digits = name.substr(std::min<std::size_t>(name.size(), hexadecimal ? 2 : 1));
    return name.starts_with('#') && digits.size() <= 7 && IsCharacter(digits, hexadecimal ? 16 : 10);
  }

  static bool IsCharacter(std::string_view digits, unsigned base) {
    unsigned code = 0;
    for (const char c : digits) {
      const unsigned digit = c >= '0' && c <= '9'   ? static_cast<unsigned>(c - '0')
                             : c >= 'a' && c <= 'f' ? static_cast<unsigned>(c - 'a') + 10
                             : c >= 'A' && c <= 'F' ? static_cast<unsigned>(c - 'A') + 10
                                                    : base;
      if (digit >= base) return false;
      code = code * base + digit;
    }
    const bool blank = code == '\t' || code == '\n' || code == '\r';
    return blank || (code >= 0x20 && code <= 0xD7FF) || (code >= 0xE000 && code <= 0x10FFFF);
  }

  void CountNode(std::size_t offset) {
    if (++nodes_ > kMostNodes) Reject(offset, "more than two million elements and attributes");
  }

  const StoreSource& source_;
  const std::string_view text_;
  std::size_t position_ = 0;
  std::size_t depth_ = 0;
  std::size_t nodes_ = 0;
};

}  // namespace

void StoreSource::Reject(std::size_t offset, std::string_view reason, std::string_view element) const {
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(offset, text.size()));
  const auto line = 1 + std::count(text.begin(), end, '\n');
  const std::string place = element.empty() ? "" : ", <" + std::string(element) + ">";
  throw StoreError(location + ", line " + std::to_string(line) + place + ": " + std::string(reason));
}

void CheckText(const StoreSource& source) { TextCheck(source).Run(); }

}  // namespace tvrivi
