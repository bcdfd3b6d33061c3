// The day-by-day projection at the largest size the tables allow.
#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "model/LifeTable.h"
#include "model/Session.h"
#include "textio/SilentPrompter.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>

namespace {

// Ten immature stages, a female and a male, each with rates at every age up
// to 1004, so that the whole matrix fills; females lay from age 100. The
// population grows from 1100 to about 18600 individuals over the 1005 days.
void largestTable(vorlex::Model& m) {
  m.LastAge = 1004;
  m.NrStage = 12;
  m.SimTime = 1004;
  m.NrWeakFactor = 2;
  m.SamplingStageFrom = 3;
  m.SamplingStageTo = 6;
  for (int stage = 1; stage <= 12; ++stage) {
    m.WeighCoef(stage) = stage >= 11 ? 1 : .1 * stage;
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
}

void runProjection(benchmark::State& state, bool underCarryingCapacity) {
  vorlex::SilentPrompter prompts;
  vorlex::Session session(prompts);
  vorlex::Model& m = session.model();
  largestTable(m);
  vorlex::VorlexAGosub640(session);
  session.flags.WithCarryingCapacity = underCarryingCapacity ? "Yes" : "No";
  for (int t = 0; t <= 1005; ++t) {
    m.CarryingCapacity(t) = 1e6;
    m.DensityCoefBelowKDay(t) = .01;
    m.DensityCoefOverKDay(t) = .5;
  }
  for (auto _ : state) {
    state.PauseTiming();
    vorlex::VorlexBSetStageSurvivalRto1(session);
    state.ResumeTiming();
    vorlex::VorlexDGosub160PopulationGrowth(session);
    benchmark::DoNotOptimize(m.TotalSize(1005));
  }
  if (m.Day != 1006 || !std::isfinite(m.TotalSize(1005)))
    state.SkipWithError("the projection did not reach day 1005");
}

void BM_ProjectionAtLargestSize(benchmark::State& state) { runProjection(state, false); }
BENCHMARK(BM_ProjectionAtLargestSize)->Unit(benchmark::kMillisecond);

void BM_ProjectionAtLargestSizeUnderK(benchmark::State& state) { runProjection(state, true); }
BENCHMARK(BM_ProjectionAtLargestSizeUnderK)->Unit(benchmark::kMillisecond);

} // namespace
