#include "datafile/EtSelector.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

namespace vorlex::testing {
namespace {

constexpr const char* kCrLf = "\r\n";

class TinyTable : public ::testing::Test {
protected:
  TestSession t{5};
  void SetUp() override { t.read(fileText(dataPath("tiny3.txt"))); }
};

TEST_F(TinyTable, ProjectAndStagesAreReadAsWritten) {
  EXPECT_EQ(t.m.ProjectName, "Tiny three-stage table");
  EXPECT_TRUE(t.m.ProjectDate.isNumber()); // unquoted 20261121
  EXPECT_EQ(t.m.ProjectDate.toText(), "20261121");
  EXPECT_EQ(t.m.ProjectUser, Value("Tester"));
  EXPECT_EQ(t.m.LastAge, 3);
  EXPECT_EQ(t.m.NrStage, 3);
  EXPECT_EQ(t.m.FemaleStage, 2);
  EXPECT_EQ(t.m.StageName(2), "Fema"); // cut to four characters
  EXPECT_EQ(t.m.StageAge(2, 1), 1);
  EXPECT_EQ(t.m.StageAge(2, 2), 3);
  EXPECT_EQ(t.m.WeighCoef(3), .5);
  EXPECT_EQ(t.m.WeighCoefAgeStage(0, 3), .5); // copied to all ages, not only the stage's
  EXPECT_EQ(t.m.DensityCoefAgeStage(3, 1), .2);
  EXPECT_EQ(t.m.DensityCoefAgeStage(4, 1), 0);
}

TEST_F(TinyTable, RatesLandInTheirColumns) {
  EXPECT_EQ(t.m.Fecundity(2, 2), 4);
  EXPECT_EQ(t.m.Fecundity(3, 2), 2);
  EXPECT_EQ(t.m.GrowthRate(1, 2), .8);
  EXPECT_EQ(t.m.GrowthRate(0, 1), .5);
  EXPECT_EQ(t.m.DevelopRate(1, 1), .1); // egg into female
  EXPECT_EQ(t.m.DevelopRate(1, 2), .3); // the extra row: egg into male
  EXPECT_EQ(t.m.DevelopRate(2, 2), 0);
  // With one immature stage its death rate takes both development columns.
  EXPECT_EQ(t.m.DeathRate(0, 1), 1 - .2 - .2 - .5);
  EXPECT_EQ(t.m.DeathRate(1, 1), 1 - .1 - .3 - 0.0);
  EXPECT_DOUBLE_EQ(t.m.DeathRate(1, 2), .2);
  EXPECT_DOUBLE_EQ(t.m.DeathRate(3, 3), 1);
}

TEST_F(TinyTable, LifeTableIsBuiltByTheStageRecursion) {
  const double lxj[4][4] = {{0, 1, 0, 0}, {0, .5, .2, .2}, {0, 0, .21, .27}, {0, 0, .105, .135}};
  for (int age = 0; age <= 3; ++age)
    for (int stage = 1; stage <= 3; ++stage)
      EXPECT_NEAR(t.m.Lxj(age, stage), lxj[age][stage], 1e-15) << age << "," << stage;
  const double lx[5] = {1, .9, .48, .24, 0};
  const double mx[4] = {0, 0, 1.75, .875};
  const double px[4] = {.9, .48 / .9, .5, 0};
  for (int age = 0; age <= 3; ++age) {
    EXPECT_NEAR(t.m.Lx(age), lx[age], 1e-15);
    EXPECT_NEAR(t.m.Mx(age), mx[age], 1e-15);
    EXPECT_EQ(t.m.MxCopy(age), t.m.Mx(age));
    EXPECT_NEAR(t.m.Px(age), px[age], 1e-15);
    EXPECT_EQ(t.m.AgeX(age), age);
  }
  EXPECT_EQ(t.m.AgeX(4), 4);
  EXPECT_EQ(t.m.Lx(4), 0);
}

TEST_F(TinyTable, InitialPopulationAndReleases) {
  EXPECT_EQ(t.m.InitialN(0, 1), 100);
  EXPECT_EQ(t.m.InitialN(2, 2), 5);
  EXPECT_EQ(t.m.NrRelease, 1);
  EXPECT_EQ(t.m.ReleaseDay(1), Value(5.0));
  EXPECT_EQ(t.m.ReleaseN(1, 2, 3), 4);
  EXPECT_EQ(t.m.ReleaseN(2, 0, 1), 0); // the unused template releases are skipped, not read
  EXPECT_EQ(t.m.NrWeakFactor, 2);
  EXPECT_EQ(t.m.WeakFactorName(2), "Rainfall");
  EXPECT_EQ(t.m.WeakCoef(2, 3), .5);
}

TEST_F(TinyTable, ControlsOnTheSameDayMultiply) {
  EXPECT_EQ(t.m.NrControl, 2);
  EXPECT_EQ(t.m.ControlName(2), "Neem");
  EXPECT_EQ(t.m.CriticalDay(2), 4);
  EXPECT_EQ(t.m.ControlMortality(2, 2, 1), .25);
  const double expected[4][4] = {{}, {1, 1, 1, .9}, {1, 1, .5, .75 * .8}, {1, 1, .5, 0}};
  for (int stage = 1; stage <= 3; ++stage)
    for (int day = 0; day <= 3; ++day)
      EXPECT_DOUBLE_EQ(t.m.StageSurvivalDay(stage, day), expected[stage][day]) << stage << "," << day;
  EXPECT_EQ(t.m.StageSurvivalDay(3, 6), 1);
  EXPECT_EQ(t.m.StageSurvivalDay(3, 7), 0); // beyond SimTime + 1: never reset
}

TEST_F(TinyTable, ClosingItemsWithoutTheLastAgeLine) {
  EXPECT_EQ(t.m.EtSelector, EtForm::TwoPeriods);
  for (int day = 0; day <= 6; ++day)
    EXPECT_EQ(t.m.EtDay(day), day <= 1 ? 25 : 35);
  EXPECT_EQ(t.m.EtDay(7), 0);
  EXPECT_EQ(t.m.DensityCoefOverK, 1);
  EXPECT_EQ(t.m.SamplingStageFrom, 2);
  EXPECT_EQ(t.m.PreviousCumWID, 12.5);
  EXPECT_EQ(t.m.GenerationTime, 2.31);
  EXPECT_EQ(t.m.LastAgeOfFile, 0);
  EXPECT_FALSE(t.session->files.isOpen(kDataFile));
}

// The example that ships with the program must hold the true statistics of
// its own table: R0 = sum l(x) m(x), r from sum exp(-r(x+1)) l(x) m(x) = 1.
TEST(ExampleFile, StatisticsAreThoseOfItsTable) {
  TestSession t;
  t.read(fileText(examplePath("moth.txt")));
  double r0 = 0;
  for (int x = 0; x <= t.m.LastAge; ++x)
    r0 += t.m.Lx(x) * t.m.Mx(x);
  const auto euler = [&](double r) {
    double sum = 0;
    for (int x = 0; x <= t.m.LastAge; ++x)
      sum += std::exp(-r * (x + 1)) * t.m.Lx(x) * t.m.Mx(x);
    return sum - 1;
  };
  double low = 0, high = 1;
  for (int k = 0; k < 200; ++k)
    (euler((low + high) / 2) > 0 ? low : high) = (low + high) / 2;
  const double r = (low + high) / 2;
  EXPECT_NEAR(t.m.NetReproductiveRate, r0, 1e-9);
  EXPECT_NEAR(t.m.IntrinsicRate, r, 1e-12);
  EXPECT_NEAR(t.m.FiniteRate, std::exp(r), 1e-12);
  EXPECT_NEAR(t.m.GenerationTime, std::log(r0) / r, 1e-9);
  EXPECT_EQ(t.m.LastAgeOfFile, t.m.LastAge);
  EXPECT_EQ(t.m.EtSelector, EtForm::Logistic);
  EXPECT_DOUBLE_EQ(t.m.EtDay(5), 20 / (1 + std::exp(-.2 * 5)) + 10);
}

// Variations of the example, each a small edit of its text.
class ExampleVariant : public ::testing::Test {
protected:
  std::string moth = fileText(examplePath("moth.txt"));
};

TEST_F(ExampleVariant, CutOffFileStopsWithInputPastEndAndTellsWhere) {
  const std::string cut = moth.substr(0, moth.find("\"Mean fecundity\""));
  TestSession t;
  const RuntimeError error = errorOf([&] { t.read(cut, false, "moth.txt"); });
  EXPECT_EQ(error.number(), 62);
  EXPECT_EQ(error.text(), "Input past end of file");
  EXPECT_NE(error.where().find("Data file: moth.txt"), std::string::npos) << error.where();
  EXPECT_NE(error.where().find("item 355, line 127"), std::string::npos) << error.where();
  EXPECT_NE(error.where().find("\"Previous cumulative weighed insect days\""), std::string::npos);
}

TEST_F(ExampleVariant, StageAboveTwelveIsOutOfRange) {
  TestSession t;
  const RuntimeError error = errorOf([&] { t.read(replaced(moth, "45,5\r\n", "45,13\r\n")); });
  EXPECT_EQ(error.number(), 9);
  EXPECT_EQ(error.text(), "Subscript out of range");
  EXPECT_NE(error.where().find("item 7, line 6"), std::string::npos) << error.where();
}

TEST_F(ExampleVariant, IntegerItemAbove32767Overflows) {
  TestSession t;
  const std::string text = replaced(moth, "treatment at 10th day\"\r\n10\r\n", "treatment at 10th day\"\r\n32768\r\n");
  ASSERT_FALSE(text.empty());
  const RuntimeError error = errorOf([&] { t.read(text); });
  EXPECT_EQ(error.number(), 6);
  EXPECT_NE(error.where().find("\"Description: first treatment at 10th day\""), std::string::npos)
      << error.where();
}

TEST_F(ExampleVariant, FecundityListEndsAtMinusOne) {
  const std::string text = replaced(moth, "4.75,7.59,11.39", "2,-1\r\n\"skipped\",1");
  // The list ends at -1; the rest of the line is no longer fecundity.
  ASSERT_FALSE(text.empty());
  TestSession t;
  const RuntimeError error = errorOf([&] { t.read(text); });
  // The stray items shift everything behind them until a text lands where
  // a number-or-text value must be a number.
  EXPECT_EQ(error.number(), 13) << error.where();

  TestSession whole;
  const auto from = moth.find("4.75,");
  const auto to = moth.find("\"Description: modify the following decrease rate for Vorlex program to lower the growth");
  std::string shortList = moth;
  shortList.replace(from, to - from, std::string("3,-1") + kCrLf);
  whole.read(shortList);
  EXPECT_EQ(whole.m.Fecundity(22, 4), 3);
  EXPECT_EQ(whole.m.Fecundity(23, 4), 0);
  EXPECT_EQ(whole.m.Fecundity(24, 4), 0);
  EXPECT_EQ(whole.m.MeanFecundity, 249.989171350695); // statistics are read, not computed
}

TEST_F(ExampleVariant, DecreaseFactorsLowerTheRatesAndTheLifeTable) {
  TestSession base;
  base.read(moth);
  const std::string lowered = replaced(moth, "lower the growth rate.\"\r\n1\r\n", "lower the growth rate.\"\r\n.5\r\n");
  ASSERT_FALSE(lowered.empty());
  TestSession t;
  t.read(lowered);
  EXPECT_EQ(t.m.GrowthRate(10, 2), base.m.GrowthRate(10, 2) * .5);
  EXPECT_LT(t.m.Lx(10), base.m.Lx(10));
  EXPECT_EQ(t.m.NetReproductiveRate, base.m.NetReproductiveRate);
}

TEST_F(ExampleVariant, ActiveReleasesAreReadAndTheRestSkipped) {
  const std::string header = "1, 2,... releases\"\r\n0\r\n";
  TestSession one;
  one.read(replaced(moth, header, "1, 2,... releases\"\r\n1\r\n"));
  EXPECT_EQ(one.m.NrRelease, 1);
  EXPECT_EQ(one.m.ReleaseDay(1), Value(1.0));
  EXPECT_EQ(one.m.ReleaseN(1, 0, 1), 10);
  EXPECT_EQ(one.m.ReleaseN(2, 0, 1), 0);
  EXPECT_EQ(one.m.WeakFactorName(1), "Parasitoid or predator");

  TestSession ten;
  ten.read(replaced(moth, header, "1, 2,... releases\"\r\n10\r\n"));
  EXPECT_EQ(ten.m.ReleaseDay(10), Value(10.0));
  EXPECT_EQ(ten.m.ReleaseN(10, 0, 1), 10);
  EXPECT_EQ(ten.m.NrWeakFactor, 2);
}

TEST_F(ExampleVariant, AnUnusedReleaseWithAnExtraTripleShiftsWhatFollows) {
  // The unused releases are skipped by count: one more triple in one of
  // them leaves three items behind, and everything after is read off by
  // three. An active release is read by its structure and shifts nothing.
  const std::string release = "1st add. release. End with 0,0,0\"\r\n0, 1, 10\r\n";
  const std::string text = replaced(moth, release, release + "1, 1, 10\r\n");
  ASSERT_FALSE(text.empty());
  TestSession t;
  const RuntimeError error = errorOf([&] { t.read(text); });
  EXPECT_EQ(t.m.NrWeakFactor, 0); // the last "0, 0, 0" of the template
  EXPECT_EQ(error.number(), 13);  // "Parasitoid or predator" as a density coefficient

  TestSession active;
  active.read(replaced(text, "1, 2,... releases\"\r\n0\r\n", "1, 2,... releases\"\r\n1\r\n"));
  EXPECT_EQ(active.m.ReleaseN(1, 1, 1), 10);
  EXPECT_EQ(active.m.NrWeakFactor, 2);
}

TEST_F(ExampleVariant, NoControlsMeansTheSamplingDescriptionFollows) {
  const auto from = moth.find("\"Description: number of treatment = 1\"");
  const auto to = moth.find("\"Description: time interval between treatment and sampling\"");
  std::string text = moth;
  text.replace(from, to - from, "\"Description: number of treatment = 0\"\r\n0\r\n");
  TestSession t;
  t.read(text);
  EXPECT_EQ(t.m.NrControl, 0);
  EXPECT_EQ(t.m.SamplingInterval, 7);
  EXPECT_EQ(t.m.StageSurvivalDay(2, 10), 1);
}

TEST_F(ExampleVariant, ControlDurationZeroOrAboveTenDays) {
  TestSession none;
  none.read(replaced(moth, "\"Pyrethrins\",1\r\n", "\"Pyrethrins\",0\r\n\"Description: time interval\"\r\n"));
  EXPECT_EQ(none.m.StageSurvivalDay(2, 10), 1);

  std::string eleven = replaced(moth, "\"Pyrethrins\",1\r\n", "\"Pyrethrins\",11\r\n");
  std::string mortality = " 0 , .9 , .9 , .9 , .9 \r\n";
  for (int k = 1; k < 11; ++k)
    eleven = replaced(eleven, mortality, mortality + mortality);
  TestSession t;
  EXPECT_EQ(errorOf([&] { t.read(eleven); }).number(), 9);
}

// The last day of a control with a fractional duration is rounded, ties
// to even: from day 10, 1.5 days end on round(10.5) = 10, 2.5 days on
// round(11.5) = 12, and one line of mortalities is read for each day.
TEST_F(ExampleVariant, FractionalControlDurationEndsOnARoundedDay) {
  const std::string mortality = " 0 , .9 , .9 , .9 , .9 \r\n";
  const struct {
    const char* duration;
    int lastDay;
  } cases[] = {{"1.5", 10}, {"2.5", 12}};
  for (const auto& c : cases) {
    std::string text =
        replaced(moth, "\"Pyrethrins\",1\r\n", std::string("\"Pyrethrins\",") + c.duration + "\r\n");
    std::string lines;
    for (int day = 10; day <= c.lastDay; ++day)
      lines += mortality;
    text = replaced(text, mortality, lines);
    TestSession t;
    t.read(text);
    EXPECT_EQ(t.m.LastAgeOfFile, 45) << c.duration; // the items behind stay in step
    for (int day = 9; day <= 13; ++day)
      EXPECT_DOUBLE_EQ(t.m.StageSurvivalDay(2, day), day >= 10 && day <= c.lastDay ? 1 - .9 : 1)
          << c.duration << ", day " << day;
  }
}

TEST_F(ExampleVariant, ControlMortalityOfOneKeepsTheDayAtZero) {
  TestSession t;
  t.read(replaced(moth, " 0 , .9 , .9 , .9 , .9 ", " 0 , 1 , .9 , .9 , .9 "));
  EXPECT_EQ(t.m.StageSurvivalDay(2, 10), 0);
  EXPECT_DOUBLE_EQ(t.m.StageSurvivalDay(3, 10), 1 - .9);
}

TEST_F(ExampleVariant, WithCxjReaderDoesNotKnowThePlainSelector) {
  // A file with a consumption block that carries the plain logistic text,
  // as the derived files do: the selector is not recognised, the next three
  // numbers are taken as description and density coefficients, and every
  // later item lands one place off, without a word.
  const auto at = moth.find("\"Description: next lines are initial population");
  std::string withBlock = moth;
  std::string block =
      "\"Description: decrease coefficient (MODIFY next data to decrease the consumption rate. 0<=D<=1)\"\r\n"
      "1\r\n\"Description: the next lines are the consumption (predation or parasitism) rates c(x,j)\"\r\n";
  const int ages = 5 + 18 + 14 + 24 + 24;
  for (int k = 0; k < ages; ++k)
    block += " 1 \r\n";
  withBlock.insert(at, block);
  TestSession t;
  t.read(withBlock, true);
  EXPECT_EQ(t.m.Consumption(3, 2), 1);
  EXPECT_EQ(t.m.EtSelector, EtForm::None);
  EXPECT_EQ(t.m.DensityCoefBelowK, 1);
  EXPECT_EQ(t.m.DensityCoefOverK, -.2);
  EXPECT_EQ(t.m.EtDay(3), 0);
  EXPECT_EQ(t.m.NrControl, 0);          // the density description as a count
  EXPECT_EQ(t.m.SamplingInterval, 1);   // the number of controls
  EXPECT_EQ(t.m.StageSurvivalDay(2, 10), 1);

  // With the selector of its own form it reads through.
  TestSession right;
  right.read(replaced(withBlock, kEtLogisticText, kEtLogisticWithCxjText), true);
  EXPECT_EQ(right.m.EtSelector, EtForm::Logistic);
  EXPECT_EQ(right.m.LastAgeOfFile, 45);
}

// Each end of a stepwise stretch is rounded to a whole day by itself, ties
// to even, so a .5 end can leave a day between two stretches untouched, or
// let two stretches meet on one day. Days marked -1 keep their earlier value.
TEST(EtStretches, EachEndIsRoundedToADayOfItsOwn) {
  struct Case {
    const char* selector;
    const char* numbers;
    std::vector<std::pair<int, double>> days;
    int error;
  };
  const Case cases[] = {
      {kEtThreePeriodsText, "3,20.5,5,41.5,7,9",
       {{0, 5}, {20, 5}, {21, -1}, {22, 7}, {41, 7}, {42, 9}, {61, 9}, {62, -1}}, 0},
      {kEtTwoPeriodsText, "2,24.5,25,35", {{24, 25}, {25, -1}, {26, 35}, {61, 35}, {62, -1}}, 0},
      {kEtTwoPeriodsText, "2,25.5,25,35", {{25, 25}, {26, 35}}, 0},
      // An end beyond 16 bits stops the reader; the stretches before it stay.
      {kEtThreePeriodsText, "3,2,5,40000,7,9", {{2, 5}, {3, -1}}, 6},
  };
  for (const Case& c : cases) {
    TestSession t(60);
    for (int day = 0; day <= 1005; ++day)
      t.m.EtDay(day) = -1;
    t.session->files.attachInput(kDataFile,
                                 ItemReader(std::string("\"") + c.selector + "\"\r\n" + c.numbers + "\r\n"));
    int error = 0;
    try {
      readEtFunction(*t.session, false);
    } catch (const RuntimeError& stop) {
      error = stop.number();
    }
    EXPECT_EQ(error, c.error) << c.numbers;
    for (const auto& [day, value] : c.days)
      EXPECT_EQ(t.m.EtDay(day), value) << c.numbers << ", day " << day;
  }
}

TEST_F(ExampleVariant, UnknownSelectorLeavesEtAtZero) {
  TestSession t;
  const RuntimeError error =
      errorOf([&] { t.read(replaced(moth, kEtLogisticText, "Description: ET y = a + b t")); });
  EXPECT_EQ(t.m.EtSelector, EtForm::None);
  EXPECT_EQ(t.m.EtDay(0), 0);
  (void)error;
}

TEST_F(ExampleVariant, SimulationTimeBeyondTheTablesStopsBeforeReading) {
  TestSession t(1005);
  const RuntimeError error = errorOf([&] { t.read(moth); });
  EXPECT_EQ(error.number(), 9);
  EXPECT_NE(error.where().find("line 6"), std::string::npos) << error.where();
}

TEST(BrokenTable, NobodyReachingAnAgeDividesByZero) {
  std::string text = fileText(dataPath("tiny3.txt"));
  // Nothing survives beyond the egg stage: l(2) = l(3) = 0.
  text = replaced(text, "\r\n.8,.5,0\r\n.6,.5,0\r\n", "\r\n0,0,0\r\n0,0,0\r\n");
  text = replaced(text, "\r\n.2,.1 \r\n.2,.3\r\n", "\r\n0,0\r\n0,0\r\n");
  text = replaced(text, "\r\n.5,0\r\n", "\r\n0,0\r\n");
  ASSERT_FALSE(text.empty());
  TestSession t(5);
  const RuntimeError error = errorOf([&] { t.read(text); });
  // m(1) = 0 / 0 is an overflow, before any p(x) is worked out.
  EXPECT_EQ(error.number(), 6);
  EXPECT_NE(error.where().find("building x, l(x) and m(x)"), std::string::npos);
}

} // namespace
} // namespace vorlex::testing

