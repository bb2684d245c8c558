#include "scpi/parser.h"
#include "bench.h"

namespace siggen {
namespace {

using Parsing = Bench;

TEST_F(Parsing, LongAndShortFormsInAnyCaseAreOneHeader) {
  for (const char* header : {":FREQ:STAR", ":FREQuency:STARt", ":frequency:start", "freq:STARt", ":FrEq:sTaR"}) {
    Tell(std::string(header) + " 5e6");
    EXPECT_EQ("5000000", Ask(std::string(header) + "?")) << header;
    Tell("*RST");
  }
  ExpectNoError();
}

TEST_F(Parsing, WhatIsNeitherLongNorShortFormIsUndefined) {
  ExpectRefused(":FREQU 1e9", -113);
  ExpectRefused(":FRE 1e9", -113);
  ExpectRefused(":FREQ:STA 1e9", -113);
}

TEST_F(Parsing, OptionalNodesMayBeLeftOut) {
  Tell(":FREQ:CW 2e9");
  EXPECT_EQ("2000000000", Ask(":FREQ?"));
  Tell(":FREQ:FIX 3e9");
  EXPECT_EQ("3000000000", Ask(":FREQ:CW?"));
  EXPECT_EQ("0", Ask(":OUTP?"));
  EXPECT_EQ("0", Ask(":OUTPut:STATe?"));
}

TEST_F(Parsing, AHeaderWithoutColonContinuesThePathOfTheOneBefore) {
  Tell(":FREQ:STAR 1e9;STOP 2e9");
  EXPECT_EQ("1000000000;2000000000", Ask(":FREQ:STAR?;STOP?"));
}

TEST_F(Parsing, AHeaderWithAColonBeginsAtTheRoot) {
  Tell(":FREQ:STAR 1e9;:POW -7");
  EXPECT_EQ("-7", Ask(":POW?"));
  ExpectRefused(":FREQ:STAR 1e9;POW -8", -113);
}

TEST_F(Parsing, ACommonCommandLeavesThePathAlone) { EXPECT_EQ("9000;1;20000000000", Ask(":FREQ:STAR?;*OPC?;STOP?")); }

TEST_F(Parsing, OneMessageGetsOneLineOfAnswers) { EXPECT_EQ("1000000000;-20;0", Ask(":FREQ?;:POW?;:OUTP?")); }

TEST_F(Parsing, BlanksAroundEverythingAreFine) {
  Tell("  :FREQ   1.5e9   ;  :POW\t-3 \r");
  EXPECT_EQ("1500000000;-3", Ask(" :FREQ? ; :POW? "));
  ExpectNoError();
}

TEST_F(Parsing, EmptyMessagesAndEmptyUnitsDoNothing) {
  Tell("");
  Tell("   ");
  Tell(";;:POW -4;;");
  EXPECT_EQ("-4", Ask(":POW?"));
  ExpectNoError();
}

TEST_F(Parsing, NumbersCarryTheirUnits) {
  const std::pair<const char*, const char*> rows[] = {
      {"1.5 GHZ", "1500000000"}, {"1500MHZ", "1500000000"}, {"1500 mhz", "1500000000"},  {"250 KHZ", "250000"},
      {"9000 HZ", "9000"},       {"+1E6", "1000000"},       {".5GHZ", "500000000"},      {"5.e6", "5000000"},
      {"0.1 GHz", "100000000"},  {"1e+09", "1000000000"},   {"#H2540BE40", "625000000"},
  };
  for (const auto& [sent, answered] : rows) {
    Tell(std::string(":FREQ ") + sent);
    EXPECT_EQ(answered, Ask(":FREQ?")) << sent;
  }
  ExpectNoError();
  Tell(":POW -10 DBM");
  EXPECT_EQ("-10", Ask(":POW?"));
}

TEST_F(Parsing, AWrongUnitIsRefused) {
  ExpectRefused(":FREQ 1 DBM", -131);
  ExpectRefused(":FREQ 1 PARSEC", -131);
  ExpectRefused(":POW:DAC 5 HZ", -138);
  ExpectRefused(":OUTP 1 HZ", -138);
  EXPECT_EQ("1000000000", Ask(":FREQ?"));
}

TEST_F(Parsing, BadNumbersAreRefused) {
  ExpectRefused(":FREQ -inf", -121);
  ExpectRefused(":FREQ +-5", -121);
  ExpectRefused(":FREQ 1e999999", -123);
  ExpectRefused(":FREQ INF", -222);
  ExpectRefused(":FREQ NAN", -222);
  EXPECT_EQ("1000000000", Ask(":FREQ?"));
}

TEST_F(Parsing, LimitsCanBeSetAndAskedFor) {
  EXPECT_EQ("9000", Ask(":FREQ? MIN"));
  EXPECT_EQ("20000000000", Ask(":FREQ? MAXimum"));
  EXPECT_EQ("1000000000", Ask(":FREQ? def"));
  Tell(":FREQ MAX");
  EXPECT_EQ("20000000000", Ask(":FREQ?"));
  Tell(":FREQ DEFault");
  EXPECT_EQ("1000000000", Ask(":FREQ?"));
  ExpectRefused(":FREQ? MIDDLE", -224);
}

TEST_F(Parsing, BooleansTakeWordsAndNumbers) {
  for (const auto& [sent, answered] :
       {std::pair{"ON", "1"}, {"off", "0"}, {"1", "1"}, {"0", "0"}, {"2.7", "1"}, {"0.2", "0"}}) {
    Tell(std::string(":OUTP ") + sent);
    EXPECT_EQ(answered, Ask(":OUTP?")) << sent;
  }
  ExpectRefused(":OUTP MAYBE", -224);
  ExpectRefused(":OUTP \"ON\"", -104);
}

TEST_F(Parsing, WordsAreTakenInBothFormsAndAnsweredShort) {
  const std::pair<const char*, const char*> rows[] = {{"FIXed", "FIX"},  {"CW", "FIX"},       {"SWEep", "SWE"},
                                                      {"SWE1", "SWE"},   {"sweep1", "SWE"},   {"LIST3", "LIST3"},
                                                      {"LIST", "LIST1"}, {"list10", "LIST10"}};
  for (const auto& [sent, answered] : rows) {
    Tell(std::string(":FREQ:MODE ") + sent);
    EXPECT_EQ(answered, Ask(":FREQ:MODE?")) << sent;
  }
  ExpectRefused(":FREQ:MODE LIST11", -224);
  ExpectRefused(":FREQ:MODE FIXE", -224);
  EXPECT_EQ("LIST10", Ask(":FREQ:MODE?"));
}

TEST_F(Parsing, ANumberInTheHeaderOutsideItsRangeIsRefused) {
  ExpectRefused("*CLS;:POW:ALC2:SOUR INT", -114);
  ExpectRefused(":FREQ:F99999999999 1e9", -114);
}

TEST_F(Parsing, TooFewAndTooManyParametersChangeNothing) {
  ExpectRefused(":FREQ", -109);
  ExpectRefused(":FREQ 2e9,3e9", -108);
  ExpectRefused("*CLS 1", -108);
  ExpectRefused(":POW:SPAN:FULL 1", -108);
  EXPECT_EQ("1000000000", Ask(":FREQ?"));
}

TEST_F(Parsing, ACommandIsNoQueryAndAQueryNoCommand) {
  ExpectRefused(":FREQ:SPAN:FULL?", -113);
  ExpectRefused(":OUTP:IMP 50", -113);
  ExpectRefused("*IDN", -113);
}

TEST_F(Parsing, BrokenSyntaxIsNamed) {
  ExpectRefused(":FREQ=5", -101);
  ExpectRefused("@", -101);
  ExpectRefused(":", -102);
  ExpectRefused(":FREQ 5,", -102);
  ExpectRefused(":FREQ 5 5", -103);
  ExpectRefused(":FREQ,5", -103);
  ExpectRefused(":FREQ \"5", -151);
  ExpectRefused(":FREQ #25", -161);
  ExpectRefused(":FREQ #", -161);
  ExpectRefused(":FREQ (1)", -178);
  ExpectRefused(":FREQUENCYANDMORE 5", -112);
}

TEST_F(Parsing, ACommandErrorEndsTheMessageAndAnExecutionErrorOnlyItsUnit) {
  ExpectRefused(":FOO 1;:POW -5", -113);
  EXPECT_EQ("-20", Ask(":POW?"));
  ExpectRefused(":FREQ 9e99;:POW -5", -222);
  EXPECT_EQ("-5", Ask(":POW?"));
}

TEST_F(Parsing, AnswersGivenBeforeAnErrorAreStillSent) {
  EXPECT_EQ("-20", Ask(":POW?;:FOO?"));
  EXPECT_EQ("-113,\"Undefined header;:FOO?\"", Ask(":SYST:ERR?"));
}

scpi::Unit ParseOne(std::string_view text) {
  scpi::Parser parser(scpi::Bytes::Copy(text));
  scpi::Unit unit;
  EXPECT_TRUE(parser.Next(unit));
  return unit;
}

TEST(Strings, BothQuotesWorkAndADoubledQuoteStandsForOne) {
  const auto unit = ParseOne(":X \"say \"\"hi\"\" it's\",'say \"hi\" it''s',\"\"");
  ASSERT_EQ(3U, unit.arguments.size());
  EXPECT_EQ("say \"hi\" it's", unit.arguments[0].text);
  EXPECT_EQ("say \"hi\" it's", unit.arguments[1].text);
  EXPECT_EQ("", unit.arguments[2].text);
}

TEST(Strings, SeparatorsInsideAStringAreText) {
  const auto unit = ParseOne(":X \"a;b,c:d\"");
  ASSERT_EQ(1U, unit.arguments.size());
  EXPECT_EQ("a;b,c:d", unit.arguments[0].text);
}

TEST(Blocks, ADefiniteBlockHoldsAnyByte) {
  const auto unit = ParseOne(std::string_view(":X #14\n\0;\",5", 12));
  ASSERT_EQ(2U, unit.arguments.size());
  EXPECT_EQ(std::string_view("\n\0;\"", 4), unit.arguments[0].block.view);
  EXPECT_EQ(5.0, unit.arguments[1].number);
}

TEST(Blocks, AnIndefiniteBlockTakesTheRestOfTheMessage) {
  const auto unit = ParseOne(":X #0a,b;c");
  ASSERT_EQ(1U, unit.arguments.size());
  EXPECT_EQ("a,b;c", unit.arguments[0].block.view);
}

TEST(Blocks, ABlockMayBeEmpty) {
  const auto unit = ParseOne(":X #10");
  ASSERT_EQ(1U, unit.arguments.size());
  EXPECT_EQ(scpi::Argument::Kind::kBlock, unit.arguments[0].kind);
  EXPECT_TRUE(unit.arguments[0].block.view.empty());
}

}  // namespace
}  // namespace siggen
