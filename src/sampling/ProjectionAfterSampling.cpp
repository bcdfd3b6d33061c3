#include "sampling/ProjectionAfterSampling.h"

#include "model/Session.h"
#include "sampling/StagePrediction.h"
#include "textio/NumberForms.h"

namespace vorlex {

void placeSampledCohort(Session& session, SamplingTables& t) {
  Model& m = session.model();
  // The stage-to-stage file gives the entry ages; its times and ratios are
  // read and not used here.
  if (chooseAndReadStageTimes(session, t) && openSamplingFile(session, t))
    readSingleSample(session, t, "a projection");

  for (int age = 0; age <= m.LastAge; ++age)
    for (int stage = 1; stage <= m.NrStage; ++stage)
      m.InitialN(age, stage) = 0;
  t.ProjectionStartDay = t.SampleBaseDay;
  const std::int32_t age = toInt32(t.StageEntryAge(t.SampledStage));
  m.InitialN(age, t.SampledStage) = t.SampleCount(t.SampleBaseDay, t.SampledStage);
}

} // namespace vorlex
