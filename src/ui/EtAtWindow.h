#pragma once

#include <QString>
#include <QWidget>

namespace vorlex {
class EtAtForm;
class Session;
} // namespace vorlex

namespace vorlex::ui {

class ChartView;

/// The widgets of "ET and AT": the four equations of ET(t) with their
/// boxes, the chart and the button back to the main form. Every edit of a
/// box goes on as its Change, with the text it now holds; Enter in a box as
/// its key press.
class EtAtWindow : public QWidget {
  Q_OBJECT
public:
  explicit EtAtWindow(QWidget* parent = nullptr);

  void showStates(const Session& session, const EtAtForm& form);
  ChartView* chart() const { return chart_; }

signals:
  void controlClicked(const QString& name);
  void boxChanged(const QString& box, const QString& text);
  void enterPressed(const QString& box);
  void closing();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  ChartView* chart_;
};

} // namespace vorlex::ui
