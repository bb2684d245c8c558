// Exported: formatted I/O.
#include <cstring>

#include "api.h"
#include "format/read_format.h"
#include "format/write_format.h"

using namespace tvr::visa;

ViStatus viVPrintf(ViSession vi, ViConstString writeFmt, ViVAList params) {
  return OnSession(vi, [&](Session& session, Deadline& deadline) -> ViStatus {
    if (writeFmt == nullptr) return VI_ERROR_INV_FMT;
    Args args(params);
    return session.Printf(writeFmt, args, deadline);
  });
}

ViStatus viVScanf(ViSession vi, ViConstString readFmt, ViVAList params) {
  return OnSession(vi, [&](Session& session, Deadline& deadline) -> ViStatus {
    if (readFmt == nullptr) return VI_ERROR_INV_FMT;
    Args args(params);
    return session.Scanf(readFmt, args, deadline);
  });
}

ViStatus viVQueryf(ViSession vi, ViConstString writeFmt, ViConstString readFmt, ViVAList params) {
  return OnSession(vi, [&](Session& session, Deadline& deadline) -> ViStatus {
    if (writeFmt == nullptr || readFmt == nullptr) return VI_ERROR_INV_FMT;
    Args args(params);
    return session.Queryf(writeFmt, readFmt, args, deadline);
  });
}

// The text forms need a valid session and none of its buffers.
ViStatus viVSPrintf(ViSession vi, ViPBuf buf, ViConstString writeFmt, ViVAList params) {
  return On<Session>(vi, [&](Session&) -> ViStatus {
    if (writeFmt == nullptr) return VI_ERROR_INV_FMT;
    if (buf == nullptr) return VI_ERROR_USER_BUF;
    FormattedOutput out(nullptr);
    Args args(params);
    if (const ViStatus status = WriteFormat(writeFmt, args, out); status < 0) return status;
    const std::string_view text = out.Collected();
    if (!text.empty()) std::memcpy(buf, text.data(), text.size());
    buf[text.size()] = '\0';
    return VI_SUCCESS;
  });
}

ViStatus viVSScanf(ViSession vi, ViConstBuf buf, ViConstString readFmt, ViVAList params) {
  return On<Session>(vi, [&](Session&) -> ViStatus {
    if (readFmt == nullptr) return VI_ERROR_INV_FMT;
    if (buf == nullptr) return VI_ERROR_USER_BUF;
    TextStream text(reinterpret_cast<const char*>(buf));
    Args args(params);
    return ReadFormat(readFmt, args, text);
  });
}

ViStatus viPrintf(ViSession vi, ViConstString writeFmt, ...) {
  va_list list;
  va_start(list, writeFmt);
  const ViStatus status = viVPrintf(vi, writeFmt, list);
  va_end(list);
  return status;
}

ViStatus viScanf(ViSession vi, ViConstString readFmt, ...) {
  va_list list;
  va_start(list, readFmt);
  const ViStatus status = viVScanf(vi, readFmt, list);
  va_end(list);
  return status;
}

ViStatus viQueryf(ViSession vi, ViConstString writeFmt, ViConstString readFmt, ...) {
  va_list list;
  va_start(list, readFmt);
  const ViStatus status = viVQueryf(vi, writeFmt, readFmt, list);
  va_end(list);
  return status;
}

ViStatus viSPrintf(ViSession vi, ViPBuf buf, ViConstString writeFmt, ...) {
  va_list list;
  va_start(list, writeFmt);
  const ViStatus status = viVSPrintf(vi, buf, writeFmt, list);
  va_end(list);
  return status;
}

ViStatus viSScanf(ViSession vi, ViConstBuf buf, ViConstString readFmt, ...) {
  va_list list;
  va_start(list, readFmt);
  const ViStatus status = viVSScanf(vi, buf, readFmt, list);
  va_end(list);
  return status;
}

ViStatus viFlush(ViSession vi, ViUInt16 mask) {
  return OnSession(vi, [&](Session& session, Deadline& deadline) { return session.Flush(mask, deadline); });
}

ViStatus viSetBuf(ViSession vi, ViUInt16 mask, ViUInt32 size) {
  return OnSession(vi, [&](Session& session, Deadline& deadline) { return session.SetBuffer(mask, size, deadline); });
}
