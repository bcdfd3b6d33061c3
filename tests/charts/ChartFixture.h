#pragma once

#include "charts/ChartFamily.h"
#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {

// The three-stage table projected over SimTime = 1, so days 0..2 are filled.
// By hand (see the day-step tests), stages Eggs, Fema, Male:
//   StageSize  day 0: 100, 5, 0     day 1: 70, 22.5, 20     day 2: 15, 25, 31
//   StageSum   105, 112.5, 71;      WeighedSize(1) 32.5;    CUMWID 17.5, 50, 90.5
//   WeakSize(1, 1) 42.5, WeakSize(2, 1) 21.25
//   StageDeath(1, j) 32, 6.5, 8;    TotalDeath(1) 46.5;     TotalDifference(1) 7.5
// Life table: Lxj(2, 2) = .8 x .2 + .1 x .5 = .21, Lxj(2, 3) = .6 x .2 + .3 x .5
// = .27, so Lx(2) = .48, Mx(2) = 4 x .21 / .48 = 1.75.
// Series that no projection here fills are set by hand.
class ChartTest : public ::testing::Test {
protected:
  NoPrompts prompts;
  Session session{prompts};
  Model& m = session.model();

  void SetUp() override {
    loadTestData(session, "tiny3.txt");
    m.SimTime = 1;
    VorlexBSetStageSurvivalRto1(session);
    VorlexDGosub160PopulationGrowth(session);

    const double consumption[] = {9, 99, 999};
    for (int day = 0; day <= 2; ++day) {
      m.TotalConsumption(day) = consumption[day];
      m.LaggedTime(day) = day;
    }
    m.LaggedLogConsumption(0) = .25;
    m.LaggedLogConsumption(1) = .75;
    m.PredationTotal(0) = 3;
    m.PredationTotal(1) = 4;
    m.PredationTotal(2) = 5;
    m.PredationLog(0) = .5;
    m.PredationLog(1) = .7;
    m.PredationLag = 3;
  }
};

} // namespace vorlex::testing
