// Scope objects of the cached frames: what stands in the caller's variable at the end of the frame is stored, whatever
// became of the call. Simulation reads it back; a real read always goes to the instrument.
#pragma once

#include "CallFrame.h"

namespace tvr {

class CacheManagerBase {
 public:
  CacheManagerBase(ViSession vi, ViAttr id) : vi_(vi), id_(id) {
    const DriverSession& session = SessionOf(vi);
    enabled_ = session.GetCache() || session.GetSimulate();
  }
  CacheManagerBase(const CacheManagerBase&) = delete;
  CacheManagerBase& operator=(const CacheManagerBase&) = delete;
  virtual ~CacheManagerBase() = default;

 protected:
  // Attributes of this driver are not repeated: each has its one entry under the empty selector.
  template <class T>
  CacheEntry<T>& Entry() const {
    return FindOrCreateEntry(SessionOf(vi_).template CacheOf<T>(), id_, {});
  }

  ViSession vi_;
  ViAttr id_;
  bool enabled_;
};

// T is what the frame works on: a number, `const char*` for a text to set, `char[]` for a buffer to fill.
template <class T>
class CacheManager : public CacheManagerBase {
 protected:
  CacheManager(ViSession vi, ViAttr id, T* value) : CacheManagerBase(vi, id), value_(value) {}
  T* value_;
};

template <>
class CacheManager<char[]> : public CacheManagerBase {
 protected:
  CacheManager(ViSession vi, ViAttr id, char* value) : CacheManagerBase(vi, id), value_(value) {}
  char* value_;
};

template <class T>
class GetterCacheManager final : public CacheManager<T> {
 public:
  GetterCacheManager(ViSession vi, ViAttr id, T* value)
      : CacheManager<T>(vi, id, value), entry_(this->enabled_ ? &this->template Entry<T>() : nullptr) {}
  ~GetterCacheManager() noexcept override {
    if (entry_ == nullptr) return;
    entry_->value = *this->value_;
    entry_->valid = true;
  }

  // Copies the stored value to the caller's variable when there is one.
  bool Recall() const {
    if (entry_ == nullptr || !entry_->valid) return false;
    *this->value_ = entry_->value;
    return true;
  }

 private:
  CacheEntry<T>* entry_;
};

template <>
class GetterCacheManager<char[]> final : public CacheManager<char[]> {
 public:
  GetterCacheManager(ViSession vi, ViAttr id, ViInt32 size, char* value)
      : CacheManager<char[]>(vi, id, value), size_(size), entry_(enabled_ ? &Entry<std::string>() : nullptr) {}
  ~GetterCacheManager() noexcept override {
    if (entry_ == nullptr || value_ == nullptr) return;
    entry_->value = BoundedText(value_, size_);  // after a failed read there need be no terminator
    entry_->valid = true;
  }

  bool Recall() const {
    if (entry_ == nullptr || !entry_->valid || value_ == nullptr) return false;
    CopyText(entry_->value, size_, value_);
    return true;
  }

 private:
  ViInt32 size_;
  CacheEntry<std::string>* entry_;
};

template <class T>
class SetterCacheManager final : public CacheManager<T> {
 public:
  SetterCacheManager(ViSession vi, ViAttr id, T* value) : CacheManager<T>(vi, id, value) {}
  ~SetterCacheManager() noexcept override {
    if (!this->enabled_) return;
    auto& entry = this->template Entry<T>();
    entry.value = *this->value_;
    entry.valid = true;
  }
};

template <>
class SetterCacheManager<const char*> final : public CacheManager<const char*> {
 public:
  SetterCacheManager(ViSession vi, ViAttr id, const char** value) : CacheManager<const char*>(vi, id, value) {}
  ~SetterCacheManager() noexcept override {
    if (!enabled_) return;
    auto& entry = Entry<std::string>();
    entry.value = *value_;
    entry.valid = true;
  }
};

}  // namespace tvr
