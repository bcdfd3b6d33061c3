#pragma once

#include "model/Arithmetic.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

#include <string>

// The number forms and columns the figure files are made of, shared by the
// writers of the size, rate, death and matrix files.
namespace vorlex::figures {

/// The figure files go out on the number of the report, which is closed by
/// the time they are written.
inline constexpr int kFigureFile = kReportFile;

/// The stripped form. A negative number loses its minus sign; kept on
/// purpose in every column written this way.
inline NumberText bare(double v) { return {v, NumberText::Form::Stripped}; }
/// The stripped form, or the blank-led form with its minus below 0.
inline NumberText withSign(double v) {
  return {v, v < 0 ? NumberText::Form::BlankLed : NumberText::Form::Stripped};
}
/// The print form: the blank for the sign ahead and one blank behind.
inline NumberText raw(double v) { return {v, NumberText::Form::Print}; }
/// log10(v + 1), taken as ln(v + 1) / ln(10).
inline double lg(double v) { return log10Plus1(v); }

inline bool physogastry(const Session& session) { return session.flags.Physogastry == "Yes"; }

/// Female and male of day t.
inline double adults(const Model& m, int t) {
  return m.StageSize(m.NrStage - 1, t) + m.StageSize(m.NrStage, t);
}
/// The total without the adults, plus the burst-ready ones, as the total
/// files show it under physogastry.
inline double immatureAndBurstReady(const Model& m, int t) {
  return m.TotalSize(t) - m.StageSize(m.NrStage, t) - m.StageSize(m.NrStage - 1, t) + m.BurstReadySize(t);
}

/// Time of a row: step times TimeUnit in the stripped form.
inline NumberText timeColumn(const Model& m, int step) { return bare(step * m.TimeUnit); }

/// "Time," and each stage name followed by a comma.
inline std::string stagesHeading(const Model& m) {
  std::string heading = "Time,";
  for (int j = 1; j <= m.NrStage; ++j)
    heading += m.StageName(j) + ",";
  return heading;
}

/// cell(i) for i = first..last, joined with commas.
template <typename Cell> std::string joined(int first, int last, Cell cell) {
  std::string row;
  for (int i = first; i <= last; ++i) {
    if (i > first)
      row += ',';
    row += cell(i);
  }
  return row;
}

/// cell(i) for i = first..last joined with commas, written straight into a
/// print line rather than made into a text first.
template <typename Cell> struct JoinedCells {
  int first;
  int last;
  Cell cell;
  void putInto(OutputFile& out) const {
    for (int i = first; i <= last; ++i) {
      if (i > first)
        out.printOpen(",");
      out.printOpen(cell(i));
    }
  }
};

/// cell(j) for the stages 1..NrStage, joined with commas, for a print line.
template <typename Cell> JoinedCells<Cell> joinedStages(const Model& m, Cell cell) {
  return {1, m.NrStage, cell};
}

/// Sets the figure suffix and opens the figure file of that name.
OutputFile& openFigureFile(Session& session, const std::string& suffix);
inline void closeFigureFile(Session& session) { session.files.close(kFigureFile); }

} // namespace vorlex::figures
