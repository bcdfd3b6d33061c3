#pragma once

#include "textio/NumberForms.h"
#include "textio/Value.h"

#include <algorithm>
#include <concepts>
#include <memory>
#include <string>
#include <string_view>

namespace vorlex {

/// Moves a print line to column n (the first column is 1); to that column of
/// the next line if the line is already beyond it.
struct Tab {
  int column;
};
/// Writes n blanks.
struct Spc {
  int count;
};
/// Moves a print line to the next print zone, the comma of a print list.
struct Zone {};

/// One blank followed by count copies of c: the rules above and below the
/// tables of the report and the harvest file.
std::string rule(char c, int count);

/// A text file being written, with the print and write lines that every
/// report and data file of the program is made of. Lines end in CR LF.
///
///   file.print("Total =", 12.0);            // "Total = 12 "
///   file.printOpen("a");  file.print("b");  // "ab"
///   file.print("x", Zone{}, "y");           // "x" then "y" at column 15
///   file.write("Egg", 0.5, -3.0);           // "\"Egg\",.5,-3"
class OutputFile {
public:
  static constexpr int kZoneWidth = 14;

  /// A file written to the open file descriptor `fd`, which it owns; `name`
  /// says which file a write failure happened in. A file opened to replace
  /// what it held (`replacing`) is cut to what was written when it closes:
  /// it was written over rather than emptied first, which costs the system
  /// far less when a run writes its files again.
  OutputFile(int fd, std::string name, bool replacing);
  /// A file that collects its text in memory, see text().
  static OutputFile inMemory();
  OutputFile(OutputFile&& other) noexcept;
  OutputFile& operator=(OutputFile&&) = delete;
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  /// A file not closed hands over what it holds, quietly.
  ~OutputFile();

  /// Print line: the items one after the other, numbers in the print form,
  /// texts as they stand; the line is ended.
  template <typename... Items> void print(const Items&... items) {
    (put(items), ...);
    endLine();
  }
  /// Print line left open, so that the next print continues it.
  template <typename... Items> void printOpen(const Items&... items) { (put(items), ...); }

  /// Write line: items separated by commas, numbers in the item form, texts
  /// in double quotes; the line is ended.
  template <typename... Items> void write(const Items&... items) {
    bool first = true;
    ((writeItem(items, first), first = false), ...);
    endLine();
  }

  void endLine();
  /// The column the next character goes to; the first is 1.
  int column() const;
  /// The text written so far, for a file made by inMemory().
  std::string text() const;
  /// Hands what is buffered to the system; Disk full (or Device I/O error)
  /// when the system does not take it.
  void flush();
  /// Flushes and closes the file, with the same checks.
  void close();

private:
  void putText(std::string_view text) {
    std::copy(text.begin(), text.end(), room(text.size()));
    size_ += text.size();
  }
  void put(std::string_view text) { putText(text); }
  void put(const NumberText& number) { size_ += number.writeInto(room(kNumberTextRoom)); }
  void put(const std::string& text) { putText(text); }
  void put(const char* text) { putText(text); }
  void put(const Value& value);
  void putBlanks(int count);
  void put(Tab tab);
  void put(Spc spc);
  void put(Zone);
  /// An item that writes itself into the line, piece by piece.
  template <typename Item>
    requires requires(const Item& item, OutputFile& file) { item.putInto(file); }
  void put(const Item& item) {
    item.putInto(*this);
  }
  template <typename Number>
    requires std::integral<Number> || std::floating_point<Number>
  void put(Number number) {
    putNumber(static_cast<double>(number));
  }
  void putNumber(double number);

  void writeItem(std::string_view text, bool first);
  void writeItem(const std::string& text, bool first) { writeItem(std::string_view(text), first); }
  void writeItem(const char* text, bool first) { writeItem(std::string_view(text), first); }
  void writeItem(const Value& value, bool first);
  template <typename Number>
    requires std::integral<Number> || std::floating_point<Number>
  void writeItem(Number number, bool first) {
    writeNumber(static_cast<double>(number), first);
  }
  void writeNumber(double number, bool first);
  // Hands the buffer to the system; false with errno set when it fails.
  bool handOver();
  void raiseWriteFailure() const;

  // Text is handed to the system in blocks of this size: a long run
  // writes megabytes, and each block is one call to the system.
  static constexpr std::size_t kBlockSize = 64 * 1024;

  // Room for `count` more characters at the end of the buffer.
  char* room(std::size_t count) {
    if (size_ + count > capacity_)
      grow(size_ + count);
    return buffer_.get() + size_;
  }
  void grow(std::size_t needed);

  std::unique_ptr<char[]> buffer_;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
  int fd_ = -1; // -1: the text stays in memory
  std::string name_;
  bool replacing_ = false;
  long long handedOver_ = 0; // bytes taken by the system
  // Where the line being written starts, counted from the start of the
  // buffer (below 0 once part of it has been handed over). A text may
  // carry line ends of its own: they are looked for only when the column
  // is asked, in what was written since it was asked last.
  mutable long long lineStart_ = 0;
  // The text before this point of the buffer has been looked at for them.
  mutable long long looked_ = 0;
};

} // namespace vorlex
