#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace vorlex {
class Session;
} // namespace vorlex

namespace vorlex::ui {

/// The widgets of "Data file check" (CheckDat): the report in a tall view
/// that scrolls, the verdict under it in bold, and Back. It shows the
/// states of the session (the controls named "CheckDat.<name>").
///
/// Back and closing the window by its frame both emit backClicked().
class CheckDataWindow : public QWidget {
  Q_OBJECT
public:
  explicit CheckDataWindow(QWidget* parent = nullptr);

  void showStates(const Session& session);
  QPlainTextEdit* report() const { return report_; }
  QLabel* verdict() const { return verdict_; }

signals:
  void backClicked();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  QPlainTextEdit* report_;
  QLabel* verdict_;
  QPushButton* back_;
};

} // namespace vorlex::ui
