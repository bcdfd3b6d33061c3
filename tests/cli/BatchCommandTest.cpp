#include "support/CliRun.h"
#include "support/FigureRun.h"
#include "support/RunFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace vorlex::testing {
namespace {

namespace fs = std::filesystem;

// A text quoted for the shell (std::quoted would be taken for a plain string).
std::string q(const std::string& text) { return quoted(text); }

const std::string kOpenOrAppend = "Open for the first time or append data to an existing file?=";
const std::string kCode = "Enter a file code (percentile, treatment, etc.)=";

// Four tables of the moth in a folder of their own, as a batch takes them.
struct FourTables {
  RunFolder folder{"batch"};
  std::vector<std::string> files{folder.copy(examplePath("moth.txt"), "a.txt"),
                                 folder.copy(dataPath("moth-controls.txt"), "b.txt"),
                                 folder.copy(dataPath("moth-auto.txt"), "c.txt"),
                                 folder.copy(dataPath("moth-releases.txt"), "d.txt")};
  std::string dir = folder.dir().string();

  std::string all() const {
    std::string list;
    for (const std::string& file : files)
      list.append(" ").append(q(file));
    return list;
  }
};

TEST(BatchCommand, ItsExportsAreThoseOfSingleRunsOneAfterTheOther) {
  FourTables tables;
  const RunFolder& folder = tables.folder;
  const CliResult batch = runCli("batch" + tables.all() + " --sim-time 30 --jobs 3 --export " +
                                     q("stages:15:" + folder.path("batch-stages.txt")) + " --export " +
                                     q("total:20:" + folder.path("batch-total.txt")),
                                 tables.dir);
  ASSERT_EQ(batch.status, 0) << batch.err;
  EXPECT_EQ(batch.err, "") << "no progress line off a terminal";
  EXPECT_NE(batch.out.find("Runs: 4, succeeded: 4, failed: 0\n"), std::string::npos) << batch.out;

  for (std::size_t n = 0; n < tables.files.size(); ++n) {
    const bool first = n == 0;
    const std::string answers =
        " --answer " + q("Save stage size for specific date=15") + " --answer " +
        q("Save total population size for specific date=20") + " --answer " +
        q(kOpenOrAppend + (first ? "Yes" : "No")) + " --answer " +
        q(kOpenOrAppend + (first ? "Yes" : "No")) + " --answer " +
        q((first ? "Open a file to save N(x,j,t).=" : "Open a file to append N(x,j,t).=") +
               folder.path("single-stages.txt")) +
        " --answer " +
        q((first ? "Open a file to save N(t).=" : "Open a file to append N(t).=") +
               folder.path("single-total.txt")) +
        " --answer " + q(kCode + "ignored") + " --answer " +
        q(kCode + fs::path(tables.files[n]).stem().string());
    const CliResult single = runCli("run " + q(tables.files[n]) + " --sim-time 30 --export stages --export total" + answers, tables.dir);
    ASSERT_EQ(single.status, 0) << single.err;
  }
  EXPECT_EQ(fileText(folder.path("batch-stages.txt")), fileText(folder.path("single-stages.txt")));
  EXPECT_EQ(fileText(folder.path("batch-total.txt")), fileText(folder.path("single-total.txt")));
  EXPECT_EQ(lineOf(fileText(folder.path("batch-total.txt")), 5).substr(0, 2), "d,");
}

TEST(BatchCommand, AFailingTableIsToldAndTheOthersGoOn) {
  FourTables tables;
  const RunFolder& folder = tables.folder;
  const std::string text = fileText(tables.files[1]);
  std::ofstream(tables.files[1], std::ios::binary) << text.substr(0, text.size() / 2);
  const CliResult batch = runCli("batch" + tables.all() + " --sim-time 20 --jobs 2 --export " +
                                     q("weighed:20:" + folder.path("weighed.txt")) + " --band " +
                                     q(folder.path("band.csv")),
                                 tables.dir);
  EXPECT_EQ(batch.status, 1);
  EXPECT_NE(batch.err.find("vorlex: the run of " + tables.files[1] +
                           " failed:\n    vorlex: Run-time error '62': Input past end of file"),
            std::string::npos)
      << batch.err;
  EXPECT_NE(batch.out.find("Runs: 4, succeeded: 3, failed: 1\n"), std::string::npos) << batch.out;
  const std::string weighed = fileText(folder.path("weighed.txt"));
  EXPECT_EQ(lineCount(weighed), 2 + 3);
  EXPECT_EQ(lineOf(weighed, 3).substr(0, 2), "c,");
  EXPECT_TRUE(fs::exists(folder.path("d-2A-Fig-Total size.txt")));
  EXPECT_EQ(lineCount(fileText(folder.path("band.csv"))), 1 + 21);
}

// Runs of one table: every level of the band is the run's own size, as its
// figure file of the total size shows it.
TEST(BatchCommand, TheBandOfOneTableRunThriceIsThatTable) {
  RunFolder folder("batch-same");
  std::string list;
  for (const char* name : {"x.txt", "y.txt", "z.txt"})
    list.append(" ").append(q(folder.copy(examplePath("moth.txt"), name)));
  const CliResult batch =
      runCli("batch" + list + " --sim-time 25 --band " + q(folder.path("band.csv")), folder.dir().string());
  ASSERT_EQ(batch.status, 0) << batch.err;
  const std::string band = fileText(folder.path("band.csv"));
  const std::string figure = fileText(folder.path("y-2A-Fig-Total size.txt"));
  for (int day = 0; day <= 25; ++day) {
    // Figure row: time, total, weighed, ET, cumulated; band row: time, seven
    // totals, seven weighed sizes.
    std::vector<std::string> row, sizes;
    std::stringstream bandLine(lineOf(band, day + 1)), figureLine(lineOf(figure, day + 2));
    for (std::string item; std::getline(bandLine, item, ',');)
      row.push_back(item);
    for (std::string item; std::getline(figureLine, item, ',');)
      sizes.push_back(item);
    ASSERT_EQ(row.size(), 15u);
    EXPECT_EQ(row[0], sizes[0]);
    for (int level = 1; level <= 7; ++level) {
      EXPECT_EQ(row[level], sizes[1]) << "day " << day;
      EXPECT_EQ(row[7 + level], sizes[2]) << "day " << day;
    }
  }
}

TEST(BatchCommand, AnUnusableCommandLineExitsWithTwo) {
  RunFolder folder("batch-usage");
  for (const char* arguments : {"batch", "batch a.txt --export total:5", "batch a.txt --export sizes:5:f.txt",
                                "batch a.txt --jobs 0", "batch a.txt --answer novalue",
                                "batch a.txt --answers missing.txt"}) {
    const CliResult result = runCli(arguments, folder.dir().string());
    EXPECT_EQ(result.status, 2) << arguments;
    EXPECT_NE(result.err.find("Usage:"), std::string::npos) << arguments;
  }
}

} // namespace
} // namespace vorlex::testing
