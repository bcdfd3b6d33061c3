#include "reports/DeathFiles.h"
#include "reports/FigureFiles.h"

#include "support/FigureRun.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

// Ages 0 and 1 of three stages with a few rates set by hand.
class MatrixFiles : public ::testing::Test {
protected:
  FigureRun run;
  Model& m = run.m;

  void SetUp() override {
    run.threeStages(1);
    m.LastAge = 1;
    m.DeathRate(0, 1) = .1;
    m.DeathRate(1, 1) = .5;
    m.DeathRate(1, 2) = .2;
    m.DeathRate(1, 3) = 1;
    m.Consumption(0, 1) = 2;
    m.Consumption(1, 3) = .25;
  }
  std::string deathRates() { return fileText(run.base + "-11-Fig-Death rate Dxj.txt"); }
  std::string consumption() { return fileText(run.base + "-8-Fig_Cxj.txt"); }
};

// The heading ends with a comma, the rows have one column fewer than it
// suggests and a blank at the end, and the end line one more.
TEST_F(MatrixFiles, DeathRatesOfEveryAgeAndTheClosingRowOfZeros) {
  PrintDeathRatexj(run.session);
  EXPECT_EQ(deathRates(), "\"Death rate matrix (Death)\"\r\n"
                          "Age,Eggs,Fema,Male,\r\n"
                          "0, .1 , 0 , 0  \r\n"
                          "1, .5 , .2 , 1  \r\n"
                          "2, 0, 0, 0, 0\r\n");
  EXPECT_FALSE(run.session.files.isOpen(kWorkFile));
}

TEST_F(MatrixFiles, ConsumptionRatesOnlyWithConsumptionData) {
  for (const char* withCxj : {"No", "", "yes"}) {
    run.session.flags.WithCxj = withCxj;
    run.session.files.close(kFlowFile);
    run.recordFlow();
    PrintCxj(run.session);
    EXPECT_TRUE(run.files().empty()) << withCxj;
    EXPECT_EQ(run.flow(), "") << withCxj;
  }
  run.session.flags.WithCxj = "Yes";
  PrintCxj(run.session);
  EXPECT_EQ(consumption(), "\"Predation rate matrix (C)\"\r\n"
                           "Age,Eggs,Fema,Male,\r\n"
                           "0, 2 , 0 , 0  \r\n"
                           "1, 0 , 0 , .25  \r\n"
                           "2, 0, 0, 0, 0\r\n");
}

TEST_F(MatrixFiles, AgesAreScaledByTheTimeUnitButTheEndLineCountsSteps) {
  m.TimeUnit = .5;
  PrintDeathRatexj(run.session);
  EXPECT_EQ(lineOf(deathRates(), 3), ".5, .5 , .2 , 1  ");
  EXPECT_EQ(lineOf(deathRates(), 4), "2, 0, 0, 0, 0");
}

TEST_F(MatrixFiles, AHundredAgesEndWithAgeOneHundred) {
  m.LastAge = 99;
  m.DeathRate(99, 2) = .75;
  PrintDeathRatexj(run.session);
  const std::string text = deathRates();
  EXPECT_EQ(lineCount(text), 103);
  EXPECT_EQ(lineOf(text, 101), "99, 0 , .75 , 0  ");
  EXPECT_EQ(lineOf(text, 102), "100, 0, 0, 0, 0");
}

TEST_F(MatrixFiles, TwelveStagesStopAtTheHeadingWithTheLineSoFarInTheFile) {
  m.NrStage = 12;
  for (int j = 1; j <= 12; ++j)
    m.StageName(j) = std::string(1, 'S').append(std::to_string(j));
  EXPECT_EQ(errorOf([&] { PrintDeathRatexj(run.session); }).code(), ErrorCode::SubscriptOutOfRange);
  run.session.files.close(kWorkFile);
  EXPECT_EQ(deathRates(), "\"Death rate matrix (Death)\"\r\nAge,S1,S2,S3,S4,S5,S6,S7,S8,S9,S10,S11,S12,");
}

TEST_F(MatrixFiles, FlowRecordOfTheOpenHeadingAndEndSteps) {
  run.session.flags.WithCxj = "Yes";
  run.recordFlow();
  PrintCxj(run.session);
  PrintDeathRatexj(run.session);
  const std::string steps = "In Public Sub Life04Gosub3610 -------- Open output data file #1\r\n"
                            "In Public Sub Life04Gosub3750 ---------- Write stage names ----------\r\n"
                            "In Public Sub Life04Gosub3650 -------- Write end data of figure files\r\n";
  EXPECT_EQ(run.flow(), "In Public Sub PrintCxj\r\n" + steps + "In Public Sub PrintDeathRatexj\r\n" + steps);
}

TEST_F(MatrixFiles, TheStepsWorkOnAnyEndingTheCallerSets) {
  m.FigureFileEnd = "-own ending.csv";
  Life04Gosub3610(run.session);
  Life04Gosub3750(run.session);
  Life04Gosub3650(run.session);
  run.session.files.close(kWorkFile);
  EXPECT_EQ(fileText(run.base + "-own ending.csv"), "Age,Eggs,Fema,Male,\r\n2, 0, 0, 0, 0\r\n");
}

} // namespace
} // namespace vorlex::testing
