#include "cli/InfoCommand.h"

#include "datafile/EtSelector.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

#include <algorithm>
#include <iomanip>

namespace vorlex {

namespace {
constexpr int kEtDaysShown = 8;
}

void printDataFileSummary(const Session& session, std::ostream& out) {
  const Model& m = session.model();
  out << "Data file:    " << session.names.DataFileName << '\n';
  out << "Form:         " << (session.flags.WithCxj == "Yes" ? "with consumption C(x,j)" : "plain") << '\n';
  out << "Project:      " << m.ProjectName << '\n';
  out << "Date:         " << m.ProjectDate.toText() << '\n';
  out << "User:         " << m.ProjectUser.toText() << '\n';
  out << "Last age:     " << m.LastAge << "   (\"Last age\" line: " << m.LastAgeOfFile << ")\n";
  out << "Stages:       " << m.NrStage << ", female stage " << m.FemaleStage << "\n\n";

  out << "  Stage  Name  Ages        Weighing coef.  Density coef.\n";
  for (int stage = 1; stage <= m.NrStage; ++stage) {
    const std::string ages =
        std::to_string(m.StageAge(stage, 1)) + ".." + std::to_string(m.StageAge(stage, 2));
    out << "  " << std::setw(5) << stage << "  " << std::left << std::setw(4) << m.StageName(stage) << "  "
        << std::setw(10) << ages << "  " << std::setw(14) << digits(m.WeighCoef(stage)) << "  "
        << digits(m.DensityCoef(stage)) << std::right << '\n';
  }

  out << "\nLife-table statistics as read:\n";
  out << "  F      = " << digits(m.MeanFecundity) << '\n';
  out << "  R0     = " << digits(m.NetReproductiveRate) << '\n';
  out << "  r      = " << digits(m.IntrinsicRate) << '\n';
  out << "  lambda = " << digits(m.FiniteRate) << '\n';
  out << "  T      = " << digits(m.GenerationTime) << '\n';

  double initial = 0;
  for (int stage = 1; stage <= m.NrStage; ++stage)
    for (int age = 0; age <= m.LastAge; ++age)
      initial += m.InitialN(age, stage);
  out << "\nInitial population: " << digits(initial) << " individuals\n";
  out << "Additional releases (NrRelease): " << m.NrRelease << '\n';
  out << "Controls (NrControl): " << m.NrControl << '\n';
  for (int i = 1; i <= m.NrControl; ++i)
    out << "  " << i << ". " << m.ControlName(i) << " on day " << m.ControlDate(i) << ", effective "
        << digits(m.ControlDuration(i)) << " day(s), critical day " << m.CriticalDay(i) << '\n';

  out << "\nET function: " << etFormName(m.EtSelector) << '\n';
  const int shown = std::min<int>(kEtDaysShown, m.SimTime + 2);
  out << "  EtDay(0.." << shown - 1 << "):";
  for (int t = 0; t < shown; ++t)
    out << ' ' << digits(m.EtDay(t));
  out << '\n';
}

} // namespace vorlex
