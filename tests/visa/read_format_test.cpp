// The read format, against literal bytes.
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "session_fixture.h"

namespace visa_test {
namespace {

// From a text in memory, whose end is the end of the message.
class ReadFormat : public SessionTest {
 protected:
  void SetUp() override { OpenTo(""); }
  template <class... Arguments>
  ViStatus Scan(const char* text, const char* format, Arguments... arguments) {
    return viSScanf(vi, reinterpret_cast<ViConstBuf>(text), format, arguments...);
  }
};

TEST_F(ReadFormat, IntegersInEveryFormOfANumber) {
  const auto scanned = [&](const char* text) {
    ViInt32 value = 4711;
    EXPECT_EQ(VI_SUCCESS, Scan(text, "%ld", &value)) << text;
    return value;
  };
  EXPECT_EQ(5, scanned(" 5\n"));
  EXPECT_EQ(-5, scanned("-5"));
  EXPECT_EQ(5, scanned("+5."));
  EXPECT_EQ(3, scanned("2.5")) << "half rounds up";
  EXPECT_EQ(-3, scanned("-2.5")) << "the sign is left aside";
  EXPECT_EQ(2, scanned("2.49999999999999999999999"));
  EXPECT_EQ(1, scanned(".5"));
  EXPECT_EQ(1200, scanned("1.2E3"));
  EXPECT_EQ(12, scanned("1200e-2"));
  EXPECT_EQ(0, scanned("0"));
  EXPECT_EQ(0, scanned("-0.4"));
  EXPECT_EQ(255, scanned("#HFf"));
  EXPECT_EQ(15, scanned("#q17"));
  EXPECT_EQ(5, scanned("#B101"));
  EXPECT_EQ(std::numeric_limits<ViInt32>::max(), scanned("9.91E37"));
  EXPECT_EQ(std::numeric_limits<ViInt32>::min(), scanned("-99999999999999999999999"));
  EXPECT_EQ(std::numeric_limits<ViInt32>::max(), scanned("1e999999999999999999999"));
}

TEST_F(ReadFormat, EveryWidthOfIntegerIsStoredInItsOwnSize) {
  struct {
    ViInt16 value = 1;
    ViInt16 guard = 0x5A5A;
  } small;
  struct {
    ViInt32 value = 1;
    ViInt32 guard = 0x5A5A5A5A;
  } wide;
  ViInt64 widest = 0;
  ViUInt32 bits = 0;
  EXPECT_EQ(VI_SUCCESS,
            Scan("-7,-8,9223372036854775807,ff", "%hd,%ld,%lld,%x", &small.value, &wide.value, &widest, &bits));
  EXPECT_EQ(-7, small.value);
  EXPECT_EQ(0x5A5A, small.guard);
  EXPECT_EQ(-8, wide.value);
  EXPECT_EQ(0x5A5A5A5A, wide.guard);
  EXPECT_EQ(std::numeric_limits<ViInt64>::max(), widest);
  EXPECT_EQ(255u, bits);
  EXPECT_EQ(VI_SUCCESS, Scan("99999", "%hd", &small.value));
  EXPECT_EQ(32767, small.value);
}

TEST_F(ReadFormat, Reals) {
  double value = 0;
  float single = 0;
  long double wide = 0;
  EXPECT_EQ(VI_SUCCESS, Scan(" -1.25E+3 0.1 1.5", "%lf %f %Lf", &value, &single, &wide));
  EXPECT_EQ(-1250.0, value);
  EXPECT_EQ(0.1F, single);
  EXPECT_EQ(1.5L, wide);
  EXPECT_EQ(VI_SUCCESS, Scan("9.91E37", "%lg", &value));
  EXPECT_EQ(9.91e37, value);
  EXPECT_EQ(VI_SUCCESS, Scan("#HFF", "%le", &value));
  EXPECT_EQ(255.0, value);
  EXPECT_EQ(VI_SUCCESS, Scan("1e400", "%lf", &value));
  EXPECT_EQ(HUGE_VAL, value);
  EXPECT_EQ(VI_SUCCESS, Scan("-1e-400", "%lf", &value));
  EXPECT_EQ(0.0, value);
  EXPECT_TRUE(std::signbit(value));
}

TEST_F(ReadFormat, ANumberEndsBeforeTheFirstByteThatCannotContinueIt) {
  double value = 0;
  char rest[16] = "";
  EXPECT_EQ(VI_SUCCESS, Scan("1.5E dBm", "%lf%15[^\n]", &value, rest));
  EXPECT_EQ(1.5, value);
  EXPECT_STREQ("E dBm", rest);
  EXPECT_EQ(VI_SUCCESS, Scan("2E+X", "%lf%15[^\n]", &value, rest));
  EXPECT_STREQ("E+X", rest);
  EXPECT_EQ(VI_SUCCESS, Scan("1.2.3", "%lf%15[^\n]", &value, rest));
  EXPECT_STREQ(".3", rest);
  ViInt32 digits = 0;
  EXPECT_EQ(VI_SUCCESS, Scan("123456", "%3ld%15[^\n]", &digits, rest));
  EXPECT_EQ(123, digits);
  EXPECT_STREQ("456", rest);
}

TEST_F(ReadFormat, DigitsWithoutEndAreReadToTheLastOne) {
  const std::string many = "0." + std::string(5000, '3') + "," + std::string(3000, '7') + "e-3000,1";
  double third = 0;
  double seven = 0;
  ViInt32 one = 0;
  EXPECT_EQ(VI_SUCCESS, Scan(many.c_str(), "%lf,%lf,%ld", &third, &seven, &one));
  EXPECT_EQ(1.0 / 3.0, third);
  EXPECT_EQ(7.0 / 9.0, seven);
  EXPECT_EQ(1, one);
}

TEST_F(ReadFormat, WhatIsNoNumberDoesNotMatch) {
  double value = 42;
  for (const char* text : {"abc", "NAN", "INF", "-", "+.", ".", "e5", "#X1", "#", "#H", "0x", "\"1\""}) {
    value = 42;
    const ViStatus status = Scan(text, "%lf%*t", &value);
    if (std::strcmp(text, "0x") == 0) {
      EXPECT_EQ(VI_SUCCESS, status);
      EXPECT_EQ(0.0, value);
    } else {
      EXPECT_EQ(VI_ERROR_INV_FMT, status) << text;
      EXPECT_EQ(42.0, value) << text;
    }
  }
}

TEST_F(ReadFormat, ANumberThatNeverCameIsAFailureAndItsVariableStays) {
  ViInt32 first = 0;
  ViInt32 second = 77;
  ViReal64 real = 7.5;
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("1", "%ld,%ld%*t", &first, &second));
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("2\n", "%ld,%ld%*t", &first, &second));
  EXPECT_EQ(2, first);
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("3,\n", "%ld,%ld%*t", &first, &second));
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("\n", "%ld", &second));
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("", "%ld", &second));
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan(" \n", "%lf%*t", &real));
  EXPECT_EQ(77, second);
  EXPECT_EQ(7.5, real);
}

