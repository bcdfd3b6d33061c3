#include "reports/TitlePage.h"
#include "reports/BasicInformation.h"
#include "reports/CharacterPlots.h"
#include "reports/ReportFixture.h"

namespace vorlex::testing {
namespace {

std::string blanks(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

const std::vector<std::string> kReferences = {
    "Reference:",
    "Leslie P.H. (1945) On the use of matrices in certain population mathematics.",
    "     Biometrika 33: 183-212",
    "Birch L.C. (1948) The intrinsic rate of natural increase of an insect population.",
    "     Journal of Animal Ecology 17: 15-26",
    "Caswell H. (2001) Matrix Population Models: Construction, Analysis,",
    "    and Interpretation, 2nd ed.",
    "    Sinauer Associates, Sunderland,",
    "    Massachusetts",
};

std::vector<std::string> joined(std::vector<std::string> head, const std::vector<std::string>& tail) {
  head.insert(head.end(), tail.begin(), tail.end());
  return head;
}

const std::vector<std::string> kTitleLines = {
    " ", " ", " ", "Vorlex of Population Management Based on Two-Sex Life Table", " ", " ", " ", " ",
};
const std::vector<std::string> kAddressToDate = {
    " ",
    "Vorlex population simulator: age-stage, two-sex life table projection",
    " ",
    "Source and documentation: the Vorlex repository",
    "README.md and docs/ in the Vorlex source tree",
    " ",
    " ",
    " ",
    " ",
    " ",
    "Project: Tiny three-stage table",
    "Date   : 2026-11-21",
    " ",
    " ",
    " ",
};

TEST_F(Tiny3Report, UnlimitedGrowthWritesTitleBasicInformationAndPlotsPageByPage) {
  session.flags.FlowFlag = "Yes";
  session.files.attachOutput(kFlowFile, OutputFile::inMemory());
  start();
  VorlexCPrintTitlePageAndBasicInfo(session);
  project();
  VorlexEPrintResults(session);

  const auto pages = pagesOf(report());
  // Title; life table, stages, initial population, age distribution; four
  // age-stage pages; the controls of the data file; four plots.
  ASSERT_EQ(pages.size(), 15u);
  EXPECT_EQ(pages[0], "");
  const std::vector<std::string> firstLines = {
      " ",
      " The Simulation of the Growth and Management of a Population",
      " ",
      " The initial population (N0):",
      " Initial age distribution:",
      " Age-Stage-Specific Fecundity ",
      " Age-Stage-Specific Growth Coefficient ",
      " Age-Stage-Specific Developmental Coefficient ",
      " Initial age-stage-distribution ",
      " Management strategies: ",
      " Project: Tiny three-stage table",
      " Project: Tiny three-stage table",
      " Project: Tiny three-stage table",
      " Project: Tiny three-stage table",
  };
  for (std::size_t page = 1; page < pages.size(); ++page)
    EXPECT_EQ(linesOf(pages[page]).front(), firstLines[page - 1]) << "page " << page;

  expectLines(pages[1], joined(joined(kTitleLines, kAddressToDate), kReferences));
  // The lines of the report's routines among those of set-up and projection.
  std::string reportFlow;
  for (const auto& line : linesOf(session.files.output(kFlowFile).text()))
    if (line.starts_with("In Public Sub VorlexC") || line.starts_with("In Public Sub VorlexE"))
      reportFlow += line + "\r\n";
  expectLines(reportFlow,
              {"In Public Sub VorlexCPrintTitlePageAndBasicInfo", "In Public Sub VorlexCGosub1600",
               "In Public Sub VorlexCGosub1600", "In Public Sub VorlexCGosub1600",
               "In Public Sub VorlexCGosub1600", "In Public Sub VorlexEPrintResults"});
}

class ExtraMortalityTitle : public Tiny3Report {
protected:
  void SetUp() override {
    Tiny3Report::SetUp();
    session.flags.ExtraMortalityOption = "Yes";
    m.FecundityDecrease = .8;
    m.OverwinterStage = 3;
    m.OverwinterDay = 200;
    m.OverwinterMortality = .5;
    m.OverwinterRandom = "No";
    m.OverwinterMortalityInput = .5;
    m.ExtraStage1 = 2;
    m.ExtraFrom1 = 1;
    m.ExtraTo1 = 51;
    m.ExtraMortality1 = .3;
    m.ExtraRandom1 = "No";
    m.ExtraMortalityInput1 = .3;
    m.ExtraStage2 = 3;
    m.ExtraFrom2 = 350;
    m.ExtraTo2 = 500;
    m.ExtraMortality2 = .25;
    m.ExtraRandom2 = "Yes";
    m.ExtraMortalityInput2 = 0;
    m.LowFecundityFactor = .3;
    m.LowFecundityFrom = 350;
    m.LowFecundityTo = 500;
  }
  std::vector<std::string> block(const std::vector<std::string>& overwinter) {
    std::vector<std::string> lines = {
        "Time unit = 1 ",
        "Fecundity coefficient = .8 ",
        "Overwinter stage = 3 ",
        "Overwinter mortality occurred on d  200 ",
    };
    lines.insert(lines.end(), overwinter.begin(), overwinter.end());
    return joined(lines, {
                             "",
                             "First extra mortality stage: Fema",
                             "First extra mortality occurred after d  1 ",
                             "First extra mortality stopped after d  51 ",
                             "Extra mortality = .3 ",
                             "Fixed stage mortality = Yes",
                             "Realized 1st extra mortality = .3 ",
                             " ",
                             "Second extra mortality stage: Male",
                             "Second extra mortality occurred after d  350 ",
                             "Second extra mortality stopped after d  500 ",
                             "Second extra mortality = .25 ",
                             "Random stage mortality = Yes",
                             "Realized 2nd extra mortality = 0 ",
                             " ",
                             "Lowered fecundity:  .3 ",
                             "Lowered fecundity after d  350 ",
                             "Lowered fecundity stopped after d  500 ",
                             "Fixed lowered fecundity = Yes",
                         });
  }
  std::string titlePage() {
    VorlexCGoSub1910PrintTitlePage(session);
    return pagesOf(report()).at(1);
  }
};

TEST_F(ExtraMortalityTitle, ShowsTheAnswersOfTheDialogueBetweenTitleAndAddress) {
  const auto overwinter = {std::string("Overwinter mortality = .5 "),
                           std::string("Fixed overwinter mortality = Yes")};
  expectLines(titlePage(),
              joined(joined(joined(kTitleLines, block(overwinter)), kAddressToDate), kReferences));
}

TEST_F(ExtraMortalityTitle, RandomOverwinterMortalityReportsTheInputWhichIsZero) {
  m.OverwinterRandom = "Yes";
  m.OverwinterMortalityInput = 0;
  const auto overwinter = {std::string("Overwinter mortality = .5 "),
                           std::string("Random overwinter mortality = Yes"),
                           std::string("Realized overwinter mortality = 0 ")};
  expectLines(titlePage(),
              joined(joined(joined(kTitleLines, block(overwinter)), kAddressToDate), kReferences));
}

TEST_F(Tiny3Report, AutomaticControlsListTheirDaysAndTheShortControlPageOnTheTitlePage) {
  m.NrAutoControl = 2;
  m.AutoControlDay(1) = 0;
  m.AutoControlDay(2) = 12;
  m.AutoControlDay(3) = 40; // beyond the count: not listed
  m.ControlGap(1) = 10;
  VorlexCGoSub1910PrintTitlePage(session);

  const auto pages = pagesOf(report());
  ASSERT_EQ(pages.size(), 3u);
  expectLines(pages[1], joined(joined(kTitleLines, kAddressToDate), {
                                                                        "Control date",
                                                                        "=====================",
                                                                        "  Control        Day ",
                                                                        "---------------------",
                                                                        blanks(5) + "1" + blanks(11) + "0 ",
                                                                        blanks(5) + "2" + blanks(11) + "12 ",
                                                                        "---------------------",
                                                                        " ",
                                                                        " ",
                                                                        " ",
                                                                    }));
  expectLines(pages[2], joined(
                            {
                                " Management strategies: ",
                                " " + std::string(48, '='),
                                " Treat No. Day   Description               Stage mortality",
                                blanks(31) + "Eggs  Fema  Male ",
                                " " + std::string(48, '-'),
                                "**** Time interval to next control = 10  ****",
                                " " + std::string(48, '-'),
                                " ",
                                " ",
                                " ",
                            },
                            kReferences));
}

} // namespace
} // namespace vorlex::testing
