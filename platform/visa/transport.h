// What a link to an instrument can do, whatever protocol carries it. One file per protocol implements it; the session
// (session.h) and the formatted I/O above it know no protocol.
#pragma once

#include <sys/uio.h>
#include <visa.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "deadline.h"
#include "interruption.h"
#include "resource_name.h"

namespace tvr::visa {

struct ReadRequest {
  ViByte* into;
  std::size_t room;      // at least 1
  std::size_t at_least;  // 1 to room: with so many bytes the read may return, though nothing has ended
  std::optional<ViByte> termchar;
};

// Every call but HangUp is made by one thread at a time: the session serialises them. Statuses are the published ones.
class Transport {
 public:
  Transport() = default;
  Transport(const Transport&) = delete;
  Transport& operator=(const Transport&) = delete;
  virtual ~Transport() = default;

  // Does the protocol mark the end of a message by itself?
  virtual bool CarriesEnd() const = 0;
  // Is what a message has left unread of an earlier answer dropped on its way here? Then nobody need wait for it.
  virtual bool MessageEndsAnswer() const { return false; }

  // VI_SUCCESS: the last byte carried END. VI_SUCCESS_TERM_CHAR: the last byte is the termchar. VI_SUCCESS_MAX_CNT:
  // at least `at_least` bytes, or fewer of which the device says that they are all; neither of the two. On failure
  // `received` counts the bytes that did arrive. Bytes that came in beyond the end stay with the transport, for the
  // next read.
  virtual ViStatus Read(const ReadRequest& request, Deadline& deadline, std::size_t& received) = 0;

  // Sends the pieces as one message part; `end` puts END on the last byte. May change the pieces.
  virtual ViStatus Write(std::span<iovec> pieces, bool end, Deadline& deadline, std::size_t& sent) = 0;

  // May a question go to the device together with the call that asks for its answer? Then ExpectRead tells before the
  // Write of a message that the next call is a Read into this much room. ExpectNoRead takes it back.
  virtual bool ReadsAhead() const { return false; }
  virtual void ExpectRead(std::size_t /*room*/, std::optional<ViByte> /*termchar*/) {}
  virtual void ExpectNoRead() {}

  // Device clear, as far as the protocol has one; nothing received before it is read after it.
  virtual ViStatus Clear(Deadline& deadline) = 0;
  // Drops received bytes that nobody has read, on this side only.
  virtual void DiscardInput() = 0;
  // `protocol` is the session's VI_ATTR_IO_PROT.
  virtual ViStatus ReadStatusByte(ViUInt16 protocol, Deadline& deadline, ViUInt16& status_byte) = 0;
  virtual ViStatus Trigger(ViUInt16 protocol, Deadline& deadline) = 0;
  virtual ViStatus RemoteLocal(ViUInt16 /*mode*/, Deadline& /*deadline*/) { return VI_ERROR_NSUP_OPER; }

  // False: the protocol has no locks, those inside this process stand by themselves, and the two calls below are never
  // made.
  virtual bool HasDeviceLocks() const { return true; }
  // True: who has no lock is kept waiting by the device, and served where none is needed; so he is not refused here.
  virtual bool DeviceKeepsOthersWaiting() const { return false; }
  // Locks at the device. An empty key asks for the exclusive lock. Called for the outermost level only; nesting is
  // counted by the session. The exclusive lock may be asked for on top of the shared one, and goes first.
  virtual ViStatus LockDevice(const std::string& /*key*/, ViUInt32 /*timeout_ms*/) { return VI_SUCCESS; }
  virtual ViStatus UnlockDevice(bool /*exclusive*/, ViUInt32 /*timeout_ms*/) { return VI_SUCCESS; }

  // False: the protocol knows no service requests, and the call below is never made.
  virtual bool HasServiceRequests() const { return true; }
  // From now on `sink` is called at each service request, from a thread of the transport; an empty one stops it. A call
  // of the sink that has begun is not waited for, here and when the transport is destroyed in that very call: a sink
  // may itself make calls on the session, which wait for the one that is going on.
  // NOLINTNEXTLINE(performance-unnecessary-value-param): protocols that have them keep it
  virtual ViStatus DeliverServiceRequests(std::function<void()> /*sink*/, ViUInt32 /*timeout_ms*/) {
    return VI_ERROR_INV_EVENT;
  }

  // Attributes of this protocol alone; VI_ERROR_NSUP_ATTR for all others. `value` is the caller's, of published width.
  virtual ViStatus GetAttribute(ViAttr attribute, void* value) = 0;
  // Would setting it clear the device?
  virtual bool ClearsWhenSet(ViAttr /*attribute*/, ViAttrState /*value*/) const { return false; }
  // Of some it is an exchange with the device.
  virtual ViStatus SetAttribute(ViAttr attribute, ViAttrState value, ViUInt32 timeout_ms) = 0;

  // From any thread, when the session is being closed: calls that wait end soon, and later ones fail.
  virtual void HangUp() = 0;
};

// Each protocol's way in. `interruption` outlives the transport.
ViStatus OpenSocket(const ResourceName& resource, Interruption& interruption, Deadline& deadline,
                    std::unique_ptr<Transport>& opened);
ViStatus OpenHislip(const ResourceName& resource, Interruption& interruption, Deadline& deadline,
                    std::unique_ptr<Transport>& opened);
ViStatus OpenVxi11(const ResourceName& resource, Interruption& interruption, Deadline& deadline,
                   std::unique_ptr<Transport>& opened);

}  // namespace tvr::visa
