#include "reports/TitlePage.h"

#include "model/Session.h"
#include "reports/BasicInformation.h"
#include "reports/ControlPages.h"
#include "reports/ReportLines.h"
#include "textio/OutputFile.h"

#include <array>

namespace vorlex {

namespace {

// Who made the program and where it lives; the second line stays blank.
constexpr std::array<const char*, 4> kAddressLines = {
    "Vorlex population simulator: age-stage, two-sex life table projection",
    " ",
    "Source and documentation: the Vorlex repository",
    "README.md and docs/ in the Vorlex source tree",
};

// Two citations of two lines and one of four, follow-up lines indented.
constexpr std::array<const char*, 8> kReferenceLines = {
    "Leslie P.H. (1945) On the use of matrices in certain population mathematics.",
    "     Biometrika 33: 183-212",
    "Birch L.C. (1948) The intrinsic rate of natural increase of an insect population.",
    "     Journal of Animal Ecology 17: 15-26",
    "Caswell H. (2001) Matrix Population Models: Construction, Analysis,",
    "    and Interpretation, 2nd ed.",
    "    Sinauer Associates, Sunderland,",
    "    Massachusetts",
};

// The values the extra-mortality dialogue took, as the user gave them.
void printExtraMortalities(Session& session, OutputFile& out) {
  const Model& m = session.model();
  out.print("Time unit =", m.TimeUnit);
  out.print("Fecundity coefficient =", m.FecundityDecrease);
  out.print("Overwinter stage =", m.OverwinterStage);
  out.print("Overwinter mortality occurred on d ", m.OverwinterDay);
  out.print("Overwinter mortality =", m.OverwinterMortality);
  if (m.OverwinterRandom == "Yes") {
    out.print("Random overwinter mortality = Yes");
    // The input, which the dialogue sets to 0 for a random mortality.
    out.print("Realized overwinter mortality =", m.OverwinterMortalityInput);
  } else {
    out.print("Fixed overwinter mortality = Yes");
  }
  out.print("");

  out.print("First extra mortality stage: ", m.StageName(m.ExtraStage1));
  out.print("First extra mortality occurred after d ", m.ExtraFrom1);
  out.print("First extra mortality stopped after d ", m.ExtraTo1);
  out.print("Extra mortality =", m.ExtraMortality1);
  out.print(m.ExtraRandom1 == "Yes" ? "Random stage mortality = Yes" : "Fixed stage mortality = Yes");
  out.print("Realized 1st extra mortality =", m.ExtraMortalityInput1);
  out.print(" ");

  out.print("Second extra mortality stage: ", m.StageName(m.ExtraStage2));
  out.print("Second extra mortality occurred after d ", m.ExtraFrom2);
  out.print("Second extra mortality stopped after d ", m.ExtraTo2);
  out.print("Second extra mortality =", m.ExtraMortality2);
  out.print(m.ExtraRandom2 == "Yes" ? "Random stage mortality = Yes" : "Fixed stage mortality = Yes");
  out.print("Realized 2nd extra mortality =", m.ExtraMortalityInput2);
  out.print(" ");

  out.print("Lowered fecundity: ", m.LowFecundityFactor);
  out.print("Lowered fecundity after d ", m.LowFecundityFrom);
  out.print("Lowered fecundity stopped after d ", m.LowFecundityTo);
  out.print("Fixed lowered fecundity = Yes");
}

// The days on which the automatic rule took a control, then its page.
void printAutoControlDates(Session& session, OutputFile& out) {
  const Model& m = session.model();
  out.print("Control date");
  out.print("=====================");
  out.print("  Control        Day ");
  out.print("---------------------");
  for (int i = 1; i <= m.NrAutoControl; ++i)
    out.print(Tab{5}, i, Tab{17}, m.AutoControlDay(i));
  out.print("---------------------");
  printBlankLines(out, 3);
  VorlexCGosub1260AutoControl(session);
  printBlankLines(out, 3);
}

} // namespace

void VorlexCPrintTitlePageAndBasicInfo(Session& session) {
  session.flow("In Public Sub VorlexCPrintTitlePageAndBasicInfo");
  VorlexCGoSub1910PrintTitlePage(session);
  VorlexCGosub100PrintBasicInf(session);
}

void VorlexCGoSub1910PrintTitlePage(Session& session) {
  const Model& m = session.model();
  OutputFile& out = reportFile(session);

  printFormFeed(out);
  printBlankLines(out, 3);
  out.print("Vorlex of Population Management Based on Two-Sex Life Table");
  printBlankLines(out, 4);
  if (session.flags.ExtraMortalityOption == "Yes")
    printExtraMortalities(session, out);

  printBlankLines(out, 1);
  for (const char* line : kAddressLines)
    out.print(line);

  printBlankLines(out, 5);
  out.print("Project: ", m.ProjectName);
  out.print("Date   : ", session.shortDate);
  printBlankLines(out, 3);

  if (m.NrAutoControl != 0)
    printAutoControlDates(session, out);

  out.print("Reference:");
  for (const char* line : kReferenceLines)
    out.print(line);
}

} // namespace vorlex
