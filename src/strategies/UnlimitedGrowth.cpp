#include "strategies/UnlimitedGrowth.h"

#include "charts/ChartFamily.h"
#include "datafile/DataFileWriter.h"
#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "model/Session.h"
#include "reports/CharacterPlots.h"
#include "reports/DeathFiles.h"
#include "reports/FigureFiles.h"
#include "reports/TitlePage.h"

namespace vorlex {

void UnlimitedGrowth(Session& session) {
  RunFlags& flags = session.flags;
  session.flow("OptManagement=", flags.OptManagement);
  session.flow("In Public Sub UnlimitedGrowth *******************");
  session.controls["cmdInputLTdata"].enabled = false;

  // Extra mortality is a run without control too, and is reported as one.
  flags.OptManagement = "OptNoControl";
  flags.GrowthMode.assign(1, ' '); // blank: the plain day step
  flags.ControlFixedMark.clear();
  flags.ControlAutoMark.clear();

  Model& m = session.model();
  m.SeriesIndex = 0;
  m.DailyWID(m.Day) = 0;
  if (flags.ExtraMortalityOption == "Yes")
    askExtraMortality(session);

  VorlexBSetStageSurvivalRto1(session);
  VorlexCPrintTitlePageAndBasicInfo(session);
  VorlexDPopulationGrowth(session);
  session.lastDayReached = m.Day <= m.SimTime ? m.Day : m.SimTime;
  VorlexEPrintResults(session);
  session.files.close(kReportFile);
  WriteDataFileForVorlexA(session);
  WriteMatrixNforTimeT(session);
  PrintCxj(session);
  PrintDeathRatexj(session);
  session.mainChart = m.ReleaseDate != 0 ? ShowStageStructureLateRelease(session) : ShowStageStructure(session);
  SaveGraphicData(session);
  session.controls["Command4"].enabled = true;
}

} // namespace vorlex
