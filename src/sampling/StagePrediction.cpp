#include "sampling/StagePrediction.h"

#include "model/Session.h"
#include "sampling/SamplingCharts.h"
#include "sampling/SamplingFiles.h"
#include "textio/NumberForms.h"
#include "textio/RuntimeError.h"

namespace vorlex {

namespace {

// The path without its last four characters; a shorter one is an invalid
// call of the cut.
std::string stemOf(const std::string& path) {
  if (path.size() < 4)
    raise(ErrorCode::InvalidProcedureCall, "File name \"" + path + "\" is shorter than four characters");
  return path.substr(0, path.size() - 4);
}

// The set-up of the sampling chart when no life table has been read.
void demonstrationSetUp(Model& m) {
  m.SimTime = 80;
  m.NrStage = 5;
  const char* names[] = {"Egg", "Larva", "Pupa", "Female", "Male"};
  for (int stage = 1; stage <= 5; ++stage)
    m.StageName(stage) = names[stage - 1];
}

void clearDays(SamplingTables& t, int fromDay, int toDay, int nrStage) {
  for (int day = fromDay; day <= toDay; ++day) {
    t.SampleDayUsed(day) = "No";
    for (int stage = 1; stage <= nrStage; ++stage)
      t.SampleCount(day, stage) = 0;
  }
}

void clearStagesUsed(SamplingTables& t, int nrStage) {
  for (int stage = 1; stage <= nrStage; ++stage)
    t.SampleStageUsed(stage) = "No";
}

// One series for each stage the file used, named after the stage and
// holding its counts at the indexes from first to last.
void fillUsedStageSeries(const Model& m, SamplingTables& t, int first, int last) {
  t.NrSampleSeries = 0;
  for (int stage = 1; stage <= m.NrStage; ++stage) {
    if (t.SampleStageUsed(stage) != "Yes")
      continue;
    t.NrSampleSeries = checkedInt16(t.NrSampleSeries + 1);
    t.SampleSeriesName(t.NrSampleSeries) = m.StageName(stage);
    for (int index = first; index <= last; ++index)
      t.SampleSeries(index, t.NrSampleSeries) = t.SampleCount(index, stage);
  }
}

std::string stageQuestion(const Model& m, const SamplingTables& t) {
  std::string text = "You have sampled the field data of " + m.StageName(t.SampledStage) + ". It is stage" +
                     digits(t.SampledStage) +
                     ".\nWhich stage do you want to predict its emergence and size?\n\n";
  for (int stage = 1; stage <= m.NrStage; ++stage)
    text += digits(stage) + ": " + m.StageName(stage) + "\n";
  return text + "Enter the stage you want to predict.";
}

} // namespace

std::optional<ChartContent> showSamplingData(Session& session, SamplingTables& t) {
  Model& m = session.model();
  if (session.flags.LifeTableLoaded != "Yes")
    demonstrationSetUp(m);
  if (!openSamplingFile(session, t))
    return std::nullopt;
  // The bound is fixed: day 0 and the days above 100 keep the counts of an
  // earlier file.
  clearDays(t, 1, 100, m.NrStage);
  clearStagesUsed(t, m.NrStage);
  t.NrSample = 0;
  readSampleRecords(session.files.input(kDataFile), SampleRecordForm::FiveItems, t);

  fillUsedStageSeries(m, t, 0, m.SimTime);
  session.files.close(kDataFile);
  return ShowSamplingDataCurve(session, t);
}

bool chooseAndReadStageTimes(Session& session, SamplingTables& t) {
  const std::string path = session.prompter().chooseFileToOpen(kStageTimeFileDialogTitle);
  if (path.empty())
    return false;
  t.StageTimeFileName = path;
  t.StageTimeFileNamed = "Yes";
  t.StageTimeFileStem = stemOf(path);
  session.files.openInput(kDataFile, path);
  readStageTimes(session.files.input(kDataFile), session.model().NrStage, t);
  session.files.close(kDataFile);
  return true;
}

bool openSamplingFile(Session& session, SamplingTables& t) {
  const std::string path = session.prompter().chooseFileToOpen(kSamplingFileDialogTitle);
  if (path.empty())
    return false;
  t.SampleFileName = path;
  t.SampleFileNamed = "Yes";
  t.SampleFileStem = stemOf(path);
  session.files.openInput(kDataFile, path);
  ItemReader& in = session.files.input(kDataFile);
  in.readText();
  in.readText();
  return true;
}

void readSingleSample(Session& session, SamplingTables& t, const char* work) {
  const Model& m = session.model();
  clearDays(t, 0, m.SimTime, m.NrStage);
  clearStagesUsed(t, m.NrStage);
  t.NrSample = 0;
  t.SampleBaseDay = 0;
  t.SampledStage = 0;
  readSampleRecords(session.files.input(kDataFile), SampleRecordForm::ThreeItems, t);
  if (t.NrSample > 1) {
    const std::string text = "The sampling file has " + digits(t.NrSample) + " records; " + work +
                             " takes exactly one. The program stops here.";
    session.prompter().inform(text, "Attention");
    throw ProgramEnd(text);
  }
}

ChartContent predictEmergence(Session& session, SamplingTables& t) {
  Model& m = session.model();
  if (chooseAndReadStageTimes(session, t) && openSamplingFile(session, t)) {
    readSingleSample(session, t, "a prediction");
    // By record number, not by day.
    fillUsedStageSeries(m, t, 1, t.NrSample);
    session.files.close(kDataFile);

    const std::string defaultStage = digits(t.SampledStage < m.NrStage - 1 ? t.SampledStage + 1 : 1);
    do {
      t.PredictStage =
          toInt16(askNumber(session.prompter(), stageQuestion(m, t), kPredictStageTitle, defaultStage));
    } while (t.PredictStage > m.NrStage);
  }

  // The prediction counts from SampleBaseDay, which stays 0: a sample of
  // another day predicts a size of 0.
  t.NrSampleSeries = 2;
  t.SampleSeriesName(2) = m.StageName(t.PredictStage);
  t.PredictDay = toInt16(roundHalfEven(t.SampleBaseDay + t.StageToStageTime(t.SampledStage, t.PredictStage)));
  t.PredictSize =
      t.SampleCount(t.SampleBaseDay, t.SampledStage) * t.StageToStageRatio(t.SampledStage, t.PredictStage);
  t.SampleSeries(t.SampleBaseDay, 1) = t.SampleCount(t.SampleBaseDay, t.SampledStage);
  t.SampleSeries(t.PredictDay, 2) = t.PredictSize;
  return ShowSamplingDataCurve(session, t);
}

} // namespace vorlex
