// `vorlex check`: the whole report of a data file against a reviewed copy in
// tests/data/check. After a deliberate change, run with VORLEX_UPDATE_GOLDEN=1
// to rewrite the copies and review the difference.
#include "support/CliRun.h"
#include "support/RunFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

namespace vorlex::testing {
namespace {

namespace fs = std::filesystem;

struct Edit {
  std::string from, to;
};

struct CheckCase {
  std::string name;
  std::string source; // a file of examples/ or tests/data
  std::vector<Edit> edits;
  std::string options;
  int status;
  std::string cutBefore = {}; // the file ends in front of this text
};

std::string sourceText(const std::string& source) {
  const std::string example = examplePath(source);
  return fileText(fs::exists(example) ? example : dataPath(source));
}

const CheckCase kCases[] = {
    // The bundled example: its statistics are those of its table.
    {"moth", "moth.txt", {}, "", 0},
    // Statistics edited by hand: F by 1.1e-7 relative still agrees, R0 and
    // lambda by more than 1e-6 do not (lambda twice: as e^r and as the
    // dominant eigenvalue).
    {"moth-edited-statistics",
     "moth.txt",
     {{"249.989171350695", "249.9892"}, {"56.6213567831293", "56.7"}, {"1.14248561475288", "1.1425"}},
     "",
     3},
    // The form with C(x,j): the consumption block and its own selector.
    {"moth-cxj", "moth-cxj.txt", {}, "--cxj", 0},
    // A stepwise ET of three periods and a control of three days.
    {"moth-auto", "moth-auto.txt", {}, "", 0},
    // Lowered fecundity: the table's statistics are those of the lowered
    // rates.
    {"moth-lowered-fecundity",
     "moth.txt",
     {{"lower the fecundity.\"\r\n1\r\n", "lower the fecundity.\"\r\n.5\r\n"}},
     "",
     3},
    // A file cut short and a plain file read as one with C(x,j): the report
    // runs up to the item that stops it.
    {"moth-cut", "moth.txt", {}, "", 1, "\"Mean fecundity\""},
    {"moth-as-cxj", "moth.txt", {}, "--cxj", 1},
};

TEST(CheckCommand, ReportsOfDataFiles) {
  for (const CheckCase& c : kCases) {
    SCOPED_TRACE(c.name);
    RunFolder folder("check-" + c.name);
    std::string text = sourceText(c.source);
    for (const Edit& edit : c.edits) {
      text = replaced(text, edit.from, edit.to);
      ASSERT_FALSE(text.empty()) << "no " << edit.from;
    }
    if (!c.cutBefore.empty())
      text = text.substr(0, text.find(c.cutBefore));
    const std::string dataFile = folder.path(c.name + ".txt");
    std::ofstream(dataFile, std::ios::binary) << text;

    const CliResult result = runCli("check " + quoted(dataFile) + " " + c.options, folder.dir().string());
    EXPECT_EQ(result.status, c.status) << result.err;
    EXPECT_EQ(result.err, "");
    // Messages name the file; the copies name it without its folder.
    std::string report = result.out;
    for (std::string at; !(at = replaced(report, folder.dir().string() + "/", "")).empty();)
      report = at;

    const std::string golden = dataPath("check/" + c.name + ".expected");
    if (std::getenv("VORLEX_UPDATE_GOLDEN")) {
      std::ofstream(golden, std::ios::binary) << report;
      continue;
    }
    EXPECT_EQ(report, fileText(golden));
  }
}

// The file named on the command line is checked in the form the option
// names; nothing else is asked, and the usage covers mistakes.
TEST(CheckCommand, CommandLineMistakes) {
  RunFolder folder("check-usage");
  struct Case {
    std::string arguments;
    int status;
    std::string errStart;
  };
  const Case cases[] = {
      {"check", 2, "vorlex: no data file given\nUsage:\n  vorlex check DATAFILE"},
      {"check a.txt b.txt", 2, "vorlex: unexpected argument 'b.txt'"},
      {"check --frobnicate", 2, "vorlex: unexpected argument '--frobnicate'"},
      {"check /nonexistent/moth.txt", 2, "vorlex: the data file '/nonexistent/moth.txt' does not exist"},
  };
  for (const Case& c : cases) {
    const CliResult result = runCli(c.arguments, folder.dir().string());
    EXPECT_EQ(result.status, c.status) << c.arguments;
    EXPECT_EQ(result.err.substr(0, c.errStart.size()), c.errStart) << c.arguments;
    EXPECT_EQ(result.out, "") << c.arguments;
  }
  const CliResult help = runCli("check --help", folder.dir().string());
  EXPECT_EQ(help.status, 0);
  const std::string usage = "Usage:\n  vorlex check DATAFILE [--cxj]\n";
  EXPECT_EQ(help.out.substr(0, usage.size()), usage);
}

} // namespace
} // namespace vorlex::testing
