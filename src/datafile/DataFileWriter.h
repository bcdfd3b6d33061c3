#pragma once

#include <string>

namespace vorlex {

class Session;

/// Writes the state a run has reached as a new project data file, for a
/// later start from the population at SimTime: the life table and the five
/// parameters go out again (decrease factors folded into the rates,
/// developmental rates cut to four places), the initial population is PopN,
/// and releases, susceptibility, ET function, density coefficients and the
/// control schedule are reset to a template for the user to edit. Enables
/// Command5. The file is file 1, named by derivedDataFileName; it is
/// replaced if present and closed at the end. Nothing is written when
/// OnlyTotalFigures is "Yes" or WriteZeroFile is not "Yes".
void WriteDataFileForVorlexA(Session& session);

/// The release block of a derived data file: no release active, and the
/// ten template releases that the reader passes over by count.
void WriteAdditionalRelease(Session& session);

/// Writes the project and stage lines and the population at SimTime as
/// age, stage, number triples, for pasting into a data file by hand. File
/// 1, named by matrixFileName; the same conditions as the data file.
void WriteMatrixNforTimeT(Session& session);

/// BaseName + "-0-T-" + SimTime (blank-led) + ".txt", or + "with cxj.txt"
/// for the form of the file with C(x,j).
std::string derivedDataFileName(const Session& session);
/// BaseName + "_matrix N at t " + SimTime (blank-led) + ".txt".
std::string matrixFileName(const Session& session);

} // namespace vorlex
