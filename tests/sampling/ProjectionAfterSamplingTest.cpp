#include "SamplingFixture.h"

namespace vorlex::testing {
namespace {

double initialTotal(const Model& m) {
  double total = 0;
  for (int age = 0; age <= kLastAgeSlot; ++age)
    for (int stage = 0; stage <= kLastStageSlot; ++stage)
      total += m.InitialN(age, stage);
  return total;
}

TEST_F(SamplingFixture, ASampleOfLarvaeStartsAtTheirEntryAgeRoundedToEven) {
  loadMoth();
  chooseFiles(folder.copy(dataPath("sample-larvae-25.txt"), "sample.txt"));
  form.cmdProjectionAfterSampling_Click();

  // 25 in stage 2 at round(4.5) = 4; the moth's own start is gone.
  EXPECT_EQ(m.InitialN(4, 2), 25);
  EXPECT_EQ(initialTotal(m), 25);
  EXPECT_EQ(m.StageSize(2, 0), 25);
  EXPECT_GT(m.StageSize(4, 20), 0); // the larvae became moths
  EXPECT_EQ(session.lastDayReached, 20);
  // The run's own outputs, not those of a click on Run.
  EXPECT_FALSE(session.files.isOpen(kReportFile));
  EXPECT_TRUE(session.controls["Command4"].enabled);
  EXPECT_FALSE(session.controls["Command16"].enabled);
  EXPECT_TRUE(session.controls["MSChart1"].visible);
  // The sampling file is left open.
  EXPECT_TRUE(session.files.isOpen(kDataFile));
}

TEST_F(SamplingFixture, EmptyStartsStopAtDayZero) {
  // A sample of day 5 leaves the cohort empty, and so does a cancelled
  // dialog on a first use: the fractions of day 0 divide 0 by 0.
  for (const bool cancelled : {false, true}) {
    SCOPED_TRACE(cancelled ? "cancelled" : "day 5");
    RunFolder own(cancelled ? "cancelled" : "day5");
    ScriptedPrompts answers;
    Session s(answers);
    MainForm f(s);
    answers.answer(std::string(MainForm::kDataFileDialogTitle) + "=" +
                   own.copy(examplePath("moth.txt"), "moth.txt"));
    f.Form_Load();
    f.Command2_Click();
    f.cmdInputLTdata_Click();
    if (!cancelled) {
      answers.answer(std::string(kStageTimeFileDialogTitle) + "=" +
                     own.copy(dataPath("stage-times-five.txt"), "t.txt"));
      answers.answer(std::string(kSamplingFileDialogTitle) + "=" +
                     own.copy(dataPath("sample-larvae-day5.txt"), "s.txt"));
    }
    const RuntimeError error = errorOf([&] { f.cmdProjectionAfterSampling_Click(); });
    EXPECT_EQ(error.code(), ErrorCode::Overflow);
    EXPECT_NE(error.where().find("Run of \"Project growth using N(j) at time t\", day 0"), std::string::npos)
        << error.where();
    EXPECT_EQ(initialTotal(s.model()), 0);
  }
}

TEST_F(SamplingFixture, ProjectionHaltsOnMoreThanOneRecord) {
  loadMoth();
  chooseFiles(sample("sample.txt", {"0,2,25", "0,3,20", "0,0,0"}));
  EXPECT_THROW(form.cmdProjectionAfterSampling_Click(), ProgramEnd);
  EXPECT_EQ(m.InitialN(12, 2), 3); // the moth's own start is untouched
}

} // namespace
} // namespace vorlex::testing
