// The table of attributes, and the typed paths that lead from an id through it to a handler.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <typeinfo>

#include <visatype.h>

#include "DriverSession.h"
#include "Errors.h"

namespace tvr {

// What an attribute type is called, how its handlers are called, and under which type the cache keeps it.
template <class T>
struct AttributeType;

template <class T>
struct NumericAttributeType {
  using Getter = ViStatus (*)(ViSession vi, ViConstString selector, T* value);
  using Setter = ViStatus (*)(ViSession vi, ViConstString selector, T value);
  using Argument = T;
  using Stored = T;
};

template <>
struct AttributeType<ViBoolean> : NumericAttributeType<ViBoolean> {
  static constexpr const char* kName = "ViBoolean";
};
template <>
struct AttributeType<ViInt32> : NumericAttributeType<ViInt32> {
  static constexpr const char* kName = "ViInt32";
};
template <>
struct AttributeType<ViReal64> : NumericAttributeType<ViReal64> {
  static constexpr const char* kName = "ViReal64";
};
template <>
struct AttributeType<ViSession> : NumericAttributeType<ViSession> {
  static constexpr const char* kName = "ViSession";
};
template <>
struct AttributeType<ViString> {
  using Getter = ViStatus (*)(ViSession vi, ViConstString selector, ViInt32 size, ViChar* value);
  using Setter = ViStatus (*)(ViSession vi, ViConstString selector, ViConstString value);
  using Argument = ViConstString;
  using Stored = std::string;
  static constexpr const char* kName = "ViString";
};

// Handlers of any type; the descriptor's type says how to call them.
using Handler = void (*)();

struct AttributeDescriptor {
  ViAttr id;
  std::string name;
  const char* type_name;
  const std::type_info* type;
  Handler getter;  // null: write-only
  Handler setter;  // null: read-only
  // Drops what the cache holds of the attribute. Part of the descriptor for generated drivers; this one drops all at
  // once.
  std::function<void(DriverSession*, bool all, const std::string& selector)> invalidate;
};

class AttributeRegistry {
 public:
  template <class T>
  void Add(ViAttr id, const char* name, typename AttributeType<T>::Getter getter,
           typename AttributeType<T>::Setter setter) {
    attributes_.emplace(id, AttributeDescriptor{id, name, AttributeType<T>::kName, &typeid(T),
                                                reinterpret_cast<Handler>(getter), reinterpret_cast<Handler>(setter),
                                                [id](DriverSession* session, bool all, const std::string& selector) {
                                                  InvalidateEntry(session->CacheOf<typename AttributeType<T>::Stored>(),
                                                                  id, all, selector);
                                                }});
  }

  const AttributeDescriptor* Find(ViAttr id) const {
    const auto found = attributes_.find(id);
    return found == attributes_.end() ? nullptr : &found->second;
  }

  const std::map<ViAttr, AttributeDescriptor>& attributes() const { return attributes_; }

 private:
  std::map<ViAttr, AttributeDescriptor> attributes_;
};

void RegisterAttributes(AttributeRegistry& registry);

// The one registry of the process, filled before any session exists.
const AttributeRegistry& Registry();

enum class Direction { kGet, kSet };

// The handler for a read or write of the given type. A wrong type is reported before a wrong direction.
ViStatus FindHandler(ViSession vi, ViAttr id, Direction direction, const std::type_info& type, const char* type_name,
                     Handler& handler);

template <class T>
ViStatus GetAttribute(ViSession vi, ViConstString selector, ViAttr id, T* value) {
  Handler handler = nullptr;
  const ViStatus status = FindHandler(vi, id, Direction::kGet, typeid(T), AttributeType<T>::kName, handler);
  if (status < 0) return status;
  return reinterpret_cast<typename AttributeType<T>::Getter>(handler)(vi, selector, value);
}

template <class T>
ViStatus SetAttribute(ViSession vi, ViConstString selector, ViAttr id, typename AttributeType<T>::Argument value) {
  Handler handler = nullptr;
  const ViStatus status = FindHandler(vi, id, Direction::kSet, typeid(T), AttributeType<T>::kName, handler);
  if (status < 0) return status;
  return reinterpret_cast<typename AttributeType<T>::Setter>(handler)(vi, selector, value);
}

// The string path: size queries, the negative size, and the answer to a text that fills its buffer.
ViStatus GetStringAttribute(ViSession vi, ViConstString selector, ViAttr id, ViInt32 size, ViChar* value);

}  // namespace tvr
