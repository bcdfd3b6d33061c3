#include "textio/FileTable.h"

#include <algorithm>

#include "textio/RuntimeError.h"

#include <cerrno>
#include <exception>
#include <fstream>
#include <memory>

namespace vorlex {

namespace {

// A file written in blocks of 64 KB: a long run writes megabytes, and each
// block is one call to the system. The block outlives the stream, which
// hands it its last lines when it closes.
struct WriteBlock {
  static constexpr std::size_t kSize = 64 * 1024;
  std::unique_ptr<char[]> block = std::make_unique<char[]>(kSize);
};

class BlockWrittenFile : private WriteBlock, public std::ofstream {
public:
  BlockWrittenFile(const std::string& path, std::ios::openmode mode) {
    rdbuf()->pubsetbuf(block.get(), kSize);
    open(path, mode);
  }
};

} // namespace

void FileTable::checkFree(int number) const {
  if (number < 1 || number > kLargestNumber)
    raise(ErrorCode::BadFileNameOrNumber);
  if (open_.contains(number))
    raise(ErrorCode::FileAlreadyOpen);
}

void FileTable::openWriting(int number, const std::string& path, bool append) {
  checkFree(number);
  if (path.empty())
    raise(ErrorCode::BadFileNameOrNumber);
  auto stream = std::make_unique<BlockWrittenFile>(
      path, std::ios::binary | std::ios::out | (append ? std::ios::app : std::ios::trunc));
  if (!*stream)
    raise(errno == ENOENT ? ErrorCode::PathNotFound : ErrorCode::PathFileAccessError,
          "File: " + path);
  Entry entry;
  entry.path = path;
  entry.output = std::make_unique<OutputFile>(std::move(stream), path);
  entry.openedAs = ++openings_;
  open_.emplace(number, std::move(entry));
  if (std::find(written_.begin(), written_.end(), path) == written_.end())
    written_.push_back(path);
}

void FileTable::openOutput(int number, const std::string& path) { openWriting(number, path, false); }

void FileTable::openAppend(int number, const std::string& path) { openWriting(number, path, true); }

void FileTable::openInput(int number, const std::string& path) {
  checkFree(number);
  if (path.empty())
    raise(ErrorCode::BadFileNameOrNumber);
  attachInput(number, ItemReader::fromFile(path), path);
}

void FileTable::attachOutput(int number, OutputFile file, std::string path) {
  checkFree(number);
  Entry entry;
  entry.path = std::move(path);
  entry.output = std::make_unique<OutputFile>(std::move(file));
  open_.emplace(number, std::move(entry));
}

void FileTable::attachInput(int number, ItemReader reader, std::string path) {
  checkFree(number);
  Entry entry;
  entry.path = std::move(path);
  entry.input = std::make_unique<ItemReader>(std::move(reader));
  open_.emplace(number, std::move(entry));
}

std::string FileTable::newestOpenOutput() const {
  const Entry* newest = nullptr;
  for (const auto& [number, entry] : open_)
    if (entry.output && !entry.path.empty() && (!newest || entry.openedAs > newest->openedAs))
      newest = &entry;
  return newest ? newest->path : std::string();
}

void FileTable::close(int number) {
  auto found = open_.find(number);
  if (found == open_.end())
    return; // closing a file that isn't open does nothing
  // The entry goes whether or not its last write is taken.
  const std::unique_ptr<OutputFile> output = std::move(found->second.output);
  open_.erase(found);
  if (output)
    output->close();
}

void FileTable::closeAll() {
  // Every file is closed; the first failure is told after the last.
  std::exception_ptr failure;
  while (!open_.empty()) {
    try {
      close(open_.begin()->first);
    } catch (const RuntimeError&) {
      if (!failure)
        failure = std::current_exception();
    }
  }
  if (failure)
    std::rethrow_exception(failure);
}

bool FileTable::isOpen(int number) const { return open_.contains(number); }

OutputFile& FileTable::output(int number) {
  auto found = open_.find(number);
  if (found == open_.end() || !found->second.output)
    raise(ErrorCode::BadFileNameOrNumber);
  return *found->second.output;
}

ItemReader& FileTable::input(int number) {
  auto found = open_.find(number);
  if (found == open_.end() || !found->second.input)
    raise(ErrorCode::BadFileNameOrNumber);
  return *found->second.input;
}

const std::string& FileTable::path(int number) const {
  auto found = open_.find(number);
  if (found == open_.end())
    raise(ErrorCode::BadFileNameOrNumber);
  return found->second.path;
}

} // namespace vorlex
