// The attributes of a session that are plain values: no I/O, no lock, any thread.
#pragma once

#include <visa.h>

#include <array>
#include <atomic>
#include <optional>

namespace tvr::visa {

class Settings {
 public:
  // In the order of the table in settings.cpp.
  enum Index {
    kTimeout,
    kTermchar,
    kTermcharEnabled,
    kSendEnd,
    kIoProtocol,
    kDmaAllowed,
    kReadBufferMode,
    kWriteBufferMode,
    kFileAppend,
    kMaxQueueLength,
    kUserData,
    kCount
  };

  Settings();

  ViUInt64 operator[](Index index) const { return values_[index].load(std::memory_order_relaxed); }

  ViUInt32 Timeout() const { return static_cast<ViUInt32>((*this)[kTimeout]); }
  bool SendEnd() const { return (*this)[kSendEnd] != VI_FALSE; }
  std::optional<ViByte> Termchar() const {
    if ((*this)[kTermcharEnabled] == VI_FALSE) return std::nullopt;
    return static_cast<ViByte>((*this)[kTermchar]);
  }

  // VI_ERROR_NSUP_ATTR when the attribute is none of these.
  ViStatus Get(ViAttr attribute, void* value) const;
  ViStatus Set(ViAttr attribute, ViAttrState value);

 private:
  std::array<std::atomic<ViUInt64>, kCount> values_;
};

}  // namespace tvr::visa
