#pragma once

#include <stdexcept>
#include <string>

namespace vorlex {

/// The run-time failures the program can stop with, numbered as users of
/// the field know them from the messages of their tools.
enum class ErrorCode : int {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  BadFileNameOrNumber = 52,
  FileNotFound = 53,
  FileAlreadyOpen = 55,
  DeviceIOError = 57,
  DiskFull = 61,
  InputPastEndOfFile = 62,
  PermissionDenied = 70,
  PathFileAccessError = 75,
  PathNotFound = 76,
};

/// The standard text of an error number, e.g. "Subscript out of range".
std::string errorText(ErrorCode code);

/// The one error type of the program. It carries the error number, its
/// standard text and where it happened (data file, item, line), so that the
/// edges can tell the user exactly what stopped the work.
class RuntimeError : public std::runtime_error {
public:
  explicit RuntimeError(ErrorCode code, std::string where = {});

  ErrorCode code() const { return code_; }
  int number() const { return static_cast<int>(code_); }
  /// The standard text alone, e.g. "Overflow".
  std::string text() const { return errorText(code_); }
  /// Where it happened; empty when nobody said. Control characters that
  /// came with it (from a broken file) are shown escaped, as \xNN.
  const std::string& where() const { return where_; }
  /// One sentence in plain words on the likely cause.
  std::string likelyCause() const;

  /// A copy that says where it happened, unless a deeper place was already
  /// given.
  RuntimeError at(const std::string& where) const;

private:
  ErrorCode code_;
  std::string where_;
};

/// The program ends on purpose, not through a fault: a guard of the
/// program decided that going on makes no sense. Carries what the user was
/// told.
class ProgramEnd : public std::runtime_error {
public:
  explicit ProgramEnd(const std::string& reason) : std::runtime_error(reason) {}
};

/// Stops the work with the given error.
[[noreturn]] void raise(ErrorCode code, std::string where = {});

} // namespace vorlex
