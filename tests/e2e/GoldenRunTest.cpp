// Whole sessions run through the command line, every output file compared
// with a reviewed copy in tests/data/golden/<case>/. After a deliberate
// change, run the tests with VORLEX_UPDATE_GOLDEN=1 to rewrite the copies,
// then review the difference before committing it. A run that stops with a
// failure is a case too: its exit status is part of the case, and what it
// wrote before stopping is compared as for any other run. A case may read
// other files of tests/data besides its data file, and may follow an earlier
// run in the same folder whose outputs it reads; an answer names a file of
// the run's folder as RUN/name.
#include "support/CaseNames.h"
#include "support/CliRun.h"
#include "support/RunFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

namespace vorlex::testing {
namespace {

namespace fs = std::filesystem;

// A run that goes before the case's own in the same folder; it ends normally.
struct EarlierRun {
  std::string dataFile; // in tests/data or examples
  std::string strategy;
  int simTime;
  std::vector<std::string> answers;
  std::vector<std::string> options = {}; // more arguments of the command
};

struct GoldenCase {
  std::string name;
  std::string dataFile; // in tests/data or examples
  std::string strategy;
  int simTime;
  std::vector<std::string> answers;
  int exitStatus = 0;
  std::vector<std::string> inputs = {}; // more files of tests/data the runs read
  std::optional<EarlierRun> earlier = {};
  std::vector<std::string> options = {}; // more arguments of the command
};

std::ostream& operator<<(std::ostream& out, const GoldenCase& c) { return out << c.name; }

std::string sourceOf(const std::string& dataFile) {
  const std::string inTests = dataPath(dataFile);
  return fs::exists(inTests) ? inTests : examplePath(dataFile);
}

std::vector<std::string> filesIn(const fs::path& dir) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(dir))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

// The command line's own output, with the run's folder made neutral.
std::string neutral(std::string text, const std::string& folder) {
  for (auto at = text.find(folder); at != std::string::npos; at = text.find(folder))
    text.replace(at, folder.size(), "RUN");
  return text;
}

// The answers name the files of the run's folder as RUN/name.
std::string inFolder(std::string answer, const std::string& folder) {
  const std::string mark = "RUN/";
  for (auto at = answer.find(mark); at != std::string::npos; at = answer.find(mark, at + folder.size() + 1))
    answer.replace(at, mark.size(), folder + "/");
  return answer;
}

// Runs one command of a case and keeps what it printed, made neutral, as
// <stream><suffix>.txt in the folder.
void runAndKeepOutput(const RunFolder& folder, const std::string& dataFile, const std::string& strategy,
                      int simTime, const std::vector<std::string>& answers,
                      const std::vector<std::string>& options, int exitStatus, const std::string& suffix) {
  const std::string dir = folder.dir().string();
  std::string arguments = "run " + quoted(folder.path(dataFile)) + " --strategy " + strategy +
                          " --sim-time " + std::to_string(simTime) + " --date 2026-11-21";
  for (const std::string& answer : answers)
    arguments += " --answer " + quoted(inFolder(answer, dir));
  for (const std::string& option : options)
    arguments.append(" ").append(quoted(option));
  const CliResult result = runCli(arguments, dir);
  ASSERT_EQ(result.status, exitStatus) << dataFile << ": " << result.err;
  std::ofstream(folder.path("stdout" + suffix + ".txt"), std::ios::binary) << neutral(result.out, dir);
  // Only a run that has something to say on the error stream has this copy.
  if (!result.err.empty())
    std::ofstream(folder.path("stderr" + suffix + ".txt"), std::ios::binary) << neutral(result.err, dir);
}

class GoldenRun : public ::testing::TestWithParam<GoldenCase> {};

TEST_P(GoldenRun, EveryOutputFileMatchesItsReviewedCopy) {
  const GoldenCase& c = GetParam();
  RunFolder folder("golden-" + c.name);
  // The data files and other inputs: each is read, never written, and is no
  // output of the case.
  std::vector<std::string> inputs = c.inputs;
  inputs.push_back(c.dataFile);
  if (c.earlier)
    inputs.push_back(c.earlier->dataFile);
  for (const std::string& input : inputs)
    folder.copy(sourceOf(input), input);

  if (c.earlier) {
    const EarlierRun& e = *c.earlier;
    runAndKeepOutput(folder, e.dataFile, e.strategy, e.simTime, e.answers, e.options, 0, "-earlier");
    if (::testing::Test::HasFatalFailure())
      return;
  }
  runAndKeepOutput(folder, c.dataFile, c.strategy, c.simTime, c.answers, c.options, c.exitStatus, "");
  if (::testing::Test::HasFatalFailure())
    return;
  for (const std::string& input : inputs) {
    EXPECT_EQ(fileText(folder.path(input)), fileText(sourceOf(input))) << input << " is never written";
    fs::remove(folder.path(input));
  }

  const fs::path golden = fs::path(VORLEX_TEST_DATA_DIR) / "golden" / c.name;
  if (std::getenv("VORLEX_UPDATE_GOLDEN")) {
    fs::remove_all(golden);
    fs::create_directories(golden);
    for (const auto& name : filesIn(folder.dir()))
      fs::copy_file(folder.dir() / name, golden / name);
    GTEST_SKIP() << "rewrote " << golden;
  }
  ASSERT_TRUE(fs::exists(golden)) << "no reviewed copies in " << golden;
  const auto written = filesIn(folder.dir());
  EXPECT_EQ(written, filesIn(golden));
  for (const auto& name : written) {
    if (!fs::exists(golden / name))
      continue;
    EXPECT_EQ(fileText(folder.path(name)), fileText((golden / name).string())) << c.name << ": " << name;
  }
}

// A run of the example over 60 days with more options.
GoldenCase onMoth(std::string name, std::string strategy, std::vector<std::string> options) {
  GoldenCase c{std::move(name), "moth.txt", std::move(strategy), 60, {}};
  c.options = std::move(options);
  return c;
}

// The title of the file dialog that chooses a total-predation file.
constexpr const char* kPredationFile =
    "Input predation data (file 10X with time lag or 9 without time lag) in predator VORLEX folder.";

// The titles the four one-day exports share.
const std::string kOpenOrAppend = "Open for the first time or append data to an existing file?";
const std::string kFileCode = "Enter a file code (percentile, treatment, etc.)";

const GoldenCase kCases[] = {
    {"moth-no-control", "moth.txt", "no-control", 30, {}},
    // A long run of a large table (tools/make_example.py beetle-long): 301
    // ages, eight stages whose age ranges overlap, 300 days.
    {"beetle-long-no-control", "beetle-long.txt", "no-control", 300, {}},
    {"moth-cxj-lag",
     "moth-cxj.txt",
     "no-control",
     20,
     {"Attention=No", "Attention=Yes", "Add time to total predation data.=3",
      "Predator? Parasitoid? Pest?=moths eaten"}},
    {"moth-releases-late", "moth-releases.txt", "no-control", 25, {"Initial population released date?=4"}},
    {"moth-physogastry-half-day",
     "moth.txt",
     "no-control",
     20,
     {"Attention=Yes", "Attention=No", "Each time unit =?=0.5", "Do you need flow record?=Yes"}},
    {"moth-extra-mortality",
     "moth.txt",
     "extra-mortality",
     40,
     {"Overwinter stage=3", "Date of overwinter mortality=20", "Overwinter mortality=0.5",
      "First extra mortality to d(x,j) of a specific stage=2",
      "Date after that there will be extra mortality to matrix D=5",
      "Date after that there will be no extra mortality to matrix D=15",
      "First extra mortality to matrix D=0.3",
      "Is there another extra mortality to d(x,j) of a specific stage?=3",
      "Date after that there will be the second extra mortality=25",
      "Date after that the second extra mortality will stop.=30", "Enter the second extra mortality=0.5",
      "Date after that fecundity will be lower=30", "Date after that fecundity will be normal=35",
      "Lower fecundity=0.3"}},
    {"tiny3-only-totals",
     "tiny3.txt",
     "no-control",
     5,
     {"Prepare only the data files of total population size and log(total)?=Yes"}},
    {"moth-predefined", "moth.txt", "predefined", 60, {}},
    {"moth-predefined-overlap", "moth-controls.txt", "predefined", 20, {"Do you need flow record?=Yes"}},
    {"moth-auto-et", "moth.txt", "auto-et", 60, {}},
    {"moth-optimize-first", "moth.txt", "optimize-first", 60, {}},
    {"moth-controls-optimize-interval", "moth-controls.txt", "optimize-interval", 20, {"Do you need flow record?=Yes"}},
    {"moth-auto-et-steps", "moth-auto.txt", "auto-et", 40, {}},
    {"moth-harvest", "moth.txt", "harvest", 60, {}},
    {"moth-cxj-harvest-from-0",
     "moth-cxj.txt",
     "harvest",
     30,
     {"Attention=No", "Attention=Yes", "Add time to total predation data.=3",
      "Predator? Parasitoid? Pest?=moths eaten", "Harvest begin date =?=0", "Harvest end date =?=30"}},
    {"moth-harvest-after-100",
     "moth.txt",
     "harvest",
     110,
     {"Harvest begin date =?=101", "Harvest end date =?=110"}},
    {"moth-harvest-to-201",
     "moth.txt",
     "harvest",
     60,
     {"Harvest begin date =?=1", "Harvest end date =?=201"},
     1},
    {"moth-lambda", "moth.txt", "lambda", 60, {}},
    {"moth-lambda-physogastry", "moth.txt", "lambda", 60, {"Attention=Yes", "Attention=No"}},
    {"tiny3-predation-coefficient",
     "tiny3.txt",
     "predation",
     10,
     {std::string(kPredationFile) + "=RUN/predation-rising.txt", "Predation coefficient=.5"},
     0,
     {"predation-rising.txt"}},
    {"tiny3-predation-overrun",
     "tiny3.txt",
     "predation",
     10,
     {std::string(kPredationFile) + "=RUN/predation-overrun.txt"},
     0,
     {"predation-overrun.txt"}},
    {"tiny3-predation-cancelled", "tiny3.txt", "predation", 10, {}},
    {"tiny3-predation-short",
     "tiny3.txt",
     "predation",
     10,
     {std::string(kPredationFile) + "=RUN/predation-short.txt"},
     0,
     {"predation-short.txt"}},
    {"predator-prey-pair",
     "aphid.txt",
     "predation",
     60,
     {std::string(kPredationFile) + "=RUN/ladybeetle-10X-Total aphids eaten released after 5 time units.txt"},
     0,
     {},
     EarlierRun{"ladybeetle.txt",
                "no-control",
                60,
                {"Attention=No", "Attention=Yes", "Add time to total predation data.=5",
                 "Predator? Parasitoid? Pest?=aphids eaten"}}},
    // Density-dependent mortality under each form of K(t): without control
    // the weighed size passes K within the run; under control at ET the
    // capacities are small enough for the controlled population to pass them.
    onMoth("moth-capacity-logistic", "no-control", {"--carrying-capacity", "logistic:500,20,.15"}),
    onMoth("moth-auto-et-capacity-logistic", "auto-et", {"--carrying-capacity", "logistic:40,5,.1"}),
    onMoth("moth-capacity-polynomial", "no-control", {"--carrying-capacity", "polynomial:10,50,-0.6,2,0,50"}),
    onMoth("moth-auto-et-capacity-polynomial", "auto-et",
           {"--carrying-capacity", "polynomial:5,2,-0.02,2,0,60"}),
    onMoth("moth-capacity-parabola", "no-control", {"--carrying-capacity", "parabola:10,600,45,10,60"}),
    onMoth("moth-auto-et-capacity-parabola", "auto-et", {"--carrying-capacity", "parabola:5,60,45,0,60"}),
    onMoth("moth-auto-et-linear-threshold", "auto-et", {"--et", "linear:5,.5"}),
    // From one count of 40 larvae placed at their entry age, with the
    // example's stage-to-stage file.
    {"moth-after-sampling",
     "moth.txt",
     "after-sampling",
     30,
     {"Open 0A4_Stage2StageTime.txt=RUN/moth-0A4_Stage2StageTime.txt",
      "Open sampling data file=RUN/moth-larva-count.txt"},
     0,
     {"moth-0A4_Stage2StageTime.txt", "moth-larva-count.txt"}},
    // A count of another day than 0 leaves the start empty: the run stops
    // at day 0, before the report has a page.
    {"moth-after-sampling-day5",
     "moth.txt",
     "after-sampling",
     30,
     {"Open 0A4_Stage2StageTime.txt=RUN/stage-times-five.txt",
      "Open sampling data file=RUN/sample-larvae-day5.txt"},
     1,
     {"stage-times-five.txt", "sample-larvae-day5.txt"}},
    // The one-day exports: every kind on a run with consumption data, the
    // stage sizes clicked first and so headed with day 0; then a second
    // session appending to the files of a first one; a cancelled file dialog;
    // consumption asked of a table without it.
    {"moth-cxj-exports",
     "moth-cxj.txt",
     "no-control",
     20,
     {"Attention=No", "Attention=Yes", "Add time to total predation data.=0",
      "Predator? Parasitoid? Pest?=moths eaten", "Save stage size for specific date=12",
      "Save total population size for specific date=12.5", "Save total consumption for specific date=13.5",
      "Save total weighted size for specific date=20", "Open a file to save N(x,j,t).=RUN/stages.txt",
      "Open a file to save N(t).=RUN/total.txt", "Open a file to save C(t).=RUN/consumption.txt",
      "Open a file to save W(t).=RUN/weighed.txt", kOpenOrAppend + "=Yes", kOpenOrAppend + "=Yes",
      kOpenOrAppend + "=Yes", kOpenOrAppend + "=Yes", kFileCode + "=s", kFileCode + "=t", kFileCode + "=c",
      kFileCode + "=w"},
     0,
     {},
     {},
     {"--export", "stages", "--export", "total", "--export", "consumption", "--export", "weighed"}},
    {"moth-exports-appended",
     "moth-controls.txt",
     "no-control",
     30,
     {"Save total population size for specific date=10", "Save stage size for specific date=10",
      kOpenOrAppend + "=No", kOpenOrAppend + "=No", "Open a file to append N(t).=RUN/total.txt",
      "Open a file to append N(x,j,t).=RUN/stages.txt", kFileCode + "=second"},
     0,
     {},
     EarlierRun{"moth.txt",
                "no-control",
                30,
                {"Save total population size for specific date=30", "Save stage size for specific date=20",
                 kOpenOrAppend + "=Yes", kOpenOrAppend + "=Yes", "Open a file to save N(t).=RUN/total.txt",
                 "Open a file to save N(x,j,t).=RUN/stages.txt", kFileCode + "=first"},
                {"--export", "total", "--export", "stages"}},
     {"--export", "total", "--export", "stages"}},
    {"moth-export-cancelled",
     "moth.txt",
     "no-control",
     10,
     {"Save total population size for specific date=5", kOpenOrAppend + "=Yes"},
     1,
     {},
     {},
     {"--export", "total"}},
    {"moth-export-consumption-without-cxj",
     "moth.txt",
     "no-control",
     10,
     {"Save total consumption for specific date=5", kOpenOrAppend + "=Yes",
      "Open a file to save C(t).=RUN/consumption.txt"},
     0,
     {},
     {},
     {"--export", "consumption"}},
};

INSTANTIATE_TEST_SUITE_P(Sessions, GoldenRun, ::testing::ValuesIn(kCases), CaseName{});

// Optimising the first control projects the data file's schedule as the
// predefined control does: the files of the projection are the same.
TEST(GoldenRuns, TheFirstControlOptimisedProjectsAsThePredefinedSchedule) {
  const fs::path golden = fs::path(VORLEX_TEST_DATA_DIR) / "golden";
  for (const char* name : {"moth-1A-Fig-Stage size.txt", "moth-2A-Fig-Total size.txt", "moth-4A-Fig-Vulnerable size.txt",
                           "moth-5A-Fig-Stage death.txt", "moth-8-Fig-Total difference.txt"})
    EXPECT_EQ(fileText((golden / "moth-optimize-first" / name).string()),
              fileText((golden / "moth-predefined" / name).string()))
        << name;
}

} // namespace
} // namespace vorlex::testing
