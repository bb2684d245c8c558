#include "bench.h"

namespace siggen {
namespace {

using namespace std::chrono_literals;

using Services = Bench;

TEST_F(Services, AReferenceCalibrationTakesItsTimeAndTellsHowFarItIs) {
  EXPECT_EQ("IDLE;2026-01-12 08:15:00", Ask(":DIAG:CAL:REF:STAT?;DATE?"));
  Tell(":DIAG:CAL:REF:INIT");
  EXPECT_EQ("RUNNING 0%;1", Ask(":DIAG:CAL:REF:STAT?;:STAT:OPER:COND?"));
  ExpectRefused(":DIAG:CAL:REF:INIT", -213);
  Pass(1500ms);
  EXPECT_EQ("RUNNING 50%", Ask(":DIAG:CAL:REF:STAT?"));
  EXPECT_EQ("IDLE", Ask(":DIAG:CAL:REF:LFR:STAT?"));
  Tell(":SYST:DATE 2030,5,6;TIME 7,8,9");
  Pass(1500ms);
  EXPECT_EQ("PASSED;2030-05-06 07:08:10;0", Ask(":DIAG:CAL:REF:STAT?;DATE?;:STAT:OPER:COND?"));
}

TEST_F(Services, ACalibrationCanBeAbortedAndWaitedFor) {
  Tell(":DIAG:CAL:REF:LFR:INIT;ABOR");
  EXPECT_EQ("ABORTED;2026-01-12 08:15:00;1", Ask(":DIAG:CAL:REF:LFR:STAT?;DATE?;*OPC?"));
  EXPECT_EQ("", Ask(":DIAG:CAL:REF:LFR:INIT;*OPC?"));
  EXPECT_EQ(now_ + 1s, instrument_.next_event());
  Pass(1s);
  session_.Run();
  EXPECT_EQ("1", Answered(session_));
  EXPECT_EQ("PASSED", Ask(":DIAG:CAL:REF:LFR:STAT?"));
}

TEST_F(Services, TheReferenceFollowsTheGpsReceiver) {
  EXPECT_EQ("REF INT GPS;GPPS;INT;INT", Ask(":ROSC:SOUR:CURR?;:ROSC:LFR:SOUR?;:ROSC:MULT:SOUR?;:ROSC:HFR:SOUR?"));
  Tell(":SYST:GPS:STAT 0");
  EXPECT_EQ("REF INT 10;INT;OFF;OFF", Ask(":ROSC:SOUR:CURR?;:ROSC:LFR:SOUR?;:FETC:GPS?;GPS:FULL?"));
}

TEST_F(Services, TheClockIsSetAndRuns) {
  Tell(":SYST:DATE 2028,2,29");
  Tell(":SYST:TIME   23,59,58");
  EXPECT_EQ("2028,2,29;23,59,58", Ask(":SYST:DATE?;TIME?"));
  Pass(3s);
  EXPECT_EQ("2028,3,1;0,0,1", Ask(":SYST:DATE?;TIME?"));
}

TEST_F(Services, DatesThatDoNotExistAreRefused) {
  Tell(":SYST:DATE 2027,1,1");
  for (const char* date : {"2027,2,29", "2027,4,31", "2027,13,1", "1999,1,1", "2027,1,0"}) {
    ExpectRefused(std::string(":SYST:DATE ") + date, -222);
  }
  ExpectRefused(":SYST:TIME 24,0,0", -222);
  ExpectRefused(":SYST:TIME 1,2", -109);
  EXPECT_EQ("2027,1,1", Ask(":SYST:DATE?"));
}

TEST_F(Services, TheTimeZoneMovesTheDial) {
  Tell(":SYST:DATE 2027,1,1;TIME 23,30,0");
  Tell(":SYST:TIME:ZONE \"UTC+05:30\"");
  EXPECT_EQ("2027,1,2;5,0,0;UTC+05:30", Ask(":SYST:DATE?;TIME?;TIME:ZONE?"));
  Tell(":SYST:TIME 6,0,0");
  EXPECT_EQ("2027,1,2;6,0,0", Ask(":SYST:DATE?;TIME?"));
  ExpectRefused(":SYST:TIME:ZONE \"Moon\"", -224);
  const std::string zones = Ask(":SYST:TIME:ZONE:CAT?");
  EXPECT_TRUE(zones.starts_with("UTC-12:00,")) << zones;
  EXPECT_NE(std::string::npos, zones.find(",UTC+05:30,"));
}

TEST_F(Services, ASynchronisedClockIsNotSetByHand) {
  EXPECT_EQ("MAN;NONE", Ask(":SYST:TIME:SYNC?;SYNC:STAT?"));
  Tell(":SYST:TIME:SYNC AUTO");
  EXPECT_EQ("AUTO;GPS", Ask(":SYST:TIME:SYNC?;SYNC:STAT?"));
  ExpectRefused(":SYST:DATE 2027,1,1", -221);
  Tell(":SYST:GPS:STAT OFF");
  EXPECT_EQ("INT", Ask(":SYST:TIME:SYNC:STAT?"));
}

TEST_F(Services, TheInstrumentTellsAboutItself) {
  EXPECT_EQ("481000001;4194304", Ask(":DIAG:SNUM?;MEM?"));
  EXPECT_EQ("38.5;00-48-1A-2C-00-01", Ask(":SYST:TEMP?;MAC?"));
  EXPECT_TRUE(Ask(":DIAG:MOD:INFO?").starts_with("Reference A481-10 rev 3,"));
  EXPECT_TRUE(Ask(":TEST:SELF?").starts_with("Passed"));
  EXPECT_EQ("Generator;Generator,Sweep Monitor,Software Update", Ask(":INST:CAT:ACT?;FULL?"));
  EXPECT_EQ("FM,PULSE,GPS", Ask(":SYST:OPT?"));
  EXPECT_EQ("FM LICENSED,PULSE LICENSED,GPS INSTALLED", Ask(":SYST:OPT:CONF?"));
}

TEST_F(Services, TheUnitHasAName) {
  Tell(":SYST:UNIT:NAM \"Bench 3, left\"");
  EXPECT_EQ("Bench 3, left", Ask(":SYST:UNIT:NAM?"));
  ExpectRefused(":SYST:UNIT:NAM \"" + std::string(65, 'x') + "\"", -223);
  ExpectRefused(":SYST:UNIT:NAM \"a\"b\"", -103);
}

TEST_F(Services, TheErrorLogOutlastsReadingAndClearing) {
  EXPECT_EQ("", Ask(":SYST:LOG:ERR?"));
  Tell(":FOO");
  Tell(":POW 99");
  Tell("*CLS");
  EXPECT_EQ("-113,\"Undefined header;:FOO\",-222,\"Data out of range;:POW\"", Ask(":SYST:LOG:ERR?"));
}

TEST_F(Services, ARebootEndsInThePresetStateWithFilesAndNetworkKept) {
  Tell(":FREQ 2e9;*ESE 60;:SYST:UNIT:NAM \"mine\";:MMEM:DATA \"Internal\",\"a\",#11x;:MMEM:EJEC \"USB\";*SAV 1");
  instrument_.generator().TripProtection();
  Tell(":SYST:REB");
  EXPECT_EQ(model::PowerEvent::kReboot, instrument_.TakePowerEvent());
  EXPECT_EQ(model::PowerEvent::kNone, instrument_.TakePowerEvent());
  EXPECT_EQ("1000000000;0;0;128", Ask(":FREQ?;*ESE?;:POW:PROT:TRIP?;*ESR?"));
  EXPECT_EQ("mine;#11x;Internal,USB", Ask(":SYST:UNIT:NAM?;:MMEM:DATA? \"Internal\",\"a\";:MMEM:CAT:MSUS?"));
  Tell("*RCL 1");
  EXPECT_EQ("2000000000", Ask(":FREQ?"));
}

TEST_F(Services, TheThreeDefaultResetsGoDifferentlyFar) {
  const auto prepare = [this] {
    Tell(":FREQ 2e9;:LIST1:FREQ 1e9;*SAV 1;:SYST:UNIT:NAM \"mine\";:MMEM:DATA \"Internal\",\"a\",#11x");
    Tell(":MMEM:DATA \"Internal\",\"system/welcome.txt\",#11x");
  };
  const std::string question = ":FREQ?;:LIST1:FREQ:POIN?;:SYST:UNIT:NAM?;:MMEM:CAT:DIR:SIZE? \"Internal\",\"/\"";
  prepare();
  EXPECT_EQ("2000000000;1;mine;2", Ask(question));
  Tell(":SYST:DEF:RES:DATA USER");
  EXPECT_EQ("2000000000;1;mine;1", Ask(question));
  Tell(":SYST:DEF:RES:DATA SYSTem");
  EXPECT_EQ("2000000000;1;mine;26", Ask(question));
  Tell(":SYST:DEF:RES:FACT");
  EXPECT_EQ("1000000000;0;TD481X2C;26", Ask(question));
  ExpectRefused("*RCL 1", -314);
  prepare();
  Tell(":SYST:DEF:RES:MAST");
  EXPECT_EQ("1000000000;0;TD481X2C;26", Ask(question));
  ExpectRefused(":SYST:DEF:RES:DATA ALL", -224);
}

TEST_F(Services, FirmwareComesFromTheStickOrTheServerAndEndsWithAReboot) {
  EXPECT_EQ("1.4.2;td481x2c-1.5.0.pkg", Ask(":SYST:FIRM:VERS?;UPD:LIST?"));
  EXPECT_EQ("td481x2c-1.4.2.pkg,td481x2c-1.5.0.pkg;td481x2c-1.5.0.pkg,1", Ask(":SYST:FIRM:UPD:REM:LIST?;LAT?"));
  ExpectRefused(":SYST:FIRM:UPD \"USB\",\"none.pkg\"", -256);
  ExpectRefused(":SYST:FIRM:UPD:REM \"none.pkg\"", -256);
  Tell(":SYST:FIRM:UPD \"USB\",\"td481x2c-1.5.0.pkg\"");
  ExpectRefused(":SYST:FIRM:UPD:REM \"td481x2c-1.4.2.pkg\"", -221);
  EXPECT_EQ("1.4.2", Ask(":SYST:FIRM:VERS?"));
  Pass(2s);
  EXPECT_EQ(model::PowerEvent::kReboot, instrument_.TakePowerEvent());
  EXPECT_EQ("1.5.0;Kelvora,TD48142C,481000001,1.5.0", Ask(":SYST:FIRM:VERS?;*IDN?"));
  EXPECT_EQ("td481x2c-1.5.0.pkg,0", Ask(":SYST:FIRM:UPD:REM:LAT?"));
}

TEST_F(Services, APackageSourceThatCannotBeReachedIsAnError) {
  EXPECT_EQ("http://software.kelvora.example/en-us/td481x2c.txt;0", Ask(":SYST:FIRM:UPD:REM:SOUR?;AUTO?"));
  Tell(":SYST:FIRM:UPD:REM:LIST:REFR");
  Tell(":SYST:FIRM:UPD:REM:SOUR \"http://nowhere.example/x\";AUTO 1");
  ExpectRefused(":SYST:FIRM:UPD:REM:LIST:REFR", -200);
  EXPECT_EQ("http://nowhere.example/x;1", Ask(":SYST:FIRM:UPD:REM:SOUR?;AUTO?"));
}

}  // namespace
}  // namespace siggen
