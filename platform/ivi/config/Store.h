#ifndef TVRIVI_CONFIG_STORE_H
#define TVRIVI_CONFIG_STORE_H

#include <memory>
#include <mutex>
#include <pugixml.hpp>
#include <string>

#include "IviConfigServer.h"
#include "config/StoreReader.h"

namespace tvrivi {

/// A store object between IviConfig_Initialize and IviConfig_Close. Handles that outlast the latter keep it alive for
/// the call that is using them.
class Store {
 public:
  Store();

  /// VI_SUCCESS or IVICONFIG_ERROR_ALREADY_DESERIALIZED. Throws StoreError and then is as empty as before.
  ViStatus Deserialize(const std::string& location);

  /// Throws StoreError.
  void Serialize(const std::string& location);

  /// False when the class has no text, or no number, of that property number.
  bool GetText(ViInt32 property, std::string& value);
  bool GetNumber(ViInt32 property, ViInt32& value);
  bool SetText(ViInt32 property, const std::string& value);

  /// What handles point into: an empty model until Deserialize returned, one that never changes from then on.
  const Model& model();

 private:
  pugi::xml_document& Document();

  std::mutex guard_;
  std::shared_ptr<const LoadedStore> loaded_;     // null until Deserialize; may be other stores' too
  std::unique_ptr<pugi::xml_document> document_;  // what Serialize writes; null until somebody needs one of his own
  StoreIdentity identity_;
  std::string actual_location_;  // empty for the built-in store, which is nowhere
  std::string process_default_location_;
};

}  // namespace tvrivi

#endif