// What nearly every query asks for has a way of its own, which must end where the general one does.
TEST_F(ReadFormat, ANumberAndTheRestOfTheMessage) {
  const auto real = [&](const char* text, const char* format = "%lf%*t") {
    ViReal64 value = 4711;
    EXPECT_EQ(VI_SUCCESS, Scan(text, format, &value)) << text;
    return value;
  };
  EXPECT_EQ(1.5, real("1.5\n"));
  EXPECT_EQ(1.5, real("1.5"));
  EXPECT_EQ(1.5, real("1.5\n", "%lf%*T"));
  EXPECT_EQ(1.5, real("1.5", "%lf%*T"));
  EXPECT_EQ(-2.5, real("-2.5 V, and so on\n"));
  EXPECT_EQ(1.5, real(" +1.5\n"));
  EXPECT_EQ(1.5e9, real("1.5E+9\n"));
  EXPECT_EQ(0.1234567890123456789, real("0.1234567890123456789\n"));
  EXPECT_EQ(0.5, real(".5\n"));
  EXPECT_EQ(10.0, real("#HA\n"));

  const auto integer = [&](const char* text, const char* format = "%ld%*T") {
    ViInt32 value = 4711;
    EXPECT_EQ(VI_SUCCESS, Scan(text, format, &value)) << text;
    return value;
  };
  EXPECT_EQ(12, integer("12\n34\n"));
  EXPECT_EQ(-12, integer("-12;1\n", "%ld%*t"));
  EXPECT_EQ(3, integer("2.5\n"));
  EXPECT_EQ(200, integer("2E2\n"));
  EXPECT_EQ(std::numeric_limits<ViInt32>::max(), integer("99999999999\n"));

  void* const none = nullptr;
  EXPECT_EQ(VI_ERROR_USER_BUF, Scan("1\n", "%lf%*t", none));
  EXPECT_EQ(VI_ERROR_USER_BUF, Scan("1\n", "%ld%*T", none));
}

