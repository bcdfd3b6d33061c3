#include "textio/NumberForms.h"
#include "textio/AsciiDigits.h"
#include "textio/RaisedCode.h"
#include "textio/RuntimeError.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>
#include <string>
#include <utility>

namespace vorlex {
namespace {

using testing_support::raisedCode;

struct DigitsCase {
  double value;
  const char* text;
};

TEST(NumberFormsDigits, ShortestTextWithoutLeadingZero) {
  const DigitsCase cases[] = {{0.5, ".5"},
                              {-0.25, "-.25"},
                              {12.0, "12"},
                              {-3.0, "-3"},
                              {100.0, "100"},
                              {1234.5678, "1234.5678"},
                              {0.001, ".001"},
                              {0.1 + 0.2, ".3"},
                              {1.0 / 3, ".333333333333333"},
                              {2.0 / 3, ".666666666666667"},
                              {-2.0 / 3, "-.666666666666667"},
                              {123456789012345.0, "123456789012345"},
                              {1e16, "1E+16"},
                              {2.5e20, "2.5E+20"},
                              {-1e-20, "-1E-20"},
                              {0.0, "0"},
                              {-0.0, "0"}};
  for (const auto& c : cases)
    EXPECT_EQ(digits(c.value), c.text) << "value " << c.value;
}

// Exponent form starts below 1E-04 and above 14 digits before the point.
TEST(NumberFormsDigits, ExponentFormAtBothEnds) {
  EXPECT_EQ(digits(1.5e-5), "1.5E-05");
  EXPECT_EQ(digits(-1.5e-5), "-1.5E-05");
  EXPECT_EQ(digits(1e-5), "1E-05");
  EXPECT_EQ(digits(1.5e-4), ".00015");
  EXPECT_EQ(digits(1e-4), ".0001");
  EXPECT_EQ(digits(1e15), "1E+15");
  EXPECT_EQ(digits(999999999999999.0), "999999999999999");
}

TEST(NumberFormsDigits, BlankLedStrippedAndPrintForms) {
  struct FormCase {
    double value;
    const char* blankLed;
    const char* stripped;
    const char* print;
  };
  const FormCase cases[] = {
      {0.5, " .5", ".5", " .5 "}, {12.0, " 12", "12", " 12 "},     {-3.0, "-3", "3", "-3 "},
      {0.0, " 0", "0", " 0 "},    {-0.25, "-.25", ".25", "-.25 "},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(blankLed(c.value), c.blankLed) << c.value;
    EXPECT_EQ(stripped(c.value), c.stripped) << c.value;
    EXPECT_EQ(printForm(c.value), c.print) << c.value;
  }
}

TEST(NumberFormsDigits, StrippedFormOfNegativeNumberReadsBackWithoutSign) {
  EXPECT_EQ(numberEntry(stripped(-0.2)), 0.2);
}

// Any number of up to 15 significant digits comes back as the very same
// double after being written and read.
TEST(NumberFormsDigits, FifteenDigitNumbersRoundTripExactly) {
  std::mt19937_64 random(20261121);
  std::uniform_int_distribution<int> digitCount(1, 15);
  std::uniform_int_distribution<int> digit(0, 9);
  std::uniform_int_distribution<int> exponent(-40, 40);
  for (int i = 0; i < 20000; ++i) {
    std::string mantissa(1, static_cast<char>('1' + digit(random) % 9));
    const int count = digitCount(random);
    for (int k = 1; k < count; ++k)
      mantissa += static_cast<char>('0' + digit(random));
    const std::string source = std::string(i % 2 ? "-" : "") + mantissa.substr(0, 1) + "." +
                               mantissa.substr(1) + "e" + std::to_string(exponent(random));
    const double value = std::strtod(source.c_str(), nullptr);
    const std::string text = digits(value);
    ASSERT_EQ(numberEntry(text), value) << source << " written as " << text;
    ASSERT_FALSE(text.starts_with("0.") || text.starts_with("-0.")) << source << " written as " << text;
  }
}

// Both ways to the ASCII digits of a number agree with printf's, leading
// zeros included, for numbers of every length and at the edges of their
// halves and quarters.
TEST(NumberFormsDigits, AsciiDigitsBothWays) {
  std::mt19937_64 random(20261123);
  std::vector<std::uint64_t> numbers = {0, 1, 9999, 10000, 99999999, 100000000, 100000000000000, 999999999999999,
                                        9999999999999999};
  for (int i = 0; i < 200000; ++i)
    numbers.push_back(random() % (std::uint64_t{1} << (1 + i % 53)) % 10000000000000000u);
  const auto text = [](AsciiWords words) {
    char bytes[17] = {};
    std::memcpy(bytes, &words.first, 8);
    std::memcpy(bytes + 8, &words.second, 8);
    return std::string(bytes);
  };
  for (const std::uint64_t number : numbers) {
    char reference[24];
    std::snprintf(reference, sizeof reference, "%016llu", static_cast<unsigned long long>(number));
    ASSERT_EQ(text(asciiDigitsByPairs(number)), reference);
#ifdef VORLEX_DIGITS_IN_LANES
    ASSERT_EQ(text(asciiDigitsInLanes(number)), reference);
#endif
  }
}

// The significant digits of a number's text: without sign, point,
// exponent, leading and trailing zeros.
std::string significantDigits(const std::string& text) {
  std::string result;
  for (char c : text.substr(0, text.find_first_of("eE"))) {
    if (c >= '0' && c <= '9' && !(result.empty() && c == '0'))
      result += c;
  }
  while (!result.empty() && result.back() == '0')
    result.pop_back();
  return result.empty() ? "0" : result;
}

// The digits are the value correctly rounded to 15 significant digits, as
// printf's "%.14e" gives them, over the whole range of doubles: bit
// patterns drawn at random, tiny numbers below the normal range, and
// values next to the points where the 15th digit rounds up.
TEST(NumberFormsDigits, FifteenCorrectlyRoundedDigitsForEveryDouble) {
  std::mt19937_64 random(20261122);
  std::vector<double> values = {5e-324, 2.2250738585072009e-308, 2.2250738585072014e-308, 1.7976931348623157e308,
                                0.1, 9.9999999999999995e-5, 99999999999999.95, 999999999999999.4};
  for (int i = 0; i < 100000; ++i) {
    const std::uint64_t bits = random();
    double value = std::bit_cast<double>(bits);
    if (std::isfinite(value))
      values.push_back(value);
    // A 15-digit number and its neighbours, where a 16th digit decides.
    value = std::ldexp(static_cast<double>(random() % 1000000000000000u + 1), static_cast<int>(random() % 80) - 40);
    values.push_back(value);
    values.push_back(std::nextafter(value, 0.0));
    values.push_back(std::nextafter(value, 1e300));
    // Everyday magnitudes, 1e-19 to 1e16, where the digits are worked out
    // in integers, and halves of the 16th digit, where rounding goes to
    // the even digit.
    value = std::pow(10.0, std::uniform_real_distribution<double>(-19, 16)(random));
    values.push_back(value);
    const double tie = static_cast<double>(random() % 900000000000000u + 100000000000000u) + 0.5;
    values.push_back(std::ldexp(tie, static_cast<int>(random() % 100) - 60));
    // Whole numbers up to 10^15 and beyond, where they take the exponent.
    values.push_back(static_cast<double>(static_cast<std::int64_t>(random() % 4000000000000000u) - 2000000000000000));
    values.push_back(static_cast<double>(static_cast<int>(random() % 20001) - 10000));
  }
  for (const double edge : {1e-18, 1e15, 1e14, 1.0, 999999999999999.0, 4503599627370496.0})
    values.insert(values.end(), {edge, std::nextafter(edge, 0.0), std::nextafter(edge, 1e300)});
  for (const double value : values) {
    char reference[40];
    std::snprintf(reference, sizeof reference, "%.14e", value);
    const std::string text = digits(value);
    ASSERT_EQ(significantDigits(text), significantDigits(reference)) << reference << " written as " << text;
    ASSERT_EQ(std::strtod(text.c_str(), nullptr), std::strtod(reference, nullptr))
        << reference << " written as " << text;
  }
}

TEST(NumberFormsRounding, HalvesGoToTheEvenInteger) {
  const std::pair<double, double> cases[] = {{0.5, 0.0},   {1.5, 2.0},   {2.5, 2.0},    {3.5, 4.0},
                                             {-2.5, -2.0}, {-3.5, -4.0}, {2.4999, 2.0}, {2.5001, 3.0}};
  for (const auto& [value, rounded] : cases)
    EXPECT_EQ(roundHalfEven(value), rounded) << value;
}

TEST(NumberFormsRounding, ToInt16KeepsToItsRange) {
  EXPECT_EQ(toInt16(32767.4), 32767);
  EXPECT_EQ(toInt16(-32768.5), -32768);
  EXPECT_EQ(toInt16(2.5), 2);
  EXPECT_EQ(toInt16(-7.5), -8);
  EXPECT_EQ(raisedCode([] { toInt16(32767.5); }), 6);
  EXPECT_EQ(raisedCode([] { toInt16(-32769.0); }), 6);
  EXPECT_EQ(raisedCode([] { toInt32(2147483647.5); }), 6);
}

TEST(NumberFormsRounding, OverflowErrorCarriesNumberAndText) {
  try {
    toInt16(40000.0);
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 6);
    EXPECT_EQ(error.text(), "Overflow");
    EXPECT_STREQ(error.what(), "Run-time error '6': Overflow");
  }
}

TEST(NumberFormsEntry, LongestNumericPrefixOrZero) {
  const std::pair<const char*, double> cases[] = {
      {"", 0.0},    {"abc", 0.0},        {"12abc", 12.0}, {"  3.5e2x", 350.0}, {".5", 0.5}, {"-.25", -0.25},
      {"1e", 1.0},  {"1E+", 1.0},        {"1.2.3", 1.2},  {"+7", 7.0},         {"-", 0.0},  {".", 0.0},
      {"0.5", 0.5}, {"1.5E-05", 1.5e-5}, {"1E+16", 1e16}, {"\t42 17", 42.0},   {"- 5", 0.0}};
  for (const auto& [text, value] : cases)
    EXPECT_EQ(numberEntry(text), value) << '"' << text << '"';
}

TEST(NumberFormsEntry, StrictIntegerConversion) {
  EXPECT_EQ(textToInt16(" 12 "), 12);
  EXPECT_EQ(textToInt16("-2.5"), -2);
  EXPECT_EQ(raisedCode([] { textToInt16(""); }), 13);
  EXPECT_EQ(raisedCode([] { textToInt16("abc"); }), 13);
  EXPECT_EQ(raisedCode([] { textToInt16("12abc"); }), 13);
  EXPECT_EQ(raisedCode([] { textToInt16("32768"); }), 6);
}

TEST(RuntimeErrorPlace, DeepestPlaceIsKept) {
  const RuntimeError inner = RuntimeError(ErrorCode::InputPastEndOfFile).at("Item 4, line 2");
  EXPECT_EQ(inner.where(), "Item 4, line 2");
  EXPECT_STREQ(inner.what(), "Run-time error '62': Input past end of file\nItem 4, line 2");
  EXPECT_EQ(inner.at("File: pop.txt").where(), "Item 4, line 2");
}

} // namespace
} // namespace vorlex
