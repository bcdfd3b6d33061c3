#include "reports/BasicInformation.h"

#include "model/Arithmetic.h"
#include "model/Session.h"
#include "reports/AgeStagePages.h"
#include "reports/ControlPages.h"
#include "reports/ReportLines.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"

namespace vorlex {

namespace {

// The column an age starts at, so that ages of one to three digits end in
// the same column. Chosen by the age in steps, not in time units.
int ageColumn(int age) {
  if (age < 10)
    return 4;
  if (age < 100)
    return 3;
  return 2;
}

void printHeader(Session& session, OutputFile& out) {
  const Model& m = session.model();
  printFormFeed(out);
  out.print(" The Simulation of the Growth and Management of a Population");
  printBlankLines(out, 2);
  out.print(" Project : ", m.ProjectName);
  out.print(" DATE    : ", m.ProjectDate);
  printBlankLines(out, 2);
  if (session.flags.Physogastry == "Yes")
    out.print(" This is a simulation of physogastry reproduction.");
}

void printLifeTable(const Model& m, OutputFile& out) {
  out.print(" The age-specific fecundity  F(x) and survival rate S(x)");
  out.print(rule('=', 30));
  out.print(" ", Tab{4}, "Age", Tab{10}, "F(x)", Tab{20}, "S(x)");
  out.print(rule('-', 30));
  for (int age = 0; age <= m.LastAge; ++age)
    out.print(Tab{ageColumn(age)}, age * m.TimeUnit, Tab{10}, round4(m.MxCopy(age)), Tab{20},
              round4(m.Px(age)));
  out.print(rule('-', 30));
}

// First and last age of each stage, in steps.
void printStages(const Model& m, OutputFile& out) {
  printFormFeed(out);
  printBlankLines(out, 2);
  out.print(" The stage information");
  out.print(rule('=', 25));
  out.print(" Stage     Begin     End");
  out.print(rule('-', 25));
  for (int stage = 1; stage <= m.NrStage; ++stage)
    out.print(Tab{2}, m.StageName(stage), Tab{12}, m.StageAge(stage, 1), Tab{22}, m.StageAge(stage, 2));
  out.print(rule('-', 25));
  printBlankLines(out, 1);
}

void printInitialPopulation(const Model& m, OutputFile& out) {
  const int width = 8 * m.NrStage + 8;
  printFormFeed(out);
  out.print(" The initial population (N0):");
  out.print(" Population size = ", m.InitialSize);
  printBlankLines(out, 1);
  out.print(" Population composition:");
  out.print(rule('=', width));
  out.printOpen(Tab{3}, "Age");
  for (int stage = 1; stage <= m.NrStage; ++stage)
    out.printOpen(Tab{8 * stage}, m.StageName(stage));
  out.print();
  out.print(rule('-', width));
  for (int age = 0; age <= m.LastAge; ++age) {
    out.printOpen(Tab{2}, age * m.TimeUnit);
    for (int stage = 1; stage <= m.NrStage; ++stage)
      out.printOpen(Tab{8 * stage}, m.InitialN(age, stage));
    out.print();
  }
  out.print(rule('-', width));
}

// Share of each age in per cent with two decimals; the column moves left by
// one for shares of 10% and more, and again at 100%.
void printAgeDistribution(const Model& m, OutputFile& out) {
  printFormFeed(out);
  out.print(" Initial age distribution:");
  out.print(rule('=', 23));
  out.print("  Age        Percent(%)");
  out.print(rule('-', 23));
  for (int age = 0; age <= m.LastAge; ++age) {
    const double share = divide(m.InitialAgeN(age), m.InitialSize);
    const int column = share < .1 ? 16 : share < 1 ? 15 : 14;
    out.print(" ", Tab{ageColumn(age)}, age * m.TimeUnit, Tab{column}, roundHalfEven(share * 10000) / 100);
  }
  out.print(rule('-', 23));
}

} // namespace

void VorlexCGosub100PrintBasicInf(Session& session) {
  const Model& m = session.model();
  OutputFile& out = reportFile(session);
  printHeader(session, out);
  printLifeTable(m, out);
  printStages(m, out);
  printInitialPopulation(m, out);
  printAgeDistribution(m, out);
  PrintAgeStagePages(session);
  if (m.NrControl > 0)
    VorlexCGosub1260(session);
}

} // namespace vorlex
