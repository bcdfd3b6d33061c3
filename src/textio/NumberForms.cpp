#include "textio/NumberForms.h"

#include "textio/AsciiDigits.h"
#include "textio/RuntimeError.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <algorithm>

namespace vorlex {

namespace {

// Magnitudes with a decimal exponent outside this range are written in
// exponent form; both ends read back to the same value.
constexpr int kSmallestFixedExponent = -4;
constexpr int kLargestFixedExponent = 14;

bool isBlank(char c) { return c == ' ' || c == '\t'; }

constexpr std::size_t kDigitsRoom = kNumberTextRoom - 1;

__extension__ typedef unsigned __int128 u128; // GCC and clang on 64-bit targets

constexpr std::uint64_t kFifteenDigits = 100000000000000u; // the smallest number of 15 digits

// 5^k for k = 0..32.
constexpr auto kPowersOfFive = [] {
  std::array<u128, 33> powers{};
  powers[0] = 1;
  for (std::size_t k = 1; k < powers.size(); ++k)
    powers[k] = powers[k - 1] * 5;
  return powers;
}();

// 10^k as doubles for k = -19..16.
constexpr int kSmallestPowerOfTen = -19;
constexpr std::array<double, 36> kPowersOfTen = {
    1e-19, 1e-18, 1e-17, 1e-16, 1e-15, 1e-14, 1e-13, 1e-12, 1e-11, 1e-10, 1e-9, 1e-8,
    1e-7,  1e-6,  1e-5,  1e-4,  1e-3,  1e-2,  1e-1,  1e0,   1e1,   1e2,   1e3,  1e4,
    1e5,   1e6,   1e7,   1e8,   1e9,   1e10,  1e11,  1e12,  1e13,  1e14,  1e15, 1e16};

// |value| x 10^k rounded to an integer, halves to even, as printf rounds
// the exact value of a double: m x 2^q x 10^k = m x 5^k x 2^(q+k), which
// for the k at hand is exact in 128 bits. False where it is not.
bool scaledAndRounded(std::uint64_t m, int q, int k, std::uint64_t& rounded) {
  if (k < 0 || k >= static_cast<int>(kPowersOfFive.size()))
    return false;
  const u128 product = m * kPowersOfFive[static_cast<std::size_t>(k)];
  const int shift = q + k;
  if (shift >= 0) {
    if (shift > 20)
      return false;
    rounded = static_cast<std::uint64_t>(product << shift);
    return true;
  }
  if (-shift >= 127)
    return false;
  const u128 whole = product >> -shift;
  const u128 rest = product - (whole << -shift);
  const u128 half = u128{1} << (-shift - 1);
  rounded = static_cast<std::uint64_t>(whole) + ((rest > half || (rest == half && (whole & 1) != 0)) ? 1 : 0);
  return true;
}

// 10^k, exact as doubles for k = 0..22.
constexpr std::array<double, 23> kExactPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                       1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                       1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The same rounding in doubles, for the powers of ten that are exact. The
// product is below 2^52 whenever it is of use, where adding 2^52 rounds it
// to an integer, halves to even; rounding is monotonic and a half is a
// double there, so the rounded product rounds as the exact one does but
// where it is a half itself. Then the exact product's error (Dekker's
// product, without relying on a fused multiply-add) decides.
bool scaledInDoubles(double value, int k, std::uint64_t& rounded) {
  if (k < 0 || k >= static_cast<int>(kExactPowersOfTen.size()))
    return false;
  const double power = kExactPowersOfTen[static_cast<std::size_t>(k)];
  const double product = value * power;
  constexpr double kTwoTo52 = 4503599627370496.0;
  const double whole = (product + kTwoTo52) - kTwoTo52;
  const double rest = product - whole;
  rounded = static_cast<std::uint64_t>(whole);
  if (std::fabs(rest) != 0.5)
    return true;
  constexpr double kSplitter = 134217729.0; // 2^27 + 1
  const double a = kSplitter * value, aHigh = a - (a - value), aLow = value - aHigh;
  const double b = kSplitter * power, bHigh = b - (b - power), bLow = power - bHigh;
  const double error = ((aHigh * bHigh - product) + aHigh * bLow + aLow * bHigh) + aLow * bLow;
  if (rest == 0.5 && error > 0)
    ++rounded;
  else if (rest == -0.5 && error < 0)
    --rounded;
  return true;
}

// The 15 significant digits of a positive finite value, correctly rounded
// as printf's "%.14e" gives them, and its decimal exponent, worked out
// exactly in doubles or integers; false for magnitudes beyond about
// 1e-18..1e15, left to the library.
bool fifteenDigits(double value, std::uint64_t& digits, int& exponent) {
  if (value < 1e-18 || value >= 1e15)
    return false;
  // value = m x 2^q, with m an integer of 53 bits (the value is normal).
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const int biased = static_cast<int>(bits >> 52);
  const std::uint64_t m = (bits & ((std::uint64_t{1} << 52) - 1)) | (std::uint64_t{1} << 52);
  const int q = biased - 1075;
  // floor(log10(2^(biased - 1023))) is floor(log10(value)) or one less;
  // a power of ten in doubles tells which, but for a value next to it,
  // which the loop below puts right.
  int guess = ((biased - 1023) * 78913) >> 18;
  if (value >= kPowersOfTen[static_cast<std::size_t>(guess + 1 - kSmallestPowerOfTen)])
    ++guess;
  for (int tries = 0; tries < 3; ++tries) {
    std::uint64_t rounded = 0;
    if (!scaledInDoubles(value, 14 - guess, rounded) && !scaledAndRounded(m, q, 14 - guess, rounded))
      return false;
    if (rounded < kFifteenDigits) {
      --guess;
      continue;
    }
    if (rounded >= 10 * kFifteenDigits) {
      // Rounding up to the next power of ten is that power's first digit.
      if (rounded == 10 * kFifteenDigits) {
        digits = kFifteenDigits;
        exponent = guess + 1;
        return true;
      }
      ++guess;
      continue;
    }
    digits = rounded;
    exponent = guess;
    return true;
  }
  return false;
}

void storeWord(char* out, std::uint64_t bytes) { std::memcpy(out, &bytes, sizeof bytes); }

constexpr std::uint64_t kAsciiZeros = 0x3030303030303030u;

// The 15 digits of digits (10^14 <= digits < 10^15) in ASCII, as two
// words with the first digit in the lowest byte: digits 1-8, and digits
// 9-15 with a last byte 0. They are worked out and placed in registers,
// and stored a word at a time.
struct FifteenInAscii {
  std::uint64_t first;
  std::uint64_t second;

