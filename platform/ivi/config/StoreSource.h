#ifndef TVRIVI_CONFIG_STORE_SOURCE_H
#define TVRIVI_CONFIG_STORE_SOURCE_H

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tvrivi {

/// A store that cannot be read or written. The text names the file and, when there is one, the place in it.
class StoreError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The text of a store as it was read, which alone knows the line of a fault.
struct StoreSource {
  std::string location;
  std::string text;

  /// Throws StoreError "location, line n: reason", or with an element "location, line n, <element>: reason".
  [[noreturn]] void Reject(std::size_t offset, std::string_view reason, std::string_view element = {}) const;
};

/// Refuses what the XML parser would let pass: document types and entities, unknown entity references, text outside the
/// root, bytes that are not UTF-8 text, and documents too deep or too many-membered to be a store.
void CheckText(const StoreSource& source);

}  // namespace tvrivi

#endif
