#include "scpi/errors.h"

namespace siggen::scpi {

std::string_view ErrorText(Error error) {
  switch (error) {
    case Error::kNone:
      return "No error";
    case Error::kInvalidCharacter:
      return "Invalid character";
    case Error::kSyntax:
      return "Syntax error";
    case Error::kInvalidSeparator:
      return "Invalid separator";
    case Error::kDataType:
      return "Data type error";
    case Error::kParameterNotAllowed:
      return "Parameter not allowed";
    case Error::kMissingParameter:
      return "Missing parameter";
    case Error::kMnemonicTooLong:
      return "Program mnemonic too long";
    case Error::kUndefinedHeader:
      return "Undefined header";
    case Error::kHeaderSuffixOutOfRange:
      return "Header suffix out of range";
    case Error::kInvalidCharacterInNumber:
      return "Invalid character in number";
    case Error::kExponentTooLarge:
      return "Exponent too large";
    case Error::kInvalidSuffix:
      return "Invalid suffix";
    case Error::kSuffixNotAllowed:
      return "Suffix not allowed";
    case Error::kInvalidString:
      return "Invalid string data";
    case Error::kInvalidBlock:
      return "Invalid block data";
    case Error::kExpressionNotAllowed:
      return "Expression data not allowed";
    case Error::kExecution:
      return "Execution error";
    case Error::kTriggerIgnored:
      return "Trigger ignored";
    case Error::kInitIgnored:
      return "Init ignored";
    case Error::kSettingsConflict:
      return "Settings conflict";
    case Error::kDataOutOfRange:
      return "Data out of range";
    case Error::kTooMuchData:
      return "Too much data";
    case Error::kIllegalParameter:
      return "Illegal parameter value";
    case Error::kListsNotSameLength:
      return "Lists not same length";
    case Error::kMassStorage:
      return "Mass storage error";
    case Error::kMissingMassStorage:
      return "Missing mass storage";
    case Error::kMissingMedia:
      return "Missing media";
    case Error::kMediaFull:
      return "Media full";
    case Error::kDirectoryFull:
      return "Directory full";
    case Error::kFileNameNotFound:
      return "File name not found";
    case Error::kFileName:
      return "File name error";
    case Error::kSaveRecallMemoryLost:
      return "Save/recall memory lost";
    case Error::kQueueOverflow:
      return "Queue overflow";
    case Error::kQueryInterrupted:
      return "Query INTERRUPTED";
    case Error::kQueryUnterminated:
      return "Query UNTERMINATED";
  }
  return "Device-specific error";
}

}  // namespace siggen::scpi
