// The main form's ways to the other forms, its clock, and which strategies
// can be chosen in this build.
#include "mainform/Forms.h"
#include "mainform/MainForm.h"
#include "support/RunFolder.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

class MainFormForms : public ::testing::Test {
protected:
  RunFolder folder{"mainform-forms"};
  ScriptedPrompts prompts;
  Session session{prompts};
  MainForm form{session};

  void load() {
    prompts.answer(std::string(MainForm::kDataFileDialogTitle) + "=" + folder.copy(dataPath("tiny3.txt"), "tiny.txt"));
    prompts.answer("Do you need flow record?=Yes");
    form.Form_Load();
    session.controls["txtSimuT"].caption = "5";
    form.Command2_Click();
    form.cmdInputLTdata_Click();
  }
  std::tm at(int hour, int minute) {
    std::tm t{};
    t.tm_year = 126;
    t.tm_mon = 0;
    t.tm_mday = 7;
    t.tm_hour = hour;
    t.tm_min = minute;
    t.tm_sec = 5;
    return t;
  }
};

TEST_F(MainFormForms, ClockShowsDateAndTimeAndGreetsByTheHour) {
  form.Timer1_Timer(at(9, 4));
  EXPECT_EQ(session.controls["lblClock"].caption, "2026-01-07 09:04:05");
  EXPECT_EQ(session.controls["lblGreeting"].caption, "Good morning!");
  form.Timer1_Timer(at(11, 59));
  EXPECT_EQ(session.controls["lblGreeting"].caption, "Good morning!");
  form.Timer1_Timer(at(12, 0));
  EXPECT_EQ(session.controls["lblGreeting"].caption, "Good afternoon!");
  form.Timer1_Timer(at(17, 59));
  EXPECT_EQ(session.controls["lblGreeting"].caption, "Good afternoon!");
  form.Timer1_Timer(at(18, 0));
  EXPECT_EQ(session.controls["lblGreeting"].caption, "Good evening!");
}

TEST_F(MainFormForms, OnlyTheMainFormShowsAtStartAndEachButtonSwapsItForItsForm) {
  form.Form_Load();
  EXPECT_TRUE(formShows(session, forms::kMainform));
  for (const char* other : {"grafform", "Introfrm", "Intro1", "Intro2", "Intro0", "Referenc", "Quiz", "HowToPrint",
                            "Endfrm", "CarryFrm"})
    EXPECT_FALSE(formShows(session, other)) << other;

  const std::pair<void (MainForm::*)(), const char*> kButtons[] = {
      {&MainForm::Command3_Click, "Introfrm"},  {&MainForm::Command6_Click, "Intro1"},
      {&MainForm::Command7_Click, "Intro2"},    {&MainForm::Command9_Click, "Intro0"},
      {&MainForm::Command14_Click, "Referenc"}, {&MainForm::Command15_Click, "Quiz"},
      {&MainForm::cmdHowToPrint_Click, "HowToPrint"}};
  for (const auto& [click, shown] : kButtons) {
    (form.*click)();
    EXPECT_TRUE(formShows(session, shown)) << shown;
    EXPECT_FALSE(formShows(session, forms::kMainform)) << shown;
    form.returnFrom(shown);
    EXPECT_FALSE(formShows(session, shown)) << shown;
    EXPECT_TRUE(formShows(session, forms::kMainform)) << shown;
  }
}

TEST_F(MainFormForms, QuitClosesEveryFileAndShowsTheClosingScreen) {
  load();
  ASSERT_TRUE(session.files.isOpen(kReportFile));
  ASSERT_TRUE(session.files.isOpen(kFlowFile));
  form.Command1_Click();
  EXPECT_FALSE(session.files.isOpen(kReportFile));
  EXPECT_FALSE(session.files.isOpen(kFlowFile));
  EXPECT_TRUE(formShows(session, forms::kClosing));
  EXPECT_FALSE(formShows(session, forms::kMainform));
}

TEST_F(MainFormForms, LargeGraphsLoadTheStageChartOnTheirFirstShowingOnly) {
  load();
  form.Option1_Click();
  form.cmdRun_Click();
  form.Command4_Click();
  EXPECT_TRUE(formShows(session, forms::kLargeGraphs));
  EXPECT_FALSE(formShows(session, forms::kMainform));
  EXPECT_EQ(session.largeChart.title, "Stage size curves");

  form.largeGraphs().clickChartButton("Command16");
  const std::string stageDeath = session.largeChart.title;
  EXPECT_NE(stageDeath, "Stage size curves");
  form.largeGraphs().Command4_Click();
  form.Command4_Click();
  EXPECT_EQ(session.largeChart.title, stageDeath);
}

TEST_F(MainFormForms, AStrategyCanBeChosenWhenItsOptionIsOnAndItHasADriver) {
  form.Form_Load();
  EXPECT_FALSE(form.optionOpen(1)); // before the load
  load();
  EXPECT_TRUE(form.optionOpen(1));
  for (int option = 2; option <= 9; ++option)
    EXPECT_TRUE(form.optionOpen(option)) << option;
  form.Option9_Click();
  EXPECT_FALSE(form.optionOpen(1)); // the frame is locked after a choice
}

} // namespace
} // namespace vorlex::testing
