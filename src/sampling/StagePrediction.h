#pragma once

#include "charts/ChartContent.h"
#include "sampling/SamplingTables.h"

#include <optional>

namespace vorlex {

class Session;

// What the two buttons of the sampling data do: show the counts of a
// sampling file, and predict from one count of one stage when the stage of
// interest will emerge and how many there will be.

/// Titles of the file dialogs and of the stage question.
inline constexpr const char* kSamplingFileDialogTitle = "Open sampling data file";
inline constexpr const char* kStageTimeFileDialogTitle = "Open 0A4_Stage2StageTime.txt";
inline constexpr const char* kPredictStageTitle = "Which stage is to be predicted?";

/// Reads a sampling file of five-item records chosen by the user and shows
/// one series per sampled stage, over days 0..SimTime. Without a life table
/// it works on the demonstration set-up: 80 days and the five stages of a
/// moth. A cancelled dialog ends the click with nothing changed: no chart.
/// Only days 1..100 are cleared before the reading.
std::optional<ChartContent> showSamplingData(Session& session, SamplingTables& tables);

/// Reads the stage-to-stage file and a sampling file of three-item records,
/// asks for the stage to predict (again while the answer is above the
/// number of stages) and predicts its emergence day and size from the count
/// of day SampleBaseDay, which is always 0; shows the sampled count and the
/// prediction as two series. A cancelled dialog skips all reading and
/// predicts from the tables as they are. A file of more than one record
/// ends the program.
ChartContent predictEmergence(Session& session, SamplingTables& tables);

/// Reads the stage-to-stage file as the prediction does; false when its
/// dialog was cancelled.
bool chooseAndReadStageTimes(Session& session, SamplingTables& tables);

/// Opens the chosen sampling file as file 3 and reads its two heading
/// items; false when the dialog was cancelled.
bool openSamplingFile(Session& session, SamplingTables& tables);

/// Reads the three-item records of the open sampling file after clearing
/// days 0..SimTime; more than one record ends the program, after telling
/// the user what a prediction or a projection (`work`) takes.
void readSingleSample(Session& session, SamplingTables& tables, const char* work);

} // namespace vorlex
