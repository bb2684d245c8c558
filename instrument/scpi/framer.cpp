#include "scpi/framer.h"

#include <algorithm>
#include <cstring>

namespace siggen::scpi {
namespace {

constexpr std::size_t kOrdinaryRoom = std::size_t{16} * 1024;

}  // namespace

std::span<char> Framer::Room() {
  // A block whose length is known gets all of its room at once, and then fills it without another copy.
  const std::size_t wanted = overlong_ || in_ != In::kBlock ? kOrdinaryRoom : std::max(block_left_ + 1, kOrdinaryRoom);
  const bool idle = begin_ == end_ && buffer_.use_count() == 1;
  if (idle && begin_ != 0) {
    begin_ = position_ = end_ = 0;
    if (marked_end_) marked_end_ = 0;
  }
  if (capacity_ - end_ < std::min(wanted, kOrdinaryRoom / 4) || (in_ == In::kBlock && capacity_ - end_ < wanted)) {
    Grow(wanted);
  }
  return {buffer_.get() + end_, capacity_ - end_};
}

void Framer::Grow(std::size_t wanted) {
  const std::size_t kept = end_ - begin_;
  const std::size_t capacity = std::max(kept + wanted, in_ == In::kBlock ? 0 : 2 * kept);
  auto bigger = std::make_shared_for_overwrite<char[]>(capacity);
  if (kept != 0) std::memcpy(bigger.get(), buffer_.get() + begin_, kept);
  buffer_ = std::move(bigger);
  capacity_ = capacity;
  position_ -= begin_;
  if (marked_end_) *marked_end_ -= begin_;
  end_ = kept;
  begin_ = 0;
}

void Framer::Append(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto room = Room();
    const std::size_t count = std::min(room.size(), bytes.size());
    std::memcpy(room.data(), bytes.data(), count);
    Filled(count);
    bytes.remove_prefix(count);
    if (in_ != In::kBlock && !bytes.empty()) (void)Scan();
  }
}

void Framer::Clear() {
  begin_ = position_ = end_;
  marked_end_.reset();
  in_ = In::kPlain;
  in_blocks_ = 0;
  at_parameter_ = overlong_ = false;
}

void Framer::CheckLength() {
  const std::size_t arrived = position_ - begin_;
  const std::size_t blocks = in_blocks_ - (in_ == In::kBlock ? block_left_ : 0);
  if (!overlong_ && arrived - blocks > longest_text_) overlong_ = true;
}

bool Framer::Scan() {
  while (position_ < end_) {
    if (in_ == In::kBlock) {
      const std::size_t here = std::min(block_left_, end_ - position_);
      position_ += here;
      block_left_ -= here;
      if (block_left_ != 0) break;
      in_ = In::kPlain;
      at_parameter_ = false;
      continue;
    }
    const char c = buffer_.get()[position_];
    if (c == '\n') {
      CheckLength();
      return true;
    }
    ++position_;
    switch (in_) {
      case In::kString:
        if (c == quote_) in_ = In::kPlain;
        break;
      case In::kBlockStart:
        digits_left_ = c >= '0' && c <= '9' ? static_cast<unsigned>(c - '0') : 0;
        block_left_ = 0;
        in_ = c == '0' ? In::kIndefinite : digits_left_ != 0 ? In::kBlockLength : In::kPlain;
        break;
      case In::kBlockLength:
        if (c < '0' || c > '9') {  // no block after all; the parser will say so
          in_ = In::kPlain;
          break;
        }
        block_left_ = block_left_ * 10 + static_cast<std::size_t>(c - '0');
        if (--digits_left_ == 0) {
          in_ = In::kBlock;
          in_blocks_ += block_left_;
          if (in_blocks_ > longest_block_) overlong_ = true;
        }
        break;
      case In::kPlain:
        if (c == '"' || c == '\'') {
          in_ = In::kString;
          quote_ = c;
        } else if (c == '#' && at_parameter_) {
          in_ = In::kBlockStart;
        }
        if (static_cast<unsigned char>(c) > ' ' || c == ' ' || c == '\t') {
          at_parameter_ = c == ' ' || c == '\t' || c == ',';
        }
        break;
      default:
        break;
    }
  }
  CheckLength();
  if (overlong_) begin_ = position_;  // only the end of the message still matters
  return false;
}

Message Framer::Cut(std::size_t end) {
  Message message{{buffer_, std::string_view(buffer_.get() + begin_, end - begin_)}, overlong_};
  if (overlong_) message.text.view = {};
  in_ = In::kPlain;
  in_blocks_ = 0;
  at_parameter_ = overlong_ = false;
  return message;
}

std::optional<Message> Framer::Next() {
  const std::size_t received = end_;
  if (marked_end_) end_ = *marked_end_;
  const bool whole = Scan();
  end_ = received;
  if (whole) {
    Message message = Cut(position_);
    begin_ = ++position_;
    if (marked_end_ == begin_) marked_end_.reset();  // the line feed came with the mark: one end, not two
    return message;
  }
  if (!marked_end_) return std::nullopt;
  Message message = Cut(*marked_end_);
  begin_ = position_ = *marked_end_;
  marked_end_.reset();
  return message;
}

}  // namespace siggen::scpi
