#include "bench.h"

namespace siggen {
namespace {

using StatusModel = Bench;

TEST_F(StatusModel, ErrorsComeOutOldestFirst) {
  Tell(":FOO 1");
  Tell(":FREQ 9e99");
  EXPECT_EQ("-113,\"Undefined header;:FOO\"", Ask(":SYST:ERR?"));
  EXPECT_EQ("-222,\"Data out of range;:FREQ\"", Ask(":SYST:ERR:NEXT?"));
  EXPECT_EQ("0,\"No error\"", Ask(":SYSTem:ERRor?"));
}

TEST_F(StatusModel, AFullQueueEndsWithOverflowAndKeepsTheOldest) {
  for (int i = 0; i < 25; ++i) Tell(":FOO" + std::string(1, static_cast<char>('A' + i)) + " 1");
  EXPECT_EQ("20", Ask(":SYST:ERR:COUN?"));
  for (int i = 0; i < 19; ++i) {
    EXPECT_EQ("-113,\"Undefined header;:FOO" + std::string(1, static_cast<char>('A' + i)) + "\"", Ask(":SYST:ERR?"));
  }
  EXPECT_EQ("-350,\"Queue overflow\"", Ask(":SYST:ERR?"));
  EXPECT_EQ("0,\"No error\"", Ask(":SYST:ERR?"));
}

TEST_F(StatusModel, AllErrorsCanBeReadAtOnce) {
  Tell(":FOO;");
  Tell(":POW 99");
  EXPECT_EQ("-113,\"Undefined header;:FOO\",-222,\"Data out of range;:POW\"", Ask(":SYST:ERR:ALL?"));
}

TEST(ErrorQueue, QuotesAndControlBytesCannotBreakTheText) {
  scpi::ErrorQueue queue;
  queue.Push(scpi::Error::kIllegalParameter, "a\"b\n\xFF");
  EXPECT_EQ("-224,\"Illegal parameter value;a\"\"b..\"", queue.Pop());
  queue.Push(scpi::Error::kIllegalParameter, std::string(1000, '"'));
  EXPECT_LE(queue.Pop().size(), 262U);
}

TEST_F(StatusModel, StandardEventsTellTheKindOfErrorAndReadingClearsThem) {
  EXPECT_EQ("128", Ask("*ESR?")) << "power on";
  Tell(":FOO");
  EXPECT_EQ("32", Ask("*ESR?"));
  Tell(":FREQ 9e99");
  EXPECT_EQ("16", Ask("*ESR?"));
  Tell("*RCL 9");
  EXPECT_EQ("8", Ask("*ESR?"));
  session_.ReadWithoutAnswer();
  EXPECT_EQ("4", Ask("*ESR?"));
  EXPECT_EQ("0", Ask("*ESR?"));
}

TEST_F(StatusModel, OverflowIsADeviceErrorBesideItsCause) {
  Ask("*ESR?");
  for (int i = 0; i < 20; ++i) Tell(":FOO");
  EXPECT_EQ("32", Ask("*ESR?"));
  Tell(":FOO");
  EXPECT_EQ("40", Ask("*ESR?"));
}

TEST_F(StatusModel, ClearEmptiesEventsAndErrorsAndKeepsMasks) {
  Tell("*ESE 60;*SRE 36;:STAT:OPER:ENAB 8");
  Tell(":FOO");
  Tell("*CLS");
  EXPECT_EQ("0,\"No error\"", Ask(":SYST:ERR?"));
  EXPECT_EQ("0;60;36;8", Ask("*ESR?;*ESE?;*SRE?;:STAT:OPER:ENAB?"));
}

TEST_F(StatusModel, TheStatusByteSumsUp) {
  Tell("*CLS;*ESE 32");
  EXPECT_EQ("0", Ask("*STB?"));
  Tell(":FOO");
  EXPECT_EQ("36", Ask("*STB?")) << "error queue and standard event summary";
  Tell("*SRE 32");
  EXPECT_EQ("100", Ask("*STB?")) << "and the master summary";
  Tell("*CLS");
  EXPECT_EQ("0", Ask("*STB?"));
}

TEST_F(StatusModel, AnAnswerUnderWayShowsAsMessageAvailable) { EXPECT_EQ("-20;16", Ask(":POW?;*STB?")); }

TEST_F(StatusModel, ServiceRequestEnableLosesItsMasterBit) {
  Tell("*SRE 255");
  EXPECT_EQ("191", Ask("*SRE?"));
}

TEST_F(StatusModel, MasksOutsideTheirRangeAreRefused) {
  ExpectRefused("*ESE 256", -222);
  ExpectRefused("*ESE -1", -222);
  ExpectRefused(":STAT:QUES:ENAB 65536", -222);
}

TEST_F(StatusModel, AConditionThatRisesIsAnEventUntilItIsRead) {
  Tell(":STAT:QUES:ENAB 8");
  EXPECT_EQ("0;0", Ask("STAT:QUES:COND?;EVEN?"));
  instrument_.generator().TripProtection();
  EXPECT_EQ("8", Ask("STAT:QUES:COND?"));
  EXPECT_EQ("8", Ask("*STB?")) << "questionable summary";
  EXPECT_EQ("8;0", Ask("STAT:QUES:EVEN?;EVEN?"));
  EXPECT_EQ("8", Ask("STAT:QUES:COND?")) << "the condition itself stays";
  EXPECT_EQ("0", Ask("*STB?"));
}

TEST_F(StatusModel, TransitionFiltersChooseTheEdge) {
  Tell(":STAT:QUES:PTR 0;NTR 8");
  EXPECT_EQ("0;8", Ask(":STAT:QUES:PTR?;NTR?"));
  instrument_.generator().TripProtection();
  EXPECT_EQ("0", Ask(":STAT:QUES?"));
  Tell(":POW:PROT:CLE");
  EXPECT_EQ("8", Ask(":STAT:QUES?"));
}

TEST_F(StatusModel, PresetPutsTheFiltersBack) {
  Tell(":STAT:OPER:ENAB 12;PTR 1;NTR 2;:STAT:QUES:ENAB 9;*ESE 60");
  Tell(":STAT:PRES");
  EXPECT_EQ("0;32767;0;0;60", Ask(":STAT:OPER:ENAB?;PTR?;NTR?;:STAT:QUES:ENAB?;*ESE?"));
}

TEST_F(StatusModel, ANewMessageBeforeTheAnswerWasFetchedInterruptsIt) {
  session_.Submit({scpi::Bytes::Copy("*IDN?"), false});
  session_.Run();
  ASSERT_TRUE(session_.answer_ready());
  EXPECT_EQ(16, session_.StatusByte() & 16);
  session_.Interrupt();
  EXPECT_EQ("-410,\"Query INTERRUPTED\"", Ask(":SYST:ERR?"));
}

TEST_F(StatusModel, ClientsShareStatusAndKeepTheirOwnAnswers) {
  scpi::Session other(instrument_);
  session_.Submit({scpi::Bytes::Copy(":POW?"), false});
  session_.Run();
  EXPECT_EQ("1000000000", Ask(other, ":FREQ?"));
  Ask(other, ":FOO");
  EXPECT_EQ("-20", Answered(session_));
  EXPECT_EQ("-113,\"Undefined header;:FOO\"", Ask(":SYST:ERR?"));
}

TEST_F(StatusModel, AnOverlongMessageIsRefusedAsTooMuchData) {
  session_.Submit({{}, true});
  session_.Run();
  EXPECT_EQ("-223,\"Too much data\"", Ask(":SYST:ERR?"));
}

}  // namespace
}  // namespace siggen
