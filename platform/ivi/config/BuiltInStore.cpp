#include "config/BuiltInStore.h"

namespace tvrivi {

std::string_view BuiltInStore() {
  return R"(<?xml version="1.0" encoding="UTF-8"?>
<IviConfigStore>
  <Name>IVI Configuration Store</Name>
  <Description>Configuration of IVI drivers on this machine</Description>
  <Vendor>Kelvora Corporation</Vendor>
  <Revision>1.0.0.0</Revision>
  <SpecificationMajorVersion>1</SpecificationMajorVersion>
  <SpecificationMinorVersion>6</SpecificationMinorVersion>
  <PublishedAPIs />
  <SoftwareModules>
    <IviSoftwareModule id="p1">
      <Name>KVTD481X2C</Name>
      <Description>IVI-C Driver for TD481X2C</Description>
      <DataComponents />
      <ModulePath />
      <Prefix>KVTD481X2C</Prefix>
      <ProgID />
      <SupportedInstrumentModels>TD48122C,TD48142C,TD48172C</SupportedInstrumentModels>
      <PhysicalNames />
      <PublishedAPIs />
    </IviSoftwareModule>
  </SoftwareModules>
  <HardwareAssets />
  <DriverSessions />
  <Sessions />
  <LogicalNames />
</IviConfigStore>
)";
}

}  // namespace tvrivi
