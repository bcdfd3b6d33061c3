#include "model/RunTables.h"

#include "model/Model.h"

#include <algorithm>

namespace vorlex {

void expectTablesOfTheRun(Model& m, bool keepsAgeSizes) {
  // Out of range values are the load's to refuse, a little later.
  if (m.LastAge < 0 || m.LastAge > kLastAgeSlot || m.NrStage < 1 || m.NrStage > kLastStageSlot)
    return;
  const int ages = m.LastAge;
  const int stages = m.NrStage;
  // A run of a series writes one day further than the simulation time.
  const int days = std::clamp(m.SimTime + 2, 0, kLastDaySlot);

  m.AgeSize.narrowRowsTo(ages);
  m.PhysoAgeSize.narrowRowsTo(ages);
  if (keepsAgeSizes)
    m.AgeSize.expectWritesUpTo(days);

  for (auto* table : {&m.PopN, &m.NextN, &m.InitialN, &m.GrowthRate, &m.DevelopRate, &m.Fecundity, &m.DeathRate,
                      &m.WeighCoefAgeStage, &m.DensityCoefAgeStage, &m.Lxj, &m.ReportMatrix, &m.Consumption})
    table->expectWritesThrough(ages, stages);
  for (auto* table : {&m.StageSurvivalDay, &m.StageSurvivalDay0, &m.StageSize, &m.StageFraction, &m.StageGrowthLn,
                      &m.StageGrowthLog})
    table->expectWritesThrough(stages, days);
  m.WeakSize.expectWritesThrough(m.WeakSize.upper(0), days);
  for (auto* table : {&m.StageDeath, &m.LogStageDeath, &m.CumuStageDeath, &m.LogCumuStageDeath})
    table->expectWritesThrough(days, stages);
  // The life table by age, one age beyond the last.
  for (auto* series : {&m.AgeX, &m.Lx, &m.Mx, &m.MxCopy, &m.Px, &m.InitialAgeN})
    series->expectWritesThrough(std::min(ages + 1, kLastAgeSlot));
  for (auto* series : {&m.TotalSize, &m.StageSum, &m.DailyWID, &m.WeighedSize, &m.CUMWID, &m.VulnerableSize,
                       &m.VulnerableTotal, &m.TotalDifference, &m.TotalGrowthLn, &m.StageSumGrowthLn,
                       &m.StageSumGrowthLog, &m.TotalDeath, &m.LogTotalDeath, &m.EtDay})
    series->expectWritesThrough(days);
}

} // namespace vorlex
