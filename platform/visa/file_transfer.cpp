#include "file_transfer.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <vector>

namespace tvr::visa {
namespace {

constexpr std::size_t kPiece = std::size_t{64} * 1024;

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

File Open(const char* name, const char* mode) {
  return File(name == nullptr || *name == '\0' ? nullptr : std::fopen(name, mode));
}

}  // namespace

ViStatus ReadToFile(Session& session, const char* name, std::size_t count, Deadline& deadline, std::size_t& received) {
  const File file = Open(name, session.settings()[Settings::kFileAppend] != VI_FALSE ? "abe" : "wbe");
  if (!file) return VI_ERROR_FILE_ACCESS;
  std::vector<ViByte> piece(std::min(count, kPiece));
  ViStatus status = VI_SUCCESS_MAX_CNT;
  bool more = true;
  while (received < count && more) {
    const std::size_t wanted = std::min(count - received, piece.size());
    std::size_t taken = 0;
    status = session.Read(piece.data(), wanted, deadline, taken);
    if (std::fwrite(piece.data(), 1, taken, file.get()) != taken) return VI_ERROR_FILE_IO;
    received += taken;
    more = status == VI_SUCCESS_MAX_CNT && taken == wanted;
  }
  return std::fflush(file.get()) == 0 ? status : VI_ERROR_FILE_IO;
}

ViStatus WriteFromFile(Session& session, const char* name, std::size_t count, Deadline& deadline, std::size_t& sent) {
  const File file = Open(name, "rbe");
  if (!file) return VI_ERROR_FILE_ACCESS;
  // END goes with the last byte, so one piece is always read ahead to know which is the last.
  std::vector<ViByte> piece(kPiece);
  std::vector<ViByte> next(kPiece);
  std::size_t left = count;
  const auto fill = [&](std::vector<ViByte>& into) {
    const std::size_t taken = std::fread(into.data(), 1, std::min(left, into.size()), file.get());
    left -= taken;
    return taken;
  };
  std::size_t size = fill(piece);
  while (size > 0) {
    const std::size_t next_size = fill(next);
    std::size_t gone = 0;
    const ViStatus status = session.Write(piece.data(), size, next_size == 0, deadline, gone);
    sent += gone;
    if (status < 0) return status;
    std::swap(piece, next);
    size = next_size;
  }
  return std::ferror(file.get()) == 0 ? VI_SUCCESS : VI_ERROR_FILE_IO;
}

}  // namespace tvr::visa
