// The files of the instrument, in memory, on two devices: the internal one and a USB stick that can be ejected.
//
// Paths use '/' or '\'; one that does not begin with it continues from the current directory, when it is on the current
// device. Every function throws a Refusal with the standard mass storage code and changes nothing when it does.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "scpi/bytes.h"

namespace siggen::model {

class FileStore {
 public:
  struct Entry {
    std::string name;
    bool directory;
    std::size_t size;  // of a directory: all that is in it
  };

  static constexpr std::string_view kInternal = "Internal";
  static constexpr std::string_view kUsb = "USB";

  FileStore();

  std::string current_device() const { return current_device_; }
  std::string current_directory() const { return current_directory_; }
  void SelectDevice(std::string_view device);  // and its top directory
  void SelectDirectory(std::string_view directory);
  std::vector<std::string> Devices() const;
  void Eject(std::string_view device);
  void InsertUsb();

  void Write(std::string_view device, std::string_view path, const scpi::Bytes& content);
  scpi::Bytes Read(std::string_view device, std::string_view path) const;
  void Remove(std::string_view device, std::string_view path);
  void Copy(std::string_view from_device, std::string_view from, std::string_view to_device, std::string_view to);
  void CreateDirectory(std::string_view device, std::string_view path);
  void RemoveDirectory(std::string_view device, std::string_view path);  // an empty one

  std::vector<Entry> List(std::string_view device, std::string_view path) const;
  std::size_t SizeOf(std::string_view device, std::string_view path) const;
  std::size_t Used(std::string_view device) const;
  std::size_t Free(std::string_view device) const;
  bool HasFile(std::string_view device, std::string_view path) const;

  void ResetUserFiles();    // everything but the system's own
  void ResetSystemFiles();  // the system's own, as delivered

 private:
  struct Device {
    std::string name;
    std::size_t capacity;
    bool present = true;
    // Full path without the leading '/', to content; directories stand in the second. The top directory is in neither.
    std::map<std::string, scpi::Bytes> files;
    std::map<std::string, bool> directories;
  };

  Device& Find(std::string_view name);
  const Device& Find(std::string_view name) const;
  std::string Resolve(const Device& device, std::string_view path) const;
  std::string ResolveFile(const Device& device, std::string_view path) const;
  static bool HasDirectory(const Device& device, const std::string& path);
  static std::size_t UsedOf(const Device& device, const std::string& directory);

  std::vector<Device> devices_;
  std::string current_device_;
  std::string current_directory_ = "/";
};

}  // namespace siggen::model
