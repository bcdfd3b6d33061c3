#include "Desktop.h"

#include "CarryWindow.h"
#include "ChartView.h"
#include "CheckDataWindow.h"
#include "EtAtWindow.h"
#include "FormPrinting.h"
#include "LargeGraphWindow.h"
#include "MainWindow.h"
#include "charts/ChartCycle.h"
#include "info/ClosingScreen.h"
#include "info/InfoTexts.h"
#include "info/QuizScreen.h"
#include "mainform/CheckDataForm.h"
#include "mainform/Forms.h"
#include "textio/RuntimeError.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <clocale>
#include <ctime>

namespace vorlex::ui {

namespace {

using Handler = void (MainForm::*)();

// The main form's controls that do something when clicked. The others
// (Command5 and the steps whose forms come later) do nothing.
const std::map<QString, Handler>& mainHandlers() {
  static const std::map<QString, Handler> kHandlers = {
      {"Command2", &MainForm::Command2_Click},   {"cmdInputLTdata", &MainForm::cmdInputLTdata_Click},
      {"Option1", &MainForm::Option1_Click},     {"Option2", &MainForm::Option2_Click},
      {"Option3", &MainForm::Option3_Click},     {"Option4", &MainForm::Option4_Click},
      {"Option5", &MainForm::Option5_Click},     {"Option6", &MainForm::Option6_Click},
      {"Option7", &MainForm::Option7_Click},     {"Option8", &MainForm::Option8_Click},
      {"Option9", &MainForm::Option9_Click},     {"cmdRun", &MainForm::cmdRun_Click},
      {"Command1", &MainForm::Command1_Click},   {"Command3", &MainForm::Command3_Click},
      {"Command6", &MainForm::Command6_Click},   {"Command7", &MainForm::Command7_Click},
      {"Command9", &MainForm::Command9_Click},   {"Command14", &MainForm::Command14_Click},
      {"Command15", &MainForm::Command15_Click}, {"cmdHowToPrint", &MainForm::cmdHowToPrint_Click},
      {"Command4", &MainForm::Command4_Click},   {"Command24", &MainForm::Command24_Click},
      {"cmdKandT", &MainForm::cmdKandT_Click},
      {"Command16", &MainForm::Command16_Click}, {"cmdETandAT", &MainForm::cmdETandAT_Click},
      {"cmdStageSamplingData", &MainForm::cmdStageSamplingData_Click},
      {"cmdStageProjection", &MainForm::cmdStageProjection_Click},
      {"cmdProjectionAfterSampling", &MainForm::cmdProjectionAfterSampling_Click},
      {"cmdVIPOption1", &MainForm::cmdVIPOption1_Click}, {"cmdVIPOption2", &MainForm::cmdVIPOption2_Click},
      {"cmdVIPOption3", &MainForm::cmdVIPOption3_Click}, {"cmdVIPOption4", &MainForm::cmdVIPOption4_Click},
  };
  return kHandlers;
}

} // namespace

Desktop::Desktop(Prompter& prompter)
    : prompter_(prompter), session_(std::make_unique<Session>(prompter)),
      form_(std::make_unique<MainForm>(*session_)), mainWindow_(std::make_unique<MainWindow>()),
      largeGraphWindow_(std::make_unique<LargeGraphWindow>()), carryWindow_(std::make_unique<CarryWindow>()),
      etAtWindow_(std::make_unique<EtAtWindow>()) {
  // The application takes the user's locale for everything; numbers in the
  // files must keep the decimal point whatever the user's locale says.
  std::setlocale(LC_NUMERIC, "C");
  showError = [this](const QString& title, const QString& text) {
    std::unique_ptr<QMessageBox> box(
        errorBox(mainWindow_->isVisible() ? mainWindow_.get() : nullptr, title, text));
    box->exec();
    return box->clickedButton() && box->buttonRole(box->clickedButton()) == QMessageBox::AcceptRole
               ? AfterError::StartAgain
               : AfterError::Quit;
  };
  printForm = [](QWidget& form) { printFormWithDialog(form); };

  MainWindow* main = mainWindow_.get();
  connect(main, &MainWindow::controlClicked, this, &Desktop::clickMain);
  connect(main, &MainWindow::chartActivated, this, &Desktop::activateMainChart);
  connect(main, &MainWindow::closing, this, [this] { endProgram(0); });

  LargeGraphWindow* large = largeGraphWindow_.get();
  connect(large, &LargeGraphWindow::controlClicked, this, &Desktop::clickLargeGraphs);
  connect(large, &LargeGraphWindow::chartActivated, this, &Desktop::activateLargeChart);
  connect(large, &LargeGraphWindow::closing, this, [this] {
    if (formShows(*session_, forms::kLargeGraphs))
      handle([this] { form_->largeGraphs().Form_Unload(); });
  });

  CarryWindow* carry = carryWindow_.get();
  connect(carry, &CarryWindow::controlClicked, this, &Desktop::clickCarryingCapacity);
  connect(carry, &CarryWindow::closing, this, [this] {
    if (formShows(*session_, forms::kCarryingCapacity))
      handle([this] { form_->carryingCapacity().Form_Unload(); });
  });
  EtAtWindow* threshold = etAtWindow_.get();
  connect(threshold, &EtAtWindow::controlClicked, this, &Desktop::clickThreshold);
  connect(threshold, &EtAtWindow::boxChanged, this, &Desktop::changeThresholdBox);
  connect(threshold, &EtAtWindow::enterPressed, this, &Desktop::pressEnterInThresholdBox);
  connect(threshold, &EtAtWindow::closing, this, [this] {
    if (formShows(*session_, forms::kEtAndAt))
      handle([this] { form_->threshold().Form_Unload(); });
  });

  // Charts can be saved as pictures wherever they show.
  auto chooseFile = [this](const std::string& title) { return session_->prompter().chooseFileToSave(title); };
  for (ChartView* view :
       {main->mainChart(), main->samplingChart(), large->chart(), carry->chart(), threshold->chart()})
    view->chooseFileToSave = chooseFile;
  main->samplingChart()->addMenuAction(tr("Show as points"),
                                       [this] { handle([this] { form_->sampling().showAsPoints(); }); });

  buildOtherForms();

  timer1_.setInterval(1000);
  connect(&timer1_, &QTimer::timeout, this, &Desktop::tick);
}

Desktop::~Desktop() = default;

void Desktop::buildOtherForms() {
  // The information screens go back to the main form; the closing screen
  // ends the program. A screen of an ended session may still be in the
  // middle of a signal: it goes once that is over.
  for (auto& [name, window] : otherForms_) {
    window->hide();
    disconnect(window.get(), nullptr, this, nullptr);
    window.release()->deleteLater();
  }
  otherForms_.clear();
  std::vector<std::string> informationForms(std::begin(forms::kIntroductions),
                                            std::end(forms::kIntroductions));
  informationForms.insert(informationForms.end(), {forms::kReferences, forms::kHowToPrint});
  for (const std::string& name : informationForms) {
    InfoScreen* screen = makeInformationScreen(QString::fromStdString(name));
    connect(screen, &InfoScreen::backClicked, this,
            [this, name] { handle([this, name] { form_->returnFrom(name); }); });
    otherForms_[name].reset(screen);
  }
  auto* quiz = new QuizScreen;
  connect(quiz, &QuizScreen::backClicked, this,
          [this] { handle([this] { form_->returnFrom(forms::kQuiz); }); });
  otherForms_[forms::kQuiz].reset(quiz);
  auto* check = new CheckDataWindow;
  connect(check, &CheckDataWindow::backClicked, this,
          [this] { handle([this] { checkdat::Command1_Click(*session_); }); });
  otherForms_[forms::kCheckData].reset(check);
  auto* closing = new ClosingScreen;
  connect(closing, &ClosingScreen::endClicked, this, [this] { endProgram(0); });
  otherForms_[forms::kClosing].reset(closing);
}

void Desktop::start() {
  handle([this] { form_->Form_Load(); });
  tick();
  timer1_.start();
}

QWidget* Desktop::formWindow(const std::string& form) const {
  if (form == forms::kMainform)
    return mainWindow_.get();
  if (form == forms::kLargeGraphs)
    return largeGraphWindow_.get();
  if (form == forms::kCarryingCapacity)
    return carryWindow_.get();
  if (form == forms::kEtAndAt)
    return etAtWindow_.get();
  const auto found = otherForms_.find(form);
  return found == otherForms_.end() ? nullptr : found->second.get();
}

void Desktop::clickMain(const QString& control) {
  if (control == QLatin1String("Command11")) {
    printForm(*mainWindow_);
    return;
  }
  const auto found = mainHandlers().find(control);
  if (found == mainHandlers().end())
    return;
  const Handler handler = found->second;
  const bool run = control == QLatin1String("cmdRun") || control == QLatin1String("cmdProjectionAfterSampling");
  handle([this, handler, run] {
    // A run blocks the form until it ends; the cursor says so.
    if (run)
      QApplication::setOverrideCursor(Qt::WaitCursor);
    struct RestoreCursor {
      bool on;
      ~RestoreCursor() {
        if (on)
          QApplication::restoreOverrideCursor();
      }
    } restore{run};
    ((*form_).*handler)();
  });
}

void Desktop::clickLargeGraphs(const QString& control) {
  LargeGraphForm& large = form_->largeGraphs();
  if (control == QLatin1String("Command1"))
    printForm(*largeGraphWindow_);
  else if (control == QLatin1String("Command4"))
    handle([&large] { large.Command4_Click(); });
  else if (control == QLatin1String("Command2"))
    handle([&large] { large.Command2_Click(); });
  else if (control == QLatin1String("cmdBand"))
    handle([&large] { large.cmdBand_Click(); });
  else
    handle([&large, name = control.toStdString()] { large.clickChartButton(name); });
}

void Desktop::clickCarryingCapacity(const QString& control) {
  CarryForm& carry = form_->carryingCapacity();
  const std::string name = control.toStdString();
  handle([&carry, name] {
    if (name.rfind("Option", 0) == 0)
      carry.chooseOption(std::stoi(name.substr(6)));
    else if (name == "Command1")
      carry.Command1_Click();
    else if (name == "Command2")
      carry.Command2_Click();
    else if (name == "Command3")
      carry.Command3_Click();
    else if (name == "Command4")
      carry.Command4_Click();
  });
}

void Desktop::clickThreshold(const QString& control) {
  EtAtForm& threshold = form_->threshold();
  const std::string name = control.toStdString();
  handle([&threshold, name] {
    if (name.rfind("Option", 0) == 0)
      threshold.chooseOption(std::stoi(name.substr(6)));
    else if (name == "Command1")
      threshold.Command1_Click();
  });
}

void Desktop::changeThresholdBox(const QString& box, const QString& text) {
  handle(
      [this, box = box.toStdString(), text = text.toStdString()] { form_->threshold().change(box, text); });
}

void Desktop::pressEnterInThresholdBox(const QString& box) {
  handle([this, box = box.toStdString()] { form_->threshold().keyPress(box, EtAtForm::kEnter); });
}

void Desktop::activateMainChart() {
  handle([this] { MSChart1_Activate(*session_); });
}

void Desktop::activateLargeChart() {
  handle([this] { grafform::MSChart1_Activate(*session_); });
}

void Desktop::handle(const std::function<void()>& handler) {
  if (ended_)
    return;
  // What the user typed reaches the session before any handler reads it.
  mainWindow_->takeTexts(*session_);
  carryWindow_->takeTexts(*session_);
  try {
    handler();
  } catch (const RuntimeError& error) {
    showAll();
    QString text = QStringLiteral("Run-time error '%1':\n\n%2")
                       .arg(error.number())
                       .arg(QString::fromStdString(error.text()));
    if (!error.where().empty())
      text += QStringLiteral("\n\n") + QString::fromStdString(error.where());
    text += QStringLiteral("\n\nLikely cause: ") + QString::fromStdString(error.likelyCause());
    afterError(text);
    return;
  } catch (const ProgramEnd&) {
    // The user has been told why already.
    showAll();
    endProgram(1);
    return;
  }
  showAll();
}

void Desktop::showAll() {
  mainWindow_->showStates(*session_, *form_);
  largeGraphWindow_->showStates(*session_);
  carryWindow_->showStates(*session_, form_->carryingCapacity());
  etAtWindow_->showStates(*session_, form_->threshold());
  showCharts();
  for (const std::string& form : {std::string(forms::kMainform), std::string(forms::kLargeGraphs),
                                  std::string(forms::kCarryingCapacity), std::string(forms::kEtAndAt)})
    formWindow(form)->setVisible(formShows(*session_, form));
  if (auto* check = dynamic_cast<CheckDataWindow*>(formWindow(forms::kCheckData)))
    check->showStates(*session_);
  for (const auto& [name, window] : otherForms_)
    window->setVisible(formShows(*session_, name));
}

void Desktop::showCharts() {
  // Rebuilding a chart costs; only a chart whose record changed is drawn.
  ChartView* main = mainWindow_->mainChart();
  if (main->content() != session_->mainChart)
    main->showContent(session_->mainChart);
  ChartView* sampling = mainWindow_->samplingChart();
  if (sampling->content() != form_->sampling().chart())
    sampling->showContent(form_->sampling().chart());
  ChartView* large = largeGraphWindow_->chart();
  if (large->content() != session_->largeChart)
    large->showContent(session_->largeChart);
  ChartView* carry = carryWindow_->chart();
  if (carry->content() != form_->carryingCapacity().chart())
    carry->showContent(form_->carryingCapacity().chart());
  ChartView* threshold = etAtWindow_->chart();
  if (threshold->content() != form_->threshold().chart())
    threshold->showContent(form_->threshold().chart());
}

QMessageBox* Desktop::errorBox(QWidget* parent, const QString& title, const QString& text) {
  auto* box = new QMessageBox(QMessageBox::Critical, title, text, QMessageBox::NoButton, parent);
  box->setInformativeText(tr(
      "This session has ended; its files are closed as they stand. Start again with a fresh form, or quit?"));
  box->setDefaultButton(box->addButton(tr(kStartAgain), QMessageBox::AcceptRole));
  box->setEscapeButton(static_cast<QAbstractButton*>(box->addButton(tr(kQuit), QMessageBox::RejectRole)));
  return box;
}

void Desktop::endSession() {
  if (ended_)
    return;
  ended_ = true;
  timer1_.stop();
  try {
    session_->files.closeAll();
  } catch (const RuntimeError&) {
    // The session is over already; its files stay as they stand.
  }
}

void Desktop::endProgram(int exitCode) {
  if (programOver_)
    return;
  programOver_ = true;
  endSession();
  for (const auto& [name, window] : otherForms_)
    window->hide();
  largeGraphWindow_->hide();
  carryWindow_->hide();
  etAtWindow_->hide();
  mainWindow_->hide();
  emit programEnded(exitCode);
}

void Desktop::afterError(const QString& text) {
  // The session ends as the command line's does; the windows stay, showing
  // where it stopped, until the user has chosen.
  endSession();
  if (showError(QStringLiteral("Vorlex"), text) == AfterError::StartAgain)
    startAgain();
  else
    endProgram(1);
}

void Desktop::startAgain() {
  // The form logic refers to its session: it goes first.
  form_.reset();
  session_ = std::make_unique<Session>(prompter_);
  form_ = std::make_unique<MainForm>(*session_);
  buildOtherForms();
  ended_ = false;
  // The widgets take the fresh session's controls before anything reads
  // them back: nothing typed, chosen or shown in the ended session carries
  // over.
  mainWindow_->clearChoices();
  showAll();
  start();
  emit sessionRestarted();
}

void Desktop::tick() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  form_->Timer1_Timer(local);
  mainWindow_->showLabel(*session_, "lblClock");
  mainWindow_->showLabel(*session_, "lblGreeting");
}

} // namespace vorlex::ui
