// What one message answers: the answers of its queries, joined by ';'. Large blocks stay in the buffer they lie in.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "scpi/bytes.h"

namespace siggen::scpi {

std::string RealText(double value);

class Answer {
 public:
  // Each field of a query's answer in turn; fields are joined by ','.
  void Real(double value) { Field() += RealText(value); }
  void Integer(std::int64_t value) { Field() += std::to_string(value); }
  void Boolean(bool value) { Field() += value ? '1' : '0'; }
  void Plain(std::string_view text) { Field() += text; }
  void Quoted(std::string_view text);
  void Block(const Bytes& block);

  void NextQuery();  // what follows belongs to the next query of the message
  bool empty() const { return parts_.empty() && text_.empty() && !answered_; }

  // The whole answer with its line feed, in pieces that follow each other on the wire.
  std::vector<Bytes> Take();

 private:
  std::string& Field();

  std::vector<Bytes> parts_;
  std::string text_;
  bool answered_ = false;  // a query has answered, be it an empty text
  bool in_query_ = false;
  bool first_field_ = true;
};

// The same, whole: for tests and for small answers.
std::string Join(const std::vector<Bytes>& parts);

}  // namespace siggen::scpi
