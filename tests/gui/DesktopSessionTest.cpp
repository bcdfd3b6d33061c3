// Whole sessions of the desktop program, clicked through on its widgets with
// given answers to its questions.
#include "ClickedDesktop.h"
#include "charts/ChartFamily.h"
#include "exports/TotalPredation.h"
#include "mainform/CheckDataForm.h"
#include "mainform/Forms.h"
#include "ui/ChartView.h"
#include "ui/CheckDataWindow.h"
#include "ui/Desktop.h"
#include "ui/FormPrinting.h"
#include "ui/LargeGraphWindow.h"
#include "ui/MainWindow.h"
#include "ui/QtPrompter.h"

#include <QAbstractButton>
#include <QChart>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLineSeries>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QProcess>
#include <QRadioButton>
#include <QScatterSeries>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace vorlex;
using testing::contentsOf;

namespace {

QStringList filesIn(const QString& dir) { return QDir(dir).entryList(QDir::Files, QDir::Name); }

const QString kNoControlGolden = QStringLiteral(VORLEX_TEST_DATA_DIR "/golden/moth-no-control");

// How the files a session wrote differ from a reference folder (reviewed
// copies, or a command-line run's), its stdout.txt aside: the two lists of
// names, or the first file whose contents differ; empty when they agree.
QString differenceFrom(const QString& written, const QString& reference) {
  QStringList expected = filesIn(reference);
  expected.removeAll(QStringLiteral("stdout.txt"));
  const QStringList actual = filesIn(written);
  if (actual != expected)
    return actual.join(QStringLiteral(", ")) + QStringLiteral("\nagainst\n") + expected.join(QStringLiteral(", "));
  for (const QString& name : expected)
    if (contentsOf(written + "/" + name) != contentsOf(reference + "/" + name))
      return name;
  return {};
}

/// A desktop session that also counts the ends of its program.
struct Clicked : testing::ClickedDesktop {
  QSignalSpy ended{&desktop, &ui::Desktop::programEnded};

  explicit Clicked(std::initializer_list<const char*> given = {})
      : ClickedDesktop(QStringList(given.begin(), given.end())) {
    desktop.start();
  }

  template <typename Widget = QWidget> Widget* main(const char* name) {
    auto* widget = desktop.mainWindow().findChild<Widget*>(QString::fromLatin1(name));
    if (!widget)
      qFatal("no control %s on the main form", name);
    return widget;
  }
  bool enabled(const char* name) { return main(name)->isEnabled(); }
  // A radio button takes clicks on its circle and text only: click near
  // its left edge.
  void click(const char* name) {
    auto* button = main<QAbstractButton>(name);
    const QPoint at =
        qobject_cast<QRadioButton*>(button) ? QPoint(8, button->height() / 2) : button->rect().center();
    QTest::mouseClick(button, Qt::LeftButton, {}, at);
  }
  void clickLarge(const char* name) {
    QTest::mouseClick(desktop.largeGraphWindow().findChild<QAbstractButton*>(QString::fromLatin1(name)),
                      Qt::LeftButton);
  }
  void clickChart() { QTest::mouseClick(desktop.mainWindow().mainChart()->viewport(), Qt::LeftButton); }
  QString chartTitle() { return desktop.mainWindow().mainChart()->chart()->title(); }
  QString largeChartTitle() { return desktop.largeGraphWindow().chart()->chart()->title(); }
  bool shows(const char* form) { return desktop.formWindow(form)->isVisible(); }

  void runNoControl(const char* simTime = "30", const char* option = "Option1") {
    QLineEdit* time = main<QLineEdit>("txtSimuT");
    time->clear();
    QTest::keyClicks(time, QString::fromLatin1(simTime));
    click("Command2");
    click("cmdInputLTdata");
    click(option);
    click("cmdRun");
  }
};

QString title(ChartContent (*show)(Session&), Session& session) {
  return QString::fromStdString(show(session).title);
}

/// The load answered in the program's own dialogs: No to every question,
/// the default in each box, `file` in the file dialog.
std::vector<testing::DialogScript::Answer> loadAnswers(const QString& file) {
  auto no = [](QWidget* dialog) {
    if (auto* box = qobject_cast<QMessageBox*>(dialog))
      box->button(QMessageBox::No)->click();
    else
      dialog->close();
  };
  auto accept = [](QWidget* dialog) { qobject_cast<QDialog*>(dialog)->accept(); };
  return {no, no, accept, no, accept, [file](QWidget* dialog) { testing::chooseInFileDialog(dialog, file); },
          no};
}

/// Presses the button with this caption; a box without it is closed.
void press(QMessageBox* box, const QString& caption) {
  for (QAbstractButton* button : box->buttons())
    if (button->text().remove(QLatin1Char('&')) == caption) {
      button->click();
      return;
    }
  box->close();
}

/// A desktop session that asks through the program's own dialogs, in a
/// folder of its own with a copy of the example, and an empty file beside
/// it that no data file can be.
struct WithDialogs {
  QTemporaryDir dir;
  QString dataFile = testing::copyOfExample(dir);
  QTemporaryDir elsewhere;
  QString emptyFile = elsewhere.filePath(QStringLiteral("empty.txt"));
  ui::QtPrompter prompter;
  ui::Desktop desktop{prompter};
  QSignalSpy ended{&desktop, &ui::Desktop::programEnded};
  QSignalSpy restarted{&desktop, &ui::Desktop::sessionRestarted};

