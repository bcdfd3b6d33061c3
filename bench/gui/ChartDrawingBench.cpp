// Drawing a chart record with Qt Charts: the stage chart of a long run, as
// the desktop program draws it after the run and on each click.
#include "../ExampleRun.h"
#include "ui/ChartDrawing.h"
#include "ui/ChartView.h"

#include <QApplication>
#include <QChart>
#include <QPixmap>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

vorlex::ChartContent stageChartOfARun(int simTime) {
  const vorlex::bench::ExampleCopy example("vorlex-bench-drawing");
  vorlex::bench::DefaultAnswers answers(example.dataFile());
  vorlex::Session session(answers);
  vorlex::bench::runWithoutControl(session, simTime);
  return session.mainChart;
}

void BM_BuildStageChart(benchmark::State& state) {
  const vorlex::ChartContent content = stageChartOfARun(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    std::unique_ptr<QChart> chart(vorlex::ui::buildChart(content));
    benchmark::DoNotOptimize(chart.get());
  }
}
BENCHMARK(BM_BuildStageChart)->Arg(60)->Arg(1003)->Unit(benchmark::kMillisecond);

// Showing and painting the chart once, as a click on the chart costs.
void BM_ShowAndPaintStageChart(benchmark::State& state) {
  const vorlex::ChartContent content = stageChartOfARun(static_cast<int>(state.range(0)));
  vorlex::ui::ChartView view;
  view.resize(540, 480);
  for (auto _ : state) {
    view.showContent(content);
    QPixmap picture = view.grab();
    benchmark::DoNotOptimize(picture.width());
  }
}
BENCHMARK(BM_ShowAndPaintStageChart)->Arg(60)->Arg(1003)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
