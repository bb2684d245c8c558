#include "event_queue.h"

#include <chrono>
#include <new>
#include <utility>

#include "managed_object.h"
#include "text_out.h"

namespace tvr::visa {
namespace {

class EventContext final : public ManagedObject {
 public:
  ViStatus GetAttribute(ViAttr attribute, void* value) override {
    if (attribute != VI_ATTR_EVENT_TYPE) return VI_ERROR_NSUP_ATTR;
    return PutNumber<ViEventType>(value, VI_EVENT_SERVICE_REQ);
  }
  ViStatus SetAttribute(ViAttr attribute, ViAttrState /*value*/) override {
    return attribute == VI_ATTR_EVENT_TYPE ? VI_ERROR_ATTR_READONLY : VI_ERROR_NSUP_ATTR;
  }
};

}  // namespace

ViStatus EventQueue::Enable(ViUInt16 mechanism) {
  std::unique_lock one_at_a_time(switching_);
  std::unique_lock lock(guard_);
  const auto callback = static_cast<ViUInt16>(mechanism & kCallback);
  if (callback == VI_HNDLR && handlers_->empty()) return VI_ERROR_HNDLR_NINSTALLED;
  const bool was_queueing = queueing_;
  const ViUInt16 was_calling = calling_;
  const bool was_wanted = Wanted();
  if ((mechanism & VI_QUEUE) != 0) queueing_ = true;
  if (callback != 0) calling_ = callback;
  if (!was_wanted) {
    // Open already, so that nothing is lost that comes at once.
    lock.unlock();
    const ViStatus status = source_(true);
    lock.lock();
    if (status < 0) {
      queueing_ = was_queueing;
      calling_ = was_calling;
      return status;
    }
  }
  used_ = true;
  one_at_a_time.unlock();
  CallHandlers(lock);
  const bool nothing_new = ((mechanism & VI_QUEUE) != 0 && was_queueing) || (callback != 0 && callback == was_calling);
  return nothing_new ? VI_SUCCESS_EVENT_EN : VI_SUCCESS;
}

ViStatus EventQueue::Disable(ViUInt16 mechanism) {
  const std::lock_guard one_at_a_time(switching_);
  std::unique_lock lock(guard_);
  const bool of_queue = (mechanism & VI_QUEUE) != 0;
  const bool of_callback = (mechanism & kCallback) != 0;
  // "All" means all that there are.
  const bool nothing_to_do =
      mechanism == VI_ALL_MECH ? !Wanted() : (of_queue && !queueing_) || (of_callback && calling_ == 0);
  const bool was_wanted = Wanted();
  if (of_queue) queueing_ = false;
  if (of_callback) calling_ = 0;
  changed_.notify_all();
  const bool last = was_wanted && !Wanted();
  lock.unlock();
  // What still comes is dropped, so it is disabled even if the resource could not be told.
  if (last) source_(false);
  return nothing_to_do ? VI_SUCCESS_EVENT_DIS : VI_SUCCESS;
}

ViStatus EventQueue::Discard(ViUInt16 mechanism) {
  const std::lock_guard lock(guard_);
  bool empty = true;
  if ((mechanism & VI_QUEUE) != 0) {
    empty = std::exchange(waiting_, 0) == 0;
    overflowed_ = false;
  }
  if ((mechanism & VI_SUSPEND_HNDLR) != 0) empty = std::exchange(held_back_, 0) == 0 && empty;
  return empty ? VI_SUCCESS_QUEUE_EMPTY : VI_SUCCESS;
}

bool EventQueue::Enabled() const {
  const std::lock_guard lock(guard_);
  return Wanted();
}

bool EventQueue::Used() const {
  const std::lock_guard lock(guard_);
  return used_;
}

void EventQueue::SetLength(ViUInt32 length) {
  const std::lock_guard lock(guard_);
  length_ = length;
}

ViStatus EventQueue::Wait(ViUInt32 timeout_ms, ViPEvent context) {
  std::unique_lock lock(guard_);
  const auto ready = [this] { return closed_ || waiting_ > 0 || !queueing_; };
  if (timeout_ms == VI_TMO_INFINITE) {
    changed_.wait(lock, ready);
  } else if (!ready() && !changed_.wait_for(lock, std::chrono::milliseconds(timeout_ms), ready)) {
    return VI_ERROR_TMO;
  }
  if (closed_) return VI_ERROR_INV_OBJECT;
  if (waiting_ == 0) return VI_ERROR_NENABLED;
  if (context != nullptr) {
    *context = NewContext();
    if (*context == VI_NULL) return VI_ERROR_ALLOC;  // and the event waits on
  }
  --waiting_;
  if (std::exchange(overflowed_, false)) return VI_WARN_QUEUE_OVERFLOW;
  return waiting_ > 0 ? VI_SUCCESS_QUEUE_NEMPTY : VI_SUCCESS;
}

ViStatus EventQueue::Install(ViHndlr handler, ViAddr user) {
  const std::lock_guard lock(guard_);
  auto handlers = std::make_shared<Handlers>(*handlers_);
  handlers->push_back({handler, user});
  handlers_ = std::move(handlers);
  return VI_SUCCESS;
}

ViStatus EventQueue::Uninstall(ViHndlr handler, ViAddr user) {
  const std::lock_guard lock(guard_);
  if (handlers_->empty()) return VI_ERROR_HNDLR_NINSTALLED;
  auto handlers = std::make_shared<Handlers>(*handlers_);
  const auto gone = std::erase_if(*handlers, [&](const Handler& installed) {
    return installed.user == user && (handler == nullptr || installed.function == handler);
  });
  if (gone == 0) return VI_ERROR_INV_HNDLR_REF;
  handlers_ = std::move(handlers);
  return VI_SUCCESS;
}

void EventQueue::Raise() noexcept {
  std::unique_lock lock(guard_);
  if (queueing_) {
    if (waiting_ < length_) {
      ++waiting_;
      changed_.notify_one();
    } else {
      overflowed_ = true;
    }
  }
  if (calling_ == 0) return;
  if (held_back_ < length_) ++held_back_;
  CallHandlers(lock);
}

void EventQueue::CallHandlers(std::unique_lock<std::mutex>& lock) noexcept {
  if (in_handlers_) return;  // that thread goes on with what has come meanwhile
  in_handlers_ = true;
  while (calling_ == VI_HNDLR && held_back_ > 0 && !closed_) {
    --held_back_;
    const auto handlers = handlers_;
    lock.unlock();
    // Without room for a context the handlers are called all the same.
    const ViEvent context = NewContext();
    for (auto each = handlers->rbegin(); each != handlers->rend(); ++each) {
      if (each->function(session_, VI_EVENT_SERVICE_REQ, context, each->user) == VI_SUCCESS_NCHAIN) break;
    }
    handles::Close(context);
    lock.lock();
  }
  in_handlers_ = false;
}

ViEvent EventQueue::NewContext() const noexcept {
  try {
    return ManagedObject::GiveOut(resource_manager_, std::make_unique<EventContext>());
  } catch (const std::bad_alloc&) {
    return VI_NULL;
  }
}

void EventQueue::Close() {
  const std::lock_guard lock(guard_);
  closed_ = true;
  changed_.notify_all();
}

}  // namespace tvr::visa
