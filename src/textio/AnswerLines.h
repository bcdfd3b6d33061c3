#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vorlex {

/// An answer given on the command line that can't be used.
class AnswerError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The answer to the prompts of one title, as the command line gives it.
struct Answer {
  std::string title;
  std::string value;
};

/// "Title=Value": the value is what follows the last "=", since titles may
/// hold "=" themselves ("Each time unit =?=0.5"). Without a title, an
/// AnswerError.
Answer answerOf(const std::string& titleAndValue);

/// The answers of an answers file, in their order: one "Title=Value" a line,
/// lines ended LF or CR LF; empty lines, blank ones and lines starting with
/// # (after blanks) are passed over.
std::vector<Answer> answersOf(std::string_view text);

} // namespace vorlex
