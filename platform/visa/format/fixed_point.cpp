// A double below 2^63 is a whole number of at most 63 bits and a fraction of at most 53 significant bits. The fraction
// times 10^places therefore fits an integer of 128 bits exactly, and the digits are one multiplication, one shift and
// one comparison for the rounding away. std::to_chars serves every magnitude up to 1e308 and pays for it with tables of
// powers.
#include "format/fixed_point.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace tvr::visa {
namespace {

// Standard C++ has no integer of this width; both compilers do, and spell it so in every mode.
__extension__ using Wide = unsigned __int128;

constexpr std::array<std::uint64_t, 20> PowersOfTen() {
  std::array<std::uint64_t, 20> powers{};
  powers[0] = 1;
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}
constexpr auto kPowersOfTen = PowersOfTen();

// Eight digits of a number below 10^8 as text in one register, the first digit in the lowest byte: halves, then
// quarters, then single digits are split off in parallel lanes.
[[gnu::always_inline]] inline std::uint64_t EightDigits(std::uint32_t value) {
  const std::uint64_t halves = value / 10000 | (static_cast<std::uint64_t>(value % 10000) << 32);
  const std::uint64_t high_pairs = (halves * 10486 >> 20) & 0x0000007F'0000007F;
  const std::uint64_t pairs = high_pairs + ((halves - 100 * high_pairs) << 16);
  const std::uint64_t high_digits = (pairs * 103 >> 10) & 0x000F'000F'000F'000F;
  return high_digits + ((pairs - 10 * high_digits) << 8) + 0x3030'3030'3030'3030;
}

struct TwoGroups {
  std::uint64_t high;
  std::uint64_t low;
};

// The same of two numbers at once.
[[gnu::always_inline]] inline TwoGroups SixteenDigits(std::uint32_t high, std::uint32_t low) {
#ifdef __SSE2__
  const __m128i both = _mm_set_epi64x(low, high);
  const __m128i high_halves = _mm_srli_epi64(_mm_mul_epu32(both, _mm_set1_epi64x(3518437209)), 45);
  const __m128i low_halves = _mm_sub_epi64(both, _mm_mul_epu32(high_halves, _mm_set1_epi64x(10000)));
  const __m128i halves = _mm_or_si128(high_halves, _mm_slli_epi64(low_halves, 32));
  const __m128i high_pairs = _mm_srli_epi16(_mm_mulhi_epu16(halves, _mm_set1_epi16(10486)), 4);
  const __m128i low_pairs = _mm_sub_epi16(halves, _mm_mullo_epi16(high_pairs, _mm_set1_epi16(100)));
  const __m128i pairs = _mm_or_si128(high_pairs, _mm_slli_epi32(low_pairs, 16));
  const __m128i high_digits = _mm_mulhi_epu16(pairs, _mm_set1_epi16(6554));
  const __m128i low_digits = _mm_sub_epi16(pairs, _mm_mullo_epi16(high_digits, _mm_set1_epi16(10)));
  const __m128i text = _mm_or_si128(_mm_or_si128(high_digits, _mm_slli_epi16(low_digits, 8)), _mm_set1_epi8('0'));
  return {static_cast<std::uint64_t>(_mm_cvtsi128_si64(text)),
          static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(text, text)))};
#else
  return {EightDigits(high), EightDigits(low)};
#endif
}

static_assert(std::endian::native == std::endian::little, "the lowest byte of EightDigits goes out first");

// The last `count` (1 to 8) of eight digits; writes eight bytes whatever the count.
[[gnu::always_inline]] inline void WriteGroup(char* out, std::uint64_t digits, int count) {
  const std::uint64_t text = digits >> (8 * (8 - count));
  std::memcpy(out, &text, sizeof text);
}

// Exactly `count` digits (1 to 19), zeros in front; writes up to seven bytes beyond them.
[[gnu::always_inline]] inline void WriteDigits(char* out, std::uint64_t value, int count) {
  constexpr std::uint64_t kGroup = 100000000;
  if (count <= 8) return WriteGroup(out, EightDigits(static_cast<std::uint32_t>(value)), count);
  std::uint64_t above = value / kGroup;
  const auto last = static_cast<std::uint32_t>(value % kGroup);
  if (count > 16) {
    WriteGroup(out, EightDigits(static_cast<std::uint32_t>(above / kGroup)), count - 16);
    out += count - 16;
    above %= kGroup;
    count = 16;
  }
  const TwoGroups digits = SixteenDigits(static_cast<std::uint32_t>(above), last);
  WriteGroup(out, digits.high, count - 8);
  WriteGroup(out + count - 8, digits.low, 8);
}