  WithDialogs() {
    QFile empty(emptyFile);
    empty.open(QIODevice::WriteOnly);
    empty.close();
    prompter.setParent(&desktop.mainWindow());
    desktop.session().shortDate = "2026-11-21";
    desktop.start();
  }
  template <typename Widget = QWidget> Widget* main(const char* name) {
    auto* widget = desktop.mainWindow().findChild<Widget*>(QString::fromLatin1(name));
    if (!widget)
      qFatal("no control %s on the main form", name);
    return widget;
  }
  /// Loads `file` with every question answered; `afterwards` answers the
  /// dialog that follows.
  void load(const QString& file, testing::DialogScript::Answer afterwards = {}) {
    auto answers = loadAnswers(file);
    if (afterwards)
      answers.push_back(afterwards);
    testing::DialogScript script(answers);
    desktop.clickMain(QStringLiteral("Command2"));
    desktop.clickMain(QStringLiteral("cmdInputLTdata"));
    QVERIFY(script.done());
  }
};

/// The main form as Form_Load leaves it: only the time and its OK open.
void checkStartState(QWidget& mainWindow) {
  auto control = [&](const char* name) {
    auto* widget = mainWindow.findChild<QWidget*>(QString::fromLatin1(name));
    if (!widget)
      qFatal("no control %s on the main form", name);
    return widget;
  };
  auto text = [&](const char* name) {
    if (auto* box = qobject_cast<QLineEdit*>(control(name)))
      return box->text();
    return qobject_cast<QLabel*>(control(name))->text();
  };
  QVERIFY(mainWindow.isVisible());
  for (const char* on : {"txtSimuT", "Command2", "Command3", "Command1", "Command14"})
    QVERIFY2(control(on)->isEnabled(), on);
  for (const char* off : {"cmdInputLTdata", "Frame4", "Option1", "Option2", "Option3", "Option6", "Option7",
                          "Option8", "Option9", "cmdRun", "Command4", "Command16"})
    QVERIFY2(!control(off)->isEnabled(), off);
  QCOMPARE(text("txtSimuT"), QStringLiteral("60"));
  for (QRadioButton* option : mainWindow.findChildren<QRadioButton*>())
    QVERIFY2(!option->isChecked(), qPrintable(option->objectName()));
  for (const char* empty :
       {"txtDatafile", "txtFecundity", "txtLambda", "txtLastAge", "lblRunSummary", "lblStatus"})
    QVERIFY2(text(empty).isEmpty(), empty);
  QVERIFY(!control("MSChart1")->isVisible() && control("MSChart2")->isVisible());
}

} // namespace

class DesktopSessionTest : public QObject {
  Q_OBJECT
private slots:
  void samplingButtonsDrawTheSecondChartAndProjectFromACount() {
    const std::string examples = VORLEX_SOURCE_DIR "/examples/";
    const std::string times = "Open 0A4_Stage2StageTime.txt=" + examples + "moth-0A4_Stage2StageTime.txt";
    const std::string count = "Open sampling data file=" + examples + "moth-larva-count.txt";
    Clicked s({("Open sampling data file=" + examples + "moth-field-counts.txt").c_str(), times.c_str(),
               count.c_str(), "Which stage is to be predicted?=4", times.c_str(), count.c_str()});
    s.click("Command2");
    s.click("cmdInputLTdata");
    QVERIFY(s.enabled("cmdProjectionAfterSampling"));

    // The field counts: a series for the larvae and one for the moths.
    s.click("cmdStageSamplingData");
    ui::ChartView* sampling = s.desktop.mainWindow().samplingChart();
    QVERIFY(sampling->isVisible() && !s.main("MSChart1")->isVisible());
    QCOMPARE(sampling->chart()->title(), QStringLiteral("Stage size"));
    QCOMPARE(sampling->chart()->series().size(), 2);
    QCOMPARE(sampling->chart()->series().first()->name(), QStringLiteral("Larv"));

    // Its menu shows the records as marks.
    const auto points =
        std::find_if(sampling->menuActions().begin(), sampling->menuActions().end(),
                     [](const auto& entry) { return entry.first == QStringLiteral("Show as points"); });
    QVERIFY(points != sampling->menuActions().end());
    points->second();
    QCOMPARE(sampling->chart()->title(), QStringLiteral("Sampling data"));
    QVERIFY(qobject_cast<QScatterSeries*>(sampling->chart()->series().first()));

    // The prediction from 40 larvae: the count on day 0, the females on day 21.
    s.click("cmdStageProjection");
    QCOMPARE(sampling->chart()->series().size(), 2);
    auto* females = qobject_cast<QLineSeries*>(sampling->chart()->series().at(1));
    QCOMPARE(females->name(), QStringLiteral("Fema"));
    QCOMPARE(females->at(21).y(), 10.908);
    QApplication::processEvents();
    QVERIFY(s.desktop.mainWindow().grab().save(
        testing::screenshotPath(QStringLiteral("mainform-prediction.png"))));

    // The projection from the same count shows the run's stage chart too.
    s.click("cmdProjectionAfterSampling");
    QVERIFY(s.errors.isEmpty());
    QVERIFY(s.main("MSChart1")->isVisible());
    QCOMPARE(s.desktop.session().model().InitialN(4, 2), 40);
    QCOMPARE(s.chartTitle(), QStringLiteral("Stage size"));
    QApplication::processEvents();
    QVERIFY(s.desktop.mainWindow().grab().save(
        testing::screenshotPath(QStringLiteral("mainform-after-sampling.png"))));
  }

