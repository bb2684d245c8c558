// Numbers as HiSLIP and RPC put them into bytes: the highest byte comes first.
#pragma once

#include <endian.h>
#include <visa.h>

#include <cstring>

namespace tvr::visa {

inline void PutBigEndian(ViByte* out, ViUInt32 number) {
  number = htobe32(number);
  std::memcpy(out, &number, sizeof number);
}

inline void PutBigEndian(ViByte* out, ViUInt64 number) {
  number = htobe64(number);
  std::memcpy(out, &number, sizeof number);
}

inline ViUInt32 BigEndian32(const ViByte* in) {
  ViUInt32 number = 0;
  std::memcpy(&number, in, sizeof number);
  return be32toh(number);
}

inline ViUInt64 BigEndian64(const ViByte* in) {
  ViUInt64 number = 0;
  std::memcpy(&number, in, sizeof number);
  return be64toh(number);
}

}  // namespace tvr::visa
