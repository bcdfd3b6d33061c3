#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace vorlex::cli {

/// `vorlex batch DATAFILE... [--strategy S] [--sim-time N] [--answer ...]
/// [--answers FILE] [--date TEXT] [--export WHICH:DAY:FILE]... [--band FILE]
/// [--jobs N]`: a whole session for each data file, as `vorlex run` makes
/// it, each in a process of its own, several at a time. The one-day exports
/// of all runs go to one file per export, in the order of the data files,
/// byte for byte as a sequence of single runs would write them; the band
/// file holds the spread of the total and weighed size of each day across
/// the runs. Returns the exit status: 0 when every run succeeded.
int batchCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

/// The help text of the batch command.
extern const char* const kBatchUsage;

} // namespace vorlex::cli
