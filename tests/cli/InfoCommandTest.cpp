#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

namespace vorlex::testing {
namespace {

struct CommandResult {
  int status = -1;
  std::string out, err;
};

CommandResult runCli(const std::string& arguments) {
  const std::filesystem::path dir = std::filesystem::path(::testing::TempDir()) / "vorlex-cli" /
                                    ::testing::UnitTest::GetInstance()->current_test_info()->name();
  std::filesystem::create_directories(dir);
  const std::string out = (dir / "out.txt").string(), err = (dir / "err.txt").string();
  const std::string command = std::string(VORLEX_CLI) + " " + arguments + " >" + out + " 2>" + err;
  const int raw = std::system(command.c_str());
  return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, fileText(out), fileText(err)};
}

// The summary of the example, reviewed by hand; regenerate with
//   build/bin/vorlex info examples/moth.txt > tests/data/moth-info.expected
// (run from the top of the source tree) and review the difference.
TEST(InfoCommand, SummaryOfTheExample) {
  const CommandResult result = runCli("info " + std::string(VORLEX_SOURCE_DIR) + "/examples/moth.txt");
  EXPECT_EQ(result.status, 0) << result.err;
  std::string expected = fileText(dataPath("moth-info.expected"));
  expected = replaced(expected, "Data file:    examples/moth.txt",
                      "Data file:    " + std::string(VORLEX_SOURCE_DIR) + "/examples/moth.txt");
  EXPECT_EQ(result.out, expected);
}

TEST(InfoCommand, BrokenFileStopsWithTheErrorAndItsPlace) {
  const std::string moth = fileText(examplePath("moth.txt"));
  const std::string path = ::testing::TempDir() + "/cut.txt";
  std::ofstream(path, std::ios::binary) << moth.substr(0, moth.find("\"Mean fecundity\""));
  const CommandResult result = runCli("info " + path);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "vorlex: Run-time error '62': Input past end of file\nData file: " + path +
                            ", item 355, line 127, last description read: \"Previous cumulative weighed "
                            "insect days\"\nLikely cause: the data file ended before all of its items were read: "
                            "a line or block is missing, or a count in the file (stages, last age, releases, "
                            "controls) does not match the lines that follow.\n");
}

// A control byte of a broken file reaches the terminal escaped.
TEST(InfoCommand, ControlBytesOfABrokenFileAreShownEscaped) {
  const std::string moth = fileText(examplePath("moth.txt"));
  const std::string path = ::testing::TempDir() + "/escape.txt";
  const std::string cut = moth.substr(0, moth.find("\"Mean fecundity\""));
  std::ofstream(path, std::ios::binary) << replaced(cut, "weighed insect days", "weighed \x1B[31minsect days");
  const CommandResult result = runCli("info " + path);
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.err.find("last description read: \"Previous cumulative weighed \\x1B[31minsect days\""),
            std::string::npos)
      << result.err;
  EXPECT_EQ(result.err.find('\x1B'), std::string::npos);
}

// What the command line says before it does any work: the usage where it
// was asked for (status 0) or where the command line can't be used (2, on
// the error stream), the version, and a data file it can't read.
TEST(CommandLine, UsageVersionAndUnusableDataFiles) {
  const std::string folder = ::testing::TempDir();
  struct Case {
    std::string arguments;
    int status;
    std::string outStart, errStart;
  };
  const Case cases[] = {
      {"", 2, "", "Usage:\n  vorlex run DATAFILE"},
      {"--help", 0, "Usage:\n  vorlex run DATAFILE", ""},
      {"run --help", 0, "Usage:\n  vorlex run DATAFILE", ""},
      {"info --help", 0, "Usage:\n  vorlex info DATAFILE", ""},
      {"sampling --help", 0, "Usage:\n  vorlex sampling [DATAFILE]", ""},
      {"predict --help", 0, "Usage:\n  vorlex predict DATAFILE", ""},
      {"predict /nonexistent/nothing.txt", 2, "", "vorlex: the data file '/nonexistent/nothing.txt' does not exist"},
      {"--version", 0, "vorlex " VORLEX_VERSION "\n", ""},
      {"frobnicate", 2, "", "vorlex: unknown command 'frobnicate'"},
      {"info", 2, "", "Usage:"},
      {"info /nonexistent/nothing.txt", 2, "", "vorlex: the data file '/nonexistent/nothing.txt' does not exist"},
      {"info " + folder, 2, "", "vorlex: '" + folder + "' is a folder, not a data file"},
      {"run /nonexistent/nothing.txt", 2, "", "vorlex: the data file '/nonexistent/nothing.txt' does not exist"},
      {"run " + folder, 2, "", "vorlex: '" + folder + "' is a folder, not a data file; nothing was asked"},
  };
  for (const Case& c : cases) {
    const CommandResult result = runCli(c.arguments);
    EXPECT_EQ(result.status, c.status) << c.arguments;
    EXPECT_EQ(result.out.substr(0, c.outStart.size()), c.outStart) << c.arguments;
    EXPECT_EQ(result.err.substr(0, c.errStart.size()), c.errStart) << c.arguments;
    if (c.outStart.empty()) {
      EXPECT_EQ(result.out, "") << c.arguments;
    }
  }
}

} // namespace
} // namespace vorlex::testing