TEST_F(ReadFormat, NumbersSeparatedByCommasFillAnArray) {
  std::array<ViInt32, 6> longs{};
  EXPECT_EQ(VI_SUCCESS, Scan("1, 2,3", "%,5ld", longs.data()));
  EXPECT_EQ((std::array<ViInt32, 6>{1, 2, 3}), longs);
  std::array<double, 4> reals{};
  int count = 3;
  char rest[8] = "";
  EXPECT_EQ(VI_SUCCESS, Scan("1.5,2.5,3.5,4.5", "%,#lf%7s", &count, reals.data(), rest));
  EXPECT_EQ(3, count);
  EXPECT_EQ((std::array<double, 4>{1.5, 2.5, 3.5}), reals);
  EXPECT_STREQ(",4.5", rest);
  count = 4;
  EXPECT_EQ(VI_SUCCESS, Scan("7\n", "%,#lf", &count, reals.data()));
  EXPECT_EQ(1, count);
  count = 4;
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("8,x", "%,#lf", &count, reals.data()));
  EXPECT_EQ(1, count);
  EXPECT_EQ(8.0, reals[0]);
}

TEST_F(ReadFormat, WordsStopAtWhiteSpaceAndDropWhatDoesNotFit) {
  std::array<char, 8> text;
  const auto scan = [&](const char* from, const char* format) {
    text.fill('#');
    EXPECT_EQ(VI_SUCCESS, Scan(from, format, text.data()));
    return std::string(text.data(), text.size());
  };
  EXPECT_EQ(std::string("abc\0####", 8), scan("  abc def", "%s"));
  EXPECT_EQ(std::string("abc\0####", 8), scan("abcdef\n", "%4s"));
  EXPECT_EQ(std::string("\0#######", 8), scan("abcdef\n", "%1s"));
  EXPECT_EQ(std::string("a#######", 8), scan("abc", "%c"));
  EXPECT_EQ(std::string(" \nb#####", 8), scan(" \nbc", "%3c"));
  int size = 4;
  std::array<char, 4> word{};
  char next = 0;
  EXPECT_EQ(VI_SUCCESS, Scan("abcdef x", "%#s%*c%c", &size, word.data(), &next));
  EXPECT_EQ(3, size);
  EXPECT_STREQ("abc", word.data());
  EXPECT_EQ('x', next);
  size = 0;
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("abc", "%#s", &size, word.data()));
}

TEST_F(ReadFormat, ScanSets) {
  const auto scan = [&](const char* from, const char* format) {
    std::array<char, 32> text{"untouched"};
    EXPECT_EQ(VI_SUCCESS, Scan(from, format, text.data())) << format;
    return std::string(text.data());
  };
  EXPECT_EQ("abc", scan("abcd", "%[a-c]"));
  EXPECT_EQ("a-b", scan("a-b.", "%[a-b-]"));
  EXPECT_EQ("]x", scan("]xy", "%[]x]"));
  EXPECT_EQ("xy", scan("xy]z", "%[^]]"));
  EXPECT_EQ("a,b", scan("a,b\nc", "%[^\n]"));
  EXPECT_EQ("a,b", scan("a,b\nc", "%[^\\n]"));
  EXPECT_EQ(" ab", scan(" ab,", "%[^,]")) << "white space is not skipped";
  EXPECT_EQ("ab", scan("abc,", "%3[^,]")) << "the width counts the terminator";
  EXPECT_EQ("", scan("abc", "%[0-9]")) << "no match is an empty text";
  EXPECT_EQ("last", scan("last\n", "%[^,]")) << "the line feed that ends the message is no part of a field";
  EXPECT_EQ("a\nb", scan("a\nb\n", "%[^,]"));
  EXPECT_EQ("abc", scan("abc", "%[^,]"));
  EXPECT_EQ("untouched", scan("abc", "%*[a-z]%[^,]"));
}

