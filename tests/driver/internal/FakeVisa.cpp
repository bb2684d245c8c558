#include "FakeVisa.h"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace kvtd::test {
namespace {

// What the driver writes and scans with. It may use no more, as not every VISA library knows more.
constexpr std::array<std::string_view, 6> kWriteDirectives = {"%0.15lg", "%ld", "%4ld", "%s", "%0.15,*lf", "%*b"};
constexpr std::array<std::string_view, 9> kScanDirectives = {"%lf",      "%ld", "%hd", "%#[^\n]", "%#[^\n,]",
                                                             "%256[^,]", "%*t", "%*T", "%#b"};

template <std::size_t N>
std::vector<std::string> Directives(std::string_view format, const std::array<std::string_view, N>& known,
                                    std::set<std::string>& seen) {
  std::vector<std::string> found;
  for (std::size_t at = format.find('%'); at != std::string_view::npos; at = format.find('%', at + 1)) {
    const auto* directive = std::find_if(
        known.begin(), known.end(), [rest = format.substr(at)](std::string_view one) { return rest.starts_with(one); });
    found.emplace_back(directive == known.end() ? format.substr(at) : *directive);
    seen.insert(found.back());
  }
  return found;
}

// Passes over the arguments of a format that is written.
void SkipWritten(std::string_view format, va_list* arguments) {
  for (const std::string& directive : Directives(format, kWriteDirectives, Visa().written)) {
    if (directive.ends_with("ld")) va_arg(*arguments, ViInt32);
    if (directive == "%0.15lg") va_arg(*arguments, ViReal64);
    if (directive == "%s") va_arg(*arguments, const char*);
    if (directive.find('*') != std::string::npos) {
      va_arg(*arguments, ViInt32);
      va_arg(*arguments, const void*);
    }
  }
}

void Scan(std::string_view format, bool identity, va_list* arguments) {
  const FakeVisa& visa = Visa();
  std::size_t field = 0;
  for (const std::string& directive : Directives(format, kScanDirectives, Visa().scanned)) {
    if (directive == "%lf") *va_arg(*arguments, ViReal64*) = std::atof(visa.answer.c_str());
    if (directive == "%ld") *va_arg(*arguments, ViInt32*) = std::atoi(visa.answer.c_str());
    if (directive == "%hd") *va_arg(*arguments, ViInt16*) = static_cast<ViInt16>(std::atoi(visa.answer.c_str()));
    if (directive == "%256[^,]") {
      char* const text = va_arg(*arguments, char*);
      std::strcpy(text, identity ? visa.identity.at(field++).c_str() : visa.answer.c_str());
    }
    if (directive.starts_with("%#")) {
      ViInt32& size = *va_arg(*arguments, ViInt32*);
      char* const text = va_arg(*arguments, char*);
      const bool terminated = directive != "%#b";
      const ViInt32 room = terminated ? size - 1 : size;
      size = std::clamp(static_cast<ViInt32>(visa.answer.size()), 0, std::max(room, 0));
      std::memcpy(text, visa.answer.data(), static_cast<std::size_t>(size));
      if (terminated && room >= 0) text[size] = '\0';
    }
  }
}

const char* AttributeName(ViAttr attribute) {
  switch (attribute) {
    case 0xBFFF0001:
      return "RSRC_CLASS";
    case 0x3FFF0018:
      return "TERMCHAR";
    case 0x3FFF001A:
      return "TMO_VALUE";
    case 0x3FFF0038:
      return "TERMCHAR_EN";
    case 0x3FFF0171:
      return "INTF_TYPE";
    default:
      return "?";
  }
}

// Notes a call and finds its status. Session 0 is none, whatever is asked of it.
ViStatus Note(const std::string& function, ViSession session, const std::string& rest) {
  const std::string line = function + ' ' + std::to_string(session) + (rest.empty() ? "" : " ") + rest;
  Visa().calls.push_back(line);
  if (session == 0) return VI_ERROR_INV_OBJECT;
  for (const auto& [beginning, status] : Visa().statuses) {
    if (line.starts_with(beginning)) return status;
  }
  return VI_SUCCESS;
}

}  // namespace

