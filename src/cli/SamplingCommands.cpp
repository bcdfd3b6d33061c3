#include "cli/SamplingCommands.h"

#include "cli/AnswerPrompter.h"
#include "cli/DataFileCheck.h"
#include "mainform/MainForm.h"
#include "model/Session.h"
#include "sampling/StagePrediction.h"
#include "textio/NumberForms.h"

namespace vorlex::cli {

const char* const kSamplingUsage =
    "  vorlex sampling [DATAFILE] [--sim-time N] [--answer 'TITLE=VALUE']... [--answers FILE]\n"
    "      Shows a sampling file of five-item records (item, day, item, stage, count)\n"
    "      as \"Show sampling data \" does; prints its series as comma-separated text,\n"
    "      a column per sampled stage and a line per day. Without DATAFILE the\n"
    "      demonstration stages of a moth and 80 days are used. The file is chosen\n"
    "      by --answer 'Open sampling data file=PATH'.\n";

const char* const kPredictUsage =
    "  vorlex predict DATAFILE [--sim-time N] [--answer 'TITLE=VALUE']... [--answers FILE]\n"
    "      Predicts from one count of a stage (sampling file of three-item records:\n"
    "      day, stage, count) when another stage emerges and how many, as\n"
    "      \"Predict emergence of y stage\" does. Answers: 'Open\n"
    "      0A4_Stage2StageTime.txt=PATH', 'Open sampling data file=PATH',\n"
    "      'Which stage is to be predicted?=J'.\n";

namespace {

struct Options {
  std::string dataFile;
  std::string simTime;
};

// Reads the arguments; false (with the usage on err) when they don't fit.
bool parse(const std::vector<std::string>& args, AnswerPrompter& prompter, Options& options,
           const char* usage, std::ostream& out, std::ostream& err, int& status) {
  try {
    for (std::size_t i = 0; i < args.size(); ++i) {
      const std::string& arg = args[i];
      const bool hasValue = i + 1 < args.size();
      if (arg == "--help" || arg == "-h") {
        out << "Usage:\n" << usage;
        status = 0;
        return false;
      }
      if (arg == "--sim-time" && hasValue)
        options.simTime = args[++i];
      else if (arg == "--answer" && hasValue)
        prompter.addAnswer(args[++i]);
      else if (arg == "--answers" && hasValue)
        prompter.addAnswersFromFile(args[++i]);
      else if (!arg.empty() && arg[0] != '-' && options.dataFile.empty())
        options.dataFile = arg;
      else
        throw AnswerError("unexpected argument '" + arg + "'");
    }
  } catch (const AnswerError& error) {
    err << "vorlex: " << error.what() << "\nUsage:\n" << usage;
    status = 2;
    return false;
  }
  if (!options.dataFile.empty()) {
    if (const auto problem = dataFileProblem(options.dataFile)) {
      err << "vorlex: " << *problem << "; nothing was asked or written.\n";
      status = 2;
      return false;
    }
  }
  return true;
}

// The clicks up to the load: Form_Load, then with a data file the OK of the
// simulation time and the load.
void loadForm(MainForm& form, Session& session, AnswerPrompter& prompter, const Options& options) {
  form.Form_Load();
  if (options.dataFile.empty())
    return;
  prompter.answerFirst(MainForm::kDataFileDialogTitle, options.dataFile);
  if (!options.simTime.empty())
    session.controls["txtSimuT"].caption = options.simTime;
  form.Command2_Click();
  form.cmdInputLTdata_Click();
}

// The load, then the click of `button`, with the files closed after; false
// (the answer's error told) when an answer given does not fit a question.
bool loadAndClick(MainForm& form, Session& session, AnswerPrompter& prompter, const Options& options,
                  void (MainForm::*button)(), std::ostream& err) {
  try {
    loadForm(form, session, prompter, options);
    (form.*button)();
  } catch (const AnswerError& error) {
    session.files.closeAll();
    err << "vorlex: " << error.what() << '\n';
    return false;
  }
  session.files.closeAll();
  return true;
}

void warnUnused(const AnswerPrompter& prompter, std::ostream& err) {
  for (const std::string& title : prompter.unusedAnswers())
    err << "vorlex: warning: the answer for '" << title << "' was not asked for\n";
}

/// Answers as the command line does, but a stage question asked again with
/// no answer left would be asked for ever: it ends the command instead.
class PredictionPrompter : public AnswerPrompter {
public:
  using AnswerPrompter::AnswerPrompter;
  std::string askValue(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override {
    if (title == kPredictStageTitle) {
      if (asked_ && !hasAnswerFor(title))
        throw AnswerError("the stage to predict, '" + lastAnswer_ +
                          "', is above the number of stages of the life table, and no further answer to '" +
                          title + "' was given");
      asked_ = true;
      lastAnswer_ = AnswerPrompter::askValue(prompt, title, defaultText);
      return lastAnswer_;
    }
    return AnswerPrompter::askValue(prompt, title, defaultText);
  }

private:
  bool asked_ = false;
  std::string lastAnswer_;
};

} // namespace

int samplingCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  AnswerPrompter prompter(err);
  Options options;
  int status = 0;
  if (!parse(args, prompter, options, kSamplingUsage, out, err, status))
    return status;
  if (options.dataFile.empty() && !options.simTime.empty()) {
    err << "vorlex: --sim-time goes with a data file; without one the demonstration set-up has 80 days\n";
    return 2;
  }

  Session session(prompter);
  MainForm form(session);
  if (!loadAndClick(form, session, prompter, options, &MainForm::cmdStageSamplingData_Click, err))
    return 2;

  // The chart holds a row per day; without any sampled stage only the days.
  const ChartContent& chart = form.sampling().chart();
  out << "Time";
  for (int series = 1; series <= chart.seriesCount(); ++series)
    out << ',' << chart.label(series);
  out << '\n';
  for (int row = 1; row <= chart.rowCount(); ++row) {
    out << digits(row - 1);
    for (int series = 1; series <= chart.seriesCount(); ++series)
      out << ',' << digits(chart.y(series, row));
    out << '\n';
  }
  warnUnused(prompter, err);
  return 0;
}

int predictCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  PredictionPrompter prompter(err);
  Options options;
  int status = 0;
  if (!parse(args, prompter, options, kPredictUsage, out, err, status))
    return status;
  if (options.dataFile.empty()) {
    err << "vorlex: no data file given\nUsage:\n" << kPredictUsage;
    return 2;
  }

  Session session(prompter);
  MainForm form(session);
  if (!loadAndClick(form, session, prompter, options, &MainForm::cmdStageProjection_Click, err))
    return 2;

  const SamplingTables& t = form.sampling().tables();
  out << "Predicted emergence: stage " << t.PredictStage << " (" << session.model().StageName(t.PredictStage)
      << ") on day " << t.PredictDay << ", size " << stripped(t.PredictSize) << '\n';
  warnUnused(prompter, err);
  return 0;
}

} // namespace vorlex::cli
