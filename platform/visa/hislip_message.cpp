#include "hislip_message.h"

namespace tvr::visa::hislip {
namespace {

template <std::size_t kBytes>
void Put(ViByte* out, ViUInt64 value) {
  for (std::size_t i = kBytes; i-- > 0; value >>= 8) out[i] = static_cast<ViByte>(value & 0xFF);
}

template <std::size_t kBytes>
ViUInt64 Get(const ViByte* in) {
  ViUInt64 value = 0;
  for (std::size_t i = 0; i < kBytes; ++i) value = value << 8 | in[i];
  return value;
}

}  // namespace

HeaderBytes Encode(const Header& header) {
  HeaderBytes bytes{'H', 'S', static_cast<ViByte>(header.type), header.control};
  Put<4>(bytes.data() + 4, header.parameter);
  Put<8>(bytes.data() + 8, header.length);
  return bytes;
}

bool Decode(const ViByte* bytes, Header& header) {
  if (bytes[0] != 'H' || bytes[1] != 'S') return false;
  header.type = static_cast<Type>(bytes[2]);
  header.control = bytes[3];
  header.parameter = static_cast<ViUInt32>(Get<4>(bytes + 4));
  header.length = Get<8>(bytes + 8);
  return true;
}

}  // namespace tvr::visa::hislip
