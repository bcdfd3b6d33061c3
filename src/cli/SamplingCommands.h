#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace vorlex::cli {

/// `vorlex sampling [DATAFILE] [--sim-time N] [--answer 'TITLE=VALUE']...
/// [--answers FILE]`: the main form loads; with DATAFILE the simulation time
/// and the load as in `vorlex run`; then a click on "Show sampling data ".
/// Prints the sampling chart's series as comma-separated text on `out`: a
/// line "Time,NAME1,NAME2,..." and one line per day 0..SimTime. The prompts
/// and their answers go to `err`. Returns the exit status.
int samplingCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

/// `vorlex predict DATAFILE [--sim-time N] [--answer 'TITLE=VALUE']...
/// [--answers FILE]`: the main form loads, the simulation time, the load of
/// DATAFILE, then a click on "Predict emergence of y stage". Prints
/// "Predicted emergence: stage J (NAME) on day D, size S" on `out`; the
/// prompts and their answers go to `err`. A stage question that would be
/// asked again without a further answer ends with status 2.
int predictCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

/// The help texts of the two commands.
extern const char* const kSamplingUsage;
extern const char* const kPredictUsage;

} // namespace vorlex::cli