TEST_F(ReadFormat, CountedSetsTellHowManyCharactersTheyStored) {
  std::array<char, 8> text;
  text.fill('#');
  int size = 4;
  EXPECT_EQ(VI_SUCCESS, Scan("abcdef\n", "%#[^\n]%*t", &size, text.data()));
  EXPECT_EQ(3, size);
  EXPECT_EQ(std::string("abc\0####", 8), std::string(text.data(), text.size()));
  size = 8;
  EXPECT_EQ(VI_SUCCESS, Scan("\n", "%#[^\n]%*t", &size, text.data()));
  EXPECT_EQ(0, size);
  EXPECT_STREQ("", text.data());
}

TEST_F(ReadFormat, LinesAndMessages) {
  std::array<char, 32> text{};
  EXPECT_EQ(VI_SUCCESS, Scan("one\ntwo\n", "%T", text.data()));
  EXPECT_STREQ("one\n", text.data());
  EXPECT_EQ(VI_SUCCESS, Scan("one\ntwo\n", "%t", text.data()));
  EXPECT_STREQ("one\ntwo\n", text.data());
  EXPECT_EQ(VI_SUCCESS, Scan("one\ntwo\n", "%*T%3T", text.data()));
  EXPECT_STREQ("tw", text.data());
  int size = 5;
  EXPECT_EQ(VI_SUCCESS, Scan("one\ntwo\n", "%#t", &size, text.data()));
  EXPECT_EQ(4, size);
  EXPECT_STREQ("one\n", text.data());
}

TEST_F(ReadFormat, LiteralsAndTheCountOfBytes) {
  ViInt32 value = 0;
  ViInt32 count = 0;
  EXPECT_EQ(VI_SUCCESS, Scan("A=5%", "A=%ld%%%n", &value, &count));
  EXPECT_EQ(5, value);
  EXPECT_EQ(0, count) << "the message has ended before";
  EXPECT_EQ(VI_SUCCESS, Scan("A=6 ", " A = %ld%n", &value, &count));
  EXPECT_EQ(6, value);
  EXPECT_EQ(3, count);
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("B=7", "A=%ld", &value));
  EXPECT_EQ(6, value);
}

TEST_F(ReadFormat, Blocks) {
  std::array<ViByte, 8> bytes;
  bytes.fill('#');
  ViInt32 count = 8;
  EXPECT_EQ(VI_SUCCESS, Scan("#13abc\n", "%#b", &count, bytes.data()));
  EXPECT_EQ(3, count);
  EXPECT_EQ(0, std::memcmp("abc#####", bytes.data(), 8));
  count = 2;
  char rest[4] = "";
  EXPECT_EQ(VI_SUCCESS, Scan("#15vwxyz,1", "%#b%3s", &count, bytes.data(), rest));
  EXPECT_EQ(2, count);
  EXPECT_EQ(0, std::memcmp("vwc#####", bytes.data(), 8));
  EXPECT_STREQ(",1", rest) << "what the array cannot hold is dropped";
  count = 8;
  EXPECT_EQ(VI_SUCCESS, Scan("#0ab\ncd\n", "%#b", &count, bytes.data()));
  EXPECT_EQ(5, count);
  EXPECT_EQ(0, std::memcmp("ab\ncd###", bytes.data(), 8));
  std::array<ViInt16, 2> shorts{};
  count = 2;
  EXPECT_EQ(VI_SUCCESS, Scan("#14ABCD", "%#hb", &count, shorts.data()));
  EXPECT_EQ(2, count);
  EXPECT_EQ(0x4142, shorts[0]);
  EXPECT_EQ(0x4344, shorts[1]);
  EXPECT_EQ(VI_SUCCESS, Scan("ABCD", "%2!olhy", shorts.data()));
  EXPECT_EQ(0x4241, shorts[0]);
  count = 8;
  EXPECT_EQ(VI_SUCCESS, Scan("#10", "%#b", &count, bytes.data()));
  EXPECT_EQ(0, count);
  EXPECT_EQ(VI_SUCCESS, Scan("#13abc,5", "%*b,%ld", &count));
  EXPECT_EQ(5, count);
}

