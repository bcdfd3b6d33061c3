#include "mainform/MainForm.h"

#include "datafile/DataFileReader.h"
#include "mainform/CheckDataForm.h"
#include "datafile/EtSelector.h"
#include "functions/FunctionCharts.h"
#include "exports/SpecificDateExport.h"
#include "mainform/Forms.h"
#include "mainform/LambdaCheck.h"
#include "mainform/ParameterText.h"
#include "mainform/Sayings.h"
#include "model/Session.h"
#include "reports/DeathFiles.h"
#include "strategies/ControlOptimisation.h"
#include "strategies/ControlledGrowth.h"
#include "strategies/UnlimitedGrowth.h"
#include "textio/NumberForms.h"
#include "textio/RuntimeError.h"

#include <cstdio>
#include <filesystem>
#include <map>
#include <random>

namespace vorlex {

namespace {

struct ControlSetup {
  const char* name;
  const char* caption;
  bool enabled;
  bool visible = true;
  const char* hint = "";
};

// The controls as the form is created, before Form_Load touches them.
constexpr ControlSetup kCreated[] = {
    {"Frame1", "", true},
    {"txtSimuT", "", true},
    {"cmdKandT", "Density-dependent K?", false, true, "Enter simulation time and carrying capacity function"},
    {"cmdETandAT", "ET(t)", false, true, "Look at ET or AT over time, or replace it by an equation"},
    {"Command2", "OK", true},
    {"cmdInputLTdata", "Read life table and vorlex data", false, true,
     "Open data file no. 15 created by Quorat"},
    {"Frame4", "3.  Select control strategy ", false},
    {"Option1", "No control", false},
    {"Option2", "Control based on predefined schedule", false},
    {"Option3", "Automatic control based on ET", false},
    {"Option4", "Optimize beginning of control", false},
    {"Option5", "Optimize control interval", false},
    {"Option6", "Population growth with stage harvesting", false},
    {"Option7", "Unlimited growth", false, false},
    {"Option8", "Population growth under predation", false, false},
    {"Option9", "Extra mortality", false, false},
    {"cmdRun", "Run simulation", false, true, "Run simulation based on life table"},
    {"Command4", "Show large graph", false},
    {"Command16", "Carrying capacity", false, true, "View carrying capacity"},
    {"Command5", "Not available yet", false, true,
     "Predict the population growth based on the age-stage structure at time t"},
    {"cmdVIPOption1", "", false, true, "Write the total population size of a chosen day to a file"},
    {"cmdVIPOption2", "", false, true, "Write the stage sizes of a chosen day to a file"},
    {"cmdVIPOption3", "", false, true, "Write the total consumption of a chosen day to a file"},
    {"cmdVIPOption4", "", false, true, "Write the weighted size of a chosen day to a file"},
    {"cmdStageSamplingData", "Show sampling data ", false, true, "Read and show sampling data"},
    {"cmdStageProjection", "Predict emergence of y stage", false, true,
     "Predict the emergence and size of stage y based on the sampling data of stage x"},
    {"cmdProjectionAfterSampling", "Project growth using N(j) at time t", false, true, "Project from N(j,t)"},
    {"Command1", "Quit", true, true, "Quit this program"},
    {"Command3", "I1", false, true, "Introduction: the age-stage, two-sex life table"},
    {"Command6", "I2", true, true, "Introduction: the population parameters r, lambda, R0 and T"},
    {"Command7", "I3", true, true, "Introduction: from the life table to a projection"},
    {"Command9", "I4", true, true, "Introduction: what the simulation does with your data"},
    {"Command14", "References", true},
    {"Command15", "Quiz", true},
    {"Command11", "Print this form", true, true, "Print this page"},
    {"Command24", "Show data format", true, true, "Show input data format"},
    {"txtDatafile", "", true},
    {"txtFecundity", "", true},
    {"txtNetReproductiveRate", "", true},
    {"txtIntrinsicRate", "", true},
    {"txtMeanGenerationTime", "", true},
    {"txtLambda", "", true},
    {"lblRunSummary", "", true},
    {"lblStatus", "", true},
    {"txtLastAge", "", true},
    {"MSChart1", "", false},
    {"MSChart2", "", true},
    {"lblProcedure", "", true},
    {"lblSaying1", "", true},
    {"lblSaying2", "", true},
    {"cmdHowToPrint", "How to print", true, true, "How to print this form, the charts and the report"},
    {"lblClock", "", true},
    {"lblGreeting", "", true},
};

constexpr const char* kProcedure = "General procedure: \n"
                                   "1. Enter the simulation time.\n"
                                   "2. Open the vorlex data file.\n"
                                   "3. Select a management strategy.\n"
                                   "4. Click on Step 6 to run the program.";

void enable(Session& session, std::initializer_list<const char*> names, bool on = true) {
  for (const char* name : names)
    session.controls[name].enabled = on;
}

// BaseName cuts the last four characters, whatever they are; a shorter
// name is an invalid call of the cut.
std::string withoutLastFour(const std::string& path) {
  if (path.size() < 4)
    raise(ErrorCode::InvalidProcedureCall, "Data file name \"" + path + "\" is shorter than four characters");
  return path.substr(0, path.size() - 4);
}

} // namespace

MainForm::MainForm(Session& session)
    : session_(session), largeGraphs_(session), carryForm_(session), etAtForm_(session), sampling_(session) {
  for (const ControlSetup& setup : kCreated)
    session_.controls[setup.name] = ControlState{setup.enabled, setup.visible, setup.caption, setup.hint};
  // The main form shows from the start; every other form waits for its
  // button.
  session_.controls[forms::kMainform] = ControlState{true, true, "Vorlex", ""};
  for (const char* form : forms::kIntroductions)
    hideForm(session_, form);
  for (const char* form :
       {forms::kReferences, forms::kQuiz, forms::kHowToPrint, forms::kClosing, forms::kCarryingCapacity})
    hideForm(session_, form);
  checkdat::createControls(session_);
}

void MainForm::Form_Load() {
  auto& controls = session_.controls;
  controls["cmdVIPOption1"].caption = "Write N(t) at time t";
  controls["cmdVIPOption2"].caption = "Write n(x,j) at time t";
  controls["cmdVIPOption3"].caption = "Write C(t) at time t";
  controls["cmdVIPOption4"].caption = "Write W(x,j) at time t";
  enable(session_,
         {"cmdVIPOption1", "cmdVIPOption2", "cmdVIPOption3", "cmdVIPOption4", "cmdStageSamplingData"});
  for (const char* name : {"Option7", "Option8", "Option9"})
    controls[name].visible = true;

  std::random_device seed;
  std::mt19937 draw(seed());
  std::uniform_int_distribution<int> pick(0, 19);
  do {
    sayingShown[0] = pick(draw);
    sayingShown[1] = pick(draw);
  } while (sayingShown[0] == sayingShown[1]);
  controls["lblSaying1"].caption = sayings()[sayingShown[0]];
  controls["lblSaying2"].caption = sayings()[sayingShown[1]];

  controls["lblProcedure"].caption = kProcedure;
  session_.flags.WithCarryingCapacity = "No";
  controls["MSChart1"].visible = false;
  controls["cmdRun"].enabled = false;
  controls["cmdRun"].visible = true;
  enable(session_, {"Command3"});
  enable(session_, {"Command4"}, false);

  Model& m = session_.model();
  controls["txtSimuT"].caption = "60";
  m.SimTime = toInt16(numberEntry(controls["txtSimuT"].caption));
  m.SimTimeNext = checkedInt16(m.SimTime + 1);
  session_.flags.OptManagement = "OptNoControl";
}

void MainForm::Command2_Click() {
  session_.flags.Physogastry = yesNo(session_.prompter().askYesNo("Physogastric reproduction?", "Attention"));
  Model& m = session_.model();
  try {
    m.SimTime = toInt16(numberEntry(session_.controls["txtSimuT"].caption));
    m.SimTimeNext = checkedInt16(m.SimTime + 1);
  } catch (const RuntimeError& error) {
    throw error.at("Step 1, the simulation time: \"" + session_.controls["txtSimuT"].caption + "\"");
  }
  enable(session_, {"cmdInputLTdata"});
}

namespace {

// Whether a path ends in a dot and three characters of a name, as "a.txt".
bool endsInExtension(const std::string& path) {
  if (path.size() < 5 || path[path.size() - 4] != '.')
    return false;
  for (std::size_t i = path.size() - 3; i < path.size(); ++i)
    if (path[i] == '/' || path[i] == '.' || path[i] == ' ')
      return false;
  return true;
}

} // namespace

void MainForm::cmdInputLTdata_Click() {
  try {
    loadLifeTable();
  } catch (const RuntimeError& error) {
    throw error.at("Step 2, the load of the life table and its questions");
  }
}

void MainForm::loadLifeTable() {
  RunFlags& flags = session_.flags;
  FileNames& names = session_.names;
  Prompter& ask = session_.prompter();
  Model& m = session_.model();

  flags.LifeTableLoaded = "Yes";
  flags.WithCxj = yesNo(ask.askYesNo(kWithCxjQuestion, "Attention"));
  m.ReleaseDate =
      toInt16(askNumber(ask, "What is the day that the initial population will be released?\n"
                             "(In general, it is day 0.)",
                        "Initial population released date?", "0"));
  flags.OnlyTotalFigures = yesNo(ask.askYesNo(
      "Do you need only the figure data files of total population size and log(total population size)?",
      "Prepare only the data files of total population size and log(total)?"));
  m.TimeUnit =
      askNumber(ask, "Enter the time unit of your data (1 = 1 day, 0.5 = 0.5 day, 0.3 = 8h, "
                     "0.25 = 6 h, 0.2 = 4.8 h or 0.16 = 4 h).\n"
                     "(For any other time unit, enter 1.)",
                "Each time unit =?", "1");

  const std::string path = ask.chooseFileToOpen(kDataFileDialogTitle);
  if (path.empty())
    return;
  names.DataFileName = path;
  ControlState& shown = session_.controls["txtDatafile"];
  shown.caption = path;
  names.BaseName = withoutLastFour(path);
  if (!endsInExtension(path))
    ask.inform("The outputs will be named after \"" + names.BaseName +
                   "\": the data file's name without its last four characters, which are not a dot and a "
                   "three-letter extension.",
               "Output names");

  if (ask.askYesNo("Do you need the record of program flow?", "Do you need flow record?")) {
    flags.FlowFlag = "Yes";
    names.FlowFileName = names.BaseName + "_0_Flow.txt";
    session_.files.openOutput(kFlowFile, names.FlowFileName);
  } else {
    flags.FlowFlag = "No";
  }
  readDataFile(session_, names.DataFileName);
  if (m.EtSelector == EtForm::Logistic)
    showFileThresholdOnForm();
  showParameters();

  names.ReportFileName = names.BaseName + "_0_output.txt";
  session_.files.openOutput(kReportFile, names.ReportFileName);

  enable(session_, {"cmdInputLTdata", "Command3"}, false);
  enable(session_, {"Frame4", "Option1", "Option2", "Option3", "Option4", "Option5", "Option6", "Option7", "Option8", "Option9",
                    "cmdStageSamplingData", "cmdStageProjection", "cmdProjectionAfterSampling", "MSChart1"});
  // The first run can be density-limited and can take a threshold from an
  // equation.
  enable(session_, {"cmdKandT", "cmdETandAT"});
  enable(session_, {"Command2"}, false);
}

void MainForm::showParameters() {
  const Model& m = session_.model();
  auto& controls = session_.controls;
  controls["txtIntrinsicRate"].caption = parameterText(m.IntrinsicRate, 4);
  controls["txtFecundity"].caption = parameterText(m.MeanFecundity, 3);
  controls["txtNetReproductiveRate"].caption = parameterText(m.NetReproductiveRate, 4);
  controls["txtMeanGenerationTime"].caption = parameterText(m.GenerationTime, 2);
  controls["txtLambda"].caption = parameterText(m.FiniteRate, 4);
  controls["txtLastAge"].caption = digits(m.LastAgeOfFile);
}

void MainForm::chooseStrategy(const std::string& optManagement) {
  session_.flags.OptManagement = optManagement;
  enable(session_, {"Frame4"}, false);
  enable(session_, {"cmdRun"});
}

void MainForm::Option1_Click() { chooseStrategy(optManagementOf(1)); }

void MainForm::Option2_Click() {
  RunFlags& flags = session_.flags;
  flags.GrowthMode = "AUTOCONTROL";
  flags.ControlFixedMark = "FIXED";
  flags.ControlAutoMark = "AUTOCONTROL";
  chooseStrategy(optManagementOf(2));
}

void MainForm::Option3_Click() {
  RunFlags& flags = session_.flags;
  flags.GrowthMode = "AUTOCONTROL";
  flags.ControlAutoMark = "AUTOCONTROL";
  // Only the first five controls and their first ten effective days.
  Model& m = session_.model();
  for (int e = 1; e <= 5; ++e)
    for (int stage = 1; stage <= m.NrStage; ++stage)
      for (int d = 0; d <= 10; ++d)
        m.AutoControlSurvival(stage, d, e) = 1 - m.ControlMortality(stage, d, e);
  chooseStrategy(optManagementOf(3));
}

void MainForm::Option4_Click() {
  session_.flags.GrowthMode = "CONSTANT";
  chooseStrategy(optManagementOf(4));
}

void MainForm::Option5_Click() {
  session_.flags.GrowthMode = "VARIOUS";
  chooseStrategy(optManagementOf(5));
}

void MainForm::Option6_Click() {
  RunFlags& flags = session_.flags;
  flags.GrowthMode = flags.ControlFixedMark = flags.ControlAutoMark = "Harvest";
  chooseStrategy(optManagementOf(6));
}

void MainForm::Option7_Click() { chooseStrategy(optManagementOf(7)); }

void MainForm::Option8_Click() {
  RunFlags& flags = session_.flags;
  flags.GrowthMode = flags.ControlFixedMark = flags.ControlAutoMark = "Predation";
  chooseStrategy(optManagementOf(8));
}

void MainForm::Option9_Click() {
  session_.flags.ExtraMortalityOption = "Yes";
  chooseStrategy(optManagementOf(9));
}

void MainForm::chooseOption(int number) {
  switch (number) {
  case 1: return Option1_Click();
  case 2: return Option2_Click();
  case 3: return Option3_Click();
  case 4: return Option4_Click();
  case 5: return Option5_Click();
  case 6: return Option6_Click();
  case 7: return Option7_Click();
  case 8: return Option8_Click();
  case 9: return Option9_Click();
  default: raise(ErrorCode::SubscriptOutOfRange, "Option" + std::to_string(number));
  }
}

const char* MainForm::optManagementOf(int option) {
  static constexpr const char* kValues[] = {
      "OptNoControl",          "OptPredefinedControl",       "OptAutoControlBasedOnET",
      "OptOptimize1stControl", "OptOptimizeControlInterval", "OptGrowthWithHarvest",
      "OptGrowthToLambda",     "OptGrowthUnderPredation",    "OptGrowthWithExtraMortality"};
  if (option < 1 || option > 9)
    raise(ErrorCode::SubscriptOutOfRange, "Option" + std::to_string(option));
  return kValues[option - 1];
}

namespace {

using Driver = void (*)(Session&);

// The driver cmdRun runs for each strategy this build has one for.
Driver driverOf(const std::string& optManagement) {
  static const std::map<std::string, Driver> kDrivers = {
      {"OptNoControl", &UnlimitedGrowth},
      {"OptGrowthWithExtraMortality", &UnlimitedGrowth},
      {"OptPredefinedControl", &PredefinedControl},
      {"OptOptimize1stControl", &OptimizeFirstControl},
      {"OptOptimizeControlInterval", &OptimizeControlInterval},
      {"OptAutoControlBasedOnET", &AutoControlBasedonET},
      {"OptGrowthWithHarvest", &GrowthWithHarvest},
      {"OptGrowthToLambda", &GrowthToLambda},
      {"OptGrowthUnderPredation", &GrowthUnderPredation},
  };
  const auto found = kDrivers.find(optManagement);
  return found == kDrivers.end() ? nullptr : found->second;
}

} // namespace

std::string MainForm::runPlace(const std::string& strategy) {
  std::string name = strategy;
  for (int option = 1; option <= 9; ++option)
    if (strategy == optManagementOf(option))
      name = session_.controls["Option" + std::to_string(option)].caption;
  std::string place = "Run of \"" + name + "\", day " + digits(session_.model().Day);
  if (const std::string file = session_.files.newestOpenOutput(); !file.empty())
    place += ", file being written: " + file;
  return place;
}

bool MainForm::hasDriver(const std::string& optManagement) { return driverOf(optManagement) != nullptr; }

void MainForm::cmdRun_Click() {
  session_.flow("In Private Sub cmdRun_Click()");
  Model& m = session_.model();
  m.SimTime = toInt16(numberEntry(session_.controls["txtSimuT"].caption));
  enable(session_, {"cmdInputLTdata"}, false);
  session_.controls["MSChart2"].visible = false;
  session_.controls["MSChart1"].visible = true;

  // The driver may overwrite the strategy value with the one it reports.
  const std::string strategy = session_.flags.OptManagement;
  const Driver driver = driverOf(strategy);
  if (!driver)
    raise(ErrorCode::InvalidProcedureCall, "The strategy " + strategy + " is not available in this build");
  try {
    driver(session_);
    if (strategy == "OptGrowthToLambda")
      session_.controls["lblRunSummary"].caption = lambdaCheck(session_);

    session_.files.close(kReportFile);
    PrintStageDeath(session_);
    PrintTotalDeath(session_);
    PrintLogStageDeath(session_);
    PrintCumuStageDeath(session_);
    PrintLogCumuStageDeath(session_);
    PrintTotalDifference(session_);
  } catch (const RuntimeError& error) {
    throw error.at(runPlace(strategy));
  }

  enable(session_, {"Command4", "Command16", "Command3"});
  enable(session_, {"cmdRun", "Frame4", "cmdInputLTdata"}, false);

  // Where the run's files went: the report, and the figure files that share
  // its base name in the data file's folder.
  const std::string folder = std::filesystem::path(session_.names.BaseName).parent_path().string();
  session_.controls["lblStatus"].caption = "Report: " + session_.names.ReportFileName +
                                           "; figure files beside it in " +
                                           (folder.empty() ? "the current folder" : folder);
}

void MainForm::armExport(const char* button, DateExport which) {
  try {
    armDateExport(session_, which);
  } catch (const RuntimeError& error) {
    throw error.at("Button \"" + session_.controls[button].caption + "\"");
  }
}

void MainForm::cmdVIPOption1_Click() { armExport("cmdVIPOption1", DateExport::TotalSize); }
void MainForm::cmdVIPOption2_Click() { armExport("cmdVIPOption2", DateExport::StageSizes); }
void MainForm::cmdVIPOption3_Click() { armExport("cmdVIPOption3", DateExport::Consumption); }
void MainForm::cmdVIPOption4_Click() { armExport("cmdVIPOption4", DateExport::WeighedSize); }

void MainForm::Command1_Click() {
  session_.files.closeAll();
  showInstead(forms::kClosing);
}

void MainForm::showInstead(const std::string& form) {
  hideForm(session_, forms::kMainform);
  showForm(session_, form);
}

void MainForm::Command3_Click() { showInstead(forms::kIntroductions[0]); }
void MainForm::Command6_Click() { showInstead(forms::kIntroductions[1]); }
void MainForm::Command7_Click() { showInstead(forms::kIntroductions[2]); }
void MainForm::Command9_Click() { showInstead(forms::kIntroductions[3]); }
void MainForm::Command14_Click() { showInstead(forms::kReferences); }
void MainForm::Command15_Click() { showInstead(forms::kQuiz); }
void MainForm::cmdHowToPrint_Click() { showInstead(forms::kHowToPrint); }

void MainForm::Command4_Click() {
  showInstead(forms::kLargeGraphs);
  if (!session_.largeGraphsLoaded)
    largeGraphs_.Form_Load();
}

void MainForm::Command24_Click() { checkdat::showDataFormat(session_); }
void MainForm::showFileThresholdOnForm() {
  // The reader writes the logistic's parameters into the threshold form's
  // boxes: the first write loads the form and selects the logistic, which
  // fills the table from the boxes as they are at that moment; then the
  // reader fills the table from the file's numbers.
  Model& m = session_.model();
  etAtForm_.change("txtA", digits(m.EtB));
  etAtForm_.change("txtB", digits(m.EtC));
  etAtForm_.change("txtC", digits(m.EtD));
  etAtForm_.change("txtL", digits(m.EtA));
  expandLogisticEt(m);
}

void MainForm::cmdKandT_Click() {
  showInstead(forms::kCarryingCapacity);
  carryForm_.loadOnce();
  enable(session_, {"Frame4"}, false);
}

void MainForm::Command16_Click() {
  showInstead(forms::kCarryingCapacity);
  carryForm_.loadOnce();
}

void MainForm::cmdETandAT_Click() {
  showInstead(forms::kEtAndAt);
  etAtForm_.loadOnce();
  etAtForm_.showChart(PlotETandAt(session_));
}

void MainForm::returnFrom(const std::string& form) {
  hideForm(session_, form);
  showForm(session_, forms::kMainform);
}

void MainForm::Timer1_Timer(const std::tm& now) {
  char clock[64];
  std::snprintf(clock, sizeof clock, "%04d-%02d-%02d %02d:%02d:%02d", now.tm_year + 1900, now.tm_mon + 1,
                now.tm_mday, now.tm_hour, now.tm_min, now.tm_sec);
  session_.controls["lblClock"].caption = clock;
  const char* greeting = now.tm_hour < 12   ? "Good morning!"
                         : now.tm_hour < 18 ? "Good afternoon!"
                                            : "Good evening!";
  session_.controls["lblGreeting"].caption = greeting;
}

bool MainForm::controlEnabled(const std::string& name) const {
  const auto found = session_.controls.find(name);
  return found != session_.controls.end() && found->second.enabled;
}

bool MainForm::optionOpen(int number) const {
  const auto on = [this](const std::string& name) {
    const auto found = session_.controls.find(name);
    return found != session_.controls.end() && found->second.enabled;
  };
  // An option stands in Frame4: a locked frame locks its options.
  return on("Frame4") && on("Option" + std::to_string(number)) && hasDriver(optManagementOf(number));
}

} // namespace vorlex
