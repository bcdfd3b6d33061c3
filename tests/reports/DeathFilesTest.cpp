#include "reports/DeathFiles.h"

#include "support/FigureRun.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

// Deaths of three days set by hand (day 0 has none):
//   stage deaths   day 1: 32, 6.5, 2.5 (adults 9)   day 2: 9, 0, 0
//   cumulative     day 1: 32, 6.5, 2.5 (adults 9)   day 2: 41, 6.5, 2.5
//   total deaths 9 and 99, their logs 1 and 2; differences 9 and -99.
// ln(9 + 1) = 2.30258509299405, while log10(9 + 1) = 1.
class DeathFiles : public ::testing::Test {
protected:
  FigureRun run;
  Model& m = run.m;

  void SetUp() override {
    run.threeStages(2);
    const double deaths[3][3] = {{0, 0, 0}, {32, 6.5, 2.5}, {9, 0, 0}};
    const double logs[3][3] = {{0, 0, 0}, {1.5, .8, .5}, {1, 0, 0}};
    const double cumulative[3][3] = {{0, 0, 0}, {32, 6.5, 2.5}, {41, 6.5, 2.5}};
    const double cumulativeLogs[3][3] = {{0, 0, 0}, {1.5, .8, .5}, {1.6, .8, .5}};
    for (int t = 0; t <= 2; ++t)
      for (int j = 1; j <= 3; ++j) {
        m.StageDeath(t, j) = deaths[t][j - 1];
        m.LogStageDeath(t, j) = logs[t][j - 1];
        m.CumuStageDeath(t, j) = cumulative[t][j - 1];
        m.LogCumuStageDeath(t, j) = cumulativeLogs[t][j - 1];
      }
    m.TotalDeath(1) = 9;
    m.TotalDeath(2) = 99;
    m.LogTotalDeath(1) = 1;
    m.LogTotalDeath(2) = 2;
    m.TotalDifference(1) = 9;
    m.TotalDifference(2) = -99;
    m.BurstReadySize(1) = 2.5;
    m.BurstReadySize(2) = 1;
  }
  void writeAll() {
    PrintStageDeath(run.session);
    PrintTotalDeath(run.session);
    PrintLogStageDeath(run.session);
    PrintCumuStageDeath(run.session);
    PrintLogCumuStageDeath(run.session);
    PrintTotalDifference(run.session);
  }
};

constexpr const char* kStageHeading = "Time,Eggs,Fema,Male,Total adults\r\n";

TEST_F(DeathFiles, StageDeathsWithTheAdultsBehind) {
  writeAll();
  EXPECT_EQ(run.figure("5A-Fig-Stage death"), std::string("\"Stage death curves\"\r\n") + kStageHeading +
                                                  "0,0,0,0,0\r\n"
                                                  "1,32,6.5,2.5,9\r\n"
                                                  "2,9,0,0,0\r\n");
  EXPECT_EQ(run.figure("7A-Fig-Cumu stage death"), std::string("\"Cumulative stage death curves\"\r\n") +
                                                       kStageHeading +
                                                       "0,0,0,0,0\r\n"
                                                       "1,32,6.5,2.5,9\r\n"
                                                       "2,41,6.5,2.5,9\r\n");
  EXPECT_EQ(run.figure("7B-Fig-log Cumu stage death"), std::string("\"log(Cumulative stage death)\"\r\n") +
                                                           kStageHeading +
                                                           "0,0,0,0,0\r\n"
                                                           "1,1.5,.8,.5,1\r\n"
                                                           "2,1.6,.8,.5,1\r\n");
}

TEST_F(DeathFiles, TheLogOfStageDeathsStartsAtDayOneWithItsAdultsInLn) {
  writeAll();
  EXPECT_EQ(run.figure("5B-Fig-log Stage death"), std::string("\"log(Stage death curves)\"\r\n") +
                                                      kStageHeading +
                                                      "1,1.5,.8,.5,2.30258509299405\r\n"
                                                      "2,1,0,0,0\r\n");
}

