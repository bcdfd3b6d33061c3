#pragma once

#include "sampling/SamplingTables.h"
#include "textio/ItemReader.h"

#include <string>

namespace vorlex {

// The two files of the sampling buttons, read item by item.
//
// The stage-to-stage file "0A4_Stage2StageTime.txt" of a cohort:
//   a description;
//   per stage 1..NrStage: its name and the age a sampled individual of the
//   stage is placed at;
//   a heading;
//   per pair of stages: the two names, the time from the first to the
//   second and the size of the second per individual of the first; pairs
//   i = 1..NrStage-3 with j = i+1..NrStage, then the last immature stage
//   with the female and with the male. No pair starts at an adult stage.
//
// A sampling file: a description, a heading, then records of five items
// (item 1, day, item 3, stage, count) or of three (day, stage, count) up to
// an end record with stage 0 or below.

/// Reads a stage-to-stage file into StageEntryAge, StageToStageTime and
/// StageToStageRatio, for a life table of nrStage stages.
void readStageTimes(ItemReader& in, int nrStage, SamplingTables& tables);
/// The same from the file's text.
void readStageTimesText(std::string text, int nrStage, SamplingTables& tables);

/// The two record forms of a sampling file.
enum class SampleRecordForm {
  /// item 1, day, item 3, stage, count: what the sampling chart reads. A
  /// record with item 1 and count 0 is no data: at the end of the file it
  /// ends the reading, elsewhere it starts the count of records afresh.
  FiveItems,
  /// day, stage, count: what the prediction and the projection read.
  ThreeItems,
};

/// Reads the records that follow the two heading items, up to the end
/// record: per record the stage is marked used, the record counted, its
/// day kept and its count put at [day][stage]. A stage above 12, a day
/// outside 0..1005 or a 101st record stops with Subscript out of range.
void readSampleRecords(ItemReader& in, SampleRecordForm form, SamplingTables& tables);
/// A whole sampling file from its text: the two heading items, then the
/// records as above.
void readSamplingText(std::string text, SampleRecordForm form, SamplingTables& tables);

} // namespace vorlex
