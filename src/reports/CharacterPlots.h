#pragma once

namespace vorlex {

class Session;

/// The character plots that follow the basic information: the size of
/// each stage, the total and weighed size, the growth rates and the
/// weakness curves, one page each, time running down the page.
void VorlexEPrintResults(Session& session);

/// Size of each stage on the logarithmic scale, marked by the first letter
/// of the stage's name.
void VorlexEGosub130PrintStageCurves(Session& session);
/// Total size "T" and weighed size "*" on the logarithmic scale, closed by
/// a row with "C" at DailyWID(Day), the weighed size of the day the
/// projection left in Day.
void VorlexEGosub2010PrintLogTotal(Session& session);
/// Growth rate of each stage and of the total, 25 columns a unit with 0 at
/// column 16; marks below the frame are listed behind the row. Counts the
/// days in Day itself, which ends at SimTime + 1.
void VorlexEGosub820PringGrowthRate(Session& session);
/// Weighed size of each weakness factor on the logarithmic scale.
void VorlexEGosub1530PrintWeakCurves(Session& session);

} // namespace vorlex
