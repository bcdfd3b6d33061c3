#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vorlex {

// How numbers look in every file of the program.
//
//   value   digits   blankLed   stripped   printForm
//   0.5     ".5"     " .5"      ".5"       " .5 "
//   12      "12"     " 12"      "12"       " 12 "
//   -3      "-3"     "-3"       "3"        "-3 "
//
// The digits are the shortest text of up to 15 significant digits, without a
// zero before the decimal point; very large and very small magnitudes go to
// exponent form ("1E+16", "1.5E-05").

/// The digits of a number; the item form of a write line.
std::string digits(double value);
/// The digits with a blank in front of a number that is not negative.
std::string blankLed(double value);
/// The blank-led form without its first character. Drops a minus sign.
std::string stripped(double value);
/// The blank-led form with one blank behind, as a print line writes numbers.
std::string printForm(double value);

/// Room for any of the forms above: a buffer of this many characters
/// takes what writeDigits or writeBlankLed write, and one blank more.
inline constexpr std::size_t kNumberTextRoom = 34;
/// The digits into `out`, without an allocation; the characters written.
std::size_t writeDigits(double value, char* out);
/// The blank-led form into `out`; the characters written.
std::size_t writeBlankLed(double value, char* out);

/// A number in the stripped, blank-led or print form, held in place rather
/// than in a string of its own: rows of numbers are made of many of them.
/// A print line writes it straight into its text; read as a string_view it
/// is written into a text of its own, once. Joined to a text with + it
/// gives a string.
class NumberText {
public:
  enum class Form { Stripped, BlankLed, Print };
  NumberText(double value, Form form) : value_(value), form_(form) {}
  /// Writes the form into `out`, which has room for kNumberTextRoom
  /// characters; the characters written.
  std::size_t writeInto(char* out) const;
  std::string_view view() const {
    if (size_ == 0)
      size_ = static_cast<unsigned char>(writeInto(text_));
    return {text_, size_};
  }
  operator std::string_view() const { return view(); }
  std::string str() const { return std::string(view()); }
  friend std::string operator+(const NumberText& number, std::string_view text) {
    return std::string(number.view()).append(text);
  }
  friend std::string operator+(std::string text, const NumberText& number) { return text.append(number.view()); }

private:
  double value_;
  Form form_;
  mutable unsigned char size_ = 0; // 0 until written: every form has a character
  mutable char text_[kNumberTextRoom];
};

/// Rounds to the nearest integer, ties to the even one.
double roundHalfEven(double value);
/// Rounds to a 16-bit integer, ties to even; Overflow outside -32768..32767.
std::int16_t toInt16(double value);
/// Rounds to a 32-bit integer, ties to even; Overflow outside its range.
std::int32_t toInt32(double value);
/// A whole number that must fit 16 bits, such as the result of 16-bit
/// arithmetic; Overflow outside -32768..32767.
std::int16_t checkedInt16(long long value);

/// Length of the longest numeric prefix of text (sign, digits, decimal
/// point, exponent), 0 when there is none.
std::size_t numericPrefixLength(std::string_view text);
/// Whether the whole text, leading and trailing blanks aside, is a number.
bool isNumericText(std::string_view text);
/// Number entry: the value of the longest numeric prefix of text, after
/// leading blanks; a text without one gives 0. Overflow for a number beyond
/// the range of a double.
double numberEntry(std::string_view text);
/// Strict conversion of a text to a 16-bit integer: the text must be a
/// number as a whole (Type mismatch otherwise, the empty text included),
/// rounded ties to even (Overflow outside the range).
std::int16_t textToInt16(std::string_view text);
/// Strict conversion of a text to a double, Type mismatch if it isn't one.
double textToDouble(std::string_view text);

} // namespace vorlex
