#include "Registry.h"

#include "Assertions.h"
#include "Strings.h"

namespace tvr {

ViStatus FindHandler(ViSession vi, ViAttr id, Direction direction, const std::type_info& type, const char* type_name,
                     Handler& handler) {
  const AttributeDescriptor* attribute = Registry().Find(id);
  if (attribute == nullptr) return RaiseError(vi, error::kInvalidAttribute, std::to_string(id).c_str());
  if (*attribute->type != type) {
    return RaiseError(vi, error::kTypesDoNotMatch, direction == Direction::kGet ? "Get" : "Set", type_name,
                      attribute->name.c_str(), attribute->type_name);
  }
  handler = direction == Direction::kGet ? attribute->getter : attribute->setter;
  if (handler != nullptr) return VI_SUCCESS;
  return RaiseError(vi, direction == Direction::kGet ? error::kAttrNotReadable : error::kAttrNotWritable,
                    attribute->name.c_str());
}

namespace {

#ifdef __GLIBC__
std::size_t strnlen_s(const char* text, std::size_t limit) { return text == nullptr ? 0 : ::strnlen(text, limit); }
#endif

}  // namespace

ViStatus GetStringAttribute(ViSession vi, ViConstString selector, ViAttr id, ViInt32 size, ViChar* AttributeValue) {
  Handler handler = nullptr;
  const ViStatus found =
      FindHandler(vi, id, Direction::kGet, typeid(ViString), AttributeType<ViString>::kName, handler);
  if (found < 0) return found;
  const auto getter = reinterpret_cast<AttributeType<ViString>::Getter>(handler);

  if (AttributeValue == nullptr && size != 0) {
    return RaiseError(vi, error::kNullPointer, "GetAttributeViString", "AttributeValueBufferSize");
  }
  if (size == 0) return MAX_STRING_ATTRIBUTE_LENGTH;
  if (size < 0) return getter(vi, selector, MAX_STRING_ATTRIBUTE_LENGTH, AttributeValue);

  const ViStatus status = getter(vi, selector, size, AttributeValue);
  // Measured after a good read only: a failed one may leave a buffer that holds no text at all.
  if (status < 0) return status;
  assert(strnlen_s(AttributeValue, _TRUNCATE) < MAX_STRING_ATTRIBUTE_LENGTH);
  const std::size_t length = strnlen_s(AttributeValue, static_cast<std::size_t>(size));
  return static_cast<std::size_t>(size) == length + 1 ? MAX_STRING_ATTRIBUTE_LENGTH : status;
}

}  // namespace tvr
