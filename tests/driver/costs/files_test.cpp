// What a large file costs in memory beside the caller's own: the driver keeps no copy of it, whatever carries it.

#include <KVTD481X2C.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "FilePeer.h"
#include "HislipPeer.h"
#include "Vxi11Peer.h"
#include "counted_calls.h"

namespace {

constexpr std::size_t kFileSize = std::size_t{4} << 20;
constexpr std::size_t kUnder = std::size_t{1} << 20;

std::string ResourceOf(const bench::FilePeer& peer) { return peer.resource(); }
std::string ResourceOf(const bench::HislipPeer& peer) { return peer.resource(); }
std::string ResourceOf(const bench::Vxi11Peer& peer) {
  ::setenv("TVR_VISA_VXI11_PORT", std::to_string(peer.port()).c_str(), 1);
  return "TCPIP0::127.0.0.1::inst0::INSTR";
}

template <class Peer>
class FileCosts : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(VI_SUCCESS,
              KVTD481X2C_InitWithOptions(const_cast<ViChar*>(ResourceOf(peer_).c_str()), VI_FALSE, VI_FALSE, "", &vi_));
    ASSERT_EQ(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi_, 60000));
  }
  void TearDown() override {
    EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi_));
    ::unsetenv("TVR_VISA_VXI11_PORT");
  }

  Peer peer_{-1, kFileSize};
  std::vector<ViByte> data_ = std::vector<ViByte>(kFileSize, 'x');
  ViSession vi_ = VI_NULL;
};

using Peers = testing::Types<bench::FilePeer, bench::HislipPeer, bench::Vxi11Peer>;
TYPED_TEST_SUITE(FileCosts, Peers);

TYPED_TEST(FileCosts, SendingHoldsLittleMemory) {
  ViStatus sent = -1;
  ViStatus taken = -1;
  const std::size_t held = MostHeldDuring([&] {
    sent = KVTD481X2C_SendFile(this->vi_, "Internal", "f", static_cast<ViInt32>(kFileSize), this->data_.data());
    taken = KVTD481X2C_WaitForOperationComplete(this->vi_);
  });
  EXPECT_EQ(VI_SUCCESS, sent);
  EXPECT_EQ(VI_SUCCESS, taken);
  EXPECT_LT(held, kUnder);
}

TYPED_TEST(FileCosts, ReadingHoldsLittleMemory) {
  ViStatus status = -1;
  ViInt32 size = 0;
  const std::size_t held = MostHeldDuring([&] {
    status =
        KVTD481X2C_ReadFile(this->vi_, "Internal", "f", static_cast<ViInt32>(kFileSize), this->data_.data(), &size);
  });
  EXPECT_EQ(VI_SUCCESS, status);
  EXPECT_EQ(static_cast<ViInt32>(kFileSize), size);
  EXPECT_LT(held, kUnder);
}

TEST(MostHeldDuring, CountsWhatIsHeldAtATime) {
  const std::vector<char> before(std::size_t{2} << 20);
  const std::size_t held = MostHeldDuring([] {
    for (int i = 0; i < 3; ++i) const std::vector<char> one_of_three(kUnder);
  });
  EXPECT_GE(held, kUnder);
  EXPECT_LT(held, 2 * kUnder);
}

}  // namespace
