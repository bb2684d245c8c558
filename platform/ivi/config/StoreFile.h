#ifndef TVRIVI_CONFIG_STORE_FILE_H
#define TVRIVI_CONFIG_STORE_FILE_H

#include <optional>
#include <string>
#include <string_view>

namespace tvrivi {

/// The content of a regular file of at most 64 MiB; nothing when there is no such file.
/// Throws StoreError when it is anything else or cannot be read.
std::optional<std::string> ReadFile(const std::string& location);

/// Replaces a file at once or not at all: the text goes to a file beside it, to the disk, and then takes its name.
/// An existing file keeps its permissions; a symbolic link stays one. Throws StoreError.
void ReplaceFile(const std::string& location, std::string_view text);

/// The same for a file that must not exist yet: false, and nothing happened, when there is one. Throws StoreError.
bool CreateFile(const std::string& location, std::string_view text);

}  // namespace tvrivi

#endif
