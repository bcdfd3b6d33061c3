#include "MainWindow.h"

#include "ChartView.h"
#include "ControlDisplay.h"
#include "mainform/MainForm.h"
#include "model/Session.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace vorlex::ui {

namespace {

QLabel* stepNumber(const char* number) {
  auto* label = new QLabel(QString::fromLatin1(number));
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * 0.85);
  font.setBold(true);
  label->setFont(font);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setFixedWidth(22);
  return label;
}

QLineEdit* textBox(const char* name, int width = 0) {
  auto* box = new QLineEdit;
  box->setObjectName(QString::fromLatin1(name));
  if (width > 0)
    box->setFixedWidth(width);
  return box;
}

QLabel* namedLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QString::fromLatin1(name));
  return label;
}

// A row: the step number, then the widgets.
QHBoxLayout* stepRow(const char* number, std::initializer_list<QWidget*> widgets) {
  auto* row = new QHBoxLayout;
  row->addWidget(number ? stepNumber(number) : new QLabel);
  for (QWidget* widget : widgets)
    row->addWidget(widget);
  row->addStretch();
  return row;
}

} // namespace

MainWindow::MainWindow(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("Mainform"));
  setWindowTitle(QStringLiteral("Vorlex"));

  auto button = [this](const char* name) {
    auto* b = new QPushButton;
    b->setObjectName(QString::fromLatin1(name));
    connect(b, &QPushButton::clicked, this, [this, b] { emit controlClicked(b->objectName()); });
    return b;
  };

  // The steps, in the order of use.
  auto* frame1 = new QGroupBox;
  frame1->setObjectName(QStringLiteral("Frame1"));
  auto* steps = new QVBoxLayout(frame1);

  steps->addLayout(
      stepRow("1.", {new QLabel(tr("Simulation time length")), textBox("txtSimuT", 70), button("Command2")}));
  auto* dataFile = textBox("txtDatafile");
  dataFile->setReadOnly(true);
  dataFile->setStyleSheet(QStringLiteral("QLineEdit { background: yellow; color: black; }"));
  dataFile->setMinimumWidth(200);
  QHBoxLayout* dataRow = stepRow("2.", {button("cmdInputLTdata"), dataFile});
  // The file's path takes the width the steps have.
  dataRow->setStretchFactor(dataFile, 10);
  steps->addLayout(dataRow);

  auto* frame4 = new QGroupBox;
  frame4->setObjectName(QStringLiteral("Frame4"));
  options_ = new QGridLayout(frame4);
  for (int n = 1; n <= 9; ++n) {
    auto* option = new QRadioButton;
    option->setObjectName(QStringLiteral("Option%1").arg(n));
    // A caption is never cut: the option keeps the width of its text.
    option->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    connect(option, &QRadioButton::clicked, this,
            [this, option] { emit controlClicked(option->objectName()); });
    options_->addWidget(option, (n - 1) % 5, (n - 1) / 5);
  }
  steps->addLayout(stepRow("3.", {frame4}));
  steps->addLayout(stepRow("4.", {button("cmdKandT"), button("cmdETandAT")}));

  // The population parameters as the data file gives them, in two rows of
  // three so that the steps stay narrow.
  auto* parameters = new QWidget;
  auto* grid = new QGridLayout(parameters);
  grid->setContentsMargins(0, 0, 0, 0);
  const std::pair<const char*, const char*> kParameters[] = {
      {"F =", "txtFecundity"},          {"R0", "txtNetReproductiveRate"}, {"r =", "txtIntrinsicRate"},
      {"T =", "txtMeanGenerationTime"}, {"\u03bb =", "txtLambda"},        {"Last age =", "txtLastAge"}};
  int place = 0;
  for (const auto& [caption, name] : kParameters) {
    const int row = 2 * (place / 3), column = place % 3;
    grid->addWidget(new QLabel(QString::fromUtf8(caption)), row, column, Qt::AlignCenter);
    QLineEdit* box = textBox(name, 90);
    box->setReadOnly(true);
    grid->addWidget(box, row + 1, column);
    ++place;
  }
  steps->addLayout(stepRow("5.", {parameters}));
  steps->addLayout(stepRow("6.", {button("cmdRun")}));
  steps->addLayout(stepRow("7.", {button("Command4"), button("Command16")}));

  auto* exports = new QWidget;
  auto* exportGrid = new QGridLayout(exports);
  exportGrid->setContentsMargins(0, 0, 0, 0);
  const char* kExports[] = {"cmdVIPOption1",
                            "cmdVIPOption2",
                            "cmdVIPOption3",
                            "cmdVIPOption4",
                            "cmdStageSamplingData",
                            "cmdStageProjection",
                            "cmdProjectionAfterSampling",
                            "Command5"};
  for (int i = 0; i < 8; ++i)
    exportGrid->addWidget(button(kExports[i]), i / 2, i % 2);
  steps->addLayout(stepRow("8.", {exports}));
  steps->addLayout(stepRow(nullptr, {button("Command1")}));
  auto* procedure = namedLabel("lblProcedure");
  procedure->setWordWrap(true);
  steps->addWidget(procedure);
  steps->addStretch();

  // The chart, the sayings and the clock.
  mainChart_ = new ChartView;
  mainChart_->setObjectName(QStringLiteral("MSChart1"));
  mainChart_->setMinimumSize(240, 180);
  connect(mainChart_, &ChartView::activated, this, &MainWindow::chartActivated);
  samplingChart_ = new ChartView;
  samplingChart_->setObjectName(QStringLiteral("MSChart2"));
  samplingChart_->setMinimumSize(240, 180);
  auto* right = new QVBoxLayout;
  right->addWidget(mainChart_, 1);
  right->addWidget(samplingChart_, 1);
  QLabel* summary = namedLabel("lblRunSummary");
  summary->setWordWrap(true);
  right->addWidget(summary);
  for (const char* name : {"lblSaying1", "lblSaying2"}) {
    QLabel* saying = namedLabel(name);
    saying->setWordWrap(true);
    saying->setStyleSheet(QStringLiteral("QLabel { font-style: italic; color: #1f4e79; }"));
    right->addWidget(saying);
  }
  auto* clockRow = new QHBoxLayout;
  clockRow->addWidget(namedLabel("lblGreeting"));
  clockRow->addStretch();
  clockRow->addWidget(namedLabel("lblClock"));
  right->addLayout(clockRow);

  // The information and print buttons along the foot: one row, or two in
  // a narrow window; Print at the right.
  foot_ = new QGridLayout;
  for (const char* name : {"Command3", "Command6", "Command7", "Command9", "Command14", "Command15",
                           "cmdHowToPrint", "Command24"})
    footButtons_.push_back(button(name));
  foot_->setColumnStretch(8, 1);
  foot_->addWidget(button("Command11"), 0, 9);

  // The form scrolls when the window is smaller than it: nothing is cut,
  // and the charts take whatever room there is beyond the steps.
  auto* form = new QWidget;
  form->setObjectName(QStringLiteral("form"));
  auto* top = new QHBoxLayout;
  top->addWidget(frame1, 0);
  top->addLayout(right, 1);
  auto* formLayout = new QVBoxLayout(form);
  formLayout->addLayout(top, 1);
  formLayout->addLayout(foot_);
  auto* scroll = new QScrollArea;
  scroll->setObjectName(QStringLiteral("formScroll"));
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(form);

  // The status line under the form: where the files of the last run went.
  QLabel* status = namedLabel("lblStatus");
  status->setWordWrap(true);
  status->setTextInteractionFlags(Qt::TextSelectableByMouse);
  status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  status->setContentsMargins(8, 2, 8, 4);

  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->setSpacing(0);
  whole->addWidget(scroll, 1);
  whole->addWidget(status);
  arrange(2);
  resize(1180, 760);
}

