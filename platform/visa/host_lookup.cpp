#include "host_lookup.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace tvr::visa {
namespace {

int Ask(const std::string& host, ViUInt16 port, int flags, HostAddresses& found) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = flags | AI_NUMERICSERV;
  addrinfo* list = nullptr;
  const int error = ::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &list);
  if (error == 0) found.Take(list);
  return error;
}

// A question to the name service can take half a minute and cannot be withdrawn. So it is asked by a thread of its own,
// and both sides own what they share: a caller whose time is up just walks away. The library is never unloaded
// (CMakeLists.txt), so the thread does not lose its code.
struct Question {
  std::mutex guard;
  std::condition_variable answered;
  bool done = false;
  int error = 0;
  HostAddresses found;
};

}  // namespace

ViStatus LookUpHost(const std::string& host, ViUInt16 port, Deadline& deadline, HostAddresses& found) {
  if (Ask(host, port, AI_NUMERICHOST, found) == 0) return VI_SUCCESS;

  const auto question = std::make_shared<Question>();
  std::thread([question, host, port] {
    HostAddresses addresses;
    const int error = Ask(host, port, 0, addresses);
    const std::lock_guard lock(question->guard);
    question->error = error;
    question->found = std::move(addresses);
    question->done = true;
    question->answered.notify_one();
  }).detach();

  std::unique_lock lock(question->guard);
  const auto done = [&] { return question->done; };
  if (deadline.Infinite()) {
    question->answered.wait(lock, done);
  } else if (!question->answered.wait_for(lock, std::chrono::milliseconds(deadline.Remaining()), done)) {
    return VI_ERROR_TMO;
  }
  if (question->error != 0) return VI_ERROR_RSRC_NFOUND;
  found = std::move(question->found);
  return VI_SUCCESS;
}

}  // namespace tvr::visa
