#include "exports/TotalPredation.h"

#include "model/Arithmetic.h"
#include "model/Session.h"
#include "reports/FigureFiles.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

constexpr const char* kLagPrompt =
    "Enter the time (x days) you want to add to the total predation file.\n"
    "You can then add x zeros to the file.\n"
    "This can be used to simulate the release of predator on x day.\n"
    "It means there will be no predation during the first x days.\n"
    "It will generate the file 10X. It can be imported for the simulation of the pest population\n"
    "growth under predator or parasitoid pressure. If this file is itself a pest population, 10X cannot be "
    "used.";

constexpr const char* kDescriptionPrompt = "Enter a short description of this predation (parasitism) rate:\n"
                                           "E.g., pest killed by predators\n"
                                           "E.g., pest killed by parasites\n"
                                           "(If this insect itself is the pest, enter Pest.)";

void writeRow(OutputFile& out, double time, double predation, double logPredation) {
  out.print(stripped(time), ",", stripped(predation), ",", stripped(logPredation));
}

} // namespace

void WriteTotalPredation(Session& session) {
  if (session.flags.WithCxj != "Yes")
    return;
  Model& m = session.model();
  Prompter& user = session.prompter();
  m.PredationLag = textToInt16(user.askValue(kLagPrompt, "Add time to total predation data.", "1"));
  m.PredationDescription =
      user.askValue(kDescriptionPrompt, "Predator? Parasitoid? Pest?", "preys killed by predators");
  m.FigureSuffix = m.PredationDescription.empty()
                       ? "10X-No use"
                       : "10X-Total " + m.PredationDescription + " released after " + digits(m.PredationLag) +
                             " time units";
  SaveGraphDataGosub1650OpenFile(session);
  OutputFile& out = session.files.output(kReportFile);
  out.write("Total predation");
  out.write("Time, Total predation, log(total predation+1)");

  const int lag = m.PredationLag;
  if (lag == 0) {
    for (int t = 0; t <= m.SimTime; ++t)
      writeRow(out, t * m.TimeUnit, m.TotalConsumption(t), log10Plus1(m.TotalConsumption(t)));
  } else if (lag > 0) {
    for (int t = 0; t < lag; ++t) {
      m.LaggedTime(t) = t * m.TimeUnit;
      m.LaggedConsumption(t) = 0;
      out.print(stripped(m.LaggedTime(t)), ",", 0.0, ",", 0.0);
    }
    const int last = checkedInt16(m.SimTime + lag);
    for (int t = lag; t <= last; ++t) {
      m.LaggedTime(t) = t * m.TimeUnit;
      m.LaggedConsumption(t) = m.TotalConsumption(t - lag);
      m.LaggedLogConsumption(t) = log10Plus1(m.LaggedConsumption(t));
      writeRow(out, m.LaggedTime(t), m.LaggedConsumption(t), m.LaggedLogConsumption(t));
    }
  }
  // A negative lag leaves the file with its headings only.
  session.files.close(kReportFile);
}

namespace {

// The file number the predation file is read and its scaled copy written on.
constexpr int kPredationFile = 9;

} // namespace

void ReadTotalPredation(Session& session) {
  Model& m = session.model();
  const std::string path = session.prompter().chooseFileToOpen(kPredationFileDialogTitle);
  if (path.empty())
    return;
  session.files.openInput(kPredationFile, path);
  ItemReader& in = session.files.input(kPredationFile);
  const std::string title = in.readText();
  const std::string header = in.readText();
  const int lastDay = checkedInt16(m.SimTime + 1);
  for (int t = 0; t <= lastDay; ++t) {
    if (in.atEnd())
      break;
    in.readNumber(); // the time column is not used
    m.PredationTotal(t) = in.readNumber();
    m.PredationLog(t) = in.readNumber();
  }
  session.files.close(kPredationFile);

  m.PredationCoef = askNumber(session.prompter(), "Enter a value between 0 and 1 to modify the predation rate",
                              "Predation coefficient", "1");
  if (m.PredationCoef != 1) {
    const std::string stem = path.substr(0, path.size() >= 4 ? path.size() - 4 : 0);
    session.files.openOutput(kPredationFile, stem + "-" + digits(m.PredationCoef) + ".txt");
    OutputFile& out = session.files.output(kPredationFile);
    out.write(title);
    out.write(header);
    for (int t = 0; t <= lastDay; ++t) {
      const double scaled = m.PredationCoef * m.PredationTotal(t);
      out.write(static_cast<double>(t), scaled, log10Plus1(scaled));
    }
    session.files.close(kPredationFile);
  }
  for (int t = 0; t <= lastDay; ++t)
    m.PredationTotal(t) = m.PredationCoef * m.PredationTotal(t);
}

} // namespace vorlex
