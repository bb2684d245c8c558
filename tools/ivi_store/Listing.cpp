#include "Listing.h"

#include <algorithm>
#include <map>
#include <variant>

#include "StoreDocument.h"

namespace {

using tvrivi::AnySession;
using tvrivi::DriverSession;
using tvrivi::Session;

const Session& SessionOf(const AnySession& any) {
  return std::visit([](const auto* session) -> const Session& { return *session; }, any);
}

const DriverSession* DriverOf(const AnySession& any) {
  const auto* driver = std::get_if<const DriverSession*>(&any);
  return driver == nullptr ? nullptr : *driver;
}

std::string ResourceOf(const Session& session) {
  return session.hardware_asset == nullptr ? "(no hardware asset)" : session.hardware_asset->resource_descriptor;
}

const char* YesNo(bool value) { return value ? "yes" : "no"; }

std::string ValueOf(const tvrivi::DataComponent& component) {
  if (const auto* text = std::get_if<std::string>(&component.value)) return *text;
  if (const auto* flag = std::get_if<bool>(&component.value)) return *flag ? "1" : "0";
  if (const auto* integer = std::get_if<ViInt32>(&component.value)) return std::to_string(*integer);
  if (const auto* real = std::get_if<ViReal64>(&component.value)) return std::to_string(*real);
  return {};
}

void PrintVirtualName(std::ostream& out, const tvrivi::VirtualName& name) {
  if (name.ranges.empty()) out << "  virtual name         " << name.name << " = " << name.map_to << '\n';
  for (const tvrivi::VirtualRange& range : name.ranges) {
    const long long last = static_cast<long long>(range.starting_physical_index) + range.max - range.min;
    out << "  virtual name         " << name.name << range.min << " to " << name.name << range.max << " = "
        << name.map_to << range.starting_physical_index << " to " << name.map_to << last << '\n';
  }
}

void PrintInitialSettings(std::ostream& out, const std::vector<tvrivi::DataComponent>& components) {
  for (const tvrivi::DataComponent& component : components) {
    const auto* settings = std::get_if<tvrivi::DataComponent::Structure>(&component.value);
    if (settings == nullptr || component.name != "Configurable Initial Settings") continue;
    for (const tvrivi::DataComponent& setting : *settings) {
      out << "  initial setting      " << setting.name << " = " << ValueOf(setting) << '\n';
    }
  }
}

}  // namespace

void PrintList(std::ostream& out, const tvrivi::Model& model) {
  std::map<std::string, AnySession> names;  // sorted; a logical name wins over a session of the same name
  for (const auto& [name, session] : model.session_of_logical_name) names.emplace(name, session);
  for (const DriverSession& session : model.driver_sessions) names.emplace(session.name, &session);
  std::size_t width = 0;
  for (const auto& [name, session] : names) width = std::max(width, name.size());
  for (const auto& [name, session] : names) {
    const DriverSession* driver = DriverOf(session);
    out << name << std::string(width - name.size() + 2, ' ') << ResourceOf(SessionOf(session))
        << (driver != nullptr && driver->simulate ? "  simulated" : "")
        << (driver == nullptr ? "  no driver session" : "") << '\n';
  }
}

void PrintSession(std::ostream& out, const tvrivi::Model& model, const std::string& name) {
  auto found = model.session_of_logical_name.find(name);
  const bool logical = found != model.session_of_logical_name.end();
  if (!logical) found = model.session_of_name.find(name);
  if (!logical && found == model.session_of_name.end()) {
    throw Refusal("there is no logical name and no session '" + name + "'");
  }
  const Session& session = SessionOf(found->second);
  out << (logical ? "logical name           " : "session                ") << name << '\n'
      << "  session              " << session.name << '\n'
      << "  description          " << session.description << '\n'
      << "  software module      "
      << (session.software_module == nullptr ? session.software_module_name + " (not in the store)"
                                             : session.software_module->name)
      << '\n'
      << "  resource             " << ResourceOf(session) << '\n';
  if (const DriverSession* driver = DriverOf(found->second)) {
    out << "  driver setup         " << driver->driver_setup << '\n'
        << "  simulate             " << YesNo(driver->simulate) << '\n'
        << "  cache                " << YesNo(driver->cache) << '\n'
        << "  query instr status   " << YesNo(driver->query_instr_status) << '\n'
        << "  range check          " << YesNo(driver->range_check) << '\n'
        << "  record coercions     " << YesNo(driver->record_coercions) << '\n'
        << "  interchange check    " << YesNo(driver->interchange_check) << '\n';
  }
  for (const tvrivi::VirtualName& virtual_name : session.virtual_names) PrintVirtualName(out, virtual_name);
  PrintInitialSettings(out, session.data_components);
}

void PrintCheck(std::ostream& out, const tvrivi::Model& model, const std::string& location) {
  const auto is_driver = [](const tvrivi::SoftwareModule& module) { return module.name == "KVTD481X2C"; };
  if (std::none_of(model.software_modules.begin(), model.software_modules.end(), is_driver)) {
    out << "warning: without the software module KVTD481X2C the driver opens no plain resource descriptor\n";
  }
  for (const DriverSession& session : model.driver_sessions) {
    if (session.software_module == nullptr) {
      out << "warning: session '" << session.name << "' has no software module and cannot be opened\n";
    }
    if (session.hardware_asset == nullptr && !session.simulate) {
      out << "warning: session '" << session.name << "' has no hardware asset and is not simulated\n";
    }
    if (session.interchange_check) {
      out << "warning: session '" << session.name << "' asks for interchange checking, which the driver refuses\n";
    }
  }
  for (const std::string& name : model.names_of_logical_names) {
    if (!model.session_of_logical_name.contains(name)) {
      out << "warning: logical name '" << name << "' refers to no session\n";
    }
  }
  out << location << ": good, " << model.driver_sessions.size() << " driver sessions, "
      << model.names_of_logical_names.size() << " logical names\n";
}
