#include "reports/FigureFiles.h"

#include "support/FigureRun.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

// Two days worked by hand:
//   day 0: total 108 (eggs 99, females 9), weighed 9, ET 0, CUMWID 9,
//          consumption 0, cost 0, harvest 0, burst-ready 0
//   day 1: total 9 (females 4.5, males 4.5), weighed 99, ET 9, CUMWID 108,
//          consumption 9, cost 2.5, harvest -3, burst-ready 2.5
// Under physogastry the total is total - adults + burst-ready: 99 and 2.5.
// log10(v + 1): 108 -> 2.03742649794062, 99 -> 2, 9 -> 1.
class TotalFigureFiles : public ::testing::Test {
protected:
  FigureRun run;
  Model& m = run.m;

  void SetUp() override {
    run.threeStages(1);
    m.FiniteRate = 10;
    m.StageSize(1, 0) = 99;
    m.StageSize(2, 0) = 9;
    m.StageSize(2, 1) = 4.5;
    m.StageSize(3, 1) = 4.5;
    m.TotalSize(0) = 108;
    m.TotalSize(1) = 9;
    m.WeighedSize(0) = 9;
    m.WeighedSize(1) = 99;
    m.EtDay(1) = 9;
    m.CUMWID(0) = 9;
    m.CUMWID(1) = 108;
    m.TotalConsumption(1) = 9;
    m.TotalCost(1) = 2.5;
    m.TotalHarvest(1) = -3;
    m.BurstReadySize(1) = 2.5;
  }
  void save() { SaveGraphicData(run.session); }
};

TEST_F(TotalFigureFiles, TotalsPlusOneAndLogWithUnquotedHeadings) {
  save();
  EXPECT_EQ(run.figure("2A-Fig-Total size"),
            "\"Total population size and weighed size\"\r\n"
            "Time, Total population size, Weighed size, ET or AT, Cumu. weighed insect days\r\n"
            "0,108,9,0,9\r\n"
            "1,9,99,9,108\r\n");
  EXPECT_EQ(run.figure("2C-Fig-Total size plus 1"),
            "\"Total population size+1 and weighed size+1\"\r\n"
            "Time, Total population size+1, Weighed size+1, ET+1 or AT+1, Cumu. weighed insect days+1\r\n"
            "0,109,10,1,10\r\n"
            "1,10,100,10,109\r\n");
  EXPECT_EQ(
      run.figure("2B-Fig-log Total size"),
      "\"Total population size and weighed size (in log)\"\r\n"
      "Time, log(Total population size+1), log(Weighed size+1), log(ET+1) or log(AT+1), log(Cumu. weighed "
      "insect days+1)\r\n"
      "0,2.03742649794062,1,0,1\r\n"
      "1,1,2,1,2.03742649794062\r\n");
}

TEST_F(TotalFigureFiles, PhysogastryCountsTheImmatureAndTheBurstReady) {
  run.session.flags.Physogastry = "Yes";
  save();
  EXPECT_EQ(run.figure("2A-Fig-Total size"),
            "\"Total population size and weighed size\"\r\n"
            "Time, Total size (SP+burst-ready), Weigted size, ET or AT, Cumu. weighed insect days\r\n"
            "0,99,9,0,9\r\n"
            "1,2.5,99,9,108\r\n");
  const std::string plusOne = run.figure("2C-Fig-Total size plus 1");
  EXPECT_EQ(lineOf(plusOne, 1),
            "Time, Total size+1 (SP+burst-ready), Weigted size+1, ET+1 or AT+1, Cumu. weighed insect days+1");
  EXPECT_EQ(lineOf(plusOne, 3), "1,3.5,100,10,109");
  const std::string log = run.figure("2B-Fig-log Total size");
  EXPECT_EQ(lineOf(log, 1), "Time, log(Total size (SP+burst-ready+1)), log(Weighed size+1), log(ET+1) or "
                            "log(AT+1), log(Cumu. weighed insect days+1)");
  EXPECT_EQ(lineOf(log, 2), "0,2,1,0,1");
}

