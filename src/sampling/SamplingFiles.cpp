#include "sampling/SamplingFiles.h"

#include "textio/NumberForms.h"

namespace vorlex {

namespace {

void readPair(ItemReader& in, int from, int to, SamplingTables& tables) {
  in.readText();
  in.readText();
  tables.StageToStageTime(from, to) = in.readNumber();
  tables.StageToStageRatio(from, to) = in.readNumber();
}

// One record of either form, once read.
void takeRecord(SamplingTables& t, i16 day, i16 stage, double count) {
  t.SampleStageUsed(stage) = "Yes";
  t.NrSample = checkedInt16(t.NrSample + 1);
  t.SampleDay(t.NrSample) = day;
  t.SampledStage = stage;
  t.SampleCount(day, stage) = count;
}

} // namespace

void readStageTimes(ItemReader& in, int nrStage, SamplingTables& tables) {
  in.readText();
  for (int stage = 1; stage <= nrStage; ++stage) {
    in.readText();
    tables.StageEntryAge(stage) = in.readNumber();
  }
  in.readText();
  for (int from = 1; from <= nrStage - 3; ++from)
    for (int to = from + 1; to <= nrStage; ++to)
      readPair(in, from, to, tables);
  // From the last immature stage only its two adult stages follow.
  const int lastImmature = nrStage - 2;
  readPair(in, lastImmature, nrStage - 1, tables);
  readPair(in, lastImmature, nrStage, tables);
}

void readStageTimesText(std::string text, int nrStage, SamplingTables& tables) {
  ItemReader in(std::move(text));
  readStageTimes(in, nrStage, tables);
}

void readSampleRecords(ItemReader& in, SampleRecordForm form, SamplingTables& t) {
  for (;;) {
    if (form == SampleRecordForm::FiveItems) {
      const double first = in.readNumber();
      const i16 day = in.readInteger();
      in.readValue();
      const i16 stage = in.readInteger();
      const double count = in.readNumber();
      if (first == 0 && count == 0) {
        if (in.atEnd())
          return;
        t.NrSample = 0;
        continue;
      }
      if (stage <= 0)
        return;
      takeRecord(t, day, stage, count);
    } else {
      const i16 day = in.readInteger();
      const i16 stage = in.readInteger();
      const double count = in.readNumber();
      if (stage <= 0)
        return;
      takeRecord(t, day, stage, count);
    }
  }
}

void readSamplingText(std::string text, SampleRecordForm form, SamplingTables& tables) {
  ItemReader in(std::move(text));
  in.readText();
  in.readText();
  readSampleRecords(in, form, tables);
}

} // namespace vorlex
