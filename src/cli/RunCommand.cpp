#include "cli/RunCommand.h"

#include "cli/AnswerPrompter.h"
#include "cli/DataFileCheck.h"
#include "mainform/MainForm.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

#include <algorithm>
#include <iterator>

namespace vorlex::cli {

const char* const kRunUsage =
    "  vorlex run DATAFILE [--strategy S] [--sim-time N] [--answer 'TITLE=VALUE']...\n"
    "             [--answers FILE] [--date TEXT]\n"
    "      Runs a whole session: simulation time, load of DATAFILE, strategy, run.\n"
    "      Outputs go beside DATAFILE.\n"
    "      --strategy S   no-control (default), predefined, auto-et, harvest, lambda,\n"
    "                     predation, extra-mortality; still to come:\n"
    "                     optimize-first, optimize-interval\n"
    "      --sim-time N   simulation time (default 60)\n"
    "      --answer 'TITLE=VALUE'  answers the prompt of that title; a title asked\n"
    "                     several times takes its answers in order. Without one a\n"
    "                     value prompt takes its default, yes/no is No, a file\n"
    "                     dialog is cancelled.\n"
    "      --answers FILE one TITLE=VALUE a line, # comments\n"
    "      --date TEXT    date printed on the report (default: today)\n";

namespace {

struct Strategy {
  const char* name;
  int option;
  const char* words; // what the summary calls it
};

constexpr Strategy kStrategies[] = {
    {"no-control", 1, "no control"},
    {"predefined", 2, "control based on a predefined schedule"},
    {"auto-et", 3, "automatic control based on ET"},
    {"optimize-first", 4, "optimizing the beginning of control"},
    {"optimize-interval", 5, "optimizing the control interval"},
    {"harvest", 6, "population growth with stage harvesting"},
    {"lambda", 7, "growth to lambda"},
    {"predation", 8, "population growth under predation"},
    {"extra-mortality", 9, "extra mortality"},
};

struct RunOptions {
  std::string dataFile;
  std::string strategy = "no-control";
  std::string simTime = "60";
  std::string date;
};

const Strategy* findStrategy(const std::string& name) {
  const auto found = std::find_if(std::begin(kStrategies), std::end(kStrategies),
                                  [&](const Strategy& s) { return name == s.name; });
  return found == std::end(kStrategies) ? nullptr : found;
}

} // namespace

int strategyOption(const std::string& name) {
  const Strategy* strategy = findStrategy(name);
  return strategy ? strategy->option : 0;
}

int runCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  RunOptions options;
  AnswerPrompter prompter(out);
  try {
    for (std::size_t i = 0; i < args.size(); ++i) {
      const std::string& arg = args[i];
      const bool hasValue = i + 1 < args.size();
      if (arg == "--help" || arg == "-h") {
        out << "Usage:\n" << kRunUsage;
        return 0;
      }
      if (arg == "--strategy" && hasValue)
        options.strategy = args[++i];
      else if (arg == "--sim-time" && hasValue)
        options.simTime = args[++i];
      else if (arg == "--answer" && hasValue)
        prompter.addAnswer(args[++i]);
      else if (arg == "--answers" && hasValue)
        prompter.addAnswersFromFile(args[++i]);
      else if (arg == "--date" && hasValue)
        options.date = args[++i];
      else if (!arg.empty() && arg[0] != '-' && options.dataFile.empty())
        options.dataFile = arg;
      else
        throw AnswerError("unexpected argument '" + arg + "'");
    }
    if (options.dataFile.empty())
      throw AnswerError("no data file given");
  } catch (const AnswerError& error) {
    err << "vorlex: " << error.what() << "\nUsage:\n" << kRunUsage;
    return 2;
  }

  const Strategy* strategy = findStrategy(options.strategy);
  if (!strategy) {
    err << "vorlex: unknown strategy '" << options.strategy << "'\nUsage:\n" << kRunUsage;
    return 2;
  }
  const std::string optManagement = MainForm::optManagementOf(strategy->option);
  if (!MainForm::hasDriver(optManagement)) {
    err << "vorlex: the strategy '" << strategy->name << "' (" << optManagement
        << ") is not available in this build yet; nothing was written.\n";
    return 2;
  }
  if (const auto problem = cli::dataFileProblem(options.dataFile)) {
    err << "vorlex: " << *problem << "; nothing was asked or written.\n";
    return 2;
  }

  Session session(prompter);
  if (!options.date.empty())
    session.shortDate = options.date;
  prompter.answerFirst(MainForm::kDataFileDialogTitle, options.dataFile);

  MainForm form(session);
  form.Form_Load();
  session.controls["txtSimuT"].caption = options.simTime;
  try {
    form.Command2_Click();
    form.cmdInputLTdata_Click();
    form.chooseOption(strategy->option);
    form.cmdRun_Click();
  } catch (const AnswerError& error) {
    session.files.closeAll();
    err << "vorlex: " << error.what() << '\n';
    return 2;
  }
  session.files.closeAll();

  const Model& m = session.model();
  const int lastDay = session.lastDayReached;
  out << "Strategy: " << strategy->words << '\n'
      << "Last day reached: " << lastDay << '\n'
      << "Total size on day " << lastDay << ": " << digits(m.TotalSize(lastDay)) << '\n';
  if (const std::string& summary = session.controls["lblRunSummary"].caption; !summary.empty())
    out << summary << '\n';
  out << "Files written:\n";
  for (const std::string& path : session.files.writtenPaths())
    out << "  " << path << '\n';
  for (const std::string& title : prompter.unusedAnswers())
    err << "vorlex: warning: the answer for '" << title << "' was not asked for\n";
  return 0;
}

} // namespace vorlex::cli
