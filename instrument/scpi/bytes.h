// A slice of bytes that keeps the buffer it lies in alive. A file that arrives as a block is stored, and later sent,
// from the very buffer the network filled.
#pragma once

#include <cstring>
#include <memory>
#include <string_view>

namespace siggen::scpi {

struct Bytes {
  std::shared_ptr<const void> owner;
  std::string_view view;

  static Bytes Copy(std::string_view text) {
    auto room = std::make_shared_for_overwrite<char[]>(text.size());
    if (!text.empty()) std::memcpy(room.get(), text.data(), text.size());
    const std::string_view copied(room.get(), text.size());
    return {std::move(room), copied};
  }

  Bytes Part(std::string_view part) const { return {owner, part}; }
};

}  // namespace siggen::scpi
