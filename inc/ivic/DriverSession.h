// The generic driver session: its options, identity, names, caches and records.
#pragma once

#include <deque>
#include <string>
#include <string_view>

#include <IviConfigServer.h>

#include "AttributeCache.h"
#include "Strings.h"
#include "VisaSession.h"

namespace tvr {

// The six inherent options, in the order in which every list of them stands.
struct InherentFlags {
  bool cache = true;
  bool interchange_check = false;
  bool query_instr_status = false;
  bool range_check = true;
  bool record_coercions = false;
  bool simulate = false;
};

class DriverSession : public VisaSession<DriverSession> {
 public:
  struct Settings {
    ViInt32 open_timeout;
    ViInt32 self_test_timeout;
    ViInt32 reset_timeout;
    bool supports_interchange_check;
    ViInt32 spare_timeout;
  };

  DriverSession(ViSession handle, const Settings& settings) : handle_(handle), settings_(settings) {}
  ~DriverSession() override = default;

  virtual ViStatus CloseSession() { return CloseIo(); }
  virtual ViSession GetSessionHandle() const { return handle_; }

  virtual bool GetCache() const { return flags_.cache; }
  virtual bool GetInterchangeCheck() const { return flags_.interchange_check; }
  virtual bool GetQueryInstrStatus() const { return flags_.query_instr_status; }
  virtual bool GetRangeCheck() const { return flags_.range_check; }
  virtual bool GetRecordCoercions() const { return flags_.record_coercions; }
  virtual bool GetSimulate() const { return flags_.simulate; }
  virtual bool GetInitialCache() const { return initial_flags_.cache; }
  virtual bool GetInitialInterchangeCheck() const { return initial_flags_.interchange_check; }
  virtual bool GetInitialQueryInstrStatus() const { return initial_flags_.query_instr_status; }
  virtual bool GetInitialRangeCheck() const { return initial_flags_.range_check; }
  virtual bool GetInitialRecordCoercions() const { return initial_flags_.record_coercions; }
  virtual bool GetInitialSimulate() const { return initial_flags_.simulate; }
  virtual void SetCache(bool value) { flags_.cache = value; }
  virtual void SetInterchangeCheck(bool value) { flags_.interchange_check = value; }
  virtual void SetQueryInstrStatus(bool value) { flags_.query_instr_status = value; }
  virtual void SetRangeCheck(bool value) { flags_.range_check = value; }
  virtual void SetRecordCoercions(bool value) { flags_.record_coercions = value; }
  virtual void SetSimulate(bool value) { flags_.simulate = value; }

  virtual const std::string& GetOptionString() const { return option_string_; }
  virtual const std::string& GetResourceName() const { return resource_name_; }
  virtual const std::string& GetLogicalName() const { return logical_name_; }
  virtual const std::string& GetIoResourceDescriptor() const { return io_resource_descriptor_; }
  virtual const std::string& GetDriverSetup() const { return driver_setup_; }
  virtual const std::string& GetInstrumentManufacturer() const { return instrument_manufacturer_; }
  virtual const std::string& GetInstrumentModel() const { return instrument_model_; }
  virtual const std::string& GetInstrumentSerialNumber() const { return instrument_serial_number_; }
  virtual const std::string& GetInstrumentFirmwareRevision() const { return instrument_firmware_revision_; }

  virtual ViInt32 GetOpenTimeout() const { return settings_.open_timeout; }
  virtual ViInt32 GetSelfTestTimeout() const { return settings_.self_test_timeout; }
  virtual ViInt32 GetResetTimeout() const { return settings_.reset_timeout; }
  virtual bool SupportsInterchangeCheck() const { return settings_.supports_interchange_check; }
  virtual ViInt32 GetSpareTimeout() const { return settings_.spare_timeout; }

