#pragma once

#include <QWidget>

namespace vorlex {
class Session;
} // namespace vorlex

namespace vorlex::ui {

class ChartView;

/// The widgets of "Large graphs": the large chart, a button for each of
/// its charts, Print, Back and Quit. Like the main form it only passes
/// clicks on by control name and shows the states of the session (the
/// controls named "grafform.<name>").
class LargeGraphWindow : public QWidget {
  Q_OBJECT
public:
  explicit LargeGraphWindow(QWidget* parent = nullptr);

  void showStates(const Session& session);
  ChartView* chart() const { return chart_; }

signals:
  void controlClicked(const QString& name);
  void chartActivated();
  void closing();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  ChartView* chart_;
};

} // namespace vorlex::ui
