#include "cli/RunCommand.h"
#include "mainform/MainForm.h"
#include "support/CliRun.h"
#include "support/RunFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace vorlex::testing {
namespace {

namespace fs = std::filesystem;

TEST(RunCommand, ExtinctionIsToldAndTheRunEndsNormally) {
  RunFolder folder("run-extinct");
  // Without fecundity the last individuals are gone after age 3.
  const std::string barren = replaced(fileText(dataPath("tiny3.txt")), "0,4,2", "0,0,0");
  ASSERT_FALSE(barren.empty());
  const std::string data = folder.path("barren.txt");
  std::ofstream(data, std::ios::binary) << barren;
  const CliResult result = runCli("run " + quoted(data) + " --sim-time 10", folder.dir().string());
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find("[Population size=0] Simulation time = 10. At t= 4. Population size=0 (D)! "
                            "Stop simulation!\n"),
            std::string::npos)
      << result.out;
  EXPECT_NE(result.out.find("Last day reached: 4\nTotal size on day 4: 0\n"), std::string::npos)
      << result.out;
  EXPECT_TRUE(fs::exists(folder.path("barren-2A-Fig-Total size.txt")));
}

TEST(RunCommand, ARunTimeErrorStopsWithItsMessageAndPlace) {
  RunFolder folder("run-broken");
  const std::string text = fileText(dataPath("tiny3.txt"));
  const std::string data = folder.path("cut.txt");
  std::ofstream(data, std::ios::binary) << text.substr(0, text.find("\"Mean fecundity\""));
  const CliResult result = runCli("run " + quoted(data), folder.dir().string());
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.err.find("vorlex: Run-time error '62': Input past end of file\nData file: " + data),
            std::string::npos)
      << result.err;
}

TEST(RunCommand, AnUnusableCommandLineExitsWithTwo) {
  RunFolder folder("run-usage");
  EXPECT_EQ(runCli("run", folder.dir().string()).status, 2);
  EXPECT_EQ(runCli("run x.txt --strategy sideways", folder.dir().string()).status, 2);
  EXPECT_EQ(runCli("run x.txt --answer novalue", folder.dir().string()).status, 2);
  EXPECT_EQ(runCli("run x.txt --carrying-capacity cubic:1,2", folder.dir().string()).status, 2);
  EXPECT_EQ(runCli("run x.txt --et linear:1", folder.dir().string()).status, 2);
}

} // namespace
} // namespace vorlex::testing

namespace vorlex::testing {
namespace {

// The help names a strategy before "still to come" exactly when this build
// runs it.
TEST(RunCommand, HelpNamesEveryStrategyAndEachRuns) {
  const std::string usage = cli::kRunUsage;
  const std::pair<const char*, int> strategies[] = {
      {"no-control", 1}, {"predefined", 2}, {"auto-et", 3}, {"optimize-first", 4}, {"optimize-interval", 5},
      {"harvest", 6},    {"lambda", 7},     {"predation", 8}, {"extra-mortality", 9}};
  for (const auto& [name, option] : strategies) {
    EXPECT_NE(usage.find(name), std::string::npos) << name;
    EXPECT_TRUE(MainForm::hasDriver(MainForm::optManagementOf(option))) << name;
  }
}

} // namespace
} // namespace vorlex::testing

namespace vorlex::testing {
namespace {

// A file that can't be written stops the run with the system's word for
// it and the file's name; the summary of files written never comes.
TEST(RunCommand, AFullDiskStopsTheRunNamingTheFile) {
  RunFolder folder("run-disk-full");
  const std::string data = folder.copy(examplePath("moth.txt"), "moth.txt");
  std::filesystem::create_symlink("/dev/full", folder.path("moth-2A-Fig-Total size.txt"));
  const CliResult result = runCli("run " + quoted(data) + " --sim-time 10", folder.dir().string());
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.err.find("Run-time error '61': Disk full\n"), std::string::npos) << result.err;
  EXPECT_NE(result.err.find("\nFile: " + folder.path("moth-2A-Fig-Total size.txt") + "\n"),
            std::string::npos)
      << result.err;
  EXPECT_EQ(result.out.find("Files written:"), std::string::npos);
  // The files before it are whole.
  EXPECT_NE(fileText(folder.path("moth-1A-Fig-Stage size.txt")).find("\r\n10,"), std::string::npos);
}

} // namespace
} // namespace vorlex::testing

