#include "reports/ControlPages.h"

#include "model/Session.h"
#include "reports/ReportLines.h"
#include "textio/OutputFile.h"

namespace vorlex {

namespace {

void printStrategyHeading(OutputFile& out, int width) {
  printFormFeed(out);
  out.print(" Management strategies: ");
  out.print(rule('=', width));
  out.print(" Treat No. Day   Description               Stage mortality");
}

void printIntervalLine(const Model& m, OutputFile& out, int control) {
  out.print("**** Time interval to next control =", m.ControlGap(control), " ****");
}

// One row for each effective day of a control. The mortality of a row is
// looked up by the running row number, not by the day.
void printControlRows(const Model& m, OutputFile& out) {
  int row = 0;
  for (int control = 1; control <= m.NrControl; ++control) {
    const double firstDay = m.ControlDate(control);
    const double lastDay = firstDay + m.ControlDuration(control) - 1;
    for (double day = firstDay; day <= lastDay; day += 1) {
      ++row;
      // The number of the treatment shows only for a control that starts
      // on day 1 or earlier.
      if (day <= 1)
        out.printOpen(Tab{3}, control);
      else
        out.printOpen("       ");
      out.printOpen(Tab{12}, day, Tab{20}, m.ControlName(control));
      for (int stage = 1; stage <= m.NrStage; ++stage)
        out.printOpen(Tab{6 * stage + 27}, round4(1 - m.StageSurvivalDay0(stage, row)));
      out.print(" ");
    }
    if (control != m.NrControl)
      printIntervalLine(m, out, control);
  }
}

} // namespace

void VorlexCGosub1260(Session& session) {
  const Model& m = session.model();
  if (m.NrAutoControl > 0)
    return;
  OutputFile& out = reportFile(session);
  const int width = 6 * m.NrStage + 27;

  printStrategyHeading(out, width);
  // The names run together and do not stand over their columns.
  out.printOpen(Tab{30}, " ");
  for (int stage = 1; stage <= m.NrStage; ++stage)
    out.printOpen(" ", m.StageName(stage));
  out.print(" ");
  out.print(rule('-', width));
  printControlRows(m, out);
  out.print(rule('-', width));
}

void VorlexCGosub1260AutoControl(Session& session) {
  const Model& m = session.model();
  OutputFile& out = reportFile(session);
  const int width = 6 * m.NrStage + 30;

  printStrategyHeading(out, width);
  out.printOpen(Tab{30}, " ");
  for (int stage = 1; stage <= m.NrStage; ++stage)
    out.printOpen(Tab{6 * (stage - 1) + 32}, m.StageName(stage));
  out.print(" ");
  out.print(rule('-', width));
  for (int control = 1; control <= m.NrControl; ++control)
    if (control != m.NrControl)
      printIntervalLine(m, out, control);
  out.print(rule('-', width));
}

void PrintSizeBeforeAndAfterControl(Session& session) {
  session.flow("In Public Sub PrintSizeBeforeAndAfterControl");
  const Model& m = session.model();
  OutputFile& out = reportFile(session);
  const char* const rows = "-----------------------------------------";

  out.print(Tab{2}, "Time", Tab{10}, "Before control", Tab{30}, "After control");
  out.print(rows);
  for (int day = 0; day <= m.SimTime; ++day) {
    out.printOpen(Tab{3}, day * m.TimeUnit, Tab{10}, m.SizeBeforeControl(day), Tab{30},
                  m.SizeAfterControl(day));
    for (int i = 1; i <= m.NrAutoControl; ++i) {
      if (m.AutoControlDay(i) == day) {
        out.printOpen(Tab{48}, "<-Controlled");
        break;
      }
    }
    out.print();
  }
  out.print(rows);
}

} // namespace vorlex
