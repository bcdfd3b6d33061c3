#include "reports/EfficacyPages.h"

#include "model/Session.h"
#include "reports/PlotMarks.h"
#include "reports/ReportLines.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"

namespace vorlex {

namespace {

// Where an efficacy stands: two per cent a column, 100 % at column 51.
// A ratio above 1 (a treatment that left more than none) falls before the
// frame and gets no mark.
double efficacyPosition(double ratio) { return roundHalfEven((1 - ratio) * 50); }

// A size on the logarithmic scale, where the day has one.
void markSize(Session& session, double size, const char* mark) {
  if (size >= 0)
    markAt(session, logPlotPosition(size), mark);
}

} // namespace

void VorlexHGosub290(Session& session) {
  Model& m = session.model();
  OutputFile& out = reportFile(session);
  printFormFeed(out);
  m.FigNumber += 1;
  out.print(" Project: ", m.ProjectName);
  out.print(Tab{11});
  printBlankLines(out, 1);
  out.print(" Fig.", m.FigNumber, ". ", m.EfficacyTitle1);
  out.print(Tab{11}, m.EfficacyTitle2);
  printBlankLines(out, 1);
  out.print(Tab{7}, m.EfficacyScaleLabel);
  VorlexHGosub140(session);
  m.PlotScale = "+----+----+----+----+----+----+----+----+----+----+----+";
  VorlexHGosub440(session);
  VorlexHGosub420(session);
}

void VorlexHGosub440(Session& session) {
  Model& m = session.model();
  OutputFile& out = reportFile(session);
  for (int t = 0; t <= m.SimTime; ++t) {
    clearPlotHits(m);
    m.PlotLine = t == 0 ? m.PlotScale : kEmptyPlotRow;
    markSize(session, m.PlotV(t), "V");
    markSize(session, m.PlotT(t), "*");
    if (m.PlotEfficacy(t) >= 0)
      markAt(session, efficacyPosition(m.PlotEfficacy(t)), "$");
    markSize(session, m.PlotU(t), "U");
    out.print(Tab{2}, t, Tab{7}, m.PlotLine);
  }
  VorlexHGosub120(session);
  out.print(Tab{15}, m.EfficacyAxisLabel);
  out.print(Tab{25}, "Percentage control (%)");
}

void VorlexHGosub1800(Session& session) {
  Model& m = session.model();
  const int lastDay = checkedInt16(m.SimTime + 1);
  for (int t = 0; t <= lastDay; ++t) {
    m.PlotV(t) = -1;
    m.PlotU(t) = -1;
    m.PlotT(t) = -1;
    m.PlotEfficacy(t) = -1;
  }
}

void VorlexHGosub120(Session& session) {
  reportFile(session).print("      +----+----+----+----+----+----+----+----+----+----+----+");
}

void VorlexHGosub140(Session& session) {
  reportFile(session).print("      0         1         2         3         4         5");
}

void VorlexHGosub420(Session& session) {
  reportFile(session).print("      0        20        40        60        80        100");
}

} // namespace vorlex
