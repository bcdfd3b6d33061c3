#include "reports/ControlPages.h"
#include "reports/ReportFixture.h"

namespace vorlex::testing {
namespace {

std::string blanks(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

const std::string kDoubleRule = " " + std::string(45, '='); // 6 x 3 stages + 27
const std::string kRule = " " + std::string(45, '-');
const std::string kHeading = " Treat No. Day   Description               Stage mortality";
// The names run together from column 32, not over their columns.
const std::string kNames = blanks(31) + "Eggs Fema Male ";

// Columns of a row: treatment number ending at 4, day at 13, name from 20,
// mortality of stage j with its sign blank at 6j + 27.
TEST_F(Tiny3Report, ControlPageOfTheDataFileHasARowForEachEffectiveDay) {
  start(); // Pyrethrins on days 2-3, Neem on day 3; no automatic survival
  VorlexCGosub1260(session);
  const std::string pyrethrins = "Pyrethrins" + blanks(4) + "0" + blanks(5) + "0" + blanks(5) + "0  ";
  expectLines(pagesOf(report()).at(1), {
                                           " Management strategies: ",
                                           kDoubleRule,
                                           kHeading,
                                           kNames,
                                           kRule,
                                           blanks(12) + "2" + blanks(6) + pyrethrins,
                                           blanks(12) + "3" + blanks(6) + pyrethrins,
                                           "**** Time interval to next control = 0  ****",
                                           blanks(12) + "3" + blanks(6) + "Neem" + blanks(10) + "0" +
                                               blanks(5) + "0" + blanks(5) + "0  ",
                                           kRule,
                                       });
}

// Mortalities come from StageSurvivalDay0 at the running row number; the
// treatment number shows only for a control that starts by day 1.
TEST_F(Tiny3Report, ControlRowsReadTheRowCounterAndNumberOnlyEarlyControls) {
  m.ControlDate(1) = 1;
  m.ControlDuration(1) = 2;
  m.ControlDate(2) = 5;
  m.ControlDuration(2) = 1;
  m.ControlGap(1) = 4;
  const double survival[4][3] = {{1, 1, 1}, {1, .5, .5}, {1, .75, .75}, {.9, .8, 0}};
  for (int row = 1; row <= 3; ++row)
    for (int stage = 1; stage <= 3; ++stage)
      m.StageSurvivalDay0(stage, row) = survival[row][stage - 1];
  m.StageSurvivalDay0(2, 5) = .5; // the day of Neem: not read
  VorlexCGosub1260(session);
  const auto lines = linesOf(pagesOf(report()).at(1));
  ASSERT_EQ(lines.size(), 10u);
  EXPECT_EQ(lines[5], "   1" + blanks(8) + "1" + blanks(6) + "Pyrethrins" + blanks(4) + "0" + blanks(5) +
                          ".5" + blanks(4) + ".5  ");
  EXPECT_EQ(lines[6], blanks(12) + "2" + blanks(6) + "Pyrethrins" + blanks(4) + "0" + blanks(5) + ".25" +
                          blanks(3) + ".25  ");
  EXPECT_EQ(lines[7], "**** Time interval to next control = 4  ****");
  EXPECT_EQ(lines[8],
            blanks(12) + "5" + blanks(6) + "Neem" + blanks(10) + ".1" + blanks(4) + ".2" + blanks(4) + "1  ");
}

TEST_F(Tiny3Report, ControlOfNoEffectiveDayHasNoRowButItsIntervalLine) {
  m.ControlDuration(1) = .5;
  m.ControlGap(1) = 7;
  VorlexCGosub1260(session);
  const auto lines = linesOf(pagesOf(report()).at(1));
  ASSERT_EQ(lines.size(), 8u);
  EXPECT_EQ(lines[5], "**** Time interval to next control = 7  ****");
  EXPECT_EQ(lines[6].substr(0, 23), blanks(12) + "3" + blanks(6) + "Neem");
}

TEST_F(Tiny3Report, ControlPageIsLeftOutOnceTheAutomaticRuleHasTakenAControl) {
  m.NrAutoControl = 1;
  VorlexCGosub1260(session);
  EXPECT_EQ(report(), "");
}

TEST_F(Tiny3Report, AutomaticControlPageHasHeadingsAndIntervalsButNoRows) {
  m.NrControl = 3;
  m.ControlGap(1) = 5;
  m.ControlGap(2) = 2.5;
  m.ControlGap(3) = 99; // after the last control: not shown
  VorlexCGosub1260AutoControl(session);
  expectLines(pagesOf(report()).at(1), {
                                           " Management strategies: ",
                                           " " + std::string(48, '='),
                                           kHeading,
                                           blanks(31) + "Eggs  Fema  Male ",
                                           " " + std::string(48, '-'),
                                           "**** Time interval to next control = 5  ****",
                                           "**** Time interval to next control = 2.5  ****",
                                           " " + std::string(48, '-'),
                                       });
}

// Time ending at column 4, the sizes with their sign blank at columns 10
// and 30, the mark at 48 on the days of an automatic control.
TEST_F(Tiny3Report, SizesAroundControlsMarkTheControlledDays) {
  session.flags.FlowFlag = "Yes";
  session.files.attachOutput(kFlowFile, OutputFile::inMemory());
  m.SizeBeforeControl(1) = 12.5;
  m.SizeAfterControl(1) = 6.25;
  m.SizeBeforeControl(2) = 40;
  m.SizeAfterControl(2) = 40;
  m.SizeBeforeControl(3) = 1; // beyond SimTime
  m.NrAutoControl = 2;
  m.AutoControlDay(1) = 0;
  m.AutoControlDay(2) = 2;
  m.AutoControlDay(3) = 1; // beyond the count
  PrintSizeBeforeAndAfterControl(session);
  const std::string hyphens = "-----------------------------------------";
  expectLines(report(), {
                            " Time    Before control      After control",
                            hyphens,
                            "   0" + blanks(6) + "0" + blanks(19) + "0" + blanks(16) + "<-Controlled",
                            "   1" + blanks(6) + "12.5" + blanks(16) + "6.25 ",
                            "   2" + blanks(6) + "40" + blanks(18) + "40" + blanks(15) + "<-Controlled",
                            hyphens,
                        });
  EXPECT_EQ(session.files.output(kFlowFile).text(), "In Public Sub PrintSizeBeforeAndAfterControl\r\n");
}

TEST_F(Tiny3Report, SizesAroundControlsGiveTimeInTimeUnits) {
  m.TimeUnit = .5;
  PrintSizeBeforeAndAfterControl(session);
  const auto lines = linesOf(report());
  EXPECT_EQ(lines.at(3), "   .5" + blanks(5) + "0" + blanks(19) + "0 ");
}

} // namespace
} // namespace vorlex::testing
