#pragma once

#include <QWidget>

class QCloseEvent;

namespace vorlex::ui {

/// The last screen: thanks the user, says where the outputs are, and ends
/// the program through endClicked(), from the End button or from closing
/// the window by its frame.
class ClosingScreen : public QWidget {
  Q_OBJECT

public:
  explicit ClosingScreen(QWidget* parent = nullptr);

signals:
  void endClicked();

protected:
  void closeEvent(QCloseEvent* event) override;
};

} // namespace vorlex::ui
