#pragma once

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

namespace vorlex::testing {

/// Does `work` with the modal dialog that the next call opens, as soon as
/// it shows; the caller then makes the call that opens it. A dialog that
/// does not show within 30 s is given up with a warning, so that a test
/// fails instead of hanging.
inline void whenDialogShows(std::function<void(QWidget* dialog)> work) {
  auto* poll = new QTimer;
  poll->setInterval(10);
  QObject::connect(poll, &QTimer::timeout, [poll, work = std::move(work), polls = 0]() mutable {
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog) {
      if (++polls == 3000) {
        qWarning("no dialog showed within 30 s");
        poll->stop();
        poll->deleteLater();
      }
      return;
    }
    poll->stop();
    poll->deleteLater();
    work(dialog);
  });
  poll->start();
}

/// Answers the modal dialogs that show from now on, one after the other,
/// each with the next of `answers`; records their window titles. Stops
/// when the answers run out.
class DialogScript : public QObject {
public:
  using Answer = std::function<void(QWidget* dialog)>;
  explicit DialogScript(std::vector<Answer> answers) : answers_(std::move(answers)) {
    connect(&poll_, &QTimer::timeout, this, [this] { answerNext(); });
    poll_.start(10);
  }
  QStringList titles;
  bool done() const { return next_ == answers_.size(); }

private:
  void answerNext() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog || dialog->property("answered").toBool() || done())
      return;
    dialog->setProperty("answered", true);
    titles << dialog->windowTitle();
    answers_[next_++](dialog);
    if (done())
      poll_.stop();
  }
  std::vector<Answer> answers_;
  std::size_t next_ = 0;
  QTimer poll_;
};

/// The folder for the pictures the tests take.
inline QString screenshotPath(const QString& file) {
  QDir().mkpath(QStringLiteral(VORLEX_SCREENSHOT_DIR));
  return QStringLiteral(VORLEX_SCREENSHOT_DIR) + QLatin1Char('/') + file;
}

/// The bundled example copied into a fresh folder; returns its path.
inline QString copyOfExample(const QTemporaryDir& dir, const QString& as = QStringLiteral("moth.txt")) {
  const QString path = dir.filePath(as);
  QFile::remove(path);
  QFile::copy(QStringLiteral(VORLEX_SOURCE_DIR "/examples/moth.txt"), path);
  return path;
}

} // namespace vorlex::testing
