#ifndef TVRIVI_CONFIG_STORE_READER_H
#define TVRIVI_CONFIG_STORE_READER_H

#include <pugixml.hpp>

#include "config/Model.h"
#include "config/StoreSource.h"

namespace tvrivi {

/// A document and what it says.
struct LoadedStore {
  pugi::xml_document document;
  Model model;
};

/// Parses the text into a document that keeps comments, instructions and unknown elements, so that it can be written
/// back without loss. Throws StoreError.
void ParseStore(const StoreSource& source, pugi::xml_document& document);

/// Builds the model of a parsed store. Strict about what a store must be: one root IviConfigStore, ids given once,
/// references that lead to an object of the right class, names given once in a collection, numbers that are numbers.
/// Tolerant about the rest: order, unknown elements, missing optional ones, X as well as XRef. Throws StoreError.
Model ReadStore(const StoreSource& source, const pugi::xml_document& document);

}  // namespace tvrivi

#endif
