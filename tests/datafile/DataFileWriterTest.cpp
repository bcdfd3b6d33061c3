#include "datafile/DataFileWriter.h"

#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vorlex::testing {
namespace {

/// The text from the first `from` up to the next `to`.
std::string block(const std::string& text, const std::string& from, const std::string& to) {
  const auto start = text.find(from);
  const auto end = text.find(to, start);
  return start == std::string::npos || end == std::string::npos ? "missing" : text.substr(start, end - start);
}

/// The moth example at the end of a run of 60 days: its initial population
/// stands for the population reached, and CUMWID(59) holds a known value.
class DataFileWriterMoth : public ::testing::Test {
protected:
  TestSession t{60};
  std::string base = ::testing::TempDir() + ::testing::UnitTest::GetInstance()->current_test_info()->name();

  void SetUp() override {
    t.read(fileText(examplePath("moth.txt")));
    for (int age = 0; age <= t.m.LastAge; ++age)
      for (int stage = 1; stage <= t.m.NrStage; ++stage)
        t.m.PopN(age, stage) = t.m.InitialN(age, stage);
    t.m.CUMWID(59) = 1234.5;
    t.session->names.BaseName = base;
  }
  std::string writeDataFile(const std::string& suffix = "-0-T- 60.txt") {
    WriteDataFileForVorlexA(*t.session);
    return fileText(base + suffix);
  }
};

TEST_F(DataFileWriterMoth, ReplacesAnOldFileWithTheReviewedLayoutAndReportsItReady) {
  std::ofstream(base + "-0-T- 60.txt") << std::string(20000, 'x');
  EXPECT_EQ(writeDataFile(), fileText(dataPath("moth-0-T-60.expected")));
  EXPECT_FALSE(t.session->files.isOpen(kWorkFile));
  EXPECT_TRUE(t.session->controls["Command5"].enabled);
  EXPECT_EQ(t.session->controls["Command5"].caption, "File 0-T- 60 for 1,2,3,8 is ready");
}

TEST_F(DataFileWriterMoth, ReadsBackToTheTablesItWasWrittenFrom) {
  t.m.GrowthDecrease = .5; // already folded into the rates: it goes out as 1
  TestSession back{60};
  back.read(writeDataFile());
  EXPECT_EQ(back.m.GrowthDecrease, 1);
  for (int age = 0; age <= 1005; ++age)
    for (int stage = 1; stage <= 12; ++stage) {
      EXPECT_EQ(back.m.GrowthRate(age, stage), t.m.GrowthRate(age, stage)) << age << "," << stage;
      EXPECT_EQ(back.m.Fecundity(age, stage), t.m.Fecundity(age, stage)) << age << "," << stage;
      EXPECT_EQ(back.m.DevelopRate(age, stage), t.m.DevelopRate(age, stage)) << age << "," << stage;
      EXPECT_EQ(back.m.InitialN(age, stage), t.m.PopN(age, stage)) << age << "," << stage;
    }
  EXPECT_EQ(back.m.PreviousCumWID, 1234.5);
  for (double Model::*statistic : {&Model::MeanFecundity, &Model::NetReproductiveRate, &Model::IntrinsicRate,
                                   &Model::FiniteRate, &Model::GenerationTime})
    EXPECT_EQ(back.m.*statistic, t.m.*statistic);
  EXPECT_EQ(back.m.LastAgeOfFile, 45);
}

TEST_F(DataFileWriterMoth, NamesCarryTheBlankOfTheNumberFormAndTheMatrixHoldsTheTriples) {
  WriteMatrixNforTimeT(*t.session);
  const std::string expected = fileText(dataPath("moth-0-T-60.expected"));
  EXPECT_EQ(fileText(base + "_matrix N at t  60.txt"),
            expected.substr(0, expected.find("\"Description: the female")) +
                "\"Description: copy following matrix N to the vorlex data file to replace the initial "
                "population.\"\r\n0,1,10\r\n8,2,5\r\n12,2,3\r\n0,0,0\r\n");
}

TEST_F(DataFileWriterMoth, NothingIsWrittenForTotalFiguresOnlyOrWithoutTheZeroFile) {
  for (auto [only, zero] : {std::pair{"Yes", "Yes"}, std::pair{"No", "No"}}) {
    t.session->flags.OnlyTotalFigures = only;
    t.session->flags.WriteZeroFile = zero;
    WriteDataFileForVorlexA(*t.session);
    WriteMatrixNforTimeT(*t.session);
    EXPECT_FALSE(std::filesystem::exists(base + "-0-T- 60.txt"));
    EXPECT_FALSE(std::filesystem::exists(base + "_matrix N at t  60.txt"));
    EXPECT_FALSE(t.session->controls["Command5"].enabled);
  }
}

TEST_F(DataFileWriterMoth, AnEmptyPopulationLeavesOnlyTheEndMark) {
  t.m.PopN.fill(0);
  const std::string heading = "(age, stage, number), end with 0,0,0\"\r\n";
  EXPECT_EQ(block(writeDataFile(), heading, "\"Description: Number of additional"), heading + "0,0,0\r\n");
}

TEST_F(DataFileWriterMoth, WithCxjCarriesConsumptionButThePlainSelectorThatItsReaderDoesNotKnow) {
  for (int stage = 1; stage <= t.m.NrStage; ++stage)
    for (int age = t.m.StageAge(stage, 1); age <= t.m.StageAge(stage, 2); ++age)
      t.m.Consumption(age, stage) = (10 * stage + age) / 10.0;
  t.session->flags.WithCxj = "Yes";
  const std::string text = writeDataFile("-0-T- 60with cxj.txt");
  EXPECT_EQ(block(text, "\"Description: decrease coefficient", " 4.5 , "),
            "\"Description: decrease coefficient (MODIFY next data to decrease the consumption rate. "
            "0<=D<=1)\"\r\n1\r\n\"Description: the next lines are the consumption (predation or "
            "parasitism) rates c(x,j) for each stage. Copy the c(x,j) data from Grazlet to replace these "
            "data.\"\r\n 1 , 1.1 , 1.2 , 1.3 , 1.4  \r\n 2.3 , 2.4 , 2.5 , 2.6 , 2.7  \r\n"
            " 2.8 , 2.9 , 3 , 3.1 , 3.2  \r\n 3.3 , 3.4 , 3.5 , 3.6 , 3.7  \r\n 3.8 , 3.9 , 4  \r\n");
  EXPECT_NE(text.find("\r\n\"Description: b (20), c (1), d (-0.2) (<0), a (10) for"), std::string::npos);

  TestSession back{60};
  back.read(text, true);
  EXPECT_EQ(back.m.Consumption(45, 5), 9.5);
  EXPECT_EQ(back.m.EtSelector, EtForm::None);
  EXPECT_EQ(back.m.DensityCoefBelowK, 1); // 20 was taken as the description
  EXPECT_EQ(back.m.DensityCoefOverK, -.2);
}

TEST_F(DataFileWriterMoth, DayZeroHasNoCumulativeWeighedDaysBeforeIt) {
  t.m.SimTime = 0;
  EXPECT_EQ(errorOf([&] { WriteDataFileForVorlexA(*t.session); }).number(), 9);
}

// The tiny table with an egg stage of exactly ten ages and a female stage of
// eleven: the line ends of full and partly filled lines, then the rounding of
// developmental rates to four places.
TEST(DataFileWriterRows, LineEndsOfValueRowsAndDevelopmentToFourPlacesWithTiesToEven) {
  TestSession t{60};
  t.read(fileText(dataPath("tiny3.txt")));
  t.session->names.BaseName = ::testing::TempDir() + "rows";
  t.m.LastAge = 11;
  t.m.StageAge(1, 2) = 9;
  t.m.StageAge(2, 2) = t.m.StageAge(3, 2) = 11;
  t.m.StageAge(3, 1) = 2;
  for (int age = 0; age <= 11; ++age)
    for (int stage = 1; stage <= 3; ++stage) {
      t.m.GrowthRate(age, stage) = stage + age / 100.0;
      t.m.DevelopRate(age, stage) = (age + 1) / 1e4;
    }
  const auto written = [&](const std::string& from, const std::string& to) {
    WriteDataFileForVorlexA(*t.session);
    return block(fileText(::testing::TempDir() + "rows-0-T- 60.txt"), from, to);
  };
  EXPECT_EQ(written("1,1.01", "\"Description: modify"),
            "1,1.01,1.02,1.03,1.04,1.05,1.06,1.07,1.08,1.09\r\n"
            "2.01,2.02,2.03,2.04,2.05,2.06,2.07,2.08,2.09,2.1\r\n2.11\r\n"
            "3.02,3.03,3.04,3.05,3.06,3.07,3.08,3.09,3.1,3.11\r\n");
  EXPECT_EQ(written(".0001,", "\"Description: next lines are initial"),
            ".0001,.0002,.0003,.0004,.0005,.0006,.0007,.0008,.0009,.001\r\n"
            ".0001,.0002,.0003,.0004,.0005,.0006,.0007,.0008,.0009,.001\r\n");

  t.m.StageAge(1, 2) = 2;
  t.m.DevelopRate(0, 1) = .00005; // 0.5 scaled: down to 0
  t.m.DevelopRate(1, 1) = .00025; // 2.5: down to 2
  t.m.DevelopRate(2, 1) = .00035; // 3.5: up to 4
  t.m.DevelopRate(0, 2) = .00015; // 1.4999999999999998 scaled, no tie: down to 1
  t.m.DevelopRate(1, 2) = .00016;
  t.m.DevelopRate(2, 2) = .123449;
  EXPECT_EQ(written("0,.0002", "\"Description: next lines are initial"),
            "0,.0002,.0004 \r\n.0001,.0002,.1234\r\n");
}

} // namespace
} // namespace vorlex::testing
