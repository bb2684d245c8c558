// The caller's own exchanges on the session's link, its handle and its timeout.

#include <visa.h>

#include <thread>
#include <vector>

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

const ViByte* Bytes(const std::string& text) { return reinterpret_cast<const ViByte*>(text.data()); }

class DirectIo : public DriverDialogue {
 protected:
  void Write(const std::string& bytes) {
    ViInt64 written = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_viWrite(vi, static_cast<ViInt64>(bytes.size()), Bytes(bytes), &written));
    EXPECT_EQ(static_cast<ViInt64>(bytes.size()), written);
  }
  ViStatus Read(GuardedText<64>& buffer, ViInt64 count, ViInt64* read) {
    return KVTD481X2C_viRead(vi, count, reinterpret_cast<ViByte*>(buffer.data()), read);
  }
};

// What VISA answers when a read has taken an answer to its end: a raw socket knows it by the line feed alone.
ViStatus AnswerRead() { return ChosenLink() == LinkKind::Socket ? VI_SUCCESS_TERM_CHAR : VI_SUCCESS; }

class SimulatedDirectIo : public SimulatedDriver {
 protected:
  const RecordedError kRefused{kIoError, "I/O error.  Direct I/O operations are not available in simulation mode."};
};

TEST_F(DirectIo, BytesGoOutAsTheyStand) {
  Sent(Literal(":FREQ 1;\0\r :POW 2\n"));
  Write(Literal(":FREQ 1;\0\r :POW 2\n"));
}

TEST_F(DirectIo, AWriteOfNothingSendsNothing) {
  ViInt64 written = 77;
  EXPECT_LE(VI_SUCCESS, KVTD481X2C_viWrite(vi, 0, Bytes(""), &written));
  EXPECT_EQ(0, written);
}

TEST_F(DirectIo, AReadGivesTheAnswerWithItsLineFeedAndNoTerminator) {
  Sent("*OPT?\n");
  Answer("none\n");
  Write("*OPT?\n");
  GuardedText<64> buffer;
  ViInt64 read = 77;
  EXPECT_STATUS(AnswerRead(), Read(buffer, 64, &read));
  EXPECT_EQ(5, read);
  EXPECT_EQ("none\n~", std::string(buffer.data(), 6));
}

TEST_F(DirectIo, AShortReadThrowsTheRestAwayAndTellsTheStatusOfTheLastPiece) {
  Sent("*OPT?\n");
  Answer(std::string(99, 'x') + "\n");
  Write("*OPT?\n");
  GuardedText<64> buffer;
  ViInt64 read = 77;
  EXPECT_STATUS(AnswerRead(), Read(buffer, 10, &read));
  EXPECT_EQ(10, read);
  EXPECT_EQ("xxxxxxxxxx~", std::string(buffer.data(), 11));
  Script(R"(
    > :FREQ:MULT?
    < 3
  )");
  ViReal64 value = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(3.0, value);
}

TEST_F(DirectIo, ALongRestIsThrownAwayInSeveralPieces) {
  Sent("*OPT?\n");
  Answer(std::string(20000, 'x') + "\n");
  Write("*OPT?\n");
  GuardedText<64> buffer;
  ViInt64 read = 77;
  EXPECT_STATUS(AnswerRead(), Read(buffer, 1, &read));
  EXPECT_EQ(1, read);
}

TEST_F(DirectIo, ARestThatNeverEndsIsGivenUpAtTheTimeout) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 50));
  Sent("*OPT?\n");
  Answer("no line feed follows");
  Write("*OPT?\n");
  GuardedText<64> buffer;
  ViInt64 read = 77;
  EXPECT_STATUS(kVisaTimeout, Read(buffer, 2, &read));
  EXPECT_EQ(2, read);
  EXPECT_EQ("no~", std::string(buffer.data(), 3));
}

TEST_F(DirectIo, CountsAreCutToThirtyTwoBits) {
  Sent("*OPT?\n");
  Answer("none\n");
  ViInt64 count = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_viWrite(vi, 0x100000006, Bytes("*OPT?\nnever sent"), &count));
  EXPECT_EQ(6, count);
  GuardedText<64> buffer;
  EXPECT_STATUS(AnswerRead(), Read(buffer, 0x100000004, &count));
  EXPECT_EQ(4, count);
  EXPECT_EQ("none~", std::string(buffer.data(), 5));
}

