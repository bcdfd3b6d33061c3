#include "reports/CharacterPlots.h"
#include "reports/ReportFixture.h"

namespace vorlex::testing {
namespace {

std::string blanks(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

const std::string kFrame = "+----+----+----+----+----+----+----+----+----+----+----+";
const std::string kLogDigits = "      0         1         2         3         4         5";
const std::string kLogValues = "      1        10        100      1000      10000     100000";

// Columns of a plot row: the frame starts at column 7, so a mark at
// PlotPos p stands at column p + 7 of the line; day numbers end at 3.
// Positions by hand, 10 log10(v + 1) rounded:
//   day 0: eggs 100 -> 20, female 5 -> 8, male 0 -> 0
//   day 1: eggs 70 -> 19, female 22.5 -> 14, male 20 -> 13
//   day 2: eggs 15 -> 12, female 25 -> 14, male 31 -> 15
TEST_F(Tiny3Report, StageCurvesMarkEachStageByItsFirstLetter) {
  start();
  project();
  VorlexEPrintResults(session);
  expectLines(pagesOf(report()).at(1), {
                                           " Project: Tiny three-stage table",
                                           " ",
                                           " Fig. 1 . Curves of the size for each stage",
                                           " ",
                                           blanks(24) + "Population size [log(N(t)+1)]",
                                           kLogDigits,
                                           "      M----+--F-+----+----E----+----+----+----+----+----+----+",
                                           "  1   +" + blanks(12) + "MF" + blanks(4) + "E" + blanks(35) + "+",
                                           "  2   +" + blanks(11) + "E F" + "M" + blanks(39) + "+",
                                           "      " + kFrame,
                                           kLogValues,
                                           blanks(24) + "Population size [N(t)+1]",
                                       });
}

// Total T and weighed size *: day 0 105 -> 20 and 5 -> 8, day 1 112.5 -> 21
// and 32.5 -> 15, day 2 71 -> 19 and 40.5 -> 16. The closing row reads
// DailyWID(Day); the projection leaves Day at 4, a day it never filled.
TEST_F(Tiny3Report, TotalCurvesCloseWithTheWeighedSizeOfTheDayLeftInDay) {
  start();
  project();
  ASSERT_EQ(m.Day, 4);
  VorlexEPrintResults(session);
  expectLines(pagesOf(report()).at(2), {
                                           " Project: Tiny three-stage table",
                                           " ",
                                           " Fig. 2 . Curves for the total population size",
                                           " ",
                                           blanks(24) + "Population size [log(N(t)+1)]",
                                           kLogDigits,
                                           "      +----+--*-+----+----T----+----+----+----+----+----+----+",
                                           "  1   +" + blanks(14) + "*" + blanks(5) + "T" + blanks(33) + "+",
                                           "  2   +" + blanks(15) + "*" + blanks(2) + "T" + blanks(35) + "+",
                                           "      C----+----+----+----+----+----+----+----+----+----+----+",
                                           kLogValues,
                                           blanks(24) + "Population size [N(t)+1]",
                                           blanks(24) + "CUMWID= 0",
                                       });
}

TEST_F(Tiny3Report, TotalCurvesShowACountWhereTotalAndWeighedSizeMeet) {
  start();
  project();
  m.WeighedSize(2) = 70; // 70 -> 19, where the total of day 2 stands
  m.Day = 5;
  m.DailyWID(5) = 70; // the closing row starts from fresh counts
  VorlexEGosub2010PrintLogTotal(session);
  const auto lines = linesOf(pagesOf(report()).at(1));
  EXPECT_EQ(lines.at(8), "  2   +" + blanks(18) + "2" + blanks(35) + "+");
  EXPECT_EQ(lines.at(9), "      +----+----+----+---C+----+----+----+----+----+----+----+");
  EXPECT_EQ(lines.at(12), blanks(24) + "CUMWID= 70");
}

// 25 columns a unit of rate, rate 0 at column 16 of the frame. Day 0: eggs
// and females .2 -> 20 (meet), males 2 -> 65 (beyond), total -.8 -> -5
// (below: listed only). Day 1: eggs -1 and females -.64 below the frame
// (listed and marked at column 1), males 0 -> 15, total .02 -> .5 -> 0
// (ties to even) -> 15.
TEST_F(Tiny3Report, GrowthRatesListMarksBelowTheFrameAndCountDaysInDay) {
  m.SimTime = 1;
  m.StageGrowthLn(1, 0) = .2;
  m.StageGrowthLn(2, 0) = .2;
  m.StageGrowthLn(3, 0) = 2;
  m.StageSumGrowthLn(0) = -.8;
  m.StageGrowthLn(1, 1) = -1;
  m.StageGrowthLn(2, 1) = -.64;
  m.StageGrowthLn(3, 1) = 0;
  m.StageSumGrowthLn(1) = .02;
  VorlexEGosub820PringGrowthRate(session);
  const std::string rates = "     -.6  -.4  -.2   0    .2   .4   .6   .8   1   1.2  1.4  1.6";
  const std::string label = blanks(19) + "Growth rate  ln[(N(t)+1)/(N(t-1)+1)]";
  expectLines(pagesOf(report()).at(1),
              {
                  " Project: Tiny three-stage table",
                  " ",
                  " Fig. 1 . Curves of the growth rate of each stage. (NP=not present at T-1)",
                  " ",
                  label,
                  rates,
                  "      " + kFrame,
                  "  0   +" + blanks(19) + "2" + blanks(32) + "M>+T, out of range",
                  "  1   2" + blanks(14) + "2" + blanks(39) + "+E,F, out of range",
                  "      " + kFrame,
                  rates,
                  label,
              });
  EXPECT_EQ(m.Day, 2);
}

// Weakness of each factor, 10 log10(v + 1): parasitoids 5, 42.5, 56 -> 8,
// 16, 18; rainfall 2.5, 21.25, 28 -> 5, 13, 15.
TEST_F(Tiny3Report, WeaknessCurvesNameTheFactorsAndMarkThem) {
  start();
  project();
  VorlexEPrintResults(session);
  expectLines(pagesOf(report()).at(4), {
                                           " Project: Tiny three-stage table",
                                           " ",
                                           " Fig. 4 . Weakness curves for each factor at time T.",
                                           blanks(10) + "(P-Parasitoid or predator, R-Rainfall)",
                                           " ",
                                           blanks(25) + "log(Weakness+1)",
                                           kLogDigits,
                                           "      +----R--P-+----+----+----+----+----+----+----+----+----+",
                                           "  1   +" + blanks(12) + "R" + blanks(2) + "P" + blanks(38) + "+",
                                           "  2   +" + blanks(14) + "R" + blanks(2) + "P" + blanks(36) + "+",
                                           "      " + kFrame,
                                           kLogDigits,
                                           blanks(25) + "log(Weakness+1)",
                                       });
}

TEST_F(Tiny3Report, WeaknessCurvesWithoutFactorsHaveAnEmptyListAndEmptyRows) {
  m.NrWeakFactor = 0;
  VorlexEGosub1530PrintWeakCurves(session);
  const auto lines = linesOf(pagesOf(report()).at(1));
  EXPECT_EQ(lines.at(3), blanks(10) + "()");
  EXPECT_EQ(lines.at(7), "      " + kFrame);
  EXPECT_EQ(lines.at(8), "  1   +" + blanks(54) + "+");
  EXPECT_EQ(lines.at(9), "  2   +" + blanks(54) + "+");
}

TEST_F(Tiny3Report, FigureNumbersGoOnFromOneRunToTheNext) {
  start();
  project();
  session.flags.FlowFlag = "Yes";
  session.files.attachOutput(kFlowFile, OutputFile::inMemory());
  VorlexEPrintResults(session);
  VorlexEPrintResults(session);
  const auto pages = pagesOf(report());
  ASSERT_EQ(pages.size(), 9u);
  EXPECT_EQ(linesOf(pages[4]).at(2), " Fig. 4 . Weakness curves for each factor at time T.");
  EXPECT_EQ(linesOf(pages[5]).at(2), " Fig. 5 . Curves of the size for each stage");
  EXPECT_EQ(linesOf(pages[8]).at(2), " Fig. 8 . Weakness curves for each factor at time T.");
  EXPECT_EQ(m.FigNumber, 8);
  expectLines(session.files.output(kFlowFile).text(),
              {"In Public Sub VorlexEPrintResults", "In Public Sub VorlexEPrintResults"});
}

} // namespace
} // namespace vorlex::testing
