// Service requests, between the thread that hears of them and the callers who wait, or have installed a handler.
#pragma once

#include <visa.h>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace tvr::visa {

// The mechanisms that call handlers: now, or when they are let go.
inline constexpr unsigned kCallback = VI_HNDLR | VI_SUSPEND_HNDLR;

// One occurrence is like the other, so a queue is a number. There are two: what viWaitOnEvent takes, and what the
// handlers are still to be called for. Both end at the length, and what comes then is lost.
//
// Handlers are called one at a time, the last installed first, in the thread that raises the event; occurrences that
// were held back are told in the thread that lets them go. No lock is held then, so a handler may call anything.
class EventQueue {
 public:
  // Asks the resource for the occurrences, or to be spared them.
  using Source = std::function<ViStatus(bool on)>;

  // Event contexts are closed with `resource_manager` if not before.
  EventQueue(ViSession resource_manager, Source source)
      : resource_manager_(resource_manager), source_(std::move(source)) {}
  // What handlers are told. Before anybody can install one.
  void SetSession(ViSession session) { session_ = session; }

  // `mechanism` is checked by the caller: bits among VI_QUEUE, VI_HNDLR, VI_SUSPEND_HNDLR; of the two for handlers only
  // one to enable, any one to disable, and only the latter to discard.
  ViStatus Enable(ViUInt16 mechanism);
  // What is in the queues stays there.
  ViStatus Disable(ViUInt16 mechanism);
  ViStatus Discard(ViUInt16 mechanism);
  bool Enabled() const;
  // Has anything ever been enabled? The length stays the same from then on.
  bool Used() const;
  void SetLength(ViUInt32 length);

  // A null context asks for none. Disabling the queue and closing the session end the wait.
  ViStatus Wait(ViUInt32 timeout_ms, ViPEvent context);

  ViStatus Install(ViHndlr handler, ViAddr user);
  // A call of the handler that has begun is not waited for. A null handler stands for all with this `user`.
  ViStatus Uninstall(ViHndlr handler, ViAddr user);

  // The thread of the transport; also while the session is being destroyed, and after it.
  void Raise() noexcept;
  void Close();

 private:
  struct Handler {
    ViHndlr function;
    ViAddr user;
    bool operator==(const Handler&) const = default;
  };
  using Handlers = std::vector<Handler>;

  bool Wanted() const { return queueing_ || calling_ != 0; }
  void CallHandlers(std::unique_lock<std::mutex>& lock) noexcept;
  ViEvent NewContext() const noexcept;

  const ViSession resource_manager_;
  const Source source_;
  ViSession session_ = VI_NULL;

  std::mutex switching_;  // before guard_; held while the source is asked

  mutable std::mutex guard_;  // of all that follows
  std::condition_variable changed_;
  bool used_ = false;
  bool closed_ = false;
  bool queueing_ = false;
  ViUInt16 calling_ = 0;  // VI_HNDLR, VI_SUSPEND_HNDLR or neither
  ViUInt32 length_ = 0;
  ViUInt32 waiting_ = 0;
  bool overflowed_ = false;
  ViUInt32 held_back_ = 0;
  bool in_handlers_ = false;
  std::shared_ptr<const Handlers> handlers_ = std::make_shared<Handlers>();
};

}  // namespace tvr::visa
