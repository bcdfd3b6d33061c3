#include "textio/Prompter.h"

#include "textio/NumberForms.h"

namespace vorlex {

double askNumber(Prompter& prompter, const std::string& prompt, const std::string& title,
                 const std::string& defaultText) {
  const std::string typed = prompter.askValue(prompt, title, defaultText);
  const double read = numberEntry(typed);
  if (!isNumericText(typed))
    prompter.noteNumberRead(title, typed, read);
  return read;
}

} // namespace vorlex
