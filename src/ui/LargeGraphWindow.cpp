#include "LargeGraphWindow.h"

#include "ChartView.h"
#include "ControlDisplay.h"
#include "mainform/Forms.h"
#include "mainform/LargeGraphForm.h"
#include "model/Session.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorlex::ui {

LargeGraphWindow::LargeGraphWindow(QWidget* parent) : QWidget(parent) {
  setObjectName(QString::fromLatin1(forms::kLargeGraphs));
  setWindowTitle(QString::fromLatin1(LargeGraphForm::kTitle));

  auto button = [this](const char* name) {
    auto* b = new QPushButton;
    b->setObjectName(QString::fromLatin1(name));
    connect(b, &QPushButton::clicked, this, [this, b] { emit controlClicked(b->objectName()); });
    return b;
  };

  chart_ = new ChartView;
  chart_->setObjectName(QStringLiteral("MSChart1"));
  // The chart takes the room the buttons leave; a small window still has
  // a readable chart beside them.
  chart_->setMinimumSize(400, 300);
  connect(chart_, &ChartView::activated, this, &LargeGraphWindow::chartActivated);

  auto* frame = new QGroupBox;
  frame->setObjectName(QStringLiteral("Frame1"));
  auto* grid = new QGridLayout(frame);
  int index = 0;
  for (const LargeGraphForm::ChartButton& chartButton : LargeGraphForm::chartButtons()) {
    grid->addWidget(button(chartButton.name), index % 8, index / 8);
    ++index;
  }

  auto* side = new QVBoxLayout;
  side->addWidget(frame);
  side->addWidget(button("cmdEfficacy"));
  side->addStretch();
  for (const char* name : {"cmdBand", "Command1", "Command4", "Command2"})
    side->addWidget(button(name));

  auto* whole = new QHBoxLayout(this);
  whole->addWidget(chart_, 1);
  whole->addLayout(side);
  resize(1180, 700);
}

void LargeGraphWindow::showStates(const Session& session) {
  showFormControls(*this, session, forms::kLargeGraphs);
}

void LargeGraphWindow::closeEvent(QCloseEvent* event) {
  emit closing();
  event->accept();
}

} // namespace vorlex::ui
