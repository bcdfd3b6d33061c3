#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace vorlex {
class Session;
}

namespace vorlex::cli {

/// What a program does with the session after the run, as the command
/// line's run ends; returns the exit status.
using AfterRun = std::function<int(Session& session)>;

/// `vorlex run DATAFILE [--strategy S] [--sim-time N] [--answer 'TITLE=VALUE']...
/// [--answers FILE] [--date TEXT]`: the clicks of a whole session on the main
/// form, with every prompt answered from the command line. Returns the exit
/// status; run-time errors are left to the caller. After a run that ended
/// normally, `afterRun` (when given) takes the session and gives the status.
/// Whether the process ends with the command. An ending process leaves the
/// session of a run that ended normally to the system, which takes back all
/// of its memory at once: handing back its tables one by one would cost
/// more than a short run. Its files are closed all the same.
enum class AtTheEnd { ReturnToCaller, ProcessExits };

int runCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err,
               const AfterRun& afterRun = {}, AtTheEnd atTheEnd = AtTheEnd::ReturnToCaller);

/// The option of the main form that `--strategy NAME` clicks, 1..9; 0 for a
/// name that clicks no option: after-sampling, or no strategy at all.
int strategyOption(const std::string& name);

/// The help text of the run command.
extern const char* const kRunUsage;

} // namespace vorlex::cli
