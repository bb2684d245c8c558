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

std::shared_ptr<const LoadedStore> Load(const StoreSource& source) {
  auto loaded = std::make_shared<LoadedStore>();
  ParseStore(source, loaded->document);
  loaded->model = ReadStore(source, loaded->document);
  return loaded;
}

// Always the same, and part of every opening of a session on a bare machine: read once.
std::shared_ptr<const LoadedStore> LoadBuiltIn() {
  static const std::shared_ptr<const LoadedStore> loaded = Load({"built-in store", std::string(BuiltInStore())});
  return loaded;
}

}  // namespace

Store::Store() : process_default_location_(ProcessDefaultLocation()) {}

ViStatus Store::Deserialize(const std::string& location) {
  const std::lock_guard<std::mutex> hold(guard_);
  if (loaded_ != nullptr) return IVICONFIG_ERROR_ALREADY_DESERIALIZED;

  std::optional<std::string> text = ReadFile(location);
  const bool built_in = !text && location == MasterLocation();
  if (!text && !built_in) throw StoreError(location + ": no such file");
  loaded_ = built_in ? LoadBuiltIn() : Load({location, std::move(*text)});
  identity_ = loaded_->model.identity;
  if (!built_in) actual_location_ = location;
  document_.reset();
  return VI_SUCCESS;
}

pugi::xml_document& Store::Document() {
  if (document_ == nullptr) {
    auto document = std::make_unique<pugi::xml_document>();
    if (loaded_ != nullptr) {
      document->reset(loaded_->document);
    } else {
      document->append_child("IviConfigStore");
    }
    document_ = std::move(document);
  }
  return *document_;
}

void Store::Serialize(const std::string& location) {
  std::ostringstream text;
  {
    const std::lock_guard<std::mutex> hold(guard_);
    Document().save(text, "  ", pugi::format_default, pugi::encoding_utf8);
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
      SetChildText(Document().document_element(), "Name", value);
      return true;
    case IVICONFIG_PROP_DESCRIPTION:
      identity_.description = value;
      SetChildText(Document().document_element(), "Description", value);
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
  return loaded_ == nullptr ? empty : loaded_->model;
}

}  // namespace tvrivi
