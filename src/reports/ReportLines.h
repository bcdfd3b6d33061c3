#pragma once

#include "textio/OutputFile.h"

#include <string>

namespace vorlex {

class OutputFile;
class Session;

/// The open report file of a session.
OutputFile& reportFile(Session& session);

/// A line that holds the form feed character alone; every page of the
/// report starts with one.
void printFormFeed(OutputFile& out);
/// Lines that hold one blank each.
void printBlankLines(OutputFile& out, int count);

/// v rounded to four decimal places, ties to the even last digit.
double round4(double v);
/// The first character of a name, empty for an empty name; plot marks and
/// the short stage names of the development page.
std::string firstLetter(const std::string& name);

} // namespace vorlex
