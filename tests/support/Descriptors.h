#ifndef KVTD_TESTS_SUPPORT_DESCRIPTORS_H
#define KVTD_TESTS_SUPPORT_DESCRIPTORS_H

#include <cstddef>
#include <filesystem>
#include <iterator>

namespace kvtd::test {

// How many this process has open. The folder that is read is one more.
inline std::size_t OpenDescriptors() {
  return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {})) - 1;
}

}  // namespace kvtd::test

#endif
