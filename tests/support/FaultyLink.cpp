#include "FaultyLink.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <system_error>

namespace kvtd::test {

namespace {

constexpr std::array kDirections{Direction::ToInstrument, Direction::ToClient};

}  // namespace

FaultyLink::FaultyLink(std::uint16_t instrument_port)
    : instrument_port_(instrument_port), port_(listener_.port()), thread_([this] { Run(); }) {}

FaultyLink::~FaultyLink() {
  stop_.Ring();
  thread_.join();
}

void FaultyLink::Break(const Fault& fault) {
  const std::lock_guard lock(mutex_);
  fault_ = fault;
}

void FaultyLink::Heal() {
  const std::lock_guard lock(mutex_);
  fault_.reset();
}

std::optional<Fault> FaultyLink::FaultOf(Direction direction) const {
  const std::lock_guard lock(mutex_);
  return fault_ && fault_->direction == direction ? fault_ : std::nullopt;
}

void FaultyLink::Passed(Direction direction, std::size_t count) {
  const std::lock_guard lock(mutex_);
  if (fault_ && fault_->direction == direction) fault_->after -= std::min(fault_->after, count);
}

void FaultyLink::Run() {
  while (WaitReadable(listener_.descriptor(), &stop_, std::chrono::hours(1))) {
    client_ = listener_.Accept();
    if (!client_.open()) continue;
    try {
      instrument_ = ConnectTo(instrument_port_);
      streams_ = {};
      Serve();
    } catch (const std::system_error&) {
      // No instrument there: to the client a connection that ends at once.
    }
    client_.Close();
    instrument_.Close();
  }
}

void FaultyLink::Serve() {
  for (;;) {
    Clock::time_point next = Clock::now() + kPatience;
    for (const Direction direction : kDirections) {
      if (!Forward(direction)) return;
      const Stream& stream = StreamOf(direction);
      if (!stream.waiting.empty()) next = std::min(next, stream.due);
    }
    if (StreamOf(Direction::ToClient).ended && StreamOf(Direction::ToInstrument).ended) return;

    std::array<pollfd, 3> waits{{{stop_.descriptor(), POLLIN, 0}, {-1, POLLIN, 0}, {-1, POLLIN, 0}}};
    for (const Direction direction : kDirections) {
      // A source is read again when its last bytes have gone, so that a trickle keeps its pace.
      const Stream& stream = StreamOf(direction);
      if (!stream.source_ended && stream.waiting.empty()) {
        waits[direction == Direction::ToClient ? 2 : 1].fd = Source(direction).get();
      }
    }
    const auto left = std::chrono::ceil<Milliseconds>(next - Clock::now()).count();
    if (::poll(waits.data(), waits.size(), left > 0 ? static_cast<int>(left) : 0) < 0) continue;
    if (waits[0].revents != 0) return;
    if (waits[1].revents != 0) Receive(Direction::ToInstrument);
    if (waits[2].revents != 0) Receive(Direction::ToClient);
  }
}

void FaultyLink::Receive(Direction direction) {
  Stream& stream = StreamOf(direction);
  const std::string bytes = ReceiveSome(Source(direction)).value_or(std::string());
  if (bytes.empty()) {
    stream.source_ended = true;
    return;
  }
  stream.waiting += bytes;
  const std::optional<Fault> fault = FaultOf(direction);
  const bool late = fault && fault->kind == Fault::Kind::Delay;
  stream.due = Clock::now() + (late ? fault->pace : Milliseconds(0));
}

bool FaultyLink::Forward(Direction direction) {
  Stream& stream = StreamOf(direction);
  while (!stream.waiting.empty() && Clock::now() >= stream.due) {
    const std::optional<Fault> fault = FaultOf(direction);
    std::size_t count = stream.waiting.size();
    if (fault && fault->kind != Fault::Kind::Delay) {
      if (fault->after > 0) {
        count = std::min(count, fault->after);
      } else {
        switch (fault->kind) {
          case Fault::Kind::Trickle:
            count = 1;
            stream.due = Clock::now() + fault->pace;
            break;
          case Fault::Kind::Swallow:
            stream.waiting.clear();
            continue;
          case Fault::Kind::HalfClose:
            stream.waiting.clear();
            HalfClose(Sink(direction));
            stream.source_ended = stream.ended = true;
            return true;
          case Fault::Kind::Reset:
            CloseByReset(client_);
            return false;
          case Fault::Kind::Close:
          case Fault::Kind::Delay:
            return false;
        }
      }
    }
    if (!SendAll(Sink(direction), std::string_view(stream.waiting).substr(0, count), &stop_)) return false;
    stream.waiting.erase(0, count);
    Passed(direction, count);
  }
  if (stream.source_ended && stream.waiting.empty() && !stream.ended) {
    HalfClose(Sink(direction));
    stream.ended = true;
  }
  return true;
}

}  // namespace kvtd::test
