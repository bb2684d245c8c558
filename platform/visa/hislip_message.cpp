#include "hislip_message.h"

#include "big_endian.h"

namespace tvr::visa::hislip {

HeaderBytes Encode(const Header& header) {
  HeaderBytes bytes{'H', 'S', static_cast<ViByte>(header.type), header.control};
  PutBigEndian(bytes.data() + 4, header.parameter);
  PutBigEndian(bytes.data() + 8, header.length);
  return bytes;
}

bool Decode(const ViByte* bytes, Header& header) {
  if (bytes[0] != 'H' || bytes[1] != 'S') return false;
  header.type = static_cast<Type>(bytes[2]);
  header.control = bytes[3];
  header.parameter = BigEndian32(bytes + 4);
  header.length = BigEndian64(bytes + 8);
  return true;
}

}  // namespace tvr::visa::hislip
