#include "strategies/DriverSteps.h"

#include "charts/ChartFamily.h"
#include "datafile/DataFileWriter.h"
#include "model/Session.h"
#include "reports/DeathFiles.h"
#include "reports/FigureFiles.h"

namespace vorlex {

void openRun(Session& session, const char* driverLine) {
  session.flow("OptManagement=", session.flags.OptManagement);
  session.flow(driverLine);
  session.controls["cmdInputLTdata"].enabled = false;
}

void setMarks(Session& session, const char* optManagement, const char* growthMode, const char* fixedMark,
              const char* autoMark) {
  RunFlags& flags = session.flags;
  flags.OptManagement = optManagement;
  flags.GrowthMode = growthMode;
  flags.ControlFixedMark = fixedMark;
  flags.ControlAutoMark = autoMark;
  Model& m = session.model();
  m.SeriesIndex = 0;
  m.DailyWID(m.Day) = 0;
}

void closeReportAndWriteFiles(Session& session, RunFiles files) {
  session.files.close(kReportFile);
  WriteDataFileForVorlexA(session);
  WriteMatrixNforTimeT(session);
  if (files.consumptionMatrix)
    PrintCxj(session);
  if (files.deathRateMatrix)
    PrintDeathRatexj(session);
  const bool lateRelease = files.lateReleaseChart && session.model().ReleaseDate != 0;
  session.mainChart = lateRelease ? ShowStageStructureLateRelease(session) : ShowStageStructure(session);
  SaveGraphicData(session);
  session.controls["Command4"].enabled = true;
}

void noteLastDay(Session& session) {
  const Model& m = session.model();
  session.lastDayReached = m.Day <= m.SimTime ? m.Day : m.SimTime;
}

} // namespace vorlex
