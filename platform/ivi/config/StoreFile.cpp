#include "config/StoreFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include "config/StoreSource.h"

namespace tvrivi {

namespace {

constexpr std::size_t kLargest = 64u << 20;

[[noreturn]] void Fail(const std::string& location, int error) {
  throw StoreError(location + ": " + std::generic_category().message(error));
}

class File {
 public:
  explicit File(int descriptor) : descriptor_(descriptor) {}
  ~File() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  int get() const { return descriptor_; }
  bool Close() { return ::close(std::exchange(descriptor_, -1)) == 0; }

 private:
  int descriptor_;
};

// Removes the file beside the store unless it has taken the store's name.
class Unfinished {
 public:
  explicit Unfinished(std::string location) : location_(std::move(location)) {}
  ~Unfinished() {
    if (!location_.empty()) ::unlink(location_.c_str());
  }
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;

  void Finished() { location_.clear(); }

 private:
  std::string location_;
};

void WriteAll(const std::string& location, int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) Fail(location, errno);
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

}  // namespace

std::optional<std::string> ReadFile(const std::string& location) {
  // Without O_NONBLOCK a pipe of that name would hold the caller until somebody writes to it.
  const File file(::open(location.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (file.get() < 0) {
    if (errno == ENOENT) return std::nullopt;
    Fail(location, errno);
  }
  struct stat status {};
  if (::fstat(file.get(), &status) != 0) Fail(location, errno);
  if (!S_ISREG(status.st_mode)) throw StoreError(location + ": not a regular file");
  if (static_cast<std::size_t>(status.st_size) > kLargest) {
    throw StoreError(location + ": " + std::to_string(status.st_size) +
                     " bytes, more than the 64 MiB that a store may have");
  }

  std::string text(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t length = 0;
  while (length < text.size()) {
    const ssize_t got = ::read(file.get(), text.data() + length, text.size() - length);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) Fail(location, errno);
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
  }
  text.resize(length);
  return text;
}

void ReplaceFile(const std::string& location, std::string_view text) {
  std::error_code resolved;
  const std::filesystem::path target = std::filesystem::weakly_canonical(location, resolved);
  if (resolved) Fail(location, resolved.value());
  struct stat before {};
  const bool existed = ::stat(target.c_str(), &before) == 0;
  if (existed && !S_ISREG(before.st_mode)) throw StoreError(location + ": not a regular file");

  std::string beside = target.string() + ".XXXXXX";
  File file(::mkostemp(beside.data(), O_CLOEXEC));
  if (file.get() < 0) Fail(beside, errno);
  Unfinished unfinished(beside);
  // The owner can only be kept by one who may give files away; everybody else already is the owner, or becomes it.
  if (existed && ::fchown(file.get(), before.st_uid, before.st_gid) != 0 && errno != EPERM) Fail(beside, errno);
  if (::fchmod(file.get(), existed ? before.st_mode & 07777 : 0644) != 0) Fail(beside, errno);
  WriteAll(beside, file.get(), text);
  if (::fsync(file.get()) != 0) Fail(beside, errno);
  if (!file.Close()) Fail(beside, errno);
  if (std::rename(beside.c_str(), target.c_str()) != 0) Fail(location, errno);
  unfinished.Finished();

  // The new name is on the disk once its folder is. The store is whole either way, so a failure is no failure.
  const File folder(::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.get() >= 0) ::fsync(folder.get());
}

}  // namespace tvrivi
