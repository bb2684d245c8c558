// TCPIP ... inst0 ... INSTR: an instrument behind VXI-11 (TCP/IP Instrument Protocol 1.0).
//
//   vxi11.x           the protocol's programs and structures
//   vxi11_record      records of RPC on one connection, and XDR out of them
//   vxi11_rpc         calls over one connection
//   vxi11_port        where the instrument listens
//   vxi11_interrupts  the way back, for service requests
//   vxi11.cpp         opening, closing, giving up, attributes, and what is asked in one call
//   vxi11_data.cpp    data in both directions
//
// A message and the read of its answer are two calls. With the session's word that the read will come (ExpectRead) both
// go in one send, if the device was seen to take two. Nothing else is under way behind another call, and no call is
// made before such a read has ended or was aborted.
//
// Not libtirpc's own client: its timeout counts anew with every packet, it allocates for every call, and nothing
// interrupts it.
#pragma once

#include <visa.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "instr_transport.h"
#include "vxi11_interrupts.h"
#include "vxi11_rpc.h"
#include "xdr/vxi11.h"

namespace tvr::visa::vxi11 {

// Flags of a call, reasons for the end of a read.
constexpr int kWaitLock = 0x01, kEnd = 0x08, kTermcharSet = 0x80;
constexpr int kReasonCount = 0x01, kReasonTermchar = 0x02, kReasonEnd = 0x04;

class Vxi11Transport final : public InstrTransport {
 public:
  Vxi11Transport(const ResourceName& resource, Interruption& interruption);
  ~Vxi11Transport() override;

  ViStatus Open(Deadline& deadline);

  ViStatus Read(const ReadRequest& request, Deadline& deadline, std::size_t& received) override;
  ViStatus Write(std::span<iovec> pieces, bool end, Deadline& deadline, std::size_t& sent) override;
  bool ReadsAhead() const override { return takes_two_; }
  void ExpectRead(std::size_t room, std::optional<ViByte> termchar) override;
  void ExpectNoRead() override;
  ViStatus Clear(Deadline& deadline) override;
  // Between two calls nothing waits on this side.
  void DiscardInput() override {}
  ViStatus ReadStatusByte(ViUInt16 protocol, Deadline& deadline, ViUInt16& status_byte) override;
  ViStatus Trigger(ViUInt16 protocol, Deadline& deadline) override;
  ViStatus RemoteLocal(ViUInt16 mode, Deadline& deadline) override;
  ViStatus LockDevice(const std::string& key, ViUInt32 timeout_ms) override;
  ViStatus UnlockDevice(bool exclusive, ViUInt32 timeout_ms) override;
  ViStatus DeliverServiceRequests(std::function<void()> sink, ViUInt32 timeout_ms) override;
  ViStatus GetAttribute(ViAttr attribute, void* value) override;
  void HangUp() override;

 private:
  const TcpStream& stream() const override { return core_.stream(); }
  ViStatus Connect(Deadline& deadline);
  ViStatus CreateLink(Deadline& deadline, ViUInt16& abort_port);
  // One call on the core channel, and what becomes of the link when it fails.
  template <class Arguments, class Results>
  ViStatus Ask(ViUInt32 procedure, bool_t (*encode)(XDR*, Arguments*), Arguments& arguments,
               bool_t (*decode)(XDR*, Results*), Results& results, Deadline& deadline,
               std::span<const iovec> data = {}) {
    ViStatus status = Prepare(deadline);
    if (status < 0) return status;
    status = core_.Send(procedure, encode, arguments, deadline, data);
    if (status >= 0) status = core_.Receive(decode, results, deadline);
    return Settle(status);
  }
  // The same for a call that is answered by an error number alone.
  template <class Arguments>
  ViStatus Tell(ViUInt32 procedure, bool_t (*encode)(XDR*, Arguments*), Arguments& arguments, Deadline& deadline) {
    Device_Error answer{};
    const ViStatus status = Ask(procedure, encode, arguments, xdr_Device_Error, answer, deadline);
    return status < 0 ? status : StatusOf(answer.error);
  }
  ViStatus TellGeneric(ViUInt32 procedure, Deadline& deadline);
  static ViStatus StatusOf(int error);

  ViStatus Prepare(Deadline& deadline);
  ViStatus AwaitAbort(Deadline& deadline);
  ViStatus AwaitEndOfCalls(Deadline& deadline);
  ViStatus Settle(ViStatus status);
  void Abort();
  void GiveUpReadAhead();
  void Disconnect();
  void Farewell();
  ViStatus StartInterrupts(Deadline& deadline);

  // vxi11_data.cpp
  Device_ReadParms ReadParms(std::size_t room, ViUInt32 time, std::optional<ViByte> termchar) const;
  ViStatus ReadPart(const ReadRequest& request, Deadline& deadline, std::size_t& received, int& reason);
  ViStatus ReceiveReadAhead(Device_ReadResp& answer, Deadline& patience);
  ViStatus WritePart(std::span<const iovec> part, std::size_t length, bool end, Deadline& deadline, std::size_t& taken);

  Interruption& interruption_;
  // The session makes one call at a time; the farewell of HangUp comes after the last.
  std::mutex busy_;
  RpcCaller core_;
  // For nothing but device_abort, which must not wait behind the call that it ends.
  RpcCaller abort_;
  std::shared_ptr<InterruptServer> interrupts_;
  std::atomic<bool> hung_up_{false};

  Device_Link lid_ = 0;
  bool linked_ = false;
  bool abort_connected_ = false;
  bool abort_unanswered_ = false;
  // A question and its read go in one send: the device was seen to take two calls at a time.
  bool takes_two_ = false;
  struct ExpectedRead {
    std::size_t room;
    std::optional<ViByte> termchar;
  };
  std::optional<ExpectedRead> expected_read_;
  std::optional<ViUInt32> read_ahead_;        // the call that went along with the last message
  std::optional<ViUInt32> read_to_be_ended_;  // such a call that nobody waits for any more
  bool interrupts_in_doubt_ = false;          // the device has not said whether it made the channel
  std::size_t most_data_ = 0;
  std::vector<iovec> pieces_;
};

// Times that the protocol tells the device, and the time that its answer gets: the device must have a chance to say
// itself that time is up.
ViUInt32 TimeLeft(Deadline& deadline);
Deadline Patience(ViUInt32 told_ms);

}  // namespace tvr::visa::vxi11
