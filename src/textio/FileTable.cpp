#include "textio/FileTable.h"

#include <algorithm>

#include "textio/RuntimeError.h"

#include <cerrno>
#include <exception>
#include <memory>

#include <fcntl.h>

namespace vorlex {

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
  // A file to replace is written over and cut to its new length when it
  // closes (see OutputFile), not emptied first.
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | (append ? O_APPEND : 0), 0666);
  if (fd < 0)
    raise(errno == ENOENT ? ErrorCode::PathNotFound : ErrorCode::PathFileAccessError, "File: " + path);
  Entry entry;
  entry.path = path;
  entry.output = std::make_unique<OutputFile>(fd, path, !append);
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
