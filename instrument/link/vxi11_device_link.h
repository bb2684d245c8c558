// One link of a VXI-11 client: its message exchange with the instrument. Answers wait until they are read.
#pragma once

#include <asio/steady_timer.hpp>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "link/services.h"
#include "scpi/framer.h"
#include "scpi/session.h"

namespace siggen::link::vxi11 {

// Whose link it is.
class LinkOwner {
 public:
  virtual ~LinkOwner() = default;
  // There may be an answer now that was not there before.
  virtual void Proceed() = 0;
  // Calls the client; false when that cannot be done.
  virtual bool RequestService(const std::string& handle) = 0;
  virtual void Close() = 0;
};

class DeviceLink : public Link, public std::enable_shared_from_this<DeviceLink> {
 public:
  DeviceLink(Services& services, LinkOwner& owner, int id);

  int id() const { return id_; }

  // False, and nothing is taken, while too much of what came before has to wait.
  bool Write(std::string_view data, bool end);
  void Trigger();
  void Clear();
  void ChangeControl() {}  // remote or local: there are no keys that it could lock
  std::uint8_t TakeStatusByte();

  struct Portion {
    std::string data;
    int reason = 0;
    std::optional<Fault::Kind> fault;  // that the connection is to suffer in place of the reply
  };
  // To be called once before an answer is awaited.
  void ExpectAnswer();
  // Nothing while there is no answer.
  std::optional<Portion> Read(std::size_t most, std::optional<char> last);

  void EnableService(std::optional<std::string> handle);
  void StatusChanged();

  bool waiting() const override { return exchange_.waiting(); }
  void Pump() override;
  void Close() override;
  // The link is no more: nothing calls its owner again.
  void Retire();

 private:
  bool owes_answer() const { return exchange_.answer_ready() || !answer_.empty(); }
  void Interrupt();
  void DropAnswer();
  void BeginAnswer();
  Portion Take(std::size_t most, std::optional<char> last);
  std::uint8_t Reasons() const;
  void TellService();

  Services& services_;
  LinkOwner* owner_;
  const int id_;

  scpi::Framer framer_;
  scpi::Session exchange_;
  std::size_t ahead_ = 0;           // bytes taken while the exchange waits
  std::deque<scpi::Bytes> answer_;  // what is still to be read of the answer under way
  std::optional<Fault::Kind> fault_;
  asio::steady_timer delay_;
  bool delayed_ = false;  // by a fault

  std::optional<std::string> handle_;  // with which service is requested
  std::uint8_t reasons_ = 0;           // for service, as last seen
  bool requests_service_ = false;      // RQS, until the status byte is asked for
  bool service_told_ = false;          // and nothing further is told before that
};

}  // namespace siggen::link::vxi11
