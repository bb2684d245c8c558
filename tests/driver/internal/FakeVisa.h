// The nine functions that the driver asks of VISA, in place of a VISA library. They note every call as a line of text
// and answer well, or as a test tells them to.
#pragma once

#include <visa.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace kvtd::test {

struct FakeVisa {
  static constexpr ViSession kResourceManager = 100;
  static constexpr ViSession kInstrument = 200;

  // Every call as "function session arguments", formats as they stand and line feeds included.
  std::vector<std::string> calls;
  // The status of a call whose line begins so, good or bad. A failed call does nothing else.
  std::map<std::string, ViStatus> statuses;

  ViUInt16 interface_type = VI_INTF_TCPIP;
  std::string resource_class = "SOCKET";
  // The fields of "*IDN?".
  std::vector<std::string> identity{"Kelvora", "TD48142C", "SN4711", "1.2.3"};
  // What numbers and texts are scanned from.
  std::string answer = "1";

  // The directives of all formats, apart by direction. One that is in neither list of the implementation stands here
  // with all that follows it.
  std::set<std::string> written;
  std::set<std::string> scanned;

  // The calls whose lines begin so.
  std::vector<std::string> CallsOf(const std::string& beginning) const;
};

// The one of the process.
FakeVisa& Visa();

}  // namespace kvtd::test
