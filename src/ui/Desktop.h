#pragma once

#include "mainform/MainForm.h"
#include "model/Session.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>

class QWidget;

namespace vorlex {
class Prompter;
}

namespace vorlex::ui {

class LargeGraphWindow;
class MainWindow;

/// One start of the desktop program: the session with its main form logic,
/// and the windows that show it. A click on a control runs its handler of
/// the main form logic, then every window shows the states the handler
/// left: which forms show, what each control says and whether it is
/// enabled, what the charts hold. Run-time errors end the program after
/// their message, as they end the command line.
class Desktop : public QObject {
  Q_OBJECT
public:
  /// Questions go to `prompter`: dialogs in the program, given answers in
  /// tests.
  explicit Desktop(Prompter& prompter);
  ~Desktop() override;

  /// Loads the main form and shows it; Timer1 starts.
  void start();

  Session& session() { return session_; }
  MainForm& form() { return form_; }
  MainWindow& mainWindow() { return *mainWindow_; }
  LargeGraphWindow& largeGraphWindow() { return *largeGraphWindow_; }
  /// The window of a form by its name ("Mainform", "grafform", "Quiz", ...).
  QWidget* formWindow(const std::string& form) const;

  /// A click on a control of the main form or of grafform, by name.
  void clickMain(const QString& control);
  void clickLargeGraphs(const QString& control);
  /// An activation of the main form's chart or of the large chart.
  void activateMainChart();
  void activateLargeChart();

  /// Shows a run-time error; a message box unless tests replace it.
  std::function<void(const QString& title, const QString& text)> showError;
  /// Prints a form; the print dialog unless tests replace it.
  std::function<void(QWidget& form)> printForm;

  bool ended() const { return ended_; }

signals:
  /// The program ends with this exit code: the closing screen's button,
  /// the main form closed, or a run-time error.
  void programEnded(int exitCode);

private:
  void handle(const std::function<void()>& handler);
  void showAll();
  void showCharts();
  void endProgram(int exitCode);
  void tick();

  Session session_;
  MainForm form_;
  std::unique_ptr<MainWindow> mainWindow_;
  std::unique_ptr<LargeGraphWindow> largeGraphWindow_;
  std::map<std::string, std::unique_ptr<QWidget>> otherForms_;
  QTimer timer1_;
  bool ended_ = false;
};

} // namespace vorlex::ui
