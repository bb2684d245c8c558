// viGetAttribute and viSetAttribute of both kinds of objects, but for the plain values (settings.cpp) and what belongs
// to one protocol (the transports).
#include "session.h"
#include "text_out.h"

namespace tvr::visa {
namespace {

constexpr ViVersion kImplementationVersion = 0x00100000;  // 1.0.0: major bits 31-20, minor 19-8, sub-minor 7-0
constexpr std::string_view kManufacturer = "TVR";
constexpr ViUInt16 kManufacturerId = 0x3FFE;

// The attributes that every object of VISA has.
ViStatus GetTemplateAttribute(ViAttr attribute, void* value) {
  switch (attribute) {
    case VI_ATTR_RSRC_IMPL_VERSION:
      return PutNumber<ViVersion>(value, kImplementationVersion);
    case VI_ATTR_RSRC_SPEC_VERSION:
      return PutNumber<ViVersion>(value, VI_SPEC_VERSION);
    case VI_ATTR_RSRC_MANF_NAME:
      return PutText(value, kManufacturer);
    case VI_ATTR_RSRC_MANF_ID:
      return PutNumber<ViUInt16>(value, kManufacturerId);
    default:
      return VI_ERROR_NSUP_ATTR;
  }
}

bool IsReadOnlyTemplate(ViAttr attribute) {
  switch (attribute) {
    case VI_ATTR_RSRC_CLASS:
    case VI_ATTR_RSRC_NAME:
    case VI_ATTR_RSRC_IMPL_VERSION:
    case VI_ATTR_RSRC_LOCK_STATE:
    case VI_ATTR_RM_SESSION:
    case VI_ATTR_RSRC_SPEC_VERSION:
    case VI_ATTR_RSRC_MANF_NAME:
    case VI_ATTR_RSRC_MANF_ID:
      return true;
    default:
      return false;
  }
}

// The other protocols are those of buses that mark the end of a message.
bool IsProtocolOfStreams(ViAttrState value) { return value == VI_PROT_NORMAL || value == VI_PROT_4882_STRS; }

bool IsSettingOfManager(ViAttr attribute) {
  return attribute == VI_ATTR_MAX_QUEUE_LENGTH || attribute == VI_ATTR_USER_DATA_32 ||
         attribute == VI_ATTR_USER_DATA_64;
}

}  // namespace

ViStatus ResourceManager::GetAttribute(ViAttr attribute, void* value) {
  switch (attribute) {
    case VI_ATTR_RSRC_CLASS:
    case VI_ATTR_RSRC_NAME:
      return PutText(value, "");
    case VI_ATTR_RSRC_LOCK_STATE:
      return PutNumber<ViAccessMode>(value, VI_NO_LOCK);
    case VI_ATTR_RM_SESSION:
      return PutNumber<ViSession>(value, VI_NULL);
    default:
      return IsSettingOfManager(attribute) ? settings_.Get(attribute, value) : GetTemplateAttribute(attribute, value);
  }
}

ViStatus ResourceManager::SetAttribute(ViAttr attribute, ViAttrState value) {
  if (IsReadOnlyTemplate(attribute)) return VI_ERROR_ATTR_READONLY;
  return IsSettingOfManager(attribute) ? settings_.Set(attribute, value) : VI_ERROR_NSUP_ATTR;
}

ViStatus Session::GetAttribute(ViAttr attribute, void* value) {
  if (const ViStatus status = settings_.Get(attribute, value); status != VI_ERROR_NSUP_ATTR) return status;
  switch (attribute) {
    case VI_ATTR_RSRC_CLASS:
      return PutText(value, resource_.resource_class);
    case VI_ATTR_RSRC_NAME:
      return PutText(value, resource_.canonical);
    case VI_ATTR_RSRC_LOCK_STATE:
      return PutNumber<ViAccessMode>(value, lock_->State());
    case VI_ATTR_RM_SESSION:
      return PutNumber<ViSession>(value, resource_manager_);
    case VI_ATTR_INTF_TYPE:
      return PutNumber<ViUInt16>(value, resource_.interface_type);
    case VI_ATTR_INTF_NUM:
      return PutNumber<ViUInt16>(value, resource_.board);
    case VI_ATTR_INTF_INST_NAME:
      return PutText(value, "TCPIP" + std::to_string(resource_.board));
    case VI_ATTR_RD_BUF_SIZE:
      return PutNumber(value, static_cast<ViUInt32>(input_.Size()));
    case VI_ATTR_WR_BUF_SIZE:
      return PutNumber(value, static_cast<ViUInt32>(output_.NominalSize()));
    default:
      break;
  }
  const ViStatus status = GetTemplateAttribute(attribute, value);
  return status == VI_ERROR_NSUP_ATTR ? transport().GetAttribute(attribute, value) : status;
}

ViStatus Session::SetAttribute(ViAttr attribute, ViAttrState value) {
  if (IsReadOnlyTemplate(attribute)) return VI_ERROR_ATTR_READONLY;
  switch (attribute) {
    case VI_ATTR_INTF_TYPE:
    case VI_ATTR_INTF_NUM:
    case VI_ATTR_INTF_INST_NAME:
    case VI_ATTR_RD_BUF_SIZE:
    case VI_ATTR_WR_BUF_SIZE:
      return VI_ERROR_ATTR_READONLY;
    case VI_ATTR_IO_PROT:
      if (resource_.resource_class == "SOCKET" && !IsProtocolOfStreams(value)) return VI_ERROR_NSUP_ATTR_STATE;
      break;
    case VI_ATTR_MAX_QUEUE_LENGTH:
      if (events_ != nullptr && events_->Used()) return VI_ERROR_ATTR_READONLY;
      break;
    default:
      break;
  }
  const ViStatus status = settings_.Set(attribute, value);
  if (status != VI_ERROR_NSUP_ATTR) return status;
  // Some of these are an exchange with the device.
  const std::lock_guard one_at_a_time(call_);
  interruption_.BeginCall();
  if (transport().ClearsWhenSet(attribute, value)) DiscardBuffers();
  return transport().SetAttribute(attribute, value, settings_.Timeout());
}

}  // namespace tvr::visa
