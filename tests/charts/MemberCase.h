#pragma once

#include "ChartFixture.h"

#include <string>
#include <vector>

namespace vorlex::testing {

// A member of the chart family as the fixture's projection shows it, with
// one value worked out by hand.

using Labels = std::vector<std::string>;
inline const Labels kStages{"Eggs", "Fema", "Male"};

inline Labels plus(Labels labels, const Labels& more) {
  labels.insert(labels.end(), more.begin(), more.end());
  return labels;
}

struct Probe {
  int row, series;
  double y;
};

struct Member {
  ShowRoutine show;
  const char* name;
  std::string title, yTitle, xTitle;
  bool legend;
  Labels labels;
  int rows;
  Probe probe;
};

inline void expectMember(Session& session, const Member& member) {
  SCOPED_TRACE(member.name);
  const ChartContent chart = member.show(session);
  EXPECT_EQ(chart.title, member.title);
  EXPECT_EQ(chart.yAxis.title, member.yTitle);
  EXPECT_EQ(chart.xAxis.title, member.xTitle);
  EXPECT_EQ(chart.showLegend, member.legend);
  EXPECT_EQ(chart.labels(), member.labels);
  EXPECT_EQ(chart.columnCount(), 2 * static_cast<int>(member.labels.size()));
  EXPECT_EQ(chart.rowCount(), member.rows);
  EXPECT_NEAR(chart.y(member.probe.series, member.probe.row), member.probe.y, 1e-12);
}

} // namespace vorlex::testing
