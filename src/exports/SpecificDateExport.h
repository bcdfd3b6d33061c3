#pragma once

namespace vorlex {

class Session;

/// The one-day exports: the value of one chosen day of a run, written as
/// one line of a file that collects the runs of many percentile life
/// tables of one cohort.
enum class DateExport {
  TotalSize,   // N(t), file number 7, "Write N(t) at time t"
  StageSizes,  // N(x,j,t), file number 6, "Write n(x,j) at time t"
  Consumption, // C(t), file number 8, "Write C(t) at time t"
  WeighedSize, // W(t), file number 10, "Write W(x,j) at time t"
};

/// The file numbers of the four exports.
inline constexpr int kStageExportFile = 6;
inline constexpr int kTotalExportFile = 7;
inline constexpr int kConsumptionExportFile = 8;
inline constexpr int kWeighedExportFile = 10;

/// The texts of one export's prompts and file.
struct DateExportTexts {
  const char* dateTitle;     // title of the date prompt
  const char* dateFirstLine; // first line of the date prompt
  const char* saveTitle;     // file dialog of a new file
  const char* appendTitle;   // file dialog of a file to append to
  const char* heading;       // heading of line 2, followed by the day
};
const DateExportTexts& textsOf(DateExport which);

/// Titles shared by the four exports.
inline constexpr const char* kOpenOrAppendTitle = "Open for the first time or append data to an existing file?";
inline constexpr const char* kFileCodeTitle = "Enter a file code (percentile, treatment, etc.)";

/// A click on one of the four export buttons: asks the day (0: the export
/// is off), whether to start a new file or to append to one, the file and
/// a code for this run. A new file gets the project name and a heading of
/// its own. The file stays open for the next run's figure step.
///
/// Kept as users know it: a cancelled dialog leaves the export armed
/// without a file, and the figure step then stops with Bad file name or
/// number; a second click while the file is still open stops with File
/// already open. The stage export's heading names the day of the total
/// size export (0 when that was never armed).
void armDateExport(Session& session, DateExport which);

/// The figure step's export lines, each written when its export is armed,
/// from the value of its chosen day. The stage sizes leave their file open
/// (and close it when they are off); the others close theirs.
void writeStageSizesExport(Session& session);
void writeTotalSizeExport(Session& session);
void writeWeighedSizeExport(Session& session);
void writeConsumptionExport(Session& session);

} // namespace vorlex
