#include "config/StoreReader.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "config/ElementReader.h"

namespace tvrivi {

namespace {

// A driver writes the names of a range out one by one.
constexpr long long kLongestRange = 100'000;

class StoreReader {
 public:
  StoreReader(const StoreSource& source, const pugi::xml_document& document)
      : source_(source), read_(source), root_(Root(document)) {}

  Model Read() {
    CollectIds(root_);
    CheckReferences();
    model_.identity = {read_.Text(root_, "Name"),
                       read_.Text(root_, "Description"),
                       read_.Text(root_, "Vendor"),
                       read_.Text(root_, "Revision"),
                       read_.Integer(root_, "SpecificationMajorVersion"),
                       read_.Integer(root_, "SpecificationMinorVersion")};
    ReadSoftwareModules();
    ReadHardwareAssets();
    ReadDriverSessions();
    ReadSessions();
    ReadLogicalNames();
    return std::move(model_);
  }

 private:
  using Names = std::unordered_set<std::string_view>;

  pugi::xml_node Root(const pugi::xml_document& document) const {
    const pugi::xml_node root = document.document_element();
    if (!root) source_.Reject(0, "no root element");
    if (std::string_view(root.name()) != "IviConfigStore") read_.Reject(root, "the root must be <IviConfigStore>");
    for (pugi::xml_node next = root.next_sibling(); next; next = next.next_sibling()) {
      if (next.type() == pugi::node_element) read_.Reject(next, "stands behind the end of the store");
    }
    return root;
  }

  // Recursion is bounded: the text was refused if it is nested too deep.
  void CollectIds(pugi::xml_node parent) {
    for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling()) {
      if (child.type() != pugi::node_element) continue;
      const char* id = child.attribute("id").value();
      if (*id != '\0' && !element_of_id_.emplace(id, child).second) {
        read_.Reject(child, "the id '" + std::string(id) + "' is given a second time");
      }
      if (child.attribute("idref")) references_.push_back(child);
      CollectIds(child);
    }
  }

  void CheckReferences() const {
    for (const pugi::xml_node reference : references_) {
      const char* id = reference.attribute("idref").value();
      if (!element_of_id_.contains(id)) read_.Reject(reference, "no element has the id '" + std::string(id) + "'");
    }
  }

  static std::size_t CountObjects(pugi::xml_node section, const char* name) {
    const auto objects = section.children(name);
    return static_cast<std::size_t>(std::count_if(objects.begin(), objects.end(), IsObject));
  }

  static bool IsObject(pugi::xml_node element) { return element.attribute("idref").empty(); }

  // The child that refers to an object of the class, under the name of the class or with "Ref" behind it.
  pugi::xml_node ReferenceTo(pugi::xml_node parent, const std::string& object_class) const {
    const pugi::xml_node plain = read_.Child(parent, object_class.c_str());
    const pugi::xml_node with_ref = read_.Child(parent, (object_class + "Ref").c_str());
    if (plain && with_ref) read_.Reject(with_ref, "stands beside <" + object_class + ">");
    return plain ? plain : with_ref;
  }

  // What the reference leads to. Without an idref an empty element refers to nothing.
  template <typename Object>
  Object Referred(pugi::xml_node reference, const std::unordered_map<std::string_view, Object>& object_of_id,
                  const char* object_class) const {
    const pugi::xml_attribute idref = reference.attribute("idref");
    if (!idref) {
      if (reference.first_child()) read_.Reject(reference, "a reference with an idref is expected here");
      return {};
    }
    const auto found = object_of_id.find(idref.value());
    if (found == object_of_id.end()) {
      read_.Reject(reference, "the element '" + std::string(idref.value()) + "' is no " + object_class + " but <" +
                                  element_of_id_.at(idref.value()).name() + ">");
    }
    return found->second;
  }

  std::string NameOf(pugi::xml_node element) const {
    std::string name = read_.Text(element, "Name");
    if (name.empty()) read_.Reject(element, "has no name");
    return name;
  }

  [[noreturn]] void RejectSecond(pugi::xml_node element, const std::string& name) const {
    read_.Reject(element, "the name '" + name + "' is given a second time");
  }

