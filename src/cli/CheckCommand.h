#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace vorlex::cli {

/// `vorlex check DATAFILE [--cxj]`: clicks "Show data format" on a fresh
/// main form, answering its questions with the file and its form, and
/// prints the check report and its verdict. Exit status 0 when the file was
/// read to its end and its statistics agree with its table, 3 when they
/// disagree, 1 when the check stopped, 2 for a command line that can't be
/// used.
int checkCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

/// The help text of the check command.
extern const char* const kCheckUsage;

} // namespace vorlex::cli
