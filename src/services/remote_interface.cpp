// The instrument's own network and GPIB settings. Text arguments go out as quoted strings.

#include <string>

#include "KVTD481X2C.h"
#include "Tvr.h"
#include "handlers.h"
#include "operations.h"

using namespace tvr::operation;

namespace {

constexpr char kThreeTexts[] = "First, Second, Third";

// A text that came with quotes of its own is not quoted twice.
std::string QuoteArgument(std::string_view text) {
  return std::string("\"").append(tvr::TrimString(text, "\" ")).append("\"");
}

ViStatus WriteList(const tvr::Operation& operation, ViSession vi, ViConstString list) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (tvr::SessionOf(vi).GetSimulate()) return VI_SUCCESS;
  const ViStatus status = tvr::CheckNullParameters(vi, operation.function, "List", {list});
  if (status < 0) return status;
  return tvr::WriteAndCheck(vi, operation.write, QuoteList(list).c_str());
}

}  // namespace

std::string QuoteList(ViConstString text) {
  std::string quoted;
  for (const std::string& field : tvr::SplitString(text, ',', true)) {
    if (!quoted.empty()) quoted.append(",");
    quoted.append(QuoteArgument(field));
  }
  return quoted;
}

ViStatus KVTD481X2C_GetCurrentLanConfiguration(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]) {
  return tvr::RunTextQuery(kGetCurrentLanConfiguration, Vi, ValBufferSize, Val);
}

ViStatus KVTD481X2C_GetStaticLanConfiguration(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]) {
  return tvr::RunTextQuery(kGetStaticLanConfiguration, Vi, ValBufferSize, Val);
}

ViStatus KVTD481X2C_GetDnsConfiguration(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]) {
  return tvr::RunTextQuery(kGetDnsConfiguration, Vi, ValBufferSize, Val);
}

// Kept on purpose: a third argument behind an empty second one is dropped, and the status is that of the write alone.
ViStatus KVTD481X2C_SetStaticLanConfiguration(ViSession Vi, ViConstString First, ViConstString Second,
                                              ViConstString Third) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  if (tvr::SessionOf(Vi).GetSimulate()) return VI_SUCCESS;
  const ViStatus status =
      tvr::CheckNullParameters(Vi, kSetStaticLanConfiguration.function, kThreeTexts, {First, Second, Third});
  if (status < 0) return status;
  std::string command = ":SYST:COMM:LAN:CONF " + QuoteArgument(First);
  if (*Second != '\0') {
    command.append(",").append(QuoteArgument(Second));
    if (*Third != '\0') command.append(",").append(QuoteArgument(Third));
  }
  return viPrintf(tvr::InstrumentOf(Vi), kSetStaticLanConfiguration.write, command.c_str());
}

ViStatus KVTD481X2C_ConfigureDns(ViSession Vi, ViConstString First, ViConstString Second, ViConstString Third) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  if (tvr::SessionOf(Vi).GetSimulate()) return VI_SUCCESS;
  const ViStatus status = tvr::CheckNullParameters(Vi, kConfigureDns.function, kThreeTexts, {First, Second, Third});
  if (status < 0) return status;
  return tvr::WriteAndCheck(Vi, kConfigureDns.write, QuoteArgument(First).c_str(), QuoteArgument(Second).c_str(),
                            QuoteArgument(Third).c_str());
}

ViStatus KVTD481X2C_AddDnsServers(ViSession Vi, ViConstString List) { return WriteList(kAddDnsServers, Vi, List); }

ViStatus KVTD481X2C_RemoveDnsServers(ViSession Vi, ViConstString List) {
  return WriteList(kRemoveDnsServers, Vi, List);
}
