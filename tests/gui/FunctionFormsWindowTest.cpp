// The carrying-capacity form and the threshold form of the desktop program,
// clicked through on their widgets.
#include "ClickedDesktop.h"
#include "mainform/Forms.h"
#include "ui/CarryWindow.h"
#include "ui/ChartView.h"
#include "ui/Desktop.h"
#include "ui/EtAtWindow.h"
#include "ui/MainWindow.h"

#include <QAbstractButton>
#include <QChart>
#include <QLineEdit>
#include <QLineSeries>
#include <QRadioButton>
#include <QtTest>

using namespace vorlex;
using testing::contentsOf;

namespace {

struct Clicked : testing::ClickedDesktop {
  Clicked() : ClickedDesktop({}) { desktop.start(); }

  template <typename Widget = QWidget> Widget* in(QWidget& window, const char* name) {
    auto* widget = window.findChild<Widget*>(QString::fromLatin1(name));
    if (!widget)
      qFatal("no control %s on %s", name, qPrintable(window.objectName()));
    return widget;
  }
  // A radio button takes clicks on its circle and text only.
  void click(QWidget& window, const char* name) {
    auto* button = in<QAbstractButton>(window, name);
    QVERIFY2(button->isVisible() && button->isEnabled(), name);
    const QPoint at =
        qobject_cast<QRadioButton*>(button) ? QPoint(8, button->height() / 2) : button->rect().center();
    QTest::mouseClick(button, Qt::LeftButton, {}, at);
  }
  void main(const char* name) { click(desktop.mainWindow(), name); }
  void carry(const char* name) { click(desktop.carryWindow(), name); }
  void type(QWidget& window, const char* box, const QString& text) {
    QLineEdit* edit = in<QLineEdit>(window, box);
    edit->selectAll();
    QTest::keyClicks(edit, text);
  }
  bool shows(const char* form) { return desktop.formWindow(form)->isVisible(); }
  void load() {
    main("Command2");
    main("cmdInputLTdata");
  }
};

} // namespace

class FunctionFormsWindowTest : public QObject {
  Q_OBJECT
private slots:
  // No control under the polynomial K(t) of the form's own boxes writes
  // the reviewed files of the same run on the command line.
  void aRunLimitedByTheFormWritesTheFilesOfTheCommandLine() {
    Clicked s;
    s.load();
    QVERIFY(s.in(s.desktop.mainWindow(), "cmdKandT")->isEnabled());
    s.main("Option1");
    s.main("cmdKandT");
    QVERIFY(s.shows(forms::kCarryingCapacity));
    QVERIFY(!s.shows(forms::kMainform));
    QWidget& form = s.desktop.carryWindow();
    QVERIFY(s.in<QRadioButton>(form, "Option4")->isChecked());
    QVERIFY(!s.in(form, "Frame4")->isVisible());
    s.carry("Option2");
    QVERIFY(s.in(form, "Frame4")->isVisible());
    QVERIFY(!s.in(form, "Command2")->isEnabled());
    s.carry("Command3");
    QCOMPARE(s.desktop.carryWindow().chart()->chart()->title(),
             QStringLiteral("The time-specific carrying capacity"));
    s.carry("Command1");
    QVERIFY2(s.errors.isEmpty(), qPrintable(s.errors.join("\n")));
    QVERIFY(s.in(form, "Command2")->isEnabled());
    auto* curve = qobject_cast<QLineSeries*>(s.desktop.carryWindow().chart()->chart()->series().first());
    QCOMPARE(curve->count(), 61);
    QCOMPARE(curve->at(60).y(), s.desktop.session().model().CarryingCapacity(60));
    QApplication::processEvents();
    QVERIFY(form.grab().save(testing::screenshotPath(QStringLiteral("carrying-capacity-polynomial.png"))));

    s.carry("Command2");
    QVERIFY(s.shows(forms::kMainform));
    QVERIFY(!s.shows(forms::kCarryingCapacity));
    s.main("cmdRun");
    QVERIFY2(s.errors.isEmpty(), qPrintable(s.errors.join("\n")));
    QVERIFY(s.in(s.desktop.mainWindow(), "Command16")->isEnabled());
    s.main("Command16");
    QVERIFY(s.shows(forms::kCarryingCapacity));
    QVERIFY(!s.in(form, "Frame1")->isEnabled());
    QVERIFY(!s.in(form, "Command1")->isEnabled());
    s.desktop.carryWindow().close();
    QVERIFY(s.shows(forms::kMainform));

    QFile::remove(s.dataFile);
    const QString golden = QStringLiteral(VORLEX_TEST_DATA_DIR "/golden/moth-capacity-polynomial");
    QStringList expected = QDir(golden).entryList(QDir::Files, QDir::Name);
    expected.removeAll(QStringLiteral("stdout.txt"));
    QCOMPARE(QDir(s.dir.path()).entryList(QDir::Files, QDir::Name), expected);
    for (const QString& name : expected)
      QVERIFY2(contentsOf(s.dir.path() + "/" + name) == contentsOf(golden + "/" + name), qPrintable(name));
  }

  void typingInAThresholdBoxChoosesItsEquationAndEnterRecomputes() {
    Clicked s;
    s.load();
    s.main("cmdETandAT");
    QVERIFY(s.shows(forms::kEtAndAt));
    QWidget& form = s.desktop.etAtWindow();
    // The file's logistic threshold is in the logistic's boxes, and drawn.
    QCOMPARE(s.in<QLineEdit>(form, "txtC")->text(), QStringLiteral("-.2"));
    QVERIFY(s.in<QRadioButton>(form, "Option3")->isChecked());
    const Model& m = s.desktop.session().model();
    auto* curve = qobject_cast<QLineSeries*>(s.desktop.etAtWindow().chart()->chart()->series().first());
    QCOMPARE(curve->at(0).y(), 20.0);

    s.type(form, "Text2", QStringLiteral("40"));
    QVERIFY(s.in<QRadioButton>(form, "Option2")->isChecked());
    QCOMPARE(m.EtDay(10), 4 + 10 * .5); // the first keystroke only
    QTest::keyClick(s.in(form, "Text2"), Qt::Key_Return);
    QCOMPARE(m.EtDay(10), 40 + 10 * .5);
    QApplication::processEvents();
    QVERIFY(form.grab().save(testing::screenshotPath(QStringLiteral("et-and-at-linear.png"))));
    s.click(form, "Command1");
    QVERIFY(s.shows(forms::kMainform));
    QVERIFY(!s.shows(forms::kEtAndAt));
  }
};

QTEST_MAIN(FunctionFormsWindowTest)
#include "FunctionFormsWindowTest.moc"
