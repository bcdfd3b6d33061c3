#pragma once

#include <string>

namespace vorlex {

class Session;

/// Reads the plain project data file open as file 3: the life table, the
/// releases, the control schedule and the closing items; builds x, l(x),
/// m(x); closes file 3. A file that does not fit stops with the error of
/// the item where it went wrong, the place given as data file, item number,
/// line and the description read last.
void VorlexA(Session& session);
/// The same for the form of the file with the consumption block C(x,j).
void VorlexAwithCxj(Session& session);

/// Steps 1 to 33 of the plain file: project, life table, initial
/// population, releases, susceptibility, ET function, density coefficients.
void VorlexAGosub100(Session& session);
/// The same for the file with C(x,j).
void VorlexAGosub100withCxj(Session& session);

/// Opens a data file as file 3 and reads it in the form the session's
/// WithCxj flag names, as the load does.
void readDataFile(Session& session, const std::string& path);

/// Where reading the data file (file 3) stands, for the message of an error
/// there: the file, the item number, the line and the description read last.
std::string placeInDataFile(Session& session);

} // namespace vorlex
