// How another thread ends the call that a session is busy with, and leaves the session usable.
#pragma once

#include <atomic>

namespace tvr::visa {

// A call looks at the flag whenever a wait comes back empty, and waits longer than a slice on the descriptor as well.
// The good path pays one load at the start of a call.
class Interruption {
 public:
  Interruption();
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
  // Readable while a request stands; -1 when the system had none to give, and then slices alone must do.
  int Descriptor() const { return descriptor_; }

 private:
  void Forget();

  int descriptor_;
  std::atomic<bool> requested_{false};
};

}  // namespace tvr::visa