  void eachStepEnablesTheNextAndTheRunShowsTheStageChart() {
    Clicked s;
    QVERIFY(s.shows(forms::kMainform));
    for (const char* on : {"txtSimuT", "Command2", "Command3", "Command6", "Command7", "Command9",
                           "Command14", "Command15", "Command1", "Command11"})
      QVERIFY2(s.enabled(on), on);
    for (const char* off :
         {"Frame4", "Option1", "cmdInputLTdata", "cmdRun", "Command4", "Command16", "Command5"})
      QVERIFY2(!s.enabled(off), off);
    QCOMPARE(s.main<QLineEdit>("txtSimuT")->text(), QStringLiteral("60"));
    QCOMPARE(s.main<QAbstractButton>("cmdInputLTdata")->text(),
             QStringLiteral("Read life table and vorlex data"));
    QCOMPARE(s.main<QAbstractButton>("cmdRun")->toolTip(),
             QStringLiteral("Run simulation based on life table"));
    QVERIFY(
        s.main<QLabel>("lblProcedure")->text().startsWith(QStringLiteral("General procedure: \n1. Enter")));
    QVERIFY(s.main<QLabel>("lblSaying1")->text() != s.main<QLabel>("lblSaying2")->text());
    QVERIFY(s.main<QLabel>("lblClock")->text().contains(QLatin1Char(':')));
    QVERIFY(!s.main("MSChart1")->isVisible() && s.main("MSChart2")->isVisible());

    QLineEdit* time = s.main<QLineEdit>("txtSimuT");
    time->clear();
    QTest::keyClicks(time, QStringLiteral("30"));
    s.click("Command2");
    QVERIFY(s.enabled("cmdInputLTdata"));
    QCOMPARE(s.desktop.session().model().SimTime, 30);

    s.click("cmdInputLTdata");
    QCOMPARE(s.main<QLineEdit>("txtDatafile")->text(), s.dataFile);
    QVERIFY(s.main<QLineEdit>("txtDatafile")->styleSheet().contains(QStringLiteral("yellow")));
    QCOMPARE(s.main<QLineEdit>("txtIntrinsicRate")->text(), QStringLiteral(".1332"));
    QCOMPARE(s.main<QLineEdit>("txtFecundity")->text(), QStringLiteral("249.989"));
    QCOMPARE(s.main<QLineEdit>("txtLastAge")->text(), QStringLiteral("45"));
    for (const char* on : {"Frame4", "Option1", "Option2", "Option3", "Option4", "Option5", "Option6", "Option9",
                           "cmdStageSamplingData", "cmdStageProjection"})
      QVERIFY2(s.enabled(on), on);
    for (const char* off : {"cmdInputLTdata", "Command2", "Command3", "cmdRun"})
      QVERIFY2(!s.enabled(off), off);

    s.click("Option1");
    QVERIFY(s.enabled("cmdRun"));
    // Every strategy has its driver: none says it is not available.
    for (const char* option : {"Option1", "Option2", "Option4", "Option5"})
      QVERIFY2(s.main(option)->toolTip().isEmpty(), option);
    QVERIFY(!s.enabled("Frame4") && !s.enabled("Option9"));

    s.click("cmdRun");
    QVERIFY(s.ended.isEmpty());
    for (const char* on : {"Command4", "Command16", "Command3"})
      QVERIFY2(s.enabled(on), on);
    for (const char* off : {"cmdRun", "Frame4", "cmdInputLTdata"})
      QVERIFY2(!s.enabled(off), off);
    QVERIFY(s.main("MSChart1")->isVisible() && !s.main("MSChart2")->isVisible());
    QVERIFY(!s.main("lblSaying1")->isVisible());

    // The stage chart of the run: a line for each of the five stages, 31 days.
    QChart* chart = s.desktop.mainWindow().mainChart()->chart();
    QCOMPARE(chart->title(), QStringLiteral("Stage size"));
    QCOMPARE(chart->series().size(), 5);
    auto* eggs = qobject_cast<QLineSeries*>(chart->series().first());
    QCOMPARE(eggs->count(), 31);
    QCOMPARE(eggs->at(30).y(), s.desktop.session().model().StageSize(1, 30));
    QVERIFY(eggs->at(30).y() > 0);

    QApplication::processEvents(); // let the layout take in what was hidden
    QVERIFY(s.desktop.mainWindow().grab().save(
        testing::screenshotPath(QStringLiteral("mainform-after-run.png"))));
  }

  void desktopWritesTheReviewedFilesOfTheCommandLine() {
    Clicked s;
    s.runNoControl();
    QVERIFY(s.errors.isEmpty());
    QFile::remove(s.dataFile);
    const QString difference = differenceFrom(s.dir.path(), kNoControlGolden);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
  }

  void theDialogsOfTheProgramLeadToTheSameFiles() {
    QTemporaryDir dir;
    const QString dataFile = testing::copyOfExample(dir);
    ui::QtPrompter prompter;
    ui::Desktop desktop(prompter);
    prompter.setParent(&desktop.mainWindow());
    desktop.session().shortDate = "2026-11-21";
    desktop.start();

    auto press = [](QMessageBox::StandardButton which) {
      return [which](QWidget* dialog) { qobject_cast<QMessageBox*>(dialog)->button(which)->click(); };
    };
    auto takeDefault = [](QWidget* dialog) { qobject_cast<QDialog*>(dialog)->accept(); };
    QString defaults;
    testing::DialogScript script({
        press(QMessageBox::No), // physogastry
        press(QMessageBox::No), // C(x,j)
        [&](QWidget* dialog) {
          defaults += qobject_cast<QInputDialog*>(dialog)->textValue();
          takeDefault(dialog);
        },
        press(QMessageBox::No), // only the totals
        [&](QWidget* dialog) {
          defaults += qobject_cast<QInputDialog*>(dialog)->textValue();
          takeDefault(dialog);
        },
        [&](QWidget* dialog) { testing::chooseInFileDialog(dialog, dataFile); },
        press(QMessageBox::No), // flow record
    });

    auto* time = desktop.mainWindow().findChild<QLineEdit*>(QStringLiteral("txtSimuT"));
    time->clear();
    QTest::keyClicks(time, QStringLiteral("30"));
    for (const char* control : {"Command2", "cmdInputLTdata", "Option1", "cmdRun"})
      desktop.clickMain(QString::fromLatin1(control));
    QVERIFY(script.done());
    QCOMPARE(script.titles,
             (QStringList{"Attention", "Attention", "Initial population released date?",
                          "Prepare only the data files of total population size and log(total)?",
                          "Each time unit =?", "Open the vorlex data file", "Do you need flow record?"}));
    QCOMPARE(defaults, QStringLiteral("01"));

    QFile::remove(dataFile);
    const QString difference = differenceFrom(dir.path(), kNoControlGolden);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
  }

