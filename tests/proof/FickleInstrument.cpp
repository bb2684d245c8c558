#include "FickleInstrument.h"

#include <sys/socket.h>

#include <array>
#include <string_view>
#include <thread>

#include "Peer.h"
#include "Sockets.h"

namespace kvtd::test {
namespace {

constexpr std::chrono::hours kForever{1};

std::string_view IdentityOf(Manner manner) {
  switch (manner) {
    case Manner::ClosesWithinIdentity:
      return "Kelvora,TD48";
    case Manner::IsAnother:
      return "Kelvora,TD90000,SN4711,1.2.3\n";
    case Manner::TalksGarbage:
      return "\xff\x01#9\r,,\n";
    case Manner::IsSilent:
      return "";
    default:
      return "Kelvora,TD48142C,SN4711,1.2.3\n";
  }
}

std::string_view AnswerTo(std::string_view line, Manner manner) {
  if (line == "*IDN?") return IdentityOf(manner);
  if (line == "*ESR?") return manner == Manner::HasAnError ? "32\n" : "0\n";
  if (line == ":FREQ:MULT?" && manner != Manner::FallsSilent) return "2.5\n";
  return "";
}

class FickleSocket final : public FickleInstrument {
 public:
  FickleSocket() : thread_([this] { Run(); }) {}
  ~FickleSocket() override {
    stop_.Ring();
    thread_.join();
  }

  std::string ResourceName() const override { return ResourceOn(LinkKind::Socket, listener_.port()); }

 private:
  void Run() {
    while (WaitReadable(listener_.descriptor(), &stop_, kForever)) {
      Descriptor connection = listener_.Accept();
      if (connection.open()) Serve(connection, manner_);
    }
  }

  void Serve(Descriptor& connection, Manner manner) {
    if (manner == Manner::ClosesAtOnce) return;
    if (manner == Manner::ResetsAtOnce) return CloseByReset(connection);
    std::array<char, 4096> buffer;
    std::string unfinished;
    while (WaitReadable(connection.get(), &stop_, kForever)) {
      const ssize_t got = ::recv(connection.get(), buffer.data(), buffer.size(), 0);
      if (got <= 0) return;
      unfinished.append(buffer.data(), static_cast<std::size_t>(got));
      std::size_t end = 0;
      while ((end = unfinished.find('\n')) != std::string::npos) {
        if (!React(connection, manner, std::string_view(unfinished).substr(0, end))) return;
        unfinished.erase(0, end + 1);
      }
    }
  }

  // False when it has closed the connection.
  static bool React(Descriptor& connection, Manner manner, std::string_view line) {
    if (line == "*IDN?" && manner == Manner::ClosesWhenAsked) return false;
    if (line == ":UNIT:POW DBM" && manner == Manner::ClosesBehindIdentity) return false;
    if (!SendAll(connection, AnswerTo(line, manner))) return false;
    return line != "*IDN?" || manner != Manner::ClosesWithinIdentity;
  }

  Listener listener_;
  Alarm stop_;
  std::thread thread_;
};

// The link itself is sound.
class FicklePeer final : public FickleInstrument {
 public:
  explicit FicklePeer(LinkKind link)
      : link_(link),
        peer_(link, bench::Answers([this](std::string_view line) { return std::string(AnswerTo(line, manner_)); })) {}

  std::string ResourceName() const override { return ResourceOn(link_, peer_.port()); }

 private:
  const LinkKind link_;
  Peer peer_;
};

}  // namespace

std::unique_ptr<FickleInstrument> MakeFickleInstrument(LinkKind link) {
  if (link == LinkKind::Socket) return std::make_unique<FickleSocket>();
  return std::make_unique<FicklePeer>(link);
}

}  // namespace kvtd::test
