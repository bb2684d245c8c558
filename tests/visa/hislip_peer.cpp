#include "hislip_peer.h"

#include <sys/socket.h>

#include <future>

#include "Bytes.h"

namespace tvr::visa::hislip {

using kvtd::test::kPatience;
using kvtd::test::Visible;

std::string Frame(std::string_view header, std::string_view payload) {
  std::string bytes(header.substr(0, 2));
  std::string digits;
  for (const char c : header.substr(2)) {
    if (c == ' ') continue;
    digits += c;
    if (digits.size() < 2) continue;
    bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
    digits.clear();
  }
  EXPECT_EQ(16u, bytes.size()) << header;
  return bytes + std::string(payload);
}

void HislipPeer::MoveLinkTo(HislipPeer& other) {
  for (const Side side : {kSync, kAsync}) other.sockets_[side] = std::move(sockets_[side]);
}

void HislipPeer::Accept(Side side) {
  if (!kvtd::test::WaitReadable(listener_.descriptor(), nullptr, kPatience)) ADD_FAILURE() << "nobody connects";
  sockets_[side] = listener_.Accept();
}

void HislipPeer::Says(Side side, std::string_view bytes) {
  EXPECT_TRUE(kvtd::test::SendAll(sockets_[side], bytes)) << "the client takes no more";
}

std::string HislipPeer::Next(Side side, std::size_t count) {
  std::string heard;
  while (heard.size() < count && kvtd::test::WaitReadable(sockets_[side].get(), nullptr, kPatience)) {
    std::string chunk(std::min<std::size_t>(count - heard.size(), 1 << 20), '\0');
    const ssize_t got = ::recv(sockets_[side].get(), chunk.data(), chunk.size(), 0);
    if (got <= 0) break;
    heard.append(chunk, 0, static_cast<std::size_t>(got));
  }
  return heard;
}

void HislipPeer::Hears(Side side, std::string_view bytes) {
  EXPECT_EQ(Visible(bytes), Visible(Next(side, bytes.size())));
}

void HislipPeer::HearsNothingMore(Side side) {
  char byte;
  EXPECT_EQ(-1, ::recv(sockets_[side].get(), &byte, 1, MSG_PEEK | MSG_DONTWAIT)) << "something came, or the end";
}

void HislipPeer::HearsTheEnd(Side side) {
  ASSERT_TRUE(kvtd::test::WaitReadable(sockets_[side].get(), nullptr, kPatience));
  char byte;
  EXPECT_GE(0, ::recv(sockets_[side].get(), &byte, 1, 0)) << "a byte came in place of the end";
}

ViStatus HislipLink::OpenWith(const std::function<void()>& script, ViUInt32 timeout) {
  ResourceName resource;
  const std::string name = "TCPIP::127.0.0.1::hislip0," + std::to_string(peer_.port()) + "::INSTR";
  EXPECT_EQ(VI_SUCCESS, ParseResourceName(name, resource));
  auto opening = std::async(std::launch::async, [&] {
    Deadline deadline(timeout);
    return OpenHislip(resource, interruption_, deadline, link_);
  });
  script();
  return opening.get();
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

ViStatus HislipLink::Write(std::string_view text, ViUInt32 timeout, bool end) {
  Deadline deadline(timeout);
  iovec piece{const_cast<char*>(text.data()), text.size()};
  std::size_t sent = 0;
  const ViStatus status = link_->Write({&piece, 1}, end, deadline, sent);
  EXPECT_TRUE(status < 0 || sent == text.size());
  return status;
}

std::string HislipLink::Read(ViUInt32 timeout, std::size_t room, std::optional<ViByte> termchar) {
  Deadline deadline(timeout);
  std::string into(room, '?');
  std::size_t received = 0;
  status_ = link_->Read({reinterpret_cast<ViByte*>(into.data()), room, room, termchar}, deadline, received);
  EXPECT_LE(received, room);
  into.resize(received);
  return into;
}

ViUInt16 HislipLink::StatusByte() {
  Deadline deadline(2000);
  ViUInt16 byte = 0xFFFF;
  status_ = link_->ReadStatusByte(VI_PROT_NORMAL, deadline, byte);
  return byte;
}

}  // namespace tvr::visa::hislip
