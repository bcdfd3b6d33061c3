#pragma once

#include "textio/Prompter.h"

#include <QSize>

class QWidget;

namespace vorlex::ui {

/// Asks the user with the dialogs of the desktop: an input box with the
/// default text ready (Cancel gives the empty text), a question with Yes
/// and No and no icon, a notice with OK, and the file dialogs with a filter
/// for text files and one for all files, opening in the detail view with
/// room for names and dates.
class QtPrompter : public Prompter {
public:
  /// Dialogs are centred on `parent` when it shows.
  explicit QtPrompter(QWidget* parent = nullptr) : parent_(parent) {}
  void setParent(QWidget* parent) { parent_ = parent; }

  std::string askValue(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override;
  bool askYesNo(const std::string& prompt, const std::string& title) override;
  void inform(const std::string& prompt, const std::string& title) override;
  std::string chooseFileToOpen(const std::string& title) override;
  std::string chooseFileToSave(const std::string& title) override;

  /// The size the file dialogs open at: 900 x 600, or less on a screen too
  /// small for that.
  static QSize fileDialogSize(QWidget* parent);

  /// The filter of the file dialogs.
  static constexpr const char* kFileFilter = "Text files (*.txt);;All files (*)";

private:
  QWidget* parent_;
};

} // namespace vorlex::ui
