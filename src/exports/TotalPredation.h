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

} // namespace vorlex
