// TCPIP ... INSTR: what HiSLIP and VXI-11 have in common.
#pragma once

#include <visa.h>

#include <atomic>
#include <string>

#include "tcp_stream.h"
#include "transport.h"

namespace tvr::visa {

class InstrTransport : public Transport {
 public:
  bool CarriesEnd() const override { return true; }
  ViStatus GetAttribute(ViAttr attribute, void* value) override;
  ViStatus SetAttribute(ViAttr attribute, ViAttrState value, ViUInt32 timeout_ms) override;

 protected:
  explicit InstrTransport(const ResourceName& resource) : host_(resource.host), device_name_(resource.device_name) {}

  // The connection that tells where the device is.
  virtual const TcpStream& stream() const = 0;

  const std::string host_;
  const std::string device_name_;
  std::atomic<bool> suppress_end_{false};  // read by GetAttribute while a call is at work
};

}  // namespace tvr::visa
