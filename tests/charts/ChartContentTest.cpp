#include "charts/ChartContent.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

TEST(ChartContent, SeriesTakeTwoColumnsEach) {
  ChartContent chart;
  chart.resize(3, 2);
  EXPECT_EQ(chart.columnCount(), 6);
  EXPECT_EQ(chart.at(2, 6), 0);
  EXPECT_EQ(chart.label(3), "");
  chart.at(2, 3) = 7;
  chart.at(2, 4) = 8;
  EXPECT_EQ(chart.x(2, 2), 7);
  EXPECT_EQ(chart.y(2, 2), 8);
  chart.resize(1, 1);
  EXPECT_EQ(chart.at(1, 2), 0); // a new size starts empty
}

TEST(ChartContent, OutsideTheChartIsOutOfRange) {
  ChartContent chart;
  chart.resize(2, 3);
  for (const auto& cell : {std::pair{0, 1}, {4, 1}, {1, 0}, {1, 5}})
    EXPECT_EQ(errorOf([&] { chart.at(cell.first, cell.second); }).code(), ErrorCode::SubscriptOutOfRange);
  EXPECT_EQ(errorOf([&] { chart.label(3); }).code(), ErrorCode::SubscriptOutOfRange);
  EXPECT_EQ(errorOf([&] { chart.resize(1, -1); }).code(), ErrorCode::InvalidProcedureCall);
}

} // namespace
} // namespace vorlex::testing
