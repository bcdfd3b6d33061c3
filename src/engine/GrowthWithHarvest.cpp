#include "engine/GrowthWithHarvest.h"

#include "engine/DayStep.h"
#include "model/Session.h"
#include "textio/OutputFile.h"

namespace vorlex {

void harvestOfTheDay(Session& session) {
  Model& m = session.model();
  const int t = m.Day;
  for (int i = 1; i <= 100; ++i) {
    if (t != m.HarvestDay(i))
      continue;
    m.TotalCost(t) = 0;
    m.TotalHarvest(t) = 0;
    for (int j = 1; j <= m.NrStage; ++j) {
      if (m.HarvestStage(j) == 1) {
        double available = 0;
        for (int x = m.StageAge(j, 1); x <= m.StageAge(j, 2); ++x)
          available += m.NextN(x, j);
        m.HarvestNumber(t, j) = available;
      }
      m.HarvestCost(t, j) = m.HarvestNumber(t, j) * m.RearingCost(j);
      // The two sums are named the other way round from what they hold.
      m.TotalHarvest(t) += m.HarvestCost(t, j);
      m.TotalCost(t) += m.HarvestNumber(t, j);
    }

    OutputFile& out = session.files.output(kHarvestFile);
    if (t == m.HarvestFrom) {
      out.print("");
      out.print(rule('=', 70));
      out.print(" Harvest date    Stage     Total Rearing cost      Available number");
      out.print(rule('-', 70));
    }
    for (int j = 1; j <= m.NrStage; ++j)
      if (m.HarvestStage(j) == 1)
        out.print(Tab{4}, m.HarvestDay(i), Tab{18}, m.StageName(j), Tab{27}, m.HarvestCost(t, j), Tab{51},
                  m.HarvestNumber(t, j));
    out.print(rule('-', 70));
    out.print(" Sum", Tab{27}, m.TotalHarvest(t), Tab{51}, m.TotalCost(t));
    out.print(rule('-', 70));
  }
}

void VorlexDGosub160GrowthWithHarvest(Session& session) {
  DayStepRules rules;
  rules.flowAtStart = "In Public Sub VorlexDGosub 160: Population is growing";
  rules.echoFirstControlDay = true;
  rules.physogastry = true;
  rules.releases = true;
  rules.deaths = false;
  rules.afterStageRecords = &harvestOfTheDay;
  rules.extinctionText = &extinctionOnDay;
  runDaySteps(session, rules);
}

} // namespace vorlex
