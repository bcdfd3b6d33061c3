#pragma once

namespace vorlex {

class Session;

/// Switches off the schedule's survival factors for days 1..SimTime+1
/// (day 0 keeps its own) and fills day 0 of the projection.
void VorlexBSetStageSurvivalRto1(Session& session);

/// Turns the initial population into PopN and fills day 0 of every daily
/// series. An initial population of size 0 ends the program.
void VorlexBGoS90BeginningCal(Session& session);

} // namespace vorlex
