#pragma once

#include "charts/ChartFamily.h"

#include <span>
#include <string>

namespace vorlex {

class Session;

/// The form "Large graphs" (grafform) without its widgets: a large chart,
/// a button for each of sixteen charts, its own chart cycle, Print, Back and
/// Quit. Its controls live in session.controls as "grafform.<name>", the
/// form itself as "grafform"; what its chart shows is session.largeChart.
class LargeGraphForm {
public:
  /// One chart button: control name, caption, what it shows.
  struct ChartButton {
    const char* name;
    const char* caption;
    ShowRoutine routine;
  };

  explicit LargeGraphForm(Session& session);

  /// The form's title.
  static constexpr const char* kTitle = "Large graphs";
  /// The caption of the frame that holds the chart buttons.
  static constexpr const char* kFrameCaption = "Select a figure to display";

  /// The sixteen chart buttons in the order they stand on the form.
  static std::span<const ChartButton> chartButtons();

  /// The first time the form is shown: the stage chart.
  void Form_Load();
  /// A click on one of the chart buttons, by control name ("Command6"),
  /// or on the efficacy button. Unknown names stop with Subscript out of
  /// range.
  void clickChartButton(const std::string& name);
  /// The band of a batch of runs: asks for a band file and shows the
  /// spread of its total size; a file that is no band is told and changes
  /// nothing.
  void cmdBand_Click();
  /// The title of the band file's dialog.
  static constexpr const char* kBandDialogTitle = "Open a band file of a batch of runs";
  /// The efficacy chart, which can be clicked after an optimisation of
  /// the control.
  void cmdEfficacy_Click();
  /// Back: hides the form and shows the main form.
  void Command4_Click();
  /// Quit: hides the form and shows the closing screen.
  void Command2_Click();
  /// The form is closed by the window: back to the main form.
  void Form_Unload();

private:
  Session& session_;
};

} // namespace vorlex
