#include "reports/FigureFiles.h"

#include "support/FigureRun.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

// Two days of three stages, worked by hand:
//   day 0: eggs 99, females 9, males 0, total 108, burst-ready 0
//   day 1: eggs 0, females 4.5, males 4.5, total 9, burst-ready 2.5
// log10(v + 1): 99 -> 2, 9 -> 1, 4.5 -> .740362689494244,
// 2.5 -> .544068044350276, 1.5 -> .397940008672038.
class StageFigureFiles : public ::testing::Test {
protected:
  FigureRun run;
  Model& m = run.m;

  void SetUp() override {
    run.threeStages(1);
    m.FiniteRate = 10;
    const double sizes[2][3] = {{99, 9, 0}, {0, 4.5, 4.5}};
    for (int t = 0; t <= 1; ++t)
      for (int j = 1; j <= 3; ++j)
        m.StageSize(j, t) = sizes[t][j - 1];
    m.TotalSize(0) = 108;
    m.TotalSize(1) = 9;
    m.BurstReadySize(1) = 2.5;
    m.NrWeakFactor = 2;
    m.WeakSize(1, 0) = 9;
    m.WeakSize(1, 1) = 99;
    m.WeakSize(2, 1) = 1.5;
  }
  std::string save(const std::string& suffix) {
    SaveGraphicData(run.session);
    return run.figure(suffix);
  }
};

constexpr const char* kTitle = "\"Stage structure curves (Nt)\"\r\n";
constexpr const char* kLogTitle = "\"Stage structure curves log(Nt+1) (base 10)\"\r\n";

TEST_F(StageFigureFiles, SizesPlusOneAndLogOfEachStageWithTheAdults) {
  SaveGraphicData(run.session);
  EXPECT_EQ(run.figure("1A-Fig-Stage size"), std::string(kTitle) + "Time,Eggs,Fema,Male,Total adults\r\n"
                                                                   "0,99,9,0,9\r\n"
                                                                   "1,0,4.5,4.5,9\r\n");
  EXPECT_EQ(run.figure("1C-Fig-Stage size plus 1"),
            std::string(kTitle) + "Time,Eggs,Fema,Male,Total adults,Total popu. size\r\n"
                                  "0,100,10,1,10,109\r\n"
                                  "1,1,5.5,5.5,10,10\r\n");
  EXPECT_EQ(run.figure("1B-Fig-log Stage size"), std::string(kLogTitle) +
                                                     "Time,Eggs,Fema,Male,Total adults\r\n"
                                                     "0,2,1,0,1\r\n"
                                                     "1,0,.740362689494244,.740362689494244,1\r\n");
}

TEST_F(StageFigureFiles, BareColumnsLoseTheSign) {
  m.StageSize(1, 0) = -.5;
  EXPECT_EQ(lineOf(save("1A-Fig-Stage size"), 2), "0,.5,9,0,9");
}

TEST_F(StageFigureFiles, PhysogastryPutsTheBurstReadyInTheLastColumn) {
  run.session.flags.Physogastry = "Yes";
  SaveGraphicData(run.session);
  const std::string heading = "Time,Eggs,Fema,Male,Burst-ready\r\n";
  EXPECT_EQ(run.figure("1A-Fig-Stage size"), kTitle + heading + "0,99,9,0, 0 \r\n1,0,4.5,4.5, 2.5 \r\n");
  EXPECT_EQ(run.figure("1C-Fig-Stage size plus 1"),
            kTitle + heading + "0,100,10,1, 0 \r\n1,1,5.5,5.5, 2.5 \r\n");
  EXPECT_EQ(run.figure("1B-Fig-log Stage size"),
            kLogTitle + heading + "0,2,1,0,0\r\n1,0,.740362689494244,.740362689494244,.544068044350276\r\n");
}

TEST_F(StageFigureFiles, AReleaseDateShiftsTheRowsBehindEmptyOnes) {
  m.ReleaseDate = 2;
  SaveGraphicData(run.session);
  const std::string heading = "Time,Eggs,Fema,Male,Total adults\r\n";
  EXPECT_EQ(run.figure("1A-Fig-Stage size"),
            kTitle + heading + "0, 0 , 0 , 0 , 0 \r\n1, 0 , 0 , 0 , 0 \r\n2,99,9,0,9\r\n3,0,4.5,4.5,9\r\n");
  EXPECT_EQ(run.figure("1B-Fig-log Stage size"),
            kLogTitle + heading +
                "0, 0 , 0 , 0 , 0 \r\n1, 0 , 0 , 0 , 0 "
                "\r\n2,2,1,0,1\r\n3,0,.740362689494244,.740362689494244,1\r\n");
  // Kept: the empty rows of the plus-one file end with " 1 ", and its shifted
  // rows have no total column although the heading names it.
  EXPECT_EQ(run.figure("1C-Fig-Stage size plus 1"), kTitle +
                                                        std::string("Time,Eggs,Fema,Male,Total adults,Total "
                                                                    "popu. size\r\n") +
                                                        "0, 0 , 0 , 0 , 1 \r\n1, 0 , 0 , 0 , 1 \r\n"
                                                        "2,100,10,1,10\r\n3,1,5.5,5.5,10\r\n");
}

