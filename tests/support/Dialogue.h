// A scripted dialogue: what must arrive, what it is answered with, and what did arrive.
//
// The script form:
//     > :FREQ:MODE?      must arrive, exactly, followed by a line feed
//     < FIX              goes back, followed by a line feed
//     ! close            the instrument ends the connection; also: half-close, reset, pause <milliseconds>
// Bytes that this form cannot show (a blank before the line feed, a NUL, no line feed) go through Sent and Answer.

#ifndef KVTD_TESTS_SUPPORT_DIALOGUE_H
#define KVTD_TESTS_SUPPORT_DIALOGUE_H

#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "Sockets.h"

namespace kvtd::test {

// One thing that the instrument does in answer to what arrived.
struct Reaction {
  enum class Kind { Answer, Pause, Close, HalfClose, Reset };

  Kind kind = Kind::Answer;
  std::string bytes = {};
  Milliseconds duration = Milliseconds(0);
};

// Safe for one thread that scripts and one that carries bytes.
class Dialogue {
 public:
  // Appends to the script. A text that does not follow the form is an std::invalid_argument.
  void Script(std::string_view text);
  void Sent(std::string bytes);
  // These belong to the bytes expected last and happen in their order.
  void Answer(std::string bytes);
  void Pause(Milliseconds duration);
  void Close();
  void HalfClose();
  void Reset();

  // From now on this line, where the script does not expect it, is answered so and is no surprise.
  void AnswerAlways(std::string_view line, std::string_view answer);
  // From now on this line, where the script does not expect it, is taken without an answer and is no surprise.
  void AnswerNothing(std::string_view line);

  // For the link. What the instrument does about these bytes; after a surprise it ends the connection, so that a
  // client does not wait its whole timeout for an answer that nobody scripted.
  std::vector<Reaction> Receive(std::string_view bytes);
  void Connected();

  // Every piece that arrived, in order, line feeds included.
  std::vector<std::string> Received() const;
  int Connections() const;

  // Empty when everything expected arrived and nothing else; otherwise the wire's log with the differences marked.
  std::string Difference() const;

 private:
  struct Exchange {
    std::string expected;
    std::vector<Reaction> reactions;
  };
  struct Entry {
    enum class Kind { Arrived, Answered, Surprise };

    Kind kind;
    std::string bytes;
  };

  void React(Reaction reaction);
  void Note(const std::vector<Reaction>& reactions);

  mutable std::mutex mutex_;
  std::deque<Exchange> script_;
  // The answers that belong to lines; empty for a line that gets none.
  std::map<std::string, std::string, std::less<>> always_;
  std::string pending_;
  std::vector<Entry> log_;
  int connections_ = 0;
  // Nothing is answered any more.
  bool surprised_ = false;
};

}  // namespace kvtd::test

#endif
