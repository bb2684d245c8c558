// The last value of each attribute of a session. Simulation reads it back; a real session only writes it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include <visatype.h>

namespace tvr {

template <class T>
struct CacheEntry {
  bool valid = false;
  T value{};
};

// By attribute, then by repeated capability. No attribute of this driver is repeated, so the second key is empty.
template <class T>
using AttributeCache = std::map<ViAttr, std::map<std::string, CacheEntry<T>, std::less<>>>;

template <class T>
CacheEntry<T>& FindOrCreateEntry(AttributeCache<T>& cache, ViAttr id, std::string_view selector) {
  auto& entries = cache[id];
  if (const auto found = entries.find(selector); found != entries.end()) return found->second;
  return entries.emplace(selector, CacheEntry<T>{}).first->second;
}

template <class T>
void InvalidateEntry(AttributeCache<T>& cache, ViAttr id, bool all, std::string_view selector) {
  if (all) {
    cache[id].clear();
  } else {
    FindOrCreateEntry(cache, id, selector).valid = false;
  }
}

// Six caches; those of the 64-bit integers and of the sessions stay empty, as no attribute stores such a value.
class AttributeCaches {
 public:
  template <class T>
  AttributeCache<T>& Of() {
    return std::get<AttributeCache<T>>(caches_);
  }

  void Clear() {
    std::apply([](auto&... cache) { (cache.clear(), ...); }, caches_);
  }

 private:
  std::tuple<AttributeCache<ViInt32>, AttributeCache<ViInt64>, AttributeCache<ViReal64>, AttributeCache<ViBoolean>,
             AttributeCache<ViSession>, AttributeCache<std::string>>
      caches_;
};

}  // namespace tvr
