#include "strategies/UnlimitedGrowth.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

class ExtraMortalityDialogue : public ::testing::Test {
protected:
  ScriptedPrompts prompts;
  Session session{prompts};
  Model& m = session.model();

  void SetUp() override {
    loadTestData(session, "tiny3.txt", false);
  }
};

TEST_F(ExtraMortalityDialogue, DefaultsFillEveryParameter) {
  askExtraMortality(session);
  EXPECT_EQ(prompts.titles.size(), 17u);
  EXPECT_EQ(m.OverwinterDrawn, "No");
  EXPECT_EQ(m.OverwinterStage, 3);
  EXPECT_EQ(m.OverwinterDay, 200);
  EXPECT_EQ(m.OverwinterMortality, 0.5);
  EXPECT_EQ(m.OverwinterRandom, "No");
  EXPECT_EQ(m.OverwinterMortalityInput, 0.5);
  EXPECT_EQ(m.ExtraStage1, 2);
  EXPECT_EQ(m.ExtraFrom1, 1);
  EXPECT_EQ(m.ExtraTo1, 51);
  EXPECT_EQ(m.ExtraMortality1, 0.3);
  EXPECT_EQ(m.ExtraRandom1, "No");
  EXPECT_EQ(m.ExtraMortalityInput1, 0.3);
  EXPECT_EQ(m.ExtraStage2, 3);
  EXPECT_EQ(m.ExtraFrom2, 350);
  EXPECT_EQ(m.ExtraTo2, 500);
  EXPECT_EQ(m.ExtraMortality2, 0.5);
  EXPECT_EQ(m.ExtraMortalityInput2, 0.5);
  EXPECT_EQ(m.LowFecundityFrom, 350);
  EXPECT_EQ(m.LowFecundity, "Yes");
  EXPECT_EQ(m.LowFecundityTo, 500);
  EXPECT_EQ(m.LowFecundityFactor, 0.3);
}

TEST_F(ExtraMortalityDialogue, StageListAndJoinedSentencesOfTheStageQuestions) {
  askExtraMortality(session);
  const std::string list = "Life table information: Number of stage = 3. \n1. Eggs\n2. Fema\n3. Male\n";
  EXPECT_EQ(prompts.texts[0], list + "\nWhich stage is the overwinter stage?");
  EXPECT_EQ(prompts.texts[4], list + "\nIf you want to lower the developmental rate to the second stage,"
                                     "you have to enter 2.\n ");
  EXPECT_EQ(prompts.titles[9], "Is there another extra mortality to d(x,j) of a specific stage?");
  EXPECT_EQ(prompts.texts[11], "Enter the date after that the secondd extra mortality stops.");
  EXPECT_EQ(prompts.texts[3], "Fixed or random overwinter mortality?\n(Use Randomize only 1 time)\n"
                              "1 = Fixed, else = Random.");
}

TEST_F(ExtraMortalityDialogue, RandomAnswersAndEnteredDatesShiftTheDefaults) {
  prompts.answer("Random Overwinter mortality?=2")
      .answer("Date after that there will be extra mortality to matrix D=10")
      .answer("Random extra mortality?=1")
      .answer("Random extra mortality?=0")
      .answer("Date after that fecundity will be lower=0");
  askExtraMortality(session);
  EXPECT_EQ(m.OverwinterRandom, "Yes");
  EXPECT_EQ(m.OverwinterMortalityInput, 0);
  EXPECT_EQ(m.OverwinterMortality, 0.5); // drawn only on the overwinter day
  EXPECT_EQ(m.ExtraTo1, 60);
  EXPECT_EQ(m.ExtraRandom1, "No");
  EXPECT_EQ(m.ExtraRandom2, "Yes");
  EXPECT_EQ(m.ExtraMortalityInput2, 0);
  EXPECT_EQ(m.ExtraMortality2, 0.5); // random extra mortality is asked, never drawn
  EXPECT_EQ(m.LowFecundity, "");
  EXPECT_EQ(m.LowFecundityTo, 150);
  EXPECT_EQ(prompts.titles.size(), 17u); // the last two questions are asked all the same
}

TEST_F(ExtraMortalityDialogue, ADateBeyondSixteenBitsPlusItsSpanOverflows) {
  prompts.answer("Date after that there will be the second extra mortality=32700");
  EXPECT_EQ(errorOf([&] { askExtraMortality(session); }).number(), 6);
}

} // namespace
} // namespace vorlex::testing
