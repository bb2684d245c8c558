// How a client reaches the scripted instrument: the one place where a dialogue meets a protocol.
//
// A link takes the commands out of its protocol's frames, hands them to the dialogue and carries out what the dialogue
// answers. It serves one client at a time, in a thread of its own, and takes the next when that one has gone.

#ifndef KVTD_TESTS_SUPPORT_LINK_H
#define KVTD_TESTS_SUPPORT_LINK_H

#include <memory>
#include <string>

#include "Dialogue.h"

namespace kvtd::test {

enum class LinkKind { Socket, Hislip, Vxi11 };

// The link that this run of the tests goes over: the environment variable KVTD_TEST_LINK, socket where it is not set.
LinkKind ChosenLink();

// For a test that is about the bytes between commands, or about another thing that only the raw socket has.
#define ONLY_OVER_THE_SOCKET(reason) \
  if (ChosenLink() != LinkKind::Socket) GTEST_SKIP() << reason

class Link {
 public:
  virtual ~Link() = default;

  // The VISA resource name under which the instrument is found. Where the name tells no port, sessions that are opened
  // come to the instrument that was asked for it last.
  virtual std::string ResourceName() const = 0;
  virtual std::uint16_t port() const = 0;

  // Serves what has been sent or is waiting to connect, then ends. False when a client still held its connection when
  // the time was over; it is cut off then.
  virtual bool Finish(Milliseconds patience) = 0;
};

std::unique_ptr<Link> MakeLink(LinkKind kind, Dialogue& dialogue, Family family);

// One file each; MakeLink chooses.
std::unique_ptr<Link> MakeSocketLink(Dialogue& dialogue, Family family);
std::unique_ptr<Link> MakeHislipLink(Dialogue& dialogue, Family family);
std::unique_ptr<Link> MakeVxi11Link(Dialogue& dialogue, Family family);

}  // namespace kvtd::test

#endif
