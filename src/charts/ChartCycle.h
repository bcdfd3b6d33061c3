#pragma once

#include "charts/ChartFamily.h"

#include <cstdint>

namespace vorlex {

class Session;

// Moving through the charts without a menu: each activation of a chart
// shows the next chart of a fixed cycle. The two positions live in the
// session, start at 0 and are not reset by a run.

/// One entry of the cycle of the main form's chart.
struct ChartCycleEntry {
  /// What the entry shows; null for the entry that shows nothing.
  ShowRoutine routine;
  /// Whether the entry may show now; null when it always may.
  bool (*condition)(const Session&);
  /// What the condition asks, in words ("the data file holds consumption
  /// data C(x,j)"); null when there is none.
  const char* shownWhen = nullptr;
};

/// The 35 entries of the main form's cycle, 0..34. Entry 0 stands for the
/// stage chart; its late-release twin takes its place when ReleaseDate is
/// not 0.
inline constexpr int kChartCycleLength = 35;
const ChartCycleEntry& chartCycleEntry(int index);

/// What entry `index` shows in this session: its routine, the late-release
/// twin at 0 when ReleaseDate is not 0; null when the entry shows nothing
/// now (the empty entry, or a condition that fails).
ShowRoutine chartCycleRoutine(const Session& session, int index);

/// The chart of the main form was activated: the position moves on by one
/// (after 34 back to 0) and that entry runs. An entry whose condition fails,
/// or the empty entry, shows nothing and leaves the chart as it was; so does
/// a position below 0, which climbs back to 0 one activation at a time. A
/// routine that stops leaves the chart as it was, the position moved.
/// Returns whether the chart changed.
bool MSChart1_Activate(Session& session);

/// The 8 entries of the large chart's cycle, 0..7.
inline constexpr int kLargeChartCycleLength = 8;
ShowRoutine largeChartCycleEntry(int index);

namespace grafform {
/// The large chart was activated: its position moves on by one (after 7
/// back to 0) and that entry shows on session.largeChart; a position below
/// 0 shows nothing.
void MSChart1_Activate(Session& session);
} // namespace grafform

} // namespace vorlex
