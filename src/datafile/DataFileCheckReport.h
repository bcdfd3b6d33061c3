#pragma once

namespace vorlex {

class OutputFile;
class Session;

/// The check of a data file: reads the data file open as file 3 of the
/// session from its start, in the form the session's WithCxj flag names,
/// and prints on `picture` every description where it is met and every
/// value under a heading that says what the value is taken for. The values
/// go into the session's model as the load stores them (the decrease rates
/// applied), so that the table can be worked on afterwards; the per-day
/// tables (survival factors, ET of each day) are left alone.
///
/// The values are printed as the file gives them. A file that does not fit
/// stops with the error of the item where it went wrong, as the load does;
/// what was printed until then stays on `picture`.
void CheckDataFile(Session& session, OutputFile& picture);

} // namespace vorlex
