#include "mainform/MainForm.h"
#include "support/RunFolder.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorlex::testing {
namespace {

// A run writes its last population as a new data file; reading that file
// must give the same population, life table and statistics back.
TEST(DerivedDataFile, ReadsBackToThePopulationTheRunReached) {
  RunFolder folder("round-trip");
  const std::string dataFile = folder.copy(examplePath("moth.txt"), "moth.txt");
  ScriptedPrompts prompts;
  prompts.answer(std::string(MainForm::kDataFileDialogTitle) + "=" + dataFile);
  Session run(prompts);
  MainForm form(run);
  form.Form_Load();
  run.controls["txtSimuT"].caption = "30";
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  form.Option1_Click();
  form.cmdRun_Click();
  const Model& ran = run.model();

  TestSession again(30);
  again.read(fileText(folder.path("moth-0-T- 30.txt")), false, "moth-0-T- 30.txt");
  const Model& read = again.m;
  ASSERT_EQ(read.NrStage, ran.NrStage);
  ASSERT_EQ(read.LastAge, ran.LastAge);
  int cells = 0;
  for (int j = 1; j <= ran.NrStage; ++j) {
    EXPECT_EQ(read.StageName(j), ran.StageName(j));
    for (int x = 0; x <= ran.LastAge; ++x) {
      // Numbers go out with 15 significant digits.
      EXPECT_NEAR(read.InitialN(x, j), ran.PopN(x, j), 1e-14 * ran.PopN(x, j))
          << "age " << x << ", stage " << j;
      EXPECT_EQ(read.GrowthRate(x, j), ran.GrowthRate(x, j)) << "age " << x << ", stage " << j;
      EXPECT_NEAR(read.DevelopRate(x, j), ran.DevelopRate(x, j), 0.00005) << "age " << x << ", stage " << j;
      cells += ran.PopN(x, j) != 0;
    }
  }
  EXPECT_GT(cells, 20); // a population of many ages and stages made the trip
  EXPECT_EQ(read.NetReproductiveRate, ran.NetReproductiveRate);
  EXPECT_EQ(read.IntrinsicRate, ran.IntrinsicRate);
  EXPECT_NEAR(read.PreviousCumWID, ran.CUMWID(29), 1e-14 * ran.CUMWID(29));
  EXPECT_EQ(read.LastAgeOfFile, ran.LastAgeOfFile);
}

} // namespace
} // namespace vorlex::testing
