#include "hislip_message.h"

#include <endian.h>

#include <cstring>

namespace tvr::visa::hislip {

HeaderBytes Encode(const Header& header) {
  HeaderBytes bytes{'H', 'S', static_cast<ViByte>(header.type), header.control};
  const ViUInt32 parameter = htobe32(header.parameter);
  const ViUInt64 length = htobe64(header.length);
  std::memcpy(bytes.data() + 4, &parameter, sizeof parameter);
  std::memcpy(bytes.data() + 8, &length, sizeof length);
  return bytes;
}

bool Decode(const ViByte* bytes, Header& header) {
  if (bytes[0] != 'H' || bytes[1] != 'S') return false;
  header.type = static_cast<Type>(bytes[2]);
  header.control = bytes[3];
  ViUInt32 parameter = 0;
  ViUInt64 length = 0;
  std::memcpy(&parameter, bytes + 4, sizeof parameter);
  std::memcpy(&length, bytes + 8, sizeof length);
  header.parameter = be32toh(parameter);
  header.length = be64toh(length);
  return true;
}

}  // namespace tvr::visa::hislip
