// The VXI-11 side of the instrument: takes connections to the core and the abort channel, and keeps what the clients
// share.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "link/mapping.h"
#include "link/services.h"

namespace siggen::link {

class Vxi11Server {
 public:
  // Listens when it returns. Throws std::system_error when the address or the port cannot be had.
  Vxi11Server(Services& services, const std::string& address, std::uint16_t port);
  ~Vxi11Server();
  Vxi11Server(const Vxi11Server&) = delete;
  Vxi11Server& operator=(const Vxi11Server&) = delete;

  std::uint16_t port() const;  // of the core channel
  Mapping mapping() const;     // what a port mapper is to tell of it
  void ForEachLink(const std::function<void(const std::shared_ptr<Link>&)>& work);
  // After the status model or the locks may have changed.
  void StatusChanged();
  void LocksChanged();
  void CloseClients();
  void StopListening();

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace siggen::link
