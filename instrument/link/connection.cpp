#include "link/connection.h"

namespace siggen::link {

using asio::ip::tcp;

// Of a connection that has gone already there is nothing to be set or ended, and nothing to be said about it.
void SendAtOnce(tcp::socket& socket) {
  asio::error_code ignored;
  socket.set_option(tcp::no_delay(true), ignored);
}

void CloseConnection(tcp::socket& socket) {
  asio::error_code ignored;
  socket.shutdown(tcp::socket::shutdown_both, ignored);
  socket.close(ignored);
}

void ResetConnection(tcp::socket& socket) {
  asio::error_code ignored;
  socket.set_option(asio::socket_base::linger(true, 0), ignored);
  socket.close(ignored);
}

}  // namespace siggen::link
