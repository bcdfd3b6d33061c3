#include "reports/DeathFiles.h"
#include "reports/FigureFiles.h"

#include "support/FigureRun.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace vorlex::testing {
namespace {

constexpr const char* kPredationFile = "10X-Total preys killed by predators released after 1 time units";

// The files of a run with consumption data in the order they are written.
const std::vector<std::string> kOrderWithCxj{"1A-Fig-Stage size",
                                             "1C-Fig-Stage size plus 1",
                                             "1B-Fig-log Stage size",
                                             "4A-Fig-Vulnerable size",
                                             "4B-Fig-log Vulnerable size",
                                             "2A-Fig-Total size",
                                             "2C-Fig-Total size plus 1",
                                             "14-Fig-Cost and harvest",
                                             "2B-Fig-log Total size",
                                             "9-Fig-Total consumption",
                                             "9a-Fig-Total consump. and population",
                                             "9c-Fig-Total consump. and popu plus 1",
                                             kPredationFile,
                                             "3A-Fig-Growth rate in ln",
                                             "3B-Fig-Growth rate in log"};

std::vector<std::string> fileNames(std::vector<std::string> suffixes) {
  for (auto& suffix : suffixes)
    suffix = "run-" + suffix + ".txt";
  std::sort(suffixes.begin(), suffixes.end());
  return suffixes;
}

class SaveGraphicDataRun : public ::testing::Test {
protected:
  FigureRun run;
  Model& m = run.m;
  RunFlags& flags = run.session.flags;

