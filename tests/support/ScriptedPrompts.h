#pragma once

#include "cli/AnswerPrompter.h"

#include <sstream>
#include <string>
#include <vector>

namespace vorlex::testing {

/// Answers prompts by title as the command line does, and keeps the titles
/// and texts it was asked, in order.
class ScriptedPrompts : public cli::AnswerPrompter {
public:
  ScriptedPrompts() : cli::AnswerPrompter(shown_) {}

  std::vector<std::string> titles;
  std::vector<std::string> texts;

  ScriptedPrompts& answer(const std::string& titleAndValue) {
    addAnswer(titleAndValue);
    return *this;
  }
  std::string askValue(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override {
    note(prompt, title);
    return cli::AnswerPrompter::askValue(prompt, title, defaultText);
  }
  bool askYesNo(const std::string& prompt, const std::string& title) override {
    note(prompt, title);
    return cli::AnswerPrompter::askYesNo(prompt, title);
  }
  void inform(const std::string& prompt, const std::string& title) override {
    note(prompt, title);
    cli::AnswerPrompter::inform(prompt, title);
  }
  std::string chooseFileToOpen(const std::string& title) override {
    note("", title);
    return cli::AnswerPrompter::chooseFileToOpen(title);
  }
  std::string chooseFileToSave(const std::string& title) override {
    note("", title);
    return cli::AnswerPrompter::chooseFileToSave(title);
  }
  /// What the prompter printed, as the command line shows it.
  std::string shown() const { return shown_.str(); }

private:
  void note(const std::string& prompt, const std::string& title) {
    titles.push_back(title);
    texts.push_back(prompt);
  }
  std::ostringstream shown_;
};

} // namespace vorlex::testing
