#include "textio/OutputFile.h"

#include "textio/RuntimeError.h"

#include <cerrno>
#include <fstream>

namespace vorlex {

OutputFile::OutputFile(std::unique_ptr<std::ostream> stream, std::string name)
    : stream_(std::move(stream)), name_(std::move(name)) {}

// A stream that failed tells why only through errno.
void OutputFile::checkWritten() {
  if (stream_->good())
    return;
  const bool full = errno == ENOSPC;
  stream_->clear();
  raise(full ? ErrorCode::DiskFull : ErrorCode::DeviceIOError, name_.empty() ? "" : "File: " + name_);
}

std::string rule(char c, int count) {
  if (count < 0)
    raise(ErrorCode::InvalidProcedureCall, "a rule of negative length");
  std::string line(static_cast<std::size_t>(count) + 1, c);
  line[0] = ' ';
  return line;
}

OutputFile OutputFile::inMemory() { return OutputFile(std::make_unique<std::ostringstream>()); }

void OutputFile::endLine() {
  *stream_ << "\r\n";
  column_ = 1;
  checkWritten();
}

std::string OutputFile::text() const {
  auto* memory = dynamic_cast<std::ostringstream*>(stream_.get());
  return memory ? memory->str() : std::string{};
}

void OutputFile::flush() {
  errno = 0;
  stream_->flush();
  checkWritten();
}

void OutputFile::close() {
  flush();
  if (auto* file = dynamic_cast<std::ofstream*>(stream_.get())) {
    errno = 0;
    file->close();
    checkWritten();
  }
}

void OutputFile::putText(std::string_view text) {
  stream_->write(text.data(), static_cast<std::streamsize>(text.size()));
  // A prompt-like text may carry its own line ends; the column follows them.
  const auto lastBreak = text.find_last_of('\n');
  if (lastBreak == std::string_view::npos)
    column_ += static_cast<int>(text.size());
  else
    column_ = 1 + static_cast<int>(text.size() - lastBreak - 1);
}

void OutputFile::put(const Value& value) {
  if (value.isNumber())
    put(value.toNumber());
  else
    putText(value.toText());
}

void OutputFile::put(Tab tab) {
  const int target = tab.column < 1 ? 1 : tab.column;
  if (column_ > target)
    endLine();
  putText(std::string(static_cast<std::size_t>(target - column_), ' '));
}

void OutputFile::put(Spc spc) {
  if (spc.count > 0)
    putText(std::string(static_cast<std::size_t>(spc.count), ' '));
}

void OutputFile::put(Zone) {
  const int next = ((column_ - 1) / kZoneWidth + 1) * kZoneWidth + 1;
  putText(std::string(static_cast<std::size_t>(next - column_), ' '));
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
  char text[kNumberTextRoom];
  const std::size_t size = writeBlankLed(number, text);
  text[size] = ' ';
  putText(std::string_view(text, size + 1));
}

void OutputFile::writeNumber(double number, bool first) {
  char text[kNumberTextRoom + 1];
  char* at = text;
  if (!first)
    *at++ = ',';
  at += writeDigits(number, at);
  putText(std::string_view(text, static_cast<std::size_t>(at - text)));
}

} // namespace vorlex
