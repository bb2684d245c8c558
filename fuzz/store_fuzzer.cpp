// Any bytes as a configuration store: they are read, or refused with a text that names the file and what is wrong.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "config/StoreReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const tvrivi::StoreSource source{"store.xml", std::string(reinterpret_cast<const char*>(data), size)};
  try {
    pugi::xml_document document;
    tvrivi::ParseStore(source, document);
    tvrivi::ReadStore(source, document);
  } catch (const tvrivi::StoreError& refusal) {
    const std::string_view text = refusal.what();
    if (!text.starts_with("store.xml") || text.size() <= std::string_view("store.xml").size() + 2) std::abort();
  }
  return 0;
}
