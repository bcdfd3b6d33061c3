#pragma once

#include "charts/ChartContent.h"
#include "sampling/SamplingTables.h"

namespace vorlex {

class Session;

// The charts of the sampling buttons, on the main form's second chart.

/// Name of the chart control of the sampling charts.
inline constexpr const char* kSamplingChart = "MSChart2";

/// The sampling series as curves over days 0..SimTime, titled "Stage
/// size", with a legend. The sampling chart shows, the chart of the runs
/// and the two hint labels hide.
ChartContent ShowSamplingDataCurve(Session& session, const SamplingTables& tables);

/// The records as marks: one row per record, x its day and y the count of
/// that row's number (not of its day) for each sampled stage, titled
/// "Sampling data". The stages are filled in only when more than one was
/// sampled; then the marks are those of ShowMultiMark, else of ShowOneMark.
/// The sampling chart shows, the two hint labels hide.
ChartContent ShowSamplingDataPoint(Session& session, const SamplingTables& tables);

/// Marks without lines: series 1 as red filled circles, no legend, a white
/// plot, no grid lines, titles in Times New Roman.
void ShowOneMark(ChartContent& chart);
/// The same with yellow circles on series 1 and magenta ones on series 3.
void ShowMultiMark(ChartContent& chart);

} // namespace vorlex
