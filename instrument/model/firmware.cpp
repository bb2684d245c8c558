// :SYSTem:FIRMware.
#include "model/firmware.h"

#include <algorithm>
#include <charconv>

#include "model/bind.h"
#include "model/instrument.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::Error;
using scpi::kNothing;
using scpi::kOne;
using scpi::Refusal;

constexpr std::string_view kPackagePrefix = "td481x2c-";
constexpr std::string_view kPackageSuffix = ".pkg";

// "1.5.0" of "td481x2c-1.5.0.pkg"; empty when the name is no package's.
std::string_view VersionOf(std::string_view package) {
  if (!package.starts_with(kPackagePrefix) || !package.ends_with(kPackageSuffix)) return {};
  if (package.size() <= kPackagePrefix.size() + kPackageSuffix.size()) return {};
  return package.substr(kPackagePrefix.size(), package.size() - kPackagePrefix.size() - kPackageSuffix.size());
}

std::vector<int> Parts(std::string_view version) {
  std::vector<int> parts;
  while (!version.empty()) {
    int part = 0;
    const auto end = std::from_chars(version.data(), version.data() + version.size(), part).ptr;
    parts.push_back(part);
    version.remove_prefix(std::min(version.size(), static_cast<std::size_t>(end - version.data()) + 1));
  }
  return parts;
}

void AnswerNames(Call& call, const std::vector<std::string>& names) {
  if (names.empty()) call.answer.Plain("");
  for (const std::string& name : names) call.answer.Plain(name);
}

}  // namespace

void Firmware::Refresh() {
  if (source != kDefaultSource) throw Refusal(Error::kExecution, "Package source not reached");
}

std::string Firmware::Latest() const {
  return *std::max_element(offered_.begin(), offered_.end(), [](const std::string& a, const std::string& b) {
    return Parts(VersionOf(a)) < Parts(VersionOf(b));
  });
}

bool Firmware::LatestIsNewer() const { return Parts(version_) < Parts(VersionOf(Latest())); }

std::vector<std::string> Firmware::OnUsb(const FileStore& files) {
  std::vector<std::string> packages;
  const auto devices = files.Devices();
  if (std::find(devices.begin(), devices.end(), FileStore::kUsb) == devices.end()) return packages;
  for (const FileStore::Entry& entry : files.List(FileStore::kUsb, "/")) {
    if (!entry.directory && !VersionOf(entry.name).empty()) packages.push_back(entry.name);
  }
  return packages;
}

void Firmware::Start(Instant now, std::string_view package) {
  if (updating()) throw Refusal(Error::kSettingsConflict, "Update under way");
  next_version_ = VersionOf(package);
  end_ = now + kUpdateTakes;
}

void Firmware::UpdateFromFile(Instant now, const FileStore& files, std::string_view device, std::string_view path) {
  (void)files.Read(device, path);
  const std::string_view package = path.substr(path.find_last_of("/\\") + 1);
  if (VersionOf(package).empty()) throw Refusal(Error::kIllegalParameter, std::string(path));
  Start(now, package);
}

void Firmware::UpdateFromServer(Instant now, std::string_view package) {
  if (std::find(offered_.begin(), offered_.end(), package) == offered_.end()) {
    throw Refusal(Error::kFileNameNotFound, std::string(package));
  }
  Refresh();
  Start(now, package);
}

bool Firmware::CatchUp(Instant now) {
  if (!updating() || now < *end_) return false;
  end_.reset();
  version_ = next_version_;
  return true;
}

void AddFirmware(scpi::Commands& commands, Instrument& instrument) {
  Firmware& firmware = instrument.firmware();
  const FileStore& files = instrument.files();

  commands.Ask("SYSTem:FIRMware:VERSion", kNothing, [&firmware](Call& call) { call.answer.Plain(firmware.version()); });
  commands.Do("SYSTem:FIRMware:UPDate", {2, 2}, [&instrument, &firmware, &files](Call& call) {
    const std::string device = call.Text();
    firmware.UpdateFromFile(instrument.now(), files, device, call.Text());
  });
  commands.Ask("SYSTem:FIRMware:UPDate:LIST", kNothing,
               [&files](Call& call) { AnswerNames(call, Firmware::OnUsb(files)); });
  commands.Do("SYSTem:FIRMware:UPDate:REMote", kOne,
              [&instrument, &firmware](Call& call) { firmware.UpdateFromServer(instrument.now(), call.Text()); });
  BindText(commands, "SYSTem:FIRMware:UPDate:REMote:SOURce", 1024, firmware.source);
  BindBoolean(commands, "SYSTem:FIRMware:UPDate:REMote:AUTO", firmware.check_automatically);
  commands.Ask("SYSTem:FIRMware:UPDate:REMote:LIST", kNothing,
               [&firmware](Call& call) { AnswerNames(call, firmware.offered()); });
  commands.Do("SYSTem:FIRMware:UPDate:REMote:LIST:REFResh", kNothing, [&firmware](Call&) { firmware.Refresh(); });
  commands.Ask("SYSTem:FIRMware:UPDate:REMote:LATest", kNothing, [&firmware](Call& call) {
    call.answer.Plain(firmware.Latest());
    call.answer.Boolean(firmware.LatestIsNewer());
  });
}

}  // namespace siggen::model
