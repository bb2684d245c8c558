// One connection of a VXI-11 client to the core channel: its links, and one call after the other.
#pragma once

#include <asio/steady_timer.hpp>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "link/rpc_channel.h"
#include "link/rpc_message.h"
#include "link/services.h"
#include "link/vxi11_codes.h"
#include "link/vxi11_device_link.h"
#include "link/vxi11_interrupt.h"
#include "rpcgen/vxi11.h"

namespace siggen::link::vxi11 {

class Session;

// What all clients have in common.
class Hall {
 public:
  virtual ~Hall() = default;
  virtual Services& services() = 0;
  virtual std::uint16_t abort_port() const = 0;
  // An identifier that no other link has; nothing when there are enough of them.
  virtual std::optional<int> NewLinkId() = 0;
  virtual void Leave(Session& session) = 0;
};

class Session : public rpc::Receiver, public LinkOwner, public std::enable_shared_from_this<Session> {
 public:
  Session(Hall& hall, std::shared_ptr<rpc::Channel> channel);

  void Start();
  const std::map<int, std::shared_ptr<DeviceLink>>& links() const { return links_; }
  // Ends the call that is under way on that link; false when the link is not of this session.
  bool Abort(int link);
  void StatusChanged();
  void LocksChanged() { Proceed(); }

  void Proceed() override;
  bool RequestService(const std::string& handle) override;
  void Close() override;

  bool Ready() override { return !busy_; }
  void Received(rpc::Channel& from, std::string_view record) override;
  void Lost(rpc::Channel&) override { Close(); }

 private:
  using LinkPointer = std::shared_ptr<DeviceLink>;

  // A call that the lock or the device may hold up.
  struct Task {
    LinkPointer link;
    bool before_lock = true;
    std::chrono::milliseconds io_timeout{0};
    std::function<bool()> attempt;  // true when it has answered
    std::function<void(Error)> fail;
  };

  void Dispatch(const rpc::Call& call);
  template <class Parms, class... Rest>
  void With(const rpc::Call& call, rpc::Coder<Parms> coder, void (Session::*procedure)(const Parms&, Rest...),
            Rest... rest);

  void CreateLink(const Create_LinkParms& parms);
  void Write(const Device_WriteParms& parms);
  void Read(const Device_ReadParms& parms);
  void ReadStatusByte(const Device_GenericParms& parms);
  void Simple(const Device_GenericParms& parms, void (DeviceLink::*work)());
  void Lock(const Device_LockParms& parms);
  void Unlock(const Device_Link& link);
  void EnableService(const Device_EnableSrqParms& parms);
  void DoCommand(const Device_DocmdParms& parms);
  void DestroyLink(const Device_Link& link);
  void CreateInterruptChannel(const Device_RemoteFunc& parms);
  void DestroyInterruptChannel();

  LinkPointer Find(int id) const;
  void Begin(Task task, int flags, std::uint32_t lock_timeout);
  void Watch();
  void RequestLock(const LinkPointer& link, std::chrono::milliseconds patience,
                   std::function<void(Locks::Outcome)> done);
  void LinkCreated(Error error, const LinkPointer& link);
  void Deliver(const DeviceLink::Portion& portion);

  // Each ends the call under way.
  void Answer(std::string reply);
  void Answer(Error error);
  void AnswerWrite(Error error, std::size_t size);
  void AnswerStatusByte(Error error, std::uint8_t byte);
  std::string ReadReply(Error error, int reason, std::string_view data) const;

  Hall& hall_;
  Services& services_;
  std::shared_ptr<rpc::Channel> channel_;
  std::map<int, LinkPointer> links_;
  std::shared_ptr<InterruptChannel> interrupt_;

  bool busy_ = false;  // with the call of that number
  std::uint32_t xid_ = 0;
  std::optional<Task> task_;
  asio::steady_timer timer_;  // for the task: until the lock, then until the device
  bool gone_ = false;
};

}  // namespace siggen::link::vxi11
