// A way out that is full at a chosen moment.
#include <sys/socket.h>

#include <cerrno>

#include "hislip_peer.h"

namespace {

constexpr int kAll = -1;
int g_sends_left = kAll;  // that the socket takes before it is full

}  // namespace

extern "C" {
ssize_t __real_send(int, const void*, size_t, int);
ssize_t __wrap_send(int socket, const void* bytes, size_t size, int flags) {
  if (g_sends_left == 0) {
    errno = EAGAIN;
    return -1;
  }
  if (g_sends_left != kAll) --g_sends_left;
  return __real_send(socket, bytes, size, flags);
}
}

namespace tvr::visa::hislip {
namespace {

class HislipFull : public HislipLink {
 protected:
  ~HislipFull() override { g_sends_left = kAll; }
};

TEST_F(HislipFull, AQuestionThatEndsWhileNonsenseIsRefusedDoesNotLendItsAnswerToTheNext) {
  peer_.Says(kAsync, Frame("HS 80 00 00000000 0000000000000000"));
  g_sends_left = 1;  // the question, and not the refusal
  Deadline soon(50);
  ViUInt16 byte = 0;
  EXPECT_EQ(VI_ERROR_TMO, link_->ReadStatusByte(VI_PROT_NORMAL, soon, byte));
  g_sends_left = kAll;
  peer_.Says(kAsync, Frame("HS 16 11 00000000 0000000000000000") + Frame("HS 16 22 00000000 0000000000000000"));
  EXPECT_EQ(0x22, StatusByte());
}

}  // namespace
}  // namespace tvr::visa::hislip
