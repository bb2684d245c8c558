#ifndef TVRIVI_CONFIG_ELEMENT_READER_H
#define TVRIVI_CONFIG_ELEMENT_READER_H

#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "IviVisaType.h"
#include "config/StoreSource.h"

namespace tvrivi {

/// Reads the values of one store's elements, and says where a wrong one stands.
class ElementReader {
 public:
  explicit ElementReader(const StoreSource& source) : source_(source) {}

  /// Throws StoreError with the file, the line, the element and the reason.
  [[noreturn]] void Reject(pugi::xml_node element, std::string_view reason) const;

  /// The only child of that name, or an empty node. Two are refused: nothing tells which of them is meant.
  pugi::xml_node Child(pugi::xml_node parent, const char* name) const;

  // Values of an optional child: the empty value when it is missing or holds white space only.
  std::string Text(pugi::xml_node parent, const char* name) const;
  bool Boolean(pugi::xml_node parent, const char* name) const;
  ViInt32 Integer(pugi::xml_node parent, const char* name) const;
  ViReal64 Real(pugi::xml_node parent, const char* name) const;

 private:
  const StoreSource& source_;
};

}  // namespace tvrivi

#endif
