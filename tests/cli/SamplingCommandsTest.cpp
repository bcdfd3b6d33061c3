#include "support/CaseNames.h"
#include "support/CliRun.h"
#include "support/RunFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace vorlex::testing {
namespace {

struct CommandCase {
  const char* name;
  std::string arguments; // EX/ names a file of examples, DATA/ of tests/data
  int status;
  std::string out;    // the whole standard output, or a golden file's name when it ends in .expected
  std::string errHas; // a part of the error stream
};

std::string withPaths(std::string text) {
  for (const auto& [mark, folder] : {std::pair<std::string, std::string>{"EX/", examplePath("")},
                                     std::pair<std::string, std::string>{"DATA/", dataPath("")}})
    for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at + folder.size()))
      text.replace(at, mark.size(), folder);
  return text;
}

const std::string kTimes = " --answer 'Open 0A4_Stage2StageTime.txt=EX/moth-0A4_Stage2StageTime.txt'";
const std::string kCount = " --answer 'Open sampling data file=EX/moth-larva-count.txt'";

const CommandCase kCases[] = {
    {"moths from forty larvae",
     "predict MOTH" + kTimes + kCount + " --answer 'Which stage is to be predicted?=4'", 0,
     "Predicted emergence: stage 4 (Fema) on day 21, size 10.908\n",
     "[Which stage is to be predicted?] You have sampled the field data of Larv. It is stage2. => 4\n"},
    {"pupae by default", "predict MOTH" + kTimes + kCount, 0,
     "Predicted emergence: stage 3 (Pupa) on day 14, size 25.14\n", "=> 3 (default)"},
    {"a stage above the last with no further answer",
     "predict MOTH" + kTimes + kCount + " --answer 'Which stage is to be predicted?=7'", 2, "",
     "vorlex: the stage to predict, '7', is above the number of stages of the life table, and no further "
     "answer to 'Which stage is to be predicted?' was given\n"},
    {"the prediction takes one record",
     "predict MOTH" + kTimes + " --answer 'Open sampling data file=DATA/sample-two-records.txt'", 1, "",
     "The sampling file has 2 records; a prediction takes exactly one."},
    {"predict needs a data file", "predict", 2, "", "no data file given"},
    {"field counts of the example",
     "sampling MOTH --answer 'Open sampling data file=EX/moth-field-counts.txt'", 0,
     "sampling-moth-field-counts.expected", "[Open sampling data file]"},
    {"demonstration stages without a life table",
     "sampling --answer 'Open sampling data file=EX/moth-field-counts.txt'", 0,
     "sampling-demonstration.expected", ""},
    {"a cancelled dialog shows no chart", "sampling MOTH --sim-time 3", 0, "Time\n", "(Cancel)"},
    {"sim time without a data file", "sampling --sim-time 3", 2, "", "goes with a data file"},
};

class SamplingCommands : public ::testing::TestWithParam<CommandCase> {};

TEST_P(SamplingCommands, PrintTheirResult) {
  const CommandCase& c = GetParam();
  RunFolder folder("sampling-commands");
  std::string arguments = withPaths(c.arguments);
  if (const auto at = arguments.find("MOTH"); at != std::string::npos)
    arguments.replace(at, 4, quoted(folder.copy(examplePath("moth.txt"), "moth.txt")));
  const CliResult result = runCli(arguments, folder.dir().string());
  EXPECT_EQ(result.status, c.status) << result.err;
  EXPECT_NE(result.err.find(c.errHas), std::string::npos) << result.err;
  if (!c.out.ends_with(".expected")) {
    EXPECT_EQ(result.out, c.out);
    return;
  }
  const std::string golden = dataPath(c.out);
  if (std::getenv("VORLEX_UPDATE_GOLDEN"))
    std::ofstream(golden, std::ios::binary) << result.out;
  EXPECT_EQ(result.out, fileText(golden));
}

INSTANTIATE_TEST_SUITE_P(Cases, SamplingCommands, ::testing::ValuesIn(kCases), CaseName{});

} // namespace
} // namespace vorlex::testing
