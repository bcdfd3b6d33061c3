#include "strategies/EfficacyEvaluation.h"

#include "model/Session.h"
#include "reports/EfficacyPages.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

constexpr double kNoValue = -1;

// The whole population, or the sampled stages.
enum class Counted { Total, Sampled };

// The untreated size of day t: that of the projection.
double untreated(const Model& s, Counted c, int t) { return c == Counted::Total ? s.VulnerableTotal(t) : s.VulnerableSize(t); }
double treatedBefore(const Model& s, Counted c, int run) {
  return c == Counted::Total ? s.RunTotalBefore(run) : s.RunStageBefore(run);
}
double treatedAfter(const Model& s, Counted c, int run) {
  return c == Counted::Total ? s.RunTotalAfter(run) : s.RunStageAfter(run);
}

// A treatment on day T is evaluated SamplingInterval days later, within
// the days of the runs.
bool evaluated(const Model& s, int run) { return run + s.SamplingInterval <= s.SimTime + 1; }
int samplingDay(const Model& s, int run) { return toInt16(run + s.SamplingInterval); }

// Treated after over untreated after (Abbott).
double abbottRatio(const Model& s, Counted c, int run) {
  const double untreatedAfter = untreated(s, c, samplingDay(s, run));
  return untreatedAfter != 0 ? treatedAfter(s, c, run) / untreatedAfter : kNoValue;
}

// Treated after times untreated before over treated before times untreated
// after (Henderson and Tilton).
double hendersonTiltonRatio(const Model& s, Counted c, int run) {
  const double divisor = treatedBefore(s, c, run) * untreated(s, c, samplingDay(s, run));
  return divisor != 0 ? (treatedAfter(s, c, run) * untreated(s, c, run)) / divisor : kNoValue;
}

std::optional<double> efficacyOf(double ratio) {
  if (ratio < 0)
    return std::nullopt;
  return (1 - ratio) * 100;
}

std::string stageRange(const Model& m) {
  return m.StageName(toInt16(m.SamplingStageFrom)) + " to " + m.StageName(toInt16(m.SamplingStageTo));
}

const char* const kAbbottScale = "log(N+1) (*-treated,after; U-untreated,before; V-untreated,after)";
const char* const kHendersonTiltonScale = "log(N+1) (*-treated,after; U-untreated,before; V-untreated,before)";

} // namespace

void VorlexH(Session& session, const Model& series) {
  session.flow("In Public Sub VorlexH");
  VorlexHGosub930(session, series);
  VorlexHGosub1160(session, series);
  VorlexHGosub1480(session, series);
  session.files.close(kReportFile);
}

void VorlexHGosub930(Session& session, const Model& series) {
  Model& m = session.model();
  m.EfficacyTitle1 = "Curves of cumul. weighed insect-days (CUMWID) and control efficacy";
  m.EfficacyTitle2 = "from T=0 to T=" + blankLed(m.SimTime) + ", treated at time T.";
  m.EfficacyScaleLabel = "                 log(CUMWID+1)   (*)";
  m.EfficacyAxisLabel = "            (1-T/U)*100   ($)";
  const int lastRun = checkedInt16(series.SimTime + 1);
  VorlexHGosub1800(session);
  for (int run = 1; run <= lastRun; ++run) {
    m.PlotT(run) = series.RunWID(run);
    m.PlotEfficacy(run) = series.RunWIDToFinal(run);
  }
  VorlexHGosub290(session);
  VorlexHGosub1800(session);
  for (int run = 1; run <= lastRun; ++run) {
    m.PlotT(run) = series.RunWIDCritical(run);
    m.PlotEfficacy(run) = series.RunWIDToCritical(run);
  }
  VorlexHGosub290(session);
}

void VorlexHGosub1160(Session& session, const Model& series) {
  Model& m = session.model();
  const std::string interval = blankLed(m.SamplingInterval);
  for (const Counted counted : {Counted::Total, Counted::Sampled}) {
    if (counted == Counted::Total) {
      m.EfficacyTitle1 = "Curves of population size and control efficacy according to Abbott";
      m.EfficacyTitle2 = "treated at time T and evaluated after " + interval + " days.";
      m.EfficacyAxisLabel = "            (1-(T/V))*100   ($)";
    } else {
      m.EfficacyTitle1 = "Curves of population size for stage " + stageRange(m) + " and control efficacy";
      m.EfficacyTitle2 = "according to Abbott, treated at day T, evaluated after " + interval + " days.";
      m.EfficacyAxisLabel = "            (1-(T/V))*100";
    }
    m.EfficacyScaleLabel = kAbbottScale;
    VorlexHGosub1800(session);
    for (int run = 1; evaluated(series, run); ++run) {
      m.PlotU(run) = untreated(series, counted, run);
      m.PlotV(run) = untreated(series, counted, samplingDay(series, run));
      m.PlotT(run) = treatedAfter(series, counted, run);
      m.PlotEfficacy(run) = abbottRatio(series, counted, run);
    }
    VorlexHGosub290(session);
  }
}

void VorlexHGosub1480(Session& session, const Model& series) {
  Model& m = session.model();
  for (const Counted counted : {Counted::Total, Counted::Sampled}) {
    if (counted == Counted::Total) {
      m.EfficacyTitle1 = "Curves of population size and control efficacy according to Henderson";
      m.EfficacyTitle2 =
          "and Tilton, treated at time T and evaluated after " + blankLed(m.SamplingInterval) + " days.";
    } else {
      m.EfficacyTitle1 = "Curves of population size for stage " + stageRange(m) + " and control efficacy";
      // The number is that of the first sampled stage, not the interval.
      m.EfficacyTitle2 = "(Henderson & Tilton), treated at time T and sampling after " +
                         blankLed(m.SamplingStageFrom) + " days.";
    }
    m.EfficacyScaleLabel = kHendersonTiltonScale;
    m.EfficacyAxisLabel = "      (1-(TA*UB)/(TB*UA))*100   ($)";
    VorlexHGosub1800(session);
    for (int run = 1; evaluated(series, run); ++run) {
      m.PlotU(run) = untreated(series, counted, run);
      m.PlotV(run) = m.PlotU(run);
      m.PlotT(run) = treatedAfter(series, counted, run);
      m.PlotEfficacy(run) = hendersonTiltonRatio(series, counted, run);
    }
    VorlexHGosub290(session);
  }
}

std::vector<EfficacyRow> efficacyRows(const Model& series) {
  std::vector<EfficacyRow> rows;
  const int lastRun = checkedInt16(series.SimTime + 1);
  for (int run = 1; run <= lastRun; ++run) {
    EfficacyRow row;
    row.day = run;
    row.weighedInsectDays = series.RunWID(run);
    row.weighedInsectDaysAtEnd = series.RunWIDCritical(run);
    if (series.RunWIDToCritical(run) >= 0)
      row.toCritical = series.RunWIDToCritical(run);
    if (series.RunWIDToFinal(run) >= 0)
      row.toFinal = series.RunWIDToFinal(run);
    row.totalBefore = series.RunTotalBefore(run);
    row.sampledBefore = series.RunStageBefore(run);
    row.totalAfter = series.RunTotalAfter(run);
    row.sampledAfter = series.RunStageAfter(run);
    row.weighedEfficacy = efficacyOf(series.RunWIDToFinal(run));
    if (evaluated(series, run)) {
      row.abbottEfficacy = efficacyOf(abbottRatio(series, Counted::Total, run));
      row.hendersonTiltonEfficacy = efficacyOf(hendersonTiltonRatio(series, Counted::Total, run));
    }
    rows.push_back(row);
  }
  return rows;
}

} // namespace vorlex
