// The carrying-capacity form and the threshold form, clicked through from
// the main form of a session that has read the example's data file.
#include "mainform/Forms.h"
#include "mainform/FunctionScripts.h"
#include "mainform/MainForm.h"
#include "support/RunFolder.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorlex::testing {
namespace {

class FunctionForms : public ::testing::Test {
protected:
  RunFolder folder{"function-forms"};
  ScriptedPrompts prompts;
  Session session{prompts};
  Model& m = session.model();
  MainForm form{session};
  CarryForm& carry = form.carryingCapacity();
  EtAtForm& threshold = form.threshold();

  void load(const std::string& simTime = "100") {
    prompts.answer(std::string(MainForm::kDataFileDialogTitle) + "=" +
                   folder.copy(examplePath("moth.txt"), "moth.txt"));
    form.Form_Load();
    session.controls["txtSimuT"].caption = simTime;
    form.Command2_Click();
    form.cmdInputLTdata_Click();
  }
  bool enabled(const std::string& control) { return session.controls[control].enabled; }
  bool carryEnabled(const std::string& control) { return enabled(CarryForm::control(control)); }
};

TEST_F(FunctionForms, BothFormsOpenOnceADataFileIsRead) {
  form.Form_Load();
  EXPECT_FALSE(enabled("cmdKandT"));
  EXPECT_FALSE(enabled("cmdETandAT"));
  load();
  EXPECT_TRUE(enabled("cmdKandT"));
  EXPECT_TRUE(enabled("cmdETandAT"));
  EXPECT_EQ(session.controls["cmdETandAT"].caption, "ET(t)");
}

TEST_F(FunctionForms, DensityDependentKLocksTheStrategiesAndShowsTheFormWithItsInstructions) {
  load();
  form.Option3_Click();
  form.cmdKandT_Click();
  EXPECT_TRUE(formShows(session, forms::kCarryingCapacity));
  EXPECT_FALSE(formShows(session, forms::kMainform));
  EXPECT_FALSE(enabled("Frame4"));
  EXPECT_EQ(
      session.controls[CarryForm::control("Label12")].caption,
      " Select an equation to describe the change of the carrying capacity.  If you choose the polynomial "
      "equation, you can click on \"Preview\"  to view the graph.  After all parameters are set, click on "
      "\"Calculate K(i) and show graph\", then \"Go back to the mainform\"  then you can use them in the "
      "simulation.");
  EXPECT_EQ(carry.selectedOption(), 4);
  EXPECT_FALSE(carryEnabled("Command1"));
  EXPECT_TRUE(carryEnabled("Command2"));
}

// An option shows its frame and asks for Calculate before Go back; the
// form once left can be looked at and no more changed.
TEST_F(FunctionForms, CalculateThenGoBackLocksTheForm) {
  load();
  form.Option1_Click();
  form.cmdKandT_Click();
  carry.Option2_Click();
  EXPECT_EQ(session.flags.WithCarryingCapacity, "Yes");
  EXPECT_TRUE(session.controls[CarryForm::control("Frame4")].visible);
  EXPECT_FALSE(session.controls[CarryForm::control("Frame2")].visible);
  EXPECT_TRUE(carryEnabled("Command1"));
  EXPECT_FALSE(carryEnabled("Command2"));

  carry.Command1_Click();
  EXPECT_FALSE(enabled("cmdKandT"));
  EXPECT_TRUE(carryEnabled("Command2"));
  EXPECT_FALSE(session.controls[CarryForm::control("Label12")].visible);
  EXPECT_DOUBLE_EQ(m.KTableMaximum, 1051.65);

  carry.Option1_Click();
  EXPECT_FALSE(carryEnabled("Command2")) << "a new choice asks for Calculate again";
  carry.Option2_Click();
  carry.Command1_Click();
  carry.Command2_Click();
  EXPECT_TRUE(formShows(session, forms::kMainform));
  EXPECT_FALSE(formShows(session, forms::kCarryingCapacity));
  EXPECT_TRUE(enabled("cmdKandT"));
  EXPECT_TRUE(enabled("Command16"));
  for (const char* locked : {"Command1", "Command3", "Frame1", "Frame2", "Frame3", "Frame4"})
    EXPECT_FALSE(carryEnabled(locked)) << locked;

  form.Command16_Click();
  EXPECT_TRUE(formShows(session, forms::kCarryingCapacity));
  carry.Form_Unload();
  EXPECT_TRUE(formShows(session, forms::kMainform));
}

TEST_F(FunctionForms, NoDensityDependenceAfterACalculationKeepsTheTablesAndTurnsItOff) {
  load();
  form.Option1_Click();
  form.cmdKandT_Click();
  carry.Option1_Click();
  carry.Command1_Click();
  const double k50 = m.CarryingCapacity(50);
  carry.Option4_Click();
  EXPECT_EQ(session.flags.WithCarryingCapacity, "No");
  EXPECT_EQ(m.CarryingCapacity(50), k50);
  EXPECT_TRUE(session.controls[CarryForm::control("Frame2")].visible) << "the frames stay as they are";
  carry.Command2_Click();
  EXPECT_FALSE(enabled("Command16"));
}

TEST_F(FunctionForms, CalculatingTwiceGivesTheSameTables) {
  load();
  form.cmdKandT_Click();
  carry.Option3_Click();
  carry.Command1_Click();
  const double k = m.CarryingCapacity(77), below = m.DensityCoefBelowKDay(77);
  carry.Command1_Click();
  EXPECT_EQ(m.CarryingCapacity(77), k);
  EXPECT_EQ(m.DensityCoefBelowKDay(77), below);
}

TEST_F(FunctionForms, TheChartsOfTheThreeForms) {
  struct Case {
    int option;
    const char* title;
    const char* yTitle;
    const char* xTitle;
    double lastX;
  };
  const Case cases[] = {
      {1, "The time-specific carrying capacity", "K(t)", "Time", 100},
      {2, "The time-specific carrying capacity", "K(t)", "Time", 50},
      {3, "The carrying capacity", "K(x)", "x", 60},
  };
  load();
  form.cmdKandT_Click();
  for (const Case& c : cases) {
    carry.chooseOption(c.option);
    carry.Command1_Click();
    const ChartContent& chart = carry.chart();
    EXPECT_EQ(chart.title, c.title);
    EXPECT_EQ(chart.yAxis.title, c.yTitle);
    EXPECT_EQ(chart.xAxis.title, c.xTitle);
    EXPECT_FALSE(chart.showLegend);
    EXPECT_EQ(chart.seriesCount(), 1);
    ASSERT_EQ(chart.rowCount(), 101) << "days 0 to SimTime";
    EXPECT_DOUBLE_EQ(chart.x(1, 101), c.lastX);
    EXPECT_EQ(chart.y(1, 101), m.CarryingCapacity(100));
  }
}

TEST_F(FunctionForms, FindTheParabolaWritesItsEquationAndShowsTheChart) {
  load();
  form.cmdKandT_Click();
  carry.Command4_Click();
  EXPECT_EQ(carry.text("Text14"), "y = 10+26.2222x+0x^2");
  EXPECT_EQ(carry.chart().title, "The carrying capacity");
  EXPECT_EQ(m.DensityCoefBelowKDay(0), 0) << "Find draws the parabola only";
  carry.type("Text11", "20");
  carry.type("Text12", "12abc");
  carry.Command4_Click();
  EXPECT_EQ(carry.text("Text14"), "y = 20-.3556x+0x^2");
}

TEST_F(FunctionForms, ACalculationThatFailsStopsWithThePlatformsError) {
  load();
  form.cmdKandT_Click();
  carry.Option1_Click();
  carry.type("Text2", "");
  try {
    carry.Command1_Click();
    ADD_FAILURE() << "K(0) = 0 did not stop";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.code(), ErrorCode::DivisionByZero);
  }
}

