// The exchanges of a session over VISA, and its two VISA handles.
#pragma once

#include <visa.h>

#include <string>

#include "Errors.h"
#include "IoSession.h"

namespace tvr {

// The error bits of the IEEE 488.2 standard event status register: query, device dependent, execution and command.
constexpr ViInt32 kEventErrorMask = 0x3C;

template <class Session>
class VisaSession : public IoSession {
 public:
  ViStatus OpenIo() override {
    if (Self().GetSimulate()) return VI_SUCCESS;
    const ViStatus status = viOpenDefaultRM(&resource_manager_);
    if (status < 0) return status;
    return viOpen(resource_manager_, Self().GetIoResourceDescriptor().c_str(), VI_NULL,
                  static_cast<ViUInt32>(Self().GetOpenTimeout()), &instrument_);
  }

  // Closing the resource manager closes the instrument session with it.
  ViStatus CloseIo() override {
    if (Self().GetSimulate()) return VI_SUCCESS;
    return CloseVisa();
  }

  ViStatus ClearInstrumentStatus() override {
    if (Self().GetSimulate()) return VI_SUCCESS;
    const ViStatus status = viPrintf(instrument_, "*CLS\n");
    return status < 0 ? status : Self().CheckInstrumentStatus();
  }

  ViStatus QueryIdentity(std::string& manufacturer, std::string& model, std::string& serial_number,
                         std::string& firmware_revision) override {
    if (Self().GetSimulate()) return VI_SUCCESS;
    // One more than the width: some VISA libraries count the width without the terminator.
    ViChar fields[4][257] = {};
    const ViStatus status = viQueryf(instrument_, "*IDN?\n", "%256[^,],%256[^,],%256[^,],%256[^,]%*T", fields[0],
                                     fields[1], fields[2], fields[3]);
    if (status < 0) return status;
    manufacturer = fields[0];
    model = fields[1];
    serial_number = fields[2];
    firmware_revision = fields[3];
    return Self().CheckInstrumentStatus();
  }

  ViStatus CheckInstrumentStatus() override {
    if (!Self().GetQueryInstrStatus() || Self().GetSimulate()) return VI_SUCCESS;
    ViInt32 events = 0;
    const ViStatus status = viQueryf(instrument_, "*ESR?\n", "%ld%*T", &events);
    if (status < 0 || (events & kEventErrorMask) == 0) return status;
    return Self().ReportError(error::kInstrumentStatus);
  }

  // The session of every VISA call of the driver; 0 while nothing is open and in a simulated session.
  ViSession InstrumentSession() const { return instrument_; }

 protected:
  ViStatus CloseVisa() {
    if (resource_manager_ == VI_NULL) return VI_SUCCESS;
    const ViStatus status = viClose(resource_manager_);
    if (status < 0) return status;
    resource_manager_ = VI_NULL;
    instrument_ = VI_NULL;
    return status;
  }

 private:
  Session& Self() { return static_cast<Session&>(*this); }

  ViSession resource_manager_ = VI_NULL;
  ViSession instrument_ = VI_NULL;
};

}  // namespace tvr
