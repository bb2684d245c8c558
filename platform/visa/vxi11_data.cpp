// Data in both directions.
#include <algorithm>

#include "vxi11.h"

namespace tvr::visa::vxi11 {
namespace {

// Asked for at once. Devices keep room for what they are asked for, and a lost connection costs no more than this.
constexpr std::size_t kMostRequested = std::size_t{1024} * 1024;

}  // namespace

void Vxi11Transport::ExpectRead(std::size_t room, std::optional<ViByte> termchar) {
  const std::lock_guard busy(busy_);
  expected_read_ = {room, termchar};
}

void Vxi11Transport::ExpectNoRead() {
  const std::lock_guard busy(busy_);
  expected_read_.reset();
  GiveUpReadAhead();
}

ViStatus Vxi11Transport::Read(const ReadRequest& request, Deadline& deadline, std::size_t& received) {
  const std::lock_guard busy(busy_);
  expected_read_.reset();
  received = 0;
  for (;;) {
    // A device that always has more to give must not keep a call for ever, however often the call comes back here.
    if (deadline.ExpiredAtNextWait()) return VI_ERROR_TMO;
    const std::size_t before = received;
    int reason = 0;
    if (const ViStatus status = ReadPart(request, deadline, received, reason); status < 0) return status;
    if ((reason & kReasonEnd) != 0 && !suppress_end_) return VI_SUCCESS;
    // By the data, whatever the reason says: not every device tells that the byte at the count is the termchar too.
    if (request.termchar && received > 0 && request.into[received - 1] == *request.termchar) {
      return VI_SUCCESS_TERM_CHAR;
    }
    if (received >= request.at_least) return VI_SUCCESS_MAX_CNT;
    // The device has done what it was asked to. A count that was filled is that of a part of the room, and the next
    // part follows; with less than that the device has no more to give. Nothing at all is no answer.
    const bool filled = received - before == std::min(request.room - before, kMostRequested);
    const bool counted = (reason & kReasonCount) != 0 && !filled;
    const bool matched = (reason & kReasonTermchar) != 0 && request.termchar;
    if (received > 0 && (counted || matched)) return VI_SUCCESS_MAX_CNT;
  }
}

Device_ReadParms Vxi11Transport::ReadParms(std::size_t room, ViUInt32 time, std::optional<ViByte> termchar) const {
  return {lid_,
          static_cast<u_int>(std::min(room, kMostRequested)),
          time,
          0,
          termchar ? kTermcharSet : 0,
          static_cast<char>(termchar.value_or(0))};
}

ViStatus Vxi11Transport::ReceiveReadAhead(Device_ReadResp& answer, Deadline& patience) {
  const ViStatus status = core_.Receive(*read_ahead_, xdr_Device_ReadResp, answer, patience);
  if (status != VI_ERROR_TMO && status != VI_ERROR_ABORT) read_ahead_.reset();
  return Settle(status);
}

ViStatus Vxi11Transport::ReadPart(const ReadRequest& request, Deadline& deadline, std::size_t& received, int& reason) {
  const std::size_t room = std::min(request.room - received, kMostRequested);
  const ViUInt32 time = TimeLeft(deadline);
  Deadline patience = Patience(time);
  Device_ReadParms arguments = ReadParms(room, time, request.termchar);
  Device_ReadResp answer{};
  ViStatus status = read_ahead_
                        ? ReceiveReadAhead(answer, patience)
                        : Ask(DEVICE_READ, xdr_Device_ReadParms, arguments, xdr_Device_ReadResp, answer, patience);
  if (status < 0) return status;
  std::size_t count = 0;
  status = core_.ReadData(request.into + received, std::min<std::size_t>(answer.data_length, room), patience, count);
  received += count;
  if (status < 0) return Settle(status);
  reason = answer.reason;
  if (answer.error != 0) return StatusOf(answer.error);
  return answer.data_length > room ? VI_ERROR_OUTP_PROT_VIOL : VI_SUCCESS;
}

ViStatus Vxi11Transport::Write(std::span<iovec> pieces, bool end, Deadline& deadline, std::size_t& sent) {
  const std::lock_guard busy(busy_);
  sent = 0;
  std::size_t left = 0;
  for (const iovec& piece : pieces) left += piece.iov_len;
  while (left > 0) {
    // As much as the device takes at once, and END with the last of it.
    const std::size_t length = std::min(left, most_data_);
    pieces_.clear();
    for (std::size_t i = 0, gathered = 0; gathered < length; ++i) {
      const std::size_t share = std::min(length - gathered, pieces[i].iov_len);
      if (share > 0) pieces_.push_back({pieces[i].iov_base, share});
      gathered += share;
    }
    std::size_t taken = 0;
    const ViStatus status = WritePart(pieces_, length, end && length == left, deadline, taken);
    sent += taken;
    left -= taken;
    if (status < 0) return status;
    if (left > 0 && deadline.Expired()) return VI_ERROR_TMO;
    while (taken > 0) {
      iovec& piece = pieces.front();
      const std::size_t share = std::min(taken, piece.iov_len);
      piece.iov_base = static_cast<ViByte*>(piece.iov_base) + share;
      piece.iov_len -= share;
      taken -= share;
      if (piece.iov_len == 0) pieces = pieces.subspan(1);
    }
  }
  return VI_SUCCESS;
}

ViStatus Vxi11Transport::WritePart(std::span<const iovec> part, std::size_t length, bool end, Deadline& deadline,
                                   std::size_t& taken) {
  const ViUInt32 time = TimeLeft(deadline);
  Deadline patience = Patience(time);
  Device_WriteParms arguments{lid_, time, 0, end ? kEnd : 0, static_cast<u_int>(length)};
  Device_WriteResp answer{};
  ViStatus status = Prepare(patience);
  if (status < 0) return status;
  status = core_.Add(DEVICE_WRITE, xdr_Device_WriteParms, arguments, part);
  const ViUInt32 write = core_.last_call();
  if (status >= 0 && end && takes_two_ && expected_read_) {
    Device_ReadParms read = ReadParms(expected_read_->room, time, expected_read_->termchar);
    status = core_.Add(DEVICE_READ, xdr_Device_ReadParms, read);
    read_ahead_ = core_.last_call();
  }
  if (status >= 0) status = core_.SendAdded(patience);
  if (status >= 0) status = core_.Receive(write, xdr_Device_WriteResp, answer, patience);
  if (status = Settle(status); status < 0) return status;
  if (answer.error != 0) {
    GiveUpReadAhead();
    taken = answer.size < length ? answer.size : 0;
    return StatusOf(answer.error);
  }
  if (answer.size > length) return Settle(kMalformed);
  taken = answer.size;
  if (taken < length && read_ahead_) {
    // What it was to read answers a message that is not complete. It would happen again.
    GiveUpReadAhead();
    takes_two_ = false;
  }
  // Taking nothing without a word why would go on for ever.
  return taken == 0 ? VI_ERROR_IO : VI_SUCCESS;
}

}  // namespace tvr::visa::vxi11
