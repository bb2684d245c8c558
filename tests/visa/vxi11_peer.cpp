#include "vxi11_peer.h"

#include <sys/socket.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <future>

#include "Bytes.h"

namespace tvr::visa::vxi11 {

using kvtd::test::kPatience;
using kvtd::test::Visible;

std::string Bytes(std::string_view literal) {
  std::string bytes;
  std::string digits;
  bool text = false;
  for (const char c : literal) {
    if (c == '\'') {
      text = !text;
    } else if (text) {
      bytes += c;
    } else if (c != ' ') {
      digits += c;
      if (digits.size() < 2) continue;
      bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
      digits.clear();
    }
  }
  EXPECT_TRUE(digits.empty() && !text) << literal;
  return bytes;
}

std::string Word(unsigned long number) {
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "%08lX", number);
  return digits.data();
}

std::string Record(std::string_view literal) {
  const std::string bytes = Bytes(literal);
  return Bytes(Word(0x80000000 + bytes.size())) + bytes;
}

std::string Call(unsigned number, unsigned procedure, std::string_view arguments, std::string_view program) {
  return Record(Word(number) + " 00000000 00000002" + std::string(program) + "00000001" + Word(procedure) +
                "00000000 00000000 00000000 00000000" + std::string(arguments));
}

std::string Reply(unsigned number, std::string_view results) {
  return Record(Word(number) + "00000001 00000000 00000000 00000000 00000000" + std::string(results));
}

void Vxi11Peer::Accept(Side side) {
  const kvtd::test::Listener& listener = side == kCore ? core_ : abort_;
  if (!kvtd::test::WaitReadable(listener.descriptor(), nullptr, kPatience)) ADD_FAILURE() << "nobody connects";
  sockets_[side] = const_cast<kvtd::test::Listener&>(listener).Accept();
}

void Vxi11Peer::Says(Side side, std::string_view bytes) {
  EXPECT_TRUE(kvtd::test::SendAll(sockets_[side], bytes)) << "the client takes no more";
}

std::string Vxi11Peer::Next(Side side, std::size_t count) {
  std::string heard;
  while (heard.size() < count && kvtd::test::WaitReadable(sockets_[side].get(), nullptr, kPatience)) {
    std::string chunk(std::min<std::size_t>(count - heard.size(), 1 << 20), '\0');
    const ssize_t got = ::recv(sockets_[side].get(), chunk.data(), chunk.size(), 0);
    if (got <= 0) break;
    heard.append(chunk, 0, static_cast<std::size_t>(got));
  }
  return heard;
}

void Vxi11Peer::Hears(Side side, std::string_view bytes) {
  EXPECT_EQ(Visible(bytes), Visible(Next(side, bytes.size())));
}

void Vxi11Peer::HearsNothingMore(Side side) {
  char byte;
  EXPECT_EQ(-1, ::recv(sockets_[side].get(), &byte, 1, MSG_PEEK | MSG_DONTWAIT)) << "something came, or the end";
}

void Vxi11Peer::HearsTheEnd(Side side) {
  ASSERT_TRUE(kvtd::test::WaitReadable(sockets_[side].get(), nullptr, kPatience));
  char byte;
  EXPECT_GE(0, ::recv(sockets_[side].get(), &byte, 1, 0)) << "a byte came in place of the end";
}

Vxi11Link::~Vxi11Link() {
  // So that nobody waits for an answer to destroy_link.
  for (const Side side : {kCore, kAbort, kInterrupt}) peer_.Closes(side);
}

ViStatus Vxi11Link::OpenWith(const std::function<void()>& script, ViUInt32 timeout, std::string_view device) {
  ResourceName resource;
  EXPECT_EQ(VI_SUCCESS, ParseResourceName("TCPIP::127.0.0.1::" + std::string(device) + "::INSTR", resource));
  ::setenv("TVR_VISA_VXI11_PORT", std::to_string(peer_.core_port()).c_str(), 1);
  auto opening = std::async(std::launch::async, [&] {
    Deadline deadline(timeout);
    return OpenVxi11(resource, interruption_, deadline, link_);
  });
  script();
  const ViStatus status = opening.get();
  ::unsetenv("TVR_VISA_VXI11_PORT");
  return status;
}

void Vxi11Link::Open(std::string_view max_recv_size) {
  const ViStatus status = OpenWith([&] {
    peer_.Accept(kCore);
    peer_.Hears(kCore, Call(1, 10, "00005456 00000000 00000000 00000005 'inst0' 000000"));
    peer_.Says(kCore, Reply(1, "00000000 00000007" + Word(peer_.abort_port()) + std::string(max_recv_size)));
    peer_.Accept(kAbort);
  });
  ASSERT_EQ(VI_SUCCESS, status);
}

ViStatus Vxi11Link::Write(std::string_view text, ViUInt32 timeout, bool end) {
  Deadline deadline(timeout);
  iovec piece{const_cast<char*>(text.data()), text.size()};
  const ViStatus status = link_->Write({&piece, 1}, end, deadline, sent_);
  EXPECT_TRUE(status < 0 || sent_ == text.size());
  return status;
}

std::string Vxi11Link::Read(ViUInt32 timeout, std::size_t room, std::optional<ViByte> termchar, std::size_t at_least) {
  Deadline deadline(timeout);
  std::string into(room, '?');
  std::size_t received = 0;
  const ReadRequest request{reinterpret_cast<ViByte*>(into.data()), room, at_least == 0 ? room : at_least, termchar};
  status_ = link_->Read(request, deadline, received);
  EXPECT_LE(received, room);
  into.resize(received);
  return into;
}

ViUInt16 Vxi11Link::StatusByte(ViUInt32 timeout) {
  Deadline deadline(timeout);
  ViUInt16 byte = 0xFFFF;
  status_ = link_->ReadStatusByte(VI_PROT_NORMAL, deadline, byte);
  return byte;
}

void Vxi11Link::Close(unsigned number) {
  peer_.Says(kCore, Reply(number, "00000000"));
  link_.reset();
  peer_.Hears(kCore, Call(number, 23, "00000007"));
  peer_.HearsTheEnd(kCore);
}

}  // namespace tvr::visa::vxi11
