// A chart record drawn with Qt Charts, saved as pictures and copied as data.
#include "ui/ChartDrawing.h"
#include "GuiSupport.h"
#include "ui/ChartView.h"

#include <QApplication>
#include <QChart>
#include <QClipboard>
#include <QImage>
#include <QLegend>
#include <QLineSeries>
#include <QScatterSeries>
#include <QToolTip>
#include <QValueAxis>
#include <QtTest>

#include <memory>

using vorlex::ChartContent;

namespace {

// Two series over three days: egg falls, larva rises.
ChartContent eggAndLarva() {
  ChartContent chart;
  chart.title = "Stage size curves";
  chart.xAxis.title = "Time (d)";
  chart.yAxis.title = "Size";
  chart.yAxis.majorGridPen = vorlex::PenStyle::Solid;
  chart.yAxis.automaticGridColour = false;
  chart.resize(2, 3);
  chart.label(1) = "Egg";
  chart.label(2) = "Larva";
  const double egg[] = {10, 6, 2}, larva[] = {0, 3.5, 7.25};
  for (int row = 1; row <= 3; ++row) {
    chart.at(row, 1) = chart.at(row, 3) = row - 1;
    chart.at(row, 2) = egg[row - 1];
    chart.at(row, 4) = larva[row - 1];
  }
  return chart;
}

QValueAxis* axisOf(QChart& chart, Qt::Orientation orientation) {
  return qobject_cast<QValueAxis*>(chart.axes(orientation).value(0));
}

} // namespace

class ChartDrawingTest : public QObject {
  Q_OBJECT
private slots:
  void marksWithoutLinesAreScatteredCirclesOnAWhitePlot() {
    ChartContent content = eggAndLarva();
    content.plotBackground = vorlex::ChartColour{255, 255, 255};
    content.looks[1] =
        vorlex::SeriesLook{vorlex::PenStyle::None,
                           vorlex::SeriesMarker{vorlex::MarkerStyle::FilledCircle, {255, 0, 0}, {}, 10, 200}};
    content.looks[3] = content.looks[1]; // no third series: nothing to draw
    std::unique_ptr<QChart> chart(vorlex::ui::buildChart(content));
    QCOMPARE(chart->series().size(), 2);
    auto* marks = qobject_cast<QScatterSeries*>(chart->series().at(0));
    QVERIFY(marks);
    QCOMPARE(marks->color(), QColor(255, 0, 0));
    QCOMPARE(marks->markerShape(), QScatterSeries::MarkerShapeCircle);
    QVERIFY(marks->markerSize() > 12 && marks->markerSize() < 15);
    QCOMPARE(marks->count(), 3);
    QVERIFY(qobject_cast<QLineSeries*>(chart->series().at(1)));
    QVERIFY(chart->isPlotAreaBackgroundVisible());
    QCOMPARE(chart->plotAreaBackgroundBrush().color(), QColor(255, 255, 255));
  }

  void aTitleTooWideIsCutShortWithTheWholeTitleAsToolTip() {
    ChartContent content = eggAndLarva();
    content.title = "Total population size (T) and weighted vulnerable size (W) after release, day 0 to 60";
    const QString whole = QString::fromStdString(content.title);
    vorlex::ui::ChartView view;
    view.setToolTip(QStringLiteral("a hint of the form"));
    view.resize(300, 240);
    view.showContent(content);
    view.show();
    QApplication::processEvents();
    QVERIFY(view.titleCut());
    const QString shown = view.chart()->title();
    QVERIFY2(shown.endsWith(QChar(0x2026)), qPrintable(shown));
    QVERIFY(shown.size() > 5);
    QVERIFY(whole.startsWith(shown.chopped(1)));
    const QMargins margins = view.chart()->margins();
    QVERIFY(QFontMetricsF(view.chart()->titleFont()).horizontalAdvance(shown) <=
            view.width() - margins.left() - margins.right());
    QVERIFY(view.grab().save(vorlex::testing::screenshotPath(QStringLiteral("chart-title-cut.png"))));

    auto toolTipAt = [&view](QPoint at) {
      QHelpEvent help(QEvent::ToolTip, at, view.mapToGlobal(at));
      QApplication::sendEvent(&view, &help);
      const QString text = QToolTip::text();
      QToolTip::hideText();
      return text;
    };
    QCOMPARE(toolTipAt(QPoint(150, 20)), whole);

    // Wide enough, the whole title shows and the form's hint is the tool tip.
    view.resize(1800, 500);
    QApplication::processEvents();
    QVERIFY(!view.titleCut());
    QCOMPARE(view.chart()->title(), whole);
    QCOMPARE(toolTipAt(QPoint(150, 20)), QStringLiteral("a hint of the form"));
    // Narrow again, and a new record: cut again.
    view.resize(300, 240);
    content.title += " and beyond";
    view.showContent(content);
    QApplication::processEvents();
    QVERIFY(view.titleCut());
    QCOMPARE(toolTipAt(QPoint(150, 20)), whole + " and beyond");
    // A short title fits a small chart whole.
    view.showContent(eggAndLarva());
    QVERIFY(!view.titleCut());
    QCOMPARE(view.chart()->title(), QStringLiteral("Stage size curves"));
  }

