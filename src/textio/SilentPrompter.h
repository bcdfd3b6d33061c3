#pragma once

#include "textio/Prompter.h"

namespace vorlex {

/// A user who is never asked: every value prompt takes its default text,
/// every yes-or-no question No, every file dialog Cancel. For work that must
/// not stop to ask, such as reading a file to show what it holds.
class SilentPrompter : public Prompter {
public:
  std::string askValue(const std::string&, const std::string&, const std::string& defaultText) override {
    return defaultText;
  }
  bool askYesNo(const std::string&, const std::string&) override { return false; }
  void inform(const std::string&, const std::string&) override {}
  std::string chooseFileToOpen(const std::string&) override { return {}; }
  std::string chooseFileToSave(const std::string&) override { return {}; }
};

} // namespace vorlex
