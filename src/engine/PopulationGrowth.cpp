#include "engine/PopulationGrowth.h"

#include "engine/DayStep.h"
#include "engine/GrowthWithHarvest.h"
#include "model/Session.h"

namespace vorlex {

void VorlexDPopulationGrowth(Session& session) {
  session.flow("In Public Sub VorlexDPopulationGrowth");
  session.model().SeriesIndex = 0;
  if (session.flags.GrowthMode == "Harvest")
    VorlexDGosub160GrowthWithHarvest(session);
  else
    VorlexDGosub160PopulationGrowth(session);
}

void VorlexDGosub160PopulationGrowth(Session& session) {
  DayStepRules rules;
  rules.flowAtStart = "In Public Sub VorlexDGosub 160: Population is growing";
  rules.flowControlsHeading = " Beginning of VorlexDGosub160PopulationGrowth           NrControl =";
  rules.echoFirstControlDay = true;
  rules.scheduledMortalities = true;
  rules.physogastry = true;
  rules.releases = true;
  rules.extinctionText = &extinctionOnDay;
  runDaySteps(session, rules);
}

} // namespace vorlex