namespace vorlex::testing {
namespace {

// Each failure says what, where and why in plain words.
TEST(RunCommand, FailuresSayWhereTheyHappenedAndTheirLikelyCause) {
  struct Case {
    const char* arguments;
    const char* what;
    const char* where;
    const char* cause;
  };
  const Case cases[] = {
      {"--sim-time 99999", "Run-time error '6': Overflow\n", "Step 1, the simulation time: \"99999\"\n",
       "Likely cause: a number grew beyond"},
      {"--sim-time 2000", "Run-time error '9': Subscript out of range\n", ", item 7, line 6, last description read",
       "the simulation time can be at most 1004."},
      {"--strategy harvest --answer 'Harvest end date =?=201'", "Run-time error '9': Subscript out of range\n",
       "Run of \"Population growth with stage harvesting\", day 0, file being written: ",
       "Likely cause: a value in the data file or an answer lies outside"},
      {"--carrying-capacity logistic:10000,0,.2", "Run-time error '11': Division by zero\n",
       "\"Calculate K(i) and show graph\" on \"K(0), Kmax, r and simulation time\", Logistic equation\n",
       "Likely cause:"},
      {"--et hyperbola:100,0", "Run-time error '6': Overflow\n",
       "\"Hyperbola equation: ET(t) = a* t / (b + t)\" on \"ET and AT\"\n", "Likely cause:"},
  };
  for (const Case& c : cases) {
    RunFolder folder("run-failure");
    const std::string data = folder.copy(examplePath("moth.txt"), "moth.txt");
    const CliResult result = runCli("run " + quoted(data) + " " + c.arguments, folder.dir().string());
    EXPECT_EQ(result.status, 1) << c.arguments;
    for (const char* part : {c.what, c.where, c.cause})
      EXPECT_NE(result.err.find(part), std::string::npos) << c.arguments << "\n" << result.err;
  }
}

} // namespace
} // namespace vorlex::testing

namespace vorlex::testing {
namespace {

// A huge broken description makes no huge message: 80 characters and a
// mark where it was cut.
TEST(RunCommand, ALongDescriptionIsCutInTheMessage) {
  RunFolder folder("run-long-description");
  const std::string moth = fileText(examplePath("moth.txt"));
  const std::string cut = moth.substr(0, moth.find("\"Mean fecundity\""));
  const std::string data = folder.path("long.txt");
  std::ofstream(data, std::ios::binary) << replaced(cut, "\"Previous cumulative weighed insect days\"",
                                                    "\"" + std::string(5000, 'w') + "\"");
  const CliResult result = runCli("run " + quoted(data), folder.dir().string());
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.err.find("\"" + std::string(80, 'w') + "[... 4920 more characters]\"\n"), std::string::npos)
      << result.err;
  EXPECT_LT(result.err.size(), 1000u);
}

// A data file whose name doesn't end in a dot and three letters still names
// the outputs by cutting four characters; the user is told first.
TEST(RunCommand, AnOddDataFileNameIsToldBeforeAnythingIsWritten) {
  RunFolder folder("run-odd-name");
  const std::string data = folder.copy(examplePath("moth.txt"), "moth1");
  const CliResult result = runCli("run " + quoted(data) + " --sim-time 5", folder.dir().string());
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find("[Output names] The outputs will be named after \"" + folder.path("m") + "\""),
            std::string::npos)
      << result.out;
  EXPECT_TRUE(std::filesystem::exists(folder.path("m_0_output.txt")));
}

} // namespace
} // namespace vorlex::testing
