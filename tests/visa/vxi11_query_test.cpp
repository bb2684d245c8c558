// A question that goes with its read in one send, and what becomes of the read when the question fails.
#include <algorithm>
#include <chrono>
#include <future>
#include <thread>

#include "vxi11_peer.h"

namespace tvr::visa::vxi11 {
namespace {

constexpr std::string_view kAsync = "000607B0";

class Vxi11Query : public Vxi11Link {
 protected:
  // What a session does for a query; the answer, and `status_`.
  std::string Query(std::string_view question, ViUInt32 timeout = 2000, std::size_t room = 4096,
                    std::optional<ViByte> termchar = {}) {
    Deadline deadline(timeout);
    iovec piece{const_cast<char*>(question.data()), question.size()};
    const bool ahead = link_->ReadsAhead();
    if (ahead) link_->ExpectRead(room, termchar);
    status_ = link_->Write({&piece, 1}, true, deadline, sent_);
    if (status_ < 0) {
      if (ahead) link_->ExpectNoRead();
      return {};
    }
    std::string into(room, '?');
    std::size_t received = 0;
    status_ = link_->Read({reinterpret_cast<ViByte*>(into.data()), room, 1, termchar}, deadline, received);
    into.resize(received);
    return into;
  }
  static std::string WriteCall(unsigned number, std::string_view time = "000007D0") {
    return Call(number, 11, "00000007" + std::string(time) + "00000000 00000008 00000002 'A?' 0000");
  }
  static std::string ReadCall(unsigned number, std::string_view time = "000007D0") {
    return Call(number, 12, "00000007 00001000" + std::string(time) + "00000000 00000000 00000000");
  }
  static std::string Written(unsigned number) { return Reply(number, "00000000 00000002"); }
  static std::string Answered(unsigned number, std::string_view text) {
    return Reply(number, "00000000 00000004 00000002 '" + std::string(text) + "' 0000");
  }
  // Until the link ends; it is told that the call is aborted, and no call is.
  std::future<void> AnswerAborts() {
    return std::async(std::launch::async, [this] {
      for (unsigned number = 1; peer_.Next(kAbort, 48).size() == 48; ++number) {
        if (!peer_.Offers(kAbort, Reply(number, "00000000"))) break;
      }
    });
  }
  // The link is as good as new: call `number` and its read come in one piece, and are answered.
  void ExpectUsable(unsigned number) {
    peer_.Says(kCore, Written(number) + Answered(number + 1, "OK"));
    EXPECT_EQ("OK", Query("A?", VI_TMO_INFINITE));
    EXPECT_EQ(VI_SUCCESS, status_);
    peer_.Hears(kCore, WriteCall(number, "FFFFFFFF") + ReadCall(number + 1, "FFFFFFFF"));
    peer_.HearsNothingMore(kCore);
  }
  // The same, with the read behind the reply to the question.
  void ExpectUsableOneByOne(unsigned number) {
    auto device = std::async(std::launch::async, [&] {
      peer_.Hears(kCore, WriteCall(number, "FFFFFFFF"));
      peer_.HearsNothingMore(kCore);
      peer_.Says(kCore, Written(number));
      peer_.Hears(kCore, ReadCall(number + 1, "FFFFFFFF"));
      peer_.Says(kCore, Answered(number + 1, "OK"));
    });
    EXPECT_EQ("OK", Query("A?", VI_TMO_INFINITE));
    EXPECT_EQ(VI_SUCCESS, status_);
    device.get();
  }
};

TEST_F(Vxi11Query, TheQuestionAndTheReadAreTwoRecordsBeforeTheFirstReply) {
  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kCore, Bytes("80000040 00000002 00000000 00000002 000607AF 00000001 0000000B"
                             "00000000 00000000 00000000 00000000"
                             "00000007 FFFFFFFF 00000000 00000008 00000002 'A?' 0000"
                             "80000040 00000003 00000000 00000002 000607AF 00000001 0000000C"
                             "00000000 00000000 00000000 00000000"
                             "00000007 00000100 FFFFFFFF 00000000 00000080 0000000A"));
    peer_.Says(kCore, Written(2));
    peer_.Says(kCore, Reply(3, "00000000 00000006 00000002 '1' 0A 0000"));
  });
  EXPECT_EQ("1\n", Query("A?", VI_TMO_INFINITE, 256, ViByte{'\n'}));
  EXPECT_EQ(VI_SUCCESS, status_);
  device.get();
  ExpectUsable(4);
  Close(6);
}

