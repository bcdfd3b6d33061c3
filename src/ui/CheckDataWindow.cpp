#include "ui/CheckDataWindow.h"

#include "mainform/CheckDataForm.h"
#include "mainform/Forms.h"
#include "model/Session.h"

#include <QCloseEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace vorlex::ui {

namespace {

const std::string& caption(const Session& session, const char* name) {
  static const std::string none;
  const auto found = session.controls.find(name);
  return found == session.controls.end() ? none : found->second.caption;
}

} // namespace

CheckDataWindow::CheckDataWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), report_(new QPlainTextEdit(this)), verdict_(new QLabel(this)),
      back_(new QPushButton(tr("Back"), this)) {
  setObjectName(QString::fromLatin1(forms::kCheckData));
  resize(820, 640);

  // The report lines up its tables in columns: a fixed-width font, no
  // wrapping.
  report_->setObjectName(QStringLiteral("Picture1"));
  report_->setReadOnly(true);
  report_->setLineWrapMode(QPlainTextEdit::NoWrap);
  report_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  report_->verticalScrollBar()->setObjectName(QStringLiteral("VScroll2"));

  verdict_->setObjectName(QStringLiteral("lblVerdict"));
  verdict_->setWordWrap(true);
  QFont bold = verdict_->font();
  bold.setBold(true);
  verdict_->setFont(bold);

  back_->setObjectName(QStringLiteral("Command1"));
  back_->setDefault(true);
  connect(back_, &QPushButton::clicked, this, &CheckDataWindow::backClicked);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(verdict_, 1);
  buttons->addWidget(back_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(report_, 1);
  layout->addLayout(buttons);
}

void CheckDataWindow::showStates(const Session& session) {
  setWindowTitle(QString::fromStdString(caption(session, forms::kCheckData)));
  // A report shown again keeps the place the user scrolled to.
  const QString report = QString::fromStdString(caption(session, checkdat::kReport));
  if (report_->toPlainText() != report)
    report_->setPlainText(report);
  verdict_->setText(QString::fromStdString(caption(session, checkdat::kVerdict)));
}

void CheckDataWindow::closeEvent(QCloseEvent* event) {
  emit backClicked();
  event->accept();
}

} // namespace vorlex::ui
