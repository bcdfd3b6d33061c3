#include "SamplingFixture.h"

#include "sampling/SamplingCharts.h"

namespace vorlex::testing {
namespace {

TEST_F(SamplingFixture, WithoutLifeTableTheDemonstrationStagesShowEightyDays) {
  form.Form_Load();
  answer(kSamplingFileDialogTitle,
         sample("counts.txt", {"1,3,a,2,12", "1,7,a,2,30", "1,7,a,4,2.5", "0,0,\"\",0,0"}));
  form.cmdStageSamplingData_Click();

  EXPECT_EQ(m.SimTime, 80);
  EXPECT_EQ(m.NrStage, 5);
  const ChartContent& c = chart();
  EXPECT_EQ(c.title, "Stage size");
  EXPECT_EQ(c.yAxis.title, "stage size");
  EXPECT_EQ(c.xAxis.title, "Time");
  EXPECT_EQ(c.xAxis.maximum, 3.0); // the number of records
  EXPECT_TRUE(c.showLegend);
  ASSERT_EQ(c.rowCount(), 81);
  ASSERT_EQ(c.labels(), (std::vector<std::string>{"Larva", "Female"}));
  // Each stage its series, counts on their days and 0 elsewhere.
  for (int day = 0; day <= 80; ++day) {
    EXPECT_EQ(c.x(1, day + 1), day);
    EXPECT_EQ(c.y(1, day + 1), day == 3 ? 12 : day == 7 ? 30 : 0) << day;
    EXPECT_EQ(c.y(2, day + 1), day == 7 ? 2.5 : 0) << day;
  }
  EXPECT_TRUE(session.controls["MSChart2"].visible);
  EXPECT_FALSE(session.controls["MSChart1"].visible);
  EXPECT_FALSE(session.controls["lblSaying1"].visible);
  EXPECT_FALSE(session.files.isOpen(kDataFile));
}

TEST_F(SamplingFixture, DayZeroOfAnEarlierFileStaysOnTheChart) {
  loadMoth();
  answer(kSamplingFileDialogTitle, sample("first.txt", {"1,0,a,2,5", "1,150,a,2,9", "0,0,a,0,0"}));
  form.cmdStageSamplingData_Click();
  answer(kSamplingFileDialogTitle, sample("second.txt", {"1,7,a,2,3", "0,0,a,0,0"}));
  form.cmdStageSamplingData_Click();
  EXPECT_EQ(chart().rowCount(), 21);
  EXPECT_EQ(chart().y(1, 1), 5); // day 0 is not cleared
  EXPECT_EQ(chart().y(1, 8), 3);
  EXPECT_EQ(tables().SampleCount(150, 2), 9); // nor are the days above 100
}

TEST_F(SamplingFixture, OnlyTheEndRecordShowsNoSeriesAndCancelChangesNothing) {
  loadMoth();
  answer(kSamplingFileDialogTitle, sample("empty.txt", {"0,0,a,0,0"}));
  form.cmdStageSamplingData_Click();
  EXPECT_EQ(chart().seriesCount(), 0);
  EXPECT_EQ(chart().rowCount(), 21);
  EXPECT_EQ(tables().NrSample, 0);

  const ChartContent before = chart();
  session.controls["MSChart2"].visible = false;
  form.cmdStageSamplingData_Click(); // cancelled
  EXPECT_EQ(chart(), before);
  EXPECT_FALSE(session.controls["MSChart2"].visible);
}

TEST_F(SamplingFixture, PointsOfSeveralStagesTakeTheCountOfTheRecordNumber) {
  loadMoth();
  answer(kSamplingFileDialogTitle,
         sample("counts.txt", {"1,1,a,2,11", "1,2,a,2,12", "1,2,a,4,4", "1,5,a,4,6", "0,0,a,0,0"}));
  form.cmdStageSamplingData_Click();
  form.sampling().showAsPoints();

  const ChartContent& c = chart();
  EXPECT_EQ(c.title, "Sampling data");
  EXPECT_EQ(c.yAxis.title, "Insects");
  EXPECT_FALSE(c.showLegend);
  ASSERT_EQ(c.rowCount(), 4);
  ASSERT_EQ(c.labels(), (std::vector<std::string>{"Larv", "Fema"}));
  const double days[] = {1, 2, 2, 5};
  // Row k holds the count of day k, not of the record's day.
  const double larvae[] = {11, 12, 0, 0}, females[] = {0, 4, 0, 0};
  for (int k = 1; k <= 4; ++k) {
    EXPECT_EQ(c.x(1, k), days[k - 1]);
    EXPECT_EQ(c.y(1, k), larvae[k - 1]) << k;
    EXPECT_EQ(c.y(2, k), females[k - 1]) << k;
  }
  // The marks of several stages: yellow on series 1, magenta on series 3.
  ASSERT_EQ(c.looks.size(), 2u);
  EXPECT_EQ(c.looks.at(1).line, PenStyle::None);
  EXPECT_EQ(c.looks.at(1).marker->fill, (ChartColour{255, 255, 0}));
  EXPECT_EQ(c.looks.at(3).marker->fill, (ChartColour{255, 0, 255}));
  EXPECT_EQ(c.plotBackground, (ChartColour{255, 255, 255}));
  EXPECT_TRUE(c.yAxis.titleHorizontal);
  EXPECT_EQ(c.titleFont, (ChartFont{"Times New Roman", 14}));
}

TEST_F(SamplingFixture, PointsOfOneStageAreLeftEmptyInRed) {
  loadMoth();
  answer(kSamplingFileDialogTitle, sample("counts.txt", {"1,1,a,2,11", "1,3,a,2,12", "0,0,a,0,0"}));
  form.cmdStageSamplingData_Click();
  form.sampling().showAsPoints();
  const ChartContent& c = chart();
  ASSERT_EQ(c.seriesCount(), 1);
  ASSERT_EQ(c.rowCount(), 2);
  EXPECT_EQ(c.label(1), "");
  EXPECT_EQ(c.y(1, 1) + c.y(1, 2) + c.x(1, 1) + c.x(1, 2), 0);
  EXPECT_EQ(c.looks.at(1).marker->fill, (ChartColour{255, 0, 0}));
  EXPECT_EQ(c.looks.count(3), 0u);
}

} // namespace
} // namespace vorlex::testing
