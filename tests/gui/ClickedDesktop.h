#pragma once

#include "GuiSupport.h"
#include "cli/AnswerPrompter.h"
#include "ui/Desktop.h"

#include <QStringList>
#include <QTemporaryDir>

#include <sstream>

namespace vorlex::testing {

/// A desktop session in a folder of its own, on a copy of the example,
/// its questions answered from a script: first the data file, then
/// `given`. Its error messages are kept as "title|text", with whether the
/// session had ended (files closed) when the message showed; the session
/// answers each with `afterError`. The caller starts the desktop, once
/// whatever watches it is in place.
struct ClickedDesktop {
  QTemporaryDir dir;
  QString dataFile = copyOfExample(dir);
  std::ostringstream asked;
  cli::AnswerPrompter answers{asked};
  ui::Desktop desktop{answers};
  QStringList errors;
  ui::Desktop::AfterError afterError = ui::Desktop::AfterError::Quit;
  bool endedWhenShown = false;

  explicit ClickedDesktop(const QStringList& given) {
    answers.addAnswer("Open the vorlex data file=" + dataFile.toStdString());
    for (const QString& answer : given)
      answers.addAnswer(answer.toStdString());
    desktop.session().shortDate = "2026-11-21";
    desktop.showError = [this](const QString& title, const QString& text) {
      errors << title + "|" + text;
      endedWhenShown = desktop.ended();
      return afterError;
    };
  }
};

} // namespace vorlex::testing
