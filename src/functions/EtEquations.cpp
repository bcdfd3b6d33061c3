#include "functions/EtEquations.h"

#include "model/Arithmetic.h"
#include "model/Model.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

double etOnDay(EtEquation equation, const EtParameters& p, int t) {
  switch (equation) {
  case EtEquation::Constant:
    return p.a;
  case EtEquation::Linear:
    return finite(p.a + t * p.b);
  case EtEquation::Logistic:
    return p.L + divide(p.a, 1 + p.b * exponential(p.c * t));
  case EtEquation::Hyperbola:
    return divide(p.a * t, t + p.b);
  }
  return 0;
}

} // namespace

void fillEtFromEquation(Model& m, EtEquation equation, const EtParameters& p) {
  const int lastDay = checkedInt16(m.SimTime + 1);
  for (int t = 0; t <= lastDay; ++t)
    m.EtDay(t) = etOnDay(equation, p, t);
}

} // namespace vorlex
