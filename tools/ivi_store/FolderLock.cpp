#include "FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

#include "config/StoreSource.h"

namespace {

std::string FolderOf(const std::string& location) {
  std::error_code resolved;
  const std::filesystem::path target = std::filesystem::weakly_canonical(location, resolved);
  const std::filesystem::path folder = (resolved ? std::filesystem::path(location) : target).parent_path();
  return folder.empty() ? "." : folder.string();
}

}  // namespace

FolderLock::FolderLock(const std::string& location) : descriptor_(-1) {
  const std::string folder = FolderOf(location);
  descriptor_ = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor_ < 0) throw tvrivi::StoreError(folder + ": " + std::generic_category().message(errno));
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
    const int error = errno;
    if (error == EINTR) continue;
    if (error != EWOULDBLOCK || std::chrono::steady_clock::now() > end) {
      ::close(descriptor_);
      throw tvrivi::StoreError(folder + (error == EWOULDBLOCK ? ": another program is editing a store in this folder"
                                                              : ": " + std::generic_category().message(error)));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
}

FolderLock::~FolderLock() { ::close(descriptor_); }
