#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

// SSE2 on 64-bit x86, where a register's low half reads as one word.
#if defined(__SSE2__) && defined(__x86_64__)
#define VORLEX_DIGITS_IN_LANES 1
#include <emmintrin.h>
#endif

namespace vorlex {

/// The 16 digits of a number below 10^16 in ASCII, leading zeros included,
/// as two words with the first digit in the lowest byte: digits 1-8 in
/// `first`, 9-16 in `second`.
struct AsciiWords {
  std::uint64_t first;
  std::uint64_t second;

  bool operator==(const AsciiWords&) const = default;
};

namespace detail {

inline constexpr char kDigitPairs[] = "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
                                      "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
                                      "8081828384858687888990919293949596979899";

// The two digits of n < 100 in ASCII, the first in the lower byte.
inline std::uint64_t pairOf(std::uint32_t n) {
  std::uint16_t pair = 0;
  std::memcpy(&pair, kDigitPairs + 2 * n, 2);
  return pair;
}

// The 8 digits of n < 10^8 in ASCII, the first in the lowest byte.
inline std::uint64_t eightDigitsByPairs(std::uint32_t n) {
  const std::uint32_t high = n / 10000, low = n % 10000;
  return pairOf(high / 100) | pairOf(high % 100) << 16 | pairOf(low / 100) << 32 | pairOf(low % 100) << 48;
}

} // namespace detail

/// The digits by four pairs of each half, looked up side by side: the way
/// of every processor.
inline AsciiWords asciiDigitsByPairs(std::uint64_t number) {
  static_assert(std::endian::native == std::endian::little);
  return {detail::eightDigitsByPairs(static_cast<std::uint32_t>(number / 100000000)),
          detail::eightDigitsByPairs(static_cast<std::uint32_t>(number % 100000000))};
}

#ifdef VORLEX_DIGITS_IN_LANES
/// The digits worked out all sixteen at once in the lanes of one register:
/// each half split in two numbers below 10^4, each of those copied into
/// four 16-bit lanes, where a multiplication by the reciprocals of 1000,
/// 100, 10 and 1 gives its first one, two, three and four digits, and
/// taking ten times the lane before leaves one digit in each.
inline AsciiWords asciiDigitsInLanes(std::uint64_t number) {
  const auto high = static_cast<std::uint32_t>(number / 100000000);
  const auto low = static_cast<std::uint32_t>(number % 100000000);
  const auto lane = [](std::uint32_t n) { return static_cast<short>(n); };
  const __m128i fours = _mm_setr_epi16(lane(high / 10000), lane(high % 10000), lane(low / 10000), lane(low % 10000),
                                       0, 0, 0, 0);
  const __m128i twice = _mm_unpacklo_epi16(fours, fours);
  // Four times each number, so that the reciprocals below keep 16 bits.
  const __m128i digits1to8 = _mm_slli_epi16(_mm_unpacklo_epi32(twice, twice), 2);
  const __m128i digits9to16 = _mm_slli_epi16(_mm_unpackhi_epi32(twice, twice), 2);
  const __m128i reciprocals = _mm_setr_epi16(8389, 5243, 13108, -32768, 8389, 5243, 13108, -32768);
  const __m128i shifts = _mm_setr_epi16(1 << 7, 1 << 11, 1 << 13, -32768, 1 << 7, 1 << 11, 1 << 13, -32768);
  const auto oneDigitPerLane = [&](__m128i fourTimes) {
    const __m128i leading = _mm_mulhi_epu16(_mm_mulhi_epu16(fourTimes, reciprocals), shifts);
    return _mm_sub_epi16(leading, _mm_slli_epi64(_mm_mullo_epi16(leading, _mm_set1_epi16(10)), 16));
  };
  const __m128i ascii = _mm_add_epi8(_mm_packus_epi16(oneDigitPerLane(digits1to8), oneDigitPerLane(digits9to16)),
                                     _mm_set1_epi8('0'));
  return {static_cast<std::uint64_t>(_mm_cvtsi128_si64(ascii)),
          static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_srli_si128(ascii, 8)))};
}
#endif

/// The digits in ASCII the fastest way the processor has.
inline AsciiWords asciiDigits(std::uint64_t number) {
#ifdef VORLEX_DIGITS_IN_LANES
  return asciiDigitsInLanes(number);
#else
  return asciiDigitsByPairs(number);
#endif
}

} // namespace vorlex
