#include "reports/PlotMarks.h"
#include "reports/ReportFixture.h"

namespace vorlex::testing {
namespace {

const std::string kFrame = "+----+----+----+----+----+----+----+----+----+----+----+";
const std::string kEmpty = "+" + std::string(54, ' ') + "+";

class PlotMark : public ::testing::Test {
protected:
  NoPrompts prompts;
  Session session{prompts};
  Model& m = session.model();

  void SetUp() override { m.PlotLine = kEmpty; }
  void mark(double position, const std::string& letter) {
    m.PlotPos = position;
    m.PlotMark = letter;
    VorlexEGosub1320(session);
  }
};

TEST_F(PlotMark, FrameLineHasAPlusEveryFiveColumns) {
  EXPECT_EQ(m.PlotScale, kFrame);
  EXPECT_EQ(kEmptyPlotRow, kEmpty);
}

TEST_F(PlotMark, MarkGoesToColumnPositionPlusOneAndReplacesTheFrame) {
  m.PlotLine = kFrame;
  mark(0, "E");
  mark(5, "L");
  mark(7, "A");
  EXPECT_EQ(m.PlotLine, "E----L-A--+----+----+----+----+----+----+----+----+----+");
  EXPECT_EQ(m.PlotHits(1), 1);
  EXPECT_EQ(m.PlotHits(6), 1);
  EXPECT_EQ(m.PlotHits(8), 1);
}

TEST_F(PlotMark, PositionBelowZeroSetsNothing) {
  mark(-1, "E");
  EXPECT_EQ(m.PlotLine, kEmpty);
  EXPECT_EQ(m.PlotHits(0), 0);
  EXPECT_EQ(m.PlotHits(1), 0);
}

TEST_F(PlotMark, BeyondTheFrameMarksColumn54WithAnArrowBeside) {
  mark(53, "A");
  EXPECT_EQ(m.PlotLine, "+" + std::string(52, ' ') + "A +");
  mark(54, "B");
  EXPECT_EQ(m.PlotPos, 53);
  EXPECT_EQ(m.PlotLine, "+" + std::string(52, ' ') + "2>+");
  mark(1000, "C");
  EXPECT_EQ(m.PlotLine, "+" + std::string(52, ' ') + "3>+");
}

TEST_F(PlotMark, MarksMeetingInAColumnShowTheLastDigitOfTheirCount) {
  const char* shown[] = {"E", "2", "3", "4", "5", "6", "7", "8", "9", "0", "1"};
  for (int count = 1; count <= 11; ++count) {
    mark(10, count == 1 ? "E" : "X");
    EXPECT_EQ(m.PlotLine.substr(10, 1), shown[count - 1]) << count << " marks";
    EXPECT_EQ(m.PlotHits(11), count);
  }
  EXPECT_EQ(m.PlotLine.substr(0, 10), kEmpty.substr(0, 10));
  EXPECT_EQ(m.PlotLine.substr(11), kEmpty.substr(11));
}

TEST_F(PlotMark, LogarithmicPositionIsTenColumnsADecadeOfValuePlusOne) {
  EXPECT_EQ(logPlotPosition(0), 0);
  EXPECT_EQ(logPlotPosition(9), 10);
  EXPECT_EQ(logPlotPosition(99999), 50);
  EXPECT_EQ(logPlotPosition(100), 20); // 20.04
  EXPECT_EQ(logPlotPosition(70), 19);  // 18.51
  EXPECT_EQ(logPlotPosition(1.75), 4); // 4.39
  EXPECT_EQ(logPlotPosition(2.2), 5);  // 5.05
  EXPECT_EQ(errorOf([] { logPlotPosition(-1); }).code(), ErrorCode::InvalidProcedureCall);
}

TEST_F(PlotMark, FigureNumberCountsEveryPlotHead) {
  session.files.attachOutput(kReportFile, OutputFile::inMemory());
  m.ProjectName = "P";
  printPlotHead(session, "First");
  printPlotHead(session, "Second");
  expectLines(session.files.output(kReportFile).text(),
              {"\f", " Project: P", " ", " Fig. 1 . First", "\f", " Project: P", " ", " Fig. 2 . Second"});
}

} // namespace
} // namespace vorlex::testing
