// A peer that takes blocks of any size and has a file to give: ":MMEM:DATA?" is answered with a block, every other
// query with "1".
#pragma once

#include <cstdint>
#include <string>
#include <thread>
#include <vector>

namespace bench {

class FilePeer {
 public:
  explicit FilePeer(std::size_t file_size);
  ~FilePeer();
  FilePeer(const FilePeer&) = delete;
  FilePeer& operator=(const FilePeer&) = delete;

  std::uint16_t port() const { return port_; }
  std::string resource() const { return "TCPIP0::127.0.0.1::" + std::to_string(port_) + "::SOCKET"; }

 private:
  void Serve();
  void ServeOne(int connection) const;

  int listener_;
  std::uint16_t port_ = 0;
  std::string block_;  // the file as it is answered, header and line feed included
  std::thread thread_;
};

}  // namespace bench
