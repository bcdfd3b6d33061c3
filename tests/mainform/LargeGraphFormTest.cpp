#include "mainform/LargeGraphForm.h"
#include "charts/ChartFixture.h"
#include "mainform/Forms.h"

#include <optional>
#include <string>
#include <vector>

namespace vorlex::testing {
namespace {

// The run of the chart tests (days 0..2 of the three-stage table, no C(x,j)
// read, consumption set by hand) seen through the large-graph form.
class LargeGraphFormRun : public ChartTest {
protected:
  LargeGraphForm form{session};

  const ControlState& control(const std::string& name) { return session.controls[name]; }
};

TEST_F(LargeGraphFormRun, RegistersItsControls) {
  EXPECT_FALSE(control("grafform").visible);
  EXPECT_TRUE(control("grafform").enabled);
  EXPECT_EQ(control("grafform").caption, "Large graphs");
  EXPECT_EQ(control("grafform.Frame1").caption, "Select a figure to display");
  EXPECT_FALSE(control("grafform.MSChart1").visible);

  const std::vector<std::pair<std::string, std::string>> buttons{
      {"Command6", "Stage size"},
      {"Command11", "log(stage size +1)"},
      {"Command8", "Stage rate"},
      {"Command9", "Total size"},
      {"Command12", "Log(total+1)"},
      {"Command10", "Total rate"},
      {"Command17", "Vulnerable size"},
      {"Command18", "log(Vuln. size +1)"},
      {"Command15", "Consumption"},
      {"Command3", "log(Consumption)"},
      {"Command13", "Consu. and popu."},
      {"Command7", "log(consum) and log(popu)"},
      {"Command14", "Total consume. after release"},
      {"Command5", "log(total consum) after release"},
      {"Command16", "Stage death"},
      {"Command19", "log(stage death)"},
      {"Command1", "Print"},
      {"Command4", "Back"},
      {"Command2", "Quit"},
  };
  ASSERT_EQ(LargeGraphForm::chartButtons().size(), 16u);
  for (std::size_t at = 0; at < buttons.size(); ++at) {
    const auto& [name, caption] = buttons[at];
    SCOPED_TRACE(name);
    const ControlState& button = control("grafform." + name);
    EXPECT_EQ(button.caption, caption);
    EXPECT_TRUE(button.enabled);
    EXPECT_TRUE(button.visible);
    if (at < 16) {
      EXPECT_EQ(LargeGraphForm::chartButtons()[at].name, name);
      EXPECT_EQ(LargeGraphForm::chartButtons()[at].caption, caption);
    }
  }
  EXPECT_EQ(control("grafform.Command2").hint, "Quit this program");

  // A form made again sets its controls afresh.
  session.controls["grafform.Command6"] = ControlState{false, false, "old", {}};
  LargeGraphForm again{session};
  EXPECT_EQ(control("grafform.Command6").caption, "Stage size");
  EXPECT_TRUE(control("grafform.Command6").enabled && control("grafform.Command6").visible);
}

TEST_F(LargeGraphFormRun, ChartButtonsShowTheirChartsOnTheLargeChart) {
  const std::vector<std::pair<std::string, std::string>> charts{
      {"Command6", "Stage size curves"},
      {"Command11", "Curves of log(n+1)"},
      {"Command8", "Curves of stage growth rates"},
      {"Command9", "Total size (T), weighed size (W), CWID, and ET"},
      {"Command12", "Total size, weighed size (W), CWID, and ET"},
      {"Command10", "Growth rate of total population"},
      {"Command17", "Total population (T) and vulnerable size (V)"},
      {"Command18", "Total population (T) and vulnerable size (V) in log scale"},
      // No C(x,j) was read: the consumption buttons show all the same.
      {"Command15", "Total consumption based on c(x,j)"},
      {"Command3", "log(Total consumption+1) based on c(x,j)"},
      {"Command13", "Total consumption based on c(x,j) and total population"},
      {"Command7", "Total consumption based on c(x,j) and total population (in log scale)"},
      {"Command14", "Total consumption based on c(x,j) (Released at time 3)"},
      {"Command5", "log(Total consumption+1) based on c(x,j) (Released at 3)"},
      {"Command16", "Stage death curves"},
      {"Command19", "log(Stage death +1))"},
  };
  session.mainChart.title = "main";
  for (const auto& [name, title] : charts) {
    SCOPED_TRACE(name);
    session.controls[kLargeChart].visible = false;
    form.clickChartButton(name);
    EXPECT_EQ(session.largeChart.title, title);
    EXPECT_EQ(session.largeChart.xAxis.title, "time");
    EXPECT_TRUE(control(kLargeChart).visible);
  }
  EXPECT_EQ(session.mainChart.title, "main");
  EXPECT_NEAR(session.largeChart.y(1, 1), 1.5185139, 1e-7); // log10(32 + 1): Eggs dying into day 1
  EXPECT_EQ(errorOf([&] { form.clickChartButton("Command1"); }).number(), 9);
  EXPECT_EQ(errorOf([&] { form.clickChartButton("grafform.Command6"); }).number(), 9);
}

TEST_F(LargeGraphFormRun, LoadShowsTheStageChart) {
  EXPECT_FALSE(session.largeGraphsLoaded);
  form.Form_Load();
  EXPECT_TRUE(session.largeGraphsLoaded);
  EXPECT_EQ(session.largeChart.title, "Stage size curves");
  EXPECT_EQ(session.largeChart.y(1, 1), 100); // Eggs on day 0
  EXPECT_EQ(session.largeChart.y(3, 2), 20);  // Male on day 1
  EXPECT_TRUE(control(kLargeChart).visible);
}

// The efficacy button is enabled by an optimisation's efficacy rows; its
// chart shows each efficacy on the days it has one, a curve with fewer days
// staying on its last one, and leaves out a curve without any.
TEST_F(LargeGraphFormRun, TheEfficacyButtonDrawsTheEfficaciesOfTheDays) {
  form.Form_Load();
  EXPECT_FALSE(control("grafform.cmdEfficacy").enabled);
  EXPECT_EQ(control("grafform.cmdEfficacy").caption, "Efficacy of treatment");

  auto day = [](int t, std::optional<double> abbott, std::optional<double> hendersonTilton) {
    EfficacyRow row;
    row.day = t;
    row.abbottEfficacy = abbott;
    row.hendersonTiltonEfficacy = hendersonTilton;
    return row;
  };
  session.efficacy = {day(1, 20, -5), day(2, std::nullopt, 40), day(3, 60, 50), day(4, -300, std::nullopt),
                     day(5, std::nullopt, 70)};
  m.TimeUnit = .5;
  form.Form_Load();
  ASSERT_TRUE(control("grafform.cmdEfficacy").enabled);
  form.clickChartButton("cmdEfficacy");
  const ChartContent& chart = session.largeChart;
  ASSERT_EQ(chart.seriesCount(), 2);
  ASSERT_EQ(chart.rowCount(), 4);
  EXPECT_EQ(chart.label(1), "Abbott");
  EXPECT_EQ(chart.label(2), "Henderson-Tilton");
  const std::vector<double> expected{.5, 20, .5, -5, 1.5, 60, 1, 40, 2, -300, 1.5, 50, 2, -300, 2.5, 70};
  std::vector<double> shown;
  for (int row = 1; row <= 4; ++row)
    for (int column = 1; column <= 4; ++column)
      shown.push_back(chart.at(row, column));
  EXPECT_EQ(shown, expected);
}

TEST_F(LargeGraphFormRun, BackQuitAndCloseLeaveForOtherForms) {
  struct Leave {
    const char* how;
    void (LargeGraphForm::*handler)();
    bool mainShows;
    bool closingShows;
  };
  const Leave leaves[] = {
      {"Back", &LargeGraphForm::Command4_Click, true, false},
      {"Quit", &LargeGraphForm::Command2_Click, false, true},
      {"Unload", &LargeGraphForm::Form_Unload, true, false},
  };
  for (const Leave& leave : leaves) {
    SCOPED_TRACE(leave.how);
    hideForm(session, forms::kMainform);
    hideForm(session, forms::kClosing);
    showForm(session, forms::kLargeGraphs);
    (form.*leave.handler)();
    EXPECT_FALSE(formShows(session, forms::kLargeGraphs));
    EXPECT_EQ(formShows(session, forms::kMainform), leave.mainShows);
    EXPECT_EQ(formShows(session, forms::kClosing), leave.closingShows);
    // The files stay open: closing them is the main form's Quit.
    EXPECT_TRUE(session.files.isOpen(kReportFile));
  }
}

} // namespace
} // namespace vorlex::testing
