// An optimisation of the first control on the example: the copy of the
// finished model that the series of runs works on, and the series itself,
// SimTime + 1 runs of SimTime + 1 days each.
#include "ExampleRun.h"

#include "strategies/SeriesOfRuns.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

void predefinedRun(vorlex::Session& session, int simTime) {
  vorlex::MainForm form(session);
  vorlex::bench::loadExample(form, session, simTime);
  form.Option2_Click();
  form.cmdRun_Click();
  session.files.closeAll();
}

void BM_CopyOfTheFinishedModel(benchmark::State& state) {
  const vorlex::bench::ExampleCopy example("vorlex-bench-series-copy");
  vorlex::bench::DefaultAnswers answers(example.dataFile());
  vorlex::Session session(answers);
  predefinedRun(session, 60);
  for (auto _ : state) {
    auto copy = std::make_unique<vorlex::Model>(session.model());
    benchmark::DoNotOptimize(copy->TotalSize(60));
  }
}
BENCHMARK(BM_CopyOfTheFinishedModel)->Unit(benchmark::kMillisecond);

void BM_SeriesOfRunsMovingTheFirstControl(benchmark::State& state) {
  const vorlex::bench::ExampleCopy example("vorlex-bench-series");
  vorlex::bench::DefaultAnswers answers(example.dataFile());
  vorlex::Session session(answers);
  const int simTime = static_cast<int>(state.range(0));
  predefinedRun(session, simTime);
  session.flags.GrowthMode = "CONSTANT";
  const vorlex::Model finished = session.model();
  for (auto _ : state) {
    state.PauseTiming();
    session.model() = finished;
    state.ResumeTiming();
    vorlex::VorlexG(session);
    benchmark::DoNotOptimize(session.model().RunWID(1));
  }
}
BENCHMARK(BM_SeriesOfRunsMovingTheFirstControl)->Arg(60)->Arg(365)->Unit(benchmark::kMillisecond);

} // namespace
