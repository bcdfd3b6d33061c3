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
  dataFile->setMinimumWidth(260);
  steps->addLayout(stepRow("2.", {button("cmdInputLTdata"), dataFile}));

  auto* frame4 = new QGroupBox;
  frame4->setObjectName(QStringLiteral("Frame4"));
  auto* options = new QGridLayout(frame4);
  for (int n = 1; n <= 9; ++n) {
    auto* option = new QRadioButton;
    option->setObjectName(QStringLiteral("Option%1").arg(n));
    connect(option, &QRadioButton::clicked, this,
            [this, option] { emit controlClicked(option->objectName()); });
    options->addWidget(option, (n - 1) % 5, (n - 1) / 5);
  }
  steps->addLayout(stepRow("3.", {frame4}));
  steps->addLayout(stepRow("4.", {button("cmdKandT")}));

  // The population parameters as the data file gives them.
  auto* parameters = new QWidget;
  auto* grid = new QGridLayout(parameters);
  grid->setContentsMargins(0, 0, 0, 0);
  const std::pair<const char*, const char*> kParameters[] = {
      {"F =", "txtFecundity"},          {"R0", "txtNetReproductiveRate"}, {"r =", "txtIntrinsicRate"},
      {"T =", "txtMeanGenerationTime"}, {"\u03bb =", "txtLambda"},        {"Last age =", "txtLastAge"}};
  int column = 0;
  for (const auto& [caption, name] : kParameters) {
    grid->addWidget(new QLabel(QString::fromUtf8(caption)), 0, column, Qt::AlignCenter);
    QLineEdit* box = textBox(name, 74);
    box->setReadOnly(true);
    grid->addWidget(box, 1, column++);
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
  connect(mainChart_, &ChartView::activated, this, &MainWindow::chartActivated);
  samplingChart_ = new ChartView;
  samplingChart_->setObjectName(QStringLiteral("MSChart2"));
  auto* right = new QVBoxLayout;
  right->addWidget(mainChart_, 1);
  right->addWidget(samplingChart_, 1);
  right->addWidget(namedLabel("lblRunSummary"));
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

  // The information and print buttons along the foot.
  auto* foot = new QHBoxLayout;
  for (const char* name : {"Command3", "Command6", "Command7", "Command9", "Command14", "Command15",
                           "cmdHowToPrint", "Command24"})
    foot->addWidget(button(name));
  foot->addStretch();
  foot->addWidget(button("Command11"));

  auto* top = new QHBoxLayout;
  top->addWidget(frame1, 0);
  top->addLayout(right, 1);
  auto* whole = new QVBoxLayout(this);
  whole->addLayout(top, 1);
  whole->addLayout(foot);
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
}

void MainWindow::showLabel(const Session& session, const char* name) {
  const auto found = session.controls.find(name);
  if (auto* label = findChild<QLabel*>(QString::fromLatin1(name)); label && found != session.controls.end())
    label->setText(QString::fromStdString(found->second.caption));
}

void MainWindow::takeTexts(Session& session) const {
  for (QLineEdit* box : findChildren<QLineEdit*>()) {
    const auto found = session.controls.find(box->objectName().toStdString());
    if (found != session.controls.end())
      found->second.caption = box->text().toStdString();
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  emit closing();
  event->accept();
}

} // namespace vorlex::ui
