#include "EtAtWindow.h"

#include "ChartView.h"
#include "ControlDisplay.h"
#include "mainform/EtAtForm.h"
#include "mainform/Forms.h"
#include "model/Session.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vorlex::ui {

EtAtWindow::EtAtWindow(QWidget* parent) : QWidget(parent) {
  setObjectName(QString::fromLatin1(forms::kEtAndAt));
  setWindowTitle(QString::fromLatin1(EtAtForm::kTitle));

  // Each equation on a row of its own, its boxes beside it.
  auto* frame = new QGroupBox;
  frame->setObjectName(QStringLiteral("Frame1"));
  auto* grid = new QGridLayout(frame);
  for (int number = 1; number <= 4; ++number) {
    auto* radio = new QRadioButton;
    radio->setObjectName(QStringLiteral("Option%1").arg(number));
    connect(radio, &QRadioButton::clicked, this, [this, radio] { emit controlClicked(radio->objectName()); });
    grid->addWidget(radio, 2 * (number - 1), 0, 1, 8);
    int column = 0;
    for (const EtAtForm::Box& box : EtAtForm::boxes()) {
      if (box.option != number)
        continue;
      grid->addWidget(new QLabel(QString::fromLatin1(box.label)), 2 * number - 1, column++, Qt::AlignRight);
      auto* edit = new QLineEdit;
      edit->setObjectName(QString::fromLatin1(box.name));
      edit->setMaximumWidth(90);
      connect(edit, &QLineEdit::textEdited, this,
              [this, edit](const QString& text) { emit boxChanged(edit->objectName(), text); });
      connect(edit, &QLineEdit::returnPressed, this, [this, edit] { emit enterPressed(edit->objectName()); });
      grid->addWidget(edit, 2 * number - 1, column++);
    }
  }
  grid->setColumnStretch(8, 1);

  auto* back = new QPushButton;
  back->setObjectName(QStringLiteral("Command1"));
  connect(back, &QPushButton::clicked, this, [this] { emit controlClicked(QStringLiteral("Command1")); });
  auto* caption = new QLabel;
  caption->setObjectName(QStringLiteral("Label9"));

  chart_ = new ChartView;
  chart_->setObjectName(QStringLiteral("MSChart1"));
  chart_->setMinimumSize(420, 320);

  auto* left = new QVBoxLayout;
  left->addWidget(frame);
  left->addStretch();
  left->addWidget(back);
  auto* right = new QVBoxLayout;
  right->addWidget(caption);
  right->addWidget(chart_, 1);
  auto* whole = new QHBoxLayout(this);
  whole->addLayout(left);
  whole->addLayout(right, 1);
  resize(1020, 560);
}

void EtAtWindow::showStates(const Session& session, const EtAtForm& form) {
  showFormControls(*this, session, forms::kEtAndAt);
  // No option stands selected until one is chosen.
  for (QRadioButton* option : findChildren<QRadioButton*>()) {
    const bool selected = option->objectName() == QStringLiteral("Option%1").arg(form.selectedOption());
    option->setAutoExclusive(false);
    option->setChecked(selected);
    option->setAutoExclusive(true);
  }
}

void EtAtWindow::closeEvent(QCloseEvent* event) {
  emit closing();
  event->accept();
}

} // namespace vorlex::ui
