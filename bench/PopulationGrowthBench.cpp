// The day-by-day projections without control, under automatic control at
// ET(t), with harvest and of growth to lambda, at the largest size the tables allow and at the
// size of the example. Each projection is timed from day 1 on; its day 0 is
// made again, with the timer stopped, before every run.
#include "ExampleRun.h"

#include "engine/AutoControl.h"
#include "engine/GrowthToLambda.h"
#include "engine/GrowthWithHarvest.h"
#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "model/LifeTable.h"
#include "model/Session.h"
#include "strategies/ControlledStart.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"
#include "textio/SilentPrompter.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>

namespace {

// Ten immature stages, a female and a male, each with rates at every age up
// to 1004, so that the whole matrix fills; females lay from age 100. The
// population grows from 1100 to about 18600 individuals over the 1005 days.
// Every stage spans all ages, so the automatic rule and the harvest walk
// the whole matrix as well; the sampled stages are the harvested ones.
void largestTable(vorlex::Model& m) {
  m.LastAge = 1004;
  m.NrStage = 12;
  m.SimTime = 1004;
  m.NrWeakFactor = 2;
  m.SamplingStageFrom = 3;
  m.SamplingStageTo = 6;
  for (int stage = 1; stage <= 12; ++stage) {
    m.StageAge(stage, 1) = 0;
    m.StageAge(stage, 2) = 1004;
    m.WeighCoef(stage) = stage >= 11 ? 1 : .1 * stage;
    m.DensityCoef(stage) = m.SamplingStageFrom <= stage && stage <= m.SamplingStageTo ? 1 : 2;
    for (int factor = 1; factor <= 2; ++factor)
      m.WeakCoef(factor, stage) = .5 * factor;
    for (int age = 0; age <= 1004; ++age) {
      const bool adult = stage >= 11;
      m.GrowthRate(age, stage) = adult ? .97 : .88;
      m.DevelopRate(age, stage) = adult ? 0 : .1;
      m.DeathRate(age, stage) = adult ? .03 : .02;
      m.Fecundity(age, stage) = stage == 11 && age >= 100 ? .5 : 0;
      m.WeighCoefAgeStage(age, stage) = m.WeighCoef(stage);
      m.DensityCoefAgeStage(age, stage) = .5;
    }
  }
  m.InitialN(0, 1) = 1000;
  m.InitialN(400, 11) = 50;
  m.InitialN(400, 12) = 50;
  for (int t = 0; t <= 1005; ++t) {
    m.CarryingCapacity(t) = 1e6;
    m.DensityCoefBelowKDay(t) = .01;
    m.DensityCoefOverKDay(t) = .5;
  }
  // The automatic rule: half of every stage dies on a day the weighed size
  // in the stages' ranges has reached 1500 (three days of the run). A
  // control lasts one day: one of two days taken on the last day would
  // reach beyond the tables.
  for (int t = 0; t <= 1005; ++t)
    m.EtDay(t) = 1500;
  m.ControlDuration(1) = 1;
  for (int stage = 1; stage <= 12; ++stage)
    m.ControlMortality(stage, 1, 1) = .5;
}

enum class Strategy { NoControl, AutoControl, Harvest, Lambda };

// What the strategy's driver sets before day 0. The harvest days are those
// the dialogue fills from day 1 to lastHarvestDay.
void chooseStrategy(vorlex::Session& session, Strategy strategy, int lastHarvestDay) {
  vorlex::Model& m = session.model();
  vorlex::RunFlags& flags = session.flags;
  switch (strategy) {
  case Strategy::NoControl:
  case Strategy::Lambda:
    flags.OptManagement = "OptNoControl";
    flags.GrowthMode.assign(1, ' '); // blank: the plain day step
    break;
  case Strategy::AutoControl:
    flags.OptManagement = "OptAutoControlBasedOnET";
    flags.GrowthMode = flags.ControlAutoMark = "AUTOCONTROL";
    flags.ControlFixedMark.clear();
    break;
  case Strategy::Harvest:
    flags.OptManagement = "OptGrowthWithHarvest";
    flags.GrowthMode = flags.ControlFixedMark = flags.ControlAutoMark = "Harvest";
    m.HarvestFrom = 1;
    m.HarvestTo = static_cast<vorlex::i16>(lastHarvestDay);
    for (int i = m.HarvestFrom; i <= m.HarvestTo; ++i)
      m.HarvestDay(i) = static_cast<vorlex::i16>(i);
    for (int j = 1; j <= m.NrStage; ++j) {
      m.RearingCost(j) = m.WeighCoef(j);
      m.HarvestStage(j) = vorlex::toInt16(m.DensityCoef(j));
    }
    break;
  }
}

// Day 0 of a run as the strategy's driver makes it.
void startRun(vorlex::Session& session, Strategy strategy, int simTime) {
  vorlex::Model& m = session.model();
  // Growth to lambda leaves its own simulation time behind.
  m.SimTime = static_cast<vorlex::i16>(simTime);
  const int lastDay = m.SimTime + 1;
  switch (strategy) {
  case Strategy::NoControl:
  case Strategy::Lambda:
    vorlex::VorlexBSetStageSurvivalRto1(session);
    break;
  case Strategy::AutoControl:
    // The controls the rule took in the last run are dropped.
    for (int j = 1; j <= m.NrStage; ++j)
      for (int t = 0; t <= lastDay; ++t) {
        m.StageSurvivalDay0(j, t) = 1;
        if (t >= 1)
          m.StageSurvivalDay(j, t) = 1;
      }
    m.NrAutoControl = 0;
    vorlex::VorlexF2AutoControl(session);
    break;
  case Strategy::Harvest:
    // The harvest file starts empty again.
    session.files.close(vorlex::kHarvestFile);
    session.files.attachOutput(vorlex::kHarvestFile, vorlex::OutputFile::inMemory());
    vorlex::VorlexBSetStageSurvivalRto1(session);
    break;
  }
}

void project(vorlex::Session& session, Strategy strategy) {
  switch (strategy) {
  case Strategy::NoControl:
    vorlex::VorlexDGosub160PopulationGrowth(session);
    break;
  case Strategy::AutoControl:
    vorlex::VorlexDAutoControl(session);
    break;
  case Strategy::Harvest:
    vorlex::VorlexDGosub160GrowthWithHarvest(session);
    break;
  case Strategy::Lambda:
    vorlex::VorlexDGosub160PopuGrowthToR(session);
    break;
  }
}

// Runs the projection, checks that it reached its last day (SimTime + 1,
// or day 1000 for growth to lambda) and shows how much the rule or the
// harvest had to do, and the days projected.
void timeProjections(benchmark::State& state, vorlex::Session& session, Strategy strategy) {
  vorlex::Model& m = session.model();
  const int simTime = m.SimTime;
  const int lastDay = strategy == Strategy::Lambda ? 1000 : simTime + 1;
  for (auto _ : state) {
    state.PauseTiming();
    startRun(session, strategy, simTime);
    state.ResumeTiming();
    project(session, strategy);
    benchmark::DoNotOptimize(m.TotalSize(lastDay));
  }
  if (m.Day != lastDay + 1 || !std::isfinite(m.TotalSize(lastDay)))
    state.SkipWithError("the projection did not reach its last day");
  state.counters["days"] = lastDay;
  if (strategy == Strategy::AutoControl)
    state.counters["controls"] = m.NrAutoControl;
  // The number harvested sits in TotalCost, the sum of the costs in
  // TotalHarvest.
  if (strategy == Strategy::Harvest)
    state.counters["harvestedOnLastDay"] = m.TotalCost(m.HarvestTo);
}

void atLargestSize(benchmark::State& state, Strategy strategy, bool underCarryingCapacity) {
  vorlex::SilentPrompter prompts;
  vorlex::Session session(prompts);
  largestTable(session.model());
  vorlex::VorlexAGosub640(session);
  session.flags.WithCarryingCapacity = underCarryingCapacity ? "Yes" : "No";
  // The projection looks at the first 100 harvest days only.
  chooseStrategy(session, strategy, 100);
  timeProjections(state, session, strategy);
}

void BM_ProjectionAtLargestSize(benchmark::State& state) { atLargestSize(state, Strategy::NoControl, false); }
BENCHMARK(BM_ProjectionAtLargestSize)->Unit(benchmark::kMillisecond);

void BM_ProjectionAtLargestSizeUnderK(benchmark::State& state) {
  atLargestSize(state, Strategy::NoControl, true);
}
BENCHMARK(BM_ProjectionAtLargestSizeUnderK)->Unit(benchmark::kMillisecond);

void BM_AutoControlProjectionAtLargestSize(benchmark::State& state) {
  atLargestSize(state, Strategy::AutoControl, false);
}
BENCHMARK(BM_AutoControlProjectionAtLargestSize)->Unit(benchmark::kMillisecond);

void BM_AutoControlProjectionAtLargestSizeUnderK(benchmark::State& state) {
  atLargestSize(state, Strategy::AutoControl, true);
}
BENCHMARK(BM_AutoControlProjectionAtLargestSizeUnderK)->Unit(benchmark::kMillisecond);

void BM_HarvestProjectionAtLargestSize(benchmark::State& state) {
  atLargestSize(state, Strategy::Harvest, false);
}
BENCHMARK(BM_HarvestProjectionAtLargestSize)->Unit(benchmark::kMillisecond);

void BM_HarvestProjectionAtLargestSizeUnderK(benchmark::State& state) {
  atLargestSize(state, Strategy::Harvest, true);
}
BENCHMARK(BM_HarvestProjectionAtLargestSizeUnderK)->Unit(benchmark::kMillisecond);

void BM_LambdaProjectionAtLargestSize(benchmark::State& state) {
  atLargestSize(state, Strategy::Lambda, false);
}
BENCHMARK(BM_LambdaProjectionAtLargestSize)->Unit(benchmark::kMillisecond);

// The example as loaded by the main form for its 60 days, with its own ET
// curve, control and stage ranges; growth with harvest takes every day the
// dialogue offers.
void atExampleSize(benchmark::State& state, Strategy strategy) {
  const vorlex::bench::ExampleCopy example("vorlex-bench-projection");
  vorlex::bench::DefaultAnswers answers(example.dataFile());
  vorlex::Session session(answers);
  vorlex::MainForm form(session);
  vorlex::bench::loadExample(form, session, 60);
  chooseStrategy(session, strategy, session.model().SimTime);
  timeProjections(state, session, strategy);
  session.files.closeAll();
}

void BM_ProjectionOfTheExample(benchmark::State& state) { atExampleSize(state, Strategy::NoControl); }
BENCHMARK(BM_ProjectionOfTheExample)->Unit(benchmark::kMicrosecond);

void BM_AutoControlProjectionOfTheExample(benchmark::State& state) {
  atExampleSize(state, Strategy::AutoControl);
}
BENCHMARK(BM_AutoControlProjectionOfTheExample)->Unit(benchmark::kMicrosecond);

void BM_HarvestProjectionOfTheExample(benchmark::State& state) { atExampleSize(state, Strategy::Harvest); }
BENCHMARK(BM_HarvestProjectionOfTheExample)->Unit(benchmark::kMicrosecond);

} // namespace