  std::vector<DataComponent> DataComponents(pugi::xml_node parent) const {
    static constexpr std::pair<std::string_view, std::string_view> kTypes[] = {
        {"IviStructure", "Structure"}, {"IviBoolean", "Boolean"}, {"IviInteger", "Integer"},
        {"IviReal", "Real"},           {"IviString", "String"},   {"IviAPIReference", "APIReference"}};
    std::vector<DataComponent> components;
    for (const pugi::xml_node element : read_.Child(parent, "DataComponents").children()) {
      const auto* type = std::find_if(std::begin(kTypes), std::end(kTypes),
                                      [&](const auto& candidate) { return candidate.first == element.name(); });
      if (type != std::end(kTypes)) components.push_back(Component(element, type->second));
    }
    return components;
  }

  DataComponent Component(pugi::xml_node element, std::string_view type) const {
    DataComponent component;
    component.name = read_.Text(element, "Name");
    component.description = read_.Text(element, "Description");
    component.help_context_id = read_.Integer(element, "HelpContextID");
    component.help_file_path = read_.Text(element, "HelpFilePath");
    component.read_only = read_.Boolean(element, "ReadOnly");
    component.software_module_key = read_.Text(element, "SoftwareModuleKey");
    component.type = type;
    component.used_in_session = read_.Text(element, "UsedInSession");
    component.units = read_.Text(element, "Units");
    if (type == "Structure") {
      component.value = DataComponents(element);
    } else if (type == "Boolean") {
      component.value = read_.Boolean(element, "Value");
    } else if (type == "Integer") {
      component.value = read_.Integer(element, "Value");
    } else if (type == "Real") {
      component.value = read_.Real(element, "Value");
    } else {
      component.value = read_.Text(element, "Value");
    }
    return component;
  }

  std::vector<VirtualName> VirtualNames(pugi::xml_node parent) const {
    std::vector<VirtualName> names;
    for (const pugi::xml_node element : read_.Child(parent, "VirtualNames").children("IviVirtualName")) {
      VirtualName& name = names.emplace_back();
      name.name = read_.Text(element, "Name");
      name.map_to = read_.Text(element, "MapTo");
      for (const pugi::xml_node range : read_.Child(element, "VirtualRanges").children("IviVirtualRange")) {
        name.ranges.push_back(Range(range));
      }
    }
    return names;
  }

  VirtualRange Range(pugi::xml_node element) const {
    VirtualRange range;
    range.name = read_.Text(element, "Name");
    range.min = read_.Integer(element, "Min");
    range.max = read_.Integer(element, "Max");
    range.starting_physical_index = read_.Integer(element, "StartingPhysicalIndex");
    if (static_cast<long long>(range.max) - range.min >= kLongestRange) {
      read_.Reject(element, "spans more than 100000 names");
    }
    return range;
  }

  void ReadSoftwareModules() {
    const pugi::xml_node section = read_.Child(root_, "SoftwareModules");
    model_.software_modules.reserve(CountObjects(section, "IviSoftwareModule"));
    Names names;
    for (const pugi::xml_node element : section.children("IviSoftwareModule")) {
      if (!IsObject(element)) continue;
      SoftwareModule& module = model_.software_modules.emplace_back();
      module.name = NameOf(element);
      if (!names.insert(module.name).second) RejectSecond(element, module.name);
      module.data_components = DataComponents(element);
      for (const pugi::xml_node name : read_.Child(element, "PhysicalNames").children("IviPhysicalName")) {
        module.physical_names.push_back({read_.Text(name, "Name"), read_.Text(name, "RCName")});
      }
      module_of_id_.emplace(element.attribute("id").value(), &module);
    }
  }

  void ReadHardwareAssets() {
    const pugi::xml_node section = read_.Child(root_, "HardwareAssets");
    model_.hardware_assets.reserve(CountObjects(section, "IviHardwareAsset"));
    Names names;
    for (const pugi::xml_node element : section.children("IviHardwareAsset")) {
      if (!IsObject(element)) continue;
      HardwareAsset& asset = model_.hardware_assets.emplace_back();
      asset.name = NameOf(element);
      if (!names.insert(asset.name).second) RejectSecond(element, asset.name);
      asset.description = read_.Text(element, "Description");
      asset.resource_descriptor = read_.Text(element, "IOResourceDescriptor");
      asset.data_components = DataComponents(element);
      asset_of_id_.emplace(element.attribute("id").value(), &asset);
    }
  }

