// The bytes that a formatted read takes its input from, and the end of the message among them.
#pragma once

#include <visa.h>

#include <cstddef>
#include <string_view>

namespace tvr::visa {

// Why the last byte of a window ends a message, if it does.
enum class Final : unsigned char { kNot, kTermchar, kEnd };

// A window on what has been received. Where it ends, Refill moves it on; the byte that carried END, or stopped the read
// as the termination character, is always the last one of a window. Once it has been taken the message has ended: then
// nothing is read from the instrument any more in this call, and whatever asks for a byte is told that there is none.
class ReadStream {
 public:
  virtual ~ReadStream() = default;

  // The next byte, or -1: the message has ended, or reading failed with status().
  int Peek() { return next_ != last_ || More() ? static_cast<unsigned char>(*next_) : -1; }
  // The byte behind `distance` others (0 to 2), or -1.
  int PeekAt(std::size_t distance);
  // Takes the byte that Peek showed.
  void Take() { TakeMany(1); }

  // All that can be looked at without reading more; empty when Peek answers -1.
  std::string_view Window() { return Peek() < 0 ? std::string_view() : std::string_view(next_, Unread()); }
  // Takes `count` bytes of the window.
  void TakeMany(std::size_t count) {
    next_ += count;
    taken_ += count;
    stale_ = false;
    blank_ = false;
    if (next_ == last_ && final_ != Final::kNot) ended_ = true;
  }
  // Takes white space. What an earlier call left behind may consist of nothing else; the end in it is not the end of
  // the message that is wanted now. Neither, for a number, is a line without anything in front of it, where only a
  // character tells the end: behind a block that was read by other means one is left over.
  void SkipSpace(bool and_empty_lines = false);

  // Is the next byte, which Peek showed, the one that only marks the end of the message, and no part of its text?
  bool AtTerminator() const { return AtFinalByte() && (final_ == Final::kTermchar || *next_ == '\n'); }
  // How much of the window is text.
  bool WindowEndsWithTerminator() const {
    return final_ == Final::kTermchar || (final_ == Final::kEnd && last_[-1] == '\n');
  }
  bool ended() const { return ended_; }
  ViStatus status() const { return status_; }
  std::size_t taken() const { return taken_; }

  // Takes `count` bytes straight to their place; END alone, no character, may end them early. The number taken.
  std::size_t TakeBlock(ViByte* into, std::size_t count);
  // Behind the last byte of a definite block: the terminator of the message is fetched, if the link has one that only a
  // character can show, so that it is not left to be taken for the answer to the next question.
  virtual void FetchTerminator() {}

 protected:
  void BeginCall() {
    stale_ = next_ != last_;
    blank_ = true;
    ended_ = false;
    status_ = VI_SUCCESS;
    taken_ = 0;
  }
  bool AtFinalByte() const { return final_ != Final::kNot && next_ + 1 == last_; }
  std::size_t Unread() const { return static_cast<std::size_t>(last_ - next_); }

  // Appends to the window; the bytes in it stay. False: there is no more, or status_ says what went wrong.
  virtual bool Refill() = 0;
  virtual std::size_t ReadDirectly(ViByte* into, std::size_t count) = 0;

  const char* next_ = nullptr;
  const char* last_ = nullptr;
  Final final_ = Final::kNot;  // of the last byte of the window
  bool ended_ = false;
  ViStatus status_ = VI_SUCCESS;

 private:
  bool More() { return !ended_ && status_ >= 0 && Refill(); }

  bool stale_ = false;  // nothing but white space has been taken of what an earlier call left
  bool blank_ = true;   // nothing but white space has been taken in this call
  std::size_t taken_ = 0;
};

inline bool IsSpace(int c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// A text in memory: its end is the end of the message.
class TextStream final : public ReadStream {
 public:
  explicit TextStream(std::string_view text) {
    next_ = text.data();
    last_ = text.data() + text.size();
    final_ = Final::kEnd;
    ended_ = text.empty();
  }

 private:
  bool Refill() override { return false; }
  std::size_t ReadDirectly(ViByte*, std::size_t) override { return 0; }
};

}  // namespace tvr::visa
