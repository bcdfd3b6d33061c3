#include "sampling/SamplingFiles.h"

#include "support/CaseNames.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace vorlex::testing {
namespace {

TEST(StageTimeFile, PairsFollowTheirOrderAndAdultsStartNone) {
  SamplingTables t;
  readStageTimesText(fileText(dataPath("stage-times-five.txt")), 5, t);
  const double entry[] = {0, 0, 4.5, 17.5, 25, 25.5};
  for (int stage = 1; stage <= 5; ++stage)
    EXPECT_EQ(t.StageEntryAge(stage), entry[stage]) << stage;
  // Each pair the file holds has time 10 x from + to and ratio from/10 +
  // to/100 (egg to larva aside); every other cell stays 0.
  for (int from = 0; from <= 13; ++from) {
    for (int to = 0; to <= 13; ++to) {
      const bool held = from >= 1 && from <= 3 && to > from && to <= 5;
      double time = held ? 10 * from + to : 0, ratio = held ? from / 10.0 + to / 100.0 : 0;
      if (from == 1 && to == 2)
        time = 12.5, ratio = .8;
      EXPECT_EQ(t.StageToStageTime(from, to), time) << from << " to " << to;
      EXPECT_DOUBLE_EQ(t.StageToStageRatio(from, to), ratio) << from << " to " << to;
    }
  }
}

TEST(StageTimeFile, ACutShortFileStopsAtItsEnd) {
  SamplingTables t;
  const std::string whole = fileText(dataPath("stage-times-five.txt"));
  const auto code =
      errorOf([&] { readStageTimesText(whole.substr(0, whole.rfind("\"Pupa\",\"Male\"")), 5, t); });
  EXPECT_EQ(code.code(), ErrorCode::InputPastEndOfFile);
}

struct Count {
  int day, stage;
  double count;
};

struct RecordCase {
  const char* name;
  SampleRecordForm form;
  const char* records; // after the two heading lines
  int nrSample;
  int sampledStage;
  std::vector<Count> counts;      // cells that hold a count
  std::vector<int> stagesUsed;    // stages marked "Yes"
  ErrorCode error = ErrorCode{0}; // 0: reads to its end record
};

const RecordCase kRecordCases[] = {
    {"zero record in the middle restarts the count",
     SampleRecordForm::FiveItems,
     "1,3,a,2,10\r\n0,0,a,0,0\r\n1,5,a,3,20\r\n0,0,a,0,0\r\n",
     1,
     3,
     {{3, 2, 10}, {5, 3, 20}},
     {2, 3}},
    {"end record of stage 0 with a count",
     SampleRecordForm::FiveItems,
     "1,3,a,2,10\r\n1,0,a,0,5\r\n1,4,a,3,7\r\n",
     1,
     2,
     {{3, 2, 10}},
     {2}},
    {"only the end record", SampleRecordForm::FiveItems, "0,0,a,0,0\r\n", 0, 0, {}, {}},
    {"a record of count 0 is data in three items",
     SampleRecordForm::ThreeItems,
     "0,2,0\r\n3,1,5\r\n0,0,0\r\n",
     2,
     1,
     {{3, 1, 5}},
     {1, 2}},
    {"negative stage ends three items",
     SampleRecordForm::ThreeItems,
     "0,1,40\r\n9,-1,9\r\n",
     1,
     1,
     {{0, 1, 40}},
     {1}},
    {"stage 13",
     SampleRecordForm::ThreeItems,
     "0,13,4\r\n0,0,0\r\n",
     0,
     0,
     {},
     {},
     ErrorCode::SubscriptOutOfRange},
    {"day 1006",
     SampleRecordForm::FiveItems,
     "1,1006,a,2,4\r\n0,0,a,0,0\r\n",
     1,
     2,
     {},
     {2},
     ErrorCode::SubscriptOutOfRange},
    {"no end record in three items",
     SampleRecordForm::ThreeItems,
     "0,1,40\r\n",
     1,
     1,
     {{0, 1, 40}},
     {1},
     ErrorCode::InputPastEndOfFile},
};

class SampleRecords : public ::testing::TestWithParam<RecordCase> {};

TEST_P(SampleRecords, FillTheTablesAsRead) {
  const RecordCase& c = GetParam();
  SamplingTables t;
  const std::string text = std::string("\"description\"\r\n\"heading\"\r\n") + c.records;
  const RuntimeError error = errorOf([&] { readSamplingText(text, c.form, t); });
  EXPECT_EQ(error.code(), c.error == ErrorCode{0} ? ErrorCode::InvalidProcedureCall : c.error)
      << error.what();
  EXPECT_EQ(t.NrSample, c.nrSample);
  EXPECT_EQ(t.SampledStage, c.sampledStage);
  double total = 0;
  for (int day = 0; day <= kLastDaySlot; ++day)
    for (int stage = 0; stage <= kLastStageSlot; ++stage)
      total += t.SampleCount(day, stage);
  double expected = 0;
  for (const Count& count : c.counts) {
    EXPECT_EQ(t.SampleCount(count.day, count.stage), count.count) << count.day << ", " << count.stage;
    expected += count.count;
  }
  EXPECT_EQ(total, expected);
  for (int stage = 1; stage <= kLastStageSlot; ++stage) {
    const bool used = std::find(c.stagesUsed.begin(), c.stagesUsed.end(), stage) != c.stagesUsed.end();
    EXPECT_EQ(t.SampleStageUsed(stage), used ? "Yes" : "") << stage;
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, SampleRecords, ::testing::ValuesIn(kRecordCases), CaseName{});

TEST(SampleRecords, TheHundredAndFirstRecordIsOutOfRange) {
  std::string text = "\"d\"\r\n\"h\"\r\n";
  for (int k = 1; k <= 101; ++k)
    text += std::to_string(k) + ",1,1\r\n";
  SamplingTables t;
  EXPECT_EQ(errorOf([&] { readSamplingText(text + "0,0,0\r\n", SampleRecordForm::ThreeItems, t); }).code(),
            ErrorCode::SubscriptOutOfRange);
  EXPECT_EQ(t.SampleDay(100), 100);
}

} // namespace
} // namespace vorlex::testing
