#include "vxi11_port.h"

#include <netinet/in.h>
#include <rpc/rpc.h>
// Needs the former.
#include <rpc/pmap_prot.h>

#include <charconv>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "vxi11_rpc.h"
#include "xdr/vxi11.h"

namespace tvr::visa::vxi11 {
namespace {

std::optional<ViUInt16> PortFromEnvironment() {
  const char* const value = std::getenv("TVR_VISA_VXI11_PORT");
  if (value == nullptr) return std::nullopt;
  const std::string_view text(value);
  ViUInt16 port = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
  if (error != std::errc() || end != text.data() + text.size() || port == 0) return std::nullopt;
  return port;
}

}  // namespace

ViStatus FindCorePort(const std::string& host, ViUInt16 mapper_port, Interruption& interruption, Deadline& deadline,
                      ViUInt16& port) {
  if (const auto told = PortFromEnvironment()) {
    port = *told;
    return VI_SUCCESS;
  }
  RpcCaller mapper(interruption, PMAPPROG, PMAPVERS, 512);
  if (const ViStatus status = mapper.stream().Connect(host, mapper_port, deadline); status < 0) return status;
  struct pmap wanted {
    DEVICE_CORE, DEVICE_CORE_VERSION, IPPROTO_TCP, 0
  };
  if (const ViStatus status = mapper.Send(PMAPPROC_GETPORT, xdr_pmap, wanted, deadline); status < 0) return status;
  u_int answer = 0;
  if (const ViStatus status = mapper.Receive(xdr_u_int, answer, deadline); status < 0) return status;
  port = static_cast<ViUInt16>(answer);
  return answer == 0 || answer > 0xFFFF ? VI_ERROR_RSRC_NFOUND : VI_SUCCESS;
}

}  // namespace tvr::visa::vxi11
