#pragma once

#include <string>

namespace vorlex {

class Session;
struct Model;

/// What sets a variant of the day step apart from the plain one. The plain
/// projection takes every step; a variant leaves out the steps its strategy
/// has no use for and may add one of its own at two points of the day.
/// Every variant shares the code of the steps it takes, so a fix reaches
/// them all.
struct DayStepRules {
  /// Flow record line at the start of the run, if any.
  const char* flowAtStart = nullptr;
  /// Flow record: the line that opens the controls of the schedule, which
  /// follow day by day, at the start; none when null.
  const char* flowControlsHeading = nullptr;
  /// Flow record: the survival of each stage on the first control date.
  bool echoFirstControlDay = false;
  /// Overwinter mortality, the extra mortalities of development and the
  /// lowered fecundity of the extra-mortality dialogue.
  bool scheduledMortalities = false;
  /// The control survival of the day acts; otherwise nothing does.
  bool survivalOfTheDay = true;
  /// Eggs take the survival of the parent's stage of the day; otherwise
  /// that of the egg stage, whatever the parent.
  bool eggsTakeParentSurvival = true;
  /// The shadow matrix of physogastric reproduction, when the session has it.
  bool physogastry = false;
  /// Additional releases of the data file.
  bool releases = false;
  /// Density-dependent mortality under K(t), when the session has it.
  bool densityDependence = true;
  /// The cumulative weighed size of the day.
  bool cumulativeWeighedSize = true;
  /// The deaths of the day with their logs and sums, and the difference of
  /// the total from the day before.
  bool deaths = true;
  /// The weighed size of the day starts again from 0 in the stage records;
  /// otherwise the stage sums go on top of what the density step left.
  bool weighedSizeFromZero = true;
  /// The weighed size of a day that is a control's critical day is kept.
  bool criticalDay = true;
  /// Day SimTime's matrix is not taken over, so the last day is built once
  /// more from the matrix of the day before.
  bool keepMatrixOnSimTime = false;
  /// A day after one without individuals goes straight to the last day.
  bool skipAfterEmptyDay = false;
  /// A step of the variant's own on the next day's matrix, after the
  /// density-dependent mortality (Day holds the day).
  void (*afterDensity)(Session&) = nullptr;
  /// A step of the variant's own on the next day's matrix, after the
  /// consumption of the day and before the matrix is taken over.
  void (*afterConsumption)(Session&) = nullptr;
  /// A step of the variant's own after the stage records (Day holds the day).
  void (*afterStageRecords)(Session&) = nullptr;
  /// The results of day t's step stand at day t + 1, and the control
  /// survival of the step is that of day t + 1 (1 beyond SimTime + 1): the
  /// day step of a run of a series.
  bool resultsOneDayAhead = false;
  /// Everything a day records besides the sizes of its ages and stages and
  /// the total: sums and weighed sizes of the stages, weakness, sampled
  /// sizes, fractions and growth rates. A run of a series keeps only the
  /// sizes and leaves the series of the projection as they are.
  bool dayRecords = true;
  /// The last day projected, if not SimTime + 1.
  int lastDay = 0;
  /// The message that tells the user that the population died out on day t;
  /// none, and only the report's stop line, when null.
  std::string (*extinctionText)(const Model&, int t) = nullptr;
};

/// The controls of the schedule in the flow record: for each effective day
/// of each control its first day, then the mortality and the survival of
/// every stage.
void flowControlSchedule(Session& session);

/// The message of an extinction on day t of the plain projection and of
/// growth with harvest: the simulation time and the day, marked (D).
std::string extinctionOnDay(const Model& m, int t);

/// Projects days 1..SimTime+1 under the given rules. Day is one past the
/// last day on return, or the day on which the population died out.
void runDaySteps(Session& session, const DayStepRules& rules);

} // namespace vorlex
