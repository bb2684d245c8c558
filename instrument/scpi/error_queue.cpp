#include "scpi/error_queue.h"

namespace siggen::scpi {
namespace {

constexpr std::size_t kLongestText = 255;  // what the standard allows between the quotes

std::string Entry(Error error, std::string_view detail) {
  std::string text(ErrorText(error));
  if (!detail.empty()) {
    text += ';';
    for (const char c : detail) {
      if (text.size() + 2 > kLongestText) break;
      if (c == '"') text += '"';
      text += c >= ' ' && c <= '~' ? c : '.';
    }
  }
  return std::to_string(static_cast<int>(error)) + ",\"" + text + '"';
}

}  // namespace

void ErrorQueue::Push(Error error, std::string_view detail) {
  if (entries_.size() < kRoom) {
    entries_.push_back(Entry(error, detail));
  } else {
    entries_.back() = Entry(Error::kQueueOverflow, {});
  }
}

std::string ErrorQueue::Pop() {
  if (entries_.empty()) return Entry(Error::kNone, {});
  std::string oldest = std::move(entries_.front());
  entries_.pop_front();
  return oldest;
}

std::string ErrorQueue::PopAll() {
  std::string all = Pop();
  while (!entries_.empty()) all += ',' + Pop();
  return all;
}

void ErrorLog::Add(Error error, std::string_view detail) {
  if (entries_.size() == kRoom) entries_.pop_front();
  entries_.push_back(Entry(error, detail));
}

std::string ErrorLog::Text() const {
  std::string text;
  for (const std::string& entry : entries_) text += (text.empty() ? "" : ",") + entry;
  return text;
}

}  // namespace siggen::scpi
