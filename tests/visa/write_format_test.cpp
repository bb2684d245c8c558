// The write format, against literal bytes.
#include <array>
#include <limits>
#include <vector>

#include "DecimalComma.h"
#include "session_fixture.h"

namespace visa_test {
namespace {

class WriteFormat : public SessionTest {
 protected:
  void SetUp() override { OpenTo(""); }

  template <class... Arguments>
  std::string Text(const char* format, Arguments... arguments) {
    std::string buffer(4096, '\xEE');
    const ViStatus status = viSPrintf(vi, reinterpret_cast<ViPBuf>(buffer.data()), format, arguments...);
    EXPECT_EQ(VI_SUCCESS, status) << format;
    const std::size_t end = buffer.find('\xEE');
    EXPECT_EQ('\0', buffer[end - 1]);
    return buffer.substr(0, end - 1);
  }
  template <class... Arguments>
  ViStatus Status(const char* format, Arguments... arguments) {
    std::array<ViByte, 4096> buffer{};
    return viSPrintf(vi, buffer.data(), format, arguments...);
  }
};

TEST_F(WriteFormat, EscapesAndControlCharactersAreSentAsWhatTheyMean) {
  EXPECT_EQ("a\nb", Text("a\nb"));
  EXPECT_EQ("a\nb", Text("a\\nb"));
  EXPECT_EQ("\r\t\"\\A%", Text("\\r\\t\\\"\\\\\\101%%"));
  EXPECT_EQ("\\", Text("\\"));
  EXPECT_EQ("", Text(""));
}

TEST_F(WriteFormat, Integers) {
  EXPECT_EQ("-5", Text("%ld", ViInt32{-5}));
  EXPECT_EQ("  12", Text("%4ld", ViInt32{12}));
  EXPECT_EQ("12345", Text("%4ld", ViInt32{12345}));
  EXPECT_EQ("12  |", Text("%-4d|", 12));
  EXPECT_EQ("0012", Text("%04d", 12));
  EXPECT_EQ("+0012", Text("%+.4d", 12));
  EXPECT_EQ(" 12", Text("% d", 12));
  EXPECT_EQ("", Text("%.0d", 0));
  EXPECT_EQ("-2147483648", Text("%ld", std::numeric_limits<ViInt32>::min()));
  EXPECT_EQ("-9223372036854775808", Text("%lld", std::numeric_limits<ViInt64>::min()));
  EXPECT_EQ("4294967295", Text("%lu", ViUInt32{4294967295}));
  EXPECT_EQ("18446744073709551615", Text("%llu", std::numeric_limits<ViUInt64>::max()));
  EXPECT_EQ("-1", Text("%hd", 0xFFFF));
  EXPECT_EQ("65535", Text("%hu", 0xFFFF));
  EXPECT_EQ("ff", Text("%x", 255));
  EXPECT_EQ("0XFF", Text("%#X", 255));
  EXPECT_EQ("0", Text("%#x", 0));
  EXPECT_EQ("ffffffff", Text("%lx", ViInt32{-1}));
  EXPECT_EQ("017", Text("%#o", 15));
  EXPECT_EQ("    7", Text("%*i", 5, 7));
  EXPECT_EQ("7    |", Text("%*i|", -5, 7));
}

TEST_F(WriteFormat, AnArgumentOf32BitsIsReadAsSuchWhateverStandsInItsUpperHalf) {
  EXPECT_EQ("1,2,3",
            Text("%ld,%ld,%ld", ViInt64{0x7777777700000001}, ViInt64{0x7777777700000002}, ViInt64{0x7777777700000003}));
}

TEST_F(WriteFormat, Reals) {
  EXPECT_EQ("2.5", Text("%0.15lg", 2.5));
  EXPECT_EQ("1000000000", Text("%0.15lg", 1e9));
  EXPECT_EQ("1e+20", Text("%0.15lg", 1e20));
  EXPECT_EQ("1e+15", Text("%0.15lg", 999999999999999.9));
  EXPECT_EQ("0.0001", Text("%0.15lg", 1e-4));
  EXPECT_EQ("1e-05", Text("%0.15lg", 1e-5));
  EXPECT_EQ("0", Text("%0.15lg", 0.0));
  EXPECT_EQ("-0", Text("%0.15lg", -0.0));
  EXPECT_EQ("0.1", Text("%0.15lg", 0.1));
  EXPECT_EQ("0.10000000000000001", Text("%.17g", 0.1));
  EXPECT_EQ("-12.345000", Text("%f", -12.345));
  EXPECT_EQ("2", Text("%.0f", 2.5));
  EXPECT_EQ("4", Text("%.0f", 3.5));
  EXPECT_EQ("4.", Text("%#.0f", 3.5));
  EXPECT_EQ("  1.50|1.50  |001.50", Text("%6.2f|%-6.2f|%06.2f", 1.5, 1.5, 1.5));
  EXPECT_EQ("+1.5e+00", Text("%+.1e", 1.5));
  EXPECT_EQ("1.500000E-07", Text("%E", 1.5e-7));
  EXPECT_EQ("1.50000", Text("%#g", 1.5));
  EXPECT_EQ("1E+10", Text("%G", 1e10));
  EXPECT_EQ("1.5", Text("%Lg", 1.5L));
  EXPECT_EQ("  inf", Text("%05f", std::numeric_limits<double>::infinity()));
  EXPECT_EQ("-INF", Text("%G", -std::numeric_limits<double>::infinity()));
  EXPECT_EQ(309u + 1 + 20, Text("%.20f", 1.7976931348623157e308).size());
}

TEST_F(WriteFormat, TheFormsOfThe4882Standard) {
  EXPECT_EQ("3", Text("%@1f", 2.9));
  EXPECT_EQ("007", Text("%@1.3d", 7));
  EXPECT_EQ("12.0", Text("%@2.1d", 12));
  EXPECT_EQ("1.250000", Text("%@2f", 1.25));
  EXPECT_EQ("1.2E+03", Text("%@3.1f", 1234.0));
  EXPECT_EQ("1.23E+02", Text("%@3.2d", 123));
  EXPECT_EQ("#HFF", Text("%@Hd", 255));
  EXPECT_EQ("#Q17", Text("%@Qd", 15));
  EXPECT_EQ("#B101", Text("%@Bd", 5));
  EXPECT_EQ(" #H00FF", Text("%@H7.4d", 255));
  EXPECT_EQ("#HFFFF", Text("%@Hhd", -1));
  EXPECT_EQ("#H10", Text("%@Hf", 16.4));
}

TEST_F(WriteFormat, Texts) {
  EXPECT_EQ("[abc]", Text("[%s]", "abc"));
  EXPECT_EQ("[  abc]", Text("[%5s]", "abc"));
  EXPECT_EQ("[abc  ]", Text("[%-5s]", "abc"));
  EXPECT_EQ("[ab]", Text("[%.2s]", "abc"));
  EXPECT_EQ("[ab]", Text("[%.*s]", 2, "abc"));
  EXPECT_EQ("[x]", Text("[%c]", 'x'));
  EXPECT_EQ("0x1f", Text("%p", reinterpret_cast<void*>(0x1f)));
  ViInt32 count = 0;
  EXPECT_EQ("12345", Text("123%n45", &count));
  EXPECT_EQ(3, count);
}

TEST_F(WriteFormat, ArraysGoOutWithCommasBetween) {
  const std::array<ViReal64, 2> reals{1, 2.5};
  EXPECT_EQ("1.000000000000000,2.500000000000000", Text("%0.15,*lf", ViInt32{2}, reals.data()));
  EXPECT_EQ(":L \n", Text(":L %0.15,*lf\n", ViInt32{0}, reals.data()));
  EXPECT_EQ("   1.0,   2.5", Text("%6.1,2lf", reals.data()));
  const std::array<ViReal64, 4> mixed{1, 1e19, -2, -1e19};
  EXPECT_EQ("1.0,10000000000000000000.0,-2.0,-10000000000000000000.0", Text("%.1,4lf", mixed.data()));
  const std::array<ViInt32, 3> longs{1, -2, 3};
  EXPECT_EQ("1,-2,3", Text("%,3ld", longs.data()));
  const std::array<ViInt16, 2> shorts{-1, 2};
  EXPECT_EQ("-1,2", Text("%,*hd", 2, shorts.data()));
  const std::array<ViReal32, 2> singles{0.5F, 4};
  EXPECT_EQ("0.5,4", Text("%,2g", singles.data()));
  const std::array<ViInt64, 2> wide{1LL << 40, 2};
  EXPECT_EQ("1099511627776,2", Text("%,2lld", wide.data()));
}

TEST_F(WriteFormat, Blocks) {
  const ViByte bytes[] = "abcdefghijklmno";
  EXPECT_EQ("#15abcde\n", Text("%*b\n", 5, bytes));
  EXPECT_EQ("#212abcdefghijkl", Text("%12b", bytes));
  EXPECT_EQ("#10", Text("%*b", 0, bytes));
  EXPECT_EQ("#0abc\n", Text("%*B", 3, bytes));
  EXPECT_EQ("<abc>", Text("<%*y>", 3, bytes));
  const std::array<ViUInt16, 2> shorts{0x4142, 0x4344};
  EXPECT_EQ("#14ABCD", Text("%*hb", 2, shorts.data()));
  EXPECT_EQ("BADC", Text("%*!olhy", 2, shorts.data()));
  const std::array<ViUInt32, 1> longs{0x41424344};
  EXPECT_EQ("#14ABCD", Text("%*lb", 1, longs.data()));
  const std::array<ViReal32, 1> single{1.0F};
  EXPECT_EQ(std::string("#14\x3F\x80\0\0", 7), Text("%*zb", 1, single.data()));
  const std::array<ViReal64, 1> real{1.0};
  EXPECT_EQ(std::string("#18\x3F\xF0\0\0\0\0\0\0", 11), Text("%*Zb", 1, real.data()));
}

TEST_F(WriteFormat, BadDirectivesAreRefused) {
  for (const char* bad : {"%", "%q", "%5", "%l", "%,d", "%,5s", "%@Xd", "%@1s", "%hf", "%Ld", "%lls", "%b", "%.3*b",
                          "%-5b", "%!ob5b", "%t", "%[a]", "%99999999999d"}) {
    EXPECT_EQ(VI_ERROR_INV_FMT, Status(bad, 1, 2, 3)) << bad;
  }
  EXPECT_EQ(VI_ERROR_INV_FMT, Status("%*b", -1, "x"));
  EXPECT_EQ(VI_ERROR_INV_FMT, Status("%,*d", -1, "x"));
  EXPECT_EQ(VI_ERROR_INV_FMT, viSPrintf(vi, reinterpret_cast<ViPBuf>(this), nullptr));
  EXPECT_EQ(VI_ERROR_USER_BUF, viSPrintf(vi, nullptr, "x"));
  const char* const none = nullptr;
  EXPECT_EQ(VI_ERROR_USER_BUF, Status("%s", none));
  EXPECT_EQ(VI_ERROR_USER_BUF, Status("%*b", 1, none));
  EXPECT_EQ(VI_ERROR_USER_BUF, Status("%,1d", none));
}

TEST_F(WriteFormat, TheProcessLocaleChangesNoDigit) {
  const kvtd::test::DecimalComma comma;
  ASSERT_TRUE(comma.InForce());
  EXPECT_EQ("1234567.5,1.5e+30,1234567,1.5", Text("%.1f,%g,%d,%Lg", 1234567.5, 1.5e30, 1234567, 1.5L));
  EXPECT_EQ("2.5|0.1|1e-05", Text("%0.15lg|%0.15lg|%0.15lg", 2.5, 0.1, 1e-5));
  const std::array<ViReal64, 2> reals{1, 2.5};
  EXPECT_EQ("1.000000000000000,2.500000000000000", Text("%0.15,*lf", ViInt32{2}, reals.data()));
}

class WireFormat : public SessionTest {};

TEST_F(WireFormat, ALineFeedSendsTheMessageAndTheRestWaits) {
  Open([](Connection& c) {
    EXPECT_EQ("one\n", c.Line());
    EXPECT_EQ("two three\n", c.Line());
    c.Send("done\n");
    c.WaitForClose();
  });
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "one\ntwo"));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, " three"));
  EXPECT_EQ(VI_SUCCESS, viFlush(vi, VI_WRITE_BUF_DISCARD | VI_READ_BUF_DISCARD));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "two three\n"));
  char word[8] = "";
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%8s%*t", word));
  EXPECT_STREQ("done", word);
}

