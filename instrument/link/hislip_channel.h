// One connection of a HiSLIP client: messages in, one after the other, and messages out.
#pragma once

#include <array>
#include <asio/ip/tcp.hpp>
#include <deque>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "link/hislip_frame.h"
#include "scpi/bytes.h"

namespace siggen::link::hislip {

class Channel;

// What becomes of the payload behind a header.
enum class Payload { kDrop, kCollect, kStream };

// Who makes something of the messages.
class Receiver {
 public:
  virtual ~Receiver() = default;
  // Asked before each header; with false the client has to wait until Channel::Resume().
  virtual bool Ready(Channel& from) = 0;
  // kCollect is for texts of at most kLongestText bytes.
  virtual Payload Begins(Channel& from, const Header& header) = 0;
  // The message is complete; `text` is what was collected.
  virtual void Ends(Channel& from, const Header& header, const std::string& text) = 0;
  // Where a streamed payload goes; never empty. Filled() says how much of it is used.
  virtual std::span<char> Room() = 0;
  virtual void Filled(std::size_t count) = 0;
  // What came was no header.
  virtual void Malformed(Channel& from) = 0;
  // The client closed the connection, or does not take what it is sent.
  virtual void Lost(Channel& from) = 0;
};

class Channel : public std::enable_shared_from_this<Channel> {
 public:
  explicit Channel(asio::ip::tcp::socket socket);

  // Messages go to that receiver from now on.
  void SetReceiver(std::shared_ptr<Receiver> receiver) { receiver_ = std::move(receiver); }
  void Resume();
  // What is left of a message under way is dropped.
  void DropPayload() { payload_ = Payload::kDrop; }
  // Has the client sent more than has been looked at?
  bool InputQueued();

  // `header.length` counts; the parts may hold less when the link is to break in the middle.
  void Send(const Header& header, std::vector<scpi::Bytes> parts = {}, std::function<void()> sent = {});
  void SendError(Problem problem);
  // Closes behind it.
  void SendFatal(Fatal fatal);

  bool open() const { return socket_.is_open(); }
  // Also forgets the receiver.
  void Close();
  void Reset();

 private:
  struct Outgoing {
    std::string header;
    std::vector<scpi::Bytes> parts;
    std::function<void()> sent;
  };

  void Advance();
  bool TakeBuffered(Receiver& receiver);
  void Read();
  void Write();
  void Forget();
  std::size_t buffered() const { return end_ - begin_; }

  asio::ip::tcp::socket socket_;
  std::shared_ptr<Receiver> receiver_;

  std::array<char, 8192> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool reading_ = false;
  bool advancing_ = false;
  bool in_message_ = false;
  Header header_;
  std::uint64_t left_ = 0;
  Payload payload_ = Payload::kDrop;
  std::string text_;

  std::deque<Outgoing> outgoing_;
  bool writing_ = false;
};

}  // namespace siggen::link::hislip
