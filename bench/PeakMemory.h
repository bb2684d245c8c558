// How much more memory the process has held at a time than when it began to look.
#pragma once

#include <malloc.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace bench {

class PeakMemory {
 public:
  // What was freed goes back to the system first, and former peaks are forgotten: neither may hide what comes.
  PeakMemory() {
    ::malloc_trim(0);
    std::ofstream forget("/proc/self/clear_refs");
    if (!(forget << 5 << std::flush)) throw std::runtime_error("the peak of memory cannot be set back");
    before_ = KibibytesOf("VmRSS:");
  }

  double MoreKibibytes() const { return KibibytesOf("VmHWM:") - before_; }

 private:
  static double KibibytesOf(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
      std::istringstream words(line);
      std::string first;
      double kibibytes = 0.0;
      if (words >> first >> kibibytes && first == name) return kibibytes;
    }
    throw std::runtime_error("no " + name);
  }

  double before_ = 0.0;
};

}  // namespace bench
