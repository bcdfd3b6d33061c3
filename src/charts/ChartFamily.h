#pragma once

#include "charts/ChartContent.h"

namespace vorlex {

class Session;

// The charts of a run. Each routine reads the model of the session, returns
// the chart it fills, and ends alike: the chart control of its form is made
// visible and the two hint labels of the main form are hidden. The caller
// keeps the returned chart as the one shown; a routine that stops with an
// error changes nothing on the forms.
//
// A ...LateRelease twin is its plain member with the release day in its
// title and the series shifted: 0 up to day ReleaseDate, the series from its
// day 1 on after that. Only ShowStageStructureLateRelease is shown by the
// program, in place of ShowStageStructure when ReleaseDate is not 0.

/// Names of the chart controls and of the hint labels the charts hide.
inline constexpr const char* kMainChart = "MSChart1";
inline constexpr const char* kLargeChart = "grafform.MSChart1";
inline constexpr const char* kChartHintLabels[] = {"lblSaying1", "lblSaying2"};

/// A chart routine.
using ShowRoutine = ChartContent (*)(Session&);

// Stage sizes and growth rates.
ChartContent ShowStageStructure(Session& session);
ChartContent ShowStageStructureLateRelease(Session& session);
ChartContent ShowLogStageStructure(Session& session);
ChartContent ShowStageSizeWithTotalAdults(Session& session);
ChartContent ShowStageSizeWithTotalAdultsLateRelease(Session& session);
ChartContent ShowStageGrowthRate(Session& session);
ChartContent ShowStageGrowthRateLateRelease(Session& session);
ChartContent ShowStageGrowthRatewithR(Session& session);

// Totals, weighed size, ET and vulnerable sizes.
ChartContent ShowTotalSizeAndWeighedSize(Session& session);
ChartContent ShowTotalSizeAndWeighedSizeLateRelease(Session& session);
ChartContent ShowLogTotalAndWeighed(Session& session);
ChartContent ShowTotalGrowthRate(Session& session);
ChartContent ShowTotalGrowthRateLateRelease(Session& session);
ChartContent ShowVulnerableAndTotal(Session& session);
ChartContent ShowLogVulnerableAndTotal(Session& session);

// The life table by age.
ChartContent ShowSij(Session& session);
ChartContent ShowGij(Session& session);
ChartContent ShowDij(Session& session);
ChartContent ShowFij(Session& session);
ChartContent ShowLx(Session& session);
ChartContent ShowMx(Session& session);
ChartContent ShowLxMx(Session& session);

// Consumption.
ChartContent ShowTotalConsume(Session& session);
ChartContent ShowTotalConsumeLateRelease(Session& session);
ChartContent ShowTotalLogConsume(Session& session);
ChartContent ShowTotalLogConsumeLateRelease(Session& session);
ChartContent ShowTotalConsumeAndPopu(Session& session);
ChartContent ShowTotalConsumeAndPopuLateRelease(Session& session);
ChartContent ShowTotalConsumeAndPopuInLog(Session& session);
ChartContent ShowTotalConsumeAndPopuInLogLateRelease(Session& session);
ChartContent ShowTotalConsumeAfterRelease(Session& session);
ChartContent ShowTotalConsumeAfterReleaseLateRelease(Session& session);
ChartContent ShowTotalLogConsumeAfterRelease(Session& session);
ChartContent ShowTotalLogConsumeAfterReleaseLateRelease(Session& session);

// Differences, deaths and predation.
ChartContent ShowTotalDifference(Session& session);
ChartContent ShowTotalDifferenceLateRelease(Session& session);
ChartContent ShowLogTotalDifference(Session& session);
ChartContent ShowLogTotalDifferenceLateRelease(Session& session);
ChartContent ShowTotalDeath(Session& session);
ChartContent ShowLogTotalDeath(Session& session);
ChartContent ShowLogTotalDeathLateRelease(Session& session);
ChartContent ShowStageDeath(Session& session);
ChartContent ShowStageDeathLateRelease(Session& session);
ChartContent ShowLogStageDeath(Session& session);
ChartContent ShowLogStageDeathLateRelease(Session& session);
ChartContent ShowCumuStageDeath(Session& session);
ChartContent ShowCumuStageDeathLateRelease(Session& session);
ChartContent ShowLogCumuStageDeath(Session& session);
ChartContent ShowLogCumuStageDeathLateRelease(Session& session);
ChartContent ShowTotalDeathDuetoPredation(Session& session);
ChartContent ShowTotalDeathDuetoPredationLateRelease(Session& session);
ChartContent ShowLogTotalDeathDuetoPredation(Session& session);
ChartContent ShowLogTotalDeathDuetoPredationLateRelease(Session& session);

/// The same charts in the large chart of grafform, with the x axis titled
/// "time"; a few carry titles of their own there.
namespace grafform {
ChartContent ShowStageStructure(Session& session);
ChartContent ShowLogStageStructure(Session& session);
ChartContent ShowStageGrowthRate(Session& session);
ChartContent ShowTotalSizeAndWeighedSize(Session& session);
ChartContent ShowLogTotalAndWeighed(Session& session);
ChartContent ShowTotalGrowthRate(Session& session);
ChartContent ShowVulnerableAndTotal(Session& session);
ChartContent ShowLogVulnerableAndTotal(Session& session);
ChartContent ShowTotalConsume(Session& session);
ChartContent ShowTotalLogConsume(Session& session);
ChartContent ShowTotalConsumeAndPopu(Session& session);
ChartContent ShowTotalConsumeAndPopuInLog(Session& session);
ChartContent ShowTotalConsumeAfterRelease(Session& session);
ChartContent ShowTotalLogConsumeAfterRelease(Session& session);
ChartContent ShowStageDeath(Session& session);
ChartContent ShowLogStageDeath(Session& session);
/// The efficacy of a treatment on each day T after an optimisation of the
/// control: on the weighed insect days, by Abbott and by Henderson-Tilton,
/// in per cent, on the days it could be worked out; a curve without such a
/// day is left out.
ChartContent ShowEfficacy(Session& session);
} // namespace grafform

} // namespace vorlex
