#include "reports/PlotMarks.h"

#include "model/Arithmetic.h"
#include "model/Session.h"
#include "reports/ReportLines.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"
#include "textio/RuntimeError.h"

#include <cmath>

namespace vorlex {

namespace {

constexpr int kLastMarkColumn = 53;
constexpr int kLastCountedColumn = 55;
constexpr const char* kLogScaleDigits = "      0         1         2         3         4         5";

// Replaces the character at a column (the first is 1) by the first of text.
void setColumn(std::string& line, int column, const std::string& text) {
  if (column < 1 || column > static_cast<int>(line.size()))
    raise(ErrorCode::InvalidProcedureCall, "a plot mark beyond its line");
  if (!text.empty())
    line[static_cast<std::size_t>(column - 1)] = text[0];
}

} // namespace

void VorlexEGosub1320(Session& session) {
  Model& m = session.model();
  if (m.PlotPos < 0)
    return;
  if (m.PlotPos > kLastMarkColumn) {
    setColumn(m.PlotLine, kLastMarkColumn + 2, ">");
    m.PlotPos = kLastMarkColumn;
  }
  const int column = toInt32(m.PlotPos + 1);
  double& hits = m.PlotHits(column);
  if (hits > 0) {
    hits += 1;
    const long long count = static_cast<long long>(hits);
    setColumn(m.PlotLine, column, std::to_string(count % 10));
  } else {
    hits = 1;
    setColumn(m.PlotLine, column, m.PlotMark);
  }
}

void clearPlotHits(Model& m) {
  for (int column = 1; column <= kLastCountedColumn; ++column)
    m.PlotHits(column) = 0;
}

double logPlotPosition(double value) { return roundHalfEven(10 * naturalLog(value + 1) / std::log(10.0)); }

void markAt(Session& session, double position, const std::string& mark) {
  Model& m = session.model();
  m.PlotPos = position;
  m.PlotMark = mark;
  VorlexEGosub1320(session);
}

void printPlotHead(Session& session, const std::string& title) {
  Model& m = session.model();
  OutputFile& out = reportFile(session);
  printFormFeed(out);
  m.FigNumber += 1;
  out.print(" Project: ", m.ProjectName);
  printBlankLines(out, 1);
  out.print(" Fig.", m.FigNumber, ". ", title);
}

void VorlexEGosub680(Session& session) {
  reportFile(session).print(Tab{25}, "Population size [log(N(t)+1)]");
}

void VorlexEGosub700(Session& session) { reportFile(session).print(Tab{25}, "Population size [N(t)+1]"); }

void VorlexEGosub1220(Session& session) {
  reportFile(session).print(Tab{20}, "Growth rate  ln[(N(t)+1)/(N(t-1)+1)]");
}

void VorlexEGosub1340(Session& session) {
  reportFile(session).print("      +----+----+----+----+----+----+----+----+----+----+----+");
}

void VorlexEGosub1360(Session& session) { reportFile(session).print(kLogScaleDigits); }

void VorlexEGosub1380(Session& session) {
  reportFile(session).print("     -.6  -.4  -.2   0    .2   .4   .6   .8   1   1.2  1.4  1.6");
}

void VorlexEGosub1400(Session& session) {
  reportFile(session).print("      1        10        100      1000      10000     100000");
}

void VorlexEGosub1710(Session& session) { reportFile(session).print(kLogScaleDigits); }

} // namespace vorlex
