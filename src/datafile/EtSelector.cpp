#include "datafile/EtSelector.h"

#include "model/Arithmetic.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

// One stretch of a stepwise threshold. Both ends are day numbers and are
// rounded to whole days, ties to even, each by itself: with c = 20.5 the
// first stretch ends on day 20 and the next begins on round(21.5) = 22, so
// day 21 keeps what it held. An end beyond 16 bits stops with Overflow
// before the stretch is written.
void fillEtDays(Model& m, double first, double last, double value) {
  const int from = toInt16(first);
  const int to = toInt16(last);
  for (int t = from; t <= to; ++t)
    m.EtDay(t) = value;
}

} // namespace

EtForm classifyEtSelector(const std::string& selector, bool withCxj) {
  if (selector == kEtTwoPeriodsText)
    return EtForm::TwoPeriods;
  if (selector == kEtThreePeriodsText)
    return EtForm::ThreePeriods;
  if (selector == (withCxj ? kEtLogisticWithCxjText : kEtLogisticText))
    return EtForm::Logistic;
  return EtForm::None;
}

std::string etFormName(EtForm form) {
  switch (form) {
  case EtForm::TwoPeriods: return "two periods (d up to day c, then e)";
  case EtForm::ThreePeriods: return "three periods (d up to day c, f up to day e, then g)";
  case EtForm::Logistic: return "logistic y=a+b/[1+c*exp(d*x)]";
  case EtForm::None: break;
  }
  return "none (ET is 0 on every day)";
}

void expandLogisticEt(Model& m) {
  for (int t = 0, lastDay = checkedInt16(m.SimTime + 1); t <= lastDay; ++t)
    m.EtDay(t) = divide(m.EtB, 1 + m.EtC * exponential(m.EtD * t)) + m.EtA;
}

void readEtFunction(Session& session, bool withCxj) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);
  m.Descriptionx = in.readText();
  m.EtSelector = classifyEtSelector(m.Descriptionx, withCxj);

  switch (m.EtSelector) {
  case EtForm::TwoPeriods: {
    m.EtB = in.readNumber();
    m.EtC = in.readNumber();
    m.EtD = in.readNumber();
    m.EtE = in.readNumber();
    fillEtDays(m, 0, m.EtC, m.EtD);
    fillEtDays(m, m.EtC + 1, m.SimTime + 1, m.EtE);
    break;
  }
  case EtForm::ThreePeriods: {
    m.EtB = in.readNumber();
    m.EtC = in.readNumber();
    m.EtD = in.readNumber();
    m.EtE = in.readNumber();
    m.EtF = in.readNumber();
    m.EtG = in.readNumber();
    fillEtDays(m, 0, m.EtC, m.EtD);
    fillEtDays(m, m.EtC + 1, m.EtE, m.EtF);
    fillEtDays(m, m.EtE + 1, m.SimTime + 1, m.EtG);
    break;
  }
  case EtForm::Logistic:
    m.EtB = in.readNumber();
    m.EtC = in.readNumber();
    m.EtD = in.readNumber();
    m.EtA = in.readNumber();
    expandLogisticEt(m);
    break;
  case EtForm::None:
    break;
  }
}

} // namespace vorlex