TEST_F(ReadFormat, FalseBlocksWriteNothingBeyondWhatCame) {
  std::array<ViByte, 4> bytes{};
  for (const char* text : {"abc", "#", "#x12", "#2x1", "#", "#3", "#15abc", "#9999999999ab"}) {
    ViInt32 count = 4;
    const ViStatus status = Scan(text, "%#b", &count, bytes.data());
    EXPECT_EQ(VI_ERROR_INV_FMT, status) << text;
    EXPECT_LE(count, 3) << text;
  }
  ViInt32 negative = -1;
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("#13abc", "%#b", &negative, bytes.data()));
}

TEST_F(ReadFormat, BadDirectivesAndNullTargetsAreRefused) {
  ViInt32 value = 5;
  for (const char* bad :
       {"%", "%q", "%[abc", "%,d", "%,3s", "%hf", "%Ld", "%b", "%0s", "%*#s", "%@1d", "%B", "%.3d", "%#n", "%3n"}) {
    EXPECT_EQ(VI_ERROR_INV_FMT, Scan("1", bad, &value, &value)) << bad;
  }
  void* const none = nullptr;
  EXPECT_EQ(VI_ERROR_USER_BUF, Scan("1", "%d", none));
  EXPECT_EQ(VI_ERROR_USER_BUF, Scan("1", "%s", none));
  EXPECT_EQ(VI_ERROR_USER_BUF, Scan("#11a", "%5b", none));
  EXPECT_EQ(VI_ERROR_INV_FMT, Scan("1", nullptr));
  EXPECT_EQ(VI_ERROR_USER_BUF, viSScanf(vi, nullptr, "%d", &value));
  EXPECT_EQ(5, value);
}

// Over the wire: the same engine, and what only a stream can show.
class Query : public SessionTest {};

TEST_F(Query, WritesTakesTheAnswerAndLeavesNothing) {
  Open([](Connection& c) {
    EXPECT_EQ("*IDN?\n", c.Line());
    c.Send("Maker,Model,12345,1.0\n");
    EXPECT_EQ(":LIST3:IND? 7\n", c.Line());
    c.Send("-2.5E3;more\n");
    EXPECT_EQ(":NEXT?\n", c.Line());
    c.Send("8\n");
    c.WaitForClose();
  });
  std::array<std::array<char, 256>, 4> fields{};
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "*IDN?\n", "%256[^,],%256[^,],%256[^,],%256[^,]%*T", fields[0].data(),
                                 fields[1].data(), fields[2].data(), fields[3].data()));
  EXPECT_STREQ("Maker", fields[0].data());
  EXPECT_STREQ("1.0", fields[3].data());
  double value = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, ":LIST%ld:IND? %ld\n", "%lf", ViInt32{3}, ViInt32{7}, &value));
  EXPECT_EQ(-2500.0, value);
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, ":NEXT?\n", "%ld%*t", &number)) << "what the last scan left is dropped";
  EXPECT_EQ(8, number);
}

TEST_F(Query, FewerFieldsThanAskedForLeaveTheRestAlone) {
  OpenToAnswer("Maker,Model\n");
  std::array<std::array<char, 256>, 3> fields{};
  std::strcpy(fields[2].data(), "before");
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "*IDN?\n", "%256[^,],%256[^,],%256[^,]%*T", fields[0].data(), fields[1].data(),
                                 fields[2].data()));
  EXPECT_STREQ("Model", fields[1].data());
  EXPECT_STREQ("before", fields[2].data());
}

TEST_F(Query, ALineEndLeftBehindABlockIsNotTheNextNumbersAnswer) {
  OpenToAnswer("\n42\n");
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "COUNT?\n", "%ld%*t", &number));
  EXPECT_EQ(42, number);
}

TEST_F(Query, AnEmptyLineIsNoNumber) {
  OpenToAnswer("\n");
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, 50));
  ViReal64 number = 7.5;
  EXPECT_EQ(VI_ERROR_TMO, viQueryf(vi, "LEVEL?\n", "%lf%*t", &number));
  EXPECT_EQ(7.5, number);
}

TEST_F(Query, AFieldIsCutAtItsWidthAndTheRestOfTheLineGoes) {
  Open([](Connection& c) {
    c.Line();
    c.Send(std::string(100000, 'x') + "\n");
    c.Line();
    c.Send("ok\n");
    c.WaitForClose();
  });
  std::array<char, 20> text;
  text.fill('#');
  ViInt32 size = 16;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "?\n", "%#[^\n]%*t", &size, text.data()));
  EXPECT_EQ(15, size);
  EXPECT_EQ(std::string(15, 'x') + std::string("\0####", 5), std::string(text.data(), text.size()));
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "?\n", "%15s%*t", text.data()));
  EXPECT_STREQ("ok", text.data());
}

