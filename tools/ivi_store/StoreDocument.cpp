#include "StoreDocument.h"

#include <algorithm>
#include <charconv>
#include <sstream>
#include <string_view>

#include "config/BuiltInStore.h"
#include "config/StoreFile.h"
#include "config/StoreReader.h"

namespace {

constexpr const char* kDriver = "KVTD481X2C";

tvrivi::StoreSource SourceOf(const std::string& location) {
  std::optional<std::string> text = tvrivi::ReadFile(location);
  if (!text) throw tvrivi::StoreError(location + ": no such file; 'ivi-store init' makes one");
  return {location, std::move(*text)};
}

void AddText(pugi::xml_node parent, const char* name, const std::string& text) {
  const pugi::xml_node child = parent.append_child(name);
  if (!text.empty()) child.text().set(text.c_str());
}

void AddReference(pugi::xml_node parent, const char* name, const std::string& id) {
  parent.append_child(name).append_attribute("idref").set_value(id.c_str());
}

pugi::xml_node AddObject(pugi::xml_node section, const char* name, const std::string& id) {
  pugi::xml_node object = section.append_child(name);
  object.append_attribute("id").set_value(id.c_str());
  return object;
}

// The text of a child as the component reads it, which may be in pieces.
std::string TextOf(pugi::xml_node parent, const char* name) {
  std::string text;
  for (const pugi::xml_node piece : parent.child(name).children()) {
    if (piece.type() == pugi::node_pcdata || piece.type() == pugi::node_cdata) text += piece.value();
  }
  return text;
}

pugi::xml_node ObjectOfName(pugi::xml_node section, const std::string& name) {
  return section.find_child([&](pugi::xml_node object) {
    return object.type() == pugi::node_element && !object.attribute("idref") && TextOf(object, "Name") == name;
  });
}

// Where a child of one of the names leads to.
template <typename... Names>
std::string IdReferredBy(pugi::xml_node object, Names... names) {
  for (const char* name : {names...}) {
    if (const pugi::xml_attribute idref = object.child(name).attribute("idref")) return idref.value();
  }
  return {};
}

}  // namespace

StoreDocument::StoreDocument(const std::string& location) : location_(location) {
  const tvrivi::StoreSource source = SourceOf(location);
  tvrivi::ParseStore(source, document_);
  model_ = tvrivi::ReadStore(source, document_);
}

pugi::xml_node StoreDocument::Section(const char* name) {
  pugi::xml_node root = document_.document_element();
  const pugi::xml_node section = root.child(name);
  return section ? section : root.append_child(name);
}

// Stores number their objects p1, p2 and so on; ids of another form cannot meet one of these.
std::string StoreDocument::NewId() const {
  unsigned long long highest = 0;
  document_.find_node([&](pugi::xml_node node) {
    const std::string_view id = node.attribute("id").value();
    unsigned long long number = 0;
    if (id.starts_with('p') && std::from_chars(id.data() + 1, id.data() + id.size(), number).ec == std::errc()) {
      highest = std::max(highest, number);
    }
    return false;
  });
  return "p" + std::to_string(highest + 1);
}

std::string StoreDocument::SoftwareModuleId() {
  pugi::xml_node module = ObjectOfName(Section("SoftwareModules"), kDriver);
  if (!module) {
    pugi::xml_document built_in;
    tvrivi::ParseStore({"built-in store", std::string(tvrivi::BuiltInStore())}, built_in);
    const std::string id = NewId();
    module = Section("SoftwareModules")
                 .append_copy(ObjectOfName(built_in.document_element().child("SoftwareModules"), kDriver));
    module.attribute("id").set_value(id.c_str());
  }
  if (!module.attribute("id")) module.append_attribute("id").set_value(NewId().c_str());
  return module.attribute("id").value();
}

