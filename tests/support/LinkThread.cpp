#include "LinkThread.h"

#include <utility>

namespace kvtd::test {

LinkThread::LinkThread(Family family, Serve serve)
    : serve_(std::move(serve)), listener_(family), port_(listener_.port()), thread_([this] { Run(); }) {}

bool LinkThread::Finish(Milliseconds patience) {
  if (!thread_.joinable()) return true;
  last_call_.Ring();
  const bool in_time = WaitReadable(ended_.descriptor(), nullptr, patience);
  cut_off_.Ring();
  thread_.join();
  return in_time;
}

Descriptor LinkThread::AcceptAnother() {
  if (!WaitReadable(listener_.descriptor(), &cut_off_, kPatience)) return {};
  return listener_.Accept();
}

void LinkThread::Run() {
  // After the last call, connections that are already waiting are still served: a client that came and went at once
  // must be seen.
  bool last_round = false;
  while (!last_round) {
    last_round = !WaitReadable(listener_.descriptor(), &last_call_, std::chrono::hours(1));
    for (Descriptor connection = listener_.Accept(); connection.open(); connection = listener_.Accept()) {
      serve_(connection);
    }
  }
  listener_.Close();
  ended_.Ring();
}

}  // namespace kvtd::test