TEST_F(WireFormat, TheProcessLocaleChangesNoDigitOnTheWire) {
  Open([](Connection& c) {
    EXPECT_EQ("1.5,-0.25,2.500000000000000,1e-05\n", c.Line());
    c.Send("1.5,-2.5e-3,12345678901234567890.5,0.000244140625,7.25\n");
    c.WaitForClose();
  });
  const kvtd::test::DecimalComma comma;
  ASSERT_TRUE(comma.InForce());
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "%0.15lg,%g,%.15f,%Lg\n", 1.5, -0.25, 2.5, 1e-5L));
  std::array<ViReal64, 4> reals{};
  ViReal32 single = 0;
  ViInt32 count = 4;
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%,#lf,%f%*t", &count, reals.data(), &single));
  EXPECT_EQ(4, count);
  EXPECT_EQ((std::array<ViReal64, 4>{1.5, -0.0025, 12345678901234567890.5, 0.000244140625}), reals);
  EXPECT_EQ(7.25F, single);
}

TEST_F(WireFormat, AFlushSendsWhatHasNoLineFeed) {
  Open([](Connection& c) {
    EXPECT_EQ("half", c.Bytes(4));
    EXPECT_EQ("always", c.Bytes(6));
    c.Send("ok\n");
    c.WaitForClose();
  });
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "half"));
  EXPECT_EQ(VI_SUCCESS, viFlush(vi, VI_WRITE_BUF));
  EXPECT_EQ(VI_SUCCESS, viFlush(vi, VI_WRITE_BUF));
  EXPECT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_WR_BUF_OPER_MODE, VI_FLUSH_ON_ACCESS));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "always"));
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%*t"));
}

