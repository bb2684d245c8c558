// A lower bound on the I/O timeout for one exchange. It is put back by a good end only: after a failed exchange the
// raised timeout stays in force, and the caller is told by the status that the exchange failed.
#pragma once

#include "KVTD481X2C.h"
#include "Tvr.h"

class RaisedTimeout {
 public:
  ViStatus Raise(ViSession vi, ViInt32 lowest) {
    const ViStatus status = KVTD481X2C_GetIOTimeout(vi, &before_);
    if (status < 0 || before_ >= lowest) return status;
    raised_ = true;
    return Set(vi, lowest);
  }

  // The status of putting the timeout back takes the place of `status` when there was anything to put back.
  ViStatus Restore(ViSession vi, ViStatus status) const { return raised_ ? Set(vi, before_) : status; }

 private:
  static ViStatus Set(ViSession vi, ViInt32 timeout) {
    return tvr::SetAttribute<ViInt32>(vi, nullptr, KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT, timeout);
  }

  ViInt32 before_ = 0;
  bool raised_ = false;
};
