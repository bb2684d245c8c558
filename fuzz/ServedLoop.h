// The loop of a server that shares one thread with its clients.
#pragma once

#include <asio/io_context.hpp>
#include <cstddef>
#include <string>

#include "LoopbackClient.h"

namespace kvtd::fuzz {

class ServedLoop {
 public:
  asio::io_context& io() { return io_; }

  void Serve() {
    io_.restart();
    io_.poll();
  }
  // What is owed for certain; shorter when the server does not pay.
  std::string Await(Client& client, std::size_t size) {
    std::string answer;
    for (int patience = 0; answer.size() < size && patience < 100; ++patience) {
      Serve();
      answer += client.Receive();
      if (answer.size() < size) client.AwaitReadable();
    }
    return answer;
  }

 private:
  asio::io_context io_;
};

}  // namespace kvtd::fuzz
