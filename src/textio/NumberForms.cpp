#include "textio/NumberForms.h"

#include "textio/RuntimeError.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace vorlex {

namespace {

// Magnitudes with a decimal exponent outside this range are written in
// exponent form; both ends read back to the same value.
constexpr int kSmallestFixedExponent = -4;
constexpr int kLargestFixedExponent = 14;

bool isBlank(char c) { return c == ' ' || c == '\t'; }

} // namespace

std::string digits(double value) {
  if (value == 0.0 || std::isnan(value))
    return "0";
  if (std::isinf(value))
    raise(ErrorCode::Overflow);

  // 15 significant digits, correctly rounded: "d.dddddddddddddde+XX".
  char buffer[40];
  const auto written = std::to_chars(buffer, buffer + sizeof buffer - 1, std::fabs(value),
                                     std::chars_format::scientific, 14);
  *written.ptr = '\0';
  std::string mantissa;
  const char* p = buffer;
  for (; *p != 'e'; ++p)
    if (*p != '.')
      mantissa += *p;
  const int exponent = std::atoi(p + 1);
  while (mantissa.size() > 1 && mantissa.back() == '0')
    mantissa.pop_back();

  std::string out = value < 0 ? "-" : "";
  if (exponent < kSmallestFixedExponent || exponent > kLargestFixedExponent) {
    out += mantissa[0];
    if (mantissa.size() > 1) {
      out += '.';
      out.append(mantissa, 1);
    }
    char tail[16];
    std::snprintf(tail, sizeof tail, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    return out + tail;
  }
  if (exponent < 0)
    return out + "." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + mantissa;
  const auto integerDigits = static_cast<std::size_t>(exponent) + 1;
  if (mantissa.size() <= integerDigits)
    return out + mantissa + std::string(integerDigits - mantissa.size(), '0');
  return out + mantissa.substr(0, integerDigits) + "." + mantissa.substr(integerDigits);
}

std::string blankLed(double value) {
  std::string text = digits(value);
  return text[0] == '-' ? text : " " + text;
}

std::string stripped(double value) { return blankLed(value).substr(1); }

std::string printForm(double value) { return blankLed(value) + " "; }

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
