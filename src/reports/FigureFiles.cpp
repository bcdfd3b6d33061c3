#include "reports/FigureFiles.h"

#include "exports/TotalPredation.h"
#include "reports/FigureTerms.h"
#include "reports/FigureWriters.h"

namespace vorlex {

void SaveGraphicData(Session& session) {
  session.flow("In Public Sub SaveGraphicData");
  const bool allFigures = session.flags.OnlyTotalFigures != "Yes";
  const std::string& withCxj = session.flags.WithCxj;
  // The one-day export, once it exists, appends its chosen-day rows between
  // these files; this build has no such export.
  if (allFigures) {
    writeStageSizeFile(session);
    writeStageSizePlusOneFile(session);
    writeLogStageSizeFile(session);
    writeVulnerableSizeFile(session);
    writeLogVulnerableSizeFile(session);
  }
  writeTotalSizeFile(session);
  writeTotalSizePlusOneFile(session);
  // Kept on purpose: any value but "No" writes cost and harvest, while only
  // "Yes" writes the consumption files.
  if (allFigures && withCxj != "No")
    writeCostAndHarvestFile(session);
  writeLogTotalSizeFile(session);
  if (!allFigures)
    return;
  if (withCxj == "Yes") {
    writeConsumptionFile(session);
    writeConsumptionAndPopulationFile(session);
    writeConsumptionPlusOneFile(session);
    WriteTotalPredation(session);
  }
  writeGrowthRateLnFile(session);
  writeGrowthRateLogFile(session);
}

void SaveGraphDataGosub1650OpenFile(Session& session) {
  Model& m = session.model();
  if (session.flowOn() && !m.FigureOpenInFlow) {
    session.flow("In Public Sub SaveGraphDataGosub1650OpenFile");
    m.FigureOpenInFlow = true;
  }
  m.FigureFileName = session.names.BaseName + "-" + m.FigureSuffix + ".txt";
  session.files.openOutput(figures::kFigureFile, m.FigureFileName);
}

namespace figures {

OutputFile& openFigureFile(Session& session, const std::string& suffix) {
  session.model().FigureSuffix = suffix;
  SaveGraphDataGosub1650OpenFile(session);
  return session.files.output(kFigureFile);
}

} // namespace figures

} // namespace vorlex