TEST_F(Vxi11Query, AnAnswerWithoutAnEndIsReadOnInCallsOfItsOwn) {
  peer_.Says(kCore, Written(2) + Reply(3, "00000000 00000000 00000004 'ABCD'"));
  EXPECT_EQ("ABCD", Query("A?"));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
  peer_.Says(kCore, Reply(4, "00000000 00000004 00000001 'E' 000000"));
  EXPECT_EQ("E", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(Vxi11Query, SuppressedEndIsPassedOver) {
  ASSERT_EQ(VI_SUCCESS, link_->SetAttribute(VI_ATTR_SUPPRESS_END_EN, VI_TRUE, 2000));
  peer_.Says(kCore, Written(2) + Answered(3, "AB"));
  EXPECT_EQ("AB", Query("A?"));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
}

TEST_F(Vxi11Query, AMessageWithoutEndTakesNoReadAlong) {
  peer_.Says(kCore, Written(2));
  link_->ExpectRead(4096, {});
  EXPECT_EQ(VI_SUCCESS, Write("A?", VI_TMO_INFINITE, false));
  link_->ExpectNoRead();
  peer_.Hears(kCore, Call(2, 11, "00000007 FFFFFFFF 00000000 00000000 00000002 'A?' 0000"));
  peer_.HearsNothingMore(kCore);
  ExpectUsable(3);
}

TEST_F(Vxi11Query, OnlyTheLastPartOfALongMessageTakesTheReadAlong) {
  Close(2);
  Open("00000400");
  const std::string text(1025, 'a');
  peer_.Says(kCore, Reply(2, "00000000 00000400") + Reply(3, "00000000 00000001") + Answered(4, "OK"));
  EXPECT_EQ("OK", Query(text, VI_TMO_INFINITE));
  peer_.Hears(kCore, Call(2, 11, "00000007 FFFFFFFF 00000000 00000000 00000400 '" + std::string(1024, 'a') + "'"));
  peer_.Hears(kCore, Call(3, 11, "00000007 FFFFFFFF 00000000 00000008 00000001 'a' 000000"));
  peer_.Hears(kCore, ReadCall(4, "FFFFFFFF"));
}

TEST_F(Vxi11Query, AReadThatNobodyMakesIsGivenUp) {
  peer_.Says(kCore, Written(2));
  link_->ExpectRead(4096, {});
  EXPECT_EQ(VI_SUCCESS, Write("A?"));
  link_->ExpectNoRead();
  peer_.Hears(kAbort, Call(1, 1, "00000007", kAsync));
  peer_.Next(kCore, 136);
  peer_.Says(kAbort, Reply(1, "00000000"));
  peer_.Says(kCore, Answered(3, "no"));
  ExpectUsable(4);
}

TEST_F(Vxi11Query, TheErrorOfTheQuestionIsTheStatusAndTheReadIsGivenUp) {
  const std::pair<const char*, ViStatus> kErrors[] = {{"0000000B", VI_ERROR_RSRC_LOCKED},
                                                      {"0000000F", VI_ERROR_TMO},
                                                      {"00000011", VI_ERROR_IO},
                                                      {"00000017", VI_ERROR_ABORT}};
  unsigned number = 2;
  unsigned abort = 1;
  for (const auto& [error, status] : kErrors) {
    peer_.Says(kCore, Reply(number, std::string(error) + "00000001"));
    EXPECT_EQ("", Query("A?"));
    EXPECT_EQ(status, status_);
    EXPECT_EQ(1u, sent_);
    peer_.Hears(kCore, WriteCall(number) + ReadCall(number + 1));
    peer_.Hears(kAbort, Call(abort, 1, "00000007", kAsync));
    peer_.Says(kAbort, Reply(abort, "00000000"));
    peer_.Says(kCore, Reply(number + 1, "00000017 00000000 00000000"));
    ExpectUsable(number + 2);
    number += 4;
    ++abort;
  }
  peer_.HearsNothingMore(kAbort);
}

TEST_F(Vxi11Query, AnAnswerToAQuestionThatFailedIsNotTheNextOne) {
  peer_.Says(kCore, Reply(2, "00000011 00000000") + Answered(3, "no"));
  EXPECT_EQ("", Query("A?"));
  EXPECT_EQ(VI_ERROR_IO, status_);
  peer_.Next(kCore, 136);
  peer_.Says(kAbort, Reply(1, "00000000"));
  ExpectUsable(4);
}

// An abort that comes between the two calls ends neither.
TEST_F(Vxi11Query, AReadThatBeginsBehindTheAbortIsEndedByAnother) {
  peer_.Says(kCore, Reply(2, "00000011 00000000"));
  EXPECT_EQ("", Query("A?"));
  peer_.Next(kCore, 136);
  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kAbort, Call(1, 1, "00000007", kAsync));
    peer_.Says(kAbort, Reply(1, "00000000"));
    peer_.Hears(kAbort, Call(2, 1, "00000007", kAsync));
    peer_.HearsNothingMore(kCore);
    peer_.Says(kCore, Reply(3, "00000017 00000000 00000000"));
    peer_.Says(kAbort, Reply(2, "00000000"));
    peer_.Hears(kCore, WriteCall(4) + ReadCall(5));
    peer_.Says(kCore, Written(4) + Answered(5, "OK"));
  });
  EXPECT_EQ("OK", Query("A?"));
  EXPECT_EQ(VI_SUCCESS, status_);
  device.get();
}

