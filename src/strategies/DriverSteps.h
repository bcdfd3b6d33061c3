#pragma once

namespace vorlex {

class Session;

// Steps every strategy driver takes around its projection.

/// The flow lines of the strategy value and of the driver; the load is
/// locked for the rest of the session.
void openRun(Session& session, const char* driverLine);

/// The strategy's marks, and a fresh start of the series index and of the
/// weighed size of the current day.
void setMarks(Session& session, const char* optManagement, const char* growthMode, const char* fixedMark,
              const char* autoMark);

/// What a run writes once its report pages are done: closes the report;
/// writes the derived data file and the matrix file, the consumption and
/// death-rate matrix files where the strategy writes them; fills the
/// run's chart; writes the figure files; opens the large graphs.
struct RunFiles {
  bool consumptionMatrix = false;
  bool deathRateMatrix = false;
  bool lateReleaseChart = false; // the late-release twin of the stage chart when ReleaseDate is not 0
};
void closeReportAndWriteFiles(Session& session, RunFiles files);

/// Keeps the last day of the series the projection filled: SimTime, or the
/// day the population died out.
void noteLastDay(Session& session);

} // namespace vorlex
