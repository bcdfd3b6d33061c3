#pragma once

namespace vorlex {

class Session;

// A series of runs that moves a treatment over the days of the simulation:
// run T has its treatment on day T. Each run starts again from the initial
// population and keeps only what the efficacy pages read: its weighed
// insect days, and the total and sampled sizes on the day of treatment and
// at sampling after it. The series clears and rewrites the series of the
// model it is given, and so runs on a copy of the finished projection.

/// Runs T = 1..SimTime + 1. Under the growth mode "VARIOUS" a second
/// treatment moves away from the first; otherwise the schedule of the
/// data file moves one day later with each run.
void VorlexG(Session& session);

/// Moves the control survival of every stage one day later; the first day
/// is freed of control in the first two runs.
void VorlexGGosub770(Session& session);

/// The schedule of two treatments for run T: the first control of the data
/// file on its own days, the second control beginning on day
/// ControlDate(1) + T - 1; neither beyond SimTime + 1.
void VorlexGGosub900(Session& session);

/// Day 0 of run T, with its weighed size as the run's first insect days.
void VorlexGGosub120(Session& session);

/// The days of run T: the day step without scheduled mortalities,
/// releases, carrying capacity or physogastry, each day's results one day
/// ahead under that day's control survival, and the run's own records
/// instead of the day's. An extinction ends the run with a line in the
/// report.
void VorlexGGosub1210(Session& session);

} // namespace vorlex
