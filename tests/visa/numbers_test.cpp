// The number engine against the C library, on many values.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include "deadline.h"
#include "format/fixed_point.h"
#include "format/number_scan.h"
#include "format/number_text.h"
#include "format/short_decimal.h"

namespace visa_test {
namespace {

using namespace tvr::visa;

constexpr int kRounds = 1000000;

std::string_view Fixed(std::array<char, 512>& room, double value, int places) {
  const char* const end = WriteFixed(room.data(), value, places);
  return end == nullptr ? std::string_view()
                        : std::string_view(room.data(), static_cast<std::size_t>(end - room.data()));
}

bool FitsFixed(double value) { return std::isfinite(value) && std::abs(value) < 9223372036854775808.0; }

void ExpectFixedIsExact(double value, int places) {
  std::array<char, 512> ours;
  std::array<char, 512> theirs;
  const std::string_view text = Fixed(ours, value, places);
  if (FitsFixed(value)) {
    const int length = std::snprintf(theirs.data(), theirs.size(), "%.*f", places, value);
    ASSERT_EQ(std::string_view(theirs.data(), static_cast<std::size_t>(length)), text)
        << std::hexfloat << value << " " << places;
  } else {
    ASSERT_EQ("", text) << std::hexfloat << value;
  }
}

TEST(FixedPoint, EqualsTheCLibraryOnAMillionRandomPatternsAndLeavesTheLargeOnes) {
  std::mt19937_64 random(1);
  for (int fitting = 0; fitting < kRounds;) {
    const double value = std::bit_cast<double>(random());
    ExpectFixedIsExact(value, 15);
    fitting += FitsFixed(value) ? 1 : 0;
  }
}

TEST(FixedPoint, EqualsTheCLibraryOnAMillionEverydayValuesAndTies) {
  std::mt19937_64 random(2);
  for (int i = 0; i < kRounds; ++i) {
    const double whole = static_cast<double>(static_cast<std::int64_t>(random()) >> (random() % 63));
    const double value = std::ldexp(whole, -static_cast<int>(random() % 70));
    ExpectFixedIsExact(value, static_cast<int>(random() % (kMostFixedPlaces + 1)));
  }
}

TEST(FixedPoint, EqualsTheCLibraryAtTheEdges) {
  using Limits = std::numeric_limits<double>;
  for (const double value : {0.0,
                             Limits::min(),
                             Limits::denorm_min(),
                             Limits::max(),
                             Limits::infinity(),
                             Limits::quiet_NaN(),
                             0.5,
                             1.5,
                             2.5,
                             0.25,
                             0.125,
                             9.5,
                             99.5,
                             0.9999999999999999,
                             9999999999999998.0,
                             4503599627370496.5,
                             9007199254740992.0,
                             9223372036854774784.0,
                             9223372036854775808.0,
                             1e18,
                             1e-15,
                             5e-16,
                             4.999999999999999e-16,
                             1e-300,
                             0x1p-63,
                             0x1p-64,
                             0x1p-65,
                             0x1p-127,
                             0x1p-128,
                             0x1.8p-63,
                             0x1.8p-64}) {
    for (int places = 0; places <= kMostFixedPlaces; ++places) {
      for (const double signed_value : {value, -value, std::nextafter(value, 1e300), std::nextafter(value, -1e300)}) {
        ExpectFixedIsExact(signed_value, places);
      }
    }
  }
}

void ExpectAsInC(const char* format, const WriteDirective& directive, double value, int width, int precision) {
  static FormattedOutput out(nullptr);
  out.Discard();
  WriteReal(out, {directive, directive.left, width, precision}, value);
  std::array<char, 1024> theirs;
  const int length = std::snprintf(theirs.data(), theirs.size(), format, width, precision, value);
  ASSERT_EQ(std::string_view(theirs.data(), static_cast<std::size_t>(length)), out.Collected())
      << format << " " << width << " " << precision << " " << std::hexfloat << value;
}

WriteDirective Real(char code) {
  WriteDirective directive;
  directive.code = code;
  return directive;
}

// The driver's scalar reals: "%0.15lg".
TEST(RealText, EqualsTheCLibraryOnAMillionValuesWithFifteenSignificantDigits) {
  std::mt19937_64 random(3);
  WriteDirective general = Real('g');
  general.zero = true;
  for (int i = 0; i < kRounds; ++i) ExpectAsInC("%0*.*g", general, std::bit_cast<double>(random()), 0, 15);
  for (int i = 0; i < kRounds / 4; ++i) {
    const double everyday =
        static_cast<double>(static_cast<std::int32_t>(random())) * std::pow(10.0, static_cast<int>(random() % 20) - 14);
    ExpectAsInC("%0*.*g", general, everyday, 0, 15);
  }
}

// The driver's lists of reals, "%0.15,*lf", large ones too.
TEST(RealText, EqualsTheCLibraryWithFifteenPlaces) {
  std::mt19937_64 random(8);
  WriteDirective fixed = Real('f');
  fixed.zero = true;
  for (int i = 0; i < kRounds / 10; ++i) ExpectAsInC("%0*.*f", fixed, std::bit_cast<double>(random()), 0, 15);
}

TEST(RealText, EqualsTheCLibraryForEveryCodeFlagWidthAndPrecision) {
  std::mt19937_64 random(4);
  for (int i = 0; i < 60000; ++i) {
    const double value = i % 3 == 0 ? std::bit_cast<double>(random())
                                    : std::ldexp(static_cast<double>(static_cast<std::int16_t>(random())),
                                                 static_cast<int>(random() % 40) - 20);
    if (std::isnan(value)) continue;
    const char code = "fgGeE"[random() % 5];
    WriteDirective directive = Real(code);
    std::string format = "%";
    const auto flag = [&](char mark, bool& member) {
      if (random() % 3 != 0) return;
      member = true;
      format += mark;
    };
    flag('-', directive.left);
    flag('+', directive.plus);
    flag(' ', directive.blank);
    flag('0', directive.zero);
    flag('#', directive.alternative);
    format += "*.*";
    format += code;
    ExpectAsInC(format.c_str(), directive, value, static_cast<int>(random() % 30), static_cast<int>(random() % 22) - 1);
  }
}

TEST(ScannedReal, EqualsTheCLibraryOnAMillionTexts) {
  std::mt19937_64 random(5);
  std::array<char, 64> text;
  for (int i = 0; i < kRounds; ++i) {
    double value = std::bit_cast<double>(random());
    while (!std::isfinite(value)) value = std::bit_cast<double>(random());
    const auto digits = static_cast<int>(random() % 20) + 1;
    const int length = std::snprintf(text.data(), text.size(), i % 2 == 0 ? "%.*g" : "%.*E", digits, value);
    TextStream stream({text.data(), static_cast<std::size_t>(length)});
    ScannedNumber number;
    ASSERT_TRUE(number.Scan(stream, 10, 0));
    ASSERT_EQ(std::strtod(text.data(), nullptr), number.As<double>()) << text.data();
    ASSERT_TRUE(stream.ended()) << text.data();
  }
}

TEST(ShortDecimal, EqualsTheCLibraryOnAMillionTexts) {
  std::mt19937_64 random(7);
  std::array<char, 64> text;
  for (int i = 0; i < kRounds; ++i) {
    // Up to fifteen digits, the point anywhere among them.
    std::string digits = std::to_string(random()).substr(0, random() % 15 + 1);
    const auto places = random() % (digits.size() + 1);
    if (places > 0) digits.insert(digits.size() - places, 1, '.');
    const int length = std::snprintf(text.data(), text.size(), "%s%s", i % 2 == 0 ? "" : "-", digits.c_str());
    const char* const end = text.data() + length;
    double value = 0.0;
    ASSERT_EQ(end, ScanShortDecimal(text.data(), end, value)) << text.data();
    const double wanted = std::strtod(text.data(), nullptr);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(wanted), std::bit_cast<std::uint64_t>(value)) << text.data();
  }
}

TEST(ShortDecimal, LeavesWhatIsLongOrNoNumber) {
  const auto scan = [](std::string_view text) {
    double value = 0.0;
    const char* const end = ScanShortDecimal(text.data(), text.data() + text.size(), value);
    return end == nullptr ? std::string("left") : std::string(text.data(), end) + " is " + std::to_string(value);
  };
  EXPECT_EQ("123456789012345 is 123456789012345.000000", scan("123456789012345"));
  EXPECT_EQ("left", scan("1234567890123456"));
  EXPECT_EQ("left", scan("0.000000000000001"));
  EXPECT_EQ("left", scan(""));
  EXPECT_EQ("left", scan("-"));
  EXPECT_EQ("left", scan("-."));
  EXPECT_EQ("left", scan("NAN"));
  EXPECT_EQ("1. is 1.000000", scan("1.,2"));
  EXPECT_EQ("1.5 is 1.500000", scan("1.5.5"));
  EXPECT_EQ("-0 is -0.000000", scan("-0\n"));
}

TEST(ScannedReal, ComesBackFromWhatWasWrittenWithSeventeenDigits) {
  std::mt19937_64 random(6);
  FormattedOutput out(nullptr);
  const WriteDirective general = Real('g');
  for (int i = 0; i < 200000; ++i) {
    const double value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    out.Discard();
    WriteReal(out, {general, false, 0, 17}, value);
    TextStream stream(out.Collected());
    ScannedNumber number;
    ASSERT_TRUE(number.Scan(stream, 10, 0));
    ASSERT_EQ(value, number.As<double>());
  }
}

}  // namespace
}  // namespace visa_test
