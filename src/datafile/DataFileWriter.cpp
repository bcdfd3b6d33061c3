#include "datafile/DataFileWriter.h"

#include "datafile/EtSelector.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

#include <array>

namespace vorlex {

namespace {

constexpr double kDevelopScale = 10000; // developmental rates go out to four places

/// How a line of a value block is closed: a line end alone, or a blank and
/// the line end.
enum class Closing { Plain, Blank };

/// The layout of one block of values (a stage, or the extra row of the
/// development): so many values a line, commas between the values of a
/// line, and the closing of each kind of line.
struct RowLayout {
  int perLine;
  std::string (*form)(double);
  Closing fullLine;     // a line that holds perLine values, not the last of the row
  Closing lastFullLine; // a full line whose last value is the last of the row
  Closing partLine;     // the last line of the row, when it is not full
};

constexpr RowLayout kPlainRows{10, stripped, Closing::Plain, Closing::Plain, Closing::Plain};
constexpr RowLayout kDevelopRows{10, stripped, Closing::Plain, Closing::Plain, Closing::Blank};
constexpr RowLayout kExtraDevelopRow{10, stripped, Closing::Blank, Closing::Plain, Closing::Plain};
constexpr RowLayout kConsumptionRows{5, printForm, Closing::Blank, Closing::Blank, Closing::Blank};

void closeLine(OutputFile& out, Closing closing) {
  if (closing == Closing::Blank)
    out.printOpen(" ");
  out.endLine();
}

/// Writes value(age) for age = firstAge..lastAge. A row that ends on a full
/// line ends there, with no further line end.
template <typename ValueOf>
void writeRow(OutputFile& out, const RowLayout& layout, int firstAge, int lastAge, ValueOf value) {
  int count = 0;
  for (int age = firstAge; age <= lastAge; ++age) {
    out.printOpen(layout.form(value(age)));
    ++count;
    if (count == layout.perLine) {
      closeLine(out, age == lastAge ? layout.lastFullLine : layout.fullLine);
      count = 0;
    } else if (age != lastAge) {
      out.printOpen(",");
    }
  }
  if (count != 0)
    closeLine(out, layout.partLine);
}

double toFourPlaces(double value) { return roundHalfEven(value * kDevelopScale) / kDevelopScale; }

bool writesDerivedFiles(const Session& session) {
  return session.flags.OnlyTotalFigures != "Yes" && session.flags.WriteZeroFile == "Yes";
}

// Steps 1 to 9: project, last age and number of stages, the stage lines.
void writeProjectAndStages(OutputFile& out, const Model& m) {
  out.write("Description: the next three lines are project, date and user name.");
  out.write(m.ProjectName);
  out.write(m.ProjectDate);
  out.write(m.ProjectUser);
  out.write("Description: Last age group is " + blankLed(m.LastAge) + ", number of stages is " +
            blankLed(m.NrStage));
  out.print(stripped(m.LastAge) + "," + stripped(m.NrStage));
  out.write("Description: next lines are age intervals, stage name, weighing (cost) "
            "coefficient,density-dependent mortality");
  for (int stage = 1; stage <= m.NrStage; ++stage)
    out.write(m.StageAge(stage, 1), m.StageAge(stage, 2), m.StageName(stage), m.WeighCoef(stage),
              m.DensityCoef(stage));
}

void writeRates(OutputFile& out, const Model& m, bool withCxj) {
  const int female = m.NrStage - 1;
  const int lastImmature = m.NrStage - 2;
  out.write("Description: the female stage is" + blankLed(female));
  out.print(stripped(female));
  out.write("Description: modify the following decrease rate for Vorlex program to lower the fecundity.");
  out.write(1);
  const int fecundityCount = m.StageAge(female, 2) - m.StageAge(female, 1) + 1;
  out.write("Description: there are " + blankLed(fecundityCount) + " fecundity data for female");
  writeRow(out, kPlainRows, m.StageAge(female, 1), m.StageAge(female, 2),
           [&](int age) { return m.Fecundity(age, female); });

  out.write("Description: modify the following decrease rate for Vorlex program to lower the growth rate.");
  out.write(1);
  out.write("Description: the next lines are the growth rates for each stage.");
  for (int stage = 1; stage <= m.NrStage; ++stage)
    writeRow(out, kPlainRows, m.StageAge(stage, 1), m.StageAge(stage, 2),
             [&](int age) { return m.GrowthRate(age, stage); });

  out.write("Description: modify the following decrease rate for Vorlex program to lower the "
            "developmental rate.");
  out.write(1);
  out.write("Description: next lines are developmental rates");
  for (int stage = 1; stage <= lastImmature; ++stage)
    writeRow(out, kDevelopRows, m.StageAge(stage, 1), m.StageAge(stage, 2),
             [&](int age) { return toFourPlaces(m.DevelopRate(age, stage)); });
  // The move of the last immature stage into the male stands in the next
  // column, over the ages of the last immature stage.
  writeRow(out, kExtraDevelopRow, m.StageAge(lastImmature, 1), m.StageAge(lastImmature, 2),
           [&](int age) { return toFourPlaces(m.DevelopRate(age, lastImmature + 1)); });

  if (!withCxj)
    return;
  out.write("Description: decrease coefficient (MODIFY next data to decrease the consumption rate. 0<=D<=1)");
  out.write(1);
  out.write("Description: the next lines are the consumption (predation or parasitism) rates c(x,j) for "
            "each stage. Copy the c(x,j) data from Grazlet to replace these data.");
  for (int stage = 1; stage <= m.NrStage; ++stage)
    writeRow(out, kConsumptionRows, m.StageAge(stage, 1), m.StageAge(stage, 2),
             [&](int age) { return m.Consumption(age, stage); });
}

// The nonzero cells of PopN, stage by stage over each stage's ages, and the
// end mark.
void writePopulation(OutputFile& out, const Model& m) {
  for (int stage = 1; stage <= m.NrStage; ++stage)
    for (int age = m.StageAge(stage, 1); age <= m.StageAge(stage, 2); ++age)
      if (m.PopN(age, stage) != 0)
        out.write(age, stage, m.PopN(age, stage));
  out.write(0, 0, 0);
}

void writeSusceptibility(OutputFile& out, const Model& m) {
  out.write("Description: There are two susceptible (weak) factors (the 1st for parasitoid and 2nd for "
            "rainfall, etc.)");
  out.write(2);
  out.write("Description: Susceptible factor and the susceptibility coefficients for each stage.");
  const std::array<std::pair<const char*, double>, 2> factors{
      {{"Parasitoid or predator", 1}, {"Rainfall", .5}}};
  for (const auto& [name, coefficient] : factors) {
    out.printOpen(std::string("\"") + name + "\"");
    for (int stage = 1; stage <= m.NrStage; ++stage)
      out.printOpen(",", stage == 1 ? 0.0 : coefficient);
    out.endLine();
  }
}

void writeControlTemplate(OutputFile& out, const Model& m) {
  out.write("Description: number of treatment = 1");
  out.write(1);
  out.write("Description: first treatment at 10th day");
  out.write(10);
  out.write("Description: Critical cumulative insect day is on 15th day");
  out.write(15);
  out.write("Description: Code treatment is DDT, effective duration is one day, interval to next treatment "
            "is 10 days");
  out.write("Pyrethrins", 1);
  out.write("Description: stage mortality due to treatment");
  for (int stage = 1; stage <= m.NrStage; ++stage) {
    if (stage > 1)
      out.printOpen(",");
    out.printOpen(stage == 1 ? 0.0 : .9);
  }
  out.endLine();
}

void writeClosingItems(OutputFile& out, const Model& m) {
  out.write("Description: time interval between treatment and sampling");
  out.write(7);
  out.write("Description: Sampling stage is " + blankLed(m.NrStage - 1) + " to " + blankLed(m.NrStage));
  out.write(m.NrStage - 1, m.NrStage);
  out.write("Previous cumulative weighed insect days");
  out.write(m.CUMWID(m.SimTime - 1));
  out.write("Mean fecundity");
  out.write(m.MeanFecundity);
  out.write("Net reproductive rate");
  out.write(m.NetReproductiveRate);
  out.write("Intrinsic rate of increase");
  out.write(m.IntrinsicRate);
  out.write("Finite rate of increase");
  out.write(m.FiniteRate);
  out.write("Mean generation time");
  out.write(m.GenerationTime);
  out.write("Last age");
  out.write(m.LastAgeOfFile);
}

} // namespace

std::string derivedDataFileName(const Session& session) {
  const bool withCxj = session.flags.WithCxj == "Yes";
  return session.names.BaseName + "-0-T-" + blankLed(session.model().SimTime) +
         (withCxj ? "with cxj.txt" : ".txt");
}

std::string matrixFileName(const Session& session) {
  return session.names.BaseName + "_matrix N at t " + blankLed(session.model().SimTime) + ".txt";
}

void WriteDataFileForVorlexA(Session& session) {
  if (!writesDerivedFiles(session))
    return;
  Model& m = session.model();
  const bool withCxj = session.flags.WithCxj == "Yes";
  ControlState& ready = session.controls["Command5"];
  ready.enabled = true;
  ready.caption = "File 0-T-" + blankLed(m.SimTime) + " for 1,2,3,8 is ready";

  session.files.openOutput(kWorkFile, derivedDataFileName(session));
  OutputFile& out = session.files.output(kWorkFile);
  writeProjectAndStages(out, m);
  writeRates(out, m, withCxj);
  out.write("Description: next lines are initial population structure (age, stage, number), end with 0,0,0");
  writePopulation(out, m);
  WriteAdditionalRelease(session);
  writeSusceptibility(out, m);
  // The writer knows only the selector of the plain form, whatever the form
  // of the file.
  out.write(kEtLogisticText);
  out.write(20, 1, -.2, 10);
  out.write("Description: Density-dependent mortality coefficient for density below K and over K");
  out.write(.2, 1);
  writeControlTemplate(out, m);
  writeClosingItems(out, m);
  session.files.close(kWorkFile);
}

void WriteAdditionalRelease(Session& session) {
  static constexpr std::array<const char*, 10> kOrdinals{"1st", "2nd", "3rd", "4th", "5th",
                                                         "6th", "7th", "8th", "9th", "10th"};
  OutputFile& out = session.files.output(kWorkFile);
  out.write("Description: Number of additional releases (n>=0). 0 = no release. Change 0 to 1 , 2, .., 10 "
            "for 1, 2,... releases");
  out.write(0);
  for (int r = 1; r <= 10; ++r) {
    const std::string ordinal = kOrdinals[static_cast<std::size_t>(r - 1)];
    if (r == 1) {
      out.write("1st release: Enter day for the 1st additional release. (d1>=1)");
    } else {
      out.write(ordinal + " release: Enter day for the " + ordinal + " release. (d" + std::to_string(r) +
                ">d" + std::to_string(r - 1) + ")");
    }
    out.write(r);
    out.write(r == 1
                  ? "Description: Popu. structure (age = integer time unit, stage, number) of the 1st add. "
                    "release. End with 0,0,0"
                  : "Description: Popu. structure (age = integer time unit, stage, number) of next release. "
                    "End with 0,0,0");
    out.print("0, 1, 10");
    out.print("0, 0, 0");
  }
}

void WriteMatrixNforTimeT(Session& session) {
  if (!writesDerivedFiles(session))
    return;
  const Model& m = session.model();
  session.files.openOutput(kWorkFile, matrixFileName(session));
  OutputFile& out = session.files.output(kWorkFile);
  writeProjectAndStages(out, m);
  out.write(
      "Description: copy following matrix N to the vorlex data file to replace the initial population.");
  writePopulation(out, m);
  session.files.close(kWorkFile);
}

} // namespace vorlex
