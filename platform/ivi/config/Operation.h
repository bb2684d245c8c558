#ifndef TVRIVI_CONFIG_OPERATION_H
#define TVRIVI_CONFIG_OPERATION_H

#include <exception>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "IviConfigServer.h"
#include "common/TextBuffer.h"
#include "config/HandleTable.h"

namespace tvrivi {

/// What a kind of object is called in an error text.
template <typename T>
inline constexpr const char* kKindName = "object";
template <>
inline constexpr const char* kKindName<Store> = "configuration store";
template <>
inline constexpr const char* kKindName<Session> = "session";
template <>
inline constexpr const char* kKindName<DriverSession> = "driver session";
template <>
inline constexpr const char* kKindName<HardwareAsset> = "hardware asset";
template <>
inline constexpr const char* kKindName<SoftwareModule> = "software module";
template <>
inline constexpr const char* kKindName<VirtualName> = "virtual name";
template <>
inline constexpr const char* kKindName<VirtualRange> = "virtual range";
template <>
inline constexpr const char* kKindName<PhysicalName> = "physical name";
template <>
inline constexpr const char* kKindName<DataComponent> = "data component";
template <typename T>
inline constexpr const char* kKindName<std::vector<T>> = "collection";

/// One call of an exported function: its name in front of every error text, its failures in the thread's record, and
/// no exception past it.
class Operation {
 public:
  explicit Operation(const char* name) : name_(name) {}

  /// Records "name: reason" for the calling thread and returns the status.
  ViStatus Fail(ViStatus status, std::string_view reason) const noexcept;
  ViStatus FailForProperty(ViInt32 property, const char* type) const noexcept;
  ViStatus FailForNull() const noexcept { return Fail(IVI_ERROR_NULL_POINTER, "an argument is a null pointer"); }

  /// Runs work and turns exceptions into a status: failure, but for the end of memory.
  template <typename Work>
  ViStatus Run(ViStatus failure, Work work) const noexcept {
    try {
      return work();
    } catch (const std::bad_alloc&) {
      return Fail(IVI_ERROR_OUT_OF_MEMORY, "out of memory");
    } catch (const std::exception& error) {
      return Fail(failure, error.what());
    }
  }

  /// Runs work(object, store) on what the handle stands for. A driver session is a session too.
  template <typename T, typename Work>
  ViStatus On(IviConfigHandle handle, Work work, ViStatus failure = IVICONFIG_ERROR_NOT_SUPPORTED) const noexcept {
    return Run(failure, [&]() -> ViStatus {
      const HandleTable::Entry entry = Handles().Find(handle);
      if (auto* object = Held<T>(entry.target)) return work(*object, entry.store);
      return Fail(IVICONFIG_ERROR_INVALID_HANDLE, std::string("the handle is no open ") + kKindName<T>);
    });
  }

  /// A text property: text_of(object, property) points to it, or is null when the class has none of that number.
  template <typename T, typename TextOf>
  ViStatus Text(IviConfigHandle handle, ViInt32 property, ViInt32 size, ViChar* buffer, TextOf text_of) const noexcept {
    return On<T>(handle, [&](const T& object, const auto&) -> ViStatus {
      const std::string* text = text_of(object, property);
      return text == nullptr ? FailForProperty(property, "text") : CopyOut(*text, size, buffer);
    });
  }

  ViStatus CopyOut(std::string_view text, ViInt32 size, ViChar* buffer) const noexcept {
    const ViStatus status = CopyText(text, size, buffer);
    return status < 0 ? FailForNull() : status;
  }

  /// Gives out a handle onto a part of the object: part_of(object) is a Target.
  template <typename T, typename PartOf>
  ViStatus Part(IviConfigHandle handle, IviConfigHandle* part, PartOf part_of) const noexcept {
    if (part == nullptr) return FailForNull();
    *part = nullptr;
    return On<T>(handle, [&](auto& object, const std::shared_ptr<Store>& store) -> ViStatus {
      *part = Handles().Add(store, part_of(object));
      return VI_SUCCESS;
    });
  }

  // Collections.
  template <typename T>
  ViStatus Count(IviConfigHandle collection, ViInt32* count) const noexcept {
    if (count == nullptr) return FailForNull();
    return On<std::vector<T>>(collection, [&](const std::vector<T>& items, const auto&) -> ViStatus {
      *count = static_cast<ViInt32>(items.size());
      return VI_SUCCESS;
    });
  }

  template <typename T>
  ViStatus ItemByIndex(IviConfigHandle collection, ViInt32 index, IviConfigHandle* item) const noexcept {
    if (item == nullptr) return FailForNull();
    *item = nullptr;
    return On<std::vector<T>>(collection, [&](const std::vector<T>& items, const auto& store) -> ViStatus {
      if (index < 1 || static_cast<std::size_t>(index) > items.size()) {
        return Fail(IVICONFIG_ERROR_NOT_EXIST,
                    "the index " + std::to_string(index) + " is outside 1 to " + std::to_string(items.size()));
      }
      *item = Handles().Add(store, &items[static_cast<std::size_t>(index) - 1]);
      return VI_SUCCESS;
    });
  }

  template <typename T>
  ViStatus ItemByName(IviConfigHandle collection, ViConstString name, IviConfigHandle* item) const noexcept {
    if (item == nullptr) return FailForNull();
    *item = nullptr;
    if (name == nullptr) return FailForNull();
    return On<std::vector<T>>(collection, [&](const std::vector<T>& items, const auto& store) -> ViStatus {
      for (const T& candidate : items) {
        if (candidate.name != name) continue;
        *item = Handles().Add(store, &candidate);
        return VI_SUCCESS;
      }
      return Fail(IVICONFIG_ERROR_NOT_EXIST, std::string("no ") + kKindName<T> + " is named '" + name + "'");
    });
  }

 private:
  template <typename T>
  static auto* Held(const Target& target) {
    using Pointer = std::conditional_t<std::is_same_v<T, Store>, Store*, const T*>;
    const auto* exact = std::get_if<Pointer>(&target);
    if constexpr (std::is_same_v<T, Session>) {
      if (const auto* driver = std::get_if<const DriverSession*>(&target)) return static_cast<Pointer>(*driver);
    }
    return exact == nullptr ? Pointer{} : *exact;
  }

  const char* name_;
};

/// The calling thread's last error text.
std::string& ThreadErrorText() noexcept;

}  // namespace tvrivi

#endif
