#include "CarryWindow.h"

#include "ChartView.h"
#include "ControlDisplay.h"
#include "mainform/CarryForm.h"
#include "mainform/Forms.h"
#include "model/Session.h"

#include <QCloseEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vorlex::ui {

namespace {

QString name(const char* text) { return QString::fromLatin1(text); }

} // namespace

CarryWindow::CarryWindow(QWidget* parent) : QWidget(parent) {
  setObjectName(name(forms::kCarryingCapacity));
  setWindowTitle(name(CarryForm::kTitle));

  auto button = [this](const char* control) {
    auto* b = new QPushButton;
    b->setObjectName(name(control));
    connect(b, &QPushButton::clicked, this, [this, b] { emit controlClicked(b->objectName()); });
    return b;
  };

  auto* frame1 = new QGroupBox;
  frame1->setObjectName(QStringLiteral("Frame1"));
  auto* choices = new QVBoxLayout(frame1);
  for (const CarryForm::Option& option : CarryForm::options()) {
    auto* radio = new QRadioButton;
    radio->setObjectName(name(option.name));
    connect(radio, &QRadioButton::clicked, this, [this, radio] { emit controlClicked(radio->objectName()); });
    choices->addWidget(radio);
  }

  // One frame of boxes for each of the first three options.
  auto* left = new QVBoxLayout;
  left->addWidget(frame1);
  for (const CarryForm::Option& option : CarryForm::options()) {
    if (!option.frame)
      continue;
    auto* frame = new QGroupBox;
    frame->setObjectName(name(option.frame));
    auto* rows = new QFormLayout(frame);
    const int number = option.name[6] - '0';
    if (number == 2) {
      auto* equation = new QLabel;
      equation->setObjectName(QStringLiteral("lblPolynomial"));
      rows->addRow(equation);
    }
    for (const CarryForm::Box& box : CarryForm::boxes()) {
      if (box.option != number)
        continue;
      auto* edit = new QLineEdit;
      edit->setObjectName(name(box.name));
      edit->setMaximumWidth(110);
      rows->addRow(name(box.label), edit);
    }
    if (number == 2)
      rows->addRow(button("Command3"));
    if (number == 3) {
      rows->addRow(button("Command4"));
      auto* equation = new QLineEdit;
      equation->setObjectName(QStringLiteral("Text14"));
      equation->setReadOnly(true);
      rows->addRow(equation);
    }
    left->addWidget(frame);
  }
  left->addStretch();
  left->addWidget(button("Command1"));
  left->addWidget(button("Command2"));

  chart_ = new ChartView;
  chart_->setObjectName(QStringLiteral("MSChart1"));
  chart_->setMinimumSize(420, 320);
  auto* instructions = new QLabel;
  instructions->setObjectName(QStringLiteral("Label12"));
  instructions->setWordWrap(true);
  auto* right = new QVBoxLayout;
  right->addWidget(chart_, 1);
  right->addWidget(instructions);

  auto* whole = new QHBoxLayout(this);
  whole->addLayout(left);
  whole->addLayout(right, 1);
  resize(980, 640);
}

void CarryWindow::showStates(const Session& session, const CarryForm& form) {
  showFormControls(*this, session, forms::kCarryingCapacity);
  const QString selected = QStringLiteral("Option%1").arg(form.selectedOption());
  if (auto* option = findChild<QRadioButton*>(selected))
    option->setChecked(true);
  statesShown_ = true;
}

void CarryWindow::takeTexts(Session& session) const {
  if (!statesShown_)
    return;
  const std::string prefix = std::string(forms::kCarryingCapacity) + ".";
  for (QLineEdit* box : findChildren<QLineEdit*>()) {
    if (box->isReadOnly())
      continue;
    const auto found = session.controls.find(prefix + box->objectName().toStdString());
    if (found != session.controls.end())
      found->second.caption = box->text().toStdString();
  }
}

void CarryWindow::closeEvent(QCloseEvent* event) {
  emit closing();
  event->accept();
}

} // namespace vorlex::ui