void MainWindow::showStates(const Session& session, const MainForm& form) {
  for (const auto& [name, state] : session.controls) {
    if (name == objectName().toStdString())
      continue;
    auto* widget = findChild<QWidget*>(QString::fromStdString(name));
    if (!widget)
      continue;
    QString hint = QString::fromStdString(state.hint);
    bool enabled = state.enabled;
    if (name.rfind("Option", 0) == 0) {
      const int option = std::stoi(name.substr(6));
      enabled = form.optionOpen(option);
      if (!MainForm::hasDriver(MainForm::optManagementOf(option)))
        hint = tr("This strategy is not available in this version of Vorlex yet.");
    }
    showControl(*widget, state, enabled, hint);
  }
  // A path too long for the status line can still be read whole.
  if (auto* status = findChild<QLabel*>(QStringLiteral("lblStatus")))
    status->setToolTip(status->text());
}

void MainWindow::showLabel(const Session& session, const char* name) {
  const auto found = session.controls.find(name);
  if (auto* label = findChild<QLabel*>(QString::fromLatin1(name)); label && found != session.controls.end())
    label->setText(QString::fromStdString(found->second.caption));
}

void MainWindow::clearChoices() {
  // An option of an exclusive group cannot be unchecked while it is part
  // of the group.
  for (QRadioButton* option : findChildren<QRadioButton*>()) {
    option->setAutoExclusive(false);
    option->setChecked(false);
    option->setAutoExclusive(true);
  }
}

void MainWindow::takeTexts(Session& session) const {
  for (QLineEdit* box : findChildren<QLineEdit*>()) {
    const auto found = session.controls.find(box->objectName().toStdString());
    if (found != session.controls.end())
      found->second.caption = box->text().toStdString();
  }
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange(width() < kNarrow ? 1 : 2);
}

void MainWindow::arrange(int columns) {
  // In a narrow window the strategies stand in one column and the buttons
  // of the foot in two rows, so that the charts keep room beside the steps;
  // the form scrolls down instead.
  if (columns == optionColumns_)
    return;
  optionColumns_ = columns;
  const int rows = columns == 1 ? 9 : 5;
  for (int n = 1; n <= 9; ++n) {
    QWidget* option = findChild<QRadioButton*>(QStringLiteral("Option%1").arg(n));
    options_->removeWidget(option);
    options_->addWidget(option, (n - 1) % rows, (n - 1) / rows);
  }
  const int perRow = columns == 1 ? 4 : 8;
  for (std::size_t i = 0; i < footButtons_.size(); ++i) {
    foot_->removeWidget(footButtons_[i]);
    foot_->addWidget(footButtons_[i], int(i) / perRow, int(i) % perRow);
  }
  // The new sizes reach the scrolled form at once.
  for (QWidget* widget = options_->parentWidget(); widget && widget != this;
       widget = widget->parentWidget()) {
    if (widget->layout())
      widget->layout()->activate();
    widget->updateGeometry();
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  emit closing();
  event->accept();
}

} // namespace vorlex::ui
