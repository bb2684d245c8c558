// A virtual instrument in a thread of this process, on a raw socket.

#ifndef KVTD_TESTS_PROOF_VIRTUAL_INSTRUMENT_H
#define KVTD_TESTS_PROOF_VIRTUAL_INSTRUMENT_H

#include <string>
#include <thread>
#include <utility>

#include "link/host.h"

namespace kvtd::test {

class VirtualInstrument {
 public:
  explicit VirtualInstrument(std::string serial)
      : host_(OptionsOf(std::move(serial))), thread_([this] { host_.Run(); }) {}
  ~VirtualInstrument() {
    host_.Stop();
    thread_.join();
  }

  std::string ResourceName() const {
    return "TCPIP0::127.0.0.1::" + std::to_string(host_.listeners().front().port) + "::SOCKET";
  }

 private:
  static siggen::link::HostOptions OptionsOf(std::string serial) {
    siggen::link::HostOptions options;
    options.identity.serial = std::move(serial);
    return options;
  }

  siggen::link::Host host_;
  std::thread thread_;
};

}  // namespace kvtd::test

#endif
