#include "model/LifeTable.h"

#include "model/Arithmetic.h"
#include "model/RunTables.h"
#include "model/Session.h"

namespace vorlex {

void VorlexAGosub640(Session& session) {
  Model& m = session.model();
  const int lastDay = checkedInt16(m.SimTime + 1);
  expectTablesOfTheRun(m, session.keepsAgeSizes);
  for (int stage = 1; stage <= m.NrStage; ++stage)
    for (int t = 0; t <= lastDay; ++t) {
      m.StageSurvivalDay(stage, t) = 1;
      m.StageSurvivalDay0(stage, t) = 1;
    }
  for (int k = 1; k <= 20; ++k)
    m.AddDay(k) = 0;
  for (int age = 0; age <= m.LastAge; ++age)
    for (int stage = 1; stage <= m.NrStage; ++stage)
      m.Lxj(age, stage) = 0;
}

void workOutDeathRate(Session& session) {
  Model& m = session.model();
  const int last = m.NrStage;
  const auto floorAtZero = [](double v) { return v < 0 ? 0.0 : v; };
  for (int stage = 1; stage <= last - 2; ++stage)
    for (int age = m.StageAge(stage, 1); age <= m.StageAge(stage, 2); ++age) {
      // The stage just before the last immature one takes the two columns of
      // the last immature stage, not its own development rate; files made
      // for this program rely on that.
      const double rate =
          stage < last - 3
              ? 1 - m.DevelopRate(age, stage) - m.GrowthRate(age, stage)
              : 1 - m.DevelopRate(age, last - 2) - m.DevelopRate(age, last - 1) -
                    m.GrowthRate(age, stage);
      m.DeathRate(age, stage) = floorAtZero(rate);
    }
  for (int stage = last - 1; stage <= last; ++stage) {
    if (stage < 1)
      continue;
    for (int age = m.StageAge(stage, 1); age <= m.StageAge(stage, 2); ++age)
      m.DeathRate(age, stage) = floorAtZero(1 - m.GrowthRate(age, stage));
  }
}

void VorlexAGosub900(Session& session) {
  Model& m = session.model();
  const int last = m.NrStage;
  m.Lxj(0, 1) = 1;
  for (int stage = 1; stage <= last; ++stage)
    for (int age = 1; age <= m.LastAge; ++age) {
      // The old value of l(age, stage) is what the stage before passed on.
      m.Lxj(age, stage) = m.GrowthRate(age - 1, stage) * m.Lxj(age - 1, stage) + m.Lxj(age, stage);
      if (stage < last - 1) {
        if (stage >= last - 2)
          m.Lxj(age, stage + 2) = m.DevelopRate(age - 1, stage + 1) * m.Lxj(age - 1, stage);
        m.Lxj(age, stage + 1) = m.DevelopRate(age - 1, stage) * m.Lxj(age - 1, stage);
      }
    }

  for (int age = 0; age <= m.LastAge; ++age) {
    m.AgeX(age) = age;
    double survivors = 0;
    double births = 0;
    for (int stage = 1; stage <= last; ++stage) {
      survivors += m.Lxj(age, stage);
      births += m.Fecundity(age, stage) * m.Lxj(age, stage);
    }
    m.Lx(age) = survivors;
    m.Mx(age) = divide(births, survivors);
  }
  const int end = checkedInt16(m.LastAge + 1);
  m.AgeX(end) = end;
  m.Lx(end) = 0;
  for (int age = 0; age <= m.LastAge; ++age) {
    m.MxCopy(age) = m.Mx(age);
    m.Px(age) = divide(m.Lx(age + 1), m.Lx(age));
  }

  if (!session.flowOn())
    return;
  session.flow(" VorlexAGosub900 end.  NrControl =", m.NrControl);
  for (int i = 1; i <= m.NrControl; ++i) {
    session.flow("            First control date =", m.ControlDate(i));
    int k = 0;
    const int lastControlDay = toInt16(m.ControlDate(i) + m.ControlDuration(i) - 1);
    for (int day = m.ControlDate(i); day <= lastControlDay; ++day) {
      ++k;
      for (int stage = 1; stage <= last; ++stage) {
        session.flow("            Stage mortality rate =", m.ControlMortality(stage, k, i));
        session.flow("            Stage survival rate =", m.StageSurvivalDay(stage, day));
      }
    }
  }
}

} // namespace vorlex
