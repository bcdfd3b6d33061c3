#include "cli/AnswerPrompter.h"

#include "textio/NumberForms.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>
#include <utility>

namespace vorlex::cli {

namespace {

std::string firstLine(const std::string& text) { return text.substr(0, text.find('\n')); }

std::string lowered(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

} // namespace

void AnswerPrompter::addAnswer(const std::string& titleAndValue) { add(answerOf(titleAndValue)); }

void AnswerPrompter::addAnswersFromFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in)
    throw AnswerError("cannot read the answers file '" + path + "'");
  std::ostringstream text;
  text << in.rdbuf();
  for (Answer& answer : answersOf(text.str()))
    add(std::move(answer));
}

void AnswerPrompter::add(Answer answer) { answers_[std::move(answer.title)].push_back(std::move(answer.value)); }

void AnswerPrompter::answerFirst(const std::string& title, const std::string& value) {
  answers_[title].push_front(value);
}

bool AnswerPrompter::hasAnswerFor(const std::string& title) const {
  const auto found = answers_.find(title);
  return found != answers_.end() && !found->second.empty();
}

std::vector<std::string> AnswerPrompter::unusedAnswers() const {
  std::vector<std::string> unused;
  for (const auto& [title, values] : answers_)
    unused.insert(unused.end(), values.size(), title);
  return unused;
}

bool AnswerPrompter::take(const std::string& title, std::string& answer) {
  auto found = answers_.find(title);
  if (found == answers_.end() || found->second.empty())
    return false;
  answer = found->second.front();
  found->second.pop_front();
  return true;
}

void AnswerPrompter::show(const std::string& title, const std::string& prompt, const std::string& answer,
                          bool given) {
  out_ << '[' << title << "] " << firstLine(prompt) << " => " << answer << (given ? "" : " (default)")
       << '\n';
}

std::string AnswerPrompter::askValue(const std::string& prompt, const std::string& title,
                                     const std::string& defaultText) {
  std::string answer;
  const bool given = take(title, answer);
  if (!given)
    answer = defaultText;
  show(title, prompt, answer.empty() ? "(Cancel)" : answer, given);
  return answer;
}

bool AnswerPrompter::askYesNo(const std::string& prompt, const std::string& title) {
  std::string answer;
  const bool given = take(title, answer);
  bool yes = false;
  if (given) {
    const std::string word = lowered(answer);
    if (word == "yes" || word == "y")
      yes = true;
    else if (word != "no" && word != "n")
      throw AnswerError("the answer to '" + title + "' is Yes or No, not '" + answer + "'");
  }
  show(title, prompt, yes ? "Yes" : "No", given);
  return yes;
}

void AnswerPrompter::inform(const std::string& prompt, const std::string& title) {
  out_ << '[' << title << "] " << prompt << '\n';
}

std::string AnswerPrompter::chooseFileToOpen(const std::string& title) {
  std::string answer;
  const bool given = take(title, answer);
  show(title, "(file to open)", answer.empty() ? "(Cancel)" : answer, given);
  return answer;
}

std::string AnswerPrompter::chooseFileToSave(const std::string& title) {
  std::string answer;
  const bool given = take(title, answer);
  show(title, "(file to save)", answer.empty() ? "(Cancel)" : answer, given);
  return answer;
}

void AnswerPrompter::noteNumberRead(const std::string&, const std::string&, double read) {
  out_ << "    (read as the number " << digits(read) << ")\n";
}

} // namespace vorlex::cli
