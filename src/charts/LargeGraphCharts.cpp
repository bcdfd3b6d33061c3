#include "charts/ChartFamily.h"
#include "charts/ChartRecipes.h"

namespace vorlex::grafform {

// The large chart repeats members of the main form; four of them have a
// title of their own there.

ChartContent ShowStageStructure(Session& session) {
  return showOnLargeGraph(session, recipes::StageStructure, "Stage size curves");
}
ChartContent ShowLogStageStructure(Session& session) {
  return showOnLargeGraph(session, recipes::LogStageStructure);
}
ChartContent ShowStageGrowthRate(Session& session) {
  return showOnLargeGraph(session, recipes::StageGrowthRate);
}
ChartContent ShowTotalSizeAndWeighedSize(Session& session) {
  return showOnLargeGraph(session, recipes::TotalSizeAndWeighedSize);
}
ChartContent ShowLogTotalAndWeighed(Session& session) {
  return showOnLargeGraph(session, recipes::LogTotalAndWeighed, "Total size, weighed size (W), CWID, and ET");
}
ChartContent ShowTotalGrowthRate(Session& session) {
  return showOnLargeGraph(session, recipes::TotalGrowthRate);
}
ChartContent ShowVulnerableAndTotal(Session& session) {
  return showOnLargeGraph(session, recipes::VulnerableAndTotal,
                          "Total population (T) and vulnerable size (V)");
}
ChartContent ShowLogVulnerableAndTotal(Session& session) {
  return showOnLargeGraph(session, recipes::LogVulnerableAndTotal,
                          "Total population (T) and vulnerable size (V) in log scale");
}
ChartContent ShowTotalConsume(Session& session) { return showOnLargeGraph(session, recipes::TotalConsume); }
ChartContent ShowTotalLogConsume(Session& session) {
  return showOnLargeGraph(session, recipes::TotalLogConsume);
}
ChartContent ShowTotalConsumeAndPopu(Session& session) {
  return showOnLargeGraph(session, recipes::TotalConsumeAndPopu);
}
ChartContent ShowTotalConsumeAndPopuInLog(Session& session) {
  return showOnLargeGraph(session, recipes::TotalConsumeAndPopuInLog);
}
ChartContent ShowTotalConsumeAfterRelease(Session& session) {
  return showOnLargeGraph(session, recipes::TotalConsumeAfterRelease);
}
ChartContent ShowTotalLogConsumeAfterRelease(Session& session) {
  return showOnLargeGraph(session, recipes::TotalLogConsumeAfterRelease);
}
ChartContent ShowStageDeath(Session& session) { return showOnLargeGraph(session, recipes::StageDeath); }
ChartContent ShowLogStageDeath(Session& session) { return showOnLargeGraph(session, recipes::LogStageDeath); }

} // namespace vorlex::grafform
