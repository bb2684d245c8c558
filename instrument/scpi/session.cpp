#include "scpi/session.h"

namespace siggen::scpi {

void Session::Run() {
  while (!ready_) {
    if (!parser_) {
      if (queue_.empty()) return;
      const Message message = std::move(queue_.front());
      queue_.pop_front();
      path_.clear();
      if (message.overlong) {
        device_.status().Report(Error::kTooMuchData);
        continue;
      }
      parser_.emplace(message.text);
    }
    RunUnit();
    if (waiting_) return;
    if (!parser_ && !answer_.empty()) ready_ = true;
  }
}

void Session::RunUnit() {
  try {
    if (!waiting_) {
      if (!parser_->Next(unit_)) {
        parser_.reset();
        return;
      }
      Follow();
    }
    waiting_ = false;
    device_.CatchUp();
    device_.commands().Run(unit_, full_, device_.units(), answer_);
    answer_.NextQuery();
  } catch (const Wait&) {
    waiting_ = true;
  } catch (const Refusal& refusal) {
    answer_.NextQuery();
    const bool named = !refusal.detail().empty();
    device_.status().Report(refusal.error(), named ? std::string_view(refusal.detail()) : unit_.header);
    // After a command error nobody knows where the next unit begins; an execution error concerns its unit alone.
    if (static_cast<int>(refusal.error()) > -200) parser_.reset();
  }
}

// A header without a leading colon continues from the path of the header before it in the message, less its last node.
void Session::Follow() {
  full_.clear();
  if (!unit_.common && !unit_.absolute) full_ = path_;
  full_.insert(full_.end(), unit_.path.begin(), unit_.path.end());
  if (!unit_.common) path_.assign(full_.begin(), full_.end() - 1);
}

std::vector<Bytes> Session::TakeAnswer() {
  ready_ = false;
  return answer_.Take();
}

void Session::ReadWithoutAnswer() { device_.status().Report(Error::kQueryUnterminated); }

void Session::Interrupt() {
  if (!ready_) return;
  ready_ = false;
  answer_ = Answer();
  device_.status().Report(Error::kQueryInterrupted);
}

void Session::Clear() {
  queue_.clear();
  parser_.reset();
  answer_ = Answer();
  ready_ = waiting_ = false;
}

}  // namespace siggen::scpi
