#include "strategies/UnlimitedGrowth.h"

#include "charts/ChartFamily.h"
#include "engine/GrowthToLambda.h"
#include "engine/GrowthUnderPredation.h"
#include "engine/PopulationGrowth.h"
#include "exports/TotalPredation.h"
#include "model/InitialCalculation.h"
#include "model/Session.h"
#include "reports/CharacterPlots.h"
#include "reports/FigureFiles.h"
#include "reports/TitlePage.h"
#include "strategies/DriverSteps.h"

namespace vorlex {

void UnlimitedGrowth(Session& session) {
  openRun(session, "In Public Sub UnlimitedGrowth *******************");
  // Extra mortality is a run without control too, and is reported as one;
  // the blank growth mode is the plain day step.
  setMarks(session, "OptNoControl", " ", "", "");
  if (session.flags.ExtraMortalityOption == "Yes")
    askExtraMortality(session);

  VorlexBSetStageSurvivalRto1(session);
  VorlexCPrintTitlePageAndBasicInfo(session);
  VorlexDPopulationGrowth(session);
  noteLastDay(session);
  VorlexEPrintResults(session);
  closeReportAndWriteFiles(session, {.consumptionMatrix = true, .deathRateMatrix = true, .lateReleaseChart = true});
}

void GrowthToLambda(Session& session) {
  openRun(session, "In Public Sub GrowthToLambda *******************");
  setMarks(session, "OptNoControl", " ", "", "");
  VorlexBSetStageSurvivalRto1(session);
  VorlexDGosub160PopuGrowthToR(session);
  noteLastDay(session);
  session.files.close(kReportFile);
  session.mainChart = ShowStageStructure(session);
  SaveGraphicData(session);
  session.controls["Command4"].enabled = true;
}

void GrowthUnderPredation(Session& session) {
  openRun(session, "In Public Sub GrowthUnderPredation *******************");
  ReadTotalPredation(session);
  session.controls["Frame4"].enabled = false;
  setMarks(session, "OptGrowthUnderPredation", "Predation", "Predation", "Predation");
  VorlexBSetStageSurvivalRto1(session);
  VorlexCPrintTitlePageAndBasicInfo(session);
  VorlexDGrowthUnderPredation(session);
  noteLastDay(session);
  VorlexEPrintResults(session);
  closeReportAndWriteFiles(session, {.consumptionMatrix = true, .deathRateMatrix = true});
}

} // namespace vorlex
