#include "Arguments.h"

#include <algorithm>
#include <cstring>

namespace kvtd::test {

std::byte* Arguments::Room(std::size_t size, bool begins_empty) {
  std::string untouched(size, static_cast<char>(GuardedMemory::kUntouched));
  if (begins_empty) untouched.front() = '\0';
  return Hold(untouched.data(), size, true);
}

std::byte* Arguments::Hold(const void* bytes, std::size_t size, bool is_output) {
  buffers_.push_back({GuardedMemory(size), std::string(static_cast<const char*>(bytes), size), is_output});
  const Buffer& buffer = buffers_.back();
  std::memcpy(buffer.memory.data(), bytes, size);
  return buffer.memory.data();
}

std::string Arguments::Outputs() const {
  std::string outputs;
  for (const Buffer& buffer : buffers_) {
    if (buffer.is_output) outputs.append(reinterpret_cast<const char*>(buffer.memory.data()), buffer.memory.size());
  }
  return outputs;
}

bool Arguments::Untouched() const {
  return std::all_of(buffers_.begin(), buffers_.end(), [](const Buffer& buffer) {
    return buffer.memory.Intact() && std::memcmp(buffer.memory.data(), buffer.held.data(), buffer.held.size()) == 0;
  });
}

bool Arguments::Intact() const {
  return std::all_of(buffers_.begin(), buffers_.end(), [](const Buffer& buffer) {
    return buffer.memory.Intact() &&
           (buffer.is_output || std::memcmp(buffer.memory.data(), buffer.held.data(), buffer.held.size()) == 0);
  });
}

}  // namespace kvtd::test
