#pragma once

#include "textio/AnswerLines.h"
#include "textio/Prompter.h"

#include <deque>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace vorlex::cli {

using vorlex::AnswerError;

/// Answers every prompt by its title with the answers given on the command
/// line, and prints each prompt with the answer it used.
///
/// A title asked several times takes its answers in the order given. Without
/// an answer a value prompt takes its default text, a yes-or-no question No
/// and a file dialog Cancel.
class AnswerPrompter : public Prompter {
public:
  explicit AnswerPrompter(std::ostream& out) : out_(out) {}

  /// "Title=Value", as answerOf reads it.
  void addAnswer(const std::string& titleAndValue);
  /// The answers of a file, as answersOf reads them.
  void addAnswersFromFile(const std::string& path);
  /// Adds an answer after those given for the same title.
  void add(Answer answer);
  /// Puts an answer ahead of those given for the same title.
  void answerFirst(const std::string& title, const std::string& value);
  /// Whether an answer for a title is still waiting to be used.
  bool hasAnswerFor(const std::string& title) const;
  /// Titles given answers that were never asked, one entry per answer left.
  std::vector<std::string> unusedAnswers() const;

  std::string askValue(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override;
  bool askYesNo(const std::string& prompt, const std::string& title) override;
  void inform(const std::string& prompt, const std::string& title) override;
  std::string chooseFileToOpen(const std::string& title) override;
  std::string chooseFileToSave(const std::string& title) override;
  /// Shows, under the question, what number entry made of the answer.
  void noteNumberRead(const std::string& title, const std::string& typed, double read) override;

private:
  /// The next answer for a title, if one was given.
  bool take(const std::string& title, std::string& answer);
  void show(const std::string& title, const std::string& prompt, const std::string& answer, bool given);

  std::ostream& out_;
  std::map<std::string, std::deque<std::string>> answers_;
};

} // namespace vorlex::cli
