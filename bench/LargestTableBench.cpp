// The largest table the program takes, a long-lived beetle of 1005 ages,
// nine immature stages and the two sexes (tools/make_example.py
// beetle-largest): a whole session as a user clicks it, 1003 days with every
// file written, and its projection alone.
#include "ExampleRun.h"

#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "textio/NumberForms.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// The table, built in a temporary folder of its own and removed again.
class LargestTable {
public:
  explicit LargestTable(const std::string& folder) : dir_(fs::temp_directory_path() / folder) {
    fs::create_directories(dir_);
    const std::string command = "python3 '" + (fs::path(VORLEX_SOURCE_DIR) / "tools" / "make_example.py").string() +
                                "' --out-dir '" + dir_.string() + "' beetle-largest >/dev/null";
    built_ = std::system(command.c_str()) == 0;
  }
  ~LargestTable() { fs::remove_all(dir_); }
  LargestTable(const LargestTable&) = delete;
  LargestTable& operator=(const LargestTable&) = delete;

  bool built() const { return built_; }
  std::string dataFile() const { return (dir_ / "beetle-largest.txt").string(); }

private:
  fs::path dir_;
  bool built_ = false;
};

constexpr int kDays = 1003;

void BM_WholeRunOfTheLargestTable(benchmark::State& state) {
  const LargestTable table("vorlex-bench-largest-run");
  if (!table.built()) {
    state.SkipWithError("tools/make_example.py could not build the table");
    return;
  }
  vorlex::bench::DefaultAnswers answers(table.dataFile());
  for (auto _ : state) {
    vorlex::Session session(answers);
    vorlex::bench::runWithoutControl(session, kDays);
    benchmark::DoNotOptimize(session.model().TotalSize(kDays));
  }
}
BENCHMARK(BM_WholeRunOfTheLargestTable)->Unit(benchmark::kMillisecond);

/// The table loaded into a session as a user loads it, for the work of its
/// projection; nothing is loaded when the table could not be built.
struct LoadedTable {
  explicit LoadedTable(const std::string& folder) : table(folder), answers(table.dataFile()) {
    if (table.built())
      vorlex::bench::loadExample(form, session, kDays);
  }
  LargestTable table;
  vorlex::bench::DefaultAnswers answers;
  vorlex::Session session{answers};
  vorlex::MainForm form{session};
};

bool skippedWithoutTable(benchmark::State& state, const LoadedTable& loaded) {
  if (loaded.table.built())
    return false;
  state.SkipWithError("tools/make_example.py could not build the table");
  return true;
}

// Day 0 is made again, with the timer stopped, before every projection.
void BM_ProjectionOfTheLargestTable(benchmark::State& state) {
  LoadedTable loaded("vorlex-bench-largest-projection");
  if (skippedWithoutTable(state, loaded))
    return;
  vorlex::Session& session = loaded.session;
  for (auto _ : state) {
    state.PauseTiming();
    vorlex::VorlexBSetStageSurvivalRto1(session);
    state.ResumeTiming();
    vorlex::VorlexDGosub160PopulationGrowth(session);
  }
  if (session.model().Day != kDays + 2)
    state.SkipWithError("the projection did not reach its last day");
  session.files.closeAll();
}
BENCHMARK(BM_ProjectionOfTheLargestTable)->Unit(benchmark::kMillisecond);

// The conversion of the numbers that the files of a long run hold: the
// series of the stages, their deaths and growth rates after the projection
// of the largest table, each to its text as the figure files take it.
void BM_DigitsOfTheLargestRunsNumbers(benchmark::State& state) {
  LoadedTable loaded("vorlex-bench-largest-digits");
  if (skippedWithoutTable(state, loaded))
    return;
  vorlex::Session& session = loaded.session;
  vorlex::VorlexBSetStageSurvivalRto1(session);
  vorlex::VorlexDGosub160PopulationGrowth(session);
  session.files.closeAll();
  const vorlex::Model& m = session.model();
  std::vector<double> numbers;
  for (int t = 0; t <= kDays; ++t)
    for (int j = 1; j <= m.NrStage; ++j)
      for (const double v : {m.StageSize(j, t), m.StageDeath(t, j), m.LogStageDeath(t, j), m.CumuStageDeath(t, j),
                             m.StageGrowthLn(j, t), m.StageGrowthLog(j, t)})
        numbers.push_back(v);
  char text[vorlex::kNumberTextRoom];
  for (auto _ : state)
    for (const double v : numbers) {
      benchmark::DoNotOptimize(vorlex::NumberText(v, vorlex::NumberText::Form::Stripped).writeInto(text));
      benchmark::ClobberMemory();
    }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(numbers.size()));
}
BENCHMARK(BM_DigitsOfTheLargestRunsNumbers)->Unit(benchmark::kMillisecond);

} // namespace
