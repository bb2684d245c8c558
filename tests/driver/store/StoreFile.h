// A configuration store in a file of its own, which the driver finds through the process's environment.
#pragma once

#include <string>
#include <vector>

namespace kvtd::test {

struct StoredSession {
  std::string name = "BenchSession";
  std::string logical_name = "SigGen1";
  std::string resource = {};  // empty: no hardware asset
  std::string module = "p1";  // the module's id; another one dangles
  bool cache = true;
  bool interchange_check = false;
  bool query_instr_status = false;
  bool range_check = true;
  bool record_coercions = false;
  bool simulate = false;
  std::string driver_setup = {};
  std::string virtual_names = {};  // elements
  std::string settings = {};       // elements of "Configurable Initial Settings"; empty: no such structure
};

struct StoredModule {
  std::string name = "KVTD481X2C";
  std::string settings = {};
};

std::string VirtualName(const std::string& name, const std::string& maps_to);
std::string VirtualRange(const std::string& name, const std::string& maps_to, int min, int max, int first_physical);
// `kind` is String, Integer, Real or Boolean.
std::string Setting(const std::string& kind, const std::string& name, const std::string& value);

std::string StoreText(const StoredModule& module, const std::vector<StoredSession>& sessions);

// Written where the environment then points to, until the end of the scope.
class StoreFile {
 public:
  explicit StoreFile(const std::string& text);
  ~StoreFile();
  StoreFile(const StoreFile&) = delete;
  StoreFile& operator=(const StoreFile&) = delete;

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace kvtd::test
