#include <sys/socket.h>

#include "hislip_peer.h"

namespace tvr::visa::hislip {
namespace {

class HislipOpening : public HislipLink {
 protected:
  void SetUp() override {}  // each test opens as it likes

  template <class T>
  T Get(ViAttr attribute) {
    T value{};
    EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(attribute, &value));
    return value;
  }
};

TEST_F(HislipOpening, GreetsOnBothConnectionsAndAgreesOnSizes) {
  Open();  // the frames stand there
  peer_.HearsNothingMore(kSync);
  peer_.HearsNothingMore(kAsync);
}

TEST_F(HislipOpening, ADeviceThatRefusesIsNotFound) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, OpenWith([&] {
              peer_.Accept(kSync);
              peer_.Says(kSync, Frame("HS 02 04 00000000 0000000000000010", "too many clients"));
            }));
  EXPECT_EQ(nullptr, link_);
}

TEST_F(HislipOpening, ARefusalOfTheSecondConnectionCountsToo) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, OpenWith([&] {
              peer_.Accept(kSync);
              peer_.Says(kSync, Frame("HS 01 00 01000001 0000000000000000"));
              peer_.Accept(kAsync);
              peer_.Says(kAsync, Frame("HS 02 03 00000000 0000000000000000"));
            }));
}

TEST_F(HislipOpening, ASilentServerTakesNoMoreThanTheTimeout) {
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, OpenWith([&] { peer_.Accept(kSync); }, 150));
  EXPECT_GE(watch.Milliseconds(), 150);
  EXPECT_LT(watch.OwnMilliseconds(), 250);
}

TEST_F(HislipOpening, SilenceOnTheSecondConnectionTakesNoMoreThanTheTimeout) {
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, OpenWith(
                              [&] {
                                peer_.Accept(kSync);
                                peer_.Says(kSync, Frame("HS 01 00 01000001 0000000000000000"));
                              },
                              150));
  EXPECT_LT(watch.OwnMilliseconds(), 250);
}

TEST_F(HislipOpening, AServerOfAnotherProtocolIsToldAndNotFound) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, OpenWith([&] {
              peer_.Accept(kSync);
              peer_.Says(kSync, "220 ftp.example ready for a greeting\r\n");
              peer_.Hears(kSync, Frame("HS 00 00 01005456 0000000000000007", "hislip0"));
              peer_.Hears(kSync, Frame("HS 02 01 00000000 0000000000000000"));
            }));
}

TEST_F(HislipOpening, AProtocolThatWasNotOfferedIsRefused) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, OpenWith([&] {
              peer_.Accept(kSync);
              peer_.Says(kSync, Frame("HS 01 00 02000001 0000000000000000"));
            }));
}

TEST_F(HislipOpening, AServerThatClosesIsNotFound) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, OpenWith([&] {
              peer_.Accept(kSync);
              peer_.Next(kSync, 23);
              peer_.Closes(kSync);
            }));
}

TEST_F(HislipOpening, AttributesTellWhatWasAgreed) {
  Open("01");
  EXPECT_EQ(VI_TRUE, Get<ViBoolean>(VI_ATTR_TCPIP_IS_HISLIP));
  EXPECT_EQ(0x00100000u, Get<ViVersion>(VI_ATTR_TCPIP_HISLIP_VERSION));
  EXPECT_EQ(1024u, Get<ViUInt32>(VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB));
  EXPECT_EQ(VI_TRUE, Get<ViBoolean>(VI_ATTR_TCPIP_HISLIP_OVERLAP_EN));
  EXPECT_EQ(VI_TRUE, Get<ViBoolean>(VI_ATTR_TCPIP_NODELAY));
  EXPECT_EQ(VI_FALSE, Get<ViBoolean>(VI_ATTR_TCPIP_KEEPALIVE));
  EXPECT_EQ(peer_.port(), Get<ViUInt16>(VI_ATTR_TCPIP_PORT));
  EXPECT_EQ(VI_TRIG_SW, Get<ViInt16>(VI_ATTR_TRIG_ID));
  char text[256];
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_TCPIP_DEVICE_NAME, text));
  EXPECT_STREQ("hislip0", text);
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_TCPIP_ADDR, text));
  EXPECT_STREQ("127.0.0.1", text);
  EXPECT_EQ(VI_ERROR_NSUP_ATTR, link_->GetAttribute(VI_ATTR_FILE_APPEND_EN, text));
  EXPECT_EQ(VI_ERROR_ATTR_READONLY, link_->SetAttribute(VI_ATTR_TCPIP_IS_HISLIP, VI_FALSE, 2000));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, link_->SetAttribute(VI_ATTR_TCPIP_NODELAY, 2, 2000));
}

TEST_F(HislipOpening, ANewMessageSizeIsAgreedOnAtOnce) {
  Open();
  peer_.Says(kAsync, Frame("HS 10 00 00000000 0000000000000008", std::string("\0\0\0\0\0\0\x01\0", 8)));
  EXPECT_EQ(VI_SUCCESS, link_->SetAttribute(VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB, 64, 2000));
  peer_.Hears(kAsync, Frame("HS 0F 00 00000000 0000000000000008") + std::string("\0\0\0\0\0\x01\0\0", 8));
  EXPECT_EQ(64u, Get<ViUInt32>(VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, link_->SetAttribute(VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB, 0, 2000));
}

}  // namespace
}  // namespace tvr::visa::hislip
