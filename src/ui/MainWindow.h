#pragma once

#include <QString>
#include <QWidget>

#include <vector>

class QGridLayout;

namespace vorlex {
class MainForm;
class Session;
} // namespace vorlex

namespace vorlex::ui {

class ChartView;

/// The widgets of the main form, each named after its control ("cmdRun",
/// "txtSimuT", "Option3", ...). It holds no logic: a click is passed on by
/// name, and what each control shows, whether it is enabled and whether it
/// is visible comes from the session the main form logic keeps. The form
/// scrolls inside a window smaller than itself, and in a narrow window the
/// strategy options stand in one column.
class MainWindow : public QWidget {
  Q_OBJECT
public:
  explicit MainWindow(QWidget* parent = nullptr);

  /// Shows every control as the session holds it; a strategy option is
  /// enabled only when it can be chosen now.
  void showStates(const Session& session, const MainForm& form);
  /// Shows one label's caption alone (the clock).
  void showLabel(const Session& session, const char* name);
  /// Clears what only the widgets remember: the chosen strategy option.
  /// For a fresh session.
  void clearChoices();
  /// Hands what the user typed in the text boxes to the session.
  void takeTexts(Session& session) const;

  ChartView* mainChart() const { return mainChart_; }
  ChartView* samplingChart() const { return samplingChart_; }

signals:
  /// A button or strategy option was clicked, by control name.
  void controlClicked(const QString& name);
  /// The chart of the main form was activated.
  void chartActivated();
  /// The window is being closed by its frame.
  void closing();

protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  /// Below this width the strategy options stand in one column.
  static constexpr int kNarrow = 960;
  /// Lays the strategy options out in one column or two, and the buttons
  /// of the foot in two rows or one.
  void arrange(int columns);

  QGridLayout* options_;
  QGridLayout* foot_;
  std::vector<QWidget*> footButtons_;
  int optionColumns_ = 0;
  ChartView* mainChart_;
  ChartView* samplingChart_;
};

} // namespace vorlex::ui
