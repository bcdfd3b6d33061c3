#pragma once

#include "charts/ChartContent.h"

#include <optional>
#include <string>
#include <vector>

namespace vorlex {

class Session;

/// One chart of a run as a script saves it: the chart, or why there is none.
struct RunChart {
  /// The file name without extension: where the chart stands and its
  /// title, "cycle-05-Total-size-T-weighed-size-W-CWID-and-ET".
  std::string name;
  /// The chart, when it could be drawn.
  std::optional<ChartContent> content;
  /// Why there is no chart: the entry's condition fails, or its fill
  /// stopped with a run-time error (the error's message).
  std::string whyNot;
};

/// Every chart a user can see after the run of `session`: the entries of the
/// main form's chart cycle from 0 to 33 as activations show them ("cycle-NN"),
/// then the sixteen charts of the large-graph buttons in their order on the
/// form ("large-NN"). An entry whose condition fails, and an entry whose fill
/// stops with a run-time error, come with the reason and no chart; the empty
/// entry 34 is not a chart and is left out. Filling a chart does what
/// showing it does to the forms.
std::vector<RunChart> chartsOfRun(Session& session);

/// The name of a chart file: the prefix, the number in two digits and the
/// title, every run of characters other than ASCII letters, digits, "+" and
/// a decimal point made one "-", cut to at most 80 characters at a "-".
std::string chartFileName(const std::string& prefix, int number, const std::string& title);

/// The line that tells a script a chart was skipped:
/// "cycle-24 skipped: Run-time error '5': ...".
std::string skippedLine(const RunChart& chart);

} // namespace vorlex
