// What every TCP connection of a link needs, whatever it carries.
#pragma once

#include <asio/ip/tcp.hpp>

namespace siggen::link {

// Nothing is held back to be sent with more.
void SendAtOnce(asio::ip::tcp::socket& socket);
// The client hears an orderly end, or a reset.
void CloseConnection(asio::ip::tcp::socket& socket);
void ResetConnection(asio::ip::tcp::socket& socket);

}  // namespace siggen::link