TEST_F(Vxi11Query, AReadThatNothingEndsKeepsTheNextCallOnlySoLong) {
  peer_.Says(kCore, Reply(2, "00000011 00000000"));
  EXPECT_EQ("", Query("A?"));
  peer_.Next(kCore, 136);
  auto aborts = AnswerAborts();
  auto device = std::async(std::launch::async, [&] {
    peer_.Next(kCore, 136);
    peer_.Says(kCore, Written(4) + Answered(5, "OK"));
  });
  const Stopwatch watch;
  EXPECT_EQ("OK", Query("A?"));
  EXPECT_LT(watch.OwnMilliseconds(), 400);
  device.get();
  peer_.Closes(kCore);
  link_.reset();
}

TEST_F(Vxi11Query, WhatADeviceDidNotTakeIsSentAgainBeforeItIsRead) {
  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kCore, WriteCall(2, "FFFFFFFF") + ReadCall(3, "FFFFFFFF"));
    peer_.Says(kCore, Reply(2, "00000000 00000001"));
    peer_.Hears(kAbort, Call(1, 1, "00000007", kAsync));
    peer_.Says(kAbort, Reply(1, "00000000"));
    peer_.Says(kCore, Reply(3, "00000017 00000000 00000000"));
    peer_.Hears(kCore, Call(4, 11, "00000007 FFFFFFFF 00000000 00000008 00000001 '?' 000000"));
    peer_.HearsNothingMore(kCore);
    peer_.Says(kCore, Reply(4, "00000000 00000001"));
    peer_.Hears(kCore, ReadCall(5, "FFFFFFFF"));
    peer_.Says(kCore, Answered(5, "OK"));
  });
  EXPECT_EQ("OK", Query("A?", VI_TMO_INFINITE));
  EXPECT_EQ(VI_SUCCESS, status_);
  device.get();
  ExpectUsableOneByOne(6);
}