  void commandLineAndDesktopAgreeOnTheExtraMortalityQuestions() {
    const char* kAnswers[] = {"Overwinter stage=3",
                              "Date of overwinter mortality=20",
                              "Overwinter mortality=0.5",
                              "Lower fecundity=0.3",
                              "Date after that fecundity will be lower=10",
                              "Date after that fecundity will be normal=15"};
    QTemporaryDir cliDir;
    const QString cliData = testing::copyOfExample(cliDir);
    QStringList arguments{"run",        cliData, "--strategy", "extra-mortality",
                          "--sim-time", "25",    "--date",     "2026-11-21"};
    for (const char* answer : kAnswers)
      arguments << "--answer" << QString::fromLatin1(answer);
    QProcess cli;
    cli.start(QStringLiteral(VORLEX_CLI), arguments);
    QVERIFY(cli.waitForFinished(60000));
    QCOMPARE(cli.exitCode(), 0);

    Clicked s;
    for (const char* answer : kAnswers)
      s.answers.addAnswer(answer);
    QLineEdit* time = s.main<QLineEdit>("txtSimuT");
    time->clear();
    QTest::keyClicks(time, QStringLiteral("25"));
    s.click("Command2");
    s.click("cmdInputLTdata");
    s.click("Option9");
    s.click("cmdRun");
    QVERIFY(s.errors.isEmpty());

    QVERIFY(filesIn(s.dir.path()).size() > 15);
    const QString difference = differenceFrom(s.dir.path(), cliDir.path());
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
  }

  // Each strategy clicked on its option writes what the command line writes
  // for it; the harvest boxes and the predation file and coefficient are
  // the program's own dialogs.
  void strategiesRunFromTheirOptions() {
    struct Case {
      const char* option;
      const char* strategy;
    };
    const QByteArray predation =
        "\"Total predation\"\r\n\"Time, Total predation, log(total predation+1)\"\r\n"
        "0,0,0\r\n1,3,.6\r\n2,5,.77\r\n3,400,2.6\r\n";
    const QString predationTitle = QString::fromLatin1(kPredationFileDialogTitle);
    for (const Case& c :
         {Case{"Option2", "predefined"}, Case{"Option3", "auto-et"}, Case{"Option4", "optimize-first"},
          Case{"Option5", "optimize-interval"}, Case{"Option6", "harvest"},
          Case{"Option7", "lambda"}, Case{"Option8", "predation"}}) {
      const QByteArray strategy(c.strategy);
      QTemporaryDir cliDir;
      const QString cliData = testing::copyOfExample(cliDir);
      QStringList arguments{"run",        cliData, "--strategy", c.strategy,
                            "--sim-time", "30",    "--date",     "2026-11-21"};
      if (strategy == "predation") {
        QFile out(cliDir.filePath("eaten.txt"));
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(predation) == predation.size());
        out.close();
        arguments << "--answer" << predationTitle + "=" + cliDir.filePath("eaten.txt") << "--answer"
                  << "Predation coefficient=0.5";
      }
      QProcess cli;
      cli.start(QStringLiteral(VORLEX_CLI), arguments);
      QVERIFY(cli.waitForFinished(60000));
      QCOMPARE(cli.exitCode(), 0);

      QTemporaryDir dir;
      const QString dataFile = testing::copyOfExample(dir);
      ui::QtPrompter prompter;
      ui::Desktop desktop(prompter);
      prompter.setParent(&desktop.mainWindow());
      desktop.session().shortDate = "2026-11-21";
      desktop.start();
      auto press = [](QWidget* dialog) {
        qobject_cast<QMessageBox*>(dialog)->button(QMessageBox::No)->click();
      };
      auto accept = [](QWidget* dialog) { qobject_cast<QDialog*>(dialog)->accept(); };
      QStringList boxes;
      auto box = [&](const char* typed) {
        return [&boxes, typed](QWidget* dialog) {
          auto* input = qobject_cast<QInputDialog*>(dialog);
          boxes << input->labelText() + "|" + input->textValue();
          if (*typed)
            input->setTextValue(QString::fromLatin1(typed));
          input->accept();
        };
      };
      std::vector<testing::DialogScript::Answer> answers = {
          press, press,  accept,
          press, accept, [&](QWidget* dialog) { testing::chooseInFileDialog(dialog, dataFile); },
          press};
      if (strategy == "harvest")
        answers.insert(answers.end(), {box(""), box("")});
      if (strategy == "predation") {
        QFile out(dir.filePath("eaten.txt"));
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(predation) == predation.size());
        out.close();
        answers.insert(answers.end(), {[&](QWidget* dialog) {
                                         testing::chooseInFileDialog(dialog, dir.filePath("eaten.txt"));
                                       },
                                       box("0.5")});
      }
      testing::DialogScript script(answers);

