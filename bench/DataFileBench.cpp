// Reading a project data file and the number forms every file is made of.
#include "datafile/DataFileReader.h"
#include "model/LifeTable.h"
#include "model/Session.h"
#include "textio/NumberForms.h"
#include "textio/SilentPrompter.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>

namespace {

std::string exampleText() {
  std::ifstream in(std::string(VORLEX_SOURCE_DIR) + "/examples/moth.txt", std::ios::binary);
  std::ostringstream all;
  all << in.rdbuf();
  return all.str();
}

void BM_ReadExampleDataFile(benchmark::State& state) {
  const std::string text = exampleText();
  vorlex::SilentPrompter prompts;
  for (auto _ : state) {
    vorlex::Session session(prompts);
    session.files.attachInput(vorlex::kDataFile, vorlex::ItemReader(text), "moth.txt");
    vorlex::VorlexA(session);
    benchmark::DoNotOptimize(session.model().Lx(10));
  }
}
BENCHMARK(BM_ReadExampleDataFile)->Unit(benchmark::kMillisecond);

// The life-table set-up at the largest size the tables allow.
void BM_LifeTableAtLargestSize(benchmark::State& state) {
  vorlex::SilentPrompter prompts;
  vorlex::Session session(prompts);
  vorlex::Model& m = session.model();
  m.LastAge = 1004;
  m.NrStage = 12;
  for (int stage = 1; stage <= 12; ++stage)
    for (int age = 0; age <= 1004; ++age) {
      m.GrowthRate(age, stage) = .9;
      m.DevelopRate(age, stage) = .05;
      m.Fecundity(age, stage) = stage == 11 ? 2 : 0;
    }
  for (auto _ : state) {
    vorlex::VorlexAGosub640(session);
    vorlex::VorlexAGosub900(session);
    benchmark::DoNotOptimize(m.Px(500));
  }
}
BENCHMARK(BM_LifeTableAtLargestSize)->Unit(benchmark::kMillisecond);

void BM_DigitsOfARealNumber(benchmark::State& state) {
  double value = .133206252681029;
  for (auto _ : state) {
    benchmark::DoNotOptimize(vorlex::digits(value));
    value += 1e-3;
  }
}
BENCHMARK(BM_DigitsOfARealNumber);

} // namespace