TEST_F(Query, AnAnswerInDropsIsPutTogether) {
  Open([](Connection& c) {
    c.Line();
    for (const char part : std::string("-12.5E+1,77\n")) c.Send({&part, 1});
    c.WaitForClose();
  });
  double value = 0;
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "?\n", "%lf,%ld%*t", &value, &number));
  EXPECT_EQ(-125.0, value);
  EXPECT_EQ(77, number);
}

TEST_F(Query, ARestOfAnUnfinishedAnswerIsReadToItsEndBeforeTheNextQuestion) {
  Open([](Connection& c) {
    EXPECT_EQ("a?\n", c.Line());
    c.Send("1;2;");
    c.Send("3;4\n");
    EXPECT_EQ("b?\n", c.Line());
    c.Send("5\n");
    c.WaitForClose();
  });
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "a?\n", "%ld", &number));
  EXPECT_EQ(1, number);
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "b?\n", "%ld%*t", &number));
  EXPECT_EQ(5, number);
}

TEST_F(Query, WithoutATerminationCharacterTheAnswerIsTakenAsItComes) {
  OpenToAnswer("42\n");
  viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, VI_FALSE);
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "?\n", "%ld", &number));
  EXPECT_EQ(42, number);
}

TEST_F(Query, TheRestOfALineLeavesTheNextLine) {
  OpenTo("12 and so on\n34\n");
  viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, VI_FALSE);
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%ld%*T", &number));
  EXPECT_EQ(12, number);
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%ld%*T", &number));
  EXPECT_EQ(34, number);
}

TEST_F(Query, ReadsAndQueriesShareTheStream) {
  Open([](Connection& c) {
    c.Line();
    c.Send("1\n2\n3\n4\n");
    c.WaitForClose();
  });
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "go\n"));
  char line[8] = "";
  ViUInt32 received = 0;
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, viRead(vi, reinterpret_cast<ViPBuf>(line), 8, &received));
  EXPECT_EQ('1', line[0]);
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%ld%*t", &number));
  EXPECT_EQ(2, number);
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, viRead(vi, reinterpret_cast<ViPBuf>(line), 8, &received));
  EXPECT_EQ('3', line[0]);
  EXPECT_EQ(VI_SUCCESS, viFlush(vi, VI_IO_IN_BUF_DISCARD));
}

TEST_F(Query, WhiteSpaceLeftByAnEarlierScanDoesNotEndTheNext) {
  OpenTo("1\n2\n");
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%ld", &number));
  EXPECT_EQ(1, number);
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%ld", &number));
  EXPECT_EQ(2, number);
}

TEST_F(Query, ABlockWithLineFeedsInsideArrivesWholeAndInStep) {
  std::string bytes(200000, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 2654435761u >> 13);
  bytes.back() = '\n';
  Open([bytes](Connection& c) {
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ("DATA?\n", c.Line());
      c.Send("#6200000" + bytes);
      c.Send("\n");
    }
    EXPECT_EQ("N?\n", c.Line());
    c.Send("7\n");
    c.WaitForClose();
  });
  for (int i = 0; i < 2; ++i) {
    std::string taken(bytes.size() + 10, '#');
    auto count = static_cast<ViInt32>(taken.size());
    EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "DATA?\n", "%#b", &count, taken.data()));
    EXPECT_EQ(static_cast<ViInt32>(bytes.size()), count);
    EXPECT_TRUE(taken == bytes + std::string(10, '#'));
  }
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "N?\n", "%ld%*t", &number)) << "the block's line feed is no answer";
  EXPECT_EQ(7, number);
}

TEST_F(Query, ALyingBlockHeaderEndsWithTheTimeout) {
  OpenToAnswer("#9999999999abc\n");
  Timeout(60);
  std::array<ViByte, 16> bytes;
  bytes.fill('#');
  ViInt32 count = 8;
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, viQueryf(vi, "?\n", "%#b", &count, bytes.data()));
  EXPECT_LE(watch.OwnMilliseconds(), 160);
  EXPECT_EQ(0, std::memcmp("abc\n####", bytes.data(), 8));
}