  explicit FifteenInAscii(std::uint64_t digits) {
    // Sixteen digits with a leading 0, which the first word leaves out.
    const AsciiWords sixteen = asciiDigits(digits);
    first = sixteen.first >> 8 | sixteen.second << 56;
    second = sixteen.second >> 8;
  }

  /// How many of the digits remain without the zeros at their end: the
  /// last digit that is not '0' is the highest byte that differs from '0'.
  int significant() const {
    const std::uint64_t secondDiffers = (second ^ kAsciiZeros) & 0x00FFFFFFFFFFFFFFu;
    if (secondDiffers != 0)
      return 8 + (63 - std::countl_zero(secondDiffers)) / 8 + 1;
    return (63 - std::countl_zero(first ^ kAsciiZeros)) / 8 + 1;
  }

  /// All fifteen, from `out` on.
  void store(char* out) const {
    storeWord(out, first);
    storeWord(out + 8, second);
  }

  /// All fifteen with a point after the first `integerDigits` (1..14):
  /// the word that holds the point takes it in place, the digits after it
  /// move one byte on.
  void storeWithPoint(char* out, int integerDigits) const {
    const auto withPoint = [](std::uint64_t word, int digitsBefore) {
      const int point = 8 * digitsBefore; // at most 56
      const std::uint64_t before = (std::uint64_t{1} << point) - 1;
      return (word & before) | (std::uint64_t{'.'} << point) | (word & ~before) << 8;
    };
    if (integerDigits < 8) {
      storeWord(out, withPoint(first, integerDigits));
      out[8] = static_cast<char>(first >> 56);
      storeWord(out + 9, second);
    } else {
      storeWord(out, first);
      storeWord(out + 8, withPoint(second, integerDigits - 8));
    }
  }
};

// The digits of a magnitude: a number that is not negative, or NaN, which
// is written as 0. The digits go out in whole words, eight bytes at a
// time; the room of a number text takes what they write beyond the end.
std::size_t writeMagnitude(double value, char* out) {
  // A whole number below 10^15 is its own 15 digits, written without the
  // zeros of a fraction: the days, the counts, the sizes of many a cell.
  if (value < 1e15) {
    const auto whole = static_cast<std::int64_t>(value);
    if (static_cast<double>(whole) == value)
      return static_cast<std::size_t>(std::to_chars(out, out + kDigitsRoom, whole).ptr - out);
  }
  if (std::isnan(value)) {
    out[0] = '0';
    return 1;
  }
  if (std::isinf(value))
    raise(ErrorCode::Overflow);

  // The value correctly rounded to 15 significant digits,
  // "d.dddddddddddddde+XX": the digits as an integer of 15 digits and the
  // decimal exponent.
  std::uint64_t digits = 0;
  int exponent = 0;
  if (!fifteenDigits(value, digits, exponent)) {
    char text[kDigitsRoom];
    const auto written = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, 14);
    const char* p = text;
    for (; *p != 'e'; ++p)
      if (*p != '.')
        digits = 10 * digits + static_cast<std::uint64_t>(*p - '0');
    std::from_chars(p + (p[1] == '+' ? 2 : 1), written.ptr, exponent);
  }
  // The 15 digits, and how many remain without the zeros at their end.
  const FifteenInAscii fifteen(digits);
  const int count = fifteen.significant();

