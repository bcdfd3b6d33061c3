#include "cli/BatchCommand.h"

#include "cli/AnswerPrompter.h"
#include "cli/ChildRuns.h"
#include "exports/SpecificDateExport.h"
#include "exports/UncertaintyBand.h"
#include "textio/RuntimeError.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>
#include <unistd.h>

namespace vorlex::cli {

const char* const kBatchUsage =
    "  vorlex batch DATAFILE... [--strategy S] [--sim-time N] [--answer 'TITLE=VALUE']...\n"
    "             [--answers FILE] [--date TEXT] [--export WHICH:DAY:FILE]... [--band FILE]\n"
    "             [--jobs N]\n"
    "      Runs a whole session for each data file, as 'vorlex run' does, with the\n"
    "      same strategy and answers; outputs go beside each data file. Runs go in\n"
    "      parallel processes; a run that fails is told with its file and error\n"
    "      and the others go on. Exit status 0 when every run succeeded, 1 if not.\n"
    "      --export WHICH:DAY:FILE  one-day export of every run (WHICH: total,\n"
    "                     stages, consumption, weighed) into FILE: a new file for\n"
    "                     the first run, appended to by the others, each run's\n"
    "                     code the data file's name without folder and extension\n"
    "      --band FILE    for each day, the minimum, 2.5 %, 25 %, 50 %, 75 %,\n"
    "                     97.5 % and maximum of the total and of the weighed size\n"
    "                     across the runs that succeeded, comma-separated\n"
    "      --jobs N       runs at a time (default: the number of processors)\n";

namespace {

struct ExportRequest {
  DateExport which;
  std::string name; // as given: total, stages, ...
  std::string day;
  std::string file;
};

struct BatchOptions {
  std::vector<std::string> dataFiles;
  std::vector<std::string> runArgs; // passed on to every run as given
  std::vector<ExportRequest> exports;
  std::string band;
  int jobs = 0;
};

DateExport exportNamed(const std::string& name) {
  if (name == "total")
    return DateExport::TotalSize;
  if (name == "stages")
    return DateExport::StageSizes;
  if (name == "consumption")
    return DateExport::Consumption;
  if (name == "weighed")
    return DateExport::WeighedSize;
  throw AnswerError("unknown export '" + name + "': total, stages, consumption or weighed");
}

ExportRequest exportRequest(const std::string& text) {
  const auto first = text.find(':');
  const auto second = first == std::string::npos ? first : text.find(':', first + 1);
  if (second == std::string::npos || second + 1 == text.size())
    throw AnswerError("an export is written WHICH:DAY:FILE, not '" + text + "'");
  const std::string name = text.substr(0, first);
  return {exportNamed(name), name, text.substr(first + 1, second - first - 1), text.substr(second + 1)};
}

BatchOptions parse(const std::vector<std::string>& args) {
  BatchOptions options;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool hasValue = i + 1 < args.size();
    if ((arg == "--strategy" || arg == "--sim-time" || arg == "--answer" || arg == "--answers" ||
         arg == "--date") &&
        hasValue) {
      // Answers are checked here, before any run.
      std::ostringstream unused;
      if (arg == "--answer")
        AnswerPrompter(unused).addAnswer(args[i + 1]);
      else if (arg == "--answers")
        AnswerPrompter(unused).addAnswersFromFile(args[i + 1]);
      options.runArgs.push_back(arg);
      options.runArgs.push_back(args[++i]);
    } else if (arg == "--export" && hasValue) {
      options.exports.push_back(exportRequest(args[++i]));
    } else if (arg == "--band" && hasValue) {
      options.band = args[++i];
    } else if (arg == "--jobs" && hasValue) {
      const std::string& jobs = args[++i];
      char* end = nullptr;
      const long n = std::strtol(jobs.c_str(), &end, 10);
      if (jobs.empty() || *end != '\0' || n < 1 || n > 1024)
        throw AnswerError("--jobs takes a number of runs from 1 to 1024, not '" + jobs + "'");
      options.jobs = static_cast<int>(n);
    } else if (!arg.empty() && arg[0] != '-') {
      options.dataFiles.push_back(arg);
    } else {
      throw AnswerError("unexpected argument '" + arg + "'");
    }
  }
  if (options.dataFiles.empty())
    throw AnswerError("no data file given");
  if (options.jobs == 0)
    options.jobs = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  return options;
}

// A folder of its own for the private files of the runs.
std::filesystem::path privateFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "vorlex-batch-XXXXXX").string();
  if (!mkdtemp(pattern.data()))
    raise(ErrorCode::PathFileAccessError, "Folder: " + pattern);
  return pattern;
}

std::string answer(const std::string& title, const std::string& value) { return title + "=" + value; }

