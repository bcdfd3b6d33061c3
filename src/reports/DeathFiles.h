#pragma once

namespace vorlex {

class Session;

// The figure files of deaths and the two matrix files of death and
// consumption rates. None of them is shifted by ReleaseDate, and none is
// written when OnlyTotalFigures is "Yes".

/// "5A-Fig-Stage death": deaths of each stage, days 0..SimTime.
void PrintStageDeath(Session& session);
/// "6A-Fig-Total death": total deaths and their log, days 1..SimTime.
void PrintTotalDeath(Session& session);
/// "5B-Fig-log Stage death": days 1..SimTime; its adult column in ln.
void PrintLogStageDeath(Session& session);
/// "7A-Fig-Cumu stage death": cumulative deaths of each stage.
void PrintCumuStageDeath(Session& session);
/// "7B-Fig-log Cumu stage death": their log.
void PrintLogCumuStageDeath(Session& session);
/// "8-Fig-Total difference": day-to-day change of the total and its log,
/// negative for a decrease.
void PrintTotalDifference(Session& session);
/// BaseName + "-11-Fig-Death rate Dxj.txt": the age-stage death rates.
void PrintDeathRatexj(Session& session);
/// BaseName + "-8-Fig_Cxj.txt": the age-stage consumption rates; only for a
/// project with consumption data (WithCxj "Yes").
void PrintCxj(Session& session);

} // namespace vorlex