  if (exponent < kSmallestFixedExponent || exponent > kLargestFixedExponent) {
    fifteen.storeWithPoint(out, 1);
    char* o = out + (count > 1 ? count + 1 : 1);
    *o++ = 'E';
    *o++ = exponent < 0 ? '-' : '+';
    const int size = std::abs(exponent);
    if (size < 10)
      *o++ = '0';
    o = std::to_chars(o, out + kDigitsRoom, size).ptr;
    return static_cast<std::size_t>(o - out);
  }
  if (exponent < 0) {
    // Up to three zeros between the point and the first digit.
    std::memcpy(out, ".000", 4);
    const int zeros = -exponent - 1;
    fifteen.store(out + 1 + zeros);
    return static_cast<std::size_t>(1 + zeros + count);
  }
  // A whole number has the zeros of its units among its digits; any other
  // number has the point among them.
  const int integerDigits = exponent + 1;
  if (count <= integerDigits) {
    fifteen.store(out);
    return static_cast<std::size_t>(integerDigits);
  }
  fifteen.storeWithPoint(out, integerDigits);
  return static_cast<std::size_t>(count + 1);
}

} // namespace

std::size_t writeDigits(double value, char* out) {
  if (value < 0) {
    out[0] = '-';
    return 1 + writeMagnitude(-value, out + 1);
  }
  return writeMagnitude(value, out);
}

std::size_t writeBlankLed(double value, char* out) {
  // A blank takes the place of the sign of a number that is not negative.
  out[0] = value < 0 ? '-' : ' ';
  return 1 + writeMagnitude(std::fabs(value), out + 1);
}

std::size_t NumberText::writeInto(char* out) const {
  // The stripped form is the blank-led one without its first character.
  if (form_ == Form::Stripped)
    return writeMagnitude(std::fabs(value_), out);
  const std::size_t size = writeBlankLed(value_, out);
  if (form_ != Form::Print)
    return size;
  out[size] = ' ';
  return size + 1;
}

std::string digits(double value) {
  char text[kDigitsRoom];
  return std::string(text, writeDigits(value, text));
}

std::string blankLed(double value) { return NumberText(value, NumberText::Form::BlankLed).str(); }

std::string stripped(double value) { return NumberText(value, NumberText::Form::Stripped).str(); }

std::string printForm(double value) { return NumberText(value, NumberText::Form::Print).str(); }

double roundHalfEven(double value) {
  // The default floating-point environment rounds to nearest, ties to even.
  return std::nearbyint(value);
}

std::int16_t toInt16(double value) {
  const double rounded = roundHalfEven(value);
  if (!(rounded >= -32768.0 && rounded <= 32767.0))
    raise(ErrorCode::Overflow);
  return static_cast<std::int16_t>(rounded);
}

std::int32_t toInt32(double value) {
  const double rounded = roundHalfEven(value);
  if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0))
    raise(ErrorCode::Overflow);
  return static_cast<std::int32_t>(rounded);
}

std::int16_t checkedInt16(long long value) {
  if (value < -32768 || value > 32767)
    raise(ErrorCode::Overflow);
  return static_cast<std::int16_t>(value);
}

std::size_t numericPrefixLength(std::string_view text) {
  std::size_t i = 0;
  const auto isDigit = [&](std::size_t k) { return k < text.size() && text[k] >= '0' && text[k] <= '9'; };
  if (i < text.size() && (text[i] == '+' || text[i] == '-'))
    ++i;
  std::size_t mantissaDigits = 0;
  while (isDigit(i)) {
    ++i;
    ++mantissaDigits;
  }
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (isDigit(i)) {
      ++i;
      ++mantissaDigits;
    }
  }
  if (mantissaDigits == 0)
    return 0;
  // An exponent counts only when digits follow it.
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
    std::size_t k = i + 1;
    if (k < text.size() && (text[k] == '+' || text[k] == '-'))
      ++k;
    if (isDigit(k)) {
      while (isDigit(k))
        ++k;
      i = k;
    }
  }
  return i;
}

namespace {

std::string_view trimBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

// The value of a text that is a number as a whole (see numericPrefixLength).
double parseNumber(std::string_view number) {
  std::string normal(number);
  for (char& c : normal)
    if (c == 'd' || c == 'D')
      c = 'E';
  const char* first = normal.data();
  if (*first == '+')
    ++first;
  double value = 0.0;
  const auto [end, error] = std::from_chars(first, normal.data() + normal.size(), value);
  if (error == std::errc::result_out_of_range) {
    // Underflow to zero is harmless; a number beyond the double range isn't.
    if (std::fabs(std::strtod(normal.c_str(), nullptr)) > 1.0)
      raise(ErrorCode::Overflow);
    return 0.0;
  }
  (void)end;
  return value;
}

} // namespace

bool isNumericText(std::string_view text) {
  text = trimBlanks(text);
  return !text.empty() && numericPrefixLength(text) == text.size();
}

double numberEntry(std::string_view text) {
  while (!text.empty() && isBlank(text.front()))
    text.remove_prefix(1);
  const std::size_t length = numericPrefixLength(text);
  return length == 0 ? 0.0 : parseNumber(text.substr(0, length));
}

double textToDouble(std::string_view text) {
  if (!isNumericText(text))
    raise(ErrorCode::TypeMismatch);
  return parseNumber(trimBlanks(text));
}

std::int16_t textToInt16(std::string_view text) { return toInt16(textToDouble(text)); }

} // namespace vorlex
