#ifndef TOOLS_IVI_STORE_FOLDER_LOCK_H
#define TOOLS_IVI_STORE_FOLDER_LOCK_H

#include <string>

/// Keeps two runs of the tool from editing stores of one folder at the same time, when the later one would undo what
/// the earlier one did. It waits up to ten seconds; then, or when the folder cannot be locked, it throws StoreError.
class FolderLock {
 public:
  explicit FolderLock(const std::string& location);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

 private:
  int descriptor_;
};

#endif
