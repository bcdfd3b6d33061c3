#include "cli/RunCommand.h"

#include "cli/AnswerPrompter.h"
#include "cli/DataFileCheck.h"
#include "exports/DailySizes.h"
#include "mainform/FunctionScripts.h"
#include "mainform/MainForm.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

namespace vorlex::cli {

const char* const kRunUsage =
    "  vorlex run DATAFILE [--strategy S] [--sim-time N] [--answer 'TITLE=VALUE']...\n"
    "             [--answers FILE] [--date TEXT] [--carrying-capacity SPEC] [--et SPEC]\n"
    "             [--export WHICH]... [--series FILE]\n"
    "      Runs a whole session: simulation time, load of DATAFILE, strategy, run.\n"
    "      Outputs go beside DATAFILE.\n"
    "      --strategy S   no-control (default), predefined, auto-et, optimize-first,\n"
    "                     optimize-interval, harvest, lambda, predation,\n"
    "                     extra-mortality, after-sampling\n"
    "                     after-sampling clicks \"Project growth using N(j) at time t\"\n"
    "                     after the load instead of a strategy and Run: the run\n"
    "                     without control from one sampled count; answer\n"
    "                     'Open 0A4_Stage2StageTime.txt=PATH' and\n"
    "                     'Open sampling data file=PATH'\n"
    "      --sim-time N   simulation time (default 60)\n"
    "      --answer 'TITLE=VALUE'  answers the prompt of that title; a title asked\n"
    "                     several times takes its answers in order. Without one a\n"
    "                     value prompt takes its default, yes/no is No, a file\n"
    "                     dialog is cancelled.\n"
    "      --answers FILE one TITLE=VALUE a line, # comments\n"
    "      --date TEXT    date printed on the report (default: today)\n"
    "      --carrying-capacity SPEC  density-dependent mortality under K(t), set on\n"
    "                     the form \"Density-dependent K?\" after the strategy is chosen:\n"
    "                     logistic:KMAX,K0,R | polynomial:A,B,C,D,XFROM,XTO |\n"
    "                     parabola:Y0,YMAX,XMAX,XFROM,XTO | none\n"
    "      --et SPEC      ET(t) from an equation of the form \"ET(t)\", after the load:\n"
    "                     constant:A | linear:A,B | logistic:A,B,C,L | hyperbola:A,B\n"
    "      --export WHICH one-day export, WHICH one of total, stages, consumption,\n"
    "                     weighed: clicks its button after the load, before the\n"
    "                     strategy; repeatable, clicked in the order given. Its\n"
    "                     prompts are answered by title; a file dialog's answer\n"
    "                     is a path, relative to the current folder.\n"
    "      --series FILE  also writes the total and weighed size of each day of\n"
    "                     the run to FILE, comma-separated, at full precision\n";

namespace {

// The projection after sampling is a button, not an option of the strategy
// frame.
constexpr int kAfterSamplingButton = 0;

struct Strategy {
  const char* name;
  int option;        // OptionN, or kAfterSamplingButton
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
    {"after-sampling", kAfterSamplingButton, "projection after sampling"},
};

struct RunOptions {
  std::string dataFile;
  std::string strategy = "no-control";
  std::string simTime = "60";
  std::string date;
  std::optional<FormChoice> capacity;
  std::optional<FormChoice> et;
  std::vector<void (MainForm::*)()> exports;
  std::string seriesFile;
};

// The export buttons by the name the command line gives them.
void (MainForm::*exportButton(const std::string& which))() {
  if (which == "total")
    return &MainForm::cmdVIPOption1_Click;
  if (which == "stages")
    return &MainForm::cmdVIPOption2_Click;
  if (which == "consumption")
    return &MainForm::cmdVIPOption3_Click;
  if (which == "weighed")
    return &MainForm::cmdVIPOption4_Click;
  throw AnswerError("unknown export '" + which + "': total, stages, consumption or weighed");
}

const Strategy* findStrategy(const std::string& name) {
  const auto found = std::find_if(std::begin(kStrategies), std::end(kStrategies),
                                  [&](const Strategy& s) { return name == s.name; });
  return found == std::end(kStrategies) ? nullptr : found;
}

// A build that checks for leaks at the exit gives every session back.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kLeaksChecked = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool kLeaksChecked = true;
#else
constexpr bool kLeaksChecked = false;
#endif
#else
constexpr bool kLeaksChecked = false;
#endif

} // namespace

int strategyOption(const std::string& name) {
  const Strategy* strategy = findStrategy(name);
  return strategy ? strategy->option : 0;
}

int runCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err,
               const AfterRun& afterRun, AtTheEnd atTheEnd) {
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
      else if (arg == "--carrying-capacity" && hasValue)
        options.capacity = parseCarryingCapacity(args[++i]);
      else if (arg == "--et" && hasValue)
        options.et = parseEtEquation(args[++i]);
      else if (arg == "--export" && hasValue)
        options.exports.push_back(exportButton(args[++i]));
      else if (arg == "--series" && hasValue)
        options.seriesFile = args[++i];
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
  } catch (const FormScriptError& error) {
    err << "vorlex: " << error.what() << "\nUsage:\n" << kRunUsage;
    return 2;
  }

  const Strategy* strategy = findStrategy(options.strategy);
  if (!strategy) {
    err << "vorlex: unknown strategy '" << options.strategy << "'\nUsage:\n" << kRunUsage;
    return 2;
  }
  const bool afterSampling = strategy->option == kAfterSamplingButton;
  const std::string optManagement =
      afterSampling ? "OptNoControl" : MainForm::optManagementOf(strategy->option);
  if (!MainForm::hasDriver(optManagement)) {
    err << "vorlex: the strategy '" << strategy->name << "' (" << optManagement
        << ") is not available in this build yet; nothing was written.\n";
    return 2;
  }
  if (const auto problem = cli::dataFileProblem(options.dataFile)) {
    err << "vorlex: " << *problem << "; nothing was asked or written.\n";
    return 2;
  }

  auto owned = std::make_unique<Session>(prompter);
  Session& session = *owned;
  // A run of the command line projects once and ends: no later projection
  // adds to the sizes of the ages of its days.
  session.keepsAgeSizes = false;
  if (!options.date.empty())
    session.shortDate = options.date;
  prompter.answerFirst(MainForm::kDataFileDialogTitle, options.dataFile);

  MainForm form(session);
  form.Form_Load();
  session.controls["txtSimuT"].caption = options.simTime;
  try {
    form.Command2_Click();
    form.cmdInputLTdata_Click();
    if (options.et)
      applyEtEquation(form, *options.et);
    for (const auto click : options.exports)
      (form.*click)();
    if (afterSampling) {
      if (options.capacity)
        applyCarryingCapacity(form, *options.capacity);
      form.cmdProjectionAfterSampling_Click();
    } else {
      form.chooseOption(strategy->option);
      if (options.capacity)
        applyCarryingCapacity(form, *options.capacity);
      form.cmdRun_Click();
    }
  } catch (const FormScriptError& error) {
    session.files.closeAll();
    err << "vorlex: " << error.what() << '\n';
    return 2;
  } catch (const AnswerError& error) {
    session.files.closeAll();
    err << "vorlex: " << error.what() << '\n';
    return 2;
  }
  session.files.closeAll();
  if (!options.seriesFile.empty())
    writeDailySizes(session, options.seriesFile);

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
  const int status = afterRun ? afterRun(session) : 0;
  if (atTheEnd == AtTheEnd::ProcessExits && !kLeaksChecked)
    static_cast<void>(owned.release());
  return status;
}

} // namespace vorlex::cli
