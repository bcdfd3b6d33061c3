#include "strategies/ControlledGrowth.h"

#include "engine/AutoControl.h"
#include "engine/DayStep.h"
#include "engine/PopulationGrowth.h"
#include "model/Session.h"
#include "reports/CharacterPlots.h"
#include "reports/ControlPages.h"
#include "reports/TitlePage.h"
#include "strategies/ControlledStart.h"
#include "strategies/DriverSteps.h"
#include "textio/NumberForms.h"

namespace vorlex {

void PredefinedControl(Session& session) {
  const Model& m = session.model();
  openRun(session, "In Public Sub PredefinedControl********* Predefined control *************");
  session.flow("            NrControl =", m.NrControl);
  flowControlSchedule(session);
  setMarks(session, "OptPredefinedControl", "AUTOCONTROL", "FIXED", "AUTOCONTROL");

  VorlexF1(session);
  VorlexF2(session);
  VorlexDPopulationGrowth(session);
  noteLastDay(session);
  // The title page follows the projection in this run.
  VorlexCPrintTitlePageAndBasicInfo(session);
  VorlexEPrintResults(session);
  closeReportAndWriteFiles(session, {});
}

void AutoControlBasedonET(Session& session) {
  Model& m = session.model();
  openRun(session, "In Public Sub AutoControlBasedonET *(reset stage survival rate **");
  // Controls come from the rule alone: the schedule's survival is dropped.
  const int lastDay = checkedInt16(m.SimTime + 1);
  for (int j = 1; j <= m.NrStage; ++j)
    for (int t = 1; t <= lastDay; ++t)
      m.StageSurvivalDay(j, t) = 1;
  setMarks(session, "OptAutoControlBasedOnET", "AUTOCONTROL", "", "AUTOCONTROL");

  VorlexF2AutoControl(session);
  VorlexDAutoControl(session);
  noteLastDay(session);
  VorlexCPrintTitlePageAndBasicInfo(session);
  VorlexEPrintResults(session);
  PrintSizeBeforeAndAfterControl(session);
  closeReportAndWriteFiles(session, {});
}

} // namespace vorlex