TEST_F(StageFigureFiles, ShiftedPlusOneRowsUnderPhysogastryAddOneToTheBurstReady) {
  m.ReleaseDate = 2;
  run.session.flags.Physogastry = "Yes";
  SaveGraphicData(run.session);
  const std::string heading = "Time,Eggs,Fema,Male,Burst-ready\r\n";
  EXPECT_EQ(run.figure("1C-Fig-Stage size plus 1"),
            kTitle + heading +
                "0, 0 , 0 , 0 , 1 \r\n1, 0 , 0 , 0 , 1 \r\n2,100,10,1, 1 \r\n3,1,5.5,5.5, 3.5 \r\n");
  EXPECT_EQ(lineOf(run.figure("1A-Fig-Stage size"), 5), "3,0,4.5,4.5, 2.5 ");
}

TEST_F(StageFigureFiles, ShiftedTimesAreStepsTimesTheTimeUnit) {
  m.ReleaseDate = 2;
  m.TimeUnit = .5;
  const std::string text = save("1A-Fig-Stage size");
  EXPECT_EQ(lineOf(text, 3), ".5, 0 , 0 , 0 , 0 ");
  EXPECT_EQ(lineOf(text, 4), "1,99,9,0,9");
  EXPECT_EQ(lineOf(text, 5), "1.5,0,4.5,4.5,9");
}

constexpr const char* kVulnerableTitle = "\"vulnerable curves (vulnerable size )\"\r\n";
constexpr const char* kLogVulnerableTitle = "\"Vulnerability curves log(vulnerable size + 1)\"\r\n";
constexpr const char* kTwoFactors = "Time,Weakpoint(1),Weakpoint(2)\r\n";

TEST_F(StageFigureFiles, VulnerableSizesEndEachRowWithABlank) {
  SaveGraphicData(run.session);
  EXPECT_EQ(run.figure("4A-Fig-Vulnerable size"),
            std::string(kVulnerableTitle) + kTwoFactors + "0,9,0 \r\n1,99,1.5 \r\n");
  EXPECT_EQ(run.figure("4B-Fig-log Vulnerable size"),
            std::string(kLogVulnerableTitle) + kTwoFactors + "0,1,0 \r\n1,2,.397940008672038 \r\n");
}

TEST_F(StageFigureFiles, VulnerableHeadingNamesOneFactorAtLeast) {
  for (auto [factors, heading, row] :
       {std::tuple{0, "Time,Weakpoint(1)", "0, "}, std::tuple{1, "Time,Weakpoint(1)", "0,9 "},
        std::tuple{3, "Time,Weakpoint(1),Weakpoint(2),Weakpoint(3)", "0,9,0,0 "}}) {
    m.NrWeakFactor = static_cast<i16>(factors);
    const std::string text = save("4A-Fig-Vulnerable size");
    EXPECT_EQ(lineOf(text, 1), heading) << factors;
    EXPECT_EQ(lineOf(text, 2), row) << factors;
  }
}

TEST_F(StageFigureFiles, AfterAReleaseTheVulnerableFilesDisagreeOnPurpose) {
  m.ReleaseDate = 3;
  SaveGraphicData(run.session);
  // True values of days 0..2 with the plain time, then the shifted rows.
  EXPECT_EQ(run.figure("4A-Fig-Vulnerable size"),
            std::string(kVulnerableTitle) + kTwoFactors +
                "0,9,0 \r\n1,99,1.5 \r\n2,0,0 \r\n3,9,0 \r\n4,99,1.5 \r\n");
  // Zeros only: three rows with the plain time and three with the shifted,
  // each " 0 " and the blank that ends every row.
  EXPECT_EQ(run.figure("4B-Fig-log Vulnerable size"),
            std::string(kLogVulnerableTitle) + kTwoFactors +
                "0, 0 , 0  \r\n1, 0 , 0  \r\n2, 0 , 0  \r\n3, 0 , 0  \r\n4, 0 , 0  \r\n5, 0 , 0  \r\n");
}

TEST_F(StageFigureFiles, AStageCountOfTwelveReachesTheLastStageSlot) {
  run.threeStages(0);
  m.NrStage = 12;
  m.StageSize(12, 0) = 3;
  m.StageSize(11, 0) = 4;
  EXPECT_EQ(lineOf(save("1A-Fig-Stage size"), 2), "0,99,9,0,0,0,0,0,0,0,0,4,3,7");
}

} // namespace
} // namespace vorlex::testing
