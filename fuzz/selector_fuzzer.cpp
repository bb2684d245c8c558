// Any text as a repeated capability selector, with a virtual name of the configuration store: the first line is
// "name=physical", the rest the selector.

#include <IviCShared.h>
#include <RepeatedCapability.h>
#include <TD481X2CDriverSession.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Input.h"
#include "Require.h"

namespace kvtd::fuzz {
namespace {

void Expand(ViSession vi, const tvr::RepeatedCapability& capability, const std::string& selector, bool check) {
  std::vector<tvr::RepCapIdentifier> output;
  if (capability.ExpandSelector(vi, selector.c_str(), output, check) < 0) return;
  std::set<std::string> names;
  for (const tvr::RepCapIdentifier& identifier : output) {
    // A bracket without its fellow takes a character along, and may leave an empty name, which belongs to nothing.
    const std::string qualified = identifier.Name.empty() ? "" : capability.name() + "!!" + identifier.Name;
    Require(identifier.QualifiedName == qualified, "an identifier tells its capability");
    Require(names.insert(identifier.Name).second, "no name comes twice");
  }
  if (!check) return;
  for (const std::string& name : names) {
    Require(name == "AM" || name == "FM" || name == "PM", "a name that was checked is one of the capability");
  }
}

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kvtd::fuzz;
  static const tvr::RepeatedCapability generators("LFGenerator", "AM,FM,PM");
  Input input(data, size);
  const std::string pair = input.Line();
  const std::string selector = input.Rest();

  ViSession vi = VI_NULL;
  Require(IviSession_New(&vi) >= 0, "there is a handle");
  {
    const auto session = std::make_unique<TD481X2CDriverSession>(vi);
    Require(IviSession_SetDataPtr(vi, static_cast<tvr::DriverSession*>(session.get())) >= 0, "the handle is good");
    const std::size_t equals = pair.find('=');
    if (equals != std::string::npos) session->VirtualNames()[pair.substr(0, equals)] = pair.substr(equals + 1);
    Expand(vi, generators, selector, true);
    Expand(vi, generators, selector, false);
  }
  Require(IviSession_Dispose(vi) >= 0, "the handle can be given back");
  return 0;
}
