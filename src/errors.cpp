// The four exports that explain errors.

#include <IviCShared.h>

#include <string>

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "operations.h"

using namespace tvr::operation;

namespace {

// The size that the interface promises for the texts of these exports.
constexpr ViInt32 kTextSize = 256;

}  // namespace

ViStatus KVTD481X2C_error_query(ViSession Vi, ViInt32* ErrorCode, ViChar ErrorMessage[]) {
  if (tvr::FindSession(Vi) == nullptr) return tvr::error::kInvalidSessionHandle;
  const ViStatus pointers =
      tvr::CheckNullParameters(Vi, kError_query.function, kError_query.outputs, {ErrorCode, ErrorMessage});
  if (pointers < 0) return pointers;
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  if (tvr::SessionOf(Vi).GetSimulate()) {
    *ErrorCode = 0;
    tvr::CopyText("No error.", kTextSize, ErrorMessage);
    return VI_SUCCESS;
  }

  ViChar response[kTextSize] = "";
  ViInt32 size = kTextSize;
  const ViStatus status = viQueryf(tvr::InstrumentOf(Vi), kError_query.query, kError_query.scan, &size, response);
  if (status < 0) return status;

  std::string_view answer = tvr::TrimString(tvr::TrimString(response, tvr::kBlanks), "\"");
  const std::size_t comma = answer.find(',');
  if (comma == std::string_view::npos) {
    return tvr::RaiseErrorText(Vi, tvr::error::kUnexpectedResponse,
                               "Failed to parse the response to the SYST:ERR? query.  The response is expected to be a "
                               "comma-separated list of "
                               "2 items in the form '<error code>,<error message>'.");
  }
  // A code that is no number leaves as the exception of the conversion, like every failure that has no status.
  *ErrorCode = std::stoi(std::string(tvr::TrimString(answer.substr(0, comma), tvr::kBlanks)));
  answer.remove_prefix(comma + 1);
  tvr::CopyText(tvr::TrimString(tvr::TrimString(answer, tvr::kBlanks), "\""), kTextSize, ErrorMessage);
  return status;
}

ViStatus KVTD481X2C_error_message(ViSession Vi, ViStatus ErrorCode, ViChar ErrorMessage[]) {
  if (ErrorMessage == nullptr) {
    return tvr::CheckNullParameters(Vi, kError_message.function, kError_message.outputs, {ErrorMessage});
  }
  if (const char* text = tvr::LookupErrorText(ErrorCode); text != nullptr) {
    tvr::CopyText(text, kTextSize, ErrorMessage);
    return VI_SUCCESS;
  }
  if (Vi == VI_NULL) return tvr::error::kInvalidValue;
  return tvr::RaiseErrorText(Vi, tvr::error::kInvalidValue, "The error code supplied is not defined by the driver.",
                             std::to_string(ErrorCode).c_str(), "error_message", "ErrorCode");
}

ViStatus KVTD481X2C_GetError(ViSession Vi, ViStatus* Code, ViInt32 BufferSize, ViChar Description[]) {
  return IviSession_GetError(Vi, BufferSize, Code, Description);
}

ViStatus KVTD481X2C_ClearError(ViSession Vi) { return IviSession_ClearError(Vi); }
