#pragma once

#include "charts/ChartContent.h"
#include "sampling/SamplingTables.h"

#include <string>

namespace vorlex {

class Session;

/// The three sampling buttons of the main form and the chart they fill
/// (MSChart2): show the counts of a sampling file, predict an emergence
/// from one count, project from one count. Their tables live as long as the
/// form. A failure names the button and, while a file is being read, the
/// file, item and line.
class SamplingButtons {
public:
  explicit SamplingButtons(Session& session) : session_(session) {}

  void cmdStageSamplingData_Click();
  void cmdStageProjection_Click();
  /// Ends with the run without control; what a click on cmdRun does around
  /// its driver (the death files, the locks) does not happen here.
  void cmdProjectionAfterSampling_Click();
  /// The records as marks on the sampling chart.
  void showAsPoints();

  const SamplingTables& tables() const { return tables_; }
  /// What the sampling chart holds.
  const ChartContent& chart() const { return chart_; }

private:
  template <typename Work> void click(const std::string& control, Work work);

  Session& session_;
  SamplingTables tables_;
  ChartContent chart_;
};

} // namespace vorlex
