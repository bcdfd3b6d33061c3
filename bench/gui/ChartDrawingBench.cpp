// Drawing a chart record with Qt Charts: the stage chart of a long run, as
// the desktop program draws it after the run and on each click.
#include "charts/ChartFamily.h"
#include "mainform/MainForm.h"
#include "model/Session.h"
#include "textio/SilentPrompter.h"
#include "ui/ChartDrawing.h"
#include "ui/ChartView.h"

#include <QApplication>
#include <QChart>
#include <QPixmap>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

namespace {

namespace fs = std::filesystem;

class DefaultAnswers : public vorlex::SilentPrompter {
public:
  explicit DefaultAnswers(std::string dataFile) : dataFile_(std::move(dataFile)) {}
  std::string chooseFileToOpen(const std::string&) override { return dataFile_; }

private:
  std::string dataFile_;
};

vorlex::ChartContent stageChartOfARun(int simTime) {
  const fs::path dir = fs::temp_directory_path() / "vorlex-bench-drawing";
  fs::create_directories(dir);
  const fs::path dataFile = dir / "moth.txt";
  fs::copy_file(fs::path(VORLEX_SOURCE_DIR) / "examples" / "moth.txt", dataFile,
                fs::copy_options::overwrite_existing);
  DefaultAnswers answers(dataFile.string());
  vorlex::Session session(answers);
  vorlex::MainForm form(session);
  form.Form_Load();
  session.controls["txtSimuT"].caption = std::to_string(simTime);
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  form.Option1_Click();
  form.cmdRun_Click();
  session.files.closeAll();
  vorlex::ChartContent chart = session.mainChart;
  fs::remove_all(dir);
  return chart;
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
