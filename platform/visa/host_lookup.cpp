#include "host_lookup.h"

#include <ctime>
#include <list>
#include <mutex>

namespace tvr::visa {
namespace {

// A question to the name service cannot be withdrawn once it is being asked. So it owns its memory, and a caller whose
// time is up leaves it in a list that later lookups clear of what has been answered since.
struct Question {
  std::string host;
  std::string port;
  addrinfo hints{};
  gaicb control{};

  Question(std::string host_name, ViUInt16 port_number)
      : host(std::move(host_name)), port(std::to_string(port_number)) {
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_NUMERICSERV;
    control.ar_name = host.c_str();
    control.ar_service = port.c_str();
    control.ar_request = &hints;
  }
  Question(const Question&) = delete;
  Question& operator=(const Question&) = delete;
  ~Question() {
    if (control.ar_result != nullptr) ::freeaddrinfo(control.ar_result);
  }
  bool Open() { return ::gai_error(&control) == EAI_INPROGRESS; }
};

using Questions = std::list<std::unique_ptr<Question>>;

void LeaveBehind(std::unique_ptr<Question> question) {
  static std::mutex guard;
  // Never destroyed: the name service may still write into its members when the process ends.
  static auto* const unanswered = new Questions;
  const std::lock_guard lock(guard);
  unanswered->remove_if([](const std::unique_ptr<Question>& left) { return !left->Open(); });
  unanswered->push_back(std::move(question));
}

bool InDigits(const std::string& host, ViUInt16 port, HostAddresses& found) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
  addrinfo* list = nullptr;
  if (::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &list) != 0) return false;
  found.Take(list);
  return true;
}

}  // namespace

ViStatus LookUpHost(const std::string& host, ViUInt16 port, Deadline& deadline, HostAddresses& found) {
  if (InDigits(host, port, found)) return VI_SUCCESS;

  auto question = std::make_unique<Question>(host, port);
  gaicb* asked[] = {&question->control};
  if (::getaddrinfo_a(GAI_NOWAIT, asked, 1, nullptr) != 0) return VI_ERROR_ALLOC;
  const gaicb* awaited[] = {&question->control};
  while (question->Open()) {
    const int remaining = deadline.Remaining();
    const timespec limit{remaining / 1000, (remaining % 1000) * 1000000L};
    const int answer = ::gai_suspend(awaited, 1, remaining < 0 ? nullptr : &limit);
    if (answer == EAI_AGAIN && question->Open()) {
      if (::gai_cancel(&question->control) != EAI_CANCELED) LeaveBehind(std::move(question));
      return VI_ERROR_TMO;
    }
  }
  if (::gai_error(&question->control) != 0) return VI_ERROR_RSRC_NFOUND;
  found.Take(question->control.ar_result);
  question->control.ar_result = nullptr;
  return VI_SUCCESS;
}

}  // namespace tvr::visa
