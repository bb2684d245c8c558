// Another I/O timeout for the span of one long exchange.
#pragma once

#include "CallFrame.h"

namespace tvr {

class ScopedIoTimeout {
 public:
  ScopedIoTimeout(ViSession vi, ViInt32 timeout) : instrument_(InstrumentOf(vi)) {
    if (timeout <= kNotTaken) return;
    ViUInt32 current = 0;
    const ViStatus read = viGetAttribute(instrument_, VI_ATTR_TMO_VALUE, &current);
    Expect(read);
    if (read >= 0) {
      saved_ = current;
      taken_ = true;
    }
    Expect(viSetAttribute(instrument_, VI_ATTR_TMO_VALUE, static_cast<ViUInt32>(timeout)));
  }
  ScopedIoTimeout(const ScopedIoTimeout&) = delete;
  ScopedIoTimeout& operator=(const ScopedIoTimeout&) = delete;
  ~ScopedIoTimeout() {
    if (taken_) Expect(viSetAttribute(instrument_, VI_ATTR_TMO_VALUE, saved_));
  }

 private:
  static constexpr ViInt32 kNotTaken = -2;

  static void Expect([[maybe_unused]] ViStatus status) { assert(status >= 0); }

  ViSession instrument_;
  ViUInt32 saved_ = 0;
  bool taken_ = false;
};

}  // namespace tvr
