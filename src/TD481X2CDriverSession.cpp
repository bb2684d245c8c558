#include "TD481X2CDriverSession.h"

namespace {

constexpr tvr::DriverSession::Settings kSettings{.open_timeout = 2000,
                                                 .self_test_timeout = 2000,
                                                 .reset_timeout = 2000,
                                                 .supports_interchange_check = false,
                                                 .spare_timeout = 1000};

}  // namespace

TD481X2CDriverSession::TD481X2CDriverSession(ViSession handle) : tvr::DriverSession(handle, kSettings) {}

ViStatus TD481X2CDriverSession::OpenIo() {
  ViStatus status = tvr::DriverSession::OpenIo();
  if (status < 0 || GetSimulate()) return status;

  const ViSession instrument = InstrumentSession();
  ViUInt16 interface_type = 0;
  status = viGetAttribute(instrument, VI_ATTR_INTF_TYPE, &interface_type);
  if (status < 0) return status;
  ViChar resource_class[VI_FIND_BUFLEN] = "";
  status = viGetAttribute(instrument, VI_ATTR_RSRC_CLASS, resource_class);
  if (status < 0) return status;

  if (interface_type == VI_INTF_TCPIP && tvr::EqualIgnoringCase(resource_class, "SOCKET")) {
    status = viSetAttribute(instrument, VI_ATTR_TERMCHAR, '\n');
    if (status >= 0) status = viSetAttribute(instrument, VI_ATTR_TERMCHAR_EN, VI_TRUE);
  }
  return status;
}
