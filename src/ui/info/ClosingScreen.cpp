#include "ui/info/ClosingScreen.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorlex::ui {

ClosingScreen::ClosingScreen(QWidget* parent) : QWidget(parent, Qt::Window) {
  setObjectName("Endfrm");
  setWindowTitle("Vorlex");
  resize(460, 220);

  auto* text = new QLabel(this);
  text->setObjectName("lblThanks");
  text->setWordWrap(true);
  text->setTextFormat(Qt::RichText);
  text->setText(tr("<h3>Thank you for using Vorlex.</h3>"
                   "<p>The report of each run (its name ends with \"_0_output.txt\") and the figure files "
                   "are in the folder of your data file, named after it.</p>"));

  auto* end = new QPushButton(tr("End"), this);
  end->setObjectName("cmdEnd");
  end->setDefault(true);
  connect(end, &QPushButton::clicked, this, &ClosingScreen::endClicked);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(end);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text, 1);
  layout->addLayout(buttons);
}

void ClosingScreen::closeEvent(QCloseEvent* event) {
  emit endClicked();
  event->accept();
}

} // namespace vorlex::ui
