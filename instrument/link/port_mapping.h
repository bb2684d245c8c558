// How clients find the port of the core channel: through the system's port mapper, or one of our own.
#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "link/port_mapper.h"

namespace siggen::link {

// An entry in the system's port mapper, as long as this lives.
class Registration {
 public:
  // Throws std::runtime_error when the port mapper does not take it.
  explicit Registration(const Mapping& mapping);
  ~Registration();
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;

  // Does a port mapper answer on this machine?
  static bool Possible();

 private:
  const Mapping mapping_;
};

// Never fails: what does not succeed is said in one line to `complaints`.
class MappedPort {
 public:
  // A port mapper of our own on `own_port`; without one the system's, or where it has none our own on port 111.
  MappedPort(asio::io_context& io, const std::string& address, std::optional<std::uint16_t> own_port,
             const Mapping& mapping, std::ostream& complaints);

  // Of a port mapper of our own.
  std::optional<std::uint16_t> port() const;
  void Close();

 private:
  std::optional<Registration> registration_;
  std::optional<PortMapper> mapper_;
};

}  // namespace siggen::link
