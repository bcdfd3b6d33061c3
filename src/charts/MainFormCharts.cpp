#include "charts/ChartFamily.h"
#include "charts/ChartRecipes.h"

namespace vorlex {

// Every member is its recipe, shown on the main form; a twin is the same
// recipe shifted by the release day.

ChartContent ShowStageStructure(Session& session) { return showOnMainForm(session, recipes::StageStructure); }
ChartContent ShowStageStructureLateRelease(Session& session) {
  return showOnMainForm(session, recipes::StageStructure, Shift::LateRelease);
}
ChartContent ShowLogStageStructure(Session& session) {
  return showOnMainForm(session, recipes::LogStageStructure);
}
ChartContent ShowStageSizeWithTotalAdults(Session& session) {
  return showOnMainForm(session, recipes::StageSizeWithTotalAdults);
}
ChartContent ShowStageSizeWithTotalAdultsLateRelease(Session& session) {
  return showOnMainForm(session, recipes::StageSizeWithTotalAdults, Shift::LateRelease);
}
ChartContent ShowStageGrowthRate(Session& session) {
  return showOnMainForm(session, recipes::StageGrowthRate);
}
ChartContent ShowStageGrowthRateLateRelease(Session& session) {
  return showOnMainForm(session, recipes::StageGrowthRate, Shift::LateRelease);
}
ChartContent ShowStageGrowthRatewithR(Session& session) {
  return showOnMainForm(session, recipes::StageGrowthRatewithR);
}
ChartContent ShowTotalSizeAndWeighedSize(Session& session) {
  return showOnMainForm(session, recipes::TotalSizeAndWeighedSize);
}
ChartContent ShowTotalSizeAndWeighedSizeLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalSizeAndWeighedSize, Shift::LateRelease);
}
ChartContent ShowLogTotalAndWeighed(Session& session) {
  return showOnMainForm(session, recipes::LogTotalAndWeighed);
}
ChartContent ShowTotalGrowthRate(Session& session) {
  return showOnMainForm(session, recipes::TotalGrowthRate);
}
ChartContent ShowTotalGrowthRateLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalGrowthRate, Shift::LateRelease);
}
ChartContent ShowVulnerableAndTotal(Session& session) {
  return showOnMainForm(session, recipes::VulnerableAndTotal);
}
ChartContent ShowLogVulnerableAndTotal(Session& session) {
  return showOnMainForm(session, recipes::LogVulnerableAndTotal);
}
ChartContent ShowSij(Session& session) { return showOnMainForm(session, recipes::Sij); }
ChartContent ShowGij(Session& session) { return showOnMainForm(session, recipes::Gij); }
ChartContent ShowDij(Session& session) { return showOnMainForm(session, recipes::Dij); }
ChartContent ShowFij(Session& session) { return showOnMainForm(session, recipes::Fij); }
ChartContent ShowLx(Session& session) { return showOnMainForm(session, recipes::Lx); }
ChartContent ShowMx(Session& session) { return showOnMainForm(session, recipes::Mx); }
ChartContent ShowLxMx(Session& session) { return showOnMainForm(session, recipes::LxMx); }
ChartContent ShowTotalConsume(Session& session) { return showOnMainForm(session, recipes::TotalConsume); }
ChartContent ShowTotalConsumeLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalConsume, Shift::LateRelease);
}
ChartContent ShowTotalLogConsume(Session& session) {
  return showOnMainForm(session, recipes::TotalLogConsume);
}
ChartContent ShowTotalLogConsumeLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalLogConsume, Shift::LateRelease);
}
ChartContent ShowTotalConsumeAndPopu(Session& session) {
  return showOnMainForm(session, recipes::TotalConsumeAndPopu);
}
ChartContent ShowTotalConsumeAndPopuLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalConsumeAndPopu, Shift::LateRelease);
}
ChartContent ShowTotalConsumeAndPopuInLog(Session& session) {
  return showOnMainForm(session, recipes::TotalConsumeAndPopuInLog);
}
ChartContent ShowTotalConsumeAndPopuInLogLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalConsumeAndPopuInLog, Shift::LateRelease);
}
ChartContent ShowTotalConsumeAfterRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalConsumeAfterRelease);
}
ChartContent ShowTotalConsumeAfterReleaseLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalConsumeAfterRelease, Shift::LateRelease);
}
ChartContent ShowTotalLogConsumeAfterRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalLogConsumeAfterRelease);
}
ChartContent ShowTotalLogConsumeAfterReleaseLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalLogConsumeAfterRelease, Shift::LateRelease);
}
ChartContent ShowTotalDifference(Session& session) {
  return showOnMainForm(session, recipes::TotalDifference);
}
ChartContent ShowTotalDifferenceLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalDifference, Shift::LateRelease);
}
ChartContent ShowLogTotalDifference(Session& session) {
  return showOnMainForm(session, recipes::LogTotalDifference);
}
ChartContent ShowLogTotalDifferenceLateRelease(Session& session) {
  return showOnMainForm(session, recipes::LogTotalDifference, Shift::LateRelease);
}
ChartContent ShowTotalDeath(Session& session) { return showOnMainForm(session, recipes::TotalDeath); }
ChartContent ShowLogTotalDeath(Session& session) { return showOnMainForm(session, recipes::LogTotalDeath); }
ChartContent ShowLogTotalDeathLateRelease(Session& session) {
  return showOnMainForm(session, recipes::LogTotalDeath, Shift::LateRelease);
}
ChartContent ShowStageDeath(Session& session) { return showOnMainForm(session, recipes::StageDeath); }
ChartContent ShowStageDeathLateRelease(Session& session) {
  return showOnMainForm(session, recipes::StageDeath, Shift::LateRelease);
}
ChartContent ShowLogStageDeath(Session& session) { return showOnMainForm(session, recipes::LogStageDeath); }
ChartContent ShowLogStageDeathLateRelease(Session& session) {
  return showOnMainForm(session, recipes::LogStageDeath, Shift::LateRelease);
}
ChartContent ShowCumuStageDeath(Session& session) { return showOnMainForm(session, recipes::CumuStageDeath); }
ChartContent ShowCumuStageDeathLateRelease(Session& session) {
  return showOnMainForm(session, recipes::CumuStageDeath, Shift::LateRelease);
}
ChartContent ShowLogCumuStageDeath(Session& session) {
  return showOnMainForm(session, recipes::LogCumuStageDeath);
}
ChartContent ShowLogCumuStageDeathLateRelease(Session& session) {
  return showOnMainForm(session, recipes::LogCumuStageDeath, Shift::LateRelease);
}
ChartContent ShowTotalDeathDuetoPredation(Session& session) {
  return showOnMainForm(session, recipes::TotalDeathDuetoPredation);
}
ChartContent ShowTotalDeathDuetoPredationLateRelease(Session& session) {
  return showOnMainForm(session, recipes::TotalDeathDuetoPredation, Shift::LateRelease);
}
ChartContent ShowLogTotalDeathDuetoPredation(Session& session) {
  return showOnMainForm(session, recipes::LogTotalDeathDuetoPredation);
}
ChartContent ShowLogTotalDeathDuetoPredationLateRelease(Session& session) {
  return showOnMainForm(session, recipes::LogTotalDeathDuetoPredation, Shift::LateRelease);
}

} // namespace vorlex
