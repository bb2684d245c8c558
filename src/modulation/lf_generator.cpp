// LF generators of the class. The instrument has none: each is the internal source of a modulation, and the active ones
// say where a value goes.

#include "modulation/lf_generator.h"

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "enums.h"
#include "handlers.h"
#include "operations.h"

namespace {

const tvr::RepeatedCapability& LfGenerators() {
  static const tvr::RepeatedCapability capability("LFGenerator", "AM,FM,PM");
  return capability;
}

// Where the values of one generator go.
struct Route {
  std::string_view prefix;
  ViAttr frequency;
  ViAttr waveform;
};

constexpr Route kRoutes[] = {
    {"AM", KVTD481X2C_ATTR_AM_INTERNAL_FREQUENCY, KVTD481X2C_ATTR_AM_INTERNAL_WAVEFORM},
    {"FM", KVTD481X2C_ATTR_FM_INTERNAL_FREQUENCY, KVTD481X2C_ATTR_FM_INTERNAL_WAVEFORM},
    {"PM", KVTD481X2C_ATTR_PM_INTERNAL_FREQUENCY, KVTD481X2C_ATTR_PM_INTERNAL_WAVEFORM},
};

const Route* FindRoute(const tvr::RepCapIdentifier& generator) {
  for (const Route& route : kRoutes) {
    if (std::string_view(generator.Name).substr(0, 2) == route.prefix) return &route;
  }
  return nullptr;
}

// That of the one active generator; reading from several makes no sense. Null, and why, without one.
const Route* SingleRoute(ViSession vi, ViStatus& status) {
  const std::vector<tvr::RepCapIdentifier>& active = ConcreteSession(vi).ActiveLfGeneratorPath;
  if (active.size() > 1) {
    status =
        tvr::RaiseErrorText(vi, tvr::error::kBadlyFormedSelector,
                            "Only a single repeated capability identifier can be specified for the current operation.");
    return nullptr;
  }
  const Route* const route = active.empty() ? nullptr : FindRoute(active.front());
  if (route == nullptr) status = tvr::RaiseError(vi, tvr::error::kUnknownPhysicalIdentifier);
  return route;
}

template <class T>
ViStatus GetRouted(ViSession vi, const char* attribute, T* value, ViAttr Route::*target) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, attribute, value);
  const Route* const route = status < 0 ? nullptr : SingleRoute(vi, status);
  if (route == nullptr) return status;
  return tvr::GetAttribute<T>(vi, nullptr, route->*target, value);
}

// Every active generator is given the value.
template <class T>
ViStatus SetRouted(ViSession vi, T value, ViAttr Route::*target) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const std::vector<tvr::RepCapIdentifier> active = ConcreteSession(vi).ActiveLfGeneratorPath;
  ViStatus status = VI_SUCCESS;
  for (const tvr::RepCapIdentifier& generator : active) {
    const Route* route = FindRoute(generator);
    if (route == nullptr) return tvr::RaiseError(vi, tvr::error::kUnknownPhysicalIdentifier);
    if (status = tvr::SetAttribute<T>(vi, nullptr, route->*target, value); status < 0) break;
  }
  return status;
}

}  // namespace

ViStatus SelectLfGenerator(ViSession vi, ViConstString selector) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  std::vector<tvr::RepCapIdentifier> path;
  const ViStatus status = LfGenerators().ExpandSelector(vi, selector, path, true);
  if (status < 0) return status;
  TD481X2CDriverSession& session = ConcreteSession(vi);
  session.ActiveLfGeneratorName = selector == nullptr ? "" : selector;
  session.ActiveLfGeneratorPath = std::move(path);
  return status;
}

ViStatus KVTD481X2C_get_ACTIVE_LF_GENERATOR(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_ACTIVE_LF_GENERATOR", value);
  if (status < 0) return status;
  tvr::CopyText(ConcreteSession(vi).ActiveLfGeneratorName, size, value);
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_set_ACTIVE_LF_GENERATOR(ViSession vi, ViConstString, ViConstString value) {
  return SelectLfGenerator(vi, value);
}

ViStatus KVTD481X2C_get_LF_GENERATOR_COUNT(ViSession vi, ViConstString, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_LF_GENERATOR_COUNT", value);
  if (status < 0) return status;
  *value = static_cast<ViInt32>(LfGenerators().identifiers().size());
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_get_LF_GENERATOR_FREQUENCY(ViSession vi, ViConstString, ViReal64* value) {
  return GetRouted(vi, "KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY", value, &Route::frequency);
}

ViStatus KVTD481X2C_set_LF_GENERATOR_FREQUENCY(ViSession vi, ViConstString, ViReal64 value) {
  return SetRouted(vi, value, &Route::frequency);
}

ViStatus KVTD481X2C_get_LF_GENERATOR_WAVEFORM(ViSession vi, ViConstString, ViInt32* value) {
  return GetRouted(vi, "KVTD481X2C_ATTR_LF_GENERATOR_WAVEFORM", value, &Route::waveform);
}

ViStatus KVTD481X2C_set_LF_GENERATOR_WAVEFORM(ViSession vi, ViConstString, ViInt32 value) {
  return SetRouted(vi, value, &Route::waveform);
}

ViStatus KVTD481X2C_SetActiveLFGenerator(ViSession Vi, ViConstString Active) { return SelectLfGenerator(Vi, Active); }

// Each of the two sets walks the active generators by itself, so that several are written several times. Kept on
// purpose: the repetition is harmless, and the wire has always shown it.
ViStatus KVTD481X2C_ConfigureLFGenerator(ViSession Vi, ViReal64 Frequency, ViInt32 Waveform) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  const std::vector<tvr::RepCapIdentifier> active = ConcreteSession(Vi).ActiveLfGeneratorPath;
  ViStatus status = VI_SUCCESS;
  for (std::size_t i = 0; i < active.size() && status >= 0; ++i) {
    status = tvr::Configure(Vi, tvr::Setting<ViReal64>{KVTD481X2C_ATTR_LF_GENERATOR_FREQUENCY, Frequency},
                            tvr::Setting<ViInt32>{KVTD481X2C_ATTR_LF_GENERATOR_WAVEFORM, Waveform});
  }
  return status;
}

ViStatus KVTD481X2C_GetLFGeneratorName(ViSession Vi, ViInt32 Index, ViInt32 Size, ViChar Name[]) {
  return LfGenerators().GetName(Vi, tvr::operation::kGetLFGeneratorName.function, Index, Size, Name);
}
