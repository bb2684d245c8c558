#ifndef TVRIVI_CONFIG_MODEL_H
#define TVRIVI_CONFIG_MODEL_H

// What a configuration store says, as far as a driver can ask for it. Built once by the reader and never changed:
// handles point into it.

#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "IviVisaType.h"

namespace tvrivi {

struct DataComponent {
  using Structure = std::vector<DataComponent>;

  std::string name;
  std::string description;
  ViInt32 help_context_id = 0;
  std::string help_file_path;
  bool read_only = false;
  std::string software_module_key;
  std::string type;  // "Structure", "Boolean", "Integer", "Real", "String" or "APIReference"
  std::string used_in_session;
  std::string units;
  std::variant<std::string, bool, ViInt32, ViReal64, Structure> value;  // by the type; a reference to an API is text
};

struct VirtualRange {
  std::string name;
  ViInt32 min = 0;
  ViInt32 max = 0;
  ViInt32 starting_physical_index = 0;
};

struct VirtualName {
  std::string name;
  std::string map_to;
  std::vector<VirtualRange> ranges;
};

struct PhysicalName {
  std::string name;
  std::string rc_name;
};

struct SoftwareModule {
  std::string name;
  std::vector<DataComponent> data_components;
  std::vector<PhysicalName> physical_names;
};

struct HardwareAsset {
  std::string name;
  std::string description;
  std::string resource_descriptor;
  std::vector<DataComponent> data_components;
};

struct Session {
  std::string name;
  std::string description;
  std::string software_module_name;
  const HardwareAsset* hardware_asset = nullptr;    // may stay null
  const SoftwareModule* software_module = nullptr;  // null when the module was uninstalled
  std::vector<VirtualName> virtual_names;
  std::vector<DataComponent> data_components;
};

struct DriverSession : Session {
  bool cache = false;
  bool interchange_check = false;
  bool query_instr_status = false;
  bool range_check = false;
  bool record_coercions = false;
  bool simulate = false;
  std::string driver_setup;
};

using AnySession = std::variant<const Session*, const DriverSession*>;

/// What the store says of itself.
struct StoreIdentity {
  std::string name;
  std::string description;
  std::string vendor;
  std::string revision;
  ViInt32 major_version = 0;
  ViInt32 minor_version = 0;
};

struct Model {
  StoreIdentity identity;
  std::vector<SoftwareModule> software_modules;
  std::vector<HardwareAsset> hardware_assets;
  std::vector<DriverSession> driver_sessions;
  std::vector<Session> sessions;  // those that are no driver sessions

  // Keys are the names held by the objects above; a logical name's by names_of_logical_names.
  std::unordered_map<std::string_view, AnySession> session_of_name;
  std::vector<std::string> names_of_logical_names;
  std::unordered_map<std::string_view, AnySession> session_of_logical_name;

  Model() = default;
  Model(Model&&) = default;
  Model& operator=(Model&&) = default;
  Model(const Model&) = delete;
  Model& operator=(const Model&) = delete;
};

}  // namespace tvrivi

#endif
