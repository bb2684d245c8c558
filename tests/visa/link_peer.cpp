#include "link_peer.h"

#include <sys/socket.h>

#include <future>

#include "Bytes.h"

namespace tvr::visa {

using kvtd::test::kPatience;
using kvtd::test::Visible;

void LinkPeer::Accept(Number side, kvtd::test::Listener& listener) {
  if (!kvtd::test::WaitReadable(listener.descriptor(), nullptr, kPatience)) ADD_FAILURE() << "nobody connects";
  sockets_.at(side) = listener.Accept();
}

void LinkPeer::Says(Number side, std::string_view bytes) {
  EXPECT_TRUE(Offers(side, bytes)) << "the client takes no more";
}

void LinkPeer::Hears(Number side, std::string_view bytes) {
  EXPECT_EQ(Visible(bytes), Visible(Next(side, bytes.size())));
}

void LinkPeer::HearsNothingMore(Number side) {
  char byte;
  EXPECT_EQ(-1, ::recv(sockets_.at(side).get(), &byte, 1, MSG_PEEK | MSG_DONTWAIT)) << "something came, or the end";
}

void LinkPeer::HearsTheEnd(Number side) {
  ASSERT_TRUE(kvtd::test::WaitReadable(sockets_.at(side).get(), nullptr, kPatience));
  char byte;
  EXPECT_GE(0, ::recv(sockets_.at(side).get(), &byte, 1, 0)) << "a byte came in place of the end";
}

ViStatus LinkTest::OpenWith(Opener open, const std::string& name, const std::function<void()>& script,
                            ViUInt32 timeout) {
  ResourceName resource;
  EXPECT_EQ(VI_SUCCESS, ParseResourceName(name, resource));
  auto opening = std::async(std::launch::async, [&] {
    Deadline deadline(timeout);
    return open(resource, interruption_, deadline, link_);
  });
  script();
  return opening.get();
}

ViStatus LinkTest::Write(std::string_view text, ViUInt32 timeout, bool end) {
  Deadline deadline(timeout);
  iovec piece{const_cast<char*>(text.data()), text.size()};
  const ViStatus status = link_->Write({&piece, 1}, end, deadline, sent_);
  EXPECT_TRUE(status < 0 || sent_ == text.size());
  return status;
}

std::string LinkTest::Read(ViUInt32 timeout, std::size_t room, std::optional<ViByte> termchar, std::size_t at_least) {
  Deadline deadline(timeout);
  std::string into(room, '?');
  std::size_t received = 0;
  const ReadRequest request{reinterpret_cast<ViByte*>(into.data()), room, at_least == 0 ? room : at_least, termchar};
  status_ = link_->Read(request, deadline, received);
  EXPECT_LE(received, room);
  into.resize(received);
  return into;
}

ViUInt16 LinkTest::StatusByte(ViUInt32 timeout) {
  Deadline deadline(timeout);
  ViUInt16 byte = 0xFFFF;
  status_ = link_->ReadStatusByte(VI_PROT_NORMAL, deadline, byte);
  return byte;
}

}  // namespace tvr::visa
