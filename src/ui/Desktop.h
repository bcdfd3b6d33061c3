#pragma once

#include "mainform/MainForm.h"
#include "model/Session.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>

class QMessageBox;
class QWidget;

namespace vorlex {
class Prompter;
}

namespace vorlex::ui {

class CarryWindow;
class EtAtWindow;
class LargeGraphWindow;
class MainWindow;

/// One start of the desktop program: the session with its main form logic,
/// and the windows that show it. A click on a control runs its handler of
/// the main form logic, then every window shows the states the handler
/// left: which forms show, what each control says and whether it is
/// enabled, what the charts hold. A run-time error ends the session as it
/// ends the command line: its message, the files closed as they stand; then
/// the user starts again with a fresh session or quits.
class Desktop : public QObject {
  Q_OBJECT
public:
  /// Questions go to `prompter`: dialogs in the program, given answers in
  /// tests.
  explicit Desktop(Prompter& prompter);
  ~Desktop() override;

  /// Loads the main form and shows it; Timer1 starts.
  void start();

  /// The session on show; a fresh one after "Start again".
  Session& session() { return *session_; }
  MainForm& form() { return *form_; }
  MainWindow& mainWindow() { return *mainWindow_; }
  LargeGraphWindow& largeGraphWindow() { return *largeGraphWindow_; }
  CarryWindow& carryWindow() { return *carryWindow_; }
  EtAtWindow& etAtWindow() { return *etAtWindow_; }
  /// The window of a form by its name ("Mainform", "grafform", "Quiz", ...).
  QWidget* formWindow(const std::string& form) const;

  /// A click on a control of the main form or of grafform, by name.
  void clickMain(const QString& control);
  void clickLargeGraphs(const QString& control);
  /// A click on a control of the carrying-capacity form or of the
  /// threshold form, by name; an edit of a threshold box, Enter in one.
  void clickCarryingCapacity(const QString& control);
  void clickThreshold(const QString& control);
  void changeThresholdBox(const QString& box, const QString& text);
  void pressEnterInThresholdBox(const QString& box);
  /// An activation of the main form's chart or of the large chart.
  void activateMainChart();
  void activateLargeChart();

  /// What the user chose after a run-time error ended the session.
  enum class AfterError { StartAgain, Quit };
  /// Shows the message of a run-time error that ended the session and asks
  /// what now: a message box with the message, "Start again" and "Quit",
  /// unless tests replace it.
  std::function<AfterError(const QString& title, const QString& text)> showError;
  /// The message box of showError, parented to `parent`; the caller runs it.
  static QMessageBox* errorBox(QWidget* parent, const QString& title, const QString& text);
  /// Button captions of that box.
  static constexpr const char* kStartAgain = "Start again";
  static constexpr const char* kQuit = "Quit";
  /// Prints a form; the print dialog unless tests replace it.
  std::function<void(QWidget& form)> printForm;

  /// Whether the session has ended (its files closed, nothing runs).
  bool ended() const { return ended_; }

signals:
  /// The program ends with this exit code: the closing screen's button,
  /// the main form closed, or Quit after a run-time error (status 1).
  void programEnded(int exitCode);
  /// A fresh session has started after a run-time error.
  void sessionRestarted();

private:
  void handle(const std::function<void()>& handler);
  void showAll();
  void showCharts();
  void endSession();
  void endProgram(int exitCode);
  void afterError(const QString& text);
  void startAgain();
  void buildOtherForms();
  void tick();

  Prompter& prompter_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<MainForm> form_;
  std::unique_ptr<MainWindow> mainWindow_;
  std::unique_ptr<LargeGraphWindow> largeGraphWindow_;
  std::unique_ptr<CarryWindow> carryWindow_;
  std::unique_ptr<EtAtWindow> etAtWindow_;
  std::map<std::string, std::unique_ptr<QWidget>> otherForms_;
  QTimer timer1_;
  bool ended_ = false;
  bool programOver_ = false;
};

} // namespace vorlex::ui
