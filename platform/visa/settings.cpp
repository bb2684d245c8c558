#include "settings.h"

#include "text_out.h"

namespace tvr::visa {
namespace {

using Allowed = bool (*)(ViUInt64);

bool Bit(ViUInt64 value) { return value <= VI_TRUE; }
bool Octet(ViUInt64 value) { return value <= 0xFF; }
bool Bits32(ViUInt64 value) { return value <= 0xFFFFFFFFu; }
bool Bits64(ViUInt64) { return true; }
bool Positive32(ViUInt64 value) { return value >= 1 && Bits32(value); }
bool Protocol(ViUInt64 value) { return value >= VI_PROT_NORMAL && value <= VI_PROT_USBTMC_VENDOR; }
bool ReadMode(ViUInt64 value) { return value == VI_FLUSH_ON_ACCESS || value == VI_FLUSH_DISABLE; }
bool WriteMode(ViUInt64 value) { return value == VI_FLUSH_ON_ACCESS || value == VI_FLUSH_WHEN_FULL; }

struct Setting {
  ViAttr attribute;
  unsigned width;  // bytes
  ViUInt64 initial;
  Allowed allowed;
};

constexpr std::array<Setting, Settings::kCount> kSettings{{
    {VI_ATTR_TMO_VALUE, 4, 2000, Bits32},
    {VI_ATTR_TERMCHAR, 1, '\n', Octet},
    {VI_ATTR_TERMCHAR_EN, 2, VI_FALSE, Bit},
    {VI_ATTR_SEND_END_EN, 2, VI_TRUE, Bit},
    {VI_ATTR_IO_PROT, 2, VI_PROT_NORMAL, Protocol},
    {VI_ATTR_DMA_ALLOW_EN, 2, VI_FALSE, Bit},
    {VI_ATTR_RD_BUF_OPER_MODE, 2, VI_FLUSH_DISABLE, ReadMode},
    {VI_ATTR_WR_BUF_OPER_MODE, 2, VI_FLUSH_WHEN_FULL, WriteMode},
    {VI_ATTR_FILE_APPEND_EN, 2, VI_FALSE, Bit},
    {VI_ATTR_MAX_QUEUE_LENGTH, 4, 50, Positive32},
    {VI_ATTR_USER_DATA_64, 8, 0, Bits64},
}};

const Setting* Find(ViAttr attribute) {
  for (const Setting& row : kSettings) {
    if (row.attribute == attribute) return &row;
  }
  return nullptr;
}

ViStatus Put(void* out, unsigned width, ViUInt64 value) {
  switch (width) {
    case 1:
      return PutNumber(out, static_cast<ViUInt8>(value));
    case 2:
      return PutNumber(out, static_cast<ViUInt16>(value));
    case 4:
      return PutNumber(out, static_cast<ViUInt32>(value));
    default:
      return PutNumber(out, value);
  }
}

}  // namespace

Settings::Settings() {
  for (std::size_t i = 0; i < kSettings.size(); ++i) values_[i].store(kSettings[i].initial, std::memory_order_relaxed);
}

// One value under two names: the narrow name shows its lower half.
ViStatus Settings::Get(ViAttr attribute, void* value) const {
  if (attribute == VI_ATTR_USER_DATA_32) return Put(value, 4, (*this)[kUserData]);
  const Setting* const row = Find(attribute);
  if (row == nullptr) return VI_ERROR_NSUP_ATTR;
  return Put(value, row->width, (*this)[static_cast<Index>(row - kSettings.data())]);
}

ViStatus Settings::Set(ViAttr attribute, ViAttrState value) {
  if (attribute == VI_ATTR_USER_DATA_32) {
    if (!Bits32(value)) return VI_ERROR_NSUP_ATTR_STATE;
    attribute = VI_ATTR_USER_DATA_64;
  }
  const Setting* const row = Find(attribute);
  if (row == nullptr) return VI_ERROR_NSUP_ATTR;
  if (!row->allowed(value)) return VI_ERROR_NSUP_ATTR_STATE;
  values_[static_cast<std::size_t>(row - kSettings.data())].store(value, std::memory_order_relaxed);
  return VI_SUCCESS;
}

}  // namespace tvr::visa
