#pragma once

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

namespace vorlex::testing {

/// Does `work` with the modal dialog that the next call opens, as soon as
/// it shows; the caller then makes the call that opens it. A file dialog
/// reads its folder in the background and may still be busy when it is
/// answered, so a dialog still open half a second after its answer is
/// answered again. A dialog that does not show within 30 s is given up with
/// a warning, so that a test fails instead of hanging.
inline void whenDialogShows(std::function<void(QWidget* dialog)> work) {
  auto* poll = new QTimer;
  poll->setInterval(10);
  QObject::connect(poll, &QTimer::timeout,
                   [poll, work = std::move(work), polls = 0, answered = QPointer<QWidget>(),
                    hasAnswered = false, sinceAnswer = 0]() mutable {
                     QWidget* dialog = QApplication::activeModalWidget();
                     if (hasAnswered) {
                       if (!answered || dialog != answered) {
                         poll->stop();
                         poll->deleteLater();
                       } else if (++sinceAnswer == 50) {
                         sinceAnswer = 0;
                         work(dialog);
                       }
                       return;
                     }
                     if (!dialog) {
                       if (++polls == 3000) {
                         qWarning("no dialog showed within 30 s");
                         poll->stop();
                         poll->deleteLater();
                       }
                       return;
                     }
                     answered = dialog;
                     hasAnswered = true;
                     work(dialog);
                   });
  poll->start();
}

/// Chooses a file in a file dialog by typing its whole path into the name
/// box, as a user can, and accepts. (Selecting it in the list depends on
/// the dialog having read its folder, which it does in the background.)
inline void chooseInFileDialog(QWidget* dialog, const QString& path) {
  auto* files = qobject_cast<QFileDialog*>(dialog);
  if (!files) {
    dialog->close();
    return;
  }
  if (auto* name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
    name->setText(path);
  else
    files->selectFile(path);
  static_cast<QDialog*>(files)->accept();
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
    if (!dialog)
      return;
    if (dialog == last_) {
      // Still open after its answer (a file dialog busy with its folder):
      // answer it again after a while.
      if (++sinceAnswer_ == 50) {
        sinceAnswer_ = 0;
        answers_[next_ - 1](dialog);
      }
      return;
    }
    if (done()) {
      poll_.stop();
      return;
    }
    last_ = dialog;
    sinceAnswer_ = 0;
    titles << dialog->windowTitle();
    answers_[next_++](dialog);
  }
  std::vector<Answer> answers_;
  std::size_t next_ = 0;
  QPointer<QWidget> last_;
  int sinceAnswer_ = 0;
  QTimer poll_;
};

/// The folder for the pictures the tests take.
inline QString screenshotPath(const QString& file) {
  QDir().mkpath(QStringLiteral(VORLEX_SCREENSHOT_DIR));
  return QStringLiteral(VORLEX_SCREENSHOT_DIR) + QLatin1Char('/') + file;
}

/// The whole contents of a file, or "<missing>" when it cannot be read.
inline QByteArray contentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

/// The bundled example copied into a fresh folder; returns its path.
inline QString copyOfExample(const QTemporaryDir& dir, const QString& as = QStringLiteral("moth.txt")) {
  const QString path = dir.filePath(as);
  QFile::remove(path);
  QFile::copy(QStringLiteral(VORLEX_SOURCE_DIR "/examples/moth.txt"), path);
  return path;
}

} // namespace vorlex::testing
