// A whole session as a user clicks it: load the example, run without
// control, write the report and every figure, death, matrix and derived file.
#include "ExampleRun.h"

#include <benchmark/benchmark.h>

namespace {

void BM_WholeRunOfTheExample(benchmark::State& state) {
  const vorlex::bench::ExampleCopy example("vorlex-bench-run");
  vorlex::bench::DefaultAnswers answers(example.dataFile());
  std::size_t files = 0;
  for (auto _ : state) {
    vorlex::Session session(answers);
    vorlex::bench::runWithoutControl(session, static_cast<int>(state.range(0)));
    files = session.files.writtenPaths().size();
  }
  state.counters["files"] = static_cast<double>(files);
}
// 1003 is the longest whole run: at 1004 the total plot reads DailyWID one
// past the last day the projection leaves, beyond the tables.
BENCHMARK(BM_WholeRunOfTheExample)->Arg(60)->Arg(1003)->Unit(benchmark::kMillisecond);

} // namespace
