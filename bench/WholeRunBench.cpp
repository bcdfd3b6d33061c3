// A whole session as a user clicks it: load the example, run without
// control, write the report and every figure, death, matrix and derived file.
#include "mainform/MainForm.h"
#include "model/Session.h"
#include "textio/SilentPrompter.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

// Takes every default and opens the one data file.
class DefaultAnswers : public vorlex::SilentPrompter {
public:
  explicit DefaultAnswers(std::string dataFile) : dataFile_(std::move(dataFile)) {}
  std::string chooseFileToOpen(const std::string&) override { return dataFile_; }

private:
  std::string dataFile_;
};

void BM_WholeRunOfTheExample(benchmark::State& state) {
  const fs::path dir = fs::temp_directory_path() / "vorlex-bench-run";
  fs::create_directories(dir);
  const fs::path dataFile = dir / "moth.txt";
  fs::copy_file(fs::path(VORLEX_SOURCE_DIR) / "examples" / "moth.txt", dataFile,
                fs::copy_options::overwrite_existing);
  DefaultAnswers answers(dataFile.string());
  std::size_t files = 0;
  for (auto _ : state) {
    vorlex::Session session(answers);
    vorlex::MainForm form(session);
    form.Form_Load();
    session.controls["txtSimuT"].caption = std::to_string(state.range(0));
    form.Command2_Click();
    form.cmdInputLTdata_Click();
    form.Option1_Click();
    form.cmdRun_Click();
    session.files.closeAll();
    files = session.files.writtenPaths().size();
  }
  state.counters["files"] = static_cast<double>(files);
  fs::remove_all(dir);
}
// 1003 is the longest whole run: at 1004 the total plot reads DailyWID one
// past the last day the projection leaves, beyond the tables.
BENCHMARK(BM_WholeRunOfTheExample)->Arg(60)->Arg(1003)->Unit(benchmark::kMillisecond);

} // namespace
