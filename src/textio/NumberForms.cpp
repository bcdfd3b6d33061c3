#include "textio/NumberForms.h"

#include "textio/RuntimeError.h"

#include <charconv>
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

} // namespace

namespace {
constexpr std::size_t kDigitsRoom = kNumberTextRoom - 1;
}

std::size_t writeDigits(double value, char* out) {
  if (value == 0.0 || std::isnan(value)) {
    out[0] = '0';
    return 1;
  }
  if (std::isinf(value))
    raise(ErrorCode::Overflow);

  // The significant digits and the decimal exponent of the value correctly
  // rounded to 15 significant digits: "d.dddddddddddddde+XX".
  char text[kDigitsRoom];
  const auto written =
      std::to_chars(text, text + sizeof text, std::fabs(value), std::chars_format::scientific, 14);
  char mantissa[20];
  std::size_t count = 0;
  const char* p = text;
  for (; *p != 'e'; ++p)
    if (*p != '.')
      mantissa[count++] = *p;
  int exponent = 0;
  std::from_chars(p + (p[1] == '+' ? 2 : 1), written.ptr, exponent);
  while (count > 1 && mantissa[count - 1] == '0')
    --count;

  char* o = out;
  if (value < 0)
    *o++ = '-';
  if (exponent < kSmallestFixedExponent || exponent > kLargestFixedExponent) {
    *o++ = mantissa[0];
    if (count > 1) {
      *o++ = '.';
      o = std::copy(mantissa + 1, mantissa + count, o);
    }
    *o++ = 'E';
    *o++ = exponent < 0 ? '-' : '+';
    const int size = std::abs(exponent);
    if (size < 10)
      *o++ = '0';
    o = std::to_chars(o, out + kDigitsRoom, size).ptr;
    return static_cast<std::size_t>(o - out);
  }
  if (exponent < 0) {
    *o++ = '.';
    o = std::fill_n(o, -exponent - 1, '0');
    o = std::copy(mantissa, mantissa + count, o);
    return static_cast<std::size_t>(o - out);
  }
  const auto integerDigits = static_cast<std::size_t>(exponent) + 1;
  if (count <= integerDigits) {
    o = std::copy(mantissa, mantissa + count, o);
    o = std::fill_n(o, integerDigits - count, '0');
    return static_cast<std::size_t>(o - out);
  }
  o = std::copy(mantissa, mantissa + integerDigits, o);
  *o++ = '.';
  o = std::copy(mantissa + integerDigits, mantissa + count, o);
  return static_cast<std::size_t>(o - out);
}

std::size_t writeBlankLed(double value, char* out) {
  // A blank takes the place of the sign of a number that is not negative.
  const std::size_t size = writeDigits(value, out + 1);
  if (out[1] == '-') {
    std::copy(out + 1, out + 1 + size, out);
    return size;
  }
  out[0] = ' ';
  return size + 1;
}

std::string digits(double value) {
  char text[kDigitsRoom];
  return std::string(text, writeDigits(value, text));
}

std::string blankLed(double value) {
  char text[kDigitsRoom + 1];
  return std::string(text, writeBlankLed(value, text));
}

std::string stripped(double value) {
  char text[kDigitsRoom + 1];
  return std::string(text + 1, writeBlankLed(value, text) - 1);
}

std::string printForm(double value) {
  char text[kDigitsRoom + 2];
  const std::size_t size = writeBlankLed(value, text);
  text[size] = ' ';
  return std::string(text, size + 1);
}

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
