#include "hislip_async.h"

#include <algorithm>

#include "big_endian.h"

namespace tvr::visa::hislip {
namespace {

// An interruption of the session has to be noticed here too, though its descriptor is not waited for.
constexpr ViUInt32 kSlice = 20;

constexpr ViByte kLockRelease = 0, kLockRequest = 1;  // control code of AsyncLock
constexpr ViByte kLockGranted = 1;                    // and of AsyncLockResponse, where it means a release as well

std::size_t IndexOf(Type type) { return static_cast<std::size_t>(type); }

}  // namespace

// A caller's time with the channel: the thread is made to let go of it.
class AsyncChannel::Turn {
 public:
  explicit Turn(AsyncChannel& channel) : channel_(channel) {
    ++channel_.callers_;
    if (channel_.listening_) channel_.wake_.Request();
    lock_ = std::unique_lock(channel_.guard_);
    channel_.wake_.BeginCall();
  }
  ~Turn() {
    --channel_.callers_;
    lock_.unlock();
    channel_.calm_.notify_all();
  }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;

 private:
  AsyncChannel& channel_;
  std::unique_lock<std::mutex> lock_;
};

ViStatus AsyncChannel::Connect(const std::string& host, ViUInt16 port, Deadline& deadline) {
  return channel_.stream().Connect(host, port, deadline);
}

ViStatus AsyncChannel::Ask(const Question& question, Deadline& deadline, Answer& answer) {
  const Turn turn(*this);
  if (const ViStatus status = Send(question, deadline); status < 0) return status;
  const unsigned& unanswered = unanswered_[IndexOf(question.answer)];
  for (;;) {
    Header header;
    if (const ViStatus status = Next(deadline, question.meanwhile, header); status < 0) {
      GiveUp(question);
      return status;
    }
    if (unanswered == 0 && header.type == question.answer) {
      // Who asks for the status byte himself has taken notice.
      if (question.answer == Type::kAsyncStatusResponse && !sink_) service_requests_ = 0;
      answer.control = header.control;
      answer.parameter = header.parameter;
      return ReadNumber(deadline, answer.number);
    }
    if (header.type == Type::kError) {
      // In the place of an answer; the oldest question is the one that was refused.
      if (unanswered == 0) return VI_ERROR_IO;
      TakeUnanswered(question.answer);
      continue;
    }
    ViStatus status = Meet(header, deadline);
    if (status >= 0 && deadline.Expired()) status = VI_ERROR_TMO;
    if (status < 0) {
      GiveUp(question);
      return status;
    }
  }
}

void AsyncChannel::GiveUp(const Question& question) {
  ++unanswered_[IndexOf(question.answer)];
  if (question.answer == Type::kAsyncLockResponse) {
    unanswered_locks_.push_back(question.header.control == kLockRequest);
  }
}

bool AsyncChannel::TakeUnanswered(Type answer) {
  --unanswered_[IndexOf(answer)];
  if (answer != Type::kAsyncLockResponse) return false;
  const bool requested = unanswered_locks_.front();
  unanswered_locks_.pop_front();
  return requested;
}

ViStatus AsyncChannel::Send(const Question& question, Deadline& deadline) {
  std::size_t sent = 0;
  const ViStatus status = channel_.Send(question.header, question.payload, deadline, sent);
  // Messages here are so small that a peer which takes only a part of one has stopped reading long ago.
  return channel_.Debt() > 0 ? VI_ERROR_CONN_LOST : status;
}

ViStatus AsyncChannel::Next(Deadline& deadline, const std::function<void()>* meanwhile, Header& header) {
  for (;;) {
    const int remaining = deadline.Remaining();
    Deadline slice(remaining < 0 ? kSlice : std::min(static_cast<ViUInt32>(remaining), kSlice));
    const ViStatus status = channel_.Next(slice, header);
    if (status != VI_ERROR_TMO && status != VI_ERROR_ABORT) return status;
    // Another caller may have meant the thread.
    if (status == VI_ERROR_ABORT) wake_.BeginCall();
    if (of_session_.Requested()) return VI_ERROR_ABORT;
    if (deadline.Expired()) return VI_ERROR_TMO;
    if (meanwhile != nullptr) (*meanwhile)();
  }
}

ViStatus AsyncChannel::ReadNumber(Deadline& deadline, ViUInt64& number) {
  number = 0;
  std::array<ViByte, 8> bytes{};
  if (channel_.PayloadLeft() != bytes.size()) return VI_SUCCESS;
  std::size_t received = 0;
  if (const ViStatus status = channel_.ReadPayload(bytes.data(), bytes.size(), deadline, received); status < 0) {
    return status;
  }
  number = BigEndian64(bytes.data());
  return VI_SUCCESS;
}

ViStatus AsyncChannel::Meet(const Header& header, Deadline& deadline) {
  switch (header.type) {
    case Type::kAsyncServiceRequest:
      service_requests_ = sink_ ? service_requests_ + 1 : 1;
      return VI_SUCCESS;
    case Type::kAsyncInterrupted:
      interruptions_.fetch_add(1, std::memory_order_release);
      return VI_SUCCESS;
    case Type::kFatalError:
      return VI_ERROR_CONN_LOST;
    case Type::kError:
      return VI_SUCCESS;
    default:
      break;
  }
  if (IndexOf(header.type) >= kTypes) return channel_.Refuse(header, deadline);
  if (unanswered_[IndexOf(header.type)] == 0) return VI_SUCCESS;
  if (!TakeUnanswered(header.type) || header.control != kLockGranted) return VI_SUCCESS;
  // Nobody waits for this lock any more, and nobody would ever release it.
  const Header release{Type::kAsyncLock, kLockRelease, last_id_.load(std::memory_order_relaxed)};
  const Question question{.header = release, .payload = {}, .answer = Type::kAsyncLockResponse};
  GiveUp(question);
  return Send(question, deadline);
}

ViStatus AsyncChannel::AwaitInterruptions(ViUInt32 count, Deadline& deadline) {
  const Turn turn(*this);
  while (static_cast<std::int32_t>(count - Interruptions()) > 0) {
    Header header;
    if (const ViStatus status = Next(deadline, nullptr, header); status < 0) return status;
    if (const ViStatus status = Meet(header, deadline); status < 0) return status;
    if (deadline.Expired()) return VI_ERROR_TMO;
  }
  return VI_SUCCESS;
}

bool AsyncChannel::IsAmidMessage() {
  const Turn turn(*this);
  return channel_.PayloadLeft() > 0;
}

void AsyncChannel::ForgetUnanswered() {
  const Turn turn(*this);
  const unsigned locks = unanswered_[IndexOf(Type::kAsyncLockResponse)];
  unanswered_.fill(0);
  unanswered_[IndexOf(Type::kAsyncLockResponse)] = locks;
}

ViStatus AsyncChannel::DeliverServiceRequests(std::function<void()> sink) {
  const Turn turn(*this);
  sink_ = std::move(sink);
  if (!sink_) service_requests_ = 0;
  if (sink_ && !thread_.joinable()) {
    try {
      thread_ = std::thread([self = shared_from_this()] { self->Listen(); });
    } catch (const std::system_error&) {
      sink_ = nullptr;
      return VI_ERROR_ALLOC;
    }
    listening_ = true;
  }
  return VI_SUCCESS;
}

void AsyncChannel::Listen() {
  std::unique_lock lock(guard_);
  while (!closing_) {
    if (OwesServiceRequest()) {
      --service_requests_;
      const auto sink = sink_;
      lock.unlock();
      sink();
      lock.lock();
      continue;
    }
    calm_.wait(lock, [this] { return callers_ == 0 || closing_ || OwesServiceRequest(); });
    wake_.BeginCall();
    // A caller that came before the line above woke nobody.
    if (callers_ > 0 || closing_ || OwesServiceRequest()) continue;
    Deadline none(VI_TMO_INFINITE);
    Header header;
    ViStatus status = channel_.Next(none, header);
    if (status == VI_ERROR_ABORT) continue;
    Deadline soon(kSlice);
    if (status >= 0) status = Meet(header, soon);
    if (status < 0 && status != VI_ERROR_ABORT) {
      // The link is gone; the next call on it will find out.
      if (status == kMalformed) SendMalformed();
      HangUp();
      return;
    }
  }
}

void AsyncChannel::TellMalformed() {
  const Turn turn(*this);
  SendMalformed();
}

void AsyncChannel::SendMalformed() {
  Deadline at_once(VI_TMO_IMMEDIATE);
  if (channel_.Debt() == 0) channel_.Send({Type::kFatalError, kPoorlyFormedHeader}, at_once);
}

void AsyncChannel::Close() {
  closing_ = true;
  HangUp();
  if (!thread_.joinable()) return;
  wake_.Request();
  {
    const std::lock_guard lock(guard_);
    service_requests_ = 0;
  }
  calm_.notify_all();
  if (thread_.get_id() == std::this_thread::get_id()) {
    thread_.detach();
  } else {
    thread_.join();
  }
}

}  // namespace tvr::visa::hislip