TEST_F(DirectIo, TheReturnCountsMayBeNull) {
  Sent("*OPT?\n");
  Answer("none\n");
  const std::string query = "*OPT?\n";
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_viWrite(vi, static_cast<ViInt64>(query.size()), Bytes(query), nullptr));
  GuardedText<64> buffer;
  EXPECT_STATUS(AnswerRead(), Read(buffer, 64, nullptr));
}

TEST_F(DirectIo, TheReturnCountIsStoredAfterAFailureAsWell) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 50));
  GuardedText<64> buffer;
  ViInt64 read = 77;
  EXPECT_STATUS(kVisaTimeout, Read(buffer, 64, &read));
  EXPECT_EQ(0, read);
  EXPECT_TRUE(buffer.Untouched());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(DirectIo, NoStatusCheckFollows) {
  QueryInstrumentStatus(true);
  Sent("*OPT?\n");
  Answer("none\n");
  Write("*OPT?\n");
  GuardedText<64> buffer;
  ViInt64 read = 77;
  EXPECT_STATUS(AnswerRead(), Read(buffer, 64, &read));
}

TEST_F(DirectIo, ALostConnectionComesBackAsVisaTellsIt) {
  Script(R"(
    > *OPT?
    ! close
  )");
  Write("*OPT?\n");
  GuardedText<64> buffer;
  ViInt64 read = 77;
  EXPECT_STATUS(kVisaConnectionLost, Read(buffer, 64, &read));
  EXPECT_EQ(0, read);
}

TEST_F(DirectIo, TheTimeoutIsReadAndSetWithoutTraffic) {
  EXPECT_EQ(1150001U, KVTD481X2C_ATTR_SYSTEM_IO_SESSION);
  EXPECT_EQ(1150002U, KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT);
  QueryInstrumentStatus(true);
  ViInt32 timeout = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOTimeout(vi, &timeout));
  EXPECT_EQ(2000, timeout);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 12345));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT, &timeout));
  EXPECT_EQ(12345, timeout);
}

TEST_F(DirectIo, TheTimeoutHoldsForTheNextExchange) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 30));
  Script("> :FREQ?");
  ViReal64 value = 0;
  const Clock::time_point start = Clock::now();
  EXPECT_STATUS(kVisaTimeout, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &value));
  EXPECT_LT(Clock::now() - start, Milliseconds(1000));
}

// A reset takes the instrument longer than a query: it runs under two seconds of its own.
TEST_F(DirectIo, AResetHasATimeoutOfItsOwnAndGivesTheCallersBack) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 20));
  Script(R"(
    > *RST
    > *OPC?
    ! pause 100
    < 1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  ViInt32 timeout = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOTimeout(vi, &timeout));
  EXPECT_EQ(20, timeout);
}

TEST_F(DirectIo, AResetThatFailsGivesTheCallersTimeoutBackAsWell) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 12345));
  Script(R"(
    > *RST
    > *OPC?
    ! close
  )");
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_reset(vi));
  ViInt32 timeout = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOTimeout(vi, &timeout));
  EXPECT_EQ(12345, timeout);
}

TEST_F(DirectIo, TheSessionOfVisaIsGivenOut) {
  ViSession io = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOSession(vi, &io));
  EXPECT_NE(0U, io);
  ViSession same = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViSession(vi, nullptr, KVTD481X2C_ATTR_SYSTEM_IO_SESSION, &same));
  EXPECT_EQ(io, same);
  Sent("*OPT?\n");
  Answer("none\n");
  GuardedText<16> text;
  EXPECT_STATUS(VI_SUCCESS,
                viQueryf(io, const_cast<ViString>("*OPT?\n"), const_cast<ViString>("%15[^\n]%*t"), text.data()));
  EXPECT_EQ("none", text.text());
}

TEST_F(DirectIo, ARawSocketAloneEndsItsReadsAtTheLineFeed) {
  ViSession io = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOSession(vi, &io));
  ViUInt8 character = 0;
  ViBoolean enabled = VI_FALSE;
  EXPECT_STATUS(VI_SUCCESS, viGetAttribute(io, VI_ATTR_TERMCHAR, &character));
  EXPECT_EQ(10, character);
  EXPECT_STATUS(VI_SUCCESS, viGetAttribute(io, VI_ATTR_TERMCHAR_EN, &enabled));
  EXPECT_EQ(ChosenLink() == LinkKind::Socket ? VI_TRUE : VI_FALSE, enabled);
}

TEST_F(DirectIo, NullOutputsAreRefused) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetIOSession(vi, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetAttributeViSession', parameter 'AttributeValue'.",
            LastErrorText());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetIOTimeout(vi, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetAttributeViInt32', parameter 'AttributeValue'.",
            LastErrorText());
}

