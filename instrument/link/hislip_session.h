// One HiSLIP client: its two connections and its message exchange with the instrument.
#pragma once

#include <asio/steady_timer.hpp>
#include <chrono>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "link/hislip_channel.h"
#include "link/services.h"
#include "scpi/framer.h"
#include "scpi/session.h"

namespace siggen::link::hislip {

class Session;

// What all clients have in common.
class Hall {
 public:
  virtual ~Hall() = default;
  virtual Services& services() = 0;
  // How long a device clear that a client has begun may take.
  virtual std::chrono::milliseconds patience_for_clear() const = 0;
  virtual void Leave(Session& session) = 0;
};

class Session : public Link, public Receiver, public std::enable_shared_from_this<Session> {
 public:
  Session(Hall& hall, std::uint16_t id, std::shared_ptr<Channel> sync);

  std::uint16_t id() const { return id_; }
  void Start();
  // The second connection is there: the link is usable.
  void Attach(std::shared_ptr<Channel> async);
  bool complete() const { return async_ != nullptr; }
  // After the status model or the locks may have changed.
  void StatusChanged();
  void LocksChanged() { sync_->Resume(); }

  bool waiting() const override { return exchange_.waiting(); }
  void Pump() override;
  void Close() override;

  bool Ready(Channel& from) override;
  Payload Begins(Channel& from, const Header& header) override;
  void Ends(Channel& from, const Header& header, const std::string& text) override;
  std::span<char> Room() override { return framer_.Room(); }
  void Filled(std::size_t count) override { framer_.Filled(count); }
  void Malformed(Channel&) override { Fail(Fatal::kPoorHeader); }
  void Lost(Channel&) override { Close(); }

 private:
  bool BeginsWell(Channel& from, const Header& header);
  void EndsSynchronous(const Header& header);
  void EndsAsynchronous(const Header& header, const std::string& text);

  void Arrived(const Header& header);
  void Interrupted(std::uint32_t by);
  void NothingAvailable();
  bool busy() const { return sending_ || delayed_ || clearing_ || gone_; }
  bool owes_answer() const { return exchange_.answer_ready() || !answer_.empty(); }
  void BeginAnswer();
  void SendPart();
  void SendBroken(std::uint64_t announced);

  void DeviceClear();
  void AwaitDeviceClearComplete();
  void DeviceCleared(std::uint8_t features);
  void StatusQuery(const Header& header);
  void Lock(const Header& header, const std::string& key);
  void ReleaseLock();
  void Fail(Fatal fatal);
  void Delay(std::chrono::milliseconds delay);
  bool Forget();

  Hall& hall_;
  Services& services_;
  const std::uint16_t id_;
  std::shared_ptr<Channel> sync_;
  std::shared_ptr<Channel> async_;
  asio::steady_timer timer_;  // for the second connection; then for late answers and the end of a device clear
  bool gone_ = false;

  scpi::Framer framer_;
  scpi::Session exchange_;
  std::deque<scpi::Bytes> answer_;  // what is still to be sent of the answer under way
  bool sending_ = false;            // a part of it is on its way
  bool delayed_ = false;            // by a fault
  std::uint64_t most_payload_ = kLargestMessage - kHeaderSize;

  bool overlap_ = false;
  bool clearing_ = false;            // between AsyncDeviceClear and DeviceClearComplete
  std::uint32_t last_id_ = kNoId;    // of the client's messages
  std::uint32_t answer_id_ = kNoId;  // of the message whose end brought the answer about
  std::uint32_t sent_id_ = kNoId;    // of our messages in overlap mode
  bool rmt_expected_ = false;
  bool message_available_ = false;
  std::optional<std::uint32_t> release_after_;  // the lock is released when that message is done

  std::uint8_t reasons_ = 0;       // for service, as last seen
  bool requests_service_ = false;  // RQS, until the status byte is asked for
  bool service_told_ = false;      // and no further AsyncServiceRequest before that
};

}  // namespace siggen::link::hislip
