#include "QtPrompter.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTreeView>

namespace vorlex::ui {

namespace {
QString q(const std::string& text) { return QString::fromStdString(text); }

// A run shows the wait cursor; a question in the middle of it gets the
// ordinary one back while it asks.
struct ArrowWhileAsking {
  const bool waiting = QApplication::overrideCursor() != nullptr;
  ArrowWhileAsking() {
    if (waiting)
      QApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~ArrowWhileAsking() {
    if (waiting)
      QApplication::restoreOverrideCursor();
  }
  ArrowWhileAsking(const ArrowWhileAsking&) = delete;
  ArrowWhileAsking& operator=(const ArrowWhileAsking&) = delete;
};
} // namespace

std::string QtPrompter::askValue(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) {
  const ArrowWhileAsking arrow;
  QInputDialog dialog(parent_);
  dialog.setWindowTitle(q(title));
  dialog.setLabelText(q(prompt));
  dialog.setTextValue(q(defaultText));
  dialog.setInputMode(QInputDialog::TextInput);
  if (dialog.exec() != QDialog::Accepted)
    return {};
  return dialog.textValue().toStdString();
}

bool QtPrompter::askYesNo(const std::string& prompt, const std::string& title) {
  const ArrowWhileAsking arrow;
  QMessageBox box(QMessageBox::NoIcon, q(title), q(prompt), QMessageBox::Yes | QMessageBox::No, parent_);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

void QtPrompter::inform(const std::string& prompt, const std::string& title) {
  const ArrowWhileAsking arrow;
  QMessageBox box(QMessageBox::NoIcon, q(title), q(prompt), QMessageBox::Ok, parent_);
  box.exec();
}

namespace {
std::string chooseFile(QWidget* parent, const std::string& title, QFileDialog::AcceptMode mode) {
  const ArrowWhileAsking arrow;
  QFileDialog dialog(parent, q(title), QString(), QtPrompter::kFileFilter);
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  // Names and dates side by side, in a dialog large enough for both, as
  // far as the screen allows.
  dialog.setViewMode(QFileDialog::Detail);
  dialog.resize(QtPrompter::fileDialogSize(parent));
  // The name takes the room the size, type and date leave; those three
  // keep the width of what they show.
  if (auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))) {
    QHeaderView* header = files->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
    return {};
  return dialog.selectedFiles().constFirst().toStdString();
}
} // namespace

QSize QtPrompter::fileDialogSize(QWidget* parent) {
  const QSize wanted(900, 600);
  QScreen* screen = parent ? parent->screen() : QGuiApplication::primaryScreen();
  if (!screen)
    return wanted;
  return wanted.boundedTo(screen->availableGeometry().size() * 0.95);
}

std::string QtPrompter::chooseFileToOpen(const std::string& title) {
  return chooseFile(parent_, title, QFileDialog::AcceptOpen);
}

std::string QtPrompter::chooseFileToSave(const std::string& title) {
  return chooseFile(parent_, title, QFileDialog::AcceptSave);
}

} // namespace vorlex::ui