namespace vorlex::testing {
namespace {

TEST(FlowRecord, LoadWritesItsHeadingsEchoesAndSchedule) {
  TestSession t(5);
  t.session->flags.FlowFlag = "Yes";
  t.session->files.attachOutput(kFlowFile, OutputFile::inMemory());
  t.read(fileText(dataPath("tiny3.txt")));
  const std::string flow = t.session->files.output(kFlowFile).text();
  const auto has = [&](const std::string& line) { return flow.find("\r\n" + line + "\r\n") != std::string::npos; };
  EXPECT_EQ(flow.rfind("In Public Sub VorlexAGosub100 **** Input VORLEX data ***\r\n", 0), 0u);
  EXPECT_TRUE(has("              Descriptionx =Description: number of treatment = 2"));
  EXPECT_TRUE(has("              First control day = 3 "));
  EXPECT_TRUE(has("            NrControl = 2 "));
  EXPECT_TRUE(has("            Stage survival rate = .6 "));
  EXPECT_TRUE(has(" VorlexAGosub900 end.  NrControl = 2 "));
  EXPECT_TRUE(has("            Stage mortality rate = .25 "));

  TestSession quiet(5);
  quiet.read(fileText(dataPath("tiny3.txt")));
  EXPECT_FALSE(quiet.session->files.isOpen(kFlowFile));
}

} // namespace
} // namespace vorlex::testing
