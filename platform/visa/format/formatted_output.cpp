#include "format/formatted_output.h"

#include <algorithm>
#include <cstring>

namespace tvr::visa {
namespace {

// Below this, copying is cheaper than one more piece for the kernel to gather.
constexpr std::size_t kSmallestBlock = 4096;

}  // namespace

void FormattedOutput::BeginCall(Deadline& deadline) {
  deadline_ = &deadline;
  status_ = VI_SUCCESS;
  used_before_ = used_;
  pending_before_ = used_;
  sent_in_call_ = 0;
}

ViStatus FormattedOutput::FinishCall(ViStatus status) {
  if (status >= 0) {
    // The caller's memory ends with the call.
    if (!blocks_.empty()) SendAllButLast();
  } else {
    blocks_.clear();
    used_ = sent_in_call_ == 0 ? used_before_ : 0;
  }
  deadline_ = nullptr;
  return status < 0 ? status : status_;
}

std::size_t FormattedOutput::Pending() const {
  std::size_t pending = used_;
  for (const Block& block : blocks_) pending += block.size;
  return pending;
}

char* FormattedOutput::Room(std::size_t count) {
  if (link_ != nullptr && used_ + count > limit_ && used_ > 1) SendAllButLast();
  if (used_ + count > text_.size()) text_.resize(std::max(used_ + count, 2 * text_.size()));
  return text_.data() + used_;
}

void FormattedOutput::Append(std::string_view text) {
  if (text.empty()) return;
  if (link_ != nullptr && used_ + text.size() > limit_) return AppendBlock(text.data(), text.size());
  std::memcpy(Room(text.size()), text.data(), text.size());
  used_ += text.size();
}

void FormattedOutput::AppendBlock(const void* data, std::size_t size) {
  const auto* const bytes = static_cast<const char*>(data);
  if (size == 0) return;
  if (link_ != nullptr && (size >= kSmallestBlock || used_ + size > limit_)) {
    blocks_.push_back({used_, bytes, size});
    return;
  }
  std::memcpy(Room(size), bytes, size);
  used_ += size;
}

void FormattedOutput::EndMessage(std::string_view last) {
  if (link_ == nullptr || used_ > 0 || !blocks_.empty()) {
    Append(last);
    if (link_ != nullptr) Send(true);
    return;
  }
  iovec piece{const_cast<char*>(last.data()), last.size()};
  std::size_t sent = 0;
  status_ = link_->Write({&piece, 1}, true, *deadline_, sent);
  sent_in_call_ += sent;
}

void FormattedOutput::Flush(bool end) {
  if (Pending() > 0) Send(end);
}

void FormattedOutput::Discard() {
  used_ = 0;
  blocks_.clear();
}

char FormattedOutput::TakeLastByte() {
  if (!blocks_.empty() && blocks_.back().text_before == used_) {
    Block& block = blocks_.back();
    const char last = block.data[--block.size];
    if (block.size == 0) blocks_.pop_back();
    return last;
  }
  return text_[--used_];
}

// A later END needs a byte to go with.
void FormattedOutput::SendAllButLast() {
  const char last = TakeLastByte();
  Send(false);
  if (text_.empty()) text_.resize(1);
  text_[0] = last;
  used_ = 1;
}

void FormattedOutput::Send(bool end) {
  if (status_ >= 0) {
    pieces_.clear();
    std::size_t from = 0;
    const auto text_up_to = [&](std::size_t to) {
      if (to > from) pieces_.push_back({text_.data() + from, to - from});
      from = to;
    };
    for (const Block& block : blocks_) {
      text_up_to(block.text_before);
      pieces_.push_back({const_cast<char*>(block.data), block.size});
    }
    text_up_to(used_);
    std::size_t sent = 0;
    status_ = link_->Write(pieces_, end, *deadline_, sent);
    sent_in_call_ += sent;
  }
  Discard();
}

}  // namespace tvr::visa