[[gnu::always_inline]] inline int DigitCount(std::uint64_t value) {
  // log10(2) is near 1233 / 4096; the comparison mends the one case in which the product falls short.
  const auto guess = static_cast<std::size_t>(std::bit_width(value | 1)) * 1233 >> 12;
  return static_cast<int>(guess) + ((value | 1) >= kPowersOfTen[guess] ? 1 : 0);
}

// fraction * scale / 2^shift (1 or more), rounded half to even; `odd` says that an odd digit stands before a quotient
// of zero. Sums instead of branches: whether to round up is nothing that a processor could guess.
[[gnu::always_inline]] inline std::uint64_t Scaled(std::uint64_t fraction, std::uint64_t scale, int shift, bool odd) {
  const Wide product = static_cast<Wide>(fraction) * scale;
  if (shift < 64) [[likely]] {
    const auto low = static_cast<std::uint64_t>(product);
    const std::uint64_t quotient = (static_cast<std::uint64_t>(product >> 64) << (64 - shift)) | (low >> shift);
    const std::uint64_t rest = low & ((std::uint64_t{1} << shift) - 1);
    const std::uint64_t tie_up = (quotient | (odd ? 1U : 0U)) & 1U;
    return quotient + (rest + tie_up > std::uint64_t{1} << (shift - 1) ? 1U : 0U);
  }
  if (shift > 127) return 0;  // below one half by far: the product has 113 bits at most
  const Wide tie_up = (static_cast<unsigned>(product >> shift) | (odd ? 1U : 0U)) & 1U;
  return static_cast<std::uint64_t>((product + ((Wide{1} << (shift - 1)) - 1) + tie_up) >> shift);
}

// Inlined into both callers: in the loop over a list, what depends on the places alone is computed once.
[[gnu::always_inline]] inline char* Write(char* out, double value, int places, std::uint64_t scale) {
  constexpr int kMantissaBits = 52;
  constexpr std::uint64_t kHidden = std::uint64_t{1} << kMantissaBits;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const int biased = static_cast<int>(bits >> kMantissaBits) & 0x7FF;
  if (biased >= 0x3FF + 63) return nullptr;
  const std::uint64_t mantissa = (bits & (kHidden - 1)) | (biased == 0 ? 0 : kHidden);
  const int exponent = (biased == 0 ? 1 : biased) - 0x3FF - kMantissaBits;

  std::uint64_t whole = 0;
  std::uint64_t fraction = 0;
  if (exponent >= 0) {
    whole = mantissa << exponent;
  } else {
    const int shift = -exponent;
    std::uint64_t rest = mantissa;
    if (shift <= kMantissaBits) {
      whole = mantissa >> shift;
      rest = mantissa & ((std::uint64_t{1} << shift) - 1);
    }
    fraction = Scaled(rest, scale, shift, places == 0 && (whole & 1) != 0);
    if (fraction >= scale) {
      fraction -= scale;
      ++whole;
    }
  }

  if (bits >> 63 != 0) *out++ = '-';
  const int digits = DigitCount(whole);
  WriteDigits(out, whole, digits);
  out += digits;
  if (places > 0) {
    *out++ = '.';
    WriteDigits(out, fraction, places);
    out += places;
  }
  return out;
}

}  // namespace

char* WriteFixed(char* out, double value, int places) {
  return Write(out, value, places, kPowersOfTen[static_cast<std::size_t>(places)]);
}

char* WriteFixedList(char* out, const double*& values, const double* end, int places) {
  const std::uint64_t scale = kPowersOfTen[static_cast<std::size_t>(places)];
  const double* value = values;
  for (; value != end; ++value) {
    char* const next = Write(out + 1, *value, places, scale);
    if (next == nullptr) break;
    *out = ',';
    out = next;
  }
  values = value;
  return out;
}

}  // namespace tvr::visa
