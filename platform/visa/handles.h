// Object handles: constant time, no lock on the way to an object, and a handle that was closed stays invalid when its
// place is in use again.
#pragma once

#include <visa.h>

#include <memory>
#include <type_traits>
#include <typeinfo>

namespace tvr::visa {

class Object {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

  // The handle has just become invalid; calls that are still at work on the object should end soon.
  virtual void OnClose() {}
};

namespace handles {

// 0 when every place is taken.
ViObject Add(std::unique_ptr<Object> object);

// Makes the handle invalid at once. The object goes when the last call at work on it ends. False: it was not valid.
bool Close(ViObject handle);

// Null for a handle that is not valid. Every other answer is given back with Unpin.
Object* Pin(ViObject handle) noexcept;
void Unpin(ViObject handle) noexcept;

}  // namespace handles

// Keeps an object alive for the length of a call.
class Pinned {
 public:
  explicit Pinned(ViObject handle) noexcept : handle_(handle), object_(handles::Pin(handle)) {}
  ~Pinned() {
    if (object_ != nullptr) handles::Unpin(handle_);
  }
  Pinned(const Pinned&) = delete;
  Pinned& operator=(const Pinned&) = delete;

  explicit operator bool() const { return object_ != nullptr; }
  Object& operator*() const { return *object_; }
  // Null for an object of another kind.
  template <class Kind>
  Kind* As() const {
    if constexpr (std::is_final_v<Kind>) {
      // On the way of every exchange, and far cheaper than a search of the class tree.
      return typeid(*object_) == typeid(Kind) ? static_cast<Kind*>(object_) : nullptr;
    } else {
      return dynamic_cast<Kind*>(object_);
    }
  }

 private:
  const ViObject handle_;
  Object* const object_;
};

}  // namespace tvr::visa