// The arguments of `vorlex run` for run n: its data file, the exports
// clicked and answered into private files (a new file for the first run,
// appended to for the rest, as one after the other would), then the
// answers given for all runs.
std::vector<std::string> runArgsOf(const BatchOptions& options, std::size_t n, const std::filesystem::path& folder) {
  const std::string& dataFile = options.dataFiles[n];
  std::vector<std::string> args{"run", dataFile};
  const std::string code = std::filesystem::path(dataFile).stem().string();
  for (std::size_t k = 0; k < options.exports.size(); ++k) {
    const ExportRequest& request = options.exports[k];
    const DateExportTexts& texts = textsOf(request.which);
    const bool first = n == 0;
    const std::string file = (folder / ("export-" + std::to_string(k) + "-" + std::to_string(n))).string();
    for (const std::string& word :
         {std::string("--export"), request.name, std::string("--answer"), answer(texts.dateTitle, request.day),
          std::string("--answer"), answer(kOpenOrAppendTitle, first ? "Yes" : "No"), std::string("--answer"),
          answer(first ? texts.saveTitle : texts.appendTitle, file), std::string("--answer"),
          answer(kFileCodeTitle, code)})
      args.push_back(word);
  }
  args.insert(args.end(), options.runArgs.begin(), options.runArgs.end());
  if (!options.band.empty()) {
    args.push_back("--series");
    args.push_back((folder / ("series-" + std::to_string(n))).string());
  }
  return args;
}

std::string fileText(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream all;
  all << in.rdbuf();
  return all.str();
}

// Joins the private export files of the runs, in the order of the data
// files, into the export file.
void joinExports(const BatchOptions& options, std::size_t k, const std::filesystem::path& folder) {
  const std::string& path = options.exports[k].file;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  if (!out)
    raise(ErrorCode::PathFileAccessError, "File: " + path);
  for (std::size_t n = 0; n < options.dataFiles.size(); ++n) {
    const auto part = folder / ("export-" + std::to_string(k) + "-" + std::to_string(n));
    if (std::filesystem::exists(part))
      out << fileText(part);
  }
  out.close();
  if (!out)
    raise(ErrorCode::DiskFull, "File: " + path);
}

// What a failed run's error stream says, each line indented.
std::string failureOf(const ChildRun& run) {
  if (run.signal != 0)
    return "    stopped by signal " + std::to_string(run.signal) + "\n";
  if (run.status == 127)
    return "    could not be started\n";
  std::istringstream lines(fileText(run.errorFile));
  std::string told, line;
  while (std::getline(lines, line))
    told += "    " + line + "\n";
  return told.empty() ? "    exit status " + std::to_string(run.status) + "\n" : told;
}

void showProgress(std::ostream& err, std::size_t done, std::size_t all, std::size_t failed) {
  err << "\rRuns done: " << done << " of " << all << ", failed: " << failed << std::flush;
}

} // namespace

int batchCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  for (const std::string& arg : args)
    if (arg == "--help" || arg == "-h") {
      out << "Usage:\n" << kBatchUsage;
      return 0;
    }
  BatchOptions options;
  try {
    options = parse(args);
  } catch (const AnswerError& error) {
    err << "vorlex: " << error.what() << "\nUsage:\n" << kBatchUsage;
    return 2;
  }

  const std::filesystem::path folder = privateFolder();
  struct Cleanup {
    std::filesystem::path folder;
    ~Cleanup() {
      std::error_code ignored;
      std::filesystem::remove_all(folder, ignored);
    }
  } cleanup{folder};

  std::vector<ChildRun> runs(options.dataFiles.size());
  for (std::size_t n = 0; n < runs.size(); ++n) {
    runs[n].args = runArgsOf(options, n, folder);
    runs[n].errorFile = (folder / ("errors-" + std::to_string(n))).string();
  }
  const bool terminal = isatty(STDERR_FILENO) == 1;
  std::size_t done = 0, failed = 0;
  if (terminal)
    showProgress(err, 0, runs.size(), 0);
  runChildren(ownExecutable(), runs, options.jobs, [&](std::size_t n) {
    ++done;
    failed += runs[n].succeeded() ? 0 : 1;
    if (terminal)
      showProgress(err, done, runs.size(), failed);
  });
  if (terminal)
    err << '\n';

  for (std::size_t n = 0; n < runs.size(); ++n)
    if (!runs[n].succeeded())
      err << "vorlex: the run of " << options.dataFiles[n] << " failed:\n" << failureOf(runs[n]);

  std::vector<std::string> written;
  for (std::size_t k = 0; k < options.exports.size(); ++k) {
    joinExports(options, k, folder);
    written.push_back(options.exports[k].file);
  }
  if (!options.band.empty()) {
    std::vector<DailySizes> sizes;
    for (std::size_t n = 0; n < runs.size(); ++n)
      if (runs[n].succeeded())
        sizes.push_back(readDailySizes((folder / ("series-" + std::to_string(n))).string()));
    if (sizes.empty()) {
      err << "vorlex: no run succeeded; the band file " << options.band << " was not written\n";
    } else {
      writeBand(bandOf(sizes), options.band);
      written.push_back(options.band);
    }
  }

  out << "Runs: " << runs.size() << ", succeeded: " << runs.size() - failed << ", failed: " << failed << '\n';
  if (!written.empty()) {
    out << "Files written:\n";
    for (const std::string& path : written)
      out << "  " << path << '\n';
  }
  return failed == 0 ? 0 : 1;
}

} // namespace vorlex::cli
