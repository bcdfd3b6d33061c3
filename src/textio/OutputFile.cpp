#include "textio/OutputFile.h"

#include "textio/RuntimeError.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace vorlex {

OutputFile::OutputFile(int fd, std::string name, bool replacing)
    : fd_(fd), name_(std::move(name)), replacing_(replacing) {
  grow(fd >= 0 ? kBlockSize + 1024 : 1024);
}

void OutputFile::grow(std::size_t needed) {
  const std::size_t capacity = std::max(needed, 2 * capacity_);
  auto larger = std::make_unique_for_overwrite<char[]>(capacity);
  std::copy_n(buffer_.get(), size_, larger.get());
  buffer_ = std::move(larger);
  capacity_ = capacity;
}

OutputFile::OutputFile(OutputFile&& other) noexcept
    : buffer_(std::move(other.buffer_)), size_(std::exchange(other.size_, 0)),
      capacity_(std::exchange(other.capacity_, 0)), fd_(std::exchange(other.fd_, -1)), name_(std::move(other.name_)),
      replacing_(other.replacing_), handedOver_(other.handedOver_), lineStart_(other.lineStart_),
      looked_(other.looked_) {}

OutputFile::~OutputFile() {
  if (fd_ < 0)
    return;
  try {
    close();
  } catch (const RuntimeError&) {
    // Nothing to tell at this point: the file is left as far as it went.
  }
}

int OutputFile::column() const {
  const char* text = buffer_.get();
  for (auto at = static_cast<long long>(size_); at > looked_; --at)
    if (text[at - 1] == '\n') {
      lineStart_ = at;
      break;
    }
  looked_ = static_cast<long long>(size_);
  return static_cast<int>(1 + static_cast<long long>(size_) - lineStart_);
}

bool OutputFile::handOver() {
  column(); // where the line starts, found before its text goes
  std::size_t done = 0;
  while (done < size_) {
    const ssize_t written = ::write(fd_, buffer_.get() + done, size_ - done);
    if (written < 0 && errno == EINTR)
      continue;
    if (written <= 0) {
      if (written == 0)
        errno = ENOSPC;
      std::copy(buffer_.get() + done, buffer_.get() + size_, buffer_.get());
      size_ -= done;
      lineStart_ -= static_cast<long long>(done);
      looked_ = std::max(looked_ - static_cast<long long>(done), 0LL);
      handedOver_ += static_cast<long long>(done);
      return false;
    }
    done += static_cast<std::size_t>(written);
  }
  handedOver_ += static_cast<long long>(done);
  lineStart_ -= static_cast<long long>(size_);
  looked_ = 0;
  size_ = 0;
  return true;
}

void OutputFile::raiseWriteFailure() const {
  raise(errno == ENOSPC ? ErrorCode::DiskFull : ErrorCode::DeviceIOError, name_.empty() ? "" : "File: " + name_);
}

std::string rule(char c, int count) {
  if (count < 0)
    raise(ErrorCode::InvalidProcedureCall, "a rule of negative length");
  std::string line(static_cast<std::size_t>(count) + 1, c);
  line[0] = ' ';
  return line;
}

OutputFile OutputFile::inMemory() { return OutputFile(-1, {}, false); }

void OutputFile::endLine() {
  char* at = room(2);
  at[0] = '\r';
  at[1] = '\n';
  size_ += 2;
  lineStart_ = looked_ = static_cast<long long>(size_);
  if (fd_ >= 0 && size_ >= kBlockSize && !handOver())
    raiseWriteFailure();
}

std::string OutputFile::text() const { return fd_ < 0 ? std::string(buffer_.get(), size_) : std::string{}; }

void OutputFile::flush() {
  if (fd_ >= 0 && !handOver())
    raiseWriteFailure();
}

void OutputFile::close() {
  if (fd_ < 0)
    return;
  const int fd = fd_;
  bool written = handOver();
  int failure = written ? 0 : errno;
  // Written over, the file loses what lay beyond the new text. Only a
  // file on the disk has a length to cut: not a device, not a pipe.
  struct stat status {};
  if (written && replacing_ && fstat(fd, &status) == 0 && S_ISREG(status.st_mode) &&
      status.st_size != handedOver_ && ftruncate(fd, handedOver_) != 0) {
    written = false;
    failure = errno;
  }
  fd_ = -1;
  if (::close(fd) != 0 && written) {
    written = false;
    failure = errno;
  }
  if (!written) {
    errno = failure;
    raiseWriteFailure();
  }
}

void OutputFile::put(const Value& value) {
  if (value.isNumber())
    put(value.toNumber());
  else
    putText(value.toText());
}

void OutputFile::putBlanks(int count) {
  if (count <= 0)
    return;
  const auto blanks = static_cast<std::size_t>(count);
  std::fill_n(room(blanks), blanks, ' ');
  size_ += blanks;
}

void OutputFile::put(Tab tab) {
  const int target = tab.column < 1 ? 1 : tab.column;
  int at = column();
  if (at > target) {
    endLine();
    at = 1;
  }
  putBlanks(target - at);
}

void OutputFile::put(Spc spc) { putBlanks(spc.count); }

void OutputFile::put(Zone) {
  const int at = column();
  const int next = ((at - 1) / kZoneWidth + 1) * kZoneWidth + 1;
  putBlanks(next - at);
}

void OutputFile::writeItem(std::string_view text, bool first) {
  if (!first)
    putText(",");
  putText("\"");
  putText(text);
  putText("\"");
}

void OutputFile::writeItem(const Value& value, bool first) {
  if (value.isNumber())
    writeNumber(value.toNumber(), first);
  else
    writeItem(value.toText(), first);
}

void OutputFile::putNumber(double number) {
  char* at = room(kNumberTextRoom);
  const std::size_t size = writeBlankLed(number, at);
  at[size] = ' ';
  size_ += size + 1;
}

void OutputFile::writeNumber(double number, bool first) {
  char* const start = room(kNumberTextRoom + 1);
  char* at = start;
  if (!first)
    *at++ = ',';
  at += writeDigits(number, at);
  size_ += static_cast<std::size_t>(at - start);
}

} // namespace vorlex
