#pragma once

#include <string>

namespace vorlex {

class Session;

/// The form "Data file check" (CheckDat) without its widgets: a tall,
/// scrolling view of the check report of a data file, a line under it
/// that sums up the check, and Back. Its controls live in session.controls
/// as "CheckDat.<name>", the form itself as "CheckDat", its caption naming
/// the file checked.
namespace checkdat {

/// The report, lines separated by '\n'.
inline constexpr const char* kReport = "CheckDat.Picture1";
/// The line that sums the check up: one of the three verdicts below.
inline constexpr const char* kVerdict = "CheckDat.lblVerdict";
inline constexpr const char* kBack = "CheckDat.Command1";

inline constexpr const char* kAgree =
    "The file was read to its end, and its statistics agree with its table.";
inline constexpr const char* kDisagree =
    "The file was read to its end, but its statistics disagree with its table: see the lines marked "
    "DISAGREES at the end.";
inline constexpr const char* kStopped = "The check stopped before the end of the file: see the last lines.";

/// The title of the file dialog that asks for the file to check when no
/// data file has been loaded.
inline constexpr const char* kFileDialogTitle = "Choose the data file to check";

/// The form as it is created: hidden, Back enabled.
void createControls(Session& session);

/// "Show data format" on the main form: checks the loaded data file, in
/// the form the load was told; before a load, asks the form of the file
/// and the file (nothing happens when the dialog is cancelled). The file
/// is read into a model of its own, so the loaded model and a run stay as
/// they are. The report and the verdict go to the form, which shows
/// instead of the main form. A file that does not fit ends the report with
/// its error and place; the session goes on.
void showDataFormat(Session& session);

/// Back: hides the form and shows the main form.
void Command1_Click(Session& session);

} // namespace checkdat

} // namespace vorlex
