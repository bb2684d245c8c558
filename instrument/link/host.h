// Runs one instrument on its links: the program's main loop, and the instrument inside a test.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "link/fault.h"
#include "model/instrument.h"

namespace siggen::link {

struct HostOptions {
  model::Identity identity;
  std::string address = "127.0.0.1";
  std::optional<std::uint16_t> socket_port = std::uint16_t{0};  // 0 picks a free one
  std::optional<std::uint16_t> hislip_port;                     // nothing: no HiSLIP
  std::optional<std::chrono::milliseconds> patience_for_clear;  // of a HiSLIP device clear; nothing: as usual
  std::optional<std::uint16_t> vxi11_port;                      // nothing: no VXI-11; of the core channel
  bool map_port = true;                                         // a port mapper tells VXI-11's port
  std::optional<std::uint16_t> port_mapper;                     // ours, there; nothing: the system's, else ours on 111
  bool end_on_signals = false;                                  // SIGINT, SIGTERM
  bool end_with_stdin = false;
  std::vector<Fault> faults;
};

struct Listener {
  std::string protocol;  // "socket", "hislip", "vxi11", "portmapper"
  std::string address;
  std::uint16_t port = 0;
};

class Host {
 public:
  // Listens when it returns, and says on standard error when VXI-11's port could not be mapped. Throws
  // std::system_error when an address or a port cannot be had.
  explicit Host(HostOptions options);
  ~Host();
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  const std::vector<Listener>& listeners() const;
  void Run();  // until Stop()

  // From any thread.
  void Stop();
  void Inject(const Fault& fault);
  void ClearFaults();
  // Runs `work` between messages and returns when it is done. Run() must be running.
  void With(const std::function<void(model::Instrument&)>& work);

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace siggen::link
