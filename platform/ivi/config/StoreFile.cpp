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

void WriteAll(const std::string& location, int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) Fail(location, errno);
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

// A new file beside the one that it is to become. Whatever is not given its name is gone at the end of the scope.
class FileBeside {
 public:
  explicit FileBeside(const std::filesystem::path& target)
      : name_(target.string() + ".XXXXXX"), folder_(target.parent_path()), file_(::mkostemp(name_.data(), O_CLOEXEC)) {
    if (file_.get() < 0) Fail(name_, errno);
  }
  ~FileBeside() { ::unlink(name_.c_str()); }  // finds nothing after a rename
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  const char* name() const { return name_.c_str(); }

  void KeepOwner(const struct stat& before) {
    // Only who may give files away can keep an owner; everybody else already is the owner, or becomes it.
    if (::fchown(file_.get(), before.st_uid, before.st_gid) != 0 && errno != EPERM) Fail(name_, errno);
  }

  // Brings the text to the disk; the file is whole from here on.
  void Write(std::string_view text, mode_t mode) {
    if (::fchmod(file_.get(), mode) != 0) Fail(name_, errno);
    WriteAll(name_, file_.get(), text);
    if (::fsync(file_.get()) != 0) Fail(name_, errno);
    if (!file_.Close()) Fail(name_, errno);
  }

  // A new name is on the disk once its folder is. The store is whole either way, so a failure is no failure.
  void SyncFolder() const {
    const File folder(::open(folder_.empty() ? "." : folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.get() >= 0) ::fsync(folder.get());
  }

 private:
  std::string name_;
  std::filesystem::path folder_;
  File file_;
};

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

  FileBeside beside(target);
  if (existed) beside.KeepOwner(before);
  beside.Write(text, existed ? before.st_mode & 07777 : 0644);
  if (std::rename(beside.name(), target.c_str()) != 0) Fail(location, errno);
  beside.SyncFolder();
}

bool CreateFile(const std::string& location, std::string_view text) {
  FileBeside beside(location);
  beside.Write(text, 0644);
  if (::link(beside.name(), location.c_str()) != 0) {
    if (errno == EEXIST) return false;
    Fail(location, errno);
  }
  beside.SyncFolder();
  return true;
}

}  // namespace tvrivi
