#include "mainform/SamplingButtons.h"

#include "model/Session.h"
#include "sampling/ProjectionAfterSampling.h"
#include "sampling/SamplingCharts.h"
#include "sampling/StagePrediction.h"
#include "strategies/UnlimitedGrowth.h"
#include "textio/NumberForms.h"
#include "textio/RuntimeError.h"

namespace vorlex {

template <typename Work> void SamplingButtons::click(const std::string& control, Work work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    std::string place = "\"" + session_.controls[control].caption + "\"";
    FileTable& files = session_.files;
    if (files.isOpen(kDataFile) && !files.path(kDataFile).empty()) {
      const ItemReader& in = files.input(kDataFile);
      place += ", file being read: " + files.path(kDataFile) + ", item " + digits(in.itemNumber()) +
               ", line " + digits(in.line());
    }
    throw error.at(place);
  }
}

void SamplingButtons::cmdStageSamplingData_Click() {
  click("cmdStageSamplingData", [this] {
    if (auto chart = showSamplingData(session_, tables_))
      chart_ = *chart;
  });
}

void SamplingButtons::cmdStageProjection_Click() {
  click("cmdStageProjection", [this] { chart_ = predictEmergence(session_, tables_); });
}

void SamplingButtons::cmdProjectionAfterSampling_Click() {
  click("cmdProjectionAfterSampling", [this] { placeSampledCohort(session_, tables_); });
  try {
    UnlimitedGrowth(session_);
  } catch (const RuntimeError& error) {
    throw error.at("Run of \"" + session_.controls["cmdProjectionAfterSampling"].caption + "\", day " +
                   digits(session_.model().Day));
  }
}

void SamplingButtons::showAsPoints() {
  click("MSChart2", [this] { chart_ = ShowSamplingDataPoint(session_, tables_); });
}

} // namespace vorlex