  virtual bool LookupDriverSetupOption(const std::string& name, std::string& value) const;
  virtual bool LookupInitialBoolean(const std::string& name, bool& value) const;
  virtual bool LookupInitialInt32(const std::string& name, ViInt32& value) const;
  virtual bool LookupInitialReal64(const std::string& name, ViReal64& value) const;
  virtual bool LookupInitialString(const std::string& name, std::string& value) const;
  virtual CaseInsensitiveMap<bool>& InitialBooleans() { return initial_booleans_; }
  virtual CaseInsensitiveMap<ViInt32>& InitialInt32s() { return initial_int32s_; }
  virtual CaseInsensitiveMap<ViReal64>& InitialReal64s() { return initial_real64s_; }
  virtual CaseInsensitiveMap<std::string>& InitialStrings() { return initial_strings_; }
  virtual CaseInsensitiveMap<std::string>& InherentOptions() { return inherent_options_; }
  virtual CaseInsensitiveMap<std::string>& DriverSetupOptions() { return driver_setup_options_; }
  virtual CaseInsensitiveMap<std::string>& VirtualNames() { return virtual_names_; }

  virtual std::string VirtualToPhysical(const std::string& name) const;
  virtual std::string PhysicalToVirtual(const std::string& name) const;

  virtual bool IsSupportedModel() const;
  virtual bool IsInFamily(std::string_view family) const;
  virtual bool IsModel(std::string_view name) const;
  virtual bool IsModelInFamily(std::string_view model, std::string_view family) const;

  virtual ViStatus RestoreInitialOptions();

  virtual ViStatus ReportError(ViStatus code, ...);
  virtual ViStatus ReportErrorText(ViStatus code, const char* text, ...);
  virtual ViStatus ReportConfigError(ViStatus code);

  virtual void InvalidateAll() { caches_.Clear(); }

  virtual ViStatus ApplyConfiguration(const std::string& resource_name, const std::string& option_string);
  virtual ViStatus ApplySessionProperties(IviDriverSessionHandle session);
  virtual ViStatus ApplyInitialSettings(IviConfigComponentHandle component);
  virtual ViStatus ApplyInitialModel();
  virtual ViStatus ParseOptionString(const std::string& text);
  virtual ViStatus ParseDriverSetup(const std::string& text);
  virtual ViStatus ApplyDriverSetupOption(const std::string& name, const std::string& value);
  virtual ViStatus ParseInherentOptions(const std::string& text);
  virtual ViStatus ParseBooleanOption(const std::string& name, const std::string& value, bool& flag);
  virtual ViStatus ReadVirtualNames(IviSessionHandle session);
  virtual ViStatus ReadPhysicalNames(IviSoftwareModuleHandle module);

  // From the arguments of an initialisation to an open and identified instrument.
  ViStatus BringUp(const std::string& resource_name, bool id_query, bool reset, const std::string& option_string);

  template <class T>
  AttributeCache<T>& CacheOf() {
    return caches_.Of<T>();
  }
  std::deque<std::string>& CoercionRecords() { return coercion_records_; }
  const CaseInsensitiveMap<std::string>& PhysicalNames() const { return physical_names_; }

 private:
  ViStatus ReadStore(IviConfigStoreHandle store, const std::string& resource_name, const std::string& option_string);
  ViStatus LoadStore(IviConfigStoreHandle store);
  ViStatus ReadInitialSetting(IviDataComponentHandle item);
  ViStatus ReadVirtualName(IviVirtualNameHandle item);
  void MapVirtualName(const std::string& virtual_name, const std::string& physical_name);
  ViStatus CheckConfig(ViStatus status);

  ViSession handle_;
  bool id_query_ = false;
  bool reset_ = false;
  InherentFlags flags_;
  InherentFlags initial_flags_;
  Settings settings_;
  std::string option_string_;
  std::string resource_name_;
  std::string logical_name_;
  std::string io_resource_descriptor_;
  std::string driver_setup_;
  std::string instrument_manufacturer_;
  std::string instrument_model_;
  std::string instrument_serial_number_;
  std::string instrument_firmware_revision_;
  CaseInsensitiveMap<std::string> inherent_options_;
  CaseInsensitiveMap<std::string> driver_setup_options_;
  CaseInsensitiveMap<bool> initial_booleans_;
  CaseInsensitiveMap<ViInt32> initial_int32s_;
  CaseInsensitiveMap<ViReal64> initial_real64s_;
  CaseInsensitiveMap<std::string> initial_strings_;
  CaseInsensitiveMap<std::string> virtual_names_;
  CaseInsensitiveMap<std::string> reverse_virtual_names_;
  CaseInsensitiveMap<std::string> physical_names_;
  AttributeCaches caches_;
  std::deque<std::string> coercion_records_;
};

}  // namespace tvr