FakeVisa& Visa() {
  static FakeVisa visa;
  return visa;
}

std::vector<std::string> FakeVisa::CallsOf(const std::string& beginning) const {
  std::vector<std::string> found;
  for (const std::string& call : calls) {
    if (call.starts_with(beginning)) found.push_back(call);
  }
  return found;
}

}  // namespace kvtd::test

using kvtd::test::FakeVisa;
using kvtd::test::Note;
using kvtd::test::Visa;

extern "C" {

ViStatus _VI_FUNC viOpenDefaultRM(ViPSession sesn) {
  const ViStatus status = Note("viOpenDefaultRM", FakeVisa::kResourceManager, "");
  if (status >= 0) *sesn = FakeVisa::kResourceManager;
  return status;
}

ViStatus _VI_FUNC viOpen(ViSession sesn, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi) {
  const ViStatus status =
      Note("viOpen", sesn, std::string(name) + " mode " + std::to_string(mode) + " timeout " + std::to_string(timeout));
  if (status >= 0) *vi = FakeVisa::kInstrument;
  return status;
}

ViStatus _VI_FUNC viClose(ViObject vi) { return Note("viClose", vi, ""); }

ViStatus _VI_FUNC viGetAttribute(ViObject vi, ViAttr attr, void* value) {
  const std::string name = kvtd::test::AttributeName(attr);
  const ViStatus status = Note("viGetAttribute", vi, name);
  if (status < 0) return status;
  if (name == "INTF_TYPE") *static_cast<ViUInt16*>(value) = Visa().interface_type;
  if (name == "RSRC_CLASS") std::strcpy(static_cast<char*>(value), Visa().resource_class.c_str());
  if (name == "TMO_VALUE") *static_cast<ViUInt32*>(value) = 4711;
  if (name == "TERMCHAR_EN") *static_cast<ViBoolean*>(value) = VI_FALSE;
  return status;
}

ViStatus _VI_FUNC viSetAttribute(ViObject vi, ViAttr attr, ViAttrState value) {
  return Note("viSetAttribute", vi, kvtd::test::AttributeName(attr) + (' ' + std::to_string(value)));
}

ViStatus _VI_FUNCC viPrintf(ViSession vi, ViConstString writeFmt, ...) {
  const ViStatus status = Note("viPrintf", vi, writeFmt);
  va_list arguments;
  va_start(arguments, writeFmt);
  kvtd::test::SkipWritten(writeFmt, &arguments);
  va_end(arguments);
  return status;
}

ViStatus _VI_FUNCC viQueryf(ViSession vi, ViConstString writeFmt, ViConstString readFmt, ...) {
  const ViStatus status = Note("viQueryf", vi, std::string(writeFmt) + readFmt);
  if (status < 0) return status;
  va_list arguments;
  va_start(arguments, readFmt);
  kvtd::test::SkipWritten(writeFmt, &arguments);
  kvtd::test::Scan(readFmt, std::string_view(writeFmt) == "*IDN?\n", &arguments);
  va_end(arguments);
  return status;
}

ViStatus _VI_FUNC viRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt) {
  const ViStatus status = Note("viRead", vi, std::to_string(cnt));
  if (status < 0) return status;
  *retCnt = std::min(cnt, static_cast<ViUInt32>(Visa().answer.size()));
  std::memcpy(buf, Visa().answer.data(), *retCnt);
  return status;
}

ViStatus _VI_FUNC viWrite(ViSession vi, ViConstBuf, ViUInt32 cnt, ViPUInt32 retCnt) {
  const ViStatus status = Note("viWrite", vi, std::to_string(cnt));
  if (status >= 0) *retCnt = cnt;
  return status;
}

}  // extern "C"
