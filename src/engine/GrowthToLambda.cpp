#include "engine/GrowthToLambda.h"

#include "engine/DayStep.h"
#include "model/Session.h"

namespace vorlex {

void VorlexDGosub160PopuGrowthToR(Session& session) {
  session.flow("In Public Sub VorlexDGosub160PopuGrowthToR: Population is growing");
  Model& m = session.model();
  m.SimTime = 1000;
  // Day 0 already holds the start, so its total counts it twice: the first
  // growth rate and difference of the run carry that.
  for (int x = 0; x <= m.LastAge; ++x)
    for (int j = 1; j <= m.NrStage; ++j)
      m.TotalSize(0) += m.InitialN(x, j);

  DayStepRules rules;
  rules.survivalOfTheDay = false;
  rules.densityDependence = false;
  rules.cumulativeWeighedSize = false;
  rules.weighedSizeFromZero = false;
  rules.criticalDay = false;
  rules.lastDay = 1000;
  rules.extinctionText = &extinctionOnDay;
  runDaySteps(session, rules);
}

} // namespace vorlex