// The logistic threshold of the data file shows in the form's boxes, which
// select the logistic; the table is the file's.
TEST_F(FunctionForms, TheFilesLogisticThresholdShowsOnTheThresholdForm) {
  load();
  EXPECT_EQ(threshold.text("txtA"), "20");
  EXPECT_EQ(threshold.text("txtB"), "1");
  EXPECT_EQ(threshold.text("txtC"), "-.2");
  EXPECT_EQ(threshold.text("txtL"), "10");
  EXPECT_EQ(threshold.selectedOption(), 3);
  EXPECT_DOUBLE_EQ(m.EtDay(0), 20);
  EXPECT_DOUBLE_EQ(m.EtDay(101), 10 + 20 / (1 + std::exp(-.2 * 101)));
  // The form drew the table of its first box's change, before the file's.
  EXPECT_DOUBLE_EQ(threshold.chart().y(1, 1), 1 + 20.0 / 101);

  form.cmdETandAT_Click();
  EXPECT_TRUE(formShows(session, forms::kEtAndAt));
  EXPECT_FALSE(formShows(session, forms::kMainform));
  EXPECT_EQ(threshold.chart().y(1, 1), m.EtDay(0)) << "the main form draws the session's threshold";
  threshold.Command1_Click();
  EXPECT_TRUE(formShows(session, forms::kMainform));
}

