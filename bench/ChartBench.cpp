// The charts of a long run: one lap of the main form's chart cycle fills
// every chart record from the model.
#include "charts/ChartCycle.h"
#include "mainform/MainForm.h"
#include "model/Session.h"
#include "textio/RuntimeError.h"
#include "textio/SilentPrompter.h"

#include <benchmark/benchmark.h>

#include <filesystem>
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

void BM_ChartCycleLapAfterALongRun(benchmark::State& state) {
  const fs::path dir = fs::temp_directory_path() / "vorlex-bench-charts";
  fs::create_directories(dir);
  const fs::path dataFile = dir / "moth.txt";
  fs::copy_file(fs::path(VORLEX_SOURCE_DIR) / "examples" / "moth.txt", dataFile,
                fs::copy_options::overwrite_existing);
  DefaultAnswers answers(dataFile.string());
  vorlex::Session session(answers);
  vorlex::MainForm form(session);
  form.Form_Load();
  session.controls["txtSimuT"].caption = std::to_string(state.range(0));
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  form.Option1_Click();
  form.cmdRun_Click();
  session.files.closeAll();

  for (auto _ : state) {
    for (int click = 0; click < vorlex::kChartCycleLength; ++click) {
      // The log of a total that fell by more than 1 in a day stops its
      // chart, as it stops the program; the lap goes on past it here.
      try {
        vorlex::MSChart1_Activate(session);
      } catch (const vorlex::RuntimeError&) {
      }
    }
    benchmark::DoNotOptimize(session.mainChart.rowCount());
  }
  fs::remove_all(dir);
}
BENCHMARK(BM_ChartCycleLapAfterALongRun)->Arg(60)->Arg(1003)->Unit(benchmark::kMillisecond);

} // namespace