TEST_F(WireFormat, NothingOfABadMessageIsSent) {
  Open([](Connection& c) {
    EXPECT_EQ("kept good\n", c.Line());
    EXPECT_EQ("", c.Line());
  });
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "kept "));
  EXPECT_EQ(VI_ERROR_INV_FMT, viPrintf(vi, "bad %q\n"));
  EXPECT_EQ(VI_ERROR_INV_FMT, viPrintf(vi, "first\nsecond %q\n"));
  const char* const none = nullptr;
  EXPECT_EQ(VI_ERROR_USER_BUF, viPrintf(vi, "name %s\n", none));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "good\n"));
  CloseAll();
}

TEST_F(WireFormat, FlushMasksAreChecked) {
  OpenTo("");
  for (const int mask : {0, VI_READ_BUF | VI_READ_BUF_DISCARD, VI_WRITE_BUF | VI_WRITE_BUF_DISCARD,
                         VI_IO_IN_BUF | VI_IO_IN_BUF_DISCARD, VI_IO_OUT_BUF | VI_IO_OUT_BUF_DISCARD, 256}) {
    EXPECT_EQ(VI_ERROR_INV_MASK, viFlush(vi, static_cast<ViUInt16>(mask))) << mask;
  }
  EXPECT_EQ(VI_SUCCESS, viFlush(vi, VI_READ_BUF | VI_WRITE_BUF | VI_IO_IN_BUF_DISCARD | VI_IO_OUT_BUF));
  EXPECT_EQ(VI_ERROR_INV_MASK, viSetBuf(vi, VI_READ_BUF_DISCARD, 100));
  EXPECT_EQ(VI_WARN_NSUP_BUF, viSetBuf(vi, VI_IO_IN_BUF, 100));
  EXPECT_EQ(VI_WARN_NSUP_BUF, viSetBuf(vi, VI_READ_BUF, 0));
  EXPECT_EQ(VI_ERROR_ALLOC, viSetBuf(vi, VI_READ_BUF, 0xFFFFFFFF));
  EXPECT_EQ(VI_SUCCESS, viSetBuf(vi, VI_READ_BUF | VI_WRITE_BUF, 100));
  ViUInt32 size = 0;
  EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi, VI_ATTR_RD_BUF_SIZE, &size));
  EXPECT_EQ(100u, size);
  EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi, VI_ATTR_WR_BUF_SIZE, &size));
  EXPECT_EQ(100u, size);
}

