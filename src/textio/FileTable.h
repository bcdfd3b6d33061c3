#pragma once

#include "textio/ItemReader.h"
#include "textio/OutputFile.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vorlex {

/// The open files, addressed by small numbers for as long as they are open:
/// 1 a file written by one routine, 2 the report, 3 the data file being
/// read, 4 the flow record (and a few more numbers that some writers use).
class FileTable {
public:
  static constexpr int kLargestNumber = 511;

  /// Opens a file for writing, replacing what it held.
  void openOutput(int number, const std::string& path);
  /// Opens a file for writing at its end.
  void openAppend(int number, const std::string& path);
  /// Opens a file for reading items.
  void openInput(int number, const std::string& path);
  /// Puts an in-memory file under a number; for tests and for text that
  /// doesn't come from the disk.
  void attachOutput(int number, OutputFile file, std::string path = {});
  void attachInput(int number, ItemReader reader, std::string path = {});

  void close(int number);
  void closeAll();
  bool isOpen(int number) const;

  /// The file open for writing under a number; Bad file name or number if
  /// there is none.
  OutputFile& output(int number);
  /// The file open for reading under a number; Bad file name or number if
  /// there is none.
  ItemReader& input(int number);
  /// The path a number was opened with.
  const std::string& path(int number) const;
  /// Every file opened for writing on the disk, once each, in the order of
  /// their first opening.
  const std::vector<std::string>& writtenPaths() const { return written_; }
  /// The path of the file opened for writing last among those still open;
  /// empty when none is.
  std::string newestOpenOutput() const;

private:
  struct Entry {
    std::string path;
    std::unique_ptr<OutputFile> output;
    std::unique_ptr<ItemReader> input;
    long long openedAs = 0; // the how-manieth opening
  };
  void checkFree(int number) const;
  void openWriting(int number, const std::string& path, bool append);

  std::map<int, Entry> open_;
  std::vector<std::string> written_;
  long long openings_ = 0;
};

} // namespace vorlex
