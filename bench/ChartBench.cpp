// The charts of a long run: one lap of the main form's chart cycle fills
// every chart record from the model.
#include "ExampleRun.h"
#include "charts/ChartCycle.h"
#include "textio/RuntimeError.h"

#include <benchmark/benchmark.h>

namespace {

void BM_ChartCycleLapAfterALongRun(benchmark::State& state) {
  const vorlex::bench::ExampleCopy example("vorlex-bench-charts");
  vorlex::bench::DefaultAnswers answers(example.dataFile());
  vorlex::Session session(answers);
  vorlex::bench::runWithoutControl(session, static_cast<int>(state.range(0)));

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
}
BENCHMARK(BM_ChartCycleLapAfterALongRun)->Arg(60)->Arg(1003)->Unit(benchmark::kMillisecond);

} // namespace
