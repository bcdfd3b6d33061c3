#include "MemberCase.h"

#include <cmath>

namespace vorlex::testing {
namespace {

// Stage sizes, totals and the life table by age.
TEST_F(ChartTest, SizeAndLifeTableMembersByHand) {
  // clang-format off
  const std::vector<Member> members{
    {ShowStageStructure, "StageStructure", "Stage size", "stage size", "Time", true, kStages, 2,
     {2, 2, 22.5}},
    {ShowLogStageStructure, "LogStageStructure", "Curves of log(n+1)", "log(n+1)", "Time", true, kStages, 2,
     {1, 1, std::log10(101)}},
    {ShowStageSizeWithTotalAdults, "StageSizeWithTotalAdults", "Curves of stage size", "stage size", "Time",
     true, plus(kStages, {"Adult"}), 2, {2, 4, 42.5}},
    {ShowStageGrowthRate, "StageGrowthRate", "Curves of stage growth rates", "stage growth rate", "Time",
     true, kStages, 2, {1, 1, std::log(71) - std::log(101)}},
    {ShowStageGrowthRatewithR, "StageGrowthRatewithR", "Curves of stage growth rates", "stage growth rate",
     "Time", true, plus(kStages, {"r"}), 2, {2, 4, .1}},
    {ShowTotalSizeAndWeighedSize, "TotalSizeAndWeighedSize", "Total size (T), weighed size (W), CWID, and ET",
     "size", "Time", true, {"T", "W", "CWID", "ET"}, 2, {2, 3, 50}},
    {ShowLogTotalAndWeighed, "LogTotalAndWeighed", "Total size, weighed size (W), ET and CWID", "log(n+1)",
     "Time", true, {"T", "W", "CWID", "ET"}, 2, {2, 2, std::log10(33.5)}},
    {ShowTotalGrowthRate, "TotalGrowthRate", "Growth rate of total population", "Growth rate", "Time", false,
     {""}, 2, {1, 1, std::log(113.5) - std::log(106)}},
    {ShowVulnerableAndTotal, "VulnerableAndTotal", "Total population (T) =71 and vulnerable size (V)", "size",
     "Time", true, {"T", "Parasitoid or predator", "Rainfall"}, 2, {2, 3, 21.25}},
    {ShowLogVulnerableAndTotal, "LogVulnerableAndTotal",
     "Total population (T)= 71, vulnerable size (V), andCWID =90.5", "log(n+1)", "Time", true,
     {"T", "V", "CWID"}, 2, {2, 2, std::log10(43.5)}},
    {ShowSij, "Sij", "Survival rate to each age-stage unit", "s(x,j)", "age", true, kStages, 4, {3, 2, .21}},
    {ShowGij, "Gij", "Growth transition probability for each age-stage unit", "g(x,j)", "age", true, kStages,
     4, {2, 2, .8}},
    {ShowDij, "Dij", "Developmental transition probability", "d(x,j)", "age", true, kStages, 4, {2, 2, .3}},
    {ShowFij, "Fij", "Fecundity for each age-stage unit", "f(x,j)", "age", true, kStages, 4, {3, 2, 4}},
    {ShowLx, "Lx", "Age-specific survival rate", "l(x)", "Age", false, {""}, 4, {3, 1, .48}},
    {ShowMx, "Mx", "Age-specific fecundity (offspring/individual)", "m(x)", "Age", false, {""}, 4,
     {3, 1, 1.75}},
    {ShowLxMx, "LxMx", "Age-specific maternity (lx*mx)", "l(x)*m(x)", "Age", false, {""}, 4, {3, 1, .84}},
  };
  // clang-format on
  EXPECT_EQ(members.size(), 17u);
  for (const Member& member : members)
    expectMember(session, member);
}

} // namespace
} // namespace vorlex::testing
