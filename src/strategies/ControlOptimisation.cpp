#include "strategies/ControlOptimisation.h"

#include "charts/ChartFamily.h"
#include "engine/PopulationGrowth.h"
#include "model/Session.h"
#include "reports/CharacterPlots.h"
#include "reports/EfficacyFile.h"
#include "reports/FigureFiles.h"
#include "reports/TitlePage.h"
#include "strategies/ControlledStart.h"
#include "strategies/DriverSteps.h"
#include "strategies/EfficacyEvaluation.h"
#include "strategies/SeriesOfRuns.h"

namespace vorlex {

namespace {

// The series of runs clears and rewrites the series of its model, so it
// runs on a copy of the finished projection; the run's own series, its
// charts and files, stay those of the projection.
class SeriesCopy {
public:
  explicit SeriesCopy(Session& session)
      : session_(session), projection_(session.exchangeModel(std::make_unique<Model>(session.model()))) {}
  ~SeriesCopy() {
    if (projection_)
      session_.exchangeModel(std::move(projection_));
  }
  SeriesCopy(const SeriesCopy&) = delete;
  SeriesCopy& operator=(const SeriesCopy&) = delete;

  /// Puts the projection back and hands over the model the series ran on.
  std::unique_ptr<Model> takeSeries() { return session_.exchangeModel(std::move(projection_)); }

private:
  Session& session_;
  std::unique_ptr<Model> projection_;
};

void optimise(Session& session, const char* driverLine, const char* optManagement, const char* growthMode) {
  openRun(session, driverLine);
  setMarks(session, optManagement, growthMode, "", "");

  // Day 0 comes before the title page, whose age distribution divides by
  // the initial size.
  VorlexF1(session);
  VorlexF2(session);
  VorlexCPrintTitlePageAndBasicInfo(session);
  VorlexDPopulationGrowth(session);
  noteLastDay(session);
  VorlexEPrintResults(session);

  std::unique_ptr<Model> series;
  {
    SeriesCopy copy(session);
    VorlexG(session);
    series = copy.takeSeries();
  }
  VorlexH(session, *series);
  session.efficacy = efficacyRows(*series);
  series.reset();

  session.mainChart = ShowStageStructure(session);
  SaveGraphicData(session);
  WriteEfficacyFile(session);
  session.controls["Command4"].enabled = true;
}

} // namespace

void OptimizeFirstControl(Session& session) {
  optimise(session, "In Public Sub OptimizeFirstControl --------- Optimize first control ----",
           "OptOptimize1stControl", "CONSTANT");
}

void OptimizeControlInterval(Session& session) {
  optimise(session, "In Public Sub OptimizeControlInterval ----- Optimize control interval ----",
           "OptOptimizeControlInterval", "VARIOUS");
}

} // namespace vorlex
