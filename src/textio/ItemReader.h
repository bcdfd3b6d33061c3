#pragma once

#include "textio/Value.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vorlex {

/// Reads the items of a text file one after the other, whatever their
/// spread over lines:
/// - blanks and empty lines in front of an item are skipped;
/// - a quoted item runs to its closing quote;
/// - an unquoted text runs to the next comma or line end, trailing blanks
///   dropped; a number runs to the next comma, blank or line end;
/// - a comma or line end behind an item is consumed with it.
/// Reading beyond the last item stops with Input past end of file.
class ItemReader {
public:
  explicit ItemReader(std::string content);
  /// Reads a whole file; File not found when it can't be opened.
  static ItemReader fromFile(const std::string& path);

  /// A text item (a description or a name).
  std::string readText();
  /// A number item: the longest numeric prefix of the item, 0 if none.
  double readNumber();
  /// A 16-bit integer item: a number item rounded ties to even; Overflow
  /// outside -32768..32767.
  std::int16_t readInteger();
  /// A number-or-text item.
  Value readValue();

  /// True when nothing but blanks and line ends is left.
  bool atEnd() const;

  /// How many items were started so far; the last one is the one that
  /// failed when reading stopped.
  int itemNumber() const { return itemNumber_; }
  /// The line (from 1) on which the last item began.
  int line() const { return itemLine_; }

private:
  struct RawItem {
    std::string text;
    bool quoted = false;
  };
  enum class Kind { Text, Number };

  RawItem next(Kind kind);
  void skipSeparatorsBefore();
  void skipBlanks();
  void consumeDelimiter();
  bool atLineEnd() const;

  std::string content_;
  std::size_t position_ = 0;
  int currentLine_ = 1;
  int itemNumber_ = 0;
  int itemLine_ = 0;
};

} // namespace vorlex
