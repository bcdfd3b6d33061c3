// The stage size and vulnerable size files. A population released on a
// later day (ReleaseDate above 0) is shown from its release on: rows ahead
// of it fill the days before, and the simulation's rows carry the shifted
// time.

#include "reports/FigureTerms.h"
#include "reports/FigureWriters.h"

namespace vorlex {

using namespace figures;

namespace {

constexpr const char* kStageTitle = "Stage structure curves (Nt)";
constexpr const char* kLogStageTitle = "Stage structure curves log(Nt+1) (base 10)";

bool released(const Model& m) { return m.ReleaseDate > 0; }

/// Time of day t of the simulation: shifted by ReleaseDate when above 0.
NumberText simulationTime(const Model& m, int t) {
  return timeColumn(m, released(m) ? checkedInt16(t + m.ReleaseDate) : t);
}

std::string stageFileHeading(const Session& session, const std::string& ending) {
  return stagesHeading(session.model()) + (physogastry(session) ? "Burst-ready" : ending);
}

/// The rows ahead of the release: plain time, " 0 " for each stage and then
/// `last`.
void writeEmptyStageRows(OutputFile& out, const Model& m, std::string_view last) {
  for (int t = 0; t < m.ReleaseDate; ++t)
    out.print(timeColumn(m, t), ",", joinedStages(m, [](int) { return raw(0); }), ",", last);
}

} // namespace

void writeStageSizeFile(Session& session) {
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, "1A-Fig-Stage size");
  out.write(kStageTitle);
  out.print(stageFileHeading(session, "Total adults"));
  writeEmptyStageRows(out, m, raw(0));
  for (int t = 0; t <= m.SimTime; ++t) {
    const NumberText last = physogastry(session) ? raw(m.BurstReadySize(t)) : bare(adults(m, t));
    out.print(simulationTime(m, t), ",", joinedStages(m, [&](int j) { return bare(m.StageSize(j, t)); }), ",",
              last);
  }
  closeFigureFile(session);
}

void writeStageSizePlusOneFile(Session& session) {
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, "1C-Fig-Stage size plus 1");
  out.write(kStageTitle);
  out.print(stageFileHeading(session, "Total adults,Total popu. size"));
  // Kept on purpose: the empty rows end with " 1 ", the shifted rows have no
  // total column, and only the shifted rows add 1 to the burst-ready ones.
  writeEmptyStageRows(out, m, raw(1));
  for (int t = 0; t <= m.SimTime; ++t) {
    out.printOpen(simulationTime(m, t), ",", joinedStages(m, [&](int j) { return bare(m.StageSize(j, t) + 1); }),
                  ",");
    if (physogastry(session))
      out.print(raw(m.BurstReadySize(t) + (released(m) ? 1 : 0)));
    else if (released(m))
      out.print(bare(adults(m, t) + 1));
    else
      out.print(bare(adults(m, t) + 1), ",", bare(m.TotalSize(t) + 1));
  }
  closeFigureFile(session);
}

void writeLogStageSizeFile(Session& session) {
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, "1B-Fig-log Stage size");
  out.write(kLogStageTitle);
  out.print(stageFileHeading(session, "Total adults"));
  writeEmptyStageRows(out, m, raw(0));
  for (int t = 0; t <= m.SimTime; ++t) {
    const double last = physogastry(session) ? m.BurstReadySize(t) : adults(m, t);
    out.print(simulationTime(m, t), ",", joinedStages(m, [&](int j) { return bare(lg(m.StageSize(j, t))); }),
              ",", bare(lg(last)));
  }
  closeFigureFile(session);
}

namespace {

std::string vulnerableHeading(const Model& m) {
  if (m.NrWeakFactor <= 1)
    return "Time,Weakpoint(1)";
  std::string heading = "Time,";
  heading += joined(1, m.NrWeakFactor, [](int k) {
    std::string name = "Weakpoint(";
    name += std::to_string(k);
    return name + ")";
  });
  return heading;
}

/// A row of the susceptible groups, cell(k) for each factor; the row ends
/// with one blank behind its last value.
template <typename Cell> void writeVulnerableRow(OutputFile& out, const Model& m, int step, Cell cell) {
  out.print(timeColumn(m, step), ",", joined(1, m.NrWeakFactor, cell), " ");
}

} // namespace

void writeVulnerableSizeFile(Session& session) {
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, "4A-Fig-Vulnerable size");
  out.write("vulnerable curves (vulnerable size )");
  out.print(vulnerableHeading(m));
  // Ahead of a release this file shows the true values of the early days.
  for (int t = 0; t < m.ReleaseDate; ++t)
    writeVulnerableRow(out, m, t, [&](int k) { return bare(m.WeakSize(k, t)); });
  for (int t = 0; t <= m.SimTime; ++t) {
    const int step = released(m) ? checkedInt16(t + m.ReleaseDate) : t;
    writeVulnerableRow(out, m, step, [&](int k) { return bare(m.WeakSize(k, t)); });
  }
  closeFigureFile(session);
}

void writeLogVulnerableSizeFile(Session& session) {
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, "4B-Fig-log Vulnerable size");
  out.write("Vulnerability curves log(vulnerable size + 1)");
  out.print(vulnerableHeading(m));
  if (released(m)) {
    // Kept on purpose, unlike the file above: after a release this file
    // holds rows of zeros only, ReleaseDate with plain time and ReleaseDate
    // with shifted time. They end with the blank of every row, behind the
    // one of " 0 ".
    const auto zeroRow = [&](int step) { writeVulnerableRow(out, m, step, [](int) { return raw(0); }); };
    for (int t = 0; t < m.ReleaseDate; ++t)
      zeroRow(t);
    for (int t = 0; t < m.ReleaseDate; ++t)
      zeroRow(checkedInt16(t + m.ReleaseDate));
  } else {
    for (int t = 0; t <= m.SimTime; ++t)
      writeVulnerableRow(out, m, t, [&](int k) { return bare(lg(m.WeakSize(k, t))); });
  }
  closeFigureFile(session);
}

} // namespace vorlex
