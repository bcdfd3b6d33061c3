#include "ui/info/InfoScreen.h"

#include <QCloseEvent>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace vorlex::ui {

InfoScreen::InfoScreen(const QString& title, const QString& heading, const QString& html, QWidget* parent)
    : QWidget(parent, Qt::Window), heading_(new QLabel(heading, this)), body_(new QTextBrowser(this)),
      back_(new QPushButton(tr("Back"), this)) {
  setWindowTitle(title);
  resize(720, 560);

  heading_->setObjectName("lblHeading");
  QFont big = heading_->font();
  big.setPointSizeF(big.pointSizeF() * 1.4);
  big.setBold(true);
  heading_->setFont(big);
  heading_->setWordWrap(true);

  body_->setObjectName("txtBody");
  body_->setReadOnly(true);
  body_->setOpenExternalLinks(false);
  body_->setHtml(html);

  back_->setObjectName("cmdBack");
  back_->setDefault(true);
  connect(back_, &QPushButton::clicked, this, &InfoScreen::backClicked);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(back_);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(heading_);
  layout->addWidget(body_, 1);
  layout->addLayout(buttons);
}

QString InfoScreen::heading() const { return heading_->text(); }

void InfoScreen::closeEvent(QCloseEvent* event) {
  emit backClicked();
  event->accept();
}

} // namespace vorlex::ui
