#include "config/Store.h"

#include <sstream>

#include "config/BuiltInStore.h"
#include "config/Locations.h"
#include "config/StoreFile.h"
#include "config/StoreReader.h"

namespace tvrivi {

namespace {

void SetChildText(pugi::xml_node parent, const char* name, const std::string& value) {
  pugi::xml_node child = parent.child(name);
  if (!child) child = parent.prepend_child(name);
  child.text().set(value.c_str());
}

}  // namespace

Store::Store() : process_default_location_(ProcessDefaultLocation()) { document_.append_child("IviConfigStore"); }

ViStatus Store::Deserialize(const std::string& location) {
  const std::lock_guard<std::mutex> hold(guard_);
  if (model_ != nullptr) return IVICONFIG_ERROR_ALREADY_DESERIALIZED;

  std::optional<std::string> text = ReadFile(location);
  const bool built_in = !text && location == MasterLocation();
  if (!text && !built_in) throw StoreError(location + ": no such file");
  const StoreSource source{location, built_in ? std::string(BuiltInStore()) : std::move(*text)};

  pugi::xml_document document;
  ParseStore(source, document);
  auto model = std::make_unique<const Model>(ReadStore(source, document));
  identity_ = model->identity;
  if (!built_in) actual_location_ = location;
  document_ = std::move(document);
  model_ = std::move(model);
  return VI_SUCCESS;
}

void Store::Serialize(const std::string& location) {
  std::ostringstream text;
  {
    const std::lock_guard<std::mutex> hold(guard_);
    document_.save(text, "  ", pugi::format_default, pugi::encoding_utf8);
  }
  ReplaceFile(location, text.str());
}

bool Store::GetText(ViInt32 property, std::string& value) {
  const std::lock_guard<std::mutex> hold(guard_);
  switch (property) {
    case IVICONFIG_PROP_NAME:
      value = identity_.name;
      return true;
    case IVICONFIG_PROP_DESCRIPTION:
      value = identity_.description;
      return true;
    case IVICONFIG_PROP_STORE_MASTER_LOCATION:
      value = MasterLocation();
      return true;
    case IVICONFIG_PROP_STORE_ACTUAL_LOCATION:
      value = actual_location_;
      return true;
    case IVICONFIG_PROP_STORE_PROCESS_DEFAULT_LOCATION:
      value = process_default_location_;
      return true;
    case IVICONFIG_PROP_STORE_REVISION:
      value = identity_.revision;
      return true;
    case IVICONFIG_PROP_STORE_VENDOR:
      value = identity_.vendor;
      return true;
    default:
      return false;
  }
}

bool Store::GetNumber(ViInt32 property, ViInt32& value) {
  const std::lock_guard<std::mutex> hold(guard_);
  switch (property) {
    case IVICONFIG_PROP_STORE_MAJOR_VERSION:
      value = identity_.major_version;
      return true;
    case IVICONFIG_PROP_STORE_MINOR_VERSION:
      value = identity_.minor_version;
      return true;
    default:
      return false;
  }
}

bool Store::SetText(ViInt32 property, const std::string& value) {
  const std::lock_guard<std::mutex> hold(guard_);
  switch (property) {
    case IVICONFIG_PROP_NAME:
      identity_.name = value;
      SetChildText(document_.document_element(), "Name", value);
      return true;
    case IVICONFIG_PROP_DESCRIPTION:
      identity_.description = value;
      SetChildText(document_.document_element(), "Description", value);
      return true;
    case IVICONFIG_PROP_STORE_PROCESS_DEFAULT_LOCATION:
      SetProcessDefaultLocation(value);
      process_default_location_ = value;
      return true;
    default:
      return false;
  }
}

const Model& Store::model() {
  static const Model empty;
  const std::lock_guard<std::mutex> hold(guard_);
  return model_ == nullptr ? empty : *model_;
}

}  // namespace tvrivi
