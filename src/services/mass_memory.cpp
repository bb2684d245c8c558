// The instrument's file system: files, directories, states, screenshots. Transfers go from and to the caller's buffer.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

#include "KVTD481X2C.h"
#include "Tvr.h"
#include "operations.h"
#include "services/raised_timeout.h"

using namespace tvr::operation;

namespace {

constexpr ViInt32 kLowestScreenshotTimeout = 20000;

// A block header as far as it is of one size: "#" and the count of the digits behind it.
constexpr ViUInt32 kBlockMarkSize = 2;

// The longest count that fits; more digits than this are no length of a file.
constexpr ViUInt32 kMostLengthDigits = 10;

// Keeps the termination character from ending reads for the span of a block, in which every byte is data.
class TermCharOff {
 public:
  explicit TermCharOff(ViSession instrument) : instrument_(instrument) {
    const ViStatus status = viGetAttribute(instrument_, VI_ATTR_TERMCHAR_EN, &enabled_);
    if (status >= 0 && enabled_ != VI_FALSE) viSetAttribute(instrument_, VI_ATTR_TERMCHAR_EN, VI_FALSE);
  }
  TermCharOff(const TermCharOff&) = delete;
  TermCharOff& operator=(const TermCharOff&) = delete;
  ~TermCharOff() {
    if (enabled_ != VI_FALSE) viSetAttribute(instrument_, VI_ATTR_TERMCHAR_EN, VI_TRUE);
  }

 private:
  ViSession instrument_;
  ViBoolean enabled_ = VI_FALSE;
};

// The length that a definite block announces.
ViStatus ReadBlockLength(ViSession vi, ViInt32& length) {
  const ViSession instrument = tvr::InstrumentOf(vi);
  std::array<ViByte, kBlockMarkSize> mark{};
  ViUInt32 read = 0;
  ViStatus status = viRead(instrument, mark.data(), kBlockMarkSize, &read);
  if (status < 0) return status;
  if (read < kBlockMarkSize || mark[0] != '#' || mark[1] < '0') {
    return tvr::RaiseError(vi, tvr::error::kUnexpectedResponse);
  }

  const ViUInt32 count = static_cast<ViUInt32>(mark[1] - '0');
  std::array<ViByte, kMostLengthDigits + 1> digits{};
  status = viRead(instrument, digits.data(), std::min(count, static_cast<ViUInt32>(digits.size())), &read);
  if (status < 0) return status;
  assert(read < digits.size());
  digits[read] = '\0';
  const long long announced = std::atoll(reinterpret_cast<const char*>(digits.data()));
  length = static_cast<ViInt32>(std::clamp<long long>(announced, 0, std::numeric_limits<ViInt32>::max()));
  return status;
}

}  // namespace

ViStatus KVTD481X2C_CopyFile(ViSession Vi, ViConstString SourceDevice, ViConstString SourceFile,
                             ViConstString DestinationDevice, ViConstString DestinationFile) {
  return tvr::RunAction(kCopyFile, Vi, SourceDevice, SourceFile, DestinationDevice, DestinationFile);
}

ViStatus KVTD481X2C_CreateDirectory(ViSession Vi, ViConstString Device, ViConstString Directory) {
  return tvr::RunAction(kCreateDirectory, Vi, Device, Directory);
}

ViStatus KVTD481X2C_DeleteDirectory(ViSession Vi, ViConstString Device, ViConstString Directory) {
  return tvr::RunAction(kDeleteDirectory, Vi, Device, Directory);
}

ViStatus KVTD481X2C_DeleteFile(ViSession Vi, ViConstString Device, ViConstString File) {
  return tvr::RunAction(kDeleteFile, Vi, Device, File);
}

ViStatus KVTD481X2C_EjectDevice(ViSession Vi, ViConstString Device) { return tvr::RunAction(kEjectDevice, Vi, Device); }

ViStatus KVTD481X2C_SaveState(ViSession Vi, ViConstString Device, ViConstString File) {
  return tvr::RunAction(kSaveState, Vi, Device, File);
}

ViStatus KVTD481X2C_LoadState(ViSession Vi, ViConstString Device, ViConstString File) {
  return tvr::RunAction(kLoadState, Vi, Device, File);
}

ViStatus KVTD481X2C_TakeScreenshotAndStore(ViSession Vi) { return tvr::RunAction(kTakeScreenshotAndStore, Vi); }

ViStatus KVTD481X2C_SendFile(ViSession Vi, ViConstString Device, ViConstString File, ViInt32 Count,
                             const ViByte* Data) {
  return tvr::RunAction(kSendFile, Vi, Device, File, Count, Data);
}

ViStatus KVTD481X2C_GetDirectory(ViSession Vi, ViConstString Device, ViConstString Directory, ViInt32 ValBufferSize,
                                 ViChar Val[]) {
  return tvr::RunTextQuery(kGetDirectory, Vi, ValBufferSize, Val, Device, Directory);
}

ViStatus KVTD481X2C_GetDirectorySize(ViSession Vi, ViConstString Device, ViConstString Directory, ViInt32* Val) {
  return tvr::RunNumberQuery(kGetDirectorySize, Vi, Val, Device, Directory);
}

// What a buffer smaller than the file leaves, and the line feed behind the block, stay for the next read of the
// session.
ViStatus KVTD481X2C_ReadFile(ViSession Vi, ViConstString Device, ViConstString File, ViInt32 DataBufferSize,
                             ViByte Data[], ViInt32* DataActualSize) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckNullParameters(Vi, kReadFile.function, kReadFile.outputs, {Data, DataActualSize});
  if (status < 0) return status;
  if (tvr::SessionOf(Vi).GetSimulate()) return VI_SUCCESS;

  status = viPrintf(tvr::InstrumentOf(Vi), kReadFile.query, Device, File);
  if (status < 0) return status;
  ViInt32 length = 0;
  if (status = ReadBlockLength(Vi, length); status < 0) return status;
  ViUInt32 read = 0;
  const ViInt32 wanted = std::max(0, std::min(DataBufferSize, length));
  const TermCharOff every_byte_is_data(tvr::InstrumentOf(Vi));
  status = viRead(tvr::InstrumentOf(Vi), Data, static_cast<ViUInt32>(wanted), &read);
  if (status < 0) return status;
  *DataActualSize = static_cast<ViInt32>(read);
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_TakeScreenshotAndReturnData(ViSession Vi, ViInt32 ValBufferSize, ViByte Val[],
                                                ViInt32* ValActualSize) {
  const tvr::Operation& row = kTakeScreenshotAndReturnData;
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckNullParameters(Vi, row.function, row.outputs, {Val, ValActualSize});
  if (status < 0) return status;
  if (tvr::SessionOf(Vi).GetSimulate()) return VI_SUCCESS;

  RaisedTimeout timeout;
  if (status = timeout.Raise(Vi, kLowestScreenshotTimeout); status < 0) return status;
  ViInt32 size = ValBufferSize;
  status = viQueryf(tvr::InstrumentOf(Vi), row.query, row.scan, &size, Val);
  if (status < 0) return status;
  if (status = timeout.Restore(Vi, status); status < 0) return status;
  *ValActualSize = size;
  return tvr::CheckInstrumentStatus(Vi);
}
