#include "model/file_store.h"

#include <algorithm>
#include <utility>

#include "scpi/errors.h"
#include "scpi/words.h"

namespace siggen::model {

using scpi::Bytes;
using scpi::Error;
using scpi::Refusal;

namespace {

constexpr std::size_t kInternalCapacity = std::size_t{1} << 30;
constexpr std::size_t kUsbCapacity = std::size_t{512} << 20;
constexpr std::size_t kLongestName = 255;
constexpr std::size_t kMostEntries = 10'000;
// A smaller file is copied, so that it does not hold on to the whole buffer it came in.
constexpr std::size_t kSmallFile = std::size_t{64} * 1024;

constexpr std::string_view kSystemFiles[][2] = {{"system/welcome.txt", "TD481X2C signal generator\n"}};

bool IsSystemPath(std::string_view path) { return path == "system" || path.starts_with("system/"); }

bool IsUnder(std::string_view path, std::string_view directory) {
  return directory.empty() ||
         (path.size() > directory.size() && path.starts_with(directory) && path[directory.size()] == '/');
}

std::string ParentOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

}  // namespace

FileStore::FileStore() : current_device_(kInternal) {
  devices_.push_back({std::string(kInternal), kInternalCapacity, true, {}, {{"user", true}}});
  devices_.push_back({std::string(kUsb), kUsbCapacity, true, {}, {}});
  devices_.back().files["td481x2c-1.5.0.pkg"] = Bytes::Copy("TD481X2C firmware 1.5.0\n");
  ResetSystemFiles();
}

FileStore::Device& FileStore::Find(std::string_view name) {
  return const_cast<Device&>(std::as_const(*this).Find(name));
}

const FileStore::Device& FileStore::Find(std::string_view name) const {
  if (name.empty()) name = current_device_;
  if (name.ends_with(':')) name.remove_suffix(1);
  for (const Device& device : devices_) {
    if (!scpi::SameWord(device.name, name)) continue;
    if (!device.present) throw Refusal(Error::kMissingMedia, device.name);
    return device;
  }
  throw Refusal(Error::kMissingMassStorage, std::string(name));
}

std::string FileStore::Resolve(const Device& device, std::string_view path) const {
  std::string whole(path);
  std::replace(whole.begin(), whole.end(), '\\', '/');
  if (!whole.starts_with('/') && device.name == current_device_) whole.insert(0, current_directory_ + '/');
  std::string resolved;
  std::string_view rest = whole;
  while (!rest.empty()) {
    const std::string_view name = rest.substr(0, rest.find('/'));
    rest.remove_prefix(std::min(rest.size(), name.size() + 1));
    if (name.empty() || name == ".") continue;
    if (name == "..") {
      resolved = ParentOf(resolved);
      continue;
    }
    if (name.size() > kLongestName || name.find_first_of("\"*?:<>|,") != std::string_view::npos) {
      throw Refusal(Error::kFileName, std::string(name));
    }
    if (!resolved.empty()) resolved += '/';
    resolved += name;
  }
  return resolved;
}

std::string FileStore::ResolveFile(const Device& device, std::string_view path) const {
  std::string resolved = Resolve(device, path);
  if (path.empty() || resolved.empty() || HasDirectory(device, resolved)) {
    throw Refusal(Error::kFileName, std::string(path));
  }
  if (!HasDirectory(device, ParentOf(resolved))) throw Refusal(Error::kFileNameNotFound, ParentOf(resolved));
  return resolved;
}

bool FileStore::HasDirectory(const Device& device, const std::string& path) {
  return path.empty() || device.directories.contains(path);
}

std::size_t FileStore::UsedOf(const Device& device, const std::string& directory) {
  std::size_t used = 0;
  for (const auto& [name, content] : device.files) {
    if (IsUnder(name, directory)) used += content.view.size();
  }
  return used;
}

void FileStore::SelectDevice(std::string_view device) {
  current_device_ = Find(device).name;
  current_directory_ = "/";
}

void FileStore::SelectDirectory(std::string_view directory) {
  const Device& device = Find(current_device_);
  const std::string path = Resolve(device, directory);
  if (!HasDirectory(device, path)) throw Refusal(Error::kFileNameNotFound, std::string(directory));
  current_directory_ = '/' + path;
}

std::vector<std::string> FileStore::Devices() const {
  std::vector<std::string> names;
  for (const Device& device : devices_) {
    if (device.present) names.push_back(device.name);
  }
  return names;
}

void FileStore::Eject(std::string_view name) {
  Device& device = Find(name);
  if (device.name == kInternal) throw Refusal(Error::kMassStorage, "Internal cannot be ejected");
  device.present = false;
  if (current_device_ == device.name) SelectDevice(kInternal);
}

void FileStore::InsertUsb() { devices_.back().present = true; }

void FileStore::Write(std::string_view device_name, std::string_view path, const Bytes& content) {
  Device& device = Find(device_name);
  const std::string name = ResolveFile(device, path);
  const auto old = device.files.find(name);
  const std::size_t freed = old == device.files.end() ? 0 : old->second.view.size();
  if (UsedOf(device, "") - freed + content.view.size() > device.capacity) throw Refusal(Error::kMediaFull);
  if (old == device.files.end() && device.files.size() >= kMostEntries) throw Refusal(Error::kDirectoryFull);
  device.files[name] = content.view.size() < kSmallFile ? Bytes::Copy(content.view) : content;
}

Bytes FileStore::Read(std::string_view device_name, std::string_view path) const {
  const Device& device = Find(device_name);
  const auto file = device.files.find(ResolveFile(device, path));
  if (file == device.files.end()) throw Refusal(Error::kFileNameNotFound, std::string(path));
  return file->second;
}

void FileStore::Remove(std::string_view device_name, std::string_view path) {
  Device& device = Find(device_name);
  if (device.files.erase(ResolveFile(device, path)) == 0) throw Refusal(Error::kFileNameNotFound, std::string(path));
}

void FileStore::Copy(std::string_view from_device, std::string_view from, std::string_view to_device,
                     std::string_view to) {
  Write(to_device, to, Read(from_device, from));
}

void FileStore::CreateDirectory(std::string_view device_name, std::string_view path) {
  Device& device = Find(device_name);
  const std::string name = Resolve(device, path);
  if (HasDirectory(device, name) || device.files.contains(name)) throw Refusal(Error::kFileName, std::string(path));
  if (!HasDirectory(device, ParentOf(name))) throw Refusal(Error::kFileNameNotFound, ParentOf(name));
  if (device.directories.size() >= kMostEntries) throw Refusal(Error::kDirectoryFull);
  device.directories[name] = true;
}

void FileStore::RemoveDirectory(std::string_view device_name, std::string_view path) {
  Device& device = Find(device_name);
  const std::string name = Resolve(device, path);
  if (name.empty() || !HasDirectory(device, name)) throw Refusal(Error::kFileNameNotFound, std::string(path));
  if (!List(device_name, path).empty()) throw Refusal(Error::kMassStorage, "Directory not empty");
  device.directories.erase(name);
  if (device.name == current_device_ && current_directory_ == '/' + name) current_directory_ = "/";
}

std::vector<FileStore::Entry> FileStore::List(std::string_view device_name, std::string_view path) const {
  const Device& device = Find(device_name);
  const std::string directory = Resolve(device, path);
  if (!HasDirectory(device, directory)) throw Refusal(Error::kFileNameNotFound, std::string(path));
  const auto directly_inside = [&directory](const std::string& name) {
    return IsUnder(name, directory) && ParentOf(name) == directory;
  };
  const std::size_t prefix = directory.empty() ? 0 : directory.size() + 1;
  std::vector<Entry> entries;
  for (const auto& [name, present] : device.directories) {
    if (directly_inside(name)) entries.push_back({name.substr(prefix), true, UsedOf(device, name)});
  }
  for (const auto& [name, content] : device.files) {
    if (directly_inside(name)) entries.push_back({name.substr(prefix), false, content.view.size()});
  }
  return entries;
}

std::size_t FileStore::SizeOf(std::string_view device_name, std::string_view path) const {
  const Device& device = Find(device_name);
  const std::string directory = Resolve(device, path);
  if (!HasDirectory(device, directory)) throw Refusal(Error::kFileNameNotFound, std::string(path));
  return UsedOf(device, directory);
}

std::size_t FileStore::Used(std::string_view device) const { return UsedOf(Find(device), ""); }
std::size_t FileStore::Free(std::string_view device) const { return Find(device).capacity - Used(device); }

bool FileStore::HasFile(std::string_view device_name, std::string_view path) const {
  const Device& device = Find(device_name);
  return device.files.contains(Resolve(device, path));
}

void FileStore::ResetUserFiles() {
  Device& device = devices_.front();
  std::erase_if(device.files, [](const auto& file) { return !IsSystemPath(file.first); });
  std::erase_if(device.directories, [](const auto& directory) { return !IsSystemPath(directory.first); });
  device.directories["user"] = true;
  current_device_ = kInternal;
  current_directory_ = "/";
}

void FileStore::ResetSystemFiles() {
  Device& device = devices_.front();
  std::erase_if(device.files, [](const auto& file) { return IsSystemPath(file.first); });
  std::erase_if(device.directories, [](const auto& directory) { return IsSystemPath(directory.first); });
  device.directories["system"] = true;
  for (const auto& [name, content] : kSystemFiles) device.files[std::string(name)] = Bytes::Copy(content);
  current_device_ = kInternal;
  current_directory_ = "/";
}

}  // namespace siggen::model
