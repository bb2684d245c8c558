// Starts the virtual instrument as a program of its own, and leaves none behind.

#ifndef KVTD_TESTS_SUPPORT_INSTRUMENT_PROCESS_H
#define KVTD_TESTS_SUPPORT_INSTRUMENT_PROCESS_H

#include <sys/types.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Sockets.h"

namespace kvtd::test {

class InstrumentProcess {
 public:
  // Starts the program with --exit-with-stdin and the arguments, and returns when it has printed one line
  // "<listener> <address>:<port>" for each listener named. Throws std::runtime_error when it does not in time.
  InstrumentProcess(const std::string& program, const std::vector<std::string>& arguments,
                    const std::vector<std::string>& listeners = {"socket"});
  InstrumentProcess(const InstrumentProcess&) = delete;
  InstrumentProcess& operator=(const InstrumentProcess&) = delete;
  ~InstrumentProcess();

  std::uint16_t port(const std::string& listener = "socket") const { return ports_.at(listener); }
  std::string SocketResource() const { return "TCPIP0::127.0.0.1::" + std::to_string(port()) + "::SOCKET"; }

  // Closes the program's standard input and waits for its end; it is killed when patience ends. The wait status, empty
  // when it had to be killed.
  std::optional<int> End();

 private:
  void Start(const std::string& program, const std::vector<std::string>& arguments);
  void ReadPorts(const std::vector<std::string>& listeners);

  pid_t process_ = -1;
  Descriptor input_;
  Descriptor output_;
  std::map<std::string, std::uint16_t> ports_;
};

}  // namespace kvtd::test

#endif
