// The five exchanges that every session has, whatever carries them.
#pragma once

#include <string>

#include <visatype.h>

namespace tvr {

class IoSession {
 public:
  IoSession() = default;
  IoSession(const IoSession&) = delete;
  IoSession& operator=(const IoSession&) = delete;
  virtual ~IoSession() = default;

  virtual ViStatus OpenIo() = 0;
  virtual ViStatus CloseIo() = 0;
  virtual ViStatus ClearInstrumentStatus() = 0;
  virtual ViStatus QueryIdentity(std::string& manufacturer, std::string& model, std::string& serial_number,
                                 std::string& firmware_revision) = 0;
  virtual ViStatus CheckInstrumentStatus() = 0;
};

}  // namespace tvr
