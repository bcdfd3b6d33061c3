#include "mainform/LargeGraphForm.h"

#include "exports/UncertaintyBand.h"
#include "mainform/Forms.h"
#include "model/Session.h"
#include "textio/RuntimeError.h"

#include <array>
#include <filesystem>

namespace vorlex {
namespace {

constexpr std::array<LargeGraphForm::ChartButton, 16> kChartButtons{{
    {"Command6", "Stage size", grafform::ShowStageStructure},
    {"Command11", "log(stage size +1)", grafform::ShowLogStageStructure},
    {"Command8", "Stage rate", grafform::ShowStageGrowthRate},
    {"Command9", "Total size", grafform::ShowTotalSizeAndWeighedSize},
    {"Command12", "Log(total+1)", grafform::ShowLogTotalAndWeighed},
    {"Command10", "Total rate", grafform::ShowTotalGrowthRate},
    {"Command17", "Vulnerable size", grafform::ShowVulnerableAndTotal},
    {"Command18", "log(Vuln. size +1)", grafform::ShowLogVulnerableAndTotal},
    {"Command15", "Consumption", grafform::ShowTotalConsume},
    {"Command3", "log(Consumption)", grafform::ShowTotalLogConsume},
    {"Command13", "Consu. and popu.", grafform::ShowTotalConsumeAndPopu},
    {"Command7", "log(consum) and log(popu)", grafform::ShowTotalConsumeAndPopuInLog},
    {"Command14", "Total consume. after release", grafform::ShowTotalConsumeAfterRelease},
    {"Command5", "log(total consum) after release", grafform::ShowTotalLogConsumeAfterRelease},
    {"Command16", "Stage death", grafform::ShowStageDeath},
    {"Command19", "log(stage death)", grafform::ShowLogStageDeath},
}};

std::string control(const std::string& name) { return std::string(forms::kLargeGraphs) + "." + name; }

} // namespace

LargeGraphForm::LargeGraphForm(Session& session) : session_(session) {
  auto& controls = session_.controls;
  controls[forms::kLargeGraphs] = ControlState{true, false, kTitle, {}};
  controls[control("Frame1")] = ControlState{true, true, kFrameCaption, {}};
  // The chart shows once a chart routine has filled it.
  controls[kLargeChart] = ControlState{true, false, {}, {}};
  for (const ChartButton& button : kChartButtons)
    controls[control(button.name)] = ControlState{true, true, button.caption, {}};
  controls[control("cmdBand")] =
      ControlState{true, true, "Uncertainty band", "Draw the band file of a batch of runs"};
  controls[control("cmdEfficacy")] = ControlState{false, true, "Efficacy of treatment", {}};
  // Print is carried out by the desktop program itself.
  controls[control("Command1")] = ControlState{true, true, "Print", {}};
  controls[control("Command4")] = ControlState{true, true, "Back", {}};
  controls[control("Command2")] = ControlState{true, true, "Quit", "Quit this program"};
}

std::span<const LargeGraphForm::ChartButton> LargeGraphForm::chartButtons() { return kChartButtons; }

void LargeGraphForm::Form_Load() {
  session_.largeChart = grafform::ShowStageStructure(session_);
  session_.largeGraphsLoaded = true;
  session_.controls[control("cmdEfficacy")].enabled = !session_.efficacy.empty();
}

void LargeGraphForm::cmdEfficacy_Click() { session_.largeChart = grafform::ShowEfficacy(session_); }

void LargeGraphForm::clickChartButton(const std::string& name) {
  if (name == "cmdEfficacy")
    return cmdEfficacy_Click();
  for (const ChartButton& button : kChartButtons)
    if (name == button.name) {
      session_.largeChart = button.routine(session_);
      return;
    }
  raise(ErrorCode::SubscriptOutOfRange, "No chart button " + name + " on " + forms::kLargeGraphs);
}

void LargeGraphForm::cmdBand_Click() {
  const std::string path = session_.prompter().chooseFileToOpen(kBandDialogTitle);
  if (path.empty())
    return;
  try {
    const UncertaintyBand band = readBand(path);
    session_.largeChart = bandChart(band, std::filesystem::path(path).filename().string());
  } catch (const RuntimeError& error) {
    session_.prompter().inform("This file is no band file of a batch of runs:\n" + path + "\n" + error.what(),
                               "Uncertainty band");
  }
}

void LargeGraphForm::Command4_Click() {
  hideForm(session_, forms::kLargeGraphs);
  showForm(session_, forms::kMainform);
}

void LargeGraphForm::Command2_Click() {
  // Only the closing screen: the main form's Quit closes the files.
  hideForm(session_, forms::kLargeGraphs);
  showForm(session_, forms::kClosing);
}

void LargeGraphForm::Form_Unload() {
  hideForm(session_, forms::kLargeGraphs);
  showForm(session_, forms::kMainform);
}

} // namespace vorlex
