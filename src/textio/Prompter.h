#pragma once

#include <string>

namespace vorlex {

/// The one way the program talks with its user while it works. The desktop
/// program answers with dialogs, the command line with given answers.
/// Prompt texts of several lines have line feeds in them.
class Prompter {
public:
  virtual ~Prompter() = default;

  /// Asks for a value; the default stands ready. The empty text on Cancel.
  virtual std::string askValue(const std::string& prompt, const std::string& title,
                               const std::string& defaultText) = 0;
  /// Asks yes or no (buttons Yes and No); true for Yes.
  virtual bool askYesNo(const std::string& prompt, const std::string& title) = 0;
  /// Tells the user something; OK only.
  virtual void inform(const std::string& prompt, const std::string& title) = 0;
  /// Chooses a file to open; the empty text on Cancel.
  virtual std::string chooseFileToOpen(const std::string& title) = 0;
  /// Chooses a file to save to; the empty text on Cancel.
  virtual std::string chooseFileToSave(const std::string& title) = 0;
  /// Told when number entry read an answer as something else than typed
  /// ("abc" as 0, "12abc" as 12), so that the user can see it.
  virtual void noteNumberRead(const std::string& /*title*/, const std::string& /*typed*/, double /*read*/) {}
};

/// Asks for a value and reads it by number entry; an answer that is not a
/// number as typed is accepted as the rules say, and the prompter is told
/// what it was read as.
double askNumber(Prompter& prompter, const std::string& prompt, const std::string& title,
                 const std::string& defaultText);

/// Stores a yes-or-no answer as the flags of the program hold it.
inline std::string yesNo(bool yes) { return yes ? "Yes" : "No"; }

} // namespace vorlex
