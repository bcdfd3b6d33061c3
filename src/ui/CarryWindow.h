#pragma once

#include <QString>
#include <QWidget>

namespace vorlex {
class CarryForm;
class Session;
} // namespace vorlex

namespace vorlex::ui {

class ChartView;

/// The widgets of "K(0), Kmax, r and simulation time": the four options of
/// K(t), the frames of their boxes, Calculate, Preview, Find the parabola,
/// Go back and the chart. It holds no logic: clicks go on by control name,
/// and the states come from the session (the controls "CarryFrm.<name>").
class CarryWindow : public QWidget {
  Q_OBJECT
public:
  explicit CarryWindow(QWidget* parent = nullptr);

  void showStates(const Session& session, const CarryForm& form);
  /// Hands what the user typed in the boxes to the session; nothing before
  /// the boxes have shown the session's texts once.
  void takeTexts(Session& session) const;
  ChartView* chart() const { return chart_; }

signals:
  void controlClicked(const QString& name);
  void closing();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  ChartView* chart_;
  bool statesShown_ = false;
};

} // namespace vorlex::ui
