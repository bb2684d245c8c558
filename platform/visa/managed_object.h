// Objects with attributes, and those among them that are closed with their resource manager at the latest.
#pragma once

#include <visa.h>

#include <memory>

#include "handles.h"

namespace tvr::visa {

// What the kinds of objects have in common for viGetAttribute and viSetAttribute.
class AttributeOwner : public Object {
 public:
  virtual ViStatus GetAttribute(ViAttr attribute, void* value) = 0;
  virtual ViStatus SetAttribute(ViAttr attribute, ViAttrState value) = 0;
};

class ManagedObject : public AttributeOwner {
 public:
  // Gives the object a handle. VI_NULL: there is no place for it, or its manager is closed.
  static ViObject GiveOut(ViSession resource_manager, std::unique_ptr<ManagedObject> object);
  void OnClose() override;

 private:
  ViSession resource_manager_ = VI_NULL;
  ViObject handle_ = VI_NULL;
};

}  // namespace tvr::visa
