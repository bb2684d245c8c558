// The HiSLIP side of the instrument: takes connections, makes pairs of them, and keeps what the clients share.
#pragma once

#include <asio/ip/tcp.hpp>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "link/services.h"

namespace siggen::link {

class HislipServer {
 public:
  // Listens when it returns. Throws std::system_error when the address or the port cannot be had.
  HislipServer(Services& services, const std::string& address, std::uint16_t port);
  ~HislipServer();
  HislipServer(const HislipServer&) = delete;
  HislipServer& operator=(const HislipServer&) = delete;

  std::uint16_t port() const;
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
