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

/// Keeps the last day of the series the projection filled: SimTime, or the
/// day the population died out.
void noteLastDay(Session& session);

} // namespace vorlex
