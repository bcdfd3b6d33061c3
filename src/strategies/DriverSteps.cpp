#include "strategies/DriverSteps.h"

#include "model/Session.h"

namespace vorlex {

void openRun(Session& session, const char* driverLine) {
  session.flow("OptManagement=", session.flags.OptManagement);
  session.flow(driverLine);
  session.controls["cmdInputLTdata"].enabled = false;
}

void setMarks(Session& session, const char* optManagement, const char* growthMode, const char* fixedMark,
              const char* autoMark) {
  RunFlags& flags = session.flags;
  flags.OptManagement = optManagement;
  flags.GrowthMode = growthMode;
  flags.ControlFixedMark = fixedMark;
  flags.ControlAutoMark = autoMark;
  Model& m = session.model();
  m.SeriesIndex = 0;
  m.DailyWID(m.Day) = 0;
}

void noteLastDay(Session& session) {
  const Model& m = session.model();
  session.lastDayReached = m.Day <= m.SimTime ? m.Day : m.SimTime;
}

} // namespace vorlex
