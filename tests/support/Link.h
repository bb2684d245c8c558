// How a client reaches the scripted instrument: the one place where a dialogue meets a protocol.
//
// A link takes the commands out of its protocol's frames, hands them to the dialogue and carries out what the dialogue
// answers. It serves one connection at a time, in a thread of its own, and takes the next when that one has ended.

#ifndef KVTD_TESTS_SUPPORT_LINK_H
#define KVTD_TESTS_SUPPORT_LINK_H

#include <memory>
#include <string>

#include "Dialogue.h"

namespace kvtd::test {

class Link {
 public:
  virtual ~Link() = default;

  // The VISA resource name under which the instrument is found.
  virtual std::string ResourceName() const = 0;
  virtual std::uint16_t port() const = 0;

  // Serves what has been sent or is waiting to connect, then ends. False when a client still held its connection when
  // the time was over; it is cut off then.
  virtual bool Finish(Milliseconds patience) = 0;
};

std::unique_ptr<Link> MakeSocketLink(Dialogue& dialogue, Family family);

}  // namespace kvtd::test

#endif