TEST_F(Vxi11Query, ATimeoutThatTheDeviceTellsIsATimeoutAndNothingElse) {
  peer_.Says(kCore, Written(2) + Reply(3, "0000000F 00000000 00000003 'ABC' 00"));
  EXPECT_EQ("ABC", Query("A?"));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.Next(kCore, 136);
  peer_.HearsNothingMore(kAbort);
  ExpectUsable(4);
}

TEST_F(Vxi11Query, ADeviceThatAnswersTheFirstCallOnlyIsAskedOneByOneFromThenOn) {
  for (const ViUInt32 timeout : {0u, 150u}) {
    peer_.Says(kCore, Written(2));
    const Stopwatch watch;
    EXPECT_EQ("", Query("A?", timeout));
    EXPECT_EQ(VI_ERROR_TMO, status_);
    EXPECT_GE(watch.Milliseconds(), static_cast<long>(timeout));
    EXPECT_LT(watch.OwnMilliseconds(), static_cast<long>(timeout) + 100);
    peer_.Next(kCore, 136);
    peer_.Hears(kAbort, Call(1, 1, "00000007", kAsync));
    peer_.Says(kAbort, Reply(1, "00000000"));
    peer_.Says(kCore, Answered(3, "no"));  // too late
    ExpectUsableOneByOne(4);
    Close(6);
    Open();
  }
}

TEST_F(Vxi11Query, ADeviceThatAnswersNeitherCallIsATimeoutAndAskedOneByOneFromThenOn) {
  const Stopwatch watch;
  EXPECT_EQ("", Query("A?", 150));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  EXPECT_GE(watch.Milliseconds(), 150);
  EXPECT_LT(watch.OwnMilliseconds(), 250);
  peer_.Next(kCore, 136);
  peer_.Says(kAbort, Reply(1, "00000000"));
  peer_.Says(kCore, Written(2) + Answered(3, "no"));
  ExpectUsableOneByOne(4);
}

// Each of the two calls is given a moment more than the device, for its reply to come; both together must be within
// what a caller allows.
TEST_F(Vxi11Query, TwoCallsThatAreLateDoNotStretchTheTimeoutByMoreThanOneIs) {
  auto device = std::async(std::launch::async, [&] {
    peer_.Next(kCore, 136);
    std::this_thread::sleep_for(std::chrono::milliseconds(147));
    peer_.Offers(kCore, Written(2));
  });
  const Stopwatch watch;
  EXPECT_EQ("", Query("A?", 100));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  EXPECT_GE(watch.Milliseconds(), 100);
  EXPECT_LT(watch.OwnMilliseconds(), 200);
  device.get();
}

TEST_F(Vxi11Query, RepliesInTheWrongOrderAreATimeoutAndAskedForOneByOneFromThenOn) {
  peer_.Says(kCore, Answered(3, "no") + Written(2));
  const Stopwatch watch;
  EXPECT_EQ("", Query("A?", 100));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  EXPECT_LT(watch.OwnMilliseconds(), 200);
  peer_.Next(kCore, 136);
  auto aborts = AnswerAborts();
  ExpectUsableOneByOne(4);
  peer_.Closes(kCore);
  link_.reset();
}

TEST_F(Vxi11Query, AReplyThatBearsAnotherNumberIsNotTheAnswer) {
  peer_.Says(kCore, Written(2) + Answered(2, "no") + Answered(0, "no") + Answered(4, "no"));
  EXPECT_EQ("", Query("A?", 50));
  EXPECT_EQ(VI_ERROR_TMO, status_);
}

TEST_F(Vxi11Query, AServerThatRefusesTheQuestionIsAnErrorAndTheLinkGoesOn) {
  peer_.Says(kCore, Record("00000002 00000001 00000000 00000000 00000000 00000004"));  // garbage arguments
  EXPECT_EQ("", Query("A?"));
  EXPECT_EQ(VI_ERROR_IO, status_);
  peer_.Next(kCore, 136);
  peer_.Hears(kAbort, Call(1, 1, "00000007", kAsync));
  peer_.Says(kAbort, Reply(1, "00000000"));
  peer_.Says(kCore, Record("00000003 00000001 00000000 00000000 00000000 00000004"));
  ExpectUsable(4);
}

