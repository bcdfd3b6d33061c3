#pragma once

#include "model/EfficacyRow.h"

#include <vector>

namespace vorlex {

class Session;
struct Model;

// The efficacy of a treatment on each day T, from a series of runs
// (`series`: the model the series ran on, whose untreated sizes are those
// of the projection). The pages go into the session's report.

/// The three pairs of efficacy pages, then the report is closed.
void VorlexH(Session& session, const Model& series);

/// Weighed insect days of each run and their efficacy: over the whole run,
/// then as they stood at the end of the last day against the weighed size
/// on the critical day.
void VorlexHGosub930(Session& session, const Model& series);
/// Size at sampling, untreated before and after, and the efficacy by
/// Abbott; for the whole population, then for the sampled stages.
void VorlexHGosub1160(Session& session, const Model& series);
/// The same with the efficacy by Henderson and Tilton, which weighs the
/// treated run's change against the untreated one's.
void VorlexHGosub1480(Session& session, const Model& series);

/// One row for each run T = 1..SimTime + 1: what the run kept and the
/// efficacies on the weighed insect days, by Abbott and by Henderson and
/// Tilton for the whole population.
std::vector<EfficacyRow> efficacyRows(const Model& series);

} // namespace vorlex
