#include "reports/AgeStagePages.h"

#include "model/Session.h"
#include "reports/ReportLines.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"

#include <array>
#include <string>

namespace vorlex {

namespace {

int stageColumn(int stage) { return 9 * (stage - 1) + 7; }

std::string lastFour(const std::string& name) {
  return name.size() <= 4 ? name : name.substr(name.size() - 4);
}

// Whether a stage has a value at an age. The male stage, alone, shows none
// at all when its first age is 0 or less.
bool showsValue(const Model& m, int stage, int age) {
  if (stage == m.NrStage && m.StageAge(stage, 1) <= 0)
    return false;
  return m.StageAge(stage, 1) <= age && age <= m.StageAge(stage, 2);
}

enum class Rounding { FourPlaces, AsItStands };

void fillReportMatrix(Model& m, const Table2<double>& table, Rounding rounding, const char* title) {
  for (int age = 0; age <= m.LastAge; ++age)
    for (int stage = 1; stage <= m.NrStage; ++stage)
      m.ReportMatrix(age, stage) =
          rounding == Rounding::FourPlaces ? round4(table(age, stage)) : table(age, stage);
  m.ReportMatrixTitle = title;
}

// The last immature stage P develops into the female F and the male M at
// once: its rates into F stand in its own column, those into M in the
// female's column. For this page the two columns are named "P->F" and
// "P->M", both with the ages of P, and the male column is emptied.
void printDevelopmentPage(Session& session) {
  Model& m = session.model();
  const int male = m.NrStage;
  const int female = m.NrStage - 1;
  const int lastImmature = m.NrStage - 2;
  const std::array<int, 3> changed = {lastImmature, female, male};
  std::array<std::string, 3> names;
  std::array<int, 3> firstAges{}, lastAges{};
  for (std::size_t i = 0; i < changed.size(); ++i) {
    names[i] = m.StageName(changed[i]);
    firstAges[i] = m.StageAge(changed[i], 1);
    lastAges[i] = m.StageAge(changed[i], 2);
  }

  const std::string from = firstLetter(m.StageName(lastImmature));
  const std::string toFemale = from + "->" + firstLetter(m.StageName(female));
  const std::string toMale = from + "->" + firstLetter(m.StageName(male));
  m.StageName(male) = "    ";
  m.StageAge(male, 1) = 0;
  m.StageAge(male, 2) = 0;
  m.StageName(female) = toMale;
  m.StageAge(female, 1) = m.StageAge(lastImmature, 1);
  m.StageAge(female, 2) = m.StageAge(lastImmature, 2);
  m.StageName(lastImmature) = toFemale;

  VorlexCGosub1600(session);

  for (std::size_t i = 0; i < changed.size(); ++i) {
    m.StageName(changed[i]) = names[i];
    m.StageAge(changed[i], 1) = toInt16(firstAges[i]);
    m.StageAge(changed[i], 2) = toInt16(lastAges[i]);
  }
}

} // namespace

void VorlexCGosub1600(Session& session) {
  session.flow("In Public Sub VorlexCGosub1600");
  const Model& m = session.model();
  OutputFile& out = reportFile(session);
  const int width = 9 * m.NrStage + 4;

  printFormFeed(out);
  out.print(m.ReportMatrixTitle);
  out.print(rule('-', width));
  out.printOpen(" Age ");
  for (int stage = 1; stage <= m.NrStage; ++stage)
    out.printOpen(Tab{stageColumn(stage)}, lastFour(m.StageName(stage)));
  out.print(" ");
  out.print(rule('-', width));

  for (int age = 0; age <= m.LastAge; ++age) {
    out.printOpen(Tab{age < 10 ? 3 : 2}, age * m.TimeUnit);
    for (int stage = 1; stage <= m.NrStage; ++stage) {
      out.printOpen(Tab{stageColumn(stage)});
      if (showsValue(m, stage, age))
        out.printOpen(m.ReportMatrix(age, stage));
      else
        out.printOpen(" -  ");
    }
    out.print(" ");
  }
  out.print(rule('-', width));
}

void PrintAgeStagePages(Session& session) {
  Model& m = session.model();
  fillReportMatrix(m, m.Fecundity, Rounding::FourPlaces, " Age-Stage-Specific Fecundity ");
  VorlexCGosub1600(session);
  fillReportMatrix(m, m.GrowthRate, Rounding::FourPlaces, " Age-Stage-Specific Growth Coefficient ");
  VorlexCGosub1600(session);
  fillReportMatrix(m, m.DevelopRate, Rounding::FourPlaces, " Age-Stage-Specific Developmental Coefficient ");
  printDevelopmentPage(session);
  fillReportMatrix(m, m.InitialN, Rounding::AsItStands, " Initial age-stage-distribution ");
  VorlexCGosub1600(session);
}

} // namespace vorlex
