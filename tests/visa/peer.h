// The other end of a session: a listener on the loopback interface, and a script that plays the instrument.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace visa_test {

// One accepted connection. Whatever waits here gives up after some seconds, so that a failing test ends.
class Connection {
 public:
  explicit Connection(int socket) : socket_(socket) {}
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  // All up to and including the next line feed; shorter when the other side is gone.
  std::string Line();
  // Exactly so many bytes; shorter when the other side is gone.
  std::string Bytes(std::size_t count);
  // True when nothing has been sent that was not taken yet.
  bool Silent();
  void Send(std::string_view bytes);
  // Returns when the other side has closed.
  void WaitForClose();
  // Closes with a reset.
  void Reset();

 private:
  bool Receive();

  int socket_;
  std::string received_;
};

enum class Family { kIpv4, kIpv6 };

// Plays the script on each connection, one thread per connection.
class Peer {
 public:
  using Script = std::function<void(Connection&)>;
  explicit Peer(Script script, Family family = Family::kIpv4);
  ~Peer();
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  int port() const { return port_; }
  // "TCPIP0::127.0.0.1::<port>::SOCKET"
  std::string Descriptor() const;

 private:
  void Accept();

  Script script_;
  Family family_;
  int listener_ = -1;
  int port_ = 0;
  std::vector<std::thread> scripts_;
  std::thread acceptor_;
};

// A port of the loopback interface where nobody listens.
int RefusedPort();

}  // namespace visa_test
