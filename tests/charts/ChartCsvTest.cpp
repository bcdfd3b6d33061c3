#include "charts/ChartCsv.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

TEST(ChartCsvText, TitleNamesAndRowsOfAHandFilledChart) {
  ChartContent chart;
  chart.title = "Total size (T), weighed size (W)";
  chart.resize(2, 3);
  chart.label(1) = "Fema, \"old\"";
  const double cells[3][4] = {
      {0, 0.1, 12, -0.5},
      {1e-20, 0.0001, 1e14, 1e15},
      {0.1 + 0.2, 123456789012345678.0, -1e-5, 2.5},
  };
  for (int row = 1; row <= 3; ++row)
    for (int column = 1; column <= 4; ++column)
      chart.at(row, column) = cells[row - 1][column - 1];

  EXPECT_EQ(chartAsCsv(chart), "\"Total size (T), weighed size (W)\"\r\n"
                               "\"Fema, \"\"old\"\" x\",\"Fema, \"\"old\"\" y\",x2,y2\r\n"
                               "0,0.1,12,-0.5\r\n"
                               "1E-20,0.0001,100000000000000,1E+15\r\n"
                               "0.3,1.23456789012346E+17,-1E-05,2.5\r\n");
}

TEST(ChartCsvText, PlainLabelsAndAnEmptyChart) {
  ChartContent chart;
  chart.title = "Stage size";
  chart.resize(3, 1);
  chart.label(1) = "Eggs";
  chart.label(3) = "Male";
  chart.at(1, 6) = 31;
  EXPECT_EQ(chartAsCsv(chart), "Stage size\r\nEggs x,Eggs y,x2,y2,Male x,Male y\r\n0,0,0,0,0,31\r\n");

  EXPECT_EQ(chartAsCsv(ChartContent{}), "\r\n\r\n");
}

} // namespace
} // namespace vorlex::testing
