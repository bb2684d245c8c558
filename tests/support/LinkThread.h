// What the links over TCP have in common: clients are accepted one after the other and served, in a thread of its own.

#ifndef KVTD_TESTS_SUPPORT_LINK_THREAD_H
#define KVTD_TESTS_SUPPORT_LINK_THREAD_H

#include <functional>
#include <thread>

#include "Sockets.h"

namespace kvtd::test {

// To be the last member of its link: `serve` is called from the constructor on.
class LinkThread {
 public:
  using Serve = std::function<void(Descriptor& connection)>;

  LinkThread(Family family, Serve serve);
  ~LinkThread() { Finish(Milliseconds(0)); }

  std::uint16_t port() const { return port_; }
  // As Link::Finish.
  bool Finish(Milliseconds patience);

  // For `serve`. A further connection of the same client; closed when none comes.
  Descriptor AcceptAnother();
  // Rings when the client is to be cut off.
  const Alarm& cut_off() const { return cut_off_; }

 private:
  void Run();

  const Serve serve_;
  Listener listener_;
  const std::uint16_t port_;
  Alarm last_call_;
  Alarm cut_off_;
  Alarm ended_;
  std::thread thread_;
};

}  // namespace kvtd::test

#endif