      auto* time = desktop.mainWindow().findChild<QLineEdit*>(QStringLiteral("txtSimuT"));
      time->clear();
      QTest::keyClicks(time, QStringLiteral("30"));
      for (const char* control : {"Command2", "cmdInputLTdata", c.option, "cmdRun"})
        desktop.clickMain(QString::fromLatin1(control));
      QVERIFY2(script.done(), c.option);
      QApplication::processEvents();
      QVERIFY(desktop.mainWindow().grab().save(
          testing::screenshotPath(QStringLiteral("mainform-after-%1.png").arg(c.strategy))));
      if (strategy == "harvest") {
        QCOMPARE(script.titles.mid(7), (QStringList{"Harvest begin date =?", "Harvest end date =?"}));
        QCOMPARE(boxes, (QStringList{"|1", "|30"}));
      }
      if (strategy == "predation") {
        QCOMPARE(script.titles.mid(7), (QStringList{predationTitle, "Predation coefficient"}));
        QCOMPARE(boxes, (QStringList{"Enter a value between 0 and 1 to modify the predation rate|1"}));
      }
      const QString summary =
          desktop.mainWindow().findChild<QLabel*>(QStringLiteral("lblRunSummary"))->text();
      QCOMPARE(summary.startsWith(QStringLiteral("Day 1000: r = ")), strategy == "lambda");

