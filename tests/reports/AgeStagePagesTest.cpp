#include "reports/AgeStagePages.h"
#include "reports/ReportFixture.h"

namespace vorlex::testing {
namespace {

std::string blanks(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

const std::string kRule = " " + std::string(31, '-'); // 9 x 3 stages + 4

// Columns of an age-stage page: the age ends at column 4, stage j starts
// at 9(j-1)+7 with the sign blank of its number, so the digits of the
// three stages start at columns 8, 17 and 26; " -  " puts its hyphen
// there too. Each row ends with one more blank.
TEST_F(Tiny3Report, FecundityAndGrowthPagesShowEachStageOnlyAtItsAges) {
  start();
  m.GrowthRate(1, 2) = .00025; // four places, ties to even: .0002
  m.GrowthRate(2, 2) = .123456;
  PrintAgeStagePages(session);
  const auto pages = pagesOf(report());
  ASSERT_EQ(pages.size(), 5u);
  expectLines(pages[1], {
                            " Age-Stage-Specific Fecundity ",
                            kRule,
                            " Age  Eggs     Fema     Male ",
                            kRule,
                            "   0   0" + blanks(8) + "-" + blanks(8) + "-   ",
                            "   1   0" + blanks(8) + "0" + blanks(8) + "0  ",
                            "   2   -" + blanks(8) + "4" + blanks(8) + "0  ",
                            "   3   -" + blanks(8) + "2" + blanks(8) + "0  ",
                            kRule,
                        });
  expectLines(pages[2], {
                            " Age-Stage-Specific Growth Coefficient ",
                            kRule,
                            " Age  Eggs     Fema     Male ",
                            kRule,
                            "   0   .5" + blanks(7) + "-" + blanks(8) + "-   ",
                            "   1   0" + blanks(8) + ".0002" + blanks(4) + ".6  ",
                            "   2   -" + blanks(8) + ".1235" + blanks(4) + ".5  ",
                            "   3   -" + blanks(8) + "0" + blanks(8) + "0  ",
                            kRule,
                        });
  expectLines(pages[4], {
                            " Initial age-stage-distribution ",
                            kRule,
                            " Age  Eggs     Fema     Male ",
                            kRule,
                            "   0   100" + blanks(6) + "-" + blanks(8) + "-   ",
                            "   1   0" + blanks(8) + "0" + blanks(8) + "0  ",
                            "   2   -" + blanks(8) + "5" + blanks(8) + "0  ",
                            "   3   -" + blanks(8) + "0" + blanks(8) + "0  ",
                            kRule,
                        });
}

// The eggs develop into females (d(x,1)) and males (d(x,2), kept in the
// female's column). The development page names those columns E->F and
// E->M, both over the egg ages 0-1, and leaves the male column empty.
TEST_F(Tiny3Report, DevelopmentPageRenamesTheColumnsOfTheLastImmatureStageAndRestoresThem) {
  start();
  PrintAgeStagePages(session);
  expectLines(pagesOf(report()).at(3), {
                                           " Age-Stage-Specific Developmental Coefficient ",
                                           kRule,
                                           " Age  E->F     E->M" + blanks(10),
                                           kRule,
                                           "   0   .2" + blanks(7) + ".2" + blanks(7) + "-   ",
                                           "   1   .1" + blanks(7) + ".3" + blanks(7) + "-   ",
                                           "   2   -" + blanks(8) + "-" + blanks(8) + "-   ",
                                           "   3   -" + blanks(8) + "-" + blanks(8) + "-   ",
                                           kRule,
                                       });
  EXPECT_EQ(m.StageName(1), "Eggs");
  EXPECT_EQ(m.StageName(2), "Fema");
  EXPECT_EQ(m.StageName(3), "Male");
  EXPECT_EQ(m.StageAge(2, 1), 1);
  EXPECT_EQ(m.StageAge(2, 2), 3);
  EXPECT_EQ(m.StageAge(3, 1), 1);
  EXPECT_EQ(m.StageAge(3, 2), 3);
  EXPECT_EQ(linesOf(pagesOf(report()).at(4)).at(2), " Age  Eggs     Fema     Male ");
}

TEST_F(Tiny3Report, MaleStageStartingAtAgeZeroShowsNoValueAtAll) {
  start();
  m.StageAge(3, 1) = 0;
  m.StageAge(1, 2) = 3; // the eggs, also from age 0, keep their values
  PrintAgeStagePages(session);
  const auto rows = linesOf(pagesOf(report()).at(2));
  EXPECT_EQ(rows.at(4), "   0   .5" + blanks(7) + "-" + blanks(8) + "-   ");
  EXPECT_EQ(rows.at(5), "   1   0" + blanks(8) + ".8" + blanks(7) + "-   ");
  EXPECT_EQ(rows.at(6), "   2   0" + blanks(8) + ".5" + blanks(7) + "-   ");
  EXPECT_EQ(rows.at(7), "   3   0" + blanks(8) + "0" + blanks(8) + "-   ");
}

// Each item of a row starts at its Tab column, a number with its sign
// place; a number that runs past the next column pushes the rest of the
// row to that column of a new line.
TEST_F(Tiny3Report, RowItemsStandAtTheirTabColumnsAndWrapWhenTooWide) {
  m.LastAge = 1;
  for (int stage = 1; stage <= 3; ++stage) {
    m.StageAge(stage, 1) = 0;
    m.StageAge(stage, 2) = 1;
  }
  m.StageAge(3, 1) = 1;
  m.StageName(2) = "Adult female";
  m.StageName(3) = "M";
  m.ReportMatrixTitle = " Test page ";
  m.ReportMatrix(0, 1) = -.5;
  m.ReportMatrix(0, 2) = 12.25;
  m.ReportMatrix(1, 1) = 123456.789;
  m.ReportMatrix(1, 2) = .1234;
  m.ReportMatrix(1, 3) = -1234.5678;
  VorlexCGosub1600(session);
  expectLines(pagesOf(report()).at(1), {
                                           " Test page ",
                                           kRule,
                                           " Age  Eggs     male     M ",
                                           kRule,
                                           //        col 7    col 16   col 25
                                           "   0  -.5" + blanks(7) + "12.25" + blanks(4) + "-   ",
                                           "   1   123456.789 ",
                                           blanks(16) + ".1234   -1234.5678  ",
                                           kRule,
                                       });
}

TEST_F(Tiny3Report, TwoDigitAgesMoveOneColumnLeft) {
  m.LastAge = 10;
  m.NrStage = 1;
  m.StageAge(1, 1) = 9;
  m.StageAge(1, 2) = 10;
  m.ReportMatrix(9, 1) = 1;
  m.ReportMatrix(10, 1) = 2;
  VorlexCGosub1600(session);
  const auto rows = linesOf(pagesOf(report()).at(1));
  ASSERT_EQ(rows.size(), 16u);
  EXPECT_EQ(rows.at(1), " " + std::string(13, '-'));
  EXPECT_EQ(rows.at(13), "   9   1  ");
  EXPECT_EQ(rows.at(14), "  10   2  ");
}

} // namespace
} // namespace vorlex::testing