TEST_F(Vxi11Query, AServerThatRefusesTheReadIsAnErrorAndTheLinkGoesOn) {
  peer_.Says(kCore, Written(2) + Record("00000003 00000001 00000000 00000000 00000000 00000004"));
  EXPECT_EQ("", Query("A?"));
  EXPECT_EQ(VI_ERROR_IO, status_);
  peer_.Next(kCore, 136);
  ExpectUsable(4);
  peer_.HearsNothingMore(kAbort);
}

TEST_F(Vxi11Query, AConnectionThatEndsInBetweenIsALostOne) {
  peer_.Says(kCore, Written(2));
  peer_.StopsSending(kCore);
  EXPECT_EQ("", Query("A?"));
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  EXPECT_EQ("", Query("A?"));
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
}

TEST_F(Vxi11Query, ADeviceThatTakesMoreThanItGotIsNoDevice) {
  peer_.Says(kCore, Reply(2, "00000000 00000003") + Answered(3, "no"));
  EXPECT_EQ("", Query("A?"));
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  EXPECT_EQ("", Read());
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
}

TEST_F(Vxi11Query, MoreDataThanWasAskedForFillTheRoomAndNoMore) {
  peer_.Says(kCore, Written(2) + Reply(3, "00000000 00000004 0000000C 'ABCDEFGHIJKL'"));
  EXPECT_EQ("ABCDEFGH", Query("A?", 2000, 8));
  EXPECT_EQ(VI_ERROR_OUTP_PROT_VIOL, status_);
  peer_.Next(kCore, 136);
  ExpectUsable(4);
}

TEST_F(Vxi11Query, AnInterruptionEndsEitherCallAndTheLinkGoesOn) {
  // A loaded machine delays threads: one try of many has to be as quick as that.
  long quickest = 1000;
  unsigned number = 2;
  unsigned abort = 1;
  for (int i = 0; i < 2 || (quickest >= 10 && i < 40); ++i) {
    auto asking = std::async(std::launch::async, [&] { return Query("A?", 60000); });
    peer_.Next(kCore, 136);
    const bool in_the_read = i % 2 == 1;
    if (in_the_read) peer_.Says(kCore, Written(number));
    const Stopwatch watch;
    interruption_.Request();
    EXPECT_EQ("", asking.get());
    quickest = std::min(quickest, watch.Milliseconds());
    EXPECT_EQ(VI_ERROR_ABORT, status_);
    peer_.Hears(kAbort, Call(abort, 1, "00000007", kAsync));
    peer_.Says(kAbort, Reply(abort, "00000000"));
    if (!in_the_read) peer_.Says(kCore, Reply(number, "00000017 00000000"));
    peer_.Says(kCore, Reply(number + 1, "00000017 00000000 00000000"));
    interruption_.BeginCall();
    ExpectUsable(number + 2);
    number += 4;
    ++abort;
  }
  EXPECT_LT(quickest, 10);
}

TEST_F(Vxi11Query, HangingUpEndsBothCallsAndTheLinkAtTheDevice) {
  auto asking = std::async(std::launch::async, [&] { return Query("A?", 60000); });
  peer_.Next(kCore, 136);
  peer_.Says(kAbort, Reply(1, "00000000"));
  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kAbort, Call(1, 1, "00000007", kAsync));
    peer_.Says(kCore, Reply(2, "00000017 00000000") + Reply(3, "00000017 00000000 00000000"));
    peer_.Hears(kCore, Call(4, 23, "00000007"));
    peer_.Says(kCore, Reply(4, "00000000"));
  });
  link_->HangUp();
  EXPECT_EQ("", asking.get());
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  device.get();
  peer_.HearsTheEnd(kCore);
}

