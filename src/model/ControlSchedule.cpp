#include "model/ControlSchedule.h"

#include "model/Session.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

constexpr int kReleasesInTemplate = 10;
constexpr int kItemsPerTemplateRelease = 9;

// A stage read as a real number indexes a table after rounding.
int stageIndex(double stage) { return toInt32(stage); }

std::string readDescription(Session& session) {
  Model& m = session.model();
  m.Descriptionx = session.files.input(kDataFile).readText();
  return m.Descriptionx;
}

std::string readEchoedDescription(Session& session) {
  const std::string text = readDescription(session);
  session.flow("              Descriptionx =", text);
  return text;
}

// The last day of control i. The duration may be fractional; the end is
// then rounded to a whole day, ties to even, as the day counter is: a
// control on day 10 lasting 2.5 days acts on days 10, 11 and 12.
int lastControlDay(const Model& m, int i) { return toInt16(m.ControlDate(i) + m.ControlDuration(i) - 1); }

} // namespace

void InputAdditionalRelease(Session& session) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);
  readDescription(session);
  m.NrRelease = in.readInteger();
  for (int r = 1; r <= m.NrRelease; ++r) {
    readDescription(session);
    m.ReleaseDay(r) = in.readValue();
    readDescription(session);
    for (int record = 1; record <= kMaxReleaseRecords; ++record) {
      const i16 age = in.readInteger();
      const double stage = in.readNumber();
      const double number = in.readNumber();
      if (stage == 0)
        break;
      m.ReleaseN(r, age, stageIndex(stage)) = number;
    }
  }
  // The template always holds ten releases of two triples each; the unused
  // ones are passed over by count, not by reading their structure.
  const int skipped = (kReleasesInTemplate - m.NrRelease) * kItemsPerTemplateRelease;
  for (int k = 1; k <= skipped; ++k)
    in.readText();
}

void VorlexAGosub1270(Session& session) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);

  readEchoedDescription(session);
  m.NrControl = in.readInteger();
  for (int i = 1; i <= m.NrControl; ++i) {
    readEchoedDescription(session);
    m.ControlDate(i) = in.readInteger();
    session.flow("              First control day =", m.ControlDate(i));
    readEchoedDescription(session);
    m.CriticalDay(i) = in.readInteger();
    readEchoedDescription(session);
    m.ControlName(i) = in.readValue().toText();
    m.ControlDuration(i) = in.readNumber();
    readEchoedDescription(session);
    int k = 0;
    for (int day = m.ControlDate(i), last = lastControlDay(m, i); day <= last; day = checkedInt16(day + 1)) {
      ++k;
      for (int stage = 1; stage <= m.NrStage; ++stage) {
        m.ControlMortality(stage, k, i) = in.readNumber();
        m.StageSurvivalDay(stage, day) = (1 - m.ControlMortality(stage, k, i)) * m.StageSurvivalDay(stage, day);
      }
    }
  }
  if (session.flowOn()) {
    session.flow("            NrControl =", m.NrControl);
    for (int i = 1; i <= m.NrControl; ++i) {
      session.flow("            First control date =", m.ControlDate(i));
      for (int day = m.ControlDate(i), last = lastControlDay(m, i); day <= last; ++day)
        for (int stage = 1; stage <= m.NrStage; ++stage)
          session.flow("            Stage survival rate =", m.StageSurvivalDay(stage, day));
    }
  }

  readEchoedDescription(session);
  m.SamplingInterval = in.readNumber();
  readEchoedDescription(session);
  m.SamplingStageFrom = in.readNumber();
  m.SamplingStageTo = in.readNumber();
  readEchoedDescription(session);
  m.PreviousCumWID = in.readNumber();
  readEchoedDescription(session);
  m.MeanFecundity = in.readNumber();
  readEchoedDescription(session);
  m.NetReproductiveRate = in.readNumber();
  readEchoedDescription(session);
  m.IntrinsicRate = in.readValue().toNumber();
  readEchoedDescription(session);
  m.FiniteRate = in.readValue().toNumber();
  readEchoedDescription(session);
  m.GenerationTime = in.readValue().toNumber();
  // The "Last age" line is optional: older files end here.
  if (in.atEnd())
    return;
  readEchoedDescription(session);
  m.LastAgeOfFile = in.readInteger();
}

} // namespace vorlex
