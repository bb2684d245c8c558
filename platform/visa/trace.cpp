#include "trace.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <mutex>
#include <string>
#include <string_view>

namespace tvr::visa::trace {
namespace {

constexpr std::size_t kMostShown = 256;

std::FILE* Open() {
  const char* const target = std::getenv("TVR_VISA_TRACE");
  if (target == nullptr || *target == '\0') return nullptr;
  if (std::string_view(target) == "stderr") return stderr;
  std::FILE* const file = std::fopen(target, "ae");
  if (file == nullptr) std::fprintf(stderr, "TVR_VISA_TRACE: cannot open %s\n", target);
  return file;
}

std::FILE* const the_file = Open();

void AppendShown(std::string& line, std::span<const iovec> pieces, std::size_t count) {
  std::size_t shown = 0;
  for (const iovec& piece : pieces) {
    const auto* bytes = static_cast<const unsigned char*>(piece.iov_base);
    for (std::size_t i = 0; i < piece.iov_len && shown < count; ++i, ++shown) {
      if (shown == kMostShown) {
        line += "\"...";
        return;
      }
      std::array<char, 8> escaped{};
      const unsigned char byte = bytes[i];
      if (byte == '\n') {
        line += "\\n";
      } else if (byte == '"' || byte == '\\') {
        line += {'\\', static_cast<char>(byte)};
      } else if (byte >= 0x20 && byte < 0x7F) {
        line += static_cast<char>(byte);
      } else {
        std::snprintf(escaped.data(), escaped.size(), "\\x%02X", byte);
        line += escaped.data();
      }
    }
  }
  line += '"';
}

}  // namespace

const bool kOn = the_file != nullptr;

void Message(ViSession session, Direction direction, std::span<const iovec> pieces, std::size_t count,
             ViStatus status) noexcept try {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  const auto microseconds =
      std::chrono::duration_cast<std::chrono::microseconds>(now.time_since_epoch()).count() % 1000000;
  std::tm local{};
  ::localtime_r(&seconds, &local);
  std::array<char, 96> head{};
  std::snprintf(head.data(), head.size(), "%02d:%02d:%02d.%06lld %08X %c %zu bytes 0x%08X \"", local.tm_hour,
                local.tm_min, local.tm_sec, static_cast<long long>(microseconds), session, static_cast<char>(direction),
                count, static_cast<unsigned>(status));
  std::string line = head.data();
  AppendShown(line, pieces, count);
  line += '\n';

  static std::mutex guard;
  const std::lock_guard lock(guard);
  std::fwrite(line.data(), 1, line.size(), the_file);
  std::fflush(the_file);
} catch (...) {
  // A trace line is lost, the exchange is not.
}

}  // namespace tvr::visa::trace
