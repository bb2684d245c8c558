// Cuts a stream of bytes into program messages.
//
// A line feed ends a message, except inside a definite block, whose bytes are anything. A '#' inside a quoted string
// begins no block; a line feed inside a quoted string does end the message, so that a stray quote costs one message
// (-151) and not everything that comes after it.
//
// Bytes are received into Room() and stay where they are: a message handed out is a slice of the buffer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "scpi/bytes.h"

namespace siggen::scpi {

struct Message {
  Bytes text;             // without the line feed that ended it
  bool overlong = false;  // longer than the limit; its bytes were dropped
};

class Framer {
 public:
  static constexpr std::size_t kLongestBlock = std::size_t{256} << 20;
  static constexpr std::size_t kLongestText = std::size_t{1} << 20;  // of a message, its blocks not counted

  explicit Framer(std::size_t longest_text = kLongestText, std::size_t longest_block = kLongestBlock)
      : longest_text_(longest_text), longest_block_(longest_block) {}

  // Where the next bytes are to be written; never empty. Filled() says how many were.
  std::span<char> Room();
  void Filled(std::size_t count) { end_ += count; }
  void Append(std::string_view bytes);

  // The transport's own mark of a message's end, which stands for the line feed (HiSLIP, VXI-11).
  void End() { marked_end_ = end_; }

  std::optional<Message> Next();
  std::size_t backlog() const { return end_ - begin_; }
  void Clear();

 private:
  enum class In { kPlain, kString, kBlockStart, kBlockLength, kBlock, kIndefinite };

  void Grow(std::size_t wanted);
  bool Scan();  // true when position_ stands behind a whole message
  Message Cut(std::size_t end);

  void CheckLength();

  std::size_t longest_text_;
  std::size_t longest_block_;
  std::shared_ptr<char[]> buffer_;
  std::size_t capacity_ = 0;
  std::size_t begin_ = 0;     // of the message under way
  std::size_t position_ = 0;  // first byte not yet looked at
  std::size_t end_ = 0;       // behind the last byte received
  std::optional<std::size_t> marked_end_;

  In in_ = In::kPlain;
  char quote_ = 0;
  bool at_parameter_ = false;  // the last visible byte was a separator, so that '#' would begin a block
  unsigned digits_left_ = 0;
  std::size_t block_left_ = 0;
  std::size_t in_blocks_ = 0;  // bytes of the message under way that belong to its blocks
  bool overlong_ = false;
};

}  // namespace siggen::scpi