  void ReadSession(pugi::xml_node element, Session& session) const {
    session.name = NameOf(element);
    session.description = read_.Text(element, "Description");
    session.software_module_name = read_.Text(element, "SoftwareModuleName");
    session.virtual_names = VirtualNames(element);
    session.data_components = DataComponents(element);
    session.hardware_asset = Referred(ReferenceTo(element, "IviHardwareAsset"), asset_of_id_, "hardware asset");
    session.software_module = Referred(ReferenceTo(element, "IviSoftwareModule"), module_of_id_, "software module");
  }

  template <typename Kind>
  void AddSession(pugi::xml_node element, const Kind& session) {
    if (!model_.session_of_name.emplace(session.name, &session).second) RejectSecond(element, session.name);
    session_of_id_.emplace(element.attribute("id").value(), &session);
  }

  void ReadDriverSessions() {
    const pugi::xml_node section = read_.Child(root_, "DriverSessions");
    model_.driver_sessions.reserve(CountObjects(section, "IviDriverSession"));
    for (const pugi::xml_node element : section.children("IviDriverSession")) {
      if (!IsObject(element)) continue;
      DriverSession& session = model_.driver_sessions.emplace_back();
      ReadSession(element, session);
      session.cache = read_.Boolean(element, "Cache");
      session.interchange_check = read_.Boolean(element, "InterchangeCheck");
      session.query_instr_status = read_.Boolean(element, "QueryInstrStatus");
      session.range_check = read_.Boolean(element, "RangeCheck");
      session.record_coercions = read_.Boolean(element, "RecordCoercions");
      session.simulate = read_.Boolean(element, "Simulate");
      session.driver_setup = read_.Text(element, "DriverSetup");
      AddSession(element, session);
    }
  }

  // Besides sessions of its own kind the section holds references to the driver sessions, which say nothing new.
  void ReadSessions() {
    const pugi::xml_node section = read_.Child(root_, "Sessions");
    model_.sessions.reserve(CountObjects(section, "IviSession"));
    for (const pugi::xml_node element : section.children("IviSession")) {
      if (!IsObject(element)) continue;
      Session& session = model_.sessions.emplace_back();
      ReadSession(element, session);
      AddSession(element, session);
    }
  }

  void ReadLogicalNames() {
    const pugi::xml_node section = read_.Child(root_, "LogicalNames");
    model_.names_of_logical_names.reserve(CountObjects(section, "IviLogicalName"));
    Names names;
    for (const pugi::xml_node element : section.children("IviLogicalName")) {
      if (!IsObject(element)) continue;
      const std::string& name = model_.names_of_logical_names.emplace_back(NameOf(element));
      if (!names.insert(name).second) RejectSecond(element, name);
      pugi::xml_node reference = ReferenceTo(element, "IviDriverSession");
      if (!reference) reference = ReferenceTo(element, "IviSession");
      const AnySession session = Referred(reference, session_of_id_, "session");
      // A name that refers to nothing is one that nobody finds.
      if (reference.attribute("idref")) model_.session_of_logical_name.emplace(name, session);
    }
  }

  const StoreSource& source_;
  const ElementReader read_;
  const pugi::xml_node root_;
  Model model_;

  std::unordered_map<std::string_view, pugi::xml_node> element_of_id_;
  std::vector<pugi::xml_node> references_;
  std::unordered_map<std::string_view, const SoftwareModule*> module_of_id_;
  std::unordered_map<std::string_view, const HardwareAsset*> asset_of_id_;
  std::unordered_map<std::string_view, AnySession> session_of_id_;
};

}  // namespace

void ParseStore(const StoreSource& source, pugi::xml_document& document) {
  CheckText(source);
  constexpr unsigned kKeepEverything = pugi::parse_default | pugi::parse_comments | pugi::parse_pi |
                                       pugi::parse_declaration | pugi::parse_ws_pcdata_single;
  const pugi::xml_parse_result parsed =
      document.load_buffer(source.text.data(), source.text.size(), kKeepEverything, pugi::encoding_utf8);
  if (!parsed)
    source.Reject(static_cast<std::size_t>(std::max<std::ptrdiff_t>(parsed.offset, 0)), parsed.description());
}

Model ReadStore(const StoreSource& source, const pugi::xml_document& document) {
  return StoreReader(source, document).Read();
}

}  // namespace tvrivi
