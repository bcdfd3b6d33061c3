// The one-day export buttons and the band chart of the desktop program,
// clicked on its widgets with given answers to its questions.
#include "ClickedDesktop.h"
#include "ui/ChartView.h"
#include "ui/Desktop.h"
#include "ui/LargeGraphWindow.h"
#include "ui/MainWindow.h"

#include <QAbstractButton>
#include <QAreaSeries>
#include <QChart>
#include <QLineEdit>
#include <QLineSeries>
#include <QtTest>

using namespace vorlex;
using testing::contentsOf;

namespace {

struct Clicked : testing::ClickedDesktop {
  explicit Clicked(const QStringList& given) : ClickedDesktop(given) { desktop.start(); }
  void click(const char* name) {
    QTest::mouseClick(desktop.mainWindow().findChild<QAbstractButton*>(QString::fromLatin1(name)), Qt::LeftButton);
  }
  void clickLarge(const char* name) {
    QTest::mouseClick(desktop.largeGraphWindow().findChild<QAbstractButton*>(QString::fromLatin1(name)),
                      Qt::LeftButton);
  }
  void run(const std::initializer_list<const char*>& exportButtons) {
    auto* time = desktop.mainWindow().findChild<QLineEdit*>(QStringLiteral("txtSimuT"));
    time->clear();
    QTest::keyClicks(time, QStringLiteral("30"));
    click("Command2");
    click("cmdInputLTdata");
    for (const char* button : exportButtons)
      click(button);
    QTest::mouseClick(desktop.mainWindow().findChild<QWidget*>(QStringLiteral("Option1")), Qt::LeftButton, {},
                      QPoint(8, 8));
    click("cmdRun");
  }
};

} // namespace

class ExportAndBandTest : public QObject {
  Q_OBJECT
private slots:
  void theExportButtonsArmTheirExportsForTheRun() {
    QTemporaryDir out;
    Clicked s({"Save total population size for specific date=30",
               "Save total weighted size for specific date=10",
               "Open for the first time or append data to an existing file?=Yes",
               "Open for the first time or append data to an existing file?=Yes",
               "Open a file to save N(t).=" + out.filePath("n.txt"), "Open a file to save W(t).=" + out.filePath("w.txt"),
               "Enter a file code (percentile, treatment, etc.)=g",
               "Enter a file code (percentile, treatment, etc.)=h"});
    QCOMPARE(s.desktop.mainWindow().findChild<QAbstractButton*>(QStringLiteral("cmdVIPOption1"))->text(),
             QStringLiteral("Write N(t) at time t"));
    s.run({"cmdVIPOption1", "cmdVIPOption4"});
    QVERIFY2(s.errors.isEmpty(), qPrintable(s.errors.join("\n")));
    QCOMPARE(contentsOf(out.filePath("n.txt")),
             QByteArray("\"Moth demonstration\"\r\n\"File code\",\"Total size at 30\"\r\ng,") +
                 QByteArray::number(s.desktop.session().model().TotalSize(30), 'g', 15) + "\r\n");
    QVERIFY(contentsOf(out.filePath("w.txt")).startsWith(
        "\"Moth demonstration\"\r\n\"File code\",\"Weighted population sizes at 10\"\r\nh,"));
  }

  void aCancelledExportDialogEndsTheRunWithBadFileNameOrNumber() {
    Clicked s({"Save total population size for specific date=30",
               "Open for the first time or append data to an existing file?=Yes"});
    s.run({"cmdVIPOption1"});
    QCOMPARE(s.errors.size(), 1);
    QVERIFY2(
        s.errors.first().startsWith(QStringLiteral("Vorlex|Run-time error '52':\n\nBad file name or number")),
             qPrintable(s.errors.first()));
  }

  void theBandButtonDrawsTheSpreadAroundTheMedian() {
    Clicked s({"Open a band file of a batch of runs=" VORLEX_TEST_DATA_DIR "/band-forty-runs.expected"});
    s.run({});
    s.click("Command4");
    auto* band = s.desktop.largeGraphWindow().findChild<QAbstractButton*>(QStringLiteral("cmdBand"));
    QVERIFY(band && band->isEnabled());
    QCOMPARE(band->text(), QStringLiteral("Uncertainty band"));
    s.clickLarge("cmdBand");
    QChart* chart = s.desktop.largeGraphWindow().chart()->chart();
    QStringList kinds;
    for (QAbstractSeries* series : chart->series())
      kinds << QString::fromLatin1(series->metaObject()->className()) + " " + series->name();
    QCOMPARE(kinds, (QStringList{"QAreaSeries 2.5 % - 97.5 %", "QAreaSeries 25 % - 75 %", "QLineSeries Median"}));
    auto* inner = qobject_cast<QAreaSeries*>(chart->series().at(1));
    QCOMPARE(inner->upperSeries()->at(1), QPointF(.5, 30.25));
    QCOMPARE(inner->lowerSeries()->at(1), QPointF(.5, 10.75));
    QApplication::processEvents();
    QVERIFY(s.desktop.largeGraphWindow().grab().save(testing::screenshotPath(QStringLiteral("band.png"))));
  }

  void theBandOfTheBootstrapMothReadsWell() {
    Clicked s({"Open a band file of a batch of runs=" VORLEX_TEST_DATA_DIR "/band-moth-bootstrap.csv"});
    s.run({});
    s.click("Command4");
    s.clickLarge("cmdBand");
    QCOMPARE(s.desktop.largeGraphWindow().chart()->chart()->series().size(), 3);
    QApplication::processEvents();
    QVERIFY(s.desktop.largeGraphWindow().grab().save(testing::screenshotPath(QStringLiteral("band-moth.png"))));
  }

  void aFileThatIsNoBandIsToldAndKeepsTheChart() {
    Clicked s({"Open a band file of a batch of runs=" VORLEX_SOURCE_DIR "/examples/moth.txt"});
    s.run({});
    s.click("Command4");
    const QString before = s.desktop.largeGraphWindow().chart()->chart()->title();
    s.clickLarge("cmdBand");
    QVERIFY(s.errors.isEmpty());
    QCOMPARE(s.desktop.largeGraphWindow().chart()->chart()->title(), before);
    QVERIFY(QString::fromStdString(s.asked.str()).contains(QStringLiteral("[Uncertainty band] This file is no band")));
  }
};

QTEST_MAIN(ExportAndBandTest)
#include "ExportAndBandTest.moc"