TEST_F(DirectIo, AHandleThatIsNotOpenIsRefused) {
  GuardedText<64> buffer;
  ViInt64 count = 77;
  ViSession io = 77;
  ViInt32 timeout = 77;
  for (const ViSession handle : {ViSession{0}, ViSession{0xDEADBEEF}}) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_viRead(handle, 64, reinterpret_cast<ViByte*>(buffer.data()), &count));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_viWrite(handle, 1, Bytes("\n"), &count));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetIOSession(handle, &io));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetIOTimeout(handle, &timeout));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetIOTimeout(handle, 5));
  }
  EXPECT_EQ(77, count);
  EXPECT_EQ(77U, io);
  EXPECT_EQ(77, timeout);
  EXPECT_TRUE(buffer.Untouched());
}

TEST_F(SimulatedDirectIo, EveryDirectOperationIsRefusedAndLeavesItsOutputsAlone) {
  GuardedText<64> buffer;
  ViInt64 count = 77;
  ViSession io = 77;
  ViInt32 timeout = 77;
  EXPECT_STATUS(kIoError, KVTD481X2C_viRead(vi, 64, reinterpret_cast<ViByte*>(buffer.data()), &count));
  EXPECT_EQ(kRefused, LastError());
  EXPECT_STATUS(kIoError, KVTD481X2C_viWrite(vi, 1, Bytes("\n"), &count));
  EXPECT_EQ(kRefused, LastError());
  EXPECT_STATUS(kIoError, KVTD481X2C_GetIOSession(vi, &io));
  EXPECT_EQ(kRefused, LastError());
  EXPECT_STATUS(kIoError, KVTD481X2C_GetIOTimeout(vi, &timeout));
  EXPECT_EQ(kRefused, LastError());
  EXPECT_STATUS(kIoError, KVTD481X2C_SetIOTimeout(vi, 5));
  EXPECT_EQ(kRefused, LastError());
  EXPECT_EQ(77, count);
  EXPECT_EQ(77U, io);
  EXPECT_EQ(77, timeout);
  EXPECT_TRUE(buffer.Untouched());
}

// Knows its name, and answers "*OPT?" with bytes that never stop and hold no line feed.
class EndlessInstrument {
 public:
  ~EndlessInstrument() {
    stop_.Ring();
    thread_.join();
  }
  std::string ResourceName() const { return "TCPIP0::127.0.0.1::" + std::to_string(listener_.port()) + "::SOCKET"; }

 private:
  void Serve() {
    if (!WaitReadable(listener_.descriptor(), &stop_, kPatience)) return;
    const Descriptor client = listener_.Accept();
    for (;;) {
      const std::string line = ReceiveUntil(client, '\n');
      if (line.empty()) return;
      if (line == "*IDN?\n") SendAll(client, "Kelvora,TD48142C,SN4711,1.2.3\n", &stop_);
      if (line == "*OPT?\n") Stream(client);
    }
  }
  // Ends by itself after a while, so that a driver which reads on for ever fails its test and does not hang it.
  void Stream(const Descriptor& client) {
    const std::string piece(1000, 'x');
    const Clock::time_point end = Clock::now() + kPatience;
    while (Clock::now() < end && SendAll(client, piece, &stop_)) {
    }
  }

  Listener listener_;
  Alarm stop_;
  std::thread thread_{[this] { Serve(); }};
};

TEST(EndlessResponse, IsGivenUpWhenTheTimeoutIsOver) {
  EndlessInstrument instrument;
  std::string resource = instrument.ResourceName();
  ViSession vi = VI_NULL;
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, "", &vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 100));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_viWrite(vi, 6, Bytes("*OPT?\n"), nullptr));
  GuardedText<2> buffer;
  ViInt64 read = 77;
  const Clock::time_point start = Clock::now();
  EXPECT_STATUS(kVisaTimeout, KVTD481X2C_viRead(vi, 2, reinterpret_cast<ViByte*>(buffer.data()), &read));
  EXPECT_LT(Clock::now() - start, Milliseconds(1000));
  EXPECT_EQ(2, read);
  EXPECT_EQ("xx", std::string(buffer.data(), 2));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi));
}

TEST_F(DirectIo, ASessionThatWasSwitchedToSimulationRefusesThemToo) {
  SwitchToSimulation(true);
  ViInt32 timeout = 77;
  EXPECT_STATUS(kIoError, KVTD481X2C_GetIOTimeout(vi, &timeout));
  SwitchToSimulation(false);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOTimeout(vi, &timeout));
}

}  // namespace
}  // namespace kvtd::test
