// Which of a session's calls ask the device ahead, seen from the exported operations.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <future>
#include <iterator>

#include "vxi11_peer.h"

namespace tvr::visa::vxi11 {
namespace {

class Vxi11Session : public ::testing::Test {
 protected:
  void SetUp() override { Open(ProbeReply()); }
  ~Vxi11Session() override {
    peer_.Closes(kCore);
    viClose(manager_);
  }
  void Open(const std::string& probe_reply) {
    ::setenv("TVR_VISA_VXI11_PORT", std::to_string(peer_.core_port()).c_str(), 1);
    ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager_));
    auto opening = std::async(std::launch::async,
                              [&] { return viOpen(manager_, "TCPIP::127.0.0.1::inst0::INSTR", VI_NULL, 2000, &vi_); });
    peer_.Accept(kCore);
    peer_.Says(kCore, Reply(1, "00000000 00000007" + Word(peer_.abort_port()) + "00001000") + probe_reply);
    peer_.Next(kCore, 68 + Probe().size());
    peer_.Accept(kAbort);
    ASSERT_EQ(VI_SUCCESS, opening.get());
    ::unsetenv("TVR_VISA_VXI11_PORT");
    ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TMO_VALUE, VI_TMO_INFINITE));
  }
  static std::string WriteCall(unsigned number, const std::string& data, unsigned flags = 8) {
    return Call(number, 11, "00000007 FFFFFFFF 00000000" + Word(flags) + data);
  }
  static std::string ReadCall(unsigned number, const std::string& room = "00001000",
                              const std::string& termchar = "00000000 00000000") {
    return Call(number, 12, "00000007" + room + "FFFFFFFF 00000000" + termchar);
  }
  static std::string Written(unsigned number, unsigned size) { return Reply(number, "00000000" + Word(size)); }
  static std::string Five(unsigned number) { return Reply(number, "00000000 00000004 00000002 '5' 0A 0000"); }

  Vxi11Peer peer_;
  ViSession manager_ = VI_NULL;
  ViSession vi_ = VI_NULL;
};

class Vxi11SessionWithoutProbe : public Vxi11Session {
 protected:
  void SetUp() override { Open(""); }
};

const std::string kQuestion = "00000003 'A?' 0A 00";

TEST_F(Vxi11Session, AQueryAsksForTheAnswerWithTheQuestion) {
  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kCore, WriteCall(2, kQuestion) + ReadCall(3));
    peer_.Says(kCore, Written(2, 3));
    peer_.Says(kCore, Five(3));
  });
  ViInt32 value = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "A?\n", "%ld", &value));
  EXPECT_EQ(5, value);
  device.get();
}

TEST_F(Vxi11Session, SizeOfTheBufferAndTerminationCharacterAreThoseOfTheRead) {
  ASSERT_EQ(VI_SUCCESS, viSetBuf(vi_, VI_READ_BUF, 256));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TERMCHAR_EN, VI_TRUE));
  peer_.Says(kCore, Written(2, 3) + Reply(3, "00000000 00000002 00000002 '5' 0A 0000"));
  ViInt32 value = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "A?\n", "%ld", &value));
  EXPECT_EQ(5, value);
  peer_.Hears(kCore, WriteCall(2, kQuestion) + ReadCall(3, "00000100", "00000080 0000000A"));
}

TEST_F(Vxi11Session, AnAnswerInPartsAndABlockAreReadOn) {
  peer_.Says(kCore, Written(2, 3) + Reply(3, "00000000 00000000 00000004 '#14a'") +
                        Reply(4, "00000000 00000001 00000003 'bcd' 00") +
                        Reply(5, "00000000 00000004 00000001 0A 000000"));
  ViInt32 size = 8;
  char block[8] = {};
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "A?\n", "%#b%*T", &size, block));
  EXPECT_EQ(4, size);
  EXPECT_STREQ("abcd", block);
  peer_.Hears(kCore, WriteCall(2, kQuestion) + ReadCall(3) + ReadCall(4, "00000003") + ReadCall(5));
}

TEST_F(Vxi11Session, ABlockWithoutAHeaderIsTakenFromWhatWasReadAhead) {
  peer_.Says(kCore, Written(2, 3) + Reply(3, "00000000 00000004 00000006 'abcdef' 0000"));
  char block[4] = {};
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "A?\n", "%3y", block));
  EXPECT_STREQ("abc", block);
}

TEST_F(Vxi11Session, AnEmptyLineIsAnAnswer) {
  peer_.Says(kCore, Written(2, 3) + Reply(3, "00000000 00000004 00000001 0A 000000"));
  char text[8] = "?";
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "A?\n", "%t", text));
  EXPECT_STREQ("\n", text);
}

TEST_F(Vxi11Session, OfSeveralMessagesNoneTakesTheReadAlong) {
  unsigned number = 2;
  for (const char* const format : {"A?\nB?\n", "A?\\nB?\n", "A?\nB?\\n"}) {
    auto device = std::async(std::launch::async, [&] {
      peer_.Hears(kCore, WriteCall(number, kQuestion));
      peer_.HearsNothingMore(kCore);
      peer_.Says(kCore, Written(number, 3));
      peer_.Hears(kCore, WriteCall(number + 1, "00000003 'B?' 0A 00"));
      peer_.HearsNothingMore(kCore);
      peer_.Says(kCore, Written(number + 1, 3));
      peer_.Hears(kCore, ReadCall(number + 2));
      peer_.Says(kCore, Five(number + 2));
    });
    ViInt32 value = 0;
    EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, format, "%ld", &value)) << format;
    EXPECT_EQ(5, value);
    device.get();
    number += 3;
  }
}

