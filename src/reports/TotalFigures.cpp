// The files of totals, cost and harvest, and consumption. They always start
// at day 0 with the plain time, whatever ReleaseDate is.

#include "reports/FigureTerms.h"
#include "reports/FigureWriters.h"

namespace vorlex {

using namespace figures;

namespace {

/// One of the three total size files: its texts and what it does to each
/// value before the stripped form.
struct TotalSizeFile {
  const char* suffix;
  const char* title;
  bool showsPredationCoef; // in line 1, when above 0
  const char* heading;
  const char* physoHeading;
  double (*form)(double);
};

double asIs(double v) { return v; }
double plusOne(double v) { return v + 1; }

const TotalSizeFile kTotalSize{
    "2A-Fig-Total size",
    "Total population size and weighed size",
    true,
    "Time, Total population size, Weighed size, ET or AT, Cumu. weighed insect days",
    "Time, Total size (SP+burst-ready), Weigted size, ET or AT, Cumu. weighed insect days",
    asIs};
const TotalSizeFile kTotalSizePlusOne{
    "2C-Fig-Total size plus 1",
    "Total population size+1 and weighed size+1",
    true,
    "Time, Total population size+1, Weighed size+1, ET+1 or AT+1, Cumu. weighed insect days+1",
    "Time, Total size+1 (SP+burst-ready), Weigted size+1, ET+1 or AT+1, Cumu. weighed insect days+1",
    plusOne};
const TotalSizeFile kLogTotalSize{"2B-Fig-log Total size",
                                  "Total population size and weighed size (in log)",
                                  false,
                                  "Time, log(Total population size+1), log(Weighed size+1), log(ET+1) or "
                                  "log(AT+1), log(Cumu. weighed insect "
                                  "days+1)",
                                  "Time, log(Total size (SP+burst-ready+1)), log(Weighed size+1), log(ET+1) "
                                  "or log(AT+1), log(Cumu. weighed "
                                  "insect days+1)",
                                  lg};

void writeTotalSize(Session& session, const TotalSizeFile& file) {
  const Model& m = session.model();
  const bool physo = physogastry(session);
  OutputFile& out = openFigureFile(session, file.suffix);
  if (file.showsPredationCoef && m.PredationCoef > 0)
    out.write("Total population size and weighed size. Predation coef =" + digits(m.PredationCoef));
  else
    out.write(file.title);
  out.print(physo ? file.physoHeading : file.heading);
  for (int t = 0; t <= m.SimTime; ++t) {
    const double total = physo ? immatureAndBurstReady(m, t) : m.TotalSize(t);
    out.print(timeColumn(m, t), ",", bare(file.form(total)), ",", bare(file.form(m.WeighedSize(t))), ",",
              bare(file.form(m.EtDay(t))), ",", bare(file.form(m.CUMWID(t))));
  }
  closeFigureFile(session);
}

/// Under physogastry the two consumption files that show the population
/// hold no line 2 and their rows nothing but the time: kept so, all times
/// run together on one line.
bool writeTimesOnly(Session& session, OutputFile& out) {
  if (!physogastry(session))
    return false;
  for (int t = 0; t <= session.model().SimTime; ++t)
    out.printOpen(timeColumn(session.model(), t), ",");
  closeFigureFile(session);
  return true;
}

} // namespace

void writeTotalSizeFile(Session& session) { writeTotalSize(session, kTotalSize); }
void writeTotalSizePlusOneFile(Session& session) { writeTotalSize(session, kTotalSizePlusOne); }
void writeLogTotalSizeFile(Session& session) { writeTotalSize(session, kLogTotalSize); }

void writeCostAndHarvestFile(Session& session) {
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, "14-Fig-Cost and harvest");
  out.write("Total cost and harvest number");
  out.print("Time, total cost, total harvest");
  for (int t = 0; t <= m.SimTime; ++t) {
    out.printOpen(timeColumn(m, t), ",");
    out.write(m.TotalCost(t), m.TotalHarvest(t));
  }
  closeFigureFile(session);
}

void writeConsumptionFile(Session& session) {
  const Model& m = session.model();
  const bool physo = physogastry(session);
  OutputFile& out = openFigureFile(session, "9-Fig-Total consumption");
  out.write("Total consumption");
  out.write(physo ? "Time, Total size (SP+burst-ready), Weighed size, ET or AT, Cumu. weighed insect days"
                  : "Time, Total consumption, log(total consumption+1)");
  for (int t = 0; t <= m.SimTime; ++t) {
    const double first = physo ? immatureAndBurstReady(m, t) : m.TotalConsumption(t);
    out.print(timeColumn(m, t), ",", bare(first), ",", bare(lg(m.TotalConsumption(t))));
  }
  closeFigureFile(session);
}

void writeConsumptionAndPopulationFile(Session& session) {
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, "9a-Fig-Total consump. and population");
  out.write("Total consumption and total population");
  if (writeTimesOnly(session, out))
    return;
  out.write("Time, Total consump, log(total consump+1), total popu, log(total popu+1)");
  for (int t = 0; t <= m.SimTime; ++t)
    out.print(timeColumn(m, t), ",", bare(m.TotalConsumption(t)), ",", bare(lg(m.TotalConsumption(t))), ",",
              bare(m.TotalSize(t)), ",", bare(lg(m.TotalSize(t))));
  closeFigureFile(session);
}

void writeConsumptionPlusOneFile(Session& session) {
  const Model& m = session.model();
  OutputFile& out = openFigureFile(session, "9c-Fig-Total consump. and popu plus 1");
  out.write("Total consumption +1 and total population +1");
  if (writeTimesOnly(session, out))
    return;
  out.write("Time, Total consump+1, log(total consump+1), total popu+1, log(total popu+1)");
  for (int t = 0; t <= m.SimTime; ++t)
    out.print(timeColumn(m, t), ",", bare(m.TotalConsumption(t) + 1), ",", bare(lg(m.TotalConsumption(t))),
              ",", bare(m.TotalSize(t) + 1), ",", bare(lg(m.TotalSize(t))));
  closeFigureFile(session);
}

} // namespace vorlex
