#include "StoreFile.h"

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace kvtd::test {
namespace {

std::string Element(const std::string& name, const std::string& text) {
  return "<" + name + ">" + text + "</" + name + ">";
}

std::string Flag(const std::string& name, bool value) { return Element(name, value ? "1" : "0"); }

std::string NextId() {
  static int next = 100;
  return "p" + std::to_string(next++);
}

std::string Components(const std::string& settings) {
  if (settings.empty()) return "<DataComponents/>";
  return "<DataComponents><IviStructure id=\"" + NextId() + "\"><Name>Configurable Initial Settings</Name>" +
         "<UsedInSession>None</UsedInSession><Type>Structure</Type><DataComponents>" + settings +
         "</DataComponents></IviStructure></DataComponents>";
}

std::string VirtualNameElement(const std::string& name, const std::string& maps_to, const std::string& ranges) {
  return "<IviVirtualName id=\"" + NextId() + "\">" + Element("Name", name) + Element("MapTo", maps_to) +
         Element("VirtualRanges", ranges) + "</IviVirtualName>";
}

}  // namespace

std::string VirtualName(const std::string& name, const std::string& maps_to) {
  return VirtualNameElement(name, maps_to, "");
}

std::string VirtualRange(const std::string& name, const std::string& maps_to, int min, int max, int first_physical) {
  return VirtualNameElement(name, maps_to,
                            "<IviVirtualRange id=\"" + NextId() + "\">" + Element("Name", "range") +
                                Element("Max", std::to_string(max)) + Element("Min", std::to_string(min)) +
                                Element("StartingPhysicalIndex", std::to_string(first_physical)) +
                                "</IviVirtualRange>");
}

std::string Setting(const std::string& kind, const std::string& name, const std::string& value) {
  return "<Ivi" + kind + " id=\"" + NextId() + "\">" + Element("Name", name) + Element("Type", kind) +
         Element("UsedInSession", "Optional") + Element("Value", value) + "</Ivi" + kind + ">";
}

std::string StoreText(const StoredModule& module, const std::vector<StoredSession>& sessions) {
  std::string assets;
  std::string drivers;
  std::string names;
  for (const StoredSession& session : sessions) {
    const std::string id = NextId();
    std::string asset_reference;
    if (!session.resource.empty()) {
      const std::string asset = NextId();
      assets += "<IviHardwareAsset id=\"" + asset + "\">" + Element("Name", "asset of " + session.name) +
                Element("IOResourceDescriptor", session.resource) + "</IviHardwareAsset>";
      asset_reference = "<IviHardwareAsset idref=\"" + asset + "\"/>";
    }
    drivers += "<IviDriverSession id=\"" + id + "\">" + Element("Name", session.name) + Components(session.settings) +
               asset_reference + "<IviSoftwareModuleRef idref=\"" + session.module + "\"/>" +
               Element("VirtualNames", session.virtual_names) + Element("SoftwareModuleName", module.name) +
               Flag("Cache", session.cache) + Element("DriverSetup", session.driver_setup) +
               Flag("InterchangeCheck", session.interchange_check) +
               Flag("QueryInstrStatus", session.query_instr_status) + Flag("RangeCheck", session.range_check) +
               Flag("RecordCoercions", session.record_coercions) + Flag("Simulate", session.simulate) +
               "</IviDriverSession>";
    names += "<IviLogicalName id=\"" + NextId() + "\">" + Element("Name", session.logical_name) +
             "<IviDriverSession idref=\"" + id + "\"/></IviLogicalName>";
  }
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<IviConfigStore><Name>Store</Name><PublishedAPIs/>"
         "<SoftwareModules><IviSoftwareModule id=\"p1\">" +
         Element("Name", module.name) + Components(module.settings) + Element("Prefix", module.name) +
         "<PhysicalNames/><PublishedAPIs/></IviSoftwareModule></SoftwareModules>" + Element("HardwareAssets", assets) +
         Element("DriverSessions", drivers) + "<Sessions/>" + Element("LogicalNames", names) + "</IviConfigStore>\n";
}

StoreFile::StoreFile(const std::string& text) {
  char path[] = "/tmp/kvtd_store_XXXXXX";
  const int file = ::mkstemp(path);
  if (file < 0 || ::write(file, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    throw std::runtime_error("cannot write a store");
  }
  ::close(file);
  path_ = path;
  ::setenv("IVICONFIGSERVERDEFAULT", path, 1);
}

StoreFile::~StoreFile() {
  ::unsetenv("IVICONFIGSERVERDEFAULT");
  ::unlink(path_.c_str());
}

}  // namespace kvtd::test
