// The charts of a run saved as pictures without a window.
#include "GuiSupport.h"
#include "ui/SaveChartsCommand.h"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QtTest>

#include <cmath>
#include <sstream>

namespace {

struct Saved {
  int status;
  QString out, err;
};

Saved saveCharts(const QStringList& args) {
  std::vector<std::string> list;
  for (const QString& arg : args)
    list.push_back(arg.toStdString());
  std::ostringstream out, err;
  const int status = vorlex::ui::saveChartsCommand(list, out, err);
  return {status, QString::fromStdString(out.str()), QString::fromStdString(err.str())};
}

QString fileText(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("<missing>");
}

// The lines from "Charts saved in" on, the folder's path taken out.
QString chartLines(const QString& out, const QString& folder) {
  QString lines = out.mid(out.indexOf(QStringLiteral("Charts saved in")));
  return lines.replace(folder, QStringLiteral("DIR"));
}

// The mean difference of two images of the same size, 0 to 255 a channel.
double meanDifference(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
      sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
    }
  return sum / (3.0 * a.width() * a.height());
}

} // namespace

class SaveChartsTest : public QObject {
  Q_OBJECT
private slots:
  // The example's 60 days: every chart the run can show is saved in both
  // forms at the asked size; those it can't are named with the reason.
  void theExampleSavesEveryChartItCanDraw() {
    QTemporaryDir dir;
    const QString data = vorlex::testing::copyOfExample(dir);
    const QString folder = dir.filePath(QStringLiteral("figures/moth"));
    const Saved saved = saveCharts(
        {"--save-charts", folder, "--size", "640x400", "--dpi", "192", data, "--date", "2026-01-01"});
    QCOMPARE(saved.status, 0);
    QCOMPARE(saved.err, QString());
    const QString golden = QStringLiteral(VORLEX_TEST_DATA_DIR "/moth-save-charts.expected");
    const QString lines = chartLines(saved.out, folder);
    if (qEnvironmentVariableIsSet("VORLEX_UPDATE_GOLDEN")) {
      QFile file(golden);
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write(lines.toUtf8());
      QSKIP("rewrote the golden chart list");
    }
    QCOMPARE(lines, fileText(golden));

    // The files are those named, each picture at its size and resolution.
    QStringList expected;
    static const QRegularExpression kSavedLine(QStringLiteral("^  (\\S+)\\.png, \\.svg$"),
                                               QRegularExpression::MultilineOption);
    for (auto match = kSavedLine.globalMatch(lines); match.hasNext();) {
      const QString name = match.next().captured(1);
      expected << name + ".png" << name + ".svg";
    }
    expected.sort();
    QCOMPARE(QDir(folder).entryList(QDir::Files, QDir::Name), expected);
    const int dotsPerMetre = static_cast<int>(std::lround(192 / 0.0254));
    for (const QString& name : expected) {
      const QString path = folder + "/" + name;
      if (name.endsWith(".png")) {
        const QImage image(path);
        QCOMPARE(image.size(), QSize(640, 400));
        QCOMPARE(image.dotsPerMeterX(), dotsPerMetre);
      } else {
        QSvgRenderer svg(path);
        QVERIFY2(svg.isValid(), qPrintable(name));
        QCOMPARE(svg.viewBox(), QRect(0, 0, 640, 400));
        // 640 pixels at 192 dpi are 3.333 inches, 84.67 mm.
        QVERIFY2(fileText(path).contains(QStringLiteral("width=\"84.6667mm\"")), qPrintable(name));
      }
    }
    const QString screenshot = vorlex::testing::screenshotPath(QStringLiteral("saved-chart-stage-size.png"));
    QFile::remove(screenshot);
    QVERIFY(QFile::copy(folder + "/cycle-00-Stage-size.png", screenshot));
  }

  // Twice the pixels at twice the resolution is the same picture, finer:
  // text and lines grow with the resolution, the layout does not change.
  void aResolutionScalesTheDrawingNotTheLayout() {
    QTemporaryDir dir;
    const QString data = vorlex::testing::copyOfExample(dir);
    const Saved coarse = saveCharts({"--save-charts", dir.filePath("96"), "--size", "400x300", data});
    const Saved fine =
        saveCharts({"--save-charts", dir.filePath("192"), "--size", "800x600", "--dpi", "192", data});
    QCOMPARE(coarse.status, 0);
    QCOMPARE(fine.status, 0);
    const QString chart = QStringLiteral("/large-00-Stage-size-curves.png");
    const QImage small(dir.filePath("96") + chart);
    const QImage large(dir.filePath("192") + chart);
    QCOMPARE(large.size(), QSize(800, 600));
    const QImage shrunk = large.scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // They differ by about 0.7 levels in 255; drawn at 96 dpi with 800 x 600
    // pixels, the text would be half as large and the curves elsewhere,
    // about 8 levels apart.
    const double difference = meanDifference(small.convertToFormat(QImage::Format_RGB32),
                                             shrunk.convertToFormat(QImage::Format_RGB32));
    QVERIFY2(difference < 3, qPrintable(QString::number(difference)));
  }

  void unusableCommandLinesSaveNothing_data() {
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("said");
    QTest::newRow("size without a height") << QStringList{"--size", "800"} << "--size wants WIDTHxHEIGHT";
    QTest::newRow("size too small") << QStringList{"--size", "8x600"} << "--size wants WIDTHxHEIGHT";
    QTest::newRow("size in inches") << QStringList{"--size", "4.5x3"} << "--size wants WIDTHxHEIGHT";
    QTest::newRow("dpi not whole") << QStringList{"--dpi", "300.5"} << "--dpi wants a whole number";
    QTest::newRow("dpi too high") << QStringList{"--dpi", "9600"} << "--dpi wants a whole number";
    QTest::newRow("dpi without value") << QStringList{"--dpi"} << "--dpi wants a value";
    QTest::newRow("an option of no one")
        << QStringList{"--colour", "red"} << "unexpected argument '--colour'";
  }
  void unusableCommandLinesSaveNothing() {
    QFETCH(QStringList, options);
    QFETCH(QString, said);
    QTemporaryDir dir;
    const QString data = vorlex::testing::copyOfExample(dir);
    const Saved saved = saveCharts(QStringList{"--save-charts", dir.filePath("charts"), data} + options);
    QCOMPARE(saved.status, 2);
    QVERIFY2(saved.err.contains(said), qPrintable(saved.err));
    QVERIFY(!QDir(dir.filePath("charts")).exists());
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{"moth.txt"});
  }

  // The program itself, started where there is no display at all.
  void theProgramSavesWithoutADisplay() {
    QTemporaryDir dir;
    const QString data = vorlex::testing::copyOfExample(dir);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
      environment.remove(QString::fromLatin1(name));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(VORLEX_GUI),
                  {"--save-charts", dir.filePath("charts"), "--size", "300x200", data, "--sim-time", "20"});
    QVERIFY(program.waitForFinished(60000));
    const QString err = QString::fromUtf8(program.readAllStandardError());
    QCOMPARE(program.exitCode(), 0);
    QVERIFY2(err.isEmpty(), qPrintable(err));
    QCOMPARE(QImage(dir.filePath("charts/cycle-00-Stage-size.png")).size(), QSize(300, 200));
    QVERIFY(QFile::exists(dir.filePath("moth_0_output.txt")));
  }
};

QTEST_MAIN(SaveChartsTest)
#include "SaveChartsTest.moc"
