// Exported: resource manager, opening and closing, attributes.
#include <string_view>

#include "api.h"
#include "status_text.h"
#include "text_out.h"

using namespace tvr::visa;

ViStatus viOpenDefaultRM(ViPSession sesn) {
  if (sesn == nullptr) return VI_ERROR_USER_BUF;
  *sesn = VI_NULL;
  return Guarded([&]() -> ViStatus {
    *sesn = handles::Add(std::make_unique<ResourceManager>());
    return *sesn == VI_NULL ? VI_ERROR_ALLOC : VI_SUCCESS;
  });
}

#undef viGetDefaultRM
ViStatus viGetDefaultRM(ViPSession sesn) { return viOpenDefaultRM(sesn); }

ViStatus viOpen(ViSession sesn, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi) {
  if (vi == nullptr) return VI_ERROR_USER_BUF;
  *vi = VI_NULL;
  return On<ResourceManager>(sesn, [&](ResourceManager& manager) -> ViStatus {
    ResourceName resource;
    if (name == nullptr) return VI_ERROR_INV_RSRC_NAME;
    if (const ViStatus status = ParseResourceName(name, resource); status < 0) return status;
    if ((mode & ~static_cast<ViAccessMode>(VI_EXCLUSIVE_LOCK | VI_LOAD_CONFIG)) != 0) return VI_ERROR_INV_ACC_MODE;

    auto session = std::make_unique<Session>(sesn, std::move(resource));
    if (const ViStatus status = session->Open(mode, timeout); status < 0) return status;
    Session& opened = *session;
    const ViSession handle = handles::Add(std::move(session));
    if (handle == VI_NULL) return VI_ERROR_ALLOC;
    const Pinned pinned(handle);
    opened.SetHandle(handle);
    if (!manager.Adopt(handle)) return VI_ERROR_INV_OBJECT;
    *vi = handle;
    return (mode & VI_LOAD_CONFIG) != 0 ? VI_WARN_CONFIG_NLOADED : VI_SUCCESS;
  });
}

ViStatus viClose(ViObject vi) {
  if (vi == VI_NULL) return VI_WARN_NULL_OBJECT;
  return Guarded([&]() -> ViStatus { return handles::Close(vi) ? VI_SUCCESS : VI_ERROR_INV_OBJECT; });
}

ViStatus viGetAttribute(ViObject vi, ViAttr attr, void* value) {
  return On<AttributeOwner>(vi, [&](AttributeOwner& owner) -> ViStatus {
    return value == nullptr ? VI_ERROR_USER_BUF : owner.GetAttribute(attr, value);
  });
}

ViStatus viSetAttribute(ViObject vi, ViAttr attr, ViAttrState value) {
  return On<AttributeOwner>(vi, [&](AttributeOwner& owner) { return owner.SetAttribute(attr, value); });
}

ViStatus viStatusDesc(ViObject vi, ViStatus status, ViChar desc[]) {
  return On<Object>(vi, [&](Object&) -> ViStatus {
    if (desc == nullptr) return VI_ERROR_USER_BUF;
    const std::string_view text = StatusText(status);
    PutText(desc, text.empty() ? "Unknown status code." : text);
    return text.empty() ? VI_WARN_UNKNOWN_STATUS : VI_SUCCESS;
  });
}

ViStatus viParseRsrcEx(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum, ViChar rsrcClass[],
                       ViChar expandedUnaliasedName[], ViChar aliasIfExists[]) {
  return On<ResourceManager>(sesn, [&](ResourceManager&) -> ViStatus {
    ResourceName resource;
    if (name == nullptr) return VI_ERROR_INV_RSRC_NAME;
    if (const ViStatus status = ParseResourceName(name, resource); status < 0) return status;
    if (intfType != nullptr) *intfType = resource.interface_type;
    if (intfNum != nullptr) *intfNum = resource.board;
    if (rsrcClass != nullptr) PutText(rsrcClass, resource.resource_class);
    if (expandedUnaliasedName != nullptr) PutText(expandedUnaliasedName, resource.canonical);
    if (aliasIfExists != nullptr) PutText(aliasIfExists, "");
    return VI_SUCCESS;
  });
}

ViStatus viParseRsrc(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum) {
  return viParseRsrcEx(sesn, name, intfType, intfNum, nullptr, nullptr, nullptr);
}
