#include "session/ErrorRecord.h"

#include <exception>

#include "common/TextBuffer.h"

namespace tvrivi {

ViStatus ErrorRecord::Replace(ViStatus code, ViConstString text) noexcept {
  code_ = code;
  try {
    text_.assign(text == nullptr ? "" : text);
  } catch (const std::exception&) {
    text_.clear();
    return IVI_ERROR_OUT_OF_MEMORY;
  }
  return VI_SUCCESS;
}

ViStatus ErrorRecord::GiveOut(ViInt32 size, ViStatus* code, ViChar* buffer) noexcept {
  const ViStatus copied = CopyText(text_, size, buffer);
  if (copied < 0) return copied;
  if (code != nullptr) *code = code_;
  if (copied == VI_SUCCESS) Clear();
  return copied;
}

void ErrorRecord::Clear() noexcept {
  code_ = VI_SUCCESS;
  text_.clear();
}

ErrorRecord& ErrorRecord::OfThread() noexcept {
  static thread_local ErrorRecord record;
  return record;
}

}  // namespace tvrivi
