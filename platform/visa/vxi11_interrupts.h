// The interrupt channel: the device calls, and this side is the server.
#pragma once

#include <netinet/in.h>
#include <visa.h>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include "interruption.h"
#include "vxi11_record.h"

namespace tvr::visa::vxi11 {

// A thread of its own takes the device's calls, and calls the sink for those that bear the handle, which nobody can
// guess. It lets go of every caller that comes from elsewhere or does not speak the protocol.
class InterruptServer : public std::enable_shared_from_this<InterruptServer> {
 public:
  // The device's address, in digits.
  explicit InterruptServer(std::string device);
  ~InterruptServer();

  // Listens at that address of this machine, on a port that the system picks.
  ViStatus Start(in_addr own_address);
  ViUInt16 port() const { return port_; }
  std::span<const ViByte> handle() const { return handle_; }

  // An empty sink stops it; a call of the sink that has begun is not waited for.
  void SetSink(std::function<void()> sink);
  // Before the owner lets go. Ends the thread; when it is the caller's, as soon as it comes back from the sink.
  void Close();

 private:
  void Run();
  void Admit();
  // False: the caller is to be let go.
  bool Serve(RecordStream& caller);
  bool Answer(RecordStream& caller, const rpc_msg& call, int accept_status);
  void CallSink();

  const std::string device_;
  const std::array<ViByte, 16> handle_;
  ViUInt16 port_ = 0;
  int listener_ = -1;
  Interruption wake_;
  std::atomic<bool> closing_{false};
  std::vector<std::unique_ptr<RecordStream>> callers_;  // the thread's
  std::mutex guard_;                                    // of the sink
  std::function<void()> sink_;
  std::thread thread_;
};

}  // namespace tvr::visa::vxi11
