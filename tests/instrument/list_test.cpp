#include "bench.h"

namespace siggen {
namespace {

using namespace std::chrono_literals;

class Lists : public Bench {
 protected:
  static std::string Numbers(int count, double first) {
    std::string text;
    for (int i = 0; i < count; ++i) text += (i == 0 ? "" : ",") + scpi::RealText(first + i);
    return text;
  }
};

TEST_F(Lists, AListIsAnsweredWhole) {
  Tell(":LIST3:FREQ 1e9,2e9,3 GHZ");
  Tell(":LIST3:POW -10,-20,-30.5");
  EXPECT_EQ("1000000000,2000000000,3000000000", Ask(":LIST3:FREQ?"));
  EXPECT_EQ("-10,-20,-30.5", Ask(":LIST3:POW?"));
  EXPECT_EQ("3;3", Ask(":LIST3:FREQ:POIN?;:LIST3:POW:POIN?"));
}

TEST_F(Lists, WithoutANumberItIsTheFirst) {
  Tell(":LIST:FREQ 5e9");
  EXPECT_EQ("5000000000;1;0", Ask(":LIST1:FREQ?;:LIST:FREQ:POIN?;:LIST2:FREQ:POIN?"));
  ExpectRefused(":LIST11:FREQ 1e9", -114);
  ExpectRefused(":LIST0:FREQ 1e9", -114);
}

TEST_F(Lists, AnEmptyListAnswersAnEmptyLine) {
  session_.Submit({scpi::Bytes::Copy(":LIST4:FREQ?"), false});
  session_.Run();
  ASSERT_TRUE(session_.answer_ready());
  EXPECT_EQ("\n", scpi::Join(session_.TakeAnswer()));
}

TEST_F(Lists, FourThousandPointsFitAndOneMoreDoesNot) {
  Tell(":LIST2:FREQ " + Numbers(4000, 1e9));
  EXPECT_EQ("4000", Ask(":LIST2:FREQ:POIN?"));
  EXPECT_EQ(Numbers(4000, 1e9), Ask(":LIST2:FREQ?"));
  ExpectRefused(":LIST2:FREQ " + Numbers(4001, 2e9), -223);
  EXPECT_EQ(Numbers(4000, 1e9), Ask(":LIST2:FREQ?"));
}

TEST_F(Lists, OneBadPointRefusesTheWholeList) {
  Tell(":LIST1:FREQ 1e9,2e9");
  ExpectRefused(":LIST1:FREQ 3e9,99e9", -222);
  ExpectRefused(":LIST1:POW 0,21", -222);
  EXPECT_EQ("1000000000,2000000000;0", Ask(":LIST1:FREQ?;:LIST1:POW:POIN?"));
}

TEST_F(Lists, AnUpdateWritesOverAndLengthens) {
  Tell(":LIST1:FREQ:UPD 0,1000000000.000000000000000,2000000000.000000000000000");
  Tell(":LIST1:FREQ:UPD 1,3e9,4e9");
  EXPECT_EQ("1000000000,3000000000,4000000000", Ask(":LIST1:FREQ?"));
  ExpectRefused(":LIST1:FREQ:UPD 5,1e9", -222);
  ExpectRefused(":LIST1:FREQ:UPD 0", -109);
  ExpectRefused(":LIST1:FREQ:UPD 2," + Numbers(3999, 1e9), -223);
  EXPECT_EQ("3", Ask(":LIST1:FREQ:POIN?"));
}

TEST_F(Lists, IndexStartAndStopNameExistingPoints) {
  ExpectRefused(":LIST1:IND 0", -221);
  Tell(":LIST1:FREQ 1e9,2e9,3e9,4e9");
  EXPECT_EQ("0;0;3", Ask(":LIST1:IND?;STAR?;STOP?"));
  Tell(":LIST1:STAR 1;STOP 2;IND 3");
  EXPECT_EQ("3;1;2", Ask(":LIST1:IND?;STAR?;STOP?"));
  ExpectRefused(":LIST1:IND 4", -222);
  ExpectRefused(":LIST1:STOP 4", -222);
}

TEST_F(Lists, TheStopFollowsTheLastPointUntilItIsSet) {
  Tell(":LIST1:FREQ 1e9,2e9");
  EXPECT_EQ("1", Ask(":LIST1:STOP?"));
  Tell(":LIST1:FREQ:UPD 2,3e9");
  EXPECT_EQ("2", Ask(":LIST1:STOP?"));
}

TEST_F(Lists, AResetKeepsThePointsAndForgetsHowTheyArePlayed) {
  Tell(":LIST1:FREQ 1e9,2e9,3e9;STAR 1;IND 2;DWEL 0.5");
  Tell("*RST");
  EXPECT_EQ("1000000000,2000000000,3000000000;0;0;0.05", Ask(":LIST1:FREQ?;:LIST1:STAR?;IND?;DWEL?"));
}

TEST_F(Lists, CopyTakesTheSweepsPoints) {
  Tell(":FREQ:STAR 1e9;STOP 2e9;:SWE1:POIN 5;:POW -7");
  Tell(":LIST:COPY");
  EXPECT_EQ("1000000000,1250000000,1500000000,1750000000,2000000000", Ask(":LIST:FREQ?"));
  EXPECT_EQ("-7,-7,-7,-7,-7", Ask(":LIST:POW?"));
  Tell(":SWE1:POIN 5000");
  ExpectRefused(":LIST:COPY", -223);
  EXPECT_EQ("5", Ask(":LIST:FREQ:POIN?"));
}

TEST_F(Lists, DwellIsKept) {
  Tell(":LIST:DWEL 0.25 ");
  EXPECT_EQ("0.25", Ask(":LIST:DWEL?"));
  ExpectRefused(":LIST:DWEL 0", -222);
}

class PlayedList : public Lists {
 protected:
  void SetUp() override {
    Tell(":INIT:CONT OFF;:LIST3:FREQ 1e9,2e9,3e9,4e9;POW -1,-2,-3,-4;DWEL 0.1");
    Tell(":FREQ:MODE LIST3;:POW:MODE LIST3");
  }
};

TEST_F(PlayedList, SteppedThroughInTimeAfterASoftwareTrigger) {
  Tell(":TRIG:TYPE SINGle;:INIT");
  EXPECT_EQ("32", Ask(":STAT:OPER:COND?")) << "waits for its trigger";
  Pass(1s);
  EXPECT_EQ("0", Ask(":LIST3:IND?"));
  Tell("*TRG");
  EXPECT_EQ("8", Ask(":STAT:OPER:COND?"));
  Pass(150ms);
  EXPECT_EQ("1;2000000000;-2", Ask(":LIST3:IND?;:MEAS:FREQ?;POW?"));
  Pass(100ms);
  EXPECT_EQ("2;3000000000;-3", Ask(":LIST3:IND?;:MEAS:FREQ?;POW?"));
  Pass(1s);
  EXPECT_EQ("3;4000000000;0", Ask(":LIST3:IND?;:MEAS:FREQ?;:STAT:OPER:COND?"));
}

TEST_F(PlayedList, GoesOnByOnePointWithEachManualTrigger) {
  Tell(":TRIG:TYPE MANual;:INIT");
  for (const char* index : {"0", "1", "2", "3"}) {
    EXPECT_EQ(index, Ask(":LIST3:IND?"));
    Pass(1s);
    Tell(":TRIG");
  }
  EXPECT_EQ("3;0", Ask(":LIST3:IND?;:STAT:OPER:COND?")) << "the trigger behind the last point ends the run";
  Tell(":INIT");
  EXPECT_EQ("0", Ask(":LIST3:IND?"));
}

TEST_F(PlayedList, PlaysFromStartToStop) {
  Tell(":LIST3:STAR 1;STOP 2;:INIT");
  EXPECT_EQ("1", Ask(":LIST3:IND?"));
  Pass(10s);
  EXPECT_EQ("2", Ask(":LIST3:IND?"));
}

TEST_F(PlayedList, CanBeSentToAPoint) {
  Tell(":LIST3:IND 2");
  EXPECT_EQ("3000000000;-3", Ask(":MEAS:FREQ?;POW?"));
}

TEST_F(PlayedList, MovesTheFrequencyAloneWhenThePowerIsFixed) {
  Tell(":POW:MODE FIX;:POW -15;:LIST3:IND 3");
  EXPECT_EQ("4000000000;-15", Ask(":MEAS:FREQ?;POW?"));
}

TEST_F(PlayedList, RefusesListsOfDifferentLength) {
  Tell(":LIST4:POW -1,-2;:POW:MODE LIST4");
  ExpectRefused(":INIT", -226);
}

TEST_F(PlayedList, BeginsByItselfWhenPointsArriveInAutomaticTriggering) {
  Tell("*RST;:FREQ:MODE LIST7");
  Pass(1s);
  Tell(":LIST7:FREQ 1e9,2e9,3e9;DWEL 0.1");
  Ask("*OPC?");
  Pass(150ms);
  EXPECT_EQ("1", Ask(":LIST7:IND?"));
}

}  // namespace
}  // namespace siggen
