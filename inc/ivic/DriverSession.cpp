#include "DriverSession.h"

#include <IviCShared.h>

#include "Assertions.h"
#include "DriverIdentity.h"

namespace tvr {
namespace {

template <class Map, class Value>
bool Lookup(const Map& map, const std::string& name, Value& value) {
  const auto found = map.find(name);
  if (found == map.end()) return false;
  value = found->second;
  return true;
}

}  // namespace

bool DriverSession::LookupDriverSetupOption(const std::string& name, std::string& value) const {
  return Lookup(driver_setup_options_, name, value);
}
bool DriverSession::LookupInitialBoolean(const std::string& name, bool& value) const {
  return Lookup(initial_booleans_, name, value);
}
bool DriverSession::LookupInitialInt32(const std::string& name, ViInt32& value) const {
  return Lookup(initial_int32s_, name, value);
}
bool DriverSession::LookupInitialReal64(const std::string& name, ViReal64& value) const {
  return Lookup(initial_real64s_, name, value);
}
bool DriverSession::LookupInitialString(const std::string& name, std::string& value) const {
  return Lookup(initial_strings_, name, value);
}

std::string DriverSession::VirtualToPhysical(const std::string& name) const {
  std::string physical = name;
  Lookup(virtual_names_, name, physical);
  if (physical.size() < 2) return physical;
  const std::size_t mark = physical.find("!!");
  return mark == std::string::npos ? physical : physical.substr(mark + 2);
}

std::string DriverSession::PhysicalToVirtual(const std::string& name) const {
  std::string virtual_name = name;
  Lookup(reverse_virtual_names_, name, virtual_name);
  return virtual_name;
}

bool DriverSession::IsSupportedModel() const { return ModelFamilies().contains(instrument_model_); }

bool DriverSession::IsInFamily(std::string_view family) const { return IsModelInFamily(instrument_model_, family); }

bool DriverSession::IsModel(std::string_view name) const { return instrument_model_ == name; }

bool DriverSession::IsModelInFamily(std::string_view model, std::string_view family) const {
  const auto found = ModelFamilies().find(model);
  return found != ModelFamilies().end() && found->second == family;
}

ViStatus DriverSession::RestoreInitialOptions() {
  flags_ = initial_flags_;
  return VI_SUCCESS;
}

ViStatus DriverSession::ReportError(ViStatus code, ...) {
  va_list arguments;
  va_start(arguments, code);
  const ViStatus status = FormatError(GetSessionHandle(), code, nullptr, arguments);
  va_end(arguments);
  return status;
}

ViStatus DriverSession::ReportErrorText(ViStatus code, const char* text, ...) {
  va_list arguments;
  va_start(arguments, text);
  const ViStatus status = FormatError(GetSessionHandle(), code, text, arguments);
  va_end(arguments);
  return status;
}

ViStatus DriverSession::BringUp(const std::string& resource_name, bool id_query, bool reset,
                                const std::string& option_string) {
  resource_name_ = resource_name;
  id_query_ = id_query;
  reset_ = reset;
  option_string_ = option_string;

  if (const ViStatus status = ApplyConfiguration(resource_name, option_string); status < 0) return status;

  if (GetInterchangeCheck() && !SupportsInterchangeCheck()) {
    const ViStatus status =
        ReportErrorText(error::kBadOptionValue, "Interchange checking is not supported by the driver.", "True");
    if (status < 0) return status;
  }

  // What a failure or an exception leaves open would have nobody to close it.
  struct OpenedVisa {
    ~OpenedVisa() {
      if (session != nullptr) session->CloseVisa();
    }
    DriverSession* session;
  } opened{this};

  ViStatus status = OpenIo();
  if (status < 0) return status;
  if (GetQueryInstrStatus()) status = ClearInstrumentStatus();
  if (status >= 0) {
    status = QueryIdentity(instrument_manufacturer_, instrument_model_, instrument_serial_number_,
                           instrument_firmware_revision_);
  }
  if (status >= 0 && id_query_ && !IsSupportedModel()) {
    // Kept on purpose: the code's text has no place for the model's name, so callers see the bare sentence.
    const std::string text = "Unrecognized model: " + GetInstrumentModel();
    status = ReportError(error::kIdQueryFailed, text.c_str());
  }
  opened.session = nullptr;
  if (status >= 0) return status;

  const ViStatus statusClose = CloseIo();
  assert(statusClose >= 0);
  return status;
}

}  // namespace tvr
