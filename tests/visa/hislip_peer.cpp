#include "hislip_peer.h"

#include "Bytes.h"

namespace tvr::visa::hislip {

std::string Frame(std::string_view header, std::string_view payload) {
  const std::string bytes = std::string(header.substr(0, 2)) + kvtd::test::FromHex(header.substr(2));
  EXPECT_EQ(16u, bytes.size()) << header;
  return bytes + std::string(payload);
}

void HislipPeer::MoveLinkTo(HislipPeer& other) {
  for (const Side side : {kSync, kAsync}) other.sockets_[side] = std::move(sockets_[side]);
}

ViStatus HislipLink::OpenWith(const std::function<void()>& script, ViUInt32 timeout) {
  const std::string name = "TCPIP::127.0.0.1::hislip0," + std::to_string(peer_.port()) + "::INSTR";
  return LinkTest::OpenWith(OpenHislip, name, script, timeout);
}

void HislipPeer::Welcome(std::string_view preferred, std::string_view largest) {
  Accept(kSync);
  Hears(kSync, Frame("HS 00 00 01005456 0000000000000007", "hislip0"));
  Says(kSync, Frame("HS 01 " + std::string(preferred) + " 01000007 0000000000000000"));
  Accept(kAsync);
  Hears(kAsync, Frame("HS 11 00 00000007 0000000000000000"));
  Says(kAsync, Frame("HS 12 00 00005858 0000000000000000"));
  Hears(kAsync, Frame("HS 0F 00 00000000 0000000000000008") + std::string("\0\0\0\0\0\x10\0\0", 8));
  const std::string size = Frame("HS" + std::string(largest) + "000000000000");
  Says(kAsync, Frame("HS 10 00 00000000 0000000000000008", size.substr(2, 8)));
}

void HislipLink::Open(std::string_view preferred, std::string_view largest) {
  ASSERT_EQ(VI_SUCCESS, OpenWith([&] { peer_.Welcome(preferred, largest); }));
}

}  // namespace tvr::visa::hislip
