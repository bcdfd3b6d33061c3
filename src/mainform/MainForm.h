#pragma once

#include "mainform/CarryForm.h"
#include "mainform/EtAtForm.h"
#include "exports/SpecificDateExport.h"
#include "mainform/LargeGraphForm.h"
#include "mainform/SamplingButtons.h"

#include <ctime>
#include <string>

namespace vorlex {

class Session;

/// The main form without its widgets: what each control shows and whether
/// it can be clicked (kept in session.controls by control name), and the
/// handlers of the steps a user goes through: simulation time, data file,
/// strategy, run. The desktop program and the command line both drive it.
///
/// A text box keeps its text as its caption: control("txtSimuT").caption.
class MainForm {
public:
  explicit MainForm(Session& session);

  void Form_Load();
  /// OK beside the simulation time: the physogastry question, the time.
  void Command2_Click();
  /// Reads the life table and its settings; nothing happens past the file
  /// dialog when it is cancelled.
  void cmdInputLTdata_Click();
  void Option1_Click();
  void Option2_Click();
  void Option3_Click();
  void Option4_Click();
  void Option5_Click();
  void Option6_Click();
  void Option7_Click();
  void Option8_Click();
  void Option9_Click();
  /// Clicks OptionN, N = 1..9.
  void chooseOption(int number);
  /// Runs the chosen strategy, closes the report, writes the death files.
  void cmdRun_Click();
  /// The one-day exports of the total size, the stage sizes, the total
  /// consumption and the weighted size: each arms its export for the next
  /// run.
  void cmdVIPOption1_Click();
  void cmdVIPOption2_Click();
  void cmdVIPOption3_Click();
  void cmdVIPOption4_Click();

  /// Quit: closes all files, hides the main form, shows the closing screen
  /// (whose own button ends the program).
  void Command1_Click();
  /// The introductions I1..I4 (Introfrm, Intro1, Intro2, Intro0), the
  /// references, the quiz and the page on printing: each shows its form and
  /// hides the main form.
  void Command3_Click();
  void Command6_Click();
  void Command7_Click();
  void Command9_Click();
  void Command14_Click();
  void Command15_Click();
  void cmdHowToPrint_Click();
  /// Show large graph: grafform shows, the main form hides; the first time,
  /// grafform loads with the stage chart.
  void Command4_Click();
  /// Show data format: the check report of the data file on CheckDat.
  void Command24_Click();
  /// Density-dependent K?: the carrying-capacity form shows, the main form
  /// hides and the strategies are locked.
  void cmdKandT_Click();
  /// Carrying capacity: the carrying-capacity form shows (after Go back,
  /// for viewing only) and the main form hides.
  void Command16_Click();
  /// ET(t): the threshold form shows with the threshold of the session
  /// drawn over time, and the main form hides.
  void cmdETandAT_Click();
  /// An information form goes back to the main form.
  void returnFrom(const std::string& form);
  /// The clock: the date and time of `now` and a greeting for its hour.
  void Timer1_Timer(const std::tm& now);

  /// Whether OptionN can be chosen now: it and its frame are enabled and
  /// this build has the driver of its strategy.
  bool optionOpen(int number) const;

  /// Whether a control of the main form can be clicked now.
  bool controlEnabled(const std::string& name) const;

  LargeGraphForm& largeGraphs() { return largeGraphs_; }
  CarryForm& carryingCapacity() { return carryForm_; }
  const CarryForm& carryingCapacity() const { return carryForm_; }
  EtAtForm& threshold() { return etAtForm_; }
  const EtAtForm& threshold() const { return etAtForm_; }

  /// Show sampling data, predict an emergence, project from a sample.
  void cmdStageSamplingData_Click() { sampling_.cmdStageSamplingData_Click(); }
  void cmdStageProjection_Click() { sampling_.cmdStageProjection_Click(); }
  void cmdProjectionAfterSampling_Click() { sampling_.cmdProjectionAfterSampling_Click(); }
  SamplingButtons& sampling() { return sampling_; }
  const SamplingButtons& sampling() const { return sampling_; }

  /// Whether this build has the driver that cmdRun runs for a strategy
  /// value of OptManagement.
  static bool hasDriver(const std::string& optManagement);
  /// The strategy value OptionN stores, N = 1..9.
  static const char* optManagementOf(int option);

  /// The title of the file dialog of the load.
  static constexpr const char* kDataFileDialogTitle = "Open the vorlex data file";
  /// The question whether a data file has the consumption block C(x,j).
  static constexpr const char* kWithCxjQuestion =
      "Data file with real consumption rate or predation rate C(x,j)?\n"
      "\n"
      "(Yes: with C(x,j)\n"
      "(No: without C(x,j)";

  /// The two sayings on show, indices into sayings().
  int sayingShown[2] = {0, 1};

private:
  void chooseStrategy(const std::string& optManagement);
  void armExport(const char* button, DateExport which);
  void loadLifeTable();
  /// Where a failure of a run happened: the strategy as its option names
  /// it, the day, and the file being written, if any.
  std::string runPlace(const std::string& strategy);
  void showParameters();
  /// The logistic threshold of the data file shown in the boxes of the
  /// threshold form.
  void showFileThresholdOnForm();
  void showInstead(const std::string& form);

  Session& session_;
  LargeGraphForm largeGraphs_;
  CarryForm carryForm_;
  EtAtForm etAtForm_;
  SamplingButtons sampling_;
};

} // namespace vorlex
