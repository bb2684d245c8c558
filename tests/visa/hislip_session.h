// A session that is open to a HiSLIP peer, through the exported operations.
#pragma once

#include <future>

#include "hislip_peer.h"

namespace tvr::visa::hislip {

class HislipSession : public ::testing::Test {
 protected:
  ~HislipSession() override { viClose(manager_); }
  void SetUp() override {
    ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager_));
    auto opening = OpenAside(VI_NULL, 2000);
    peer_.Welcome();
    ASSERT_EQ(VI_SUCCESS, opening.get());
  }

  // viOpen into `vi_` while the test plays the peer.
  std::future<ViStatus> OpenAside(ViAccessMode mode, ViUInt32 timeout) {
    return std::async(std::launch::async, [=, this] {
      const std::string name = "TCPIP::127.0.0.1::hislip0," + std::to_string(peer_.port()) + "::INSTR";
      return viOpen(manager_, name.c_str(), mode, timeout, &vi_);
    });
  }
  // What the device will answer may lie in the socket before it is asked.
  void AnswersStatusQuery(std::string_view status_byte) {
    peer_.Says(kAsync, Frame("HS 16 " + std::string(status_byte) + " 00000000 0000000000000000"));
  }

  HislipPeer peer_;
  ViSession manager_ = VI_NULL;
  ViSession vi_ = VI_NULL;
};

}  // namespace tvr::visa::hislip
