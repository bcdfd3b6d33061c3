#include "textio/AnswerLines.h"

namespace vorlex {

Answer answerOf(const std::string& titleAndValue) {
  const auto equals = titleAndValue.rfind('=');
  if (equals == std::string::npos || equals == 0)
    throw AnswerError("an answer is written TITLE=VALUE, not '" + titleAndValue + "'");
  return {titleAndValue.substr(0, equals), titleAndValue.substr(equals + 1)};
}

std::vector<Answer> answersOf(std::string_view text) {
  std::vector<Answer> answers;
  while (!text.empty()) {
    const auto end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (!line.empty() && line.back() == '\r')
      line.remove_suffix(1);
    const auto start = line.find_first_not_of(" \t");
    if (start == std::string_view::npos || line[start] == '#')
      continue;
    answers.push_back(answerOf(std::string(line)));
  }
  return answers;
}

} // namespace vorlex
