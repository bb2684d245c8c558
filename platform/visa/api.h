// The frame around every exported operation: resolve the handle, check its kind, let no exception out.
#pragma once

#include <visa.h>

#include <exception>
#include <new>

#include "handles.h"
#include "session.h"

namespace tvr::visa {

template <class Body>
ViStatus Guarded(Body&& body) noexcept {
  try {
    return body();
  } catch (const std::bad_alloc&) {
    return VI_ERROR_ALLOC;
  } catch (const std::exception&) {
    return VI_ERROR_SYSTEM_ERROR;
  }
}

// For the operations that only one kind of object knows: VI_ERROR_NSUP_OPER for the other.
template <class Kind, class Body>
ViStatus On(ViObject handle, Body&& body) noexcept {
  const Pinned pinned(handle);
  if (!pinned) return VI_ERROR_INV_OBJECT;
  Kind* const object = pinned.As<Kind>();
  if (object == nullptr) return VI_ERROR_NSUP_OPER;
  return Guarded([&] { return body(*object); });
}

// For I/O.
template <class Body>
ViStatus OnSession(ViSession handle, Body&& body) noexcept {
  return On<Session>(handle, [&](Session& session) { return session.Call(body); });
}

}  // namespace tvr::visa
