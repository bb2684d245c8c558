#include "instr_transport.h"

#include "text_out.h"

namespace tvr::visa {

ViStatus InstrTransport::GetAttribute(ViAttr attribute, void* value) {
  switch (attribute) {
    case VI_ATTR_TCPIP_ADDR:
      return PutText(value, stream().PeerAddress());
    case VI_ATTR_TCPIP_HOSTNAME:
      return PutText(value, host_ == stream().PeerAddress() ? "" : host_);
    case VI_ATTR_TCPIP_DEVICE_NAME:
      return PutText(value, device_name_);
    case VI_ATTR_SUPPRESS_END_EN:
      return PutNumber<ViBoolean>(value, suppress_end_ ? VI_TRUE : VI_FALSE);
    case VI_ATTR_TRIG_ID:
      return PutNumber<ViInt16>(value, VI_TRIG_SW);
    default:
      return VI_ERROR_NSUP_ATTR;
  }
}

ViStatus InstrTransport::SetAttribute(ViAttr attribute, ViAttrState value, ViUInt32 /*timeout_ms*/) {
  switch (attribute) {
    case VI_ATTR_TCPIP_ADDR:
    case VI_ATTR_TCPIP_HOSTNAME:
    case VI_ATTR_TCPIP_DEVICE_NAME:
    case VI_ATTR_TCPIP_IS_HISLIP:
      return VI_ERROR_ATTR_READONLY;
    case VI_ATTR_SUPPRESS_END_EN:
      if (value > VI_TRUE) return VI_ERROR_NSUP_ATTR_STATE;
      suppress_end_ = value == VI_TRUE;
      return VI_SUCCESS;
    case VI_ATTR_TRIG_ID:
      return static_cast<ViInt16>(value) == VI_TRIG_SW ? VI_SUCCESS : VI_ERROR_NSUP_ATTR_STATE;
    default:
      return VI_ERROR_NSUP_ATTR;
  }
}

}  // namespace tvr::visa
