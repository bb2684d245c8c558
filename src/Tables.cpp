// The tables of the process: who the driver is, which models it knows, its attributes. Read-only once loaded.

#include "Tvr.h"
#include "enums.h"

namespace {

#if defined(_WIN64) || defined(__LP64__)
constexpr const char* kDescription = "IVI-C Driver for TD481X2C [Compiled for 64-bit]";
#else
constexpr const char* kDescription = "IVI-C Driver for TD481X2C";
#endif

const tvr::DriverIdentity g_identity{
    .prefix = "KVTD481X2C",
    .vendor = "Kelvora Corporation",
    .description = kDescription,
    .revision = "1.0.0.0",
    .group_capabilities =
        "IviRFSigGenBase,IviRFSigGenModulateAM,IviRFSigGenModulateFM,IviRFSigGenModulatePM,"
        "IviRFSigGenAnalogModulationSource,IviRFSigGenModulatePulse,IviRFSigGenLFGenerator,IviRFSigGenPulseGenerator,"
        "IviRFSigGenPulseDoubleGenerator,IviRFSigGenPulseGeneratorOutput,IviRFSigGenSweep,IviRFSigGenFrequencySweep,"
        "IviRFSigGenFrequencyStep,IviRFSigGenPowerStep,IviRFSigGenList,IviRFSigGenALC,IviRFSigGenSoftwareTrigger",
    .supported_models = "TD48122C, TD48142C, TD48172C",
    .default_model = "TD48122C",
    .class_spec_major = 2,
    .class_spec_minor = 0,
};

tvr::AttributeRegistry MakeRegistry() {
  tvr::AttributeRegistry registry;
  tvr::RegisterAttributes(registry);
  return registry;
}

std::map<std::string, std::string, std::less<>> MakeModelFamilies() {
  std::map<std::string, std::string, std::less<>> families;
  for (std::string& model : tvr::SplitString(g_identity.supported_models, ',', true)) {
    families[std::move(model)] = "DefaultFamily";
  }
  return families;
}

const tvr::AttributeRegistry g_registry = MakeRegistry();
const std::map<std::string, std::string, std::less<>> g_model_families = MakeModelFamilies();

}  // namespace

namespace tvr {

const DriverIdentity& Identity() { return g_identity; }

const std::map<std::string, std::string, std::less<>>& ModelFamilies() { return g_model_families; }

const AttributeRegistry& Registry() { return g_registry; }

const EnumMap& BooleanMap() { return maps::Boolean(); }

}  // namespace tvr
