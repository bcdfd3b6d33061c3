#include "charts/ChartCycle.h"

#include "model/Session.h"
#include "textio/RuntimeError.h"

#include <array>
#include <string>

namespace vorlex {
namespace {

bool withConsumption(const Session& session) { return session.flags.WithCxj == "Yes"; }

// Consumption after release needs a lag other than 0 and 1.
bool withConsumptionAfterLag(const Session& session) {
  const int lag = session.model().PredationLag;
  return (lag > 1 || lag < 0) && withConsumption(session);
}

bool underPredation(const Session& session) {
  return session.flags.OptManagement == "OptGrowthUnderPredation";
}

bool withExtraMortality(const Session& session) {
  return session.flags.OptManagement == "OptGrowthWithExtraMortality";
}

constexpr const char* kWithConsumption = "the data file holds consumption data C(x,j)";
constexpr const char* kUnderPredation = "the strategy is population growth under predation";

constexpr std::array<ChartCycleEntry, kChartCycleLength> kMainCycle{{
    {ShowStageStructure, nullptr}, // the late-release twin when ReleaseDate != 0
    {ShowLogStageStructure, nullptr},
    {ShowStageSizeWithTotalAdults, nullptr},
    {ShowStageGrowthRate, nullptr},
    {ShowStageGrowthRatewithR, nullptr},
    {ShowTotalSizeAndWeighedSize, nullptr},
    {ShowLogTotalAndWeighed, nullptr},
    {ShowTotalGrowthRate, nullptr},
    {ShowVulnerableAndTotal, nullptr},
    {ShowLogVulnerableAndTotal, nullptr},
    {ShowSij, nullptr},
    {ShowGij, nullptr},
    {ShowDij, nullptr},
    {ShowFij, nullptr},
    {ShowLx, nullptr},
    {ShowMx, nullptr},
    {ShowLxMx, nullptr},
    {ShowTotalLogConsume, withConsumption, kWithConsumption},
    {ShowTotalConsume, withConsumption, kWithConsumption},
    {ShowTotalConsumeAndPopu, withConsumption, kWithConsumption},
    {ShowTotalConsumeAndPopuInLog, withConsumption, kWithConsumption},
    {ShowTotalConsumeAfterRelease, withConsumptionAfterLag,
     "the data file holds consumption data C(x,j) and the predation lag is other than 0 and 1"},
    {ShowTotalLogConsumeAfterRelease, withConsumption, kWithConsumption},
    {ShowTotalDifference, nullptr},
    {ShowLogTotalDifference, nullptr},
    {ShowTotalDeath, nullptr},
    {ShowLogTotalDeath, nullptr},
    {ShowStageDeath, nullptr},
    {ShowLogStageDeath, nullptr},
    {ShowCumuStageDeath, nullptr},
    {ShowLogCumuStageDeath, nullptr},
    {ShowTotalDeathDuetoPredation, underPredation, kUnderPredation},
    {ShowLogTotalDeathDuetoPredation, underPredation, kUnderPredation},
    // The extra-mortality strategy gets the log chart of predation deaths too.
    {ShowLogTotalDeathDuetoPredation, withExtraMortality,
     "the strategy is extra mortality, which its driver sets back to no control before the charts"},
    {nullptr, nullptr},
}};

constexpr std::array<ShowRoutine, kLargeChartCycleLength> kLargeCycle{
    grafform::ShowStageStructure,          grafform::ShowLogStageStructure,     grafform::ShowStageGrowthRate,
    grafform::ShowTotalSizeAndWeighedSize, grafform::ShowLogTotalAndWeighed,    grafform::ShowTotalGrowthRate,
    grafform::ShowVulnerableAndTotal,      grafform::ShowLogVulnerableAndTotal,
};

/// Moves a position of a cycle on by one, back to 0 past the last entry.
/// The position is a 16-bit number; the sum is taken wide so that no value
/// it may hold overflows.
int stepOn(std::int16_t& position, int length) {
  int next = position + 1;
  if (next > length - 1)
    next = 0;
  position = static_cast<std::int16_t>(next);
  return next;
}

bool inCycle(int index, int length) { return index >= 0 && index < length; }

} // namespace

const ChartCycleEntry& chartCycleEntry(int index) {
  if (!inCycle(index, kChartCycleLength))
    raise(ErrorCode::SubscriptOutOfRange, "Chart cycle entry " + std::to_string(index));
  return kMainCycle[static_cast<std::size_t>(index)];
}

ShowRoutine largeChartCycleEntry(int index) {
  if (!inCycle(index, kLargeChartCycleLength))
    raise(ErrorCode::SubscriptOutOfRange, "Large chart cycle entry " + std::to_string(index));
  return kLargeCycle[static_cast<std::size_t>(index)];
}

ShowRoutine chartCycleRoutine(const Session& session, int index) {
  const ChartCycleEntry& entry = chartCycleEntry(index);
  if (!entry.routine || (entry.condition && !entry.condition(session)))
    return nullptr;
  if (index == 0 && session.model().ReleaseDate != 0)
    return ShowStageStructureLateRelease;
  return entry.routine;
}

bool MSChart1_Activate(Session& session) {
  const int index = stepOn(session.ChartCycleIndex, kChartCycleLength);
  // A position put below 0 from elsewhere matches no entry, as 34 doesn't;
  // it climbs back to 0 one activation at a time.
  if (!inCycle(index, kChartCycleLength))
    return false;
  const ShowRoutine routine = chartCycleRoutine(session, index);
  if (!routine)
    return false;
  // A routine that stops leaves the chart as it was, and says which chart
  // of the cycle it was.
  try {
    session.mainChart = routine(session);
  } catch (const RuntimeError& error) {
    throw error.at("Chart " + std::to_string(index) + " of the main form's chart cycle");
  }
  return true;
}

namespace grafform {

void MSChart1_Activate(Session& session) {
  const int index = stepOn(session.LargeChartCycleIndex, kLargeChartCycleLength);
  if (!inCycle(index, kLargeChartCycleLength))
    return;
  try {
    session.largeChart = largeChartCycleEntry(index)(session);
  } catch (const RuntimeError& error) {
    throw error.at("Chart " + std::to_string(index) + " of the large chart cycle");
  }
}

} // namespace grafform

} // namespace vorlex