TEST_F(FunctionForms, TypingSelectsTheEquationAndRecomputesOnlyAtTheFirstKeystroke) {
  load();
  form.cmdETandAT_Click();
  threshold.Option1_Click();
  EXPECT_EQ(m.EtDay(50), 10);
  threshold.change("Text2", "1");
  EXPECT_EQ(threshold.selectedOption(), 2);
  EXPECT_EQ(m.EtDay(50), 1 + 50 * .5) << "the linear with the partly typed a";
  threshold.change("Text2", "12abc");
  EXPECT_EQ(m.EtDay(50), 26) << "nothing changes until Enter";
  threshold.keyPress("Text3", 'x');
  EXPECT_EQ(m.EtDay(50), 26);
  threshold.keyPress("Text3", EtAtForm::kEnter);
  EXPECT_EQ(m.EtDay(50), 12 + 50 * .5);
  threshold.change("Text3", "");
  threshold.keyPress("Text2", EtAtForm::kEnter);
  EXPECT_EQ(m.EtDay(101), 12) << "an empty box counts as 0";
  EXPECT_EQ(threshold.chart().rowCount(), 101);
}

TEST_F(FunctionForms, ScriptsRunTheClicksOfTheForms) {
  load("60");
  applyEtEquation(form, parseEtEquation("hyperbola:50,10"));
  EXPECT_DOUBLE_EQ(m.EtDay(10), 25);
  EXPECT_DOUBLE_EQ(m.EtDay(61), 50.0 * 61 / 71);
  EXPECT_TRUE(formShows(session, forms::kMainform));
  form.Option1_Click();
  applyCarryingCapacity(form, parseCarryingCapacity("logistic:5000,5000,.1"));
  EXPECT_EQ(session.flags.WithCarryingCapacity, "Yes");
  EXPECT_EQ(m.CarryingCapacity(61), 5000);
  EXPECT_EQ(m.DensityCoefOverKDay(61), 1);
  EXPECT_TRUE(formShows(session, forms::kMainform));
  EXPECT_TRUE(enabled("cmdRun"));
}

TEST(FunctionScripts, NameTheirFormAndTakeItsBoxesInOrder) {
  struct Case {
    const char* text;
    bool capacity;
    int option;
    std::vector<std::pair<std::string, std::string>> boxes;
  };
  const Case cases[] = {
      {"logistic:1,2,3", true, 1, {{"Text1", "1"}, {"Text2", "2"}, {"Text3", "3"}}},
      {"polynomial:a,,c,d,e,f",
       true,
       2,
       {{"Text5", "a"}, {"Text6", ""}, {"Text7", "c"}, {"Text8", "d"}, {"Text9", "e"}, {"Text10", "f"}}},
      {"parabola:1,2,3,4,5",
       true,
       3,
       {{"Text11", "1"}, {"Text12", "2"}, {"Text13", "3"}, {"Text15", "4"}, {"Text16", "5"}}},
      {"none", true, 4, {}},
      {"constant:7", false, 1, {{"Text1", "7"}}},
      {"linear:1,2", false, 2, {{"Text2", "1"}, {"Text3", "2"}}},
      {"logistic:1,2,3,4", false, 3, {{"txtA", "1"}, {"txtB", "2"}, {"txtC", "3"}, {"txtL", "4"}}},
      {"hyperbola:1,2", false, 4, {{"Text7", "1"}, {"Text8", "2"}}},
  };
  for (const Case& c : cases) {
    const FormChoice choice = c.capacity ? parseCarryingCapacity(c.text) : parseEtEquation(c.text);
    EXPECT_EQ(choice.option, c.option) << c.text;
    EXPECT_EQ(choice.boxes, c.boxes) << c.text;
  }
  for (const char* wrong : {"logistic:1,2", "none:1", "cubic:1", "logistic", ""})
    EXPECT_THROW(parseCarryingCapacity(wrong), FormScriptError) << wrong;
  for (const char* wrong : {"constant", "linear:1", "hyperbola:1,2,3", "none"})
    EXPECT_THROW(parseEtEquation(wrong), FormScriptError) << wrong;
}

} // namespace
} // namespace vorlex::testing
