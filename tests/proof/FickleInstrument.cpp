#include "FickleInstrument.h"

#include <sys/socket.h>

#include <array>

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

}  // namespace

FickleInstrument::~FickleInstrument() {
  stop_.Ring();
  thread_.join();
}

void FickleInstrument::Run() {
  while (WaitReadable(listener_.descriptor(), &stop_, kForever)) {
    Descriptor connection = listener_.Accept();
    if (connection.open()) Serve(connection, manner_);
  }
}

void FickleInstrument::Serve(Descriptor& connection, Manner manner) {
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

bool FickleInstrument::React(Descriptor& connection, Manner manner, std::string_view line) {
  if (line == "*IDN?") {
    if (manner == Manner::ClosesWhenAsked) return false;
    return SendAll(connection, IdentityOf(manner)) && manner != Manner::ClosesWithinIdentity;
  }
  if (line == "*ESR?") return SendAll(connection, manner == Manner::HasAnError ? "32\n" : "0\n");
  if (line == ":UNIT:POW DBM") return manner != Manner::ClosesBehindIdentity;
  if (line == ":FREQ:MULT?" && manner != Manner::FallsSilent) return SendAll(connection, "2.5\n");
  return true;
}

}  // namespace kvtd::test
