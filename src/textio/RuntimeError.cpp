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
  case ErrorCode::InputPastEndOfFile: return "Input past end of file";
  case ErrorCode::PermissionDenied: return "Permission denied";
  case ErrorCode::PathFileAccessError: return "Path/File access error";
  case ErrorCode::PathNotFound: return "Path not found";
  }
  return "Application-defined or object-defined error";
}

namespace {
std::string fullMessage(ErrorCode code, const std::string& where) {
  std::string message = "Run-time error '" + std::to_string(static_cast<int>(code)) +
                        "': " + errorText(code);
  if (!where.empty())
    message += "\n" + where;
  return message;
}
} // namespace

RuntimeError::RuntimeError(ErrorCode code, std::string where)
    : std::runtime_error(fullMessage(code, where)), code_(code), where_(std::move(where)) {}

RuntimeError RuntimeError::at(const std::string& where) const {
  if (!where_.empty())
    return *this;
  return RuntimeError(code_, where);
}

void raise(ErrorCode code, std::string where) { throw RuntimeError(code, std::move(where)); }

} // namespace vorlex