  void seriesLegendTitlesAndGridFollowTheRecord() {
    std::unique_ptr<QChart> chart(vorlex::ui::buildChart(eggAndLarva()));
    QCOMPARE(chart->title(), QStringLiteral("Stage size curves"));
    QCOMPARE(chart->titleFont().family(), QStringLiteral("Arial"));
    QCOMPARE(chart->titleFont().pointSizeF(), 12.0);

    const auto series = chart->series();
    QCOMPARE(series.size(), 2);
    auto* larva = qobject_cast<QLineSeries*>(series[1]);
    QCOMPARE(larva->name(), QStringLiteral("Larva"));
    QCOMPARE(larva->points(), (QList<QPointF>{{0, 0}, {1, 3.5}, {2, 7.25}}));
    QCOMPARE(qobject_cast<QLineSeries*>(series[0])->points().last(), QPointF(2, 2));

    QVERIFY(chart->legend()->isVisible());
    QCOMPARE(chart->legend()->alignment(), Qt::AlignRight);
    QVERIFY(chart->legend()->showToolTips());

    QValueAxis* x = axisOf(*chart, Qt::Horizontal);
    QValueAxis* y = axisOf(*chart, Qt::Vertical);
    QCOMPARE(x->titleText(), QStringLiteral("Time (d)"));
    QCOMPARE(y->titleText(), QStringLiteral("Size"));
    QVERIFY(y->isGridLineVisible());
    QCOMPARE(y->gridLineColor(), QColor(0, 0, 0));
    QVERIFY(!x->isGridLineVisible());
    // The automatic scale takes in every point.
    QVERIFY(y->min() <= 0 && y->max() >= 10);
    QVERIFY(x->min() <= 0 && x->max() >= 2);
  }

  void legendOffAndEmptyRecordsDrawToo() {
    ChartContent flat = eggAndLarva();
    flat.showLegend = false;
    for (int row = 1; row <= 3; ++row)
      flat.at(row, 2) = flat.at(row, 4) = 0; // a chart before any run: all zeros
    std::unique_ptr<QChart> chart(vorlex::ui::buildChart(flat));
    QVERIFY(!chart->legend()->isVisible());
    QValueAxis* y = axisOf(*chart, Qt::Vertical);
    QVERIFY(y->min() < y->max());

    std::unique_ptr<QChart> empty(vorlex::ui::buildChart(ChartContent{}));
    QCOMPARE(empty->series().size(), 0);
  }

  void savesPngAndSvgAndCopiesData() {
    QTemporaryDir dir;
    vorlex::ui::ChartView view;
    view.resize(640, 420);
    view.showContent(eggAndLarva());
    QCOMPARE(view.chart()->title(), QStringLiteral("Stage size curves"));

    const QString png = dir.filePath(QStringLiteral("chart.png"));
    QVERIFY(view.savePng(png));
    QImage picture(png);
    QCOMPARE(picture.size(), QSize(640, 420));
    QVERIFY(view.savePng(vorlex::testing::screenshotPath(QStringLiteral("chart.png"))));

    const QString svg = dir.filePath(QStringLiteral("chart.svg"));
    QVERIFY(view.saveSvg(svg));
    QFile file(svg);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(text.contains("<svg"));
    QVERIFY(text.contains("Stage size curves"));

    view.copyData();
    const QString copied = QApplication::clipboard()->text();
    QVERIFY(copied.startsWith(QStringLiteral("Stage size curves")));
    QVERIFY(copied.contains(QStringLiteral("Larva")));
    QVERIFY(copied.contains(QStringLiteral("7.25")));
  }

  void saveFromTheMenuAddsTheSuffixAndCancelSavesNothing() {
    QTemporaryDir dir;
    vorlex::ui::ChartView view;
    view.showContent(eggAndLarva());
    std::vector<std::string> asked;
    std::string answer = dir.filePath(QStringLiteral("stages")).toStdString();
    view.chooseFileToSave = [&](const std::string& title) {
      asked.push_back(title);
      return answer;
    };
    view.saveAs(vorlex::ui::ChartView::Picture::Png);
    view.saveAs(vorlex::ui::ChartView::Picture::Svg);
    QVERIFY(QFile::exists(dir.filePath(QStringLiteral("stages.png"))));
    QVERIFY(QFile::exists(dir.filePath(QStringLiteral("stages.svg"))));
    QCOMPARE(asked, (std::vector<std::string>{"Save the chart as PNG", "Save the chart as SVG"}));

    answer = dir.filePath(QStringLiteral("given.PNG")).toStdString(); // a suffix of its own stays
    view.saveAs(vorlex::ui::ChartView::Picture::Png);
    QVERIFY(QFile::exists(dir.filePath(QStringLiteral("given.PNG"))));

    answer.clear(); // Cancel
    const auto before = QDir(dir.path()).entryList(QDir::Files).size();
    view.saveAs(vorlex::ui::ChartView::Picture::Png);
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files).size(), before);
  }
};

QTEST_MAIN(ChartDrawingTest)
#include "ChartDrawingTest.moc"
