// Any text as the option string of InitWithOptions, and as the DriverSetup of a configured session: it is taken, or
// refused with a text, and nothing is left open.

#include <IviCShared.h>
#include <KVTD481X2C.h>
#include <TD481X2CDriverSession.h>

#include <array>
#include <cctype>
#include <memory>
#include <string>

#include "Require.h"

namespace kvtd::fuzz {
namespace {

std::string LastText(ViSession vi) {
  std::array<ViChar, 256> text{};
  ViStatus code = VI_SUCCESS;
  KVTD481X2C_GetError(vi, &code, static_cast<ViInt32>(text.size()), text.data());
  return text.data();
}

// No descriptor at all, so that only a simulated session can open.
void Initialize(const std::string& options) {
  std::string resource = "fuzzed";
  ViSession vi = 4711;
  const ViStatus status = KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, options.c_str(), &vi);
  if (status < 0) {
    Require(vi == VI_NULL, "a refused option string leaves no session");
    // What the driver refuses it explains; statuses of VISA it passes on.
    if ((static_cast<ViUInt32>(status) & 0xFFFF0000U) == 0xBFFA0000U) {
      Require(!LastText(VI_NULL).empty(), "a refusal has a text");
    }
    return;
  }
  ViBoolean simulate = VI_FALSE;
  const ViStatus read = KVTD481X2C_GetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, &simulate);
  Require(read >= 0 && simulate == VI_TRUE, "a session without an instrument is simulated");
  Require(KVTD481X2C_close(vi) >= 0, "an open session can be closed");
}

void Setup(const std::string& text) {
  ViSession vi = VI_NULL;
  Require(IviSession_New(&vi) >= 0, "there is a handle");
  {
    const auto session = std::make_unique<TD481X2CDriverSession>(vi);
    Require(IviSession_SetDataPtr(vi, static_cast<tvr::DriverSession*>(session.get())) >= 0, "the handle is good");
    const ViStatus status = session->ParseDriverSetup(text);
    Require(session->GetDriverSetup() == text, "the setup is kept as it came");
    if (status < 0) Require(!LastText(vi).empty(), "a refused setup has a text");
    for (const auto& [name, value] : session->DriverSetupOptions()) {
      Require(!name.empty() && !value.empty() && value.find(',') == std::string::npos, "options are whole pairs");
    }
  }
  Require(IviSession_Dispose(vi) >= 0, "the handle can be given back");
}

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  kvtd::fuzz::Initialize(text);
  kvtd::fuzz::Setup(text);
  return 0;
}