TEST_F(Vxi11Session, WithNothingToReadNothingIsRead) {
  peer_.Says(kCore, Written(2, 3));
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "A?\n", ""));
  peer_.Hears(kCore, WriteCall(2, kQuestion));
  peer_.HearsNothingMore(kCore);
}

TEST_F(Vxi11Session, WithoutEndTheReadIsACallOfItsOwn) {
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_SEND_END_EN, VI_FALSE));
  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kCore, WriteCall(2, kQuestion, 0));
    peer_.HearsNothingMore(kCore);
    peer_.Says(kCore, Written(2, 3));
    peer_.Hears(kCore, ReadCall(3));
    peer_.Says(kCore, Five(3));
  });
  ViInt32 value = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "A?\n", "%ld", &value));
  device.get();
}

TEST_F(Vxi11Session, PrintfAndScanfAreCallsOfTheirOwn) {
  peer_.Says(kCore, Written(2, 3));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi_, "A?\n"));
  peer_.Hears(kCore, WriteCall(2, kQuestion));
  peer_.HearsNothingMore(kCore);
  peer_.Says(kCore, Five(3));
  ViInt32 value = 0;
  EXPECT_EQ(VI_SUCCESS, viScanf(vi_, "%ld", &value));
  EXPECT_EQ(5, value);
}

TEST_F(Vxi11Session, AFormatThatIsNoneAsksNothingAndTheNextQueryIsWhole) {
  ViInt32 value = 0;
  EXPECT_EQ(VI_ERROR_INV_FMT, viQueryf(vi_, "A%!\n", "%ld", &value));
  EXPECT_EQ(VI_ERROR_USER_BUF, viQueryf(vi_, "A%s\n", "%ld", ViString{nullptr}, &value));
  peer_.HearsNothingMore(kCore);
  EXPECT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TMO_VALUE, VI_TMO_INFINITE));
  peer_.Says(kCore, Written(2, 3) + Five(3));
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "A?\n", "%ld", &value));
  EXPECT_EQ(5, value);
}

TEST_F(Vxi11Session, AFileIsDoneWhenTheDeviceSaysThatThisWasAll) {
  const std::string name = testing::TempDir() + "vxi11_session_test_" + std::to_string(::getpid());
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TMO_VALUE, 5000));
  peer_.Says(kCore, Reply(2, "00000000 00000001 00000003 'ABC' 00"));
  ViUInt32 count = 0;
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, viReadToFile(vi_, name.c_str(), 100, &count));
  EXPECT_EQ(3u, count);
  std::ifstream file(name, std::ios::binary);
  EXPECT_EQ("ABC", std::string(std::istreambuf_iterator<char>(file), {}));
  std::remove(name.c_str());
}

TEST_F(Vxi11Session, OnlyTheOutermostLockIsAskedOfTheDevice) {
  const auto lock = [this] { return viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr); };
  peer_.Says(kCore, Reply(2, "00000000"));
  EXPECT_EQ(VI_SUCCESS, lock());
  peer_.Hears(kCore, Call(2, 18, "00000007 00000000 00000000"));
  EXPECT_EQ(VI_SUCCESS_NESTED_EXCLUSIVE, lock());
  EXPECT_EQ(VI_SUCCESS_NESTED_EXCLUSIVE, viUnlock(vi_));
  peer_.HearsNothingMore(kCore);
  peer_.Says(kCore, Reply(3, "00000000"));
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi_));
  peer_.Hears(kCore, Call(3, 19, "00000007"));
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, viUnlock(vi_));
  peer_.HearsNothingMore(kCore);
}

TEST_F(Vxi11Session, ASharedLockIsOursAloneAndTheExclusiveOneOnTopIsTheDevicesToo) {
  EXPECT_EQ(VI_SUCCESS, viLock(vi_, VI_SHARED_LOCK, VI_TMO_IMMEDIATE, "bench", nullptr));
  peer_.HearsNothingMore(kCore);
  peer_.Says(kCore, Reply(2, "00000000"));
  EXPECT_EQ(VI_SUCCESS, viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  peer_.Hears(kCore, Call(2, 18, "00000007 00000000 00000000"));
  peer_.Says(kCore, Reply(3, "00000000"));
  EXPECT_EQ(VI_SUCCESS_NESTED_SHARED, viUnlock(vi_));
  peer_.Hears(kCore, Call(3, 19, "00000007"));
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi_));
  peer_.HearsNothingMore(kCore);
}

TEST_F(Vxi11SessionWithoutProbe, AQueryIsOneCallAfterTheOther) {
  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kCore, WriteCall(2, kQuestion));
    peer_.HearsNothingMore(kCore);
    peer_.Says(kCore, Written(2, 3));
    peer_.Hears(kCore, ReadCall(3));
    peer_.Says(kCore, Five(3));
  });
  ViInt32 value = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "A?\n", "%ld", &value));
  EXPECT_EQ(5, value);
  device.get();
}

}  // namespace
}  // namespace tvr::visa::vxi11
