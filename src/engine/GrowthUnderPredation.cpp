#include "engine/GrowthUnderPredation.h"

#include "engine/DayStep.h"
#include "engine/PopulationGrowth.h"
#include "model/Arithmetic.h"
#include "model/Session.h"

namespace vorlex {

void VorlexDGrowthUnderPredation(Session& session) {
  session.flow("In Public Sub VorlexDGrowthUnderPredation");
  session.model().SeriesIndex = 0;
  if (session.flags.GrowthMode == "Predation")
    VorlexDGosub160GrowthUnderPredation(session);
  else
    VorlexDGosub160PopulationGrowth(session);
}

void VorlexDGosub160PredationCausedDeath(Session& session) {
  Model& m = session.model();
  const int t = m.Day;
  const double predation = m.PredationTotal(t);
  if (predation <= 0)
    return;
  m.PredationVulnerable(t) = 0;
  m.PredationDeathRatio(t) = 0;
  for (int j = 1; j <= m.NrStage; ++j)
    if (m.WeakCoef(1, j) > 0)
      for (int x = m.StageAge(j, 1); x <= m.StageAge(j, 2); ++x)
        m.PredationVulnerable(t) += m.NextN(x, j) * m.WeakCoef(1, j);

  if (predation >= m.PredationVulnerable(t)) {
    // Overrun: the vulnerable stages are eaten up.
    for (int j = 1; j <= m.NrStage; ++j)
      if (m.WeakCoef(1, j) > 0)
        for (int x = m.StageAge(j, 1); x <= m.StageAge(j, 2); ++x)
          m.NextN(x, j) = 0;
    return;
  }
  // The coefficient weighs the size of the vulnerable group, not the risk
  // of an individual: every vulnerable age loses the same share. A
  // negative coefficient counts here, though it added nothing above.
  const double ratio = divide(predation, m.PredationVulnerable(t));
  m.PredationDeathRatio(t) = ratio;
  for (int j = 1; j <= m.NrStage; ++j) {
    if (m.WeakCoef(1, j) == 0)
      continue;
    for (int x = m.StageAge(j, 1); x <= m.StageAge(j, 2); ++x) {
      if (m.NextN(x, j) <= 0)
        continue;
      m.NextN(x, j) = (1 - ratio) * m.NextN(x, j);
      if (m.NextN(x, j) < 0)
        m.NextN(x, j) = 0;
    }
  }
}

void VorlexDGosub160GrowthUnderPredation(Session& session) {
  DayStepRules rules;
  rules.flowAtStart = "In Public Sub VorlexDGosub160GrowthUnderPredation: Population is growing";
  rules.flowControlsHeading = " Beginning of VorlexDGosub160GrowthUnderPredation. NrControl =";
  rules.echoFirstControlDay = true;
  rules.physogastry = true;
  rules.releases = true;
  rules.afterConsumption = &VorlexDGosub160PredationCausedDeath;
  rules.extinctionText = &extinctionOnDay;
  runDaySteps(session, rules);
}

} // namespace vorlex
