// How another thread ends the call that a session is busy with, and leaves the session usable.
#pragma once

#include <atomic>
#include <mutex>

namespace tvr::visa {

// A call looks at the flag whenever a wait comes back empty, and waits longer than a slice on the descriptor as well.
// The good path pays one load at the start of a call.
class Interruption {
 public:
  Interruption() = default;
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  // From any thread: ends the call in progress. Without one it is forgotten when the next call begins.
  void Request();
  // At the beginning of a call, by the thread that makes it.
  void BeginCall() {
    if (requested_.load(std::memory_order_relaxed)) [[unlikely]]
      Forget();
  }
  bool Requested() const { return requested_.load(std::memory_order_acquire); }
  // Readable while a request stands; made when a call first waits long. -1 when the system had none to give, and then
  // slices alone must do.
  int Descriptor();

 private:
  void Forget();

  std::mutex guard_;
  int descriptor_ = -1;
  std::atomic<bool> requested_{false};
};

}  // namespace tvr::visa
