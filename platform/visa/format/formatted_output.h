// The formatted write buffer of a session: collects a message and sends it in one piece.
#pragma once

#include <sys/uio.h>
#include <visa.h>

#include <atomic>
#include <cstddef>
#include <string_view>
#include <vector>

#include "deadline.h"
#include "link.h"

namespace tvr::visa {

// Failures of sending are remembered until the end of the call: text can be appended without asking after each piece.
class FormattedOutput {
 public:
  // Without a link the text is only collected.
  explicit FormattedOutput(Link* link) : link_(link) {}

  // What is appended from here on belongs to one call, which either succeeds or leaves nothing of itself behind.
  void BeginCall(Deadline& deadline);
  ViStatus FinishCall(ViStatus status);
  ViStatus status() const { return status_; }

  // Room for `count` bytes at the end of the buffer, and how much of it was used.
  char* Room(std::size_t count);
  void Taken(const char* end) { used_ = static_cast<std::size_t>(end - text_.data()); }

  void Append(std::string_view text);
  void Append(char c) { *Room(1) = c, ++used_; }
  // As Append, but a large block is sent from where it lies: it must stay until the call ends.
  void AppendBlock(const void* data, std::size_t size);
  // How many bytes the call has appended, sent ones included.
  std::size_t CountOfCall() const { return sent_in_call_ + Pending() - pending_before_; }

  // The last of a message, with END on its line feed. It goes from where it lies when nothing stands in front of it.
  void EndMessage(std::string_view last = "\n");
  void Flush(bool end);
  void Discard();

  // From now on the buffer counts as full at exactly this size. Without such a wish a message is held together up to
  // a size at which one more send no longer matters.
  void SetSize(std::size_t size) { nominal_size_ = limit_ = size; }
  std::size_t NominalSize() const { return nominal_size_; }
  // What has been collected; without a link, that is everything.
  std::string_view Collected() const { return {text_.data(), used_}; }

 private:
  struct Block {
    std::size_t text_before;
    const char* data;
    std::size_t size;
  };

  std::size_t Pending() const;
  char TakeLastByte();
  void SendAllButLast();
  void Send(bool end);

  Link* const link_;
  Deadline* deadline_ = nullptr;
  ViStatus status_ = VI_SUCCESS;
  std::vector<char> text_;
  std::size_t used_ = 0;
  std::vector<Block> blocks_;
  std::vector<iovec> pieces_;
  std::size_t limit_ = std::size_t{256} * 1024;
  // Read by viGetAttribute without the session's lock.
  std::atomic<std::size_t> nominal_size_{4096};
  std::size_t used_before_ = 0;
  std::size_t pending_before_ = 0;
  std::size_t sent_in_call_ = 0;
};

}  // namespace tvr::visa
