#include "reports/EfficacyFile.h"

#include "reports/FigureFiles.h"
#include "reports/FigureTerms.h"
#include "textio/OutputFile.h"

namespace vorlex {

namespace {

std::string column(const std::optional<double>& value) {
  return value ? figures::withSign(*value).str() : std::string();
}

} // namespace

void WriteEfficacyFile(Session& session) {
  using namespace figures;
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, "15-Fig-Efficacy");
  out.write("Weighed insect days, sizes and control efficacy of a treatment at time T");
  out.print("Time, Weighed insect days, Weighed insect days at the end, To critical, To final, "
            "Total before, Sampled stages before, Total after, Sampled stages after, "
            "Efficacy on weighed insect days (%), Efficacy by Abbott (%), Efficacy by Henderson-Tilton (%)");
  for (const EfficacyRow& row : session.efficacy)
    out.print(timeColumn(m, row.day), ",", bare(row.weighedInsectDays), ",", bare(row.weighedInsectDaysAtEnd), ",",
              column(row.toCritical), ",", column(row.toFinal), ",", bare(row.totalBefore), ",",
              bare(row.sampledBefore), ",", bare(row.totalAfter), ",", bare(row.sampledAfter), ",",
              column(row.weighedEfficacy), ",", column(row.abbottEfficacy), ",",
              column(row.hendersonTiltonEfficacy));
  session.files.close(kFigureFile);
}

} // namespace vorlex
