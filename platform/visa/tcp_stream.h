// One TCP connection with deadlines: what every transport of this library stands on.
#pragma once

#include <netinet/in.h>
#include <sys/uio.h>
#include <visa.h>

#include <atomic>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "deadline.h"
#include "interruption.h"

namespace tvr::visa {

// Sends and receives wait inside the call itself, for one slice (SO_RCVTIMEO, SO_SNDTIMEO, set once and never changed).
// What takes longer than a slice goes on in poll, together with the interruption's descriptor. So an answer that comes
// soon costs one system call, a timeout needs no setting of options, and an interruption is noticed within a slice.
class TcpStream {
 public:
  explicit TcpStream(Interruption& interruption) : interruption_(interruption) {}
  ~TcpStream();
  TcpStream(const TcpStream&) = delete;
  TcpStream& operator=(const TcpStream&) = delete;

  // VI_ERROR_RSRC_NFOUND: no such name, refused, or no way there. VI_ERROR_TMO: not decided in time.
  ViStatus Connect(const std::string& host, ViUInt16 port, Deadline& deadline);

  // Goes on with a connection that somebody else made.
  void Adopt(int socket);

  // The same once more, in place of the connection there is, which stays when this fails. Keeps the options.
  ViStatus Reconnect(const std::string& host, ViUInt16 port, Deadline& deadline);

  // Sends all pieces, in one system call when the kernel takes them. Changes the pieces on the way.
  ViStatus Send(std::span<iovec> pieces, Deadline& deadline, std::size_t& sent);

  // Receives until at least `at_least` bytes (1 to `room`) are there. On failure `received` counts what did come.
  ViStatus Receive(ViByte* into, std::size_t room, std::size_t at_least, Deadline& deadline, std::size_t& received);

  // Throws away what has arrived. A peer that never stops sending ends it by the deadline.
  ViStatus DiscardArrived(Deadline& deadline);

  // From any thread: every call that waits now, and every later one, ends with VI_ERROR_CONN_LOST.
  void HangUp();

  bool NoDelay() const;
  bool KeepAlive() const;
  bool SetNoDelay(bool on);
  bool SetKeepAlive(bool on);
  // The peer's address in digits.
  std::string PeerAddress() const;
  // This side's address; nothing when the connection is no IPv4.
  std::optional<in_addr> OwnIpv4Address() const;
  // To wait for it together with others.
  int Descriptor() const { return socket_; }

 private:
  void PrepareConnection();
  ssize_t SendOnce(std::span<iovec> pieces, int flags);
  ssize_t SendGathered(std::span<iovec> pieces, int flags);
  ViStatus Wait(short events, Deadline& deadline);
  ViStatus AfterFailure(short events, Deadline& deadline);

  Interruption& interruption_;
  int socket_ = -1;
  std::atomic<bool> hung_up_{false};
};

}  // namespace tvr::visa
