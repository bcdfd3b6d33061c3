#include "mainform/MainForm.h"
#include "mainform/ParameterText.h"
#include "mainform/Sayings.h"
#include "support/RunFolder.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSession.h"
#include "textio/RuntimeError.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace vorlex::testing {
namespace {

namespace fs = std::filesystem;

class MainFormSession : public ::testing::Test {
protected:
  RunFolder folder{"mainform"};
  ScriptedPrompts prompts;
  Session session{prompts};
  MainForm form{session};
  Model& m = session.model();

  // The file dialog of the load picks a copy of a test table.
  std::string offer(const std::string& name, const std::string& as) {
    const std::string path = folder.copy(dataPath(name), as);
    prompts.answer(std::string(MainForm::kDataFileDialogTitle) + "=" + path);
    return path;
  }
  std::set<std::string> enabled() const {
    std::set<std::string> on;
    for (const auto& [name, state] : session.controls)
      if (state.enabled)
        on.insert(name);
    return on;
  }
  bool isOn(const std::string& name) { return session.controls[name].enabled; }
};

TEST_F(MainFormSession, StepsUnlockOneAnotherInOrder) {
  offer("tiny3.txt", "tiny3.txt");
  form.Form_Load();
  const std::set<std::string> info = {"Command1",  "Command3",  "Command6",  "Command7", "Command9",
                                      "Command11", "Command14", "Command15", "Command24"};
  for (const auto& name : info)
    EXPECT_TRUE(isOn(name)) << name;
  for (const char* name : {"Frame4", "cmdInputLTdata", "cmdRun", "Command4", "Command16", "Command5",
                           "cmdKandT", "Option1", "Option9", "cmdStageProjection"})
    EXPECT_FALSE(isOn(name)) << name;
  EXPECT_TRUE(isOn("txtSimuT") && isOn("Command2") && isOn("cmdStageSamplingData") && isOn("cmdVIPOption4"));
  EXPECT_EQ(session.controls["cmdVIPOption3"].caption, "Write C(t) at time t");
  EXPECT_TRUE(session.controls["Option9"].visible);
  EXPECT_FALSE(session.controls["MSChart1"].visible);
  EXPECT_EQ(session.controls["txtSimuT"].caption, "60");
  EXPECT_EQ(m.SimTime, 60);
  EXPECT_EQ(m.SimTimeNext, 61);

  session.controls["txtSimuT"].caption = "3";
  form.Command2_Click();
  EXPECT_TRUE(isOn("cmdInputLTdata"));
  EXPECT_EQ(m.SimTime, 3);
  EXPECT_EQ(m.SimTimeNext, 4);

  form.cmdInputLTdata_Click();
  for (const char* name :
       {"Frame4", "Option1", "Option2", "Option3", "Option4", "Option5", "Option6", "Option7", "Option8",
        "Option9", "cmdStageSamplingData", "cmdStageProjection", "cmdProjectionAfterSampling", "MSChart1"})
    EXPECT_TRUE(isOn(name)) << name;
  for (const char* name : {"cmdInputLTdata", "Command2", "Command3", "cmdRun"})
    EXPECT_FALSE(isOn(name)) << name;

  form.Option1_Click();
  EXPECT_TRUE(isOn("cmdRun"));
  EXPECT_FALSE(isOn("Frame4"));

  form.cmdRun_Click();
  for (const char* name : {"Command4", "Command16", "Command3", "Command5"})
    EXPECT_TRUE(isOn(name)) << name;
  for (const char* name : {"cmdRun", "Frame4", "cmdInputLTdata"})
    EXPECT_FALSE(isOn(name)) << name;
  EXPECT_TRUE(session.controls["MSChart1"].visible);
  EXPECT_FALSE(session.controls["MSChart2"].visible);
  EXPECT_EQ(session.controls["Command5"].caption, "File 0-T- 3 for 1,2,3,8 is ready");
  EXPECT_EQ(session.mainChart.title, "Stage size");
  EXPECT_EQ(session.mainChart.rowCount(), 4); // days 0..3
  EXPECT_FALSE(session.files.isOpen(kReportFile));
}

TEST_F(MainFormSession, TheQuestionsOfCommand2AndTheLoadComeInTheirOrder) {
  offer("tiny3.txt", "tiny3.txt");
  prompts.answer("Attention=Yes").answer("Attention=No");
  prompts.answer("Initial population released date?=2.5").answer("Each time unit =?=0.5");
  form.Form_Load();
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  const std::vector<std::string> expected = {
      "Attention",
      "Attention",
      "Initial population released date?",
      "Prepare only the data files of total population size and log(total)?",
      "Each time unit =?",
      MainForm::kDataFileDialogTitle,
      "Do you need flow record?"};
  EXPECT_EQ(prompts.titles, expected);
  EXPECT_EQ(session.flags.Physogastry, "Yes");
  EXPECT_EQ(session.flags.WithCxj, "No");
  EXPECT_EQ(m.ReleaseDate, 2); // 2.5 rounds to the even 2
  EXPECT_EQ(m.TimeUnit, 0.5);
  EXPECT_EQ(session.flags.OnlyTotalFigures, "No");
  EXPECT_EQ(session.flags.FlowFlag, "No");
  EXPECT_EQ(session.flags.LifeTableLoaded, "Yes");
  EXPECT_EQ(prompts.texts[1], "Data file with real consumption rate or predation rate C(x,j)?\n\n"
                              "(Yes: with C(x,j)\n(No: without C(x,j)");
}

TEST_F(MainFormSession, ParameterBoxesShowTheFileValuesRounded) {
  offer("../../examples/moth.txt", "moth.txt");
  form.Form_Load();
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  EXPECT_EQ(session.controls["txtIntrinsicRate"].caption, ".1332");
  EXPECT_EQ(session.controls["txtFecundity"].caption, "249.989");
  EXPECT_EQ(session.controls["txtNetReproductiveRate"].caption, "56.6214");
  EXPECT_EQ(session.controls["txtMeanGenerationTime"].caption, "30.3");
  EXPECT_EQ(session.controls["txtLambda"].caption, "1.1425");
  EXPECT_EQ(session.controls["txtLastAge"].caption, "45");
  EXPECT_TRUE(session.files.isOpen(kReportFile));
  EXPECT_EQ(session.names.ReportFileName, folder.path("moth_0_output.txt"));
}

TEST(ParameterText, RoundsTiesToEvenAndStopsBeyond32Bits) {
  EXPECT_EQ(parameterText(2.5, 0), "2");
  EXPECT_EQ(parameterText(3.5, 0), "4");
  EXPECT_EQ(parameterText(-0.25, 1), "-.2");
  EXPECT_EQ(parameterText(0.00004, 4), "0");
  EXPECT_EQ(errorOf([] { parameterText(300000, 4); }).number(), 6);
}

TEST_F(MainFormSession, BaseNameCutsFourCharactersWhateverTheyAre) {
  const std::string path = offer("tiny3.txt", "table.json");
  prompts.answer("Do you need flow record?=Yes");
  form.Form_Load();
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  EXPECT_EQ(session.names.BaseName, folder.path("table."));
  EXPECT_EQ(session.names.FlowFileName, folder.path("table._0_Flow.txt"));
  EXPECT_EQ(session.names.ReportFileName, folder.path("table._0_output.txt"));
  EXPECT_EQ(session.controls["txtDatafile"].caption, path);
  EXPECT_TRUE(fs::exists(folder.path("table._0_Flow.txt")));
}

TEST_F(MainFormSession, ANameShorterThanFourCharactersStops) {
  prompts.answer(std::string(MainForm::kDataFileDialogTitle) + "=abc");
  form.Form_Load();
  form.Command2_Click();
  EXPECT_EQ(errorOf([&] { form.cmdInputLTdata_Click(); }).number(), 5);
}

TEST_F(MainFormSession, ACancelledFileDialogEndsTheLoadAndKeepsTheAnswers) {
  prompts.answer("Initial population released date?=4").answer("Each time unit =?=");
  form.Form_Load();
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  EXPECT_EQ(session.flags.LifeTableLoaded, "Yes");
  EXPECT_EQ(m.ReleaseDate, 4);
  EXPECT_EQ(m.TimeUnit, 0); // a cancelled box is 0, not caught
  EXPECT_TRUE(isOn("cmdInputLTdata"));
  EXPECT_FALSE(isOn("Frame4"));
  EXPECT_FALSE(session.files.isOpen(kReportFile));
  EXPECT_EQ(prompts.titles.back(), MainForm::kDataFileDialogTitle);
}

TEST_F(MainFormSession, EachOptionStoresItsStrategyAndMarks) {
  struct Expected {
    int option;
    const char* strategy;
    const char* growth;
    const char* fixedMark;
    const char* autoMark;
  };
  const Expected table[] = {
      {1, "OptNoControl", " ", "", ""},
      {2, "OptPredefinedControl", "AUTOCONTROL", "FIXED", "AUTOCONTROL"},
      {3, "OptAutoControlBasedOnET", "AUTOCONTROL", "", "AUTOCONTROL"},
      {4, "OptOptimize1stControl", "CONSTANT", "", ""},
      {5, "OptOptimizeControlInterval", "VARIOUS", "", ""},
      {6, "OptGrowthWithHarvest", "Harvest", "Harvest", "Harvest"},
      {7, "OptGrowthToLambda", " ", "", ""},
      {8, "OptGrowthUnderPredation", "Predation", "Predation", "Predation"},
      {9, "OptGrowthWithExtraMortality", " ", "", ""},
  };
  for (const Expected& row : table) {
    ScriptedPrompts quiet;
    Session fresh(quiet);
    MainForm freshForm(fresh);
    freshForm.Form_Load();
    fresh.controls["Frame4"].enabled = true;
    freshForm.chooseOption(row.option);
    EXPECT_EQ(fresh.flags.OptManagement, row.strategy);
    EXPECT_EQ(fresh.flags.GrowthMode, row.growth) << row.option;
    EXPECT_EQ(fresh.flags.ControlFixedMark, row.fixedMark) << row.option;
    EXPECT_EQ(fresh.flags.ControlAutoMark, row.autoMark) << row.option;
    EXPECT_EQ(fresh.flags.ExtraMortalityOption, row.option == 9 ? "Yes" : "") << row.option;
    EXPECT_FALSE(fresh.controls["Frame4"].enabled);
    EXPECT_TRUE(fresh.controls["cmdRun"].enabled);
  }
}

TEST_F(MainFormSession, AutomaticControlCoversFiveControlsAndTenDays) {
  offer("tiny3.txt", "tiny3.txt");
  form.Form_Load();
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  m.ControlMortality(2, 10, 5) = 0.25;
  m.ControlMortality(2, 10, 6) = 0.5;
  form.Option3_Click();
  EXPECT_EQ(m.AutoControlSurvival(2, 10, 5), 0.75);
  EXPECT_EQ(m.AutoControlSurvival(2, 11, 5), 0);
  EXPECT_EQ(m.AutoControlSurvival(3, 0, 1), 1 - m.ControlMortality(3, 0, 1));
}

TEST_F(MainFormSession, TheTimeInTheBoxAtRunWins) {
  offer("tiny3.txt", "tiny3.txt");
  form.Form_Load();
  session.controls["txtSimuT"].caption = "3";
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  form.Option1_Click();
  session.controls["txtSimuT"].caption = "5";
  form.cmdRun_Click();
  EXPECT_EQ(m.SimTime, 5);
  EXPECT_TRUE(fs::exists(folder.path("tiny3-0-T- 5.txt")));
}

TEST_F(MainFormSession, ALateReleaseShowsItsOwnStageChart) {
  offer("tiny3.txt", "tiny3.txt");
  prompts.answer("Initial population released date?=2");
  form.Form_Load();
  session.controls["txtSimuT"].caption = "3";
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  form.Option1_Click();
  form.cmdRun_Click();
  EXPECT_EQ(session.mainChart.title, "Stage size (release date: 2)");
}

TEST_F(MainFormSession, TwoDifferentSayingsAreShown) {
  for (int start = 0; start < 20; ++start) {
    form.Form_Load();
    EXPECT_NE(form.sayingShown[0], form.sayingShown[1]);
    EXPECT_EQ(session.controls["lblSaying1"].caption, sayings()[form.sayingShown[0]]);
    EXPECT_EQ(session.controls["lblSaying2"].caption, sayings()[form.sayingShown[1]]);
  }
  EXPECT_EQ(std::set<std::string_view>(sayings().begin(), sayings().end()).size(), 20u);
}

} // namespace
} // namespace vorlex::testing
