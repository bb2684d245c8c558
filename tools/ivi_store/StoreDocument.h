#ifndef TOOLS_IVI_STORE_STORE_DOCUMENT_H
#define TOOLS_IVI_STORE_STORE_DOCUMENT_H

#include <pugixml.hpp>
#include <stdexcept>
#include <string>

#include "config/Model.h"

/// What the store does not allow: a name that is taken, one that is not there. The text says which.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct NewSession {
  std::string name;
  std::string resource;
  std::string setup;
  bool simulate = false;
};

/// A configuration store under edit. It works on the XML document, so that whatever it does not know stays as it is;
/// every result is read as the component reads it before it is written.
class StoreDocument {
 public:
  /// Throws StoreError.
  explicit StoreDocument(const std::string& location);

  const tvrivi::Model& model() const { return model_; }

  /// Adds a hardware asset, a driver session and a logical name, all of the one name, and the driver's software module
  /// if the store does not have it. Throws Refusal when one of the names is taken.
  void AddSession(const NewSession& session);

  /// Removes the logical name, or the driver session, of that name, and what only it used: the session that no other
  /// logical name refers to, the asset that no other session refers to. Throws Refusal when there is none.
  void RemoveSession(const std::string& name);

  /// Throws StoreError, and then the file is as it was.
  void Save();

 private:
  pugi::xml_node Section(const char* name);
  std::string NewId() const;
  std::string SoftwareModuleId();
  bool IsReferredTo(const std::string& id) const;

  std::string location_;
  pugi::xml_document document_;
  tvrivi::Model model_;
};

#endif
