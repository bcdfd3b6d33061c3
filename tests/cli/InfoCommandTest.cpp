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
  const std::filesystem::path dir = std::filesystem::path(::testing::TempDir()) / "vorlex-cli";
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
                            "insect days\"\n");
}

TEST(InfoCommand, MissingFileAndBadArguments) {
  EXPECT_EQ(runCli("info /nonexistent/nothing.txt").status, 1);
  EXPECT_NE(runCli("info /nonexistent/nothing.txt").err.find("File not found"), std::string::npos);
  EXPECT_EQ(runCli("info").status, 2);
  EXPECT_EQ(runCli("frobnicate").status, 2);
}

} // namespace
} // namespace vorlex::testing
