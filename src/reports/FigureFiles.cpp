#include "reports/FigureFiles.h"

#include "exports/SpecificDateExport.h"
#include "exports/TotalPredation.h"
#include "reports/FigureTerms.h"
#include "reports/FigureWriters.h"

namespace vorlex {

namespace {

constexpr std::size_t kLongestEndAge = 10;

} // namespace

void SaveGraphicData(Session& session) {
  session.flow("In Public Sub SaveGraphicData");
  const bool allFigures = session.flags.OnlyTotalFigures != "Yes";
  const std::string& withCxj = session.flags.WithCxj;
  // The one-day exports add their lines between these files.
  if (allFigures) {
    writeStageSizeFile(session);
    writeStageSizePlusOneFile(session);
    writeStageSizesExport(session);
    writeLogStageSizeFile(session);
    writeVulnerableSizeFile(session);
    writeLogVulnerableSizeFile(session);
  }
  writeTotalSizeFile(session);
  writeTotalSizePlusOneFile(session);
  writeTotalSizeExport(session);
  writeWeighedSizeExport(session);
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
    writeConsumptionExport(session);
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

void Life04Gosub3610(Session& session) {
  session.flow("In Public Sub Life04Gosub3610 -------- Open output data file #1");
  session.files.openOutput(kWorkFile, session.names.BaseName + session.model().FigureFileEnd);
}

void Life04Gosub3750(Session& session) {
  session.flow("In Public Sub Life04Gosub3750 ---------- Write stage names ----------");
  const Model& m = session.model();
  OutputFile& out = session.files.output(kWorkFile);
  out.printOpen("Age,");
  for (int i = 1; i <= m.NrStage; ++i)
    out.printOpen(m.StageName(i), ",");
  // The entry behind the last stage: empty, so the heading ends with a
  // comma; with 12 stages it lies outside the table.
  out.print(m.StageName(m.NrStage + 1));
}

void Life04Gosub3650(Session& session) {
  session.flow("In Public Sub Life04Gosub3650 -------- Write end data of figure files");
  const Model& m = session.model();
  std::string line = stripped(checkedInt16(m.LastAge + 1)).substr(0, kLongestEndAge) + ",";
  for (int j = 1; j <= m.NrStage; ++j)
    line += " 0,";
  session.files.output(kWorkFile).print(line + " 0");
}

namespace figures {

OutputFile& openFigureFile(Session& session, const std::string& suffix) {
  session.model().FigureSuffix = suffix;
  SaveGraphDataGosub1650OpenFile(session);
  return session.files.output(kFigureFile);
}

} // namespace figures

} // namespace vorlex
