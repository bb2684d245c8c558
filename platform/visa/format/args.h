// The caller's arguments. Wrapped, because both halves of a query take from one list, and a va_list that is passed to a
// function by itself may or may not move on in the caller.
#pragma once

#include <visa.h>

#include <cstdarg>

namespace tvr::visa {

// NOLINTBEGIN(clang-analyzer-valist.Uninitialized): the analyzer does not see that the constructor initialises it
class Args {
 public:
  explicit Args(va_list list) { va_copy(list_, list); }
  ~Args() { va_end(list_); }
  Args(const Args&) = delete;
  Args& operator=(const Args&) = delete;

  // `T` as it is after the default promotions.
  template <class T>
  T Next() {
    return va_arg(list_, T);
  }
  // What Next would give, and will.
  template <class T>
  T Peek() {
    return Args(list_).Next<T>();
  }

 private:
  va_list list_;
};
// NOLINTEND(clang-analyzer-valist.Uninitialized)

}  // namespace tvr::visa
