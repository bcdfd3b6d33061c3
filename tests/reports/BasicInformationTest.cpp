#include "reports/BasicInformation.h"
#include "reports/ReportFixture.h"

namespace vorlex::testing {
namespace {

std::string blanks(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

// By hand from tiny3: l(x) = 1, .9, .48, .24; m(x) = 0, 0, 4 x .21 / .48,
// 2 x .105 / .24; p(x) = l(x+1) / l(x). Ages in the column ending at 5,
// F(x) from column 10, S(x) from column 20, numbers in the print form.
TEST_F(Tiny3Report, FirstPageHoldsTheProjectAndTheLifeTableByAge) {
  start();
  VorlexCGosub100PrintBasicInf(session);
  expectLines(pagesOf(report()).at(1), {
                                           " The Simulation of the Growth and Management of a Population",
                                           " ",
                                           " ",
                                           " Project : Tiny three-stage table",
                                           " DATE    :  20261121 ",
                                           " ",
                                           " ",
                                           " The age-specific fecundity  F(x) and survival rate S(x)",
                                           " ==============================",
                                           "   Age   F(x)      S(x)",
                                           " ------------------------------",
                                           "    0" + blanks(5) + "0" + blanks(9) + ".9 ",
                                           "    1" + blanks(5) + "0" + blanks(9) + ".5333 ",
                                           "    2" + blanks(5) + "1.75" + blanks(6) + ".5 ",
                                           "    3" + blanks(5) + ".875" + blanks(6) + "0 ",
                                           " ------------------------------",
                                       });
}

TEST_F(Tiny3Report, StagesInitialPopulationAndAgeDistributionHaveAPageEach) {
  start();
  VorlexCGosub100PrintBasicInf(session);
  const auto pages = pagesOf(report());
  // Stage names from column 2, first ages ending at column 13, last ages
  // at column 23.
  expectLines(pages.at(2), {
                               " ",
                               " ",
                               " The stage information",
                               " =========================",
                               " Stage     Begin     End",
                               " -------------------------",
                               " Eggs" + blanks(7) + "0" + blanks(9) + "1 ",
                               " Fema" + blanks(7) + "1" + blanks(9) + "3 ",
                               " Male" + blanks(7) + "1" + blanks(9) + "3 ",
                               " -------------------------",
                               " ",
                           });
  // Stage j from column 8j; the numbers as read.
  expectLines(pages.at(3), {
                               " The initial population (N0):",
                               " Population size =  105 ",
                               " ",
                               " Population composition:",
                               " " + std::string(32, '='),
                               "  Age  Eggs    Fema    Male",
                               " " + std::string(32, '-'),
                               "  0" + blanks(5) + "100" + blanks(5) + "0" + blanks(7) + "0 ",
                               "  1" + blanks(5) + "0" + blanks(7) + "0" + blanks(7) + "0 ",
                               "  2" + blanks(5) + "0" + blanks(7) + "5" + blanks(7) + "0 ",
                               "  3" + blanks(5) + "0" + blanks(7) + "0" + blanks(7) + "0 ",
                               " " + std::string(32, '-'),
                           });
  // 100 / 105 = 95.24%, from column 15; 5 / 105 = 4.76% and 0 from 16.
  expectLines(pages.at(4), {
                               " Initial age distribution:",
                               " =======================",
                               "  Age        Percent(%)",
                               " -----------------------",
                               "    0" + blanks(10) + "95.24 ",
                               "    1" + blanks(11) + "0 ",
                               "    2" + blanks(11) + "4.76 ",
                               "    3" + blanks(11) + "0 ",
                               " -----------------------",
                           });
}

TEST_F(Tiny3Report, PercentColumnMovesLeftForTenAndForOneHundredPercent) {
  start();
  m.InitialAgeN(0) = 10.5;  // 10%
  m.InitialAgeN(1) = 105;   // 100%
  m.InitialAgeN(2) = 10.49; // 9.99%
  m.InitialAgeN(3) = .0525; // .05%
  VorlexCGosub100PrintBasicInf(session);
  const auto lines = linesOf(pagesOf(report()).at(4));
  EXPECT_EQ(lines.at(4), "    0" + blanks(10) + "10 ");
  EXPECT_EQ(lines.at(5), "    1" + blanks(9) + "100 ");
  EXPECT_EQ(lines.at(6), "    2" + blanks(11) + "9.99 ");
  EXPECT_EQ(lines.at(7), "    3" + blanks(11) + ".05 ");
}

TEST_F(Tiny3Report, PhysogastryIsSaidBelowTheProject) {
  session.flags.Physogastry = "Yes";
  start();
  VorlexCGosub100PrintBasicInf(session);
  const auto lines = linesOf(pagesOf(report()).at(1));
  EXPECT_EQ(lines.at(6), " ");
  EXPECT_EQ(lines.at(7), " This is a simulation of physogastry reproduction.");
  EXPECT_EQ(lines.at(8), " The age-specific fecundity  F(x) and survival rate S(x)");
}

// Ages are printed in time units; the column an age starts in and the
// stage ages stay in steps.
TEST_F(Tiny3Report, HalfDayStepsPrintAgesInDaysAndStageAgesInSteps) {
  start();
  m.TimeUnit = .5;
  VorlexCGosub100PrintBasicInf(session);
  const auto pages = pagesOf(report());
  const auto lifeTable = linesOf(pages.at(1));
  EXPECT_EQ(lifeTable.at(11), "    0" + blanks(5) + "0" + blanks(9) + ".9 ");
  EXPECT_EQ(lifeTable.at(12), "    .5" + blanks(4) + "0" + blanks(9) + ".5333 ");
  EXPECT_EQ(lifeTable.at(14), "    1.5   .875" + blanks(6) + "0 ");
  EXPECT_EQ(linesOf(pages.at(2)).at(8), " Male" + blanks(7) + "1" + blanks(9) + "3 ");
  EXPECT_EQ(linesOf(pages.at(3)).at(9), "  1" + blanks(5) + "0" + blanks(7) + "5" + blanks(7) + "0 ");
  // On an age-stage page " 1.5 " from column 3 runs past column 7: the
  // rest of the row goes to column 7 of a new line.
  const auto fecundity = linesOf(pages.at(5));
  EXPECT_EQ(fecundity.at(5), "   .5  0" + blanks(8) + "0" + blanks(8) + "0  ");
  EXPECT_EQ(fecundity.at(6), "   1   -" + blanks(8) + "4" + blanks(8) + "0  ");
  EXPECT_EQ(fecundity.at(7), "   1.5 ");
  EXPECT_EQ(fecundity.at(8), blanks(7) + "-" + blanks(8) + "2" + blanks(8) + "0  ");
}

TEST_F(Tiny3Report, ControlPageFollowsOnlyWhenTheDataFileHasControlsAndNoAutomaticOneWasTaken) {
  start();
  m.NrControl = 0;
  VorlexCGosub100PrintBasicInf(session);
  auto pages = pagesOf(report());
  ASSERT_EQ(pages.size(), 9u);
  EXPECT_EQ(linesOf(pages.back()).front(), " Initial age-stage-distribution ");

  m.NrControl = 2;
  m.NrAutoControl = 1;
  session.files.close(kReportFile);
  session.files.attachOutput(kReportFile, OutputFile::inMemory());
  VorlexCGosub100PrintBasicInf(session);
  pages = pagesOf(report());
  ASSERT_EQ(pages.size(), 9u);
  EXPECT_EQ(linesOf(pages.back()).front(), " Initial age-stage-distribution ");
}

TEST_F(Tiny3Report, InitialSizeOfZeroStopsAtThePercentColumn) {
  start();
  m.InitialSize = 0;
  EXPECT_EQ(errorOf([&] { VorlexCGosub100PrintBasicInf(session); }).code(), ErrorCode::DivisionByZero);
  // What was written stays, up to the head of the table.
  EXPECT_EQ(linesOf(pagesOf(report()).back()).back(), " -----------------------");
}

} // namespace
} // namespace vorlex::testing
