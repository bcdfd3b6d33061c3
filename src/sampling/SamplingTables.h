#pragma once

#include "model/Model.h"
#include "model/Table.h"

#include <string>

namespace vorlex {

/// What the sampling buttons read and compute: the stage-to-stage table of
/// a cohort, the counts of a sampling file, the series of the sampling
/// chart and the prediction. The tables live as long as the main form and
/// are never cleared as a whole: each click clears only what its steps say.
struct SamplingTables {
  /// Time from stage `from` to stage `to`, and the size of stage `to` per
  /// individual of stage `from`; [from][to], 0..13.
  Table2<double> StageToStageTime{13, 13};
  Table2<double> StageToStageRatio{13, 13};
  /// The age at which a sampled individual of each stage is placed.
  Table1<double> StageEntryAge{kLastStageSlot};

  /// Counts of the sampling file, [day][stage].
  Table2<double> SampleCount{kLastDaySlot, kLastStageSlot};
  /// "Yes" for a stage that has a record.
  Table1<std::string> SampleStageUsed{kLastStageSlot};
  /// Set to "No" for each day cleared; nothing reads it.
  Table1<std::string> SampleDayUsed{1000};
  /// Records read, and the day of each (1..100).
  i16 NrSample = 0;
  Table1<i16> SampleDay{100};
  /// Stage of the last record read.
  i16 SampledStage = 0;
  /// Base day of the prediction: 0 whenever a sampling file is opened, and
  /// nothing else sets it.
  i16 SampleBaseDay = 0;

  /// The series of the sampling chart: their number, legend texts and
  /// values [day][series].
  i16 NrSampleSeries = 0;
  Table1<std::string> SampleSeriesName{kLastStageSlot};
  Table2<double> SampleSeries{kLastDaySlot, kLastStageSlot};

  /// The stage chosen for the prediction, its emergence day and size.
  i16 PredictStage = 0;
  i16 PredictDay = 0;
  double PredictSize = 0;

  /// The chosen files: path, "Yes" once chosen, path less its last four
  /// characters.
  std::string SampleFileName, SampleFileNamed, SampleFileStem;
  std::string StageTimeFileName, StageTimeFileNamed, StageTimeFileStem;

  /// First day of the projection after sampling, a copy of SampleBaseDay.
  i16 ProjectionStartDay = 0;
};

} // namespace vorlex
