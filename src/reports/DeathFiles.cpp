#include "reports/DeathFiles.h"

#include "reports/FigureFiles.h"
#include "reports/FigureTerms.h"

#include <cmath>

namespace vorlex {

using namespace figures;

namespace {

bool onlyTotals(const Session& session) { return session.flags.OnlyTotalFigures == "Yes"; }

/// A file of stage deaths: a cell for each stage and the adults behind.
struct StageDeathFile {
  const char* flowLine;
  const char* suffix;
  const char* title;
  int firstDay;
  Table2<double> Model::*cells;
  Table2<double> Model::*adultSeries; // the series the adult column sums
  double (*adultForm)(double);        // what it does to that sum
};

double asIs(double v) { return v; }
double lnPlusOne(double v) { return naturalLog(v + 1); }

// Kept on purpose: the log file of stage deaths alone starts at day 1, and
// its adult column alone is in ln where its cells are in base 10.
const StageDeathFile kStageDeath{"In Public Sub PrintStageDeath",
                                 "5A-Fig-Stage death",
                                 "Stage death curves",
                                 0,
                                 &Model::StageDeath,
                                 &Model::StageDeath,
                                 asIs};
const StageDeathFile kLogStageDeath{"In Public Sub PrintLogStageDeath",
                                    "5B-Fig-log Stage death",
                                    "log(Stage death curves)",
                                    1,
                                    &Model::LogStageDeath,
                                    &Model::StageDeath,
                                    lnPlusOne};
const StageDeathFile kCumuStageDeath{"In Public Sub PrintCumuStageDeath",
                                     "7A-Fig-Cumu stage death",
                                     "Cumulative stage death curves",
                                     0,
                                     &Model::CumuStageDeath,
                                     &Model::CumuStageDeath,
                                     asIs};
const StageDeathFile kLogCumuStageDeath{"In Public Sub PrintLogCumuStageDeath",
                                        "7B-Fig-log Cumu stage death",
                                        "log(Cumulative stage death)",
                                        0,
                                        &Model::LogCumuStageDeath,
                                        &Model::CumuStageDeath,
                                        lg};

void writeStageDeaths(Session& session, const StageDeathFile& file) {
  if (onlyTotals(session))
    return;
  session.flow(file.flowLine);
  const Model& m = session.model();
  const bool physo = physogastry(session);
  OutputFile& out = openFigureFile(session, file.suffix);
  out.write(file.title);
  out.print(stagesHeading(m) + (physo ? "Burst-ready" : "Total adults"));
  for (int t = file.firstDay; t <= m.SimTime; ++t) {
    const Table2<double>& adultSeries = m.*file.adultSeries;
    const NumberText last =
        physo ? raw(m.BurstReadySize(t))
              : bare(file.adultForm(adultSeries(t, m.NrStage) + adultSeries(t, m.NrStage - 1)));
    out.print(timeColumn(m, t), ",", joinedStages(m, [&](int j) { return bare((m.*file.cells)(t, j)); }), ",",
              last);
  }
  closeFigureFile(session);
}

/// A file of a total: time, value and log in the print form, days 1..SimTime.
void writeTotals(Session& session, const char* flowLine, const char* suffix, const char* valueName,
                 const char* logName, double (*value)(const Model&, int),
                 double (*logOf)(const Model&, int)) {
  if (onlyTotals(session))
    return;
  session.flow(flowLine);
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, suffix);
  out.write("Total death curves");
  out.write("Time", valueName, logName);
  for (int t = 1; t <= m.SimTime; ++t)
    out.print(raw(t * m.TimeUnit), ",", raw(value(m, t)), ",", raw(logOf(m, t)));
  closeFigureFile(session);
}

/// The common log of the size of a change, with the sign of the change.
double signedLog(const Model& m, int t) {
  const double d = m.TotalDifference(t);
  if (d > 0)
    return naturalLog(d + 1) / std::log(10.0);
  return -naturalLog(1 - d) / std::log(10.0);
}

void writeRateMatrix(Session& session, const char* fileEnd, const char* title, Table2<double> Model::*rates) {
  Model& m = session.model();
  m.FigureFileEnd = fileEnd;
  Life04Gosub3610(session);
  OutputFile& out = session.files.output(kWorkFile);
  out.write(title);
  Life04Gosub3750(session);
  for (int x = 0; x <= m.LastAge; ++x)
    out.print(timeColumn(m, x), ",", joinedStages(m, [&](int j) { return raw((m.*rates)(x, j)); }), " ");
  Life04Gosub3650(session);
  session.files.close(kWorkFile);
}

} // namespace

void PrintStageDeath(Session& session) { writeStageDeaths(session, kStageDeath); }
void PrintLogStageDeath(Session& session) { writeStageDeaths(session, kLogStageDeath); }
void PrintCumuStageDeath(Session& session) { writeStageDeaths(session, kCumuStageDeath); }
void PrintLogCumuStageDeath(Session& session) { writeStageDeaths(session, kLogCumuStageDeath); }

void PrintTotalDeath(Session& session) {
  writeTotals(
      session, "In Public Sub PrintTotalDeath", "6A-Fig-Total death", "Total death", "log(Total death+1)",
      [](const Model& m, int t) { return m.TotalDeath(t); },
      [](const Model& m, int t) { return m.LogTotalDeath(t); });
}

void PrintTotalDifference(Session& session) {
  // Kept on purpose: the flow record names the total death routine here.
  writeTotals(
      session, "In Public Sub PrintTotalDeath", "8-Fig-Total difference", "Total difference",
      "log(difference+1)", [](const Model& m, int t) { return m.TotalDifference(t); }, signedLog);
}

void PrintDeathRatexj(Session& session) {
  if (onlyTotals(session))
    return;
  session.flow("In Public Sub PrintDeathRatexj");
  writeRateMatrix(session, "-11-Fig-Death rate Dxj.txt", "Death rate matrix (Death)", &Model::DeathRate);
}

void PrintCxj(Session& session) {
  if (onlyTotals(session) || session.flags.WithCxj != "Yes")
    return;
  session.flow("In Public Sub PrintCxj");
  writeRateMatrix(session, "-8-Fig_Cxj.txt", "Predation rate matrix (C)", &Model::Consumption);
}

} // namespace vorlex
