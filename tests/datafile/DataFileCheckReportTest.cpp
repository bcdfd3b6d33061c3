#include "datafile/DataFileCheckReport.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

// The check reads a file on its own; what it stores must be what the load
// stores, or its report would describe another table than the one that is
// run.
void expectSameAsTheLoad(const Model& load, const Model& check) {
  EXPECT_EQ(check.ProjectName, load.ProjectName);
  EXPECT_EQ(check.ProjectDate, load.ProjectDate);
  EXPECT_EQ(check.ProjectUser, load.ProjectUser);
  ASSERT_EQ(check.LastAge, load.LastAge);
  ASSERT_EQ(check.NrStage, load.NrStage);
  EXPECT_EQ(check.FemaleStage, load.FemaleStage);
  for (int j = 1; j <= load.NrStage; ++j) {
    EXPECT_EQ(check.StageAge(j, 1), load.StageAge(j, 1)) << j;
    EXPECT_EQ(check.StageAge(j, 2), load.StageAge(j, 2)) << j;
    EXPECT_EQ(check.StageName(j), load.StageName(j)) << j;
    EXPECT_EQ(check.WeighCoef(j), load.WeighCoef(j)) << j;
    EXPECT_EQ(check.DensityCoef(j), load.DensityCoef(j)) << j;
    for (int x = 0; x <= load.LastAge; ++x) {
      EXPECT_EQ(check.Fecundity(x, j), load.Fecundity(x, j)) << x << "," << j;
      EXPECT_EQ(check.GrowthRate(x, j), load.GrowthRate(x, j)) << x << "," << j;
      EXPECT_EQ(check.DevelopRate(x, j), load.DevelopRate(x, j)) << x << "," << j;
      EXPECT_EQ(check.Consumption(x, j), load.Consumption(x, j)) << x << "," << j;
      EXPECT_EQ(check.InitialN(x, j), load.InitialN(x, j)) << x << "," << j;
      for (int r = 1; r <= load.NrRelease; ++r)
        EXPECT_EQ(check.ReleaseN(r, x, j), load.ReleaseN(r, x, j)) << r << ":" << x << "," << j;
    }
  }
  ASSERT_EQ(check.NrRelease, load.NrRelease);
  for (int r = 1; r <= load.NrRelease; ++r)
    EXPECT_EQ(check.ReleaseDay(r), load.ReleaseDay(r)) << r;
  ASSERT_EQ(check.NrWeakFactor, load.NrWeakFactor);
  for (int i = 1; i <= load.NrWeakFactor; ++i) {
    EXPECT_EQ(check.WeakFactorName(i), load.WeakFactorName(i)) << i;
    for (int j = 1; j <= load.NrStage; ++j)
      EXPECT_EQ(check.WeakCoef(i, j), load.WeakCoef(i, j)) << i << "," << j;
  }
  EXPECT_EQ(check.EtSelector, load.EtSelector);
  for (auto et : {&Model::EtA, &Model::EtB, &Model::EtC, &Model::EtD, &Model::EtE, &Model::EtF, &Model::EtG})
    EXPECT_EQ(check.*et, load.*et);
  EXPECT_EQ(check.DensityCoefBelowK, load.DensityCoefBelowK);
  EXPECT_EQ(check.DensityCoefOverK, load.DensityCoefOverK);
  ASSERT_EQ(check.NrControl, load.NrControl);
  for (int i = 1; i <= load.NrControl; ++i) {
    EXPECT_EQ(check.ControlDate(i), load.ControlDate(i)) << i;
    EXPECT_EQ(check.CriticalDay(i), load.CriticalDay(i)) << i;
    EXPECT_EQ(check.ControlName(i), load.ControlName(i)) << i;
    EXPECT_EQ(check.ControlDuration(i), load.ControlDuration(i)) << i;
    for (int k = 0; k <= kLastEffectiveDay; ++k)
      for (int j = 1; j <= load.NrStage; ++j)
        EXPECT_EQ(check.ControlMortality(j, k, i), load.ControlMortality(j, k, i))
            << i << ":" << k << "," << j;
  }
  for (auto item : {&Model::SamplingInterval, &Model::SamplingStageFrom, &Model::SamplingStageTo,
                    &Model::PreviousCumWID, &Model::MeanFecundity, &Model::NetReproductiveRate,
                    &Model::IntrinsicRate, &Model::FiniteRate, &Model::GenerationTime})
    EXPECT_EQ(check.*item, load.*item);
  EXPECT_EQ(check.LastAgeOfFile, load.LastAgeOfFile);
}

TEST(DataFileCheckReport, StoresWhatTheLoadStores) {
  struct Case {
    const char* file;
    bool withCxj;
  };
  const Case cases[] = {{"moth.txt", false},          {"moth-cxj.txt", true},   {"moth-releases.txt", false},
                        {"moth-controls.txt", false}, {"moth-auto.txt", false}, {"tiny3.txt", false}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    const std::string text =
        fileText(c.file == std::string("moth.txt") ? examplePath(c.file) : dataPath(c.file));
    TestSession load;
    load.read(text, c.withCxj);
    TestSession check;
    check.session->flags.WithCxj = c.withCxj ? "Yes" : "No";
    check.session->files.attachInput(kDataFile, ItemReader(text), c.file);
    OutputFile picture = OutputFile::inMemory();
    CheckDataFile(*check.session, picture);
    EXPECT_TRUE(check.session->files.input(kDataFile).atEnd());
    expectSameAsTheLoad(load.m, check.m);
  }
}

// A file that stops the load stops the check with the same error and
// place, and what was printed until then stays.
TEST(DataFileCheckReport, StopsWhereTheLoadStops) {
  const std::string moth = fileText(examplePath("moth.txt"));
  const std::string cut = moth.substr(0, moth.find("\"Mean fecundity\""));
  TestSession load;
  const RuntimeError loading = errorOf([&] { load.read(cut); });
  TestSession check;
  check.session->flags.WithCxj = "No";
  check.session->files.attachInput(kDataFile, ItemReader(cut), "test.txt");
  OutputFile picture = OutputFile::inMemory();
  const RuntimeError checking = errorOf([&] { CheckDataFile(*check.session, picture); });
  EXPECT_EQ(checking.number(), 62);
  EXPECT_EQ(std::string(checking.what()), loading.what());
  const std::string text = picture.text(), last = "Previous CUMWID= 0 \r\n";
  ASSERT_GE(text.size(), last.size());
  EXPECT_EQ(text.substr(text.size() - last.size()), last);
}

} // namespace
} // namespace vorlex::testing
