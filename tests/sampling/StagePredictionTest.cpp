#include "SamplingFixture.h"
#include "support/CaseNames.h"

#include <cstdlib>
#include <fstream>

namespace vorlex::testing {
namespace {

struct PredictionCase {
  const char* name;
  const char* record;
  std::vector<const char*> stageAnswers; // none: the default
  int asked;
  int stage, day;
  double size;
};

// With the five-stage file: time 10 x from + to and ratio from/10 + to/100,
// egg to larva 12.5 and .8.
const PredictionCase kCases[] = {
    {"forty eggs to larvae, day ties to even", "0,1,40", {"2"}, 1, 2, 12, 32},
    {"asked again while above the stages", "0,1,40", {"9", "6", "3"}, 3, 3, 13, 40 * .13},
    {"default is the next stage", "0,2,10", {}, 1, 3, 23, 10 * .23},
    {"female sampled, default is stage 1", "0,4,10", {}, 1, 1, 0, 0},
    {"answer read leniently", "0,1,40", {"2.6 moths"}, 1, 3, 13, 40 * .13},
    {"stage 0 predicts from the empty row", "0,1,40", {"0"}, 1, 0, 0, 0},
    {"a sample of day 5 predicts size 0", "5,1,40", {"2"}, 1, 2, 12, 0},
};

class Prediction : public SamplingFixture, public ::testing::WithParamInterface<PredictionCase> {};

TEST_P(Prediction, DayAndSizeFromTheSampleOfDayZero) {
  const PredictionCase& c = GetParam();
  loadMoth();
  chooseFiles(sample("sample.txt", {c.record, "0,0,0"}));
  for (const char* stage : c.stageAnswers)
    answer(kPredictStageTitle, stage);
  form.cmdStageProjection_Click();

  const SamplingTables& t = tables();
  EXPECT_EQ(std::count(prompts.titles.begin(), prompts.titles.end(), kPredictStageTitle), c.asked);
  EXPECT_EQ(t.PredictStage, c.stage);
  EXPECT_EQ(t.PredictDay, c.day);
  EXPECT_DOUBLE_EQ(t.PredictSize, c.size);
  // The sampled count at day 0 and the prediction on its day, over 0..20.
  ASSERT_EQ(chart().seriesCount(), 2);
  ASSERT_EQ(chart().rowCount(), 21);
  EXPECT_EQ(chart().label(2), m.StageName(c.stage));
  EXPECT_EQ(t.SampleSeries(c.day, 2), t.PredictSize);
  if (c.day <= 20) { // days beyond the simulation time are not on the chart
    EXPECT_DOUBLE_EQ(chart().y(2, c.day + 1), c.size);
  }
  EXPECT_FALSE(session.files.isOpen(kDataFile));
}

INSTANTIATE_TEST_SUITE_P(Cases, Prediction, ::testing::ValuesIn(kCases), CaseName{});

TEST_F(SamplingFixture, TheStageQuestionNamesTheSampledStageAndListsAllStages) {
  loadMoth();
  chooseFiles(sample("sample.txt", {"0,2,25", "0,0,0"}));
  form.cmdStageProjection_Click();
  const auto at = std::find(prompts.titles.begin(), prompts.titles.end(), kPredictStageTitle);
  ASSERT_NE(at, prompts.titles.end());
  const std::string text = prompts.texts[static_cast<std::size_t>(at - prompts.titles.begin())];
  const std::string golden = dataPath("stage-question.expected");
  if (std::getenv("VORLEX_UPDATE_GOLDEN"))
    std::ofstream(golden, std::ios::binary) << text;
  EXPECT_EQ(text, fileText(golden));
}

TEST_F(SamplingFixture, PredictionHaltsOnMoreThanOneRecord) {
  loadMoth();
  chooseFiles(sample("sample.txt", {"0,2,25", "3,2,20", "0,0,0"}));
  EXPECT_THROW(form.cmdStageProjection_Click(), ProgramEnd);
  EXPECT_EQ(prompts.titles.back(), "Attention");
  EXPECT_NE(prompts.texts.back().find("2 records"), std::string::npos) << prompts.texts.back();
}

TEST_F(SamplingFixture, CancelledDialogPredictsFromTheTablesAsTheyAre) {
  loadMoth();
  form.cmdStageProjection_Click(); // both dialogs cancelled
  EXPECT_EQ(tables().PredictStage, 0);
  EXPECT_EQ(tables().PredictDay, 0);
  EXPECT_EQ(tables().PredictSize, 0);
  EXPECT_EQ(chart().seriesCount(), 2);
  EXPECT_TRUE(session.controls["MSChart2"].visible);
  EXPECT_FALSE(session.controls["MSChart1"].visible);

  // A later prediction after cancelling only the sampling file keeps the
  // sample of before and the stage chosen before.
  chooseFiles(sample("sample.txt", {"0,1,40", "0,0,0"}));
  answer(kPredictStageTitle, "2");
  form.cmdStageProjection_Click();
  answer(kStageTimeFileDialogTitle, stageTimes());
  form.cmdStageProjection_Click();
  EXPECT_EQ(tables().PredictDay, 12);
  EXPECT_EQ(tables().PredictSize, 32);
}

TEST_F(SamplingFixture, FailureNamesTheButtonAndTheFileBeingRead) {
  loadMoth();
  chooseFiles(sample("sample.txt", {"0,14,25", "0,0,0"}));
  const RuntimeError error = errorOf([&] { form.cmdStageProjection_Click(); });
  EXPECT_EQ(error.code(), ErrorCode::SubscriptOutOfRange);
  EXPECT_NE(error.where().find("\"Predict emergence of y stage\", file being read: " +
                               folder.path("sample.txt") + ", item 5, line 3"),
            std::string::npos)
      << error.where();
}

} // namespace
} // namespace vorlex::testing
