// TCPIP ... hislip0 ... INSTR: an instrument behind HiSLIP 1.0.
//
//   hislip_message   the bytes of a header
//   hislip_channel   messages on one connection
//   hislip_async     the asynchronous connection: questions, service requests
//   hislip.cpp       opening, attributes, and what is asked on the asynchronous connection
//   hislip_data.cpp  data in both directions, and which answers count
#pragma once

#include <visa.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "hislip_async.h"
#include "hislip_channel.h"
#include "instr_transport.h"

namespace tvr::visa::hislip {

class HislipTransport final : public InstrTransport {
 public:
  HislipTransport(const ResourceName& resource, Interruption& interruption);
  ~HislipTransport() override;

  ViStatus Open(Deadline& deadline);

  ViStatus Read(const ReadRequest& request, Deadline& deadline, std::size_t& received) override;
  ViStatus Write(std::span<iovec> pieces, bool end, Deadline& deadline, std::size_t& sent) override;
  bool MessageEndsAnswer() const override { return !overlap_; }
  ViStatus Clear(Deadline& deadline) override { return Settle(ClearInto(overlap_, deadline)); }
  void DiscardInput() override { ForgetAnswer(); }
  ViStatus ReadStatusByte(ViUInt16 protocol, Deadline& deadline, ViUInt16& status_byte) override;
  ViStatus Trigger(ViUInt16 protocol, Deadline& deadline) override;
  ViStatus RemoteLocal(ViUInt16 mode, Deadline& deadline) override;
  bool DeviceKeepsOthersWaiting() const override { return true; }
  ViStatus LockDevice(const std::string& key, ViUInt32 timeout_ms) override;
  ViStatus UnlockDevice(bool exclusive, ViUInt32 timeout_ms) override;
  ViStatus DeliverServiceRequests(std::function<void()> sink, ViUInt32 timeout_ms) override;
  ViStatus GetAttribute(ViAttr attribute, void* value) override;
  bool ClearsWhenSet(ViAttr attribute, ViAttrState value) const override;
  ViStatus SetAttribute(ViAttr attribute, ViAttrState value, ViUInt32 timeout_ms) override;
  void HangUp() override;

 private:
  const TcpStream& stream() const override { return sync_.stream(); }

  // What becomes of the payload under way. In synchronised mode an answer counts when it bears the id of the last
  // message sent. A device need tell the id only with the last part, so a part before that may have to wait for proof.
  enum class Fate {
    kProven,
    kUnproven,  // goes to the caller, and is taken back if the proof fails within the same read
    kHeld,      // an earlier question is unanswered, so this may be its late answer: kept until there is proof
  };
  struct Part {
    bool under_way = false;
    bool ends = false;
    Fate fate = Fate::kProven;
    ViUInt32 id = 0;
  };
  // One call of Read.
  struct Gathering {
    const ReadRequest& request;
    std::size_t& received;
    std::size_t finished = 0;  // bytes of answers that have ended
    std::size_t unproven = 0;
  };

  ViStatus Initialize(Deadline& deadline);
  ViStatus AgreeOnMessageSize(ViUInt32 kilobytes, Deadline& deadline);
  ViStatus ClearInto(bool overlap, Deadline& deadline);
  ViStatus AwaitSynchronous(Type wanted, Deadline& deadline, Header& header);
  void DropArrived();
  // Makes the statuses of the channels those of a caller, and ends a link that cannot go on.
  ViStatus Settle(ViStatus status);
  ViStatus AskAsync(const Header& header, Type answer_type, Deadline& deadline, AsyncChannel::Answer& answer,
                    std::span<const iovec> payload = {});

  // hislip_data.cpp
  ViStatus Gather(Gathering& gathering, Deadline& deadline);
  ViStatus NextPart(Gathering& gathering, Deadline& deadline);
  bool Admit(const Header& header);
  ViStatus Refuse(Gathering& gathering);
  ViStatus Hold(Deadline& deadline);
  ViStatus TakePart(Gathering& gathering, Deadline& deadline, bool& at_termchar);
  bool TakeHeld(Gathering& gathering);
  ViStatus EndPart(Gathering& gathering);
  void ForgetAnswer();
  ViStatus PrepareToSend(Deadline& deadline);
  ViStatus SendMessage(Type type, std::span<const iovec> payload, Deadline& deadline, std::size_t& sent);
  ViUInt32 LastId() const { return next_id_ - kIdStep; }
  void Restart();

  const ViUInt16 port_;
  Channel sync_;
  std::shared_ptr<AsyncChannel> async_;

  ViUInt16 version_ = kVersion;
  // Read by GetAttribute while a call is at work.
  std::atomic<bool> overlap_{false};
  std::atomic<ViUInt32> largest_kilobytes_{1024};
  std::size_t most_payload_;

  ViUInt32 next_id_ = kFirstId;
  bool rmt_delivered_ = false;  // the last byte of an answer has been handed over since the last message
  ViUInt32 delivered_id_ = kFirstId - kIdStep;  // of the device's last message handed over whole; overlap mode
  ViUInt32 interruptions_ = 0;                  // told on the synchronous channel
  // A message, or a device clear, was given up half-way. Nothing else may be sent before a device clear is through.
  bool unfinished_ = false;

  Part part_;
  std::vector<ViByte> held_;
  std::size_t held_taken_ = 0;
  bool spoilt_ = false;          // too much was held: the rest of that answer is dropped
  bool unproven_given_ = false;  // an earlier read handed over bytes for which the proof is still to come
  bool read_open_ = false;       // the last read did not see the end of an answer
  bool gave_up_ = false;         // the last read failed
  bool late_possible_ = false;   // and then a message was sent all the same

  std::vector<iovec> pieces_;
};

}  // namespace tvr::visa::hislip