void StoreDocument::AddSession(const NewSession& session) {
  if (ObjectOfName(Section("LogicalNames"), session.name)) {
    throw Refusal("there is a logical name '" + session.name + "' already");
  }
  if (model_.session_of_name.contains(session.name)) {
    throw Refusal("there is a session '" + session.name + "' already");
  }
  if (ObjectOfName(Section("HardwareAssets"), session.name)) {
    throw Refusal("there is a hardware asset '" + session.name + "' already");
  }
  const std::string module_id = SoftwareModuleId();

  const std::string asset_id = NewId();
  pugi::xml_node asset = AddObject(Section("HardwareAssets"), "IviHardwareAsset", asset_id);
  AddText(asset, "Name", session.name);
  AddText(asset, "Description", "");
  AddText(asset, "DataComponents", "");
  AddText(asset, "IOResourceDescriptor", session.resource);

  const std::string session_id = NewId();
  pugi::xml_node driver = AddObject(Section("DriverSessions"), "IviDriverSession", session_id);
  AddText(driver, "Name", session.name);
  AddText(driver, "Description", "");
  AddText(driver, "DataComponents", "");
  AddReference(driver, "IviHardwareAsset", asset_id);
  AddReference(driver, "IviSoftwareModuleRef", module_id);
  AddText(driver, "VirtualNames", "");
  AddText(driver, "SoftwareModuleName", kDriver);
  AddText(driver, "Cache", "1");
  AddText(driver, "DriverSetup", session.setup);
  AddText(driver, "InterchangeCheck", "0");
  AddText(driver, "QueryInstrStatus", "0");
  AddText(driver, "RangeCheck", "1");
  AddText(driver, "RecordCoercions", "0");
  AddText(driver, "Simulate", session.simulate ? "1" : "0");
  AddReference(Section("Sessions"), "IviDriverSession", session_id);

  pugi::xml_node name = AddObject(Section("LogicalNames"), "IviLogicalName", NewId());
  AddText(name, "Name", session.name);
  AddText(name, "Description", "");
  AddReference(name, "IviDriverSession", session_id);
}

bool StoreDocument::IsReferredTo(const std::string& id) const {
  return document_.find_node([&](pugi::xml_node node) { return id == node.attribute("idref").value(); });
}

void StoreDocument::RemoveSession(const std::string& name) {
  pugi::xml_node logical_name = ObjectOfName(Section("LogicalNames"), name);
  pugi::xml_node driver = ObjectOfName(Section("DriverSessions"), name);
  if (logical_name) {
    const std::string id =
        IdReferredBy(logical_name, "IviDriverSession", "IviDriverSessionRef", "IviSession", "IviSessionRef");
    driver = Section("DriverSessions").find_child_by_attribute("id", id.c_str());
    Section("LogicalNames").remove_child(logical_name);
  } else if (!driver) {
    throw Refusal("there is no logical name and no driver session '" + name + "'");
  }
  if (!driver) return;

  const std::string session_id = driver.attribute("id").value();
  if (!session_id.empty()) {
    const auto refers = [&](pugi::xml_node object) {
      return session_id ==
             IdReferredBy(object, "IviDriverSession", "IviDriverSessionRef", "IviSession", "IviSessionRef");
    };
    const pugi::xml_node other = Section("LogicalNames").find_child(refers);
    if (other && logical_name) return;  // another logical name needs the session
    if (other) throw Refusal("the logical name '" + TextOf(other, "Name") + "' refers to the session '" + name + "'");
    while (pugi::xml_node reference = Section("Sessions").find_child_by_attribute("idref", session_id.c_str())) {
      Section("Sessions").remove_child(reference);
    }
  }
  const std::string asset_id = IdReferredBy(driver, "IviHardwareAsset", "IviHardwareAssetRef");
  Section("DriverSessions").remove_child(driver);
  if (asset_id.empty() || IsReferredTo(asset_id)) return;
  Section("HardwareAssets").remove_child(Section("HardwareAssets").find_child_by_attribute("id", asset_id.c_str()));
}

void StoreDocument::Save() {
  std::ostringstream text;
  document_.save(text, "  ", pugi::format_default, pugi::encoding_utf8);
  const tvrivi::StoreSource result{location_ + " as it would become", text.str()};
  pugi::xml_document read_back;
  tvrivi::ParseStore(result, read_back);
  model_ = tvrivi::ReadStore(result, read_back);
  tvrivi::ReplaceFile(location_, result.text);
}
