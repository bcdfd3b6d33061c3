#include "datafile/EtSelector.h"

#include "model/Arithmetic.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

namespace vorlex {

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

void readEtFunction(Session& session, bool withCxj) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);
  m.Descriptionx = in.readText();
  m.EtSelector = classifyEtSelector(m.Descriptionx, withCxj);
  const int lastDay = checkedInt16(m.SimTime + 1);

  switch (m.EtSelector) {
  case EtForm::TwoPeriods: {
    m.EtB = in.readNumber();
    m.EtC = in.readNumber();
    m.EtD = in.readNumber();
    m.EtE = in.readNumber();
    const int c = toInt16(m.EtC);
    for (int t = 0; t <= c; ++t)
      m.EtDay(t) = m.EtD;
    for (int t = c + 1; t <= lastDay; ++t)
      m.EtDay(t) = m.EtE;
    break;
  }
  case EtForm::ThreePeriods: {
    m.EtB = in.readNumber();
    m.EtC = in.readNumber();
    m.EtD = in.readNumber();
    m.EtE = in.readNumber();
    m.EtF = in.readNumber();
    m.EtG = in.readNumber();
    const int c = toInt16(m.EtC);
    const int e = toInt16(m.EtE);
    for (int t = 0; t <= c; ++t)
      m.EtDay(t) = m.EtD;
    for (int t = c + 1; t <= e; ++t)
      m.EtDay(t) = m.EtF;
    for (int t = e + 1; t <= lastDay; ++t)
      m.EtDay(t) = m.EtG;
    break;
  }
  case EtForm::Logistic:
    m.EtB = in.readNumber();
    m.EtC = in.readNumber();
    m.EtD = in.readNumber();
    m.EtA = in.readNumber();
    for (int t = 0; t <= lastDay; ++t)
      m.EtDay(t) = divide(m.EtB, 1 + m.EtC * exponential(m.EtD * t)) + m.EtA;
    break;
  case EtForm::None:
    break;
  }
}

} // namespace vorlex
