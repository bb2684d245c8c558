// The asynchronous channel of a HiSLIP link: questions that overtake the data, and what the device says unasked.
#pragma once

#include <visa.h>

#include <array>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <thread>

#include "deadline.h"
#include "hislip_channel.h"
#include "interruption.h"

namespace tvr::visa::hislip {

// Whoever asks reads the answer himself. A thread of its own reads only when somebody wants service requests, and gives
// way as soon as a question is asked: so a sink may itself ask, for the status byte above all.
//
// Answers carry no number, but a device gives those of one type in the order of the questions. An answer whose question
// was given up is therefore known when it comes, and dropped.
class AsyncChannel : public std::enable_shared_from_this<AsyncChannel> {
 public:
  explicit AsyncChannel(Interruption& of_session) : of_session_(of_session) {}

  ViStatus Connect(const std::string& host, ViUInt16 port, Deadline& deadline);

  struct Question {
    Header header;
    std::span<const iovec> payload;
    Type answer;
    // Called now and then while the answer is awaited.
    const std::function<void()>* meanwhile = nullptr;
  };
  struct Answer {
    ViByte control = 0;
    ViUInt32 parameter = 0;
    ViUInt64 number = 0;  // the payload of an answer that has one
  };
  ViStatus Ask(const Question& question, Deadline& deadline, Answer& answer);

  // The id of the last message on the synchronous channel: a lock that nobody wants any more is released as of it.
  void SetLastId(ViUInt32 id) { last_id_.store(id, std::memory_order_relaxed); }

  // How often the device has said here that it was interrupted.
  ViUInt32 Interruptions() const { return interruptions_.load(std::memory_order_acquire); }
  ViStatus AwaitInterruptions(ViUInt32 count, Deadline& deadline);
  // After a device clear no answer from before it can come any more, but to a request of a lock: those are not cleared.
  void ForgetUnanswered();

  // An empty sink stops it; a call of the sink that has begun is not waited for.
  ViStatus DeliverServiceRequests(std::function<void()> sink);

  TcpStream& stream() { return channel_.stream(); }
  // The peer does not keep to the protocol: it is told, as far as it still listens.
  void TellMalformed();
  void HangUp() { channel_.stream().HangUp(); }
  // A message is open whose rest does not come.
  bool IsAmidMessage();
  // Before the owner lets go. Ends the thread; when it is the caller's, as soon as it comes back from the sink.
  void Close();

 private:
  class Turn;

  static constexpr std::size_t kBufferSize = 512;
  static constexpr std::size_t kTypes = 32;

  ViStatus Send(const Question& question, Deadline& deadline);
  void GiveUp(const Question& question);
  // The oldest answer of that type that nobody waits for is here. True when it was to a request of a lock.
  bool TakeUnanswered(Type answer);
  ViStatus Next(Deadline& deadline, const std::function<void()>* meanwhile, Header& header);
  ViStatus ReadNumber(Deadline& deadline, ViUInt64& number);
  // What is no answer to the present question.
  ViStatus Meet(const Header& header, Deadline& deadline);
  bool OwesServiceRequest() const { return service_requests_ > 0 && sink_; }
  void Listen();
  void SendMalformed();

  Interruption& of_session_;
  Interruption wake_;
  Channel channel_{wake_, kBufferSize};

  std::mutex guard_;  // of the channel and all that follows
  std::atomic<unsigned> callers_{0};
  std::condition_variable calm_;  // no caller is left, or there is something else to do
  std::array<unsigned, kTypes> unanswered_{};
  std::deque<bool> unanswered_locks_;  // the oldest first: was it a request, or a release?
  std::atomic<ViUInt32> interruptions_{0};
  std::atomic<ViUInt32> last_id_{kFirstId - kIdStep};
  std::function<void()> sink_;
  // Without a sink one is kept for the next: the device makes no other before it is asked for its status byte.
  unsigned service_requests_ = 0;
  std::atomic<bool> closing_{false};
  std::atomic<bool> listening_{false};
  std::thread thread_;
};

}  // namespace tvr::visa::hislip