      QVERIFY(filesIn(dir.path()).size() > 15);
      const QString difference = differenceFrom(dir.path(), cliDir.path());
      QVERIFY2(difference.isEmpty(), qPrintable(difference + " (" + c.option + ")"));
    }
  }

  void clicksOnTheChartStepThroughTheCycleAndSkipConsumption() {
    Clicked s;
    s.runNoControl();
    Session& session = s.desktop.session();
    // The first click after the start moves to entry 1.
    const std::pair<int, ChartContent (*)(Session&)> kLap[] = {{1, ShowLogStageStructure},
                                                               {2, ShowStageSizeWithTotalAdults},
                                                               {3, ShowStageGrowthRate},
                                                               {10, ShowSij},
                                                               {16, ShowLxMx},
                                                               {23, ShowTotalDifference},
                                                               {30, ShowLogCumuStageDeath}};
    for (const auto& [index, show] : kLap) {
      while (session.ChartCycleIndex < index)
        s.clickChart();
      QCOMPARE(s.chartTitle(), title(show, session));
    }
    // Without consumption data 17..22 and the predation entries change
    // nothing: the chart of 16 stays through 22, that of 30 through 34.
    Clicked t;
    t.runNoControl();
    for (int i = 0; i < 16; ++i)
      t.clickChart();
    const QString lxmx = t.chartTitle();
    for (int i = 17; i <= 22; ++i) {
      t.clickChart();
      QCOMPARE(t.chartTitle(), lxmx);
    }
    t.clickChart();
    QCOMPARE(t.chartTitle(), title(ShowTotalDifference, t.desktop.session()));
    for (int i = 24; i <= 30; ++i)
      t.clickChart();
    const QString cumulative = t.chartTitle();
    for (int i = 31; i <= 34; ++i) {
      t.clickChart();
      QCOMPARE(t.chartTitle(), cumulative);
    }
    t.clickChart(); // after 34: the stage chart again
    QCOMPARE(int(t.desktop.session().ChartCycleIndex), 0);
    QCOMPARE(t.chartTitle(), QStringLiteral("Stage size"));
  }

  void aChartThatCannotBeDrawnEndsTheProgramWithItsError() {
    // Over 60 days the total falls by more than 1 from one day to the next,
    // and the log of that difference has no value.
    Clicked s;
    s.runNoControl("60");
    while (s.desktop.session().ChartCycleIndex < 23)
      s.clickChart();
    QVERIFY(s.errors.isEmpty());
    s.clickChart();
    QCOMPARE(s.errors,
             QStringList{QStringLiteral("Vorlex|Run-time error '5':\n\nInvalid procedure call or argument\n\n"
                                        "Chart 24 of the main form's chart cycle\n\nLikely cause: "
                                        "a calculation was asked for something it can't do, such as the "
                                        "logarithm of a size that is not above -1 (a population or rate that "
                                        "became negative), or a strategy this version does not run.")});
    QCOMPARE(s.ended.size(), 1);
    QCOMPARE(s.ended.first().first().toInt(), 1);
  }

  void largeGraphsHaveTheirButtonsCycleBackAndQuit() {
    Clicked s;
    s.runNoControl();
    s.click("Command4");
    QVERIFY(s.shows(forms::kLargeGraphs));
    QVERIFY(!s.shows(forms::kMainform));
    QCOMPARE(s.desktop.largeGraphWindow().windowTitle(), QStringLiteral("Large graphs"));
    QCOMPARE(s.largeChartTitle(), QStringLiteral("Stage size curves"));
    QCOMPARE(s.desktop.largeGraphWindow().findChild<QAbstractButton*>(QStringLiteral("Command18"))->text(),
             QStringLiteral("log(Vuln. size +1)"));

    QApplication::processEvents();
    QVERIFY(s.desktop.largeGraphWindow().grab().save(
        testing::screenshotPath(QStringLiteral("large-graphs.png"))));

    s.clickLarge("Command16");
    QCOMPARE(s.largeChartTitle(), title(grafform::ShowStageDeath, s.desktop.session()));
    // The large cycle starts from its own place: the first click shows entry 1.
    QTest::mouseClick(s.desktop.largeGraphWindow().chart()->viewport(), Qt::LeftButton);
    QCOMPARE(s.largeChartTitle(), title(grafform::ShowLogStageStructure, s.desktop.session()));
    QCOMPARE(int(s.desktop.session().ChartCycleIndex), 0);

    s.clickLarge("Command4"); // Back
    QVERIFY(s.shows(forms::kMainform) && !s.shows(forms::kLargeGraphs));
    s.click("Command4");
    // Loaded once: showing it again keeps its chart.
    QCOMPARE(s.largeChartTitle(), title(grafform::ShowLogStageStructure, s.desktop.session()));
    s.desktop.largeGraphWindow().close(); // closing the window goes back too
    QVERIFY(s.shows(forms::kMainform) && !s.shows(forms::kLargeGraphs));
    QVERIFY(s.ended.isEmpty());

    s.click("Command4");
    s.clickLarge("Command2"); // Quit: the closing screen
    QVERIFY(s.shows(forms::kClosing) && !s.shows(forms::kLargeGraphs));
    QTest::mouseClick(
        s.desktop.formWindow(forms::kClosing)->findChild<QAbstractButton*>(QStringLiteral("cmdEnd")),
        Qt::LeftButton);
    QCOMPARE(s.ended.size(), 1);
    QCOMPARE(s.ended.first().first().toInt(), 0);
  }

  void largeGraphsDrawTheEfficacyAfterAnOptimisation() {
    Clicked s;
    s.runNoControl("30", "Option4");
    s.click("Command4");
    auto* efficacy =
        s.desktop.largeGraphWindow().findChild<QAbstractButton*>(QStringLiteral("cmdEfficacy"));
    QVERIFY(efficacy && efficacy->isEnabled());
    QCOMPARE(efficacy->text(), QStringLiteral("Efficacy of treatment"));
    s.clickLarge("cmdEfficacy");
    QCOMPARE(s.largeChartTitle(), QStringLiteral("Control efficacy of a treatment at time T"));
    QApplication::processEvents();
    QVERIFY(s.desktop.largeGraphWindow().grab().save(
        testing::screenshotPath(QStringLiteral("large-graphs-efficacy.png"))));
  }

  void informationScreensGoBackAndQuitEndsThroughTheClosingScreen() {
    Clicked s;
    const std::pair<const char*, const char*> kScreens[] = {
        {"Command3", "Introfrm"},       {"Command6", "Intro1"},    {"Command7", "Intro2"},
        {"Command9", "Intro0"},         {"Command14", "Referenc"}, {"Command15", "Quiz"},
        {"cmdHowToPrint", "HowToPrint"}};
    for (const auto& [button, form] : kScreens) {
      s.click(button);
      QVERIFY2(s.shows(form) && !s.shows(forms::kMainform), form);
      QTest::mouseClick(s.desktop.formWindow(form)->findChild<QAbstractButton*>(QStringLiteral("cmdBack")),
                        Qt::LeftButton);
      QVERIFY2(!s.shows(form) && s.shows(forms::kMainform), form);
    }
    s.runNoControl("5");
    s.click("Command1");
    QVERIFY(s.shows(forms::kClosing) && !s.shows(forms::kMainform));
    QVERIFY(s.ended.isEmpty()); // only the closing screen's button ends it
    s.desktop.formWindow(forms::kClosing)->close();
    QCOMPARE(s.ended.size(), 1);
  }

  void closingTheMainFormEndsTheProgram() {
    Clicked s;
    s.desktop.mainWindow().close();
    QCOMPARE(s.ended.size(), 1);
    QCOMPARE(s.ended.first().first().toInt(), 0);
  }

  void printPutsTheFormOnAPage() {
    Clicked s;
    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("form.pdf"));
    QStringList printed;
    s.desktop.printForm = [&](QWidget& form) {
      printed << form.objectName();
      QPrinter printer(QPrinter::HighResolution);
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(pdf);
      QVERIFY(ui::printForm(form, printer));
    };
    s.click("Command11");
    QCOMPARE(printed, QStringList{QStringLiteral("Mainform")});
    const QByteArray file = contentsOf(pdf);
    QVERIFY(file.startsWith("%PDF"));
    QVERIFY(file.size() > 10000); // the form as a picture, not an empty page

    s.runNoControl("5");
    s.click("Command4");
    s.clickLarge("Command1");
    QCOMPARE(printed.last(), QStringLiteral("grafform"));
  }

  void aFailingDataFileOffersAFreshStartWhereTheExampleRuns() {
    WithDialogs d;
    QString shown, informative;
    QStringList buttons;
    bool endedWhenShown = false, mainShowedBehind = false;
    d.load(d.emptyFile, [&](QWidget* dialog) {
      auto* box = qobject_cast<QMessageBox*>(dialog);
      if (!box) {
        dialog->close();
        return;
      }
      shown = box->windowTitle() + "|" + box->text();
      informative = box->informativeText();
      for (QAbstractButton* button : box->buttons())
        buttons << button->text().remove(QLatin1Char('&'));
      endedWhenShown = d.desktop.ended();
      mainShowedBehind = d.desktop.mainWindow().isVisible();
      box->grab().save(testing::screenshotPath(QStringLiteral("restart-after-error.png")));
      press(box, QStringLiteral("Start again"));
    });
    // The message with its place and likely cause; the session over
    // before the choice.
    QCOMPARE(shown, QStringLiteral("Vorlex|Run-time error '62':\n\nInput past end of file\n\n"
                                   "Data file: %1, item 1, line 1, last description read: \"\"\n\n"
                                   "Likely cause: the data file ended before all of its items were read: "
                                   "a line or block is missing, or a count in the file (stages, last age, "
                                   "releases, controls) does not match the lines that follow.")
                        .arg(d.emptyFile));
    QVERIFY(informative.contains(QStringLiteral("files are closed")));
    buttons.sort();
    QCOMPARE(buttons, (QStringList{QStringLiteral("Quit"), QStringLiteral("Start again")}));
    QVERIFY(endedWhenShown);
    QVERIFY(mainShowedBehind);

    // A fresh session: the form as at the start, the program still on.
    QCOMPARE(d.restarted.size(), 1);
    QVERIFY(d.ended.isEmpty());
    QVERIFY(!d.desktop.ended());
    checkStartState(d.desktop.mainWindow());
    QVERIFY(d.desktop.session().names.DataFileName.empty());
    QVERIFY(d.desktop.session().flags.LifeTableLoaded.empty());
    QApplication::processEvents();
    QVERIFY(d.desktop.mainWindow().grab().save(
        testing::screenshotPath(QStringLiteral("mainform-after-start-again.png"))));

    // The example then runs as in any first session.
    d.desktop.session().shortDate = "2026-11-21";
    QLineEdit* time = d.main<QLineEdit>("txtSimuT");
    time->clear();
    QTest::keyClicks(time, QStringLiteral("30"));
    d.load(d.dataFile);
    QCOMPARE(d.main<QLineEdit>("txtFecundity")->text(), QStringLiteral("249.989"));
    d.desktop.clickMain(QStringLiteral("Option1"));
    d.desktop.clickMain(QStringLiteral("cmdRun"));
    QVERIFY(d.ended.isEmpty());
    QVERIFY(d.desktop.mainWindow().mainChart()->isVisible());
    QCOMPARE(d.desktop.mainWindow().mainChart()->chart()->title(), QStringLiteral("Stage size"));
    QFile::remove(d.dataFile);
    const QString difference = differenceFrom(d.dir.path(), kNoControlGolden);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
  }

  void quitAfterARunTimeErrorEndsTheProgram() {
    WithDialogs d;
    d.load(d.emptyFile, [](QWidget* dialog) {
      if (auto* box = qobject_cast<QMessageBox*>(dialog))
        press(box, QStringLiteral("Quit"));
      else
        dialog->close();
    });
    QCOMPARE(d.ended.size(), 1);
    QCOMPARE(d.ended.first().first().toInt(), 1);
    QVERIFY(d.restarted.isEmpty());
    QVERIFY(d.desktop.ended());
    QVERIFY(!d.desktop.mainWindow().isVisible());
    d.desktop.activateMainChart(); // nothing runs after the end
    QCOMPARE(int(d.desktop.session().ChartCycleIndex), 0);
  }

  void aChartErrorThenStartAgainLeavesNothingOfTheRunBehind() {
    Clicked s;
    s.afterError = ui::Desktop::AfterError::StartAgain;
    s.runNoControl("60");
    s.click("Command4"); // the large graphs load with this run's chart
    s.clickLarge("Command4");
    while (s.desktop.session().ChartCycleIndex < 23)
      s.clickChart();
    s.clickChart();
    QCOMPARE(s.errors.size(), 1);
    QVERIFY(s.endedWhenShown);
    QVERIFY(s.ended.isEmpty());
    checkStartState(s.desktop.mainWindow());
    QCOMPARE(int(s.desktop.session().ChartCycleIndex), 0);
    QVERIFY(!s.desktop.session().largeGraphsLoaded);
    QCOMPARE(s.chartTitle(), QString());
    QCOMPARE(s.largeChartTitle(), QString());
    QVERIFY(!s.shows(forms::kLargeGraphs));

    s.answers.addAnswer("Open the vorlex data file=" + s.dataFile.toStdString());
    s.runNoControl("30");
    QCOMPARE(s.errors.size(), 1);
    QCOMPARE(s.chartTitle(), QStringLiteral("Stage size"));
    QCOMPARE(s.desktop.session().model().SimTime, 30);
    s.click("Command4");
    QCOMPARE(s.largeChartTitle(), QStringLiteral("Stage size curves"));
  }

  void theStatusLineSaysWhereTheFilesWent() {
    Clicked s;
    QLabel* status = s.main<QLabel>("lblStatus");
    QCOMPARE(status->text(), QString());
    s.runNoControl("5");
    const QString expected = QStringLiteral("Report: %1; figure files beside it in %2")
                                 .arg(s.dir.filePath(QStringLiteral("moth_0_output.txt")), s.dir.path());
    QCOMPARE(status->text(), expected);
    QCOMPARE(status->toolTip(), expected);
    QVERIFY(status->isVisible());
    QVERIFY(QFile::exists(s.dir.filePath(QStringLiteral("moth_0_output.txt"))));
    // Under the form, whatever it scrolls to.
    const QPoint at = status->mapTo(&s.desktop.mainWindow(), QPoint(0, 0));
    QVERIFY(at.y() + status->height() <= s.desktop.mainWindow().height());
    QVERIFY(!s.desktop.mainWindow().findChild<QScrollArea*>()->isAncestorOf(status));

    // A data file named without its folder: the files go to the current one.
    const QString before = QDir::currentPath();
    Clicked t;
    QVERIFY(QDir::setCurrent(t.dir.path()));
    t.answers.answerFirst(MainForm::kDataFileDialogTitle, "moth.txt");
    t.runNoControl("5");
    const QString status2 = t.main<QLabel>("lblStatus")->text();
    QDir::setCurrent(before);
    QCOMPARE(status2,
             QStringLiteral("Report: moth_0_output.txt; figure files beside it in the current folder"));
  }

  void smallWindowsKeepEveryCaptionWhole() {
    Clicked s;
    s.runNoControl("5");
    QWidget& main = s.desktop.mainWindow();
    auto optionColumns = [&s] {
      QSet<int> lefts;
      for (int n = 1; n <= 9; ++n)
        lefts << s.main(qPrintable(QStringLiteral("Option%1").arg(n)))->x();
      return lefts.size();
    };
    QApplication::processEvents();
    QCOMPARE(optionColumns(), 2);
    const QSize small(800, 520);
    main.resize(small);
    QApplication::processEvents();
    QApplication::processEvents();
    QCOMPARE(main.size(), small);
    auto checkWhole = [](QWidget& window) {
      for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (!button->isVisibleTo(&window) || button->text().isEmpty())
          continue;
        QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->objectName()));
        QVERIFY2(button->height() >= button->sizeHint().height(), qPrintable(button->objectName()));
      }
    };
    QVERIFY(main.grab().save(testing::screenshotPath(QStringLiteral("mainform-small.png"))));
    checkWhole(main);
    // The strategies are enabled here: each option keeps its whole caption.
    for (int n = 1; n <= 9; ++n) {
      auto* option = s.main<QRadioButton>(qPrintable(QStringLiteral("Option%1").arg(n)));
      QVERIFY(option->isVisible());
      QVERIFY(option->width() >= option->fontMetrics().horizontalAdvance(option->text()));
      // Inside its frame.
      QVERIFY(option->parentWidget()->rect().contains(option->geometry()));
    }
    // Narrow, the strategies stand in one column and the form scrolls down
    // only: the chart keeps its room beside the steps.
    QCOMPARE(optionColumns(), 1);
    auto* scroll = main.findChild<QScrollArea*>();
    QCOMPARE(scroll->horizontalScrollBar()->maximum(), 0);
    QVERIFY(scroll->verticalScrollBar()->maximum() > 0);
    QWidget* chart = s.main("MSChart1");
    QVERIFY(chart->mapTo(scroll->viewport(), QPoint(chart->width(), 0)).x() <= scroll->viewport()->width());
    // What does not fit scrolls: the form keeps its least size.
    QWidget* form = main.findChild<QWidget*>(QStringLiteral("form"));
    QVERIFY(form->width() >= form->minimumSizeHint().width());
    QVERIFY(form->height() >= form->minimumSizeHint().height());

    s.click("Command4");
    QWidget& large = s.desktop.largeGraphWindow();
    large.resize(small);
    QApplication::processEvents();
    QCOMPARE(large.size(), small);
    checkWhole(large);
    QVERIFY(large.grab().save(testing::screenshotPath(QStringLiteral("large-graphs-small.png"))));
  }

  void aRunTimeErrorIsShownWithItsPlaceAndEndsTheProgram() {
    Clicked s;
    // A data file cut in the middle of its life table.
    QFile file(s.dataFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    file.close();
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(whole.left(whole.size() / 3));
    file.close();

    s.click("Command2");
    s.click("cmdInputLTdata");
    QCOMPARE(s.errors.size(), 1);
    QVERIFY2(s.errors.first().startsWith(
                 QStringLiteral("Vorlex|Run-time error '62':\n\nInput past end of file\n\n")),
             qPrintable(s.errors.first()));
    QVERIFY(s.errors.first().contains(QStringLiteral("moth.txt")));
    QVERIFY(s.endedWhenShown);
    QCOMPARE(s.ended.size(), 1);
    QCOMPARE(s.ended.first().first().toInt(), 1);
    QVERIFY(!s.shows(forms::kMainform));
    s.desktop.activateMainChart(); // nothing runs after the end
    QCOMPARE(int(s.desktop.session().ChartCycleIndex), 0);
  }

  void showDataFormatChecksAFileOnItsOwnForm() {
    Clicked s;
    const std::string chooseFile = std::string(checkdat::kFileDialogTitle) + "=";
    // Before a load the button asks for the form and the file: first a
    // file that is not there, then the example.
    for (const std::string& file : {std::string("/nonexistent/moth.txt"), s.dataFile.toStdString()}) {
      s.answers.addAnswer("Attention=No");
      s.answers.addAnswer(chooseFile + file);
    }
    auto* window = qobject_cast<ui::CheckDataWindow*>(s.desktop.formWindow(forms::kCheckData));
    QVERIFY(window);
    auto shown = [&] { return window->report()->toPlainText() + "\n\n" + window->verdict()->text() + "\n"; };
    auto back = [&] {
      QTest::mouseClick(window->findChild<QAbstractButton*>(QStringLiteral("Command1")), Qt::LeftButton);
      QVERIFY(!s.shows(forms::kCheckData) && s.shows(forms::kMainform));
    };

    // A file that can't be read is told on the form; the session goes on.
    s.click("Command24");
    QVERIFY(s.shows(forms::kCheckData) && !s.shows(forms::kMainform));
    QVERIFY(
        window->report()->toPlainText().startsWith(QStringLiteral("\nRun-time error '53': File not found")));
    QCOMPARE(window->verdict()->text(), QString::fromLatin1(checkdat::kStopped));
    QVERIFY(s.errors.isEmpty() && !s.desktop.ended());
    back();

    // The example: the report of the command line.
    const QString expected =
        QString::fromUtf8(contentsOf(QStringLiteral(VORLEX_TEST_DATA_DIR "/check/moth.expected")));
    s.click("Command24");
    QCOMPARE(shown(), expected);
    QCOMPARE(window->windowTitle(), QStringLiteral("Data file check: ") + s.dataFile);
    QVERIFY(window->grab().save(testing::screenshotPath(QStringLiteral("data-file-check.png"))));
    back();

    // After a run the loaded file is checked, without a question, and the
    // run's series stay as the run left them.
    s.runNoControl("5");
    const double total = s.desktop.session().model().TotalSize(5);
    s.click("Command24");
    QCOMPARE(shown(), expected);
    QCOMPARE(s.desktop.session().model().TotalSize(5), total);
    QVERIFY(s.answers.unusedAnswers().empty());
    back();
  }
};

QTEST_MAIN(DesktopSessionTest)
#include "DesktopSessionTest.moc"
