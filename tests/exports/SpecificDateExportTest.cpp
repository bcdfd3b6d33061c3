#include "exports/SpecificDateExport.h"

#include "reports/FigureFiles.h"
#include "support/FigureRun.h"
#include "support/RunFolder.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace vorlex::testing {
namespace {

const std::string kOpenOrAppend = std::string(kOpenOrAppendTitle) + "=";
const std::string kCode = std::string(kFileCodeTitle) + "=";

// A finished run of three stages over days 0..3 whose sizes on day 2 are
// known, with consumption data; its figure files go to a folder of its own.
class DateExportRun : public ::testing::Test {
protected:
  RunFolder folder{"date-exports"};
  ScriptedPrompts prompts;
  Session session{prompts};
  Model& m = session.model();
  DateExports& exports = session.exports;

  void SetUp() override {
    session.names.BaseName = folder.path("run");
    session.flags.OnlyTotalFigures = "No";
    session.flags.Physogastry = "No";
    session.flags.WithCxj = "Yes";
    m.ProjectName = "Three stages";
    m.NrStage = 3;
    m.StageName(1) = "Eggs";
    m.StageName(2) = "Fema";
    m.StageName(3) = "Male";
    m.SimTime = 3;
    m.TimeUnit = 1;
    m.FiniteRate = 10;
    m.StageSize(1, 2) = 12.5;
    m.StageSize(2, 2) = 4;
    m.StageSize(3, 2) = .25;
    m.TotalSize(2) = 16.75;
    m.WeighedSize(2) = 8.5;
    m.TotalConsumption(2) = 30;
    prompts.answer("Add time to total predation data.=0");
  }
  /// A click with its day, and the file opened new (Yes) or appended to.
  void arm(DateExport which, const std::string& day, bool newFile, const std::string& file,
           const std::string& code = "c") {
    const DateExportTexts& texts = textsOf(which);
    prompts.answer(std::string(texts.dateTitle) + "=" + day);
    prompts.answer(kOpenOrAppend + (newFile ? "Yes" : "No"));
    if (!file.empty()) {
      prompts.answer(std::string(newFile ? texts.saveTitle : texts.appendTitle) + "=" + folder.path(file));
      prompts.answer(kCode + code);
    }
    armDateExport(session, which);
  }
  void save() { SaveGraphicData(session); }
  std::string text(const std::string& file) const { return fileText(folder.path(file)); }
};

TEST_F(DateExportRun, EachExportWritesTheValueOfItsDay) {
  struct Case {
    DateExport which;
    const char* file;
    const char* expected;
  };
  const Case kCases[] = {
      {DateExport::TotalSize, "n.txt",
       "\"Three stages\"\r\n\"File code\",\"Total size at 2\"\r\nc,16.75\r\n"},
      {DateExport::StageSizes, "stages.txt",
       "\"Three stages\"\r\n\"File code\",\"Stage sizes at 2\"\r\n12.5,4,.25,4.25\r\n"},
      {DateExport::Consumption, "c.txt",
       "\"Three stages\"\r\n\"File code\",\"Total consumption at 2\"\r\nc,30\r\n"},
      {DateExport::WeighedSize, "w.txt",
       "\"Three stages\"\r\n\"File code\",\"Weighted population sizes at 2\"\r\nc,8.5\r\n"},
  };
  for (const Case& c : kCases)
    arm(c.which, "2", true, c.file);
  save();
  session.files.closeAll();
  for (const Case& c : kCases)
    EXPECT_EQ(text(c.file), c.expected) << c.file;
}

TEST_F(DateExportRun, TheDayIsRoundedTiesToEvenAndZeroTurnsTheExportOff) {
  struct Case {
    const char* answer;
    int day;
    const char* armed;
  };
  const Case kCases[] = {{"2.5", 2, "Yes"}, {"3.5", 4, "Yes"}, {"", 0, "No"}, {"0", 0, "No"}, {"-1", -1, "Yes"}};
  for (const Case& c : kCases) {
    arm(DateExport::WeighedSize, c.answer, true, "");
    EXPECT_EQ(exports.ExportDayW, c.day) << '"' << c.answer << '"';
    EXPECT_EQ(exports.ExportW, c.armed) << '"' << c.answer << '"';
  }
}

TEST_F(DateExportRun, TheStageHeadingNamesTheDayOfTheTotalSize) {
  arm(DateExport::StageSizes, "2", true, "before.txt");
  arm(DateExport::TotalSize, "3", true, "n.txt");
  session.files.close(kStageExportFile);
  arm(DateExport::StageSizes, "2", true, "after.txt");
  session.files.closeAll();
  EXPECT_EQ(lineOf(text("before.txt"), 1), "\"File code\",\"Stage sizes at 0\"");
  EXPECT_EQ(lineOf(text("after.txt"), 1), "\"File code\",\"Stage sizes at 3\"");
}

TEST_F(DateExportRun, AppendingKeepsTheHeadingsOfTheFirstRun) {
  std::ofstream(folder.path("n.txt"), std::ios::binary) << "\"Three stages\"\r\n\"File code\",\"Total size at 9\"\r\n";
  arm(DateExport::TotalSize, "2", false, "n.txt", "second");
  save();
  EXPECT_EQ(text("n.txt"), "\"Three stages\"\r\n\"File code\",\"Total size at 9\"\r\nsecond,16.75\r\n");
  EXPECT_EQ(prompts.titles[2], "Open a file to append N(t).");
}

// A cancelled dialog leaves the export armed without a file: the figure
// step stops where it would write the line, after the files named here.
TEST_F(DateExportRun, ACancelledDialogStopsTheFigureStepAtItsLine) {
  struct Case {
    DateExport which;
    const char* lastFileWritten;
  };
  const Case kCases[] = {{DateExport::StageSizes, "run-1C-Fig-Stage size plus 1.txt"},
                         {DateExport::TotalSize, "run-2C-Fig-Total size plus 1.txt"},
                         {DateExport::WeighedSize, "run-2C-Fig-Total size plus 1.txt"},
                         {DateExport::Consumption, "run-9c-Fig-Total consump. and popu plus 1.txt"}};
  for (const Case& c : kCases) {
    exports = DateExports{};
    session.files.closeAll();
    session.files = FileTable();
    arm(c.which, "2", true, "");
    EXPECT_EQ(errorOf([&] { save(); }).code(), ErrorCode::BadFileNameOrNumber);
    EXPECT_EQ(session.files.writtenPaths().back(), folder.path(c.lastFileWritten));
  }
}

TEST_F(DateExportRun, AnExportLeftArmedFailsTheNextRunButTheStageFileTakesAnotherLine) {
  arm(DateExport::StageSizes, "2", true, "stages.txt");
  arm(DateExport::TotalSize, "2", true, "n.txt");
  session.flags.OnlyTotalFigures = "Yes";
  save(); // the stage step is not reached with only the total files
  session.flags.OnlyTotalFigures = "No";
  EXPECT_EQ(errorOf([&] { save(); }).code(), ErrorCode::BadFileNameOrNumber);
  EXPECT_TRUE(session.files.isOpen(kStageExportFile));
  exports.ExportN = "No";
  save();
  session.files.closeAll();
  EXPECT_EQ(lineOf(text("stages.txt"), 2), "12.5,4,.25,4.25");
  EXPECT_EQ(lineOf(text("stages.txt"), 3), "12.5,4,.25,4.25");
}

TEST_F(DateExportRun, TheStageFileIsClosedWhenItsExportIsOff) {
  session.files.attachOutput(kStageExportFile, OutputFile::inMemory());
  save();
  EXPECT_FALSE(session.files.isOpen(kStageExportFile));
}

TEST_F(DateExportRun, ASecondClickWhileTheFileIsOpenStops) {
  arm(DateExport::TotalSize, "2", true, "n.txt");
  EXPECT_EQ(errorOf([&] { arm(DateExport::TotalSize, "3", false, "n.txt"); }).code(), ErrorCode::FileAlreadyOpen);
}

TEST_F(DateExportRun, ADayOutsideTheTablesStopsTheFigureStep) {
  for (const char* day : {"1006", "-1"}) {
    session.files.closeAll();
    arm(DateExport::TotalSize, day, true, "n.txt");
    EXPECT_EQ(errorOf([&] { save(); }).code(), ErrorCode::SubscriptOutOfRange) << day;
  }
}

TEST_F(DateExportRun, ADayAfterTheSimulationWritesZero) {
  arm(DateExport::Consumption, "50", true, "c.txt");
  save();
  EXPECT_EQ(lineOf(text("c.txt"), 2), "c,0");
}

TEST_F(DateExportRun, WithoutConsumptionDataTheConsumptionFileStaysOpenAndEmpty) {
  session.flags.WithCxj = "No";
  arm(DateExport::Consumption, "2", true, "c.txt");
  save();
  EXPECT_TRUE(session.files.isOpen(kConsumptionExportFile));
  session.files.closeAll();
  EXPECT_EQ(lineCount(text("c.txt")), 2);
}

// The dialogues of a click, title and text each, as reviewed in
// tests/data/date-export-prompts.expected.
TEST_F(DateExportRun, ThePromptsOfAClick) {
  prompts.answer(std::string(textsOf(DateExport::TotalSize).dateTitle) + "=2");
  prompts.answer(kOpenOrAppend + "Yes");
  prompts.answer("Open a file to save N(t).=" + folder.path("n.txt"));
  armDateExport(session, DateExport::TotalSize);
  ASSERT_EQ(prompts.titles.size(), prompts.texts.size());
  std::string dialogues;
  for (std::size_t i = 0; i < prompts.titles.size(); ++i)
    dialogues += "[" + prompts.titles[i] + "]\n" + prompts.texts[i];
  EXPECT_EQ(dialogues, fileText(dataPath("date-export-prompts.expected")));
  EXPECT_EQ(exports.ExportCodeN, "0.025");
}

} // namespace
} // namespace vorlex::testing
