#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "model/Session.h"
#include "reports/CharacterPlots.h"
#include "reports/TitlePage.h"
#include "strategies/ControlledGrowth.h"
#include "strategies/DriverSteps.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"

namespace vorlex {

namespace {

// The harvest boxes show no prompt of their own: their sentences are kept
// where nothing displays them.
i16 askHarvestDay(Session& session, const std::string& title, const std::string& defaultText) {
  return toInt16(askNumber(session.prompter(), "", title, defaultText));
}

// The head of the harvest file: the days asked and each stage's rearing
// cost and whether it is harvested.
void writeHarvestStages(Session& session) {
  const Model& m = session.model();
  OutputFile& out = session.files.output(kHarvestFile);
  out.print(" Harvest stage information");
  out.print(" Harvest begin date: ", m.HarvestFrom);
  out.print(" Harvest end date: ", m.HarvestTo);
  out.print(rule('=', 66));
  out.print("    Stage              Rearing cost           Harvest (1=Yes, 2=No)");
  out.print(rule('-', 66));
  for (int j = 1; j <= m.NrStage; ++j)
    out.print(Tab{4}, m.StageName(j), Tab{23}, m.RearingCost(j), Tab{55}, m.HarvestStage(j));
  out.print(rule('-', 66));
}

} // namespace

void GrowthWithHarvest(Session& session) {
  Model& m = session.model();
  session.flow("OptManagement=", session.flags.OptManagement);
  session.flow("In Public Sub GrowthWithHarvest()");
  session.names.HarvestFileName = session.names.BaseName + "_0_cost and harvest.txt";
  session.files.openOutput(kHarvestFile, session.names.HarvestFileName);

  m.HarvestFrom = askHarvestDay(session, "Harvest begin date =?", "1");
  m.HarvestTo = askHarvestDay(session, "Harvest end date =?", digits(m.SimTime));
  for (int i = m.HarvestFrom; i <= m.HarvestTo; ++i)
    m.HarvestDay(i) = static_cast<i16>(i);
  session.flow("In Public Sub GrowthWithHarvest********* Population growth with harvest *************");
  // In a harvest run the weighing coefficient is the rearing cost and the
  // density coefficient says whether the stage is harvested.
  for (int j = 1; j <= m.NrStage; ++j) {
    m.RearingCost(j) = m.WeighCoef(j);
    m.HarvestStage(j) = toInt16(m.DensityCoef(j));
  }
  writeHarvestStages(session);

  session.controls["cmdInputLTdata"].enabled = false;
  setMarks(session, "OptGrowthWithHarvest", "Harvest", "Harvest", "Harvest");

  VorlexBSetStageSurvivalRto1(session);
  VorlexCPrintTitlePageAndBasicInfo(session);
  VorlexDPopulationGrowth(session);
  noteLastDay(session);
  VorlexEPrintResults(session);
  closeReportAndWriteFiles(session, {.consumptionMatrix = true});
  session.files.close(kHarvestFile);
}

} // namespace vorlex
