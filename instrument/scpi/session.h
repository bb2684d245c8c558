// The message exchange of one client: what it sent, in order, and what it is owed. Settings and status belong to the
// device, which all clients share.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "scpi/commands.h"
#include "scpi/framer.h"
#include "scpi/status.h"

namespace siggen::scpi {

// What a session needs of the instrument behind it.
class Device {
 public:
  virtual ~Device() = default;
  virtual const Commands& commands() const = 0;
  virtual Status& status() = 0;
  virtual const DefaultUnits& units() const = 0;
  virtual void CatchUp() = 0;  // brings the model to the present moment
};

class Session {
 public:
  explicit Session(Device& device) : device_(device) {}

  void Submit(Message message) { queue_.push_back(std::move(message)); }

  // Works through the queue until it is empty, an answer is ready or a unit has to wait.
  void Run();

  bool answer_ready() const { return ready_; }
  bool waiting() const { return waiting_; }  // for pending operations: Run() again later
  bool idle() const { return !parser_ && queue_.empty(); }
  std::vector<Bytes> TakeAnswer();
  std::uint8_t StatusByte() const { return device_.status().Byte(ready_); }

  // For links on which the client asks for the answer: a question without an answer to fetch is -420, a new message
  // before the answer was fetched is -410 and costs the answer.
  void ReadWithoutAnswer();
  void Interrupt();

  void Clear();  // device clear: everything under way is forgotten, settings stay

 private:
  void RunUnit();
  void Follow();

  Device& device_;
  std::deque<Message> queue_;
  std::optional<Parser> parser_;  // of the message under way
  Unit unit_;
  std::vector<Mnemonic> path_;  // of the unit before, which a header without a colon continues
  std::vector<Mnemonic> full_;  // of the present unit
  Answer answer_;
  bool ready_ = false;
  bool waiting_ = false;
};

}  // namespace siggen::scpi
