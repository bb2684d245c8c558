// What the driver asks of the two IVI components, in place of their library: one session, and a store with one of
// everything. They note every call as a line of text and answer well, or as a test tells them to.
#pragma once

#include <IviConfigServer.h>

#include <map>
#include <string>
#include <vector>

namespace kvtd::test {

struct FakeIvi {
  struct Setting {
    std::string type;
    std::string name;
    std::string text;
  };

  static constexpr ViSession kHandle = 1;

  // Every call as "function handle", the handles of the store by their kind. The session's data pointer and error are
  // looked at so often that they are left out.
  std::vector<std::string> calls;
  // The status of a call by its function's name. A failed call does nothing else.
  std::map<std::string, ViStatus> statuses;

  // What the session holds.
  ViAddr data = nullptr;
  ViStatus error_code = VI_SUCCESS;
  std::string error_text;

  // What the store holds.
  std::string config_error = "what the component says";
  std::vector<Setting> settings;

  // The calls whose lines begin so.
  std::vector<std::string> CallsOf(const std::string& beginning) const;
};

// The one of the process.
FakeIvi& Ivi();

}  // namespace kvtd::test
