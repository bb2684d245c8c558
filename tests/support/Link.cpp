#include "Link.h"

#include <cstdlib>
#include <stdexcept>

namespace kvtd::test {

LinkKind ChosenLink() {
  const char* const value = std::getenv("KVTD_TEST_LINK");
  const std::string name = value != nullptr ? value : "socket";
  if (name == "socket") return LinkKind::Socket;
  if (name == "hislip") return LinkKind::Hislip;
  if (name == "vxi11") return LinkKind::Vxi11;
  throw std::invalid_argument("KVTD_TEST_LINK names no link: " + name);
}

std::unique_ptr<Link> MakeLink(LinkKind kind, Dialogue& dialogue, Family family) {
  switch (kind) {
    case LinkKind::Socket:
      return MakeSocketLink(dialogue, family);
    case LinkKind::Hislip:
      return MakeHislipLink(dialogue, family);
    case LinkKind::Vxi11:
      return MakeVxi11Link(dialogue, family);
  }
  throw std::invalid_argument("no such link");
}

}  // namespace kvtd::test
