// The two kinds of sessions: resource managers, and sessions with an instrument.
#pragma once

#include <visa.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <new>
#include <set>
#include <string>

#include "deadline.h"
#include "event_queue.h"
#include "format/args.h"
#include "format/formatted_input.h"
#include "format/formatted_output.h"
#include "handles.h"
#include "interruption.h"
#include "link.h"
#include "managed_object.h"
#include "resource_lock.h"
#include "resource_name.h"
#include "settings.h"

namespace tvr::visa {

class ResourceManager final : public AttributeOwner {
 public:
  // Closing a resource manager closes what was opened, found or told through it.
  void OnClose() override;
  // Closes the object with itself from now on. What it cannot take is closed at once: nobody else would. False: it is
  // closed already.
  bool Adopt(ViObject object);
  void Forget(ViObject object);

  ViStatus GetAttribute(ViAttr attribute, void* value) override;
  ViStatus SetAttribute(ViAttr attribute, ViAttrState value) override;

 private:
  Settings settings_;
  std::mutex guard_;
  bool closed_ = false;
  std::set<ViObject> adopted_;
};

class Session final : public AttributeOwner {
 public:
  Session(ViSession resource_manager, ResourceName resource);
  ~Session() override;

  // Connects within the deadline, and takes the exclusive lock when that is wanted.
  ViStatus Open(ViAccessMode mode, ViUInt32 timeout_ms);
  // To be told once, before the handle is given out.
  void SetHandle(ViSession handle);
  void OnClose() override;

  // Makes one call on the session: one at a time, not while another session holds a lock that is not the device's
  // business, with one deadline for all of it. `body` takes the session and the deadline.
  template <class Body>
  ViStatus Call(Body&& body);

  ViStatus Read(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received);
  ViStatus Write(const ViByte* from, std::size_t count, bool end, Deadline& deadline, std::size_t& sent);
  ViStatus Clear(Deadline& deadline);

  ViStatus Printf(const char* format, Args& args, Deadline& deadline);
  ViStatus Scanf(const char* format, Args& args, Deadline& deadline);
  ViStatus Queryf(const char* write_format, const char* read_format, Args& args, Deadline& deadline);
  ViStatus Flush(ViUInt16 mask, Deadline& deadline);
  ViStatus SetBuffer(ViUInt16 mask, std::size_t size, Deadline& deadline);
  ViStatus BufferedRead(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received);
  ViStatus BufferedWrite(const ViByte* from, std::size_t count, Deadline& deadline, std::size_t& written);

  ViStatus Lock(ViAccessMode type, ViUInt32 timeout_ms, const std::string& requested_key, std::string& key);
  ViStatus Unlock();
  // From any thread: ends the call in progress with VI_ERROR_ABORT.
  void Terminate() { interruption_.Request(); }

  ViStatus GetAttribute(ViAttr attribute, void* value) override;
  ViStatus SetAttribute(ViAttr attribute, ViAttrState value) override;

  ViSession resource_manager() const { return resource_manager_; }
  // Null when the protocol raises none.
  EventQueue* events() const { return events_.get(); }
  Transport& transport() const { return link_.transport(); }
  const Settings& settings() const { return settings_; }

 private:
  ViStatus Scan(const char* format, Args& args, Deadline& deadline);
  ViStatus FlushWrites(Deadline& deadline);
  // What of the formatted I/O a device clear takes with it.
  void DiscardBuffers();
  ViStatus SwitchServiceRequests(bool on);

  const ViSession resource_manager_;
  const ResourceName resource_;
  ViSession handle_ = VI_NULL;
  Settings settings_;
  Interruption interruption_;
  Link link_{settings_};
  std::shared_ptr<ResourceLock> lock_;
  ResourceLock::Holder holder_;
  std::shared_ptr<EventQueue> events_;
  std::atomic<bool> closing_{false};
  std::mutex call_;  // held for the length of a call: what follows, and the transport's I/O
  bool device_exclusive_ = false;
  bool device_shared_ = false;
  FormattedOutput output_{&link_};
  FormattedInput input_{link_};
};

template <class Body>
ViStatus Session::Call(Body&& body) {
  const std::lock_guard one_at_a_time(call_);
  if (closing_.load(std::memory_order_relaxed)) return VI_ERROR_INV_OBJECT;
  if (!lock_->Admits(holder_) && !transport().DeviceKeepsOthersWaiting()) return VI_ERROR_RSRC_LOCKED;
  interruption_.BeginCall();
  Deadline deadline(settings_.Timeout());
  return body(*this, deadline);
}

}  // namespace tvr::visa
