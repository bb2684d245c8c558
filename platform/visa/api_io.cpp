// Exported: reading and writing bytes, device clear, status byte, trigger.
#include "api.h"
#include "file_transfer.h"

using namespace tvr::visa;

namespace {

// A count that the caller may not want to know, told on every way out.
class ReturnCount {
 public:
  explicit ReturnCount(ViPUInt32 target) : target_(target) {
    if (target_ != nullptr) *target_ = 0;
  }
  ~ReturnCount() {
    if (target_ != nullptr) *target_ = static_cast<ViUInt32>(count);
  }
  ReturnCount(const ReturnCount&) = delete;
  ReturnCount& operator=(const ReturnCount&) = delete;

  std::size_t count = 0;

 private:
  ViPUInt32 target_;
};

}  // namespace

ViStatus viRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt) {
  ReturnCount received(retCnt);
  return OnSession(vi, [&](Session& session, Deadline& deadline) -> ViStatus {
    if (buf == nullptr && cnt > 0) return VI_ERROR_USER_BUF;
    return session.Read(buf, cnt, deadline, received.count);
  });
}

ViStatus viWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt) {
  ReturnCount sent(retCnt);
  return OnSession(vi, [&](Session& session, Deadline& deadline) -> ViStatus {
    if (buf == nullptr && cnt > 0) return VI_ERROR_USER_BUF;
    return session.Write(buf, cnt, true, deadline, sent.count);
  });
}

ViStatus viBufRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt) {
  ReturnCount received(retCnt);
  return OnSession(vi, [&](Session& session, Deadline& deadline) -> ViStatus {
    if (buf == nullptr && cnt > 0) return VI_ERROR_USER_BUF;
    return session.BufferedRead(buf, cnt, deadline, received.count);
  });
}

ViStatus viBufWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt) {
  ReturnCount written(retCnt);
  return OnSession(vi, [&](Session& session, Deadline& deadline) -> ViStatus {
    if (buf == nullptr && cnt > 0) return VI_ERROR_USER_BUF;
    return session.BufferedWrite(buf, cnt, deadline, written.count);
  });
}

ViStatus viReadToFile(ViSession vi, ViConstString filename, ViUInt32 cnt, ViPUInt32 retCnt) {
  ReturnCount received(retCnt);
  return OnSession(vi, [&](Session& session, Deadline& deadline) {
    return ReadToFile(session, filename, cnt, deadline, received.count);
  });
}

ViStatus viWriteFromFile(ViSession vi, ViConstString filename, ViUInt32 cnt, ViPUInt32 retCnt) {
  ReturnCount sent(retCnt);
  return OnSession(vi, [&](Session& session, Deadline& deadline) {
    return WriteFromFile(session, filename, cnt, deadline, sent.count);
  });
}

// Nothing here runs in the background; a caller's thread does as well.
ViStatus viReadAsync(ViSession vi, ViPBuf, ViUInt32, ViPJobId) {
  return On<Session>(vi, [](Session&) -> ViStatus { return VI_ERROR_NSUP_OPER; });
}

ViStatus viWriteAsync(ViSession vi, ViConstBuf, ViUInt32, ViPJobId) {
  return On<Session>(vi, [](Session&) -> ViStatus { return VI_ERROR_NSUP_OPER; });
}

ViStatus viTerminate(ViObject vi, ViUInt16 degree, ViJobId job) {
  return On<Session>(vi, [&](Session& session) -> ViStatus {
    if (degree != VI_NULL) return VI_ERROR_INV_DEGREE;
    // Calls in progress have no number of their own.
    if (job != VI_NULL) return VI_ERROR_INV_JOB_ID;
    session.Terminate();
    return VI_SUCCESS;
  });
}

ViStatus viClear(ViSession vi) {
  return OnSession(vi, [](Session& session, Deadline& deadline) { return session.Clear(deadline); });
}

ViStatus viReadSTB(ViSession vi, ViPUInt16 status) {
  return OnSession(vi, [&](Session& session, Deadline& deadline) -> ViStatus {
    if (status == nullptr) return VI_ERROR_USER_BUF;
    const auto protocol = static_cast<ViUInt16>(session.settings()[Settings::kIoProtocol]);
    return session.transport().ReadStatusByte(protocol, deadline, *status);
  });
}

ViStatus viAssertTrigger(ViSession vi, ViUInt16 protocol) {
  return OnSession(vi, [&](Session& session, Deadline& deadline) -> ViStatus {
    if (protocol != VI_TRIG_PROT_DEFAULT) return VI_ERROR_INV_PROT;
    return session.transport().Trigger(static_cast<ViUInt16>(session.settings()[Settings::kIoProtocol]), deadline);
  });
}

ViStatus viGpibControlREN(ViSession vi, ViUInt16 mode) {
  return OnSession(
      vi, [&](Session& session, Deadline& deadline) { return session.transport().RemoteLocal(mode, deadline); });
}