// Without an abort channel the read ends by its own time.
TEST_F(Vxi11Query, ADeviceThatCannotAbortHasTheReadsReplyPassedOver) {
  peer_.Closes(kAbort);
  peer_.Says(kCore, Reply(2, "00000011 00000000"));
  EXPECT_EQ("", Query("A?"));
  EXPECT_EQ(VI_ERROR_IO, status_);
  peer_.Next(kCore, 136);
  peer_.Says(kCore, Reply(3, "0000000F 00000000 00000000"));
  ExpectUsable(4);
}

class Vxi11Probe : public Vxi11Query {
 protected:
  void SetUp() override {}
  void ExpectOneByOne() {
    EXPECT_FALSE(link_->ReadsAhead());
    ExpectUsableOneByOne(2);
  }
};

TEST_F(Vxi11Probe, TwoAnswersInTheirOrderAllowIt) {
  Open();
  EXPECT_TRUE(link_->ReadsAhead());
}

TEST_F(Vxi11Probe, ThatThereIsNoSuchProcedureIsAnAnswer) {
  Open("00001000", Record("FFFFFFFF 00000001 00000000 00000000 00000000 00000003") +
                       Record("00000000 00000001 00000000 00000000 00000000 00000003"));
  EXPECT_TRUE(link_->ReadsAhead());
  ExpectUsable(2);
}

TEST_F(Vxi11Probe, NoAnswerForbidsItAndOpeningTakesLittleLonger) {
  const Stopwatch watch;
  Open("00001000", "");
  EXPECT_GE(watch.Milliseconds(), 200);
  EXPECT_LT(watch.OwnMilliseconds(), 400);
  ExpectOneByOne();
}

TEST_F(Vxi11Probe, ItTakesASmallShareOfTheTimeout) {
  const Stopwatch watch;
  EXPECT_EQ(VI_SUCCESS, OpenWith(
                            [&] {
                              peer_.Accept(kCore);
                              peer_.Says(kCore, Reply(1, "00000000 00000007 00000000 00001000"));
                            },
                            400));
  EXPECT_LT(watch.OwnMilliseconds(), 150);
  EXPECT_FALSE(link_->ReadsAhead());
}

TEST_F(Vxi11Probe, OneAnswerOfTwoForbidsItAndTheLateOneIsPassedOver) {
  Open("00001000", Reply(0xFFFFFFFF, ""));
  peer_.Says(kCore, Reply(0, ""));
  ExpectOneByOne();
}

TEST_F(Vxi11Probe, AnswersInTheWrongOrderForbidIt) {
  Open("00001000", Reply(0, "") + Reply(0xFFFFFFFF, ""));
  ExpectOneByOne();
}

TEST_F(Vxi11Probe, AnAnswerThatIsNoneForbidsIt) {
  Open("00001000", Record("FFFFFFFF 00000001 00000000 00000000 00000000 00000004"));
  ExpectOneByOne();
}

TEST_F(Vxi11Probe, AServerThatDoesNotStandItIsOpenedAgainWithoutIt) {
  const ViStatus status = OpenWith([&] {
    peer_.Accept(kCore);
    peer_.Says(kCore, Reply(1, "00000000 00000006" + Word(peer_.abort_port()) + "00001000"));
    peer_.Next(kCore, 68 + Probe().size());
    peer_.Closes(kCore);
    peer_.Accept(kCore);
    peer_.Hears(kCore, Call(2, 10, "00005456 00000000 00000000 00000005 'inst0' 000000"));
    peer_.Says(kCore, Reply(2, "00000000 00000007" + Word(peer_.abort_port()) + "00001000"));
    peer_.Accept(kAbort);
  });
  ASSERT_EQ(VI_SUCCESS, status);
  EXPECT_FALSE(link_->ReadsAhead());
  ExpectUsableOneByOne(3);
}

}  // namespace
}  // namespace tvr::visa::vxi11
