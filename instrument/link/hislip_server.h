// The HiSLIP side of the instrument: takes connections, makes pairs of them, and keeps what the clients share.
#pragma once

#include <asio/ip/tcp.hpp>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "link/services.h"

namespace siggen::link {

class HislipServer {
 public:
  static constexpr std::chrono::seconds kPatienceForClear{40};

  // Listens when it returns. Throws std::system_error when the address or the port cannot be had. Whoever begins a
  // device clear and does not complete it in time loses his link.
  HislipServer(Services& services, const std::string& address, std::uint16_t port,
               std::chrono::milliseconds patience_for_clear = kPatienceForClear);
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
