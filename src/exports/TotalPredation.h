#pragma once

namespace vorlex {

class Session;

/// Writes the total-predation file of a predator's run, for a later run of
/// its prey under predation: the total consumption of each day, after the
/// number of days of zero predation the user enters (the lag, in time
/// steps), as BaseName + "-10X-Total " + description + " released after " +
/// lag + " time units.txt" ("-10X-No use.txt" without a description).
/// Nothing happens without consumption data (WithCxj not "Yes"). An answer
/// for the lag that is no number, the empty answer of Cancel included, stops
/// with Type mismatch; a negative lag writes the headings only.
void WriteTotalPredation(Session& session);

/// The title of the file dialog that chooses a total-predation file.
inline constexpr const char* kPredationFileDialogTitle =
    "Input predation data (file 10X with time lag or 9 without time lag) in predator VORLEX folder.";

/// Reads the predation of each day of a run (rows 0..SimTime+1) from a
/// total-predation file a predator's run wrote, or from its total
/// consumption file: row n is day n - 1, whatever its time column says; a
/// shorter file leaves the later days as they were. Then asks for the
/// predation coefficient and scales the series by it; a coefficient other
/// than 1 also writes the scaled series beside the file, named after it and
/// the coefficient. A cancelled file dialog reads nothing and asks nothing.
void ReadTotalPredation(Session& session);

} // namespace vorlex
