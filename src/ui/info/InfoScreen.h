#pragma once

#include <QString>
#include <QWidget>

class QCloseEvent;
class QLabel;
class QPushButton;
class QTextBrowser;

namespace vorlex::ui {

/// A window that shows one page of reading: a heading, a rich-text body
/// and a Back button. The introductions, the references and the printing
/// help are all of this kind.
///
/// Back and closing the window by its frame both emit backClicked(); the
/// owner decides what shows next and should hide() the screen (close()
/// from the slot would report a second backClicked()).
class InfoScreen : public QWidget {
  Q_OBJECT

public:
  InfoScreen(const QString& title, const QString& heading, const QString& html, QWidget* parent = nullptr);

  QString heading() const;
  QTextBrowser* body() const { return body_; }

signals:
  void backClicked();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  QLabel* heading_;
  QTextBrowser* body_;
  QPushButton* back_;
};

} // namespace vorlex::ui
