// Firmware packages: those on the USB stick, those a server offers, and an update that ends with a reboot.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/file_store.h"

namespace siggen::model {

class Firmware {
 public:
  using Instant = std::chrono::steady_clock::time_point;

  static constexpr std::string_view kDefaultSource = "http://software.kelvora.example/en-us/td481x2c.txt";
  static constexpr std::chrono::seconds kUpdateTakes{2};

  explicit Firmware(std::string version) : version_(std::move(version)) {}

  const std::string& version() const { return version_; }
  std::string source{kDefaultSource};
  bool check_automatically = false;

  const std::vector<std::string>& offered() const { return offered_; }
  void Refresh();  // throws -200 when the source is none that can be reached
  std::string Latest() const;
  bool LatestIsNewer() const;
  static std::vector<std::string> OnUsb(const FileStore& files);

  void UpdateFromFile(Instant now, const FileStore& files, std::string_view device, std::string_view path);
  void UpdateFromServer(Instant now, std::string_view package);
  bool CatchUp(Instant now);  // true when an update has just ended: time to reboot
  bool updating() const { return end_.has_value(); }
  std::optional<Instant> end() const { return end_; }

 private:
  void Start(Instant now, std::string_view package);

  std::string version_;
  std::string next_version_;
  std::optional<Instant> end_;
  std::vector<std::string> offered_{"td481x2c-1.4.2.pkg", "td481x2c-1.5.0.pkg"};
};

}  // namespace siggen::model
