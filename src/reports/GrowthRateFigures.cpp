// The growth rate files, in ln and in log. A rate stands at the earlier of
// its two days.

#include "reports/FigureTerms.h"
#include "reports/FigureWriters.h"

#include <cmath>

namespace vorlex {

using namespace figures;

namespace {

/// Stage rates smaller than this in size are taken as 0, in the model too.
constexpr double kSmallestRate = 1E-05;

enum class Scale { Ln, Log };

struct GrowthRateFile {
  Scale scale;
  const char* suffix;
  const char* title;
  Table2<double> Model::*stageRates;
  Table1<double> Model::*burstReadyRates;
  Table1<double> Model::*totalRates;
};

const GrowthRateFile kGrowthRateLn{
    Scale::Ln,
    "3A-Fig-Growth rate in ln",
    "Stage growth rate and total growth rate ln[n(t+1)+1]-ln[n(t)+1]. Note well! There are ",
    &Model::StageGrowthLn,
    &Model::BurstReadyGrowthLn,
    &Model::StageSumGrowthLn};
const GrowthRateFile kGrowthRateLog{
    Scale::Log,
    "3B-Fig-Growth rate in log",
    "Stage growth rate and total growth rate log[n(t+1)+1]-log[n(t)+1]. Note well! There are ",
    &Model::StageGrowthLog,
    &Model::BurstReadyGrowthLog,
    &Model::StageSumGrowthLog};

bool halfTimeUnit(const Model& m) { return m.TimeUnit == 0.5; }

/// The columns of the life table's rate, the same in every row.
std::string lifeTableColumns(const Model& m, const GrowthRateFile& file) {
  if (file.scale == Scale::Log)
    return bare(m.FiniteRate) + "," + bare(naturalLog(m.FiniteRate) / std::log(10.0));
  std::string columns = bare(m.IntrinsicRate).str();
  if (halfTimeUnit(m))
    columns.append(",").append(bare(m.IntrinsicRate / 2));
  return columns;
}

std::string headingEnding(const Model& m, const GrowthRateFile& file) {
  if (file.scale == Scale::Log)
    return "Total growth rate,Finite rate,log(lambda)";
  return halfTimeUnit(m) ? "Total growth rate,Intrinsic rate,Intrinsic rate per 0.5 time unit"
                         : "Total growth rate,Intrinsic rate";
}

void writeGrowthRates(Session& session, const GrowthRateFile& file) {
  Model& m = session.model();
  const bool physo = physogastry(session);
  OutputFile& out = openFigureFile(session, file.suffix);
  std::string title = file.title;
  title.append(blankLed(checkedInt16(m.SimTime - 1))).append(" growth rate.");
  out.write(title);
  out.print(stagesHeading(m) + (physo ? "Burst-ready," : "") + headingEnding(m, file));
  const std::string lifeTable = lifeTableColumns(m, file);
  Table2<double>& stageRates = m.*file.stageRates;
  for (int t = 0; t <= m.SimTime; ++t) {
    out.printOpen(timeColumn(m, t), ",");
    for (int j = 1; j <= m.NrStage; ++j) {
      double& rate = stageRates(j, t);
      if (std::fabs(rate) < kSmallestRate)
        rate = 0; // for good: the charts drawn later show the zero
      out.printOpen(withSign(rate), ",");
    }
    if (physo)
      out.printOpen(withSign((m.*file.burstReadyRates)(t)), ",");
    // Kept on purpose: unlike the stage rates, the total rate loses its sign.
    out.print(bare((m.*file.totalRates)(t)), ",", lifeTable);
  }
  closeFigureFile(session);
}

} // namespace

void writeGrowthRateLnFile(Session& session) { writeGrowthRates(session, kGrowthRateLn); }
void writeGrowthRateLogFile(Session& session) { writeGrowthRates(session, kGrowthRateLog); }

} // namespace vorlex
