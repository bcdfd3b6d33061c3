#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace vorlex::cli {

/// `vorlex run DATAFILE [--strategy S] [--sim-time N] [--answer 'TITLE=VALUE']...
/// [--answers FILE] [--date TEXT]`: the clicks of a whole session on the main
/// form, with every prompt answered from the command line. Returns the exit
/// status; run-time errors are left to the caller.
int runCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

/// The option of the main form that `--strategy NAME` clicks, 1..9; 0 for a
/// name that is no strategy.
int strategyOption(const std::string& name);

/// The help text of the run command.
extern const char* const kRunUsage;

} // namespace vorlex::cli
