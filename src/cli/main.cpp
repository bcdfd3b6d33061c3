// vorlex: the command-line twin of the desktop program.
#include "cli/CheckCommand.h"
#include "cli/BatchCommand.h"
#include "cli/DataFileCheck.h"
#include "cli/InfoCommand.h"
#include "cli/RunCommand.h"
#include "cli/SamplingCommands.h"
#include "datafile/DataFileReader.h"
#include "model/Session.h"
#include "textio/NumberForms.h"
#include "textio/RuntimeError.h"
#include "textio/SilentPrompter.h"

#include <cstdlib>
#include <iostream>
#if defined(__linux__)
#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>
#endif
#if defined(__GLIBC__)
#include <malloc.h>
#endif
#include <string>
#include <vector>

namespace {

const char* const kInfoUsage =
    "  vorlex info DATAFILE [--cxj] [--sim-time N]\n"
    "      Reads a project data file as the load does and prints what it holds.\n"
    "      --cxj          the file has the consumption block C(x,j)\n"
    "      --sim-time N   simulation time that bounds the daily tables (default 60)\n";

const std::string kUsage = std::string("Usage:\n") + vorlex::cli::kRunUsage + vorlex::cli::kBatchUsage + kInfoUsage +
                           vorlex::cli::kCheckUsage +
                           vorlex::cli::kSamplingUsage + vorlex::cli::kPredictUsage +
                           "  vorlex --version\n"
                           "      Prints the version.\n"
                           "Each command's --help prints its own usage.\n";

int runInfo(const std::vector<std::string>& args) {
  std::string dataFile;
  bool withCxj = false;
  std::string simTime = "60";
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--help" || args[i] == "-h") {
      std::cout << "Usage:\n" << kInfoUsage;
      return 0;
    }
    if (args[i] == "--cxj") {
      withCxj = true;
    } else if (args[i] == "--sim-time" && i + 1 < args.size()) {
      simTime = args[++i];
    } else if (!args[i].empty() && args[i][0] != '-' && dataFile.empty()) {
      dataFile = args[i];
    } else {
      std::cerr << kUsage;
      return 2;
    }
  }
  if (dataFile.empty()) {
    std::cerr << kUsage;
    return 2;
  }
  if (const auto problem = vorlex::cli::dataFileProblem(dataFile)) {
    std::cerr << "vorlex: " << *problem << ".\n";
    return 2;
  }

  vorlex::SilentPrompter prompter; // info reads a file without asking anything
  vorlex::Session session(prompter);
  session.flags.WithCxj = withCxj ? "Yes" : "No";
  session.names.DataFileName = dataFile;
  vorlex::Model& m = session.model();
  m.SimTime = vorlex::toInt16(vorlex::numberEntry(simTime));
  m.SimTimeNext = vorlex::checkedInt16(m.SimTime + 1);
  vorlex::readDataFile(session, dataFile);
  vorlex::printDataFileSummary(session, std::cout);
  return 0;
}

} // namespace

#if defined(__linux__)
// The ends of the program's code, from the linker.
extern "C" char __executable_start;
extern "C" char etext;
#endif

namespace {

// The program's code is mapped in one call rather than a page at its first
// use: on these machines a page taken at its first use costs about 11 µs,
// and a short run uses some fifty of them. Systems before Linux 5.14 refuse
// the request, and the pages come as before.
void mapCodeAtOnce() {
#if defined(__linux__)
  constexpr int kPopulateRead = 22; // MADV_POPULATE_READ
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const auto from = reinterpret_cast<std::uintptr_t>(&__executable_start) / page * page;
  const auto to = (reinterpret_cast<std::uintptr_t>(&etext) + page - 1) / page * page;
  madvise(reinterpret_cast<void*>(from), to - from, kPopulateRead);
#endif
}

// The heap of a run is taken in one piece at the start, its pages handed
// over in one call, and kept: the buffers of the files and the texts of a
// run then come from pages already there instead of a page at each first
// write. Blocks up to a megabyte stay in the heap rather than in mappings
// of their own, which would be fresh pages again.
void takeTheHeapAtOnce() {
#if defined(__GLIBC__) && defined(__linux__)
  constexpr int kPopulateWrite = 23; // MADV_POPULATE_WRITE
  constexpr std::size_t kHeap = 320 * 1024;
  mallopt(M_MMAP_THRESHOLD, 1 << 20);
  mallopt(M_TRIM_THRESHOLD, 8 << 20);
  void* block = std::malloc(kHeap);
  if (!block)
    return;
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const auto from = (reinterpret_cast<std::uintptr_t>(block) + page - 1) / page * page;
  const auto to = (reinterpret_cast<std::uintptr_t>(block) + kHeap) / page * page;
  madvise(reinterpret_cast<void*>(from), to - from, kPopulateWrite);
  std::free(block);
#endif
}

} // namespace

int main(int argc, char** argv) {
  mapCodeAtOnce();
  takeTheHeapAtOnce();
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty()) {
    std::cerr << kUsage;
    return 2;
  }
  if (args[0] == "--help" || args[0] == "-h") {
    std::cout << kUsage;
    return 0;
  }
  if (args[0] == "--version") {
    std::cout << "vorlex " << VORLEX_VERSION << '\n';
    return 0;
  }
  try {
    if (args[0] == "run")
      return vorlex::cli::runCommand({args.begin() + 1, args.end()}, std::cout, std::cerr, {},
                                     vorlex::cli::AtTheEnd::ProcessExits);
    if (args[0] == "sampling")
      return vorlex::cli::samplingCommand({args.begin() + 1, args.end()}, std::cout, std::cerr);
    if (args[0] == "predict")
      return vorlex::cli::predictCommand({args.begin() + 1, args.end()}, std::cout, std::cerr);
    if (args[0] == "batch")
      return vorlex::cli::batchCommand({args.begin() + 1, args.end()}, std::cout, std::cerr);
    if (args[0] == "info")
      return runInfo({args.begin() + 1, args.end()});
    if (args[0] == "check")
      return vorlex::cli::checkCommand({args.begin() + 1, args.end()}, std::cout, std::cerr);
    std::cerr << "vorlex: unknown command '" << args[0] << "'\n" << kUsage;
    return 2;
  } catch (const vorlex::RuntimeError& error) {
    std::cerr << "vorlex: " << error.what() << "\nLikely cause: " << error.likelyCause() << '\n';
    return 1;
  } catch (const vorlex::ProgramEnd& end) {
    std::cerr << "vorlex: " << end.what() << '\n';
    return 1;
  }
}