TEST_F(WireFormat, ASmallWriteBufferKeepsBytesAndOrder) {
  Open([](Connection& c) {
    EXPECT_EQ("0123456789abcdefghij,1,2,3,42.500000000000000\n", c.Line());
    c.Send("ok\n");
    c.WaitForClose();
  });
  EXPECT_EQ(VI_SUCCESS, viSetBuf(vi, VI_WRITE_BUF, 8));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "0123456789%s,%d,%d,%d,%.15f\n", "abcdefghij", 1, 2, 3, 42.5));
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%*t"));
}

TEST_F(WireFormat, BufferedWritesWaitForTheFlush) {
  Open([](Connection& c) {
    EXPECT_EQ("raw and formatted\n", c.Line());
    c.Send("ok\n");
    c.WaitForClose();
  });
  ViUInt32 written = 0;
  EXPECT_EQ(VI_SUCCESS, viBufWrite(vi, reinterpret_cast<ViConstBuf>("raw and "), 8, &written));
  EXPECT_EQ(8u, written);
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "formatted\n"));
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%*t"));
}

TEST_F(WireFormat, LargeBlocksArriveWholeAroundTheirText) {
  std::string bytes(3 << 20, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 2654435761u >> 13);
  const std::string expected = ":MMEM:DATA \"f\",\"x\",#73145728" + bytes + "\n";
  Open([expected](Connection& c) {
    EXPECT_TRUE(expected == c.Bytes(expected.size()));
    EXPECT_TRUE(expected == c.Bytes(expected.size()));
    EXPECT_TRUE(c.Silent());
    c.Send("ok\n");
    c.WaitForClose();
  });
  EXPECT_EQ(VI_SUCCESS,
            viPrintf(vi, ":MMEM:DATA \"%s\",\"%s\",%*b\n", "f", "x", static_cast<ViInt32>(bytes.size()), bytes.data()));
  // The same in two calls: the block must not be looked for in the caller's memory when the first call is over.
  std::string copy = bytes;
  EXPECT_EQ(VI_SUCCESS,
            viPrintf(vi, ":MMEM:DATA \"%s\",\"%s\",%*b", "f", "x", static_cast<ViInt32>(copy.size()), copy.data()));
  copy.assign(copy.size(), '?');
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "\n"));
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%*t"));
}

TEST_F(WireFormat, AListOfThousandsIsOneLine) {
  std::vector<double> values(4000);
  std::string expected = ":LIST:FREQ ";
  for (std::size_t i = 0; i < values.size(); ++i) {
    values[i] = 1e9 + static_cast<double>(i) * 0.1;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%s%.15f", i > 0 ? "," : "", values[i]);
    expected += text.data();
  }
  expected += "\n";
  Open([expected](Connection& c) {
    EXPECT_EQ(expected, c.Line());
    c.Send("ok\n");
    c.WaitForClose();
  });
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, ":LIST:FREQ %0.15,*lf\n", static_cast<ViInt32>(values.size()), values.data()));
  EXPECT_EQ(VI_SUCCESS, viScanf(vi, "%*t"));
}

}  // namespace
}  // namespace visa_test
