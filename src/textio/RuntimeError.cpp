#include "textio/RuntimeError.h"

namespace vorlex {

std::string errorText(ErrorCode code) {
  switch (code) {
  case ErrorCode::InvalidProcedureCall: return "Invalid procedure call or argument";
  case ErrorCode::Overflow: return "Overflow";
  case ErrorCode::SubscriptOutOfRange: return "Subscript out of range";
  case ErrorCode::DivisionByZero: return "Division by zero";
  case ErrorCode::TypeMismatch: return "Type mismatch";
  case ErrorCode::BadFileNameOrNumber: return "Bad file name or number";
  case ErrorCode::FileNotFound: return "File not found";
  case ErrorCode::FileAlreadyOpen: return "File already open";
  case ErrorCode::DeviceIOError: return "Device I/O error";
  case ErrorCode::DiskFull: return "Disk full";
  case ErrorCode::InputPastEndOfFile: return "Input past end of file";
  case ErrorCode::PermissionDenied: return "Permission denied";
  case ErrorCode::PathFileAccessError: return "Path/File access error";
  case ErrorCode::PathNotFound: return "Path not found";
  }
  return "Application-defined or object-defined error";
}

std::string RuntimeError::likelyCause() const {
  switch (code_) {
  case ErrorCode::InvalidProcedureCall:
    return "a calculation was asked for something it can't do, such as the logarithm of a size that is not "
           "above -1 (a population or rate that became negative), or a strategy this version does not run.";
  case ErrorCode::Overflow:
    return "a number grew beyond what it can hold: a whole number (age, stage, day, simulation time, answer) "
           "outside -32768..32767, or a size beyond about 1E+308.";
  case ErrorCode::SubscriptOutOfRange:
    return "a value in the data file or an answer lies outside the tables' bounds: ages 0-1005, stages 1-12, "
           "days 0-1005; the simulation time can be at most 1004.";
  case ErrorCode::DivisionByZero:
    return "a quantity the calculation divides by is 0, such as a carrying capacity K(t) of 0 or a population "
           "of size 0.";
  case ErrorCode::TypeMismatch:
    return "an answer or an item of the data file that must be a number is not one.";
  case ErrorCode::BadFileNameOrNumber:
    return "a file was to be used that is not open, for example after a file dialog was cancelled.";
  case ErrorCode::FileNotFound:
    return "there is no file at that path.";
  case ErrorCode::FileAlreadyOpen:
    return "a file that is still open was to be opened a second time.";
  case ErrorCode::DeviceIOError:
    return "the device refused to take what was written to the file.";
  case ErrorCode::DiskFull:
    return "there is no room left on the disk for the file; the files written before it are complete.";
  case ErrorCode::InputPastEndOfFile:
    return "the data file ended before all of its items were read: a line or block is missing, or a count "
           "in the file (stages, last age, releases, controls) does not match the lines that follow.";
  case ErrorCode::PermissionDenied:
    return "the program may not read or write that file or folder.";
  case ErrorCode::PathFileAccessError:
    return "the file can't be opened: it may be a folder, be write-protected, or lie on a device that "
           "refuses it.";
  case ErrorCode::PathNotFound:
    return "the folder of the file does not exist.";
  }
  return "an error the program does not describe.";
}

namespace {

// Control characters of a broken file, shown as \xNN; the line feeds that
// separate the lines of a place stay.
std::string escaped(const std::string& text) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte < 0x20 && c != '\n') || byte == 0x7F) {
      out += "\\x";
      out += kHex[byte >> 4];
      out += kHex[byte & 0xF];
    } else {
      out += c;
    }
  }
  return out;
}

std::string fullMessage(ErrorCode code, const std::string& where) {
  std::string message = "Run-time error '" + std::to_string(static_cast<int>(code)) +
                        "': " + errorText(code);
  if (!where.empty())
    message += "\n" + where;
  return message;
}
} // namespace

RuntimeError::RuntimeError(ErrorCode code, std::string where)
    : std::runtime_error(fullMessage(code, escaped(where))), code_(code), where_(escaped(where)) {}

RuntimeError RuntimeError::at(const std::string& where) const {
  if (!where_.empty())
    return *this;
  return RuntimeError(code_, where);
}

void raise(ErrorCode code, std::string where) { throw RuntimeError(code, std::move(where)); }

} // namespace vorlex