TEST_F(DeathFiles, PhysogastryPutsTheBurstReadyBehindAllFourStageFiles) {
  run.session.flags.Physogastry = "Yes";
  writeAll();
  const std::string heading = "Time,Eggs,Fema,Male,Burst-ready";
  for (const char* suffix : {"5A-Fig-Stage death", "5B-Fig-log Stage death", "7A-Fig-Cumu stage death",
                             "7B-Fig-log Cumu stage death"})
    EXPECT_EQ(lineOf(run.figure(suffix), 1), heading) << suffix;
  EXPECT_EQ(lineOf(run.figure("5A-Fig-Stage death"), 4), "2,9,0,0, 1 ");
  EXPECT_EQ(lineOf(run.figure("5B-Fig-log Stage death"), 2), "1,1.5,.8,.5, 2.5 ");
  EXPECT_EQ(lineOf(run.figure("7A-Fig-Cumu stage death"), 2), "0,0,0,0, 0 ");
  EXPECT_EQ(lineOf(run.figure("7B-Fig-log Cumu stage death"), 3), "1,1.5,.8,.5, 2.5 ");
}

TEST_F(DeathFiles, TotalsAreInThePrintFormFromDayOne) {
  m.SimTime = 3; // day 3 has no change at all
  writeAll();
  EXPECT_EQ(run.figure("6A-Fig-Total death"), "\"Total death curves\"\r\n"
                                              "\"Time\",\"Total death\",\"log(Total death+1)\"\r\n"
                                              " 1 , 9 , 1 \r\n"
                                              " 2 , 99 , 2 \r\n"
                                              " 3 , 0 , 0 \r\n");
  // A decrease gives the negative of the log of an equal increase.
  EXPECT_EQ(run.figure("8-Fig-Total difference"), "\"Total death curves\"\r\n"
                                                  "\"Time\",\"Total difference\",\"log(difference+1)\"\r\n"
                                                  " 1 , 9 , 1 \r\n"
                                                  " 2 ,-99 ,-2 \r\n"
                                                  " 3 , 0 , 0 \r\n");
}

TEST_F(DeathFiles, TimesAreScaledButNeverShifted) {
  m.TimeUnit = .5;
  m.ReleaseDate = 2;
  writeAll();
  EXPECT_EQ(lineOf(run.figure("5A-Fig-Stage death"), 3), ".5,32,6.5,2.5,9");
  EXPECT_EQ(lineOf(run.figure("5B-Fig-log Stage death"), 2), ".5,1.5,.8,.5,2.30258509299405");
  EXPECT_EQ(lineOf(run.figure("6A-Fig-Total death"), 2), " .5 , 9 , 1 ");
  EXPECT_EQ(lineOf(run.figure("8-Fig-Total difference"), 3), " 1 ,-99 ,-2 ");
}

TEST_F(DeathFiles, ASingleDayLeavesTheFilesFromDayOneWithTheirHeadingsOnly) {
  m.SimTime = 0;
  writeAll();
  for (const char* suffix : {"6A-Fig-Total death", "8-Fig-Total difference", "5B-Fig-log Stage death"})
    EXPECT_EQ(lineCount(run.figure(suffix)), 2) << suffix;
  for (const char* suffix : {"5A-Fig-Stage death", "7A-Fig-Cumu stage death", "7B-Fig-log Cumu stage death"})
    EXPECT_EQ(lineCount(run.figure(suffix)), 3) << suffix;
}

TEST_F(DeathFiles, TheFlowRecordNamesTheTotalDeathRoutineForTheDifferences) {
  run.recordFlow();
  writeAll();
  EXPECT_EQ(run.flow(), "In Public Sub PrintStageDeath\r\n"
                        "In Public Sub SaveGraphDataGosub1650OpenFile\r\n"
                        "In Public Sub PrintTotalDeath\r\n"
                        "In Public Sub PrintLogStageDeath\r\n"
                        "In Public Sub PrintCumuStageDeath\r\n"
                        "In Public Sub PrintLogCumuStageDeath\r\n"
                        "In Public Sub PrintTotalDeath\r\n");
}

TEST_F(DeathFiles, NothingForTotalFiguresOnly) {
  run.session.flags.OnlyTotalFigures = "Yes";
  run.recordFlow();
  writeAll();
  EXPECT_TRUE(run.files().empty());
  EXPECT_EQ(run.flow(), "");
}

} // namespace
} // namespace vorlex::testing
