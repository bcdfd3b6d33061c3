#include "exports/TotalPredation.h"

#include "support/FigureRun.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

constexpr const char* kHeadings = "\"Total predation\"\r\n"
                                  "\"Time, Total predation, log(total predation+1)\"\r\n";

// A predator that eats 0, 9 and 99 on days 0, 1 and 2; log10 of these + 1
// is 0, 1 and 2.
class TotalPredation : public ::testing::Test {
protected:
  FigureRun run;
  Model& m = run.m;

  void SetUp() override {
    run.threeStages(2);
    run.session.flags.WithCxj = "Yes";
    m.TotalConsumption(1) = 9;
    m.TotalConsumption(2) = 99;
  }
  /// Writes the file with the given answers for lag and description.
  void write(const std::string& lag, const std::string& description = "pest killed by predators") {
    run.prompts.answers = {lag, description};
    WriteTotalPredation(run.session);
  }
  std::string named(const std::string& lag) {
    return run.figure("10X-Total pest killed by predators released after " + lag + " time units");
  }
};

TEST_F(TotalPredation, WithoutALagOneRowADayFromDayZero) {
  write("0");
  EXPECT_EQ(named("0"), std::string(kHeadings) + "0,0,0\r\n1,9,1\r\n2,99,2\r\n");
  EXPECT_FALSE(run.session.files.isOpen(kReportFile));
}

TEST_F(TotalPredation, ALagCountsTimeStepsOfZeroPredationAhead) {
  m.TimeUnit = .5;
  write("2");
  EXPECT_EQ(named("2"), std::string(kHeadings) + "0, 0 , 0 \r\n.5, 0 , 0 \r\n1,0,0\r\n1.5,9,1\r\n2,99,2\r\n");
  EXPECT_EQ(m.PredationLag, 2);
  EXPECT_EQ(m.LaggedTime(4), 2);
  EXPECT_EQ(m.LaggedConsumption(1), 0);
  EXPECT_EQ(m.LaggedConsumption(3), 9);
  EXPECT_EQ(m.LaggedLogConsumption(4), 2);
}

TEST_F(TotalPredation, ANegativeLagLeavesTheHeadingsOnly) {
  write("-1");
  EXPECT_EQ(named("-1"), kHeadings);
}

TEST_F(TotalPredation, TheLagIsRoundedTiesToEven) {
  write("2.5");
  EXPECT_EQ(m.PredationLag, 2);
  EXPECT_EQ(lineCount(named("2")), 2 + 2 + 3);
}

TEST_F(TotalPredation, AnAnswerThatIsNoNumberStopsWithTypeMismatch) {
  for (const char* lag : {"", "two"}) {
    EXPECT_EQ(errorOf([&] { write(lag); }).code(), ErrorCode::TypeMismatch) << '"' << lag << '"';
    EXPECT_TRUE(run.files().empty());
  }
}

TEST_F(TotalPredation, AnEmptyDescriptionNamesTheFileNoUse) {
  write("0", "");
  EXPECT_EQ(run.files(), std::vector<std::string>{"run-10X-No use.txt"});
  EXPECT_EQ(m.PredationDescription, "");
}

TEST_F(TotalPredation, ThePromptsAndTheirDefaults) {
  WriteTotalPredation(run.session);
  ASSERT_EQ(run.prompts.asked.size(), 2u);
  const auto& lag = run.prompts.asked[0];
  EXPECT_EQ(lag.title, "Add time to total predation data.");
  EXPECT_EQ(lag.defaultText, "1");
  EXPECT_EQ(lag.prompt,
            "Enter the time (x days) you want to add to the total predation file.\n"
            "You can then add x zeros to the file.\n"
            "This can be used to simulate the release of predator on x day.\n"
            "It means there will be no predation during the first x days.\n"
            "It will generate the file 10X. It can be imported for the simulation of the pest "
            "population\n"
            "growth under predator or parasitoid pressure. If this file is itself a pest population, "
            "10X cannot be used.");
  const auto& description = run.prompts.asked[1];
  EXPECT_EQ(description.title, "Predator? Parasitoid? Pest?");
  EXPECT_EQ(description.defaultText, "preys killed by predators");
  EXPECT_EQ(description.prompt, "Enter a short description of this predation (parasitism) rate:\n"
                                "E.g., pest killed by predators\n"
                                "E.g., pest killed by parasites\n"
                                "(If this insect itself is the pest, enter Pest.)");
  EXPECT_EQ(run.files(), std::vector<std::string>{
                             "run-10X-Total preys killed by predators released after 1 time units.txt"});
}

TEST_F(TotalPredation, NothingWithoutConsumptionData) {
  for (const char* withCxj : {"No", "", "yes"}) {
    run.session.flags.WithCxj = withCxj;
    write("3");
    EXPECT_TRUE(run.prompts.asked.empty()) << withCxj;
    EXPECT_TRUE(run.files().empty()) << withCxj;
    EXPECT_EQ(m.PredationLag, 0) << withCxj;
  }
}

TEST_F(TotalPredation, ALagPastTheLastDayStopsWithTheRowsSoFarInTheOpenFile) {
  EXPECT_EQ(errorOf([&] { write("1004"); }).code(), ErrorCode::SubscriptOutOfRange);
  EXPECT_TRUE(run.session.files.isOpen(kReportFile));
  run.session.files.close(kReportFile);
  const std::string text = named("1004");
  // Zeros for days 0..1003, then days 1004 and 1005; day 1006 has no slot.
  EXPECT_EQ(lineCount(text), 2 + 1004 + 2);
  EXPECT_EQ(lineOf(text, 1005), "1003, 0 , 0 ");
  EXPECT_EQ(lineOf(text, 1007), "1005,9,1");
}

} // namespace
} // namespace vorlex::testing
