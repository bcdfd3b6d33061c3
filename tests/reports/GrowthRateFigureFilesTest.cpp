#include "reports/FigureFiles.h"

#include "support/FigureRun.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

constexpr const char* kLnTitle =
    "\"Stage growth rate and total growth rate ln[n(t+1)+1]-ln[n(t)+1]. Note well! "
    "There are  0 growth rate.\"\r\n";
constexpr const char* kLogTitle = "\"Stage growth rate and total growth rate log[n(t+1)+1]-log[n(t)+1]. Note "
                                  "well! There are  0 growth rate.\"\r\n";

// Rates of two days set by hand, with tiny ones on both sides of 1E-05.
class GrowthRateFigureFiles : public ::testing::Test {
protected:
  FigureRun run;
  Model& m = run.m;

  void SetUp() override {
    run.threeStages(1);
    m.IntrinsicRate = .1;
    m.FiniteRate = 10; // log10 of it is 1
    const double ln[2][3] = {{-.5, .000001, .25}, {-.000009, 1E-05, 0}};
    const double log[2][3] = {{.5, -.25, 0}, {-1E-06, 2, -3}};
    for (int t = 0; t <= 1; ++t)
      for (int j = 1; j <= 3; ++j) {
        m.StageGrowthLn(j, t) = ln[t][j - 1];
        m.StageGrowthLog(j, t) = log[t][j - 1];
      }
    m.StageSumGrowthLn(0) = -.75;
    m.StageSumGrowthLn(1) = .125;
    m.StageSumGrowthLog(0) = -.5;
    m.StageSumGrowthLog(1) = .5;
  }
  void save() { SaveGraphicData(run.session); }
};

TEST_F(GrowthRateFigureFiles, StageRatesKeepTheirSignTheTotalRateLosesIt) {
  save();
  EXPECT_EQ(run.figure("3A-Fig-Growth rate in ln"),
            std::string(kLnTitle) + "Time,Eggs,Fema,Male,Total growth rate,Intrinsic rate\r\n"
                                    "0,-.5,0,.25,.75,.1\r\n"
                                    "1,0,1E-05,0,.125,.1\r\n");
  EXPECT_EQ(run.figure("3B-Fig-Growth rate in log"),
            std::string(kLogTitle) + "Time,Eggs,Fema,Male,Total growth rate,Finite rate,log(lambda)\r\n"
                                     "0,.5,-.25,0,.5,10,1\r\n"
                                     "1,0,2,-3,.5,10,1\r\n");
}

TEST_F(GrowthRateFigureFiles, TinyStageRatesStayZeroInTheModel) {
  save();
  EXPECT_EQ(m.StageGrowthLn(2, 0), 0);
  EXPECT_EQ(m.StageGrowthLn(1, 1), 0);
  EXPECT_EQ(m.StageGrowthLog(1, 1), 0);
  EXPECT_EQ(m.StageGrowthLn(2, 1), 1E-05); // not below the limit
  EXPECT_EQ(m.StageGrowthLn(1, 0), -.5);
}

TEST_F(GrowthRateFigureFiles, PhysogastryAddsTheBurstReadyRateWithItsSignAndUntouched) {
  run.session.flags.Physogastry = "Yes";
  m.BurstReadyGrowthLn(0) = -.2;
  m.BurstReadyGrowthLn(1) = 1E-06;
  m.BurstReadyGrowthLog(1) = -.3;
  save();
  EXPECT_EQ(run.figure("3A-Fig-Growth rate in ln"),
            std::string(kLnTitle) + "Time,Eggs,Fema,Male,Burst-ready,Total growth rate,Intrinsic rate\r\n"
                                    "0,-.5,0,.25,-.2,.75,.1\r\n"
                                    "1,0,1E-05,0,1E-06,.125,.1\r\n");
  EXPECT_EQ(m.BurstReadyGrowthLn(1), 1E-06);
  const std::string log = run.figure("3B-Fig-Growth rate in log");
  EXPECT_EQ(lineOf(log, 1), "Time,Eggs,Fema,Male,Burst-ready,Total growth rate,Finite rate,log(lambda)");
  EXPECT_EQ(lineOf(log, 3), "1,0,2,-3,-.3,.5,10,1");
}

TEST_F(GrowthRateFigureFiles, HalfATimeUnitAddsTheRatePerHalfUnit) {
  m.TimeUnit = .5;
  save();
  EXPECT_EQ(run.figure("3A-Fig-Growth rate in ln"),
            std::string(kLnTitle) +
                "Time,Eggs,Fema,Male,Total growth rate,Intrinsic rate,Intrinsic rate per 0.5 time unit\r\n"
                "0,-.5,0,.25,.75,.1,.05\r\n"
                ".5,0,1E-05,0,.125,.1,.05\r\n");
  EXPECT_EQ(lineOf(run.figure("3B-Fig-Growth rate in log"), 3), ".5,0,2,-3,.5,10,1");
}

TEST_F(GrowthRateFigureFiles, OnlyExactlyHalfAUnitAddsTheColumn) {
  for (double unit : {.25, .5000000000000001}) {
    m.TimeUnit = unit;
    save();
    const std::string ln = run.figure("3A-Fig-Growth rate in ln");
    EXPECT_EQ(lineOf(ln, 1), "Time,Eggs,Fema,Male,Total growth rate,Intrinsic rate") << unit;
    EXPECT_EQ(lineOf(ln, 2), "0,-.5,0,.25,.75,.1") << unit;
  }
}

TEST_F(GrowthRateFigureFiles, ALambdaBelowOneLosesTheSignOfItsLog) {
  m.FiniteRate = .1;
  save();
  EXPECT_EQ(lineOf(run.figure("3B-Fig-Growth rate in log"), 2), "0,.5,-.25,0,.5,.1,1");
}

TEST_F(GrowthRateFigureFiles, ASingleDayHasMinusOneGrowthRate) {
  m.SimTime = 0;
  save();
  const std::string ln = run.figure("3A-Fig-Growth rate in ln");
  EXPECT_EQ(lineOf(ln, 0),
            "\"Stage growth rate and total growth rate ln[n(t+1)+1]-ln[n(t)+1]. Note well! There are "
            "-1 growth rate.\"");
  EXPECT_EQ(lineCount(ln), 3);
  EXPECT_EQ(
      lineOf(run.figure("3B-Fig-Growth rate in log"), 0),
      "\"Stage growth rate and total growth rate log[n(t+1)+1]-log[n(t)+1]. Note well! There are -1 growth "
      "rate.\"");
}

} // namespace
} // namespace vorlex::testing
