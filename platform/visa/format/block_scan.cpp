#include "format/block_scan.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <optional>

namespace tvr::visa {
namespace {

struct Target {
  ViInt32* count = nullptr;  // for #: elements that fit going in, elements stored coming out
  ViByte* bytes = nullptr;   // null: everything is dropped
  std::size_t room = 0;      // bytes
};

ViStatus TakeTarget(const ReadDirective& directive, std::size_t element, Args& args, Target& target) {
  ViInt32 elements = directive.width.value;
  if (directive.width.given == Given::kAsArgument) {
    target.count = args.Next<ViInt32*>();
    if (target.count == nullptr) return VI_ERROR_USER_BUF;
    elements = *target.count;
  }
  if (elements < 0) return VI_ERROR_INV_FMT;
  if (directive.suppressed) return VI_SUCCESS;
  target.bytes = args.Next<ViByte*>();
  if (target.bytes == nullptr && elements > 0) return VI_ERROR_USER_BUF;
  target.room = static_cast<std::size_t>(elements) * element;
  return VI_SUCCESS;
}

ViStatus Unfinished(const ReadStream& in) { return in.status() < 0 ? in.status() : VI_ERROR_INV_FMT; }

// The length in the header; none for an indefinite block. False: no header stands here.
bool TakeHeader(ReadStream& in, std::optional<std::size_t>& length) {
  if (in.Peek() != '#') return false;
  in.Take();
  const int digits = in.Peek();
  if (digits < '0' || digits > '9') return false;
  in.Take();
  if (digits == '0') return true;
  std::size_t value = 0;
  for (int i = '0'; i < digits; ++i) {
    const int digit = in.Peek();
    if (digit < '0' || digit > '9') return false;
    in.Take();
    value = value * 10 + static_cast<std::size_t>(digit - '0');
  }
  length = value;
  return true;
}

// The rest of a block that is longer than its array goes, so that the stream stays in step.
ViStatus Drop(ReadStream& in, std::size_t count) {
  std::array<ViByte, 16384> scrap;
  while (count > 0) {
    const std::size_t wanted = std::min(count, scrap.size());
    const std::size_t taken = in.TakeBlock(scrap.data(), wanted);
    if (taken < wanted) return Unfinished(in);
    count -= taken;
  }
  return VI_SUCCESS;
}

// To the end of the message; what does not fit is dropped. The line feed that ends the message is not of the data.
ViStatus TakeToEnd(ReadStream& in, const Target& target, bool whole_message, std::size_t& stored) {
  while (!in.ended() && (whole_message || stored < target.room)) {
    const std::string_view window = in.Window();
    if (window.empty()) break;
    std::size_t data = window.size();
    if (whole_message && in.WindowEndsWithTerminator()) --data;
    const std::size_t count = std::min(data, target.room - stored);
    if (count > 0) std::memcpy(target.bytes + stored, window.data(), count);
    stored += count;
    in.TakeMany(whole_message ? window.size() : count);
  }
  return in.ended() ? VI_SUCCESS : in.status();
}

void ToNativeOrder(ViByte* bytes, std::size_t size, std::size_t element, bool little_endian) {
  if (element == 1 || little_endian == (std::endian::native == std::endian::little)) return;
  for (std::size_t i = 0; i + element <= size; i += element) std::reverse(bytes + i, bytes + i + element);
}

}  // namespace

ViStatus ReadBlock(const ReadDirective& directive, Args& args, ReadStream& in) {
  const std::size_t element = BlockElementSize(directive.length);
  Target target;
  if (const ViStatus status = TakeTarget(directive, element, args, target); status < 0) return status;

  std::size_t stored = 0;
  ViStatus status = VI_SUCCESS;
  if (directive.code == 'y') {
    const bool to_end = directive.suppressed && directive.width.given == Given::kNot;
    status = directive.suppressed && !to_end ? Drop(in, static_cast<std::size_t>(directive.width.value) * element)
                                             : TakeToEnd(in, target, to_end, stored);
  } else {
    in.SkipSpace();
    std::optional<std::size_t> length;
    if (!TakeHeader(in, length)) {
      status = Unfinished(in);
    } else if (!length) {
      status = TakeToEnd(in, target, true, stored);
    } else {
      const std::size_t fits = std::min(*length, target.room);
      stored = in.TakeBlock(target.bytes, fits);
      status = stored < fits ? Unfinished(in) : Drop(in, *length - fits);
      if (status >= 0) in.FetchTerminator();
    }
  }
  ToNativeOrder(target.bytes, stored, element, directive.little_endian);
  if (target.count != nullptr) *target.count = static_cast<ViInt32>(stored / element);
  return status;
}

}  // namespace tvr::visa
