// Data in both directions, and which of the device's answers count.
#include <algorithm>
#include <cstring>

#include "hislip.h"

namespace tvr::visa::hislip {
namespace {

// An answer that may be a late one is kept until its end proves it. More than this is not kept.
constexpr std::size_t kMostHeld = std::size_t{16} * 1024 * 1024;

// Bytes of `from` up to and including the termchar.
std::size_t Through(std::optional<ViByte> termchar, std::span<const ViByte> from, bool& found) {
  const void* const hit = termchar && !from.empty() ? std::memchr(from.data(), *termchar, from.size()) : nullptr;
  found = hit != nullptr;
  return found ? static_cast<std::size_t>(static_cast<const ViByte*>(hit) - from.data()) + 1 : from.size();
}

}  // namespace

ViStatus HislipTransport::Read(const ReadRequest& request, Deadline& deadline, std::size_t& received) {
  received = 0;
  Gathering gathering{request, received};
  const ViStatus status = Settle(Gather(gathering, deadline));
  if (gathering.unproven > 0) unproven_given_ = true;
  read_open_ = status != VI_SUCCESS;
  gave_up_ = status < 0;
  return status;
}

ViStatus HislipTransport::Gather(Gathering& gathering, Deadline& deadline) {
  const ReadRequest& request = gathering.request;
  for (;;) {
    if (!part_.under_way) {
      if (const ViStatus status = NextPart(gathering, deadline); status < 0) return status;
    }
    if (part_.fate == Fate::kHeld) {
      if (const ViStatus status = Hold(deadline); status < 0) return status;
      continue;
    }
    bool at_termchar = false;
    if (const ViStatus status = TakePart(gathering, deadline, at_termchar); status < 0) return status;
    if (held_.empty() && sync_.PayloadLeft() == 0) {
      part_.under_way = false;
      delivered_id_ = part_.id;
      if (part_.ends && EndPart(gathering) == VI_SUCCESS) return VI_SUCCESS;
    }
    if (at_termchar) return VI_SUCCESS_TERM_CHAR;
    if (gathering.received == request.room) return VI_SUCCESS_MAX_CNT;
    // What is enough for the caller is not enough while it may have to be taken back: the proof is on its way.
    if (gathering.received >= request.at_least && gathering.unproven == 0) return VI_SUCCESS_MAX_CNT;
  }
}

// Waits for data that counts.
ViStatus HislipTransport::NextPart(Gathering& gathering, Deadline& deadline) {
  for (;;) {
    Header header;
    if (const ViStatus status = sync_.Next(deadline, header); status < 0) return status;
    switch (header.type) {
      case Type::kData:
      case Type::kDataEnd:
        if (Admit(header)) {
          if (part_.fate == Fate::kProven) gathering.unproven = 0;
          return VI_SUCCESS;
        }
        if (const ViStatus status = Refuse(gathering); status < 0) return status;
        break;
      case Type::kInterrupted:
        if (overlap_) break;
        ++interruptions_;
        ForgetAnswer();
        gathering.received = gathering.finished;
        gathering.unproven = 0;
        break;
      case Type::kFatalError:
        return VI_ERROR_CONN_LOST;
      case Type::kError:
        return VI_ERROR_IO;
      case Type::kDeviceClearAcknowledge:
        break;  // of a device clear that was given up
      default:
        if (const ViStatus status = sync_.Refuse(header, deadline); status < 0) {
          unfinished_ = sync_.Debt() > 0;
          return status;
        }
    }
  }
}

bool HislipTransport::Admit(const Header& header) {
  const bool ends = header.type == Type::kDataEnd;
  Fate fate = Fate::kProven;
  if (!overlap_) {
    // The device has said on the other channel that it dropped its answer: what still comes is from before.
    if (static_cast<std::int32_t>(async_->Interruptions() - interruptions_) > 0) return false;
    if (spoilt_) {
      spoilt_ = !ends;
      return false;
    }
    if (!ends && header.parameter == kUntoldId) {
      fate = late_possible_ ? Fate::kHeld : Fate::kUnproven;
    } else if (header.parameter == LastId()) {
      late_possible_ = unproven_given_ = false;
    } else {
      return false;
    }
  }
  part_ = {true, ends, fate, header.parameter};
  return true;
}

// An answer to an earlier question: what was taken for a part of it goes too.
ViStatus HislipTransport::Refuse(Gathering& gathering) {
  held_.clear();
  held_taken_ = 0;
  gathering.received -= gathering.unproven;
  gathering.unproven = 0;
  if (!unproven_given_) return VI_SUCCESS;
  // Its beginning is in the caller's hands already.
  unproven_given_ = false;
  return VI_ERROR_OUTP_PROT_VIOL;
}

ViStatus HislipTransport::Hold(Deadline& deadline) {
  if (sync_.PayloadLeft() > kMostHeld - held_.size()) {
    ForgetAnswer();
    spoilt_ = true;
    return VI_ERROR_OUTP_PROT_VIOL;
  }
  while (sync_.PayloadLeft() > 0) {
    std::span<const ViByte> ahead;
    if (const ViStatus status = sync_.PeekPayload(deadline, ahead); status < 0) return status;
    held_.insert(held_.end(), ahead.begin(), ahead.end());
    sync_.TakePayload(ahead.size());
  }
  part_.under_way = false;
  return VI_SUCCESS;
}

bool HislipTransport::TakeHeld(Gathering& gathering) {
  const ReadRequest& request = gathering.request;
  const std::size_t count = std::min(request.room - gathering.received, held_.size() - held_taken_);
  bool found = false;
  const std::span<const ViByte> from(held_.data() + held_taken_, count);
  const std::size_t taken = Through(request.termchar, from, found);
  std::copy_n(from.data(), taken, request.into + gathering.received);
  gathering.received += taken;
  held_taken_ += taken;
  if (held_taken_ == held_.size()) {
    held_ = {};
    held_taken_ = 0;
  }
  return found;
}

// As much of the part under way as the caller wants. What was held of the same answer comes before it.
ViStatus HislipTransport::TakePart(Gathering& gathering, Deadline& deadline, bool& at_termchar) {
  const ReadRequest& request = gathering.request;
  if (!held_.empty()) {
    at_termchar = TakeHeld(gathering);
    if (at_termchar || !held_.empty()) return VI_SUCCESS;
  }
  const std::size_t begin = gathering.received;
  auto wanted = static_cast<std::size_t>(std::min<ViUInt64>(request.room - begin, sync_.PayloadLeft()));
  ViStatus status = VI_SUCCESS;
  if (!request.termchar) {
    std::size_t count = 0;
    if (wanted > 0) status = sync_.ReadPayload(request.into + begin, wanted, deadline, count);
    gathering.received += count;
  }
  while (request.termchar && wanted > 0 && !at_termchar) {
    std::span<const ViByte> ahead;
    status = sync_.PeekPayload(deadline, ahead);
    if (status < 0) break;
    const std::size_t count = Through(request.termchar, ahead.first(std::min(ahead.size(), wanted)), at_termchar);
    std::copy_n(ahead.data(), count, request.into + gathering.received);
    sync_.TakePayload(count);
    gathering.received += count;
    wanted -= count;
  }
  if (part_.fate == Fate::kUnproven) gathering.unproven += gathering.received - begin;
  return status;
}

// The last byte of an answer is with the caller. VI_SUCCESS when that ends the read.
ViStatus HislipTransport::EndPart(Gathering& gathering) {
  rmt_delivered_ = true;
  gathering.finished = gathering.received;
  return suppress_end_ ? VI_SUCCESS_MAX_CNT : VI_SUCCESS;
}

void HislipTransport::ForgetAnswer() {
  part_ = {};
  held_ = {};
  held_taken_ = 0;
  spoilt_ = unproven_given_ = false;
}

ViStatus HislipTransport::PrepareToSend(Deadline& deadline) {
  // In overlap mode no id tells a late answer from the next one: the device must forget it.
  if (unfinished_ || (overlap_ && gave_up_)) [[unlikely]] {
    if (const ViStatus status = ClearInto(overlap_, deadline); status < 0) return status;
  }
  if (overlap_) return VI_SUCCESS;
  if (interruptions_ != async_->Interruptions()) [[unlikely]] {
    // The device waits on neither channel, but what it says on one must not be met by what we say next on the other.
    if (const ViStatus status = async_->AwaitInterruptions(interruptions_, deadline); status < 0) return status;
  }
  if (part_.under_way || !held_.empty() || spoilt_ || unproven_given_) ForgetAnswer();
  late_possible_ = late_possible_ || read_open_;
  read_open_ = false;
  return VI_SUCCESS;
}

ViStatus HislipTransport::SendMessage(Type type, std::span<const iovec> payload, Deadline& deadline,
                                      std::size_t& sent) {
  const ViByte rmt = rmt_delivered_ ? kRmtDelivered : 0;
  const ViStatus status = sync_.Send({type, rmt, next_id_}, payload, deadline, sent);
  if (sync_.Debt() > 0) unfinished_ = true;
  if (status < 0) return status;
  async_->SetLastId(next_id_);
  next_id_ += kIdStep;
  rmt_delivered_ = false;
  return VI_SUCCESS;
}

ViStatus HislipTransport::Write(std::span<iovec> pieces, bool end, Deadline& deadline, std::size_t& sent) {
  sent = 0;
  if (const ViStatus status = PrepareToSend(deadline); status < 0) return Settle(status);
  std::size_t left = 0;
  for (const iovec& piece : pieces) left += piece.iov_len;
  if (left == 0 && !end) return VI_SUCCESS;
  do {
    // The next message's share of the pieces.
    std::size_t share = std::min(left, most_payload_);
    left -= share;
    pieces_.clear();
    while (share > 0) {
      iovec& piece = pieces.front();
      const std::size_t length = std::min(share, piece.iov_len);
      if (length > 0) pieces_.push_back({piece.iov_base, length});
      piece.iov_base = static_cast<ViByte*>(piece.iov_base) + length;
      piece.iov_len -= length;
      share -= length;
      if (piece.iov_len == 0) pieces = pieces.subspan(1);
    }
    std::size_t count = 0;
    const Type type = left == 0 && end ? Type::kDataEnd : Type::kData;
    const ViStatus status = SendMessage(type, pieces_, deadline, count);
    sent += count;
    if (status < 0) {
      // The device has the beginning of a message without its end.
      if (sent > 0) unfinished_ = true;
      return Settle(status);
    }
  } while (left > 0);
  return VI_SUCCESS;
}

ViStatus HislipTransport::Trigger(ViUInt16 /*protocol*/, Deadline& deadline) {
  if (const ViStatus status = PrepareToSend(deadline); status < 0) return Settle(status);
  std::size_t sent = 0;
  return Settle(SendMessage(Type::kTrigger, {}, deadline, sent));
}

void HislipTransport::Restart() {
  ForgetAnswer();
  next_id_ = kFirstId;
  async_->SetLastId(LastId());
  delivered_id_ = kFirstId - kIdStep;
  rmt_delivered_ = unfinished_ = read_open_ = gave_up_ = late_possible_ = false;
  interruptions_ = async_->Interruptions();
}

}  // namespace tvr::visa::hislip
