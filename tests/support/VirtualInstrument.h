// A virtual instrument in a thread of this process, on one link.

#ifndef KVTD_TESTS_SUPPORT_VIRTUAL_INSTRUMENT_H
#define KVTD_TESTS_SUPPORT_VIRTUAL_INSTRUMENT_H

#include <string>
#include <thread>
#include <utility>

#include "LinkNames.h"
#include "link/host.h"

namespace kvtd::test {

class VirtualInstrument {
 public:
  VirtualInstrument(std::string serial, LinkKind link)
      : link_(link), host_(OptionsOf(std::move(serial), link)), thread_([this] { host_.Run(); }) {}
  ~VirtualInstrument() {
    host_.Stop();
    thread_.join();
  }

  // As ResourceOn.
  std::string ResourceName() const { return ResourceOn(link_, host_.listeners().front().port); }

 private:
  static siggen::link::HostOptions OptionsOf(std::string serial, LinkKind link) {
    siggen::link::HostOptions options;
    options.identity.serial = std::move(serial);
    options.socket_port.reset();
    options.map_port = false;
    (link == LinkKind::Hislip  ? options.hislip_port
     : link == LinkKind::Vxi11 ? options.vxi11_port
                               : options.socket_port) = std::uint16_t{0};
    return options;
  }

  const LinkKind link_;
  siggen::link::Host host_;
  std::thread thread_;
};

}  // namespace kvtd::test

#endif
