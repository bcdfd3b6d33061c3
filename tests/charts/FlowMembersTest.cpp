#include "MemberCase.h"

#include <cmath>

namespace vorlex::testing {
namespace {

// Consumption, differences, deaths and predation.
TEST_F(ChartTest, ConsumptionAndDeathMembersByHand) {
  // clang-format off
  const std::vector<Member> members{
    {ShowTotalConsume, "TotalConsume", "Total consumption based on c(x,j)", "Total consumption", "Time",
     false, {""}, 2, {2, 1, 99}},
    {ShowTotalLogConsume, "TotalLogConsume", "log(Total consumption+1) based on c(x,j)",
     "log(Total consumption+1)", "Time", false, {""}, 1, {1, 1, 2}},
    {ShowTotalConsumeAndPopu, "TotalConsumeAndPopu", "Total consumption based on c(x,j) and total population",
     "Total consumption and population", "Time", true, {"C", "T"}, 2, {2, 2, 112.5}},
    {ShowTotalConsumeAndPopuInLog, "TotalConsumeAndPopuInLog",
     "Total consumption based on c(x,j) and total population (in log scale)",
     "log(Total consumption+1) and log (population+1)", "Time", true, {"C", "T"}, 2, {1, 1, 1}},
    {ShowTotalConsumeAfterRelease, "TotalConsumeAfterRelease",
     "Total consumption based on c(x,j) (Released at time 3)", "Total consumption", "Time", false, {""}, 2,
     {2, 1, 99}},
    {ShowTotalLogConsumeAfterRelease, "TotalLogConsumeAfterRelease",
     "log(Total consumption+1) based on c(x,j) (Released at 3)", "log(Total consumption+1)", "Time", false,
     {""}, 2, {2, 1, .75}},
    {ShowTotalDifference, "TotalDifference", "Total difference in population size between time t and t-1",
     "Difference", "Time", true, {"T"}, 1, {1, 1, 7.5}},
    {ShowLogTotalDifference, "LogTotalDifference", "log[Total(t)-Total(t-1)+1]", "log(difference+1)", "Time",
     true, {"T"}, 1, {1, 1, std::log10(8.5)}},
    {ShowTotalDeath, "TotalDeath", "Total death observed at time t", "Total death", "Time", true, {"T"}, 1,
     {1, 1, 46.5}},
    {ShowLogTotalDeath, "LogTotalDeath", "log(Total death+1) observed at time t", "log(total death+1)",
     "Time", true, {"T"}, 1, {1, 1, std::log10(47.5)}},
    {ShowStageDeath, "StageDeath", "Stage death curves", "Stage death", "Time", true, kStages, 1,
     {1, 2, 6.5}},
    {ShowLogStageDeath, "LogStageDeath", "log(Stage death +1))", "log(Stage death+1)", "Time", true, kStages,
     1, {1, 3, std::log10(9)}},
    {ShowCumuStageDeath, "CumuStageDeath", "Cumulative stage death curves", "Cumulative stage death", "Time",
     true, kStages, 1, {1, 1, 32}},
    {ShowLogCumuStageDeath, "LogCumuStageDeath", "log(Cumulative stage death + 1)",
     "log(Cumulative stage death + 1)", "Time", true, kStages, 1, {1, 1, std::log10(33)}},
    {ShowTotalDeathDuetoPredation, "TotalDeathDuetoPredation", "Predation potential of predator at time t",
     "Predation potential of predator", "Time", true, {"T"}, 1, {1, 1, 3}},
    {ShowLogTotalDeathDuetoPredation, "LogTotalDeathDuetoPredation",
     "log(Predation potential of predator +1) at time t", "log(Predation potential of predator +1)", "Time",
     true, {"T"}, 1, {1, 1, .5}},
  };
  // clang-format on
  EXPECT_EQ(members.size(), 16u);
  for (const Member& member : members)
    expectMember(session, member);
}

} // namespace
} // namespace vorlex::testing
