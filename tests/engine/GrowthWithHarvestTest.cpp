// Growth with harvest counts individuals without removing them: its
// population is that of the plain projection, and only the deaths and the
// day's difference are left out.
#include "engine/GrowthWithHarvest.h"
#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

constexpr int kDays = 40;

struct Projected {
  TestSession run{kDays};

  explicit Projected(bool harvest) {
    run.read(fileText(examplePath("moth.txt")));
    Session& s = *run.session;
    s.files.attachOutput(kReportFile, OutputFile::inMemory());
    s.files.attachOutput(kHarvestFile, OutputFile::inMemory());
    if (harvest) {
      for (int i = 1; i <= kDays; ++i)
        run.m.HarvestDay(i) = static_cast<i16>(i);
      run.m.HarvestStage(2) = 1;
      run.m.RearingCost(2) = 2;
    }
    VorlexBSetStageSurvivalRto1(s);
    if (harvest)
      VorlexDGosub160GrowthWithHarvest(s);
    else
      VorlexDGosub160PopulationGrowth(s);
  }
};

TEST(GrowthWithHarvest, PopulationIsThatOfThePlainProjection) {
  const Projected plain(false), harvested(true);
  const Model& p = plain.run.m;
  const Model& h = harvested.run.m;
  for (int t = 0; t <= kDays + 1; ++t) {
    EXPECT_EQ(h.TotalSize(t), p.TotalSize(t)) << t;
    EXPECT_EQ(h.CUMWID(t), p.CUMWID(t)) << t;
    for (int j = 1; j <= p.NrStage; ++j)
      EXPECT_EQ(h.StageSize(j, t), p.StageSize(j, t)) << t << ',' << j;
    EXPECT_EQ(h.TotalDeath(t), 0) << t;
    EXPECT_EQ(h.TotalDifference(t), 0) << t;
  }
  EXPECT_GT(p.TotalDeath(10), 0);
  // Larvae are counted within their ages and cost 2 each; the sums are
  // named the other way round from what they hold.
  for (int t : {1, 10, kDays}) {
    EXPECT_DOUBLE_EQ(h.HarvestNumber(t, 2), h.StageSize(2, t)) << t;
    EXPECT_EQ(h.TotalCost(t), h.HarvestNumber(t, 2)) << t;
    EXPECT_EQ(h.TotalHarvest(t), 2 * h.HarvestNumber(t, 2)) << t;
  }
  EXPECT_EQ(h.TotalCost(kDays + 1), 0);
}

} // namespace
} // namespace vorlex::testing