  void SetUp() override {
    run.threeStages(1);
    m.FiniteRate = 10;
  }
  void save() { SaveGraphicData(run.session); }
  void deathFiles() {
    PrintCxj(run.session);
    PrintDeathRatexj(run.session);
    PrintStageDeath(run.session);
    PrintTotalDeath(run.session);
    PrintLogStageDeath(run.session);
    PrintCumuStageDeath(run.session);
    PrintLogCumuStageDeath(run.session);
    PrintTotalDifference(run.session);
  }
};

TEST_F(SaveGraphicDataRun, WritesItsFilesInAFixedOrder) {
  flags.WithCxj = "Yes";
  // A folder in the place of file k stops the run at its opening: exactly
  // the files before it are there.
  for (std::size_t k = 0; k < kOrderWithCxj.size(); ++k) {
    std::filesystem::remove_all(run.folder);
    std::filesystem::create_directories(run.path(kOrderWithCxj[k]));
    EXPECT_EQ(errorOf([&] { save(); }).code(), ErrorCode::PathFileAccessError) << kOrderWithCxj[k];
    std::vector<std::string> before(kOrderWithCxj.begin(), kOrderWithCxj.begin() + static_cast<long>(k) + 1);
    EXPECT_EQ(run.files(), fileNames(before)) << kOrderWithCxj[k];
    EXPECT_FALSE(run.session.files.isOpen(kReportFile));
  }
}

TEST_F(SaveGraphicDataRun, ConsumptionDataDecideTheCostAndConsumptionFiles) {
  const std::vector<std::string> without{"1A-Fig-Stage size",          "1C-Fig-Stage size plus 1",
                                         "1B-Fig-log Stage size",      "4A-Fig-Vulnerable size",
                                         "4B-Fig-log Vulnerable size", "2A-Fig-Total size",
                                         "2C-Fig-Total size plus 1",   "2B-Fig-log Total size",
                                         "3A-Fig-Growth rate in ln",   "3B-Fig-Growth rate in log"};
  std::vector<std::string> costOnly = without;
  costOnly.push_back("14-Fig-Cost and harvest");
  // Kept: a value that is neither "Yes" nor "No" writes cost and harvest
  // but no consumption file.
  for (auto [withCxj, expected] : {std::pair{"Yes", kOrderWithCxj}, std::pair{"No", without},
                                   std::pair{"", costOnly}, std::pair{"yes", costOnly}}) {
    std::filesystem::remove_all(run.folder);
    std::filesystem::create_directories(run.folder);
    flags.WithCxj = withCxj;
    save();
    EXPECT_EQ(run.files(), fileNames(expected)) << '"' << withCxj << '"';
  }
}

TEST_F(SaveGraphicDataRun, OnlyTotalFiguresGivesThreeFilesAndNoDeathFiles) {
  flags.OnlyTotalFigures = "Yes";
  flags.WithCxj = "Yes";
  run.recordFlow();
  save();
  deathFiles();
  EXPECT_EQ(run.files(),
            fileNames({"2A-Fig-Total size", "2C-Fig-Total size plus 1", "2B-Fig-log Total size"}));
  EXPECT_EQ(run.flow(), "In Public Sub SaveGraphicData\r\nIn Public Sub SaveGraphDataGosub1650OpenFile\r\n");
  EXPECT_EQ(m.PredationLag, 0);
}

TEST_F(SaveGraphicDataRun, TheFlowRecordNamesTheOpeningOnceInAProgramRun) {
  run.recordFlow();
  save();
  PrintStageDeath(run.session);
  save();
  EXPECT_EQ(run.flow(), "In Public Sub SaveGraphicData\r\n"
                        "In Public Sub SaveGraphDataGosub1650OpenFile\r\n"
                        "In Public Sub PrintStageDeath\r\n"
                        "In Public Sub SaveGraphicData\r\n");
}

TEST_F(SaveGraphicDataRun, WithoutTheFlowRecordNothingIsMarked) {
  save();
  run.recordFlow();
  save();
  EXPECT_EQ(run.flow(), "In Public Sub SaveGraphicData\r\nIn Public Sub SaveGraphDataGosub1650OpenFile\r\n");
}

TEST_F(SaveGraphicDataRun, OpeningReplacesAFileNamedFromBaseNameAsItIs) {
  m.FigureSuffix = "Any suffix, with blanks";
  std::ofstream(run.base + "-Any suffix, with blanks.txt") << "old text that is longer";
  SaveGraphDataGosub1650OpenFile(run.session);
  run.session.files.output(kReportFile).print("new");
  run.session.files.close(kReportFile);
  EXPECT_EQ(m.FigureFileName, run.folder + "/run-Any suffix, with blanks.txt");
  EXPECT_EQ(fileText(m.FigureFileName), "new\r\n");
}

TEST_F(SaveGraphicDataRun, ASingleDayGivesOneRowInEachFile) {
  m.SimTime = 0;
  flags.WithCxj = "Yes";
  save();
  for (const auto& suffix : kOrderWithCxj) {
    if (suffix == kPredationFile)
      continue; // its lag adds a row
    EXPECT_EQ(lineCount(run.figure(suffix)), 3) << suffix;
  }
  EXPECT_EQ(lineOf(run.figure("2A-Fig-Total size"), 2), "0,0,0,0,0");
}

// The tiny table projected over one day: day 0 holds the 100 eggs and the
// 5 females of the file; on day 1 eggs 20 + 50, females 20 + 2.5, males 20.
TEST(SaveGraphicDataOfAProjection, StageSizesOfTheTinyTable) {
  FigureRun run;
  run.session.flags.WithCxj = "No";
  run.projectTiny3(1);
  SaveGraphicData(run.session);
  EXPECT_EQ(run.figure("1A-Fig-Stage size"), "\"Stage structure curves (Nt)\"\r\n"
                                             "Time,Eggs,Fema,Male,Total adults\r\n"
                                             "0,100,5,0,5\r\n"
                                             "1,70,22.5,20,42.5\r\n");
  // ln(70 + 1) - ln(100 + 1): the eggs shrink, and the rate shows it.
  EXPECT_EQ(lineOf(run.figure("3A-Fig-Growth rate in ln"), 2).substr(0, 20), "0,-.352440639799944,");
  EXPECT_EQ(lineOf(run.figure("2A-Fig-Total size"), 3).substr(0, 8), "1,112.5,");
}

} // namespace
} // namespace vorlex::testing
