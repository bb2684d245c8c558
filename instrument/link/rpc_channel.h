// A TCP connection that carries ONC RPC: records in, one after the other, and records out.
//
// A record comes in fragments, each behind four bytes that tell its length and whether it is the last one.
#pragma once

#include <array>
#include <asio/ip/tcp.hpp>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>

namespace siggen::link::rpc {

class Channel;

// Who makes something of the records.
class Receiver {
 public:
  virtual ~Receiver() = default;
  // Asked before each record; with false it has to wait until Channel::Resume().
  virtual bool Ready() = 0;
  virtual void Received(Channel& from, std::string_view record) = 0;
  // The other side ended the connection, or sent what can be no record.
  virtual void Lost(Channel& from) = 0;
};

class Channel : public std::enable_shared_from_this<Channel> {
 public:
  // A record that announces more is not received.
  Channel(asio::ip::tcp::socket socket, std::size_t longest_record);

  void SetReceiver(std::shared_ptr<Receiver> receiver) { receiver_ = std::move(receiver); }
  void Resume();

  void Send(std::string record);
  // The mark tells the whole length, and the connection ends after `count` bytes of the record.
  void SendBroken(std::string record, std::size_t count);

  const asio::ip::tcp::socket& socket() const { return socket_; }
  bool open() const { return socket_.is_open(); }
  // Also forgets the receiver.
  void Close();
  void Reset();

 private:
  struct Outgoing {
    std::array<unsigned char, 4> mark;
    std::string record;
    bool broken = false;
  };

  void Advance();
  bool Assemble();
  void TakeBuffered();
  void Read();
  void Arrived(const asio::error_code& problem, std::size_t count, bool direct);
  void Push(std::string record, std::size_t announced, bool broken);
  bool HasEnoughToSend() const;
  void Write();
  void Forget();
  void GiveUp();
  std::size_t buffered() const { return end_ - begin_; }

  asio::ip::tcp::socket socket_;
  const std::size_t longest_record_;
  std::shared_ptr<Receiver> receiver_;

  std::array<char, 8192> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool reading_ = false;
  bool advancing_ = false;
  bool ended_ = false;      // nothing more will come
  bool malformed_ = false;  // what came can be no record

  std::string record_;
  bool in_record_ = false;
  bool in_fragment_ = false;
  bool last_fragment_ = false;
  std::size_t fragment_left_ = 0;

  std::deque<Outgoing> outgoing_;
  bool writing_ = false;
};

}  // namespace siggen::link::rpc
