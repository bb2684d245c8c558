#include "scpi/answer.h"

#include <charconv>

namespace siggen::scpi {
namespace {

// Smaller blocks are cheaper to copy than to send as a piece of their own.
constexpr std::size_t kSmallBlock = 4096;

}  // namespace

std::string RealText(double value) {
  if (value == 0.0) return "0";  // also for the negative zero
  char digits[32];
  const auto [end, problem] = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, 15);
  return problem == std::errc() ? std::string(digits, end) : std::string("9.91E37");
}

std::string& Answer::Field() {
  if (!in_query_ && answered_) text_ += ';';
  if (in_query_ && !first_field_) text_ += ',';
  in_query_ = answered_ = true;
  first_field_ = false;
  return text_;
}

void Answer::NextQuery() {
  in_query_ = false;
  first_field_ = true;
}

void Answer::Quoted(std::string_view text) {
  std::string& field = Field();
  field += '"';
  for (const char c : text) {
    if (c == '"') field += '"';
    field += c;
  }
  field += '"';
}

void Answer::Block(const Bytes& block) {
  const std::string length = std::to_string(block.view.size());
  std::string& field = Field();
  field += '#';
  field += std::to_string(length.size());
  field += length;
  if (block.view.size() <= kSmallBlock) {
    field += block.view;
    return;
  }
  parts_.push_back(Bytes::Copy(text_));
  text_.clear();
  parts_.push_back(block);
}

std::vector<Bytes> Answer::Take() {
  text_ += '\n';
  parts_.push_back(Bytes::Copy(text_));
  std::vector<Bytes> taken = std::move(parts_);
  *this = Answer();
  return taken;
}

std::string Join(const std::vector<Bytes>& parts) {
  std::string whole;
  for (const Bytes& part : parts) whole += part.view;
  return whole;
}

}  // namespace siggen::scpi
