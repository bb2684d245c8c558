// The numbers and texts of the error queue, as the SCPI standard lists them.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace siggen::scpi {

enum class Error : int {
  kNone = 0,
  kInvalidCharacter = -101,
  kSyntax = -102,
  kInvalidSeparator = -103,
  kDataType = -104,
  kParameterNotAllowed = -108,
  kMissingParameter = -109,
  kMnemonicTooLong = -112,
  kUndefinedHeader = -113,
  kHeaderSuffixOutOfRange = -114,
  kInvalidCharacterInNumber = -121,
  kExponentTooLarge = -123,
  kInvalidSuffix = -131,
  kSuffixNotAllowed = -138,
  kInvalidString = -151,
  kInvalidBlock = -161,
  kExpressionNotAllowed = -178,
  kExecution = -200,
  kTriggerIgnored = -211,
  kInitIgnored = -213,
  kSettingsConflict = -221,
  kDataOutOfRange = -222,
  kTooMuchData = -223,
  kIllegalParameter = -224,
  kListsNotSameLength = -226,
  kMassStorage = -250,
  kMissingMassStorage = -251,
  kMissingMedia = -252,
  kMediaFull = -254,
  kDirectoryFull = -255,
  kFileNameNotFound = -256,
  kFileName = -257,
  kSaveRecallMemoryLost = -314,
  kQueueOverflow = -350,
  kQueryInterrupted = -410,
  kQueryUnterminated = -420,
};

std::string_view ErrorText(Error error);

// Thrown by whatever finds a message wrong. Everything that throws it does so before it has changed a setting.
class Refusal : public std::exception {
 public:
  explicit Refusal(Error error, std::string detail = {}) : error_(error), detail_(std::move(detail)) {}
  Error error() const { return error_; }
  const std::string& detail() const { return detail_; }
  const char* what() const noexcept override { return detail_.c_str(); }

 private:
  Error error_;
  std::string detail_;
};

}  // namespace siggen::scpi
