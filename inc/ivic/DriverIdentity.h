// What the runtime must know of the driver that it runs. The driver defines both functions.
#pragma once

#include <functional>
#include <map>
#include <string>

#include <visatype.h>

namespace tvr {

struct DriverIdentity {
  const char* prefix;
  const char* vendor;
  const char* description;
  const char* revision;
  const char* group_capabilities;
  const char* supported_models;  // names separated by commas, blanks around them do not count
  const char* default_model;     // of a simulated session that was given none
  ViInt32 class_spec_major;
  ViInt32 class_spec_minor;
};

const DriverIdentity& Identity();

// From a model's name to its family's, both compared byte for byte.
const std::map<std::string, std::string, std::less<>>& ModelFamilies();

}  // namespace tvr
