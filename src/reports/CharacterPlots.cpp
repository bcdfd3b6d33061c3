#include "reports/CharacterPlots.h"

#include "model/Session.h"
#include "reports/PlotMarks.h"
#include "reports/ReportLines.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"

#include <functional>
#include <string>

namespace vorlex {

namespace {

// The rows of days 0..SimTime on the logarithmic scale. Day 0 is drawn on
// the frame line itself and carries no day number.
void printLogScaleRows(Session& session, const std::function<void(int)>& setMarksOfDay) {
  Model& m = session.model();
  OutputFile& out = reportFile(session);
  for (int day = 0; day <= m.SimTime; ++day) {
    clearPlotHits(m);
    m.PlotLine = day == 0 ? m.PlotScale : kEmptyPlotRow;
    setMarksOfDay(day);
    if (day == 0)
      out.print(Tab{7}, m.PlotLine);
    else
      out.print(Tab{2}, day, Tab{7}, m.PlotLine);
  }
}

// Where a growth rate stands: 25 columns a unit, rate 0 at column 16.
double growthPosition(double rate) { return roundHalfEven(25 * rate) + 15; }

} // namespace

void VorlexEPrintResults(Session& session) {
  session.flow("In Public Sub VorlexEPrintResults");
  VorlexEGosub130PrintStageCurves(session);
  VorlexEGosub2010PrintLogTotal(session);
  VorlexEGosub820PringGrowthRate(session);
  VorlexEGosub1530PrintWeakCurves(session);
}

void VorlexEGosub130PrintStageCurves(Session& session) {
  Model& m = session.model();
  OutputFile& out = reportFile(session);
  printPlotHead(session, "Curves of the size for each stage");
  printBlankLines(out, 1);
  VorlexEGosub680(session);
  VorlexEGosub1360(session);
  printLogScaleRows(session, [&](int day) {
    for (int stage = 1; stage <= m.NrStage; ++stage)
      markAt(session, logPlotPosition(m.StageSize(stage, day)), firstLetter(m.StageName(stage)));
  });
  out.print(Tab{7}, m.PlotScale);
  VorlexEGosub1400(session);
  VorlexEGosub700(session);
}

void VorlexEGosub2010PrintLogTotal(Session& session) {
  Model& m = session.model();
  OutputFile& out = reportFile(session);
  printPlotHead(session, "Curves for the total population size");
  printBlankLines(out, 1);
  VorlexEGosub680(session);
  VorlexEGosub1360(session);
  printLogScaleRows(session, [&](int day) {
    markAt(session, logPlotPosition(m.TotalSize(day)), "T");
    markAt(session, logPlotPosition(m.WeighedSize(day)), "*");
  });
  // The closing row and the line under it read the weighed size of the day
  // the projection left in Day, under the name CUMWID.
  const double closing = m.DailyWID(m.Day);
  clearPlotHits(m);
  m.PlotLine = m.PlotScale;
  markAt(session, logPlotPosition(closing), "C");
  out.print(Tab{7}, m.PlotLine);
  VorlexEGosub1400(session);
  VorlexEGosub700(session);
  out.print(Tab{22}, "   CUMWID=", blankLed(closing));
}

void VorlexEGosub820PringGrowthRate(Session& session) {
  Model& m = session.model();
  OutputFile& out = reportFile(session);
  printPlotHead(session, "Curves of the growth rate of each stage. (NP=not present at T-1)");
  printBlankLines(out, 1);
  VorlexEGosub1220(session);
  VorlexEGosub1380(session);
  VorlexEGosub1340(session);
  for (m.Day = 0; m.Day <= m.SimTime; ++m.Day) {
    clearPlotHits(m);
    m.PlotLine = kEmptyPlotRow;
    std::string belowFrame;
    // A stage below the frame is listed and still marked at column 1.
    for (int stage = 1; stage <= m.NrStage; ++stage) {
      m.PlotPos = growthPosition(m.StageGrowthLn(stage, m.Day));
      m.PlotMark = firstLetter(m.StageName(stage));
      if (m.PlotPos < 0) {
        belowFrame += m.PlotMark + ",";
        m.PlotPos = 0;
      }
      VorlexEGosub1320(session);
    }
    // The total below the frame is only listed.
    m.PlotPos = growthPosition(m.StageSumGrowthLn(m.Day));
    m.PlotMark = std::string(1, 'T');
    if (m.PlotPos < 0)
      belowFrame += "T,";
    else
      VorlexEGosub1320(session);

    out.printOpen(Tab{2}, m.Day, Tab{7}, m.PlotLine);
    if (!belowFrame.empty())
      out.printOpen(belowFrame, " out of range");
    out.print();
  }
  VorlexEGosub1340(session);
  VorlexEGosub1380(session);
  VorlexEGosub1220(session);
}

void VorlexEGosub1530PrintWeakCurves(Session& session) {
  Model& m = session.model();
  OutputFile& out = reportFile(session);
  printPlotHead(session, "Weakness curves for each factor at time T.");
  out.printOpen(Tab{11}, "(");
  for (int factor = 1; factor <= m.NrWeakFactor; ++factor) {
    if (factor > 1)
      out.printOpen(", ");
    out.printOpen(firstLetter(m.WeakFactorName(factor)), "-", m.WeakFactorName(factor));
  }
  out.print(")");
  printBlankLines(out, 1);
  out.print(Tab{26}, "log(Weakness+1)");
  VorlexEGosub1710(session);
  printLogScaleRows(session, [&](int day) {
    for (int factor = 1; factor <= m.NrWeakFactor; ++factor)
      markAt(session, logPlotPosition(m.WeakSize(factor, day)), firstLetter(m.WeakFactorName(factor)));
  });
  out.print(Tab{7}, m.PlotScale);
  VorlexEGosub1710(session);
  out.print(Tab{26}, "log(Weakness+1)");
}

} // namespace vorlex
