#include "link/acceptor.h"

namespace siggen::link {

using asio::ip::tcp;

Acceptor::Acceptor(asio::io_context& io, const std::string& address, std::uint16_t port, Taker taker)
    : acceptor_(io), retry_(io), taker_(std::move(taker)) {
  const tcp::endpoint endpoint(asio::ip::make_address(address), port);
  acceptor_.open(endpoint.protocol());
  acceptor_.set_option(tcp::acceptor::reuse_address(true));
  acceptor_.bind(endpoint);
  acceptor_.listen();
  port_ = acceptor_.local_endpoint().port();
}

void Acceptor::Close() {
  asio::error_code ignored;
  acceptor_.close(ignored);
  retry_.cancel();
}

void Acceptor::Accept() {
  acceptor_.async_accept([this](const asio::error_code& problem, tcp::socket socket) {
    if (!acceptor_.is_open()) return;
    if (problem) {  // out of descriptors, most likely: some connections may end before the next try
      retry_.expires_after(std::chrono::milliseconds(100));
      retry_.async_wait([this](const asio::error_code& stopped) {
        if (!stopped) Accept();
      });
      return;
    }
    taker_(std::move(socket));
    Accept();
  });
}

}  // namespace siggen::link