TEST_F(Query, ASilentInstrumentCostsTheTimeoutOnce) {
  OpenTo("");
  Timeout(60);
  ViInt32 number = 5;
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, viQueryf(vi, "?\n", "%ld%*t", &number));
  EXPECT_GE(watch.Milliseconds(), 59);
  EXPECT_LE(watch.OwnMilliseconds(), 160);
  EXPECT_EQ(5, number);
}

TEST_F(Query, ANumberWithoutItsTerminatorIsNoAnswer) {
  OpenToAnswer("12");
  Timeout(60);
  ViInt32 number = 5;
  EXPECT_EQ(VI_ERROR_TMO, viQueryf(vi, "?\n", "%ld%*t", &number));
  EXPECT_EQ(5, number);
}

TEST_F(Query, AFloodWithoutLineFeedEndsWithTheTimeout) {
  Open([](Connection& c) {
    const std::string flood(1 << 16, 'x');
    for (int i = 0; i < 100000 && c.Silent(); ++i) c.Send(flood);
  });
  Timeout(60);
  char word[4] = "";
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, viScanf(vi, "%4s%*t", word));
  EXPECT_LE(watch.OwnMilliseconds(), 160);
  EXPECT_STREQ("xxx", word);
}

TEST_F(Query, APeerThatLeavesInMidAnswerIsALostConnection) {
  Open([](Connection& c) {
    c.Line();
    c.Send("12,3");
  });
  ViInt32 first = 0;
  ViInt32 second = 9;
  EXPECT_EQ(VI_ERROR_CONN_LOST, viQueryf(vi, "?\n", "%ld,%ld%*t", &first, &second));
  EXPECT_EQ(12, first);
  EXPECT_EQ(9, second);
}

TEST_F(Query, AnAnswerThatDoesNotMatchIsGoneBeforeTheNextQuestion) {
  Open([](Connection& c) {
    c.Line();
    c.Send("ERROR\n");
    c.Line();
    c.Send("3\n");
    c.WaitForClose();
  });
  ViInt32 number = 5;
  EXPECT_EQ(VI_ERROR_INV_FMT, viQueryf(vi, "?\n", "%ld%*t", &number));
  EXPECT_EQ(5, number);
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "?\n", "%ld%*t", &number));
  EXPECT_EQ(3, number);
}

TEST_F(Query, AFailedWriteFormatAsksNothing) {
  Open([](Connection& c) { EXPECT_EQ("", c.Line()); });
  ViInt32 number = 5;
  EXPECT_EQ(VI_ERROR_INV_FMT, viQueryf(vi, "%q?\n", "%ld%*t", &number));
  EXPECT_EQ(VI_ERROR_INV_FMT, viQueryf(vi, nullptr, "%ld%*t", &number));
  EXPECT_EQ(VI_ERROR_INV_FMT, viQueryf(vi, "x\n", nullptr));
  CloseAll();
}

TEST_F(Query, BufferedReadsTakeWhatAScanLeft) {
  OpenTo("12 abc\ndef\n");
  ViInt32 number = 0;
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%ld", &number));
  char text[16] = "";
  ViUInt32 received = 0;
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, viBufRead(vi, reinterpret_cast<ViPBuf>(text), 2, &received));
  EXPECT_EQ(" a", std::string(text, received));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, viBufRead(vi, reinterpret_cast<ViPBuf>(text), 16, &received));
  EXPECT_EQ("bc\n", std::string(text, received));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, viBufRead(vi, reinterpret_cast<ViPBuf>(text), 16, &received));
  EXPECT_EQ("def\n", std::string(text, received));
}

TEST_F(Query, AReadBufferOfOneByteReadsTheSame) {
  OpenToAnswer("1.5E2,Word,#13a\nb\n");
  EXPECT_EQ(VI_SUCCESS, viSetBuf(vi, VI_READ_BUF, 1));
  double value = 0;
  std::array<char, 8> word{};
  std::array<ViByte, 4> bytes{};
  ViInt32 count = 4;
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi, "?\n", "%lf,%8[^,],%#b%*t", &value, word.data(), &count, bytes.data()));
  EXPECT_EQ(150.0, value);
  EXPECT_STREQ("Word", word.data());
  EXPECT_EQ(3, count);
  EXPECT_EQ(0, std::memcmp("a\nb", bytes.data(), 3));
}

}  // namespace
}  // namespace visa_test