TEST_F(TotalFigureFiles, APredationCoefficientShowsInTheTitleOfTwoFiles) {
  m.PredationCoef = .5;
  save();
  const std::string title = "\"Total population size and weighed size. Predation coef =.5\"";
  EXPECT_EQ(lineOf(run.figure("2A-Fig-Total size"), 0), title);
  EXPECT_EQ(lineOf(run.figure("2C-Fig-Total size plus 1"), 0), title);
  EXPECT_EQ(lineOf(run.figure("2B-Fig-log Total size"), 0),
            "\"Total population size and weighed size (in log)\"");
}

TEST_F(TotalFigureFiles, TotalsAreNeverShiftedByTheReleaseDate) {
  m.ReleaseDate = 2;
  save();
  EXPECT_EQ(lineOf(run.figure("2A-Fig-Total size"), 2), "0,108,9,0,9");
  EXPECT_EQ(lineOf(run.figure("2B-Fig-log Total size"), 3), "1,1,2,1,2.03742649794062");
}

TEST_F(TotalFigureFiles, ANegativeThresholdLosesItsSignAndBelowMinusOneStopsTheLogFile) {
  m.EtDay(1) = -.5;
  save();
  EXPECT_EQ(lineOf(run.figure("2A-Fig-Total size"), 3), "1,9,99,.5,108");
  EXPECT_EQ(lineOf(run.figure("2B-Fig-log Total size"), 3), "1,1,2,.301029995663981,2.03742649794062");
  m.EtDay(1) = -2;
  EXPECT_EQ(errorOf([&] { save(); }).code(), ErrorCode::InvalidProcedureCall);
}

TEST_F(TotalFigureFiles, CostAndHarvestAreAWriteLineBehindTheTime) {
  run.session.flags.WithCxj = "Yes";
  save();
  EXPECT_EQ(run.figure("14-Fig-Cost and harvest"), "\"Total cost and harvest number\"\r\n"
                                                   "Time, total cost, total harvest\r\n"
                                                   "0,0,0\r\n"
                                                   "1,2.5,-3\r\n");
}

TEST_F(TotalFigureFiles, ConsumptionFilesQuoteBothHeadingLines) {
  run.session.flags.WithCxj = "Yes";
  save();
  EXPECT_EQ(run.figure("9-Fig-Total consumption"), "\"Total consumption\"\r\n"
                                                   "\"Time, Total consumption, log(total consumption+1)\"\r\n"
                                                   "0,0,0\r\n"
                                                   "1,9,1\r\n");
  EXPECT_EQ(run.figure("9a-Fig-Total consump. and population"),
            "\"Total consumption and total population\"\r\n"
            "\"Time, Total consump, log(total consump+1), total popu, log(total popu+1)\"\r\n"
            "0,0,0,108,2.03742649794062\r\n"
            "1,9,1,9,1\r\n");
  EXPECT_EQ(run.figure("9c-Fig-Total consump. and popu plus 1"),
            "\"Total consumption +1 and total population +1\"\r\n"
            "\"Time, Total consump+1, log(total consump+1), total popu+1, log(total popu+1)\"\r\n"
            "0,1,0,109,2.03742649794062\r\n"
            "1,10,1,10,1\r\n");
}

TEST_F(TotalFigureFiles, ConsumptionUnderPhysogastryKeepsItsOddLayout) {
  run.session.flags.WithCxj = "Yes";
  run.session.flags.Physogastry = "Yes";
  save();
  EXPECT_EQ(run.figure("9-Fig-Total consumption"),
            "\"Total consumption\"\r\n"
            "\"Time, Total size (SP+burst-ready), Weighed size, ET or AT, Cumu. weighed insect days\"\r\n"
            "0,99,0\r\n"
            "1,2.5,1\r\n");
  // No heading, and the times run together on one open line.
  EXPECT_EQ(run.figure("9a-Fig-Total consump. and population"),
            "\"Total consumption and total population\"\r\n0,1,");
  EXPECT_EQ(run.figure("9c-Fig-Total consump. and popu plus 1"),
            "\"Total consumption +1 and total population +1\"\r\n0,1,");
}

} // namespace
} // namespace vorlex::testing
