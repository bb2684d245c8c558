#ifndef TVRIVI_SESSION_ERROR_RECORD_H
#define TVRIVI_SESSION_ERROR_RECORD_H

#include <string>

#include "IviCShared.h"

namespace tvrivi {

/// The last error of a session or of a thread. Not guarded: a session's record is guarded by its slot.
class ErrorRecord {
 public:
  /// Null counts as empty. When memory for the text runs out the code is kept, without text.
  ViStatus Replace(ViStatus code, ViConstString text) noexcept;

  /// Gives code (unless null) and text out, and clears both when the text went out whole.
  ViStatus GiveOut(ViInt32 size, ViStatus* code, ViChar* buffer) noexcept;

  void Clear() noexcept;

  /// The calling thread's own.
  static ErrorRecord& OfThread() noexcept;

 private:
  ViStatus code_ = VI_SUCCESS;
  std::string text_;
};

}  // namespace tvrivi

#endif
